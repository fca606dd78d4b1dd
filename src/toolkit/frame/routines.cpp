#include "toolkit/frame/routines.h"

#include <array>

namespace orba {
namespace {

std::array<Handler, static_cast<int>(Fn::count)>& handlers() {
    static std::array<Handler, static_cast<int>(Fn::count)> table{};
    return table;
}

Fn repeated = Fn::count;

} // namespace

Registration::Registration(std::initializer_list<Routine> routines) {
    for (const Routine& routine : routines) {
        Handler& handler = handlers()[static_cast<std::size_t>(routine.function)];
        if (handler) repeated = routine.function;
        handler = routine.handler;
    }
}

Fn routineRegisteredTwice() { return repeated; }

Handler handlerOf(Fn function) { return handlers()[static_cast<std::size_t>(function)]; }

} // namespace orba
