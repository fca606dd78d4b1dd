// What an editor of code asks of its text, from C and C++ alone.
#include "toolkit/frame/events.h"
#include "toolkit/frame/registry.h"
#include "toolkit/frame/session.h"
#include "toolkit/views/text/program_text.h"
#include "toolkit/views/text/text_entry.h"

#include "menu-c.h"

namespace {

using namespace orba;

TextEntry* entryOf(int text) {
    const Widget* widget = widgetOf(text);
    return widget ? dynamic_cast<TextEntry*>(widget->view.data()) : nullptr;
}

CodeView* codeOf(int text) {
    TextEntry* entry = entryOf(text);
    return entry ? entry->codeView() : nullptr;
}

} // namespace

void owMarkTextLine(int text, int line) {
    if (TextEntry* entry = entryOf(text)) entry->markLine(line);
}

void owShowCodeView(int text, int indent, int callback) {
    TextEntry* entry = entryOf(text);
    if (!entry) return;
    entry->makeCodeView();
    if (!entry->codeView()) return;
    entry->codeView()->setIndentStep(indent);
    entry->codeView()->setAsked([=](int steps) { postIdentifier(callback, text, 0, steps); });
}

void owMarkTextFinding(int text, int line, int column, int length, int error, const char* words) {
    CodeView* code = codeOf(text);
    if (!code) return;
    if (line <= 0) return code->clearFindings();
    code->addFinding({line, column, length, error != 0, fromProgram(words ? words : "")});
}

int owEnqTextFindings(int text) { return codeOf(text) ? codeOf(text)->findingCount() : 0; }

int owShowTextDocument(int text, int document) {
    TextEntry* entry = entryOf(text);
    return entry && entry->showDocument(document) ? 1 : 0;
}

void owForgetTextDocuments(int text) {
    if (TextEntry* entry = entryOf(text)) entry->forgetDocuments();
}

void owOfferWords(int text, int typed, const char* words, int chosen) {
    TextEntry* entry = entryOf(text);
    WordList* list = entry ? entry->words() : nullptr;
    if (!list) return;
    QList<WordList::Word> rows;
    for (const QString& row : fromProgram(words ? words : "").split(u'\n', Qt::SkipEmptyParts))
        rows.append({row.section(u'\t', 0, 0), row.section(u'\t', 1)});
    if (rows.isEmpty()) return list->withdraw();
    list->offer(rows, typed, chosen != 0);
}

int owEnqWordsOffered(int text) {
    TextEntry* entry = entryOf(text);
    WordList* list = entry ? entry->words() : nullptr;
    return list && list->isVisible() ? 1 : 0;
}
