// Push buttons, toggles of all eight types, icons of all three.
#include "gallery.h"

#include <stdio.h>

static int defaults;

static int button(int panel, int x, int y, int width, int height, const char* text) {
    return owCreatePushButton(panel, x, y, width, height, text, owVpos, OTOP, owCallback, OIDENT, 0);
}

static void build(int panel) {
    label(panel, 12, 8, 200, "Push buttons");
    owCreatePushButton(panel, 12, 30, 110, 28, "Standard", owVpos, OTOP, owAccel, 'S', owHelp,
                       "Pressed by Alt+S|as well as by the mouse", owCallback, OIDENT, 0);
    defaults = owCreatePushButton(panel, 132, 30, 110, 28, "Default", owVpos, OTOP, owType, ODEFAULTBUTTON, owCallback,
                                  OIDENT, 0);
    const int disabled = button(panel, 252, 30, 110, 28, "Disabled");
    owSetWidgetStatus(disabled, OUNSELECTABLE);
    oDefineRGB(52, 0.16, 0.5, 0.3);
    oDefineRGB(53, 0.1, 0.34, 0.2);
    oDefineRGB(54, 1.0, 1.0, 1.0);
    for (int i = -1; i <= 1; i++) {
        static const char* const sides[] = {"Left", "Centre", "Right"};
        owCreatePushButton(panel, 372 + (i + 1) * 112, 30, 104, 28, sides[i + 1], owVpos, OTOP, owType, OUSERDEFINED,
                           owOffCol, 52, owOnCol, 53, owTextCol, 54, owJustify, i, owCallback, OIDENT, 0);
    }
    button(panel, 12, 66, 110, 44, "Text in|two lines");
    const int large = button(panel, 132, 66, 230, 44, "In a face of its own");
    owSetFontAttribs(large, owFontFace, "Times New Roman", owPointSize, 16, owItalic, OON, 0);
    owCreatePushButton(panel, 372, 66, 160, 44, "With a picture", owVpos, OTOP, owIconHandle, owGetIconResource("save"),
                       owCallback, OIDENT, 0);

    label(panel, 12, 130, 300, "Toggles: off, on, and disabled");
    static const char* const types[] = {"Bevelled square", "Bevelled diamond", "Simple square", "Tick box",
                                        "Simple circle",   "Check box",        "3D radio",      "3D check box"};
    for (int i = 0; i < 8; i++) {
        const int x = 12 + i % 4 * 175, y = 154 + i / 4 * 84;
        for (int state = 0; state < 3; state++) {
            const int one = owCreateToggleButton(panel, x, y + state * 25, 165, 22, types[i], state > 0, owVpos, OTOP,
                                                 owType, i, owCallback, OIDENT, 0);
            if (state == 2) owSetWidgetStatus(one, OUNSELECTABLE);
        }
    }
    label(panel, 12, 330, 200, "Toggles in colours");
    static const char* const coloured[] = {"Red square", "Diamond", "Blue square", "Tick box", "Circle"};
    for (int i = 0; i < 5; i++)
        owCreateToggleButton(panel, 12 + i * 140, 352, 138, 22, coloured[i], i % 2 == 0, owVpos, OTOP, owType, i,
                             owOnCol, i + 2, owOffCol, 54, owTextCol, i + 2, owCallback, OIDENT, 0);

    label(panel, 12, 386, 100, "Icons");
    static const char* const kinds[] = {"Pictogram", "Sensitive", "Button"};
    static const int numbers[] = {OPICTOGRAM, OMOUSESENSITIVE, OBUTTON};
    for (int i = 0; i < 3; i++) {
        owCreateIcon(panel, 12 + i * 90, 406, 80, 66,
                     i == 1   ? "fileopen"
                     : i == 2 ? "print"
                              : "save",
                     ODLLICON, 0, owVpos, OTOP, owType, numbers[i], owLabel, kinds[i], owCallback, OIDENT, 0);
        owCreateIcon(panel, 300 + i * 50, 412, 40, 40, "copy", ODLLICON, 0, owVpos, OTOP, owType, numbers[i],
                     owCallback, OIDENT, 0);
    }
    const int grey = owCreateIcon(panel, 470, 412, 40, 40, "paste", ODLLICON, 0, owVpos, OTOP, owType, OBUTTON, 0);
    owSetWidgetStatus(grey, OUNSELECTABLE);
    const int pressed = owCreateIcon(panel, 520, 412, 40, 40, "cut", ODLLICON, 0, owVpos, OTOP, owType, OBUTTON, 0);
    owSetWidgetStatus(pressed, OCHECKED);
}

static void event(const OACTION* action) {
    char line[128];
    snprintf(line, sizeof line, action->widget == defaults ? "The default button was pressed" : "Widget %d was pressed",
             action->widget);
    say(line);
}

const Page buttonPage = {"Buttons and toggles", "Button", build, event};
