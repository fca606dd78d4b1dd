// Tool bars and docking panes: windows that live at a side of a main window or float above it.
#pragma once

#include "toolkit/views/program_doing.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <functional>
#include <optional>

namespace orba {

// Where a bar or pane stands.
enum class Dock : int { bottom = -1, hidden = 0, top = 1, left = 2, right = 3, floating = 4 };

// Any other number than those of Dock is the top.
Dock dockOf(int position);

// What a bar or pane tells its program: the status of its callback.
enum class DockEvent : int { moved = 0, resized = 1, closed = 2, touched = 3 };
using DockReport = std::function<void(DockEvent)>;

// Title bars: 0 none, 1 a title, 2 a title with a close box.
enum class DockTitle : int { none = 0, title = 1, closable = 2 };

// A tool bar. Docked it takes as much of its side as its buttons need, with what does not fit behind an arrow; floating
// it is a small window with a title. Bars of one side stand in rows of their own.
class ToolBar : public QToolBar {
    Q_OBJECT
public:
    ToolBar(QMainWindow* window, Dock dock, int iconSize, const QString& title, DockTitle titleBar);

    // Pixels of the screen; they matter for a floating bar only. A width of 0 or less keeps the one it had.
    void place(Dock dock, QPoint position, int width);
    Dock dock() const;                      // hidden while it is hidden
    Dock homeDock() const { return dock_; } // where it stands when it is shown
    QPoint floatPosition() const;
    int floatWidth() const { return floatWidth_; }
    void setShown(bool shown); // at its last place

    void setTitle(const QString& title);
    void setTitleBar(DockTitle titleBar);
    DockTitle titleBar() const { return titleBar_; }

    DockReport report; // not called for what the program does

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void dockAt(Dock dock);
    void floatNow();
    void decorate();
    void dragged(); // the user has moved the floating bar and let it go
    int menuAndBarsHeight() const;
    Dock sideUnderPointer() const; // floating when the pointer is at no side of the window
    Dock currentDock() const;

    QMainWindow* window_;
    Dock dock_;
    DockTitle titleBar_;
    QPoint floatPosition_;
    int floatWidth_ = 0;
    ProgramDoing program_;
    bool moved_ = false;
    bool userMoved_ = false;          // the user has changed its place since the program last set one
    std::optional<QPoint> pressedAt_; // where it stood when the mouse went down on it
    Dock side_ = Dock::top;           // where it was docked last
    QTimer drag_;                     // runs out when a move by the window's frame has come to rest
};

// A button of a tool bar. Its pressed look is the program's to set; a click only tells.
class BarButton : public QToolButton {
    Q_OBJECT
public:
    using QToolButton::QToolButton;
    void setPressedLook(bool pressed);
    void setFlat(bool flat); // only the icon, no face at all

signals:
    void hovered();

protected:
    void nextCheckState() override {}
    void enterEvent(QEnterEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool flat_ = false;
};

// A gap or line between buttons: 0 a gap, 1 a line, 2 two lines, 5 a chiselled line, 6 one chiselled the other way.
class BarSeparator : public QWidget {
    Q_OBJECT
public:
    BarSeparator(ToolBar* bar, int type);
    void setType(int type);
    int type() const { return type_; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool upright() const;

    ToolBar* bar_;
    int type_;
};

// A docking pane. Its body holds the program's widgets.
class DockPane : public QDockWidget {
    Q_OBJECT
public:
    // size is that of the body when docked, of the whole window when floating.
    DockPane(QMainWindow* window, Dock dock, QWidget* body, QPoint position, QSize size, const QString& title,
             DockTitle titleBar);

    void place(Dock dock, QPoint position, QSize size);
    Dock dock() const;
    Dock homeDock() const { return dock_; }
    QPoint floatPosition() const;
    QSize dockedSize() const { return dockedSize_; }
    QSize floatSize() const { return floatSize_; }
    void setShown(bool shown);

    void setTitleBar(DockTitle titleBar);
    DockTitle titleBar() const { return titleBar_; }

    DockReport report;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void dockAt(Dock dock);
    void settle();
    void tellLater(DockEvent what);

    QMainWindow* window_;
    Dock dock_;
    DockTitle titleBar_;
    QPoint floatPosition_;
    QSize dockedSize_, floatSize_;
    ProgramDoing program_;
    bool userMoved_ = false; // as of a tool bar
    bool told_ = false;      // a report of a drag is on its way
};

} // namespace orba
