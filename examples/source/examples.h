// The example projects that are made from records; each leaves the project in the project state.
#pragma once

namespace example {

void makeHeat();      // Fortran 90
void makeConverter(); // C
void makeBeam();      // Fortran 77
void makeEquations(); // Fortran 90, with LAPACK

struct Row {
    const char* name; // folder and file name
    void (*make)();
};
inline constexpr Row examples[] = {
    {"heat", makeHeat}, {"converter", makeConverter}, {"beam", makeBeam}, {"equations", makeEquations}};

// What new projects begin with, in Fortran 90 (90) and C (99).
void makeDialogue(int language);
void makeTool(int language);
void makeCalculator(int language);

struct TemplateRow {
    const char* name; // a file for each language has it, with "_f90" or "_c" behind
    void (*make)(int language);
};
inline constexpr TemplateRow templates[] = {
    {"dialogue", makeDialogue}, {"tool", makeTool}, {"calculator", makeCalculator}};

} // namespace example
