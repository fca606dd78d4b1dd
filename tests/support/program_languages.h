// The languages of programs, and how a program in each is made of a project by what this tree builds. For tests that
// are told where the generator and the toolkit lie.
#pragma once

#include <filesystem>
#include <ostream>
#include <string>

struct ProgramLanguage {
    const char* name; // of a case
    int number;
    const char* extension;
    const char* compiler;
    const char* libraries;
};

inline constexpr ProgramLanguage FORTRAN_90_PROGRAM = {"Fortran90", 90, ".f90", "gfortran -ffree-line-length-none",
                                                       "-lorbawidg_f -lorbawidg"};
inline constexpr ProgramLanguage FORTRAN_77_PROGRAM = {
    "Fortran77", 77, ".for", "gfortran -std=legacy -ffixed-form -ffixed-line-length-none", "-lorbawidg_f -lorbawidg"};
inline constexpr ProgramLanguage C_PROGRAM = {"C", 99, ".cpp", "g++ -w", "-lorbawidg"};
inline constexpr ProgramLanguage PROGRAM_LANGUAGES[] = {FORTRAN_90_PROGRAM, FORTRAN_77_PROGRAM, C_PROGRAM};

inline void PrintTo(const ProgramLanguage& language, std::ostream* out) { *out << language.name; }

// Commands of the shell, run in the project's folder: `name`.wdp becomes the program `name`.
inline std::string generateCommand(const ProgramLanguage& language, const std::string& name) {
    return ORBA_GENERATOR " " + name + ".wdp -o \"$PWD/" + name + language.extension + "\"";
}
inline std::string compileCommand(const ProgramLanguage& language, const std::string& name) {
    const std::string library = std::filesystem::path(ORBA_LIBRARY).parent_path().string();
    return std::string(language.compiler) + " -I" ORBA_BINARY_DIR "/include/orbawidg " + name + language.extension +
           " -o " + name + " -L" + library + " -Wl,-rpath," + library + " " + language.libraries;
}
inline std::string makeCommand(const ProgramLanguage& language, const std::string& name) {
    return generateCommand(language, name) + " && " + compileCommand(language, name);
}
