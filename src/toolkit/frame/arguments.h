// The arguments of one call of a routine, as the keyword layer hands them down.
#pragma once

#include "toolkit/tables/function_table.h"

#include <QString>

#include <bit>
#include <cstdint>

namespace orba {

// A machine word: an integer, the bits of a double, or an address.
using Word = std::int64_t;

inline Word wordOf(int value) { return value; }
inline Word wordOf(double value) { return std::bit_cast<Word>(value); }
inline Word wordOf(const void* value) { return static_cast<Word>(reinterpret_cast<std::intptr_t>(value)); }
inline double realOf(Word word) { return std::bit_cast<double>(word); }
// Words carry addresses by design: the other languages have no other way to pass them.
// NOLINTNEXTLINE(performance-no-int-to-ptr)
inline void* addressOf(Word word) { return reinterpret_cast<void*>(static_cast<std::intptr_t>(word)); }

// A program's text: UTF-8, or Latin-1 where it is no UTF-8. textIn drops trailing blanks, wholeText keeps them.
QString textIn(const char* bytes);
QString wholeText(const char* bytes);
// Into a buffer of `length` bytes with the closing NUL: trailing blanks dropped, cut between characters. A null buffer
// or a length below 1 writes nothing.
void textOut(const QString& text, char* buffer, int length);

struct KeywordValue {
    int keyword;
    Word value;
};

struct Arguments {
    Fn function;
    const Word* fixed; // in the order of functions.def; a buffer's length stands behind the buffer
    int fixedCount;
    const KeywordValue* keywords; // those given, in the order of the list; the last of a keyword counts
    int keywordCount;

    int integer(int index) const { return static_cast<int>(fixed[index]); }
    double real(int index) const { return realOf(fixed[index]); }
    const char* bytes(int index) const { return static_cast<const char*>(addressOf(fixed[index])); }
    QString text(int index) const { return textIn(bytes(index)); }
    // What is passed by address; null when the program passed null.
    template <typename T> T* record(int index) const { return static_cast<T*>(addressOf(fixed[index])); }
    // Writes a result if the program wants it.
    template <typename T> void give(int index, T value) const {
        if (T* result = record<T>(index)) *result = value;
    }
    // The buffer at `index`, whose length stands behind it.
    void giveText(int index, const QString& text) const { textOut(text, record<char>(index), integer(index + 1)); }

    bool given(int keyword) const { return find(keyword) != nullptr; }
    // The value given, or the routine's default. owOnCol and owBack2Col are one, and owOffCol and owBack1Col.
    int keyword(int keyword) const;
    double keywordReal(int keyword) const;
    QString keywordText(int keyword) const;
    template <typename T> T* keywordRecord(int keyword) const {
        const KeywordValue* value = find(keyword);
        return value ? static_cast<T*>(addressOf(value->value)) : nullptr;
    }
    const KeywordValue* find(int keyword) const;
};

} // namespace orba
