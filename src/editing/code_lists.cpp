#include "editing/code_lists.h"

#include "editing/block_list.h"
#include "editing/code_editor.h"
#include "editing/commands.h"
#include "editing/editor_window.h"
#include "menu-c.h"
#include "project/code_stores.h"
#include "project/tree.h"
#include "surface/event.h"
#include "surface/hierarchy.h"
#include "surface/hooks.h"
#include "surface/selection.h"
#include "surface/state.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

std::vector<std::string> names; // rows of the list of widgets

int fillEntryList(int list, const WidgetNode& owner) {
    owSetListEntry(list, OCLEAR, 0);
    int rows = 0;
    for (const MenuEntryRec& entry : owner.entries) {
        if (entry.kind != MENU_ENTRY || entry.name.empty()) continue;
        addRow(list, entry.name.c_str());
        ++rows;
    }
    return rows;
}

WidgetNode* firstFormWithMenu() {
    WidgetNode* form = project.forms;
    while (form && form->entries.empty()) form = form->next;
    return form;
}

// Rows of the slots of an entry instead of a widget's.
void showEntrySlots(const WidgetNode& owner) {
    refreshBlockList();
    addBlockRow(SLOT_SEPARATOR_ROW);
    for (const EntrySlot slot : offeredEntrySlots(owner)) addBlockRow(slotTable[entrySlotKinds[slot]].name);
}

// Shows the General slot of an entry of the copy; nothing changes for a name that is none.
void showEntry(const WidgetNode& owner, int list, const std::string& name) {
    if (!bindEntryCode(name)) return;
    showEntrySlots(owner);
    selectInList(list, name.c_str());
    showBoundCode();
}

void enterEntries(WidgetNode* owner, int list, const std::string& remembered) {
    if (!owner || fillEntryList(list, *owner) == 0) return;
    const bool same = codeEditing.entryOwner == owner->id;
    copyEntriesForEditing(owner);
    owSetListEntry(list, OSELECT, owEntry, 1, 0);
    showEntry(*owner, list, same && !remembered.empty() ? remembered : chosenRow(list));
}

void showMenuEntries() {
    WidgetNode* form = project.currentWidget ? formOf(project.currentWidget, project.forms) : nullptr;
    if (!form || form->entries.empty()) form = firstFormWithMenu();
    enterEntries(form, editor.menuList, codeEditing.menuEntryName);
}

void showTreeEntries() {
    WidgetNode* tree = project.currentWidget;
    if (tree && tree->type == TYPE_TREE_VIEW) enterEntries(tree, editor.treeList, codeEditing.treeEntryName);
}

void entryChosen(int list) {
    commitEditor();
    rememberCaret();
    if (const WidgetNode* owner = ownerOfEntryCopy()) showEntry(*owner, list, chosenRow(list));
}

} // namespace

void showEntryCode(WidgetNode* owner, const std::string& entryName, const std::string& slotName, int line, int column) {
    if (owner != project.currentWidget) selectWidget(owner);
    commitEditor();
    rememberCaret();
    const bool tree = owner->type == TYPE_TREE_VIEW;
    const int list = tree ? editor.treeList : editor.menuList;
    fillEntryList(list, *owner);
    copyEntriesForEditing(owner);
    showEntry(*owner, list, entryName);
    owSetWidgetStatus(tree ? editor.treeTab : editor.menuTab, OCHECKED);
    project.currentBlockName = slotName;
    showBoundCode();
    showPlace(line, column);
}

void showEntryCallback(WidgetNode& owner, const std::string& entryName) {
    showEntryCode(&owner, entryName, slotTable[SLOT_GENERAL].name, 1, 1);
    hooks.showCodeEditor();
    hooks.enterTextMode();
}

void nameAdded(const std::string& name) {
    if (!editor.widgetList || std::ranges::find(names, name) != names.end()) return;
    names.push_back(name);
    addRow(editor.widgetList, name.c_str());
}

void nameRemoved(const std::string& name) {
    const auto found = std::ranges::find(names, name);
    if (!editor.widgetList || found == names.end()) return;
    owSetListEntry(editor.widgetList, ODELETE, owEntry, static_cast<int>(found - names.begin()) + 1, 0);
    names.erase(found);
}

void nameChanged(const std::string& from, const std::string& to) {
    if (std::ranges::find(names, from) == names.end()) return; // main panels are not listed
    nameRemoved(from);
    nameAdded(to);
    selectInList(editor.widgetList, to.c_str());
}

void clearNames() {
    names.clear();
    if (editor.widgetList) owSetListEntry(editor.widgetList, OCLEAR, 0);
}

namespace {

void widgetChosenCommand() { selectByName(chosenRow(editor.widgetList), false); }

void selectorTabCommand() {
    commitEditor();
    rememberCaret();
    if (action.status == editor.menuTab)
        showMenuEntries();
    else if (action.status == editor.treeTab)
        showTreeEntries();
    else if (project.currentWidget)
        bindCode(project.currentWidget);
}

void menuEntryChosenCommand() { entryChosen(editor.menuList); }

void treeEntryChosenCommand() { entryChosen(editor.treeList); }

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_WIDGET_LIST, .handler = widgetChosenCommand},
    {.id = CMD_SELECTOR_TABS, .handler = selectorTabCommand},
    {.id = CMD_MENU_ENTRY_LIST, .handler = menuEntryChosenCommand},
    {.id = CMD_TREE_ENTRY_LIST, .handler = treeEntryChosenCommand},
};
// clang-format on

} // namespace

std::span<const Command> codeListCommands() { return COMMANDS; }
