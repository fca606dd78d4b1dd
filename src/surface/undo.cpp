// One step back: the last drag. The stored geometry is the other end of the step, and taking the step swaps it with the
// widget's own, so that undo and redo are one thing.
#include "surface/clipboard.h"

#include "menu-c.h"
#include "project/tree.h"
#include "surface/commands.h"
#include "surface/geometry.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/selection.h"
#include "surface/state.h"

namespace {

Box storedBox() { return {design.undoX, design.undoY, design.undoWidth, design.undoHeight}; }

void stepInPlace(WidgetNode& widget) {
    placeLive(widget.handle, storedBox());
    readGeometry(&widget);
    redrawWidget(widget, false);
    adoptWidget(widget);
}

void stepGroupInPlace() {
    placeLive(design.groupPanel, storedBox());
    readGeometry(nullptr);
    owDrawWidget(design.groupPanel);
    if (WidgetNode* parent = findHandle(design.selectionList->parentHandle))
        buildGroupPanel(*parent, design.selectionList, true);
}

// Back to the parent that the widgets came from.
void stepBetweenParents(WidgetNode* single) {
    WidgetNode* target = findHandle(design.undoParent);
    if (!target) return;
    design.undoParent = design.selectionList->parentHandle;
    placeLive(single ? single->handle : design.groupPanel, storedBox());
    readGeometry(single);
    if (!single) ungroupSelection(design.selectionList, nullptr);
    moveSelectionTo(target, !single);
    if (project.currentWidget)
        adoptWidget(*project.currentWidget);
    else
        buildGroupPanel(*target, design.selectionList, false);
}

void step(int& available, int& other, int command, int otherCommand) {
    WidgetNode* single = project.currentWidget;
    if (!available || single != design.undoWidget || !design.selectionList) return;
    owAdoptChild(0, 0, 0);
    if (design.undoParent)
        stepBetweenParents(single);
    else if (single)
        stepInPlace(*single);
    else
        stepGroupInPlace();
    available = 0;
    other = 1;
    hooks.commandStatus(command, OUNSELECTABLE);
    hooks.commandStatus(otherCommand, OSELECTABLE);
    markChanged();
}

} // namespace

void undoCommand() { step(design.undoAvailable, design.redoAvailable, CMD_UNDO, CMD_REDO); }
void redoCommand() { step(design.redoAvailable, design.undoAvailable, CMD_REDO, CMD_UNDO); }
