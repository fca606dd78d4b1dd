#include "toolkit/families/windows.h"

#include "toolkit/frame/frame.h"
#include "toolkit/frame/session.h"
#include "toolkit/views/icons/icons.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QWindow>

#include <algorithm>

namespace orba {
namespace {

// How long geometry changes after a change by the program count as the window manager's answer to it.
constexpr int SETTLING_MILLISECONDS = 400;
constexpr int ACTIVATION_RETRY = 120; // milliseconds
constexpr int NATURAL_WIDTH = 320;
constexpr int NATURAL_HEIGHT = 240;

QSize screenSize() { return QGuiApplication::primaryScreen()->geometry().size(); }

WindowData& dataOfWindow(const Widget& window) { return static_cast<WindowData&>(*window.data); }

Widget* windowRecord(const FormWindow& window) {
    Widget* record = widgetOf(window.handle);
    return record && record->view == &window ? record : nullptr;
}

void startSettling(Widget& window) { dataOfWindow(window).settling.start(); }

// On a platform without window manager every change is done at once, inside the program's call.
bool isSettling(const Widget& window) {
    if (session.programDepth > 0) return true;
    static const bool managed = QGuiApplication::platformName() == QLatin1String("xcb");
    const WindowData& data = dataOfWindow(window);
    return managed && data.settling.isValid() && data.settling.elapsed() < SETTLING_MILLISECONDS;
}

QWidget* areaOf(const Widget& window) { return static_cast<QMainWindow*>(window.view.data())->centralWidget(); }

// An owned window is a dialogue to the window manager, whatever is in its title bar: it stays above its owner.
Qt::WindowFlags flagsOf(int titleFlag, bool owned) {
    const Qt::WindowFlags kind = owned ? Qt::Dialog : Qt::Window;
    if (titleFlag == OALL)
        return kind | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
               Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint;
    if (titleFlag == ONONE) return kind | Qt::FramelessWindowHint;
    Qt::WindowFlags flags = titleFlag & OTOOL ? Qt::Tool : kind;
    flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    if (titleFlag & (OQUIT | OMAXIMIZE | OMINIMIZE)) flags |= Qt::WindowSystemMenuHint;
    if (titleFlag & OQUIT) flags |= Qt::WindowCloseButtonHint;
    if (titleFlag & OMAXIMIZE) flags |= Qt::WindowMaximizeButtonHint;
    if (titleFlag & OMINIMIZE) flags |= Qt::WindowMinimizeButtonHint;
    return flags;
}

// The place that a window is measured in: the screen, or the client area of the MDI master.
QSize roomOf(const Widget& window) {
    const WindowData& data = dataOfWindow(window);
    return data.frame && data.frame->parentWidget() ? data.frame->parentWidget()->size() : screenSize();
}

QSize sizeOf(const Widget& window) {
    const WindowData& data = dataOfWindow(window);
    if (!data.shown || window.view->isMinimized()) return data.client;
    return data.wholeWindow ? window.view->size() : areaOf(window)->size();
}

QPoint topLeftOf(const Widget& window) {
    const Placement& place = window.place;
    const QSize room = roomOf(window);
    const QSize size = dataOfWindow(window).client;
    int x = place.hpos == OLEFT ? place.x : room.width() - place.x - size.width();
    int y = place.vpos == OTOP ? place.y : room.height() - place.y - size.height();
    const int state = dataOfWindow(window).initState;
    if (place.hpos == OCENTRE || state == OCENTRED) x = (room.width() - size.width()) / 2;
    if (place.vpos == OMIDDLE || state == OCENTRED) y = (room.height() - size.height()) / 2;
    if (state == OTOP) y = 0;
    return {x, y};
}

void moveWindow(Widget& window) {
    startSettling(window);
    outerOf(window)->move(topLeftOf(window));
}

// Where the window stands now, measured as the program measures it.
void readPlace(Widget& window) {
    if (!dataOfWindow(window).shown) return;
    const QPoint corner = outerOf(window)->pos();
    const QSize room = roomOf(window);
    const QSize size = sizeOf(window);
    Placement& place = window.place;
    place.x = place.hpos == ORIGHT ? room.width() - corner.x() - size.width() : corner.x();
    place.y = place.vpos == OBOTTOM ? room.height() - corner.y() - size.height() : corner.y();
}

bool getWindowProperty(Widget& window, int property, Value& value) {
    switch (property) {
    case 1:
        readPlace(window);
        value.integer = unitsAcross(window.place.x);
        return true;
    case 2:
        readPlace(window);
        value.integer = unitsDown(window.place.y);
        return true;
    case 3: value.integer = unitsAcross(sizeOf(window).width()); return true;
    case 4: value.integer = unitsDown(sizeOf(window).height()); return true;
    case 29: value.integer = window.view->isVisible() ? OSELECTABLE : OHIDDEN; return true;
    default: return false;
    }
}

void setWindowState(Widget& window, int state) {
    QWidget* outer = outerOf(window);
    dataOfWindow(window).initState = state == OMAXIMIZE || state == OMINIMIZE ? state : ONORMAL;
    if (!outer->isVisible()) return;
    startSettling(window);
    switch (state) {
    case OMAXIMIZE: outer->showMaximized(); break;
    case OMINIMIZE: outer->showMinimized(); break;
    default: outer->showNormal(); break;
    }
}

bool setWindowProperty(Widget& window, int property, const Value& value) {
    if (property == 10) {
        setWindowState(window, value.integer);
        return true;
    }
    WindowData& data = dataOfWindow(window);
    readPlace(window);
    data.client = sizeOf(window);
    data.initState = ONORMAL;
    switch (property) {
    case 1: window.place.x = pixelsAcross(value.integer); break;
    case 2: window.place.y = pixelsDown(value.integer); break;
    case 3: data.client.setWidth(std::max(1, pixelsAcross(value.integer))); break;
    case 4: data.client.setHeight(std::max(1, pixelsDown(value.integer))); break;
    case 57: window.place.hpos = value.integer; break;
    case 58: window.place.vpos = value.integer; break;
    case 64:
        if (auto* area = qobject_cast<QMdiArea*>(areaOf(window))) area->setBackground(icons::imageFromFile(value.text));
        return true;
    default: return false;
    }
    if (property == 3 || property == 4) {
        startSettling(window);
        fitWindow(window);
    }
    if (property <= 2 || window.place.hpos != OLEFT || window.place.vpos != OTOP) moveWindow(window);
    return true;
}

void setWindowStatus(Widget& window, int status) {
    if (status == OHIDDEN) {
        outerOf(window)->hide();
        return;
    }
    window.view->setEnabled(status != OUNSELECTABLE);
    if (dataOfWindow(window).shown) showWindow(window, false);
}

QString titleOf(Widget& window) { return window.view->windowTitle(); }

void setTitle(Widget& window, const QString& title) {
    window.view->setWindowTitle(title);
    if (QMdiSubWindow* frame = dataOfWindow(window).frame) frame->setWindowTitle(title);
}

void windowErased(Widget& window) {
    WindowData& data = dataOfWindow(window);
    if (!data.frame) {
        if (window.kind == Kind::master) setSessionState(1);
        return;
    }
    // The frame owns the window inside it.
    QMdiSubWindow* frame = data.frame;
    data.frame = nullptr;
    delete frame;
}

const Family windows{.name = "window",
                     .get = getWindowProperty,
                     .set = setWindowProperty,
                     .setStatus = setWindowStatus,
                     .text = titleOf,
                     .setText = setTitle,
                     .naturalSize = nullptr,
                     .fontChanged = nullptr,
                     .coloursChanged = nullptr,
                     .enquireInfo = nullptr,
                     .takeInfo = nullptr,
                     .childAdded = nullptr,
                     .childLeaving = nullptr,
                     .erased = windowErased};
const Family mdiClients{.name = "client area"};

void setIcon(Widget& window, const QString& file, int format) {
    if (format < 0 || file.isEmpty()) return;
    const QIcon icon = icons::iconByName(file);
    window.view->setWindowIcon(icon);
    if (QMdiSubWindow* frame = dataOfWindow(window).frame) frame->setWindowIcon(icon);
}

// The geometry arguments begin at `first`; title flag and title stand behind them.
int finishWindow(Widget& window, const Arguments& call, int first) {
    auto owned = std::make_unique<WindowData>();
    WindowData& data = *owned;
    window.data = std::move(owned);
    static_cast<FormWindow*>(window.view.data())->handle = window.handle;
    const int width = pixelsAcross(call.integer(first + 2));
    const int height = pixelsDown(call.integer(first + 3));
    data.client = QSize(width > 0 ? width : NATURAL_WIDTH, height > 0 ? height : NATURAL_HEIGHT);
    data.initState = call.keyword(owInitState);
    window.titleFlag = call.integer(first + 4);
    window.place.x = pixelsAcross(call.integer(first));
    window.place.y = pixelsDown(call.integer(first + 1));
    window.place.hpos = call.keyword(owHpos);
    window.place.vpos = call.keyword(owVpos);
    window.view->setWindowTitle(call.text(first + 5));
    window.view->setAttribute(Qt::WA_AlwaysShowToolTips); // while another window of the program is the active one
    setIcon(window, call.keywordText(owIconFile), call.keyword(owIconFormat));
    return 0;
}

void placeNewWindow(Widget& window) {
    fitWindow(window);
    moveWindow(window);
}

Widget& makeMaster(const Arguments& call, bool mdi) {
    auto* view = new FormWindow(nullptr, flagsOf(call.integer(4), false));
    QWidget* area = mdi ? new QMdiArea(view) : new QWidget(view);
    view->setCentralWidget(area);
    Widget& master = addWidget(Kind::master, windows, nullptr, view);
    finishWindow(master, call, 0);
    dataOfWindow(master).wholeWindow = mdi;
    master.client = area;
    knowObject(master, area);
    watch(area);
    setSessionState(2);
    if (mdi) {
        Widget& client = addWidget(Kind::mdiClient, mdiClients, &master, area);
        client.status = OSELECTABLE;
        const QString image = call.keywordText(owImage);
        if (!image.isEmpty()) setWindowProperty(master, 64, {.integer = 0, .real = 0, .text = image});
    }
    placeNewWindow(master);
    return master;
}

Word createMaster(const Arguments& call) { return finishCreation(makeMaster(call, false), call); }
Word createMdiMaster(const Arguments& call) { return finishCreation(makeMaster(call, true), call); }

Word createDialogue(const Arguments& call) {
    Widget* parent = widgetOf(call.integer(0));
    auto* view = new FormWindow(windowOf(parent)->view, flagsOf(call.integer(5), true));
    auto* area = new QWidget(view);
    view->setCentralWidget(area);
    Widget& window = addWidget(Kind::window, windows, parent, view);
    if (window.handle == 0) return 0;
    finishWindow(window, call, 1);
    window.client = area;
    knowObject(window, area);
    watch(area);
    placeNewWindow(window);
    return finishCreation(window, call);
}

QMdiArea* mdiAreaOf(const Widget& master) { return qobject_cast<QMdiArea*>(areaOf(master)); }

Word createMdiDialogue(const Arguments& call) {
    Widget* master = widgetOf(1);
    QMdiArea* area = mdiAreaOf(*master);
    if (!area) return createDialogue(call); // a program with a plain master window: a window of its own
    auto* view = new FormWindow(nullptr, Qt::Widget);
    view->setCentralWidget(new QWidget(view));
    Widget& window = addWidget(Kind::window, windows, widgetOf(call.integer(0)), view);
    if (window.handle == 0) return 0;
    finishWindow(window, call, 1);
    WindowData& data = dataOfWindow(window);
    // Inside a client area positions count from the top unless an origin says otherwise.
    if (!call.given(owVpos)) window.place.vpos = OTOP;
    data.frame = new QMdiSubWindow(area);
    data.frame->setWidget(view);
    area->addSubWindow(data.frame);
    data.frame->setWindowTitle(view->windowTitle());
    data.frame->setWindowIcon(view->windowIcon());
    data.frame->hide();
    window.client = view->centralWidget();
    knowObject(window, window.client);
    knowObject(window, data.frame);
    watch(window.client);
    data.frame->installEventFilter(view);
    placeNewWindow(window);
    return finishCreation(window, call);
}

Word drawWindow(const Arguments& call) {
    Widget& window = *widgetOf(call.integer(0));
    if (window.kind == Kind::popupMenu) {
        static_cast<QMenu*>(window.view.data())->popup(QCursor::pos());
    } else if (window.kind == Kind::master || window.kind == Kind::window) {
        showWindow(window, call.integer(1) == 1);
    } else {
        setStatus(window, OSELECTABLE);
        if (call.integer(1) == 1) window.view->raise();
    }
    return 0;
}

Word removeWindow(const Arguments& call) {
    Widget& window = *widgetOf(call.integer(0));
    if (window.kind == Kind::master || window.kind == Kind::window) {
        if (session.activeWindow == window.handle) session.activeWindow = 0;
        outerOf(window)->hide();
    } else if (window.kind == Kind::popupMenu) {
        window.view->hide();
    } else {
        setStatus(window, OHIDDEN);
    }
    return 0;
}

Word manage(const Arguments&) {
    session.managed = true;
    showWindow(*widgetOf(1), false);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    return 0;
}

Word popWindow(const Arguments& call) {
    outerOf(*widgetOf(call.integer(0)))->raise();
    return 0;
}

Word pushWindow(const Arguments& call) {
    outerOf(*widgetOf(call.integer(0)))->lower();
    return 0;
}

Word setWindowIcon(const Arguments& call) {
    setIcon(*widgetOf(call.integer(0)), call.text(1), call.integer(2));
    return 0;
}

Word mdiAction(const Arguments& call) {
    QMdiArea* area = mdiAreaOf(*widgetOf(1));
    if (!area) return 0;
    switch (call.integer(0)) {
    case 0: area->cascadeSubWindows(); break;
    case 1:
    case 2: area->tileSubWindows(); break;
    case 3: area->activateNextSubWindow(); break;
    case 4: area->activatePreviousSubWindow(); break;
    default: break;
    }
    return 0;
}

Word windowByTitle(const Arguments& call) {
    static QString title;
    static int found;
    title = call.text(1);
    found = 0;
    forEachWidget([](Widget& widget) {
        if (found == 0 && widget.family->text && widget.family->text(widget) == title) found = widget.handle;
    });
    return found;
}

const Registration registration({
    {Fn::owCreateMasterWindow, createMaster},
    {Fn::owCreateMDIMasterWindow, createMdiMaster},
    {Fn::owCreateComplexDialogueBox, createDialogue},
    {Fn::owCreateMDIComplexDialogueBox, createMdiDialogue},
    {Fn::owDrawWindow, drawWindow},
    {Fn::owRemoveWindow, removeWindow},
    {Fn::owManage, manage},
    {Fn::owPopWindow, popWindow},
    {Fn::owPushWindow, pushWindow},
    {Fn::owSetWindowIcon, setWindowIcon},
    {Fn::owMDIAction, mdiAction},
    {Fn::owGetWidgetHandle, windowByTitle},
});

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

// The program made a window active: what Qt tells of it for a while is no user's doing.
QElapsedTimer sinceActivation;

void expectActivation() { sinceActivation.start(); }

bool activationIsExpected() { return sinceActivation.isValid() && sinceActivation.elapsed() < SETTLING_MILLISECONDS; }

void activated(Widget& window) {
    if (!activationIsExpected() && !isSettling(window)) post(window, Slot::select, 1);
}

void deactivated(Widget& window) {
    if (!activationIsExpected() && !QApplication::activePopupWidget()) post(window, Slot::general, OLOSTFOCUS);
}

} // namespace

QWidget* outerOf(const Widget& window) {
    QMdiSubWindow* frame = dataOfWindow(window).frame;
    return frame ? static_cast<QWidget*>(frame) : window.view.data();
}

FormWindow* formWindowOf(Widget* widget) {
    Widget* window = windowOf(widget);
    return window ? static_cast<FormWindow*>(window->view.data()) : nullptr;
}

// Gives everything in a window its place now. A window that is not on the screen yet does it only when it is shown.
static void settleLayout(QWidget& window) {
    window.layout()->activate();
    if (!window.isVisible()) window.layout()->setGeometry(window.rect());
}

void fitWindow(Widget& window) {
    const WindowData& data = dataOfWindow(window);
    auto* view = static_cast<FormWindow*>(window.view.data());
    if (view->isMaximized() || view->isFullScreen()) return;
    QWidget* outer = outerOf(window);
    if (data.wholeWindow) {
        view->resize(data.client);
        return;
    }
    // The bars around the client area take what their layout gives them; the second round finds it settled.
    for (int round = 0; round < 2; round++) {
        if (data.frame && data.frame->layout()) settleLayout(*data.frame);
        settleLayout(*view);
        const QSize missing = data.client - areaOf(window)->size();
        if (missing.isNull()) return;
        outer->resize(outer->size() + missing);
    }
    settleLayout(*view);
}

void windowBarsChanged(Widget& anyWidget) {
    Widget* window = windowOf(&anyWidget);
    if (!window || !window->data || !window->view || dataOfWindow(*window).wholeWindow) return;
    startSettling(*window);
    fitWindow(*window);
}

void showWindow(Widget& window, bool front) {
    WindowData& data = dataOfWindow(window);
    QWidget* outer = outerOf(window);
    if (!outer->isVisible()) {
        startSettling(window);
        expectActivation();
        if (!data.shown) {
            fitWindow(window);
            outer->move(topLeftOf(window));
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
        if (first) fitWindow(window);
    }
    window.view->update();
    if (!front) return;
    if (outer->isMinimized()) outer->showNormal();
    outer->raise();
    if (data.frame) data.frame->mdiArea()->setActiveSubWindow(data.frame);
}

void inputByUser() {
    sinceActivation.invalidate();
    session.expectedFocus = 0;
}

void activateView(QWidget* view) {
    Widget* window = windowOf(widgetAt(view));
    if (!window) return;
    QWidget* outer = outerOf(*window);
    if (!outer->isVisible()) return;
    QWidget* top = view->window(); // a floating pane is a window of its own
    if (QMdiSubWindow* frame = dataOfWindow(*window).frame) {
        if (frame->mdiArea()->activeSubWindow() != frame) {
            expectActivation();
            frame->mdiArea()->setActiveSubWindow(frame);
        }
    }
    if (top->isActiveWindow()) return;
    expectActivation();
    session.expectedFocus = widgetAt(view)->handle;
    top->activateWindow();
    // A window manager refuses a request that is older than the user's last input to another window, such as the
    // release of the click that led to it. Once that has been read, the request is made again.
    QTimer::singleShot(ACTIVATION_RETRY, view, [view, handle = session.expectedFocus] {
        if (session.expectedFocus != handle || view->window()->isActiveWindow()) return;
        expectActivation();
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
    if (!window || !window->data || isMinimized() || !isVisible() || dataOfWindow(*window).frame) return;
    QRect& known = dataOfWindow(*window).known;
    if (known.topLeft() == pos()) return; // the same news again
    known.moveTopLeft(pos());
    if (!isSettling(*window)) post(*window, Slot::general, OMOVED);
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    Widget* window = windowRecord(*this);
    if (!window || !window->data || isMinimized() || !isVisible()) return;
    WindowData& data = dataOfWindow(*window);
    if (data.known.size() == size()) return;
    data.known.setSize(size());
    if (isSettling(*window)) return;
    if (!data.frame) data.client = sizeOf(*window);
    post(*window, Slot::general, ORESIZED);
}

void FormWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange) return;
    const Widget* window = windowRecord(*this);
    if (!window || session.programDepth > 0) return;
    const auto before = static_cast<QWindowStateChangeEvent*>(event)->oldState();
    if ((before & Qt::WindowMinimized) != (windowState() & Qt::WindowMinimized))
        post(*window, Slot::general, OMINIMIZED);
}

bool FormWindow::eventFilter(QObject* target, QEvent* event) {
    Widget* window = windowRecord(*this);
    if (!window || !window->data || target != dataOfWindow(*window).frame)
        return QMainWindow::eventFilter(target, event);
    switch (event->type()) {
    case QEvent::Close:
        event->ignore();
        if (!inputBlocked(this)) closeRequested(*window);
        return true;
    case QEvent::Move:
        if (dataOfWindow(*window).frame->isVisible() && !isSettling(*window)) post(*window, Slot::general, OMOVED);
        return false;
    case QEvent::WindowActivate: activated(*window); return false;
    case QEvent::WindowDeactivate: deactivated(*window); return false;
    default: return false;
    }
}

bool FormWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate) {
        Widget* window = windowRecord(*this);
        if (window && window->data && !dataOfWindow(*window).frame) {
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
