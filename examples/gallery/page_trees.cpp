// Tree views with each icon set, and with icons of the program.
#include "gallery.h"

#include <initializer_list>
#include <stdio.h>

static int tree(int panel, int x, const char* title, int set) {
    label(panel, x, 8, 160, title);
    return owCreateTreeViewBox(panel, x, 28, 165, 380, owVpos, OTOP, owIconSet, set, 0);
}

static int entry(int parent, const char* text, const char* icon, const char* closed, const char* open) {
    return owCreateTreeEntry(parent, OLASTCHILD, text, owIcon, owGetIconResource(icon), owCloseIcon,
                             owGetIconResource(closed), owOpenIcon, owGetIconResource(open), owCallback, OIDENT,
                             owChangeCallback, OIDENT, owDoubleClickCallback, OIDENT, 0);
}

static void fill(int box) {
    for (const char* chapter : {"Statics", "Dynamics", "Materials"}) {
        const int branch = entry(box, chapter, "", "Panel", "tabdia");
        const int deeper = entry(branch, "Loads", "", "Panel", "tabdia");
        entry(deeper, "Dead load", "Button", "", "");
        entry(deeper, "Wind", "Graph", "", "");
        entry(branch, "Results", "Table", "", "");
        owTreeViewAction(branch, OOPENENTRY);
    }
}

static void build(int panel) {
    fill(tree(panel, 12, "No icons", ONONE));
    fill(tree(panel, 187, "Folders", OFOLDERS));
    fill(tree(panel, 362, "Books", OBOOKS));
    fill(tree(panel, 537, "Icons of the program", ORESOURCEICONS));
}

static void event(const OACTION* action) {
    char text[128] = "", line[256];
    owEnqTreeViewLabel(action->widget, text, sizeof text);
    if (action->callback == action->widget + 4 * OIDENT)
        snprintf(line, sizeof line, "\"%s\" was %s", text, action->status ? "opened" : "closed");
    else
        snprintf(line, sizeof line, "\"%s\" was %s", text,
                 action->callback == action->widget ? "chosen" : "double clicked");
    say(line);
}

const Page treePage = {"Tree views", "treeview", build, event};
