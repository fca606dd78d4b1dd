#include "surface/pointer.h"

#include "menu-c.h"
#include "project/tree.h"
#include "surface/commands.h"
#include "surface/event.h"
#include "surface/geometry.h"
#include "surface/hooks.h"
#include "surface/selection.h"
#include "surface/state.h"

#include <algorithm>
#include <tuple>

namespace {

constexpr int DRAWING_UNITS = -1; // status of an event of a graphics frame: its position is in the frame's own units

bool isDocked(const WidgetNode& node) { return node.type == TYPE_TOOL_BAR || node.type == TYPE_PANE; }

Box inUnits(int x, int y) { return inProjectUnit({x, y, 0, 0}); }

bool insideBand(const WidgetNode& child, const WidgetNode& parent) {
    const Edges edges = edgesOf(child, parent.width, parent.height);
    return edges.left >= design.bandStartX && edges.top >= design.bandStartY && edges.right <= design.bandEndX &&
           edges.bottom <= design.bandEndY;
}

// The children of `parent` that lie inside the band.
Records selectInRectangle(const WidgetNode& parent) {
    Records caught;
    for (WidgetNode* child = parent.child; child; child = child->next)
        if (!isDocked(*child) && insideBand(*child, parent)) caught.push_back(child);
    return caught;
}

// What lies at a point of `parent`, in the project's unit: the foremost child, null for none.
WidgetNode* childAt(const WidgetNode& parent, int x, int y) {
    WidgetNode* found = nullptr;
    for (WidgetNode* child = parent.child; child; child = child->next) {
        const Edges edges = edgesOf(*child, parent.width, parent.height);
        const bool inside = x >= edges.left && x < edges.right && y >= edges.top && y < edges.bottom;
        if (inside && !isDocked(*child)) found = child;
    }
    return found;
}

void selectForm(WidgetNode& panel) {
    WidgetNode* form = formOf(&panel, project.forms);
    if (form && !form->selected) selectWidget(form);
    hooks.formFileForgotten();
}

// The container in which a group was clicked beside all widgets.
void selectContainer(WidgetNode& parent) {
    if (parent.type == TYPE_MAIN_PANEL) return selectForm(parent);
    selectWidget(parent.parent && parent.parent->type == TYPE_TAB_BOX ? parent.parent : &parent);
}

// The selected widgets and those of `others` that are not.
Records selectionWith(const Records& others) {
    Records all = design.selection;
    for (WidgetNode* one : others)
        if (std::ranges::find(all, one) == all.end()) all.push_back(one);
    return all;
}

bool keepsSelection(const WidgetNode& container) {
    return owEnqShiftKey() && !design.selection.empty() && design.selection.front()->parent == &container;
}

} // namespace

PixelPoint eventPoint(const WidgetNode& container) {
    if (container.type != TYPE_GRAPHICS_FRAME || action.status != DRAWING_UNITS)
        return {static_cast<int>(action.xpos), static_cast<int>(action.ypos)};
    const float wide = container.xMax - container.xMin, high = container.yMax - container.yMin;
    if (wide == 0 || high == 0) return {0, 0};
    const Box pixels = readPixels(container.handle);
    return {static_cast<int>((action.xpos - container.xMin) / wide * static_cast<float>(pixels.width)),
            static_cast<int>((container.yMax - action.ypos) / high * static_cast<float>(pixels.height))};
}

bool holdsBand(const WidgetNode& node) {
    return node.type == TYPE_MAIN_PANEL || node.type == TYPE_PANEL || node.type == TYPE_RADIO_BOX ||
           node.type == TYPE_GRAPHICS_FRAME;
}

void pressOn(const WidgetNode& container) {
    design.rubberBandArmed = 1;
    if (container.type != TYPE_MAIN_PANEL) design.panelBandArmed = 1;
    design.bandContainer = container.id;
    const PixelPoint at = eventPoint(container);
    design.bandStartX = at.x;
    design.bandStartY = at.y;
    if (!owEnqShiftKey()) dropSelection(); // with Shift what is caught comes to the selection
}

void releaseOn(WidgetNode& mainPanel) {
    if (!design.rubberBandArmed) return;
    const Band band = endRubberBand(mainPanel);
    if (band != Band::Caught && !keepsSelection(mainPanel)) selectForm(mainPanel);
}

Band endRubberBand(WidgetNode& container) {
    const PixelPoint at = eventPoint(container);
    design.rubberBandArmed = 0;
    design.bandEndX = at.x;
    design.bandEndY = at.y;
    if (at.x == design.bandStartX && at.y == design.bandStartY) return Band::Still;
    const Box start = inUnits(design.bandStartX, design.bandStartY), end = inUnits(at.x, at.y);
    std::tie(design.bandStartX, design.bandEndX) = std::minmax({start.x, end.x + 1});
    std::tie(design.bandStartY, design.bandEndY) = std::minmax({start.y, end.y + 1});
    const Records caught = selectInRectangle(container);
    if (!caught.empty()) groupSelection(keepsSelection(container) ? selectionWith(caught) : caught);
    showSelectionCount();
    return caught.empty() ? Band::Empty : Band::Caught;
}

namespace {

void groupClickedCommand() {
    if (!groupStands()) return;
    WidgetNode& parent = *design.selection.front()->parent;
    const Box inGroup = inUnits(static_cast<int>(action.xpos), static_cast<int>(action.ypos));
    WidgetNode* clicked = childAt(parent, design.groupBox.x + inGroup.x, design.groupBox.y + inGroup.y);
    if (!owEnqShiftKey()) {
        if (!clicked) return selectContainer(parent);
        return selectWidget(clicked);
    }
    if (!clicked) return;
    Records members = design.selection;
    if (std::erase(members, clicked) == 0) members.push_back(clicked);
    ungroup();
    design.selection = {};
    groupSelection(members);
    showSelectionCount();
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_GROUP_CLICKED, .handler = groupClickedCommand},
};
// clang-format on

} // namespace

std::span<const Command> pointerCommands() { return COMMANDS; }
