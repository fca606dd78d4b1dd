// What a finished drag does to the records: move, resize, drop on another parent.
#include "surface/selection.h"

#include "menu-c.h"
#include "project/host.h"
#include "project/placement.h"
#include "project/timeline.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "surface/clipboard.h"
#include "surface/commands.h"
#include "surface/event.h"
#include "surface/geometry.h"
#include "surface/hierarchy.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/state.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace {

constexpr int LONG_RICH = 32767, LONG_TEXT = 30000, LINE = 255; // field widths

bool onWindows() { return project.projectPlatform == 'w'; }

bool hasFixedHeight(const WidgetNode& n) {
    if (n.type == TYPE_TEXT_ENTRY) return n.subType == OSECURITY;
    return !onWindows() && (n.type == TYPE_TOGGLE || isValue(n));
}

// Types whose live widget looks different at another size.
bool isRebuiltAfterResize(const WidgetNode& n, bool height) {
    if (n.type == TYPE_PANEL) return true;
    if (!height) return false;
    if (isText(n) || n.type == TYPE_PROGRESS_BAR) return true;
    return !onWindows() && (n.type == TYPE_TOGGLE || isValue(n));
}

void followHeight(WidgetNode& node, int oldYpos) {
    if (hasFixedHeight(node)) {
        node.height = singleLineHeight();
        node.ypos = oldYpos;
    }
    if (isText(node)) fitFieldWidth(node, true);
}

// A widget in the middle of its parent stays there, and one that grows with it keeps the size of its own: what a drag
// did along that line means nothing.
void keepToOrigin(const WidgetNode& node, Box& box) {
    if (node.hpos == OCENTRE) {
        box.x = node.xpos;
        if (node.expand != 0) box.width = node.width;
    }
    if (node.vpos == OMIDDLE) {
        box.y = node.ypos;
        if (node.expand != 0) box.height = node.height;
    }
}

void putBack(WidgetNode& widget) {
    const int parent = widget.type == TYPE_PANE ? -widget.parentHandle : widget.parentHandle;
    storeGeometryBelow(widget);
    owEraseWidget(widget.handle);
    realiseWidget(widget, parent, false);
    redrawWidget(widget, false);
}

// The group's panel shows the members where they are.
void putBackGroup() {
    placeLive(design.groupPanel, design.groupBox);
    owDrawWidget(design.groupPanel);
}

void refuseDrop(bool known) {
    WidgetNode* single = project.currentWidget;
    if (single || !known)
        host.errorBox("Widget placement", "Widgets can only be placed on forms or other container widgets");
    if (single)
        putBack(*single);
    else
        putBackGroup();
}

// Gives the selection its place in the parent that it was dropped on.
void placeInParent(const WidgetNode& target) {
    constexpr int CORNER_VALUES = 2;
    if (action.count < CORNER_VALUES) return;
    const Box corner = inProjectUnit({action.iargs[0], action.iargs[1], 0, 0});
    if (groupStands()) {
        for (WidgetNode* one : design.selection) {
            one->xpos += corner.x - design.groupBox.x;
            one->ypos += corner.y - design.groupBox.y;
        }
        return;
    }
    WidgetNode& only = *design.selection.front();
    only.xpos = positionFrom(only.hpos, corner.x, only.width, target.width, only.xpos);
    only.ypos = positionFrom(-only.vpos, corner.y, only.height, target.height, only.ypos);
}

bool holdsAny(const WidgetNode& target, const Records& records) {
    return std::ranges::any_of(records, [&](const WidgetNode* one) { return liesWithin(&target, one); });
}

Box boxOfSelection() { return groupStands() ? boxAround(design.selection) : boxOf(*design.selection.front()); }

// True when the widgets have gone over to the record.
bool dropOn(WidgetNode* target) {
    if (target) target = containerFor(target);
    if (!target || holdsAny(*target, design.selection)) return refuseDrop(false), false;
    if (!mayHold(*target, design.selection)) return refuseDrop(true), false;
    placeInParent(*target);
    moveSelectionTo(*target);
    return true;
}

bool moveInParent() { return groupStands() ? takeGroupGeometry() : takeGeometry(*design.selection.front()); }

// The steps of the arrow keys are one step of the timeline as long as they go on with the same widgets.
std::string nudgeOfSelection() {
    std::string nudge = "nudge";
    for (const WidgetNode* one : design.selection) nudge += " " + std::to_string(one->id);
    return nudge;
}

// ---- Arrow keys.

struct Arrow {
    int key, across, down;
};
constexpr Arrow ARROWS[] = {{OKEYLEFT, -1, 0}, {OKEYRIGHT, 1, 0}, {OKEYUP, 0, -1}, {OKEYDOWN, 0, 1}};
constexpr int SHIFTED = 1000, CONTROLLED = 2000; // added to the code of a key

// One step of an arrow key: by the snap grid, with Control by one unit.
int stepOf(bool control) {
    const bool cells = project.gridMode == 1;
    return control || cells ? 1 : std::max(owEnqSnapGrid(), 1);
}

// The selection after a step, no further out than the left and top edge of its parent.
Box boxAfter(const Arrow& arrow, int step, bool size) {
    Box box = boxOfSelection();
    if (size) {
        box.width = std::max(box.width + arrow.across * step, 1);
        box.height = std::max(box.height + arrow.down * step, 1);
        return box;
    }
    const WidgetNode& first = *design.selection.front();
    const auto moved = [step](int from, int direction, bool backwards) {
        const int to = from + (backwards ? -direction : direction) * step;
        return backwards || direction >= 0 ? to : std::max(to, std::min(from, 0));
    };
    box.x = moved(box.x, arrow.across, first.hpos == ORIGHT);
    box.y = moved(box.y, arrow.down, first.vpos == OBOTTOM);
    return box;
}

void nudge(const Arrow& arrow, bool control, bool size) {
    const bool group = groupStands();
    if (!group && (!project.currentWidget || !mayBeDragged(*project.currentWidget))) return;
    if (group && size) return; // a group keeps its size
    hooks.commitEditor();
    placeLive(group ? design.groupPanel : project.currentWidget->handle, boxAfter(arrow, stepOf(control), size));
    const bool moved = moveInParent();
    adoptSelection();
    if (!moved) return;
    markChanged();
    nameStep("", nudgeOfSelection());
}

// What a record takes from its new parent.
void followParent(WidgetNode& node, const WidgetNode& parent) {
    node.parentHandle = parent.handle;
    node.onToolbar = parent.type == TYPE_TOOL_BAR ? 1 : 0;
    followLook(node, parent);
}

WidgetNode* firstOf(const Records& siblings) {
    for (WidgetNode* child = siblings.front()->parent->child; child; child = child->next)
        if (std::ranges::find(siblings, child) != siblings.end()) return child;
    return nullptr;
}

} // namespace

void moveSelectionTo(WidgetNode& target) {
    hooks.commitEditor();
    ungroup();
    const Records moved = design.selection;
    std::vector<OwnedList> unlinked;
    for (WidgetNode* one : moved) {
        removeHierarchyEntry(*one, false);
        storeGeometryBelow(*one);
        owEraseWidget(one->handle);
        unlinked.push_back(unlinkNode(one));
    }
    clearPlaceholder(target);
    for (OwnedList& one : unlinked) linkChild(target, std::move(one));
    for (WidgetNode* one : moved) followParent(*one, target);
    nameCopies(moved);
    for (WidgetNode* one : moved) {
        realiseWidget(*one, target.handle, false);
        redrawWidget(*one, false);
    }
    if (WidgetNode* first = firstOf(moved)) rebuildHierarchyRows(*first);
    design.pasteBuffer = {}; // a drag goes through it
    hooks.commandStatus(CMD_PASTE, OUNSELECTABLE);
    hooks.bindCode(moved.front());
    if (project.currentWidget) hooks.showProperties(project.currentWidget);
}

void fitFieldWidth(WidgetNode& node, bool keepRich) {
    if (node.height > singleLineHeight()) {
        if (node.fieldWidth == LINE) node.fieldWidth = node.subType != 0 ? LONG_RICH : LONG_TEXT;
    } else if (node.fieldWidth > LINE && !(keepRich && node.subType == ORICHEDIT)) {
        node.fieldWidth = LINE;
    }
}

bool takeGroupGeometry() {
    const Box now = inProjectUnit(readPixels(design.groupPanel));
    const Box before = design.groupBox;
    if (now == before || now.width != before.width || now.height != before.height) {
        putBackGroup(); // a group keeps its size
        return false;
    }
    for (WidgetNode* one : design.selection) {
        one->xpos += now.x - before.x;
        one->ypos += now.y - before.y;
    }
    return true;
}

void giveBox(WidgetNode& node, const Box& box) {
    const Box before = boxOf(node);
    node.xpos = box.x;
    node.ypos = box.y;
    node.width = box.width;
    node.height = node.type == TYPE_COMBO_BOX ? before.height : box.height;
    if (node.height != before.height) followHeight(node, before.y);
}

bool takeGeometry(WidgetNode& node) {
    const Box before = boxOf(node);
    const Box live = inProjectUnit(readPixels(node.handle));
    Box now = live;
    keepToOrigin(node, now);
    giveBox(node, now);
    const bool higher = node.height != before.height;
    if ((higher || node.width != before.width) && isRebuiltAfterResize(node, higher)) {
        rebuildWidget(node);
        hooks.showProperties(&node);
    } else if (now != live) {
        putBack(node);
        hooks.refreshProperties();
    } else {
        if (project.gridMode == 1) {
            placeLive(node.handle, boxOf(node)); // whole cells
            owDrawWidget(node.handle);
        }
        hooks.refreshProperties();
    }
    return boxOf(node) != before;
}

namespace {

void movedCommand() {
    if (design.selection.empty() || !design.selection.front()->parent) return;
    hooks.commitEditor();
    owAdoptChild(0, 0, 0);
    const bool stays = action.status == design.selection.front()->parent->handle;
    const bool moved = stays ? moveInParent() : dropOn(findHandle(action.status));
    if (project.currentWidget) activateWidget(project.currentWidget);
    adoptSelection();
    if (moved) markChanged();
}

void designKeyCommand() {
    if (action.key == OKEYESC) {
        if (design.activeTool == TOOL_SELECTOR) return;
        selectTool(TOOL_SELECTOR);
        return adoptSelection();
    }
    const bool control = action.key >= CONTROLLED, shift = action.key % CONTROLLED >= SHIFTED;
    const auto arrow = std::ranges::find(ARROWS, action.key % SHIFTED, &Arrow::key);
    if (arrow != std::end(ARROWS) && !design.selection.empty()) nudge(*arrow, control, shift);
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_DESIGN_KEY, .handler = designKeyCommand},
    {.id = CMD_MOVED, .handler = movedCommand},
};
// clang-format on

} // namespace

std::span<const Command> moveCommands() { return COMMANDS; }
