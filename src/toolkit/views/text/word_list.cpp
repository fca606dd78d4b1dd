#include "toolkit/views/text/word_list.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>

namespace orba {
namespace {

constexpr int ROWS_SHOWN = 9;

bool wordPart(QChar c) { return c.isLetterOrNumber() || c == u'_'; }

} // namespace

WordList::WordList(QTextEdit* edit) : QTreeWidget(edit), edit_(edit) {
    setWindowFlags(Qt::Popup);
    setFocusPolicy(Qt::NoFocus);
    setFocusProxy(edit);
    setColumnCount(2);
    header()->hide();
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAllColumnsShowFocus(true);
    installEventFilter(this);
    edit_->installEventFilter(this);
    connect(edit_, &QTextEdit::cursorPositionChanged, this, [this] {
        if (isVisible()) narrow();
    });
    connect(edit_, &QTextEdit::textChanged, this, [this] {
        if (isVisible()) narrow();
    });
    connect(this, &QTreeWidget::itemClicked, this, [this] { takeWord(); });
}

void WordList::offer(const QList<Word>& words, int typed, bool chosen) {
    words_ = words;
    start_ = edit_->textCursor();
    start_.setPosition(std::max(start_.position() - typed, start_.block().position()));
    start_.setKeepPositionOnInsert(true);
    hide();
    narrow();
    if (topLevelItemCount() == 0) return;
    setFont(edit_->font());
    place();
    show();
    goTo(chosen ? 0 : -1);
}

void WordList::withdraw() {
    hide();
    clear();
    words_.clear();
}

void WordList::hideEvent(QHideEvent* event) {
    QTreeWidget::hideEvent(event);
    edit_->viewport()->update();
}

std::optional<QString> WordList::typed() const {
    const QTextCursor caret = edit_->textCursor();
    if (caret.hasSelection() || start_.isNull() || caret.block() != start_.block() ||
        caret.position() < start_.position())
        return {};
    const QString word = caret.block().text().mid(start_.positionInBlock(), caret.position() - start_.position());
    if (!std::all_of(word.begin(), word.end(), wordPart)) return {};
    return word;
}

// Words that begin as the typed one first, then those that hold it.
void WordList::narrow() {
    const std::optional<QString> sought = typed();
    if (!sought) return withdraw();
    const QString& word = *sought;
    const bool keeps = currentItem() != nullptr;
    QList<const Word*> begin, hold;
    for (const Word& one : words_) {
        if (one.text.startsWith(word, Qt::CaseInsensitive))
            begin.append(&one);
        else if (one.text.contains(word, Qt::CaseInsensitive))
            hold.append(&one);
    }
    const bool done = begin.size() == 1 && begin[0]->text == word;
    clear();
    for (const Word* one : begin + hold) new QTreeWidgetItem(this, {one->text, one->note});
    if (topLevelItemCount() == 0 || done) return withdraw();
    if (!isVisible()) return;
    place();
    goTo(keeps ? 0 : -1);
}

void WordList::place() {
    resizeColumnToContents(0);
    resizeColumnToContents(1);
    const int rows = std::min(topLevelItemCount(), ROWS_SHOWN);
    const int height = rows * sizeHintForRow(0) + 2 * frameWidth();
    const int bar = topLevelItemCount() > rows ? verticalScrollBar()->sizeHint().width() : 0;
    const int width = std::clamp(columnWidth(0) + columnWidth(1) + bar + 2 * frameWidth(), 120, 620);
    const QRect caret = edit_->cursorRect(start_);
    QPoint corner = edit_->viewport()->mapToGlobal(caret.bottomLeft());
    const QRect screen = edit_->screen()->availableGeometry();
    if (corner.y() + height > screen.bottom())
        corner.setY(edit_->viewport()->mapToGlobal(caret.topLeft()).y() - height);
    corner.setX(std::max(screen.left(), std::min(corner.x(), screen.right() - width)));
    setGeometry(corner.x(), corner.y(), width, height);
}

void WordList::goTo(int row) {
    const int rows = topLevelItemCount();
    setCurrentItem(row < 0 ? nullptr : topLevelItem(std::clamp(row, 0, rows - 1)));
    if (currentItem())
        scrollToItem(currentItem());
    else
        clearSelection();
}

void WordList::takeWord() {
    const QTreeWidgetItem* row = currentItem();
    if (!row) return;
    const QString word = row->text(0); // the row goes with the list
    QTextCursor cursor = edit_->textCursor();
    const int caret = cursor.position();
    withdraw();
    cursor.setPosition(start_.position());
    cursor.setPosition(caret, QTextCursor::KeepAnchor);
    cursor.insertText(word);
    edit_->setTextCursor(cursor);
}

// True when the list takes the key for itself.
bool WordList::takesKey(QKeyEvent& key) {
    const int current = currentItem() ? indexOfTopLevelItem(currentItem()) : -1;
    switch (key.key()) {
    case Qt::Key_Escape: withdraw(); return true;
    case Qt::Key_Down: goTo(current + 1); return true;
    case Qt::Key_Up:
        if (current >= 0)
            goTo(std::max(current - 1, 0));
        else
            goTo(topLevelItemCount() - 1);
        return true;
    case Qt::Key_PageDown: goTo(current + ROWS_SHOWN); return true;
    case Qt::Key_PageUp: goTo(std::max(current - ROWS_SHOWN, 0)); return true;
    case Qt::Key_Tab:
        if (current < 0) goTo(0);
        takeWord();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (current < 0) {
            withdraw();
            return false;
        }
        takeWord();
        return true;
    default: break;
    }
    const bool plain = !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    const bool types = plain && !key.text().isEmpty() && wordPart(key.text()[0]);
    const bool edits = plain && key.key() == Qt::Key_Backspace;
    const bool holds = key.key() == Qt::Key_Shift || key.key() == Qt::Key_Control;
    if (!types && !edits && !holds) withdraw(); // the key is the text's or a command's
    return false;
}

bool WordList::eventFilter(QObject* watched, QEvent* event) {
    if (!isVisible()) return false;
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
        auto& key = *static_cast<QKeyEvent*>(event);
        if (event->type() == QEvent::ShortcutOverride) return false;
        if (takesKey(key)) return true;
        if (watched == edit_) return false;
        QKeyEvent copy(key.type(), key.key(), key.modifiers(), key.text(), key.isAutoRepeat(),
                       static_cast<quint16>(key.count()));
        QApplication::sendEvent(edit_, &copy);
        return true;
    }
    if (watched == edit_ && event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
        withdraw();
    return false;
}

} // namespace orba
