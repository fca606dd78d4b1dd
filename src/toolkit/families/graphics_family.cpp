// Graphics frames: creation, limits, mouse and expose events.
#include "toolkit/families/graphics_family.h"

#include "toolkit/families/family_support.h"
#include "toolkit/views/text/program_text.h"

#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QMouseEvent>

namespace orba {
namespace {

constexpr int drawingUnits = -1; // status of an event whose position is in drawing units

struct FrameData : FamilyData {
    int frameType = OGDI;
    bool exposePosted = false;
};

// Limits of a frame; ones that span nothing are refused.
bool goodLimits(const OLIMIT* limits) {
    if (!limits) return false;
    for (float one : {limits->xmin, limits->xmax, limits->ymin, limits->ymax})
        if (!std::isfinite(one)) return false;
    return limits->xmin != limits->xmax && limits->ymin != limits->ymax;
}

QRectF rectOf(const OLIMIT& limits) {
    return {limits.xmin, limits.ymin, double(limits.xmax) - limits.xmin, double(limits.ymax) - limits.ymin};
}

OLIMIT limitsOf(const QRectF& rect) {
    return {float(rect.left()), float(rect.right()), float(rect.top()), float(rect.bottom())};
}

class FrameMouse : public QObject {
public:
    FrameMouse(GraphicsFrame* frame, int handle) : QObject(frame), frame_(frame), handle_(handle) {
        frame->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonRelease) return false;
        auto* mouse = static_cast<QMouseEvent*>(event);
        Widget* widget = widgetOf(handle_);
        if (!widget || mouse->button() != Qt::LeftButton) return false;
        if (drawing().frame != handle_) activateFrame(*widget);
        const QPointF at = Mapping({frame_->limits(), {0, 0, 1, 1}}, frame_->size()).toUnits(mouse->position());
        post(handle_, event->type() == QEvent::MouseButtonPress ? Slot::select : Slot::general, drawingUnits, at);
        event->accept(); // what lies around the frame has not been clicked
        return true;
    }

private:
    GraphicsFrame* frame_;
    int handle_;
};

bool getFrameProperty(Widget& widget, int property, Value& value) {
    if (property != propertyOf(owFrameType)) return false;
    value.integer = dataOf<FrameData>(widget).frameType;
    return true;
}

void enquireInfo(Widget& widget, OWIDGET& info) {
    const OLIMIT limits = limitsOf(frameOf(&widget)->limits());
    info.value = limits.xmin;
    info.vmin = limits.xmax;
    info.vmax = limits.ymin;
    info.step = limits.ymax;
}

void erased(Widget& widget) {
    if (drawing().frame == widget.handle) drawing().frame = 0;
}

QSize naturalSize(Widget&) { return {200, 150}; }

const Family frames{.name = "graphics frame",
                    .get = getFrameProperty,
                    .naturalSize = naturalSize,
                    .enquireInfo = enquireInfo,
                    .erased = erased};

// One expose event however often the frame came to light before the program reads it. The event is made outside the
// call that shows the frame, for what a program does itself raises none.
void postExpose(int handle) {
    Widget* widget = widgetOf(handle);
    if (!widget || std::exchange(dataOf<FrameData>(*widget).exposePosted, true)) return;
    QMetaObject::invokeMethod(
        widget->view,
        [handle] {
            Widget* shown = widgetOf(handle);
            if (!shown) return;
            dataOf<FrameData>(*shown).exposePosted = false;
            post(handle, Slot::expose);
        },
        Qt::QueuedConnection);
}

Word createFrame(const Arguments& call) {
    const auto* limits = call.record<const OLIMIT>(5);
    if (!goodLimits(limits)) {
        reportFailure(10, 0);
        return 0;
    }
    auto* frame = new GraphicsFrame(clientOf(call));
    auto data = std::make_unique<FrameData>();
    data->frameType = call.keyword(owFrameType);
    const Kind kind = data->frameType == OOPENGL ? Kind::openGlFrame : Kind::graphicsFrame;
    Widget& widget = addWidget(kind, frames, call, frame, std::move(data));
    frame->setLimits(rectOf(*limits));
    new FrameMouse(frame, widget.handle);
    frame->exposed = [handle = widget.handle] { postExpose(handle); };
    activateFrame(widget);
    return finishCreation(widget, call);
}

Word activate(const Arguments& call) {
    activateFrame(*widgetOf(call.integer(0)));
    return 0;
}

Word clear(const Arguments& call) {
    frameOf(widgetOf(call.integer(0)))->clear(QColor());
    return 0;
}

Word setBounds(const Arguments& call) {
    const auto* limits = call.record<const OLIMIT>(1);
    if (!goodLimits(limits)) {
        reportFailure(10, call.integer(0));
        return 0;
    }
    Widget& widget = *widgetOf(call.integer(0));
    frameOf(&widget)->setLimits(rectOf(*limits));
    if (drawing().frame == widget.handle) drawing().view.window = rectOf(*limits);
    return 0;
}

Word enquireBounds(const Arguments& call) {
    if (auto* limits = call.record<OLIMIT>(1)) *limits = limitsOf(frameOf(widgetOf(call.integer(0)))->limits());
    return 0;
}

Word enquirePixels(const Arguments& call) {
    const GraphicsFrame& frame = *frameOf(widgetOf(call.integer(0)));
    call.give(1, frame.width());
    call.give(2, frame.height());
    return 0;
}

// Pixels count from the top left of the frame, as positions of events do.
Word enquirePixelPosition(const Arguments& call) {
    const GraphicsFrame* frame = activeFrame();
    const QPointF pixel =
        frame ? Mapping(drawing().view, frame->size()).toPixel({call.real(0), call.real(1)}) : QPointF();
    call.give(2, int(std::lround(pixel.x())));
    call.give(3, int(std::lround(pixel.y())));
    return 0;
}

Word enquirePositionOfPixel(const Arguments& call) {
    const GraphicsFrame* frame = activeFrame();
    const QPointF at =
        frame ? Mapping(drawing().view, frame->size()).toUnits(QPointF(call.integer(0), call.integer(1))) : QPointF();
    call.give(2, float(at.x()));
    call.give(3, float(at.y()));
    return 0;
}

QImage pictureOf(Widget& widget) {
    if (const GraphicsFrame* frame = frameOf(&widget)) return frame->picture();
    return widget.view ? widget.view->grab().toImage() : QImage();
}

Word dumpImage(const Arguments& call) {
    const QString file = fromProgram(trimmedBytes(call.bytes(1)));
    return pictureOf(*widgetOf(call.integer(0))).save(file, QFileInfo(file).suffix().isEmpty() ? "PNG" : nullptr) ? 1
                                                                                                                  : 0;
}

Word copyToClipboard(const Arguments& call) {
    QApplication::clipboard()->setImage(pictureOf(*widgetOf(call.integer(0))));
    return 0;
}

Word savePng(const Arguments& call) {
    const GraphicsFrame* frame = activeFrame();
    return frame && frame->picture().save(fromProgram(trimmedBytes(call.bytes(0))), "PNG") ? 1 : 0;
}

const Registration registration({
    {Fn::owCreateGraphicsFrame, createFrame},
    {Fn::owActivateGraphicsFrame, activate},
    {Fn::owClearGraphicsFrame, clear},
    {Fn::owSetGraphicsFrameBounds, setBounds},
    {Fn::owEnqGraphicsFrameBounds, enquireBounds},
    {Fn::owEnqGraphicsPixelBounds, enquirePixels},
    {Fn::owEnqPixelPos, enquirePixelPosition},
    {Fn::owEnqPosofPixel, enquirePositionOfPixel},
    {Fn::owDumpImage, dumpImage},
    {Fn::owCopyGraphicsToClipboard, copyToClipboard},
    {Fn::oSavePng, savePng},
});

} // namespace

DrawingState& drawing() {
    static DrawingState state;
    return state;
}

GraphicsFrame* frameOf(Widget* widget) {
    if (!widget || (widget->kind != Kind::graphicsFrame && widget->kind != Kind::openGlFrame)) return nullptr;
    return static_cast<GraphicsFrame*>(widget->view.data());
}

GraphicsFrame* activeFrame() { return frameOf(widgetOf(drawing().frame)); }

void activateFrame(Widget& widget) {
    drawing().frame = widget.handle;
    drawing().view = {frameOf(&widget)->limits(), {0, 0, 1, 1}};
}

} // namespace orba
