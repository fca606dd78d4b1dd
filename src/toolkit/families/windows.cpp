// Master windows and dialogue boxes: creation, properties, status, and the routines on windows.
#include "toolkit/frame/windows.h"

#include "toolkit/frame/core.h"
#include "toolkit/frame/session.h"
#include "toolkit/frame/watch.h"
#include "toolkit/views/icons/icons.h"
#include "toolkit/views/window_title.h"

#include <QApplication>
#include <QCursor>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>

#include <algorithm>

namespace orba {
namespace {

constexpr int NATURAL_WIDTH = 320;
constexpr int NATURAL_HEIGHT = 240;

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

bool getWindowProperty(Widget& window, int property, Value& value) {
    switch (property) {
    case propertyOf(owXpos):
        readWindowPlace(window);
        value.integer = unitsAcross(window.place.x);
        return true;
    case propertyOf(owYpos):
        readWindowPlace(window);
        value.integer = unitsDown(window.place.y);
        return true;
    case propertyOf(owWidth): value.integer = unitsAcross(windowSize(window).width()); return true;
    case propertyOf(owHeight): value.integer = unitsDown(windowSize(window).height()); return true;
    case propertyOf(owWidgetStatus): value.integer = window.view->isVisible() ? OSELECTABLE : OHIDDEN; return true;
    default: return false;
    }
}

void setWindowState(Widget& window, int state) {
    QWidget* outer = outerOf(window);
    windowData(window).initState = state == OMAXIMIZE || state == OMINIMIZE ? state : ONORMAL;
    if (!outer->isVisible()) return;
    startSettling(window);
    switch (state) {
    case OMAXIMIZE: outer->showMaximized(); break;
    case OMINIMIZE: outer->showMinimized(); break;
    default: outer->showNormal(); break;
    }
}

bool setWindowProperty(Widget& window, int property, const Value& value) {
    if (property == propertyOf(owWindowState)) {
        setWindowState(window, value.integer);
        return true;
    }
    WindowData& data = windowData(window);
    readWindowPlace(window);
    data.client = windowSize(window);
    data.initState = ONORMAL;
    switch (property) {
    case propertyOf(owXpos): window.place.x = pixelsAcross(value.integer); break;
    case propertyOf(owYpos): window.place.y = pixelsDown(value.integer); break;
    case propertyOf(owWidth): data.client.setWidth(std::max(1, pixelsAcross(value.integer))); break;
    case propertyOf(owHeight): data.client.setHeight(std::max(1, pixelsDown(value.integer))); break;
    case propertyOf(owHpos): window.place.hpos = value.integer; break;
    case propertyOf(owVpos): window.place.vpos = value.integer; break;
    case propertyOf(owImage):
        if (auto* area = qobject_cast<QMdiArea*>(windowArea(window)))
            area->setBackground(icons::imageFromFile(value.text));
        return true;
    default: return false;
    }
    if (property == propertyOf(owWidth) || property == propertyOf(owHeight)) {
        startSettling(window);
        fitWindow(window);
    }
    const bool moved = property == propertyOf(owXpos) || property == propertyOf(owYpos);
    if (moved || window.place.hpos != OLEFT || window.place.vpos != OTOP) moveWindow(window);
    return true;
}

void setWindowStatus(Widget& window, int status) {
    if (status == OHIDDEN) {
        outerOf(window)->hide();
        return;
    }
    window.view->setEnabled(status != OUNSELECTABLE);
    if (windowData(window).shown) showWindow(window, false);
}

QString titleOf(Widget& window) { return plainTitle(window.view->windowTitle()); }

void setTitle(Widget& window, const QString& title) {
    window.view->setWindowTitle(windowTitle(title));
    if (QMdiSubWindow* frame = windowData(window).frame) frame->setWindowTitle(windowTitle(title));
}

void windowErased(Widget& window) {
    WindowData& data = windowData(window);
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
                     .erased = windowErased};
const Family mdiClients{.name = "client area"};

void setIcon(Widget& window, const QString& file, int format) {
    if (format < 0 || file.isEmpty()) return;
    const QIcon icon = icons::iconByName(file);
    window.view->setWindowIcon(icon);
    if (QMdiSubWindow* frame = windowData(window).frame) frame->setWindowIcon(icon);
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
    window.view->setWindowTitle(windowTitle(call.text(first + 5)));
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
    windowData(master).wholeWindow = mdi;
    master.client = area;
    knowObject(master, area);
    watch(area);
    setSessionState(2);
    if (mdi) {
        Widget& client = addWidget(Kind::mdiClient, mdiClients, &master, area);
        client.status = OSELECTABLE;
        const QString image = call.keywordText(owImage);
        if (!image.isEmpty()) setWindowProperty(master, propertyOf(owImage), {.integer = 0, .real = 0, .text = image});
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
    finishWindow(window, call, 1);
    window.client = area;
    knowObject(window, area);
    watch(area);
    placeNewWindow(window);
    return finishCreation(window, call);
}

QMdiArea* mdiAreaOf(const Widget& master) { return qobject_cast<QMdiArea*>(windowArea(master)); }

Word createMdiDialogue(const Arguments& call) {
    Widget* master = widgetOf(1);
    QMdiArea* area = mdiAreaOf(*master);
    if (!area) return createDialogue(call); // a program with a plain master window: a window of its own
    auto* view = new FormWindow(nullptr, Qt::Widget);
    view->setCentralWidget(new QWidget(view));
    Widget& window = addWidget(Kind::window, windows, widgetOf(call.integer(0)), view);
    finishWindow(window, call, 1);
    WindowData& data = windowData(window);
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
    case propertyOf(owWidth): area->activateNextSubWindow(); break;
    case propertyOf(owHeight): area->activatePreviousSubWindow(); break;
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
        if (found == 0 && hasText(widget) && textOf(widget) == title) found = widget.handle;
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

} // namespace
} // namespace orba
