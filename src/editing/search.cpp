#include "editing/search.h"

#include <algorithm>
#include <cctype>

namespace {

bool continues(unsigned char byte) { return (byte & 0xC0) == 0x80; }
int unitsOf(unsigned char lead) { return lead >= 0xF0 ? 2 : 1; } // two beyond the basic plane

// Small letters in place of capitals. As many bytes as before, so places stay what they are.
std::string folded(const std::string& text) {
    std::string out = text;
    for (size_t i = 0; i < out.size(); ++i) {
        const auto byte = static_cast<unsigned char>(out[i]);
        constexpr unsigned char LATIN = 0xC3, FIRST = 0x80, LAST = 0x9E, TIMES = 0x97, TO_SMALL = 0x20;
        if (byte < 0x80) {
            out[i] = static_cast<char>(std::tolower(byte));
        } else if (byte == LATIN && i + 1 < out.size()) {
            const auto letter = static_cast<unsigned char>(out[++i]);
            if (letter >= FIRST && letter <= LAST && letter != TIMES) out[i] = static_cast<char>(letter + TO_SMALL);
        }
    }
    return out;
}

bool wholeName(const std::string& code, size_t start, size_t end) {
    const bool before = start > 0 && isNamePart(code[start - 1]) && isNamePart(code[start]);
    const bool behind = end < code.size() && isNamePart(code[end]) && isNamePart(code[end - 1]);
    return !before && !behind;
}

} // namespace

bool isNamePart(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return std::isalnum(byte) || byte == '_' || byte >= 0x80;
}

std::vector<Hit> findAll(const std::string& code, const Search& search, size_t from) {
    std::vector<Hit> hits;
    if (search.text.empty()) return hits;
    const std::string where = search.matchCase ? code : folded(code);
    const std::string what = search.matchCase ? search.text : folded(search.text);
    for (size_t at = where.find(what, from); at != std::string::npos;) {
        const bool counts = !search.wholeNames || wholeName(code, at, at + what.size());
        if (counts) hits.push_back({at, at + what.size()});
        at = where.find(what, at + (counts ? what.size() : 1));
    }
    return hits;
}

Hit findNext(const std::string& code, const Search& search, Hit selection, bool up) {
    const std::vector<Hit> hits = findAll(code, search);
    if (hits.empty()) return {};
    const auto wrapped = [](Hit hit) { return Hit{hit.start, hit.end, true}; };
    if (up) {
        const auto behind = std::ranges::lower_bound(hits, selection.start, {}, &Hit::start);
        return behind == hits.begin() ? wrapped(hits.back()) : *std::prev(behind);
    }
    const auto next = std::ranges::lower_bound(hits, selection.end, {}, &Hit::start);
    return next == hits.end() ? wrapped(hits.front()) : *next;
}

bool selectionIsHit(const std::string& code, const Search& search, Hit selection) {
    if (search.text.empty() || selection.end - selection.start != search.text.size()) return false;
    const std::vector<Hit> hits = findAll(code, search, selection.start);
    return !hits.empty() && hits.front().start == selection.start;
}

Replaced replaceAll(const std::string& code, const Search& search, const std::string& replacement, size_t from) {
    Replaced result;
    size_t done = 0;
    for (const Hit& hit : findAll(code, search, from)) {
        result.code.append(code, done, hit.start - done).append(replacement);
        done = hit.end;
        ++result.count;
    }
    result.code.append(code, done);
    return result;
}

void SearchHistory::add(const std::string& text) {
    if (text.empty() || std::ranges::find(rows, text) != rows.end()) return;
    rows.insert(rows.begin(), text);
    if (rows.size() > ROWS) rows.pop_back();
}

int positionOf(const std::string& code, size_t bytes) {
    int position = 1;
    for (size_t i = 0; i < std::min(bytes, code.size()); ++i)
        if (!continues(code[i])) position += unitsOf(code[i]);
    return position;
}

size_t bytesAt(const std::string& code, int position) {
    int at = 1;
    size_t i = 0;
    while (i < code.size() && at + unitsOf(code[i]) <= position) {
        at += unitsOf(code[i]);
        do ++i;
        while (i < code.size() && continues(code[i]));
    }
    return i;
}
