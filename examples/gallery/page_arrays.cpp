// Text and value arrays, a table box, and a TTY entry that answers.
#include "gallery.h"

#include <stdio.h>
#include <string.h>

static int tty, texts;

static void build(int panel) {
    label(panel, 12, 8, 300, "Text array");
    texts =
        owCreateTextArray(panel, 12, 30, 340, 170, 6, 12, owVpos, OTOP, owAxisW, 40, owAxisH, 22, owXtext, "*letters",
                          owYtext, "*digits", owBorderType, OCHISEL, owCallback, OIDENT, owSelectCallback, OIDENT, 0);
    static const char* const words[] = {"Type", "Tab", "goes on", "Return", "down"};
    for (int i = 0; i < 5; i++) owSetTextArray(texts, i % 3 + 1, i / 3 + 1, words[i]);
    label(panel, 368, 8, 300, "Value array, cells in looks of their own");
    const int values = owCreateValueArray(panel, 368, 30, 332, 170, 12, 5, owVpos, OTOP, owAxisW, 60, owAxisH, 22,
                                          owXtext, "*months", owYtext, "North|East|South|West|Total", owYjust, OLEFT,
                                          owBorderType, OSINGLE, owCellBorderLineType, OSOLID, owTabAction, OCYCLE,
                                          owSelectCallback, OIDENT, owCallback, OIDENT, 0);
    OARRAYCELL cell;
    owEnqCellAttribs(values, 1, 1, &cell);
    cell.width = 62;
    cell.decimals = 1;
    owSetCellAttribs(values, 0, 0, &cell);
    oDefineRGB(57, 0.88, 0.94, 0.86);
    cell.backCol = 57;
    cell.readOnly = OON;
    owSetCellAttribs(values, 0, 5, &cell);
    for (int month = 1; month <= 12; month++) {
        double total = 0;
        for (int row = 1; row <= 4; row++) {
            const double value = (month * 37 + row * 53) % 90 / 2.0;
            total += value;
            owSetValueArray(values, month, row, value);
        }
        owSetValueArray(values, month, 5, total);
    }
    label(panel, 12, 212, 300, "Table box");
    const int table =
        owCreateTableBox(panel, 12, 234, 340, 226, owVpos, OTOP, owCallback, OIDENT, owDoubleClickCallback, OIDENT, 0);
    owAddTableBoxColumn(table, 1, 120, owLabel, "Element");
    owAddTableBoxColumn(table, 2, 90, owLabel, "Symbol");
    owAddTableBoxColumn(table, 3, 100, owLabel, "Weight");
    static const char* const elements[][3] = {{"Hydrogen", "H", "1.008"},  {"Carbon", "C", "12.011"},
                                              {"Nitrogen", "N", "14.007"}, {"Oxygen", "O", "15.999"},
                                              {"Sodium", "Na", "22.990"},  {"Chlorine", "Cl", "35.45"},
                                              {"Iron", "Fe", "55.845"},    {"Copper", "Cu", "63.546"}};
    for (const auto& element : elements) {
        const int row = owAddTableBoxEntry(table, 0, 1, element[0]);
        owAddTableBoxEntry(table, row, 2, element[1]);
        owAddTableBoxEntry(table, row, 3, element[2]);
    }
    label(panel, 368, 212, 300, "TTY entry");
    oDefineRGB(58, 0.1, 0.13, 0.16);
    oDefineRGB(59, 0.75, 0.95, 0.78);
    tty =
        owCreateTTYEntry(panel, 368, 234, 332, 226, 200, "It repeats what is typed.|Up and Down bring lines back.",
                         owVpos, OTOP, owPrompt, "?", owOffCol, 58, owOnCol, 58, owTextCol, 59, owCallback, OIDENT, 0);
    owSetFontAttribs(tty, owFontFace, "Courier New", owPointSize, 10, 0);
}

static void event(const OACTION* action) {
    char line[320];
    if (action->callback == tty) {
        snprintf(line, sizeof line, "You typed \"%s\"", action->text);
        owSetTextSetting(tty, line, 0);
    } else if (action->count >= 2) {
        snprintf(line, sizeof line, "Column %d, row %d: %s", action->iargs[0], action->iargs[1], action->text);
    } else {
        snprintf(line, sizeof line, "Row %d: %s", action->status, action->text);
    }
    say(line);
}

const Page arrayPage = {"Arrays, tables, TTY", "textcel", build, event};
