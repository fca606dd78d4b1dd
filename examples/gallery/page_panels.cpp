// The seven boundaries of panels, fills and titles, a panel with scroll bars and one with a picture.
#include "gallery.h"

#include <stdio.h>

static void build(int panel) {
    static const char* const boundaries[] = {"No boundary", "Single",    "Double",           "Pressed",
                                             "Projected",   "Chiselled", "Inverse chiselled"};
    for (int i = 0; i < 7; i++) {
        const int x = 12 + i % 4 * 175, y = 8 + i / 4 * 120;
        const int one = owCreatePanel(panel, x, y, 163, 100, owVpos, OTOP, owType, i, owTitle, i ? boundaries[i] : "",
                                      owLineBorder, OOUTEREDGE, owCallback, OIDENT, owSelectCallback, OIDENT, 0);
        label(one, 12, 40, 130, i ? "without a fill" : boundaries[0]);
    }
    oDefineRGB(50, 0.85, 0.92, 1.0);
    oDefineRGB(51, 0.2, 0.35, 0.7);
    const int filled =
        owCreatePanel(panel, 537, 128, 163, 100, owVpos, OTOP, owType, OSINGLE, owTitle, "Colours", owLineBorder,
                      OOUTEREDGE, owLineCol, 51, owFillBorder, OOUTEREDGE, owFillCol, 50, 0);
    owCreateTextEntry(filled, 12, 40, 130, 20, "line and fill", 255, ODISPLAY, owVpos, OTOP, owTextCol, 51, 0);
    label(panel, 12, 250, 340, "With scroll bars");
    const int scrolled =
        owCreatePanel(panel, 12, 272, 338, 180, owVpos, OTOP, owType, OPRESSED, owScrollMode, OBOTHBARS, 0);
    for (int i = 0; i < 40; i++) {
        char text[32];
        snprintf(text, sizeof text, "Button %d", i + 1);
        owCreatePushButton(scrolled, 10 + i % 5 * 100, 10 + i / 5 * 34, 90, 26, text, owVpos, OTOP, 0);
    }
    const int box = owCreateRadioBox(panel, 370, 272, 160, 180, owVpos, OTOP, owType, OFREEFORM, owBorderType, OCHISEL,
                                     owTitle, "Radio box", owLineBorder, OOUTEREDGE, owCallback, OIDENT, 0);
    static const char* const sizes[] = {"Small", "Medium", "Large", "Whole page"};
    for (int i = 0; i < 4; i++)
        owCreateToggleButton(box, 16, 28 + i * 32, 120, 22, sizes[i], i == 1, owVpos, OTOP, owType, O3DRADIO, owAccel,
                             sizes[i][0], 0);
    const int titled = owCreatePanel(panel, 546, 272, 154, 180, owVpos, OTOP, owType, OSINGLE, owTitle,
                                     "A title too long for its panel", owLineBorder, OOUTEREDGE, 0);
    owSetFontAttribs(titled, owBold, OON, owItalic, OON, 0);
    label(titled, 12, 40, 120, "title in bold italics");
}

static void event(const OACTION* action) {
    char line[128];
    snprintf(line, sizeof line, "Widget %d, status %d, pointer at %.0f, %.0f", action->widget, action->status,
             action->xpos, action->ypos);
    say(line);
}

const Page panelPage = {"Panels", "Panel", build, event};
