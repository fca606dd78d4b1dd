// The toolkit's libraries on the link command: which there are, what they are called for each compiler, and their
// order.
#include "build/catalogue.h"
#include "build/commands.h"
#include "platform/paths.h"
#include "platform/processes.h"
#include "platform/text_files.h"

#include <algorithm>
#include <string_view>

namespace {

// Letters of the order: T, S, E and, for the place where the full set or the reduced library goes, *.
struct LibraryRow {
    CompilerProfile profile;
    const char* suffix;
    const char* doubleSuffix;        // empty: the compiler has no double precision of its own
    const char* reducedDoubleSuffix; // of the reduced library
    const char* order;
    const char* testExtension; // of the base library whose presence means the full set
    const char* dlls;          // letters of the files that end in ".dll"
};
constexpr LibraryRow LIBRARIES[] = {
    {COMPILER_LF95, "l5", "l5d", "l5d", "TSE*", ".dll", ""},
    {COMPILER_LF95_75, "l6", "l6d", "l6d", "TSE*", ".lib", ""},
    {COMPILER_CVF, "dg", "dgd", "dg", "T*E", ".lib", ""},
    {COMPILER_FTN95, "s9", "s9d", "s9d", "T*ES", ".dll", "MPBSE"},
    {COMPILER_FTN95_NET, "s3", "", "", "T*ES", ".dll", "MPBSE"},
    {COMPILER_ABSOFT, "ab", "", "", "T*SE", ".lib", ""},
    {COMPILER_INTEL, "i8", "i8d", "i8", "T*E", ".lib", ""},
    {COMPILER_VISUAL_C, "vc", "", "", "T*", ".lib", ""},
};

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
    const LibraryRow& row;
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

// LF95 takes the full set through one list of imports, made of the lists of its libraries.
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
    if (names.row.profile == COMPILER_LF95) return makeImportList(names);
    std::string words;
    for (char letter : {'M', 'P'}) {
        if (names.there(names.file(letter))) words += names.word(letter);
    }
    return words + names.word('B');
}

std::string gnuLibraries(const CommandScene& scene) {
    std::string words;
    for (const std::string& folder : scene.toolkit.libraryDirs) {
        std::string path = "\"" + escapedForQuotes(folder) + "\"";
        words.append(" -L").append(path).append(" -Xlinker -rpath -Xlinker ").append(path);
    }
    if (scene.language != 99) {
        bool dbl = doublePrecision(scene.profile, scene.compilerSwitches) && scene.toolkit.fortranDouble;
        words += dbl ? " -lorbawidg_fd" : " -lorbawidg_f";
    }
    return words + " -lorbawidg";
}

} // namespace

std::string libraryWords(const CommandScene& scene) {
    if (scene.profile == COMPILER_GNU) return gnuLibraries(scene);
    const auto* row = std::find_if(std::begin(LIBRARIES), std::end(LIBRARIES),
                                   [&](const LibraryRow& each) { return each.profile == scene.profile; });
    if (row == std::end(LIBRARIES)) return {};
    LibraryNames names{scene, *row, doublePrecision(scene.profile, scene.compilerSwitches)};
    std::string words;
    for (char letter : std::string_view(row->order)) words += letter == '*' ? fullOrReduced(names) : names.word(letter);
    return words;
}
