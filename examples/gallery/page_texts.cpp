// Text entries and labels: single line, secret, many lines, rich text with links, coloured source.
#include "gallery.h"

#include <stdio.h>
#include <string.h>

static int rich, source, find;

static const char* const richText = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}{\\f1 Times New Roman;}{\\f2 Courier "
                                    "New;}}{\\colortbl ;\\red180\\green30\\blue30;\\red20\\green110\\blue60;}"
                                    "\\pard\\qc\\f1\\fs32\\b Rich text\\b0\\par\\pard\\f0\\fs20 with {\\b bold}, {\\i "
                                    "italic}, {\\ul underlined} and {\\strike struck} words, "
                                    "{\\cf1 red} and {\\cf2 green} ones, and {\\f2 a fixed face}.\\par"
                                    "{\\*\\pn\\pnlvlblt{\\pntxtb\\'b7}}\\fi-360\\li360 a bullet\\par another "
                                    "bullet\\par\\pard\\qr\\fs18 at the right: http://www.example.org/page\\par}";

static const char* const code =
    "! Falls from a height\nsubroutine fall(height, seconds)\n  real, intent(in) :: height\n  real, intent(out) :: "
    "seconds\n"
    "  real, parameter :: g = 9.81d0\n  seconds = sqrt(2.0 * height / g)\n  print *, 'after', seconds, \"seconds\"\n"
    "  call owSetValueSetting(answer, seconds)\nend subroutine";

static int entry(int panel, int x, int y, int width, int height, const char* text, int keyword, int value) {
    return owCreateTextEntry(panel, x, y, width, height, text, 255, OEDIT, owVpos, OTOP, owCallback, OIDENT,
                             owChangeCallback, OIDENT, keyword, value, 0);
}

// Category, colour and words of a small language, so that the page needs no file.
static void prepareSyntax() {
    static const struct {
        int category, colour, bold;
        const char* words;
    } rows[] = {{1, 0x01108030, 0, ""},
                {2, 0x01A04020, 0, ""},
                {3, 0x01A04020, 0, ""},
                {4, 0x01906000, 0, ""},
                {5, 0x010030B0, 1, "subroutine end call print parameter intent in out"},
                {7, 0x01207080, 1, "real integer"},
                {12, 0x01703090, 0, "owSetValueSetting"}};
    for (const auto& row : rows) {
        owSetSyntaxFont(row.category, owTextCol, row.colour, owBold, row.bold, 0);
        char words[128];
        snprintf(words, sizeof words, "%s", row.words);
        for (char* word = strtok(words, " "); word; word = strtok(nullptr, " ")) owAddSyntaxKeyword(row.category, word);
    }
}

static void build(int panel) {
    static const char* const borders[] = {"default border", "3D border", "2D border", "no border"};
    label(panel, 12, 8, 160, "Borders");
    for (int i = 0; i < 4; i++) entry(panel, 12, 30 + i * 28, 150, 24, borders[i], owBorderType, i);
    label(panel, 180, 8, 160, "Justification");
    static const char* const sides[] = {"left", "centred", "right"};
    for (int i = -1; i <= 1; i++) entry(panel, 180, 30 + (i + 1) * 28, 150, 24, sides[i + 1], owJustify, i);
    entry(panel, 180, 114, 150, 24, "secret", owEntryType, OSECURITY);
    label(panel, 348, 8, 160, "States");
    entry(panel, 348, 30, 150, 24, "read only", owReadOnly, OON);
    entry(panel, 348, 58, 150, 24, "disabled", owWidgetStatus, OUNSELECTABLE);
    oDefineRGB(55, 1.0, 1.0, 0.85);
    oDefineRGB(56, 0.82, 1.0, 0.85);
    owCreateTextEntry(panel, 348, 86, 150, 24, "green while active", 255, OEDIT, owVpos, OTOP, owBack1Col, 55,
                      owBack2Col, 56, owTextCol, 4, 0);
    owCreateTextEntry(panel, 348, 114, 150, 24, "ten", 10, OEDIT, owVpos, OTOP, owHelp, "At most ten characters", 0);
    label(panel, 516, 8, 180, "Labels");
    owCreateTextEntry(panel, 516, 30, 184, 24, "left label", 255, ODISPLAY, owVpos, OTOP, 0);
    owCreateTextEntry(panel, 516, 58, 184, 24, "right label", 255, ODISPLAY, owVpos, OTOP, owJustify, ORIGHT, 0);
    owCreateTextEntry(panel, 516, 86, 184, 52, "centred label|of two lines", 255, ODISPLAY, owVpos, OTOP, owJustify,
                      OCENTRE, owScrollMode, ONOBARS, owBack1Col, 55, owTextCol, 4, 0);

    label(panel, 12, 150, 200, "Many lines");
    owCreateTextEntry(panel, 12, 172, 220, 120,
                      "Lines that wrap at the right edge when there is a vertical bar only,|and paragraphs|by bars in "
                      "the text of the call.|||last line",
                      5000, OEDIT, owVpos, OTOP, owScrollMode, OVERTICAL, owCallback, OIDENT, 0);
    label(panel, 248, 150, 200, "Rich text with links");
    rich =
        owCreateTextEntry(panel, 248, 172, 452, 120, "", 32767, OEDIT, owVpos, OTOP, owEntryType, ORICHEDIT,
                          owScrollMode, OVERTICAL, owAutoURL, OON, owLinkCallback, OIDENT, owSelectCallback, OIDENT, 0);
    owSetTextSetting(rich, richText, owEntryType, ORICHEDIT, 0);
    label(panel, 12, 304, 300, "Source with coloured words");
    source = owCreateTextEntry(panel, 12, 326, 560, 142, "", 32767, OEDIT, owVpos, OTOP, owEntryType, ORICHEDIT,
                               owScrollMode, OBOTHBARS, owSelectCallback, OIDENT, 0);
    owSetTextSetting(source, code, 0);
    owSetFontAttribs(source, owFontFace, "Courier New", owPointSize, 10, 0);
    prepareSyntax();
    owSetSyntaxHighlighting(source, 1, owLanguage, 2, 0);
    find = owCreatePushButton(panel, 588, 326, 112, 26, "Find...", owVpos, OTOP, owCallback, OIDENT, 0);
}

static void event(const OACTION* action) {
    char line[320];
    if (action->widget == find) {
        char wanted[256];
        owFindTextDialogue(source, wanted, sizeof wanted);
        return;
    }
    if (action->callback == rich + 11 * OIDENT) {
        snprintf(line, sizeof line, "Link to %s", action->text);
    } else if (action->widget == source || action->widget == rich) {
        int start = 0, end = 0;
        owEnqSelectedTextRange(action->widget, &start, &end, 0);
        snprintf(line, sizeof line, "Line: %d  Column: %d  Selected: %d", owEnqTextPos(action->widget, 0, 0),
                 start - owEnqTextPos(action->widget, 1, 0), end - start);
    } else {
        snprintf(line, sizeof line, "Text of %d: %s", action->widget, action->text);
    }
    say(line);
}

const Page textPage = {"Texts", "Text", build, event};
