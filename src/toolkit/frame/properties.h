// Properties by number, status and help of every widget.
#pragma once

#include "toolkit/frame/widget.h"

namespace orba {

// As its family keeps it, or in the common way. False when the widget has no such property.
bool getProperty(Widget& widget, int property, Value& value);
bool setProperty(Widget& widget, int property, const Value& value);
inline void setProperty(Widget& widget, int property, int number) {
    setProperty(widget, property, {.integer = number, .real = 0, .text = {}});
}
inline int numberOf(Widget& widget, int property) {
    Value value;
    getProperty(widget, property, value);
    return value.integer;
}

// Bold, italic, underline and strikeout by property; false for others.
bool getFontSwitch(const QFont& font, int property, Value& value);
bool setFontSwitch(QFont& font, int property, const Value& value);
// Points as programs give them: 10 for none.
int pointsFrom(int number);

void setStatus(Widget& widget, int status);
void showHelp(Widget& widget);

} // namespace orba
