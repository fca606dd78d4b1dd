#include "build/catalogue.h"

#include "build/run_logged.h"
#include "platform/environment.h"
#include "platform/paths.h"
#include "platform/registry.h"
#include "platform/text_files.h"
#include "project/host.h"
#include "project/records.h"

#include <algorithm>
#include <cstdlib>
#include <span>

CompilerState compiler;

namespace {

// --- the table

// What the letter behind the library word adds.
struct Variant {
    char letter; // 0: no such variant
    const char* compile;
    const char* name;
};

// One text for 32-bit and one for 64-bit builds.
struct BySize {
    const char* narrow;
    const char* wide;
    const char* get() const { return wordSize64() ? wide : narrow; }
};
constexpr BySize both(const char* text) { return {text, text}; }

struct RegistryPlace {
    const char* key;      // below "Software\", empty for a compiler that is not looked up
    BySize versionSuffix; // behind the version's name
    const char* value;
    BySize binPath;
    BySize setup; // batch file with the closing quote of its path
};
constexpr RegistryPlace NOWHERE = {"", both(""), "", both(""), both("")};

struct CatalogueRow {
    CompilerProfile profile;
    const char* word;
    const char* name;
    const char* compile;
    const char* link;
    Variant variants[2];
    BySize moreCompile;
    BySize moreName;
    RegistryPlace place;
};

// In the order in which the words are tried.
constexpr CatalogueRow CATALOGUE[] = {
    {COMPILER_LF95,
     "owidgwl5",
     "Lahey/Fujitsu LF95",
     " -nco -win",
     " -nomap",
     {{'d', " -dbl", "(DP)"}, {}},
     both(""),
     both(""),
     NOWHERE},
    {COMPILER_LF95_75,
     "owidgwl6",
     "Lahey/Fujitsu LF95 (7.5)",
     " -nco -win",
     " -nomap",
     {{'d', " -dbl", "(DP)"}, {}},
     both(""),
     both(""),
     {"Lahey\\Lahey/Fujitsu Fortran\\", both(""), "InstallDirectory", both("\\LF95\\bin\\"), both("lfvars.bat\"")}},
    {COMPILER_CVF,
     "owidgwdg",
     "Compaq Visual Fortran",
     "",
     " /subsystem:windows",
     {{'d', " /real_size:64", "(DP)"}, {}},
     both(""),
     both(""),
     {"Microsoft\\VisualStudio\\", both("\\Setup\\DIGITAL Visual Fortran"), "ProductDir", both("\\bin\\"),
      both("dfvars.bat\"")}},
    {COMPILER_FTN95,
     "owidgws9",
     "Salford/Silverfrost FTN95",
     "",
     "",
     {{'d', " /dreal", "(DP)"}, {}},
     {"", " /64"},
     {"", " - 64bit"},
     {"Silverfrost\\Silverfrost FTN95\\", both(""), "InstallLocation", both("\\"), both("fvars.bat\"")}},
    {COMPILER_ABSOFT,
     "owidgwab",
     "Absoft Pro Fortran",
     " -V",
     "",
     {},
     both(""),
     {"", " - 64bit"},
     {"Absoft\\", both("\\Prod"), "Dir", both("\\bin\\"), {"absvars32.bat\"", "absvars64.bat\""}}},
    {COMPILER_VISUAL_C,
     "owidgwvc",
     "Visual C/C++",
     " /DGUIWIN ",
     " /subsystem:windows",
     {{'d', "", "(DP)"}, {}},
     both(""),
     {"", " - 64bit"},
     {"Microsoft\\VisualStudio\\",
      both("\\Setup\\VC"),
      "ProductDir",
      {"\\bin\\", "\\bin\\amd64\\"},
      {"vcvars32.bat\"", "vcvars64.bat\""}}},
    {COMPILER_FTN95_NET, "owidgws3", "Salford FTN95.NET", " /clr /dreal", "", {}, both(""), both(""), NOWHERE},
    {COMPILER_INTEL,
     "owidgwi8",
     "Intel Visual Fortran",
     "",
     " /subsystem:windows",
     {{'c', " /us /name:lowercase", ""}, {'d', " /real_size:64", " (DP)"}},
     both(""),
     {"", " - 64bit"},
     {"Intel\\Compilers\\FORTRAN\\",
      {"\\IA32", "\\em64t_native"},
      "ProductDir",
      both("\\bin\\"),
      {"ifortvars.bat\" ia32 ", "ifortvars.bat\" intel64 "}}},
    {COMPILER_GNU,
     "owidggnu",
     "GNU Fortran and C++",
     "",
     "",
     {{'d', " -fdefault-real-8 -fdefault-double-8", "(DP)"}, {}},
     both(""),
     both(""),
     NOWHERE},
};
constexpr const CatalogueRow& GNU_ROW = CATALOGUE[std::size(CATALOGUE) - 1];
static_assert(GNU_ROW.profile == COMPILER_GNU);

constexpr size_t SCRIPT_LIMIT = 2999; // bytes of the build script that are looked at

// --- the build script

bool readBuildScript(std::string& script) {
    for (const char* name : {"menubld.bat", "menumbld.bat", "share/orbawidg/menubld.bat"}) {
        if (readTextFile(joinPath(folders.installDir, name), script, SCRIPT_LIMIT)) return true;
    }
    return false;
}

const CatalogueRow* rowOfScript(const std::string& script) {
    for (const CatalogueRow& row : CATALOGUE) {
        if (script.find(row.word) != std::string::npos) return &row;
    }
    return nullptr;
}

// The Intel libraries tell their variants wherever their names stand, the others where the first one does.
bool hasVariant(const std::string& script, const CatalogueRow& row, const Variant& variant) {
    if (variant.letter == 0) return false;
    std::string word = std::string(row.word) + variant.letter;
    size_t at = script.find(word);
    return at != std::string::npos && (row.profile == COMPILER_INTEL || at == script.find(row.word));
}

void takeRow(const CatalogueRow& row, const std::string& script) {
    compiler.profile = row.profile;
    compiler.name = row.name;
    compiler.defaultCompilerSwitches = row.compile;
    compiler.defaultLinkerSwitches = row.link;
    for (const Variant& variant : row.variants) {
        if (!hasVariant(script, row, variant)) continue;
        compiler.defaultCompilerSwitches += variant.compile;
        compiler.name += variant.name;
        break;
    }
    compiler.defaultCompilerSwitches += row.moreCompile.get();
    compiler.name += row.moreName.get();
}

// --- the search for the newest version

constexpr double NO_SUFFIX_FROM = 111.0;     // Intel versions from here on have no suffix on their key
constexpr double VISUAL_STUDIO_FROM = 120.0; // and from here on must be told which Visual Studio to use

std::string registryPrefix() { return wordSize64() ? "Software\\Wow6432Node\\" : "Software\\"; }

// Which Visual Studio an Intel compiler works with: the words that its setup batch file takes, or nothing.
std::string visualStudioTag(const CatalogueRow& row, const std::string& version) {
    std::string prefix = registryPrefix();
    BySize folder = {"\\IA32", "\\EMT64_NATIVE"};
    std::vector<std::string> keys = registryKeys(REGISTRY_MACHINE, prefix + row.place.key + version + folder.get());
    std::reverse(keys.begin(), keys.end());
    for (const std::string& key : keys) {
        size_t n = key.find('N');
        if (n == std::string::npos) continue;
        std::string tag = "vs" + (n + 3 <= key.size() ? key.substr(n + 3) : std::string());
        for (const char* start : {"Start", "n_Start"}) {
            if (enquireRegistryValue(REGISTRY_USER, prefix + "Intel\\PSIDEXE", start + tag).number > 0) return tag;
        }
    }
    return {};
}

// Fills compiler.binDir and appends to `setup` what this version wants there.
void searchVersions(const CatalogueRow& row, std::string& setup) {
    const RegistryPlace& place = row.place;
    std::string path = registryPrefix() + place.key;
    std::vector<std::string> names = registryKeys(REGISTRY_MACHINE, path);
    sortVersionNames(names);
    for (size_t i = names.size(); i-- > 0;) {
        const std::string& name = names[i];
        bool suffixed = row.profile != COMPILER_INTEL || versionNumber(name) < NO_SUFFIX_FROM;
        std::string key = path + name + (suffixed ? place.versionSuffix.get() : "");
        RegistryValue value = enquireRegistryValue(REGISTRY_MACHINE, key, place.value);
        if (value.type != REGISTRY_TEXT) continue;
        compiler.binDir = value.text;
        if (!compiler.binDir.empty() && compiler.binDir.back() == '\\') compiler.binDir.pop_back();
        if (row.profile == COMPILER_ABSOFT) setEnvironment("ABSOFT", compiler.binDir);
        compiler.binDir = nativePath(compiler.binDir + place.binPath.get());
        if (row.profile == COMPILER_INTEL && versionNumber(name) >= VISUAL_STUDIO_FROM) {
            setup = place.setup.get() + visualStudioTag(row, name);
        }
        if (pathExists(compiler.binDir)) return;
    }
}

void findCompiler() {
    std::string script;
    const CatalogueRow* row = nullptr;
    if (!folders.installDir.empty() && readBuildScript(script)) {
        row = rowOfScript(script);
    } else if (!findProgram("gfortran").empty() || !findProgram("g++").empty()) {
        row = &GNU_ROW;
    } else if (!folders.installDir.empty()) {
        host.errorBox("Designer Initialisation", "Could not detect current ORBA Implementation|"
                                                 "Check ORBA environment variable set correctly|"
                                                 "No gfortran and no g++ was found on PATH; install them to compile");
    }
    if (!row) return;
    takeRow(*row, script);
    if (row->place.key[0] == '\0') return;
    std::string setup = row->place.setup.get();
    searchVersions(*row, setup);
    if (!compiler.binDir.empty()) compiler.varsCommand = "call \"" + compiler.binDir + setup;
}

// --- the environment

// How this system's command interpreter is told to run the setup batch file and print three variables.
struct Interpreter {
    const char* command;
    const char* ahead;
    const char* behind;
    const char* variables[3];
    const char* marks[3]; // in the line that holds each of them
};
#ifdef _WIN32
constexpr Interpreter INTERPRETER = {"cmd.exe /c ",
                                     "",
                                     "if errorlevel 1 goto end\necho %PATH%\necho %LIB%\necho %INCLUDE%\n:end\n",
                                     {"PATH", "LIB", "INCLUDE"},
                                     {"\\bin;", "\\lib;", "\\include;"}};
#else
constexpr Interpreter INTERPRETER = {"/bin/sh ",
                                     "call() { . \"$@\"; }\n",
                                     "[ $? -eq 0 ] || exit 0\necho \"$PATH\"\necho \"$LIB\"\necho \"$INCLUDE\"\n",
                                     {"PATH", "LIB", "INCLUDE"},
                                     {"/bin:", "/lib:", "/include:"}};
#endif
constexpr size_t VARIABLE_LINE_LIMIT = 4096;

// 0 when a line of what the interpreter printed tells of a failure.
int takeVariables(const std::string& text) {
    int result = 1;
    for (size_t from = 0; from < text.size();) {
        size_t end = std::min(text.find('\n', from), text.size());
        std::string line = text.substr(from, end - from);
        from = end + 1;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.find("ERROR") != std::string::npos || line.find("Invalid") != std::string::npos) result = 0;
        if (line.size() >= VARIABLE_LINE_LIMIT) continue; // a cut variable would do more harm than the old one
        for (size_t i = 0; i < std::size(INTERPRETER.variables); i++) {
            if (line.find(INTERPRETER.marks[i]) == std::string::npos) continue;
            setEnvironment(INTERPRETER.variables[i], line);
        }
    }
    return result;
}

} // namespace

double versionNumber(const std::string& name) {
    std::string digits;
    std::copy_if(name.begin(), name.end(), std::back_inserter(digits), [](char c) { return c >= '+' && c <= '9'; });
    return std::strtod(digits.c_str(), nullptr);
}

bool switchOfAnotherCompiler(int profile, std::string_view word) {
    auto holds = [&](std::string_view switches) {
        size_t at = word.empty() ? std::string_view::npos : switches.find(word);
        if (at == std::string_view::npos) return false;
        size_t end = at + word.size();
        return (at == 0 || switches[at - 1] == ' ') && (end == switches.size() || switches[end] == ' ');
    };
    bool own = false;
    bool others = false;
    for (const CatalogueRow& row : CATALOGUE) {
        bool here =
            holds(row.compile) || holds(row.link) || holds(row.moreCompile.narrow) || holds(row.moreCompile.wide);
        for (const Variant& variant : row.variants) here = here || (variant.letter != 0 && holds(variant.compile));
        (row.profile == profile ? own : others) |= here;
    }
    return others && !own;
}

void sortVersionNames(std::vector<std::string>& names) {
    std::stable_sort(names.begin(), names.end(),
                     [](const std::string& a, const std::string& b) { return versionNumber(a) < versionNumber(b); });
}

int readCompilerCatalogue() {
    compiler = {};
    findCompiler();
    switchDefaults.compiler = compiler.defaultCompilerSwitches;
    switchDefaults.linker = compiler.defaultLinkerSwitches;
    project.projectLanguage = compiler.profile == COMPILER_VISUAL_C ? 99 : 90;
    return compiler.profile;
}

int captureCompilerEnvironment() {
    if (folders.dataDir.empty()) return 0;
    std::string batch = ownFile(folders.dataDir, "wdenv", ".bat");
    std::string record = ownFile(folders.dataDir, "wdenvzz", ".bat");
    std::string log = ownFile(folders.dataDir, "wdesign", ".tmp");
    int result = 0;
    LoggedRun run;
    bool written = writeTextFile(batch, INTERPRETER.ahead + compiler.varsCommand + "\n" + INTERPRETER.behind);
    if (written && openLoggedRun(run, record, log)) {
        int started = runLogged(run, INTERPRETER.command + ("\"" + escapedForQuotes(batch) + "\""), true);
        closeLoggedRun(run);
        std::string text;
        if (started && readTextFile(log, text)) result = takeVariables(text);
    }
    for (const std::string& file : {batch, record, log}) removeFile(file);
    return result;
}

void setUpCompiler() {
    readCompilerCatalogue();
    if (compiler.profile == COMPILER_GNU) return; // found on the PATH that is in force
    if (captureCompilerEnvironment()) return;
    host.errorBox("Set Environment ", "Can not find compiler in registry to set appropriate environment|"
                                      "Suggest restart ORBAWIDG Designer in compiler environment command window");
    compiler.profile = COMPILER_NONE;
}

bool compilerFitsProject(bool report) {
    if (compiler.profile == COMPILER_NONE) return false;
    bool c = project.projectLanguage == 99;
    if (compiler.profile == COMPILER_GNU || c == (compiler.profile == COMPILER_VISUAL_C)) return true;
    if (report) {
        host.errorBox("Project/Environment Configuration",
                      "This project will be incompatible with the current ORBA compiler environment|"
                      "and therefore cannot be compiled and run");
    }
    return false;
}
