#include "toolkit/keywords/call.h"

#include "toolkit/checked/entries.h"

#include <cstring>

namespace orba {
namespace {

// True when a routine reads a keyword.
bool reads(const FunctionRow& function, int keyword) {
    for (const int* one = function.keywords; *one != 0; one++) {
        if (*one == keyword) return true;
        if (*one == ANY) {
            const KeywordRow* row = keywordRow(keyword);
            if (row && row->property != 0) return true;
        }
    }
    return false;
}

// Keywords whose value stays an integer where the others are pointers to results.
bool passedByValue(int keyword) { return keyword == owLength || keyword == owPosition || keyword == owEntryType; }

int fixedCountOf(const FunctionRow& function) {
    if (function.arguments[0] == 0) return 0;
    int count = 1;
    for (const char* at = function.arguments; *at; at++) count += *at == ',' ? 1 : 0;
    for (const char* at = std::strstr(function.arguments, "buffer "); at; at = std::strstr(at + 1, "buffer ")) count++;
    return count;
}

} // namespace

Call::Call(Fn which, std::initializer_list<Word> words) : Call(which, words.begin(), static_cast<int>(words.size())) {}

Call::Call(Fn which, const Word* words, int count) : function(which), fixedCount(count) {
    for (int i = 0; i < count && i < MAX_FIXED; i++) fixed[i] = words[i];
}

void Call::add(int keyword, Word value) {
    if (keywordCount < MAX_KEYWORDS) keywords[keywordCount++] = {keyword, value};
}

void Call::readList(std::va_list list) {
    const FunctionRow& row = functionRow(function);
    for (int keyword = va_arg(list, int); keyword != 0; keyword = va_arg(list, int)) {
        if (!reads(row, keyword)) continue;
        const ValueKind kind = keywordRow(keyword)->kind;
        if (kind == ValueKind::TEXT || kind == ValueKind::INTS || (row.byReference && !passedByValue(keyword))) {
            add(keyword, wordOf(va_arg(list, const void*)));
        } else if (kind == ValueKind::REAL) {
            add(keyword, wordOf(va_arg(list, double)));
        } else {
            add(keyword, wordOf(va_arg(list, int)));
        }
    }
}

void Call::readWords(const Word* words) {
    const FunctionRow& row = functionRow(function);
    for (; static_cast<int>(*words) != 0; words++) {
        const int keyword = static_cast<int>(*words);
        if (reads(row, keyword)) add(keyword, *++words);
    }
}

Word Call::run() { return checkedCall({function, fixed, fixedCount, keywords, keywordCount}); }

} // namespace orba

extern "C" int owRoutineNumber(const char* name) {
    for (int number = 0; number < static_cast<int>(orba::Fn::count); number++) {
        if (std::strcmp(orba::functionRow(static_cast<orba::Fn>(number)).name, name) == 0) return number;
    }
    return -1;
}

extern "C" std::int64_t owCallWords(int function, const std::int64_t* words) {
    if (function < 0 || function >= static_cast<int>(orba::Fn::count) || !words) return 0;
    const orba::Fn which = static_cast<orba::Fn>(function);
    const int fixed = orba::fixedCountOf(orba::functionRow(which));
    orba::Call call(which, words, fixed);
    call.readWords(words + fixed);
    return call.run();
}
