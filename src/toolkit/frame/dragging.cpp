// Drag and drop between widgets, and files dropped from elsewhere.
//
// A widget with owDragMode can be dragged: it tells Drag Select when the drag begins and Drag Move on its way, with the
// handle of the widget below as status. A widget with a Drag Drop callback takes it: status is the handle of the
// source. A widget with a File Drop callback takes files: the text holds their names, parted by bars.
#include "toolkit/frame/dragging.h"

#include "toolkit/frame/events.h"
#include "toolkit/frame/layout.h"
#include "toolkit/frame/registry.h"
#include "toolkit/frame/routines.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>
#include <QPointer>
#include <QUrl>

namespace orba {
namespace {

const QString MIME = QStringLiteral("application/x-orbawidg-handle");

struct Pressed {
    int handle = 0;
    QPoint global;
};
Pressed pressed;

// The outline that a program gave a widget for its drags.
struct Shape {
    int handle;
    QRect rect;
    QPolygonF polygon;
};
std::vector<Shape> shapes;

const Shape* shapeOf(int handle) {
    for (const Shape& shape : shapes) {
        if (shape.handle == handle) return &shape;
    }
    return nullptr;
}

void forgetShape(int handle) {
    std::erase_if(shapes, [handle](const Shape& shape) { return shape.handle == handle; });
}

QPixmap dragPicture(const Widget& widget) {
    const Shape* shape = shapeOf(widget.handle);
    if (!shape) return widget.view->grab();
    const QRect bounds = shape->polygon.isEmpty() ? shape->rect : shape->polygon.boundingRect().toAlignedRect();
    QPixmap picture(bounds.size() + QSize(1, 1));
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.translate(-bounds.topLeft());
    painter.setPen(QPen(QApplication::palette().color(QPalette::Highlight), 1, Qt::DashLine));
    if (shape->polygon.isEmpty()) {
        painter.drawRect(shape->rect);
    } else {
        painter.drawPolygon(shape->polygon);
    }
    return picture;
}

void startDrag(const Widget& widget) {
    post(widget, Slot::dragSelect, 0, widget.view->mapFromGlobal(pressed.global));
    auto* drag = new QDrag(widget.view);
    auto* data = new QMimeData;
    data->setData(MIME, QByteArray::number(widget.handle));
    drag->setMimeData(data);
    drag->setPixmap(dragPicture(widget));
    drag->setHotSpot(widget.view->mapFromGlobal(pressed.global));
    const QPointer<QWidget> view = widget.view;
    drag->exec(Qt::MoveAction | Qt::CopyAction, Qt::MoveAction);
    // The button that was pressed gets no release of its own.
    if (view) QApplication::postEvent(view, new QEvent(QEvent::Leave));
}

int sourceOf(const QMimeData* data) { return data->hasFormat(MIME) ? data->data(MIME).toInt() : 0; }

QString filesOf(const QMimeData* data) {
    QStringList files;
    for (const QUrl& url : data->urls()) {
        if (url.isLocalFile()) files << url.toLocalFile();
    }
    return files.join(QLatin1Char('|'));
}

// The widget or the nearest of its parents that takes what is dragged.
const Widget* takerOf(QObject* target, const QMimeData* data) {
    const bool ours = sourceOf(data) != 0;
    const Slot slot = ours ? Slot::dragDrop : Slot::fileDrop;
    if (!ours && filesOf(data).isEmpty()) return nullptr;
    const Widget* widget = widgetAt(target);
    while (widget && !hasCallback(*widget, slot)) widget = widget->parent;
    return widget;
}

void tellMove(QObject* target, const QDropEvent& event) {
    const Widget* source = widgetOf(sourceOf(event.mimeData()));
    const Widget* below = widgetAt(target);
    if (source && below) post(*source, Slot::dragMove, below->handle, event.position());
}

bool drop(QObject* target, QDropEvent& event) {
    const Widget* taker = takerOf(target, event.mimeData());
    if (!taker) return false;
    const QPointF position =
        taker->view ? taker->view->mapFromGlobal(static_cast<QWidget*>(target)->mapToGlobal(event.position()))
                    : event.position();
    if (const int source = sourceOf(event.mimeData())) {
        post(*taker, Slot::dragDrop, source, position);
    } else {
        post(*taker, Slot::fileDrop, 0, position, filesOf(event.mimeData()));
    }
    event.acceptProposedAction();
    return true;
}

Word defineRect(const Arguments& call) {
    const int handle = call.integer(0);
    forgetShape(handle);
    shapes.push_back({handle,
                      QRect(pixelsAcross(call.integer(1)), pixelsDown(call.integer(2)), pixelsAcross(call.integer(3)),
                            pixelsDown(call.integer(4))),
                      {}});
    return 0;
}

Word defineShape(const Arguments& call) {
    const int handle = call.integer(0);
    const auto* x = call.record<const float>(2);
    const auto* y = call.record<const float>(3);
    forgetShape(handle);
    Shape shape{handle, {}, {}};
    for (int i = 0; x && y && i < call.integer(1); i++) shape.polygon << QPointF(x[i], y[i]);
    if (!shape.polygon.isEmpty()) shapes.push_back(shape);
    return 0;
}

const Registration registration({
    {Fn::owDefineDragRect, defineRect},
    {Fn::owDefineDragShape, defineShape},
});

} // namespace

bool dragEvent(QObject* target, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto& press = *static_cast<QMouseEvent*>(event);
        const Widget* widget = widgetAt(target);
        if (widget && widget->dragMode == OON && press.button() == Qt::LeftButton) {
            pressed = {widget->handle, press.globalPosition().toPoint()};
        }
        return false;
    }
    case QEvent::MouseButtonRelease: pressed = {}; return false;
    case QEvent::MouseMove: {
        const auto& move = *static_cast<QMouseEvent*>(event);
        const Widget* widget = widgetOf(pressed.handle);
        if (!widget || !widget->view || !(move.buttons() & Qt::LeftButton)) return false;
        const QPoint way = move.globalPosition().toPoint() - pressed.global;
        if (way.manhattanLength() < QApplication::startDragDistance()) return false;
        startDrag(*widget);
        pressed = {};
        return true;
    }
    case QEvent::DragEnter:
    case QEvent::DragMove: {
        auto& move = *static_cast<QDragMoveEvent*>(event);
        if (event->type() == QEvent::DragMove) tellMove(target, move);
        if (!takerOf(target, move.mimeData())) return false;
        move.acceptProposedAction();
        return true;
    }
    case QEvent::Drop: return drop(target, *static_cast<QDropEvent*>(event));
    default: return false;
    }
}

} // namespace orba
