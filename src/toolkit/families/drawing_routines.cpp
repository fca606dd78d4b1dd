// The drawing routines of the base library: each adds to the list of the active graphics frame. Without one, drawing
// goes nowhere; attributes and the current position are kept all the same.
#include "toolkit/families/family_support.h"
#include "toolkit/families/graphics_family.h"
#include "toolkit/views/icons/icons.h"
#include "toolkit/views/text/program_text.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QThread>
#include <cmath>

namespace orba {
namespace {

constexpr int mostPoints = 10000000;
constexpr int invisible = -1;

template <typename Item> void draw(Item item) {
    if (GraphicsFrame* frame = activeFrame()) frame->add({drawing().view, std::move(item)});
}

Pen penInForce() {
    Pen pen = drawing().pen;
    pen.colour = colourOf(drawing().lineColour);
    return pen;
}

Fill fillInForce() {
    Fill fill = drawing().fill;
    fill.colour = colourOf(drawing().fillColour);
    return fill;
}

void drawLine(std::vector<QPointF> points) {
    if (drawing().pen.style != invisible) draw(LineItem{std::move(points), penInForce(), false, {}});
}

// A rectangle or polygon: filled, and outlined where the fill is none or a hatch.
void drawArea(std::vector<QPointF> points) {
    const Fill fill = fillInForce();
    Pen pen = penInForce();
    if (fill.style == 1) pen = {fill.colour, 0, 0, 1};
    draw(LineItem{std::move(points), pen, true, fill});
}

// ------------------------------------------------------------------------------------------------- attributes

Word setLineColour(const Arguments& call) {
    drawing().lineColour = std::max(call.integer(0), 0);
    return 0;
}
Word enquireLineColour(const Arguments& call) {
    call.give(0, drawing().lineColour);
    return 0;
}
Word setLineStyle(const Arguments& call) {
    drawing().pen.style = std::clamp(call.integer(0), invisible, 3);
    return 0;
}
Word setLineWidth(const Arguments& call) {
    drawing().pen.width = std::max(call.real(0), 0.0);
    if (drawing().pen.width == 0) drawing().pen.pixels = 1;
    return 0;
}
Word setLineWidthPixel(const Arguments& call) {
    drawing().pen.width = 0;
    drawing().pen.pixels = std::clamp(call.integer(0), 1, 1000);
    return 0;
}
Word setFillMode(const Arguments& call) {
    drawing().fill.style = std::clamp(call.integer(0), 0, 6);
    drawing().fillColour = std::max(call.integer(1), 0);
    return 0;
}
Word setMarkerSize(const Arguments& call) {
    drawing().markerSize = std::max(call.real(0), 0.0);
    return 0;
}
Word setCharSize(const Arguments& call) {
    drawing().letters.width = std::max(call.real(0), 0.0);
    drawing().letters.height = std::max(call.real(1), 0.0);
    return 0;
}
Word setCharFont(const Arguments& call) {
    drawing().letters.face = call.text(0);
    return 0;
}
Word setAngle(const Arguments& call) {
    drawing().letters.angle = std::fmod(call.real(0), 360.0);
    return 0;
}
Word setJustify(const Arguments& call) {
    drawing().letters.justify = std::clamp(call.integer(0), -1, 1);
    return 0;
}

// ------------------------------------------------------------------------------------------------------ lines

Word moveTo(const Arguments& call) {
    drawing().at = {call.real(0), call.real(1)};
    return 0;
}
Word moveBy(const Arguments& call) {
    drawing().at += QPointF(call.real(0), call.real(1));
    return 0;
}

void lineTo(const QPointF& end) {
    drawLine({drawing().at, end});
    drawing().at = end;
}
Word lineTo2D(const Arguments& call) {
    lineTo({call.real(0), call.real(1)});
    return 0;
}
Word lineBy2D(const Arguments& call) {
    lineTo(drawing().at + QPointF(call.real(0), call.real(1)));
    return 0;
}

std::vector<QPointF> pointsOf(const Arguments& call) {
    const auto* points = call.record<const OPOINT>(1);
    const int count = points ? std::clamp(call.integer(0), 0, mostPoints) : 0;
    std::vector<QPointF> result;
    result.reserve(std::size_t(count) + 1);
    for (int i = 0; i < count; ++i) result.emplace_back(points[i].x, points[i].y);
    return result;
}

Word polylineTo(const Arguments& call) {
    std::vector<QPointF> points = pointsOf(call);
    if (points.empty()) return 0;
    points.insert(points.begin(), drawing().at);
    drawing().at = points.back();
    drawLine(std::move(points));
    return 0;
}

Word polylineBy(const Arguments& call) {
    std::vector<QPointF> points = pointsOf(call);
    if (points.empty()) return 0;
    points.insert(points.begin(), drawing().at);
    for (std::size_t i = 1; i < points.size(); ++i) points[i] += points[i - 1];
    drawing().at = points.back();
    drawLine(std::move(points));
    return 0;
}

// ------------------------------------------------------------------------------------------------------ areas

Word fillPolygon(const Arguments& call) {
    std::vector<QPointF> points = pointsOf(call);
    if (points.size() >= 2) drawArea(std::move(points));
    return 0;
}

std::vector<QPointF> corners(const Arguments& call) {
    const double x1 = call.real(0), y1 = call.real(1), x2 = call.real(2), y2 = call.real(3);
    return {{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}, {x1, y1}};
}
Word drawRectangle(const Arguments& call) {
    drawLine(corners(call));
    return 0;
}
Word fillRectangle(const Arguments& call) {
    drawArea(corners(call));
    return 0;
}

// ------------------------------------------------------------------------------------------- circles and arcs

Word drawCircle(const Arguments& call) {
    const double radius = std::abs(call.real(0));
    draw(EllipseItem{drawing().at, radius, radius, 0, 360, penInForce()});
    return 0;
}
Word drawEllipse(const Arguments& call) {
    draw(EllipseItem{drawing().at, std::abs(call.real(0)), std::abs(call.real(1)), 0, 360, penInForce()});
    return 0;
}

double degreesOf(const QPointF& direction) { return std::atan2(direction.y(), direction.x()) * 180 / M_PI; }

void drawArc(const QPointF& centre, double sweep) {
    const QPointF from = drawing().at - centre;
    const double radius = std::hypot(from.x(), from.y());
    draw(EllipseItem{centre, radius, radius, degreesOf(from), sweep, penInForce()});
    const double end = (degreesOf(from) + sweep) * M_PI / 180;
    drawing().at = centre + QPointF(radius * std::cos(end), radius * std::sin(end));
}

Word arcTo(const Arguments& call) {
    const QPointF centre(call.real(0), call.real(1));
    double sweep = degreesOf(QPointF(call.real(2), call.real(3)) - centre) - degreesOf(drawing().at - centre);
    while (sweep <= 0) sweep += 360;
    drawArc(centre, sweep);
    return 0;
}
Word arcBy(const Arguments& call) {
    drawArc(drawing().at + QPointF(call.real(0), call.real(1)), std::clamp(call.real(2), -360.0, 360.0));
    return 0;
}

// ------------------------------------------------------------------------------------------ markers and text

void mark(int marker) { draw(MarkerItem{drawing().at, marker, drawing().markerSize, colourOf(drawing().lineColour)}); }

Word drawMarker(const Arguments& call) {
    mark(call.integer(0));
    return 0;
}

Word polymarker(const Arguments& call) {
    for (const QPointF& point : pointsOf(call)) {
        drawing().at = point;
        mark(call.integer(2));
    }
    return 0;
}

// The position moves to behind the text, so that pieces of a line follow one another.
void display(const QString& text) {
    DrawingState& state = drawing();
    draw(TextItem{state.at, text, state.letters, colourOf(state.lineColour)});
    const GraphicsFrame* frame = activeFrame();
    if (!frame || state.letters.justify >= 0) return;
    double width = 0;
    if (state.letters.height > 0 && state.letters.width > 0) {
        width = double(text.size()) * state.letters.width;
    } else {
        const QFont font = state.letters.face.isEmpty() ? QApplication::font() : fontFor(state.letters.face, 0);
        const double scale = Mapping(state.view, frame->size()).across(1);
        width = scale != 0 ? QFontMetricsF(font).horizontalAdvance(text) / scale : 0;
    }
    const double angle = state.letters.angle * M_PI / 180;
    state.at += QPointF(width * std::cos(angle), width * std::sin(angle));
}

Word displayText(const Arguments& call) {
    display(wholeText(call.bytes(0)));
    return 0;
}
Word displayInteger(const Arguments& call) {
    display(QString::number(call.integer(0)).rightJustified(std::clamp(call.integer(1), 0, 255)));
    return 0;
}
Word displayReal(const Arguments& call) {
    display(QString::number(call.real(0), 'f', std::clamp(call.integer(2), 0, 30))
                .rightJustified(std::clamp(call.integer(1), 0, 255)));
    return 0;
}

Word drawImage(const Arguments& call) {
    const QImage image = icons::imageFromFile(fromProgram(trimmedBytes(call.bytes(0)))).toImage();
    if (!image.isNull())
        draw(ImageItem{QRectF(call.real(1), call.real(2), call.real(3), call.real(4)).normalized(), image});
    return 0;
}

// ------------------------------------------------------------------------------------------------------ views

bool rectGiven(const Arguments& call, QRectF& rect) {
    const auto* limits = call.record<const OLIMIT>(0);
    if (!limits || limits->xmin == limits->xmax || limits->ymin == limits->ymax) return false;
    rect = {limits->xmin, limits->ymin, double(limits->xmax) - limits->xmin, double(limits->ymax) - limits->ymin};
    return true;
}

Word setWindow(const Arguments& call) {
    QRectF window;
    if (rectGiven(call, window)) drawing().view.window = window;
    return 0;
}

// The viewport is told in the units of the frame's limits, and kept as a part of the frame.
Word setViewport(const Arguments& call) {
    QRectF part;
    const GraphicsFrame* frame = activeFrame();
    if (!frame || !rectGiven(call, part)) return 0;
    const QRectF whole = frame->limits();
    drawing().view.viewport =
        QRectF((part.left() - whole.left()) / whole.width(), (part.top() - whole.top()) / whole.height(),
               part.width() / whole.width(), part.height() / whole.height());
    return 0;
}

Word clearViewport(const Arguments& call) {
    GraphicsFrame* frame = activeFrame();
    if (!frame) return 0;
    const QColor colour = colourOf(call.integer(0));
    if (drawing().view.viewport == QRectF(0, 0, 1, 1))
        frame->clear(colour);
    else
        draw(ClearItem{colour});
    return 0;
}

Word flush(const Arguments&) {
    if (GraphicsFrame* frame = activeFrame()) frame->flush();
    return 0;
}

// Waits, and keeps the windows painted meanwhile.
Word delay(const Arguments& call) {
    constexpr int slice = 20;
    QElapsedTimer clock;
    clock.start();
    const double wanted = std::clamp(call.real(0), 0.0, 3600.0) * 1000;
    while (double(clock.elapsed()) < wanted) {
        if (qApp) QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QThread::msleep(static_cast<unsigned long>(std::clamp(wanted - double(clock.elapsed()), 0.0, double(slice))));
    }
    return 0;
}

Word enquireDrawingLimits(const Arguments& call) {
    const GraphicsFrame* frame = activeFrame();
    if (auto* paper = call.record<ODIM>(0))
        *paper = frame ? ODIM{float(frame->limits().width()), float(frame->limits().height())} : ODIM{1, 1};
    call.give(1, 0);
    return 0;
}

// Frames are drawn off the screen and shown at once whatever is asked for.
Word setDrawingLimits(const Arguments&) { return 0; }

const Registration registration({
    {Fn::oSetLineColour, setLineColour},
    {Fn::oEnqLineColour, enquireLineColour},
    {Fn::oSetLineStyle, setLineStyle},
    {Fn::oSetLineWidth, setLineWidth},
    {Fn::oSetLineWidthPixel, setLineWidthPixel},
    {Fn::oSetFillMode, setFillMode},
    {Fn::oMoveTo2D, moveTo},
    {Fn::oMoveBy2D, moveBy},
    {Fn::oDrawLineTo2D, lineTo2D},
    {Fn::oDrawLineBy2D, lineBy2D},
    {Fn::oDrawPolylineTo2D, polylineTo},
    {Fn::oDrawPolylineBy2D, polylineBy},
    {Fn::oFillPolygonTo2D, fillPolygon},
    {Fn::oDrawRect2D, drawRectangle},
    {Fn::oFillRect, fillRectangle},
    {Fn::oDrawCircle2D, drawCircle},
    {Fn::oDrawArcTo2D, arcTo},
    {Fn::oDrawArcBy2D, arcBy},
    {Fn::oDrawEllipse2D, drawEllipse},
    {Fn::oDrawMarker, drawMarker},
    {Fn::oDrawPolymarkerTo2D, polymarker},
    {Fn::oSetMarkerSize, setMarkerSize},
    {Fn::oDisplayStr, displayText},
    {Fn::oDisplayInteger, displayInteger},
    {Fn::oDisplayRealFixed, displayReal},
    {Fn::oSetCharSize, setCharSize},
    {Fn::oSetCharFontName, setCharFont},
    {Fn::oSetStrAngle, setAngle},
    {Fn::oSetStrJustify, setJustify},
    {Fn::oSetWindow2D, setWindow},
    {Fn::oSetViewport2D, setViewport},
    {Fn::oClearViewport, clearViewport},
    {Fn::oFlushGraphics, flush},
    {Fn::oTimeDelay, delay},
    {Fn::owDrawImage, drawImage},
    {Fn::oEnqDrawingLimitsAt, enquireDrawingLimits},
    {Fn::oSetDrawingLimits, setDrawingLimits},
});

} // namespace
} // namespace orba
