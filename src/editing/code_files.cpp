// The code editor and the outside: inserting a file, printing, help on the word under the caret.

#include "editing/commands.h"
#include "editing/editor_window.h"
#include "editing/help_file.h"
#include "editing/text_view.h"
#include "menu-c.h"
#include "platform/paths.h"
#include "project/host.h"
#include "project/language.h"
#include "surface/hooks.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>

namespace {

std::string insertFolder; // where the browser was left

struct HelpFile {
    const char* prefix;
    const char* stem;
    const char* library;
};
// The first prefix that fits decides.
constexpr HelpFile HELP_FILES[] = {
    {"ow", "Menu", "ORBAWIDG"}, {"op", "Plot", "ORBAPLOT"}, {"om", "Mesh", "ORBAMESH"}, {"o", "Orba", "ORBA"}};

constexpr std::array FAMILY_ENDINGS = {"To2D", "To3D", "By2D", "By3D", "2D", "3D", "4D"};
constexpr std::array WHOLE_NAMES = {"oDrawShadedPolylineTo3D", "oSetMask2D", "oTransformHomogPoint3D",
                                    "omSetMesh3DState", "oUntransformHomogPoint3D"};
struct Shortened {
    const char* part;
    size_t length;
};
constexpr Shortened SHORTENED[] = {{"DrawPixelArea", 10},          {"SetCharFontName", 12},
                                   {"SetCharSizePoint", 12},       {"SetLineWidthPoint", 13},
                                   {"EnqValueSettingInteger", 17}, {"EnqValueSettingDouble", 17}};

// The name under which a member of a family of routines is explained.
std::string familyName(const std::string& word) {
    if (std::ranges::find(WHOLE_NAMES, word) != WHOLE_NAMES.end()) return word;
    for (const char* ending : FAMILY_ENDINGS)
        if (const size_t at = word.find(ending); at != std::string::npos) return word.substr(0, at);
    for (const Shortened& row : SHORTENED)
        if (word.find(row.part) != std::string::npos) return word.substr(0, row.length);
    return word;
}

std::string wordAtCaret() {
    const int caret = selectionOf(editor.text).end;
    const int start = std::max(caretLineStart(editor.text), 1);
    const std::string line = extract(editor.text, {start, start + lineLength(editor.text, start)});
    const auto belongs = [&](size_t i) { return std::isalnum(static_cast<unsigned char>(line[i])) != 0; };
    size_t from = std::min<size_t>(caret - start, line.size()), to = from;
    while (from > 0 && belongs(from - 1)) --from;
    while (to < line.size() && belongs(to)) ++to;
    return line.substr(from, to - from);
}

void insertFileCommand() {
    const TextRange range = selectionOf(editor.text);
    std::string name;
    if (insertFolder.empty()) insertFolder = project.projectDir;
    if (!host.fileDialogue("Insert File", languageOfProject().filter, false, insertFolder, name) || name.empty())
        return select(editor.text, range);
    const std::string path = joinPath(insertFolder, name);
    if (!owGetTextFromFile(editor.hiddenText, path.c_str(), 0)) {
        host.errorBox("Error opening file", "File could not be opened");
        return select(editor.text, range);
    }
    replaceRange(editor.text, {range.start, range.start}, textOf(editor.hiddenText));
    refreshFont(true, 1);
    select(editor.text, range);
}

void printCodeCommand() {
    constexpr int POINTS = 10;
    owPrintTextWidget(editor.text, 0, 0, POINTS);
    owSetActiveWidget(editor.text);
}

void codeHelpCommand() { showRoutineHelp(wordAtCaret()); }

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_INSERT_FILE, .label = "Insert File...", .mnemonic = 'N', .menuIcon = "insertcode&", .handler = insertFileCommand},
    {.id = CMD_PRINT_CODE, .label = "Print...", .mnemonic = 'P', .when = WHEN_TEXT_MODE, .handler = printCodeCommand},
    {.id = CMD_CODE_HELP, .key = OKEYF1, .keyModes = IN_TEXT, .handler = codeHelpCommand},
};
// clang-format on

} // namespace

void showRoutineHelp(const std::string& name) {
    const std::string word = familyName(name);
    const auto row =
        std::ranges::find_if(HELP_FILES, [&](const HelpFile& file) { return word.starts_with(file.prefix); });
    if (row == std::end(HELP_FILES)) return;
    constexpr char VERSION[] = "85";
    if (!showHelpFile(std::string(row->stem) + VERSION + ".chm", word))
        host.errorBox("Error opening help file", std::string(row->library) + " help file could not be found");
}

std::span<const Command> codeFileCommands() { return COMMANDS; }
