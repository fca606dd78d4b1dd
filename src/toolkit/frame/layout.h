// Units, and where widgets stand in their parents.
#pragma once

#include "toolkit/frame/widget.h"

namespace orba {

// The reference cell in pixels, and whether numbers are cells.
QSize gridCell();
bool gridMode();
// From the unit in force to pixels and back.
int pixelsAcross(int units);
int pixelsDown(int units);
int unitsAcross(int pixels);
int unitsDown(int pixels);

// Puts one widget, or all children of a parent, in place. Called by the frame when a client area changes its size.
void placeWidget(Widget& widget);
void placeChildren(Widget& parent);
// Takes the view's present geometry as the widget's place, keeping its origin (end of a drag).
void takeGeometry(Widget& widget);

} // namespace orba
