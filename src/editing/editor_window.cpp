#include "editing/editor_window.h"

#include "editing/commands.h"
#include "editing/text_view.h"
#include "menu-c.h"
#include "project/code_stores.h"
#include "project/language.h"
#include "project/preferences.h"
#include "surface/hooks.h"

#include <algorithm>

EditorWindow editor;

namespace {

constexpr char CODE_FONT[] = "Courier New";

} // namespace

int codeText() { return editor.text; }

void selectInList(int list, const char* name) { owSetListEntry(list, OSELECT, owString, name, owEntry, -1, 0); }

void addRow(int list, const char* text) { owSetListEntry(list, OADD, owString, text, 0); }

std::string chosenRow(int list) {
    char row[NAME_LIMIT + 1] = "";
    owEnqListEntry(list, 0, row, sizeof row);
    return row;
}

void refreshFont(bool marks, int modifiedValue) {
    const int text = editor.text;
    if (preferences.syntaxColours) {
        owSetSyntaxHighlighting(text, 1, owLanguage, languageOfProject().syntaxLanguage, 0);
        owSetFontAttribs(text, owFontFace, CODE_FONT, owPointSize, preferences.codePointSize, 0);
    } else {
        const TextRange range = selectionOf(text);
        owSetSyntaxHighlighting(text, 0, 0);
        select(text, {1, -1});
        owSetFontAttribs(text, owFontFace, CODE_FONT, owPointSize, preferences.codePointSize, 0);
        select(text, range);
    }
    owShowCodeView(text, preferences.selectedIndent, CMD_CODE_VIEW);
    owDefineChangeCallback(text, CMD_CODE_CHANGED);
    if (!marks) return;
    codeEditing.codeModified = modifiedValue != 0;
    if (modifiedValue) project.projectModified = 1;
}

void showLineColumn(int position) {
    hooks.statusText(PANE_LINE, "Line: " + std::to_string(lineOf(editor.text, position)));
    const int start = lineStart(editor.text, lineOf(editor.text, position) - 1);
    hooks.statusText(PANE_COLUMN, "Column: " + std::to_string(position - std::max(start, 1) + 1));
}
