// Chains that hang from a widget: the menu of a form, the entries of a tree view and of a list. Menus and trees are
// flat; which entry belongs to which menu is told by kinds and levels alone.

#include "codegen/generation.h"

#include <unordered_map>

namespace {

// Follows a flat chain: the entry just handled, and the menu that receives entries.
struct ChainPlace {
    const MenuEntryRec* first = nullptr;
    const MenuEntryRec* previous = nullptr;
    const MenuEntryRec* owner = nullptr;
    std::unordered_map<int, const MenuEntryRec*> pullDowns; // the last one of each level so far

    explicit ChainPlace(const std::vector<MenuEntryRec>& entries)
        : first(entries.empty() ? nullptr : &entries.front()) {}

    // A menu bar or pull-down menu receives what follows it.
    void openMenu(const MenuEntryRec& menu) {
        owner = previous = &menu;
        if (menu.kind == MENU_PULL_DOWN) pullDowns[menu.level] = &menu;
    }
    bool behindMenuBar() const { return previous && previous->kind == MENU_BAR; }

    // An entry at the top goes back to the first one, a shallower one to the menu of its level.
    void findOwner(const MenuEntryRec& entry) {
        if (behindMenuBar()) return;
        if (entry.level == 0) {
            owner = first;
        } else if (previous && entry.level < previous->level) {
            const auto menu = pullDowns.find(entry.level);
            if (menu != pullDowns.end()) owner = menu->second;
        }
    }
    std::string_view ownerName(std::string_view otherwise) const { return owner ? owner->name : otherwise; }
};

// A menu entry that opens forms answers a press although it holds no code of its own. A form in a module of its own has
// its constant for a parent, and the user's code opens it.
void writeOpenedForms(Generation& g, const MenuEntryRec& entry) {
    const auto opened = g.formsByParent.find(entry.name);
    if (opened == g.formsByParent.end()) return;
    for (const WidgetNode* form : opened->second) {
        if (g.ownModules.contains(form)) continue;
        write(g, g.language.defineEntryCalls[ENTRY_GENERAL], entry.name, entry.name);
    }
}

} // namespace

void writeMenu(Generation& g, const WidgetNode& form) {
    ChainPlace place(form.entries);
    for (const MenuEntryRec& entry : form.entries) {
        switch (entry.kind) {
        case MENU_BAR:
            g.language.menuBar(g, entry, form);
            place.openMenu(entry);
            break;
        case MENU_PULL_DOWN:
            g.language.pullDown(g, entry, place.previous ? place.previous->name : form.name);
            place.openMenu(entry);
            break;
        case MENU_ENTRY:
            place.findOwner(entry);
            place.previous = &entry;
            g.language.menuEntry(g, entry, place.ownerName(form.name));
            writeOpenedForms(g, entry);
            break;
        case MENU_SEPARATOR:
            place.findOwner(entry);
            place.previous = &entry;
            g.language.menuSeparator(g, entry, place.ownerName(form.name));
            break;
        default: break;
        }
    }
}

// The head and the pull-downs of a tree's chain are structure only: a pull-down bears the name of the entry above it,
// which thereby is the parent of what follows.
void writeTreeEntries(Generation& g, const WidgetNode& tree) {
    if (tree.entries.empty()) return;
    write(g, g.language.treeComment, tree.name);
    ChainPlace place(tree.entries);
    std::string_view parent = tree.name;
    for (const MenuEntryRec& entry : tree.entries) {
        if (entry.kind == MENU_BAR || entry.kind == MENU_PULL_DOWN) {
            place.openMenu(entry);
            parent = tree.name;
        } else if (entry.kind == MENU_ENTRY) {
            if (!place.behindMenuBar()) {
                place.findOwner(entry);
                parent = entry.level == 0 ? std::string_view(tree.name) : place.ownerName(tree.name);
            }
            place.previous = &entry;
            g.language.treeEntry(g, tree, entry, parent);
        }
    }
}

void writeListEntries(Generation& g, const WidgetNode& list, std::string_view comment) {
    if (!hasListEntries(list)) return;
    write(g, comment, list.name);
    for (const ListEntryRec& entry : list.listEntries) {
        g.language.listEntry(g, list, entry);
    }
}
