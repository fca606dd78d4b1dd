#include "checks.h"

#include "surface/state.h"

#include <algorithm>
#include <cctype>
#include <set>

namespace {

// ---- The tree of records.

void checkLinks(WidgetNode* first, const WidgetNode* parent) {
    WidgetNode* last = nullptr;
    for (WidgetNode* node = first; node; last = node, node = node->next) {
        expect(node->parent == parent, "tree: " + node->name + " has another parent than the one that holds it");
        expect(node->inProject, "tree: " + node->name + " does not know that it is in the project");
        expect((node->type == TYPE_FORM) == (parent == nullptr), "tree: a form below a record, or a widget on top");
        checkLinks(node->child, node);
    }
    if (parent && parent->lastChild) expect(parent->lastChild == last, "tree: wrong last child of " + parent->name);
}

void checkForms() {
    expect(project.forms != nullptr, "tree: there is no form");
    for (const WidgetNode* form = project.forms; form; form = form->next)
        expect(form->child && form->child->type == TYPE_MAIN_PANEL && !form->child->next,
               "tree: a form without its one main panel");
}

void checkSelection() {
    Records selected;
    bool inTree = false;
    forEachRecord([&](WidgetNode& node) {
        if (node.selected) selected.push_back(&node);
        if (&node == project.currentWidget) inTree = true;
    });
    if (groupStands()) {
        expect(!project.currentWidget, "selection: a current widget beside a group");
        for (const WidgetNode* member : design.selection)
            expect(member->inProject && member->parent == design.selection.front()->parent,
                   "selection: a member of the group hangs elsewhere");
        return;
    }
    expect(inTree, "selection: no current widget in the tree");
    if (!inTree) return;
    const Records wanted = {project.currentWidget};
    expect(selected == wanted, "selection: another record than the current one is marked");
    expect(design.selection == wanted, "selection: it holds another widget than the current one");
}

// ---- Names.

std::string folded(std::string name) {
    if (project.projectLanguage != 99)
        std::ranges::transform(name, name.begin(), [](unsigned char letter) { return std::tolower(letter); });
    return name;
}

void checkNames() {
    std::set<std::string> names;
    const auto add = [&names](const std::string& name) {
        if (!name.empty()) expect(names.insert(folded(name)).second, "names: " + name + " is given twice");
    };
    forEachRecord([&](const WidgetNode& node) {
        add(node.name);
        if (node.statusBar) add(node.statusBar->name);
        for (const MenuEntryRec& entry : node.entries)
            if (node.type != TYPE_TREE_VIEW || entry.kind == MENU_ENTRY || entry.kind == MENU_SEPARATOR)
                add(entry.name);
        if (node.type != TYPE_MAIN_PANEL) expect(!node.name.empty(), "names: a record has none");
    });
}

} // namespace

void checkRecords() {
    checkLinks(project.forms, nullptr);
    checkForms();
    checkSelection();
    checkNames();
}
