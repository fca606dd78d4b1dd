#include "surface/hierarchy.h"

#include "menu-c.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "surface/commands.h"
#include "surface/event.h"
#include "surface/hooks.h"
#include "surface/selection.h"
#include "surface/state.h"

#include <algorithm>

namespace {

int hierarchyPane = 0;
int treeBox = 0;

struct RowIcon {
    WidgetType type;
    const char* icon; // empty for a type that has no row of its own
    bool container;   // the same picture closed and open
};
constexpr RowIcon ROW_ICONS[] = {
    {TYPE_FORM, "newform", true},
    {TYPE_MAIN_PANEL, "", false},
    {TYPE_BUTTON, "Button", false},
    {TYPE_TOGGLE, "Check", false},
    {TYPE_TEXT_ENTRY, "Text", false},
    {TYPE_TEXT_LABEL, "Stext", false},
    {TYPE_VALUE_ENTRY, "Val", false},
    {TYPE_VALUE_LABEL, "Sval", false},
    {TYPE_ICON, "icon", false},
    {TYPE_LIST_BOX, "Listbox", false},
    {TYPE_SLIDER, "Sliderh", false},
    {TYPE_PANEL, "Panel", true},
    {TYPE_COMBO_BOX, "Combo", false},
    {TYPE_RADIO_BOX, "Panel", true},
    {TYPE_GRAPHICS_FRAME, "Graph", false},
    {TYPE_TEXT_ARRAY, "Textcel", false},
    {TYPE_VALUE_ARRAY, "Valuecel", false},
    {TYPE_TOOL_BAR, "Toolbar", true},
    {TYPE_TAB_BOX, "Tabdia", true},
    {TYPE_GAUGE, "gauge", false},
    {TYPE_PROGRESS_BAR, "progress", false},
    {TYPE_TTY_ENTRY, "tty", false},
    {TYPE_TREE_VIEW, "treeview", false},
    {TYPE_TABLE_BOX, "Table", false},
    {TYPE_TOOL_SEPARATOR, "Toolsep", false},
    {TYPE_PANE, "Pane", true},
};
static_assert(Missing<missingRow(ROW_ICONS)>::none);

void makeTreeBox() {
    treeBox = owCreateTreeViewBox(hierarchyPane, 0, 0, 110, 110, owExpand, 1, owVpos, OMIDDLE, owHpos, OCENTRE,
                                  owIconSet, ORESOURCEICONS, 0);
    owDrawWidget(treeBox);
}

// The row that holds the row of `node`: the box itself for a form, the form's for what is on a main panel.
int parentRow(const WidgetNode& node) {
    const WidgetNode* parent = node.parent;
    if (parent && parent->type == TYPE_MAIN_PANEL) parent = parent->parent;
    return parent ? parent->hierarchyItem : treeBox;
}

int makeRow(const WidgetNode& node, int parent) {
    const char* name = node.name.c_str();
    const int icon = owGetIconResource(hierarchyIcon(node));
    const RowIcon* row = rowOf(ROW_ICONS, node.type);
    if (row && row->container)
        return owCreateTreeEntry(parent, OLASTCHILD, name, owCallback, CMD_HIERARCHY_ROW, owIcon, icon, owCloseIcon,
                                 icon, owOpenIcon, icon, 0);
    return owCreateTreeEntry(parent, OLASTCHILD, name, owCallback, CMD_HIERARCHY_ROW, owIcon, icon, 0);
}

std::string rowLabel(int item) {
    char label[NAME_LIMIT + 1] = "";
    owEnqTreeViewLabel(item, label, sizeof label);
    return label;
}

void showForm(WidgetNode& form, bool fromTree) {
    if (fromTree) form.formHidden = 0;
}

} // namespace

const char* hierarchyIcon(const WidgetNode& node) {
    if (node.type == TYPE_TOGGLE && standsIn(node, TYPE_RADIO_BOX)) return "radiobut";
    const RowIcon* row = rowOf(ROW_ICONS, node.type);
    return row ? row->icon : "";
}

void createHierarchy(int pane) {
    hierarchyPane = pane;
    makeTreeBox();
}

void buildHierarchyEntry(WidgetNode& node) {
    node.hierarchyItem = 0;
    if (node.type == TYPE_MAIN_PANEL || treeBox == 0) return;
    const int parent = parentRow(node);
    node.hierarchyItem = makeRow(node, parent);
    if (node.type != TYPE_FORM) owTreeViewAction(parent, OOPENENTRY);
    owTreeViewAction(node.hierarchyItem, OSELECTENTRY);
    hooks.nameAdded(node.name);
}

void buildHierarchy(WidgetNode* list) {
    for (WidgetNode* node = list; node; node = node->next) {
        buildHierarchyEntry(*node);
        buildHierarchy(node->child);
        if (node->type == TYPE_FORM && node->hierarchyItem) owTreeViewAction(node->hierarchyItem, OCLOSEENTRY);
    }
}

void removeHierarchyEntry(WidgetNode& node, bool withSiblings) {
    for (WidgetNode* one = &node; one; one = withSiblings ? one->next : nullptr) {
        if (one->child) removeHierarchyEntry(*one->child, true);
        if (one->type == TYPE_MAIN_PANEL) continue;
        hooks.nameRemoved(one->name);
        if (one->hierarchyItem) owEraseWidget(one->hierarchyItem);
        one->hierarchyItem = 0;
        --project.widgetCount;
    }
}

void rebuildHierarchyRows(WidgetNode& first) {
    const int count = project.widgetCount; // the records stay
    removeHierarchyEntry(first, true);
    project.widgetCount = count;
    buildHierarchy(&first);
}

void clearHierarchy() {
    if (treeBox == 0) return;
    owEraseWidget(treeBox);
    hooks.namesCleared();
    makeTreeBox();
}

void selectByName(const std::string& name, bool fromTree) {
    if (project.currentWidget && project.currentWidget->name == name) return;
    if (WidgetNode* form = name.empty() ? nullptr : findForm(project.forms, name)) {
        showForm(*form, fromTree);
        selectWidget(form);
    } else if (WidgetNode* node = name.empty() ? nullptr : findName(project.forms, name, false)) {
        WidgetNode* form = formOf(node, project.forms);
        if (form && form->formHidden) {
            showForm(*form, fromTree);
            selectWidget(form);
        }
        selectWidget(node);
    }
    // Who walks through the rows with the keys goes on doing so.
    if (fromTree && action.key != OKEYLEFTBUTTON)
        owSetActiveWidget(treeBox);
    else
        hooks.enterTextMode();
}

namespace {

void hierarchyRowCommand() { selectByName(rowLabel(action.widget), true); }

} // namespace
int hierarchyBox() { return treeBox; }

namespace {

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_HIERARCHY_ROW, .handler = hierarchyRowCommand},
};
// clang-format on

} // namespace

std::span<const Command> hierarchyCommands() { return COMMANDS; }
