#include "properties/edits.h"

#include "menu-c.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "surface/geometry.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/state.h"

#include <algorithm>

namespace {

constexpr int SMALLEST_PIXELS = 25, SMALLEST_CELLS = 1;

// A live position or size, in the unit of the record.
void setLiveGeometry(const WidgetNode& node, int keyword, int value) {
    if (node.handle <= 0) return;
    setGridMode(design.defaultsMode ? 0 : project.gridMode);
    owSetWidgetProp(node.handle, keyword, value, 0);
    setGridMode(0);
}

void moveBar(const WidgetNode& bar) {
    if (bar.handle <= 0) return;
    if (bar.type == TYPE_TOOL_BAR)
        owSetToolbarPos(bar.handle, bar.xpos, bar.ypos, bar.width, bar.initialPosition);
    else
        owSetPanePos(bar.handle, bar.xpos, bar.ypos, bar.width, bar.height, bar.initialPosition);
}

// What is docked takes its size when it comes to its window, and never after.
bool isSizedByItsWindow(const WidgetNode& node) {
    return node.onToolbar != 0 || (node.type == TYPE_PANE && node.initialPosition != OFLOATING);
}

// A size of nothing can't be seen or dragged; a panel may have it all the same.
int visibleSize(const WidgetNode& node, int size) {
    const bool panel = node.type == TYPE_PANEL && !design.defaultsMode;
    if (size != 0 || panel) return size;
    return project.gridMode == 1 ? SMALLEST_CELLS : SMALLEST_PIXELS;
}

void resizeMainPanel(WidgetNode& form, int WidgetNode::*side) {
    if (form.type == TYPE_FORM && form.child) form.child->*side = form.*side;
}

struct Extent {
    int width, height;
};

// Of what a widget's position counts from, in the project's unit: its parent, or the screen for a form.
Extent surroundings(const WidgetNode& node) {
    if (node.type != TYPE_FORM) {
        const WidgetNode* parent = parentOf(&node, project.forms);
        return parent ? Extent{parent->width, parent->height} : Extent{node.width, node.height};
    }
    int width = 0, height = 0;
    owEnqScreenSize(&width, &height);
    if (project.gridMode != 1) return {width, height};
    return {width / std::max(project.gridPixelX, 1), height / std::max(project.gridPixelY, 1)};
}

// Types that grow along one line only can't be expanded from the middle of a side.
bool mayExpand(const WidgetNode& node) {
    const int p = originCode(node);
    const bool acrossOnly = node.type == TYPE_COMBO_BOX || isValue(node);
    if (p == 1 || p == 7) return true;
    return !acrossOnly && (p == 3 || p == 4 || p == 5);
}

} // namespace

void editPosition(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    target.*row.whole = static_cast<int>(input.number);
    if (isBarOrPane(target))
        moveBar(target);
    else
        setLiveGeometry(target, row.keyword, target.*row.whole);
    redrawLive(target);
    markEdited();
}

void editWidth(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    target.width = visibleSize(target, static_cast<int>(input.number));
    if (isSizedByItsWindow(target))
        rebuildFormOf(target);
    else if (target.type == TYPE_PANE)
        moveBar(target);
    else
        setLiveGeometry(target, row.keyword, target.width);
    resizeMainPanel(target, &WidgetNode::width);
    const bool rebuilt = target.type == TYPE_PROGRESS_BAR || target.type == TYPE_PANEL;
    rebuilt ? rebuildLive(target) : redrawLive(target);
    markEdited();
}

void editHeight(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    target.height = visibleSize(target, static_cast<int>(input.number));
    if (target.type == TYPE_TEXT_ENTRY && target.subType == OSECURITY)
        target.height = std::min(target.height, singleLineHeight());
    if (isText(target)) fitFieldWidth(target, false);
    if (isSizedByItsWindow(target))
        rebuildFormOf(target);
    else if (target.type == TYPE_PANE)
        moveBar(target);
    else
        setLiveGeometry(target, row.keyword, target.height);
    resizeMainPanel(target, &WidgetNode::height);
    const bool rebuilt = isText(target) || target.type == TYPE_PROGRESS_BAR || target.type == TYPE_PANEL;
    markEdited();
    if (!rebuilt) return redrawLive(target);
    rebuildLive(target);
    if (!design.defaultsMode && project.currentWidget) hooks.showProperties(project.currentWidget);
}

void editOrigin(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    const Extent around = surroundings(target);
    const bool across = row.id == ROW_HORIZONTAL;
    const int height = target.type == TYPE_COMBO_BOX ? 1 : target.height;
    if (across)
        target.xpos = around.width - target.xpos - target.width;
    else
        target.ypos = around.height - target.ypos - height;
    target.*row.whole = input.value;
    setLiveGeometry(target, row.keyword, input.value);
    setLiveGeometry(target, across ? owXpos : owYpos, across ? target.xpos : target.ypos);
    const bool expands = target.type != TYPE_FORM && target.type != TYPE_TOGGLE;
    if (expands && target.expand != 0 && !mayExpand(target)) {
        target.expand = 0;
        setLive(target, owExpand, 0);
    }
    redrawLive(target);
    markEdited();
}

void editExpand(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    target.expand = input.value;
    setLive(target, owExpand, input.value);
    if (input.value == 0) {
        setLiveGeometry(target, owWidth, target.width);
        setLiveGeometry(target, owHeight, target.height);
    }
    redrawLive(target);
    markEdited();
}

void editBarPosition(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    target.*row.whole = input.value;
    moveBar(target);
    redrawLive(target);
    if (!design.defaultsMode) activateWidget(&target);
    markEdited();
}
