// The text entry as an editor of code: several texts in one entry, and where things stand on the screen.
#include "toolkit/views/text/text_entry.h"

#include <QTextBlock>

#include <algorithm>

namespace orba {
namespace {

constexpr int DOCUMENTS_KEPT = 64;

} // namespace

QRect TextEntry::caretPlace(int position) const {
    if (line_) {
        const QRect caret = line_->inputMethodQuery(Qt::ImCursorRectangle).toRect();
        return caret.translated(line_->pos());
    }
    QTextCursor cursor = edit_->textCursor();
    if (position >= 1) cursor.setPosition(index().toCursor(position));
    return edit_->cursorRect(cursor).translated(edit_->viewport()->mapTo(this, QPoint()));
}

WordList* TextEntry::words() {
    if (!edit_) return nullptr;
    if (!words_) words_ = new WordList(edit_);
    return words_;
}

void TextEntry::followDocument() {
    connect(edit_->document(), &QTextDocument::contentsChange, this, [this] { forgetIndex(); });
    forgetIndex();
}

bool TextEntry::showDocument(int number) {
    if (!edit_) return false;
    if (documents_.isEmpty()) documents_.append({0, edit_->document()});
    if (documents_.back().number == number) return true;
    const ProgramDoing::Mark mark(program_);
    const auto kept = std::ranges::find(documents_, number, &Document::number);
    const bool there = kept != documents_.end();
    Document shown{number, there ? kept->document : new QTextDocument(this)};
    if (there) {
        documents_.erase(kept);
    } else {
        shown.document->setDefaultTextOption(edit_->document()->defaultTextOption());
        if (documents_.size() >= DOCUMENTS_KEPT) delete documents_.takeFirst().document;
    }
    // The edit would delete the document that it made itself.
    edit_->document()->setParent(this);
    shown.document->setDefaultFont(edit_->document()->defaultFont());
    shown.document->setDocumentMargin(edit_->document()->documentMargin());
    edit_->document()->disconnect(this);
    documents_.append(shown);
    edit_->setDocument(shown.document);
    // No class of its own to Qt: the only highlighter that a document can have here is ours.
    highlighter_ = static_cast<SyntaxHighlighter*>(shown.document->findChild<QSyntaxHighlighter*>());
    followDocument();
    coloured_ = index().text();
    if (code_) code_->documentExchanged();
    return there;
}

void TextEntry::forgetDocuments() {
    for (const Document& one : documents_)
        if (one.document != edit_->document()) delete one.document;
    documents_.clear();
}

} // namespace orba
