// One call of a routine on its way from the C interface or a word list to the checked entries.
#pragma once

#include "toolkit/frame/arguments.h"
#include "toolkit/include/menu-words.h"

#include <cstdarg>
#include <initializer_list>

namespace orba {

class Call {
public:
    Call(Fn function, std::initializer_list<Word> fixed);
    Call(Fn function, const Word* fixed, int count);

    // Reads keyword and value pairs up to the keyword 0. A keyword that the routine does not have is skipped without
    // reading a value.
    void readList(std::va_list list);
    void readWords(const Word* words);

    // Runs the checked entry. The result is a handle, an integer, or 0.
    Word run();

private:
    enum : int { MAX_FIXED = 16, MAX_KEYWORDS = 64 };
    void add(int keyword, Word value);

    Fn function;
    int fixedCount = 0;
    int keywordCount = 0;
    Word fixed[MAX_FIXED];
    KeywordValue keywords[MAX_KEYWORDS];
};

} // namespace orba
