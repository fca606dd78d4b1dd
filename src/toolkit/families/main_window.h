// The Qt main window inside a window of the toolkit, which bars, panes and the status bar hang on.
#pragma once

#include "toolkit/frame/core.h"

class QMainWindow;

namespace orba {

// Null when the window that holds the widget has none.
QMainWindow* mainWindowOf(Widget* widget);

// An event of a bar or pane: posts it with that status, and on OCLOSED does what the widget's quit mode says.
void reportDocking(int handle, int status);

} // namespace orba
