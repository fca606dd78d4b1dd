// A step of a compiler with its names filled in.
#pragma once

#include "compile/compilers.h"
#include "compile/toolkit_places.h"

#include <span>
#include <string>

// Steps of a compiler for a project's language, in their order; empty for a compiler that is not known.
std::span<const BuildStep> buildSteps(int compilerProfile, int language);

// ".obj" or ".o".
const char* objectExtension(int compilerProfile);

// What the names of a command stand for. Paths are as the project has them.
struct CommandScene {
    int profile = 0;
    int language = LANGUAGE_F90;
    std::string main; // the generated source
    std::string base; // without its extension
    std::string exe;
    std::string rcFile;
    std::string sourceDir;
    std::string lib; // the installation folder
    std::string binDir;
    bool hasResource = false;
    bool custom = false; // switches and file lists take part
    bool wide = false;   // a 64-bit build
    std::string compilerSwitches;
    std::string linkerSwitches;
    ToolkitPlaces toolkit; // of this system's compilers
    std::string source;    // the listed source of this step
};

// The names of the open project and of this machine, for the source at `sourcePath`.
CommandScene commandScene(int compilerProfile, const std::string& sourcePath, int customSwitches);

// The GNU compilers take no switches of the others, which a project from another system may bring along, and none that
// only says that the program is one for the console.
bool switchLeftOut(const CommandScene& scene, const std::string& word);

// The object file of a listed source.
std::string objectOf(const CommandScene& scene, const std::string& source);
// The source of a row: the row itself; for the GNU row a relative one that is not there is looked for beside the
// project's source.
std::string sourceOfRow(const CommandScene& scene, const std::string& row);

// Whether the compiler runs in double precision.
bool doublePrecision(int compilerProfile, const std::string& compilerSwitches);

std::string commandText(const BuildStep& step, const CommandScene& scene);

// The toolkit's libraries as the link command names them. For LF95 with the full set this writes wdesign.imp to the
// current folder.
std::string libraryWords(const CommandScene& scene);

inline constexpr char IMPORT_LIST[] = "wdesign.imp";
