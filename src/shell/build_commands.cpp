#include "shell/build_commands.h"

#include "compile/catalogue.h"
#include "compile/driver.h"
#include "compile/execute.h"
#include "compile/hooks.h"
#include "compile/log.h"
#include "editing/code_editor.h"
#include "editing/code_lists.h"
#include "editing/editor_window.h"
#include "editing/modes.h"
#include "menu-c.h"
#include "project/host.h"
#include "project/preferences.h"
#include "shell/command_states.h"
#include "shell/commands.h"
#include "shell/environment.h"
#include "shell/saving.h"
#include "shell/window_control.h"
#include "surface/event.h"
#include "surface/hooks.h"
#include "surface/selection.h"
#include "surface/state.h"

static constexpr int LOG_CAPACITY = 2500; // lines that the list holds

static int logList = 0;

int logWidget() { return logList; }

// ---- Generating -----------------------------------------------------------------------------------------------

void generateCommand() {
    selectTool(TOOL_SELECTOR);
    commitEditor();
    if (preferences.generateSavesProject) saveOpenProject();
    generateToChosenSource();
}

// ---- Building and running -------------------------------------------------------------------------------------

void compileAndRunCommand() { compileCommand(false); }
void rebuildCommand() { compileCommand(true); }

static void selectLogLine(int line) { owSetListEntry(logList, OSELECT, owEntry, line, 0); }

static int currentLogLine() {
    int count = 0, selected = 0, current = 0;
    owEnqListStatus(logList, &count, &selected, &current);
    return current;
}

void logPlaceCommand() {
    if (const int line = currentLogLine(); line > 0) logEntryChosen(line);
}

// Who walks through the log with the keys goes on doing so.
void logLineCommand() {
    const bool chosen = action.key == OKEYLEFTBUTTON || action.key == OKEYRETURN;
    logPlaceCommand();
    if (!chosen) owSetActiveWidget(logList);
}

static void stepToMessage(int step) {
    const int line = messageBeside(currentLogLine(), step);
    if (line == 0) return;
    showControlWindow(CMD_VIEW_COMPILER_LOG);
    selectLogLine(line);
    logEntryChosen(line);
}

void nextMessageCommand() { stepToMessage(1); }
void previousMessageCommand() { stepToMessage(-1); }

void printErrorsCommand() {
    owPrintTextWidget(logList, 0, 0, preferences.codePointSize);
    enterTextMode();
}

// ---- The log --------------------------------------------------------------------------------------------------

static void clearLog() { owSetListEntry(logList, OCLEAR, 0); }

static void appendLogLine(const std::string& line) { owSetListEntry(logList, OADD, owString, line.c_str(), 0); }

static void setLogLines(const std::vector<std::string>& lines) {
    clearLog();
    for (const std::string& line : lines) owSetListEntry(logList, OADD, owString, line.c_str(), 0);
}

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
                              LOG_CAPACITY, owCallback, CMD_LOG_LINE, owDoubleClickCallback, CMD_LOG_PLACE, 0);
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
