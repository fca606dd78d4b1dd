// Docking panes.
#include "toolkit/families/main_window.h"
#include "toolkit/frame/watch.h"
#include "toolkit/frame/windows.h"

namespace orba {
namespace {

DockPane& paneOf(Widget& widget) { return *static_cast<DockPane*>(widget.view.data()); }

bool getPaneProperty(Widget& widget, int property, Value& value) {
    if (property != propertyOf(owKind)) return false;
    const bool floating = paneOf(widget).dock() == Dock::floating;
    value.integer = static_cast<int>(floating ? Kind::window : Kind::dockingPane);
    return true;
}

bool setPaneProperty(Widget& widget, int property, const Value& value) {
    if (property != propertyOf(owTitleFlag)) return false;
    widget.titleFlag = value.integer;
    paneOf(widget).setTitleBar(dockTitleOf(value.integer));
    return true;
}

void setPaneStatus(Widget& widget, int status) {
    paneOf(widget).setShown(status != OHIDDEN);
    widget.client->setEnabled(status != OUNSELECTABLE);
    windowBarsChanged(*widget.parent);
}

QString paneText(Widget& widget) { return widget.view->windowTitle(); }
void setPaneText(Widget& widget, const QString& text) { widget.view->setWindowTitle(text); }

const Family panes{.name = "docking pane",
                   .get = getPaneProperty,
                   .set = setPaneProperty,
                   .setStatus = setPaneStatus,
                   .text = paneText,
                   .setText = setPaneText};

Word createDockingPane(const Arguments& call) {
    QMainWindow* window = mainWindowGiven(call);
    if (!window) return 0;
    auto* body = new QWidget;
    const int flag = titleFlagOf(call);
    auto* view = new DockPane(
        window, dockOf(call.integer(1)), body, {pixelsAcross(call.integer(2)), pixelsDown(call.integer(3))},
        {pixelsAcross(call.integer(4)), pixelsDown(call.integer(5))}, call.keywordText(owTitle), dockTitleOf(flag));
    Widget& pane = addWidget(Kind::dockingPane, panes, call, view, nullptr);
    pane.client = body;
    knowObject(pane, body);
    watch(body);
    pane.titleFlag = flag;
    view->report = [handle = pane.handle](DockEvent event) { reportDocking(handle, static_cast<int>(event)); };
    return finishBar(pane, call);
}

Word setPanePos(const Arguments& call) {
    Widget& pane = *widgetOf(call.integer(0));
    paneOf(pane).place(dockOf(call.integer(5)), {pixelsAcross(call.integer(1)), pixelsDown(call.integer(2))},
                       {pixelsAcross(call.integer(3)), pixelsDown(call.integer(4))});
    windowBarsChanged(*pane.parent);
    return 0;
}

Word enqPanePos(const Arguments& call) {
    const DockPane& pane = paneOf(*widgetOf(call.integer(0)));
    call.give(1, unitsAcross(pane.floatPosition().x()));
    call.give(2, unitsDown(pane.floatPosition().y()));
    call.give(3, unitsAcross(pane.dockedSize().width()));
    call.give(4, unitsDown(pane.dockedSize().height()));
    call.give(5, unitsAcross(pane.floatSize().width()));
    call.give(6, unitsDown(pane.floatSize().height()));
    call.give(7, static_cast<int>(pane.dock()));
    return 0;
}

const Registration registration({{Fn::owCreateDockingPane, createDockingPane},
                                 {Fn::owSetPanePos, setPanePos},
                                 {Fn::owEnqPanePos, enqPanePos}});

} // namespace
} // namespace orba
