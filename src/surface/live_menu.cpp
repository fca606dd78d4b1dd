// The flat chains of menu and tree entries as live menus and trees, and the status bar of a form.
#include "surface/live_types.h"

#include "menu-c.h"
#include "surface/hooks.h"
#include "surface/live.h"

#include <string>
#include <vector>

namespace {

// The live parents of the levels above the entry at hand, from the bar or box itself down.
struct Levels {
    std::vector<int> parents;

    int at(int level) const {
        const size_t last = parents.size() - 1;
        return parents[level < 0 ? 0 : std::min(static_cast<size_t>(level), last)];
    }
    // From now on `parent` holds the entries of `level`.
    void open(int level, int parent) {
        if (level >= 0 && static_cast<size_t>(level) < parents.size()) parents.resize(level);
        parents.push_back(parent);
    }
};

// A pull-down hangs on the entry before it and holds the entries of the level that follows.
int levelBelow(const std::vector<MenuEntryRec>& entries, const MenuEntryRec& pullDown, const MenuEntryRec* before) {
    if (&pullDown != &entries.back()) return (&pullDown)[1].level;
    return before ? before->level + 1 : 1;
}

// Icons of one tree entry.
int iconOf(const std::string& name) { return owGetIconResource(name.c_str()); }

int createTreeRow(const WidgetNode& box, const MenuEntryRec& entry, int parent) {
    if (box.subType != ORESOURCEICONS)
        return owCreateTreeEntry(parent, OLASTCHILD, entry.label.c_str(), owCallback, box.handle, 0);
    return owCreateTreeEntry(parent, OLASTCHILD, entry.label.c_str(), owCallback, box.handle, owIcon,
                             iconOf(entry.icon1), owCloseIcon, iconOf(entry.icon2), owOpenIcon, iconOf(entry.icon3), 0);
}

} // namespace

int createLiveMenu(int window, std::vector<MenuEntryRec>& entries) {
    if (entries.empty()) return 0;
    const int bar = owCreateMenuBar(window);
    Levels levels{{bar}};
    const MenuEntryRec* before = nullptr;
    for (MenuEntryRec& entry : entries) {
        switch (entry.kind) {
        case MENU_BAR: entry.handle = levels.at(0); break;
        case MENU_PULL_DOWN:
            if (!before) break;
            entry.handle = owCreatePullDownMenu(before->handle);
            levels.open(levelBelow(entries, entry, before), entry.handle);
            break;
        case MENU_ENTRY:
            entry.handle = owCreateMenuEntry(levels.at(entry.level), entry.label.c_str(), owAccel, entry.accel, owHelp,
                                             entry.help.c_str(), owUncheckIcon, owGetIconResource(entry.icon1.c_str()),
                                             owCheckIcon, owGetIconResource(entry.icon2.c_str()), owGreyIcon,
                                             owGetIconResource(entry.icon3.c_str()), 0);
            if (entry.level > 0) {
                entry.callbackId = entry.handle;
                owDefineCallback(entry.handle, entry.handle);
            }
            before = &entry;
            break;
        case MENU_SEPARATOR: entry.handle = owCreateMenuSeparator(levels.at(entry.level)); break;
        default: break;
        }
    }
    return bar;
}

void buildLiveMenu(WidgetNode& form) {
    if (createLiveMenu(form.handle, form.entries)) hooks.menuChanged(form);
}

void eraseLiveMenu(WidgetNode& form) {
    if (form.entries.empty() || form.entries.front().handle <= 0) return;
    owEraseWidget(form.entries.front().handle);
    for (MenuEntryRec& entry : form.entries) entry.handle = entry.callbackId = 0;
}

void eraseLiveStatusBar(WidgetNode& form) {
    if (!form.statusBar || form.statusBar->handle <= 0) return;
    owEraseWidget(form.statusBar->handle);
    form.statusBar->handle = 0;
}

void keepClientSize(WidgetNode& form) {
    setGridMode(project.gridMode);
    owSetWidgetProp(form.handle, owWidth, form.width, owHeight, form.height, 0);
    setGridMode(0);
    redrawWidget(form, false); // a dialogue may stand above it
}

void buildLiveStatusBar(WidgetNode& form) {
    if (form.statusBar) createLiveStatusBar(form.handle, *form.statusBar);
}

void createLiveStatusBar(int window, StatusBarRec& bar) {
    bar.handle = owCreateStatusBar(window, owPanes, bar.panes, owSizes, bar.sizes.data(), 0);
    for (int pane = 0; pane < bar.panes; ++pane) owSetStatusBarText(bar.handle, pane, bar.texts[pane].c_str());
}

void buildLiveTree(WidgetNode& box) {
    Levels levels{{box.handle}};
    const MenuEntryRec* before = nullptr;
    for (MenuEntryRec& entry : box.entries) {
        if (entry.kind == MENU_PULL_DOWN && before) {
            entry.handle = before->handle;
            levels.open(levelBelow(box.entries, entry, before), before->handle);
        } else if (entry.kind == MENU_ENTRY) {
            const int parent = levels.at(entry.level);
            entry.handle = createTreeRow(box, entry, parent);
            if (box.subType == ORESOURCEICONS && parent != box.handle) {
                owTreeViewAction(parent, OOPENENTRY);
                owTreeViewAction(parent, OCLOSEENTRY);
            }
            before = &entry;
        } else if (entry.kind == MENU_BAR) {
            entry.handle = box.handle;
        }
    }
}
