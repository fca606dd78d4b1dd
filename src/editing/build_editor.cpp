#include "editing/build_editor.h"

#include "editing/code_assist.h"
#include "editing/code_editor.h"
#include "editing/code_lists.h"
#include "editing/commands.h"
#include "editing/editor_window.h"
#include "editing/modes.h"
#include "editing/rename.h"
#include "menu-c.h"
#include "project/preferences.h"
#include "surface/hooks.h"
#include "surface/window_states.h"

#include <algorithm>

namespace {

// The head shows whole in a pane of the default width.
constexpr int HEAD_HEIGHT = 50, BLOCK_WIDTH = 150, SELECTOR_LEFT = 160, SELECTOR_WIDTH = 214, ICONS_LEFT = 378;
constexpr int ICON_SIZE = 22, ICON_TOP = 15, ICON_STEP = 29;
constexpr int LINES_WIDTH = 64;       // of what the list of blocks tells beside a name
constexpr int UNLIMITED = 2147483646; // characters

struct EditorIcon {
    const char* icon;
    const char* help;
    int command;
};
constexpr EditorIcon ICONS[] = {
    {"insertcode", "Insert ORBA Command", CMD_INSERT_COMMAND},
    {"insertwidg", "Insert Widget Name (Ctrl+W)", CMD_INSERT_NAME},
    {"indentin", "Increase Indent", CMD_INDENT},
    {"indentout", "Decrease Indent", CMD_UNINDENT},
    {"commentlines", "Comment Selected Lines", CMD_COMMENT},
    {"uncommentlines", "Uncomment Selected Lines", CMD_UNCOMMENT},
};

int makeTab(int box, const char* title) {
    return owCreatePanel(box, 0, 0, SELECTOR_WIDTH, 20, owTitle, title, owBorderType, ONOBOUNDARY, 0);
}

int makeTabList(int tab, const char* help, int command) {
    return owCreateComboBox(tab, 0, 0, SELECTOR_WIDTH, 276, ONONE, ODISPLAY, owVpos, OMIDDLE, owHpos, OCENTRE, owExpand,
                            1, owHelp, help, owCallback, command, 0);
}

void makeSelector(int head) {
    const int box = owCreateTabDialogueBox(head, SELECTOR_LEFT, 0, SELECTOR_WIDTH, HEAD_HEIGHT - 2, owVpos, OTOP,
                                           owCallback, CMD_SELECTOR_TABS, 0);
    editor.widgetTab = makeTab(box, "Widgets");
    editor.menuTab = makeTab(box, "Menu");
    editor.treeTab = makeTab(box, "Tree");
    editor.widgetList = makeTabList(editor.widgetTab, "Select Widget", CMD_WIDGET_LIST);
    editor.menuList = makeTabList(editor.menuTab, "Select Menu Entry", CMD_MENU_ENTRY_LIST);
    editor.treeList = makeTabList(editor.treeTab, "Select Treeview Entry", CMD_TREE_ENTRY_LIST);
    owSetWidgetStatus(editor.menuTab, OUNSELECTABLE);
    owSetWidgetStatus(editor.treeTab, OUNSELECTABLE);
    owSetWidgetStatus(editor.widgetTab, OCHECKED);
}

void makeIcons(int head) {
    const int panel =
        owCreatePanel(head, ICONS_LEFT, 0, 6 * ICON_STEP, HEAD_HEIGHT, owVpos, OTOP, owBorderType, ONOBOUNDARY, 0);
    int x = 0;
    for (const EditorIcon& row : ICONS) {
        const int icon = owCreateIcon(panel, x, ICON_TOP, ICON_SIZE, ICON_SIZE, row.icon, ODLLICON, 0, owVpos, OTOP,
                                      owType, OMOUSESENSITIVE, owHelp, row.help, owCallback, row.command, 0);
        if (!hooks.hasCommand(row.command)) owSetWidgetStatus(icon, OUNSELECTABLE);
        x += ICON_STEP;
    }
}

void makeTexts(int body, int width, int height) {
    editor.text =
        owCreateTextEntry(body, 0, HEAD_HEIGHT, width, height, "", UNLIMITED, OEDIT, owEntryType, ORICHEDIT, owWordWrap,
                          0, owScrollMode, OBOTHBARS, owVpos, OMIDDLE, owHpos, OCENTRE, owExpand, 1, owChangeCallback,
                          CMD_CODE_CHANGED, owCallback, CMD_CODE_TEXT, owSelectCallback, CMD_CODE_SELECT, 0);
    editor.hiddenText = owCreateTextEntry(body, 0, HEAD_HEIGHT, width, height, "", UNLIMITED, ODISPLAY, owVpos, OTOP,
                                          owWidgetStatus, OHIDDEN, 0);
}

void fillHooks() {
    hooks.commitEditor = commitEditor;
    hooks.bindCode = bindCode;
    hooks.showCallback = showCallback;
    hooks.showEntryCallback = showEntryCallback;
    hooks.enterTextMode = enterTextMode;
    hooks.leaveTextMode = leaveTextMode;
    hooks.nameAdded = nameAdded;
    hooks.nameRemoved = nameRemoved;
    hooks.nameChanged = nameChanged;
    hooks.namesCleared = clearNames;
    hooks.renameInCode = renameInCode;
}

} // namespace

void buildCodeEditor(int pane) {
    const WindowState& state = windowStates[WINDOW_CODE_EDITOR];
    editor = {};
    forgetAssist();
    editor.pane = pane;
    const int body = owCreatePanel(pane, 0, 0, state.width, state.height, owVpos, OMIDDLE, owHpos, OCENTRE, owExpand, 1,
                                   owBorderType, ONOBOUNDARY, 0);
    editor.body = body;
    editor.textTop = HEAD_HEIGHT;
    const int head = owCreatePanel(body, 0, 0, state.width, HEAD_HEIGHT, owVpos, OTOP, owHpos, OCENTRE, owExpand, 1,
                                   owBorderType, ONOBOUNDARY, 0);
    editor.blockList = owCreateComboBox(head, 5, 22, BLOCK_WIDTH, 276, ONONE, ODISPLAY, owVpos, OTOP, owHelp,
                                        "Select Code Block", owDescWidth, LINES_WIDTH, owCallback, CMD_CODE_BLOCK, 0);
    makeSelector(head);
    makeIcons(head);
    makeTexts(body, state.width, std::max(state.height - HEAD_HEIGHT, HEAD_HEIGHT));
    owShowCodeView(editor.text, preferences.selectedIndent, CMD_CODE_VIEW);
    refreshFont(false, 0);
    fillHooks();
}
