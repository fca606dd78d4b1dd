// The name of a widget in the user's code, after the widget got another one.
#pragma once

#include <string>

// Replaces `from` by `to` in all blocks, slots and entry slots, if the user agrees; whole names only, in a Fortran
// project whatever their case. With a form's name go those that begin with it. The widgets bear the new names already.
// Returns the number of places changed.
int renameInCode(const std::string& from, const std::string& to);
