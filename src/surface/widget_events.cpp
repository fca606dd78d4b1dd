// Widgets on a form that work while they are selected: text is typed, values are entered, boxes are ticked.
#include "surface/selection.h"

#include "menu-c.h"
#include "project/host.h"
#include "project/tree.h"
#include "surface/commands.h"
#include "surface/event.h"
#include "surface/field_text.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/state.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace {

bool showsItself(const WidgetNode& node) { return &node == project.currentWidget; }

void switchOff(WidgetNode& radioBox) {
    for (WidgetNode* button = radioBox.child; button; button = button->next) {
        if (button->type != TYPE_TOGGLE) continue;
        button->initialStatus = 0;
        owSetToggleSwitch(button->handle, 0);
    }
}

void refusePlacement(const WidgetNode& toggle) {
    owSetToggleSwitch(toggle.handle, toggle.initialStatus);
    host.errorBox("Not a valid parent widget", "This widget cannot support child widgets");
    owSetActiveWidget(toggle.handle);
    selectTool(TOOL_SELECTOR);
}

void takeSwitch(WidgetNode& toggle) {
    owAdoptChild(0, 0, 0);
    int status = 0;
    owEnqToggleSwitch(toggle.handle, &status);
    if (toggle.parent && toggle.parent->type == TYPE_RADIO_BOX) switchOff(*toggle.parent);
    toggle.initialStatus = status;
    owSetToggleSwitch(toggle.handle, status);
    hooks.refreshProperties();
    if (!design.unadopted) adoptWidget(toggle);
    markChanged();
}

// The text of the live widget goes into its record; true when that holds it now.
bool takeText(WidgetNode& node) {
    const std::string before = node.text;
    if (!storeFieldText(node, liveText(node, node.subType == ORICHEDIT))) return false;
    if (node.text == before) return true;
    if (showsItself(node)) hooks.refreshProperties();
    markChanged();
    return true;
}

// The value of the live widget goes into its record; false when that held it already.
bool takeEnteredValue(WidgetNode& node) {
    float value = 0;
    owEnqValueSetting(node.handle, &value);
    if (value == node.value) return false;
    node.value = value;
    if (showsItself(node)) hooks.refreshProperties();
    markChanged();
    return true;
}

} // namespace

void takeTypedText() {
    WidgetNode* node = project.currentWidget;
    if (!node || node->handle <= 0) return;
    if (node->type == TYPE_TEXT_ENTRY && owTextUndoAction(node->handle, OCANUNDO)) takeText(*node);
    if (node->type == TYPE_VALUE_ENTRY) takeEnteredValue(*node);
}

namespace {

void textEditedCommand() {
    WidgetNode* node = findHandle(action.widget);
    if (!node || node->type != TYPE_TEXT_ENTRY || !takeText(*node)) return;
    owSetTextSetting(node->handle, node->text.c_str(), owEntryType, node->subType == ORICHEDIT ? 1 : 0, 0);
    const bool lines = !isSingleLine(*node) && node->subType != ORICHEDIT;
    if (lines && node->justify != OLEFT) owSetParagraphProp(node->handle, owJustify, node->justify, 0);
}

void entrySelectedCommand() {
    WidgetNode* node = findHandle(action.widget);
    if (!node) return;
    if (node->type == TYPE_VALUE_ENTRY) design.valueWidget = node->handle;
    if (design.activeTool != TOOL_SELECTOR || node->selected || shiftAdds(*node)) return;
    selectWidget(node);
}

void valueEditedCommand() {
    WidgetNode* node = findHandle(design.valueWidget);
    if (!node || node->type != TYPE_VALUE_ENTRY) return;
    if (takeEnteredValue(*node)) owSetValueSetting(node->handle, static_cast<double>(node->value));
}

void toggledCommand() {
    WidgetNode* node = findHandle(action.widget);
    if (!node || action.status == 1) return;
    if (design.activeTool != TOOL_SELECTOR) return refusePlacement(*node);
    if (!node->selected) {
        owSetToggleSwitch(node->handle, node->initialStatus);
        if (!shiftAdds(*node)) selectWidget(node);
        return;
    }
    takeSwitch(*node);
}

void doubleClickCommand() {
    struct Refusal {
        int type;
        const char* text;
    };
    constexpr Refusal REFUSALS[] = {
        {TYPE_TREE_VIEW, "Callbacks are not permitted on Tree Views,|only on their individual entries.||These are "
                         "accesed through the Tree View editor|by selecting Entries in the Properties window"},
        {TYPE_PROGRESS_BAR, "Callbacks are not permitted on Progress Bars"},
        {TYPE_TOOL_SEPARATOR, "Callbacks are not permitted on Toolbar Separators"},
    };
    WidgetNode* node = project.currentWidget;
    if (!node) return;
    const auto refusal = std::ranges::find(REFUSALS, node->type, &Refusal::type);
    if (refusal != std::end(REFUSALS)) return host.infoBox("Callback Editor", refusal->text);
    selectTool(TOOL_SELECTOR);
    hooks.showCallback(*node);
}

void unadoptCommand() {
    selectTool(TOOL_SELECTOR);
    owAdoptChild(0, 0, 0);
    design.unadopted = 1;
    hooks.commandStatus(CMD_UNADOPT, OCHECKED);
    hooks.keysChanged();
    owSetDesignCallback(0);
    activateWidget(project.currentWidget);
    markChanged();
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_UNADOPT, .label = "Unadopt Widget|Ctrl+U", .mnemonic = 'U', .key = controlKey('U'), .menuIcon = "unadopt&", .barIcon = "Unadopt", .bubbleHelp = "Unadopt Widget", .handler = unadoptCommand},
    {.id = CMD_DOUBLE_CLICK, .handler = doubleClickCommand},
    {.id = CMD_TEXT_EDITED, .handler = textEditedCommand},
    {.id = CMD_TEXT_SELECTED, .handler = entrySelectedCommand},
    {.id = CMD_VALUE_SELECTED, .handler = entrySelectedCommand},
    {.id = CMD_VALUE_EDITED, .handler = valueEditedCommand},
    {.id = CMD_TOGGLED, .handler = toggledCommand},
};
// clang-format on

} // namespace

std::span<const Command> widgetEventCommands() { return COMMANDS; }
