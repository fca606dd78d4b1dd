// Dialogue boxes with every kind of title bar, tool bars and panes, key bindings and timers.
#include "gallery.h"

#include <cstdio>

enum { KINDS = 8, SHOW = 600, TICK = 620, BARS, CLOSED = 640 };

static const struct {
    const char* name;
    int flag;
} kinds[KINDS] = {{"Full title bar", OALL},
                  {"No title bar", ONONE},
                  {"Title only", OTITLE},
                  {"Title and quit", OQUIT},
                  {"Title and maximize", OMAXIMIZE},
                  {"Title and minimize", OMINIMIZE},
                  {"Tool window", OTOOL},
                  {"Tool window, quit", OTOOL + OQUIT}};
static int dialogues[KINDS], clockLabel, bar, barShown = 0, seconds = 0;

static void buildDialogue(int i) {
    dialogues[i] = owCreateComplexDialogueBox(1, 200 + 30 * i, 160 + 30 * i, 280, 120, kinds[i].flag, kinds[i].name,
                                              owVpos, OTOP, owQuitMode, OHIDE, owCallback, OIDENT, 0);
    label(dialogues[i], 16, 14, 240, kinds[i].name);
    owCreatePushButton(dialogues[i], 96, 12, 88, 28, "Close", owType, ODEFAULTBUTTON, owCallback, CLOSED + i, 0);
}

static void build(int panel) {
    int i;
    heading(panel, 20, 14, 400, "Dialogue boxes: click to show");
    for (i = 0; i < KINDS; i++) {
        owCreatePushButton(panel, 20 + 174 * (i % 4), 42 + 38 * (i / 4), 164, 28, kinds[i].name, owVpos, OTOP,
                           owCallback, SHOW + i, 0);
        buildDialogue(i);
    }
    heading(panel, 20, 136, 400, "Bars and panes");
    owCreatePushButton(panel, 20, 164, 168, 28, "Show the tool bar", owVpos, OTOP, owCallback, BARS, 0);
    bar = owCreateToolBar(1, OTOP, 22, owTitle, "Tools", owTitleFlag, OQUIT);
    owCreateToolBarButton(bar, OICONBUTTON, "filenew", owHelp, "New");
    owCreateToolBarButton(bar, OICONBUTTON, "fileopen", owHelp, "Open");
    owCreateToolBarSeparator(bar, owSeparatorType, OSINGLE);
    owCreateToolBarButton(bar, OTEXTBUTTON, "Text", owHelp, "A button with text");
    owSetWidgetStatus(bar, OHIDDEN);
    heading(panel, 20, 210, 400, "A timer");
    clockLabel = label(panel, 20, 238, 300, "0 seconds");
    owDefineTimerCallback(1000, TICK);
}

static void event(const OACTION* action) {
    char line[60];
    if (action->callback >= SHOW && action->callback < SHOW + KINDS)
        owDrawWindow(dialogues[action->callback - SHOW], 1);
    if (action->callback >= CLOSED && action->callback < CLOSED + KINDS)
        owRemoveWindow(dialogues[action->callback - CLOSED]);
    if (action->callback == BARS) {
        barShown = !barShown;
        owSetWidgetStatus(bar, barShown ? OSELECTABLE : OHIDDEN);
    }
    if (action->callback == TICK) {
        snprintf(line, sizeof line, seconds == 0 ? "%d second" : "%d seconds", seconds + 1);
        owSetTextSetting(clockLabel, line, 0);
        seconds++;
    }
}

const Page windowPage = {"Windows", "newform", build, event};
