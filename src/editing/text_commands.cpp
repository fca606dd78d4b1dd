#include "editing/text_commands.h"

#include "editing/editor_window.h"
#include "editing/modes.h"
#include "editing/text_view.h"
#include "menu-c.h"
#include "project/code_stores.h"
#include "project/host.h"
#include "project/preferences.h"
#include "surface/commands.h"
#include "surface/event.h"
#include "surface/hooks.h"

#include <algorithm>
#include <cctype>
#include <string>

namespace {

constexpr char COMMENT = '!'; // in all languages of a project

void markModified() {
    codeEditing.codeModified = true;
    project.projectModified = 1;
}

std::string expandTabs(const std::string& line) {
    std::string expanded;
    for (const char c : line) {
        if (c == '\t')
            expanded.append(std::max(preferences.tabSpaces, 0), ' ');
        else
            expanded += c;
    }
    return expanded;
}

// Runs `change` on each line that begins inside the selection, tabs turned into blanks; the selection's end moves
// along. A caret at the start of a line, and a selection that ends there, leave that line alone.
void changeLines(std::string (*change)(const std::string& line)) {
    const int text = editor.text;
    TextRange range = selectionOf(text);
    for (int line = lineOf(text, range.start) - 1;; ++line) {
        const int first = lineStart(text, line);
        if (first == 0 || first >= range.end) break;
        const TextRange old = {first, first + lineLength(text, first)};
        const std::string before = extract(text, old);
        const std::string after = change(expandTabs(before));
        if (after == before) continue;
        replaceRange(text, old, after);
        range.end += characters(after) - characters(before);
    }
    select(text, range);
    markModified();
}

std::string indented(const std::string& line) {
    return std::string(std::max(preferences.selectedIndent, 0), ' ') + line;
}

std::string unindented(const std::string& line) {
    const size_t width = std::max(preferences.selectedIndent, 0);
    const bool deep = line.size() > width && line.find_first_not_of(' ') >= width;
    return deep ? line.substr(width) : line;
}

std::string commented(const std::string& line) { return COMMENT + line; }
std::string uncommented(const std::string& line) { return !line.empty() && line[0] == COMMENT ? line.substr(1) : line; }

void changeCase(int (*convert)(int)) {
    const TextRange range = selectionOf(editor.text);
    std::string selected = extract(editor.text, range);
    for (char& c : selected)
        if (static_cast<unsigned char>(c) < 128) c = static_cast<char>(convert(static_cast<unsigned char>(c)));
    if (!selected.empty()) replaceRange(editor.text, range, selected);
    refreshFont(true, 1);
    select(editor.text, range);
}

void clipboardCommand(int clipboardAction) {
    owCopyTextToClipboard(editor.text, clipboardAction);
    if (clipboardAction != OCOPY) markModified();
}

void showHistory() {
    hooks.commandStatus(CMD_TEXT_UNDO, owTextUndoAction(editor.text, OCANUNDO) ? OSELECTABLE : OUNSELECTABLE);
    hooks.commandStatus(CMD_TEXT_REDO, owTextUndoAction(editor.text, OCANREDO) ? OSELECTABLE : OUNSELECTABLE);
}

// The column that Up and Down keep, also through shorter lines.
struct ColumnMemory {
    int line = 1;
    int column = 1;
} memory;

void followCaret() {
    const int text = editor.text;
    const int caret = selectionOf(text).end;
    const int line = lineOf(text, -1);
    const int start = caretLineStart(text);
    const bool vertical = action.key == OKEYUP || action.key == OKEYDOWN;
    if (line != memory.line && vertical) {
        const int wanted = start + std::min(memory.column - 1, lineLength(text, start));
        if (wanted != caret && selectionOf(text).start == caret) moveCaret(text, wanted);
        showLineColumn(wanted);
    } else {
        memory.column = caret - start + 1;
        showLineColumn(caret);
    }
    memory.line = line;
}

void textNotification(bool changed) {
    if (!editor.text) return;
    if (changed) markModified();
    showHistory();
    followCaret();
}

} // namespace

void codeChangedCommand() { textNotification(action.status == 1); }

void caretMovedCommand() {
    enterTextMode();
    textNotification(false);
}

void textTabCommand() {
    if (owEnqActiveWidget() != editor.text) return;
    const int blanks = std::max(preferences.tabSpaces, 0);
    replaceSelection(editor.text, preferences.replaceTab ? std::string(blanks, ' ') : "\t");
    markModified();
}

void indentCommand() { changeLines(indented); }
void unindentCommand() { changeLines(unindented); }
void commentCommand() { changeLines(commented); }
void uncommentCommand() { changeLines(uncommented); }

void uppercaseCommand() { changeCase(std::toupper); }
void lowercaseCommand() { changeCase(std::tolower); }

void textCutCommand() { clipboardCommand(OCUT); }
void textCopyCommand() { clipboardCommand(OCOPY); }
void textDeleteCommand() {
    const TextRange range = selectionOf(editor.text);
    if (range.start == range.end && range.end <= textLength(editor.text))
        select(editor.text, {range.end, range.end + 1});
    clipboardCommand(ODELETESELECTION);
}

void textPasteCommand() {
    if (owEnqClipboardStatus(OPLAINTEXT)) owCopyTextToClipboard(editor.text, OPASTE);
    const TextRange range = selectionOf(editor.text);
    refreshFont(true, 1);
    select(editor.text, range);
}

void textUndoCommand() {
    owTextUndoAction(editor.text, OUNDO);
    markModified();
    showHistory();
}

void textRedoCommand() {
    owTextUndoAction(editor.text, OREDO);
    markModified();
    showHistory();
}
