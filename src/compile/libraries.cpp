// The toolkit's libraries on the link command: which there are, what they are called for each compiler, and their
// order.
#include "compile/catalogue.h"
#include "compile/command_lines.h"
#include "platform/paths.h"
#include "platform/processes.h"
#include "platform/text_files.h"

#include <algorithm>
#include <string_view>

namespace {

std::string_view stemOf(char letter) {
    switch (letter) {
    case 'T': return "owidgw";
    case 'M': return "omesh";
    case 'P': return "oplot";
    case 'B': return "orblib";
    case 'Y': return "orbtiny";
    case 'S': return "owshell";
    default: return "owwinerr";
    }
}

struct LibraryNames {
    const CommandScene& scene;
    const LibraryNaming& row;
    bool dbl;

    std::string suffix(char letter) const {
        if (letter == 'E') return {};
        if (!dbl || row.doubleSuffix[0] == '\0') return row.suffix;
        return letter == 'Y' ? row.reducedDoubleSuffix : row.doubleSuffix;
    }
    std::string file(char letter, const char* extension) const {
        return std::string(stemOf(letter)) + suffix(letter) + extension;
    }
    std::string file(char letter) const {
        bool dll = std::string_view(row.dlls).find(letter) != std::string_view::npos;
        return file(letter, dll ? ".dll" : ".lib");
    }
    bool there(const std::string& file) const { return fileReadable(joinPath(scene.lib, file)); }
    std::string word(char letter) const { return " \"" + scene.lib + "\\" + file(letter) + "\""; }
};

// The full set as one list of imports, made of the lists of its libraries.
std::string makeImportList(const LibraryNames& names) {
    constexpr size_t FRAGMENT_LIMIT = 60000;
    constexpr size_t WHOLE_LIMIT = 80000;
    std::string whole;
    for (char letter : {'M', 'P', 'B'}) {
        std::string fragment;
        if (readTextFile(joinPath(names.scene.lib, names.file(letter, ".imp")), fragment, FRAGMENT_LIMIT)) {
            whole += fragment;
        }
    }
    if (whole.size() > WHOLE_LIMIT) whole.resize(whole.rfind('\n', WHOLE_LIMIT - 1) + 1); // never half a name
    writeTextFile(IMPORT_LIST, whole);
    return std::string(" @") + IMPORT_LIST;
}

std::string fullOrReduced(const LibraryNames& names) {
    if (!names.there(names.file('B', names.row.testExtension))) return names.word('Y');
    if (names.row.importList) return makeImportList(names);
    std::string words;
    for (char letter : {'M', 'P'}) {
        if (names.there(names.file(letter))) words += names.word(letter);
    }
    return words + names.word('B');
}

std::string installedLibraries(const CommandScene& scene) {
    std::string words;
    for (const std::string& folder : scene.toolkit.libraryDirs) {
        std::string path = "\"" + escapedForQuotes(folder) + "\"";
        words.append(" -L").append(path).append(" -Xlinker -rpath -Xlinker ").append(path);
    }
    if (languageFacts(scene.language).family == LanguageFamily::Fortran) {
        bool dbl = doublePrecision(scene.profile, scene.compilerSwitches) && scene.toolkit.fortranDouble;
        words += dbl ? " -lorbawidg_fd" : " -lorbawidg_f";
    }
    return words + " -lorbawidg";
}

} // namespace

std::string libraryWords(const CommandScene& scene) {
    const Compiler& known = compilerOf(scene.profile);
    if (known.ofThisSystem) return installedLibraries(scene);
    const LibraryNaming& row = known.libraries;
    const LibraryNames names{scene, row, doublePrecision(scene.profile, scene.compilerSwitches)};
    std::string words;
    for (char letter : std::string_view(row.order)) words += letter == '*' ? fullOrReduced(names) : names.word(letter);
    return words;
}
