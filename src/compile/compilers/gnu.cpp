// gfortran and g++, found on PATH. The form of the main source is told whatever its extension, and its lines may be of
// any length.
#include "compile/message_lines.h"

namespace {

constexpr BuildStep FORTRAN_90_STEPS[] = {
    {StepKind::eachSource, R"(gfortran -c{form} "{src}" -o "{obj}" -J"{sourceDir}"{dirs}{cflags}{toolkitModules})",
     R"( -I"{dir}")"},
    {StepKind::always,
     R"(gfortran -c -x f95 -ffree-form -ffree-line-length-none "{main}" -o "{base}.o" -J"{sourceDir}"{dirs}{cflags}{toolkitModules})",
     R"( -I"{dir}")"},
    {StepKind::link, R"(gfortran "{base}.o"{objs}{objects}{files} -o "{exe}"{libraries}{lflags})"},
};

constexpr BuildStep FORTRAN_77_STEPS[] = {
    {StepKind::eachSource,
     R"(gfortran -c -std=legacy{form} "{src}" -o "{obj}" -J"{sourceDir}"{dirs}{cflags}{toolkitModules})",
     R"( -I"{dir}")"},
    {StepKind::always,
     R"(gfortran -c -std=legacy -x f77 -ffixed-form -ffixed-line-length-none "{main}" -o "{base}.o" -J"{sourceDir}"{dirs}{cflags}{toolkitModules})",
     R"( -I"{dir}")"},
    {StepKind::link, R"(gfortran "{base}.o"{objs}{objects}{files} -o "{exe}"{libraries}{lflags})"},
};

constexpr BuildStep C_STEPS[] = {
    {StepKind::eachSource, R"(g++ -c{form} "{src}" -o "{obj}" -I"{sourceDir}"{dirs}{cflags}{toolkitHeaders})",
     R"( -I"{dir}")"},
    {StepKind::always, R"(g++ -c -x c++ "{main}" -o "{base}.o" -I"{sourceDir}"{dirs}{cflags}{toolkitHeaders})",
     R"( -I"{dir}")"},
    {StepKind::link, R"(g++ "{base}.o"{objs}{objects}{files} -o "{exe}"{libraries}{lflags})"},
};

constexpr LanguageSteps STEPS[] = {
    {LANGUAGE_F90, FORTRAN_90_STEPS}, {LANGUAGE_F77, FORTRAN_77_STEPS}, {LANGUAGE_C, C_STEPS}};

} // namespace

constinit const Compiler compilers::GNU = {
    .profile = COMPILER_GNU,
    .word = "owidggnu",
    .name = "GNU Fortran and C++",
    .takesBoth = true,
    .variants = {{'d', " -fdefault-real-8 -fdefault-double-8", "(DP)"}},
    .steps = STEPS,
    .doubleSwitches = {"-fdefault-real-8", "-freal-4-real-8"},
    .objectExtension = ".o",
    .messages = {.compile = {": error: ", ": fatal error: ", ": internal compiler error",
                             ": Error: ", ": Fatal Error: "},
                 .link = {"undefined reference to", "multiple definition of", "ld: cannot find", "collect2: error:"},
                 .position = positionInColons},
    .ofThisSystem = true,
};
