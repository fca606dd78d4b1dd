// Units, and where widgets stand in their parents.
//
// A widget keeps its distance from the edges that its origins name. With owExpand it fills its parent along each axis
// on which its origin is centred. Widgets that fill along one axis and stand against an edge are strips (a row of
// buttons at the bottom, a head panel): what fills along both axes takes the room that the strips leave.
#include "toolkit/frame/layout.h"

#include "toolkit/frame/report.h"
#include "toolkit/frame/routines.h"
#include "toolkit/frame/session.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace orba {
namespace {

constexpr int REFERENCE_WIDTH = 800;
constexpr int REFERENCE_HEIGHT = 600;
constexpr int FEWEST_CELLS = 12;
constexpr int EXPAND_PARTS = 24;

QSize screenSize() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->geometry().size() : QSize(REFERENCE_WIDTH, REFERENCE_HEIGHT);
}

bool fillsAcross(const Placement& place) { return place.expand > 0 && place.hpos == OCENTRE; }
bool fillsDown(const Placement& place) { return place.expand > 0 && place.vpos == OMIDDLE; }

// Room taken at the four edges of a client area by its strips.
struct Strips {
    int left = 0, top = 0, right = 0, bottom = 0;
};

struct Strip {
    int offset;
    int thickness;
};

// Strips stacked from an edge inward; one that stands apart takes no room.
int stacked(std::vector<Strip> strips) {
    std::sort(strips.begin(), strips.end(), [](const Strip& a, const Strip& b) { return a.offset < b.offset; });
    int taken = 0;
    for (const Strip& strip : strips) {
        if (strip.offset <= taken) taken = std::max(taken, strip.offset + strip.thickness);
    }
    return taken;
}

QSize naturalSizeOf(Widget& widget) {
    if (widget.family->naturalSize) return widget.family->naturalSize(widget);
    return widget.view ? widget.view->sizeHint() : QSize();
}

Strips stripsOf(const Widget& parent, const Widget* filler) {
    std::vector<Strip> left, top, right, bottom;
    for (Widget* child : parent.children) {
        const Placement& place = child->place;
        if (child == filler || !place.placed || place.expand == 0 || child->status == OHIDDEN) continue;
        const bool across = fillsAcross(place);
        if (across == fillsDown(place)) continue;
        const QSize natural = (across ? place.height : place.width) == 0 ? naturalSizeOf(*child) : QSize();
        if (across) {
            (place.vpos == OTOP ? top : bottom).push_back({place.y, place.height ? place.height : natural.height()});
        } else {
            (place.hpos == OLEFT ? left : right).push_back({place.x, place.width ? place.width : natural.width()});
        }
    }
    return {stacked(left), stacked(top), stacked(right), stacked(bottom)};
}

// Start and length along one axis within `room` pixels that begin at `start`.
std::pair<int, int> along(int start, int room, int length, int expand, bool fills) {
    if (!fills) return {start + (room - length) / 2, length};
    const int wanted = expand == 1 ? room : room * std::min(expand, EXPAND_PARTS) / EXPAND_PARTS;
    return {start + (room - wanted) / 2, wanted};
}

QRect rectOf(Widget& widget, const QSize& room) {
    const Placement& place = widget.place;
    const bool across = fillsAcross(place);
    const bool down = fillsDown(place);
    int width = place.width;
    int height = place.height;
    if ((width == 0 && !across) || (height == 0 && !down)) {
        const QSize natural = naturalSizeOf(widget);
        if (width == 0) width = natural.width();
        if (height == 0) height = natural.height();
    }
    Strips strips;
    if (across || down) strips = stripsOf(*widget.parent, &widget);
    int x = place.hpos == OLEFT ? place.x : room.width() - place.x - width;
    if (place.hpos == OCENTRE) {
        const int start = across && down ? strips.left : 0;
        const int end = across && down ? strips.right : 0;
        std::tie(x, width) = along(start, room.width() - start - end, width, place.expand, across);
    }
    int y = place.vpos == OTOP ? place.y : room.height() - place.y - height;
    if (place.vpos == OMIDDLE) {
        const int start = down ? strips.top : 0;
        const int end = down ? strips.bottom : 0;
        std::tie(y, height) = along(start, room.height() - start - end, height, place.expand, down);
    }
    const QSize inset = place.inset;
    return QRect(x + inset.width() / 2, y + inset.height() / 2, std::max(0, width - inset.width()),
                 std::max(0, height - inset.height()));
}

Word defineGrid(const Arguments& call) {
    const int columns = call.integer(0);
    const int rows = call.integer(1);
    const QSize screen = screenSize();
    if (columns < 1 || rows < 1 || columns > REFERENCE_WIDTH || rows > REFERENCE_HEIGHT ||
        screen.width() / (REFERENCE_WIDTH / columns) < FEWEST_CELLS ||
        screen.height() / (REFERENCE_HEIGHT / rows) < FEWEST_CELLS) {
        reportFailure(45, columns);
        return 0;
    }
    session.gridColumns = columns;
    session.gridRows = rows;
    return 0;
}

Word enquireGrid(const Arguments& call) {
    const QSize cell = gridCell();
    const QSize screen = screenSize();
    call.give<int>(0, screen.width() / cell.width());
    call.give<int>(1, screen.height() / cell.height());
    call.give<int>(2, cell.width());
    call.give<int>(3, cell.height());
    return 0;
}

Word setGridMode(const Arguments& call) {
    session.gridCells = call.integer(0) == 1;
    return 0;
}

Word enquireGridMode(const Arguments&) { return session.gridCells ? 1 : 0; }

const Registration registration({
    {Fn::owDefineGuiGrid, defineGrid},
    {Fn::owEnqGuiGrid, enquireGrid},
    {Fn::owSetGuiGridMode, setGridMode},
    {Fn::owEnqGuiGridMode, enquireGridMode},
});

} // namespace

QSize gridCell() { return {REFERENCE_WIDTH / session.gridColumns, REFERENCE_HEIGHT / session.gridRows}; }
bool gridMode() { return session.gridCells; }
int pixelsAcross(int units) { return session.gridCells ? units * gridCell().width() : units; }
int pixelsDown(int units) { return session.gridCells ? units * gridCell().height() : units; }
int unitsAcross(int pixels) { return session.gridCells ? pixels / gridCell().width() : pixels; }
int unitsDown(int pixels) { return session.gridCells ? pixels / gridCell().height() : pixels; }

void placeWidget(Widget& widget) {
    if (!widget.place.placed || !widget.view || !widget.parent) return;
    const QWidget* client = widget.view->parentWidget();
    if (!client) return;
    widget.view->setGeometry(rectOf(widget, client->size()));
}

void placeChildren(Widget& parent) {
    for (Widget* child : parent.children) placeWidget(*child);
}

void takeGeometry(Widget& widget) {
    if (!widget.view || !widget.view->parentWidget()) return;
    Placement& place = widget.place;
    const QRect view = widget.view->geometry();
    const QRect now(view.x() - place.inset.width() / 2, view.y() - place.inset.height() / 2,
                    view.width() + place.inset.width(), view.height() + place.inset.height());
    const QSize room = widget.view->parentWidget()->size();
    place.x = place.hpos == ORIGHT ? room.width() - now.x() - now.width() : now.x();
    place.y = place.vpos == OBOTTOM ? room.height() - now.y() - now.height() : now.y();
    place.width = now.width();
    place.height = now.height();
}

} // namespace orba
