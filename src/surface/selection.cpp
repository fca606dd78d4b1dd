// One widget, a form or a group as the selection, and what the toolkit holds drag handles on.
#include "surface/selection.h"

#include "menu-c.h"
#include "project/host.h"
#include "project/tree.h"
#include "surface/commands.h"
#include "surface/geometry.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/state.h"

#include <algorithm>
#include <string>

namespace {

bool isBarOrPane(const WidgetNode& node) { return node.type == TYPE_TOOL_BAR || node.type == TYPE_PANE; }
bool isArray(const WidgetNode& node) { return node.type == TYPE_TEXT_ARRAY || node.type == TYPE_VALUE_ARRAY; }

void release() { owAdoptChild(0, 0, 0); }

void refreshArrayGeometry(WidgetNode* node) {
    if (!node || project.gridMode != 1 || !isArray(*node)) return;
    storeArrayGeometry(*node);
    applyArrayGeometry(*node);
}

bool mayBeDragged(const WidgetNode& node) {
    if (node.type == TYPE_FORM || node.type == TYPE_MAIN_PANEL || design.unadopted || isBarOrPane(node)) return false;
    const WidgetNode* parent = node.parent;
    return !parent || (!isBarOrPane(*parent) && parent->type != TYPE_TAB_BOX);
}

void showCount(int count) {
    const std::string words = count == 1 ? " Object selected" : " Objects selected";
    hooks.statusText(PANE_SELECTION, std::to_string(count) + words);
}

// Only widgets that lie from the left and the top can be moved together.
bool canBeGrouped(const WidgetNode* list) {
    for (const WidgetNode* one = list; one; one = one->next)
        if (one->hpos != OLEFT || one->vpos != OTOP) return false;
    return true;
}

void growGroupBox(const WidgetNode& parent, const WidgetNode* list) {
    constexpr int FAR = 9999;
    design.groupLeft = design.groupTop = FAR;
    design.groupRight = design.groupBottom = -FAR;
    for (const WidgetNode* one = list; one; one = one->next) {
        const Edges edges = edgesOf(*one, parent.width, parent.height);
        design.groupLeft = std::min(design.groupLeft, edges.left);
        design.groupTop = std::min(design.groupTop, edges.top);
        design.groupRight = std::max(design.groupRight, edges.right);
        design.groupBottom = std::max(design.groupBottom, edges.bottom);
    }
}

} // namespace

void selectTool(int tool) {
    if (design.activeTool != tool) hooks.toolStatus(design.activeTool, OSELECTABLE);
    design.activeTool = tool;
    hooks.toolStatus(tool, OCHECKED);
}

void adoptWidget(const WidgetNode& node) {
    if (mayBeDragged(node))
        owAdoptChild(node.handle, CMD_MOVED, CMD_DOUBLE_CLICK);
    else
        release();
}

void selectWidget(WidgetNode* node) {
    if (!node) return;
    release();
    refreshArrayGeometry(project.currentWidget);
    if (project.currentWidget && !design.skipCommit) hooks.commitEditor();
    design.skipCommit = 0;
    project.currentWidget = node;
    clearSelected(project.forms);
    node->selected = 1;
    dropSelection(); // before the sheet is filled: a member of a group gets its own live widget back here
    design.selectionList = copyNode(node, false);
    hooks.showProperties(node);
    if (node->hierarchyItem) owTreeViewAction(node->hierarchyItem, OSELECTENTRY);
    hooks.bindCode(node);
    design.unadopted = 0; // before the keys are bound: the right button has its popup again
    hooks.leaveTextMode();
    redrawWidget(*node, true);
    hooks.commandStatus(CMD_UNADOPT, OSELECTABLE);
    activateWidget(node);
    adoptWidget(*node);
    design.selectionCount = 1;
    showCount(1);
    if (node->type == TYPE_VALUE_ENTRY) design.valueWidget = node->handle;
    design.codeFocus = 0;
}

bool shiftAdds(WidgetNode& found) {
    const WidgetNode* first = design.selectionList;
    if (!owEnqShiftKey() || !first || first->parentHandle == 0 || found.onToolbar) return false;
    if (found.parentHandle != first->parentHandle) return true; // of another parent: nothing happens
    WidgetNode* list = copyNode(first, true);
    WidgetNode* last = list;
    while (last->next) last = last->next;
    last->next = copyNode(&found, false);
    ++design.selectionCount;
    groupSelection(found.parent, list);
    showSelectionCount();
    return true;
}

void dropSelection() {
    if (!design.selectionList) return;
    ungroupSelection(design.selectionList, nullptr);
    deleteList(design.selectionList);
    design.selectionList = nullptr;
}

void groupSelection(WidgetNode* parent, WidgetNode* list) {
    if (!list) return;
    if (!list->next) {
        WidgetNode* only = findName(project.forms, list->name, false);
        deleteList(list);
        hooks.commandStatus(CMD_ALIGN, OUNSELECTABLE);
        return selectWidget(only);
    }
    if (!parent || !canBeGrouped(list)) {
        host.infoBox("Grouping",
                     "Only widgets with Left horizontal origin and Top vertical origin can be grouped together");
        return deleteList(list);
    }
    release();
    if (project.currentWidget) hooks.commitEditor();
    if (design.selectionList) {
        ungroupSelection(design.selectionList, list);
        deleteList(design.selectionList);
    }
    design.selectionList = list;
    clearSelected(project.forms);
    project.currentWidget = nullptr;
    hooks.showProperties(nullptr);
    activateWidget(parent);
    buildGroupPanel(*parent, list, false);
    hooks.commandStatus(CMD_ALIGN, OSELECTABLE);
}

void buildGroupPanel(WidgetNode& parent, WidgetNode* list, bool keep) {
    growGroupBox(parent, list);
    if (!keep) {
        for (const WidgetNode* one = list; one; one = one->next) owEraseWidget(one->handle);
        design.groupParent = parent.handle;
        setGridMode(project.gridMode);
        design.groupPanel = owCreatePanel(parent.handle, design.groupLeft, design.groupTop,
                                          design.groupRight - design.groupLeft, design.groupBottom - design.groupTop,
                                          owVpos, OTOP, owHpos, OLEFT, owBorderType, ONOBOUNDARY, 0);
        setGridMode(0);
        WidgetNode* shown = copyNode(list, true);
        for (WidgetNode* one = shown; one; one = one->next) {
            one->xpos -= design.groupLeft;
            one->ypos -= design.groupTop;
        }
        realiseWidget(*shown, design.groupPanel, true);
        deleteList(shown);
        owDrawWidget(design.groupPanel);
    }
    owSetActiveWidget(design.groupPanel);
    owAdoptChild(design.groupPanel, CMD_MOVED, CMD_DOUBLE_CLICK);
}

void ungroupSelection(WidgetNode* list, WidgetNode* second) {
    if (!list || !list->next) return;
    release();
    owEraseWidget(design.groupPanel);
    design.groupPanel = 0;
    for (WidgetNode* one = list; one; one = one->next) {
        WidgetNode* real = findName(project.forms, one->name, false);
        if (!real) continue;
        realiseWidget(*real, design.groupParent, false);
        one->handle = real->handle;
        for (WidgetNode* other = second; other; other = other->next)
            if (other->name == one->name) other->handle = real->handle;
        redrawWidget(*real, false);
    }
}

void refreshSelectionList() {
    hooks.commitEditor();
    WidgetNode* fresh = nullptr;
    WidgetNode** end = &fresh;
    for (const WidgetNode* copy = design.selectionList; copy; copy = copy->next) {
        const WidgetNode* real = findName(project.forms, copy->name, false);
        if (!real) continue;
        *end = copyNode(real, false);
        end = &(*end)->next;
    }
    if (!fresh) return;
    deleteList(design.selectionList);
    design.selectionList = fresh;
}

void showSelectionCount() { showCount(design.selectionCount); }

void forgetRecords() {
    deleteList(design.selectionList); // the group's panel goes with its form
    design.selectionList = nullptr;
    eraseForms(project.forms);
    project.currentWidget = nullptr;
    design.undoWidget = nullptr;
    design.undoAvailable = design.redoAvailable = 0;
    design.valueWidget = 0;
    hooks.showProperties(nullptr);
    hooks.bindCode(nullptr);
}
