// Finding and replacing in the text of a block or slot: plain words, no patterns. Places are bytes of the text; the
// conversions to and from the positions of a text widget stand at the end.
#pragma once

#include <string>
#include <vector>

struct Search {
    std::string text;
    bool matchCase = false;  // else letters, with those of western languages, count as equal in either case
    bool wholeNames = false; // what stands inside a longer name is no hit
};

struct Hit {
    size_t start = std::string::npos;
    size_t end = std::string::npos;
    bool wrapped = false; // found on the other side of the text's end or start
    explicit operator bool() const { return start != std::string::npos; }
};

// All hits that do not overlap, from `from` on. An empty text is found nowhere.
std::vector<Hit> findAll(const std::string& code, const Search& search, size_t from = 0);

// The next hit behind the selection, or the one ahead of it; past the end of the text the search goes on at the other
// end.
Hit findNext(const std::string& code, const Search& search, Hit selection, bool up);

// Whether the selection itself is a hit.
bool selectionIsHit(const std::string& code, const Search& search, Hit selection);

struct Replaced {
    std::string code;
    int count = 0;
};
// A replacement that holds the text looked for is not looked at again.
Replaced replaceAll(const std::string& code, const Search& search, const std::string& replacement, size_t from = 0);

// Texts looked for lately, the last one first.
struct SearchHistory {
    static constexpr size_t ROWS = 10;
    std::vector<std::string> rows;
    void add(const std::string& text); // one that is there already stays where it is
};

bool isNamePart(char c); // of an identifier

// Positions count UTF-16 units from 1. `bytes` of a place inside a letter are those of the letter's start.
int positionOf(const std::string& code, size_t bytes);
size_t bytesAt(const std::string& code, int position);
