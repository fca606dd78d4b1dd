#include "surface/commands.h"

#include "surface/clipboard.h"
#include "surface/dialogue_keys.h"
#include "surface/selection.h"
#include "surface/snap_dialogue.h"

namespace {

// clang-format off
constexpr Command COMMANDS[] = {
    // File
    {.id = CMD_NEW_FORM, .label = "Form|Ctrl+F", .mnemonic = 'F', .key = controlKey('F'), .menuIcon = "newform&", .barIcon = "newform", .bubbleHelp = "New Form", .handler = newFormCommand},
    // Edit
    {.id = CMD_UNDO, .label = "Undo Move/Resize Widget|Ctrl+Z", .mnemonic = 'd', .key = controlKey('Z'), .menuIcon = "undo&", .when = STARTS_DISABLED, .handler = undoCommand},
    {.id = CMD_REDO, .label = "Redo Move/Resize Widget|Ctrl+Y", .mnemonic = 'R', .key = controlKey('Y'), .menuIcon = "redo&", .when = STARTS_DISABLED, .handler = redoCommand},
    {.id = CMD_CUT, .label = "Cut Widget|Ctrl+X", .mnemonic = 't', .key = controlKey('X'), .menuIcon = "cut&", .barIcon = "cut", .bubbleHelp = "Cut Widget from Form to Paste buffer", .handler = cutCommand},
    {.id = CMD_COPY, .label = "Copy Widget|Ctrl+C", .mnemonic = 'C', .key = controlKey('C'), .menuIcon = "copy&", .barIcon = "copy", .bubbleHelp = "Copy Widget from Form to Paste buffer", .handler = copyCommand},
    {.id = CMD_DUPLICATE, .label = "Duplicate Widget|Ctrl+D", .mnemonic = 'L', .key = controlKey('D'), .menuIcon = "copy&", .handler = duplicateCommand},
    {.id = CMD_PASTE, .label = "Paste Widget|Ctrl+V", .mnemonic = 'P', .key = controlKey('V'), .keyModes = IN_DESIGN | WHEN_ENABLED, .menuIcon = "paste&", .barIcon = "paste", .bubbleHelp = "Paste Widget from Paste buffer to Form", .when = STARTS_DISABLED, .handler = pasteCommand},
    {.id = CMD_DELETE, .label = "Delete Widget|Del", .mnemonic = 'D', .key = OKEYDEL, .menuIcon = "deletewidg&", .handler = deleteCommand},
    {.id = CMD_UNADOPT, .label = "Unadopt Widget|Ctrl+U", .mnemonic = 'U', .key = controlKey('U'), .menuIcon = "unadopt&", .barIcon = "Unadopt", .bubbleHelp = "Unadopt Widget", .handler = unadoptCommand},
    // Arrange
    {.id = CMD_TAB_ORDER, .label = "Change Widget Tab Order...", .mnemonic = 'C'},
    {.id = CMD_ALIGN, .label = "Align Widgets", .mnemonic = 'A', .when = STARTS_DISABLED},
    // Project
    {.id = CMD_SNAP_DIALOGUE, .label = "Project Snap Grid...", .mnemonic = 'S', .when = WHEN_PIXELS, .handler = snapDialogueCommand},
    // Keys and windows
    {.id = CMD_DESIGN_KEY, .handler = designKeyCommand},
    {.id = CMD_GROUP_CLICKED, .handler = groupClickedCommand},
    {.id = CMD_DIALOGUE_TAB, .handler = dialogueTabCommand},
    // Forms, properties and code
    {.id = CMD_MOVED, .handler = movedCommand},
    {.id = CMD_DOUBLE_CLICK, .handler = doubleClickCommand},
    {.id = CMD_TEXT_EDITED, .handler = textEditedCommand},
    {.id = CMD_TEXT_SELECTED, .handler = entrySelectedCommand},
    {.id = CMD_VALUE_SELECTED, .handler = entrySelectedCommand},
    {.id = CMD_VALUE_EDITED, .handler = valueEditedCommand},
    {.id = CMD_TOGGLED, .handler = toggledCommand},
    {.id = CMD_HIERARCHY_ROW, .handler = hierarchyRowCommand},
    {.id = CMD_SNAP_ON, .handler = snapOnCommand},
    {.id = CMD_SNAP_OFF, .handler = snapOffCommand},
    {.id = CMD_SNAP_OK, .handler = snapOkCommand},
    {.id = CMD_SNAP_CANCEL, .handler = snapCancelCommand},
    {.id = CMD_SNAP_WINDOW, .handler = snapWindowEvent},
};
// clang-format on

} // namespace

std::span<const Command> surfaceCommands() { return COMMANDS; }
