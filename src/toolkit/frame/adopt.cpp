// The adopted widget: eight handles around it, moving and resizing by mouse, one event at the end of a drag.
//
// While a widget is adopted its mouse belongs to the frame. A press is held back until it turns out to be a drag or a
// click; a click is given to the widget afterwards, so that it can still be worked.
#include "toolkit/frame/adopt.h"

#include "toolkit/frame/design_windows.h"
#include "toolkit/frame/designing.h"
#include "toolkit/frame/events.h"
#include "toolkit/frame/keys.h"
#include "toolkit/frame/layout.h"
#include "toolkit/frame/registry.h"
#include "toolkit/frame/report.h"
#include "toolkit/frame/routines.h"
#include "toolkit/frame/session.h"
#include "toolkit/frame/windows.h"
#include "toolkit/views/outline.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace orba {
namespace {

constexpr int HANDLE_SIZE = 7;
constexpr int DRAG_DISTANCE = 3;
constexpr int SMALLEST = 4; // pixels that a widget keeps

// What a handle moves: -1 the left or top edge, 1 the right or bottom edge, 0 neither.
struct Grip {
    int across, down;
    Qt::CursorShape cursor;
};
constexpr Grip grips[] = {
    {-1, -1, Qt::SizeFDiagCursor}, {0, -1, Qt::SizeVerCursor}, {1, -1, Qt::SizeBDiagCursor}, {1, 0, Qt::SizeHorCursor},
    {1, 1, Qt::SizeFDiagCursor},   {0, 1, Qt::SizeVerCursor},  {-1, 1, Qt::SizeBDiagCursor}, {-1, 0, Qt::SizeHorCursor},
};
constexpr int GRIPS = static_cast<int>(std::size(grips));

class HandleView : public QWidget {
public:
    HandleView(QWidget* parent, int number) : QWidget(parent), grip(number) {
        setObjectName(QStringLiteral("adoption-handle-%1").arg(number));
        setFixedSize(HANDLE_SIZE, HANDLE_SIZE);
        setCursor(grips[number].cursor);
    }
    int grip;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QPalette colours = QApplication::palette();
        painter.fillRect(rect(), colours.color(QPalette::Base));
        painter.fillRect(rect().adjusted(1, 1, -1, -1), colours.color(QPalette::Highlight));
    }
};

struct LastPress {
    int handle = 0;
    quint64 time = 0;
    QPoint at;
};

class Adoption : public QObject {
public:
    Adoption(Widget& widget, int movedIdentifier, int doubleClickIdentifier)
        : handle(widget.handle), view(widget.view), moved(movedIdentifier), doubleClick(doubleClickIdentifier) {
        content = designRoomOf(view);
        for (int i = 0; i < GRIPS; i++) handles[i] = new HandleView(content, i);
        outline = new OutlineView(content);
        outline->setObjectName(QStringLiteral("adoption-outline"));
        followHandles();
        qApp->installEventFilter(this);
    }

    ~Adoption() override {
        qApp->removeEventFilter(this);
        for (const auto& one : handles) delete one.data();
        delete outline.data();
    }

    const int handle;

    bool eventFilter(QObject* target, QEvent* event) override {
        if (replaying || !view) return false;
        switch (event->type()) {
        case QEvent::MouseButtonPress: return pressed(target, *static_cast<QMouseEvent*>(event));
        case QEvent::MouseMove: return pointerMoved(*static_cast<QMouseEvent*>(event));
        case QEvent::MouseButtonRelease: return released(*static_cast<QMouseEvent*>(event));
        case QEvent::MouseButtonDblClick: return doubleClicked(target, *static_cast<QMouseEvent*>(event));
        case QEvent::KeyPress: return keyPressed(*static_cast<QKeyEvent*>(event));
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::Hide:
            if (target == view || (target->isWidgetType() && static_cast<QWidget*>(target)->isAncestorOf(view)))
                followHandles();
            return false;
        case QEvent::ChildAdded:
            if (target == content)
                QMetaObject::invokeMethod(
                    this, [this] { raiseHandles(); }, Qt::QueuedConnection);
            return false;
        default: return false;
        }
    }

private:
    bool ownsMouse(const QObject* target) const {
        if (!target->isWidgetType()) return false;
        const auto* widget = static_cast<const QWidget*>(target);
        return widget == view || (view->isAncestorOf(widget) && widget->window() == view->window());
    }

    // A click that was handed on to the widget keeps Qt from seeing a double click in the next one. What is adopted
    // anew between the two is the same widget.
    bool repeatsPress(const QMouseEvent& event) const {
        static LastPress last;
        const QPoint at = event.globalPosition().toPoint();
        const bool repeats = last.handle == handle && event.timestamp() > last.time &&
                             event.timestamp() - last.time < quint64(QApplication::doubleClickInterval()) &&
                             (at - last.at).manhattanLength() < QApplication::startDragDistance();
        last = repeats ? LastPress() : LastPress{handle, event.timestamp(), at};
        return repeats;
    }

    bool pressed(QObject* target, const QMouseEvent& event) {
        if (event.button() != Qt::LeftButton || drag != Drag::none || inputBlocked(target)) return false;
        const auto* handleView = dynamic_cast<HandleView*>(target);
        const bool onHandle = handleView && handleView->parentWidget() == content;
        if (!onHandle && !ownsMouse(target)) return false;
        if (!onHandle && repeatsPress(event)) return doubleClicked(target, event);
        inputByUser();
        session.lastKey = OKEYLEFTBUTTON;
        grip = onHandle ? handleView->grip : -1;
        pressTarget = onHandle ? nullptr : static_cast<QWidget*>(target);
        start = event.globalPosition().toPoint();
        startInContent = content->mapFromGlobal(start);
        startRect = view->geometry();
        drag = Drag::pressed;
        return true;
    }

    bool pointerMoved(const QMouseEvent& event) {
        if (drag == Drag::none) return false;
        const QPoint pointer = event.globalPosition().toPoint();
        if (drag == Drag::pressed) {
            if ((pointer - start).manhattanLength() < DRAG_DISTANCE) return true;
            drag = Drag::dragging;
        }
        if (drag == Drag::dragging) step(pointer);
        return true;
    }

    bool released(const QMouseEvent& event) {
        if (event.button() != Qt::LeftButton || drag == Drag::none) return false;
        const Drag was = std::exchange(drag, Drag::none);
        outline->hide();
        if (was == Drag::dragging) {
            finish(event.globalPosition().toPoint());
        } else if (was == Drag::pressed && pressTarget) {
            replayClick();
        }
        return true;
    }

    bool doubleClicked(QObject* target, const QMouseEvent& event) {
        if (event.button() != Qt::LeftButton || !ownsMouse(target) || inputBlocked(target)) return false;
        drag = Drag::swallowed;
        postIdentifier(doubleClick, handle, session.lastKey, 0, view->mapFromGlobal(event.globalPosition()));
        return true;
    }

    bool keyPressed(const QKeyEvent& event) {
        if (drag != Drag::dragging || event.key() != Qt::Key_Escape) return false;
        view->setGeometry(startRect);
        outline->hide();
        drag = Drag::swallowed;
        return true;
    }

    static int snapped(int distance) {
        return static_cast<int>(std::lround(static_cast<double>(distance) / session.snap)) * session.snap;
    }

    QPoint insideContent(const QPoint& global) const {
        const QPoint local = content->mapFromGlobal(global);
        const QPoint clamped(std::clamp(local.x(), 0, std::max(0, content->width() - 1)),
                             std::clamp(local.y(), 0, std::max(0, content->height() - 1)));
        return content->mapToGlobal(clamped);
    }

    void step(const QPoint& pointer) {
        showPoint(view, insideContent(pointer));
        const QPoint distance = content->mapFromGlobal(insideContent(pointer)) - startInContent;
        const int dx = snapped(distance.x());
        const int dy = snapped(distance.y());
        QRect rect = startRect;
        if (grip < 0) {
            rect.translate(dx, dy);
        } else {
            const Grip& edges = grips[grip];
            if (edges.across < 0) rect.setLeft(std::min(rect.left() + dx, rect.right() + 1 - SMALLEST));
            if (edges.across > 0) rect.setRight(std::max(rect.right() + dx, rect.left() - 1 + SMALLEST));
            if (edges.down < 0) rect.setTop(std::min(rect.top() + dy, rect.bottom() + 1 - SMALLEST));
            if (edges.down > 0) rect.setBottom(std::max(rect.bottom() + dy, rect.top() - 1 + SMALLEST));
        }
        view->setGeometry(rect);
        outline->showAround(rectInContent(), readoutOf(*widgetOf(handle), rect));
    }

    void finish(const QPoint& pointer) {
        Widget* widget = widgetOf(handle);
        if (!widget || view->geometry() == startRect) return;
        takeGeometry(*widget);
        const int parent = widget->parent ? widget->parent->handle : 0;
        const int under = grip >= 0 ? parent : widgetUnder(insideContent(pointer));
        postIdentifier(moved, handle, session.lastKey, under, view->mapFromGlobal(QPointF(pointer)));
        addCorner(widgetOf(under));
    }

    // Two values with the event: where the widget's top left corner lies in what it was dropped on, in pixels.
    void addCorner(Widget* under) const {
        const QWidget* room = under ? clientOf(under) : nullptr;
        if (!room) return;
        const QPoint corner = room->mapFromGlobal(view->mapToGlobal(QPoint(0, 0)));
        for (const int value : {corner.x(), corner.y()}) addEventValue(static_cast<float>(value), value);
    }

    // The innermost widget below the pointer that is no part of the adopted one.
    int widgetUnder(const QPoint& global) const {
        const QWidget* found = content;
        for (bool deeper = true; deeper;) {
            deeper = false;
            const QPoint point = found->mapFromGlobal(global);
            const QObjectList& children = found->children();
            for (qsizetype i = children.size(); i-- > 0 && !deeper;) {
                if (!children[i]->isWidgetType()) continue;
                const auto* child = static_cast<const QWidget*>(children[i]);
                if (child == view || child->isWindow() || !child->isVisible() || isOurs(child)) continue;
                if (!child->geometry().contains(point)) continue;
                found = child;
                deeper = true;
            }
        }
        const Widget* widget = widgetAt(found);
        return widget ? widget->handle : 0;
    }

    bool isOurs(const QWidget* widget) const {
        return widget == outline ||
               std::any_of(std::begin(handles), std::end(handles), [widget](const auto& one) { return one == widget; });
    }

    void replayClick() {
        replaying = true;
        const QPointer<QWidget> target = pressTarget;
        const QPointer<Adoption> self = this;
        const QPointF global(start);
        for (QWidget* focus = target; focus; focus = focus->parentWidget()) {
            if (!(focus->focusPolicy() & Qt::ClickFocus)) continue;
            focus->setFocus(Qt::MouseFocusReason);
            break;
        }
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            if (!target) break;
            const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
            const QPointF local = target->mapFromGlobal(global);
            QMouseEvent click(type, local, target->window()->mapFromGlobal(global), global, Qt::LeftButton, held,
                              QGuiApplication::keyboardModifiers());
            QApplication::sendEvent(target, &click);
        }
        if (self) replaying = false;
    }

    QRect rectInContent() const { return QRect(view->mapTo(content, QPoint(0, 0)), view->size()); }

    void followHandles() {
        const bool shown = view->isVisibleTo(content);
        const QRect rect = rectInContent();
        for (int i = 0; i < GRIPS; i++) {
            if (!handles[i]) continue;
            const int x = rect.center().x() + grips[i].across * (rect.width() / 2);
            const int y = rect.center().y() + grips[i].down * (rect.height() / 2);
            handles[i]->move(x - HANDLE_SIZE / 2, y - HANDLE_SIZE / 2);
            handles[i]->setVisible(shown);
            handles[i]->raise();
        }
    }

    void raiseHandles() {
        for (const auto& one : handles) {
            if (one) one->raise();
        }
    }

    enum class Drag { none, pressed, dragging, swallowed };

    QPointer<QWidget> view;
    QPointer<QWidget> content;
    QPointer<HandleView> handles[GRIPS];
    QPointer<OutlineView> outline;
    QPointer<QWidget> pressTarget;
    const int moved;
    const int doubleClick;
    Drag drag = Drag::none;
    int grip = -1; // -1 moves the whole widget
    QPoint start;
    QPoint startInContent; // it may be scrolled meanwhile
    QRect startRect;
    bool replaying = false;
};

Adoption* adoption = nullptr;

void endAdoption() {
    delete adoption;
    adoption = nullptr;
}

Word adoptChild(const Arguments& call) {
    const int handle = call.integer(0);
    endAdoption();
    if (handle == 0) return 0;
    Widget* widget = widgetOf(handle);
    if (!widget) {
        reportFailure(26, handle);
        return 0;
    }
    if (!widget->view || !widget->place.placed) {
        reportFailure(67, handle);
        return 0;
    }
    showView(widget->view);
    adoption = new Adoption(*widget, call.integer(1), call.integer(2));
    return 0;
}

Word setSnapGrid(const Arguments& call) {
    session.snap = call.integer(0);
    return 0;
}

Word enquireSnapGrid(const Arguments&) { return session.snap; }

const Registration registration({
    {Fn::owAdoptChild, adoptChild},
    {Fn::owSetSnapGrid, setSnapGrid},
    {Fn::owEnqSnapGrid, enquireSnapGrid},
});

} // namespace

void adoptedErased(int handle) {
    if (adoption && adoption->handle == handle) endAdoption();
}

} // namespace orba
