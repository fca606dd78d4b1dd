#include "compile/execute.h"
#include "editing/code_editor.h"
#include "editing/code_files.h"
#include "editing/code_lists.h"
#include "editing/name_chooser.h"
#include "editing/source_viewer.h"
#include "editing/text_commands.h"
#include "project/records.h"
#include "project/tools.h"
#include "properties/sheet.h"
#include "shell/build_commands.h"
#include "shell/commands.h"
#include "shell/help.h"
#include "shell/input.h"
#include "shell/menus.h"
#include "shell/project_commands.h"
#include "shell/window_control.h"
#include "surface/clipboard.h"
#include "surface/dialogue_keys.h"
#include "surface/hierarchy.h"
#include "surface/selection.h"
#include "surface/snap_dialogue.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>

// clang-format off
static constexpr Command COMMANDS[] = {
    // File
    {.id = CMD_NEW_PROJECT, .label = "Project...|Ctrl+N", .mnemonic = 'P', .key = controlKey('N'), .menuIcon = "filenew&", .barIcon = "filenew", .bubbleHelp = "New Project", .handler = newProjectCommand},
    {.id = CMD_NEW_FORM, .label = "Form|Ctrl+F", .mnemonic = 'F', .key = controlKey('F'), .menuIcon = "newform&", .barIcon = "newform", .bubbleHelp = "New Form", .handler = newFormCommand},
    {.id = CMD_OPEN_PROJECT, .label = "Open Project...", .mnemonic = 'O', .menuIcon = "fileopen&", .barIcon = "fileopen", .bubbleHelp = "Open Project", .handler = openProjectCommand},
    {.id = CMD_INSERT_FORM, .label = "Insert Form...", .mnemonic = 'I', .handler = insertFormCommand},
    {.id = CMD_INSERT_FILE, .label = "Insert File...", .mnemonic = 'N', .menuIcon = "insertcode&", .handler = insertFileCommand},
    {.id = CMD_SAVE_FORM, .label = "Save Form...", .mnemonic = 'a', .handler = saveFormCommand},
    {.id = CMD_SAVE_FORM_AS, .label = "Save Form As...", .mnemonic = 'o', .handler = saveFormAsCommand},
    {.id = CMD_SAVE_PROJECT, .label = "Save Project|Ctrl+S", .mnemonic = 'S', .key = controlKey('S'), .keyModes = IN_DESIGN | IN_FIELDS, .menuIcon = "save&", .barIcon = "save", .bubbleHelp = "Save Project", .handler = saveProjectCommand},
    {.id = CMD_SAVE_PROJECT_AS, .label = "Save Project As...", .mnemonic = 'A', .handler = saveProjectAsCommand},
    {.id = CMD_PRINT_CODE, .label = "Print...", .mnemonic = 'P', .when = WHEN_TEXT_MODE, .handler = printCodeCommand},
    {.id = CMD_PRINT_ERRORS, .label = "Print Errors...", .mnemonic = 'E', .when = STARTS_DISABLED, .handler = printErrorsCommand},
    {.id = CMD_EXIT, .label = "Exit|Alt+F4", .mnemonic = 'x', .handler = exitCommand},
    {.id = CMD_RECENT_FIRST, .handler = openRecentCommand},
    {.id = CMD_RECENT_FIRST + 1, .handler = openRecentCommand},
    {.id = CMD_RECENT_FIRST + 2, .handler = openRecentCommand},
    {.id = CMD_RECENT_FIRST + 3, .handler = openRecentCommand},
    {.id = CMD_RECENT_FIRST + 4, .handler = openRecentCommand},
    // Edit
    {.id = CMD_UNDO, .label = "Undo Move/Resize Widget|Ctrl+Z", .mnemonic = 'd', .key = controlKey('Z'), .menuIcon = "undo&", .when = STARTS_DISABLED, .handler = undoCommand},
    {.id = CMD_REDO, .label = "Redo Move/Resize Widget|Ctrl+Y", .mnemonic = 'R', .key = controlKey('Y'), .menuIcon = "redo&", .when = STARTS_DISABLED, .handler = redoCommand},
    {.id = CMD_CUT, .label = "Cut Widget|Ctrl+X", .mnemonic = 't', .key = controlKey('X'), .menuIcon = "cut&", .barIcon = "cut", .bubbleHelp = "Cut Widget from Form to Paste buffer", .handler = cutCommand},
    {.id = CMD_COPY, .label = "Copy Widget|Ctrl+C", .mnemonic = 'C', .key = controlKey('C'), .menuIcon = "copy&", .barIcon = "copy", .bubbleHelp = "Copy Widget from Form to Paste buffer", .handler = copyCommand},
    {.id = CMD_DUPLICATE, .label = "Duplicate Widget|Ctrl+D", .mnemonic = 'L', .key = controlKey('D'), .menuIcon = "copy&", .handler = duplicateCommand},
    {.id = CMD_PASTE, .label = "Paste Widget|Ctrl+V", .mnemonic = 'P', .key = controlKey('V'), .keyModes = IN_DESIGN | WHEN_ENABLED, .menuIcon = "paste&", .barIcon = "paste", .bubbleHelp = "Paste Widget from Paste buffer to Form", .when = STARTS_DISABLED, .handler = pasteCommand},
    {.id = CMD_DELETE, .label = "Delete Widget|Del", .mnemonic = 'D', .key = OKEYDEL, .menuIcon = "deletewidg&", .handler = deleteCommand},
    {.id = CMD_DELETE_MENU_BAR, .label = "Delete Menu Bar", .mnemonic = 'M', .menuIcon = "deletemenu&"},
    {.id = CMD_FIND, .label = "Find|Ctrl+F", .mnemonic = 'F', .key = controlKey('F'), .keyModes = IN_TEXT, .when = WHEN_TEXT_MODE},
    {.id = CMD_FIND_NEXT, .label = "Find Next|F3", .mnemonic = 'N', .key = functionKey(3), .keyModes = IN_TEXT | WHEN_ENABLED, .when = WHEN_TEXT_MODE | STARTS_DISABLED},
    {.id = CMD_REPLACE, .label = "Replace", .mnemonic = 'R', .when = WHEN_TEXT_MODE},
    {.id = CMD_UNADOPT, .label = "Unadopt Widget|Ctrl+U", .mnemonic = 'U', .key = controlKey('U'), .menuIcon = "unadopt&", .barIcon = "Unadopt", .bubbleHelp = "Unadopt Widget", .handler = unadoptCommand},
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
    {.id = CMD_VIEW_ICON_BAR, .label = "Icon Bar", .mnemonic = 'I', .handler = viewBarCommand},
    {.id = CMD_VIEW_TOOL_BOX, .label = "Tool Box", .mnemonic = 'T', .handler = viewBarCommand},
    {.id = CMD_VIEW_HIERARCHY, .label = "Hierarchy", .mnemonic = 'H', .handler = viewPaneCommand},
    {.id = CMD_VIEW_PROPERTIES, .label = "Properties", .mnemonic = 'P', .handler = viewPaneCommand},
    {.id = CMD_VIEW_CODE_EDITOR, .label = "Code Editor", .mnemonic = 'C', .handler = viewPaneCommand},
    {.id = CMD_VIEW_COMPILER_LOG, .label = "Compiler Log", .mnemonic = 'L', .handler = viewPaneCommand},
    {.id = CMD_SHOW_ALL, .label = "View/Hide All|F2", .mnemonic = 'V', .key = functionKey(2), .keyModes = EVERYWHERE, .barIcon = "formshow", .bubbleHelp = "Hide All Forms", .handler = showAllCommand},
    {.id = CMD_RAISE_WINDOWS, .label = "Bring control windows to top|F11", .mnemonic = 'B', .key = functionKey(11), .keyModes = EVERYWHERE, .handler = raiseWindowsCommand},
    {.id = CMD_DEFAULT_POSITIONS, .label = "Default window positions/sizes|F12", .mnemonic = 'D', .key = functionKey(12), .keyModes = EVERYWHERE, .handler = defaultPositionsCommand},
    {.id = CMD_SOURCE_VIEWER, .label = "Source Code", .mnemonic = 'S', .when = OPENS_WINDOW, .handler = sourceViewerCommand},
    // Arrange
    {.id = CMD_TAB_ORDER, .label = "Change Widget Tab Order...", .mnemonic = 'C'},
    {.id = CMD_ALIGN, .label = "Align Widgets", .mnemonic = 'A', .when = STARTS_DISABLED},
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
    {.id = CMD_SNAP_DIALOGUE, .label = "Project Snap Grid...", .mnemonic = 'S', .when = WHEN_PIXELS, .handler = snapDialogueCommand},
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
    {.id = CMD_DESIGN_KEY, .handler = designKeyCommand},
    {.id = CMD_GROUP_CLICKED, .handler = groupClickedCommand},
    {.id = CMD_HELP, .key = OKEYF1, .keyModes = IN_DESIGN | IN_FIELDS, .handler = contextHelpCommand},
    {.id = CMD_CODE_HELP, .key = OKEYF1, .keyModes = IN_TEXT, .handler = codeHelpCommand},
    {.id = CMD_INSERT_NAME, .key = controlKey('W'), .keyModes = IN_TEXT, .handler = insertNameCommand},
    {.id = CMD_COMMIT_CODE, .key = controlKey('S'), .keyModes = IN_TEXT, .handler = commitCommand},
    {.id = CMD_TEXT_TAB, .key = OKEYTAB, .keyModes = IN_TEXT, .handler = textTabCommand},
    {.id = CMD_DIALOGUE_TAB, .handler = dialogueTabCommand},
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
    // Forms, properties and code
    {.id = CMD_MOVED, .handler = movedCommand},
    {.id = CMD_DOUBLE_CLICK, .handler = doubleClickCommand},
    {.id = CMD_TEXT_EDITED, .handler = textEditedCommand},
    {.id = CMD_TEXT_SELECTED, .handler = entrySelectedCommand},
    {.id = CMD_VALUE_SELECTED, .handler = entrySelectedCommand},
    {.id = CMD_VALUE_EDITED, .handler = valueEditedCommand},
    {.id = CMD_TOGGLED, .handler = toggledCommand},
    {.id = CMD_HIERARCHY_ROW, .handler = hierarchyRowCommand},
    {.id = CMD_PROPERTY_SELECTED, .handler = propertySelectedCommand},
    {.id = CMD_PROPERTY_BUTTON, .handler = propertyButtonCommand},
    {.id = CMD_PROPERTY_CHANGED, .handler = propertyChangedCommand},
    {.id = CMD_FONT_FACE, .handler = fontFaceCommand},
    {.id = CMD_POINT_SIZE, .handler = pointSizeCommand},
    {.id = CMD_SNAP_ON, .handler = snapOnCommand},
    {.id = CMD_SNAP_OFF, .handler = snapOffCommand},
    {.id = CMD_SNAP_OK, .handler = snapOkCommand},
    {.id = CMD_SNAP_CANCEL, .handler = snapCancelCommand},
    {.id = CMD_SNAP_WINDOW, .handler = snapWindowEvent},
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

static constexpr bool identifiersAreUnique() {
    for (const Command* one = std::begin(COMMANDS); one != std::end(COMMANDS); ++one)
        for (const Command* other = one + 1; other != std::end(COMMANDS); ++other)
            if (one->id == other->id) return false;
    return true;
}
static_assert(identifiersAreUnique());

std::span<const Command> commandTable() { return COMMANDS; }

const Command* findCommand(int id) {
    static const std::unordered_map<int, const Command*> index = [] {
        std::unordered_map<int, const Command*> rows;
        for (const Command& command : COMMANDS) rows[command.id] = &command;
        return rows;
    }();
    const auto found = index.find(id);
    return found == index.end() ? nullptr : found->second;
}

static int running = 0;

int currentCommand() { return running; }

bool runCommand(int id) {
    running = id;
    if (const Command* command = findCommand(id)) {
        if (command->handler) command->handler();
        return command->handler != nullptr;
    }
    return nameCommand(id) || viewerCommand(id);
}
