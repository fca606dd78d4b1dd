// The gallery: every widget of the toolkit, to be looked at and tried. Choose a page at the left; the status bar tells
// of events.
//     gallery [PAGE]             opens it, with the page of that title in front
//     gallery PAGE FILE          saves a picture of the window with that page as PNG, and ends
#include "gallery.h"

#include <stdio.h>
#include <string.h>

static const Page* const pages[] = {&panelPage,    &buttonPage, &textPage,   &valuePage,    &arrayPage,
                                    &graphicsPage, &listPage,   &treePage,   &propertyPage, &boxPage,
                                    &iconPage,     &tabPage,    &windowPage, &barPage};
enum { PAGES = sizeof pages / sizeof pages[0] };
static const int MARGIN = 8, LIST_WIDTH = 170; // pixels

static int status, panels[PAGES], shown = -1;

int label(int panel, int x, int y, int width, const char* text) {
    return owCreateTextEntry(panel, x, y, width, 20, text, 255, ODISPLAY, owVpos, OTOP, owBorderType, ONOBORDER, 0);
}

int heading(int panel, int x, int y, int width, const char* text) {
    const int handle = label(panel, x, y, width, text);
    owSetFontAttribs(handle, owBold, OON, 0);
    return handle;
}

void say(const char* text) { owSetStatusBarText(status, 0, text); }

static void showPage(int master, int page) {
    if (page < 0 || page >= PAGES || page == shown) return;
    if (shown >= 0) owSetWidgetStatus(panels[shown], OHIDDEN);
    if (!panels[page]) {
        panels[page] = owCreatePanel(master, LIST_WIDTH + 2 * MARGIN, MARGIN, PAGE_WIDTH, PAGE_HEIGHT, owVpos, OTOP, 0);
        pages[page]->build(panels[page]);
    }
    owSetWidgetStatus(panels[page], OSELECTABLE);
    shown = page;
    say(pages[page]->title);
}

int main(int argc, char** argv) {
    static const int edges[] = {-1};
    int callback = 0;
    oOpenOrba();
    oGuiwin();
    owInitializeMenu();
    const int master =
        owCreateMasterWindow(60, 60, LIST_WIDTH + PAGE_WIDTH + 3 * MARGIN, PAGE_HEIGHT + 2 * MARGIN, OALL, "Gallery",
                             owVpos, OTOP, owIconFile, "Light", owIconFormat, ODLLICON, 0);
    status = owCreateStatusBar(master, owPanes, 1, owSizes, edges, 0);
    const int list =
        owCreateListBox(master, MARGIN, MARGIN, LIST_WIDTH, PAGE_HEIGHT, ONONE, owVpos, OTOP, owCallback, OIDENT, 0);
    for (const Page* page : pages)
        owSetListEntry(list, OADD, owString, page->title, owIcon, owGetIconResource(page->icon), 0);
    int first = 0;
    for (int i = 0; i < PAGES && argc > 1; i++)
        if (strcmp(argv[1], pages[i]->title) == 0) first = i;
    owSetListEntry(list, OSELECT, owEntry, first + 1, 0);
    showPage(master, first);
    owManage();
    enum { PICTURE = 90 };
    if (argc > 2) owDefineTimerCallback(900, PICTURE);
    for (;;) {
        OACTION action;
        owAction(&callback);
        owEnqActionState(&action);
        if (callback == -1) break;
        if (callback == PICTURE) {
            if (!owDumpImage(master, argv[2])) return 1;
            break;
        }
        if (action.widget == list)
            showPage(master, action.status - 1);
        else if (pages[shown]->event)
            pages[shown]->event(&action);
    }
    owCloseMenu();
    oCloseOrba();
    return 0;
}
