// Tabbed dialogue boxes: icons, disabled and hidden pages, widgets that grow with their page.
#include "gallery.h"

#include <stdio.h>

static int box, pages[4], hide, next;

static void build(int panel) {
    static const char* const titles[] = {"General", "Loads", "Disabled", "Notes"};
    static const char* const pictures[] = {"preferences", "ruler", "cancel", "text"};
    box = owCreateTabDialogueBox(panel, 12, 12, 440, 300, owVpos, OTOP, owCallback, OIDENT, 0);
    for (int i = 0; i < 4; i++)
        pages[i] = owCreatePanel(box, 0, 0, 420, 260, owTitle, titles[i], owIcon, owGetIconResource(pictures[i]), 0);
    label(pages[0], 12, 12, 80, "Name");
    owCreateTextEntry(pages[0], 100, 12, 200, 24, "Bridge 7", 80, OEDIT, owVpos, OTOP, 0);
    label(pages[0], 12, 44, 80, "Spans");
    owCreateValueEntry(pages[0], 100, 44, 80, 24, 3.0, 5, 0, OEDIT, owVpos, OTOP, 0);
    owCreateListBox(pages[1], 0, 0, 100, 100, ODOW, owHpos, OCENTRE, owVpos, OMIDDLE, owExpand, OON, 0);
    owCreateTextEntry(pages[3], 0, 0, 100, 100, "Fills its page", 4000, OEDIT, owHpos, OCENTRE, owVpos, OMIDDLE,
                      owExpand, OON, owScrollMode, OBOTHBARS, 0);
    owSetWidgetStatus(pages[2], OUNSELECTABLE);
    next = owCreatePushButton(panel, 12, 330, 140, 26, "Bring up Loads", owVpos, OTOP, owCallback, OIDENT, 0);
    hide = owCreatePushButton(panel, 162, 330, 140, 26, "Hide Notes", owVpos, OTOP, owCallback, OIDENT, 0);
}

static void event(const OACTION* action) {
    char line[64];
    if (action->widget == next) owSetWidgetStatus(pages[1], OSELECTABLE);
    if (action->widget == hide) owSetWidgetStatus(pages[3], OHIDDEN);
    if (action->widget != box) return;
    for (int i = 0; i < 4; i++)
        if (action->status == pages[i]) {
            snprintf(line, sizeof line, "Page %d came up", i + 1);
            say(line);
        }
}

const Page tabPage = {"Tabbed boxes", "tabdia", build, event};
