// List boxes in their three ways of choosing, sorted and filled by themselves, and combo boxes.
#include "gallery.h"

#include <initializer_list>
#include <stdio.h>

static int choices[3], logBox, combos[3];

static int list(int panel, int x, int y, int width, int height, const char* title, int contents, int type, int sort) {
    label(panel, x, y, width, title);
    return owCreateListBox(panel, x, y + 20, width, height, contents, owVpos, OTOP, owType, type, owSort, sort,
                           owUseIcons, contents == OFILES || contents == ODIRECTORIES, owCallback, OIDENT,
                           owDoubleClickCallback, OIDENT, 0);
}

static void build(int panel) {
    static const char* const fruits[] = {"pear", "apple", "fig", "cherry", "quince", "medlar", "plum", "damson"};
    static const char* const titles[] = {"Single choice", "Multi choice", "Extended, sorted"};
    for (int i = 0; i < 3; i++) {
        choices[i] = list(panel, 12 + i * 150, 8, 140, 110, titles[i], ONONE, i, i == 2 ? OSORTED : OUNSORTED);
        for (const char* fruit : fruits)
            owSetListEntry(choices[i], OADD, owString, fruit, owIcon, owGetIconResource(i == 1 ? "flag" : ""), 0);
        owSetListEntry(choices[i], OSELECT, owEntry, i + 1, 0);
    }
    list(panel, 12, 150, 140, 110, "Files", OFILES, OSINGLECHOICE, OSORTED);
    list(panel, 162, 150, 140, 110, "Days of the week", ODOW, OSINGLECHOICE, OUNSORTED);
    list(panel, 312, 150, 140, 110, "Disk drives", ODRIVES, OSINGLECHOICE, OUNSORTED);
    label(panel, 470, 8, 200, "With descriptions");
    const int described =
        owCreateListBox(panel, 470, 28, 220, 110, ONONE, owVpos, OTOP, owDescWidth, 110, owCallback, OIDENT, 0);
    for (const char* row : {"Fe|iron", "Cu|copper", "Zn|zinc", "Ag|silver"})
        owSetListEntry(described, OADD, owString, row, 0);
    label(panel, 470, 150, 200, "In colours of its own");
    oDefineRGB(40, 0.13, 0.17, 0.22);
    oDefineRGB(41, 0.55, 0.85, 0.6);
    logBox = owCreateListBox(panel, 470, 170, 220, 110, ONONE, owVpos, OTOP, owCapacity, 100, owOffCol, 40, owTextCol,
                             41, owCallback, OIDENT, 0);
    for (int i = 1; i <= 5; i++) {
        char line[64];
        snprintf(line, sizeof line, "step %d done", i);
        owSetListEntry(logBox, OADD, owString, line, 0);
    }
    label(panel, 12, 300, 140, "List choice only");
    combos[0] = owCreateComboBox(panel, 12, 320, 140, 160, OMOY, ODISPLAY, owVpos, OTOP, owCallback, OIDENT, 0);
    label(panel, 162, 300, 140, "Editable");
    combos[1] =
        owCreateComboBox(panel, 162, 320, 140, 160, ONONE, OEDIT, owVpos, OTOP, owSort, OSORTED, owCallback, OIDENT, 0);
    for (const char* size : {"8", "9", "10", "12", "14", "18", "24"})
        owSetListEntry(combos[1], OADD, owString, size, 0);
    label(panel, 312, 300, 140, "Fonts");
    combos[2] = owCreateComboBox(panel, 312, 320, 180, 200, OFONTS, ODISPLAY, owVpos, OTOP, owCallback, OIDENT, 0);
    for (int combo : combos) owSetListEntry(combo, OSELECT, owEntry, 3, 0);
    const int grey =
        owCreateComboBox(panel, 512, 320, 140, 200, ODOW, ODISPLAY, owVpos, OTOP, owWidgetStatus, OUNSELECTABLE, 0);
    label(panel, 512, 300, 140, "Disabled");
    owSetListEntry(grey, OSELECT, owEntry, 1, 0);
}

static void event(const OACTION* action) {
    char row[128] = "", line[256];
    const int entry = owEnqListEntry(action->widget, 0, row, sizeof row, 0);
    int count = 0, selected = 0, current = 0;
    owEnqListStatus(action->widget, &count, &selected, &current);
    snprintf(line, sizeof line, "Row %d of %d: \"%s\", %d selected", entry, count, row, selected);
    say(line);
}

const Page listPage = {"Lists and combos", "Listbox", build, event};
