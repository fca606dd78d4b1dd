// Commands and events of the shell: their identifiers and their tables.
#pragma once

#include "surface/command.h"

#include <span>
#include <vector>

enum ShellCommandId : int {
    CMD_EXIT = -1, // the toolkit sends it when the master window is closed, too
    CMD_MASTER_WINDOW = 15000,
    CMD_ABOUT_OK = 15001,
    CMD_LOG_LINE = 15028,
    CMD_POPUP = 15133,
    CMD_COMPILE = 15141,
    CMD_GENERATE = 15143,
    CMD_NEW_PROJECT = 15145,
    CMD_OPEN_PROJECT = 15149,
    CMD_SAVE_PROJECT = 15151,
    CMD_SAVE_PROJECT_AS = 15152,
    CMD_SAVE_FORM = 15153,
    CMD_SAVE_FORM_AS = 15154,
    CMD_INSERT_FORM = 15155,
    CMD_COMPILE_AGAIN = 15156,
    CMD_EXECUTE = 15157,
    CMD_ABORT = 15158,
    CMD_REBUILD = 15159,
    CMD_ABOUT = 15220,
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
    CMD_VIEW_ICON_BAR = 15480,
    CMD_VIEW_TOOL_BOX = 15481,
    CMD_VIEW_HIERARCHY = 15482,
    CMD_VIEW_PROPERTIES = 15484,
    CMD_DEFAULT_POSITIONS = 15485,
    CMD_RAISE_WINDOWS = 15486,
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
    CMD_SHOW_ALL = 17100,
    CMD_WATCH = 19010,
    CMD_INPUT_MOVED = 19981,
    CMD_NEXT_MESSAGE = 19982,
    CMD_PREVIOUS_MESSAGE = 19983,
    CMD_LOG_PLACE = 19984, // Return or a double click on a line of the log
};

// The rows of each file, where its handlers stand.
std::span<const Command> buildCommands();
std::span<const Command> helpCommands();
std::span<const Command> inputCommands();
std::span<const Command> logCommands();
std::span<const Command> menuCommands();
std::span<const Command> projectCommands();
std::span<const Command> windowCommands();

std::vector<Command> shellCommands(); // the rows of the room
