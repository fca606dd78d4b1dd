// Commands on the text of the code editor.

#include "editing/code_assist.h"
#include "editing/commands.h"
#include "editing/editor_window.h"
#include "editing/text_view.h"
#include "menu-c.h"
#include "project/code_stores.h"
#include "project/host.h"
#include "project/preferences.h"
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

// Where the lines lie that begin inside the selection; empty for none. A caret at the start of a line, and a selection
// that ends there, leave that line alone.
TextRange wholeLines(int text, TextRange selected) {
    const int line = lineOf(text, selected.start) - 1;
    const int first = lineStart(text, line);
    if (first == 0 || first >= selected.end) return {first, first};
    const int last = lineOf(text, std::max(selected.end - 1, first)) - 1;
    const int start = lineStart(text, last);
    return {first, start + lineLength(text, start)};
}

// Behind the line that begins at `from`, without its end.
size_t lineEnd(const std::string& lines, size_t from) {
    return std::min(lines.find_first_of("\r\n", from), lines.size());
}

std::string changedLines(const std::string& lines, std::string (*change)(const std::string& line)) {
    std::string changed;
    for (size_t from = 0;;) {
        const size_t end = lineEnd(lines, from);
        changed += change(expandTabs(lines.substr(from, end - from)));
        if (end == lines.size()) return changed;
        from = end + (lines.compare(end, 2, "\r\n") == 0 ? 2 : 1);
        changed += lines.substr(end, from - end);
    }
}

// Runs `change` on each of those lines, tabs turned into blanks, as one edit; the selection's end moves along.
void changeLines(std::string (*change)(const std::string& line)) {
    const int text = editor.text;
    TextRange selected = selectionOf(text);
    const bool caretOnly = selected.start == selected.end;
    const TextRange old = wholeLines(text, selected);
    const bool any = old.start > 0 && old.start < selected.end;
    const std::string before = extract(text, old);
    const std::string after = any ? changedLines(before, change) : before;
    if (after != before) {
        replaceRange(text, old, after);
        selected.end += characters(after) - (old.end - old.start);
    }
    if (caretOnly) selected.start = selected.end; // nothing selected: the next key would replace it
    select(text, selected);
    markModified();
    owSetActiveWidget(text); // an icon has sent it
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
    assistAfterKey(changed);
}

void codeChangedCommand() { textNotification(action.status == 1); }

void caretMovedCommand() { textNotification(false); }

void textTabCommand() {
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

void codeViewCommand() {
    if (action.status == 0) return offerWordsNow();
    preferences.codePointSize =
        std::clamp(preferences.codePointSize + action.status, SMALLEST_CODE_FONT, LARGEST_CODE_FONT);
    refreshFont(false, 0);
}

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_TEXT_MENU, .label = "Text", .mnemonic = 'T', .when = WHEN_TEXT_MODE, .handler = [] {}},
    {.id = CMD_UPPERCASE, .label = "Uppercase", .mnemonic = 'U', .when = WHEN_TEXT_MODE, .handler = uppercaseCommand},
    {.id = CMD_LOWERCASE, .label = "Lowercase", .mnemonic = 'L', .when = WHEN_TEXT_MODE, .handler = lowercaseCommand},
    {.id = CMD_TEXT_UNDO, .label = "Undo Text Edit              |Ctrl+Z", .mnemonic = 'd', .key = controlKey('Z'), .keyModes = IN_TEXT, .when = STARTS_DISABLED, .handler = textUndoCommand},
    {.id = CMD_TEXT_REDO, .label = "Redo Text Edit|Ctrl+Y", .mnemonic = 'R', .key = controlKey('Y'), .keyModes = IN_TEXT, .when = STARTS_DISABLED, .handler = textRedoCommand},
    {.id = CMD_TEXT_CUT, .label = "Cut Text|Ctrl+X", .mnemonic = 't', .key = controlKey('X'), .keyModes = IN_TEXT, .bubbleHelp = "Cut Text", .handler = textCutCommand},
    {.id = CMD_TEXT_COPY, .label = "Copy Text|Ctrl+C", .mnemonic = 'C', .key = controlKey('C'), .keyModes = IN_TEXT, .bubbleHelp = "Copy Text", .handler = textCopyCommand},
    {.id = CMD_TEXT_PASTE, .label = "Paste Text|Ctrl+V", .mnemonic = 'P', .key = controlKey('V'), .keyModes = IN_TEXT, .bubbleHelp = "Paste Text", .handler = textPasteCommand},
    {.id = CMD_TEXT_DELETE, .label = "Delete Text|DEL", .mnemonic = 'D', .key = OKEYDEL, .keyModes = IN_TEXT, .handler = textDeleteCommand},
    {.id = CMD_TEXT_TAB, .key = OKEYTAB, .keyModes = IN_TEXT, .handler = textTabCommand},
    {.id = CMD_CODE_CHANGED, .handler = codeChangedCommand},
    {.id = CMD_CODE_SELECT, .handler = caretMovedCommand},
    {.id = CMD_CODE_VIEW, .handler = codeViewCommand},
    {.id = CMD_CODE_TEXT, .handler = removeAssist},
    {.id = CMD_INDENT, .handler = indentCommand},
    {.id = CMD_UNINDENT, .key = OKEYSHIFTTAB, .keyModes = IN_TEXT, .handler = unindentCommand},
    {.id = CMD_COMMENT, .handler = commentCommand},
    {.id = CMD_UNCOMMENT, .handler = uncommentCommand},
};
// clang-format on

} // namespace

std::span<const Command> textCommands() { return COMMANDS; }
