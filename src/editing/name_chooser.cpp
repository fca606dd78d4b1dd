// Insert Widget Name: a popup of the families of widgets in the project, and the list of their names.

#include "editing/commands.h"
#include "editing/editor_window.h"
#include "editing/text_view.h"
#include "menu-c.h"
#include "project/code_stores.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "surface/dialogue_keys.h"
#include "surface/event.h"
#include "surface/hooks.h"

#include <array>
#include <iterator>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace {

enum class Source { Types, Forms, DynamicForms, MenuEntries, StatusBars, AllWidgets, TreeEntries };

struct Family {
    const char* label;
    char mnemonic;
    int command;
    const char* title; // of the chooser
    Source source;
    WidgetType types[2] = {};
    bool ruleAbove = false; // when there is an entry above it
};

constexpr bool RULE_ABOVE = true;

// clang-format off
constexpr Family FAMILIES[] = {
    {"Forms...", 'F', CMD_NAMES_FORMS, "Add Widget Name - Forms", Source::Forms},
    {"Forms(Dynamic)...", 'D', CMD_NAMES_DYNAMIC_FORMS, "Add Widget Name - Dynamic Forms", Source::DynamicForms},
    {"Menu entries...", 'M', CMD_NAMES_MENU_ENTRIES, "Add Widget Name - Menu Entries", Source::MenuEntries, {}, RULE_ABOVE},
    {"Status bars...", 'S', CMD_NAMES_STATUS_BARS, "Add Widget Name - Status Bars", Source::StatusBars},
    {"All child widgets...", 'A', CMD_ALL_NAMES, "Add Widget Name - All widgets", Source::AllWidgets, {}, RULE_ABOVE},
    {"Buttons...", 'B', CMD_NAMES_BUTTONS, "Add Widget Name - Buttons", Source::Types, {TYPE_BUTTON}, RULE_ABOVE},
    {"Combo boxes...", 'C', CMD_NAMES_COMBO_BOXES, "Add Widget Name - Combo boxes", Source::Types, {TYPE_COMBO_BOX}},
    {"Gauges...", 'u', CMD_NAMES_GAUGES, "Add Widget Name - Gauges", Source::Types, {TYPE_GAUGE}},
    {"Graphics frames...", 'G', CMD_NAMES_GRAPHICS_FRAMES, "Add Widget Name - Graphics frames", Source::Types, {TYPE_GRAPHICS_FRAME}},
    {"Icons...", 'I', CMD_NAMES_ICONS, "Add Widget Name - Icons", Source::Types, {TYPE_ICON}},
    {"Lists boxes...", 'L', CMD_NAMES_LIST_BOXES, "Add Widget Name - Lists boxes", Source::Types, {TYPE_LIST_BOX}},
    {"Panels...", 'P', CMD_NAMES_PANELS, "Add Widget Name - Panels", Source::Types, {TYPE_PANEL}},
    {"Progress Bars...", 'o', CMD_NAMES_PROGRESS_BARS, "Add Widget Name - Progress Bars", Source::Types, {TYPE_PROGRESS_BAR}},
    {"Radio boxes...", 'R', CMD_NAMES_RADIO_BOXES, "Add Widget Name - Radio boxes", Source::Types, {TYPE_RADIO_BOX}},
    {"Sliders...", 'l', CMD_NAMES_SLIDERS, "Add Widget Name - Sliders", Source::Types, {TYPE_SLIDER}},
    {"Tabbed Dialogue Boxes...", 'D', CMD_NAMES_TAB_BOXES, "Add Widget Name - Tabbed Dialogue Boxes", Source::Types, {TYPE_TAB_BOX}},
    {"Table Boxes...", 'a', CMD_NAMES_TABLE_BOXES, "Add Widget Name - Table Boxes", Source::Types, {TYPE_TABLE_BOX}},
    {"Text arrays...", 'r', CMD_NAMES_TEXT_ARRAYS, "Add Widget Name - Text Arrays", Source::Types, {TYPE_TEXT_ARRAY}},
    {"Text widgets...", 'x', CMD_NAMES_TEXTS, "Add Widget Name - Text entries", Source::Types, {TYPE_TEXT_ENTRY, TYPE_TEXT_LABEL}},
    {"Toggles...", 'g', CMD_NAMES_TOGGLES, "Add Widget Name - Toggles", Source::Types, {TYPE_TOGGLE}},
    {"Toolbars...", 'T', CMD_NAMES_TOOL_BARS, "Add Widget Name - Toolbars", Source::Types, {TYPE_TOOL_BAR}},
    {"Panes...", 'n', CMD_NAMES_PANES, "Add Widget Name - Panes", Source::Types, {TYPE_PANE}},
    {"Tree View Boxes...", 'e', CMD_NAMES_TREE_VIEWS, "Add Widget Name - Tree View Boxes", Source::Types, {TYPE_TREE_VIEW}},
    {"Tree View Entries...", 'i', CMD_NAMES_TREE_ENTRIES, "Add Widget Name - Tree View Entries", Source::TreeEntries},
    {"TTY Entries...", 'Y', CMD_NAMES_TTY_ENTRIES, "Add Widget Name - TTY Entries", Source::Types, {TYPE_TTY_ENTRY}},
    {"Value arrays...", 'y', CMD_NAMES_VALUE_ARRAYS, "Add Widget Name - Value Arrays", Source::Types, {TYPE_VALUE_ARRAY}},
    {"Value widgets...", 'V', CMD_NAMES_VALUES, "Add Widget Name - Value entries", Source::Types, {TYPE_VALUE_ENTRY, TYPE_VALUE_LABEL}},
};
// clang-format on

// The order in which all child widgets are listed.
constexpr WidgetType ALL_TYPES[] = {
    TYPE_BUTTON,    TYPE_COMBO_BOX,  TYPE_GAUGE,        TYPE_GRAPHICS_FRAME, TYPE_ICON,       TYPE_LIST_BOX,
    TYPE_PANE,      TYPE_PANEL,      TYPE_PROGRESS_BAR, TYPE_RADIO_BOX,      TYPE_SLIDER,     TYPE_TAB_BOX,
    TYPE_TABLE_BOX, TYPE_TEXT_ARRAY, TYPE_TEXT_ENTRY,   TYPE_TEXT_LABEL,     TYPE_TOGGLE,     TYPE_TOOL_BAR,
    TYPE_TREE_VIEW, TYPE_TTY_ENTRY,  TYPE_VALUE_ARRAY,  TYPE_VALUE_ENTRY,    TYPE_VALUE_LABEL};

struct Chooser {
    int popup = 0;
    int window = 0;
    int list = 0;
    int ok = 0, cancel = 0; // buttons
    bool open = false;
} chooser;

using Names = std::vector<std::string>;

void addType(Names& names, WidgetType type) {
    for (const WidgetNode* node = project.forms; node; node = walkList(node, project.forms))
        if (node->type == type) names.push_back(node->name);
}

void addForms(Names& names, bool dynamic) {
    for (const WidgetNode* form = project.forms; form; form = form->next)
        if (isDynamic(*form) == dynamic) names.push_back(form->name);
}

// Entries that a program can name.
void addEntries(Names& names, std::span<const MenuEntryRec> entries) {
    for (const MenuEntryRec& entry : entries) {
        const bool internal = entry.name.empty() || entry.name == "separator" || entry.name == "Pop";
        if (!internal && entry.kind == MENU_ENTRY) names.push_back(entry.name);
    }
}

void addMenuEntries(Names& names) {
    const bool editing = codeEditing.target == EDIT_MENU_SLOT;
    if (editing) addEntries(names, codeEditing.entryCopy);
    for (const WidgetNode* form = project.forms; form; form = form->next)
        if (!(editing && form->id == codeEditing.entryOwner)) addEntries(names, form->entries);
}

void addTreeEntries(Names& names) {
    if (codeEditing.target == EDIT_TREE_SLOT) addEntries(names, codeEditing.entryCopy);
    const WidgetNode* form = project.currentWidget ? formOf(project.currentWidget, project.forms) : project.forms;
    for (const WidgetNode* node = form; node; node = walkBelow(node, form)) {
        const bool shown = codeEditing.target == EDIT_TREE_SLOT && node->id == codeEditing.entryOwner;
        if (node->type == TYPE_TREE_VIEW && !shown) addEntries(names, node->entries);
    }
}

Names namesOf(const Family& family) {
    Names names;
    switch (family.source) {
    case Source::Types:
        for (const WidgetType type : family.types)
            if (type != TYPE_NONE) addType(names, type);
        break;
    case Source::AllWidgets:
        for (const WidgetType type : ALL_TYPES) addType(names, type);
        break;
    case Source::Forms: addForms(names, false); break;
    case Source::DynamicForms: addForms(names, true); break;
    case Source::StatusBars:
        for (const WidgetNode* form = project.forms; form; form = form->next)
            if (form->statusBar) names.push_back(form->statusBar->name);
        break;
    case Source::MenuEntries: addMenuEntries(names); break;
    case Source::TreeEntries: addTreeEntries(names); break;
    }
    return names;
}

// Wide enough for the longest title.
void makeChooser() {
    if (chooser.window) return;
    chooser.window = owCreateComplexDialogueBox(1, 300, 250, 330, 176, OTITLE + OQUIT, "Add widget name", owVpos, OTOP,
                                                owIconFile, "Widget", owIconFormat, ODLLICON, owQuitMode, OLEAVE,
                                                owCallback, CMD_NAME_WINDOW, 0);
    chooser.list =
        owCreateListBox(chooser.window, 10, 10, 310, 126, ONONE, owVpos, OTOP, owDoubleClickCallback, CMD_NAME_OK, 0);
    chooser.cancel =
        owCreatePushButton(chooser.window, 166, 144, 74, 25, "Cancel", owVpos, OTOP, owCallback, CMD_NAME_CANCEL, 0);
    chooser.ok = owCreatePushButton(chooser.window, 246, 144, 74, 25, "OK", owVpos, OTOP, owType, ODEFAULTBUTTON,
                                    owCallback, CMD_NAME_OK, 0);
}

void openChooser(const Family& family) {
    makeChooser();
    owSetWidgetProp(chooser.window, owTitle, family.title, 0);
    owSetListEntry(chooser.list, OCLEAR, 0);
    for (const std::string& name : namesOf(family)) owSetListEntry(chooser.list, OADD, owString, name.c_str(), 0);
    owSetListEntry(chooser.list, OSELECT, owEntry, 1, 0);
    owDrawWindow(chooser.window, 1);
    openDialogueKeys(chooser.window, {chooser.ok, CMD_NAME_OK}, CMD_NAME_CANCEL);
    addDialogueButton({chooser.cancel, CMD_NAME_CANCEL});
    chooser.open = true;
    owSetActiveWidget(chooser.list);
}

void closeChooser() {
    if (!chooser.open) return;
    owSetListEntry(chooser.list, OCLEAR, 0);
    closeDialogueKeys();
    owRemoveWindow(chooser.window);
    chooser.open = false;
    hooks.enterTextMode();
}

void insertChosen() {
    if (!chooser.open) return;
    int count = 0, selected = 0, current = 0;
    owEnqListStatus(chooser.list, &count, &selected, &current);
    char name[NAME_LIMIT + 1] = "";
    if (current > 0) owEnqListEntry(chooser.list, current, name, sizeof name);
    if (*name) {
        replaceSelection(editor.text, name);
        codeEditing.codeModified = true;
        project.projectModified = 1;
    }
    closeChooser();
}

void insertNameCommand() {
    if (chooser.popup) owEraseWidget(chooser.popup);
    chooser.popup = owCreatePopupMenu(1, 0, 0, ONONE, "", 0);
    bool ruleWanted = false, anyShown = false;
    for (const Family& family : FAMILIES) {
        if (family.ruleAbove) ruleWanted = anyShown;
        if (namesOf(family).empty()) continue;
        if (ruleWanted) owCreateMenuSeparator(chooser.popup);
        ruleWanted = false;
        anyShown = true;
        owCreateMenuEntry(chooser.popup, family.label, owAccel, family.mnemonic, owCallback, family.command, 0);
    }
    owDrawWindow(chooser.popup, 1);
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_INSERT_NAME, .key = controlKey('W'), .keyModes = IN_TEXT, .handler = insertNameCommand},
    {.id = CMD_NAME_OK, .handler = insertChosen},
    {.id = CMD_NAME_CANCEL, .handler = closeChooser},
    {.id = CMD_NAME_WINDOW, .handler = [] { if (action.status == OCLOSED) closeChooser(); }},
};
// clang-format on

// Each family's entry opens the chooser with its names.
template <std::size_t... I> constexpr auto familyRows(std::index_sequence<I...>) {
    return std::array{Command{.id = FAMILIES[I].command, .handler = [] { openChooser(FAMILIES[I]); }}...};
}
constexpr auto FAMILY_COMMANDS = familyRows(std::make_index_sequence<std::size(FAMILIES)>());

} // namespace

std::span<const Command> nameChooserCommands() { return COMMANDS; }
std::span<const Command> nameFamilyCommands() { return FAMILY_COMMANDS; }
