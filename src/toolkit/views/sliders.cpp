#include "toolkit/views/sliders.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>
#include <QStylePainter>
#include <algorithm>
#include <cmath>

namespace orba {

// ------------------------------------------------------------------------------------------------------ slider

namespace {
constexpr int mostSteps = 1000000;
} // namespace

namespace {
constexpr int VEIL = 140; // alpha over what is disabled
}

Slider::Slider(QWidget* parent) : QSlider(parent) {
    connect(this, &QSlider::valueChanged, this, [this](int value) {
        if (program_) return;
        const double range = options_.maximum - options_.minimum;
        number_ = maximum() > 0 ? options_.minimum + range * value / maximum() : options_.minimum;
        if (moved) moved();
    });
}

void Slider::setOptions(const SliderOptions& options) {
    options_ = options;
    if (!(options_.maximum > options_.minimum)) options_.maximum = options_.minimum + 1;
    const double range = options_.maximum - options_.minimum;
    const double step = options_.step > 0 ? std::min(options_.step, range) : range / 100;
    const ProgramDoing::Mark mark(program_);
    setOrientation(options_.vertical ? Qt::Vertical : Qt::Horizontal);
    setInvertedAppearance(options_.reversed);
    setInvertedControls(options_.reversed);
    setRange(0, int(std::clamp(std::round(range / step), 1.0, double(mostSteps))));
    setSingleStep(1);
    setPageStep(std::max(1, maximum() / 10));
    setTickPosition(options_.ticks > 0 ? QSlider::TicksBelow : QSlider::NoTicks);
    if (options_.ticks > 0) setTickInterval(std::max(1, maximum() / options_.ticks));
    setNumber(number_);
}

double Slider::number() const { return number_; }

void Slider::setNumber(double value) {
    if (!std::isfinite(value)) value = options_.minimum;
    number_ = std::clamp(value, options_.minimum, options_.maximum);
    const ProgramDoing::Mark mark(program_);
    QSlider::setValue(
        int(std::round((number_ - options_.minimum) / (options_.maximum - options_.minimum) * maximum())));
}

// A press on the groove brings the handle there at once.
void Slider::mousePressEvent(QMouseEvent* event) {
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const QRect groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    if (event->button() == Qt::LeftButton && !handle.contains(event->pos())) {
        const bool vertical = orientation() == Qt::Vertical;
        const int length = vertical ? handle.height() : handle.width();
        const int place = vertical ? event->pos().y() - groove.top() : event->pos().x() - groove.left();
        const int span = (vertical ? groove.height() : groove.width()) - length;
        QSlider::setValue(
            QStyle::sliderValueFromPosition(minimum(), maximum(), place - length / 2, span, option.upsideDown));
    }
    QSlider::mousePressEvent(event);
}

void Slider::paintEvent(QPaintEvent* event) {
    if (options_.back.isValid()) QPainter(this).fillRect(rect(), options_.back);
    QSlider::paintEvent(event);
    if (isEnabled()) return;
    QColor veil = options_.back.isValid() ? options_.back : palette().color(QPalette::Window); // styles tell too little
    veil.setAlpha(VEIL);
    QPainter(this).fillRect(rect(), veil);
}

// ------------------------------------------------------------------------------------------------------- gauge

namespace {
constexpr int plainHandle = 11; // pixels
constexpr int trackHeight = 6;
constexpr int tickLength = 5;
constexpr int mostTicks = 1000;
} // namespace

Gauge::Gauge(QWidget* parent) : QWidget(parent) { setFocusPolicy(Qt::StrongFocus); }

void Gauge::setOptions(const GaugeOptions& options) {
    options_ = options;
    if (options_.maximum <= options_.minimum)
        options_.maximum =
            options_.minimum == std::numeric_limits<int>::max() ? options_.minimum : options_.minimum + 1;
    setFocusPolicy(options_.editable ? Qt::StrongFocus : Qt::NoFocus);
    setValue(value_);
}

void Gauge::setValue(int value) {
    value_ = std::clamp(value, options_.minimum, options_.maximum);
    update();
}

int Gauge::handleWidth() const {
    if (options_.icon.isNull()) return plainHandle;
    const int ticks = (options_.ticksAbove > 0 ? tickLength + 2 : 0) + (options_.ticksBelow > 0 ? tickLength + 2 : 0);
    return std::clamp(height() - ticks, 8, 32);
}

QRect Gauge::track() const {
    const int above = options_.ticksAbove > 0 ? tickLength + 2 : 0,
              below = options_.ticksBelow > 0 ? tickLength + 2 : 0;
    const int margin = handleWidth() / 2 + 1;
    const int middle = above + (height() - above - below) / 2;
    return {margin, middle - trackHeight / 2, std::max(1, width() - 2 * margin), trackHeight};
}

int Gauge::positionOf(int value) const {
    const QRect area = track();
    const double range = double(options_.maximum) - options_.minimum;
    return area.left() +
           int(std::lround((double(value) - options_.minimum) / std::max(1.0, range) * (area.width() - 1)));
}

void Gauge::drawTicks(QPainter& painter, int count, int from, int to) const {
    count = std::min(count, mostTicks);
    const QRect area = track();
    for (int i = 0; i < count; ++i) {
        const int x = count == 1 ? area.center().x()
                                 : area.left() + int(std::lround(double(i) * (area.width() - 1) / (count - 1)));
        painter.drawLine(x, from, x, to);
    }
}

void Gauge::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    const QRectF area = QRectF(track()).adjusted(0.5, 0.5, -0.5, -0.5);
    const int x = positionOf(value_);
    painter.setPen(QPen(palette().color(group, QPalette::Dark), 1));
    painter.setBrush(palette().color(group, QPalette::Base));
    painter.drawRoundedRect(area, 3, 3);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(group, isEnabled() ? QPalette::Highlight : QPalette::Mid));
    painter.drawRoundedRect(QRectF(area.left(), area.top(), x - area.left(), area.height()), 3, 3);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(palette().color(group, QPalette::WindowText));
    const int half = options_.icon.isNull() ? plainHandle / 2 + 4 : handleWidth() / 2;
    const int middle = track().center().y();
    drawTicks(painter, options_.ticksAbove, std::max(0, middle - half - 2 - tickLength),
              std::max(tickLength, middle - half - 2));
    drawTicks(painter, options_.ticksBelow, std::min(height() - 1 - tickLength, middle + half + 2),
              std::min(height() - 1, middle + half + 2 + tickLength));
    painter.setRenderHint(QPainter::Antialiasing);
    if (!options_.icon.isNull()) {
        const int side = handleWidth();
        options_.icon.paint(&painter, QRect(x - side / 2, middle - side / 2, side, side), Qt::AlignCenter,
                            isEnabled() ? QIcon::Normal : QIcon::Disabled);
    } else {
        painter.setPen(
            QPen(palette().color(group, hasFocus() ? QPalette::Highlight : QPalette::Dark), hasFocus() ? 1.5 : 1));
        painter.setBrush(palette().color(group, QPalette::Button));
        painter.drawRoundedRect(
            QRectF(x - plainHandle / 2.0, middle - plainHandle / 2.0 - 3.5, plainHandle, plainHandle + 8), 2.5, 2.5);
    }
    if (hasFocus() && !options_.icon.isNull()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void Gauge::moveTo(qint64 value) {
    const int next = int(std::clamp<qint64>(value, options_.minimum, options_.maximum));
    if (next == value_ || !options_.editable) return;
    value_ = next;
    update();
    if (moved) moved();
}

void Gauge::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    mouseMoveEvent(event);
}

void Gauge::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton)) return;
    const QRect area = track();
    const double part = double(event->pos().x() - area.left()) / std::max(1, area.width() - 1);
    moveTo(std::llround(options_.minimum + std::clamp(part, 0.0, 1.0) * (double(options_.maximum) - options_.minimum)));
}

void Gauge::keyPressEvent(QKeyEvent* event) {
    const qint64 page = std::max<qint64>(1, (qint64(options_.maximum) - options_.minimum) / 10);
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Down: return moveTo(qint64(value_) - 1);
    case Qt::Key_Right:
    case Qt::Key_Up: return moveTo(qint64(value_) + 1);
    case Qt::Key_PageDown: return moveTo(value_ - page);
    case Qt::Key_PageUp: return moveTo(value_ + page);
    case Qt::Key_Home: return moveTo(options_.minimum);
    case Qt::Key_End: return moveTo(options_.maximum);
    default: QWidget::keyPressEvent(event);
    }
}

void Gauge::wheelEvent(QWheelEvent* event) {
    if (event->angleDelta().y() != 0) moveTo(qint64(value_) + (event->angleDelta().y() > 0 ? 1 : -1));
}

void Gauge::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    if (focused) focused();
}

// ------------------------------------------------------------------------------------------------ progress bar

ProgressBar::ProgressBar(QWidget* parent) : QProgressBar(parent) { setTextVisible(false); }

void ProgressBar::setSmooth(bool smooth) {
    smooth_ = smooth;
    update();
}

// The step type fills its trough with blocks, as many as are full.
void ProgressBar::paintEvent(QPaintEvent* event) {
    if (smooth_) return QProgressBar::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    painter.setPen(palette().color(group, QPalette::Dark));
    painter.setBrush(palette().color(group, QPalette::Base));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    const QRect inside = rect().adjusted(3, 3, -3, -3);
    const int block = std::max(4, inside.height() * 2 / 3), pitch = block + 2;
    const int blocks = std::max(1, (inside.width() + 2) / pitch);
    const double part = maximum() > minimum() ? (double(value()) - minimum()) / (double(maximum()) - minimum()) : 0;
    const int full = std::clamp(int(std::floor(part * blocks + 1e-9)), 0, blocks);
    for (int i = 0; i < full; ++i)
        painter.fillRect(QRect(inside.left() + i * pitch, inside.top(), block, inside.height()),
                         palette().color(group, QPalette::Highlight));
}

// ----------------------------------------------------------------------------------------------------- spinner

namespace {
constexpr int firstDelay = 400, repeatDelay = 60; // milliseconds
} // namespace

Spinner::Spinner(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_Hover); }

void Spinner::setHorizontal(bool horizontal) {
    horizontal_ = horizontal;
    update();
}

QRect Spinner::half(int direction) const {
    if (horizontal_)
        return direction > 0 ? QRect(width() / 2, 0, width() - width() / 2, height())
                             : QRect(0, 0, width() / 2, height());
    return direction > 0 ? QRect(0, 0, width(), height() / 2)
                         : QRect(0, height() / 2, width(), height() - height() / 2);
}

void Spinner::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    for (int direction : {1, -1}) {
        QStyleOptionButton option;
        option.initFrom(this);
        option.rect = half(direction);
        option.state |= pressed_ == direction ? QStyle::State_Sunken : QStyle::State_Raised;
        if (!option.rect.contains(mapFromGlobal(QCursor::pos()))) option.state &= ~QStyle::State_MouseOver;
        painter.drawControl(QStyle::CE_PushButtonBevel, option);
        option.rect = option.rect.marginsRemoved(
            {option.rect.width() / 4, option.rect.height() / 4, option.rect.width() / 4, option.rect.height() / 4});
        const QStyle::PrimitiveElement arrows[2][2] = {{QStyle::PE_IndicatorArrowDown, QStyle::PE_IndicatorArrowUp},
                                                       {QStyle::PE_IndicatorArrowLeft, QStyle::PE_IndicatorArrowRight}};
        painter.drawPrimitive(arrows[horizontal_][direction > 0], option);
    }
}

void Spinner::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    pressed_ = half(1).contains(event->pos()) ? 1 : -1;
    update();
    timer_ = startTimer(firstDelay);
    if (stepped) stepped(pressed_);
}

void Spinner::mouseReleaseEvent(QMouseEvent*) { stop(); }

void Spinner::stop() {
    if (timer_) killTimer(timer_);
    timer_ = pressed_ = 0;
    update();
}

void Spinner::timerEvent(QTimerEvent* event) {
    if (event->timerId() != timer_) return;
    killTimer(timer_);
    timer_ = startTimer(repeatDelay);
    if (stepped) stepped(pressed_);
}

void Spinner::wheelEvent(QWheelEvent* event) {
    if (stepped && event->angleDelta().y() != 0) stepped(event->angleDelta().y() > 0 ? 1 : -1);
}

void Spinner::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    update();
}

} // namespace orba
