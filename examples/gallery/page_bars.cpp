// Tool bars and docking panes, on a window of their own that the page opens.
#include "gallery.h"

#include <stdio.h>

static int window, bar, pane, openButton;
typedef struct Move {
    const char* text;
    int position;
} Move;
static const Move moves[] = {{"Top", OTOP},         {"Bottom", OBOTTOM},     {"Left", OLEFTSIDE},
                             {"Right", ORIGHTSIDE}, {"Floating", OFLOATING}, {"Hidden", 0}};
enum { MOVES = sizeof moves / sizeof moves[0] };
static int barMoves[MOVES], paneMoves[MOVES];

static void openWindow(void) {
    static const int edges[] = {140, 240, -1};
    static const char* const icons[] = {"filenew", "fileopen", "save", "", "cut", "copy", "paste"};
    window = owCreateComplexDialogueBox(1, 620, 320, 560, 380, OALL, "Bars and panes", owVpos, OTOP, owQuitMode, OHIDE,
                                        owCallback, OIDENT, 0);
    bar = owCreateToolBar(window, OTOP, 22, owTitle, "Tool bar", owTitleFlag, OQUIT, owCallback, OIDENT);
    for (const char* icon : icons) {
        if (*icon)
            owCreateToolBarButton(bar, OICONBUTTON, icon, owHelp, icon, owCallback, OIDENT);
        else
            owCreateToolBarSeparator(bar, owSeparatorType, OCHISEL);
    }
    owCreateToolBarSeparator(bar, owSeparatorType, OSINGLE);
    owCreateToolBarButton(bar, OTEXTBUTTON, "A text", owIconType, OBUTTON, owCallback, OIDENT);
    const int combo = owCreateComboBox(bar, 0, 0, 120, 200, ODOW, ODISPLAY, owCallback, OIDENT, 0);
    owSetListEntry(combo, OSELECT, owEntry, 1, 0);
    pane = owCreateDockingPane(window, OLEFTSIDE, 350, 300, 170, 200, owTitle, "Docking pane", owTitleFlag, OQUIT,
                               owCallback, OIDENT);
    owCreateListBox(pane, 0, 0, 100, 100, OMOY, owHpos, OCENTRE, owVpos, OMIDDLE, owExpand, OON, 0);
    owCreateTextEntry(window, 0, 0, 100, 100, "Drag the bar by its grip and the pane by its title", 4000, OEDIT, owHpos,
                      OCENTRE, owVpos, OMIDDLE, owExpand, OON, owScrollMode, OBOTHBARS, 0);
    const int status = owCreateStatusBar(window, owPanes, 3, owSizes, edges, 0);
    owSetStatusBarText(status, 0, "Ready");
    owSetStatusBarText(status, 1, "Line: 1");
    owSetStatusBarText(status, 2, "The last pane takes the rest");
}

static void build(int panel) {
    openButton = owCreatePushButton(panel, 20, 20, 200, 28, "Open the window", owVpos, OTOP, owCallback, OIDENT, 0);
    label(panel, 20, 70, 200, "Tool bar");
    label(panel, 240, 70, 200, "Pane");
    for (int i = 0; i < MOVES; i++) {
        barMoves[i] =
            owCreatePushButton(panel, 20, 94 + i * 32, 200, 26, moves[i].text, owVpos, OTOP, owCallback, OIDENT, 0);
        paneMoves[i] =
            owCreatePushButton(panel, 240, 94 + i * 32, 200, 26, moves[i].text, owVpos, OTOP, owCallback, OIDENT, 0);
    }
}

static void tellPosition(const OACTION* action) {
    char line[128];
    int x = 0, y = 0, width = 0, position = 0;
    owEnqToolbarPos(bar, &x, &y, &width, &position);
    snprintf(line, sizeof line, "Event %d of handle %d; the bar stands at %d, %d, position %d", action->status,
             action->widget, x, y, position);
    say(line);
}

static void event(const OACTION* action) {
    if (action->widget == openButton && !window) openWindow();
    if (action->widget == openButton) owDrawWindow(window, 1);
    for (int i = 0; i < MOVES && window; i++) {
        if (action->widget == barMoves[i]) owSetToolbarPos(bar, 400, 260, 0, moves[i].position);
        if (action->widget == paneMoves[i]) owSetPanePos(pane, 420, 300, 170, 200, moves[i].position);
    }
    if (window && (action->widget == bar || action->widget == pane)) tellPosition(action);
}

const Page barPage = {"Bars and panes", "toolbar", build, event};
