// The editor of a form's status bar.
#include "dialogues/status_bar_editor.h"

#include "dialogues/commands.h"
#include "dialogues/row_editor.h"
#include "project/host.h"
#include "project/naming.h"
#include "project/status_panes.h"
#include "project/tree.h"
#include "surface/live_types.h"
#include "surface/selection.h"
#include "surface/state.h"

#include <algorithm>

namespace {

constexpr char FIRST_TEXT[] = "Ready";
constexpr int NARROWEST = -999, WIDEST = 9999; // pixels that can be typed

struct State {
    int form = 0; // id
    bool isNew = false;
    std::string name;
    Rows<BarPane> panes;
    RowList list;
    StatusBarRec live; // the bar that the form shows while it is edited
    bool previewed = false;
} state;

BarPane& now() { return state.panes.now(); }
WidgetNode* editedForm() { return findRecord(state.form); }

// ---- The live bar

void eraseLive(WidgetNode& form) {
    if (state.previewed) {
        if (state.live.handle) owEraseWidget(state.live.handle);
        state.live.handle = 0;
    } else {
        eraseLiveStatusBar(form);
    }
    state.previewed = false;
}

void preview(bool on) {
    WidgetNode* form = editedForm();
    if (!form) return;
    eraseLive(*form);
    state.previewed = true;
    if (on) {
        setPanes(state.live, state.panes.rows);
        createLiveStatusBar(form->handle, state.live);
    }
    keepClientSize(*form);
}

void showRecord(WidgetNode& form) {
    eraseLive(form);
    buildLiveStatusBar(form);
    keepClientSize(form);
}

// ---- Between fields and panes

void readFields() {
    const int width = static_cast<int>(dialogue::number(STATUS_WIDTH));
    now().width = width < REST_OF_BAR ? PANE_WIDTH : width;
    now().text = dialogue::text(STATUS_TEXT);
}

void showPane() {
    dialogue::setText(STATUS_NUMBER, std::to_string(state.panes.current + 1));
    dialogue::setNumber(STATUS_SLIDER, static_cast<double>(state.panes.current) + 1);
    dialogue::setNumber(STATUS_WIDTH, now().width);
    dialogue::setText(STATUS_TEXT, now().text);
}

std::string rowOf(std::size_t pane) {
    const BarPane& one = state.panes.rows[pane];
    const std::string width = one.width == REST_OF_BAR ? "rest" : std::to_string(one.width);
    return std::to_string(pane + 1) + "   " + width + "   " + one.text;
}

void refresh() {
    const bool on = dialogue::isOn(STATUS_TOGGLE);
    std::vector<ShownRow> rows;
    for (std::size_t pane = 0; pane < state.panes.rows.size(); ++pane) rows.push_back({rowOf(pane), {}});
    const bool changed = !state.list.shown.empty() && rows != state.list.shown;
    if (changed) preview(on);
    state.list.show(std::move(rows), state.panes.current);
    dialogue::enable({STATUS_NAME, STATUS_SLIDER, STATUS_WIDTH, STATUS_TEXT, STATUS_ROWS, STATUS_NUMBER}, on);
    for (int label = STATUS_LABELS; label < STATUS_LABELS + 4; ++label) dialogue::enable(label, on);
    dialogue::enable(STATUS_INSERT, on && state.panes.rows.size() < STATUS_PANES);
    dialogue::enable(STATUS_REMOVE, on && state.panes.rows.size() > 1);
    dialogue::enable(STATUS_UP, on && state.panes.current > 0);
    dialogue::enable(STATUS_DOWN, on && !state.panes.atEnd());
}

void fill() {
    state.list.open(STATUS_ROWS);
    dialogue::setOn(STATUS_TOGGLE, !state.isNew);
    dialogue::setText(STATUS_NAME, state.name);
    showPane();
}

// ---- Commands

void toggled() {
    state.panes.go(0);
    showPane();
    preview(dialogue::isOn(STATUS_TOGGLE));
}

void nameChanged() {
    const std::string name = dialogue::text(STATUS_NAME);
    if (name == state.name) return;
    if (nameFree(name, editedForm(), NameOf::StatusBar)) {
        state.name = name;
        return;
    }
    host.errorBox("Invalid Name", name + " is an empty, duplicate or invalid Fortran/C variable name");
    dialogue::setText(STATUS_NAME, state.name);
    dialogue::refuse(STATUS_NAME);
}

void fieldChanged() {
    readFields();
    dialogue::setNumber(STATUS_WIDTH, now().width);
}

void textTyped() { now().text = dialogue::text(STATUS_TEXT); }

// The slider cannot pass the last pane.
void slid() {
    readFields();
    state.panes.go(static_cast<int>(dialogue::number(STATUS_SLIDER) + 0.5) - 1);
    showPane();
}

void chooseRow() {
    readFields();
    state.panes.go(dialogue::choice(STATUS_ROWS) - 1);
    showPane();
}

void editRow() { dialogue::focus(STATUS_TEXT); }

void insert() {
    if (state.panes.rows.size() >= STATUS_PANES) return;
    readFields();
    const auto behind = state.panes.rows.begin() + static_cast<std::ptrdiff_t>(state.panes.current) + 1;
    state.panes.rows.insert(behind, BarPane{});
    state.panes.next();
    showPane();
}

void remove() {
    if (state.panes.rows.size() < 2) return;
    state.panes.remove({});
    state.panes.go(0);
    showPane();
}

void moveRow(int from, int to) {
    readFields();
    state.panes.move(static_cast<std::size_t>(from) - 1, static_cast<std::size_t>(to) - 1);
    showPane();
}

void up() { moveRow(static_cast<int>(state.panes.current) + 1, static_cast<int>(state.panes.current)); }
void down() { moveRow(static_cast<int>(state.panes.current) + 1, static_cast<int>(state.panes.current) + 2); }

void accept();
void cancel();

constexpr Control label(int number, const char* text, short x, short y, short width) {
    return {.field = Field::Label, .id = STATUS_LABELS + number, .text = text, .x = x, .y = y, .width = width};
}

constexpr Control CONTROLS[] = {
    {.field = Field::Toggle,
     .id = STATUS_TOGGLE,
     .text = "StatusBar",
     .x = 0,
     .y = 220,
     .width = 110,
     .mnemonic = 'S',
     .changed = toggled},
    label(0, " Name", 110, 220, 66),
    {.field = Field::Text, .id = STATUS_NAME, .x = 176, .y = 220, .width = 154, .changed = nameChanged},
    label(1, " Panel No:", 0, 187, 88),
    {.field = Field::Note, .id = STATUS_NUMBER, .x = 88, .y = 187, .width = 33},
    {.field = Field::Slider,
     .id = STATUS_SLIDER,
     .x = 121,
     .y = 187,
     .width = 209,
     .changed = slid,
     .minimum = 1,
     .maximum = STATUS_PANES},
    {.field = Field::Button,
     .id = STATUS_INSERT,
     .text = "Insert Panel",
     .x = 330,
     .y = 187,
     .width = 110,
     .mnemonic = 'I',
     .changed = insert},
    {.field = Field::Button,
     .id = STATUS_REMOVE,
     .text = "Remove Panel",
     .x = 330,
     .y = 165,
     .width = 110,
     .mnemonic = 'R',
     .changed = remove},
    label(2, " Width", 0, 165, 88),
    {.field = Field::Number,
     .id = STATUS_WIDTH,
     .x = 88,
     .y = 165,
     .width = 66,
     .changed = fieldChanged,
     .help = "-1: the rest of the bar",
     .length = 4,
     .minimum = NARROWEST,
     .maximum = WIDEST},
    label(3, " Text", 0, 143, 88),
    {.field = Field::Text,
     .id = STATUS_TEXT,
     .x = 88,
     .y = 143,
     .width = 242,
     .changed = fieldChanged,
     .typed = textTyped},
    {.field = Field::Picture,
     .id = STATUS_UP,
     .text = "uarrow",
     .x = 330,
     .y = 143,
     .width = 55,
     .changed = up,
     .help = "To the left (Alt+Up)"},
    {.field = Field::Picture,
     .id = STATUS_DOWN,
     .text = "darrow",
     .x = 385,
     .y = 143,
     .width = 55,
     .changed = down,
     .help = "To the right (Alt+Down)"},
    {.field = Field::List,
     .id = STATUS_ROWS,
     .x = 0,
     .y = 33,
     .width = 440,
     .height = 110,
     .changed = chooseRow,
     .entered = editRow,
     .moved = moveRow},
    {.field = Field::Default,
     .id = STATUS_OK,
     .text = "OK",
     .x = 264,
     .y = 0,
     .width = 88,
     .mnemonic = 'O',
     .changed = accept},
    {.field = Field::Button,
     .id = STATUS_CANCEL,
     .text = "Cancel",
     .x = 352,
     .y = 0,
     .width = 88,
     .mnemonic = 'C',
     .changed = cancel},
};

constexpr int withAlt(int key) { return key + 4000; }
constexpr DialogueKey KEYS[] = {
    {withAlt(OKEYUP), STATUS_UP}, {withAlt(OKEYDOWN), STATUS_DOWN}, {OKEYDEL, STATUS_REMOVE, STATUS_ROWS}};

const Dialogue DIALOGUE = {.title = "Status Bar",
                           .icon = "Status",
                           .help = "Status Bar Editor",
                           .width = 440,
                           .height = 242,
                           .windowEvent = STATUS_WINDOW,
                           .controls = CONTROLS,
                           .cancel = STATUS_CANCEL,
                           .first = STATUS_TOGGLE,
                           .fill = fill,
                           .refresh = refresh,
                           .keys = KEYS};

void cancel() {
    closeDialogue(DIALOGUE);
    WidgetNode* form = editedForm();
    if (form && state.previewed) showRecord(*form);
    state = {};
}

bool sameBar(const StatusBarRec* a, const StatusBarRec& b) {
    return a && a->name == b.name && a->panes == b.panes && a->sizes == b.sizes && a->texts == b.texts;
}

StatusBarRec editedBar() {
    StatusBarRec bar;
    bar.name = state.name;
    if (setPanes(bar, state.panes.rows))
        host.infoBox("Negative Panel Size",
                     "A panel that is not the last one has a negative value|panel size has been set to 100");
    return bar;
}

void accept() {
    readFields();
    WidgetNode* form = editedForm();
    if (!form) return cancel();
    const bool on = dialogue::isOn(STATUS_TOGGLE);
    StatusBarRec bar = on ? editedBar() : StatusBarRec{};
    if (on ? sameBar(form->statusBar.get(), bar) : !form->statusBar) return cancel();
    closeDialogue(DIALOGUE);
    eraseLive(*form);
    if (on) {
        bar.storedHandle = form->statusBar ? form->statusBar->storedHandle : 0;
        form->statusBar = std::make_unique<StatusBarRec>(std::move(bar));
    } else {
        form->statusBar.reset();
    }
    buildLiveStatusBar(*form);
    keepClientSize(*form);
    markChanged();
    state = {};
}

std::string freeBarName() {
    NamesInUse names;
    return firstFreeName("StatBar", names);
}

void statusBarEditorCommand() {
    if (isOpen(DIALOGUE)) return;
    WidgetNode* form = project.currentWidget ? formOf(project.currentWidget, project.forms) : nullptr;
    if (!form) return host.errorBox("No valid form selected!", "You must select a valid form first");
    selectTool(TOOL_SELECTOR);
    state = {};
    state.form = form->id;
    state.isNew = !form->statusBar;
    state.name = state.isNew ? freeBarName() : form->statusBar->name;
    state.panes.start(state.isNew ? std::vector<BarPane>{{PANE_WIDTH, FIRST_TEXT}} : panesOf(*form->statusBar), {});
    openDialogue(DIALOGUE);
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_STATUS_BAR_EDITOR, .label = "Status bar...", .mnemonic = 'S', .menuIcon = "Status&", .barIcon = "Status", .bubbleHelp = "Create/View Status Bar", .when = WHEN_WINDOWS, .handler = statusBarEditorCommand},
};
// clang-format on

} // namespace

std::span<const Command> statusBarEditorCommands() { return COMMANDS; }
