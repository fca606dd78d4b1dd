#include "shell/menus.h"

#include "menu-c.h"
#include "project/tools.h"
#include "shell/command_states.h"
#include "shell/command_table.h"
#include "shell/commands.h"
#include "surface/selection.h"

#include <iterator>
#include <string>
#include <vector>

namespace {

enum MenuRowKind { ROW_MENU, ROW_END, ROW_COMMAND, ROW_RULE };

struct MenuRow {
    MenuRowKind kind;
    int command = 0;             // of a command row
    const char* label = nullptr; // of a pull-down
    char mnemonic = 0;
};

constexpr MenuRow menu(const char* label, char mnemonic) { return {ROW_MENU, 0, label, mnemonic}; }
constexpr MenuRow menu(int command) { return {ROW_MENU, command}; } // one that is not always enabled
constexpr MenuRow item(int command) { return {ROW_COMMAND, command}; }
constexpr MenuRow RULE = {ROW_RULE};
constexpr MenuRow END = {ROW_END};

// clang-format off
constexpr MenuRow MENU_BAR_ROWS[] = {
    menu("File", 'F'),
        menu("New", 'N'),
            item(CMD_NEW_PROJECT), item(CMD_NEW_FORM),
        END,
        RULE,
        item(CMD_OPEN_PROJECT), item(CMD_INSERT_FORM), item(CMD_INSERT_FILE),
        RULE,
        item(CMD_SAVE_FORM), item(CMD_SAVE_FORM_AS), item(CMD_SAVE_PROJECT), item(CMD_SAVE_PROJECT_AS),
        RULE,
        item(CMD_PRINT_CODE), item(CMD_PRINT_ERRORS),
        RULE,
        item(CMD_EXIT), // the recent projects follow
    END,
    menu("Edit", 'E'),
        item(CMD_UNDO), item(CMD_REDO),
        RULE,
        item(CMD_CUT), item(CMD_COPY), item(CMD_DUPLICATE), item(CMD_PASTE), item(CMD_DELETE), item(CMD_DELETE_MENU_BAR),
        RULE,
        item(CMD_FIND), item(CMD_FIND_NEXT), item(CMD_REPLACE), item(CMD_GO_TO_LINE),
        RULE,
        item(CMD_UNADOPT),
        RULE,
        item(CMD_CLEAR_CODE), item(CMD_CLEAR_ALL_CODE),
        menu(CMD_TEXT_MENU),
            item(CMD_UPPERCASE), item(CMD_LOWERCASE),
        END,
    END,
    menu("View", 'V'),
        item(CMD_VIEW_ICON_BAR), item(CMD_VIEW_TOOL_BOX), item(CMD_VIEW_HIERARCHY), item(CMD_VIEW_PROPERTIES),
        item(CMD_VIEW_CODE_EDITOR), item(CMD_VIEW_COMPILER_LOG),
        RULE,
        item(CMD_SHOW_ALL), item(CMD_RAISE_WINDOWS), item(CMD_DEFAULT_POSITIONS),
        RULE,
        item(CMD_SOURCE_VIEWER),
    END,
    menu("Arrange", 'A'),
        item(CMD_TAB_ORDER), item(CMD_ALIGN),
    END,
    menu("Tools", 'T'),
        item(CMD_MENU_EDITOR), item(CMD_STATUS_BAR_EDITOR),
    END,
    menu("Project", 'P'),
        item(CMD_GENERATE), item(CMD_COMPILE), item(CMD_REBUILD), item(CMD_EXECUTE), item(CMD_ABORT),
        RULE,
        item(CMD_PROJECT_SETTINGS), item(CMD_CHANGE_PROJECT_TYPE), item(CMD_SNAP_DIALOGUE),
    END,
    menu("Options", 'O'),
        menu("Widget Defaults", 'D'),
            item(CMD_DEFAULTS_RESTORE), item(CMD_DEFAULTS_LOAD), item(CMD_DEFAULTS_CHANGE),
        END,
        item(CMD_PREFERENCES), item(CMD_SYNTAX_ATTRIBUTES),
    END,
    menu("Help", 'H'),
        item(CMD_HELP_DESIGNER), item(CMD_HELP_TOOLKIT), item(CMD_HELP_BASE), item(CMD_HELP_PLOT), item(CMD_HELP_MESH),
        RULE,
        item(CMD_ABOUT),
    END,
};

constexpr int BAR_RULE = 0; // a separator
constexpr int ICON_BAR[] = {
    CMD_NEW_PROJECT, CMD_OPEN_PROJECT, CMD_SAVE_PROJECT, BAR_RULE,
    CMD_CUT, CMD_COPY, CMD_PASTE, BAR_RULE,
    CMD_UNADOPT, BAR_RULE,
    CMD_MENU_EDITOR, CMD_STATUS_BAR_EDITOR, CMD_SHOW_ALL, BAR_RULE,
    CMD_GENERATE, CMD_COMPILE, CMD_EXECUTE, CMD_ABORT,
};
constexpr int TOOL_BOX[] = {
    CMD_TOOL_SELECTOR, BAR_RULE,
    // windows and containers
    CMD_NEW_FORM, CMD_TOOL_TAB_BOX, CMD_TOOL_PANEL, CMD_TOOL_TOOL_BAR, CMD_TOOL_PANE, BAR_RULE,
    // lists
    CMD_TOOL_LIST_BOX, CMD_TOOL_COMBO_BOX, BAR_RULE,
    // buttons, texts and values
    CMD_TOOL_PUSH_BUTTON, CMD_TOOL_ICON, CMD_TOOL_TOOL_SEPARATOR, CMD_TOOL_CHECK_BOX, CMD_TOOL_RADIO_BUTTON,
    CMD_TOOL_TEXT_LABEL, CMD_TOOL_TEXT_ENTRY, CMD_TOOL_TEXT_ARRAY,
    CMD_TOOL_VALUE_LABEL, CMD_TOOL_VALUE_ENTRY, CMD_TOOL_VALUE_ARRAY, CMD_TOOL_TABLE_BOX, BAR_RULE,
    // pictures
    CMD_TOOL_GAUGE, CMD_TOOL_PROGRESS_BAR, CMD_TOOL_TREE_VIEW, CMD_TOOL_GRAPHICS_FRAME, BAR_RULE,
    CMD_TOOL_SLIDER, CMD_TOOL_TTY_ENTRY,
};
// clang-format on
constexpr int POPUP[] = {CMD_CUT, CMD_COPY, CMD_PASTE, CMD_DELETE};

constexpr int ICON_SIZE = 23;
constexpr int SEPARATOR_WIDTH = 5;

int filePullDown = 0;
int popup = 0;

} // namespace

int fileMenu() { return filePullDown; }

namespace {

int addEntry(int parent, int id, bool withIcons) {
    const Command& command = *findCommand(id);
    if (!withIcons || !command.menuIcon)
        return owCreateMenuEntry(parent, command.label, owAccel, command.mnemonic, owCallback, id, 0);
    const int icon = owGetIconResource(command.menuIcon);
    if (!command.greyIcon)
        return owCreateMenuEntry(parent, command.label, owAccel, command.mnemonic, owCallback, id, owUncheckIcon, icon,
                                 0);
    return owCreateMenuEntry(parent, command.label, owAccel, command.mnemonic, owCallback, id, owUncheckIcon, icon,
                             owGreyIcon, owGetIconResource(command.greyIcon), 0);
}

int addPullDown(int parent, const MenuRow& row) {
    const int entry = row.command ? addEntry(parent, row.command, true)
                                  : owCreateMenuEntry(parent, row.label, owAccel, row.mnemonic, 0);
    if (row.command) addCommandWidget(row.command, CommandWidget::MenuEntry, entry);
    return owCreatePullDownMenu(entry);
}

} // namespace

void buildMenuBar(int masterWindow) {
    filePullDown = 0;
    std::vector<int> parents = {owCreateMenuBar(masterWindow)};
    for (const MenuRow& row : MENU_BAR_ROWS) {
        switch (row.kind) {
        case ROW_MENU:
            parents.push_back(addPullDown(parents.back(), row));
            if (!filePullDown) filePullDown = parents.back();
            break;
        case ROW_END: parents.pop_back(); break;
        case ROW_RULE: owCreateMenuSeparator(parents.back()); break;
        case ROW_COMMAND:
            addCommandWidget(row.command, CommandWidget::MenuEntry, addEntry(parents.back(), row.command, true));
            break;
        }
    }
}

namespace {

template <std::size_t N> int buildBar(int masterWindow, const char* title, int callback, const int (&ids)[N]) {
    const int bar = owCreateToolBar(masterWindow, OTOP, ICON_SIZE, owTitle, title, owCallback, callback);
    for (const int id : ids) {
        if (id == BAR_RULE) {
            owCreateToolBarSeparator(bar, owSeparatorType, SEPARATOR_WIDTH);
            continue;
        }
        const Command& command = *findCommand(id);
        const int button = owCreateToolBarButton(bar, OICONBUTTON, command.barIcon, owIconType, OMOUSESENSITIVE, owHelp,
                                                 command.bubbleHelp, owCallback, id);
        addCommandWidget(id, CommandWidget::Button, button);
    }
    return bar;
}

} // namespace

int buildIconBar(int masterWindow) { return buildBar(masterWindow, "Icon Bar", CMD_BAR_ICON_BAR, ICON_BAR); }
int buildToolBox(int masterWindow) { return buildBar(masterWindow, "Tool Box", CMD_BAR_TOOL_BOX, TOOL_BOX); }

int buildWidgetPopup(int masterWindow) {
    popup = owCreatePopupMenu(masterWindow, 0, 0, ONONE, "", 0);
    for (const int id : POPUP) addCommandWidget(id, CommandWidget::PopupEntry, addEntry(popup, id, false));
    return popup;
}

namespace {

void toolCommand() {
    selectTool(findCommand(currentCommand())->tool);
    owAdoptChild(0, 0, 0);
}

void popupCommand() {
    selectClicked(); // the entries act on the selection
    owDrawWindow(popup, 1);
}

// clang-format off
constexpr Command COMMANDS[] = {
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
    {.id = CMD_POPUP, .key = OKEYRIGHTBUTTON, .handler = popupCommand},
};
// clang-format on

} // namespace

std::span<const Command> menuCommands() { return COMMANDS; }
