#include "dialogues/project_settings.h"

#include "codegen/generate.h"
#include "compile/catalogue.h"
#include "dialogues/commands.h"
#include "dialogues/frame.h"
#include "platform/paths.h"
#include "project/build_inputs.h"
#include "project/host.h"
#include "project/language.h"
#include "project/tools.h"
#include "surface/event.h"
#include "surface/hooks.h"
#include "surface/selection.h"

#include <algorithm>

namespace {

// A list as the drop-down list names it. Folders have no filter.
struct ListRow {
    FileListIndex list;
    const char* name;
    const char* caption;
    const char* filter;       // of the compilers of other systems
    const char* filterOfThis; // of this system's
};
constexpr char OTHER_OBJECTS[] = "*.obj|object files (*.obj)|*.*|all files (*.*)";
constexpr char OTHER_LIBRARIES[] = "*.lib|library files (*.lib)|*.*|all files (*.*)";
constexpr char OBJECTS[] = "*.o|object files (*.o)|*.obj|object files (*.obj)|*.*|all files (*.*)";
constexpr char LIBRARIES[] = "*.a|library files (*.a)|*.so|shared library files (*.so)|*.lib|library files (*.lib)|*.*|"
                             "all files (*.*)";
constexpr ListRow LISTS[] = {
    {LIST_SOURCES, "Source files", "Files:", nullptr, nullptr}, // by the language
    {LIST_OBJECTS, "Object files", "Files:", OTHER_OBJECTS, OBJECTS},
    {LIST_LIBRARIES, "Library files", "Files:", OTHER_LIBRARIES, LIBRARIES},
    {LIST_MODULES, "Module directories", "Directories:", "", ""}, // the last: a C project has none
};

struct SourceFilter {
    int language;
    const char* filter;
};
constexpr SourceFilter SOURCE_FILTERS[] = {
    {LANGUAGE_F77, "*.for|f77 files (*.for)|*.f90|f90 files (*.f90)|*.*|all files (*.*)"},
    {LANGUAGE_F90, "*.f90|f90 files (*.f90)|*.for|f77 files (*.for)|*.*|all files (*.*)"},
    {LANGUAGE_C, "*.c|C files (*.c)|*.cpp|C++ files (*.cpp)|*.*|all files (*.*)"},
};

BuildInputs working;
std::string lastFolder; // that a file was chosen from

const ListRow& listOnShow() { return LISTS[std::max(dialogue::choice(SETTINGS_LISTS), 1) - 1]; }
FileList& rowsOnShow() { return working.lists[listOnShow().list]; }

// ---- The list

int rowList() { return dialogue::widget(SETTINGS_ROWS); }

// A list that is full has no room behind its last row.
void showRows() {
    const FileList& rows = rowsOnShow();
    while (owPropertyItemCount(rowList()) > static_cast<int>(rows.size()))
        owRemovePropertyFromList(rowList(), owPropertyItemCount(rowList()));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const int number = static_cast<int>(i) + 1;
        if (owPropertyItemCount(rowList()) < number)
            owAddPropertyToList(rowList(), OPROPBUTTON, std::to_string(number).c_str(), owReadOnly, 0, 0);
        owSetPropertySetting(rowList(), number, owString, rows[i].c_str(), owPropertyStatus,
                             i + 1 < FILE_LIST_ROWS ? OSELECTABLE : OUNSELECTABLE, 0);
    }
    dialogue::setText(SETTINGS_CAPTION, listOnShow().caption);
}

void listChosen() {
    showRows();
    owSelectProperty(rowList(), 1);
}

// Names of a list are looked for where a build would: as they are, or beside the project's source.
bool isThere(const std::string& path, FileListIndex list) {
    const bool mayLackExtension = list == LIST_SOURCES && languageOfProject().family == LanguageFamily::Fortran;
    for (const std::string& folder : {std::string(), project.sourceDir, project.projectDir})
        for (const char* extension : {"", ".f90"})
            if ((*extension == 0 || mayLackExtension) && pathExists(joinPath(folder, path + extension))) return true;
    return false;
}

bool stays(const std::string& path, FileListIndex list) {
    if (isThere(path, list)) return true;
    const bool folder = list == LIST_MODULES;
    return host.messageBox(folder ? "Directory not found" : "File not found",
                           (folder ? "The directory " : "The file ") + path + " was not found - Leave it in the list?",
                           BOX_QUESTION, BOX_YES_NO) == ANSWER_YES;
}

// What stands in a row now; an emptied row goes, and there is always an empty one at the end.
void setRow(std::size_t row, const std::string& path) {
    FileList& rows = rowsOnShow();
    if (row >= rows.size() || rows[row] == path) return;
    const bool last = row + 1 == rows.size();
    if (!path.empty() && stays(path, listOnShow().list)) {
        rows[row] = path;
        if (last) rows.emplace_back();
    } else if (!last) {
        rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(row));
    }
    showRows();
}

std::size_t rowOfEvent() { return static_cast<std::size_t>(std::max(action.status, 1)) - 1; }

void rowTyped() {
    char text[4096] = "";
    const std::size_t row = rowOfEvent();
    owEnqPropertySetting(rowList(), static_cast<int>(row) + 1, owLength, static_cast<int>(sizeof text), owString, text,
                         0);
    setRow(row, std::string(text).substr(0, NAME_LIMIT));
}

// ---- The browser

const char* filterOf(const ListRow& list) {
    if (list.list == LIST_SOURCES)
        return std::ranges::find(SOURCE_FILTERS, languageOfProject().number + 0, &SourceFilter::language)->filter;
    return compilerOf(compiler.profile).ofThisSystem ? list.filterOfThis : list.filter;
}

std::string folderToBrowse(const std::string& path, bool isFolder) {
    const std::string own = isFolder ? path : folderOf(path);
    for (const std::string& folder : {own, lastFolder, project.sourceDir, project.projectDir})
        if (!folder.empty() && pathExists(folder)) return folder;
    return currentFolder();
}

void browse() {
    constexpr int PATH_BYTES = 4096;
    const std::size_t row = rowOfEvent();
    if (row >= rowsOnShow().size()) return;
    const bool isFolder = listOnShow().list == LIST_MODULES;
    char name[PATH_BYTES] = "", folder[PATH_BYTES] = "";
    const std::string path = rowsOnShow()[row];
    folderToBrowse(path, isFolder).copy(folder, PATH_BYTES - 1);
    if (!isFolder) fileNameOf(path).copy(name, PATH_BYTES - 1);
    if (!owFileBrowser(name, PATH_BYTES, folder, PATH_BYTES, filterOf(listOnShow()), owTitle, "Load Project File",
                       owType, isFolder ? OPICKDIRECTORY : OOPENFILE, 0))
        return;
    if (!isFolder && !*name) return;
    lastFolder = folder;
    const std::string chosen = isFolder ? std::string(folder) : joinPath(folder, name);
    if (chosen.size() > NAME_LIMIT)
        return host.errorBox("Load Project File", "The path " + chosen +
                                                      " is longer than the project's file has room "
                                                      "for.|Move the file nearer to the top.");
    setRow(row, chosen);
}

// ---- The window

void fill() {
    working = buildInputs();
    for (FileList& list : working.lists)
        if (list.empty() || !list.back().empty()) list.emplace_back();
    std::vector<std::string> names;
    for (const ListRow& row : LISTS)
        if (row.list != LIST_MODULES || languageOfProject().family == LanguageFamily::Fortran)
            names.emplace_back(row.name);
    dialogue::setRows(SETTINGS_LISTS, names);
    dialogue::choose(SETTINGS_LISTS, 1);
    dialogue::setText(SETTINGS_ENVIRONMENT, compiler.name);
    dialogue::setText(SETTINGS_TYPE, projectKind());
    dialogue::setText(SETTINGS_COMPILER, working.compilerSwitches);
    dialogue::setText(SETTINGS_LINKER, working.linkerSwitches);
    constexpr int NUMBERS_WIDTH = 72;
    owSetWidgetProp(rowList(), owColumnWidth, NUMBERS_WIDTH, 0);
    listChosen();
}

extern const Dialogue SETTINGS_DIALOGUE;

void accept() {
    working.compilerSwitches = dialogue::text(SETTINGS_COMPILER);
    working.linkerSwitches = dialogue::text(SETTINGS_LINKER);
    setBuildInputs(working);
    closeDialogue(SETTINGS_DIALOGUE);
}

void cancel() { closeDialogue(SETTINGS_DIALOGUE); }

constexpr Control label(const char* text, short y) { return {.text = text, .x = 4, .y = y, .width = 120}; }
constexpr Control note(int id, short x, short y, short width) {
    return {.field = Field::Label, .id = id, .x = x, .y = y, .width = width};
}
constexpr Control entry(int id, short y) {
    return {.field = Field::Text, .id = id, .x = 128, .y = y, .width = 268, .length = NAME_LIMIT};
}

constexpr Control CONTROLS[] = {
    label("Environment:", 276),
    note(SETTINGS_ENVIRONMENT, 128, 276, 268),
    note(SETTINGS_TYPE, 128, 254, 268),
    label("Show list of:", 226),
    {.field = Field::Choice, .id = SETTINGS_LISTS, .x = 128, .y = 226, .width = 180, .changed = listChosen},
    note(SETTINGS_CAPTION, 4, 202, 120),
    {.field = Field::Properties,
     .id = SETTINGS_ROWS,
     .x = 4,
     .y = 88,
     .width = 392,
     .height = 114,
     .changed = rowTyped,
     .typed = browse},
    label("Compiler Switches:", 60),
    entry(SETTINGS_COMPILER, 60),
    label("Linker Switches:", 34),
    entry(SETTINGS_LINKER, 34),
    {.field = Field::Default, .id = SETTINGS_OK, .text = "OK", .x = 230, .y = 2, .width = 80, .changed = accept},
    {.field = Field::Button, .id = SETTINGS_CANCEL, .text = "Cancel", .x = 316, .y = 2, .width = 80, .changed = cancel},
};

const Dialogue SETTINGS_DIALOGUE = {
    .title = "Project Settings",
    .icon = "Light",
    .width = 400,
    .height = 300,
    .windowEvent = SETTINGS_WINDOW,
    .controls = CONTROLS,
    .cancel = SETTINGS_CANCEL,
    .first = SETTINGS_LISTS,
    .fill = fill,
};

void projectSettingsCommand() {
    selectTool(TOOL_SELECTOR);
    openDialogue(SETTINGS_DIALOGUE);
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_PROJECT_SETTINGS, .label = "Project Settings...", .mnemonic = 'S', .handler = projectSettingsCommand},
};
// clang-format on

} // namespace

std::span<const Command> projectSettingsCommands() { return COMMANDS; }
