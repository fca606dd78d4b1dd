#include "properties/edits.h"

#include "menu-c.h"
#include "platform/letters.h"
#include "project/host.h"
#include "project/placement.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "surface/field_text.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/selection.h"
#include "surface/state.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr size_t CELL_LIMIT = 256; // a longer text can't be edited in a cell

void renameRecord(WidgetNode& node, const std::string& name) {
    const std::string old = node.name;
    renameNode(node, name);
    if (node.type != TYPE_MAIN_PANEL) hooks.nameChanged(old, name); // which stands in no list
    if (node.hierarchyItem) owSetTreeViewLabel(node.hierarchyItem, name.c_str());
}

// Names that begin with the form's follow it, those of menu and tree entries too.
void renameFamily(const std::string& from, const std::string& to) {
    for (WidgetNode* node = project.forms; node; node = walkList(node, project.forms)) {
        const std::string name = familyName(node->name, from, to);
        if (name != node->name) renameRecord(*node, name);
        for (MenuEntryRec& entry : node->entries) entry.name = familyName(entry.name, from, to);
    }
}

void setLiveLabel(const WidgetNode& node) {
    if (node.handle <= 0) return;
    OWIDGET info = {};
    setGridMode(design.defaultsMode ? 0 : project.gridMode);
    owEnqWidgetInfo(node.handle, &info);
    info.text[cutBetweenLetters(node.text, sizeof info.text - 1).copy(info.text, sizeof info.text)] = 0;
    owSetWidgetInfo(node.handle, &info);
    setGridMode(0);
}

bool acceleratorTaken(const WidgetNode& target, int key) {
    for (const WidgetNode* node = project.forms; node; node = walkList(node, project.forms))
        if (node != &target && node->accel == key) return true;
    return false;
}

} // namespace

void editName(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    if (input.text == target.name) return;
    if (!nameFree(input.text, &target)) {
        host.infoBox("Invalid Name", input.text + " is an empty, duplicate or invalid Fortran/C variable name");
        return;
    }
    const std::string clash = target.type == TYPE_FORM ? clashOfFormName(target, input.text) : std::string();
    if (!clash.empty()) {
        host.infoBox("Invalid Name", "The widgets of " + target.name + " would be renamed with it, and the name " +
                                         clash + " is taken already|Choose another name for the form");
        return;
    }
    hooks.commitEditor();
    const std::string old = target.name;
    renameRecord(target, input.text);
    if (target.type == TYPE_FORM) renameFamily(old, input.text);
    hooks.renameInCode(old, input.text);
    markEdited();
    selectWidget(&target);
}

void editText(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    if (isText(target)) {
        if (!isSingleLine(target) && target.text.size() >= CELL_LIMIT) {
            host.infoBox("Edit text property", "Use ... button to edit long strings");
            return;
        }
        if (!storeFieldText(target, input.text)) return;
        if (isSingleLine(target) && target.subType != ORICHEDIT)
            owSetTextSetting(target.handle, target.text.c_str(), 0);
        else
            rebuildLive(target); // its creation reads bars as line ends
    } else {
        target.text = input.text;
        if (target.type == TYPE_PANEL || target.type == TYPE_RADIO_BOX) target.titleFlag = input.text.empty() ? 0 : 1;
        if (target.onToolbar)
            rebuildFormOf(target);
        else if (target.type == TYPE_ICON)
            rebuildLive(target);
        else
            setLiveLabel(target);
    }
    redrawLive(target);
    markEdited();
}

void editBarTitle(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    target.text = input.text;
    rebuildFormOf(target);
    markEdited();
}

void editBubbleHelp(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    target.bubbleHelp = input.text;
    if (target.handle > 0) owSetWidgetHelp(target.handle, input.text.c_str(), owHelpJustify, target.helpJustify, 0);
    redrawLive(target);
    markEdited();
}

void editAccelerator(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    constexpr char32_t KEYS = 0x10000; // letters beyond have no key
    const char32_t letter = firstLetter(input.text);
    if (letter >= KEYS) return;
    const int key = static_cast<int>(letter);
    const bool shared = project.projectPlatform == 'w';
    if (!shared && key > ' ' && acceleratorTaken(target, key)) {
        host.infoBox("Duplicate Accelerator Key", "Accelerator key already in use by another widget");
        return;
    }
    storeAndFollow(target, row, {.text = {}, .value = key});
}

void editAlign(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    storeAndFollow(target, row, input);
    if (isText(target) && !isSingleLine(target)) rebuildLive(target);
}

void editArrayLabels(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    target.*row.text = storedArrayLabels(input.text);
    if (!design.defaultsMode) storeArrayGeometry(target);
    rebuildLive(target);
    markEdited();
}

void editActiveOnInit(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    WidgetNode* other = findActiveOnInit(project.forms);
    if (input.value && other && other != &target) {
        const int answer = host.messageBox("Active Widget already set",
                                           "A Widget is already set to be intially active |If you set this Widget to "
                                           "Active it'll reset the other|Do you wish to continue?",
                                           BOX_QUESTION, BOX_YES_NO);
        if (answer != ANSWER_YES) {
            target.activeOnInit = 0;
            return markEdited();
        }
        other->activeOnInit = 0;
    }
    target.activeOnInit = input.value;
    markEdited();
}
