#include "shell/window_control.h"

#include "editing/build_editor.h"
#include "editing/code_editor.h"
#include "editing/modes.h"
#include "menu-c.h"
#include "project/host.h"
#include "properties/sheet.h"
#include "settings/recent_projects.h"
#include "settings/window_states.h"
#include "shell/command_states.h"
#include "shell/command_table.h"
#include "shell/commands.h"
#include "shell/compiler_log.h"
#include "shell/environment.h"
#include "shell/input.h"
#include "shell/keys.h"
#include "shell/menus.h"
#include "surface/event.h"
#include "surface/hierarchy.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/selection.h"
#include "surface/state.h"
#include "surface/window_states.h"

#include <iterator>

namespace {

struct ControlWindow {
    int viewCommand;
    int event; // callback of the window itself
    WindowRow row;
    bool bar;
    const char* title;
    const char* helpArea;
    int dockingSide;        // of a pane, when it is created
    void (*fill)(int pane); // builds what a pane holds
};

void fillProperties(int pane) {
    const WindowState& state = windowStates[WINDOW_PROPERTIES];
    const int panel = owCreatePanel(pane, 0, 0, state.width, state.height, owType, ONOBOUNDARY, owHpos, OCENTRE, owVpos,
                                    OMIDDLE, owExpand, 1, 0);
    buildPropertySheet(pane, panel);
}

// In the order in which they are built.
constexpr ControlWindow CONTROL_WINDOWS[] = {
    {CMD_VIEW_ICON_BAR, CMD_BAR_ICON_BAR, WINDOW_ICON_BAR, true, "Icon Bar", "Icon Bar", POSITION_TOP, nullptr},
    {CMD_VIEW_TOOL_BOX, CMD_BAR_TOOL_BOX, WINDOW_TOOL_BOX, true, "Tool Box", "Tool Box", POSITION_TOP, nullptr},
    {CMD_VIEW_PROPERTIES, CMD_PANE_PROPERTIES, WINDOW_PROPERTIES, false, "Properties", "Properties Box", POSITION_RIGHT,
     fillProperties},
    {CMD_VIEW_HIERARCHY, CMD_PANE_HIERARCHY, WINDOW_HIERARCHY, false, "Object Hierarchy", "Object Hierarchy",
     POSITION_LEFT, createHierarchy},
    {CMD_VIEW_COMPILER_LOG, CMD_PANE_COMPILER_LOG, WINDOW_COMPILER_LOG, false, "Compiler Log", "Compiler Log",
     POSITION_BOTTOM, buildCompilerLog},
    {CMD_VIEW_CODE_EDITOR, CMD_PANE_CODE_EDITOR, WINDOW_CODE_EDITOR, false, "Code Editor", "Code Editor", POSITION_LEFT,
     buildCodeEditor},
};

const ControlWindow& windowOfView(int viewCommand) {
    for (const ControlWindow& window : CONTROL_WINDOWS)
        if (window.viewCommand == viewCommand) return window;
    return CONTROL_WINDOWS[0];
}

int handleOf(const ControlWindow& window) { return windowStates[window.row].handle; }
bool isShown(const ControlWindow& window) { return commandStatus(window.viewCommand) == STATUS_PRESSED; }

} // namespace

namespace {

// Of the master window's row, as the toolkit tells them.
constexpr int STATE_MAXIMIZED = OMAXIMIZE;
constexpr int STATE_MINIMIZED = OMINIMIZE;

// ---- Building -------------------------------------------------------------------------------------------------

int statusBar = 0;
constexpr int STATUS_BAR_PANES = 4;
const int STATUS_BAR_SIZES[STATUS_BAR_PANES] = {300, 400, 500, -1}; // right edges; the last takes the rest

} // namespace

void buildMasterWindow() {
    WindowState& state = windowStates[WINDOW_MASTER];
    state.handle = owCreateMDIMasterWindow(state.x, state.y, state.width, state.height, OALL,
                                           environment.mainTitle.c_str(), owVpos, OTOP, owIconFile, "Light",
                                           owIconFormat, ODLLICON, owCallback, CMD_MASTER_WINDOW, owInitState,
                                           state.state == STATE_MAXIMIZED ? OMAXIMIZE : ONORMAL, 0);
    buildMenuBar(state.handle);
    windowStates[WINDOW_ICON_BAR].handle = buildIconBar(state.handle);
    windowStates[WINDOW_TOOL_BOX].handle = buildToolBox(state.handle);
    statusBar = owCreateStatusBar(state.handle, owPanes, STATUS_BAR_PANES, owSizes, STATUS_BAR_SIZES, 0);
    hooks.statusText = [](int pane, const std::string& text) { owSetStatusBarText(statusBar, pane, text.c_str()); };
    hooks.hasCommand = [](int command) {
        const Command* row = findCommand(command);
        return row && row->handler;
    };
    hooks.commandStatus = setCommandStatus;
    hooks.toolStatus = setToolStatus;
    hooks.inputMode = setInputMode;
    hooks.formMade = bindKeysOn;
    hooks.stepsChanged = showStepLabels;
    hooks.keysChanged = bindKeys;
    hooks.parkKeys = parkKeys;
    hooks.giveInputBack = giveInputBack;
    hooks.showLog = [](const std::vector<std::string>& lines, void (*chosen)(int)) {
        showControlWindow(CMD_VIEW_COMPILER_LOG);
        showLogLines(lines, chosen);
    };
    hooks.showCodeEditor = [] { showControlWindow(CMD_VIEW_CODE_EDITOR); };
    hooks.drawControlWindows = [] {
        owDrawWidget(windowStates[WINDOW_HIERARCHY].handle);
        owDrawWidget(windowStates[WINDOW_COMPILER_LOG].handle);
    };
}

namespace {

void placeWindow(const ControlWindow& window) {
    const WindowState& state = windowStates[window.row];
    if (window.bar)
        owSetToolbarPos(state.handle, state.x, state.y, state.width, state.state);
    else
        owSetPanePos(state.handle, state.x, state.y, state.width, state.height, state.state);
}

} // namespace

void buildControlWindows() {
    for (const ControlWindow& window : CONTROL_WINDOWS) {
        WindowState& state = windowStates[window.row];
        if (!window.bar) {
            state.handle = owCreateDockingPane(MASTER_WINDOW, window.dockingSide, 0, 0, state.width, state.height,
                                               owTitleFlag, OQUIT, owTitle, window.title, owCallback, window.event);
            window.fill(state.handle);
        }
        placeWindow(window);
        setCommandStatus(window.viewCommand, state.state != POSITION_HIDDEN ? STATUS_PRESSED : STATUS_ENABLED);
    }
    buildWidgetPopup(MASTER_WINDOW);
}

namespace {

void showAgain(int handle) {
    owSetWidgetStatus(handle, OHIDDEN);
    owSetWidgetStatus(handle, OSELECTABLE);
}

} // namespace

void raiseFloatingWindows() {
    for (const ControlWindow& window : CONTROL_WINDOWS)
        if (windowStates[window.row].state == POSITION_FLOATING) showAgain(handleOf(window));
}

// ---- Showing and hiding ---------------------------------------------------------------------------------------

namespace {

constexpr int KIND_REMOVABLE = 2; // a window of its own: taken from the screen as a whole

void hideWindow(const ControlWindow& window) {
    const int handle = handleOf(window);
    int kind = 0;
    if (!window.bar) owEnqWidgetProp(handle, owKind, &kind, 0);
    if (kind == KIND_REMOVABLE)
        owRemoveWindow(handle);
    else
        owSetWidgetStatus(handle, OHIDDEN);
}

void toggleView() {
    const ControlWindow& window = windowOfView(currentCommand());
    if (!isShown(window)) {
        setCommandStatus(window.viewCommand, STATUS_PRESSED);
        owSetWidgetStatus(handleOf(window), OSELECTABLE);
    } else {
        setCommandStatus(window.viewCommand, STATUS_ENABLED);
        hideWindow(window);
    }
}

} // namespace

void showControlWindow(int viewCommand) {
    const ControlWindow& window = windowOfView(viewCommand);
    if (!isShown(window)) {
        setCommandStatus(viewCommand, STATUS_PRESSED);
        owSetWidgetStatus(handleOf(window), OSELECTABLE);
    }
}

namespace {

void controlWindowEvent() {
    for (const ControlWindow& window : CONTROL_WINDOWS) {
        if (window.event != currentCommand()) continue;
        if (action.status == OCLOSED)
            setCommandStatus(window.viewCommand, STATUS_ENABLED);
        else
            design.helpContext = window.helpArea;
    }
}

} // namespace

void markFormsShown() {
    design.formsShown = 0;
    for (const WidgetNode* form = project.forms; form; form = form->next)
        if (!form->formHidden) design.formsShown = 1;
    setCommandHelp(CMD_SHOW_ALL, design.formsShown ? "Hide all Forms" : "Show all Forms");
}

namespace {

void hideForms() {
    for (WidgetNode* form = project.forms; form; form = form->next) {
        owRemoveWindow(form->handle);
        form->formHidden = 1;
    }
    enterTextMode();
    markFormsShown();
}

void showForms() {
    commitEditor();
    for (WidgetNode* form = project.forms; form; form = form->next) {
        owDrawWindow(form->handle, 1);
        form->formHidden = 0;
    }
    if (project.currentWidget) selectWidget(project.currentWidget);
    markFormsShown();
    activateWidget(project.currentWidget);
}

void showAllCommand() {
    if (design.formsShown)
        hideForms();
    else
        showForms();
}

void raiseWindowsCommand() {
    for (const ControlWindow& window : CONTROL_WINDOWS) {
        if (!isShown(window)) continue;
        if (window.bar) {
            showAgain(handleOf(window));
        } else if (window.row == WINDOW_PROPERTIES || window.row == WINDOW_HIERARCHY) {
            owDrawWidget(handleOf(window));
        }
    }
}

void placeMasterWindow(const WindowState& row) {
    OWIDGET info = {};
    owEnqWidgetInfo(MASTER_WINDOW, &info);
    info.state = ONORMAL; // a maximised window takes no place
    owSetWidgetInfo(MASTER_WINDOW, &info);
    owSetWidgetProp(MASTER_WINDOW, owXpos, row.x, owYpos, row.y, owWidth, row.width, owHeight, row.height, 0);
    info.state = row.state;
    info.xpos = row.x, info.ypos = row.y, info.width = row.width, info.height = row.height;
    owSetWidgetInfo(MASTER_WINDOW, &info);
}

void defaultPositionsCommand() {
    deleteWindowStates();
    int screenWidth = 0, screenHeight = 0;
    owEnqScreenSize(&screenWidth, &screenHeight);
    loadWindowStates(screenWidth, screenHeight);
    placeMasterWindow(windowStates[WINDOW_MASTER]);
    owDrawWindow(MASTER_WINDOW, 1);
    for (const ControlWindow& window : CONTROL_WINDOWS) placeWindow(window);
    raiseWindowsCommand();
}

} // namespace

// ---- The master window ----------------------------------------------------------------------------------------

namespace {

// The row keeps the place that the window has, or comes back to, when it is neither maximised nor minimised.
void storeMasterPlace(WindowState& state) {
    OWIDGET info = {};
    owEnqWidgetInfo(MASTER_WINDOW, &info);
    if (info.state == STATE_MINIMIZED || info.width < 1 || info.height < 1) return;
    state.state = info.state;
    if (info.state == STATE_MAXIMIZED) return;
    owEnqWidgetProp(MASTER_WINDOW, owXpos, &state.x, owYpos, &state.y, 0);
    state.width = info.width;
    state.height = info.height;
}

void masterWindowEvent() {
    static bool sheetPending = false;
    WindowState& state = windowStates[WINDOW_MASTER];
    if (action.status == OMOVED || action.status == ORESIZED) storeMasterPlace(state);
    if (action.status == ORESIZED || action.status == OMINIMIZED) sheetPending = true;
    if (action.status != OMINIMIZED && sheetPending) {
        sheetPending = false;
        showProperties(project.currentWidget);
    }
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_VIEW_ICON_BAR, .label = "Icon Bar", .mnemonic = 'I', .handler = toggleView},
    {.id = CMD_VIEW_TOOL_BOX, .label = "Tool Box", .mnemonic = 'T', .handler = toggleView},
    {.id = CMD_VIEW_HIERARCHY, .label = "Hierarchy", .mnemonic = 'H', .handler = toggleView},
    {.id = CMD_VIEW_PROPERTIES, .label = "Properties", .mnemonic = 'P', .handler = toggleView},
    {.id = CMD_VIEW_CODE_EDITOR, .label = "Code Editor", .mnemonic = 'C', .handler = toggleView},
    {.id = CMD_VIEW_COMPILER_LOG, .label = "Compiler Log", .mnemonic = 'L', .handler = toggleView},
    {.id = CMD_SHOW_ALL, .label = "View/Hide All|F2", .mnemonic = 'V', .key = functionKey(2), .keyModes = EVERYWHERE, .barIcon = "formshow", .bubbleHelp = "Hide All Forms", .handler = showAllCommand},
    {.id = CMD_RAISE_WINDOWS, .label = "Bring control windows to top|F11", .mnemonic = 'B', .key = functionKey(11), .keyModes = EVERYWHERE, .handler = raiseWindowsCommand},
    {.id = CMD_DEFAULT_POSITIONS, .label = "Default window positions/sizes|F12", .mnemonic = 'D', .key = functionKey(12), .keyModes = EVERYWHERE, .handler = defaultPositionsCommand},
    {.id = CMD_MASTER_WINDOW, .handler = masterWindowEvent},
    {.id = CMD_PANE_PROPERTIES, .handler = controlWindowEvent},
    {.id = CMD_PANE_HIERARCHY, .handler = controlWindowEvent},
    {.id = CMD_PANE_CODE_EDITOR, .handler = controlWindowEvent},
    {.id = CMD_PANE_COMPILER_LOG, .handler = controlWindowEvent},
    {.id = CMD_BAR_ICON_BAR, .handler = controlWindowEvent},
    {.id = CMD_BAR_TOOL_BOX, .handler = controlWindowEvent},
};
// clang-format on

} // namespace

std::span<const Command> windowCommands() { return COMMANDS; }
