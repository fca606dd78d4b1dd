// Status bars: panes of text at the foot of a window.
#include "toolkit/families/main_window.h"
#include "toolkit/views/text/tip_text.h"

#include <QHelpEvent>
#include <QMainWindow>
#include <QPainter>
#include <QStatusBar>
#include <QStringList>
#include <QToolTip>

namespace orba {
namespace {

constexpr int mostPanes = 32;

// The panes stand side by side; edges are the right edges in pixels, -1 or an edge past the bar takes the rest.
class PaneBar : public QStatusBar {
public:
    using QStatusBar::QStatusBar;

    void setPanes(std::vector<int> edges) {
        edges_ = std::move(edges);
        texts_.resize(edges_.size());
        update();
    }
    int paneCount() const { return static_cast<int>(edges_.size()); }
    QString text(int pane) const {
        return pane >= 0 && pane < paneCount() ? texts_[static_cast<size_t>(pane)] : QString();
    }
    void setText(int pane, const QString& text) {
        texts_[static_cast<size_t>(pane)] = text;
        setAccessibleDescription(
            QStringList(texts_.begin(), texts_.end()).join("; ")); // a screen reader sees no painting
        update(paneRect(pane));
    }

    QRect paneRect(int pane) const {
        const int room = width() - (isSizeGripEnabled() ? 18 : 0);
        const int left = pane == 0 ? 0 : qBound(0, edges_[static_cast<size_t>(pane) - 1], room);
        const int edge = edges_[static_cast<size_t>(pane)];
        const bool last = pane == paneCount() - 1;
        const int right = edge < 0 || (last && edge > room) ? room : qMin(edge, room);
        return {left, 0, qMax(0, right - left), height()};
    }

    QSize sizeHint() const override { return {100, fontMetrics().height() + 8}; }
    QSize minimumSizeHint() const override { return {40, fontMetrics().height() + 8}; }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::Window).darker(118));
        painter.drawLine(0, 0, width(), 0);
        for (int pane = 0; pane < paneCount(); ++pane) {
            const QRect place = paneRect(pane);
            if (pane > 0) {
                painter.setPen(palette().color(QPalette::Window).darker(130));
                painter.drawLine(place.left(), 4, place.left(), height() - 5);
            }
            painter.setPen(palette().color(QPalette::WindowText));
            const QRect inner = place.adjusted(7, 0, -5, 0);
            painter.drawText(
                inner, Qt::AlignVCenter | Qt::TextSingleLine,
                fontMetrics().elidedText(texts_[static_cast<size_t>(pane)], Qt::ElideRight, inner.width()));
        }
    }

    // A text that is cut short shows whole under the pointer.
    bool event(QEvent* event) override {
        if (event->type() != QEvent::ToolTip) return QStatusBar::event(event);
        const auto* help = static_cast<QHelpEvent*>(event);
        QString whole;
        for (int pane = 0; pane < paneCount(); ++pane) {
            const QRect place = paneRect(pane);
            if (place.contains(help->pos()) && fontMetrics().horizontalAdvance(text(pane)) > place.width() - 12)
                whole = text(pane);
        }
        QToolTip::showText(help->globalPos(), tipText(whole), this);
        return true;
    }

private:
    std::vector<int> edges_{-1};
    std::vector<QString> texts_{QString()};
};

PaneBar& barOf(Widget& widget) { return *static_cast<PaneBar*>(widget.view.data()); }

std::vector<int> edgesOf(int count, const int* sizes) {
    std::vector<int> edges;
    for (int i = 0; i < qBound(1, count, mostPanes); ++i) edges.push_back(sizes ? sizes[i] : -1);
    return edges;
}

QString barText(Widget& widget) { return barOf(widget).text(0); }
void setBarText(Widget& widget, const QString& text) { barOf(widget).setText(0, text); }

bool getBarProperty(Widget& widget, int property, Value& value) {
    if (property != propertyOf(owPanes)) return false;
    value.integer = barOf(widget).paneCount();
    return true;
}

const Family statusBars{.name = "status bar", .get = getBarProperty, .text = barText, .setText = setBarText};

Word createStatusBar(const Arguments& call) {
    QMainWindow* window = mainWindowGiven(call);
    if (!window) return 0;
    auto* view = new PaneBar(window);
    view->setSizeGripEnabled(window->isWindow());
    view->setPanes(edgesOf(call.keyword(owPanes), call.keywordRecord<const int>(owSizes)));
    window->setStatusBar(view);
    return finishBar(addWidget(Kind::statusBar, statusBars, call, view, nullptr), call);
}

Word setStatusBarText(const Arguments& call) {
    Widget& bar = *widgetOf(call.integer(0));
    const int pane = call.integer(1);
    if (pane < 0 || pane >= barOf(bar).paneCount()) {
        reportFailure(35, pane);
        return 0;
    }
    barOf(bar).setText(pane, call.text(2));
    return 0;
}

Word setTextPanes(const Arguments& call) {
    barOf(*widgetOf(call.integer(0))).setPanes(edgesOf(call.integer(1), call.record<const int>(2)));
    return 0;
}

const Registration registration({{Fn::owCreateStatusBar, createStatusBar},
                                 {Fn::owSetStatusBarText, setStatusBarText},
                                 {Fn::owSetTextPanes, setTextPanes}});

} // namespace
} // namespace orba
