// Commands and events of the code editor, and of the windows about code: their identifiers and their tables.
#pragma once

#include "surface/command.h"

#include <span>
#include <vector>

enum EditingCommandId : int {
    CMD_INSERT_COMMAND = 15020,
    CMD_COMMIT_CODE = 15021,
    CMD_CODE_CHANGED = 15022,
    CMD_CODE_BLOCK = 15023,
    CMD_CLEAR_CODE = 15024,
    CMD_CLEAR_ALL_CODE = 15025,
    CMD_INSERT_FILE = 15027,
    CMD_PRINT_CODE = 15029,
    CMD_INSERT_NAME = 15031,
    CMD_CODE_HELP = 15032,
    CMD_CODE_TEXT = 15034,
    CMD_NAMES_BUTTONS = 15040,
    CMD_TEXT_REDO = 15041,
    CMD_NAMES_COMBO_BOXES = 15042,
    CMD_TEXT_COPY = 15043,
    CMD_TEXT_CUT = 15044,
    CMD_TEXT_DELETE = 15045,
    CMD_TEXT_TAB = 15046,
    CMD_NAMES_TEXTS = 15047,
    CMD_NAMES_VALUES = 15048,
    CMD_FIND = 15049,
    CMD_NAMES_FORMS = 15050,
    CMD_NAMES_DYNAMIC_FORMS = 15051,
    CMD_NAMES_GRAPHICS_FRAMES = 15052,
    CMD_NAMES_ICONS = 15053,
    CMD_NAMES_LIST_BOXES = 15054,
    CMD_HELP_TOOLKIT = 15056,
    CMD_NAMES_MENU_ENTRIES = 15057,
    CMD_NAMES_PANELS = 15058,
    CMD_TEXT_PASTE = 15059,
    CMD_NAMES_RADIO_BOXES = 15060,
    CMD_REPLACE = 15061,
    CMD_NAMES_SLIDERS = 15062,
    CMD_NAMES_STATUS_BARS = 15063,
    CMD_NAMES_TEXT_ARRAYS = 15064,
    CMD_NAMES_TOGGLES = 15065,
    CMD_NAMES_TOOL_BARS = 15066,
    CMD_TEXT_UNDO = 15067,
    CMD_NAMES_VALUE_ARRAYS = 15068,
    CMD_NAMES_TAB_BOXES = 15069,
    CMD_NAMES_GAUGES = 15070,
    CMD_NAMES_PROGRESS_BARS = 15071,
    CMD_NAMES_TTY_ENTRIES = 15072,
    CMD_NAMES_TREE_VIEWS = 15074,
    CMD_NAMES_TREE_ENTRIES = 15075,
    CMD_NAMES_TABLE_BOXES = 15076,
    CMD_UPPERCASE = 15077,
    CMD_LOWERCASE = 15078,
    CMD_CODE_SELECT = 15084,
    CMD_HELP_BASE = 15085,
    CMD_HELP_PLOT = 15086,
    CMD_HELP_MESH = 15087,
    CMD_NAMES_PANES = 15107,
    CMD_SOURCE_VIEWER = 15139,
    CMD_FIND_NEXT = 15167,
    CMD_NAME_CANCEL = 15185,
    CMD_NAME_OK = 15186,
    CMD_WIDGET_LIST = 15212,
    CMD_MENU_ENTRY_LIST = 15215,
    CMD_TREE_ENTRY_LIST = 15216,
    CMD_SELECTOR_TABS = 15217,
    CMD_HELP_DESIGNER = 15225,
    CMD_NAME_WINDOW = 15505,
    CMD_INDENT = 15555,
    CMD_UNINDENT = 15556,
    CMD_COMMENT = 15557,
    CMD_UNCOMMENT = 15558,
    CMD_VIEWER_EXIT = 15801,
    CMD_VIEWER_PRINT = 15802,
    CMD_VIEWER_COPY = 15803,
    CMD_VIEWER_SELECT_ALL = 15804,
    CMD_VIEWER_FIND = 15805,
    CMD_VIEWER_FIND_NEXT = 15806,
    CMD_VIEWER_WINDOW = 15807,
    CMD_VIEWER_CARET = 15808,
    CMD_VIEWER_GOTO = 15820,
    CMD_ALL_NAMES = 18079,
    CMD_GO_TO_LINE = 19968,
    CMD_CODE_VIEW = 19970, // Ctrl with the wheel over the code, or with Space
    CMD_TEXT_MENU = 19980, // the pull-down entry itself; it sends nothing
};

// The rows of each file, where its handlers stand.
std::span<const Command> codeEditorCommands();
std::span<const Command> codeFileCommands();
std::span<const Command> codeListCommands();
std::span<const Command> nameChooserCommands();
std::span<const Command> nameFamilyCommands();
std::span<const Command> sourceViewerCommands();
std::span<const Command> textCommands();

std::vector<Command> editingCommands(); // the rows of the room
