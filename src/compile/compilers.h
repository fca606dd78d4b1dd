// One record for each compiler: how the build script names it, where it is found, how it is called, what is linked and
// how its messages read. To add one: a file in compilers/ with its record, and a row in compilers.def.
#pragma once

#include "platform/environment.h"
#include "project/language.h"

#include <array>
#include <span>
#include <string>

enum CompilerProfile : int {
    COMPILER_NONE = 0, // none recognised
#define COMPILER(name, number) COMPILER_##name = (number),
#include "compile/compilers.def"
#undef COMPILER
};

// --- how the catalogue knows and finds it

// What the letter behind the library word adds.
struct Variant {
    char letter = 0; // 0: no such variant
    const char* compile = "";
    const char* name = "";
};

// One text for 32-bit and one for 64-bit builds.
struct BySize {
    const char* narrow = "";
    const char* wide = "";
    const char* get() const { return wordSize64() ? wide : narrow; }
};
constexpr BySize both(const char* text) { return {text, text}; }

struct RegistryPlace {
    const char* key = "";        // below "Software\", empty for a compiler that is not looked up
    BySize versionSuffix{};      // behind the version's name
    double noSuffixFrom = 1e300; // versions from here on have none
    const char* value = "";
    BySize binPath{};
    BySize setup{}; // batch file with the closing quote of its path
    // What this version of it is told besides; null: nothing.
    std::string (*setupWords)(const RegistryPlace& place, const std::string& version) = nullptr;
    const char* homeVariable = ""; // environment variable that takes the folder; empty: none
};

// --- how it is called

enum class StepKind {
    eachSource,   // once for each listed source that is out of date
    always,       //
    withResource, // only when there is a resource script
    link,         // as always; left out where exit codes count and something did not compile
    manifest,     // binds the manifest; neither its start nor its end counts
};

struct BuildStep {
    StepKind kind;
    const char* command;              // names in braces are filled in, see commandText
    const char* moduleDirectory = ""; // what {dirs} writes for each module directory; {dir} is the directory
};

struct LanguageSteps {
    int language; // a LanguageNumber; 0: whatever the compiler takes
    std::span<const BuildStep> steps;
};

// The toolkit's library files. Letters of the order: T, S, E and, for the place where the full set or the reduced
// library goes, *.
struct LibraryNaming {
    const char* suffix = "";
    const char* doubleSuffix = "";        // empty: the compiler has no double precision of its own
    const char* reducedDoubleSuffix = ""; // of the reduced library
    const char* order = "";
    const char* testExtension = ""; // of the base library whose presence means the full set
    const char* dlls = "";          // letters of the files that end in ".dll"
    bool importList = false;        // the full set goes in through one list of imports
};

// --- how its messages read

// What a message says: a line and perhaps a column of a file.
struct MessagePosition {
    int line = 0;     // 0: none told
    int column = 0;   // from 1; 0: none told
    std::string file; // empty where the compiler names none
};

struct MessagePatterns {
    std::array<const char*, 5> compile{}; // any of them in a line
    std::array<const char*, 5> link{};
    bool positionAbove = false; // the source position stands one line above the message
    // Where a message leads; null: nowhere.
    MessagePosition (*position)(const std::string& message) = nullptr;
};

struct Compiler {
    CompilerProfile profile = COMPILER_NONE;
    const char* word = ""; // in the build script
    const char* name = "";
    LanguageFamily family = LanguageFamily::Fortran;
    bool takesBoth = false;   // whatever its family
    const char* compile = ""; // switches of new projects
    const char* link = "";
    Variant variants[2]{};
    bool variantAnywhere = false; // its variants count wherever their words stand, else where the first one does
    BySize moreCompile{};
    BySize moreName{};
    RegistryPlace place{};

    std::span<const LanguageSteps> steps{};
    std::array<const char*, 2> doubleSwitches{}; // either in the compiler switches means double precision
    LibraryNaming libraries{};
    const char* objectExtension = ".obj";
    const char* leftover = ""; // file beside the source that an earlier build may have left in the way

    MessagePatterns messages{};

    // The commands of this system: their exit codes count, names between double quotes are escaped, listed files are
    // looked for beside the source, switches of other compilers are left out, and messages span several lines.
    bool ofThisSystem = false;
};

namespace compilers {
#define COMPILER(name, number) extern const Compiler name;
#include "compile/compilers.def"
#undef COMPILER
} // namespace compilers

// In the order of compilers.def.
std::span<const Compiler* const> allCompilers();

// The record of a profile; one without steps and messages for COMPILER_NONE and any other number.
const Compiler& compilerOf(int profile);
