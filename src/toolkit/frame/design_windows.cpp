#include "toolkit/frame/design_windows.h"

#include "toolkit/frame/registry.h"
#include "toolkit/frame/session.h"
#include "toolkit/frame/windows.h"

#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace orba {
namespace {

constexpr int MARGIN = 8;              // pixels between the edges of the free middle and a window in it
constexpr int CASCADE = 24;            // pixels from one window in it to the next
constexpr QSize SHOWN_WHOLE{800, 600}; // a window up to this size is never cut to the free middle...
constexpr QSize LEAST_ROOM{400, 300};  // ...and of a larger one this much shows even where that is smaller

// Asks for no more room than its window has.
class Viewport : public QScrollArea {
public:
    explicit Viewport(QWidget* parent) : QScrollArea(parent) {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
    }
    QSize sizeHint() const override { return {0, 0}; }
    QSize minimumSizeHint() const override { return {0, 0}; }
};

bool isDesignWindow(const Widget& window) {
    return window.kind == Kind::window && window.data && window.view && windowData(window).designed;
}

Viewport* viewportOf(const Widget& window) {
    if (!isDesignWindow(window)) return nullptr;
    return dynamic_cast<Viewport*>(static_cast<const QMainWindow*>(window.view.data())->centralWidget());
}

Viewport* viewportAround(QWidget* view) {
    const Widget* window = windowOf(widgetAt(view));
    Viewport* viewport = window ? viewportOf(*window) : nullptr;
    return viewport && viewport->isAncestorOf(view) ? viewport : nullptr;
}

QRect onScreen(const QWidget& view) { return {view.mapToGlobal(QPoint(0, 0)), view.size()}; }

// The client area of the master window on the screen; empty while there is none to see.
QRect freeMiddle() {
    const Widget* master = widgetOf(1);
    if (!master || !master->view || !master->client) return {};
    if (!master->view->isVisible() || master->view->isMinimized()) return {};
    return onScreen(*master->client);
}

// Whether a window there hides a part of the master window beside its client area.
bool coversControls(const QRect& window) {
    const QRect middle = freeMiddle();
    if (middle.isEmpty() || middle.contains(window)) return false;
    return widgetOf(1)->view->frameGeometry().intersects(window);
}

QSize decoration(const QWidget& view) { return view.frameGeometry().size() - view.size(); }

QRect screenOf(const QWidget& view) { return view.screen()->availableGeometry(); }

// The most that the frame of a window of that size may take.
QSize roomFor(const Widget& window, const QSize& whole) {
    const QSize screen = screenOf(*window.view).size();
    if (!windowData(window).aside || whole == whole.boundedTo(SHOWN_WHOLE)) return screen;
    const QSize middle = freeMiddle().size() - QSize(2 * MARGIN, 2 * MARGIN);
    return middle.expandedTo(LEAST_ROOM).boundedTo(screen);
}

bool isTaken(const Widget& window, const QPoint& place) {
    return std::ranges::any_of(widgetOf(1)->children, [&](const Widget* other) {
        const bool designed = isDesignWindow(*other) && other->view->isVisible();
        return other != &window && designed && other->view->pos() == place;
    });
}

// A place over the free middle, a step away from windows that stand there.
QPoint placeAside(const Widget& window, const QSize& frame) {
    const QRect middle = freeMiddle();
    const QPoint first = middle.topLeft() + QPoint(MARGIN, MARGIN);
    QPoint place = first;
    while (isTaken(window, place)) {
        place += QPoint(CASCADE, CASCADE);
        if (!middle.contains(place + QPoint(CASCADE, CASCADE))) return first;
    }
    const QRect screen = screenOf(*window.view);
    return {std::clamp(place.x(), screen.left(), std::max(screen.left(), screen.right() - frame.width())),
            std::clamp(place.y(), screen.top(), std::max(screen.top(), screen.bottom() - frame.height()))};
}

// What the window needs around its viewport: bars, as its layout has them now.
QSize barsOf(QMainWindow& view) {
    view.layout()->activate();
    if (!view.isVisible()) view.layout()->setGeometry(view.rect());
    return view.size() - view.centralWidget()->size();
}

// The part of the client area that shows where there is only `room`; scroll bars take theirs.
QSize shownPart(const QSize& client, const QSize& room) {
    const int bar = QScrollBar(Qt::Vertical).sizeHint().width();
    QSize shown = client.boundedTo(room);
    if (shown.height() < client.height()) shown.setWidth(std::min(client.width() + bar, room.width()));
    if (shown.width() < client.width()) shown.setHeight(std::min(client.height() + bar, room.height()));
    return shown;
}

} // namespace

void makeScrollable(Widget& window) {
    auto* view = static_cast<QMainWindow*>(window.view.data());
    if (viewportOf(window) || windowData(window).frame) return;
    auto* viewport = new Viewport(view);
    QWidget* area = view->takeCentralWidget();
    view->setCentralWidget(viewport);
    viewport->setWidget(area);
    area->setAutoFillBackground(false);
}

void settleDesignWindow(Widget& window) {
    auto* view = static_cast<QMainWindow*>(window.view.data());
    Viewport* viewport = viewportOf(window);
    if (!viewport || view->isMaximized() || view->isFullScreen() || view->isMinimized()) return;
    const ProgramDoing::Mark program(session.program);
    startSettling(window);
    WindowData& data = windowData(window);
    const QPoint own = ownPlaceOf(window);
    const QRect whole(own, data.client + barsOf(*view) + decoration(*view));
    data.aside = !data.placedByUser && coversControls(whole);
    // The bars take what their layout gives them; the second round finds it settled.
    for (int round = 0; round < 2; round++) {
        const QSize bars = barsOf(*view);
        const QSize shown = shownPart(data.client, roomFor(window, data.client + bars) - decoration(*view) - bars);
        viewport->widget()->setMinimumSize(shown == data.client ? QSize(0, 0) : data.client);
        view->resize(shown + bars);
    }
    barsOf(*view);
    if (!data.placedByUser || !data.shown) view->move(data.aside ? placeAside(window, view->frameSize()) : own);
}

void settleDesignWindows() {
    const Widget* master = widgetOf(1);
    if (!master) return;
    for (Widget* window : master->children)
        if (isDesignWindow(*window) && window->view->isVisible() && !windowData(*window).placedByUser)
            settleDesignWindow(*window);
}

void designBarsChanged(Widget& window) {
    const Viewport* viewport = viewportOf(window);
    if (!viewport || !windowData(window).shown || viewport->widget()->size() == windowData(window).client) return;
    // A pane takes its room from the client area, as it does in the program.
    const auto isPane = [](const Widget* child) { return child->kind == Kind::dockingPane; };
    if (std::ranges::none_of(window.children, isPane)) settleDesignWindow(window);
}

void designWindowResized(Widget& window) {
    Viewport* viewport = viewportOf(window);
    if (!viewport) return;
    const QSize wanted = windowData(window).client;
    if (viewport->size() == viewport->size().expandedTo(wanted)) viewport->widget()->setMinimumSize(0, 0);
}

void showPoint(QWidget* view, const QPoint& global) {
    Viewport* scroller = viewportAround(view);
    if (!scroller) return;
    const QPoint at = scroller->widget()->mapFromGlobal(global);
    constexpr int BORDER = 4;
    scroller->ensureVisible(at.x(), at.y(), BORDER, BORDER);
}

void showView(QWidget* view) {
    Viewport* scroller = viewportAround(view);
    if (scroller && view->isVisible() && view->visibleRegion().isEmpty()) scroller->ensureWidgetVisible(view);
}

} // namespace orba
