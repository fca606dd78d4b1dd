// Menus as the tests see them.
#pragma once

#include "toolkit/frame/core.h"

class QAction;

namespace orba {

// What a menu entry shows; null for other widgets.
QAction* entryAction(const Widget& entry);

} // namespace orba
