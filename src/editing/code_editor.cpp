// Building the code editor, and binding its text to a block or slot.
#include "editing/code_editor.h"

#include "editing/editor_window.h"
#include "editing/modes.h"
#include "editing/rename.h"
#include "editing/syntax.h"
#include "editing/text_commands.h"
#include "editing/text_view.h"
#include "menu-c.h"
#include "project/code_stores.h"
#include "project/host.h"
#include "project/preferences.h"
#include "project/tree.h"
#include "surface/commands.h"
#include "surface/hooks.h"
#include "surface/selection.h"
#include "surface/state.h"
#include "surface/window_states.h"

#include <algorithm>
#include <string>

EditorWindow editor;

namespace {

// The head shows whole in a pane of the default width.
constexpr int HEAD_HEIGHT = 50, BLOCK_WIDTH = 150, SELECTOR_LEFT = 160, SELECTOR_WIDTH = 214, ICONS_LEFT = 378;
constexpr int ICON_SIZE = 22, ICON_TOP = 15, ICON_STEP = 29;
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
    hooks.enterTextMode = enterTextMode;
    hooks.leaveTextMode = leaveTextMode;
    hooks.nameAdded = nameAdded;
    hooks.nameRemoved = nameRemoved;
    hooks.nameChanged = nameChanged;
    hooks.namesCleared = clearNames;
    hooks.renameInCode = renameInCode;
}

std::string chosenRow(int list) {
    char row[NAME_LIMIT + 1] = "";
    owEnqListEntry(list, 0, row, sizeof row);
    return row;
}

void addRow(int list, const char* text) { owSetListEntry(list, OADD, owString, text, 0); }

void addSlotRows(const WidgetNode& widget) {
    const auto slots = offeredSlots(widget);
    if (slots.empty()) return;
    addRow(editor.blockList, SLOT_SEPARATOR_ROW);
    for (const WidgetSlot slot : slots) addRow(editor.blockList, slotTable[slot].name);
}

void setTab(int tab, bool enabled) { owSetWidgetStatus(tab, enabled ? OSELECTABLE : OUNSELECTABLE); }

// The tabs that make sense for a widget; the list of widgets is in front.
void showTabs(const WidgetNode& widget) {
    const WidgetNode* form = formOf(&widget, project.forms);
    setTab(editor.menuTab, form && form->entries);
    setTab(editor.treeTab, widget.type == TYPE_TREE_VIEW);
    owSetWidgetStatus(editor.widgetTab, OCHECKED);
}

void storePosition() {
    const TextRange range = selectionOf(editor.text);
    codeEditing.caretStart[codeEditing.listPosition] = range.start;
    codeEditing.caretEnd[codeEditing.listPosition] = range.end;
}

int positionOf(const std::string& name) { return isSlotName(name) ? SLOT_LIST_POSITION : blockIndexOf(name) + 1; }

} // namespace

void selectInList(int list, const char* name) { owSetListEntry(list, OSELECT, owString, name, owEntry, -1, 0); }

int codeText() { return editor.text; }

void buildCodeEditor(int pane) {
    const WindowState& state = windowStates[WINDOW_CODE_EDITOR];
    editor = {};
    editor.pane = pane;
    const int body = owCreatePanel(pane, 0, 0, state.width, state.height, owVpos, OMIDDLE, owHpos, OCENTRE, owExpand, 1,
                                   owBorderType, ONOBOUNDARY, 0);
    const int head = owCreatePanel(body, 0, 0, state.width, HEAD_HEIGHT, owVpos, OTOP, owHpos, OCENTRE, owExpand, 1,
                                   owBorderType, ONOBOUNDARY, 0);
    editor.blockList = owCreateComboBox(head, 5, 22, BLOCK_WIDTH, 276, ONONE, ODISPLAY, owVpos, OTOP, owHelp,
                                        "Select Code Block", owCallback, CMD_CODE_BLOCK, 0);
    makeSelector(head);
    makeIcons(head);
    makeTexts(body, state.width, std::max(state.height - HEAD_HEIGHT, HEAD_HEIGHT));
    refreshFont(false, 0);
    fillHooks();
}

void refreshBlockList() {
    owSetListEntry(editor.blockList, OCLEAR, 0);
    for (const CodeBlockRow& block : codeBlockTable) addRow(editor.blockList, block.name);
    refreshBlockCopies();
    owDefineChangeCallback(editor.text, 0);
}

void loadWidgetSlots(WidgetNode& widget) {
    addSlotRows(widget);
    loadWorkingSlots(widget);
}

void showCurrentBlock() { owSetTextSetting(editor.text, shownCode().c_str(), owEntryType, OSTANDARD, 0); }

void rememberCaret() { storePosition(); }

void showBoundCode() {
    selectInList(editor.blockList, project.currentBlockName.c_str());
    codeEditing.listPosition = positionOf(project.currentBlockName);
    showCurrentBlock();
    int& start = codeEditing.caretStart[codeEditing.listPosition];
    int& end = codeEditing.caretEnd[codeEditing.listPosition];
    if (start > textLength(editor.text) + 1) start = end = 1;
    refreshFont(false, 0);
    select(editor.text, {start, end});
    showLineColumn(start);
    codeEditing.codeModified = false;
}

void commitEditor() {
    takeTypedText();
    if (!editor.text || !codeEditing.codeModified) return;
    const TextRange range = selectionOf(editor.text);
    commitCode(textOf(editor.text), range.start, range.end);
    owDefineChangeCallback(editor.text, CMD_CODE_CHANGED);
    owTextUndoAction(editor.text, ORESETUNDO);
}

void bindCode(WidgetNode* widget) {
    if (!editor.text) return;
    if (!widget) return forgetCode();
    storePosition();
    bindWidgetCode(*widget);
    refreshBlockList();
    addSlotRows(*widget);
    showTabs(*widget);
    selectInList(editor.widgetList, widget->name.c_str());
    showBoundCode();
}

void showCallback(WidgetNode& widget) {
    commitEditor();
    if (!isSlotName(project.currentBlockName)) project.currentBlockName = slotTable[SLOT_GENERAL].name;
    bindCode(&widget);
    hooks.showCodeEditor();
    enterTextMode();
}

void forgetCode() {
    forgetCodeCopies();
    if (!editor.text) return;
    owSetTextSetting(editor.text, "", 0);
    owSetListEntry(editor.blockList, OCLEAR, 0);
}

void showCode(const std::string& blockName, WidgetNode* widget, int line, int column) {
    if (widget && widget != project.currentWidget) selectWidget(widget);
    commitEditor();
    project.currentBlockName = blockName;
    if (blockIndexOf(blockName) >= 0)
        codeEditing.target = EDIT_BLOCK;
    else if (project.currentWidget)
        loadWorkingSlots(*project.currentWidget);
    showBoundCode();
    showPlace(line, column);
}

void showPlace(int line, int column) {
    const int start = std::max(lineStart(editor.text, line - 1), 1);
    const int length = lineLength(editor.text, start);
    if (column > 0)
        moveCaret(editor.text, start + std::min(column - 1, length));
    else
        select(editor.text, {start, start + length});
    showLineColumn(column > 0 ? start + std::min(column - 1, length) : start);
    hooks.showCodeEditor();
    enterTextMode();
}

void blockChosenCommand() {
    commitEditor();
    const std::string name = chosenRow(editor.blockList);
    if (name == SLOT_SEPARATOR_ROW || name.empty())
        return selectInList(editor.blockList, project.currentBlockName.c_str());
    storePosition();
    constexpr size_t NAME_SIZE = 50;
    project.currentBlockName = name.substr(0, NAME_SIZE);
    const bool entry = codeEditing.target == EDIT_MENU_SLOT || codeEditing.target == EDIT_TREE_SLOT;
    if (!entry) codeEditing.target = isSlotName(name) ? EDIT_WIDGET_SLOT : EDIT_BLOCK;
    showBoundCode();
    enterTextMode();
}

void clearCodeCommand() {
    owSetTextSetting(editor.text, "", 0);
    clearShownCode();
    project.projectModified = 1;
    owSetActiveWidget(editor.text);
}

void clearAllCodeCommand() {
    const int answer =
        host.messageBox("Delete all code?",
                        "This will delete all code in the User Code Editor and all callback code held for this widget. "
                        "Are you sure you want to continue?",
                        BOX_WARNING, BOX_OK_CANCEL);
    if (answer == ANSWER_OK) {
        clearAllCode();
        owSetTextSetting(editor.text, "", 0);
        project.projectModified = 1;
    }
    owSetActiveWidget(editor.text);
}

void commitCommand() { commitEditor(); }
