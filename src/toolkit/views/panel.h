// Panels and radio boxes: a boundary with a title, a fill, a picture behind, bars to scroll what does not fit.
#pragma once

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QScrollArea>
#include <QString>
#include <QWidget>

class QPainter;

namespace orba {

enum class Boundary { None, Single, Double, Pressed, Projected, Chisel, InverseChisel };

// The boundary that a number of a caller means; what is none of the seven draws none.
Boundary boundaryOf(int number);

struct PanelLook {
    Boundary boundary = Boundary::None;
    QString title;          // stands in the upper line of the boundary
    QFont titleFont;        // apart from the view's font, which children would inherit
    QColor line;            // of single and double boundaries; not valid: the text colour
    QColor fill;            // not valid: what lies behind shows through
    bool lineInset = false; // the boundary, or the fill, stays `inset` away from the edge
    bool fillInset = false;
    int inset = 0; // pixels
    QPixmap image; // scaled to cover the panel
    bool scrollVertical = false;
    bool scrollHorizontal = false;
};

// Draws any of the seven boundaries along the inner edge of `area`.
void drawBoundary(QPainter& painter, const QRect& area, Boundary boundary, const QColor& line, const QPalette& palette);
int boundaryWidth(Boundary boundary); // pixels

class Panel : public QWidget {
public:
    explicit Panel(QWidget* parent);

    void setLook(const PanelLook& look);
    const PanelLook& look() const { return look_; }

    // Children go in here: the panel itself, or the sheet that its bars move.
    QWidget* content() const { return sheet_ ? sheet_ : const_cast<Panel*>(this); }
    QScrollArea* scroller() const { return area_; }
    // What can be scrolled over: as large as the children need, as large as the panel at least.
    void fitContent();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QRect boundaryArea() const;
    int titleHeight() const;
    void makeScroller();

    PanelLook look_;
    QScrollArea* area_ = nullptr;
    QWidget* sheet_ = nullptr;
};

} // namespace orba
