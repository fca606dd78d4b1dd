// Message boxes, file browsers, colours and fonts.
#include "gallery.h"

#include <stdio.h>
#include <string.h>

typedef void (*Show)(void);
typedef struct Sample {
    const char* text;
    Show show;
} Sample;

static int sampleFont;

static void ask(int icon, int buttons) {
    char line[64];
    snprintf(line, sizeof line, "Answer %d",
             owDisplayMessageBox("Gallery", "Save the changes first?|They are lost otherwise.", icon, buttons));
    say(line);
}
static void question(void) { ask(OQUESTION, OBOXYESNOCANCEL); }
static void warning(void) { ask(OWARNING, OBOXYESNO); }
static void information(void) { ask(OINFORMATION, OBOXOKCANCEL); }
static void error(void) { owDisplayErrorBox("File not found", "The requested file could not be found"); }
static void info(void) { owDisplayInfoBox("Gallery", "One line|and another"); }

static void browse(const char* title, int type) {
    static char name[256], folder[1024];
    char line[1400];
    const int chosen = owFileBrowser(name, sizeof name, folder, sizeof folder, "*.cpp;*.h|C++ files|*.*|All files",
                                     owTitle, title, owType, type, 0);
    snprintf(line, sizeof line, chosen ? "%s in %s" : "Nothing was chosen", name, folder);
    say(line);
}
static void open(void) { browse("Open", OOPENFILE); }
static void save(void) { browse("Save As", OSAVEFILE); }
static void directory(void) { browse("Choose a folder", OPICKDIRECTORY); }

static void colour(void) {
    float red = 0.2F, green = 0.5F, blue = 0.9F;
    if (!owColourControl(&red, &green, &blue)) return;
    oDefineRGB(43, red, green, blue);
    owSetWidgetProp(sampleFont, owTextCol, 43, 0);
}
static void font(void) { owFontAttribsDialogue(sampleFont); }

static const Sample samples[] = {
    {"Question...", question}, {"Warning...", warning},           {"Information...", information},
    {"Error box...", error},   {"Information box...", info},      {"Open a file...", open},
    {"Save a file...", save},  {"Choose a folder...", directory}, {"Colour...", colour},
    {"Font...", font},
};
enum { SAMPLES = sizeof samples / sizeof samples[0] };
static int buttons[SAMPLES];

static void build(int panel) {
    for (int i = 0; i < SAMPLES; i++)
        buttons[i] = owCreatePushButton(panel, 20 + i / 5 * 190, 20 + i % 5 * 36, 170, 26, samples[i].text, owVpos,
                                        OTOP, owCallback, OIDENT, 0);
    sampleFont =
        owCreateTextEntry(panel, 20, 220, 360, 60, "Text in the chosen colour and font", 255, OEDIT, owVpos, OTOP, 0);
}

static void event(const OACTION* action) {
    for (int i = 0; i < SAMPLES; i++)
        if (action->widget == buttons[i]) samples[i].show();
}

const Page boxPage = {"Boxes", "question", build, event};
