#include "toolkit/views/outline.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>

#include <algorithm>

namespace orba {
namespace {

constexpr int TINT = 40;    // of 255
constexpr int DISTANCE = 4; // pixels between the outline and its text

} // namespace

OutlineView::OutlineView(QWidget* over) : QWidget(over), text_(new QLabel(over)) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    text_->setAttribute(Qt::WA_TransparentForMouseEvents);
    text_->setObjectName(QStringLiteral("outline-text"));
    text_->setAutoFillBackground(true);
    text_->setFrameShape(QFrame::Box);
    text_->setMargin(1);
    text_->setBackgroundRole(QPalette::ToolTipBase);
    text_->setForegroundRole(QPalette::ToolTipText);
    text_->hide();
    hide();
}

OutlineView::~OutlineView() { delete text_; }

void OutlineView::showAround(const QRect& rect, const QString& text) {
    setGeometry(rect);
    show();
    raise();
    if (!text_) return;
    text_->setText(text);
    text_->setVisible(!text.isEmpty());
    if (!text.isEmpty()) placeText(rect);
}

void OutlineView::setFilled(bool on) { filled_ = on; }

// Below the right end of the outline, as far as what is seen of the window has room.
void OutlineView::placeText(const QRect& rect) {
    text_->adjustSize();
    const QRect seen = parentWidget()->visibleRegion().boundingRect();
    const QRect room = seen.isEmpty() ? parentWidget()->rect() : seen;
    const int x =
        std::clamp(rect.right() + DISTANCE, room.left(), std::max(room.left(), room.right() - text_->width()));
    const int y =
        std::clamp(rect.bottom() + DISTANCE, room.top(), std::max(room.top(), room.bottom() - text_->height()));
    text_->move(x, y);
    text_->raise();
}

void OutlineView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QColor colour = QApplication::palette().color(QPalette::Highlight);
    painter.setPen(QPen(colour, 1, Qt::DashLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    colour.setAlpha(TINT);
    if (filled_) painter.fillRect(rect(), colour);
}

void OutlineView::hideEvent(QHideEvent*) {
    if (text_) text_->hide();
}

} // namespace orba
