// Where windows that are designed stand, and how much of them shows.
//
// Such a window lies over the master window of the designer. It stands where its program would put it, unless it would
// cover the master's bars and panes there: then it stands over the free middle, and the place that the program is told
// of stays what it was. A window that is larger than its room shows a part of its client area, with scroll bars.
#pragma once

#include "toolkit/frame/widget.h"

namespace orba {

// From now on the client area can be scrolled.
void makeScrollable(Widget& window);
// The client area as the program asked for it, as much of the window as has room, and its place.
void settleDesignWindow(Widget& window);
void settleDesignWindows(); // all on the screen that their user has not moved
// Its bars have got their height: what they took off the client area is given back.
void designBarsChanged(Widget& window);
// The user has changed its size: nothing to scroll is left where the whole client area shows.
void designWindowResized(Widget& window);

// Scrolls so that a point of the screen, or a view that is out of sight, shows.
void showPoint(QWidget* view, const QPoint& global);
void showView(QWidget* view);

} // namespace orba
