#include "shell/build_commands.h"

#include "compile/catalogue.h"
#include "compile/driver.h"
#include "compile/execute.h"
#include "compile/hooks.h"
#include "compile/log.h"
#include "editing/code_editor.h"
#include "editing/code_lists.h"
#include "editing/editor_window.h"
#include "menu-c.h"
#include "project/host.h"
#include "project/preferences.h"
#include "shell/command_states.h"
#include "shell/command_table.h"
#include "shell/commands.h"
#include "shell/compiler_log.h"
#include "shell/saving.h"
#include "shell/window_control.h"
#include "surface/hooks.h"
#include "surface/selection.h"
#include "surface/state.h"

// ---- Generating -----------------------------------------------------------------------------------------------

namespace {

void generateCommand() {
    selectTool(TOOL_SELECTOR);
    commitEditor();
    if (preferences.generateSavesProject) saveOpenProject();
    generateToChosenSource();
}

} // namespace

// ---- Building and running -------------------------------------------------------------------------------------

namespace {

void compileAndRunCommand() { compileCommand(false); }

void rebuildCommand() { compileCommand(true); }

void stepToMessage(int step) {
    if (stepInLog(step)) return;
    const int line = messageBeside(currentLogLine(), step);
    if (line == 0) return;
    showControlWindow(CMD_VIEW_COMPILER_LOG);
    selectLogLine(line);
    logEntryChosen(line);
}

void nextMessageCommand() { stepToMessage(1); }

void previousMessageCommand() { stepToMessage(-1); }

} // namespace

// ---- What a build asks of the designer ------------------------------------------------------------------------

namespace {

void showLocation(const CodeLocation& location) {
    if (location.place == CodePlace::widgetStatement) {
        if (location.widget != project.currentWidget) selectWidget(location.widget);
        return;
    }
    showControlWindow(CMD_VIEW_CODE_EDITOR);
    if (location.place == CodePlace::entrySlot)
        showEntryCode(location.widget, location.entry->name, placeName(location), location.line, location.column);
    else
        showCode(placeName(location), location.widget, location.line, location.column);
    owMarkTextLine(codeText(), location.line); // the compiler complains of it
}

} // namespace

void joinBuildToWindows() {
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

namespace {

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_GENERATE, .label = "Generate Code", .mnemonic = 'G', .menuIcon = "Generate&", .barIcon = "Generate", .bubbleHelp = "Generate Code", .handler = generateCommand},
    {.id = CMD_COMPILE, .label = "Compile, Link & Execute|F5", .mnemonic = 'C', .key = functionKey(5), .keyModes = EVERYWHERE | WHEN_ENABLED, .menuIcon = "Compile&", .greyIcon = "Compile#", .barIcon = "Compile", .bubbleHelp = "Compile, Link & Execute", .when = STARTS_DISABLED, .handler = compileAndRunCommand},
    {.id = CMD_COMPILE_AGAIN, .handler = compileAndRunCommand},
    {.id = CMD_REBUILD, .label = "Rebuild all", .mnemonic = 'R', .when = STARTS_DISABLED, .handler = rebuildCommand},
    {.id = CMD_EXECUTE, .label = "Execute|F6", .mnemonic = 'E', .key = functionKey(6), .keyModes = EVERYWHERE | WHEN_ENABLED, .menuIcon = "forward&", .barIcon = "forward", .bubbleHelp = "Execute", .when = STARTS_DISABLED, .handler = executeCommand},
    {.id = CMD_ABORT, .label = "Abort Execution", .mnemonic = 'A', .menuIcon = "cancel&", .barIcon = "cancel", .bubbleHelp = "Abort Execution", .when = STARTS_DISABLED, .handler = abortCommand},
    {.id = CMD_NEXT_MESSAGE, .key = functionKey(4), .keyModes = EVERYWHERE, .handler = nextMessageCommand},
    {.id = CMD_PREVIOUS_MESSAGE, .key = shifted(functionKey(4)), .keyModes = EVERYWHERE, .handler = previousMessageCommand},
    {.id = CMD_WATCH, .handler = watchProgram},
};
// clang-format on

} // namespace

std::span<const Command> buildCommands() { return COMMANDS; }
