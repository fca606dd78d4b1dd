#include "compile/command_lines.h"

#include "compile/catalogue.h"
#include "compile/driver.h"
#include "platform/environment.h"
#include "platform/paths.h"
#include "platform/processes.h"
#include "project/records.h"

#include <algorithm>
#include <string_view>

namespace {

// --- the names of a command
//
// Names: main, base, exe, rcFile, sourceDir, lib, bin as in CommandScene; src and obj of a listed source; dirs the
// module directories; modules the toolkit's module folder, which closes the quote that the command opened; cflags,
// lflags and linkWords the switches; rc, rcObj, res the resource script and what is made of it, if there is one; objs,
// objects, files the listed objects, object files and library files, sources the listed sources; libraries the
// toolkit's. Names of the last three kinds bring a blank ahead of each item.

// A path as it goes between double quotes. Only file names of this system can hold what must be escaped.
std::string path(const CommandScene& scene, const std::string& text) {
    return compilerOf(scene.profile).ofThisSystem ? escapedForQuotes(text) : text;
}

std::string quoted(const CommandScene& scene, const std::string& text) { return " \"" + path(scene, text) + "\""; }

std::string quotedRows(const CommandScene& scene, FileListIndex list) {
    std::string text;
    for (const std::string& row : project.fileLists[list]) {
        if (scene.custom && !row.empty()) text += quoted(scene, row);
    }
    return text;
}

std::string quotedObjects(const CommandScene& scene) {
    std::string text;
    for (const std::string& row : project.fileLists[LIST_SOURCES]) {
        if (scene.custom && !row.empty()) text += quoted(scene, objectOf(scene, sourceOfRow(scene, row)));
    }
    return text;
}

std::string switches(const CommandScene& scene, const std::string& all) {
    std::string text;
    if (!scene.custom) return text;
    for (const std::string& word : wordsOf(all)) {
        if (!switchLeftOut(scene, word)) text.append(" ").append(word);
    }
    return text;
}

std::string fill(const char* command, const CommandScene& scene, const BuildStep& step, const std::string& directory);

std::string moduleDirectories(const CommandScene& scene, const BuildStep& step) {
    std::string text;
    for (const std::string& row : project.fileLists[LIST_MODULES]) {
        if (scene.custom && !row.empty()) text += fill(step.moduleDirectory, scene, step, row);
    }
    return text;
}

std::string includeSwitches(const CommandScene& scene, const std::vector<std::string>& folders) {
    std::string text;
    for (const std::string& folder : folders) text += " -I\"" + path(scene, folder) + "\"";
    return text;
}

std::string toolkitModules(const CommandScene& scene) {
    const ToolkitPlaces& toolkit = scene.toolkit;
    std::string text;
    if (doublePrecision(scene.profile, scene.compilerSwitches)) text = includeSwitches(scene, toolkit.modulesDouble);
    return text + includeSwitches(scene, toolkit.moduleDirs);
}

// The language of a listed source whose name does not tell it to the GNU compilers as the project means it.
std::string sourceForm(const CommandScene& scene) {
    std::string name = fileNameOf(scene.source);
    size_t dot = name.rfind('.');
    std::string extension = dot == std::string::npos ? "" : name.substr(dot);
    if (languageFacts(scene.language).family == LanguageFamily::C) return extension == ".c" ? " -x c" : "";
    constexpr std::string_view KNOWN[] = {".f90", ".F90", ".f95", ".F95", ".f03", ".F03", ".f08", ".F08",
                                          ".for", ".FOR", ".f",   ".F",   ".ftn", ".FTN", ".fpp", ".FPP"};
    if (std::find(std::begin(KNOWN), std::end(KNOWN), extension) != std::end(KNOWN)) return "";
    return scene.language == LANGUAGE_F77 ? " -x f77" : " -x f95";
}

std::string modules(const CommandScene& scene) {
    bool dbl = doublePrecision(scene.profile, scene.compilerSwitches);
    return scene.lib + (dbl ? "\\modules\\dbl\"" : "\\modules\"");
}

struct NamedValue {
    std::string_view name;
    std::string (*value)(const CommandScene& scene);
};
using Scene = const CommandScene&;
const NamedValue VALUES[] = {
    {"main", [](Scene s) { return path(s, s.main); }},
    {"base", [](Scene s) { return path(s, s.base); }},
    {"exe", [](Scene s) { return path(s, s.exe); }},
    {"rcFile", [](Scene s) { return path(s, s.rcFile); }},
    {"sourceDir", [](Scene s) { return path(s, s.sourceDir); }},
    {"sourceDir.short", [](Scene s) { return shortPath(s.sourceDir); }},
    {"lib", [](Scene s) { return path(s, s.lib); }},
    {"bin", [](Scene s) { return path(s, s.binDir); }},
    {"up", [](Scene s) { return std::string(s.wide ? "..\\" : ""); }},
    {"m64", [](Scene s) { return std::string(s.wide ? " -m64 -mcmodel=medium" : ""); }},
    {"src", [](Scene s) { return path(s, s.source); }},
    {"obj", [](Scene s) { return path(s, objectOf(s, s.source)); }},
    {"form", sourceForm},
    {"modules", modules},
    {"toolkitModules", toolkitModules},
    {"toolkitHeaders", [](Scene s) { return includeSwitches(s, s.toolkit.includeDirs); }},
    {"cflags", [](Scene s) { return switches(s, s.compilerSwitches); }},
    {"lflags", [](Scene s) { return switches(s, s.linkerSwitches); }},
    {"linkWords",
     [](Scene s) { return s.custom && !s.linkerSwitches.empty() ? " -link " + switches(s, s.linkerSwitches) : ""; }},
    {"rc", [](Scene s) { return s.hasResource ? quoted(s, s.rcFile) : ""; }},
    {"rcObj", [](Scene s) { return s.hasResource ? quoted(s, withExtension(s.rcFile, ".obj")) : ""; }},
    {"res", [](Scene s) { return s.hasResource ? quoted(s, s.base + "rc.res") : ""; }},
    {"objs", quotedObjects},
    {"sources", [](Scene s) { return quotedRows(s, LIST_SOURCES); }},
    {"objects", [](Scene s) { return quotedRows(s, LIST_OBJECTS); }},
    {"files", [](Scene s) { return quotedRows(s, LIST_LIBRARIES); }},
    {"libraries", libraryWords},
};

std::string valueOf(std::string_view name, const CommandScene& scene, const BuildStep& step,
                    const std::string& directory) {
    if (name == "dir") return path(scene, directory);
    if (name == "dir.short") return shortPath(directory);
    if (name == "dirs") return moduleDirectories(scene, step);
    const auto* row =
        std::find_if(std::begin(VALUES), std::end(VALUES), [&](const NamedValue& v) { return v.name == name; });
    return row == std::end(VALUES) ? std::string() : row->value(scene);
}

std::string fill(const char* command, const CommandScene& scene, const BuildStep& step, const std::string& directory) {
    std::string text;
    std::string_view rest = command;
    while (true) {
        size_t open = rest.find('{');
        text += rest.substr(0, open);
        if (open == std::string_view::npos) return text;
        size_t close = rest.find('}', open);
        text += valueOf(rest.substr(open + 1, close - open - 1), scene, step, directory);
        rest.remove_prefix(close + 1);
    }
}

} // namespace

std::vector<std::string> wordsOf(const std::string& text) {
    constexpr const char* PARTINGS = " ,\t\n\r";
    std::vector<std::string> words;
    for (size_t from = text.find_first_not_of(PARTINGS); from != std::string::npos;) {
        size_t end = text.find_first_of(PARTINGS, from);
        words.push_back(text.substr(from, end - from));
        from = text.find_first_not_of(PARTINGS, end);
    }
    return words;
}

void addWords(std::string& command, const std::string& separator, const std::string& text) {
    for (const std::string& word : wordsOf(text)) command += separator + word;
}

bool switchLeftOut(const CommandScene& scene, const std::string& word) {
    if (!compilerOf(scene.profile).ofThisSystem) return false;
    if (word[0] == '/') return !pathExists(word);
    return word.find("console") != std::string::npos || switchOfAnotherCompiler(scene.profile, word);
}

std::span<const BuildStep> buildSteps(int compilerProfile, int language) {
    for (const LanguageSteps& row : compilerOf(compilerProfile).steps) {
        if (row.language == 0 || row.language == language) return row.steps;
    }
    return {};
}

const char* objectExtension(int compilerProfile) { return compilerOf(compilerProfile).objectExtension; }

bool doublePrecision(int compilerProfile, const std::string& compilerSwitches) {
    for (const char* word : compilerOf(compilerProfile).doubleSwitches) {
        if (word && compilerSwitches.find(word) != std::string::npos) return true;
    }
    return false;
}

std::string sourceOfRow(const CommandScene& scene, const std::string& row) {
    if (!compilerOf(scene.profile).ofThisSystem || isAbsolutePath(row) || pathExists(row)) return row;
    std::string beside = joinPath(scene.sourceDir, row);
    return pathExists(beside) ? beside : row;
}

std::string objectOf(const CommandScene& scene, const std::string& source) {
    return withExtension(source, objectExtension(scene.profile));
}

CommandScene commandScene(int compilerProfile, const std::string& sourcePath, int customSwitches) {
    CommandScene scene;
    scene.profile = compilerProfile;
    scene.language = project.projectLanguage;
    scene.main = sourcePath;
    scene.base = withoutExtension(sourcePath);
    scene.exe = executablePath(sourcePath);
    scene.rcFile = scene.base + "rc.rc";
    scene.sourceDir = folderOf(sourcePath);
    scene.lib = folders.installDir;
    scene.binDir = compiler.binDir;
    scene.hasResource = fileReadable(scene.rcFile);
    scene.custom = customSwitches == 1;
    scene.wide = wordSize64();
    scene.compilerSwitches = project.compilerSwitches;
    scene.linkerSwitches = project.linkerSwitches;
    if (compilerOf(compilerProfile).ofThisSystem) scene.toolkit = toolkitPlaces(folders.installDir);
    return scene;
}

std::string commandText(const BuildStep& step, const CommandScene& scene) {
    return fill(step.command, scene, step, std::string());
}
