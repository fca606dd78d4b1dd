// Binding the text of the code editor to a block or slot.
#include "editing/code_editor.h"

#include "editing/block_list.h"
#include "editing/code_assist.h"
#include "editing/commands.h"
#include "editing/editor_window.h"
#include "editing/modes.h"
#include "editing/text_view.h"
#include "menu-c.h"
#include "project/code_stores.h"
#include "project/host.h"
#include "project/tree.h"
#include "surface/hooks.h"
#include "surface/selection.h"

#include <algorithm>
#include <map>
#include <string>

namespace {

void addSlotRows(const WidgetNode& widget) {
    const auto slots = offeredSlots(widget);
    if (slots.empty()) return;
    addBlockRow(SLOT_SEPARATOR_ROW);
    for (const WidgetSlot slot : slots) addBlockRow(slotTable[slot].name);
}

void setTab(int tab, bool enabled) { owSetWidgetStatus(tab, enabled ? OSELECTABLE : OUNSELECTABLE); }

// The tabs that make sense for a widget; the list of widgets is in front.
void showTabs(const WidgetNode& widget) {
    const WidgetNode* form = formOf(&widget, project.forms);
    setTab(editor.menuTab, form && !form->entries.empty());
    setTab(editor.treeTab, widget.type == TYPE_TREE_VIEW);
    owSetWidgetStatus(editor.widgetTab, OCHECKED);
}

void storePosition() {
    const TextRange range = selectionOf(editor.text);
    codeEditing.caretStart[codeEditing.listPosition] = range.start;
    codeEditing.caretEnd[codeEditing.listPosition] = range.end;
}

int positionOf(const std::string& name) { return isSlotName(name) ? SLOT_LIST_POSITION : blockIndexOf(name) + 1; }

// Each block and slot has a text of its own in the widget, which keeps its history while the project is open.
std::map<std::string, int> documents;

int documentOfShown() {
    std::string key = project.currentBlockName;
    if (codeEditing.target == EDIT_WIDGET_SLOT)
        key += "|" + std::to_string(codeEditing.widget);
    else if (codeEditing.target != EDIT_BLOCK && codeEditing.currentEntry)
        key += "|" + std::to_string(codeEditing.entryOwner) + "|" + codeEditing.currentEntry->name;
    return documents.emplace(key, static_cast<int>(documents.size()) + 1).first->second;
}

// As the widget would take the code and give it back.
std::string comparable(std::string code) {
    std::erase(code, '\r');
    code.erase(code.find_last_not_of(' ') + 1);
    return code;
}

} // namespace

void refreshBlockList() {
    clearBlockRows();
    for (const CodeBlockRow& block : codeBlockTable) addBlockRow(block.name);
    refreshBlockCopies();
    owDefineChangeCallback(editor.text, 0);
}

void showCurrentBlock() {
    const bool kept = owShowTextDocument(editor.text, documentOfShown()) == 1;
    if (kept && comparable(textOf(editor.text)) == comparable(shownCode())) return;
    owSetTextSetting(editor.text, shownCode().c_str(), owEntryType, OSTANDARD, 0);
}

void rememberCaret() { storePosition(); }

void showBoundCode() {
    removeAssist();
    showBlockSizes();
    selectBlockRow(project.currentBlockName);
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
    showBlockSizes();
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
    documents.clear();
    owForgetTextDocuments(editor.text);
    owSetTextSetting(editor.text, "", 0);
    clearBlockRows();
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

namespace {

void blockChosenCommand() {
    commitEditor();
    const std::string name = chosenBlockRow();
    if (name == SLOT_SEPARATOR_ROW || name.empty()) return selectBlockRow(project.currentBlockName);
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

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_CLEAR_CODE, .label = "Clear code", .mnemonic = 'c', .menuIcon = "delete&", .when = WHEN_TEXT_MODE, .handler = clearCodeCommand},
    {.id = CMD_CLEAR_ALL_CODE, .label = "Clear all code", .mnemonic = 'a', .menuIcon = "recycle&", .when = WHEN_TEXT_MODE, .handler = clearAllCodeCommand},
    {.id = CMD_COMMIT_CODE, .key = controlKey('S'), .keyModes = IN_TEXT, .handler = commitCommand},
    {.id = CMD_CODE_BLOCK, .handler = blockChosenCommand},
};
// clang-format on

} // namespace

std::span<const Command> codeEditorCommands() { return COMMANDS; }
