// Bars and panes on Qt's main window. The user's moves are told apart from the program's and from those that follow
// from a change of the window: only a move by the user is reported, once, when the button of the mouse is let go.
#include "toolkit/views/docking.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QGuiApplication>
#include <QLayout>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <algorithm>
#include <array>

namespace orba {
namespace {

struct Side {
    Dock dock;
    Qt::ToolBarArea bar;
    Qt::DockWidgetArea pane;
};
constexpr Side sides[] = {
    {Dock::bottom, Qt::BottomToolBarArea, Qt::BottomDockWidgetArea},
    {Dock::top, Qt::TopToolBarArea, Qt::TopDockWidgetArea},
    {Dock::left, Qt::LeftToolBarArea, Qt::LeftDockWidgetArea},
    {Dock::right, Qt::RightToolBarArea, Qt::RightDockWidgetArea},
};

const Side& sideOf(Dock dock) {
    for (const Side& side : sides)
        if (side.dock == dock) return side;
    return sides[1];
}

constexpr int restMilliseconds = 250; // a bar that has not moved for so long has been let go
constexpr int sideWidth = 24;         // pixels at a side of the window that take a bar

bool isSide(Dock dock) { return dock != Dock::hidden && dock != Dock::floating; }
bool isColumn(Dock dock) { return dock == Dock::left || dock == Dock::right; }

// A place that is off every screen is pulled back, so that a floating window can always be reached.
QPoint onScreen(QPoint position, QSize size) {
    QScreen* screen = QGuiApplication::screenAt(position);
    if (!screen) screen = QGuiApplication::primaryScreen();
    const QRect area = screen->availableGeometry();
    const int right = qMax(area.left(), area.right() - qMax(size.width(), 40) + 1);
    const int bottom = qMax(area.top(), area.bottom() - qMax(size.height(), 40) + 1);
    return {qBound(area.left(), position.x(), right), qBound(area.top(), position.y(), bottom)};
}

} // namespace

Dock dockOf(int position) {
    const auto dock = static_cast<Dock>(position);
    return isSide(dock) && &sideOf(dock) == &sides[1] && dock != Dock::top ? Dock::top : dock;
}

// ---- Tool bars

ToolBar::ToolBar(QMainWindow* window, Dock dock, int iconSize, const QString& title, DockTitle titleBar)
    : QToolBar(title, window), window_(window), dock_(isSide(dock) ? dock : Dock::top), titleBar_(titleBar) {
    setIconSize(QSize(iconSize, iconSize));
    setFloatable(true);
    setMovable(true);
    setContextMenuPolicy(Qt::PreventContextMenu);
    drag_.setSingleShot(true);
    drag_.setInterval(restMilliseconds);
    connect(&drag_, &QTimer::timeout, this, [this] { dragged(); });
    dockAt(dock_);
    connect(this, &QToolBar::topLevelChanged, this, [this](bool floating) {
        if (program_) return;
        moved_ = true;
        if (floating) dock_ = Dock::floating;
    });
    if (dock == Dock::floating) place(dock, QCursor::pos(), 0);
    if (dock == Dock::hidden) setShown(false);
}

void ToolBar::dockAt(Dock dock) {
    side_ = dock;
    const Qt::ToolBarArea area = sideOf(dock).bar;
    bool shares = false;
    for (const QToolBar* other : window_->findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly))
        shares = shares || (other != this && !other->isWindow() && window_->toolBarArea(other) == area);
    if (shares) window_->addToolBarBreak(area);
    window_->addToolBar(area, this);
}

void ToolBar::place(Dock dock, QPoint position, int width) {
    const ProgramDoing::Mark mark(program_);
    program_.settle();
    if (width > 0) floatWidth_ = width;
    if (dock == Dock::floating) {
        floatPosition_ = position;
        dock_ = dock;
        floatNow();
    } else if (dock == Dock::hidden) {
        hide();
    } else {
        if (isWindow()) setParent(window_, Qt::Widget);
        if (dock != currentDock() || dock_ != dock || userMoved_) dockAt(dock);
        userMoved_ = false;
        dock_ = dock;
        setMaximumWidth(QWIDGETSIZE_MAX);
        show();
    }
}

void ToolBar::floatNow() {
    setOrientation(Qt::Horizontal);
    decorate();
    adjustSize();
    const int wanted = sizeHint().width();
    resize(floatWidth_ > 0 ? qMin(floatWidth_, wanted) : wanted, sizeHint().height());
    move(onScreen(floatPosition_, size()));
    show();
}

// A floating bar gets the frame of a small tool window, whose close box is there only when asked for.
void ToolBar::decorate() {
    Qt::WindowFlags flags = Qt::Tool;
    if (titleBar_ == DockTitle::none)
        flags |= Qt::FramelessWindowHint;
    else
        flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    if (titleBar_ == DockTitle::closable) flags |= Qt::WindowCloseButtonHint | Qt::WindowSystemMenuHint;
    setWindowFlags(flags);
}

Dock ToolBar::currentDock() const {
    if (isWindow()) return Dock::floating;
    const Qt::ToolBarArea area = window_->toolBarArea(this);
    for (const Side& side : sides)
        if (side.bar == area) return side.dock;
    return Dock::top;
}

Dock ToolBar::dock() const { return isHidden() ? Dock::hidden : currentDock(); }

QPoint ToolBar::floatPosition() const { return isWindow() ? frameGeometry().topLeft() : floatPosition_; }

void ToolBar::setShown(bool shown) {
    const ProgramDoing::Mark mark(program_);
    setVisible(shown);
    if (shown) raise();
}

void ToolBar::setTitle(const QString& title) { setWindowTitle(title); }

void ToolBar::setTitleBar(DockTitle titleBar) {
    titleBar_ = titleBar;
    if (!isWindow()) return;
    const bool shown = isVisible();
    const ProgramDoing::Mark mark(program_);
    decorate();
    setVisible(shown);
}

bool ToolBar::event(QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) pressedAt_ = pos();
    const bool handled = QToolBar::event(event);
    if (event->type() != QEvent::MouseButtonRelease || program_) return handled;
    const Dock now = currentDock();
    const bool changed = moved_ || now != dock_ || (pressedAt_ && pos() != *pressedAt_);
    pressedAt_.reset();
    userMoved_ = userMoved_ || changed;
    moved_ = false;
    dock_ = now;
    if (now == Dock::floating && changed) { // torn off: it gets its frame once the drag is over
        const QPoint position = frameGeometry().topLeft();
        QTimer::singleShot(0, this, [this, position] {
            const ProgramDoing::Mark mark(program_);
            floatPosition_ = position;
            floatNow();
        });
    }
    if (report) report(changed ? DockEvent::moved : DockEvent::touched);
    return handled;
}

void ToolBar::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (report) report(DockEvent::closed);
}

void ToolBar::moveEvent(QMoveEvent* event) {
    QToolBar::moveEvent(event);
    if (!isWindow() || program_) return;
    floatPosition_ = frameGeometry().topLeft();
    if (QGuiApplication::mouseButtons() != Qt::NoButton)
        moved_ = true;
    else if (isVisible() && program_.settled())
        drag_.start();
}

// Moved by its frame, a bar is in the hands of the window manager: where it comes to rest with the pointer at a side of
// the window, it docks.
void ToolBar::dragged() {
    if (!isWindow() || isHidden()) return;
    const Dock side = sideUnderPointer();
    if (side != Dock::floating) place(side, floatPosition_, 0);
    if (report) report(DockEvent::moved);
}

Dock ToolBar::sideUnderPointer() const {
    const QPoint pointer = window_->mapFromGlobal(QCursor::pos());
    const QWidget* middle = window_->centralWidget();
    const QRect inner = middle ? QRect(middle->mapTo(window_, QPoint()), middle->size()) : window_->rect();
    if (!window_->rect().adjusted(-sideWidth, -sideWidth, sideWidth, sideWidth).contains(pointer))
        return Dock::floating;
    const int bars = menuAndBarsHeight();
    if (pointer.y() < bars + sideWidth) return Dock::top;
    if (pointer.y() > window_->height() - sideWidth && pointer.y() > inner.bottom()) return Dock::bottom;
    if (pointer.x() < sideWidth) return Dock::left;
    return pointer.x() > window_->width() - sideWidth ? Dock::right : Dock::floating;
}

// Pixels from the top of the window to the end of its upper bars.
int ToolBar::menuAndBarsHeight() const {
    int height = window_->menuWidget() ? window_->menuWidget()->geometry().bottom() : 0;
    for (const QToolBar* bar : window_->findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly))
        if (bar != this && !bar->isWindow() && !bar->isHidden() && window_->toolBarArea(bar) == Qt::TopToolBarArea)
            height = qMax(height, bar->geometry().bottom());
    return height;
}

// A double click beside the buttons lets a bar loose or brings it back to its side.
void ToolBar::mouseDoubleClickEvent(QMouseEvent* event) {
    QToolBar::mouseDoubleClickEvent(event);
    if (event->button() != Qt::LeftButton) return;
    if (isWindow())
        place(side_, floatPosition_, 0);
    else
        place(Dock::floating, mapToGlobal(QPoint(30, 30)), 0);
    if (report) report(DockEvent::moved);
}

// ---- Buttons and separators

void BarButton::setPressedLook(bool pressed) {
    setCheckable(pressed);
    setChecked(pressed);
    update(); // a button that can no longer be pressed does not draw itself anew
}

void BarButton::setFlat(bool flat) {
    flat_ = flat;
    update();
}

void BarButton::enterEvent(QEnterEvent* event) {
    QToolButton::enterEvent(event);
    emit hovered();
}

void BarButton::paintEvent(QPaintEvent* event) {
    if (!flat_) {
        QToolButton::paintEvent(event);
        return;
    }
    QPainter painter(this);
    const QRect place(rect().center() - QPoint(iconSize().width() / 2 - 1, iconSize().height() / 2 - 1), iconSize());
    icon().paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

BarSeparator::BarSeparator(ToolBar* bar, int type) : QWidget(bar), bar_(bar), type_(type) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(bar, &QToolBar::orientationChanged, this, [this] { updateGeometry(); });
}

void BarSeparator::setType(int type) {
    type_ = type;
    update();
}

bool BarSeparator::upright() const { return bar_->orientation() == Qt::Horizontal; }

QSize BarSeparator::sizeHint() const {
    const int along = 9, across = bar_->iconSize().height() + 6;
    return upright() ? QSize(along, across) : QSize(across, along);
}

void BarSeparator::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor dark = palette().color(QPalette::Window).darker(150);
    const QColor light = palette().color(QPalette::Light);
    const auto line = [&](int offset, const QColor& colour) {
        painter.setPen(colour);
        if (upright())
            painter.drawLine(offset, 3, offset, height() - 4);
        else
            painter.drawLine(3, offset, width() - 4, offset);
    };
    const int middle = (upright() ? width() : height()) / 2;
    switch (type_) {
    case 1: line(middle, dark); break;
    case 2:
        line(middle - 1, dark);
        line(middle + 1, dark);
        break;
    case 5:
        line(middle, dark);
        line(middle + 1, light);
        break;
    case 6:
        line(middle, light);
        line(middle + 1, dark);
        break;
    default: break; // a gap
    }
}

// ---- Panes

namespace {

// What a pane holds around its body: it wants the size that the program asked for.
class PaneFrame : public QWidget {
public:
    explicit PaneFrame(QWidget* body) : body_(body) {
        body->setParent(this);
        body->show();
    }
    QSize sizeHint() const override { return wanted; }
    QSize wanted;

protected:
    void resizeEvent(QResizeEvent*) override { body_->setGeometry(rect()); }

private:
    QWidget* body_;
};

} // namespace

DockPane::DockPane(QMainWindow* window, Dock dock, QWidget* body, QPoint position, QSize size, const QString& title,
                   DockTitle titleBar)
    : QDockWidget(title, window), window_(window), dock_(isSide(dock) ? dock : Dock::left), titleBar_(titleBar),
      floatPosition_(position), dockedSize_(size), floatSize_(size) {
    auto* frame = new PaneFrame(body);
    frame->wanted = size;
    window->installEventFilter(this);
    setWidget(frame);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setTitleBar(titleBar);
    dockAt(dock_);
    connect(this, &QDockWidget::topLevelChanged, this, [this](bool floating) {
        if (program_) return;
        dock_ = floating ? Dock::floating : dock_;
        settle();
        tellLater(DockEvent::moved);
    });
    connect(this, &QDockWidget::dockLocationChanged, this, [this](Qt::DockWidgetArea area) {
        if (program_) return;
        userMoved_ = true;
        for (const Side& side : sides)
            if (side.pane == area) dock_ = side.dock;
        settle();
        tellLater(DockEvent::moved);
    });
    if (dock == Dock::floating) place(dock, position, size);
    if (dock == Dock::hidden) setShown(false);
}

// Panes of one side stand beside one another.
void DockPane::dockAt(Dock dock) {
    const Qt::DockWidgetArea area = sideOf(dock).pane;
    QDockWidget* last = nullptr;
    for (QDockWidget* other : window_->findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (other != this && !other->isFloating() && window_->dockWidgetArea(other) == area) last = other;
    window_->addDockWidget(area, this);
    if (last) window_->splitDockWidget(last, this, Qt::Horizontal);
}

void DockPane::place(Dock dock, QPoint position, QSize size) {
    const ProgramDoing::Mark mark(program_);
    if (dock == Dock::floating) {
        dock_ = dock;
        floatPosition_ = position;
        if (size.isValid()) floatSize_ = size;
        const QSize wanted = floatSize_;
        setFloating(true); // gives it some size of its own
        floatSize_ = wanted;
        resize(wanted);
        move(onScreen(floatPosition_, floatSize_));
        show();
    } else if (dock == Dock::hidden) {
        hide();
    } else {
        if (size.isValid()) dockedSize_ = size;
        const bool elsewhere = isFloating() || userMoved_ || window_->dockWidgetArea(this) != sideOf(dock).pane;
        userMoved_ = false;
        if (isFloating()) setFloating(false);
        if (elsewhere) dockAt(dock);
        dock_ = dock;
        static_cast<PaneFrame*>(widget())->wanted = dockedSize_;
        widget()->updateGeometry();
        show();
    }
    settle();
}

namespace {

constexpr int roomForTheRest = 120; // pixels that panes leave to the middle of a window when all together would fill it

// What the middle of a window needs beside that many panes, with the gaps between them.
int restBeside(const QMainWindow& window, std::size_t panes, bool across) {
    const QSize least = window.centralWidget() ? window.centralWidget()->minimumSizeHint() : QSize();
    const int gap = window.style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent, nullptr, &window);
    return qMax(roomForTheRest, across ? least.width() : least.height()) + static_cast<int>(panes) * gap;
}

// What menu bar, status bar and tool bars take of a window: all that lies around its panes and its middle.
QSize takenByBars(const QMainWindow& window) {
    QRect inner;
    if (window.centralWidget()) inner = window.centralWidget()->geometry();
    for (const QDockWidget* pane : window.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (!pane->isHidden() && !pane->isFloating()) inner |= pane->geometry();
    return inner.isEmpty() ? QSize(0, 0) : (window.size() - inner.size()).expandedTo(QSize(0, 0));
}

// The extent that no pane may exceed so that all fit into `room`: the largest give way first.
int largestExtent(const std::vector<std::pair<QDockWidget*, int>>& panes, int room) {
    std::vector<int> extents;
    for (const auto& [pane, extent] : panes) extents.push_back(extent);
    std::sort(extents.begin(), extents.end());
    int panesLeft = static_cast<int>(extents.size());
    for (const int extent : extents) {
        const int share = room / panesLeft--;
        if (extent > share) return qMax(1, share);
        room -= extent;
    }
    return QWIDGETSIZE_MAX;
}

// Holds panes to an extent while the layout is done once; afterwards they can be dragged again.
void holdExtents(QMainWindow* window, const std::vector<std::pair<QDockWidget*, int>>& panes, Qt::Orientation along) {
    const bool across = along == Qt::Horizontal;
    const int rest = restBeside(*window, panes.size(), across); // a window that is too small for all would grow
    const QSize inner = window->size() - takenByBars(*window);
    const int room = qMax(1, (across ? inner.width() : inner.height()) - rest);
    const int largest = largestExtent(panes, room);
    for (const auto& [pane, extent] : panes) {
        const int held = qMin(extent, largest);
        QSize& hint = static_cast<PaneFrame*>(pane->widget())->wanted; // the next layout goes by it
        across ? hint.setWidth(held) : hint.setHeight(held);
        if (across)
            pane->setFixedWidth(held);
        else
            pane->setFixedHeight(held);
    }
    window->layout()->activate();
    QList<QDockWidget*> docks;
    QList<int> extents;
    for (const auto& [pane, extent] : panes) {
        pane->setMinimumSize(0, 0);
        pane->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        docks.append(pane);
        extents.append(qMin(extent, largest));
    }
    window->resizeDocks(docks, extents, along); // or else the next layout goes by hints
}

} // namespace

// Gives every docked pane of the window the extent that the program or the user last gave it, once the layout has
// settled: when a pane comes or goes, the middle of the window gains or loses the room, not the pane beside it.
void DockPane::settle() {
    QTimer::singleShot(0, window_, [window = window_] {
        if (!window->isVisible()) return;
        std::vector<std::pair<QDockWidget*, int>> columns, rows;
        for (auto* pane : window->findChildren<DockPane*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (pane->isHidden() || pane->isFloating()) continue;
            if (isColumn(pane->dock_))
                columns.emplace_back(pane, qMax(20, pane->dockedSize_.width()));
            else
                rows.emplace_back(pane, qMax(20, pane->dockedSize_.height()));
        }
        holdExtents(window, columns, Qt::Horizontal);
        holdExtents(window, rows, Qt::Vertical);
    });
}

void DockPane::showEvent(QShowEvent* event) {
    QDockWidget::showEvent(event);
    if (!isFloating()) settle();
}

Dock DockPane::dock() const {
    if (isHidden()) return Dock::hidden;
    return isFloating() ? Dock::floating : dock_;
}

QPoint DockPane::floatPosition() const { return isFloating() ? frameGeometry().topLeft() : floatPosition_; }

void DockPane::setShown(bool shown) {
    const ProgramDoing::Mark mark(program_);
    setVisible(shown);
    if (shown) raise();
    settle();
}

void DockPane::setTitleBar(DockTitle titleBar) {
    titleBar_ = titleBar;
    DockWidgetFeatures features = DockWidgetMovable | DockWidgetFloatable;
    if (titleBar == DockTitle::closable) features |= DockWidgetClosable;
    setFeatures(features);
    QWidget* bar = titleBarWidget();
    if (titleBar == DockTitle::none && !bar) setTitleBarWidget(new QWidget(this));
    if (titleBar != DockTitle::none && bar) {
        setTitleBarWidget(nullptr);
        delete bar;
    }
}

void DockPane::tellLater(DockEvent what) {
    if (told_) return;
    told_ = true;
    // While the button is down the drag goes on; the report follows when it is let go.
    auto* timer = new QTimer(this);
    timer->setInterval(0);
    connect(timer, &QTimer::timeout, this, [this, timer, what] {
        timer->setInterval(20);
        if (QGuiApplication::mouseButtons() != Qt::NoButton) return;
        timer->deleteLater();
        timer->stop();
        told_ = false;
        if (report) report(what);
    });
    timer->start();
}

// A click that no widget of the body wanted, or one on the title, ends here with its release.
// Qt gives panes new shares of a window that is too small for all; one of the panes brings the wanted ones back.
bool DockPane::eventFilter(QObject* watched, QEvent* event) {
    if (watched == window_ && event->type() == QEvent::Resize && window_->findChild<DockPane*>() == this) settle();
    return QDockWidget::eventFilter(watched, event);
}

bool DockPane::event(QEvent* event) {
    const bool handled = QDockWidget::event(event);
    if (event->type() == QEvent::MouseButtonRelease && !told_ && !program_ && report) report(DockEvent::touched);
    return handled;
}

void DockPane::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (report) report(DockEvent::closed);
}

void DockPane::moveEvent(QMoveEvent* event) {
    QDockWidget::moveEvent(event);
    if (!isFloating() || program_) return;
    floatPosition_ = frameGeometry().topLeft();
    if (QGuiApplication::mouseButtons() != Qt::NoButton) tellLater(DockEvent::moved);
}

void DockPane::resizeEvent(QResizeEvent* event) {
    QDockWidget::resizeEvent(event);
    const bool byUser = !program_ && QGuiApplication::mouseButtons() != Qt::NoButton;
    if (isHidden() || !byUser) return;
    if (isFloating())
        floatSize_ = size();
    else
        dockedSize_ = widget()->size();
    tellLater(DockEvent::resized);
}

} // namespace orba
