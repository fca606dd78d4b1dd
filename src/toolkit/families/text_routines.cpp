// The routines that read and change texts.
#include "toolkit/families/family_support.h"
#include "toolkit/families/text_family.h"
#include "toolkit/frame/session.h"
#include "toolkit/views/text/program_text.h"

#include <QApplication>
#include <QFontMetrics>
#include <cmath>

namespace orba {
namespace {

TextEntry& entryOf(const Arguments& call) { return *textEntryOf(widgetOf(call.integer(0))); }

// What owEnqTextPos answers.
enum TextPosition {
    lineOfPosition = 0,
    bytesBeforeLine = 1,
    lineLength = 2,
    lastPosition = 5,
    textLength = 6,
    caretX = 7,
    caretY = 8,
    caretHeight = 9
};

// ------------------------------------------------------------------------------------------------ whole texts

// Text settings of widgets that are no text entries: their label or title.
Word enquireText(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    TextEntry* entry = widget.kind == Kind::ttyEntry ? nullptr : textEntryOf(&widget); // a TTY tells its last line
    if (entry)
        giveBytes(call, 1, entry->text(call.keyword(owEntryType) == ORICHEDIT));
    else
        giveBytes(call, 1, toProgram(textOf(widget)));
    return 0;
}

Word setText(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    const std::string_view text = trimmedBytes(call.bytes(1));
    TextEntry* entry = widget.kind == Kind::ttyEntry ? nullptr : textEntryOf(&widget); // a TTY prints it
    if (entry)
        entry->setText(text, call.keyword(owEntryType) == ORICHEDIT);
    else
        setText(widget, fromProgram(text));
    return 0;
}

Word replaceText(const Arguments& call) {
    entryOf(call).replaceSelection(trimmedBytes(call.bytes(1)), call.keyword(owEntryType) == ORICHEDIT);
    return 0;
}

Word loadText(const Arguments& call) { return entryOf(call).load(std::string(trimmedBytes(call.bytes(1)))) ? 1 : 0; }
Word saveText(const Arguments& call) { return entryOf(call).save(std::string(trimmedBytes(call.bytes(1)))) ? 1 : 0; }

// ------------------------------------------------------------------------------------------- parts of a text

Word extractText(const Arguments& call) {
    const TextIndex& index = entryOf(call).index();
    const int length = index.length();
    const int start = std::clamp(call.integer(1), 1, length + 1);
    const int end = call.integer(2) <= 0 ? length + 1 : std::clamp(call.integer(2), start, length + 1);
    giveBytes(call, 3, toProgram(index.part(start, end)));
    return end - start;
}

Word extractWord(const Arguments& call) {
    TextEntry& entry = entryOf(call);
    int start = 0;
    giveBytes(call, 2, entry.wordAt(call.integer(1) < 1 ? entry.caret() : call.integer(1), start));
    return start;
}

Word measureText(const Arguments& call) {
    QFont font = fontFor(call.keywordText(owFontFace), call.keyword(owPointSize));
    font.setBold(call.keyword(owBold) == OON);
    font.setItalic(call.keyword(owItalic) == OON);
    return QFontMetrics(font).horizontalAdvance(fromProgram(call.bytes(0) ? call.bytes(0) : ""));
}

Word enquirePosition(const Arguments& call) {
    const TextEntry& entry = entryOf(call);
    const TextIndex& index = entry.index();
    const int given = call.keyword(owPosition);
    switch (call.integer(1)) {
    case lineOfPosition: return index.lineOfPosition(given < 0 ? entry.caret() : given) + 1;
    case bytesBeforeLine: return index.lineStart(given < 0 ? index.lineOfPosition(entry.caret()) : given);
    case lineLength: return index.lineLength(index.lineOfPosition(given < 0 ? entry.caret() : given));
    case lastPosition: return entry.lastPosition();
    case textLength: return entry.textLength();
    case caretX: return entry.caretPlace(given).left();
    case caretY: return entry.caretPlace(given).top();
    case caretHeight: return entry.caretPlace(given).height();
    default: return 0;
    }
}

// ------------------------------------------------------------------------------------------------- selection

void comboSelection(Widget& widget, int& start, int& end) {
    start = end = 1;
    const auto* line = widget.view ? widget.view->findChild<QLineEdit*>() : nullptr;
    if (!line) return;
    start = end = line->cursorPosition() + 1;
    if (line->hasSelectedText()) start = line->selectionStart() + 1, end = line->selectionEnd() + 1;
}

Word enquireSelection(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    int start = 1, end = 1;
    if (TextEntry* entry = textEntryOf(&widget)) {
        entry->selection(start, end);
        if (call.given(owString))
            bytesOut(entry->selectedText(), call.keywordRecord<char>(owString), call.keyword(owLength));
    } else {
        comboSelection(widget, start, end);
    }
    call.give(1, start);
    call.give(2, end);
    return 0;
}

Word setSelection(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    if (TextEntry* entry = textEntryOf(&widget)) {
        entry->select(call.integer(1), call.integer(2));
    } else if (auto* line = widget.view ? widget.view->findChild<QLineEdit*>() : nullptr) {
        const int start = std::max(call.integer(1), 1),
                  end = call.integer(2) <= 0 ? int(line->text().size()) + 1 : call.integer(2);
        if (call.integer(1) <= 0 && call.integer(2) == 0)
            line->deselect();
        else
            line->setSelection(start - 1, end - start);
    }
    return 0;
}

Word enquireSelectedText(const Arguments& call) {
    giveBytes(call, 1, entryOf(call).selectedText());
    return 0;
}

Word findText(const Arguments& call) {
    return entryOf(call).index().find(fromProgram(call.bytes(2) ? call.bytes(2) : ""), call.integer(1),
                                      call.keyword(owMatchCase) == OON);
}

// ---------------------------------------------------------------------------------------- undo and clipboard

// These stand for the user's own keys: what they change is reported as if the user had pressed them.
Word undoAction(const Arguments& call) {
    const ProgramDoing::StandIn user(session.program);
    TextEntry& entry = entryOf(call);
    switch (call.integer(1)) {
    case OUNDO: entry.undo(); return entry.canUndo();
    case OCANUNDO: return entry.canUndo();
    case ORESETUNDO: entry.resetUndo(); return 0;
    case OREDO: entry.redo(); return entry.canRedo();
    case OCANREDO: return entry.canRedo();
    default: return 0;
    }
}

Word clipboardAction(const Arguments& call) {
    const ProgramDoing::StandIn user(session.program);
    TextEntry& entry = entryOf(call);
    switch (call.integer(1)) {
    case OCUT: entry.cut(); break;
    case OCOPY: entry.copy(); break;
    case OPASTE: entry.paste(); break;
    case ODELETESELECTION: entry.deleteSelection(); break;
    default: break;
    }
    return 0;
}

// ------------------------------------------------------------------------------------------------ paragraphs

struct ParagraphKeyword {
    int keyword;
    std::optional<int> TextEntry::Paragraph::*field;
};
constexpr ParagraphKeyword paragraphKeywords[] = {
    {owJustify, &TextEntry::Paragraph::justify},   {owBullet, &TextEntry::Paragraph::bullet},
    {owFirstIndent, &TextEntry::Paragraph::first}, {owLeftIndent, &TextEntry::Paragraph::left},
    {owRightIndent, &TextEntry::Paragraph::right},
};

Word setParagraph(const Arguments& call) {
    TextEntry::Paragraph paragraph;
    for (const auto& row : paragraphKeywords)
        if (call.given(row.keyword)) paragraph.*row.field = call.keyword(row.keyword);
    entryOf(call).setParagraph(paragraph);
    Widget& widget = *widgetOf(call.integer(0));
    if (paragraph.justify && widget.kind != Kind::ttyEntry && !entryOf(call).rich())
        dataOf<TextData>(widget).justify = *paragraph.justify;
    return 0;
}

Word enquireParagraph(const Arguments& call) {
    const TextEntry::Paragraph paragraph = entryOf(call).paragraph();
    for (const auto& row : paragraphKeywords)
        if (paragraph.*row.field) giveKeyword<int>(call, row.keyword, *(paragraph.*row.field));
    return 0;
}

// Tab stops count from 1 and stand in pixels from the left edge of the text.
Word addTabstop(const Arguments& call) {
    QList<double> stops = entryOf(call).tabStops();
    if (call.integer(1) > 0 && !stops.contains(call.integer(1))) stops.append(call.integer(1));
    std::sort(stops.begin(), stops.end());
    entryOf(call).setTabStops(stops);
    return 0;
}

Word removeTabstop(const Arguments& call) {
    QList<double> stops = entryOf(call).tabStops();
    if (call.integer(1) >= 1 && call.integer(1) <= stops.size()) stops.removeAt(call.integer(1) - 1);
    entryOf(call).setTabStops(stops);
    return 0;
}

Word enquireTabstop(const Arguments& call) {
    return int(std::lround(entryOf(call).tabStops().value(call.integer(1) - 1, 0)));
}

Word freeze(const Arguments& call) {
    entryOf(call).freeze(call.integer(1) == OON);
    return 0;
}

// ------------------------------------------------------------------------------------------------------ modes

int selectionMode = OOFF;

Word setSelectionMode(const Arguments& call) {
    selectionMode = call.integer(0);
    TextEntry::selectOnFocus = selectionMode == OON;
    return 0;
}

Word enquireSelectionMode(const Arguments&) { return selectionMode; }

const Registration registration({
    {Fn::owEnqTextSetting, enquireText},
    {Fn::owSetTextSetting, setText},
    {Fn::owReplaceText, replaceText},
    {Fn::owGetTextFromFile, loadText},
    {Fn::owSaveTextToFile, saveText},
    {Fn::owExtractText, extractText},
    {Fn::owExtractWord, extractWord},
    {Fn::owEnqTextLength, measureText},
    {Fn::owEnqTextPos, enquirePosition},
    {Fn::owEnqSelectedTextRange, enquireSelection},
    {Fn::owSetSelectedTextRange, setSelection},
    {Fn::owEnqSelectedText, enquireSelectedText},
    {Fn::owFindText, findText},
    {Fn::owTextUndoAction, undoAction},
    {Fn::owCopyTextToClipboard, clipboardAction},
    {Fn::owSetParagraphProp, setParagraph},
    {Fn::owEnqParagraphProp, enquireParagraph},
    {Fn::owAddParagraphTabstop, addTabstop},
    {Fn::owRemoveParagraphTabstop, removeTabstop},
    {Fn::owEnqParagraphTabstop, enquireTabstop},
    {Fn::owFreezeRTFChanges, freeze},
    {Fn::owSetEntrySelectionMode, setSelectionMode},
    {Fn::owEnqEntrySelectionMode, enquireSelectionMode},
});

} // namespace
} // namespace orba
