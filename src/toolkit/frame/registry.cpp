#include "toolkit/frame/registry.h"

#include "toolkit/frame/adopt.h"
#include "toolkit/frame/events.h"
#include "toolkit/frame/watch.h"
#include "toolkit/frame/windows.h"

#include <QHash>

#include <algorithm>
#include <deque>

namespace orba {
namespace {

// 1 is the master window. The numbers between the two ranges are left to command identifiers of programs.
constexpr int FIRST_HANDLE = 2;
constexpr int GAP_START = 14000;
constexpr int GAP_END = 20000;
constexpr int HANDLE_END = 50000;

struct Registry {
    std::vector<std::unique_ptr<Widget>> table = std::vector<std::unique_ptr<Widget>>(HANDLE_END);
    int fresh = FIRST_HANDLE; // next handle never used
    std::deque<int> freed;    // waits until no fresh one is left
    int count = 0;
    QHash<const QObject*, Widget*> byObject;
};

Registry& registry() {
    static Registry instance;
    return instance;
}

int drawHandle(Kind kind) {
    Registry& all = registry();
    if (kind == Kind::master) return 1;
    if (all.fresh < HANDLE_END) {
        const int handle = all.fresh++;
        if (all.fresh == GAP_START) all.fresh = GAP_END;
        return handle;
    }
    const int handle = all.freed.front();
    all.freed.pop_front();
    return handle;
}

} // namespace

bool handleIsLeft() { return registry().fresh < HANDLE_END || !registry().freed.empty(); }

Widget* widgetOf(int handle) {
    return handle < 1 || handle >= HANDLE_END ? nullptr : registry().table[static_cast<std::size_t>(handle)].get();
}

Widget* widgetAt(const QObject* object) {
    const Registry& all = registry();
    for (; object; object = object->parent()) {
        if (Widget* widget = all.byObject.value(object)) return widget;
    }
    return nullptr;
}

Widget* windowOf(Widget* widget) {
    while (widget && widget->kind != Kind::master && widget->kind != Kind::window) widget = widget->parent;
    return widget;
}

QWidget* clientOf(Widget* parent) {
    if (!parent) return nullptr;
    return parent->client ? parent->client.data() : parent->view.data();
}

void forEachWidget(void (*visit)(Widget& widget)) {
    for (auto& one : registry().table) {
        if (one) visit(*one);
    }
}

int widgetCount() { return registry().count; }

void knowObject(Widget& widget, const QObject* object) { registry().byObject.insert(object, &widget); }

Widget& addWidget(Kind kind, const Family& family, Widget* parent, QWidget* view) {
    const int handle = drawHandle(kind);
    Registry& all = registry();
    auto& place = all.table[static_cast<std::size_t>(handle)];
    place = std::make_unique<Widget>();
    Widget& widget = *place;
    widget.handle = handle;
    widget.kind = kind;
    widget.family = &family;
    widget.parent = parent;
    widget.view = view;
    all.count++;
    if (view) {
        all.byObject.insert(view, &widget);
        watch(view);
    }
    if (parent) {
        parent->children.push_back(&widget);
        if (parent->family->childAdded) parent->family->childAdded(*parent, widget);
    }
    return widget;
}

void eraseWidget(Widget& widget) {
    // A window goes at once, not piece by piece.
    if (widget.view && (widget.kind == Kind::window || widget.kind == Kind::master)) widget.view->hide();
    while (!widget.children.empty()) eraseWidget(*widget.children.back());
    if (Widget* parent = widget.parent) {
        if (parent->family->childLeaving) parent->family->childLeaving(*parent, widget);
        if (parent->children.back() == &widget) { // as when a parent goes with all its children
            parent->children.pop_back();
        } else {
            std::erase(parent->children, &widget);
        }
    }
    if (widget.family->erased) widget.family->erased(widget);
    forgetEvents(widget);
    adoptedErased(widget.handle);
    Registry& all = registry();
    if (widget.view) all.byObject.remove(widget.view);
    if (widget.client) all.byObject.remove(widget.client);
    QWidget* view = widget.view;
    widget.view = nullptr;
    const int handle = widget.handle;
    const bool inWindow =
        widget.kind == Kind::menuBar || widget.kind == Kind::statusBar || widget.kind == Kind::toolBar;
    Widget* window = inWindow ? windowOf(widget.parent) : nullptr;
    delete view;
    all.count--;
    if (handle != 1) all.freed.push_back(handle);
    all.table[static_cast<std::size_t>(handle)].reset();
    if (window) windowBarsChanged(*window);
}

void resetRegistry() {
    Registry& all = registry();
    all.fresh = FIRST_HANDLE;
    all.freed.clear();
    all.byObject.clear();
}

} // namespace orba
