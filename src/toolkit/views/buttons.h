// Push buttons, toggles and icons.
#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QIcon>
#include <QPointer>
#include <QPushButton>
#include <QString>
#include <array>

class QStylePainter;

namespace orba {

// The label with the letter of the accelerator marked for Qt, and every other "&" kept a plain one. A bar in the label
// of a button is a line break.
QString markedLabel(const QString& label, int accelerator);

enum class ButtonType { Standard, UserDefined, Default };

struct ButtonLook {
    ButtonType type = ButtonType::Standard;
    QString label;
    int accelerator = 0;  // character code, 0 none
    int justify = 0;      // -1 left, 0 centre, 1 right
    QColor on, off, text; // pressed, released; not valid: the theme's
    QIcon icon;
    QSize iconSize{16, 16};
};

class PushButton : public QPushButton {
public:
    explicit PushButton(QWidget* parent);
    void setLook(const ButtonLook& look);
    const ButtonLook& look() const { return look_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    QSize minimumSizeHint() const override { return {1, 1}; }

private:
    void watchWindow();
    ButtonLook look_;
    QPointer<QWidget> window_; // whose Return keys press the default button
};

enum class ToggleType { BevelSquare, BevelDiamond, SimpleSquare, TickBox, SimpleCircle, CheckBox, Radio3D, CheckBox3D };
inline constexpr int toggleTypeCount = 8;
ToggleType toggleType(int number);

struct ToggleLook {
    ToggleType type = ToggleType::BevelSquare;
    QString label;
    int accelerator = 0;
    QColor on, off, text;
    bool exclusive = false; // of a radio box: pressing it when it is on leaves it on
};

class ToggleButton : public QAbstractButton {
public:
    explicit ToggleButton(QWidget* parent);
    void setLook(const ToggleLook& look);
    const ToggleLook& look() const { return look_; }
    QSize sizeHint() const override;
    QRect indicator() const; // where the mark is drawn

protected:
    void paintEvent(QPaintEvent* event) override;
    void nextCheckState() override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void drawNative(QStylePainter& painter, bool radio);
    ToggleLook look_;
};

enum class IconType { Pictogram = 1, MouseSensitive = 2, Button = 7 };
IconType iconType(int number);

struct IconLook {
    IconType type = IconType::Button;
    QIcon icon;
    QString label;        // below the picture
    bool pressed = false; // stays down
};

class IconButton : public QAbstractButton {
public:
    explicit IconButton(QWidget* parent);
    void setLook(const IconLook& look);
    const IconLook& look() const { return look_; }
    QSize sizeHint() const override { return {32, 32}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    IconLook look_;
};

} // namespace orba
