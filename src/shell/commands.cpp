#include "shell/commands.h"

#include "compile/execute.h"
#include "editing/commands.h"
#include "project/tools.h"
#include "settings/recent_projects.h"
#include "shell/build_commands.h"
#include "shell/compiler_log.h"
#include "shell/help.h"
#include "shell/input.h"
#include "shell/menus.h"
#include "shell/project_commands.h"
#include "shell/window_control.h"
#include "surface/commands.h"

namespace {

// clang-format off
constexpr Command COMMANDS[] = {
    // File
    {.id = CMD_NEW_PROJECT, .label = "Project...|Ctrl+N", .mnemonic = 'P', .key = controlKey('N'), .menuIcon = "filenew&", .barIcon = "filenew", .bubbleHelp = "New Project", .handler = newProjectCommand},
    {.id = CMD_OPEN_PROJECT, .label = "Open Project...", .mnemonic = 'O', .menuIcon = "fileopen&", .barIcon = "fileopen", .bubbleHelp = "Open Project", .handler = openProjectCommand},
    {.id = CMD_INSERT_FORM, .label = "Insert Form...", .mnemonic = 'I', .handler = insertFormCommand},
    {.id = CMD_SAVE_FORM, .label = "Save Form...", .mnemonic = 'a', .handler = saveFormCommand},
    {.id = CMD_SAVE_FORM_AS, .label = "Save Form As...", .mnemonic = 'o', .handler = saveFormAsCommand},
    {.id = CMD_SAVE_PROJECT, .label = "Save Project|Ctrl+S", .mnemonic = 'S', .key = controlKey('S'), .keyModes = IN_DESIGN | IN_FIELDS, .menuIcon = "save&", .barIcon = "save", .bubbleHelp = "Save Project", .handler = saveProjectCommand},
    {.id = CMD_SAVE_PROJECT_AS, .label = "Save Project As...", .mnemonic = 'A', .handler = saveProjectAsCommand},
    {.id = CMD_PRINT_ERRORS, .label = "Print Errors...", .mnemonic = 'E', .when = STARTS_DISABLED, .handler = printErrorsCommand},
    {.id = CMD_EXIT, .label = "Exit|Alt+F4", .mnemonic = 'x', .handler = exitCommand},
    {.id = CMD_RECENT_FIRST, .handler = openRecentCommand},
    {.id = CMD_RECENT_FIRST + 1, .handler = openRecentCommand},
    {.id = CMD_RECENT_FIRST + 2, .handler = openRecentCommand},
    {.id = CMD_RECENT_FIRST + 3, .handler = openRecentCommand},
    {.id = CMD_RECENT_FIRST + 4, .handler = openRecentCommand},
    // Edit
    {.id = CMD_DELETE_MENU_BAR, .label = "Delete Menu Bar", .mnemonic = 'M', .menuIcon = "deletemenu&"},
    // View
    {.id = CMD_VIEW_ICON_BAR, .label = "Icon Bar", .mnemonic = 'I', .handler = viewBarCommand},
    {.id = CMD_VIEW_TOOL_BOX, .label = "Tool Box", .mnemonic = 'T', .handler = viewBarCommand},
    {.id = CMD_VIEW_HIERARCHY, .label = "Hierarchy", .mnemonic = 'H', .handler = viewPaneCommand},
    {.id = CMD_VIEW_PROPERTIES, .label = "Properties", .mnemonic = 'P', .handler = viewPaneCommand},
    {.id = CMD_VIEW_CODE_EDITOR, .label = "Code Editor", .mnemonic = 'C', .handler = viewPaneCommand},
    {.id = CMD_VIEW_COMPILER_LOG, .label = "Compiler Log", .mnemonic = 'L', .handler = viewPaneCommand},
    {.id = CMD_SHOW_ALL, .label = "View/Hide All|F2", .mnemonic = 'V', .key = functionKey(2), .keyModes = EVERYWHERE, .barIcon = "formshow", .bubbleHelp = "Hide All Forms", .handler = showAllCommand},
    {.id = CMD_RAISE_WINDOWS, .label = "Bring control windows to top|F11", .mnemonic = 'B', .key = functionKey(11), .keyModes = EVERYWHERE, .handler = raiseWindowsCommand},
    {.id = CMD_DEFAULT_POSITIONS, .label = "Default window positions/sizes|F12", .mnemonic = 'D', .key = functionKey(12), .keyModes = EVERYWHERE, .handler = defaultPositionsCommand},
    // Tools
    {.id = CMD_MENU_EDITOR, .label = "Menu entries...", .mnemonic = 'M', .menuIcon = "Menu&", .barIcon = "menu", .bubbleHelp = "Create/View Menu Bar"},
    {.id = CMD_STATUS_BAR_EDITOR, .label = "Status bar...", .mnemonic = 'S', .menuIcon = "Status&", .barIcon = "Status", .bubbleHelp = "Create/View Status Bar", .when = WHEN_WINDOWS},
    // Project
    {.id = CMD_GENERATE, .label = "Generate Code", .mnemonic = 'G', .menuIcon = "Generate&", .barIcon = "Generate", .bubbleHelp = "Generate Code", .handler = generateCommand},
    {.id = CMD_COMPILE, .label = "Compile, Link & Execute|F5", .mnemonic = 'C', .key = functionKey(5), .keyModes = EVERYWHERE | WHEN_ENABLED, .menuIcon = "Compile&", .greyIcon = "Compile#", .barIcon = "Compile", .bubbleHelp = "Compile, Link & Execute", .when = STARTS_DISABLED, .handler = compileAndRunCommand},
    {.id = CMD_COMPILE_AGAIN, .handler = compileAndRunCommand},
    {.id = CMD_REBUILD, .label = "Rebuild all", .mnemonic = 'R', .when = STARTS_DISABLED, .handler = rebuildCommand},
    {.id = CMD_EXECUTE, .label = "Execute|F6", .mnemonic = 'E', .key = functionKey(6), .keyModes = EVERYWHERE | WHEN_ENABLED, .menuIcon = "forward&", .barIcon = "forward", .bubbleHelp = "Execute", .when = STARTS_DISABLED, .handler = executeCommand},
    {.id = CMD_ABORT, .label = "Abort Execution", .mnemonic = 'A', .menuIcon = "cancel&", .barIcon = "cancel", .bubbleHelp = "Abort Execution", .when = STARTS_DISABLED, .handler = abortCommand},
    {.id = CMD_PROJECT_SETTINGS, .label = "Project Settings...", .mnemonic = 'S'},
    {.id = CMD_CHANGE_PROJECT_TYPE, .label = "Change Project Type...", .mnemonic = 'T'},
    // Options
    {.id = CMD_DEFAULTS_RESTORE, .label = "Restore System", .mnemonic = 'R'},
    {.id = CMD_DEFAULTS_LOAD, .label = "Load User", .mnemonic = 'L'},
    {.id = CMD_DEFAULTS_CHANGE, .label = "Change Current...", .mnemonic = 'C'},
    {.id = CMD_PREFERENCES, .label = "Preferences...", .mnemonic = 'P'},
    {.id = CMD_SYNTAX_ATTRIBUTES, .label = "Edit Syntax Attributes...", .mnemonic = 'E', .when = WHEN_SYNTAX},
    // Help
    {.id = CMD_HELP_DESIGNER, .label = "ORBAWIDG Designer Help Topics", .mnemonic = 'S', .when = OPENS_WINDOW, .handler = helpTopicsCommand},
    {.id = CMD_HELP_TOOLKIT, .label = "ORBAWIDG Help Topics", .mnemonic = 'M', .when = OPENS_WINDOW, .handler = helpTopicsCommand},
    {.id = CMD_HELP_BASE, .label = "ORBA Help Topics", .mnemonic = 'G', .when = OPENS_WINDOW, .handler = helpTopicsCommand},
    {.id = CMD_HELP_PLOT, .label = "ORBAPLOT Help Topics", .mnemonic = 'R', .when = OPENS_WINDOW, .handler = helpTopicsCommand},
    {.id = CMD_HELP_MESH, .label = "ORBAMESH Help Topics", .mnemonic = 'S', .when = OPENS_WINDOW, .handler = helpTopicsCommand},
    {.id = CMD_ABOUT, .label = "About ORBAWIDG Designer", .mnemonic = 'A', .handler = aboutCommand},
    {.id = CMD_ABOUT_OK, .handler = aboutOkCommand},
    // Tool Box
    {.id = CMD_TOOL_SELECTOR, .barIcon = "Pointer", .bubbleHelp = "Selector", .tool = TOOL_SELECTOR, .handler = toolCommand},
    {.id = CMD_TOOL_TAB_BOX, .barIcon = "tabdia", .bubbleHelp = "Tabbed Dialogue Box", .tool = TOOL_TAB_BOX, .when = WHEN_WINDOWS, .handler = toolCommand},
    {.id = CMD_TOOL_PANEL, .barIcon = "Panel", .bubbleHelp = "Panel", .tool = TOOL_PANEL, .handler = toolCommand},
    {.id = CMD_TOOL_TOOL_BAR, .barIcon = "toolbar", .bubbleHelp = "Tool Bar", .tool = TOOL_TOOL_BAR, .when = WHEN_WINDOWS, .handler = toolCommand},
    {.id = CMD_TOOL_PANE, .barIcon = "pane", .bubbleHelp = "Docking Pane", .tool = TOOL_PANE, .when = WHEN_WINDOWS, .handler = toolCommand},
    {.id = CMD_TOOL_LIST_BOX, .barIcon = "Listbox", .bubbleHelp = "List Box", .tool = TOOL_LIST_BOX, .handler = toolCommand},
    {.id = CMD_TOOL_COMBO_BOX, .barIcon = "Combo", .bubbleHelp = "Combo Box", .tool = TOOL_COMBO_BOX, .handler = toolCommand},
    {.id = CMD_TOOL_PUSH_BUTTON, .barIcon = "Button", .bubbleHelp = "Button", .tool = TOOL_PUSH_BUTTON, .handler = toolCommand},
    {.id = CMD_TOOL_ICON, .barIcon = "icon", .bubbleHelp = "Icon", .tool = TOOL_ICON, .handler = toolCommand},
    {.id = CMD_TOOL_TOOL_SEPARATOR, .barIcon = "toolsep", .bubbleHelp = "Toolbar Separator", .tool = TOOL_TOOL_SEPARATOR, .when = WHEN_WINDOWS, .handler = toolCommand},
    {.id = CMD_TOOL_CHECK_BOX, .barIcon = "check", .bubbleHelp = "Check Box", .tool = TOOL_CHECK_BOX, .handler = toolCommand},
    {.id = CMD_TOOL_RADIO_BUTTON, .barIcon = "radiobut", .bubbleHelp = "Radio Button", .tool = TOOL_RADIO_BUTTON, .handler = toolCommand},
    {.id = CMD_TOOL_TEXT_LABEL, .barIcon = "stext", .bubbleHelp = "Text Label", .tool = TOOL_TEXT_LABEL, .handler = toolCommand},
    {.id = CMD_TOOL_TEXT_ENTRY, .barIcon = "text", .bubbleHelp = "Text Entry", .tool = TOOL_TEXT_ENTRY, .handler = toolCommand},
    {.id = CMD_TOOL_TEXT_ARRAY, .barIcon = "textcel", .bubbleHelp = "Text Array", .tool = TOOL_TEXT_ARRAY, .when = WHEN_WINDOWS, .handler = toolCommand},
    {.id = CMD_TOOL_VALUE_LABEL, .barIcon = "sval", .bubbleHelp = "Value Label", .tool = TOOL_VALUE_LABEL, .handler = toolCommand},
    {.id = CMD_TOOL_VALUE_ENTRY, .barIcon = "val", .bubbleHelp = "Value Entry", .tool = TOOL_VALUE_ENTRY, .handler = toolCommand},
    {.id = CMD_TOOL_VALUE_ARRAY, .barIcon = "valuecel", .bubbleHelp = "Value Array", .tool = TOOL_VALUE_ARRAY, .when = WHEN_WINDOWS, .handler = toolCommand},
    {.id = CMD_TOOL_TABLE_BOX, .barIcon = "table", .bubbleHelp = "Table Box", .tool = TOOL_TABLE_BOX, .when = WHEN_WINDOWS, .handler = toolCommand},
    {.id = CMD_TOOL_GAUGE, .barIcon = "gauge", .bubbleHelp = "Gauge", .tool = TOOL_GAUGE, .when = WHEN_WINDOWS, .handler = toolCommand},
    {.id = CMD_TOOL_PROGRESS_BAR, .barIcon = "progress", .bubbleHelp = "Progress Bar", .tool = TOOL_PROGRESS_BAR, .when = WHEN_WINDOWS, .handler = toolCommand},
    {.id = CMD_TOOL_TREE_VIEW, .barIcon = "treeview", .bubbleHelp = "Treeview", .tool = TOOL_TREE_VIEW, .when = WHEN_WINDOWS, .handler = toolCommand},
    {.id = CMD_TOOL_GRAPHICS_FRAME, .barIcon = "graph", .bubbleHelp = "Graphics Frame", .tool = TOOL_GRAPHICS_FRAME, .handler = toolCommand},
    {.id = CMD_TOOL_SLIDER, .barIcon = "sliderh", .bubbleHelp = "Slider", .tool = TOOL_SLIDER, .handler = toolCommand},
    {.id = CMD_TOOL_TTY_ENTRY, .barIcon = "tty", .bubbleHelp = "TTY Entry", .tool = TOOL_TTY_ENTRY, .when = WHEN_WINDOWS, .handler = toolCommand},
    // Keys and windows
    {.id = CMD_POPUP, .key = OKEYRIGHTBUTTON, .handler = popupCommand},
    {.id = CMD_HELP, .key = OKEYF1, .keyModes = IN_DESIGN | IN_FIELDS, .handler = contextHelpCommand},
    {.id = CMD_MASTER_WINDOW, .handler = masterWindowEvent},
    {.id = CMD_PANE_PROPERTIES, .handler = controlWindowEvent},
    {.id = CMD_PANE_HIERARCHY, .handler = controlWindowEvent},
    {.id = CMD_PANE_CODE_EDITOR, .handler = controlWindowEvent},
    {.id = CMD_PANE_COMPILER_LOG, .handler = controlWindowEvent},
    {.id = CMD_BAR_ICON_BAR, .handler = controlWindowEvent},
    {.id = CMD_BAR_TOOL_BOX, .handler = controlWindowEvent},
    {.id = CMD_INPUT_MOVED, .handler = inputMovedCommand},
    {.id = CMD_NEXT_MESSAGE, .key = functionKey(4), .keyModes = EVERYWHERE, .handler = nextMessageCommand},
    {.id = CMD_PREVIOUS_MESSAGE, .key = shifted(functionKey(4)), .keyModes = EVERYWHERE, .handler = previousMessageCommand},
    {.id = CMD_LOG_PLACE, .handler = logPlaceCommand},
    {.id = CMD_LOG_LINE, .handler = logLineCommand},
    {.id = CMD_AUTO_BACKUP, .handler = autoBackupCommand},
    {.id = CMD_WATCH, .handler = watchProgram},
};
// clang-format on

} // namespace

std::span<const Command> shellCommands() { return COMMANDS; }
