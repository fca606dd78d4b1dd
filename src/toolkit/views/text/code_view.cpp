#include "toolkit/views/text/code_view.h"

#include "toolkit/views/text/code_lines.h"

#include <QAbstractTextDocumentLayout>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolTip>
#include <QWheelEvent>

namespace orba {
namespace {

constexpr int PADDING = 6; // pixels at each side of a number
constexpr int DOT = 7;     // of a mark

QColor mixed(const QColor& a, const QColor& b, double share) {
    return QColor::fromRgbF(float(a.redF() * share + b.redF() * (1 - share)),
                            float(a.greenF() * share + b.greenF() * (1 - share)),
                            float(a.blueF() * share + b.blueF() * (1 - share)));
}

QColor colourOf(bool error) { return error ? QColor(0xD0, 0x30, 0x30) : QColor(0xC8, 0x8A, 0x00); }

QTextEdit::ExtraSelection wholeLine(QTextCursor cursor, const QColor& colour) {
    QTextEdit::ExtraSelection mark;
    cursor.clearSelection();
    mark.cursor = cursor;
    mark.format.setBackground(colour);
    mark.format.setProperty(QTextFormat::FullWidthSelection, true);
    return mark;
}

} // namespace

CodeView::CodeView(QTextEdit* edit, std::function<void(int)> leftRoom)
    : QObject(edit), edit_(edit), margin_(new QWidget(edit)), leftRoom_(std::move(leftRoom)) {
    margin_->setCursor(Qt::ArrowCursor);
    margin_->installEventFilter(this);
    margin_->show();
    edit_->installEventFilter(this);
    edit_->viewport()->installEventFilter(this);
    connect(edit_, &QTextEdit::cursorPositionChanged, this, [this] { showMarks(); });
    connect(edit_->verticalScrollBar(), &QScrollBar::valueChanged, margin_, [this] { margin_->update(); });
    documentExchanged();
}

CodeView::~CodeView() { delete margin_; }

void CodeView::setIndentStep(int blanks) {
    step_ = std::max(blanks, 1);
    edit_->viewport()->update();
}

void CodeView::documentExchanged() {
    errorAt_ = {};
    findings_.clear();
    connect(edit_->document(), &QTextDocument::contentsChange, this, &CodeView::textChanged, Qt::UniqueConnection);
    edit_->document()->disconnect(margin_);
    connect(edit_->document(), &QTextDocument::blockCountChanged, margin_, [this] { placeMargin(); });
    placeMargin();
    showMarks();
}

// Marks stay with their lines until these are edited; a line that only moves keeps its mark.
void CodeView::textChanged() {
    if (!errorAt_.isNull() && errorAt_.block().text() != errorLine_) errorAt_ = {};
    findings_.removeIf([this](const Mark& mark) {
        return edit_->document()->findBlock(mark.at.selectionStart()).text() != mark.line;
    });
    QMetaObject::invokeMethod(
        this, [this] { showMarks(); }, Qt::QueuedConnection);
}

void CodeView::markLine(int line) {
    const QTextBlock block = edit_->document()->findBlockByNumber(line - 1);
    errorAt_ = line > 0 && block.isValid() ? QTextCursor(block) : QTextCursor();
    errorLine_ = block.text();
    showMarks();
}

void CodeView::addFinding(const Finding& finding) {
    const QTextBlock block = edit_->document()->findBlockByNumber(std::max(finding.line, 1) - 1);
    if (!block.isValid()) return;
    const QString text = block.text();
    int start = std::clamp(finding.column - 1, 0, int(text.size())), end = start + std::max(finding.length, 0);
    if (finding.length <= 0)
        while (end < text.size() && (text[end].isLetterOrNumber() || text[end] == u'_')) ++end;
    if (end == start) ++end;
    if (end > text.size()) { // behind the last letter: what stands ahead of it
        end = int(text.size());
        if (start >= end) start = std::max(0, end - 1);
    }
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + start);
    cursor.setPosition(block.position() + end, QTextCursor::KeepAnchor);
    findings_.append({cursor, finding.error, finding.words, text});
    showMarks();
}

void CodeView::clearFindings() {
    if (findings_.isEmpty()) return;
    findings_.clear();
    showMarks();
}

// ----------------------------------------------------------------------------------------------------- the text

void CodeView::addBrackets(QList<QTextEdit::ExtraSelection>& marks) const {
    const QTextCursor caret = edit_->textCursor();
    if (caret.hasSelection()) return;
    const QTextBlock block = caret.block();
    const QString line = block.text(), code = codeOnly(line, language_);
    int at = caret.positionInBlock();
    if (at >= code.size() || !isBracket(code[at])) --at; // else the one ahead of the caret
    if (at < 0 || at >= code.size() || !isBracket(code[at])) return;
    const bool down = QStringView(u"([{").contains(code[at]);
    QTextBlock beyond = block;
    int reached = 0;
    const BracketPlace other = matchingBracket(line, at, language_, [&](int lines) {
        while (reached < lines && beyond.isValid()) {
            beyond = down ? beyond.next() : beyond.previous();
            ++reached;
        }
        return beyond.isValid() ? beyond.text() : QString();
    });
    const auto add = [&](int position, bool found) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = caret;
        mark.cursor.setPosition(position);
        mark.cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
        QColor shade = found ? edit_->palette().color(QPalette::Highlight) : colourOf(true);
        shade.setAlpha(90);
        mark.format.setBackground(shade);
        marks.append(mark);
    };
    add(block.position() + at, other.found);
    if (other.found) add((other.lines == 0 ? block : beyond).position() + other.at, true);
}

void CodeView::showMarks() {
    QList<QTextEdit::ExtraSelection> marks;
    const QPalette& colours = edit_->palette();
    const QColor page = colours.color(QPalette::Base);
    marks.append(wholeLine(edit_->textCursor(), mixed(colours.color(QPalette::Highlight), page, 0.08)));
    if (!errorAt_.isNull()) marks.append(wholeLine(errorAt_, mixed(colourOf(true), page, 0.22)));
    for (const Mark& finding : findings_) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = finding.at;
        mark.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
        mark.format.setUnderlineColor(colourOf(finding.error));
        marks.append(mark);
    }
    addBrackets(marks);
    edit_->setExtraSelections(marks);
    margin_->update();
}

QRectF CodeView::rectOf(const QTextBlock& block) const {
    const QPointF scrolled(edit_->horizontalScrollBar()->value(), edit_->verticalScrollBar()->value());
    return edit_->document()->documentLayout()->blockBoundingRect(block).translated(-scrolled);
}

QTextBlock CodeView::firstShown() const { return edit_->cursorForPosition(QPoint(0, 0)).block(); }

void CodeView::paintOver(const QRect& area) {
    const double blank = edit_->fontMetrics().horizontalAdvance(u' ') * step_;
    if (blank < 1) return;
    QPainter painter(edit_->viewport());
    painter.setPen(mixed(edit_->palette().color(QPalette::Text), edit_->palette().color(QPalette::Base), 0.14));
    int depth = 0;
    for (QTextBlock block = firstShown(); block.isValid(); block = block.next()) {
        const QRectF place = rectOf(block);
        if (place.top() > area.bottom()) break;
        const QString line = block.text();
        const int blanks = int(indentOf(line).size());
        if (blanks < line.size()) depth = (blanks - 1) / step_; // an empty line goes on as the one above it
        for (int level = 1; level <= depth; ++level) {
            const double x = place.left() + edit_->document()->documentMargin() * 0 + level * blank;
            painter.drawLine(QPointF(x, place.top()), QPointF(x, place.bottom()));
        }
    }
}

// ---------------------------------------------------------------------------------------------------- the margin

int CodeView::marginWidth() const {
    int digits = 3;
    for (int lines = edit_->document()->blockCount(); lines >= 1000; lines /= 10) ++digits;
    return PADDING + DOT + PADDING + edit_->fontMetrics().horizontalAdvance(u'9') * digits + PADDING;
}

void CodeView::placeMargin() {
    const int width = marginWidth();
    leftRoom_(width);
    const QRect view = edit_->viewport()->geometry();
    margin_->setGeometry(view.left() - width, view.top(), width, view.height());
    margin_->update();
}

const CodeView::Mark* CodeView::markIn(const QTextBlock& block) const {
    const Mark* found = nullptr;
    for (const Mark& mark : findings_)
        if (mark.at.blockNumber() == block.blockNumber() && (!found || (mark.error && !found->error))) found = &mark;
    return found;
}

void CodeView::paintMargin(QPaintEvent* event) {
    QPainter painter(margin_);
    const QPalette& colours = edit_->palette();
    const QColor page = colours.color(QPalette::Base), ink = colours.color(QPalette::Text);
    painter.fillRect(event->rect(), mixed(ink, page, 0.05));
    painter.setFont(edit_->font());
    painter.setRenderHint(QPainter::Antialiasing);
    const int current = edit_->textCursor().blockNumber();
    for (QTextBlock block = firstShown(); block.isValid(); block = block.next()) {
        const QRectF place = rectOf(block);
        if (place.top() > event->rect().bottom()) break;
        const double height = edit_->fontMetrics().lineSpacing();
        painter.setPen(mixed(ink, page, block.blockNumber() == current ? 0.9 : 0.45));
        painter.drawText(QRectF(0, place.top(), margin_->width() - PADDING, height), Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(block.blockNumber() + 1));
        const Mark* mark = markIn(block);
        const bool error = !errorAt_.isNull() && errorAt_.blockNumber() == block.blockNumber();
        if (!mark && !error) continue;
        painter.setPen(Qt::NoPen);
        painter.setBrush(colourOf(error || mark->error));
        painter.drawEllipse(QRectF(PADDING, place.top() + (height - DOT) / 2, DOT, DOT));
    }
}

void CodeView::selectLineAt(int y) {
    QTextCursor cursor = edit_->cursorForPosition(QPoint(0, y));
    cursor.movePosition(QTextCursor::StartOfBlock);
    cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
    edit_->setTextCursor(cursor);
    edit_->setFocus(Qt::MouseFocusReason);
}

// ------------------------------------------------------------------------------------------------ keys and mouse

// One edit, so that one undo takes it back.
bool CodeView::newLine() {
    if (edit_->isReadOnly()) return false;
    QTextCursor cursor = edit_->textCursor();
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    const QTextBlock block = cursor.block();
    const QString head = block.text().left(cursor.positionInBlock());
    QTextBlock above = block;
    int reached = 0;
    const NewLine line = newLineBehind(head, language_, step_, [&](int lines) {
        if (lines < reached) above = block, reached = 0;
        while (reached < lines && above.isValid()) {
            above = above.previous();
            ++reached;
        }
        return above.isValid() ? above.text() : QString();
    });
    if (line.head != head) {
        cursor.movePosition(QTextCursor::StartOfBlock, QTextCursor::KeepAnchor);
        cursor.insertText(line.head);
    }
    // Blanks ahead of what comes along would indent it twice.
    const QString tail = cursor.block().text().mid(cursor.positionInBlock());
    cursor.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor, int(indentOf(tail).size()));
    cursor.insertText(u'\n' + line.indent);
    cursor.endEditBlock();
    edit_->setTextCursor(cursor);
    edit_->ensureCursorVisible();
    return true;
}

bool CodeView::wheel(const QWheelEvent& event) {
    if (!(event.modifiers() & Qt::ControlModifier)) return false;
    constexpr int NOTCH = 120;
    wheelRest_ += event.angleDelta().y();
    const int steps = wheelRest_ / NOTCH;
    wheelRest_ -= steps * NOTCH;
    if (steps != 0 && asked_) asked_(steps);
    return true;
}

bool CodeView::toolTip(QHelpEvent& event, bool margin) {
    const QTextCursor pointed = edit_->cursorForPosition(margin ? QPoint(0, event.pos().y()) : event.pos());
    QStringList words;
    for (const Mark& mark : findings_) {
        const bool here =
            margin ? mark.at.blockNumber() == pointed.blockNumber()
                   : mark.at.selectionStart() <= pointed.position() && pointed.position() <= mark.at.selectionEnd();
        if (here && !words.contains(mark.words)) words.append(mark.words);
    }
    if (words.isEmpty()) return false;
    QToolTip::showText(event.globalPos(), words.join(u'\n'), edit_);
    return true;
}

bool CodeView::eventFilter(QObject* watched, QEvent* event) {
    const bool margin = watched == margin_;
    switch (event->type()) {
    case QEvent::Paint:
        if (!margin) break;
        paintMargin(static_cast<QPaintEvent*>(event));
        return true;
    case QEvent::MouseButtonPress:
        if (!margin) break;
        selectLineAt(int(static_cast<QMouseEvent*>(event)->position().y()));
        return true;
    case QEvent::KeyPress: {
        if (watched != edit_) break;
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool plain = (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
        if (plain && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) && newLine()) return true;
        if (key->key() == Qt::Key_Space && key->modifiers() == Qt::ControlModifier) {
            if (asked_) asked_(0);
            return true;
        }
        break;
    }
    case QEvent::Wheel:
        if (watched == edit_->viewport() && wheel(*static_cast<QWheelEvent*>(event))) return true;
        break;
    case QEvent::ToolTip:
        if (watched != edit_ && toolTip(*static_cast<QHelpEvent*>(event), margin)) return true;
        break;
    case QEvent::Resize:
    case QEvent::FontChange:
    case QEvent::PaletteChange:
        if (watched != edit_) break;
        QMetaObject::invokeMethod(
            this, [this] { placeMargin(), showMarks(); }, Qt::QueuedConnection);
        break;
    default: break;
    }
    return false;
}

} // namespace orba
