#include "dialogues/project_type.h"

#include "dialogues/commands.h"
#include "dialogues/frame.h"
#include "dialogues/project_requests.h"
#include "editing/editor_window.h"
#include "platform/environment.h"
#include "platform/paths.h"
#include "project/convert.h"
#include "project/host.h"
#include "project/language.h"
#include "surface/commands.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/selection.h"
#include "surface/state.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

// The screen that a grid divides, in pixels.
constexpr int SCREEN_WIDTH = 800, SCREEN_HEIGHT = 600;
constexpr int FEWEST = 12, MOST = 99; // cells along it

struct Shown {
    ProjectType type;
    int pixelX = 0, pixelY = 0;
    bool operator==(const Shown&) const = default;
};

struct {
    bool creating = false; // a new project: nothing is asked
    Shown opened;          // what the dialogue began with
    Shown last;            // before the change at hand
    bool gridRefused = false;
} state;

// ---- What the controls show

struct Choice {
    int id;
    int value;
};
constexpr Choice LANGUAGES[] = {{TYPE_F77, LANGUAGE_F77}, {TYPE_F90, LANGUAGE_F90}, {TYPE_C, LANGUAGE_C}};
constexpr Choice PLATFORMS[] = {{TYPE_WINDOWS, 'w'}, {TYPE_X, 'x'}, {TYPE_GLX, 'g'}};
constexpr Choice BUFFERING[] = {{TYPE_HARDWARE, 1}, {TYPE_SOFTWARE, 0}};
constexpr Choice GRID[] = {{TYPE_GRID_ON, 1}, {TYPE_GRID_OFF, 0}};
constexpr Choice SCALING[] = {{TYPE_SCALABLE, 1}, {TYPE_FIXED, 0}};

int chosen(std::span<const Choice> choices) {
    const auto on = std::ranges::find_if(choices, [](const Choice& one) { return dialogue::isOn(one.id); });
    return on == choices.end() ? choices.back().value : on->value;
}

void choose(std::span<const Choice> choices, int value) {
    for (const Choice& one : choices)
        if (one.value == value) dialogue::setOn(one.id, true);
}

int whole(int id) { return static_cast<int>(dialogue::number(id)); }

Shown shown() {
    return {.type = {.language = chosen(LANGUAGES),
                     .platform = static_cast<char>(chosen(PLATFORMS)),
                     .doubleBuffering = chosen(BUFFERING),
                     .gridMode = chosen(GRID),
                     .gridHoriz = whole(TYPE_HORIZ),
                     .gridVert = whole(TYPE_VERT),
                     .scalable = chosen(SCALING)},
            .pixelX = whole(TYPE_PIXEL_X),
            .pixelY = whole(TYPE_PIXEL_Y)};
}

void showNumbers(const Shown& what) {
    dialogue::setNumber(TYPE_HORIZ, what.type.gridHoriz);
    dialogue::setNumber(TYPE_VERT, what.type.gridVert);
    dialogue::setNumber(TYPE_PIXEL_X, what.pixelX);
    dialogue::setNumber(TYPE_PIXEL_Y, what.pixelY);
}

void setCells(int horiz, int vert) {
    dialogue::setNumber(TYPE_HORIZ, horiz);
    dialogue::setNumber(TYPE_VERT, vert);
    dialogue::setNumber(TYPE_PIXEL_X, SCREEN_WIDTH / horiz);
    dialogue::setNumber(TYPE_PIXEL_Y, SCREEN_HEIGHT / vert);
}

// ---- What a new project begins with

struct Model {
    const char* file; // with the mark of its language and ".wdp" behind
    const char* name;
};
constexpr Model MODELS[] = {
    {"dialogue", "Dialogue with OK and Cancel"},
    {"tool", "Tool with menu, status bar, drawing"},
    {"calculator", "Calculator"},
};

std::string pathOf(const Model& model, int language) {
    const char* mark = languageFacts(language).family == LanguageFamily::C ? "_c" : "_f90";
    return joinPath(joinPath(folders.installDir, "templates"), std::string(model.file) + mark + ".wdp");
}

// Those that are installed, in the order of the list.
std::vector<Model> models() {
    std::vector<Model> found;
    for (const Model& model : MODELS)
        if (pathExists(pathOf(model, LANGUAGE_F90)) && pathExists(pathOf(model, LANGUAGE_C))) found.push_back(model);
    return found;
}

std::string modelPath(const ProjectType& type) {
    const int row = dialogue::choice(TYPE_MODEL);
    const std::vector<Model> found = models();
    return row < 2 || row > static_cast<int>(found.size()) + 1 ? "" : pathOf(found[row - 2], type.language);
}

void showModels() {
    std::vector<std::string> names = {"Empty form"};
    for (const Model& model : models()) names.emplace_back(model.name);
    dialogue::setRows(TYPE_MODEL, names);
    dialogue::choose(TYPE_MODEL, 1);
}

// How much a change to X would cost.
std::string losses() {
    int lost = 0;
    for (const WidgetNode* node : windowsOnlyRecords(project.forms))
        for (const WidgetNode* one = node; one; one = walkBelow(one, node)) ++lost;
    if (lost == 0) return "";
    return "X-Win would remove " + std::to_string(lost) + (lost == 1 ? " widget" : " widgets");
}

void fill() {
    const ProjectType type = projectType();
    const bool refused = state.creating && type.language == LANGUAGE_F77; // no new project is in it
    choose(LANGUAGES, refused ? static_cast<int>(LANGUAGE_F90) : type.language);
    choose(PLATFORMS, type.platform);
    choose(BUFFERING, type.doubleBuffering != 0);
    choose(GRID, type.gridMode != 0);
    choose(SCALING, type.scalable != 0);
    setCells(std::clamp(type.gridHoriz, FEWEST, MOST), std::clamp(type.gridVert, FEWEST, MOST));
    if (type.gridMode) {
        dialogue::setNumber(TYPE_PIXEL_X, project.gridPixelX);
        dialogue::setNumber(TYPE_PIXEL_Y, project.gridPixelY);
    }
    dialogue::show(TYPE_F77, false);
    showModels();
    dialogue::setText(TYPE_LOSSES, losses());
    dialogue::show(TYPE_MODEL_LABEL, state.creating);
    dialogue::show(TYPE_MODEL, state.creating);
    dialogue::show(TYPE_LOSSES, !state.creating);
    state.opened = state.last = shown();
    state.gridRefused = false;
}

void refresh() {
    const ProjectType type = shown().type;
    dialogue::enable({TYPE_HARDWARE, TYPE_SOFTWARE}, type.platform == 'w');
    dialogue::enable({TYPE_HORIZ, TYPE_VERT, TYPE_PIXEL_X, TYPE_PIXEL_Y, TYPE_FIXED, TYPE_SCALABLE},
                     type.gridMode != 0);
    state.last = shown();
}

// ---- Questions while an open project is changed

bool agreed(const char* title, const char* text) {
    return state.creating || host.messageBox(title, text, BOX_WARNING, BOX_OK_CANCEL) == ANSWER_OK;
}

void languageChosen() {
    const int language = shown().type.language;
    if (language == state.last.type.language || language == project.projectLanguage) return;
    if (!agreed("Change Project Code Type",
                "All project and callback code blocks and external file references|will probably become invalid and "
                "project will not build||Are you sure you want to continue?"))
        choose(LANGUAGES, project.projectLanguage);
}

bool platformAgreed(char from, char to) {
    if (project.projectPlatform == 'w' && from == 'w')
        return agreed("Change Project to X-Windows Functionality",
                      "All array grids, tree views, table boxes, progress bars, gauges, and status bar widgets will be "
                      "removed|and project will be converted to grid mode||Are you sure you want to continue?");
    if (project.projectPlatform != 'w' && from != 'w' && to == 'w')
        return agreed("Change Project to Full Windows Functionality",
                      "Windows functionality will become available||Do you want to continue?");
    return true;
}

// The grid that a platform begins with, where the other one's has not been changed.
void followPlatform(const Shown& now) {
    const bool windows = now.type.platform == 'w';
    const auto cells = [&](int value, int ofWindows, int ofOthers) {
        if (state.creating || value == (windows ? ofOthers : ofWindows)) return windows ? ofWindows : ofOthers;
        return value;
    };
    const int horiz = cells(now.type.gridHoriz, 36, 32), vert = cells(now.type.gridVert, 27, 24);
    if (horiz != now.type.gridHoriz) {
        dialogue::setNumber(TYPE_HORIZ, horiz);
        dialogue::setNumber(TYPE_PIXEL_X, SCREEN_WIDTH / horiz);
    }
    if (vert != now.type.gridVert) {
        dialogue::setNumber(TYPE_VERT, vert);
        dialogue::setNumber(TYPE_PIXEL_Y, SCREEN_HEIGHT / vert);
    }
}

void platformChosen() {
    const Shown now = shown();
    const char from = state.last.type.platform, to = now.type.platform;
    if (from == to) return;
    if (!platformAgreed(from, to)) return choose(PLATFORMS, from);
    if (to != 'w' && (from == 'w' || state.creating)) choose(GRID, 1);
    followPlatform(now);
}

void gridOffChosen() {
    const ProjectType now = shown().type;
    if (state.last.type.gridMode == 0) return;
    const bool x = state.creating ? now.platform != 'w' : now.platform == 'x';
    if (x && !state.creating && project.gridMode)
        host.errorBox("Change Project to Pixel Mode", "Can't change X-Windows project to pixel mode");
    const bool refused = x || (project.gridMode && !agreed("Change Project to Pixel Mode",
                                                           "Variable snap grid will become available||Do you want to "
                                                           "continue?"));
    if (refused) choose(GRID, 1);
}

void gridOnChosen() {
    if (state.last.type.gridMode == 1 || project.gridMode) return;
    if (!agreed("Change Project to Grid Mode", "Widgets will be aligned to grid||Are you sure you want to continue?"))
        choose(GRID, 0);
}

int numberOf(const Shown& what, int id) {
    switch (id) {
    case TYPE_HORIZ: return what.type.gridHoriz;
    case TYPE_VERT: return what.type.gridVert;
    case TYPE_PIXEL_X: return what.pixelX;
    default: return what.pixelY;
    }
}

// A number of the grid was entered; `follow` brings the one in the other unit into line.
void gridNumber(int id, void (*follow)()) {
    if (whole(id) == numberOf(state.last, id)) return;
    if (whole(id) != numberOf(state.opened, id) && !state.gridRefused &&
        !agreed("Change Project Grid Settings",
                "Project grid size will change causing movement of widgets.||Are you sure you want to continue?")) {
        state.gridRefused = true;
        showNumbers(state.last);
        return dialogue::refuse(id);
    }
    follow();
}

int cellsOf(int screen, int pixels) { return std::clamp(screen / std::max(pixels, 1), FEWEST, MOST); }

void horizEntered() {
    gridNumber(TYPE_HORIZ, [] { dialogue::setNumber(TYPE_PIXEL_X, SCREEN_WIDTH / std::max(whole(TYPE_HORIZ), 1)); });
}
void vertEntered() {
    gridNumber(TYPE_VERT, [] { dialogue::setNumber(TYPE_PIXEL_Y, SCREEN_HEIGHT / std::max(whole(TYPE_VERT), 1)); });
}
void pixelXEntered() {
    gridNumber(TYPE_PIXEL_X, [] { dialogue::setNumber(TYPE_HORIZ, cellsOf(SCREEN_WIDTH, whole(TYPE_PIXEL_X))); });
}
void pixelYEntered() {
    gridNumber(TYPE_PIXEL_Y, [] { dialogue::setNumber(TYPE_VERT, cellsOf(SCREEN_HEIGHT, whole(TYPE_PIXEL_Y))); });
}

void scalingChosen() {
    const int scalable = shown().type.scalable;
    if (scalable == state.last.type.scalable || scalable == project.scalable) return;
    const bool kept =
        scalable ? agreed("Change Project to Scalable Mode", "Project area will be scaled to fit screen when "
                                                             "application is run.||Are you sure you want to continue?")
                 : agreed("Change Project to Fixed Mode",
                          "Reverting project to be resolution dependent.||Do you want to continue?");
    if (!kept) choose(SCALING, !scalable);
}

// ---- OK

// What is left of the records on show, by their ids, before some of them go.
void takeFormsDown() {
    for (WidgetNode* form = project.forms; form; form = form->next) storeGeometryBelow(*form);
    dropSelection();
    eraseForms(project.forms);
    project.currentWidget = nullptr;
    hooks.showProperties(nullptr);
    hooks.bindCode(nullptr);
}

void forgetCopies() {
    design.pasteBuffer = {};
    hooks.commandStatus(CMD_PASTE, OUNSELECTABLE);
}

void changeProject(const ProjectType& type) {
    hooks.commitEditor();
    const int current = project.currentWidget ? project.currentWidget->id : 0;
    const bool anew = changesWidgets(type);
    if (anew) takeFormsDown();
    if (type.platform != 'w') forgetCopies();
    convertProject(type);
    owSetSnapGrid(project.snapOn ? project.snapGrid : 1);
    if (anew) {
        realiseForms(project.forms);
        if (WidgetNode* before = findRecord(current); before && before != project.currentWidget) selectWidget(before);
    }
    refreshFont(false, 0);
    projectRequests.kindChanged();
}

extern const Dialogue TYPE_DIALOGUE;

void accept() {
    const Shown now = shown();
    if (state.creating) {
        const std::string model = modelPath(now.type);
        closeDialogue(TYPE_DIALOGUE);
        hooks.commitEditor();
        return projectRequests.startProject(now.type, model);
    }
    const bool goes =
        now != state.opened && agreed("Change Project Type", "Project is about to be converted to adopt requested "
                                                             "changes.||Are you sure you want to continue?");
    closeDialogue(TYPE_DIALOGUE);
    if (!goes) return;
    // A file may hold counts that the dialogue has no room for: what nobody changed stays.
    ProjectType type = now.type;
    if (type.gridHoriz == state.opened.type.gridHoriz) type.gridHoriz = project.gridHoriz;
    if (type.gridVert == state.opened.type.gridVert) type.gridVert = project.gridVert;
    changeProject(type);
}

void cancel() { closeDialogue(TYPE_DIALOGUE); }

// ---- The window

constexpr char SOURCE_HELP[] = "Sets language of code generated for project";
constexpr char PLATFORM_HELP[] =
    "Determines functionality of project,|where an X-windows project will run on both UNIX "
    "and Windows platforms";
constexpr char BUFFERING_HELP[] = "Determines double buffering option for OpenGL graphics frames";
constexpr char GRID_HELP[] = "Determines whether widget placement will be on a grid|or at the pixel level with an "
                             "optional snap grid";
constexpr char SCALABLE_HELP[] = "Scalable projects will occupy the same space irrespective of screen resolution";

constexpr Control group(int id, const char* title, short y, short height) {
    return {.field = Field::Panel, .id = id, .text = title, .x = 0, .y = y, .width = 264, .height = height};
}
constexpr Control radio(int id, int parent, const char* text, short x, short y, void (*changed)(), const char* help,
                        char mnemonic) {
    return {.field = Field::Radio,
            .id = id,
            .text = text,
            .x = x,
            .y = y,
            .width = 84,
            .mnemonic = mnemonic,
            .changed = changed,
            .help = help,
            .parent = parent};
}
constexpr Control label(const char* text, short x, short y) {
    return {.text = text, .x = x, .y = y, .width = 48, .parent = GROUP_GRID};
}
constexpr Control number(int id, short x, short y, double least, double most, void (*changed)()) {
    return {.field = Field::Number,
            .id = id,
            .x = x,
            .y = y,
            .width = 52,
            .changed = changed,
            .help = GRID_HELP,
            .parent = GROUP_GRID,
            .length = 2,
            .minimum = least,
            .maximum = most};
}

constexpr Control CONTROLS[] = {
    {.id = TYPE_MODEL_LABEL, .text = "Template", .x = 0, .y = 434, .width = 70},
    {.field = Field::Choice,
     .id = TYPE_MODEL,
     .x = 74,
     .y = 434,
     .width = 190,
     .help = "What the new project begins with"},
    {.id = TYPE_LOSSES, .x = 0, .y = 434, .width = 264},
    group(GROUP_SOURCE, "Source Code", 372, 56),
    radio(TYPE_F77, GROUP_SOURCE, "F77", 176, 6, languageChosen, SOURCE_HELP, 0),
    radio(TYPE_F90, GROUP_SOURCE, "F90", 8, 6, languageChosen, SOURCE_HELP, 'F'),
    radio(TYPE_C, GROUP_SOURCE, "C/C++", 92, 6, languageChosen, SOURCE_HELP, 'C'),
    group(GROUP_PLATFORM, "Menu Functionality", 310, 56),
    radio(TYPE_WINDOWS, GROUP_PLATFORM, "Windows", 8, 6, platformChosen, PLATFORM_HELP, 'W'),
    radio(TYPE_X, GROUP_PLATFORM, "X-Win", 92, 6, platformChosen, PLATFORM_HELP, 'X'),
    radio(TYPE_GLX, GROUP_PLATFORM, "GLX-Win", 176, 6, platformChosen, PLATFORM_HELP, 'G'),
    group(GROUP_BUFFERING, "OpenGL Double Buffering", 248, 56),
    radio(TYPE_HARDWARE, GROUP_BUFFERING, "Hardware", 8, 6, nullptr, BUFFERING_HELP, 'H'),
    radio(TYPE_SOFTWARE, GROUP_BUFFERING, "Software", 92, 6, nullptr, BUFFERING_HELP, 'S'),
    group(GROUP_GRID, "Grid Mode", 102, 140),
    radio(TYPE_GRID_OFF, GROUP_GRID, "Off", 8, 88, gridOffChosen, GRID_HELP, 'O'),
    radio(TYPE_GRID_ON, GROUP_GRID, "On", 92, 88, gridOnChosen, GRID_HELP, 'n'),
    label("Horiz", 8, 48),
    number(TYPE_HORIZ, 60, 48, FEWEST, MOST, horizEntered),
    label("Vert", 136, 48),
    number(TYPE_VERT, 188, 48, FEWEST, MOST, vertEntered),
    label("Xpixel", 8, 12),
    number(TYPE_PIXEL_X, 60, 12, SCREEN_WIDTH / MOST, SCREEN_WIDTH / FEWEST, pixelXEntered),
    label("Ypixel", 136, 12),
    number(TYPE_PIXEL_Y, 188, 12, SCREEN_HEIGHT / MOST, SCREEN_HEIGHT / FEWEST, pixelYEntered),
    group(GROUP_SCALABLE, "Scalable", 40, 56),
    radio(TYPE_FIXED, GROUP_SCALABLE, "Off", 8, 6, scalingChosen, SCALABLE_HELP, 0),
    radio(TYPE_SCALABLE, GROUP_SCALABLE, "On", 92, 6, scalingChosen, SCALABLE_HELP, 0),
    {.field = Field::Default, .id = TYPE_OK, .text = "OK", .x = 94, .y = 4, .width = 80, .changed = accept},
    {.field = Field::Button, .id = TYPE_CANCEL, .text = "Cancel", .x = 180, .y = 4, .width = 80, .changed = cancel},
};

const Dialogue TYPE_DIALOGUE = {
    .title = "Project Type",
    .icon = "Light",
    .width = 264,
    .height = 462,
    .windowEvent = TYPE_WINDOW,
    .controls = CONTROLS,
    .cancel = TYPE_CANCEL,
    .fill = fill,
    .refresh = refresh,
};

void changeProjectTypeCommand() {
    if (isOpen(TYPE_DIALOGUE)) return;
    selectTool(TOOL_SELECTOR);
    hooks.commitEditor();
    state.creating = false;
    openDialogue(TYPE_DIALOGUE);
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_CHANGE_PROJECT_TYPE, .label = "Change Project Type...", .mnemonic = 'T', .handler = changeProjectTypeCommand},
};
// clang-format on

} // namespace

void newProjectDialogue() {
    if (isOpen(TYPE_DIALOGUE)) return;
    state.creating = true;
    openDialogue(TYPE_DIALOGUE);
}

std::span<const Command> projectTypeCommands() { return COMMANDS; }
