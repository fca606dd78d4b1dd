#include "compile/catalogue.h"

#include "compile/run_logged.h"
#include "platform/environment.h"
#include "platform/paths.h"
#include "platform/registry.h"
#include "platform/text_files.h"
#include "project/host.h"
#include "project/language.h"
#include "project/records.h"

#include <algorithm>
#include <cstdlib>
#include <span>

CompilerState compiler;

namespace {

constexpr size_t SCRIPT_LIMIT = 2999; // bytes of the build script that are looked at

// --- the build script

bool readBuildScript(std::string& script) {
    for (const char* name : {"menubld.bat", "menumbld.bat", "share/orbawidg/menubld.bat"}) {
        if (readTextFile(joinPath(folders.installDir, name), script, SCRIPT_LIMIT)) return true;
    }
    return false;
}

const Compiler* compilerOfScript(const std::string& script) {
    for (const Compiler* each : allCompilers()) {
        if (script.find(each->word) != std::string::npos) return each;
    }
    return nullptr;
}

bool hasVariant(const std::string& script, const Compiler& known, const Variant& variant) {
    if (variant.letter == 0) return false;
    std::string word = std::string(known.word) + variant.letter;
    size_t at = script.find(word);
    return at != std::string::npos && (known.variantAnywhere || at == script.find(known.word));
}

void takeCompiler(const Compiler& known, const std::string& script) {
    compiler.profile = known.profile;
    compiler.name = known.name;
    compiler.defaultCompilerSwitches = known.compile;
    compiler.defaultLinkerSwitches = known.link;
    for (const Variant& variant : known.variants) {
        if (!hasVariant(script, known, variant)) continue;
        compiler.defaultCompilerSwitches += variant.compile;
        compiler.name += variant.name;
        break;
    }
    compiler.defaultCompilerSwitches += known.moreCompile.get();
    compiler.name += known.moreName.get();
}

// --- the search for the newest version

// Fills compiler.binDir and appends to `setup` what this version wants there.
void searchVersions(const RegistryPlace& place, std::string& setup) {
    std::string path = registryPrefix() + place.key;
    std::vector<std::string> names = registryKeys(REGISTRY_MACHINE, path);
    sortVersionNames(names);
    for (size_t i = names.size(); i-- > 0;) {
        const std::string& name = names[i];
        bool suffixed = versionNumber(name) < place.noSuffixFrom;
        std::string key = path + name + (suffixed ? place.versionSuffix.get() : "");
        RegistryValue value = enquireRegistryValue(REGISTRY_MACHINE, key, place.value);
        if (value.type != REGISTRY_TEXT) continue;
        compiler.binDir = value.text;
        if (!compiler.binDir.empty() && compiler.binDir.back() == '\\') compiler.binDir.pop_back();
        if (place.homeVariable[0] != '\0') setEnvironment(place.homeVariable, compiler.binDir);
        compiler.binDir = nativePath(compiler.binDir + place.binPath.get());
        const std::string words = place.setupWords ? place.setupWords(place, name) : std::string();
        if (!words.empty() || place.setupWords) setup = place.setup.get() + words;
        if (pathExists(compiler.binDir)) return;
    }
}

void findCompiler() {
    std::string script;
    const Compiler* known = nullptr;
    if (!folders.installDir.empty() && readBuildScript(script)) {
        known = compilerOfScript(script);
    } else if (!findProgram("gfortran").empty() || !findProgram("g++").empty()) {
        known = &compilers::GNU;
    } else if (!folders.installDir.empty()) {
        host.errorBox("Designer Initialisation", "Could not detect current ORBA Implementation|"
                                                 "Check ORBA environment variable set correctly|"
                                                 "No gfortran and no g++ was found on PATH; install them to compile");
    }
    if (!known) return;
    takeCompiler(*known, script);
    if (known->place.key[0] == '\0') return;
    std::string setup = known->place.setup.get();
    searchVersions(known->place, setup);
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

std::string registryPrefix() { return wordSize64() ? "Software\\Wow6432Node\\" : "Software\\"; }

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
    for (const Compiler* each : allCompilers()) {
        bool here = holds(each->compile) || holds(each->link) || holds(each->moreCompile.narrow) ||
                    holds(each->moreCompile.wide);
        for (const Variant& variant : each->variants) here = here || (variant.letter != 0 && holds(variant.compile));
        (each->profile == profile ? own : others) |= here;
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
    project.projectLanguage = firstLanguage(compilerOf(compiler.profile).family);
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
    if (compilerOf(compiler.profile).ofThisSystem) return; // found on the PATH that is in force
    if (captureCompilerEnvironment()) return;
    host.errorBox("Set Environment ", "Can not find compiler in registry to set appropriate environment|"
                                      "Suggest restart ORBAWIDG Designer in compiler environment command window");
    compiler.profile = COMPILER_NONE;
}

bool compilerFitsProject(bool report) {
    if (compiler.profile == COMPILER_NONE) return false;
    const Compiler& known = compilerOf(compiler.profile);
    if (known.takesBoth || known.family == languageOfProject().family) return true;
    if (report) {
        host.errorBox("Project/Environment Configuration",
                      "This project will be incompatible with the current ORBA compiler environment|"
                      "and therefore cannot be compiled and run");
    }
    return false;
}
