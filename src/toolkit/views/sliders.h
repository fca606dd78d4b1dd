// Widgets that show a number as a place: slider, gauge, progress bar; and the spinner that steps a value entry.
#pragma once

#include "toolkit/views/program_doing.h"

#include <QIcon>
#include <QPointer>
#include <QProgressBar>
#include <QSlider>
#include <QWidget>
#include <functional>

class QPainter;

namespace orba {

// ------------------------------------------------------------------------------------------------------ slider

struct SliderOptions {
    bool vertical = false;
    bool reversed = false; // the minimum at the right or at the top
    double minimum = 0, maximum = 1;
    double step = 0; // of the keys and the smallest move; 0 a hundredth of the range
    int ticks = 0;   // number of intervals marked, 0 none
    QColor back;
};

class Slider : public QSlider {
public:
    explicit Slider(QWidget* parent);
    void setOptions(const SliderOptions& options);
    const SliderOptions& options() const { return options_; }
    double number() const;
    void setNumber(double value); // without moved()
    std::function<void()> moved;  // the user moved it

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    SliderOptions options_;
    double number_ = 0; // as set, until the user moves it: a value between two steps stays what it is
    ProgramDoing program_;
};

// ------------------------------------------------------------------------------------------------------- gauge

struct GaugeOptions {
    int minimum = 0, maximum = 100;
    int ticksAbove = 0, ticksBelow = 0; // numbers of marks, 0 none
    bool editable = true;
    QIcon icon; // moves along the scale in place of the plain handle
};

class Gauge : public QWidget {
public:
    explicit Gauge(QWidget* parent);
    void setOptions(const GaugeOptions& options);
    const GaugeOptions& options() const { return options_; }
    int value() const { return value_; }
    void setValue(int value); // brought into the limits
    std::function<void()> moved;
    std::function<void()> focused;
    int positionOf(int value) const; // x in pixels
    QSize sizeHint() const override { return {160, 40}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    int handleWidth() const;
    QRect track() const;
    void moveTo(qint64 value);
    void drawTicks(QPainter& painter, int count, int from, int to) const;

    GaugeOptions options_;
    int value_ = 0;
};

// ------------------------------------------------------------------------------------------------ progress bar

class ProgressBar : public QProgressBar {
public:
    explicit ProgressBar(QWidget* parent);
    void setSmooth(bool smooth);
    bool smooth() const { return smooth_; }
    QSize minimumSizeHint() const override { return {4, 4}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool smooth_ = false;
};

// ----------------------------------------------------------------------------------------------------- spinner

class Spinner : public QWidget {
public:
    explicit Spinner(QWidget* parent);
    void setHorizontal(bool horizontal);
    std::function<void(int direction)> stepped; // 1 up or right, -1 down or left; again and again while held

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QRect half(int direction) const;
    void stop();

    bool horizontal_ = false;
    int pressed_ = 0;
    int timer_ = 0;
};

} // namespace orba
