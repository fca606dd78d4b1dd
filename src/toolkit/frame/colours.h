// The colour table, and texts of labels.
#pragma once

#include "toolkit/frame/widget.h"

#include <QColor>
#include <QPalette>

namespace orba {

// Colour of an index or true colour. Index 12 is the window face, 16 its text, 18 the background of entries.
QColor colourOf(int colour);
bool isTrueColour(int colour);
void defineColour(int index, const QColor& colour);
// A change of these roles of a view's palette that stays until changed again; 0 means the desktop's own.
void setViewColour(QWidget* view, QPalette::ColorRole role, int colour);
// Height in pixels that suits a line of the desktop's font in entries.
int lineHeight();

// "&" doubled, and the accelerator's character marked as mnemonic, for labels of buttons and menus.
QString labelWithMnemonic(const QString& label, int accel);
// A program's text with bars as line breaks.
QString barsToLines(QString text);

void loadColours();
// Tells every widget of changed colours.
void recolour();

} // namespace orba
