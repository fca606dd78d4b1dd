#include "toolkit/views/text/value_entry.h"

#include "toolkit/views/text/program_text.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <algorithm>
#include <cmath>

namespace orba {
namespace {

const QColor creditRed(0xC0, 0x10, 0x10), creditRedOnDark(0xFF, 0x6B, 0x60);

// 1234567.5 as 1,234,567.5
std::string groupThousands(std::string text) {
    std::size_t first = text.find_first_of("0123456789");
    if (first == std::string::npos) return text;
    std::size_t end = text.find_first_not_of("0123456789", first);
    if (end == std::string::npos) end = text.size();
    for (std::size_t at = end; at > first + 3; at -= 3) text.insert(at - 3, 1, ',');
    return text;
}

bool groups(const ValueFormat& format) {
    return format.type != ValueType::Scientific && format.type != ValueType::Binary &&
           format.type != ValueType::Octal && format.type != ValueType::Hexadecimal;
}

} // namespace

ValueEntry::ValueEntry(const ValueOptions& options, const ValueHooks& hooks, QWidget* parent)
    : QFrame(parent), options_(options), hooks_(hooks), line_(new QLineEdit(this)) {
    line_->installEventFilter(this);
    connect(line_, &QLineEdit::textEdited, this, [this] {
        edited_ = true;
        if (hooks_.changed) hooks_.changed();
    });
    showOptions();
    showValue();
}

void ValueEntry::setOptions(const ValueOptions& options) {
    options_ = options;
    showOptions();
    if (!edited_) showValue();
}

void ValueEntry::showOptions() {
    const bool editable = !options_.label && !options_.readOnly;
    line_->setReadOnly(!editable);
    line_->setFocusPolicy(options_.label ? Qt::NoFocus : options_.tabStop ? Qt::StrongFocus : Qt::ClickFocus);
    setFocusProxy(options_.label ? nullptr : line_);
    line_->setContextMenuPolicy(options_.label ? Qt::NoContextMenu : Qt::DefaultContextMenu);
    if (options_.label) line_->setCursor(Qt::ArrowCursor);
    line_->setMaxLength(focused_ && options_.field > 0 ? options_.field : 32767);
    constexpr Qt::Alignment alignments[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    line_->setAlignment(alignments[std::clamp(options_.justify + 1, 0, 2)] | Qt::AlignVCenter);
    TextBorder border = options_.border;
    if (border == TextBorder::Default && options_.label) border = TextBorder::None;
    setFrameStyle(border == TextBorder::ThreeD ? int(QFrame::WinPanel) | int(QFrame::Sunken)
                  : border == TextBorder::TwoD ? int(QFrame::Box) | int(QFrame::Plain)
                                               : int(QFrame::NoFrame));
    if (border == TextBorder::TwoD) setLineWidth(1);
    line_->setFrame(border == TextBorder::Default);
    line_->setGeometry(contentsRect());
    showColours();
}

void ValueEntry::showColours() {
    QPalette colours = QApplication::palette("QLineEdit");
    QColor back = focused_ && options_.active.isValid() ? options_.active : options_.inactive;
    if (options_.label && !back.isValid()) back = Qt::transparent;
    QColor text = options_.text;
    if (!text.isValid() && options_.label) text = colours.color(QPalette::WindowText);
    if (options_.format.sign == ValueSign::Red && !focused_ && !empty_ && value_ < 0) {
        const QColor page = back.isValid() && back.alpha() > 0
                                ? back
                                : colours.color(options_.label ? QPalette::Window : QPalette::Base);
        text = page.lightnessF() < 0.5F ? creditRedOnDark : creditRed;
    }
    for (auto group : {QPalette::Active, QPalette::Inactive}) {
        if (back.isValid()) colours.setColor(group, QPalette::Base, back);
        if (text.isValid()) colours.setColor(group, QPalette::Text, text);
    }
    if (back.isValid() && options_.label) colours.setColor(QPalette::Disabled, QPalette::Base, back);
    line_->setPalette(colours);
}

std::string ValueEntry::restingText() const {
    if (empty_) return {};
    if (options_.rogue && *options_.rogue == value_) return toProgram(options_.rogueText);
    std::string text = formatValue(value_, options_.format);
    if (options_.thousands && groups(options_.format)) text = groupThousands(text);
    return toProgram(options_.prefix) + text + toProgram(options_.postfix);
}

std::string ValueEntry::shown() const { return toProgram(line_->text()); }

void ValueEntry::showValue() {
    edited_ = false;
    if (focused_ && !line_->isReadOnly()) {
        line_->setMaxLength(options_.field > 0 ? std::max<int>(options_.field, 1) : 32767);
        const std::string text = empty_ ? "" : editableValue(value_, options_.format);
        if (options_.field > 0 && int(text.size()) > options_.field) line_->setMaxLength(int(text.size()));
        line_->setText(fromProgram(text));
    } else {
        line_->setMaxLength(32767);
        line_->setText(fromProgram(restingText()));
        line_->setCursorPosition(0);
    }
    showColours();
}

std::optional<double> ValueEntry::entered(std::optional<ValueError>& error) const {
    const QString typed = line_->text().trimmed();
    if (typed.isEmpty()) return value_;
    const std::optional<double> number = parseValue(toProgram(typed), options_.format);
    if (!number)
        error = ValueError::NotANumber;
    else if (options_.minimum && *number < *options_.minimum)
        error = ValueError::TooSmall;
    else if (options_.maximum && *number > *options_.maximum)
        error = ValueError::TooLarge;
    if (error) return {};
    return number;
}

double ValueEntry::value() const {
    if (!edited_) return empty_ ? 0 : value_;
    std::optional<ValueError> error;
    return entered(error).value_or(value_);
}

// Takes over what was typed. A refused text gives way to the last good value, so that none is ever shown that does not
// hold.
bool ValueEntry::enter(bool always) {
    if (line_->isReadOnly()) return false;
    if (!edited_) {
        if (always && hooks_.committed) hooks_.committed();
        return true;
    }
    std::optional<ValueError> error;
    const std::optional<double> number = entered(error);
    if (number) {
        empty_ = empty_ && line_->text().trimmed().isEmpty();
        value_ = *number;
    }
    showValue();
    if (number) {
        if (focused_) line_->selectAll();
        if (hooks_.committed) hooks_.committed();
    } else {
        if (focused_) line_->selectAll();
        if (hooks_.refused)
            hooks_.refused(*error);
        else
            QApplication::beep();
    }
    return number.has_value();
}

void ValueEntry::setValue(double value) {
    value_ = std::isfinite(value) ? value : 0;
    empty_ = false;
    showValue();
}

void ValueEntry::clear() {
    value_ = 0;
    empty_ = true;
    showValue();
}

bool ValueEntry::step(int steps) {
    const double unit = options_.increment > 0 ? options_.increment : 1;
    double next = value() + steps * unit;
    if (options_.minimum) next = std::max(next, *options_.minimum);
    if (options_.maximum) next = std::min(next, *options_.maximum);
    if (next == value_ && !edited_) return false;
    setValue(next);
    if (focused_) line_->selectAll();
    if (hooks_.committed) hooks_.committed();
    return true;
}

bool ValueEntry::characterRefused(const QKeyEvent& event) const {
    if (options_.anyCharacter || line_->isReadOnly() ||
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    const QString text = event.text();
    return !text.isEmpty() && text[0].isPrint() && !valueCharacter(text.toUcs4().value(0), options_.format);
}

bool ValueEntry::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::FocusIn:
        focused_ = true;
        clicked_ = false;
        if (!line_->isReadOnly()) {
            showValue();
            line_->selectAll();
        }
        showColours();
        // Focus that comes with the window is no news until the user turns to the entry.
        awaitsUser_ = static_cast<QFocusEvent*>(event)->reason() == Qt::ActiveWindowFocusReason;
        if (!awaitsUser_ && hooks_.selected) hooks_.selected();
        break;
    case QEvent::FocusOut: {
        auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason) break;
        focused_ = false;
        enter(false);
        if (!edited_) showValue();
        break;
    }
    case QEvent::KeyPress: {
        auto* key = static_cast<QKeyEvent*>(event);
        if (std::exchange(awaitsUser_, false) && hooks_.selected) hooks_.selected();
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            enter(true);
            break; // a default button of the window may want it, too
        }
        if (key->key() == Qt::Key_Escape && edited_) { // what was typed gives way to the value
            showValue();
            line_->selectAll();
            return true;
        }
        if (options_.increment > 0 && !line_->isReadOnly() &&
            (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down)) {
            step(key->key() == Qt::Key_Up ? 1 : -1);
            return true;
        }
        if (characterRefused(*key)) {
            QApplication::beep();
            return true;
        }
        break;
    }
    case QEvent::MouseButtonPress:
        if (std::exchange(awaitsUser_, false) && hooks_.selected) hooks_.selected();
        if (hooks_.pressed) hooks_.pressed();
        if (options_.label && hooks_.selected) hooks_.selected();
        break;
    case QEvent::MouseButtonRelease:
        // The first click takes the whole value, so that a number typed now replaces it; the next ones set the caret.
        if (!std::exchange(clicked_, true) && !edited_ && !line_->isReadOnly() && !line_->hasSelectedText())
            QMetaObject::invokeMethod(line_, &QLineEdit::selectAll, Qt::QueuedConnection);
        break;
    default: break;
    }
    return QFrame::eventFilter(watched, event);
}

void ValueEntry::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    line_->setGeometry(contentsRect());
}

void ValueEntry::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::StyleChange) showColours();
}

} // namespace orba
