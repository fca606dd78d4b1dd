#include "toolkit/views/drawing.h"

#include "toolkit/views/fonts.h"

#include <QApplication>
#include <algorithm>
#include <cmath>

namespace orba {
namespace {

constexpr std::size_t mostItems = 2000000; // beyond, the oldest quarter goes
constexpr int defaultMarker = 7;           // pixels
constexpr double fontUnits = 100;          // pixels at which letters are laid out before they are scaled

QPen penOf(const Pen& pen, const Mapping& map) {
    constexpr Qt::PenStyle styles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine};
    if (pen.style < 0 || pen.style > 3) return Qt::NoPen;
    const double width = pen.width > 0 ? std::abs(map.across(pen.width)) : pen.pixels;
    QPen result(pen.colour, std::max(width, 0.0), styles[pen.style], Qt::RoundCap, Qt::RoundJoin);
    if (width <= 1) result.setCosmetic(true);
    return result;
}

QBrush brushOf(const Fill& fill) {
    constexpr Qt::BrushStyle styles[] = {Qt::NoBrush,      Qt::SolidPattern, Qt::HorPattern,  Qt::VerPattern,
                                         Qt::FDiagPattern, Qt::BDiagPattern, Qt::CrossPattern};
    return {fill.colour, styles[std::clamp(fill.style, 0, 6)]};
}

QPolygonF pixels(const std::vector<QPointF>& points, const Mapping& map) {
    QPolygonF polygon;
    polygon.reserve(int(points.size()));
    for (const QPointF& point : points) polygon.append(map.toPixel(point));
    return polygon;
}

void paint(QPainter& painter, const LineItem& item, const Mapping& map) {
    painter.setPen(penOf(item.pen, map));
    painter.setBrush(item.filled ? brushOf(item.fill) : QBrush(Qt::NoBrush));
    if (item.filled)
        painter.drawPolygon(pixels(item.points, map));
    else
        painter.drawPolyline(pixels(item.points, map));
}

void paint(QPainter& painter, const EllipseItem& item, const Mapping& map) {
    painter.setPen(penOf(item.pen, map));
    painter.setBrush(Qt::NoBrush);
    const QPointF centre = map.toPixel(item.centre);
    const double x = std::abs(map.across(item.xRadius)), y = std::abs(map.down(item.yRadius));
    const QRectF area(centre.x() - x, centre.y() - y, 2 * x, 2 * y);
    if (std::abs(item.sweep) >= 360)
        painter.drawEllipse(area);
    else
        painter.drawArc(area, int(std::lround(item.start * 16)), int(std::lround(item.sweep * 16)));
}

void paint(QPainter& painter, const MarkerItem& item, const Mapping& map) {
    const QPointF at = map.toPixel(item.at);
    const double r = item.size > 0 ? std::abs(map.down(item.size)) / 2 : defaultMarker / 2.0;
    painter.setPen(QPen(item.colour, 1.2));
    painter.setBrush(Qt::NoBrush);
    const auto line = [&](double x1, double y1, double x2, double y2) {
        painter.drawLine(at + QPointF(x1 * r, y1 * r), at + QPointF(x2 * r, y2 * r));
    };
    switch (item.marker) {
    case 1: line(-1, 0, 1, 0), line(0, -1, 0, 1); break;
    case 2: line(-1, -1, 1, 1), line(-1, 1, 1, -1); break;
    case 3: painter.drawRect(QRectF(at.x() - r, at.y() - r, 2 * r, 2 * r)); break;
    case 4:
        painter.drawPolygon(
            QPolygonF({at + QPointF(0, -r), at + QPointF(r, 0), at + QPointF(0, r), at + QPointF(-r, 0)}));
        break;
    case 5: painter.drawPolygon(QPolygonF({at + QPointF(0, -r), at + QPointF(r, r), at + QPointF(-r, r)})); break;
    case 6: painter.drawEllipse(at, r, r); break;
    case 7: line(-1, 0, 1, 0), line(0, -1, 0, 1), line(-0.7, -0.7, 0.7, 0.7), line(-0.7, 0.7, 0.7, -0.7); break;
    default: painter.setBrush(item.colour); painter.drawEllipse(at, std::max(1.0, r / 3), std::max(1.0, r / 3));
    }
}

void paint(QPainter& painter, const TextItem& item, const Mapping& map) {
    const Letters& letters = item.letters;
    QFont font = letters.face.isEmpty() ? QApplication::font() : fontFor(letters.face, 0);
    painter.save();
    painter.setPen(item.colour);
    painter.translate(map.toPixel(item.at));
    painter.rotate(-letters.angle);
    if (letters.height > 0) {
        // Letters as high as told, and on average as wide, whatever the face is like.
        font.setPixelSize(int(fontUnits));
        const QFontMetricsF metrics(font);
        const double down = std::abs(map.down(letters.height)) / metrics.capHeight();
        const double across =
            letters.width > 0 ? std::abs(map.across(letters.width)) / metrics.averageCharWidth() : down;
        painter.scale(across, down);
    }
    painter.setFont(font);
    const double width = QFontMetricsF(font).horizontalAdvance(item.text);
    painter.drawText(QPointF(letters.justify < 0 ? 0 : letters.justify > 0 ? -width : -width / 2, 0), item.text);
    painter.restore();
}

void paint(QPainter& painter, const ImageItem& item, const Mapping& map) {
    const QPointF topLeft = map.toPixel(QPointF(item.area.left(), item.area.bottom()));
    const QPointF bottomRight = map.toPixel(QPointF(item.area.right(), item.area.top()));
    painter.drawImage(QRectF(topLeft, bottomRight).normalized(), item.image);
}

void paint(QPainter& painter, const ClearItem& item, const Mapping& map) {
    painter.fillRect(map.viewport(), item.colour);
}

} // namespace

Mapping::Mapping(const View& view, const QSize& size)
    : window_(view.window), viewport_(view.viewport.left() * size.width(), (1 - view.viewport.bottom()) * size.height(),
                                      view.viewport.width() * size.width(), view.viewport.height() * size.height()),
      xScale_(viewport_.width() / (window_.width() != 0 ? window_.width() : 1)),
      yScale_(viewport_.height() / (window_.height() != 0 ? window_.height() : 1)) {}

QPointF Mapping::toPixel(const QPointF& point) const {
    constexpr double far = 1e7; // beyond, painting would overflow
    return {std::clamp(viewport_.left() + (point.x() - window_.left()) * xScale_, -far, far),
            std::clamp(viewport_.bottom() - (point.y() - window_.top()) * yScale_, -far, far)};
}

QPointF Mapping::toUnits(const QPointF& pixel) const {
    return {window_.left() + (xScale_ != 0 ? (pixel.x() - viewport_.left()) / xScale_ : 0),
            window_.top() + (yScale_ != 0 ? (viewport_.bottom() - pixel.y()) / yScale_ : 0)};
}

void paintItem(QPainter& painter, const DrawItem& item, const QSize& size) {
    const Mapping map(item.view, size);
    painter.setClipRect(map.viewport());
    std::visit([&](const auto& what) { paint(painter, what, map); }, item.what);
}

GraphicsFrame::GraphicsFrame(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::ClickFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void GraphicsFrame::setLimits(const QRectF& limits) { limits_ = limits; }

void GraphicsFrame::clear(const QColor& background) {
    background_ = background;
    items_.clear();
    stale_ = true;
    update();
}

void GraphicsFrame::add(DrawItem item) {
    if (items_.size() >= mostItems) items_.erase(items_.begin(), items_.begin() + mostItems / 4);
    items_.push_back(std::move(item));
    if (!stale_) renderItem(items_.back());
    update();
}

void GraphicsFrame::renderItem(const DrawItem& item) {
    QPainter painter(&picture_);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    paintItem(painter, item, size());
}

void GraphicsFrame::render() {
    if (!stale_ && picture_.deviceIndependentSize().toSize() == size()) return;
    picture_ = QPixmap(size() * devicePixelRatioF());
    picture_.setDevicePixelRatio(devicePixelRatioF());
    picture_.fill(background_.isValid() ? background_ : palette().color(QPalette::Base));
    QPainter painter(&picture_);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    for (const DrawItem& item : items_) paintItem(painter, item, size());
    stale_ = false;
}

QImage GraphicsFrame::picture() const {
    const_cast<GraphicsFrame*>(this)->render();
    return picture_.toImage();
}

void GraphicsFrame::flush() {
    if (isVisible()) repaint();
}

void GraphicsFrame::paintEvent(QPaintEvent*) {
    render();
    QPainter(this).drawPixmap(0, 0, picture_);
}

void GraphicsFrame::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    stale_ = true;
    if (isVisible() && exposed) exposed();
}

void GraphicsFrame::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (exposed) exposed();
}

void GraphicsFrame::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) stale_ = true, update();
}

} // namespace orba
