// Drawing in graphics frames: a list of what was drawn, in the units of the frame's limits, so that a frame which comes
// to light, or changes its size, repaints itself.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QWidget>
#include <functional>
#include <variant>
#include <vector>

namespace orba {

struct Pen {
    QColor colour = Qt::black;
    int style = 0;    // -1 none, 0 solid, 1 dashed, 2 dotted, 3 dash-dotted
    double width = 0; // in drawing units
    int pixels = 1;   // when the width is 0
};

struct Fill {
    int style = 1; // 0 hollow, 1 solid, 2 horizontal, 3 vertical, 4, 5 diagonal, 6 cross lines
    QColor colour = Qt::black;
};

struct Letters {
    QString face;                 // empty: the desktop's own
    double width = 0, height = 0; // of one character in drawing units; 0 the desktop's size
    double angle = 0;             // degrees counterclockwise
    int justify = -1;
};

// What a list holds. All coordinates are in drawing units.
struct LineItem {
    std::vector<QPointF> points;
    Pen pen;
    bool filled = false; // a polygon
    Fill fill;
};
struct EllipseItem {
    QPointF centre;
    double xRadius, yRadius;
    double start, sweep; // degrees counterclockwise from the x axis; a sweep of 360 is the whole
    Pen pen;
};
struct MarkerItem {
    QPointF at;
    int marker;
    double size; // in drawing units, 0 some pixels
    QColor colour;
};
struct TextItem {
    QPointF at;
    QString text;
    Letters letters;
    QColor colour;
};
struct ImageItem {
    QRectF area;
    QImage image;
};
struct ClearItem { // of the viewport it was made in
    QColor colour;
};

// The window maps to the viewport; both are limits, the viewport in fractions of the frame's own limits.
struct View {
    QRectF window{0, 0, 1, 1};   // drawing units, y upward
    QRectF viewport{0, 0, 1, 1}; // part of the frame, y upward
    bool operator==(const View&) const = default;
};

struct DrawItem {
    View view;
    std::variant<LineItem, EllipseItem, MarkerItem, TextItem, ImageItem, ClearItem> what;
};

// Turns drawing units into pixels of an area, for one view.
class Mapping {
public:
    Mapping(const View& view, const QSize& size);
    QPointF toPixel(const QPointF& point) const;
    QPointF toUnits(const QPointF& pixel) const;
    double across(double units) const { return units * xScale_; }
    double down(double units) const { return units * yScale_; }
    QRectF viewport() const { return viewport_; } // in pixels

private:
    QRectF window_, viewport_;
    double xScale_, yScale_;
};

void paintItem(QPainter& painter, const DrawItem& item, const QSize& size);

// The widget. It keeps a picture of what is drawn, as sharp as its screen, and the list behind it.
class GraphicsFrame : public QWidget {
public:
    explicit GraphicsFrame(QWidget* parent);

    void setLimits(const QRectF& limits); // y upward; empties neither list nor picture
    const QRectF& limits() const { return limits_; }
    void clear(const QColor& background);
    void add(DrawItem item);
    const std::vector<DrawItem>& items() const { return items_; }
    QImage picture() const; // in device pixels
    void flush();           // shows at once

    std::function<void()> exposed; // came to light or changed its size

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void render();
    void renderItem(const DrawItem& item);

    QRectF limits_{0, 0, 1, 1};
    QColor background_;
    std::vector<DrawItem> items_;
    QPixmap picture_;
    bool stale_ = true;
};

} // namespace orba
