#include "dialogues/widget_defaults.h"

#include "dialogues/commands.h"
#include "dialogues/frame.h"
#include "platform/paths.h"
#include "project/defaults.h"
#include "project/files.h"
#include "project/host.h"
#include "project/widget_types.h"
#include "properties/sheet.h"
#include "settings/places.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/selection.h"
#include "surface/state.h"
#include "surface/window_states.h"

#include <algorithm>
#include <utility>

namespace {

// In the order of the list.
constexpr WidgetType ROWS[] = {
    TYPE_TOGGLE,         TYPE_COMBO_BOX, TYPE_FORM,       TYPE_GAUGE,        TYPE_GRAPHICS_FRAME, TYPE_ICON,
    TYPE_LIST_BOX,       TYPE_PANE,      TYPE_PANEL,      TYPE_PROGRESS_BAR, TYPE_BUTTON,         TYPE_SLIDER,
    TYPE_TAB_BOX,        TYPE_TABLE_BOX, TYPE_TEXT_LABEL, TYPE_TEXT_ENTRY,   TYPE_TEXT_ARRAY,     TYPE_TOOL_BAR,
    TYPE_TOOL_SEPARATOR, TYPE_TREE_VIEW, TYPE_TTY_ENTRY,  TYPE_VALUE_LABEL,  TYPE_VALUE_ENTRY,    TYPE_VALUE_ARRAY,
};
static_assert(std::size(ROWS) == DEFAULT_RECORDS);

using Set = std::array<OwnedList, DEFAULT_RECORDS>;

struct {
    int row = 0;                   // last used, from 0
    Set opened;                    // as the set was when the dialogue opened
    bool paneHidden = false;       // the Properties pane, whose sheet the dialogue has
    WidgetNode* sampled = nullptr; // the record that has a live sample
} state;

struct FilePlace {
    std::string folder, name;
} lastFile; // that a set was saved to or loaded from

// ---- The sample

// Windows and what docks at them or stands on a bar show nothing inside a panel.
constexpr TypeSet WITHOUT_SAMPLE = {TYPE_FORM, TYPE_TOOL_BAR, TYPE_PANE, TYPE_TOOL_SEPARATOR};

void eraseSample() {
    WidgetNode* record = std::exchange(state.sampled, nullptr);
    if (!record || record->handle <= 0) return;
    owEraseWidget(record->handle);
    setHandle(*record, 0, 0);
}

void makeSample(WidgetNode& record) {
    eraseSample();
    if (WITHOUT_SAMPLE.holds(record.type)) return;
    realiseWidget(record, dialogue::widget(DEFAULTS_SAMPLE), false);
    if (record.handle > 0) owDrawWidget(record.handle);
    state.sampled = &record;
}

// The record at hand was edited. What cannot change on a live widget shows on a new one.
void edited() { makeSample(*defaultRecord(ROWS[state.row])); }

// ---- Handlers

void typeChosen() {
    state.row = std::clamp(dialogue::choice(DEFAULTS_TYPES), 1, DEFAULT_RECORDS) - 1;
    WidgetNode& record = *defaultRecord(ROWS[state.row]);
    makeSample(record);
    showProperties(&record);
}

bool asks(const char* title, const char* text) {
    return host.messageBox(title, text, BOX_QUESTION, BOX_YES_NO) == ANSWER_YES;
}

void saveAsStartup() {
    if (asks("Overwrite startup widget defaults?", "Do you really want to overwrite system startup defaults?"))
        saveDefaults(joinPath(settingsPlaces.dataDir, STARTUP_DEFAULTS));
}

void saveAs() {
    FilePlace place = lastFile;
    if (place.folder.empty()) place.folder = currentFolder();
    if (!chooseSaveFile("Save Defaults As", ".wdd", true, place.folder, place.name)) return;
    if (saveDefaults(joinPath(place.folder, place.name))) lastFile = place;
}

Set copyOfSet() {
    Set copies;
    for (std::size_t i = 0; i < copies.size(); ++i) {
        copies[i] = copyNode(defaultRecord(defaultOrder[i]), false);
        copies[i]->handle = 0;
    }
    return copies;
}

// The pane of the sheet is away for as long as the dialogue has it.
void hidePane() {
    const int pane = windowStates[WINDOW_PROPERTIES].handle;
    state.paneHidden = pane && owEnqWidgetStatus(pane) != OHIDDEN;
    if (state.paneHidden) owSetWidgetStatus(pane, OHIDDEN);
}

void showPane() {
    if (state.paneHidden) owSetWidgetStatus(windowStates[WINDOW_PROPERTIES].handle, OSELECTABLE);
    state.paneHidden = false;
}

extern const Dialogue DEFAULTS_DIALOGUE;

void close() {
    eraseSample();
    returnSheet();
    showPane();
    design.defaultsMode = 0;
    closeDialogue(DEFAULTS_DIALOGUE);
    state.opened = {};
    hooks.showProperties(project.currentWidget);
    activateWidget(project.currentWidget);
}

void accept() { close(); }

void cancel() {
    Set opened = std::move(state.opened);
    showProperties(nullptr); // the sheet lets go of the record
    eraseSample();
    defaultRecords = std::move(opened);
    close();
}

// ---- The window

void fill() {
    state.opened = copyOfSet();
    design.defaultsMode = 1;
    lendSheet(dialogue::widget(DEFAULTS_SHEET), edited);
    hidePane();
    std::vector<std::string> labels;
    for (const WidgetType type : ROWS) labels.emplace_back(cardOf(type).label);
    dialogue::setRows(DEFAULTS_TYPES, labels);
    dialogue::choose(DEFAULTS_TYPES, state.row + 1);
    dialogue::enable(DEFAULTS_SAVE_STARTUP, !settingsPlaces.dataDir.empty());
    typeChosen();
}

constexpr Control button(int id, const char* text, short x, short width, char mnemonic, void (*changed)()) {
    return {.field = Field::Button,
            .id = id,
            .text = text,
            .x = x,
            .y = 2,
            .width = width,
            .mnemonic = mnemonic,
            .changed = changed};
}

constexpr Control CONTROLS[] = {
    {.text = "Widget", .x = 0, .y = 330, .width = 160},
    {.text = "Default Properties", .x = 250, .y = 330, .width = 180},
    {.field = Field::List, .id = DEFAULTS_TYPES, .x = 0, .y = 206, .width = 244, .height = 124, .changed = typeChosen},
    {.field = Field::Panel, .id = DEFAULTS_FRAME, .text = "Sample", .x = 0, .y = 32, .width = 244, .height = 170},
    {.field = Field::Panel,
     .id = DEFAULTS_SAMPLE,
     .x = 6,
     .y = 4,
     .width = 230,
     .height = 144,
     .parent = DEFAULTS_FRAME},
    {.field = Field::Panel, .id = DEFAULTS_SHEET, .x = 250, .y = 32, .width = 290, .height = 298},
    button(DEFAULTS_SAVE_STARTUP, "Save As Startup", 0, 130, 't', saveAsStartup),
    button(DEFAULTS_SAVE_AS, "Save As", 136, 80, 'S', saveAs),
    {.field = Field::Default, .id = DEFAULTS_OK, .text = "OK", .x = 374, .y = 2, .width = 80, .changed = accept},
    button(DEFAULTS_CANCEL, "Cancel", 460, 80, 0, cancel),
};

const Dialogue DEFAULTS_DIALOGUE = {
    .title = "Widget Defaults",
    .icon = "Light",
    .width = 540,
    .height = 352,
    .windowEvent = DEFAULTS_WINDOW,
    .controls = CONTROLS,
    .cancel = DEFAULTS_CANCEL,
    .first = DEFAULTS_TYPES,
    .fill = fill,
};

constexpr char DEFAULTS_FILES[] = "*.wdd|ORBAWIDG Designer widget defaults files (*.wdd)|*.*|All Files (*.*)";

void widgetDefaultsCommand() {
    selectTool(TOOL_SELECTOR);
    hooks.commitEditor();
    openDialogue(DEFAULTS_DIALOGUE);
}

void loadDefaultsCommand() {
    selectTool(TOOL_SELECTOR);
    FilePlace place = lastFile;
    if (place.folder.empty()) place.folder = currentFolder();
    if (!host.fileDialogue("Load Defaults", DEFAULTS_FILES, false, place.folder, place.name) || place.name.empty())
        return;
    if (!asks("Overwrite current widget defaults?", "Do you want to continue?")) return;
    if (loadDefaults(joinPath(place.folder, place.name))) lastFile = place;
    activateWidget(project.currentWidget);
}

void restoreDefaultsCommand() {
    selectTool(TOOL_SELECTOR);
    if (!asks("Restore system widget defaults?", "Do you really want to delete your startup defaults?")) return;
    for (const std::string& folder : {std::string(), settingsPlaces.dataDir}) {
        const std::string path = joinPath(folder, STARTUP_DEFAULTS);
        if (fileReadable(path)) removeFile(path);
    }
    freeDefaults();
    loadStartupDefaults(settingsPlaces.dataDir);
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_DEFAULTS_RESTORE, .label = "Restore System", .mnemonic = 'R', .handler = restoreDefaultsCommand},
    {.id = CMD_DEFAULTS_LOAD, .label = "Load User", .mnemonic = 'L', .handler = loadDefaultsCommand},
    {.id = CMD_DEFAULTS_CHANGE, .label = "Change Current...", .mnemonic = 'C', .handler = widgetDefaultsCommand},
};
// clang-format on

} // namespace

void leaveWidgetDefaults() {
    if (isOpen(DEFAULTS_DIALOGUE)) cancel();
}

std::span<const Command> defaultsCommands() { return COMMANDS; }
