#include "surface/clipboard.h"

#include "menu-c.h"
#include "project/host.h"
#include "project/placement.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "surface/commands.h"
#include "surface/geometry.h"
#include "surface/hierarchy.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/selection.h"
#include "surface/state.h"

#include <algorithm>
#include <string>
#include <utility>

namespace {

// What lies ahead of a record in the tree: the sibling before it, else what holds it, else the form before it.
WidgetNode* predecessorOf(const WidgetNode& node) {
    WidgetNode* first = node.parent ? node.parent->child : project.forms;
    if (first == &node) return node.parent;
    for (; first; first = first->next)
        if (first->next == &node) return first;
    return nullptr;
}

// Takes one record out of the tree and frees it; returns what is to be selected instead.
WidgetNode* removeOne(WidgetNode& node) {
    removeHierarchyEntry(node, false);
    if (node.type == TYPE_FORM) owRemoveWindow(node.handle);
    if (node.handle > 0) owEraseWidget(node.handle);
    WidgetNode* result = node.next ? node.next : predecessorOf(node);
    if (project.currentWidget == &node) project.currentWidget = nullptr;
    std::erase_if(design.selection, [&](const WidgetNode* one) { return liesWithin(one, &node); });
    design.placeholders.erase(node.id);
    deleteNode(&node);
    return result;
}

bool nothingSelected() {
    if (!design.selection.empty()) return false;
    host.infoBox("No widget selected", "You must select a widget");
    return true;
}

// The tests of Copy, Cut and Duplicate; `verb` stands in the refusal.
bool refusesForm(const char* verb) {
    if (nothingSelected()) return true;
    if (design.selection.front()->type != TYPE_FORM) return false;
    host.infoBox("Invalid widget", std::string("You cannot ") + verb + " a Form");
    return true;
}

void fillPasteBuffer(bool cut) {
    hooks.commitEditor();
    PasteBuffer buffer;
    buffer.parent = design.selection.front()->parent->id;
    buffer.shift = cut ? 0 : 1;
    WidgetNode* last = nullptr;
    for (WidgetNode* one : design.selection) {
        storeGeometryBelow(*one);
        OwnedList copy = copyNode(one, false);
        WidgetNode* const behind = last;
        last = copy.get();
        if (behind)
            behind->next = copy.release();
        else
            buffer.chain = std::move(copy);
        buffer.beside.push_back(one->id);
    }
    design.pasteBuffer = std::move(buffer);
    hooks.commandStatus(CMD_PASTE, OSELECTABLE);
    markChanged();
}

// How far a copy is shifted along one line: away from its original, or back when there is no room that way, so that it
// never leaves its parent.
int shiftWithin(int from, int extent, int room, int distance) {
    const int ahead = std::min(distance, room - extent - from);
    if (ahead > 0) return ahead;
    return -std::min(distance, std::max(from, 0));
}

// Copies beside their originals lie to the right of them and below, each one further than the one before.
void shiftBesideOriginals(const Records& clones, const WidgetNode& parent, int cells) {
    const bool grid = project.gridMode == 1;
    const Box box = boxAround(clones);
    const int right = shiftWithin(box.x, box.width, parent.width, cells * (grid ? 1 : project.gridPixelX));
    const int down = shiftWithin(box.y, box.height, parent.height, cells * (grid ? 1 : project.gridPixelY));
    for (WidgetNode* clone : clones) {
        clone->xpos += clone->hpos == ORIGHT ? -right : right;
        clone->ypos += clone->vpos == OBOTTOM ? -down : down;
    }
}

// One widget alone can be where the program starts.
void giveUpFocus(WidgetNode& clone) {
    for (WidgetNode* node = &clone; node; node = walkBelow(node, &clone)) node->activeOnInit = 0;
}

// Links copies of what was copied to the children of `parent`.
Records linkCopies(WidgetNode& parent) {
    const bool active = findActiveOnInit(project.forms) != nullptr;
    Records clones;
    for (OwnedList& clone : parted(copyNode(design.pasteBuffer.chain.get(), true))) {
        followLook(*clone, parent);
        if (active) giveUpFocus(*clone);
        clone->parentHandle = parent.handle;
        clone->selected = 0;
        clone->onToolbar = parent.type == TYPE_TOOL_BAR ? 1 : 0;
        clones.push_back(linkChild(parent, std::move(clone)));
    }
    if (design.pasteBuffer.parent == parent.id) {
        if (design.pasteBuffer.shift > 0) shiftBesideOriginals(clones, parent, design.pasteBuffer.shift);
        ++design.pasteBuffer.shift;
    }
    nameCopies(clones);
    return clones;
}

Records insertClones(WidgetNode& parent) {
    const Records clones = linkCopies(parent);
    clearPlaceholder(parent);
    for (WidgetNode* clone : clones) realiseWidget(*clone, parent.handle, false);
    for (WidgetNode* clone : clones) {
        buildHierarchyEntry(*clone);
        buildHierarchy(clone->child);
        redrawWidget(*clone, false);
    }
    return clones;
}

// What was copied, or was pasted last, is selected still.
bool originalsSelected() {
    return !design.selection.empty() &&
           std::ranges::equal(design.selection, design.pasteBuffer.beside, {}, &WidgetNode::id);
}

// The record that takes what is pasted; null when nothing is selected. Copies of what is selected, where it can't take
// them itself, go beside it.
WidgetNode* pasteTarget() {
    WidgetNode* current = project.currentWidget;
    if (originalsSelected() && design.selection.front()->parent) {
        const Records copies = chainOf(design.pasteBuffer.chain.get());
        if (!current || refusalToHold(*containerFor(current), copies).text) return design.selection.front()->parent;
    }
    return current ? containerFor(current) : nullptr;
}

// ---- Deletion.

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
    WidgetNode* next = removeRecords({project.currentWidget});
    recountCounters();
    hooks.commandStatus(CMD_PASTE, OUNSELECTABLE);
    markChanged();
    project.currentWidget = next;
}

void deleteGroup() {
    const bool children = std::ranges::any_of(design.selection, [](const WidgetNode* one) { return one->child; });
    if (!confirms("This will permanently erase the " + std::to_string(design.selection.size()) + " selected widgets" +
                  (children ? " and all their child widgets" : "") + ".|Do you want to continue?"))
        return;
    hooks.commitEditor();
    ungroup();
    owAdoptChild(0, 0, 0);
    WidgetNode* next = removeRecords(std::exchange(design.selection, {}));
    recountCounters();
    hooks.commandStatus(CMD_PASTE, OUNSELECTABLE);
    markChanged();
    design.skipCommit = 1;
    selectWidget(next ? next : project.forms);
}

void confirmDelete() {
    if (groupStands()) return deleteGroup();
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

WidgetNode* removeRecords(const Records& records) {
    if (records.empty()) return nullptr;
    WidgetNode* parent = parentOf(records.front(), project.forms);
    const bool bar = isBarOrPane(*records.front()), form = records.front()->type == TYPE_FORM;
    WidgetNode* result = nullptr;
    for (WidgetNode* node : records) result = removeOne(*node);
    if (result && result->type == TYPE_MAIN_PANEL) result = formOf(result, project.forms);
    if (bar && parent)
        rebuildWidget(*parent);
    else if (!form && parent && isBarOrPane(*parent))
        owDrawWidget(parent->handle);
    return result;
}

namespace {

void copyCommand() {
    selectTool(TOOL_SELECTOR);
    if (!refusesForm("Copy")) fillPasteBuffer(false);
}

void cutCommand() {
    selectTool(TOOL_SELECTOR);
    if (refusesForm("Cut")) return;
    fillPasteBuffer(true);
    ungroup();
    owAdoptChild(0, 0, 0);
    const Records removed = std::exchange(design.selection, {});
    WidgetNode* next = removeRecords(removed);
    design.skipCommit = 1;
    selectWidget(next ? next : project.forms);
    hooks.drawControlWindows();
}

void pasteCommand() {
    if (!design.pasteBuffer.chain) return;
    WidgetNode* target = pasteTarget();
    if (!target) return host.infoBox("No widget selected", "You must select a widget");
    selectTool(TOOL_SELECTOR);
    const Records copies = chainOf(design.pasteBuffer.chain.get());
    if (!mayHold(*target, copies) || !settleInside(*target, copies)) return;
    hooks.commitEditor();
    owAdoptChild(0, 0, 0);
    const Records inserted = insertClones(*target);
    design.pasteBuffer.beside.clear();
    for (const WidgetNode* one : inserted) design.pasteBuffer.beside.push_back(one->id);
    groupSelection(inserted);
    adoptSelection();
    markChanged();
}

void duplicateCommand() {
    selectTool(TOOL_SELECTOR);
    if (refusesForm("Copy")) return;
    fillPasteBuffer(false);
    WidgetNode* parent = parentOf(design.selection.front(), project.forms);
    if (parent && parent->type == TYPE_MAIN_PANEL) parent = parent->parent;
    if (parent) selectWidget(parent);
    pasteCommand();
}

} // namespace

void deleteCommand() {
    selectTool(TOOL_SELECTOR);
    confirmDelete();
    hooks.drawControlWindows();
}

namespace {

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_CUT, .label = "Cut Widget|Ctrl+X", .mnemonic = 't', .key = controlKey('X'), .menuIcon = "cut&", .barIcon = "cut", .bubbleHelp = "Cut Widget from Form to Paste buffer", .handler = cutCommand},
    {.id = CMD_COPY, .label = "Copy Widget|Ctrl+C", .mnemonic = 'C', .key = controlKey('C'), .menuIcon = "copy&", .barIcon = "copy", .bubbleHelp = "Copy Widget from Form to Paste buffer", .handler = copyCommand},
    {.id = CMD_DUPLICATE, .label = "Duplicate Widget|Ctrl+D", .mnemonic = 'L', .key = controlKey('D'), .menuIcon = "copy&", .handler = duplicateCommand},
    {.id = CMD_PASTE, .label = "Paste Widget|Ctrl+V", .mnemonic = 'P', .key = controlKey('V'), .keyModes = IN_DESIGN | WHEN_ENABLED, .menuIcon = "paste&", .barIcon = "paste", .bubbleHelp = "Paste Widget from Paste buffer to Form", .when = STARTS_DISABLED, .handler = pasteCommand},
    {.id = CMD_DELETE, .label = "Delete Widget|Del", .mnemonic = 'D', .key = OKEYDEL, .menuIcon = "deletewidg&", .handler = deleteCommand},
};
// clang-format on

} // namespace

std::span<const Command> clipboardCommands() { return COMMANDS; }
