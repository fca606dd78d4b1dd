#include "toolkit/frame/windows.h"

#include "toolkit/frame/design_windows.h"
#include "toolkit/frame/events.h"
#include "toolkit/frame/keys.h"
#include "toolkit/frame/layout.h"
#include "toolkit/frame/registry.h"
#include "toolkit/frame/session.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QTimer>

namespace orba {
namespace {

constexpr int ACTIVATION_RETRY = 120; // milliseconds
constexpr int FRAMED = 100;           // milliseconds from the showing of a window until it has its frame
constexpr Qt::WindowStates FITTED_ELSEWHERE = Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen;

QSize screenSize() { return QGuiApplication::primaryScreen()->geometry().size(); }

Widget* windowRecord(const FormWindow& window) {
    Widget* record = widgetOf(window.handle);
    return record && record->view == &window ? record : nullptr;
}

// On a platform without window manager every change is done at once, inside the program's call.
bool isSettling(const Widget& window) {
    if (session.program) return true;
    static const bool managed = QGuiApplication::platformName() == QLatin1String("xcb");
    return managed && windowData(window).program.settling();
}

// The place that a window is measured in: the screen, or the client area of the MDI master.
QSize roomOf(const Widget& window) {
    const WindowData& data = windowData(window);
    return data.frame && data.frame->parentWidget() ? data.frame->parentWidget()->size() : screenSize();
}

// Gives everything in a window its place now. A window that is not on the screen yet does it only when it is shown.
void settleLayout(QWidget& window) {
    window.layout()->activate();
    if (!window.isVisible()) window.layout()->setGeometry(window.rect());
}

// What the close box does after the event.
void obeyQuitMode(Widget& window) {
    if (window.kind == Kind::master || window.quitMode == OLEAVE) return;
    outerOf(window)->hide();
    if (window.quitMode == OREMOVE) session.doomed.push_back(window.handle);
}

void closeRequested(Widget& window) {
    if (window.kind == Kind::master) {
        postIdentifier(-1, window.handle, 0, OCLOSED);
        return;
    }
    post(window, Slot::general, OCLOSED);
    obeyQuitMode(window);
}

// A window that is still being fitted when the window manager frames it gets its frame where its client was to be. Once
// the frame is known it is brought to its place.
void placeOnceFramed(const Widget& window) {
    if (windowData(window).frame) return;
    QTimer::singleShot(FRAMED, window.view, [handle = window.handle] {
        Widget* framed = widgetOf(handle);
        if (!framed || !framed->view->isVisible() || framed->view->windowState() & FITTED_ELSEWHERE) return;
        if (isSettling(*framed) && framed->view->pos() != ownPlaceOf(*framed)) moveWindow(*framed);
    });
}

ProgramDoing activation; // by the program: what Qt tells of it for a while is no user's doing

// A window that may not have the input now hands it on to the one that has.
void returnInput(Widget& window) {
    QTimer::singleShot(0, window.view, [view = window.view.data()] {
        Widget* holder = widgetOf(session.activeWindow);
        if (holder && view->isActiveWindow() && inputBlocked(view)) raiseWindow(*holder);
    });
}

void activated(Widget& window) {
    if (inputBlocked(window.view)) returnInput(window);
    if (!activation.settling() && !isSettling(window)) post(window, Slot::select, 1);
}

void deactivated(Widget& window) {
    if (!activation.settling() && !QApplication::activePopupWidget()) post(window, Slot::general, OLOSTFOCUS);
}

} // namespace

WindowData& windowData(const Widget& window) { return static_cast<WindowData&>(*window.data); }

void startSettling(Widget& window) { windowData(window).program.settle(); }

QWidget* windowArea(const Widget& window) {
    if (windowData(window).designed) return window.client; // inside what scrolls it
    return static_cast<QMainWindow*>(window.view.data())->centralWidget();
}

QSize windowSize(const Widget& window) {
    const WindowData& data = windowData(window);
    if (!data.shown || window.view->isMinimized()) return data.client;
    return data.wholeWindow ? window.view->size() : windowArea(window)->size();
}

QPoint ownPlaceOf(const Widget& window) {
    const Placement& place = window.place;
    const QSize room = roomOf(window);
    const QSize size = windowData(window).client;
    int x = place.hpos == OLEFT ? place.x : room.width() - place.x - size.width();
    int y = place.vpos == OTOP ? place.y : room.height() - place.y - size.height();
    const int state = windowData(window).initState;
    if (place.hpos == OCENTRE || state == OCENTRED) x = (room.width() - size.width()) / 2;
    if (place.vpos == OMIDDLE || state == OCENTRED) y = (room.height() - size.height()) / 2;
    if (state == OTOP) y = 0;
    return {x, y};
}

void moveWindow(Widget& window) {
    startSettling(window);
    const WindowData& data = windowData(window);
    if (data.designed) settleDesignWindow(window);
    if (!data.designed || data.placedByUser) outerOf(window)->move(ownPlaceOf(window));
}

// Where the window stands now, measured as the program measures it.
void readWindowPlace(Widget& window) {
    if (!windowData(window).shown || windowData(window).aside) return;
    const QPoint corner = outerOf(window)->pos();
    const QSize room = roomOf(window);
    const QSize size = windowSize(window);
    Placement& place = window.place;
    place.x = place.hpos == ORIGHT ? room.width() - corner.x() - size.width() : corner.x();
    place.y = place.vpos == OBOTTOM ? room.height() - corner.y() - size.height() : corner.y();
}

QWidget* outerOf(const Widget& window) {
    QMdiSubWindow* frame = windowData(window).frame;
    return frame ? static_cast<QWidget*>(frame) : window.view.data();
}

FormWindow* formWindowOf(Widget* widget) {
    Widget* window = windowOf(widget);
    return window ? static_cast<FormWindow*>(window->view.data()) : nullptr;
}

void fitWindow(Widget& window) {
    const WindowData& data = windowData(window);
    auto* view = static_cast<FormWindow*>(window.view.data());
    if (view->isMaximized() || view->isFullScreen()) return;
    if (data.designed) return settleDesignWindow(window);
    QWidget* outer = outerOf(window);
    if (data.wholeWindow) {
        view->resize(data.client);
        return;
    }
    // The bars around the client area take what their layout gives them; the second round finds it settled.
    for (int round = 0; round < 2; round++) {
        if (data.frame && data.frame->layout()) settleLayout(*data.frame);
        settleLayout(*view);
        const QSize missing = data.client - windowArea(window)->size();
        if (missing.isNull()) return;
        outer->resize(outer->size() + missing);
    }
    settleLayout(*view);
}

void windowBarsChanged(Widget& anyWidget) {
    Widget* window = windowOf(&anyWidget);
    if (!window || !window->data || !window->view || windowData(*window).wholeWindow) return;
    startSettling(*window);
    fitWindow(*window);
}

void showWindow(Widget& window, bool front) {
    WindowData& data = windowData(window);
    QWidget* outer = outerOf(window);
    if (!outer->isVisible()) {
        startSettling(window);
        activation.settle();
        if (!data.shown) {
            fitWindow(window);
            moveWindow(window);
        }
        const bool first = !data.shown;
        data.shown = true;
        if (first && data.initState == OMAXIMIZE) {
            outer->showMaximized();
        } else if (first && data.initState == OMINIMIZE) {
            outer->showMinimized();
        } else {
            outer->show();
        }
        window.view->show();
        // Only on the screen do the bars have their final height.
        QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        if (first) {
            fitWindow(window);
            placeOnceFramed(window);
        }
    }
    window.view->update();
    if (!front) return;
    if (outer->isMinimized()) outer->showNormal();
    outer->raise();
    if (data.frame) data.frame->mdiArea()->setActiveSubWindow(data.frame);
}

void inputByUser() {
    activation.userCame();
    session.expectedFocus = 0;
}

namespace {

// A request for another window is under way; a later one has to come behind it.
bool otherRequested(const QWidget& top) {
    const Widget* expected = widgetOf(session.expectedFocus);
    const QWidget* window = expected && expected->view ? expected->view->window() : nullptr;
    return window && window != &top && !window->isActiveWindow();
}

} // namespace

void activateView(QWidget* view) {
    Widget* window = windowOf(widgetAt(view));
    if (!window) return;
    QWidget* outer = outerOf(*window);
    if (!outer->isVisible()) return;
    QWidget* top = view->window(); // a floating pane is a window of its own
    if (QMdiSubWindow* frame = windowData(*window).frame) {
        if (frame->mdiArea()->activeSubWindow() != frame) {
            activation.settle();
            frame->mdiArea()->setActiveSubWindow(frame);
        }
    }
    if (top->isActiveWindow() && !otherRequested(*top)) return;
    activation.settle();
    session.expectedFocus = widgetAt(view)->handle;
    top->activateWindow();
    // A window manager refuses a request that is older than the user's last input to another window, such as the
    // release of the click that led to it. Once that has been read, the request is made again.
    QTimer::singleShot(ACTIVATION_RETRY, view, [view, handle = session.expectedFocus] {
        if (session.expectedFocus != handle || view->window()->isActiveWindow()) return;
        activation.settle();
        view->activateWindow();
    });
}

void raiseWindow(Widget& window) {
    QWidget* outer = outerOf(window);
    if (!outer->isVisible()) return;
    outer->raise();
    activateView(window.view);
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    Widget* window = windowRecord(*this);
    if (!window || inputBlocked(this)) return;
    closeRequested(*window);
}

void FormWindow::moveEvent(QMoveEvent* event) {
    QMainWindow::moveEvent(event);
    Widget* window = windowRecord(*this);
    if (!window || !window->data || isMinimized() || !isVisible() || windowData(*window).frame) return;
    QRect& known = windowData(*window).known;
    if (known.topLeft() == pos()) return; // the same news again
    known.moveTopLeft(pos());
    if (isSettling(*window)) return;
    windowData(*window).placedByUser = true;
    windowData(*window).aside = false;
    post(*window, Slot::general, OMOVED);
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    Widget* window = windowRecord(*this);
    if (!window || !window->data || isMinimized() || !isVisible()) return;
    WindowData& data = windowData(*window);
    if (data.known.size() == size()) return;
    data.known.setSize(size());
    if (isSettling(*window)) return;
    if (!data.frame) data.client = windowSize(*window);
    designWindowResized(*window);
    post(*window, Slot::general, ORESIZED);
}

void FormWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange) return;
    const Widget* window = windowRecord(*this);
    if (!window || session.program) return;
    const auto before = static_cast<QWindowStateChangeEvent*>(event)->oldState();
    if ((before & Qt::WindowMinimized) != (windowState() & Qt::WindowMinimized))
        post(*window, Slot::general, OMINIMIZED);
}

bool FormWindow::eventFilter(QObject* target, QEvent* event) {
    Widget* window = windowRecord(*this);
    if (!window || !window->data || target != windowData(*window).frame) return QMainWindow::eventFilter(target, event);
    switch (event->type()) {
    case QEvent::Close:
        event->ignore();
        if (!inputBlocked(this)) closeRequested(*window);
        return true;
    case QEvent::Move:
        if (windowData(*window).frame->isVisible() && !isSettling(*window)) post(*window, Slot::general, OMOVED);
        return false;
    case QEvent::WindowActivate: activated(*window); return false;
    case QEvent::WindowDeactivate: deactivated(*window); return false;
    default: return false;
    }
}

bool FormWindow::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) {
        const bool used = QMainWindow::event(event);
        if (Widget* window = windowRecord(*this)) designBarsChanged(*window);
        return used;
    }
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate) {
        Widget* window = windowRecord(*this);
        if (window && window->data && !windowData(*window).frame) {
            if (event->type() == QEvent::WindowActivate) {
                activated(*window);
            } else {
                deactivated(*window);
            }
        }
    }
    return QMainWindow::event(event);
}

} // namespace orba
