// What the frame sees of every view: client areas that change size, double clicks, pointer moves, bubble help.
#include "toolkit/frame/watch.h"

#include "toolkit/frame/dragging.h"
#include "toolkit/frame/events.h"
#include "toolkit/frame/layout.h"
#include "toolkit/frame/registry.h"
#include "toolkit/frame/session.h"

#include <QEvent>
#include <QMouseEvent>

namespace orba {
namespace {

// Families that know which row was meant post these themselves.
bool postsDoubleClicks(Kind kind) {
    switch (kind) {
    case Kind::listBox:
    case Kind::treeView:
    case Kind::tableBox:
    case Kind::array:
    case Kind::propertyList: return true;
    default: return false;
    }
}

QPointF positionIn(const Widget& widget, const QMouseEvent& event) {
    return widget.view ? widget.view->mapFromGlobal(event.globalPosition()) : QPointF();
}

// A mouse event that nobody takes wanders up through the parents; the frame acts on its first station only.
bool seenBefore(const QMouseEvent& event) {
    static quint64 time = 0;
    static QEvent::Type type = QEvent::None;
    static QPointF position;
    const bool same = event.timestamp() != 0 && event.timestamp() == time && event.type() == type &&
                      event.globalPosition() == position;
    time = event.timestamp();
    type = event.type();
    position = event.globalPosition();
    return same;
}

class ViewFilter : public QObject {
public:
    bool eventFilter(QObject* target, QEvent* event) override {
        switch (event->type()) {
        case QEvent::Resize: resized(target); return false;
        case QEvent::Move: scrolled(target); return false;
        case QEvent::ChildAdded: childAdded(*static_cast<QChildEvent*>(event)); return false;
        case QEvent::MouseButtonDblClick: doubleClicked(target, *static_cast<QMouseEvent*>(event)); return false;
        case QEvent::MouseMove: moved(target, *static_cast<QMouseEvent*>(event)); return dragEvent(target, event);
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop: return dragEvent(target, event);
        case QEvent::ToolTip: return !session.bubbleHelp;
        default: return false;
        }
    }

private:
    static void resized(QObject* target) {
        Widget* widget = widgetAt(target);
        if (widget && clientOf(widget) == target) placeChildren(*widget);
    }

    // A client area moves in its panel only when it is scrolled.
    static void scrolled(const QObject* target) {
        Widget* widget = widgetAt(target);
        if (!widget || widget->kind != Kind::panel || widget->client != target || widget->view == target) return;
        if (const Widget* window = windowOf(widget)) post(*window, Slot::general, OSCROLLED);
    }

    // Inner parts of a view, such as viewports, get the mouse in its place.
    void childAdded(const QChildEvent& event) {
        if (event.child()->isWidgetType()) event.child()->installEventFilter(this);
    }

    static void doubleClicked(QObject* target, const QMouseEvent& event) {
        const Widget* widget = widgetAt(target);
        if (!widget || event.button() != Qt::LeftButton || postsDoubleClicks(widget->kind) || seenBefore(event)) return;
        post(*widget, Slot::doubleClick, 0, positionIn(*widget, event));
    }

    static void moved(QObject* target, const QMouseEvent& event) {
        const Widget* widget = widgetAt(target);
        if (!widget || !hasCallback(*widget, Slot::move)) return;
        post(*widget, Slot::move, static_cast<int>(event.buttons()), positionIn(*widget, event));
    }
};

ViewFilter& filter() {
    static ViewFilter instance;
    return instance;
}

} // namespace

void watch(QWidget* view) {
    view->installEventFilter(&filter());
    for (QWidget* child : view->findChildren<QWidget*>()) child->installEventFilter(&filter());
}

} // namespace orba
