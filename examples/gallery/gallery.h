/* What the pages of the gallery and its frame share. A page is one file: it builds its widgets into a panel of
 * PAGE_WIDTH by PAGE_HEIGHT pixels, and is told of every event of its widgets. */
#ifndef GALLERY_H
#define GALLERY_H

#include <menu-c.h>

static const int PAGE_WIDTH = 720, PAGE_HEIGHT = 480; /* pixels */

typedef struct Page {
    const char* title;
    const char* icon; /* stock name, shown beside the title */
    void (*build)(int panel);
    void (*event)(const OACTION* action); /* may be null */
} Page;

extern const Page panelPage, buttonPage, textPage, valuePage, arrayPage, graphicsPage;
extern const Page windowPage, barPage, listPage, treePage, propertyPage, boxPage, iconPage, tabPage;

/* Helpers of the frame. A label at a place measured from the top left of a panel; returns its handle. */
int label(int panel, int x, int y, int width, const char* text);
/* The same in bold, above a group of widgets. */
int heading(int panel, int x, int y, int width, const char* text);
/* A line in the status bar of the gallery. */
void say(const char* text);

#endif
