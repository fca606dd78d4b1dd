// The example projects that are made from records; each leaves the project in the project state.
#pragma once

namespace example {

void makeHeat();      // Fortran 90
void makeConverter(); // C
void makeBeam();      // Fortran 77

struct Row {
    const char* name; // folder and file name
    void (*make)();
};
inline constexpr Row examples[] = {{"heat", makeHeat}, {"converter", makeConverter}, {"beam", makeBeam}};

} // namespace example
