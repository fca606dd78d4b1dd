// Which handler answers which routine.
#pragma once

#include "toolkit/frame/arguments.h"

#include <initializer_list>

namespace orba {

using Handler = Word (*)(const Arguments& call); // a handle, an integer, or 0 where the routine has no result

struct Routine {
    Fn function;
    Handler handler;
};

// Put one at namespace scope in a family's file.
struct Registration {
    Registration(std::initializer_list<Routine> routines);
};

Handler handlerOf(Fn function); // null when no family has it
Fn routineRegisteredTwice();    // Fn::count when each has one handler at most

} // namespace orba
