// Widgets that set the status of others.
#pragma once

#include "toolkit/frame/widget.h"

namespace orba {

// What hangs on a widget that the user worked.
void obeyLinks(const Widget& widget);

} // namespace orba
