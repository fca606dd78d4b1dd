#include "dialogues/syntax_attributes.h"

#include "dialogues/commands.h"
#include "dialogues/frame.h"
#include "editing/editor_window.h"
#include "editing/syntax.h"
#include "project/language.h"
#include "project/preferences.h"
#include "surface/hooks.h"
#include "surface/selection.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr const char* CATEGORIES[SYNTAX_CATEGORIES] = {
    "Plain Text|Normal code",
    "Comments|Comments in code",
    "Fortran Strings|Characters enclosed in '",
    "C Strings|Characters enclosed in \"",
    "Numerics|Numbers in code",
    "Language|Language specific keywords",
    "Preprocessor|C preprocessor directives",
    "Types|Language data types and their attributes",
    "Parameters|ORBA's predefined constants",
    "ORBA|ORBA routine/function names",
    "ORBAPLOT|ORBAPLOT routine/function names",
    "ORBAMESH|ORBAMESH routine/function names",
    "ORBAWIDG|ORBAWIDG routine/function names",
    "Optionals|ORBA's optional argument names",
};

// Code in which each category that the language has stands once.
constexpr char FORTRAN_SAMPLE[] = "integer :: panel = 42 ! a comment\r\n"
                                  "if (on) panel = owCreatePanel(form, owExpand=OON)\r\n"
                                  "call oMoveTo2D(1.0, 2.0); write(*,*) 'text'";
constexpr char FIXED_SAMPLE[] = "C     a comment\r\n"
                                "      INTEGER PANEL1\r\n"
                                "      CALL BUTTON(42, 'text')\r\n";
constexpr char C_SAMPLE[] = "#include \"menu-c.h\" // a comment\r\n"
                            "int panel = owCreatePanel(form, owExpand, OON, 0);\r\n"
                            "if (on) oMoveTo2D(1.0, 2.0), title = 'A';";

const char* sampleCode() {
    switch (languageOfProject().number) {
    case LANGUAGE_F77: return FIXED_SAMPLE;
    case LANGUAGE_F90: return FORTRAN_SAMPLE;
    case LANGUAGE_C: return C_SAMPLE;
    }
    return "";
}

constexpr int TRUE_COLOUR = 0x1000000;

struct {
    std::array<SyntaxAttributes, SYNTAX_CATEGORIES> opened;
    int category = 0;       // as last chosen
    SyntaxAttributes shown; // of the category
} state;

// ---- What the controls show

struct Style {
    int id;
    int SyntaxAttributes::*field;
};
constexpr Style STYLES[] = {{SYNTAX_BOLD, &SyntaxAttributes::bold},
                            {SYNTAX_ITALIC, &SyntaxAttributes::italic},
                            {SYNTAX_UNDERLINE, &SyntaxAttributes::underline},
                            {SYNTAX_STRIKEOUT, &SyntaxAttributes::strikeout}};

// Colours of the table below those that a program defines follow the desktop.
ORGBSTY fractionsOf(int colour) {
    ORGBSTY rgb = {};
    if (colour < TRUE_COLOUR) {
        oEnqRGB(colour, &rgb);
        return rgb;
    }
    rgb.red = static_cast<float>(colour >> 16 & 255) / 255.0F;
    rgb.green = static_cast<float>(colour >> 8 & 255) / 255.0F;
    rgb.blue = static_cast<float>(colour & 255) / 255.0F;
    return rgb;
}

constexpr int LIGHT_TEXT = 0x1FFFFFF, DARK_TEXT = 0x1000000;

int trueColour(const ORGBSTY& rgb) {
    const auto part = [](float fraction) { return static_cast<int>(std::lround(fraction * 255.0F)) & 255; };
    return TRUE_COLOUR + (part(rgb.red) << 16) + (part(rgb.green) << 8) + part(rgb.blue);
}

// By how bright the eye takes the three parts.
bool isDark(const ORGBSTY& rgb) { return 0.30F * rgb.red + 0.59F * rgb.green + 0.11F * rgb.blue < 0.5F; }

// A colour that is made for a white page, on the desktop's own. 0 is the desktop's text.
int readable(int colour) {
    constexpr int PAGE = 18; // of the colour table
    constexpr float KEPT = 0.45F;
    ORGBSTY rgb = fractionsOf(colour);
    if (colour == 0 || !isDark(fractionsOf(PAGE)) || !isDark(rgb)) return colour;
    for (float* part : {&rgb.red, &rgb.green, &rgb.blue}) *part = 1.0F - (1.0F - *part) * KEPT;
    return trueColour(rgb);
}

void showSample() {
    const SyntaxAttributes& shown = state.shown;
    const int sample = dialogue::widget(SYNTAX_SAMPLE);
    const int onIt = shown.colour == 0 ? 0 : isDark(fractionsOf(shown.colour)) ? LIGHT_TEXT : DARK_TEXT;
    owSetWidgetProp(dialogue::widget(SYNTAX_COLOUR), owOffCol, shown.colour, owOnCol, shown.colour, owTextCol, onIt, 0);
    owSetWidgetProp(sample, owTextCol, readable(shown.colour), 0);
    owSetFontAttribs(sample, owFontFace, shown.face.empty() ? "Courier New" : shown.face.c_str(), owPointSize,
                     preferences.codePointSize, owBold, shown.bold, owItalic, shown.italic, owUnderline,
                     shown.underline, owStrikeout, shown.strikeout, 0);
}

void showCategory() {
    state.shown = syntaxAttributes(state.category);
    dialogue::setText(SYNTAX_FONT, state.shown.face);
    for (const Style& style : STYLES) dialogue::setOn(style.id, state.shown.*style.field != 0);
    showSample();
}

void put() {
    setSyntaxAttributes(state.category, state.shown);
    showSample();
}

// ---- Handlers

void categoryChosen() {
    state.category = std::max(dialogue::choice(SYNTAX_CATEGORY), 1) - 1;
    showCategory();
}

void fontChosen() {
    state.shown.face = dialogue::text(SYNTAX_FONT);
    put();
}

void styleSwitched() {
    for (const Style& style : STYLES) state.shown.*style.field = dialogue::isOn(style.id) ? 1 : 0;
    put();
}

void changeColour() {
    ORGBSTY rgb = fractionsOf(state.shown.colour);
    if (!owColourControl(&rgb.red, &rgb.green, &rgb.blue)) return;
    state.shown.colour = trueColour(rgb);
    put();
}

void restoreDefaults() {
    if (loadDefaultSyntaxAttributes()) showCategory();
}

extern const Dialogue SYNTAX_DIALOGUE;

void accept() {
    saveSyntaxAttributes();
    refreshFont(false, 0);
    closeDialogue(SYNTAX_DIALOGUE);
}

void cancel() {
    for (int category = 0; category < SYNTAX_CATEGORIES; ++category)
        if (syntaxAttributes(category) != state.opened[category]) setSyntaxAttributes(category, state.opened[category]);
    closeDialogue(SYNTAX_DIALOGUE);
}

// ---- The window

void fill() {
    for (int category = 0; category < SYNTAX_CATEGORIES; ++category)
        state.opened[category] = syntaxAttributes(category);
    constexpr int DESCRIPTION_WIDTH = 260;
    owSetWidgetProp(dialogue::widget(SYNTAX_CATEGORY), owDescWidth, DESCRIPTION_WIDTH, 0);
    dialogue::setRows(SYNTAX_CATEGORY, {std::begin(CATEGORIES), std::end(CATEGORIES)});
    dialogue::choose(SYNTAX_CATEGORY, state.category + 1);
    dialogue::setText(SYNTAX_CODE, sampleCode());
    const int code = dialogue::widget(SYNTAX_CODE);
    owSetWidgetProp(code, owReadOnly, OON, 0);
    owSetSyntaxHighlighting(code, 1, owLanguage, languageOfProject().syntaxLanguage, 0);
    owSetFontAttribs(code, owFontFace, "Courier New", owPointSize, preferences.codePointSize, 0);
    showCategory();
}

constexpr Control style(int id, const char* text, short x, char mnemonic) {
    return {.field = Field::Toggle,
            .id = id,
            .text = text,
            .x = x,
            .y = 6,
            .width = 82,
            .mnemonic = mnemonic,
            .changed = styleSwitched,
            .parent = SYNTAX_GROUP};
}

constexpr Control CONTROLS[] = {
    {.text = "Category ", .x = 0, .y = 214, .width = 60},
    {.field = Field::Choice, .id = SYNTAX_CATEGORY, .x = 60, .y = 214, .width = 130, .changed = categoryChosen},
    {.field = Field::Note, .id = SYNTAX_SAMPLE, .text = "Sample Text ", .x = 196, .y = 210, .width = 155, .height = 28},
    {.field = Field::Area, .id = SYNTAX_CODE, .x = 0, .y = 128, .width = 351, .height = 78},
    {.field = Field::Panel, .id = SYNTAX_GROUP, .text = "Attributes", .x = 0, .y = 32, .width = 351, .height = 92},
    {.text = "Font ", .x = 8, .y = 38, .width = 40, .parent = SYNTAX_GROUP},
    {.field = Field::Fonts,
     .id = SYNTAX_FONT,
     .x = 50,
     .y = 38,
     .width = 150,
     .changed = fontChosen,
     .parent = SYNTAX_GROUP},
    {.field = Field::Button,
     .id = SYNTAX_COLOUR,
     .text = "Change Colour",
     .x = 222,
     .y = 38,
     .width = 116,
     .changed = changeColour,
     .parent = SYNTAX_GROUP},
    style(SYNTAX_BOLD, "Bold", 8, 'B'),
    style(SYNTAX_ITALIC, "Italic", 90, 'I'),
    style(SYNTAX_UNDERLINE, "Underline", 172, 'U'),
    style(SYNTAX_STRIKEOUT, "Strikeout", 258, 'S'),
    {.field = Field::Button,
     .id = SYNTAX_RESTORE,
     .text = "Restore Defaults",
     .x = 0,
     .y = 2,
     .width = 130,
     .mnemonic = 'R',
     .changed = restoreDefaults},
    {.field = Field::Default, .id = SYNTAX_OK, .text = "OK", .x = 185, .y = 2, .width = 80, .changed = accept},
    {.field = Field::Button, .id = SYNTAX_CANCEL, .text = "Cancel", .x = 271, .y = 2, .width = 80, .changed = cancel},
};

const Dialogue SYNTAX_DIALOGUE = {
    .title = "Modify Syntax Attributes",
    .icon = "Light",
    .width = 351,
    .height = 240,
    .windowEvent = SYNTAX_WINDOW,
    .controls = CONTROLS,
    .cancel = SYNTAX_CANCEL,
    .first = SYNTAX_CATEGORY,
    .fill = fill,
};

void syntaxAttributesCommand() { openDialogue(SYNTAX_DIALOGUE); }

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_SYNTAX_ATTRIBUTES, .label = "Edit Syntax Attributes...", .mnemonic = 'E', .when = WHEN_SYNTAX, .handler = syntaxAttributesCommand},
};
// clang-format on

} // namespace

std::span<const Command> syntaxCommands() { return COMMANDS; }
