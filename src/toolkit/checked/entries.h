// The checked entries: what is looked at before a routine reaches the widgets, and the numbered reports.
#pragma once

#include "toolkit/frame/arguments.h"

namespace orba {

// Checks one call in the fixed order (state, handle, kind, ranges) and runs the routine behind it. A refused call is
// reported and returns 0.
Word checkedCall(const Arguments& call);

} // namespace orba
