#include "shell/build_commands.h"

#include "compile/catalogue.h"
#include "compile/driver.h"
#include "compile/execute.h"
#include "compile/hooks.h"
#include "compile/log.h"
#include "codegen/generate.h"
#include "editing/code_editor.h"
#include "menu-c.h"
#include "project/host.h"
#include "project/preferences.h"
#include "shell/command_states.h"
#include "shell/commands.h"
#include "shell/environment.h"
#include "shell/project_commands.h"
#include "shell/window_control.h"
#include "surface/hooks.h"
#include "surface/selection.h"
#include "surface/state.h"

static constexpr int LOG_CAPACITY = 2500; // lines that the list holds

static int logList = 0;

// ---- Generating -----------------------------------------------------------------------------------------------

// Asks for the source file. While there is none, the project's own name and folder are the proposal.
static bool askSourceFile() {
    const std::string oldName = project.sourceName, oldFolder = project.sourceDir;
    if (project.sourceName.empty()) project.sourceName = project.projectTitle;
    if (project.sourceDir.empty()) project.sourceDir = project.projectDir;
    if (chooseSourceFile()) return true;
    project.sourceName = oldName;
    project.sourceDir = oldFolder;
    return false;
}

// A source that was chosen now belongs to the project. One that was saved a moment ago is saved again with it.
static void keepChosenSource() {
    const bool saving = preferences.generateSavesProject || preferences.saveGeneratesCode;
    if (project.projectModified) return;
    if (project.projectName.empty() || !saving || !saveOpenProject()) project.projectModified = 1;
}

static bool generateTo(const std::string& before) {
    const std::string path = sourcePath();
    if (!generateSource(path, project.sourceName)) return false;
    if (path != before) keepChosenSource();
    showProjectTitle();
    enableExecute(false); // there is no program of this source yet
    return true;
}

bool generateKnownSource() {
    commitEditor();
    const std::string before = sourcePath();
    if (project.sourceName.empty() && !askSourceFile()) return false;
    return generateTo(before);
}

void generateCommand() {
    selectTool(TOOL_SELECTOR);
    commitEditor();
    if (preferences.generateSavesProject) saveOpenProject();
    const std::string before = sourcePath();
    if (askSourceFile()) generateTo(before);
}

// ---- Building and running -------------------------------------------------------------------------------------

void enableCompile(bool enabled) {
    setCommandStatus(CMD_COMPILE, enabled);
    setCommandStatus(CMD_REBUILD, enabled);
}

void enableExecute(bool enabled) { setCommandStatus(CMD_EXECUTE, enabled); }

void compileAndRunCommand() { compileCommand(false); }
void rebuildCommand() { compileCommand(true); }

void logLineCommand() {
    int count = 0, selected = 0, current = 0;
    owEnqListStatus(logList, &count, &selected, &current);
    if (current > 0) logEntryChosen(current);
}

void printErrorsCommand() {
    owPrintTextWidget(logList, 0, 0, preferences.codePointSize);
    owSetActiveWidget(codeText());
}

// ---- The log --------------------------------------------------------------------------------------------------

static void clearLog() { owSetListEntry(logList, OCLEAR, 0); }

static void appendLogLine(const std::string& line) { owSetListEntry(logList, OADD, owString, line.c_str(), 0); }

static void setLogLines(const std::vector<std::string>& lines) {
    clearLog();
    for (const std::string& line : lines) owSetListEntry(logList, OADD, owString, line.c_str(), 0);
}

static void selectLogLine(int line) { owSetListEntry(logList, OSELECT, owEntry, line, 0); }

static void setLogFont() {
    owSetFontAttribs(logList, owFontFace, "Courier New", owPointSize, preferences.codePointSize, 0);
    owDrawWidget(logList);
}

static void showLocation(const CodeLocation& location) {
    if (location.place == CodePlace::widgetStatement) {
        if (location.widget != project.currentWidget) selectWidget(location.widget);
        return;
    }
    showControlWindow(CMD_VIEW_CODE_EDITOR);
    if (location.place == CodePlace::entrySlot) {
        showEntryCode(location.widget, location.entry->name, placeName(location), location.line, location.column);
        return;
    }
    showCode(placeName(location), location.widget, location.line, location.column);
}

void buildCompilerLog(int pane) {
    logList = owCreateListBox(pane, 0, 0, 800, 119, ONONE, owHpos, OCENTRE, owVpos, OMIDDLE, owExpand, 1, owCapacity,
                              LOG_CAPACITY, owCallback, CMD_LOG_LINE, 0);
    setLogFont();
    buildHooks = {
        .selectorTool = [] { selectTool(TOOL_SELECTOR); },
        .saveFirst = [] { return preferences.generateSavesProject != 0; },
        .saveProject = saveOpenProject,
        .generateSource = [] { generateKnownSource(); },
        .commitEditor = commitEditor,
        .clearLog = clearLog,
        .logFont = setLogFont,
        .appendLogLine = appendLogLine,
        .setLogLines = setLogLines,
        .selectLogLine = selectLogLine,
        .showLog = [] { showControlWindow(CMD_VIEW_COMPILER_LOG); },
        .idle = owUpdateWindows,
        .cancelled = [] { return owStopAsked(CMD_ABORT) != 0; },
        .enableCompile = [](bool enabled) { enableCompile(enabled && compilerFitsProject(false)); },
        .enableExecute = enableExecute,
        .enableAbort = [](bool enabled) { setCommandStatus(CMD_ABORT, enabled); },
        .enablePrintErrors = [](bool enabled) { setCommandStatus(CMD_PRINT_ERRORS, enabled); },
        .watchTimer =
            [](int milliseconds) {
                owDefineTimerCallback(milliseconds ? milliseconds : WATCH_PERIOD, milliseconds ? CMD_WATCH : 0);
            },
        .showLocation = showLocation,
    };
    hooks.generateSource = generateKnownSource;
}
