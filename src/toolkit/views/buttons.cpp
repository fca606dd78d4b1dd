#include "toolkit/views/buttons.h"

#include <QEnterEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QShortcut>
#include <QStyleOption>
#include <QStylePainter>
#include <algorithm>
#include <qdrawutil.h>

namespace orba {
namespace {

constexpr int labelGap = 6;  // pixels between the mark of a toggle and its label
constexpr int buttonPad = 6; // between the edge of a button and a justified label
constexpr int largestMark = 17;

bool returnKey(const QKeyEvent* event) { return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter; }

Qt::Alignment horizontal(int justify) {
    return justify < 0 ? Qt::AlignLeft : justify > 0 ? Qt::AlignRight : Qt::AlignHCenter;
}

// A shape of one of the drawn toggles within `area`.
QPainterPath squarePath(const QRectF& area) {
    QPainterPath path;
    path.addRect(area);
    return path;
}

QPainterPath diamondPath(const QRectF& area) {
    QPainterPath path(QPointF(area.center().x(), area.top()));
    path.lineTo(area.right(), area.center().y());
    path.lineTo(area.center().x(), area.bottom());
    path.lineTo(area.left(), area.center().y());
    path.closeSubpath();
    return path;
}

QPainterPath circlePath(const QRectF& area) {
    QPainterPath path;
    path.addEllipse(area);
    return path;
}

enum class Mark { Fill, Tick, Cross };

struct ToggleRow {
    ToggleType type;
    QPainterPath (*shape)(const QRectF&); // none: the theme draws it
    bool bevelled;
    Mark mark;
};
constexpr std::array<ToggleRow, toggleTypeCount> toggles{{
    {ToggleType::BevelSquare, squarePath, true, Mark::Fill},
    {ToggleType::BevelDiamond, diamondPath, true, Mark::Fill},
    {ToggleType::SimpleSquare, squarePath, false, Mark::Fill},
    {ToggleType::TickBox, squarePath, false, Mark::Tick},
    {ToggleType::SimpleCircle, circlePath, false, Mark::Fill},
    {ToggleType::CheckBox, squarePath, false, Mark::Cross},
    {ToggleType::Radio3D, nullptr, false, Mark::Fill},
    {ToggleType::CheckBox3D, nullptr, false, Mark::Tick},
}};

constexpr bool rowsMatch() {
    for (int i = 0; i < toggleTypeCount; ++i)
        if (int(toggles[i].type) != i) return false;
    return true;
}
static_assert(rowsMatch(), "a row of the table stands at the number of its type");

void drawMark(QPainter& painter, const QRectF& area, Mark mark, const QColor& colour) {
    painter.setPen(QPen(colour, std::max(1.6, area.width() / 7), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    const QRectF r =
        area.adjusted(area.width() * 0.22, area.height() * 0.22, -area.width() * 0.22, -area.height() * 0.22);
    if (mark == Mark::Tick)
        painter.drawPolyline(
            QPolygonF({{r.left(), r.center().y()}, {r.left() + r.width() * 0.38, r.bottom()}, {r.right(), r.top()}}));
    if (mark == Mark::Cross) {
        painter.drawLine(r.topLeft(), r.bottomRight());
        painter.drawLine(r.topRight(), r.bottomLeft());
    }
}

// The edge of a bevelled mark: light falls from the upper left, so a pressed one is dark there.
void drawBevel(QPainter& painter, const QPainterPath& shape, const QRectF& area, bool pressed,
               const QPalette& palette) {
    QLinearGradient edge(area.topLeft(), area.bottomRight());
    const QColor light = palette.color(QPalette::Midlight), dark = palette.color(QPalette::Dark).darker(130);
    edge.setColorAt(0.45, pressed ? dark : light);
    edge.setColorAt(0.55, pressed ? light : dark);
    painter.setPen(QPen(QBrush(edge), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(shape);
}

} // namespace

QString markedLabel(const QString& label, int accelerator) {
    QString text = label;
    int at = -1;
    if (accelerator > ' ' && accelerator < 0xFFFF) {
        at = int(text.indexOf(QChar(accelerator)));
        if (at < 0) at = int(text.indexOf(QChar(accelerator), 0, Qt::CaseInsensitive));
    }
    QString marked;
    for (int i = 0; i < text.size(); ++i) {
        if (i == at) marked += u'&';
        marked += text[i] == u'|' ? QChar(u'\n') : text[i];
        if (text[i] == u'&') marked += u'&';
    }
    return marked;
}

// ------------------------------------------------------------------------------------------------- push buttons

PushButton::PushButton(QWidget* parent) : QPushButton(parent) { setMinimumSize(0, 0); }

void PushButton::setLook(const ButtonLook& look) {
    look_ = look;
    setText(markedLabel(look.label, look.accelerator));
    setIcon(look.icon);
    setIconSize(look.iconSize);
    // setText drops a shortcut that it finds no "&" for; an accelerator that is no letter of the label works all the
    // same.
    if (look.accelerator > ' ' && !look.label.contains(QChar(look.accelerator), Qt::CaseInsensitive))
        setShortcut(QKeySequence(int(Qt::ALT) | QChar(look.accelerator).toUpper().unicode()));
    setAutoDefault(false);
    setDefault(look.type == ButtonType::Default);
    watchWindow();
    update();
}

// Return that nothing else in the window wants presses its default button.
void PushButton::watchWindow() {
    QWidget* wanted = look_.type == ButtonType::Default ? window() : nullptr;
    if (window_ == wanted) return;
    if (window_) window_->removeEventFilter(this);
    window_ = wanted;
    if (window_) window_->installEventFilter(this);
}

void PushButton::showEvent(QShowEvent* event) {
    QPushButton::showEvent(event);
    watchWindow();
}

bool PushButton::eventFilter(QObject* watched, QEvent* event) {
    if (watched == window_ && event->type() == QEvent::KeyPress && isVisible() && isEnabled()) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (returnKey(key) && !key->isAutoRepeat() && (key->modifiers() & ~Qt::KeypadModifier) == 0) {
            click();
            return true;
        }
    }
    return QPushButton::eventFilter(watched, event);
}

void PushButton::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    if (look_.type == ButtonType::Default) option.features |= QStyleOptionButton::DefaultButton;
    // Only a button with colours of its own shows them; a default button without text of its own colour is the theme's.
    const QColor face = isDown() ? (look_.on.isValid() ? look_.on : look_.off) : look_.off;
    if (face.isValid()) option.palette.setColor(QPalette::Button, face);
    if (look_.text.isValid() && isEnabled()) option.palette.setColor(QPalette::ButtonText, look_.text);
    if (look_.justify == 0) {
        painter.drawControl(QStyle::CE_PushButton, option);
        return;
    }
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
    QRect area = rect().adjusted(buttonPad, 0, -buttonPad, 0);
    if (!look_.icon.isNull()) {
        const QRect place(area.left(), area.center().y() - iconSize().height() / 2, iconSize().width(),
                          iconSize().height());
        look_.icon.paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
        area.setLeft(place.right() + labelGap);
    }
    painter.drawItemText(area, horizontal(look_.justify) | Qt::AlignVCenter | Qt::TextShowMnemonic, option.palette,
                         isEnabled(), text(), QPalette::ButtonText);
    if (hasFocus() && option.state & QStyle::State_KeyboardFocusChange) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = rect().adjusted(3, 3, -3, -3);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

void PushButton::keyPressEvent(QKeyEvent* event) {
    if (returnKey(event) && !event->isAutoRepeat()) return click();
    QPushButton::keyPressEvent(event);
}

// ------------------------------------------------------------------------------------------------------ toggles

ToggleType toggleType(int number) {
    return number >= 0 && number < toggleTypeCount ? ToggleType(number) : ToggleType::BevelSquare;
}

ToggleButton::ToggleButton(QWidget* parent) : QAbstractButton(parent) {
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

void ToggleButton::setLook(const ToggleLook& look) {
    look_ = look;
    setText(markedLabel(look.label, look.accelerator));
    if (look.accelerator > ' ' && !look.label.contains(QChar(look.accelerator), Qt::CaseInsensitive))
        setShortcut(QKeySequence(int(Qt::ALT) | QChar(look.accelerator).toUpper().unicode()));
    update();
}

QSize ToggleButton::sizeHint() const {
    const QSize label = fontMetrics().size(Qt::TextShowMnemonic, text());
    return {largestMark + labelGap + label.width() + 2, std::max(largestMark + 2, label.height())};
}

QRect ToggleButton::indicator() const {
    int side = std::clamp(std::min(height() - 4, fontMetrics().height()), 5, largestMark);
    side -= 1 - side % 2; // an odd side has a middle
    return {2, (height() - side) / 2, side, side};
}

void ToggleButton::drawNative(QStylePainter& painter, bool radio) {
    QStyleOptionButton option;
    option.initFrom(this);
    option.rect = QStyle::visualRect(layoutDirection(), rect(), indicator());
    option.state |= isChecked() ? QStyle::State_On : QStyle::State_Off;
    if (isDown()) option.state |= QStyle::State_Sunken;
    painter.drawPrimitive(radio ? QStyle::PE_IndicatorRadioButton : QStyle::PE_IndicatorCheckBox, option);
}

void ToggleButton::paintEvent(QPaintEvent*) {
    const ToggleRow& row = toggles[int(look_.type)];
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    QStylePainter painter(this);
    if (!row.shape) drawNative(painter, look_.type == ToggleType::Radio3D);
    painter.setRenderHint(QPainter::Antialiasing);
    if (row.shape) {
        const QRectF area = QRectF(indicator()).adjusted(0.5, 0.5, -0.5, -0.5);
        const bool own = look_.on.isValid();
        const QColor off =
            look_.off.isValid() ? look_.off : palette().color(group, row.bevelled ? QPalette::Button : QPalette::Base);
        const QColor on = own ? look_.on : palette().color(group, QPalette::Highlight);
        const QPainterPath shape = row.shape(area);
        const bool filled = row.mark == Mark::Fill;
        painter.setPen(Qt::NoPen);
        painter.setBrush(isDown() ? off.darker(112) : off);
        painter.drawPath(shape);
        if (isChecked() && filled) {
            const double inset = row.bevelled ? area.width() * 0.12 : area.width() * 0.2;
            painter.setBrush(on);
            painter.drawPath(row.shape(area.adjusted(inset, inset, -inset, -inset)));
        }
        if (row.bevelled) {
            drawBevel(painter, shape, area, isChecked() != isDown(), palette());
        } else {
            const bool hover = underMouse() && isEnabled();
            painter.setPen(QPen(palette().color(group, hover ? QPalette::Highlight : QPalette::WindowText), 1));
            painter.setBrush(Qt::NoBrush);
            painter.drawPath(shape);
        }
        if (isChecked() && !filled)
            drawMark(painter, area, row.mark,
                     own                   ? look_.on
                     : look_.off.isValid() ? QColor(look_.off.lightnessF() > 0.5F ? Qt::black : Qt::white)
                                           : palette().color(group, QPalette::WindowText));
    }
    QPalette colours = palette();
    if (look_.text.isValid() && isEnabled()) colours.setColor(QPalette::WindowText, look_.text);
    const QRect label = rect().adjusted(indicator().right() + 1 + labelGap, 0, 0, 0);
    painter.drawItemText(label, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, colours, isEnabled(), text(),
                         QPalette::WindowText);
    if (hasFocus() && !text().isEmpty()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        const QSize size = fontMetrics().size(Qt::TextShowMnemonic, text());
        focus.rect = QRect(label.left() - 2, (height() - size.height()) / 2,
                           std::min(size.width() + 4, label.width() + 2), size.height());
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

void ToggleButton::nextCheckState() {
    if (look_.exclusive && isChecked()) return;
    setChecked(!isChecked());
}

void ToggleButton::keyPressEvent(QKeyEvent* event) {
    if (returnKey(event) && !event->isAutoRepeat()) return click();
    QAbstractButton::keyPressEvent(event);
}

void ToggleButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void ToggleButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

// -------------------------------------------------------------------------------------------------------- icons

IconType iconType(int number) {
    return number == 1 ? IconType::Pictogram : number == 2 ? IconType::MouseSensitive : IconType::Button;
}

IconButton::IconButton(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

void IconButton::setLook(const IconLook& look) {
    look_ = look;
    setText(QString(look.label).replace(QLatin1Char('&'), QLatin1String("&&"))); // no "&" of it marks a mnemonic
    update();
}

void IconButton::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    const bool hover = underMouse() && isEnabled();
    const bool down = isDown() || look_.pressed;
    const bool framed = look_.type == IconType::Button || (look_.type == IconType::MouseSensitive && (hover || down));
    if (framed) {
        QStyleOptionButton option;
        option.initFrom(this);
        option.state |= down ? QStyle::State_Sunken : QStyle::State_Raised;
        painter.drawControl(QStyle::CE_PushButtonBevel, option);
    }
    const int margin = framed || look_.type != IconType::Pictogram ? (std::min(width(), height()) > 24 ? 4 : 2) : 0;
    QRect area = rect().adjusted(margin, margin, -margin, -margin);
    if (!look_.label.isEmpty()) {
        const int line = fontMetrics().height();
        const QRect label(area.left(), area.bottom() - line + 1, area.width(), line);
        area.setBottom(label.top() - 2);
        painter.drawItemText(label, Qt::AlignHCenter | Qt::AlignVCenter, palette(), isEnabled(),
                             fontMetrics().elidedText(look_.label, Qt::ElideRight, label.width()),
                             QPalette::WindowText);
    }
    if (down) area.translate(1, 1);
    const QIcon::Mode mode = !isEnabled()                                      ? QIcon::Disabled
                             : hover && look_.type == IconType::MouseSensitive ? QIcon::Active
                                                                               : QIcon::Normal;
    look_.icon.paint(&painter, area, Qt::AlignCenter, mode);
    if (hasFocus() && look_.type == IconType::Button) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = rect().adjusted(2, 2, -2, -2);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

void IconButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void IconButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

void IconButton::keyPressEvent(QKeyEvent* event) {
    if (returnKey(event) && !event->isAutoRepeat()) return click();
    QAbstractButton::keyPressEvent(event);
}

} // namespace orba
