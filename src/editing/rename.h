// The name of a widget in the user's code, after the widget got another one.
#pragma once

#include <string>

// Replaces `from` by `to` in all blocks, slots and entry slots, if the user agrees; any occurrence counts, inside a
// longer word too, and in a Fortran project whatever its case. Returns the number of places changed.
int renameInCode(const std::string& from, const std::string& to);
