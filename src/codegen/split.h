// Long statements of the three languages as several lines of their source.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// How a language breaks a statement. Lengths are characters.
struct SplitRule {
    std::size_t threshold;         // a line is split when its length with its line end reaches this
    std::size_t first;             // characters taken for the first line
    std::size_t further;           // and for each further line
    std::string_view prefix;       // of a further line
    std::string_view stringPrefix; // of a further line that goes on with a string
    std::string_view stringClose;  // of a string at a break
    std::string_view mark;         // at the end of a line that has a follower
    char quote;
    bool backslashes;         // inside a string a backslash takes the next character with it
    bool retreatBehindString; // a line that was just given its closing quote retreats all the same
};

extern const SplitRule SPLIT_FREE;  // Fortran 90
extern const SplitRule SPLIT_FIXED; // Fortran 77
extern const SplitRule SPLIT_C;

// Appends `line`, which ends in a line end, to `text` in as many lines as the rule asks for.
void appendSplit(std::string& text, std::string_view line, const SplitRule& rule);
