#include "surface/clipboard.h"

#include "menu-c.h"
#include "project/host.h"
#include "project/placement.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "surface/commands.h"
#include "surface/hierarchy.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/selection.h"
#include "surface/state.h"

#include <string>

namespace {

bool isBarOrPane(const WidgetNode* node) { return node && (node->type == TYPE_TOOL_BAR || node->type == TYPE_PANE); }

// What lies ahead of a record in the tree: the sibling before it, else what holds it, else the form before it.
WidgetNode* predecessorOf(const WidgetNode& node) {
    WidgetNode* first = node.parent ? node.parent->child : project.forms;
    if (first == &node) return node.parent;
    for (; first; first = first->next)
        if (first->next == &node) return first;
    return nullptr;
}

// Forgets a record that is about to go.
void forget(const WidgetNode& real) {
    if (design.undoWidget == &real) {
        design.undoWidget = nullptr;
        design.undoAvailable = design.redoAvailable = 0;
    }
}

// Takes one real record out of the tree and frees it; returns what is to be selected instead.
WidgetNode* removeOne(WidgetNode& real, bool eraseLive) {
    removeHierarchyEntry(real, false);
    if (eraseLive && real.type == TYPE_FORM) owRemoveWindow(real.handle);
    if (eraseLive && real.handle > 0) owEraseWidget(real.handle);
    WidgetNode* result = real.next ? real.next : predecessorOf(real);
    if (project.currentWidget == &real) project.currentWidget = nullptr;
    forget(real);
    unlinkNode(&real);
    deleteNode(&real);
    return result;
}

bool nothingSelected() {
    if (design.selectionList) return false;
    host.infoBox("No widget selected", "You must select a widget");
    return true;
}

// The tests of Copy, Cut and Duplicate; `verb` stands in the refusal.
bool refusesForm(const char* verb) {
    if (nothingSelected()) return true;
    if (design.selectionList->type != TYPE_FORM) return false;
    host.infoBox("Invalid widget", std::string("You cannot ") + verb + " a Form");
    return true;
}

void fillPasteBuffer() {
    refreshSelectionList();
    deleteList(design.pasteBuffer);
    design.pasteBuffer = copyNode(design.selectionList, true);
    hooks.commandStatus(CMD_PASTE, OSELECTABLE);
    markChanged();
}

// A toggle of the modern kinds looks like its neighbours in the new parent.
bool followParent(WidgetNode& toggle, const WidgetNode& parent) {
    if (toggle.type != TYPE_TOGGLE) return false;
    if (toggle.subType == O3DRADIO && (parent.type == TYPE_PANEL || parent.type == TYPE_MAIN_PANEL))
        toggle.subType = O3DCHECKBOX;
    else if (toggle.subType == O3DCHECKBOX && parent.type == TYPE_RADIO_BOX)
        toggle.subType = O3DRADIO;
    else
        return false;
    return true;
}

// A copy beside its original gets a name of its own; the words and counters are those of new widgets.
void giveOwnName(WidgetNode& clone) {
    const WidgetTypeRow* type = widgetType(clone.type);
    const WidgetNode* form = formOf(&clone, project.forms);
    if (!type || !form || type->counter == COUNTER_NONE || findName(project.forms, clone.name, false) == &clone) return;
    std::string name;
    do {
        name = form->name + "_" + type->word + std::to_string(project.counters[type->counter]++);
    } while (findName(project.forms, name, false));
    renameNode(clone, name);
}

void shiftBesideOriginal(WidgetNode& clone) {
    const bool grid = project.gridMode == 1;
    clone.xpos += grid ? 1 : project.gridPixelX;
    clone.ypos -= grid ? 1 : project.gridPixelY;
}

// ---- Deletion.

bool isMaster(const WidgetNode& form) { return form.formType == FORM_MASTER_SDI || form.formType == FORM_MASTER_MDI; }

// Forms that a project can't do without.
bool keepsForm(const WidgetNode& form) {
    if (form.type != TYPE_FORM) return false;
    if (project.forms == &form && !form.next) {
        host.infoBox("Cannot delete form", form.name + " is the only form in the project.|If you wish to start a new "
                                                       "project from scratch, choose the New Project option from the "
                                                       "File menu");
        return true;
    }
    if (!isMaster(form)) return false;
    host.infoBox("Cannot delete master form",
                 form.name + " is the master form in the project.|If you wish to delete it, make another form the "
                             "master first");
    return true;
}

bool isLastPage(const WidgetNode& node) {
    return node.type == TYPE_PANEL && node.parent && node.parent->type == TYPE_TAB_BOX && !node.next &&
           node.parent->child == &node;
}

bool confirms(const std::string& text) {
    return host.messageBox("Confirm Widget Deletion", text, BOX_WARNING, BOX_YES_NO) == ANSWER_YES;
}

std::string deletionText(const WidgetNode& node) {
    std::string text = "This will permanently erase " + node.name;
    if (node.type == TYPE_FORM && node.child && node.child->child)
        text += " and all its child widgets";
    else if (node.type != TYPE_FORM && node.child)
        text += " and all it's child widgets";
    return text + ".|Do you want to continue?";
}

void eraseCurrent() {
    hooks.commitEditor(); // a block on show would be lost with the widget
    WidgetNode* next = removeWidget(project.currentWidget, true, false);
    deleteList(design.selectionList); // a copy of what is gone
    design.selectionList = nullptr;
    recountCounters();
    hooks.commandStatus(CMD_PASTE, OUNSELECTABLE);
    markChanged();
    project.currentWidget = next;
}

void confirmDelete() {
    WidgetNode* current = project.currentWidget;
    if (!current || keepsForm(*current)) return;
    if (isLastPage(*current)) {
        if (!confirms("The Panel " + current->name +
                      " is the last panel in the tabbed dialogue box. Deletion |will delete the tabbed dialogue box|Do "
                      "you want to continue?"))
            return activateWidget(current);
        project.currentWidget = current = current->parent;
    } else if (current->type == TYPE_TEXT_ENTRY && design.unadopted) {
        return;
    }
    if (confirms(deletionText(*current))) eraseCurrent();
    design.skipCommit = 1; // the code on show may be of the widget that is gone
    selectWidget(project.currentWidget ? project.currentWidget : project.forms);
}

} // namespace

WidgetNode* removeWidget(WidgetNode* node, bool eraseLive, bool wholeList) {
    if (!node) return nullptr;
    WidgetNode* parent = parentOf(node, project.forms);
    const int type = node->type;
    WidgetNode* result = nullptr;
    if (wholeList) {
        for (const WidgetNode* copy = node; copy; copy = copy->next)
            if (WidgetNode* real = findName(project.forms, copy->name, false)) result = removeOne(*real, eraseLive);
    } else {
        result = removeOne(*node, eraseLive);
    }
    if (result && result->type == TYPE_MAIN_PANEL) result = formOf(result, project.forms);
    const bool bar = type == TYPE_TOOL_BAR || type == TYPE_PANE;
    if (bar && parent)
        rebuildWidget(*parent);
    else if (isBarOrPane(parent))
        owDrawWidget(parent->handle);
    return result;
}

WidgetNode* insertClones(const WidgetNode* list) {
    WidgetNode& parent = *project.currentWidget;
    WidgetNode* first = copyNode(list, true);
    bool restyled = false;
    for (WidgetNode *clone = first, *next = nullptr; clone; clone = next) {
        next = clone->next;
        clone->next = nullptr;
        if (clone->parentHandle == parent.handle) shiftBesideOriginal(*clone);
        restyled |= followParent(*clone, parent);
        clone->parentHandle = parent.handle;
        clone->selected = 0;
        clone->onToolbar = parent.type == TYPE_TOOL_BAR ? 1 : 0;
        linkChild(parent, clone);
    }
    defaultName(first, NAME_PASTED);
    for (WidgetNode* node = first; node; node = walkList(node, first)) giveOwnName(*node);
    clearPlaceholder(parent);
    realiseWidget(*first, parent.handle, true);
    for (WidgetNode* clone = first; clone; clone = clone->next) {
        buildHierarchyEntry(*clone);
        buildHierarchy(clone->child);
        redrawWidget(*clone, false);
    }
    if (restyled && !first->next) hooks.showProperties(first);
    return first;
}

void copyCommand() {
    selectTool(TOOL_SELECTOR);
    if (!refusesForm("Copy")) fillPasteBuffer();
}

void cutCommand() {
    selectTool(TOOL_SELECTOR);
    if (refusesForm("Cut")) return;
    hooks.commitEditor();
    fillPasteBuffer();
    WidgetNode* removed = design.selectionList;
    if (removed->next) ungroupSelection(removed, nullptr);
    design.selectionList = nullptr;
    owAdoptChild(0, 0, 0);
    WidgetNode* next = removeWidget(removed, true, true);
    deleteList(removed);
    design.skipCommit = 1;
    selectWidget(next ? next : project.forms);
    hooks.drawControlWindows();
}

void pasteCommand() {
    if (!design.pasteBuffer) return;
    if (!project.currentWidget) return host.infoBox("No widget selected", "You must select a widget");
    selectTool(TOOL_SELECTOR);
    WidgetNode* chosen = project.currentWidget;
    const bool allowed = checkPasteParent(design.pasteBuffer);
    WidgetNode* target = project.currentWidget; // a form gives way to its main panel
    project.currentWidget = chosen;
    if (!allowed) return;
    hooks.commitEditor();
    owAdoptChild(0, 0, 0);
    project.currentWidget = target;
    WidgetNode* inserted = insertClones(design.pasteBuffer);
    project.currentWidget = chosen;
    WidgetNode* pasted = nullptr;
    WidgetNode** end = &pasted;
    for (WidgetNode* clone = inserted; clone; clone = clone->next) {
        *end = copyNode(clone, false);
        end = &(*end)->next;
    }
    groupSelection(target, pasted);
    markChanged();
}

void duplicateCommand() {
    selectTool(TOOL_SELECTOR);
    if (refusesForm("Copy")) return;
    fillPasteBuffer();
    WidgetNode* parent = parentOf(design.selectionList, project.forms);
    if (parent && parent->type == TYPE_MAIN_PANEL) parent = parent->parent;
    if (parent) selectWidget(parent);
    pasteCommand();
}

void deleteCommand() {
    selectTool(TOOL_SELECTOR);
    confirmDelete();
    hooks.drawControlWindows();
}
