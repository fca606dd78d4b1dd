// A property list with every kind of cell.
#include "gallery.h"

#include <stdio.h>

static int list;

static void combo(const char* title, int contents, int display, const char* const* entries, const char* chosen,
                  int status) {
    const int box = owCreateComboBox(list, 0, 0, 200, 200, contents, display, 0);
    for (; entries && *entries; entries++) owSetListEntry(box, OADD, owString, *entries, 0);
    const int row = owAddPropertyToList(list, OPROPCOMBO, title, owPropertyWidget, box, owPropertyStatus, status, 0);
    owSetPropertySetting(list, row, owString, chosen, 0);
}

static void number(const char* title, double value, int decimals, int type, double low, double high) {
    const int entry =
        owCreateValueEntry(list, 0, 0, 80, 22, value, 10, decimals, OEDIT, owType, type, owVmin, low, owVmax, high, 0);
    owAddPropertyToList(list, OPROPVALUE, title, owPropertyWidget, entry, 0);
}

static void build(int panel) {
    static const char* const types[] = {"Standard", "User Defined", "Default Button", 0};
    static const char* const onOff[] = {"Off", "On", 0};
    label(panel, 12, 8, 460, "Click a value, or type; Tab goes on to the next row");
    list = owCreatePropertyList(panel, 12, 30, 330, 420, owVpos, OTOP, owColumnWidth, 140, owRowHeight, 22,
                                owSelectCallback, OIDENT, owCallback, OIDENT, owChangeCallback, OIDENT, 0);
    owAddPropertyToList(list, OPROPTEXT, "Name", owString, "Form1_Button1", owHelp, "A name of the language", 0);
    combo("Type", ONONE, ODISPLAY, types, "Standard", 1);
    owAddPropertyToList(list, OPROPTEXT, "Label", owString, "OK", 0);
    owAddPropertyToList(list, OPROPTEXT, "Accelerator", owString, "", 0);
    owAddPropertyToList(list, OPROPTEXT, "Bubble Help", owString, "NOT USED", owPropertyStatus, 0, 0);
    number("Xpos", 120, 0, ODECIMAL, 0, 4000);
    number("Scale", 1.25, 2, ODECIMAL, 0, 100);
    number("Size", 100, 0, OMPERCENT, 50, 100);
    number("Mask", 255, 0, OHEX, 0, 65535);
    oDefineRGB(42, 0.93, 0.45, 0.2);
    owAddPropertyToList(list, OPROPBUTTON, "On Colour", owBackCol, 42, 0);
    owAddPropertyToList(list, OPROPBUTTON, "Text Colour", owBackCol, 2, owPropertyStatus, 0, 0);
    owAddPropertyToList(list, OPROPBUTTON, "Icon", owString, "MBIG1084", owReadOnly, 0, 0);
    combo("Font Face", OFONTS, OEDIT, 0, "DejaVu Sans", 1);
    combo("Bold", ONONE, ODISPLAY, onOff, "Off", 1);
    combo("Expand", ONONE, ODISPLAY, onOff, "Off", 0);
    owSelectProperty(list, 1);
}

static void pickColour(int row) {
    float red = 0.93F, green = 0.45F, blue = 0.2F;
    if (!owColourControl(&red, &green, &blue)) return;
    oDefineRGB(42, red, green, blue);
    owSetPropertySetting(list, row, owBackCol, 42, 0);
}

static void event(const OACTION* action) {
    char title[128] = "", text[256] = "", line[512];
    owEnqPropertySetting(list, 0, owPropertyLabel, title, owString, text, 0);
    const char* what = action->callback == list            ? "button pressed"
                       : action->callback == list + OIDENT ? "selected"
                                                           : "changed to";
    snprintf(line, sizeof line, "%s: %s %s", title, what, text);
    say(line);
    if (action->callback == list && action->status == owPropertyItemNumber(list, "On Colour"))
        pickColour(action->status);
}

const Page propertyPage = {"Property list", "preferences", build, event};
