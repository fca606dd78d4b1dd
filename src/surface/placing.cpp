#include "surface/placing.h"

#include "menu-c.h"
#include "project/placement.h"
#include "project/preferences.h"
#include "project/tree.h"
#include "surface/event.h"
#include "surface/geometry.h"
#include "surface/hierarchy.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/pointer.h"
#include "surface/selection.h"
#include "surface/state.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace {

constexpr int LEAST_DRAWN = 8; // pixels; less is a click

void showConversion(const Placement& placement) {
    if (!placement.converted) return;
    WidgetNode& box = *placement.converted;
    hooks.nameRemoved(placement.oldName);
    hooks.nameAdded(box.name);
    if (box.hierarchyItem) owSetTreeViewLabel(box.hierarchyItem, box.name.c_str());
    rebuildWidget(box);
}

WidgetNode* makeLive(WidgetNode& node, WidgetNode& parent) {
    clearPlaceholder(parent);
    if (node.handle > 0) owEraseWidget(node.handle); // a parent that was converted brought it to life with it
    realiseWidget(node, parent.handle, false);
    buildHierarchyEntry(node);
    return &node;
}

WidgetNode& containerOf(WidgetNode& record, WidgetNode& clicked) { return record.parent ? *record.parent : clicked; }

int snapped(int pixels) {
    const int snap = std::max(owEnqSnapGrid(), 1);
    return (pixels + snap / 2) / snap * snap;
}

// What was drawn along one line: 0 long where the pointer stayed.
struct Stroke {
    int from, length;
};
Stroke strokeOf(int start, int end) {
    if (std::abs(end - start) < LEAST_DRAWN) return {0, 0};
    const int from = snapped(std::max(std::min(start, end), 0));
    return {from, std::max(snapped(std::max(start, end)) - from, std::max(owEnqSnapGrid(), 1))};
}

// In pixels of `container`, on the snap grid; a width or height of 0 was not drawn. Nothing after a click.
std::optional<Box> drawnBox(const WidgetNode& container) {
    if (!design.rubberBandArmed || design.bandContainer != container.id) return {};
    const PixelPoint end = eventPoint(container);
    const Stroke across = strokeOf(design.bandStartX, end.x), down = strokeOf(design.bandStartY, end.y);
    if (across.length == 0 && down.length == 0) return {};
    return Box{across.from, down.from, across.length, down.length};
}

void giveDrawnBox(WidgetNode& node, const Box& pixels) {
    const bool docks = node.type == TYPE_TOOL_BAR || node.type == TYPE_PANE || node.type == TYPE_TOOL_SEPARATOR;
    if (docks || !node.parent || !holdsBand(*node.parent)) return;
    const Box drawn = inProjectUnit(pixels);
    Box box = boxOf(node);
    if (pixels.width > 0) box.width = std::max(drawn.width, 1);
    if (pixels.height > 0) box.height = std::max(drawn.height, 1);
    if (pixels.width > 0) box.x = positionFrom(node.hpos, drawn.x, box.width, node.parent->width, node.xpos);
    if (pixels.height > 0) box.y = positionFrom(-node.vpos, drawn.y, box.height, node.parent->height, node.ypos);
    node.ypos = box.y;
    giveBox(node, box);
}

} // namespace

void placeWithTool(WidgetNode& clicked) {
    if (design.skipPlacement) {
        design.skipPlacement = 0;
        return;
    }
    const std::optional<Box> drawn = drawnBox(clicked);
    const Placement placement = placeWidget(design.activeTool, &clicked, action.xpos, action.ypos);
    design.rubberBandArmed = 0;
    if (!placement.widget) return;
    if (drawn) giveDrawnBox(*placement.widget, *drawn);
    showConversion(placement);
    WidgetNode* widget = placement.widget;
    if (widget->type == TYPE_TAB_BOX) {
        makeLive(*widget, containerOf(*widget, clicked));
        if (WidgetNode* page = placeWidget(TOOL_PANEL, widget, 0, 0).widget) widget = page;
    }
    WidgetNode& container = containerOf(*widget, clicked);
    if (container.type == TYPE_TAB_BOX) widget->scrollMode = ONOBARS;
    if (container.type == TYPE_PANE) {
        widget->expand = 1;
        widget->vpos = OMIDDLE;
    }
    makeLive(*widget, container);
    selectWidget(widget);
    if (!preferences.repeatPlacement) selectTool(TOOL_SELECTOR);
    markChanged();
}
