// Every command of the designer: what it is called, where it shows, which key sends it, when it can be had and what it
// runs. The menus, the Icon Bar, the Tool Box, the popup menu, the key map and the dispatch are made from this table.
#pragma once

#include "menu-c.h"
#include "surface/commands.h"

#include <span>
#include <string>

// Identifiers of the commands and events that the shell itself handles; the others are in surface/commands.h.
enum ShellCommandId : int {
    CMD_EXIT = -1, // the toolkit sends it when the master window is closed, too
    CMD_MASTER_WINDOW = 15000,
    CMD_ABOUT_OK = 15001,
    CMD_LOG_LINE = 15028,
    CMD_SYNTAX_ATTRIBUTES = 15039,
    CMD_CHANGE_PROJECT_TYPE = 15089,
    CMD_DEFAULTS_LOAD = 15102,
    CMD_DEFAULTS_RESTORE = 15104,
    CMD_COMPILE = 15141,
    CMD_PROJECT_SETTINGS = 15142,
    CMD_GENERATE = 15143,
    CMD_OPEN_PROJECT = 15149,
    CMD_SAVE_PROJECT_AS = 15152,
    CMD_SAVE_FORM = 15153,
    CMD_SAVE_FORM_AS = 15154,
    CMD_INSERT_FORM = 15155,
    CMD_COMPILE_AGAIN = 15156,
    CMD_EXECUTE = 15157,
    CMD_ABORT = 15158,
    CMD_REBUILD = 15159,
    CMD_ABOUT = 15220,
    CMD_DEFAULTS_CHANGE = 15223,
    CMD_PREFERENCES = 15228,
    CMD_DELETE_MENU_BAR = 15247,
    CMD_TOOL_PUSH_BUTTON = 15440,
    CMD_TOOL_CHECK_BOX = 15441,
    CMD_TOOL_COMBO_BOX = 15442,
    CMD_TOOL_GRAPHICS_FRAME = 15443,
    CMD_TOOL_ICON = 15444,
    CMD_TOOL_LIST_BOX = 15445,
    CMD_TOOL_PANEL = 15446,
    CMD_TOOL_SELECTOR = 15448,
    CMD_TOOL_RADIO_BUTTON = 15450,
    CMD_TOOL_SLIDER = 15451,
    CMD_TOOL_TEXT_LABEL = 15452,
    CMD_TOOL_VALUE_LABEL = 15453,
    CMD_TOOL_TAB_BOX = 15454,
    CMD_TOOL_TEXT_ENTRY = 15455,
    CMD_TOOL_TEXT_ARRAY = 15456,
    CMD_TOOL_TOOL_BAR = 15457,
    CMD_TOOL_VALUE_ENTRY = 15458,
    CMD_TOOL_VALUE_ARRAY = 15459,
    CMD_TOOL_GAUGE = 15460,
    CMD_TOOL_PROGRESS_BAR = 15461,
    CMD_TOOL_TTY_ENTRY = 15462,
    CMD_TOOL_TREE_VIEW = 15463,
    CMD_TOOL_TABLE_BOX = 15464,
    CMD_TOOL_TOOL_SEPARATOR = 15465,
    CMD_TOOL_PANE = 15466,
    CMD_MENU_EDITOR = 15472,
    CMD_STATUS_BAR_EDITOR = 15473,
    CMD_TAB_ORDER = 15475,
    CMD_VIEW_ICON_BAR = 15480,
    CMD_VIEW_TOOL_BOX = 15481,
    CMD_VIEW_HIERARCHY = 15482,
    CMD_VIEW_PROPERTIES = 15484,
    CMD_PANE_PROPERTIES = 15487,
    CMD_PANE_HIERARCHY = 15488,
    CMD_BAR_TOOL_BOX = 15491,
    CMD_BAR_ICON_BAR = 15492,
    CMD_VIEW_CODE_EDITOR = 15493,
    CMD_VIEW_COMPILER_LOG = 15494,
    CMD_PANE_CODE_EDITOR = 15495,
    CMD_PANE_COMPILER_LOG = 15496,
    CMD_AUTO_BACKUP = 15712,
    CMD_PRINT_ERRORS = 15809,
    CMD_WATCH = 19010,
    CMD_TEXT_MENU = 19980, // the pull-down entry itself; it sends nothing
    CMD_INPUT_MOVED = 19981,
    CMD_NEXT_MESSAGE = 19982,
    CMD_PREVIOUS_MESSAGE = 19983,
    CMD_LOG_PLACE = 19984, // Return or a double click on a line of the log
};

// Key codes beside those of the toolkit.
constexpr int controlKey(char letter) { return letter - 'A' + 1; }
constexpr int functionKey(int number) { return OKEYF1 + number - 1; }
constexpr int shifted(int key) { return key + 1000; }

// What has to hold for a command to be enabled, beside having a handler.
enum CommandCondition : unsigned {
    WHEN_ALWAYS = 0,
    WHEN_TEXT_MODE = 1,   // the code editor has the input
    WHEN_WINDOWS = 2,     // a project of platform 'w'
    WHEN_PIXELS = 4,      // a project in pixel mode
    WHEN_SYNTAX = 8,      // syntax colouring is on
    STARTS_DISABLED = 16, // until someone enables it
    OPENS_WINDOW = 32,    // no condition: another window has the input when it has run
};

// Where the key of a command works: while a form, the hierarchy or a bar has the focus, the code editor's text, or
// anything else but a dialogue, such as a cell or a list, which keeps all other keys.
enum KeyMode : unsigned {
    IN_DESIGN = 1,
    IN_TEXT = 2,
    IN_FIELDS = 4,
    EVERYWHERE = IN_DESIGN | IN_TEXT | IN_FIELDS,
    WHEN_ENABLED = 8,
};

struct Command {
    int id = 0;
    const char* label = nullptr; // in menus; behind a bar the key as the menu shows it
    char mnemonic = 0;
    int key = 0; // KeyCode, 0 for none
    unsigned keyModes = IN_DESIGN;
    const char* menuIcon = nullptr;
    const char* greyIcon = nullptr;
    const char* barIcon = nullptr;
    const char* bubbleHelp = nullptr;
    int tool = 0; // tool code of a Tool Box button
    unsigned when = WHEN_ALWAYS;
    void (*handler)() = nullptr; // null: the command is not there yet, and stays disabled
};

std::span<const Command> commandTable();
const Command* findCommand(int id); // null for none

// Runs the handler of an identifier. False when no command has it, as with every widget on a form.
bool runCommand(int id);
int currentCommand(); // the identifier that is being run
