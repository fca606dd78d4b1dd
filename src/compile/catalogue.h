// The compiler that the installed library was built for: which one, where it is, and its environment.
#pragma once

#include "compile/compilers.h"

#include <string>
#include <string_view>
#include <vector>

// Results of the catalogue, held for the whole run.
struct CompilerState {
    int profile = COMPILER_NONE;
    std::string name;                    // shown beside "Environment:"
    std::string binDir;                  // with its closing separator; empty when the registry gave nothing
    std::string varsCommand;             // runs the compiler's setup batch file; empty when binDir is
    std::string defaultCompilerSwitches; // what a new project takes
    std::string defaultLinkerSwitches;
};

extern CompilerState compiler;

// Fills `compiler` and the switches of new projects, and sets project.projectLanguage (by the family that it takes).
// Returns the profile.
int readCompilerCatalogue();

// Runs the setup batch file and takes PATH, LIB and INCLUDE over into this process. 1 on success, else 0.
int captureCompilerEnvironment();

// Both of the above as the start of the program does them, with the box that reports a failure.
void setUpCompiler();

// Whether the open project can be built with this compiler. With `report` a mismatch is told in a box.
// False in silence when no compiler was recognised.
bool compilerFitsProject(bool report);

// Whether `word` is one of the switches that projects made for another compiler than `profile` begin with.
bool switchOfAnotherCompiler(int profile, std::string_view word);

// Sorts by the number that a name's characters from '+' to '9' read as, ascending; equal numbers keep their order.
void sortVersionNames(std::vector<std::string>& names);
double versionNumber(const std::string& name);

// Where the keys of installed programs begin: "Software\\" or its half for 32-bit programs on a 64-bit system.
std::string registryPrefix();
