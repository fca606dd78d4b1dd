#include "toolkit/views/panel.h"

#include <QChildEvent>
#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <qdrawutil.h>

namespace orba {
namespace {

constexpr int titleOffset = 9; // pixels from the left end of the boundary to the title
constexpr int titleGap = 3;    // and between the title and the line on either side

void drawSingle(QPainter& painter, const QRect& area, const QColor& line, const QPalette&) {
    qDrawPlainRect(&painter, area, line, 1);
}

void drawDouble(QPainter& painter, const QRect& area, const QColor& line, const QPalette&) {
    qDrawPlainRect(&painter, area, line, 1);
    qDrawPlainRect(&painter, area.adjusted(2, 2, -2, -2), line, 1);
}

void drawPressed(QPainter& painter, const QRect& area, const QColor&, const QPalette& palette) {
    qDrawWinPanel(&painter, area, palette, true);
}

void drawProjected(QPainter& painter, const QRect& area, const QColor&, const QPalette& palette) {
    qDrawWinPanel(&painter, area, palette, false);
}

void drawChisel(QPainter& painter, const QRect& area, const QColor&, const QPalette& palette) {
    qDrawShadeRect(&painter, area, palette, true, 1);
}

void drawInverseChisel(QPainter& painter, const QRect& area, const QColor&, const QPalette& palette) {
    qDrawShadeRect(&painter, area, palette, false, 1);
}

struct BoundaryRow {
    Boundary boundary;
    int width;
    void (*draw)(QPainter&, const QRect&, const QColor&, const QPalette&);
};
constexpr BoundaryRow boundaries[] = {
    {Boundary::None, 0, nullptr},
    {Boundary::Single, 1, drawSingle},
    {Boundary::Double, 3, drawDouble},
    {Boundary::Pressed, 2, drawPressed},
    {Boundary::Projected, 2, drawProjected},
    {Boundary::Chisel, 2, drawChisel},
    {Boundary::InverseChisel, 2, drawInverseChisel},
};

} // namespace

Boundary boundaryOf(int number) {
    return number > 0 && number < int(std::size(boundaries)) ? Boundary(number) : Boundary::None;
}

int boundaryWidth(Boundary boundary) { return boundaries[int(boundary)].width; }

void drawBoundary(QPainter& painter, const QRect& area, Boundary boundary, const QColor& line,
                  const QPalette& palette) {
    if (auto draw = boundaries[int(boundary)].draw; draw && area.width() > 1 && area.height() > 1)
        draw(painter, area, line, palette);
}

Panel::Panel(QWidget* parent) : QWidget(parent) {}

void Panel::setLook(const PanelLook& look) {
    look_ = look;
    setAccessibleName(look_.title); // a screen reader sees no painting
    if ((look_.scrollVertical || look_.scrollHorizontal) && !area_) makeScroller();
    if (area_) {
        area_->setVerticalScrollBarPolicy(look_.scrollVertical ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
        area_->setHorizontalScrollBarPolicy(look_.scrollHorizontal ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
        fitContent();
    }
    update();
}

void Panel::makeScroller() {
    area_ = new QScrollArea(this);
    area_->setFrameShape(QFrame::NoFrame);
    area_->viewport()->setAutoFillBackground(false);
    sheet_ = new QWidget;
    sheet_->setAutoFillBackground(false);
    sheet_->installEventFilter(this);
    for (QObject* child : QObjectList(children()))
        if (auto* widget = qobject_cast<QWidget*>(child); widget && widget != area_ && !widget->isWindow()) {
            const bool shown = !widget->isHidden();
            widget->setParent(sheet_);
            widget->setVisible(shown);
        }
    area_->setWidget(sheet_);
    area_->show();
}

void Panel::fitContent() {
    if (!area_) return;
    const int edge = boundaryWidth(look_.boundary);
    area_->setGeometry(rect().adjusted(edge, edge, -edge, -edge));
    const QRect needed = sheet_->childrenRect();
    const QSize room = area_->maximumViewportSize();
    sheet_->resize(std::max(room.width(), look_.scrollHorizontal ? needed.right() + 1 : 0),
                   std::max(room.height(), look_.scrollVertical ? needed.bottom() + 1 : 0));
}

int Panel::titleHeight() const { return look_.title.isEmpty() ? 0 : QFontMetrics(look_.titleFont).height(); }

QRect Panel::boundaryArea() const {
    QRect area = rect();
    if (look_.lineInset) area.adjust(look_.inset, look_.inset, -look_.inset, -look_.inset);
    // The upper line runs through the middle of the title.
    return area.adjusted(0, titleHeight() / 2, 0, 0);
}

void Panel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect line = boundaryArea();
    if (look_.fill.isValid()) {
        QRect area = rect();
        if (look_.fillInset) area.adjust(look_.inset, look_.inset, -look_.inset, -look_.inset);
        painter.fillRect(look_.title.isEmpty() ? area : area.adjusted(0, line.top(), 0, 0), look_.fill);
    }
    if (!look_.image.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(line, look_.image);
    }
    const QString title = QFontMetrics(look_.titleFont)
                              .elidedText(look_.title, Qt::ElideRight, line.width() - 2 * (titleOffset + titleGap));
    const QRect titleArea(line.left() + titleOffset, line.top() - titleHeight() / 2,
                          QFontMetrics(look_.titleFont).horizontalAdvance(title), titleHeight());
    painter.setFont(look_.titleFont);
    painter.save();
    if (!title.isEmpty()) // the line leaves room for the title
        painter.setClipRegion(QRegion(rect()) - titleArea.adjusted(-titleGap, 0, titleGap, 0));
    const QColor colour = look_.line.isValid() ? look_.line : palette().color(QPalette::WindowText);
    drawBoundary(painter, line, look_.boundary, colour, palette());
    painter.restore();
    // On a fill the title gets a plate of the window's own face, on which its text can be read.
    if (!title.isEmpty() && look_.fill.isValid())
        painter.fillRect(titleArea.adjusted(-titleGap, 0, titleGap, 0), palette().color(QPalette::Window));
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(titleArea, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, title);
}

void Panel::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    fitContent();
}

void Panel::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::EnabledChange ||
        event->type() == QEvent::PaletteChange)
        update();
}

bool Panel::eventFilter(QObject* watched, QEvent* event) {
    // A child of the sheet that moves, comes or goes changes what there is to scroll over.
    if (watched == sheet_ && event->type() == QEvent::ChildAdded) {
        static_cast<QChildEvent*>(event)->child()->installEventFilter(this);
    } else if (watched != sheet_ && watched->parent() == sheet_) {
        switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::Hide:
            QMetaObject::invokeMethod(
                this, [this] { fitContent(); }, Qt::QueuedConnection);
            break;
        default: break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace orba
