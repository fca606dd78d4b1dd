// The editor of the rows of list and combo boxes.
#include "dialogues/list_editor.h"

#include "dialogues/choose_icon.h"
#include "dialogues/editors.h"
#include "dialogues/row_editor.h"
#include "platform/letters.h"
#include "project/host.h"
#include "project/tree.h"
#include "surface/live.h"
#include "surface/state.h"

#include <algorithm>
#include <utility>

namespace {

struct State {
    int widget = 0; // id of the list or combo box
    Rows<ListEntryRec> rows;
    RowList list;
    bool previewed = false; // the live list shows what is edited
} state;

ListEntryRec& now() { return state.rows.now(); }
WidgetNode* edited() { return findRecord(state.widget); }

bool showsIcons() {
    const WidgetNode* widget = edited();
    return widget && widget->displayIcons != 0;
}

// ---- Between fields, rows and the live list

void readFields() {
    now().text = dialogue::text(LIST_CAPTION);
    now().icon = dialogue::text(LIST_ICON);
}

void showFields() {
    dialogue::setText(LIST_CAPTION, now().text);
    dialogue::setText(LIST_ICON, now().icon);
}

void showRow() {
    showFields();
    dialogue::focus(LIST_CAPTION);
}

bool differs(const std::vector<ShownRow>& rows) { return rows != state.list.shown; }

// The widget on the form shows the rows as they are edited.
void fillLive(WidgetNode& widget, const std::vector<ListEntryRec>& rows) {
    const std::vector<ListEntryRec> stored = std::exchange(widget.listEntries, rows);
    std::erase_if(widget.listEntries, [](const ListEntryRec& row) { return row.text.empty(); });
    owSetListEntry(widget.handle, OCLEAR, 0);
    fillListEntries(widget);
    widget.listEntries = stored;
}

void refresh() {
    std::vector<ShownRow> rows;
    for (const ListEntryRec& row : state.rows.rows) rows.push_back({row.text, showsIcons() ? row.icon : std::string()});
    WidgetNode* widget = edited();
    const bool first = state.list.shown.empty();
    if (widget && !first && differs(rows)) {
        fillLive(*widget, state.rows.rows);
        state.previewed = true;
    }
    state.list.show(std::move(rows), state.rows.current);
    dialogue::setText(LIST_BROWSE, now().icon.empty() ? "dotdotdot" : now().icon);
    dialogue::enable({LIST_ICON, LIST_BROWSE, LIST_ICON_LABEL}, showsIcons());
    dialogue::enable(LIST_UP, state.rows.current > 0);
    dialogue::enable(LIST_DOWN, !state.rows.atEnd());
}

void fill() {
    state.list.open(LIST_ROWS);
    dialogue::show(LIST_PASTE, false);
    showFields();
}

// ---- Commands

void captionTyped() { now().text = dialogue::text(LIST_CAPTION); }

void browse() {
    readFields();
    chooseIcon(ALL_ICONS, now().icon, [](const IconChoice& choice) {
        dialogue::setText(LIST_ICON, choice.name);
        readFields();
        refresh();
        dialogue::focus(LIST_CAPTION);
    });
}

// By the cursor keys the list keeps the focus, so that they can go on.
void chooseRow() {
    const int row = dialogue::choice(LIST_ROWS) - 1;
    if (row == static_cast<int>(state.rows.current)) return;
    readFields();
    if (state.rows.go(row)) showFields();
}

void editRow() { dialogue::focus(LIST_CAPTION); }

void next() {
    readFields();
    if (!state.rows.next()) state.rows.add({});
    showRow();
}

void previous() {
    readFields();
    state.rows.previous();
    showRow();
}

void insert() {
    readFields();
    state.rows.insert({});
    showRow();
}

void remove() {
    state.rows.remove({});
    showRow();
}

void removeAll() {
    state.rows.clear({});
    showRow();
}

void up() {
    readFields();
    state.rows.up();
}

void down() {
    readFields();
    state.rows.down();
}

void moveRow(int from, int to) {
    readFields();
    state.rows.move(static_cast<std::size_t>(from) - 1, static_cast<std::size_t>(to) - 1);
    showFields();
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t from = 0; from <= text.size();) {
        const std::size_t end = std::min(text.find('\n', from), text.size());
        std::string line = text.substr(from, end - from);
        std::erase(line, '\r');
        if (!line.empty()) lines.emplace_back(cutBetweenLetters(line, NAME_LIMIT));
        from = end + 1;
    }
    return lines;
}

// Several lines become several rows: the first goes into the caption, the others below.
void paste() {
    dialogue::setText(LIST_PASTE, "");
    owCopyTextToClipboard(dialogue::widget(LIST_PASTE), OPASTE);
    const std::vector<std::string> lines = linesOf(dialogue::text(LIST_PASTE));
    if (lines.size() < 2) {
        owCopyTextToClipboard(dialogue::widget(LIST_CAPTION), OPASTE);
        return captionTyped();
    }
    owReplaceText(dialogue::widget(LIST_CAPTION), lines.front().c_str(), 0);
    readFields();
    for (std::size_t line = 1; line < lines.size(); ++line) {
        const auto at = state.rows.rows.begin() + static_cast<std::ptrdiff_t>(state.rows.current) + 1;
        state.rows.rows.insert(at, ListEntryRec{lines[line], {}});
        ++state.rows.current;
    }
    showRow();
}

void accept();
void cancel();

constexpr short TOP = 198; // of the list

constexpr Control CONTROLS[] = {
    {.field = Field::Label, .text = " Caption:", .y = TOP + 22, .width = 66},
    {.field = Field::Text,
     .id = LIST_CAPTION,
     .x = 66,
     .y = TOP + 22,
     .width = 176,
     .changed = readFields,
     .typed = captionTyped},
    {.field = Field::Label, .id = LIST_ICON_LABEL, .text = " Icon:", .y = TOP, .width = 66},
    {.field = Field::Text, .id = LIST_ICON, .x = 66, .y = TOP, .width = 154, .changed = readFields},
    {.field = Field::Picture,
     .id = LIST_BROWSE,
     .text = "dotdotdot",
     .x = 220,
     .y = TOP,
     .width = 22,
     .changed = browse,
     .help = "Browse for more icons"},
    {.field = Field::Default,
     .id = LIST_OK,
     .text = "OK",
     .x = 242,
     .y = TOP + 22,
     .width = 88,
     .mnemonic = 'O',
     .changed = accept},
    rowButton(LIST_CANCEL, "Cancel", TOP, 'C', cancel),
    {.field = Field::Picture,
     .id = LIST_UP,
     .text = "uarrow",
     .x = 242,
     .y = 110,
     .width = 44,
     .changed = up,
     .help = "Up in the list (Alt+Up)"},
    {.field = Field::Picture,
     .id = LIST_DOWN,
     .text = "darrow",
     .x = 286,
     .y = 110,
     .width = 44,
     .changed = down,
     .help = "Down in the list (Alt+Down)"},
    rowButton(LIST_NEXT, "Next", 88, 'N', next),
    rowButton(LIST_PREV, "Prev", 66, 'P', previous),
    rowButton(LIST_INSERT, "Insert", 44, 'I', insert),
    rowButton(LIST_DELETE, "Delete", 22, 'D', remove),
    rowButton(LIST_DELETE_ALL, "Delete All", 0, 'A', removeAll),
    {.field = Field::List,
     .id = LIST_ROWS,
     .width = 242,
     .height = TOP,
     .changed = chooseRow,
     .entered = editRow,
     .moved = moveRow},
    {.field = Field::Area, .id = LIST_PASTE, .width = 44, .height = 88, .length = 1 << 20},
};

constexpr int withAlt(int key) { return key + 4000; }
constexpr int CTRL_V = 'V' - 'A' + 1;
constexpr DialogueKey KEYS[] = {{withAlt(OKEYUP), LIST_UP},
                                {withAlt(OKEYDOWN), LIST_DOWN},
                                {OKEYDEL, LIST_DELETE, LIST_ROWS},
                                {.key = CTRL_V, .within = LIST_CAPTION, .pressed = paste}};

const Dialogue DIALOGUE = {.title = "List/Combo Contents Editor",
                           .icon = "Listbox",
                           .help = "List and Combo Box Editor",
                           .width = 330,
                           .height = TOP + 44,
                           .windowEvent = LIST_WINDOW,
                           .controls = CONTROLS,
                           .cancel = LIST_CANCEL,
                           .first = LIST_CAPTION,
                           .fill = fill,
                           .refresh = refresh,
                           .keys = KEYS};

void close(WidgetNode* widget) {
    closeDialogue(DIALOGUE);
    state.widget = 0;
    if (!widget) return;
    owSetListEntry(widget->handle, OCLEAR, 0);
    fillListEntries(*widget);
    owDrawWidget(widget->handle);
    activateWidget(widget);
}

void cancel() { close(state.previewed ? edited() : nullptr); }

// An empty last row is no fault: one can go on to the next and find that there is none.
void accept() {
    readFields();
    std::vector<ListEntryRec> rows = state.rows.rows;
    if (rows.back().text.empty()) rows.pop_back();
    const auto blank = std::ranges::find_if(rows, [](const ListEntryRec& row) { return row.text.empty(); });
    if (blank != rows.end()) {
        host.errorBox("Blank Entry", "One or more list entries are blank");
        state.rows.go(static_cast<int>(blank - rows.begin()));
        return showRow();
    }
    WidgetNode* widget = edited();
    if (widget) widget->listEntries = std::move(rows);
    close(widget);
    markChanged();
}

} // namespace

void openListEditor(WidgetNode& list) {
    if (isOpen(DIALOGUE)) return;
    state = {};
    state.widget = list.id;
    state.rows.start(list.listEntries, {});
    openDialogue(DIALOGUE);
}
