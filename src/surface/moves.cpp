// What a finished drag does to the records: move, resize, drop on another parent.
#include "surface/selection.h"

#include "menu-c.h"
#include "project/host.h"
#include "project/placement.h"
#include "project/tree.h"
#include "surface/clipboard.h"
#include "surface/commands.h"
#include "surface/event.h"
#include "surface/geometry.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/state.h"

#include <algorithm>

namespace {

constexpr int LONG_RICH = 32767, LONG_TEXT = 30000, LINE = 255; // field widths

bool onWindows() { return project.projectPlatform == 'w'; }

bool hasFixedHeight(const WidgetNode& n) {
    if (n.type == TYPE_TEXT_ENTRY) return n.subType == OSECURITY;
    return !onWindows() && (n.type == TYPE_TOGGLE || n.type == TYPE_VALUE_ENTRY || n.type == TYPE_VALUE_LABEL);
}

// Types whose live widget looks different at another size.
bool isRebuiltAfterResize(const WidgetNode& n, bool height) {
    if (n.type == TYPE_PANEL) return true;
    if (!height) return false;
    if (n.type == TYPE_TEXT_ENTRY || n.type == TYPE_TEXT_LABEL || n.type == TYPE_PROGRESS_BAR) return true;
    return !onWindows() && (n.type == TYPE_TOGGLE || n.type == TYPE_VALUE_ENTRY || n.type == TYPE_VALUE_LABEL);
}

void keepStep(const Box& box) {
    design.undoX = box.x;
    design.undoY = box.y;
    design.undoWidth = box.width;
    design.undoHeight = box.height;
}

void followHeight(WidgetNode& node, int oldYpos) {
    if (hasFixedHeight(node)) {
        node.height = singleLineHeight();
        node.ypos = oldYpos;
    }
    if (node.type == TYPE_TEXT_ENTRY || node.type == TYPE_TEXT_LABEL) fitFieldWidth(node, true);
}

void readGroupGeometry() {
    const Box pixels = readPixels(design.groupPanel);
    const Box now = inProjectUnit(pixels);
    const Box before = {design.groupLeft, design.groupTop, design.groupRight - design.groupLeft,
                        design.groupBottom - design.groupTop};
    if (now.width != before.width || now.height != before.height) {
        placeLive(design.groupPanel, before); // a group keeps its size
        owDrawWidget(design.groupPanel);
        return;
    }
    keepStep(before);
    const int dx = now.x - before.x, dy = now.y - before.y;
    for (WidgetNode* copy = design.selectionList; copy; copy = copy->next) {
        copy->xpos += dx;
        copy->ypos += dy;
        if (WidgetNode* real = findName(project.forms, copy->name, false)) {
            real->xpos += dx;
            real->ypos += dy;
        }
    }
}

void putBack(WidgetNode& widget) {
    const int parent = widget.type == TYPE_PANE ? -widget.parentHandle : widget.parentHandle;
    owEraseWidget(widget.handle);
    realiseWidget(widget, parent, false);
    redrawWidget(widget, false);
    if (design.selectionList) design.selectionList->handle = widget.handle;
}

void refuseDrop(WidgetNode* single, bool known) {
    if (single || !known)
        host.errorBox("Widget placement", "Widgets can only be placed on forms or other container widgets");
    if (single)
        putBack(*single);
    else
        ungroupSelection(design.selectionList, nullptr);
}

// Whether `node` is `root` or lies below it: a widget can't be dropped into itself.
bool liesWithin(const WidgetNode* node, const WidgetNode* root) {
    for (; node; node = node->parent)
        if (node == root) return true;
    return false;
}

// Position along one axis in a new parent, for the corner that the drop left at `corner` from its left or top.
int positionFrom(int origin, int corner, int extent, int parentExtent, int old) {
    if (origin == 0) return old;
    return origin < 0 ? corner : parentExtent - corner - extent;
}

// Gives the selection its place in the parent that it was dropped on.
void placeInParent(const WidgetNode& target) {
    constexpr int CORNER_VALUES = 2;
    if (action.count < CORNER_VALUES) return;
    const Box corner = inProjectUnit({action.iargs[0], action.iargs[1], 0, 0});
    WidgetNode& first = *design.selectionList;
    if (!first.next) {
        first.xpos = positionFrom(first.hpos, corner.x, first.width, target.width, first.xpos);
        first.ypos = positionFrom(-first.vpos, corner.y, first.height, target.height, first.ypos);
        return;
    }
    int left = first.xpos, top = first.ypos;
    for (const WidgetNode* copy = &first; copy; copy = copy->next) {
        left = std::min(left, copy->xpos);
        top = std::min(top, copy->ypos);
    }
    for (WidgetNode* copy = &first; copy; copy = copy->next) {
        copy->xpos += corner.x - left;
        copy->ypos += corner.y - top;
    }
}

// True when the widgets have gone over to the widget of that handle.
bool dropOn(int handle, WidgetNode* single) {
    WidgetNode* target = findHandle(handle);
    if (target && single && liesWithin(target, single)) target = nullptr;
    if (!target) {
        refuseDrop(single, false);
        return false;
    }
    project.currentWidget = target;
    const bool allowed = checkPasteParent(design.selectionList);
    target = project.currentWidget; // a form gives way to its main panel
    project.currentWidget = single;
    if (!allowed) {
        refuseDrop(single, true);
        return false;
    }
    readGeometry(single);
    if (!single) ungroupSelection(design.selectionList, nullptr);
    placeInParent(*target);
    moveSelectionTo(target, !single);
    return true;
}

} // namespace

void moveSelectionTo(WidgetNode* target, bool group) {
    hooks.commitEditor();
    deleteList(design.pasteBuffer);
    design.pasteBuffer = copyNode(design.selectionList, true);
    design.undoWidget = nullptr; // it comes back as another record; the step stays
    removeWidget(design.selectionList, true, true);
    project.currentWidget = target;
    WidgetNode* inserted = insertClones(design.pasteBuffer);
    deleteList(design.selectionList);
    design.selectionList = copyNode(inserted, group);
    deleteList(design.pasteBuffer);
    design.pasteBuffer = nullptr;
    hooks.commandStatus(CMD_PASTE, OUNSELECTABLE);
    project.currentWidget = group ? nullptr : inserted;
    hooks.bindCode(inserted); // the record that the code editor was bound to may be gone
    if (group) return;
    hooks.showProperties(inserted);
    design.undoWidget = inserted;
}

void fitFieldWidth(WidgetNode& node, bool keepRich) {
    if (node.height > singleLineHeight()) {
        if (node.fieldWidth == LINE) node.fieldWidth = node.subType != 0 ? LONG_RICH : LONG_TEXT;
    } else if (node.fieldWidth > LINE && !(keepRich && node.subType == ORICHEDIT)) {
        node.fieldWidth = LINE;
    }
}

void readGeometry(WidgetNode* node) {
    if (!node) return readGroupGeometry();
    const Box before = boxOf(*node);
    keepStep(before);
    const Box now = inProjectUnit(readPixels(node->handle));
    node->xpos = now.x;
    node->ypos = now.y;
    node->width = now.width;
    node->height = node->type == TYPE_COMBO_BOX ? before.height : now.height;
    const bool higher = node->height != before.height;
    if (higher) followHeight(*node, before.y);
    if ((higher || node->width != before.width) && isRebuiltAfterResize(*node, higher)) {
        rebuildWidget(*node);
        hooks.showProperties(node);
    } else {
        if (project.gridMode == 1) {
            placeLive(node->handle, boxOf(*node)); // whole cells
            owDrawWidget(node->handle);
        }
        hooks.refreshProperties();
    }
    deleteList(design.selectionList);
    design.selectionList = copyNode(node, false);
}

void movedCommand() {
    if (!design.selectionList) return;
    refreshSelectionList();
    WidgetNode* single = project.currentWidget;
    hooks.commandStatus(CMD_UNDO, OSELECTABLE);
    hooks.commandStatus(CMD_REDO, OUNSELECTABLE);
    design.undoAvailable = 1;
    design.redoAvailable = 0;
    design.undoWidget = single;
    design.undoParent = 0;
    owAdoptChild(0, 0, 0);
    WidgetNode* parent = findHandle(design.selectionList->parentHandle);
    if (action.status == design.selectionList->parentHandle) {
        readGeometry(single);
        if (!single && parent) {
            buildGroupPanel(*parent, design.selectionList, true);
            return markChanged();
        }
    } else {
        design.undoParent = design.selectionList->parentHandle;
        if (dropOn(action.status, single)) parent = findHandle(design.selectionList->parentHandle);
    }
    if (project.currentWidget) {
        activateWidget(project.currentWidget);
        adoptWidget(*project.currentWidget);
    } else if (parent) {
        buildGroupPanel(*parent, design.selectionList, false);
    }
    markChanged();
}
