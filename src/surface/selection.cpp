// One widget, a form or a group as the selection, and what the toolkit holds drag handles on.
#include "surface/selection.h"

#include "menu-c.h"
#include "project/host.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "surface/commands.h"
#include "surface/event.h"
#include "surface/geometry.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/state.h"

#include <algorithm>
#include <string>

namespace {

void release() { owAdoptChild(0, 0, 0); }

void refreshArrayGeometry(WidgetNode* node) {
    if (!node || project.gridMode != 1 || !isArray(*node)) return;
    storeArrayGeometry(*node);
    applyArrayGeometry(*node);
}

void showCount(int count) {
    const std::string words = count == 1 ? " Object selected" : " Objects selected";
    hooks.statusText(PANE_SELECTION, std::to_string(count) + words);
}

// Only widgets that lie from the left and the top can be moved together.
bool canBeGrouped(const Records& members) {
    return std::ranges::all_of(members, [](const WidgetNode* one) { return one->hpos == OLEFT && one->vpos == OTOP; });
}

// Takes all live handles off a record and what is below it.
void forgetLive(WidgetNode& node) {
    for (WidgetNode* one = &node; one; one = walkBelow(one, &node)) {
        setHandle(*one, 0, one->parentHandle);
        one->designCallbackId = one->designSelectId = 0;
    }
}

// Erases the live widgets of the group and shows copies of them on a panel of their own.
void moveOntoPanel(const Records& members, int parentHandle) {
    for (WidgetNode* one : members) {
        storeGeometryBelow(*one);
        owEraseWidget(one->handle);
    }
    const Box& box = design.groupBox;
    setGridMode(project.gridMode);
    design.groupPanel = owCreatePanel(parentHandle, box.x, box.y, box.width, box.height, owVpos, OTOP, owHpos, OLEFT,
                                      owBorderType, ONOBOUNDARY, 0);
    setGridMode(0);
    for (WidgetNode* one : members) {
        const OwnedList shown = copyNode(one, false);
        shown->xpos -= box.x;
        shown->ypos -= box.y;
        realiseWidget(*shown, design.groupPanel, false);
        forgetLive(*one);
    }
    owDesignPicture(design.groupPanel);
    owDefineCallback(design.groupPanel, CMD_GROUP_CLICKED);
    owDrawWidget(design.groupPanel);
}

// The record that a click on `node` is about.
WidgetNode* standsFor(WidgetNode* node) {
    if (node->type == TYPE_MAIN_PANEL) return node->parent;
    const bool page = node->parent && node->parent->type == TYPE_TAB_BOX;
    return page ? node->parent : node;
}

} // namespace

bool mayBeDragged(const WidgetNode& node) {
    if (node.type == TYPE_FORM || node.type == TYPE_MAIN_PANEL || design.unadopted || isBarOrPane(node)) return false;
    const WidgetNode* parent = node.parent;
    return !parent || (!isBarOrPane(*parent) && parent->type != TYPE_TAB_BOX);
}

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
    design.selection = {node};
    hooks.showProperties(node);
    if (node->hierarchyItem) owTreeViewAction(node->hierarchyItem, OSELECTENTRY);
    hooks.bindCode(node);
    owSetDesignCallback(CMD_DESIGN_KEY);
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

void selectClicked() {
    WidgetNode* clicked = findHandle(action.widget);
    if (!clicked || (clicked = standsFor(clicked))->selected) return;
    selectWidget(clicked);
}

bool shiftAdds(WidgetNode& found) {
    const bool byMouse = action.key == OKEYLEFTBUTTON; // and not the focus that Shift+Tab brought
    if (!byMouse || !owEnqShiftKey() || design.selection.empty() || !design.selection.front()->parent ||
        found.onToolbar)
        return false;
    if (isBarOrPane(found) || isBarOrPane(*design.selection.front())) return false; // they dock, and join no group
    if (found.parent != design.selection.front()->parent) return true; // of another parent: nothing happens
    Records members = design.selection;
    members.push_back(&found);
    groupSelection(members);
    showSelectionCount();
    return true;
}

void dropSelection() {
    ungroup();
    design.selection.clear();
}

void groupSelection(const Records& members) {
    if (members.empty()) return;
    design.selectionCount = static_cast<int>(members.size());
    if (members.size() == 1) {
        hooks.commandStatus(CMD_ALIGN, OUNSELECTABLE);
        return selectWidget(members.front());
    }
    if (!members.front()->parent || !canBeGrouped(members))
        return host.infoBox("Grouping", "Only widgets with Left horizontal origin and Top vertical origin can be "
                                        "grouped together");
    release();
    if (project.currentWidget) hooks.commitEditor();
    ungroup();
    design.selection = members;
    clearSelected(project.forms);
    project.currentWidget = nullptr;
    hooks.showProperties(nullptr);
    activateWidget(members.front()->parent);
    buildGroupPanel(false);
    hooks.commandStatus(CMD_ALIGN, OSELECTABLE);
    showSelectionCount();
}

void buildGroupPanel(bool keep) {
    const WidgetNode& parent = *design.selection.front()->parent;
    design.groupBox = boxAround(design.selection);
    if (!keep) moveOntoPanel(design.selection, parent.handle);
    owSetActiveWidget(design.groupPanel);
    owAdoptChild(design.groupPanel, CMD_MOVED, CMD_DOUBLE_CLICK);
}

void adoptSelection() {
    if (groupStands())
        buildGroupPanel(design.groupPanel != 0);
    else if (project.currentWidget)
        adoptWidget(*project.currentWidget);
}

void ungroup() {
    if (!groupStands() || !design.groupPanel) return;
    release();
    owEraseWidget(design.groupPanel);
    design.groupPanel = 0;
    for (WidgetNode* one : design.selection) {
        if (!one->parent) continue;
        realiseWidget(*one, one->parent->handle, false);
        redrawWidget(*one, false);
    }
}

void showSelectionCount() { showCount(design.selectionCount); }

void forgetRecords() {
    design.selection.clear(); // the group's panel goes with its form
    eraseForms(project.forms);
    project.currentWidget = nullptr;
    design.movedForms.clear();
    design.valueWidget = 0;
    hooks.showProperties(nullptr);
    hooks.bindCode(nullptr);
}
