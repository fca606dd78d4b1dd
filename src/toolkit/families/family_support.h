// Small things that several families of widgets need.
#pragma once

#include "toolkit/frame/core.h"

#include <QByteArray>
#include <QFocusEvent>
#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace orba {

// 0, and for text also 1, mean the theme's own colour.
inline QColor colourOrNone(int colour) { return colour > 0 ? colourOf(colour) : QColor(); }
inline QColor textColourOrNone(int colour) { return colour > 1 ? colourOf(colour) : QColor(); }

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

// Of a family whose view is a stop of the Tab key only as its options say.
inline bool setTabStop(Widget& widget, int property, const Value& value) {
    if (property != propertyOf(owTabList)) return false;
    if (std::exchange(widget.tabList, value.integer) != value.integer) widget.family->show(widget);
    return true;
}

} // namespace orba
