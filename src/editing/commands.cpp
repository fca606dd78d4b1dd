#include "editing/commands.h"

#include "editing/code_editor.h"
#include "editing/code_files.h"
#include "editing/code_lists.h"
#include "editing/name_chooser.h"
#include "editing/source_viewer.h"
#include "editing/text_commands.h"

namespace {

// clang-format off
constexpr Command COMMANDS[] = {
    // File
    {.id = CMD_INSERT_FILE, .label = "Insert File...", .mnemonic = 'N', .menuIcon = "insertcode&", .handler = insertFileCommand},
    {.id = CMD_PRINT_CODE, .label = "Print...", .mnemonic = 'P', .when = WHEN_TEXT_MODE, .handler = printCodeCommand},
    // Edit
    {.id = CMD_FIND, .label = "Find|Ctrl+F", .mnemonic = 'F', .key = controlKey('F'), .keyModes = IN_TEXT, .when = WHEN_TEXT_MODE},
    {.id = CMD_FIND_NEXT, .label = "Find Next|F3", .mnemonic = 'N', .key = functionKey(3), .keyModes = IN_TEXT | WHEN_ENABLED, .when = WHEN_TEXT_MODE | STARTS_DISABLED},
    {.id = CMD_REPLACE, .label = "Replace", .mnemonic = 'R', .when = WHEN_TEXT_MODE},
    {.id = CMD_CLEAR_CODE, .label = "Clear code", .mnemonic = 'c', .menuIcon = "delete&", .when = WHEN_TEXT_MODE, .handler = clearCodeCommand},
    {.id = CMD_CLEAR_ALL_CODE, .label = "Clear all code", .mnemonic = 'a', .menuIcon = "recycle&", .when = WHEN_TEXT_MODE, .handler = clearAllCodeCommand},
    {.id = CMD_TEXT_MENU, .label = "Text", .mnemonic = 'T', .when = WHEN_TEXT_MODE, .handler = [] {}},
    {.id = CMD_UPPERCASE, .label = "Uppercase", .mnemonic = 'U', .when = WHEN_TEXT_MODE, .handler = uppercaseCommand},
    {.id = CMD_LOWERCASE, .label = "Lowercase", .mnemonic = 'L', .when = WHEN_TEXT_MODE, .handler = lowercaseCommand},
    // The same entries while the code editor has the input
    {.id = CMD_TEXT_UNDO, .label = "Undo Text Edit              |Ctrl+Z", .mnemonic = 'd', .key = controlKey('Z'), .keyModes = IN_TEXT, .when = STARTS_DISABLED, .handler = textUndoCommand},
    {.id = CMD_TEXT_REDO, .label = "Redo Text Edit|Ctrl+Y", .mnemonic = 'R', .key = controlKey('Y'), .keyModes = IN_TEXT, .when = STARTS_DISABLED, .handler = textRedoCommand},
    {.id = CMD_TEXT_CUT, .label = "Cut Text|Ctrl+X", .mnemonic = 't', .key = controlKey('X'), .keyModes = IN_TEXT, .bubbleHelp = "Cut Text", .handler = textCutCommand},
    {.id = CMD_TEXT_COPY, .label = "Copy Text|Ctrl+C", .mnemonic = 'C', .key = controlKey('C'), .keyModes = IN_TEXT, .bubbleHelp = "Copy Text", .handler = textCopyCommand},
    {.id = CMD_TEXT_PASTE, .label = "Paste Text|Ctrl+V", .mnemonic = 'P', .key = controlKey('V'), .keyModes = IN_TEXT, .bubbleHelp = "Paste Text", .handler = textPasteCommand},
    {.id = CMD_TEXT_DELETE, .label = "Delete Text|DEL", .mnemonic = 'D', .key = OKEYDEL, .keyModes = IN_TEXT, .handler = textDeleteCommand},
    // View
    {.id = CMD_SOURCE_VIEWER, .label = "Source Code", .mnemonic = 'S', .when = OPENS_WINDOW, .handler = sourceViewerCommand},
    // Keys and windows
    {.id = CMD_CODE_HELP, .key = OKEYF1, .keyModes = IN_TEXT, .handler = codeHelpCommand},
    {.id = CMD_INSERT_NAME, .key = controlKey('W'), .keyModes = IN_TEXT, .handler = insertNameCommand},
    {.id = CMD_COMMIT_CODE, .key = controlKey('S'), .keyModes = IN_TEXT, .handler = commitCommand},
    {.id = CMD_TEXT_TAB, .key = OKEYTAB, .keyModes = IN_TEXT, .handler = textTabCommand},
    // Forms, properties and code
    {.id = CMD_CODE_BLOCK, .handler = blockChosenCommand},
    {.id = CMD_WIDGET_LIST, .handler = widgetChosenCommand},
    {.id = CMD_SELECTOR_TABS, .handler = selectorTabCommand},
    {.id = CMD_MENU_ENTRY_LIST, .handler = menuEntryChosenCommand},
    {.id = CMD_TREE_ENTRY_LIST, .handler = treeEntryChosenCommand},
    {.id = CMD_CODE_CHANGED, .handler = codeChangedCommand},
    {.id = CMD_CODE_SELECT, .handler = caretMovedCommand},
    {.id = CMD_INDENT, .handler = indentCommand},
    {.id = CMD_UNINDENT, .key = OKEYSHIFTTAB, .keyModes = IN_TEXT, .handler = unindentCommand},
    {.id = CMD_COMMENT, .handler = commentCommand},
    {.id = CMD_UNCOMMENT, .handler = uncommentCommand},
};
// clang-format on

} // namespace

std::span<const Command> editingCommands() { return COMMANDS; }
