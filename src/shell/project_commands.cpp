#include "shell/project_commands.h"

#include "compile/catalogue.h"
#include "compile/execute.h"
#include "compile/log.h"
#include "dialogues/project_requests.h"
#include "dialogues/project_type.h"
#include "editing/code_editor.h"
#include "editing/modes.h"
#include "menu-c.h"
#include "platform/paths.h"
#include "project/files.h"
#include "project/host.h"
#include "project/preferences.h"
#include "project/tree.h"
#include "settings/recent_projects.h"
#include "shell/command_states.h"
#include "shell/command_table.h"
#include "shell/commands.h"
#include "shell/compiler_log.h"
#include "shell/menus.h"
#include "shell/saving.h"
#include "shell/window_control.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/selection.h"
#include "surface/state.h"
#include "surface/undo.h"

namespace {

// Where the form file dialogues were left; the name is also where Save Form goes.
FilePlace formFile;

} // namespace

void forgetFormFile() { formFile.name.clear(); }

// ---- Saving ---------------------------------------------------------------------------------------------------

namespace {

void saved(bool success) {
    if (success && preferences.saveGeneratesCode) generateKnownSource();
}

void saveProjectCommand() {
    selectTool(TOOL_SELECTOR);
    saved(saveOpenProject());
}

void saveProjectAsCommand() {
    selectTool(TOOL_SELECTOR);
    saved(saveUnderChosenName());
}

constexpr int MINUTE = 60000; // milliseconds

} // namespace

void startAutoBackup() {
    owDefineTimerCallback(preferences.autoBackupOn ? preferences.autoBackupMinutes * MINUTE : 0, CMD_AUTO_BACKUP);
}

// ---- Opening --------------------------------------------------------------------------------------------------

namespace {

bool programRunning() { return childProcess.handle != 0; }

// What follows from language, platform and grid of the project that has just come in.
void adoptProjectKind() {
    const bool fits = compilerFitsProject(true);
    enableCompile(fits && !programRunning());
    refreshCommands();
    showProjectTitle();
}

void adoptProjectSettings() {
    owSetSnapGrid(project.snapOn ? project.snapGrid : 1);
    forgetLog();
    adoptProjectKind();
}

void showForms(WidgetNode* selected) {
    markFormsShown();
    realiseForms(project.forms);
    if (selected && selected != project.currentWidget) selectWidget(selected);
}

} // namespace

bool openProjectFile(const std::string& folder, const std::string& name) {
    if (!loadProject(folder, name)) return false;
    mendLoadedProject();
    adoptProjectSettings();
    showForms(findSelected(project.forms));
    beginTimeline();
    addRecentProject(fileMenu(), joinPath(project.projectDir, project.projectName));
    enableExecute(executableCurrent() && !programRunning());
    return true;
}

namespace {

// After a file that could not be read: the selection that was dropped for it comes back, or a form takes it.
void selectAgain() { selectWidget(project.currentWidget ? project.currentWidget : project.forms); }

void openChosen(const FilePlace& place) {
    if (!place.name.empty()) {
        dropSelection();
        if (!openProjectFile(place.folder, place.name)) selectAgain();
    }
    activateWidget(project.currentWidget);
}

void openProjectCommand() {
    selectTool(TOOL_SELECTOR);
    if (!saveQuestion("Open New Project", true)) return;
    FilePlace place = {project.projectDir.empty() ? currentFolder() : project.projectDir, ""};
    if (!host.fileDialogue("Open Project", PROJECT_FILES, false, place.folder, place.name)) place.name.clear();
    openChosen(place);
}

void openRecentCommand() {
    selectTool(TOOL_SELECTOR);
    const std::string path = recentProject(currentCommand() - CMD_RECENT_FIRST);
    if (!path.empty() && saveQuestion("Open New Project", true)) openChosen({folderOf(path), fileNameOf(path)});
}

} // namespace

FilePlace placeFromCommandLine(const std::string& commandLine) {
    const bool quoted = !commandLine.empty() && commandLine.front() == '"';
    const std::string rest = quoted ? commandLine.substr(1) : commandLine;
    const std::string path = rest.substr(0, rest.find_first_of(quoted ? "\"" : " \""));
    const std::string folder = folderOf(path);
    if (folder.empty()) return {currentFolder(), path};
    return {isAbsolutePath(folder) ? folder : absolutePath(folder), fileNameOf(path)};
}

// ---- New and exit ---------------------------------------------------------------------------------------------

void startNewProject() {
    resetProject();
    newForm();
    project.snapOn = 1;
    project.snapGrid = project.gridMode ? project.gridPixelX : 10;
    project.projectModified = 0;
    project.sourceStale = 1;
    adoptProjectSettings();
    enableExecute(false);
    showForms(nullptr);
    project.projectModified = 0;
    beginTimeline();
}

namespace {

void newProjectCommand() {
    selectTool(TOOL_SELECTOR);
    if (saveQuestion("Start New Project", false)) newProjectDialogue();
}

void startEmptyProject(const ProjectType& type) {
    project.projectLanguage = type.language;
    project.projectPlatform = type.platform;
    project.doubleBuffering = type.doubleBuffering;
    project.gridMode = type.gridMode;
    project.gridHoriz = type.gridHoriz;
    project.gridVert = type.gridVert;
    applyGrid();
    startNewProject();
    project.scalable = type.gridMode ? type.scalable : 0;
}

// The project of a file, under no name, as if it had been drawn now.
bool startFromModel(const ProjectType& type, const std::string& model) {
    if (!loadProject(folderOf(model), fileNameOf(model))) return false;
    mendLoadedProject();
    convertProject(type);
    startAnotherProject();
    project.projectTitle.clear();
    project.projectName.clear();
    project.projectDir.clear();
    project.storedSource.clear();
    project.snapOn = 1;
    project.snapGrid = project.gridMode ? project.gridPixelX : 10;
    adoptProjectSettings();
    enableExecute(false);
    showForms(nullptr);
    project.projectModified = 0;
    project.sourceStale = 1;
    return true;
}

void startProject(const ProjectType& type, const std::string& model) {
    dropSelection(); // while the grid is still that of the live widgets
    if (model.empty())
        startEmptyProject(type);
    else if (!startFromModel(type, model))
        selectAgain();
    beginTimeline();
    activateWidget(project.currentWidget);
}

} // namespace

void joinProjectDialogues() {
    hooks.kindChanged = adoptProjectKind;
    projectRequests.startProject = startProject;
    projectRequests.kindChanged = [] {
        adoptProjectKind();
        enableExecute(false); // the program is of the other kind
    };
    projectRequests.preferencesChanged = [] {
        showPreferenceLabels();
        refreshInputMode();
        startAutoBackup();
        setLogFont();
    };
}

namespace {

void exitCommand() {
    if (saveQuestion("Exit ORBAWIDG Designer", false)) design.quitRequested = 1;
}

} // namespace

// ---- Forms ----------------------------------------------------------------------------------------------------

namespace {

void insertFormCommand() {
    selectTool(TOOL_SELECTOR);
    FilePlace place = {formFile.folder.empty() ? currentFolder() : formFile.folder, formFile.name};
    if (!host.fileDialogue("Insert Form", FORM_FILES, false, place.folder, place.name) || place.name.empty()) return;
    if (place.name.find('.') == std::string::npos) place.name += ".wdf";
    commitEditor();
    dropSelection();
    WidgetNode* first = nullptr;
    if (insertForm(place.folder, place.name, &first) == 0) {
        selectAgain();
        return;
    }
    realiseForms(first);
    formFile = place;
    markChanged();
}

// The forms from the active one on go into the file.
void saveFormTo(const FilePlace& place) {
    commitEditor();
    if (saveForm(joinPath(place.folder, place.name))) formFile = place;
}

void saveFormAsCommand() {
    selectTool(TOOL_SELECTOR);
    FilePlace place = {formFile.folder.empty() ? currentFolder() : formFile.folder, formFile.name};
    if (chooseSaveFile("Save Form As", ".wdf", true, place.folder, place.name)) saveFormTo(place);
}

void saveFormCommand() {
    if (formFile.name.empty()) {
        saveFormAsCommand();
        return;
    }
    selectTool(TOOL_SELECTOR);
    saveFormTo(formFile);
}

} // namespace

void closeProject() {
    host.closeForms();
    deleteList(project.forms);
    project.forms = nullptr;
    design.pasteBuffer = {};
}

namespace {

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_NEW_PROJECT, .label = "Project...|Ctrl+N", .mnemonic = 'P', .key = controlKey('N'), .menuIcon = "filenew&", .barIcon = "filenew", .bubbleHelp = "New Project", .handler = newProjectCommand},
    {.id = CMD_OPEN_PROJECT, .label = "Open Project...", .mnemonic = 'O', .menuIcon = "fileopen&", .barIcon = "fileopen", .bubbleHelp = "Open Project", .handler = openProjectCommand},
    {.id = CMD_INSERT_FORM, .label = "Insert Form...", .mnemonic = 'I', .handler = insertFormCommand},
    {.id = CMD_SAVE_FORM, .label = "Save Form...", .mnemonic = 'a', .handler = saveFormCommand},
    {.id = CMD_SAVE_FORM_AS, .label = "Save Form As...", .mnemonic = 'o', .handler = saveFormAsCommand},
    {.id = CMD_SAVE_PROJECT, .label = "Save Project|Ctrl+S", .mnemonic = 'S', .key = controlKey('S'), .keyModes = IN_DESIGN | IN_FIELDS, .menuIcon = "save&", .barIcon = "save", .bubbleHelp = "Save Project", .handler = saveProjectCommand},
    {.id = CMD_SAVE_PROJECT_AS, .label = "Save Project As...", .mnemonic = 'A', .handler = saveProjectAsCommand},
    {.id = CMD_EXIT, .label = "Exit|Alt+F4", .mnemonic = 'x', .handler = exitCommand},
    {.id = CMD_RECENT_FIRST, .handler = openRecentCommand},
    {.id = CMD_RECENT_FIRST + 1, .handler = openRecentCommand},
    {.id = CMD_RECENT_FIRST + 2, .handler = openRecentCommand},
    {.id = CMD_RECENT_FIRST + 3, .handler = openRecentCommand},
    {.id = CMD_RECENT_FIRST + 4, .handler = openRecentCommand},
    {.id = CMD_AUTO_BACKUP, .handler = [] { autoBackup(); }},
};
// clang-format on

} // namespace

std::span<const Command> projectCommands() { return COMMANDS; }
