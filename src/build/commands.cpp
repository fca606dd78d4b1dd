#include "build/commands.h"

#include "build/catalogue.h"
#include "build/driver.h"
#include "platform/environment.h"
#include "platform/paths.h"
#include "platform/processes.h"
#include "project/records.h"

#include <algorithm>
#include <string_view>

namespace {

// --- the steps
//
// Names: main, base, exe, rcFile, sourceDir, lib, bin as in CommandScene; src and obj of a listed source; dirs the
// module directories; modules the toolkit's module folder, which closes the quote that the command opened; cflags,
// lflags and linkWords the switches; rc, rcObj, res the resource script and what is made of it, if there is one; objs,
// objects, files the listed objects, object files and library files, sources the listed sources; libraries the
// toolkit's. Names of the last three kinds bring a blank ahead of each item.

constexpr BuildStep LF95[] = {
    {StepKind::eachSource, R"(lf95 -c "{src}" -o "{obj}" -mod "{dirs}{sourceDir}";"{lib}";"{modules}{cflags})",
     R"({dir}";")"},
    {StepKind::link,
     R"(lf95 "{main}"{rc}{objs}{objects} -mod "{dirs}{sourceDir}";"{lib}";"{modules}{cflags}{lflags}{files}{libraries})",
     R"({dir}";")"},
};

constexpr BuildStep LF95_75[] = {
    {StepKind::eachSource, R"(lf95 -c "{src}" -o "{obj}" -mod {dirs}{sourceDir.short};"{lib}";"{modules}{cflags})",
     "{dir.short};"},
    {StepKind::link,
     R"(lf95 "{main}"{rc}{objs}{objects} -mod {dirs}{sourceDir.short};"{lib}";"{modules}{cflags}{lflags}{files}{libraries})",
     "{dir.short};"},
};

constexpr BuildStep CVF[] = {
    {StepKind::eachSource,
     R"(f90 /c "{src}" /object:"{obj}"{cflags} /include:"{dirs}{sourceDir}","{lib}","{modules} /include:"{bin}..\include" /module:"{sourceDir}")",
     R"({dir}",")"},
    {StepKind::always,
     R"(f90 /c "{main}" /object:"{base}.obj"{cflags} /include:"{dirs}{sourceDir}","{lib}","{modules} /include:"{bin}..\include" /module:"{sourceDir}")",
     R"({dir}",")"},
    {StepKind::withResource, R"(rc -v "{rcFile}")"},
    {StepKind::link,
     R"(link "{base}.obj" /out:"{exe}"{res}{objs}{objects}{files}{libraries}{lflags} /entry:mainCRTStartup)"},
};

constexpr BuildStep FTN95[] = {
    {StepKind::always, R"(ftn95 "{main}"{cflags} /include "{bin}include" /mod_path "{dirs}{sourceDir};{lib};{modules})",
     "{dir};"},
    {StepKind::eachSource,
     R"(ftn95 "{src}"{cflags} /include "{bin}include" /mod_path "{dirs}{sourceDir};{lib};{modules})", "{dir};"},
    {StepKind::withResource, R"(src "{rcFile}")"},
    {StepKind::link, R"(slink {lflags} "{base}.obj"{rcObj}{objs}{objects}{files}{libraries} -file)"},
};

constexpr BuildStep FTN95_NET[] = {
    {StepKind::always,
     R"(ftn95 "{main}"{cflags} /include "{bin}include" /mod_path "{dirs}{sourceDir};{lib};{lib}\modules")",
     R"({dir}";")"},
    {StepKind::eachSource,
     R"(ftn95 "{src}"{cflags} /include "{bin}include" /mod_path "{dirs}{sourceDir};{lib};{lib}\modules")",
     R"({dir}";")"},
    {StepKind::withResource, R"(src "{rcFile}")"},
    {StepKind::link, R"(slink {lflags} "{base}.obj"{rcObj}{objs}{objects}{files}{libraries} -file)"},
};

constexpr BuildStep ABSOFT[] = {
    {StepKind::eachSource,
     R"(f90 -c "{src}"{m64} -o "{obj}"{cflags}{dirs} -p "{sourceDir}" -p "{lib}" -p "{lib}\modules")", " -p {dir}"},
    {StepKind::withResource, R"(rc -v "{rcFile}")"},
    {StepKind::link,
     R"(f90{m64}{dirs}{cflags} -p "{sourceDir}" -p "{lib}" -p "{lib}\modules" -o "{exe}" "{main}"{res}{objs}{objects}{files}{libraries}{linkWords})",
     R"( -p "{dir}")"},
};

constexpr char BIND_MANIFEST[] = R"(mt -manifest "{base}.exe.manifest"  -outputresource:"{base}.exe;1" )";

constexpr BuildStep INTEL[] = {
    {StepKind::eachSource,
     R"(ifort /c "{src}" /object:"{obj}"{cflags}{dirs} /include:"{sourceDir}" /include:"{lib}" /include:"{modules} /module:"{sourceDir}")",
     R"( /include:"{dir}")"},
    {StepKind::always,
     R"(ifort /c /MT "{main}" /object:"{base}.obj"{dirs}{cflags} /include:"{sourceDir}" /include:"{lib}" /include:"{modules} /module:"{sourceDir}")",
     R"( /include:"{dir}")"},
    {StepKind::withResource, R"(rc -v "{rcFile}")"},
    {StepKind::link,
     R"(link "{base}.obj" /out:"{exe}"{res}{objs}{objects}{files}{libraries}{lflags} /entry:mainCRTStartup)"},
    {StepKind::manifest, BIND_MANIFEST},
};

constexpr BuildStep VISUAL_C[] = {
    {StepKind::withResource, R"(rc -v "{rcFile}")"},
    {StepKind::link,
     R"(cl  /Fe"{exe}" /I"{lib}" /I"{lib}\include"{dirs}{cflags} /I"{bin}{up}..\include" "{main}" /Fo"{base}.obj" {res}{sources}{objects}{files}{libraries} /link{lflags})",
     R"( /I"{dir}")"},
    {StepKind::manifest, BIND_MANIFEST},
};

// The form of the main source is told whatever its extension, and its lines may be of any length.
constexpr BuildStep GNU_F90[] = {
    {StepKind::eachSource, R"(gfortran -c{form} "{src}" -o "{obj}" -J"{sourceDir}"{dirs}{cflags}{toolkitModules})",
     R"( -I"{dir}")"},
    {StepKind::always,
     R"(gfortran -c -x f95 -ffree-form -ffree-line-length-none "{main}" -o "{base}.o" -J"{sourceDir}"{dirs}{cflags}{toolkitModules})",
     R"( -I"{dir}")"},
    {StepKind::link, R"(gfortran "{base}.o"{objs}{objects}{files} -o "{exe}"{libraries}{lflags})"},
};

constexpr BuildStep GNU_F77[] = {
    {StepKind::eachSource,
     R"(gfortran -c -std=legacy{form} "{src}" -o "{obj}" -J"{sourceDir}"{dirs}{cflags}{toolkitModules})",
     R"( -I"{dir}")"},
    {StepKind::always,
     R"(gfortran -c -std=legacy -x f77 -ffixed-form -ffixed-line-length-none "{main}" -o "{base}.o" -J"{sourceDir}"{dirs}{cflags}{toolkitModules})",
     R"( -I"{dir}")"},
    {StepKind::link, R"(gfortran "{base}.o"{objs}{objects}{files} -o "{exe}"{libraries}{lflags})"},
};

constexpr BuildStep GNU_C[] = {
    {StepKind::eachSource, R"(g++ -c{form} "{src}" -o "{obj}" -I"{sourceDir}"{dirs}{cflags}{toolkitHeaders})",
     R"( -I"{dir}")"},
    {StepKind::always, R"(g++ -c -x c++ "{main}" -o "{base}.o" -I"{sourceDir}"{dirs}{cflags}{toolkitHeaders})",
     R"( -I"{dir}")"},
    {StepKind::link, R"(g++ "{base}.o"{objs}{objects}{files} -o "{exe}"{libraries}{lflags})"},
};

struct CommandRow {
    CompilerProfile profile;
    int language; // 0: all
    std::span<const BuildStep> steps;
    const char* doubleSwitches[2]; // either of them in the compiler switches means double precision
};
constexpr CommandRow COMMANDS[] = {
    {COMPILER_LF95, 0, LF95, {"-dbl", nullptr}},
    {COMPILER_LF95_75, 0, LF95_75, {"-dbl", nullptr}},
    {COMPILER_CVF, 0, CVF, {"/real_size:64", nullptr}},
    {COMPILER_FTN95, 0, FTN95, {"dreal", nullptr}},
    {COMPILER_FTN95_NET, 0, FTN95_NET, {nullptr, nullptr}},
    {COMPILER_ABSOFT, 0, ABSOFT, {nullptr, nullptr}},
    {COMPILER_INTEL, 0, INTEL, {"/real_size:64", nullptr}},
    {COMPILER_VISUAL_C, 0, VISUAL_C, {nullptr, nullptr}},
    {COMPILER_GNU, 90, GNU_F90, {"-fdefault-real-8", "-freal-4-real-8"}},
    {COMPILER_GNU, 77, GNU_F77, {"-fdefault-real-8", "-freal-4-real-8"}},
    {COMPILER_GNU, 99, GNU_C, {nullptr, nullptr}},
};

const CommandRow* commandRow(int profile, int language) {
    for (const CommandRow& row : COMMANDS) {
        if (row.profile == profile && (row.language == 0 || row.language == language)) return &row;
    }
    return nullptr;
}

// --- the names

// A path as it goes between double quotes. Only file names of systems with GNU compilers can hold what must be escaped.
std::string path(const CommandScene& scene, const std::string& text) {
    return scene.profile == COMPILER_GNU ? escapedForQuotes(text) : text;
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
    if (scene.language == 99) return extension == ".c" ? " -x c" : "";
    constexpr std::string_view KNOWN[] = {".f90", ".F90", ".f95", ".F95", ".f03", ".F03", ".f08", ".F08",
                                          ".for", ".FOR", ".f",   ".F",   ".ftn", ".FTN", ".fpp", ".FPP"};
    if (std::find(std::begin(KNOWN), std::end(KNOWN), extension) != std::end(KNOWN)) return "";
    return scene.language == 77 ? " -x f77" : " -x f95";
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
    if (scene.profile != COMPILER_GNU) return false;
    if (word[0] == '/') return !pathExists(word);
    return word.find("console") != std::string::npos || switchOfAnotherCompiler(scene.profile, word);
}

std::span<const BuildStep> buildSteps(int compilerProfile, int language) {
    const CommandRow* row = commandRow(compilerProfile, language);
    return row ? row->steps : std::span<const BuildStep>();
}

const char* objectExtension(int compilerProfile) { return compilerProfile == COMPILER_GNU ? ".o" : ".obj"; }

bool doublePrecision(int compilerProfile, const std::string& compilerSwitches) {
    for (const CommandRow& row : COMMANDS) {
        if (row.profile != compilerProfile) continue;
        for (const char* word : row.doubleSwitches) {
            if (word && compilerSwitches.find(word) != std::string::npos) return true;
        }
    }
    return false;
}

std::string sourceOfRow(const CommandScene& scene, const std::string& row) {
    if (scene.profile != COMPILER_GNU || isAbsolutePath(row) || pathExists(row)) return row;
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
    if (compilerProfile == COMPILER_GNU) scene.toolkit = toolkitPlaces(folders.installDir);
    return scene;
}

std::string commandText(const BuildStep& step, const CommandScene& scene) {
    return fill(step.command, scene, step, std::string());
}
