// Finding and replacing in the code editor, in the block that is shown or in all code, and going to a line.
#include "dialogues/find.h"

#include "dialogues/commands.h"
#include "dialogues/frame.h"
#include "editing/all_code.h"
#include "editing/code_editor.h"
#include "editing/code_lists.h"
#include "editing/commands.h"
#include "editing/editor_window.h"
#include "editing/modes.h"
#include "editing/search.h"
#include "editing/text_view.h"
#include "platform/letters.h"
#include "project/code_stores.h"
#include "project/host.h"
#include "project/tree.h"
#include "surface/hooks.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr size_t LONGEST_TEXT = 255; // bytes of what is looked for

// What holds beyond the dialogue.
struct {
    Search search;
    std::string replacement;
    bool up = false;
    bool everywhere = false;
    SearchHistory texts, replacements;
    std::string before, after; // of the last replacement, for Undo; both empty: none
    bool replacing = false;    // the dialogue was opened for it
} state;

void fill();
void refresh();
void findPressed();
void replacePressed();
void replaceAllPressed();
void undoPressed();
void close();

constexpr Control CONTROLS[] = {
    {.field = Field::Label, .text = "Find ", .x = 24, .y = 170, .width = 170},
    {.field = Field::Combo, .id = FIND_TEXT, .x = 24, .y = 148, .width = 170, .length = LONGEST_TEXT},
    {.field = Field::Label, .text = "Replace with ", .x = 24, .y = 122, .width = 170},
    {.field = Field::Combo, .id = FIND_REPLACEMENT, .x = 24, .y = 100, .width = 170, .length = LONGEST_TEXT},
    {.field = Field::Toggle,
     .id = FIND_MATCH_CASE,
     .text = "Match Case",
     .x = 24,
     .y = 60,
     .width = 88,
     .mnemonic = 'M'},
    {.field = Field::Toggle,
     .id = FIND_EVERYWHERE,
     .text = "In all code",
     .x = 24,
     .y = 34,
     .width = 88,
     .mnemonic = 'I',
     .changed = [] {},
     .help = "Lists the hits in the code of all widgets below the forms"},
    {.field = Field::Panel, .id = FIND_DIRECTION, .x = 115, .y = 16, .width = 110, .height = 75},
    {.field = Field::Radio,
     .id = FIND_UP,
     .text = "Up",
     .x = 16,
     .y = 40,
     .width = 66,
     .mnemonic = 'p',
     .parent = FIND_DIRECTION},
    {.field = Field::Radio,
     .id = FIND_DOWN,
     .text = "Down",
     .x = 16,
     .y = 12,
     .width = 66,
     .mnemonic = 'D',
     .parent = FIND_DIRECTION},
    {.field = Field::Default,
     .id = FIND_NEXT_BUTTON,
     .text = "Find Next",
     .x = 240,
     .y = 146,
     .width = 100,
     .height = 24,
     .mnemonic = 'F',
     .changed = findPressed},
    {.field = Field::Button,
     .id = FIND_REPLACE,
     .text = "Replace",
     .x = 240,
     .y = 116,
     .width = 100,
     .height = 24,
     .mnemonic = 'R',
     .changed = replacePressed},
    {.field = Field::Button,
     .id = FIND_REPLACE_ALL,
     .text = "Replace All",
     .x = 240,
     .y = 86,
     .width = 100,
     .height = 24,
     .mnemonic = 'A',
     .changed = replaceAllPressed},
    {.field = Field::Button,
     .id = FIND_UNDO,
     .text = "Undo",
     .x = 240,
     .y = 56,
     .width = 100,
     .height = 24,
     .mnemonic = 'U',
     .changed = undoPressed},
    {.field = Field::Button,
     .id = FIND_OK,
     .text = "OK",
     .x = 240,
     .y = 26,
     .width = 100,
     .height = 24,
     .mnemonic = 'O',
     .changed = close},
};

const Dialogue DIALOGUE = {.title = "Find & Replace",
                           .icon = "Text",
                           .help = "Find & Replace",
                           .width = 374,
                           .height = 198,
                           .windowEvent = FIND_WINDOW,
                           .controls = CONTROLS,
                           .cancel = FIND_OK,
                           .first = FIND_TEXT,
                           .fill = fill,
                           .refresh = refresh,
                           .modeless = true};

// ---- The text ---------------------------------------------------------------------------------------------------

Hit hitOf(const std::string& code, TextRange range) { return {bytesAt(code, range.start), bytesAt(code, range.end)}; }

void show(const std::string& code, Hit hit) {
    select(editor.text, {positionOf(code, hit.start), positionOf(code, hit.end)});
    showLineColumn(positionOf(code, hit.end));
}

void notFound() {
    host.infoBox("Find/Replace", "String not found");
    if (isOpen(DIALOGUE)) dialogue::focus(FIND_TEXT);
}

// Selects the next hit behind the selection, or the one ahead of it; false when there is none.
bool findAndSelect() {
    const std::string code = linesOf(editor.text);
    const Hit hit = findNext(code, state.search, hitOf(code, selectionOf(editor.text)), state.up);
    if (!hit) return false;
    show(code, hit);
    const char* const words = !hit.wrapped ? ""
                              : state.up   ? "Search went on at the end"
                                           : "Search went on at the start";
    hooks.statusText(PANE_SELECTION, words);
    return true;
}

// One edit, of no more than what differs.
void putCode(const std::string& before, const std::string& after, TextRange selected) {
    size_t head = 0, tail = 0;
    const size_t shorter = std::min(before.size(), after.size());
    while (head < shorter && before[head] == after[head]) ++head;
    while (head > 0 && head < before.size() && continuesLetter(before[head])) --head;
    while (tail < shorter - head && before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) ++tail;
    while (tail > 0 && continuesLetter(before[before.size() - tail])) --tail;
    replaceRange(editor.text, {positionOf(before, head), positionOf(before, before.size() - tail)},
                 after.substr(head, after.size() - tail - head));
    codeEditing.codeModified = true;
    project.projectModified = 1;
    select(editor.text, selected);
}

void remember(const std::string& before, const std::string& after) {
    state.before = before;
    state.after = after;
}

bool undoStands() { return state.before != state.after && linesOf(editor.text) == state.after; }

// ---- All code ---------------------------------------------------------------------------------------------------

struct ListedHit {
    std::string owner; // by name: the record may be gone when its line is chosen; empty: a block of the project
    CodeHit hit;
};
std::vector<ListedHit> listed;

void hitChosen(int line) {
    if (line < 1 || line > static_cast<int>(listed.size())) return;
    const auto [name, hit] = listed[static_cast<size_t>(line) - 1];
    WidgetNode* owner = findName(project.forms, name, false);
    if (!name.empty() && !owner) return;
    if (hit.place.entry.empty())
        showCode(hit.place.name, owner, hit.line, hit.column);
    else
        showEntryCode(owner, hit.place.entry, hit.place.name, hit.line, hit.column);
}

void findEverywhere() {
    hooks.commitEditor();
    listed.clear();
    std::vector<std::string> lines;
    for (const CodeHit& hit : findInAllCode(state.search)) {
        listed.push_back({hit.place.owner ? hit.place.owner->name : "", hit});
        lines.push_back(describe(hit.place) + " " + std::to_string(hit.line) + ": " + hit.text);
    }
    if (listed.empty()) return notFound();
    hooks.showLog(lines, hitChosen);
}

// ---- The dialogue ------------------------------------------------------------------------------------------------

void allowFindNext() { hooks.commandStatus(CMD_FIND_NEXT, state.search.text.empty() ? OUNSELECTABLE : OSELECTABLE); }

void read() {
    state.search.text = dialogue::text(FIND_TEXT);
    state.search.matchCase = dialogue::isOn(FIND_MATCH_CASE);
    state.replacement = dialogue::text(FIND_REPLACEMENT);
    state.up = dialogue::isOn(FIND_UP);
    state.everywhere = dialogue::isOn(FIND_EVERYWHERE);
    allowFindNext();
}

// The rows of a list may be the text that is typed, which stays.
void showHistory(int id, const SearchHistory& history) {
    const std::string typed = dialogue::text(id);
    dialogue::setRows(id, history.rows);
    dialogue::setText(id, typed);
}

void keep(SearchHistory& history, int id, const std::string& text) {
    history.add(text);
    showHistory(id, history);
}

void fill() {
    dialogue::setRows(FIND_TEXT, state.texts.rows);
    dialogue::setRows(FIND_REPLACEMENT, state.replacements.rows);
    dialogue::setText(FIND_TEXT, state.search.text);
    dialogue::setText(FIND_REPLACEMENT, state.replacing ? state.replacement : "");
    dialogue::setOn(FIND_MATCH_CASE, state.search.matchCase);
    dialogue::setOn(state.up ? FIND_UP : FIND_DOWN, true);
    dialogue::setOn(FIND_EVERYWHERE, state.everywhere);
}

void refresh() {
    dialogue::enable({FIND_REPLACEMENT, FIND_REPLACE, FIND_REPLACE_ALL}, state.replacing);
    dialogue::enable(FIND_UNDO, state.replacing && undoStands());
}

void findPressed() {
    read();
    if (state.everywhere)
        findEverywhere();
    else if (!findAndSelect())
        notFound();
    keep(state.texts, FIND_TEXT, state.search.text);
}

// The selected hit, or else the next one.
void replacePressed() {
    read();
    const std::string code = linesOf(editor.text);
    Hit hit = hitOf(code, selectionOf(editor.text));
    if (!selectionIsHit(code, state.search, hit)) hit = findNext(code, state.search, hit, state.up);
    if (!hit) return notFound();
    const std::string after = code.substr(0, hit.start) + state.replacement + code.substr(hit.end);
    const Hit replaced{hit.start, hit.start + state.replacement.size()};
    putCode(code, after, {positionOf(after, replaced.start), positionOf(after, replaced.end)});
    remember(code, after);
    keep(state.texts, FIND_TEXT, state.search.text);
    keep(state.replacements, FIND_REPLACEMENT, state.replacement);
    findAndSelect();
}

void replaceAllPressed() {
    read();
    const std::string code = linesOf(editor.text);
    const TextRange selected = selectionOf(editor.text);
    const Replaced result = replaceAll(code, state.search, state.replacement, bytesAt(code, selected.start));
    keep(state.texts, FIND_TEXT, state.search.text);
    keep(state.replacements, FIND_REPLACEMENT, state.replacement);
    const std::string question = std::to_string(result.count) + " replacements will be made - OK to continue?";
    if (host.messageBox("Replace Text", question, BOX_QUESTION, BOX_OK_CANCEL) != ANSWER_OK || result.count == 0)
        return;
    putCode(code, result.code, {selected.start, selected.start});
    remember(code, result.code);
}

void undoPressed() {
    if (!undoStands()) return;
    putCode(state.after, state.before, {1, 1});
    remember("", "");
}

void close() {
    if (isOpen(DIALOGUE)) {
        read();
        state.texts.add(state.search.text);
        state.replacements.add(state.replacement);
    }
    closeDialogue(DIALOGUE);
    enterTextMode();
}

// A selection is what is looked for, its first line at least.
void takeSelection() {
    const std::string selected = extract(editor.text, selectionOf(editor.text));
    if (selected.empty()) return;
    if (selected.size() > LONGEST_TEXT)
        host.messageBox("Find/Replace Error", "Selected text too long for find/replace operation - truncated",
                        BOX_WARNING, BOX_OK);
    state.search.text = std::string(cutBetweenLetters(selected.substr(0, selected.find('\n')), LONGEST_TEXT));
    state.texts.add(state.search.text);
}

void open(bool replacing) {
    if (isOpen(DIALOGUE)) closeDialogue(DIALOGUE);
    state.replacing = replacing;
    remember("", "");
    takeSelection();
    allowFindNext();
    openDialogue(DIALOGUE);
}

void findCommand() { open(false); }
void replaceCommand() { open(true); }

void findNextCommand() {
    if (!state.search.text.empty() && !findAndSelect()) notFound();
}

// ---- Going to a line ----------------------------------------------------------------------------------------------

void goToLine();
void closeGoTo();

constexpr Control GO_TO_CONTROLS[] = {
    {.field = Field::Label, .text = "Line:", .x = 10, .y = 40, .width = 44},
    {.field = Field::Number, .id = GO_TO_LINE, .x = 60, .y = 40, .width = 88, .length = 7, .minimum = 1},
    {.field = Field::Default,
     .id = GO_TO_OK,
     .text = "OK",
     .x = 10,
     .y = 6,
     .width = 66,
     .mnemonic = 'O',
     .changed = goToLine},
    {.field = Field::Button,
     .id = GO_TO_CANCEL,
     .text = "Cancel",
     .x = 82,
     .y = 6,
     .width = 66,
     .mnemonic = 'C',
     .changed = closeGoTo},
};

const Dialogue GO_TO = {.title = "Go to Line",
                        .icon = "Text",
                        .width = 158,
                        .height = 74,
                        .windowEvent = GO_TO_WINDOW,
                        .controls = GO_TO_CONTROLS,
                        .cancel = GO_TO_CANCEL,
                        .first = GO_TO_LINE,
                        .fill = [] { dialogue::setNumber(GO_TO_LINE, lineOf(editor.text, -1)); }};

void closeGoTo() { closeDialogue(GO_TO); }

void goToLine() {
    const int wanted = static_cast<int>(dialogue::number(GO_TO_LINE));
    closeDialogue(GO_TO);
    const int last = lineOf(editor.text, textLength(editor.text) + 1);
    const int start = std::max(lineStart(editor.text, std::clamp(wanted, 1, last) - 1), 1);
    moveCaret(editor.text, start);
    showLineColumn(start);
    enterTextMode();
}

void goToCommand() { openDialogue(GO_TO); }

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_FIND, .label = "Find|Ctrl+F", .mnemonic = 'F', .key = controlKey('F'), .keyModes = IN_TEXT, .when = WHEN_TEXT_MODE | OPENS_WINDOW, .handler = findCommand},
    {.id = CMD_FIND_NEXT, .label = "Find Next|F3", .mnemonic = 'N', .key = functionKey(3), .keyModes = IN_TEXT | WHEN_ENABLED, .when = WHEN_TEXT_MODE | STARTS_DISABLED, .handler = findNextCommand},
    {.id = CMD_REPLACE, .label = "Replace", .mnemonic = 'R', .when = WHEN_TEXT_MODE | OPENS_WINDOW, .handler = replaceCommand},
    {.id = CMD_GO_TO_LINE, .label = "Go to Line...|Ctrl+G", .mnemonic = 'G', .key = controlKey('G'), .keyModes = IN_TEXT, .when = WHEN_TEXT_MODE | OPENS_WINDOW, .handler = goToCommand},
};
// clang-format on

} // namespace

std::span<const Command> findCommands() { return COMMANDS; }
