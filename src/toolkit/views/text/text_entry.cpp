// The widget around the field: which field is inside, how it looks, and what the user does with it.
#include "toolkit/views/text/text_entry.h"

#include "toolkit/views/text/links.h"
#include "toolkit/views/text/program_text.h"
#include "toolkit/views/text/rtf.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextBlock>

namespace orba {
namespace {

// A length in characters can part a letter of two.
void dropHalfLetter(QLineEdit& line) {
    QString text = line.text();
    if (text.isEmpty() || !text.back().isHighSurrogate()) return;
    text.chop(1);
    line.setText(text);
}

constexpr int plainMargin = 3; // pixels around the text of many lines

// A text edit whose clipboard also speaks RTF, with what an editor of code needs of it.
class RichField : public QTextEdit {
public:
    using QTextEdit::QTextEdit;
    std::function<int()> room;                 // characters that may still be entered, -1 any number
    std::function<void(const QRect&)> painted; // behind the text
    void keepLeft(int pixels) { setViewportMargins(pixels, 0, 0, 0); }

protected:
    void paintEvent(QPaintEvent* event) override {
        QTextEdit::paintEvent(event);
        if (painted) painted(event->rect());
    }
    QMimeData* createMimeDataFromSelection() const override {
        QMimeData* data = QTextEdit::createMimeDataFromSelection();
        if (acceptRichText()) data->setData("text/rtf", writeRtf(textCursor()));
        return data;
    }
    bool canInsertFromMimeData(const QMimeData* source) const override {
        return (acceptRichText() && source->hasFormat("text/rtf")) || QTextEdit::canInsertFromMimeData(source);
    }
    void insertFromMimeData(const QMimeData* source) override {
        if (acceptRichText() && source->hasFormat("text/rtf")) {
            QTextCursor cursor = textCursor();
            insertRtf(cursor, source->data("text/rtf"), cursor.charFormat());
            ensureCursorVisible();
        } else if (const int left = room ? room() : -1; left >= 0 && source->text().size() > left) {
            insertPlainText(source->text().left(left));
            QApplication::beep();
        } else {
            QTextEdit::insertFromMimeData(source);
        }
    }
};

} // namespace

TextEntry::TextEntry(const TextOptions& options, const TextHooks& hooks, int singleHeight, int height, QWidget* parent)
    : QFrame(parent), options_(options), hooks_(hooks), singleHeight_(singleHeight) {
    resize(100, height);
    chooseField();
}

QWidget* TextEntry::field() const { return line_ ? static_cast<QWidget*>(line_) : edit_; }

bool TextEntry::wantsSingleLine() const {
    if (options_.kind == TextKind::Security) return true;
    return options_.kind == TextKind::Standard && height() <= singleHeight_;
}

// Brings the right field in; text, selection and focus come along.
void TextEntry::chooseField() {
    if (choosing_) return;
    choosing_ = true;
    const ProgramDoing::Mark mark(program_);
    const bool single = wantsSingleLine();
    if (!field() || single != singleLine()) {
        const bool hadFocus = field() && field()->hasFocus();
        const QFont previousFont = field() ? field()->font() : font();
        const bool fontSet = field() && field()->testAttribute(Qt::WA_SetFont);
        const std::string content = field() ? text(loadedRich_) : std::string();
        int start = 0, end = 0;
        if (field()) selection(start, end);
        dropField();
        single ? makeLine() : makeEdit();
        if (fontSet) field()->setFont(previousFont);
        setFocusProxy(options_.label ? nullptr : field());
        showOptions();
        setText(content, loadedRich_);
        if (start > 0) select(start, end);
        placeField();
        field()->setVisible(true);
        if (hadFocus) field()->setFocus();
    } else {
        showOptions();
        placeField();
    }
    choosing_ = false;
}

void TextEntry::setOptions(const TextOptions& options) {
    const bool kindChanged = options.kind != options_.kind || options.label != options_.label;
    if (kindChanged) {
        const std::string content = text(rich() && options.kind == TextKind::Rich);
        options_ = options;
        dropField();
        chooseField();
        setText(content, rich());
    } else {
        options_ = options;
        chooseField();
    }
}

// What a field sends while it goes is none of ours.
void TextEntry::dropField() {
    QWidget* old = field();
    if (!old) return;
    old->removeEventFilter(this);
    if (edit_) {
        edit_->viewport()->removeEventFilter(this);
        edit_->document()->disconnect(this);
    }
    old->disconnect(this);
    line_ = nullptr;
    edit_ = nullptr;
    delete old;
}

void TextEntry::makeLine() {
    line_ = new QLineEdit(this);
    line_->installEventFilter(this);
    connect(line_, &QLineEdit::textChanged, this, [this] { userChanged(); });
    connect(line_, &QLineEdit::cursorPositionChanged, this, [this] { userMoved(); });
    connect(line_, &QLineEdit::selectionChanged, this, [this] { userMoved(); });
    connect(line_, &QLineEdit::returnPressed, this, [this] {
        changedSinceFocus_ = false;
        if (hooks_.committed) hooks_.committed();
    });
    forgetIndex();
}

void TextEntry::makeEdit() {
    auto* field = new RichField(this);
    field->room = [this] { return room(); };
    edit_ = field;
    edit_->installEventFilter(this);
    edit_->viewport()->installEventFilter(this);
    edit_->setAcceptRichText(rich());
    edit_->setTabChangesFocus(!rich());
    followDocument();
    connect(edit_, &QTextEdit::textChanged, this, [this] { userChanged(); });
    connect(edit_, &QTextEdit::cursorPositionChanged, this, [this] { userMoved(); });
    connect(edit_, &QTextEdit::selectionChanged, this, [this] { userMoved(); });
    forgetIndex();
}

void TextEntry::makeCodeView() {
    if (!edit_ || code_) return;
    auto* field = static_cast<RichField*>(edit_.data());
    edit_->setAcceptRichText(false); // what is pasted takes the code's font
    code_ = new CodeView(edit_, [field](int pixels) { field->keepLeft(pixels); });
    field->painted = [this](const QRect& area) {
        if (code_) code_->paintOver(area);
    };
}

// ------------------------------------------------------------------------------------------------- appearance

void TextEntry::showOptions() {
    const bool editable = !options_.label && !options_.readOnly;
    field()->setFocusPolicy(options_.label ? Qt::NoFocus : options_.tabStop ? Qt::StrongFocus : Qt::ClickFocus);
    if (line_) {
        line_->setEchoMode(options_.kind == TextKind::Security ? QLineEdit::Password : QLineEdit::Normal);
        line_->setReadOnly(!editable);
        const int limit = options_.limit > 0 && !options_.label ? options_.limit : std::numeric_limits<int>::max();
        if (line_->maxLength() != limit) {
            line_->setMaxLength(limit); // sets the text anew, and then its end is what shows
            if (!line_->hasFocus()) line_->setCursorPosition(0);
        }
        dropHalfLetter(*line_);
        line_->setTextMargins(options_.margin, 0, options_.margin, 0);
        if (options_.label) line_->setCursor(Qt::ArrowCursor);
        line_->setContextMenuPolicy(options_.label ? Qt::NoContextMenu : Qt::DefaultContextMenu);
    } else {
        edit_->setReadOnly(!editable);
        if (options_.label) {
            edit_->setTextInteractionFlags(Qt::NoTextInteraction);
            edit_->viewport()->setCursor(Qt::ArrowCursor);
            edit_->setContextMenuPolicy(Qt::NoContextMenu);
        } else if (options_.readOnly) {
            edit_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        }
        const bool vertical = options_.scroll == ScrollMode::Both || options_.scroll == ScrollMode::Vertical;
        const bool horizontal = options_.scroll == ScrollMode::Both || options_.scroll == ScrollMode::Horizontal;
        edit_->setVerticalScrollBarPolicy(vertical ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
        edit_->setHorizontalScrollBarPolicy(horizontal ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
        edit_->setLineWrapMode(horizontal || !options_.wordWrap ? QTextEdit::NoWrap : QTextEdit::WidgetWidth);
        edit_->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        if (options_.autoUrl) coloured_ = index().text();
        showLinks(*edit_->document(), options_.autoUrl && !highlighter_);
    }
    showBorder();
    showColours();
    showAlignment();
}

void TextEntry::showBorder() {
    TextBorder border = options_.border;
    if (border == TextBorder::Default && options_.label) border = TextBorder::None;
    const bool fieldDraws = border == TextBorder::Default;
    struct {
        TextBorder border;
        int style;
        int width;
    } const frames[] = {{TextBorder::ThreeD, QFrame::WinPanel | QFrame::Sunken, 2},
                        {TextBorder::TwoD, QFrame::Box | QFrame::Plain, 1}};
    setFrameStyle(QFrame::NoFrame);
    for (const auto& frame : frames)
        if (frame.border == border) {
            setFrameStyle(frame.style);
            setLineWidth(frame.width);
        }
    if (line_)
        line_->setFrame(fieldDraws);
    else
        edit_->setFrameStyle(fieldDraws ? int(QFrame::StyledPanel) | int(QFrame::Sunken) : int(QFrame::NoFrame));
}

void TextEntry::showColours() {
    QPalette colours = QApplication::palette(line_ ? "QLineEdit" : "QTextEdit");
    QColor back = focused_ && options_.active.isValid() ? options_.active : options_.inactive;
    const bool clear = options_.label && !back.isValid();
    if (clear) back = Qt::transparent;
    for (auto group : {QPalette::Active, QPalette::Inactive}) {
        if (back.isValid()) colours.setColor(group, QPalette::Base, back);
        if (options_.text.isValid())
            colours.setColor(group, QPalette::Text, options_.text);
        else if (options_.label)
            colours.setColor(group, QPalette::Text, colours.color(group, QPalette::WindowText));
    }
    if (back.isValid() && options_.label) colours.setColor(QPalette::Disabled, QPalette::Base, back);
    field()->setPalette(colours);
    if (edit_) edit_->viewport()->setAutoFillBackground(!clear);
}

void TextEntry::showAlignment() {
    constexpr Qt::Alignment alignments[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight, Qt::AlignJustify};
    const Qt::Alignment alignment = alignments[std::clamp(options_.justify + 1, 0, 3)];
    if (line_) {
        line_->setAlignment(alignment | Qt::AlignVCenter);
    } else if (!rich()) {
        // Of the document, not of its paragraphs, so that it is no edit that could be undone.
        QTextOption option = edit_->document()->defaultTextOption();
        option.setAlignment(alignment);
        edit_->document()->setDefaultTextOption(option);
    }
}

void TextEntry::placeField() {
    if (!field()) return;
    field()->setGeometry(contentsRect());
    if (!edit_) return;
    // A low rich entry centres its one line; the usual margin would push it out of sight.
    const bool low = contentsRect().height() <= singleHeight_;
    const int space = contentsRect().height() - 2 * edit_->frameWidth() - edit_->fontMetrics().height();
    edit_->document()->setDocumentMargin(low ? std::clamp(space / 2, 0, plainMargin) : plainMargin + options_.margin);
}

void TextEntry::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    if (field() && wantsSingleLine() != singleLine()) chooseField();
    placeField();
}

void TextEntry::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (!field() || choosing_) return;
    if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::StyleChange) showColours();
    if (event->type() == QEvent::FontChange) placeField();
}

// ------------------------------------------------------------------------------------------- what the user does

void TextEntry::userChanged() {
    forgetIndex();
    // Colours of words are signalled like changes; then only the text itself tells.
    if (edit_ && (highlighter_ || options_.autoUrl) && std::exchange(coloured_, index().text()) == index().text())
        return;
    if (!code_) markLine(0);
    if (program_) return;
    changedSinceFocus_ = true;
    if (hooks_.changed) hooks_.changed();
}

void TextEntry::userMoved() {
    if (program_ || !focused_ || frozen_) return;
    // Raw cursor positions: this runs for each key, and an index of a large text is not free.
    const int start = line_ ? line_->cursorPosition() : edit_->textCursor().position();
    const int end = line_ ? int(line_->selectedText().size()) : edit_->textCursor().anchor();
    if (start == reportedStart_ && end == reportedEnd_) return;
    reportedStart_ = start;
    reportedEnd_ = end;
    if (hooks_.selected) hooks_.selected();
}

void TextEntry::focusCame(Qt::FocusReason reason) {
    focused_ = true;
    changedSinceFocus_ = false;
    reportedStart_ = reportedEnd_ = -1;
    showColours();
    awaitsUser_ = reason == Qt::ActiveWindowFocusReason;
    if (awaitsUser_) return;
    if (selectOnFocus && line_) line_->selectAll();
    if (hooks_.selected) hooks_.selected();
}

// A window that becomes active gives the focus to what had it last, even when the user is about to click on something
// else. The entry counts as selected only once the user turns to it.
void TextEntry::userCame() {
    if (std::exchange(awaitsUser_, false) && focused_ && hooks_.selected) hooks_.selected();
}

void TextEntry::focusLeft() {
    focused_ = false;
    showColours();
    if (!std::exchange(changedSinceFocus_, false)) return;
    if (hooks_.committed) hooks_.committed();
}

// Characters that a user may still enter in place of the selection, -1 for any number.
int TextEntry::room() const {
    if (options_.limit <= 0 || options_.label) return -1;
    int start = 0, end = 0;
    selection(start, end);
    return std::max(0, options_.limit - index().length() + end - start);
}

// A text edit has no limit of its own; keys beyond it are refused here.
bool TextEntry::refusesKey(const QKeyEvent& key) const {
    if (!edit_ || edit_->isReadOnly() || key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    const bool newLine = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    const bool enters = newLine || (!key.text().isEmpty() && key.text()[0].isPrint());
    const int left = room();
    return enters && left >= 0 && left < (newLine && !rich() ? 2 : 1);
}

QString TextEntry::linkAt(const QPoint& position) const {
    if (!edit_) return {};
    QString link = edit_->anchorAt(position);
    if (!link.isEmpty() || !options_.autoUrl) return link;
    QTextCursor cursor = edit_->cursorForPosition(position);
    return linkInText(cursor.block().text(), cursor.positionInBlock());
}

bool TextEntry::mouseReleased(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || dragged_ || !hooks_.linked || !edit_) return false;
    const QString link = linkAt(event->position().toPoint());
    if (link.isEmpty()) return false;
    hooks_.linked(link);
    return false;
}

bool TextEntry::eventFilter(QObject* watched, QEvent* event) {
    QWidget* const pointed = edit_ ? edit_->viewport() : static_cast<QWidget*>(line_);
    switch (event->type()) {
    case QEvent::FocusIn:
        if (watched == field()) focusCame(static_cast<QFocusEvent*>(event)->reason());
        break;
    case QEvent::FocusOut:
        if (watched == field()) {
            auto reason = static_cast<QFocusEvent*>(event)->reason();
            if (reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason) focusLeft();
        }
        break;
    case QEvent::KeyPress:
        if (watched == field()) userCame();
        if (watched != field() || !refusesKey(*static_cast<QKeyEvent*>(event))) break;
        QApplication::beep();
        return true;
    case QEvent::MouseButtonPress:
        if (watched != pointed) break;
        userCame();
        dragged_ = false;
        if (hooks_.pressed) hooks_.pressed();
        if (options_.label && hooks_.selected) hooks_.selected();
        break;
    case QEvent::MouseMove: {
        if (watched != pointed) break;
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->buttons() & Qt::LeftButton)
            dragged_ = edit_ && edit_->textCursor().hasSelection();
        else if (edit_ && (hooks_.linked || options_.autoUrl))
            edit_->viewport()->setCursor(!linkAt(mouse->position().toPoint()).isEmpty() ? Qt::PointingHandCursor
                                         : options_.label                               ? Qt::ArrowCursor
                                                                                        : Qt::IBeamCursor);
        break;
    }
    case QEvent::MouseButtonRelease:
        if (watched == pointed) mouseReleased(static_cast<QMouseEvent*>(event));
        break;
    default: break;
    }
    return QFrame::eventFilter(watched, event);
}

// ------------------------------------------------------------------------------------ content set by the program

void TextEntry::setText(std::string_view text, bool asRtf) {
    const ProgramDoing::Mark mark(program_);
    forgetIndex();
    changedSinceFocus_ = false;
    const QByteArray bytes = QByteArray::fromRawData(text.data(), qsizetype(text.size()));
    loadedRich_ = asRtf && rich() && isRtf(bytes);
    if (line_) {
        QString content = fromProgram(text);
        content.replace(QLatin1String("\r\n"), QLatin1String(" "));
        line_->setText(content);
        dropHalfLetter(*line_);
        if (!line_->hasFocus()) line_->setCursorPosition(0);
        return;
    }
    if (loadedRich_) {
        edit_->document()->clear();
        QTextCursor cursor(edit_->document());
        insertRtf(cursor, bytes, QTextCharFormat());
        edit_->document()->clearUndoRedoStacks();
        cursor.setPosition(0);
        edit_->setTextCursor(cursor);
    } else {
        edit_->setPlainText(fromProgram(unifyLineEnds(text)));
    }
}

std::string TextEntry::text(bool asRtf) const {
    if (line_) return toProgram(line_->text());
    if (asRtf && rich()) return writeRtf(*edit_->document()).toStdString();
    std::string bytes = toProgram(index().text());
    if (!rich()) return bytes;
    std::string out;
    out.reserve(bytes.size() + std::size_t(index().lineCount()));
    for (char c : bytes) {
        if (c == '\n') out += '\r';
        out += c;
    }
    return out;
}

int TextEntry::textLength() const { return int(text(loadedRich_).size()); }

void TextEntry::replaceSelection(std::string_view text, bool asRtf) {
    const ProgramDoing::Mark mark(program_);
    forgetIndex();
    if (line_) {
        line_->insert(fromProgram(text));
        return;
    }
    QTextCursor cursor = edit_->textCursor();
    const QByteArray bytes = QByteArray::fromRawData(text.data(), qsizetype(text.size()));
    if (asRtf && rich() && isRtf(bytes))
        insertRtf(cursor, bytes, cursor.charFormat());
    else
        cursor.insertText(fromProgram(unifyLineEnds(text)));
    edit_->setTextCursor(cursor);
}

const TextIndex& TextEntry::index() const {
    if (!indexed_) {
        if (line_)
            index_.build(line_->text());
        else
            index_.build(*edit_->document(), rich() ? QStringLiteral("\n") : QStringLiteral("\r\n"));
        indexed_ = true;
    }
    return index_;
}

void TextEntry::selection(int& start, int& end) const {
    if (line_) {
        const bool any = line_->hasSelectedText();
        start = index().fromCursor(any ? line_->selectionStart() : line_->cursorPosition());
        end = any ? index().fromCursor(line_->selectionEnd()) : start;
        return;
    }
    const QTextCursor cursor = edit_->textCursor();
    start = index().fromCursor(cursor.selectionStart());
    end = index().fromCursor(cursor.selectionEnd());
}

int TextEntry::caret() const {
    return index().fromCursor(line_ ? line_->cursorPosition() : edit_->textCursor().position());
}

std::string TextEntry::selectedText() const {
    int start = 0, end = 0;
    selection(start, end);
    return toProgram(index().part(start, end));
}

void TextEntry::select(int start, int end) {
    const ProgramDoing::Mark mark(program_);
    const bool nothing = start <= 0 && end == 0;
    if (nothing) {
        start = end = caret();
    } else {
        start = std::max(start, 1);
        if (end <= 0) end = index().length() + 1;
        if (end < start) std::swap(start, end);
    }
    const int from = index().toCursor(start), to = index().toCursor(end);
    if (line_) {
        if (from == to)
            line_->deselect(), line_->setCursorPosition(from);
        else
            line_->setSelection(from, to - from);
        return;
    }
    QTextCursor cursor = edit_->textCursor();
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    edit_->setTextCursor(cursor);
    if (!nothing) scrollToCaret();
}

void TextEntry::scrollToCaret() {
    if (edit_ && !options_.label) edit_->ensureCursorVisible();
}

std::string TextEntry::wordAt(int position, int& start) const {
    const QString& text = index().text();
    auto part = [&](int at) { return text[at].isLetterOrNumber() || text[at] == u'_'; };
    int from = std::clamp(position - 1, 0, int(text.size())), to = from;
    while (from > 0 && part(from - 1)) --from;
    while (to < int(text.size()) && part(to)) ++to;
    start = from < to ? from + 1 : 0;
    return toProgram(QStringView(text).mid(from, to - from));
}

// ------------------------------------------------------------------------------------------- undo and clipboard

bool TextEntry::canUndo() const { return line_ ? line_->isUndoAvailable() : edit_->document()->isUndoAvailable(); }
bool TextEntry::canRedo() const { return line_ ? line_->isRedoAvailable() : edit_->document()->isRedoAvailable(); }
void TextEntry::undo() { line_ ? line_->undo() : edit_->undo(); }
void TextEntry::redo() { line_ ? line_->redo() : edit_->redo(); }

void TextEntry::resetUndo() {
    const ProgramDoing::Mark mark(program_);
    if (edit_) return edit_->document()->clearUndoRedoStacks();
    const int start = line_->selectionStart(), length = line_->selectionLength(), caret = line_->cursorPosition();
    line_->setText(line_->text()); // the only way to make a line forget
    line_->setCursorPosition(caret);
    if (start >= 0) line_->setSelection(start, length);
}

void TextEntry::cut() { line_ ? line_->cut() : edit_->cut(); }
void TextEntry::copy() { line_ ? line_->copy() : edit_->copy(); }
void TextEntry::paste() { line_ ? line_->paste() : edit_->paste(); }

void TextEntry::deleteSelection() {
    if (options_.readOnly || options_.label) return;
    // With nothing selected the character behind the caret goes, as the key would do.
    if (line_) return line_->del();
    QTextCursor cursor = edit_->textCursor();
    cursor.deleteChar();
}

} // namespace orba
