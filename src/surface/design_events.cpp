// From an event on a form to the record that it means: selecting, and the bars and panes that dock themselves.
#include "surface/selection.h"

#include "menu-c.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "surface/clipboard.h"
#include "surface/commands.h"
#include "surface/event.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/placing.h"
#include "surface/pointer.h"
#include "surface/state.h"

#include <algorithm>
#include <array>

namespace {

// The record that an identifier stands for: its general event, or the select event where that is what it raises.
WidgetNode* findByCallback(int id) {
    if (id <= 0 || isCommand(id)) return nullptr;
    WidgetNode* node = findHandle(id);
    if (node && node->designCallbackId == id) return node;
    node = findHandle(id - OBJECT_SELECT_OFFSET);
    const bool selects = node && is(*node, ANSWERS_SELECT);
    const bool lostFocus = action.status == 0;
    return selects && !lostFocus && node->designSelectId == id ? node : nullptr;
}

void restoreValue(const WidgetNode& node) {
    if (node.type == TYPE_SLIDER) owSetSliderValue(node.handle, static_cast<double>(node.value));
    if (node.type == TYPE_GAUGE) owSetGaugeValue(node.handle, static_cast<int>(node.value));
}

void takeValue(WidgetNode& node) {
    float value = node.value;
    if (node.type == TYPE_SLIDER) owEnqSliderValue(node.handle, &value);
    if (node.type == TYPE_GAUGE) {
        int whole = 0;
        owEnqGaugeValue(node.handle, &whole);
        value = static_cast<float>(whole);
    }
    if (node.type != TYPE_SLIDER && node.type != TYPE_GAUGE) return;
    node.value = value;
    hooks.refreshProperties();
    markChanged();
}

void takeDocking(WidgetNode& bar) {
    int x = 0, y = 0, width = 0, height = 0, floatWidth = 0, floatHeight = 0, position = 0;
    if (bar.type == TYPE_TOOL_BAR) {
        owEnqToolbarPos(bar.handle, &x, &y, &width, &position);
        floatWidth = width;
    } else {
        owEnqPanePos(bar.handle, &x, &y, &width, &height, &floatWidth, &floatHeight, &position);
    }
    if (position == 0) return; // hidden by its close box: the record keeps where it was
    bar.initialPosition = position;
    const bool floating = position == OFLOATING;
    if (floating) {
        bar.xpos = x;
        bar.ypos = y;
        bar.width = floatWidth;
        if (bar.type == TYPE_PANE) bar.height = floatHeight;
    } else if (bar.type == TYPE_PANE) {
        bar.width = width;
        bar.height = height;
    }
    hooks.refreshProperties();
    markChanged();
}

void barEvent(WidgetNode& bar) {
    if (action.status != OCLOSED) return takeDocking(bar);
    if (!bar.selected) selectWidget(&bar);
    deleteCommand();
}

// A page of a tab box stands for its box.
WidgetNode* standsFor(WidgetNode* found) {
    const bool page = isTabPage(*found);
    return page ? found->parent : found;
}

// Works the selector on `found`; false when the event is none of its own.
bool selectorEvent(WidgetNode* found) {
    if (design.panelBandArmed) {
        design.panelBandArmed = 0;
        if (!holdsBand(*found)) return false;
        if (endRubberBand(*found) != Band::Still) return false;
    }
    found = standsFor(found);
    if (!found->selected) {
        restoreValue(*found);
        if (!shiftAdds(*found)) selectWidget(found);
    } else {
        adoptWidget(*found);
        takeValue(*found);
    }
    if (isBarOrPane(*found)) barEvent(*found);
    return true;
}

// A press on a panel drops the selection; what it leaves selected is the current widget again.
void restoreSelection() {
    if (project.currentWidget && design.selection.empty() && !design.rubberBandArmed)
        design.selection = {project.currentWidget};
}

// An entry that is chosen in a form's menu leads to its code.
bool menuEvent(int id) {
    if (id <= 0 || isCommand(id)) return false;
    for (WidgetNode* form = project.forms; form; form = form->next) {
        const auto chosen = std::ranges::find(form->entries, id, &MenuEntryRec::callbackId);
        if (chosen == form->entries.end() || chosen->kind != MENU_ENTRY) continue;
        const std::string name = chosen->name;
        selectTool(TOOL_SELECTOR);
        hooks.showEntryCallback(*form, name);
        return true;
    }
    return false;
}

} // namespace

void designEvent(int id) {
    if (menuEvent(id)) return;
    WidgetNode* found = findByCallback(id);
    if (!found) {
        formEvent(id);
        return restoreSelection();
    }
    design.helpContext = "Form";
    hooks.commandStatus(CMD_ALIGN, OUNSELECTABLE);
    bool handled = false;
    if (design.activeTool != TOOL_SELECTOR) {
        placeWithTool(*found);
        handled = true;
    } else if (found->type != TYPE_FORM && found->type != TYPE_MAIN_PANEL) {
        handled = selectorEvent(found);
        hooks.leaveTextMode();
    }
    if (handled) design.panelBandArmed = 0;
    if (!handled) formEvent(id);
    restoreSelection();
    if (groupStands()) hooks.commandStatus(CMD_ALIGN, OSELECTABLE);
}

namespace {

void newFormCommand() {
    dropSelection();
    hooks.commitEditor();
    selectTool(TOOL_SELECTOR);
    realiseForms(newForm());
    hooks.formFileForgotten();
    markChanged();
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_NEW_FORM, .label = "Form|Ctrl+F", .mnemonic = 'F', .key = controlKey('F'), .menuIcon = "newform&", .barIcon = "newform", .bubbleHelp = "New Form", .handler = newFormCommand},
};
// clang-format on

} // namespace

std::span<const Command> designEventCommands() { return COMMANDS; }
