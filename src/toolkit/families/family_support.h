// Small things that several families of widgets need.
#pragma once

#include "toolkit/frame/core.h"

#include <QByteArray>
#include <QFocusEvent>
#include <algorithm>
#include <string>
#include <string_view>

namespace orba {

// 0, and for text also 1, mean the theme's own colour.
inline QColor colourOrNone(int colour) { return colour > 0 ? colourOf(colour) : QColor(); }
inline QColor textColourOrNone(int colour) { return colour > 1 ? colourOf(colour) : QColor(); }

// owType stands for the type keyword of a family; each family also has one of its own.
inline int typeKeyword(const Arguments& call, int ownKeyword) {
    return call.given(ownKeyword) ? call.keyword(ownKeyword) : call.keyword(owType);
}

// False for focus that comes and goes with a pop-up or with the whole window, which is no news for a program: a window
// that becomes active gives the focus to what had it last, even when the user is about to click on something else.
inline bool byUser(const QFocusEvent& event) {
    return event.reason() != Qt::PopupFocusReason && event.reason() != Qt::ActiveWindowFocusReason;
}

// A program's text byte by byte, without its trailing blanks.
inline std::string_view trimmedBytes(const char* bytes) {
    std::string_view text = bytes ? bytes : "";
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

// Bytes into a program's buffer of `length` bytes with the closing NUL: trailing blanks dropped, cut between
// characters.
void bytesOut(std::string_view bytes, char* buffer, int length);
inline void giveBytes(const Arguments& call, int index, std::string_view bytes) {
    bytesOut(bytes, call.record<char>(index), call.integer(index + 1));
}

// What a keyword of an enquiry points to, when it was given.
template <typename T> void giveKeyword(const Arguments& call, int keyword, T value) {
    if (T* result = call.keywordRecord<T>(keyword)) *result = value;
}

// Remembers what a property holds and tells whether there is one: rows of a family's table.
template <typename Data> struct IntegerProperty {
    int number;
    int Data::*field;
};
template <typename Data, std::size_t N>
bool getInteger(const IntegerProperty<Data> (&rows)[N], const Data& data, int property, Value& value) {
    for (const auto& row : rows)
        if (row.number == property) {
            value.integer = data.*row.field;
            return true;
        }
    return false;
}
template <typename Data, std::size_t N>
bool setInteger(const IntegerProperty<Data> (&rows)[N], Data& data, int property, const Value& value) {
    for (const auto& row : rows)
        if (row.number == property) {
            data.*row.field = value.integer;
            return true;
        }
    return false;
}

} // namespace orba
