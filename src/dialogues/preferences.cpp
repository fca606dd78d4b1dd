#include "dialogues/preferences.h"

#include "dialogues/commands.h"
#include "dialogues/frame.h"
#include "dialogues/project_requests.h"
#include "editing/editor_window.h"
#include "editing/syntax.h"
#include "project/language.h"
#include "project/preferences.h"
#include "project/records.h"
#include "project/tools.h"
#include "settings/preferences_file.h"
#include "surface/hooks.h"
#include "surface/selection.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

using P = Preferences;

struct Row {
    int id;
    int P::*field;
    int P::*switched = nullptr; // enabled while this is on
};
constexpr Row TOGGLES[] = {
    {PREF_REPEAT, &P::repeatPlacement},  {PREF_DELETE, &P::delDeletes},
    {PREF_PROMPTS, &P::argumentPrompts}, {PREF_COLOURS, &P::syntaxColours},
    {PREF_ASSIST, &P::codeAssist},       {PREF_TAB, &P::replaceTab},
    {PREF_BACKUP, &P::autoBackupOn},     {PREF_GENERATE_SAVES, &P::generateSavesProject},
    {PREF_CONFIG, &P::configCheck},      {PREF_SAVE_GENERATES, &P::saveGeneratesCode},
};
constexpr Row NUMBERS[] = {
    {PREF_TAB_SPACES, &P::tabSpaces, &P::replaceTab},
    {PREF_GLOBAL_INDENT, &P::globalIndent},
    {PREF_SELECTED_INDENT, &P::selectedIndent},
    {PREF_BACKUP_MINUTES, &P::autoBackupMinutes, &P::autoBackupOn},
};
constexpr int POINT_SIZES[] = {6, 8, 10, 12, 14, 16, 18, 24, 32, 48, 72};

std::string inColumn(int number) {
    char text[16];
    std::snprintf(text, sizeof text, "%3d", number);
    return text;
}

void show() {
    for (const Row& row : TOGGLES) dialogue::setOn(row.id, preferences.*row.field != 0);
    for (const Row& row : NUMBERS) dialogue::setNumber(row.id, preferences.*row.field);
    dialogue::setText(PREF_POINT_SIZE, inColumn(preferences.codePointSize));
    dialogue::setText(PREF_CONFIG_TEXT, preferences.configDirExpr);
}

void fill() {
    std::vector<std::string> sizes;
    for (const int size : POINT_SIZES) sizes.push_back(inColumn(size));
    dialogue::setRows(PREF_POINT_SIZE, sizes);
    show();
}

void refresh() {
    for (const Row& row : NUMBERS)
        if (row.switched) dialogue::enable(row.id, preferences.*row.switched != 0);
    dialogue::enable(PREF_PROMPTS, languageOfProject().family == LanguageFamily::Fortran);
}

// Everything that follows from a change, from the dialogue or back from the file.
void apply(const Preferences& before) {
    const Preferences& now = preferences;
    if (now.repeatPlacement && !before.repeatPlacement) selectTool(TOOL_SELECTOR);
    const bool coloursChanged = now.syntaxColours != before.syntaxColours;
    if (coloursChanged && now.syntaxColours && !loadSyntaxAttributes()) syntaxNotAvailable();
    if (coloursChanged || now.codePointSize != before.codePointSize) refreshFont(false, 0);
    projectRequests.preferencesChanged();
}

// The number that stands at the start of a text; the old one when none that can be had does.
int pointSizeFrom(const std::string& text) {
    const PreferenceRange range = preferenceRange(&P::codePointSize);
    char* end = nullptr;
    const long number = std::strtol(text.c_str(), &end, 10);
    if (end == text.c_str() || number < range.least || number > range.most) return preferences.codePointSize;
    return static_cast<int>(number);
}

void take() {
    const Preferences before = preferences;
    for (const Row& row : TOGGLES) preferences.*row.field = dialogue::isOn(row.id) ? 1 : 0;
    for (const Row& row : NUMBERS) {
        const PreferenceRange range = preferenceRange(row.field);
        const double number = std::clamp<double>(dialogue::number(row.id), range.least, range.most);
        preferences.*row.field = static_cast<int>(number);
    }
    preferences.codePointSize = pointSizeFrom(dialogue::text(PREF_POINT_SIZE));
    const std::string text = dialogue::text(PREF_CONFIG_TEXT);
    preferences.configDirExpr = text == " " ? "" : text;
    apply(before);
    show(); // what could not be taken, or had no effect
}

extern const Dialogue PREFERENCES_DIALOGUE;

void accept() {
    take();
    savePreferences();
    closeDialogue(PREFERENCES_DIALOGUE);
}

void cancel() {
    const Preferences before = preferences;
    reloadPreferences();
    apply(before);
    closeDialogue(PREFERENCES_DIALOGUE);
}

// ---- The window

constexpr char CONFIG_HELP[] = "Replace the call to oOpenOrba with oEnqConfigStatus(dir) so that the location of "
                               "ORBA.CON can be specified";

constexpr Control page(int id, const char* title) {
    return {.field = Field::Page, .id = id, .text = title, .parent = PREF_TABS};
}
constexpr Control toggle(int id, int page, const char* text, short x, short y, short width, char mnemonic,
                         const char* help = nullptr) {
    return {.field = Field::Toggle,
            .id = id,
            .text = text,
            .x = x,
            .y = y,
            .width = width,
            .mnemonic = mnemonic,
            .changed = take,
            .help = help,
            .parent = page};
}
constexpr Control label(int page, const char* text, short x, short y, short width) {
    return {.text = text, .x = x, .y = y, .width = width, .parent = page};
}
constexpr Control number(int id, int page, short x, short y, int digits, double least, double most) {
    return {.field = Field::Number,
            .id = id,
            .x = x,
            .y = y,
            .width = 60,
            .changed = take,
            .parent = page,
            .length = digits,
            .minimum = least,
            .maximum = most};
}

constexpr Control CONTROLS[] = {
    {.field = Field::Tabs, .id = PREF_TABS, .x = 0, .y = 32, .width = 464, .height = 198},
    page(PAGE_DESIGN, "Design"),
    toggle(PREF_REPEAT, PAGE_DESIGN, "Repeat placement of new widget", 10, 130, 300, 'R'),
    toggle(PREF_DELETE, PAGE_DESIGN, "DEL deletes current widget", 10, 104, 300, 'D'),
    page(PAGE_EDITING, "Code Editing"),
    toggle(PREF_PROMPTS, PAGE_EDITING, "F90 Argument Prompts", 10, 130, 220, 'A'),
    toggle(PREF_COLOURS, PAGE_EDITING, "Colour Syntax Highlighting", 10, 104, 220, 'H'),
    toggle(PREF_ASSIST, PAGE_EDITING, "CodeAssist Popup", 10, 78, 220, 'P'),
    toggle(PREF_TAB, PAGE_EDITING, "Replace TAB by", 10, 48, 140, 'T'),
    number(PREF_TAB_SPACES, PAGE_EDITING, 156, 48, 2, 0, 99),
    label(PAGE_EDITING, "Global Indent", 250, 130, 110),
    number(PREF_GLOBAL_INDENT, PAGE_EDITING, 366, 130, 2, 0, 99),
    label(PAGE_EDITING, "Selected Indent", 250, 104, 110),
    number(PREF_SELECTED_INDENT, PAGE_EDITING, 366, 104, 2, 0, 99),
    label(PAGE_EDITING, "Point Size", 250, 78, 110),
    {.field = Field::Combo,
     .id = PREF_POINT_SIZE,
     .x = 366,
     .y = 78,
     .width = 72,
     .changed = take,
     .parent = PAGE_EDITING},
    page(PAGE_SAVE, "Save"),
    toggle(PREF_BACKUP, PAGE_SAVE, "Auto Backup every: ", 10, 130, 160, 'B'),
    number(PREF_BACKUP_MINUTES, PAGE_SAVE, 176, 130, 4, 1, 1440),
    label(PAGE_SAVE, "minutes", 242, 130, 80),
    toggle(PREF_GENERATE_SAVES, PAGE_SAVE, "Code Generation automatically saves Project", 10, 100, 340, 'G'),
    toggle(PREF_SAVE_GENERATES, PAGE_SAVE, "Saving Project automatically saves Code", 10, 74, 340, 'S'),
    page(PAGE_INITIALIZATION, "Code Initialization"),
    toggle(PREF_CONFIG, PAGE_INITIALIZATION, "Check for ORBA config file in: ", 10, 130, 220, 'f', CONFIG_HELP),
    {.field = Field::Text,
     .id = PREF_CONFIG_TEXT,
     .x = 236,
     .y = 130,
     .width = 200,
     .changed = take,
     .help = CONFIG_HELP,
     .parent = PAGE_INITIALIZATION,
     .length = CONFIG_EXPRESSION_BYTES},
    {.field = Field::Default, .id = PREF_OK, .text = "OK", .x = 294, .y = 2, .width = 80, .changed = accept},
    {.field = Field::Button, .id = PREF_CANCEL, .text = "Cancel", .x = 380, .y = 2, .width = 80, .changed = cancel},
};

const Dialogue PREFERENCES_DIALOGUE = {
    .title = "Preferences",
    .icon = "Light",
    .width = 464,
    .height = 230,
    .windowEvent = PREF_WINDOW,
    .controls = CONTROLS,
    .cancel = PREF_CANCEL,
    .fill = fill,
    .refresh = refresh,
};

void preferencesCommand() { openDialogue(PREFERENCES_DIALOGUE); }

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_PREFERENCES, .label = "Preferences...", .mnemonic = 'P', .handler = preferencesCommand},
};
// clang-format on

} // namespace

std::span<const Command> preferencesCommands() { return COMMANDS; }
