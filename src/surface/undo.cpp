// One step back: the last drag.
#include "surface/clipboard.h"

#include "menu-c.h"
#include "project/placement.h"
#include "project/tree.h"
#include "surface/commands.h"
#include "surface/geometry.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/selection.h"
#include "surface/state.h"

#include <algorithm>
#include <utility>

namespace {

// The step is about what is selected now.
bool stepIsOfSelection() {
    return !design.selection.empty() && std::ranges::equal(design.selection, design.undo.records, {}, &WidgetNode::id);
}

bool stepInPlace() {
    WidgetNode& widget = *design.selection.front();
    const Box other = boxOf(widget);
    placeLive(widget.handle, design.undo.box);
    if (!takeGeometry(widget)) return false;
    design.undo.box = other;
    redrawWidget(widget, false);
    return true;
}

bool stepGroupInPlace() {
    const Box other = design.groupBox;
    placeLive(design.groupPanel, design.undo.box);
    if (!takeGroupGeometry()) return false;
    design.undo.box = other;
    owDrawWidget(design.groupPanel);
    return true;
}

void placeSelection(const Box& box) {
    if (groupStands()) {
        for (WidgetNode* one : design.selection) {
            one->xpos += box.x - design.groupBox.x;
            one->ypos += box.y - design.groupBox.y;
        }
        return;
    }
    WidgetNode& only = *design.selection.front();
    only.xpos = box.x;
    only.ypos = box.y;
    only.width = box.width;
    only.height = box.height;
}

// To the parent that the widgets came from, and to their places among its children.
bool stepBetweenParents() {
    WidgetNode* target = findRecord(design.undo.parent);
    if (!target || !design.selection.front()->parent || refusalToHold(*target, design.selection).text) return false;
    DragStep back = stepBack();
    placeSelection(design.undo.box);
    moveSelectionTo(*target, design.undo.places);
    design.undo = std::move(back);
    return true;
}

void step(bool undo) {
    const bool available = undo ? design.undo.undoable : design.undo.redoable;
    if (!available || !stepIsOfSelection()) return;
    owAdoptChild(0, 0, 0);
    const bool group = groupStands();
    const bool done = design.undo.parent ? stepBetweenParents() : group ? stepGroupInPlace() : stepInPlace();
    adoptSelection();
    if (!done) return;
    design.undo.undoable = !undo;
    design.undo.redoable = undo;
    hooks.commandStatus(undo ? CMD_UNDO : CMD_REDO, OUNSELECTABLE);
    hooks.commandStatus(undo ? CMD_REDO : CMD_UNDO, OSELECTABLE);
    markChanged();
}

} // namespace

void showUndoState(const WidgetNode* found) {
    const DragStep& last = design.undo;
    const bool own = found && last.records == std::vector<int>{found->id};
    hooks.commandStatus(CMD_UNDO, own && last.undoable ? OSELECTABLE : OUNSELECTABLE);
    hooks.commandStatus(CMD_REDO, own && last.redoable ? OSELECTABLE : OUNSELECTABLE);
}

namespace {

void undoCommand() { step(true); }

void redoCommand() { step(false); }

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_UNDO, .label = "Undo Move/Resize Widget|Ctrl+Z", .mnemonic = 'd', .key = controlKey('Z'), .menuIcon = "undo&", .when = STARTS_DISABLED, .handler = undoCommand},
    {.id = CMD_REDO, .label = "Redo Move/Resize Widget|Ctrl+Y", .mnemonic = 'R', .key = controlKey('Y'), .menuIcon = "redo&", .when = STARTS_DISABLED, .handler = redoCommand},
};
// clang-format on

} // namespace

std::span<const Command> undoCommands() { return COMMANDS; }
