// Tabbed dialogue boxes. Their children are panels: each is a page, with the panel's title and icon on its tab.
#include "toolkit/frame/core.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTabBar>
#include <QTabWidget>

namespace orba {
namespace {

QTabWidget& boxOf(Widget& widget) { return *static_cast<QTabWidget*>(widget.view.data()); }

Widget* pageAt(Widget& box, int index) {
    const QWidget* page = boxOf(box).widget(index);
    for (Widget* child : box.children)
        if (page && child->view == page) return child;
    return nullptr;
}

// The font of the box is that of its tabs. A page with one of its own does not hand it down to what stands there.
void keepOwnFont(QWidget& page) {
    QFont font = QApplication::font();
    font.setResolveMask(~0U);
    page.setFont(font);
}

void pageAdded(Widget& box, Widget& page) {
    if (!page.view) return;
    keepOwnFont(*page.view);
    QTabWidget& tabs = boxOf(box);
    const QSignalBlocker quiet(&tabs);
    QWidget* view = page.view;
    tabs.addTab(view, labelWithMnemonic(view->windowTitle(), 0));
    QObject::connect(view, &QWidget::windowTitleChanged, &tabs, [&tabs, view](const QString& title) {
        tabs.setTabText(tabs.indexOf(view), labelWithMnemonic(title, 0));
    });
    QObject::connect(view, &QWidget::windowIconChanged, &tabs,
                     [&tabs, view](const QIcon& icon) { tabs.setTabIcon(tabs.indexOf(view), icon); });
}

void pageLeaving(Widget& box, Widget& page) {
    if (!box.view || !page.view) return;
    const QSignalBlocker quiet(&boxOf(box));
    boxOf(box).removeTab(boxOf(box).indexOf(page.view));
}

// A page that is enabled or checked comes up; a hidden one takes its tab along.
bool setPageStatus(Widget& box, Widget& page, int status) {
    QTabWidget& tabs = boxOf(box);
    const QSignalBlocker quiet(&tabs);
    const int index = tabs.indexOf(page.view);
    tabs.setTabVisible(index, status != OHIDDEN);
    tabs.setTabEnabled(index, status != OUNSELECTABLE);
    if (status == OSELECTABLE || status == OCHECKED) tabs.setCurrentIndex(index);
    return true;
}

void placePage(Widget&, Widget&) {} // the tab box itself gives its pages their size

// A press beside the tabs is one on the box.
class StripPress : public QObject {
public:
    StripPress(QTabWidget* view, int handle) : QObject(view), view_(view), handle_(handle) {
        view->installEventFilter(this);
        view->tabBar()->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool pressed = event->type() == QEvent::MouseButtonPress;
        if (!pressed && event->type() != QEvent::MouseButtonRelease) return false;
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const QTabBar* bar = view_->tabBar();
        if (mouse->button() != Qt::LeftButton || (watched == bar && bar->tabAt(mouse->position().toPoint()) >= 0))
            return false;
        if (pressed) post(handle_, Slot::select, 1);
        event->accept();
        return true;
    }

private:
    QTabWidget* view_;
    int handle_;
};

// The title of the page in front.
QString boxText(Widget& box) { return boxOf(box).tabText(boxOf(box).currentIndex()); }

QSize boxSize(Widget& box) { return boxOf(box).sizeHint(); }

const Family tabBoxes{.name = "tabbed dialogue box",
                      .text = boxText,
                      .naturalSize = boxSize,
                      .childAdded = pageAdded,
                      .childLeaving = pageLeaving,
                      .placeChild = placePage,
                      .setChildStatus = setPageStatus};

Word createTabDialogueBox(const Arguments& call) {
    auto* view = new QTabWidget(clientOf(call));
    view->setUsesScrollButtons(true);
    Widget& box = addWidget(Kind::tabBox, tabBoxes, call, view, nullptr);
    QObject::connect(view, &QTabWidget::tabBarClicked, view, [handle = box.handle] { post(handle, Slot::select, 1); });
    new StripPress(view, box.handle);
    QObject::connect(view, &QTabWidget::currentChanged, view, [handle = box.handle](int index) {
        Widget* self = widgetOf(handle);
        if (!self) return;
        if (const Widget* page = pageAt(*self, index)) post(handle, Slot::general, page->handle);
    });
    return finishCreation(box, call);
}

const Registration registration({{Fn::owCreateTabDialogueBox, createTabDialogueBox}});

} // namespace
} // namespace orba
