// The Qt main window inside a window of the toolkit, which bars, panes and the status bar hang on.
#pragma once

#include "toolkit/frame/core.h"
#include "toolkit/views/docking.h"

class QMainWindow;

namespace orba {

// What a title flag asks of the title of a bar or pane, and the flag that a creation call gives.
DockTitle dockTitleOf(int flag);
int titleFlagOf(const Arguments& call);

// Null when the window that holds the widget has none.
QMainWindow* mainWindowOf(Widget* widget);
// That of the call's first argument; reported when there is none.
QMainWindow* mainWindowGiven(const Arguments& call);
// finishCreation for what stands around the client area of its window.
int finishBar(Widget& bar, const Arguments& call);

// An event of a bar or pane: posts it with that status, and on OCLOSED does what the widget's quit mode says.
void reportDocking(int handle, int status);

} // namespace orba
