// Help while code is typed: the signature of the routine whose arguments are being written, and the words that may be
// meant.
#pragma once

#include <optional>
#include <string>
#include <vector>

// The call whose brackets hold a place of a line.
struct OpenCall {
    std::string name;
    int argument = 1; // in force, from 1
};

// `caret`: bytes of the line ahead of the place. None inside strings and comments.
std::optional<OpenCall> callAt(const std::string& line, size_t caret, int language);

// The start of a name that ends at `caret`; empty in strings and comments, and where a number stands.
std::string nameAhead(const std::string& line, size_t caret, int language);

// All names of a code once each, as they are first written; words of comments and strings are none.
std::vector<std::string> namesIn(const std::string& code, int language);

struct OfferedWord {
    std::string word;
    std::string note;
};
// What may be meant in a call (null for none) of the open project: keywords of the call, the user's own names, names of
// widgets, routines. With `start` those alone that begin so, in either case.
std::vector<OfferedWord> offeredWords(const OpenCall* call, const std::string& start);

void assistAfterKey(bool changed); // the caret moved, or the user changed the text
void offerWordsNow();              // asked for
void removeAssist();               // the popup goes, and the words
void forgetAssist();               // the toolkit begins anew: what there was is gone
