// The stock pictures, at their sizes.
#include "gallery.h"

#include <stdio.h>

static int grid(int panel, int y, const char* title, const char* format, int first, int count, int size, int perRow) {
    label(panel, 12, y, 300, title);
    for (int i = 0; i < count; i++) {
        char name[32];
        snprintf(name, sizeof name, format, first + i);
        owCreateIcon(panel, 12 + i % perRow * size, y + 20 + i / perRow * size, size, size, name, ODLLICON, 0, owVpos,
                     OTOP, owIconType, OMOUSESENSITIVE, owHelp, name, owCallback, OIDENT, 0);
    }
    return y + 24 + (count + perRow - 1) / perRow * size;
}

static void build(int panel) {
    static const char* const widgets[] = {
        "Pointer", "newform",  "tabdia",   "Panel", "toolbar", "pane",    "Listbox", "Combo",  "Button",   "icon",
        "toolsep", "check",    "radiobut", "stext", "text",    "textcel", "sval",    "val",    "valuecel", "table",
        "gauge",   "progress", "treeview", "graph", "sliderh", "tty",     "menu",    "Status", "Unadopt",  "Light"};
    int y = grid(panel, 4, "Large: MBIG1001 to MBIG1048", "MBIG%d", 1001, 48, 44, 16);
    y = grid(panel, y, "Small: MSML1001 to MSML1100", "MSML%d", 1001, 100, 22, 32);
    y = grid(panel, y, "Tool bar: mstd1001 to mstd1027", "mstd%d", 1001, 27, 22, 32);
    label(panel, 12, y, 300, "Widgets");
    for (int i = 0; i < 30; i++)
        owCreateIcon(panel, 12 + i * 22, y + 20, 22, 22, widgets[i], ODLLICON, 0, owVpos, OTOP, owIconType,
                     OMOUSESENSITIVE, owHelp, widgets[i], owCallback, OIDENT, 0);
}

const Page iconPage = {"Icons", "icopick", build, 0};
