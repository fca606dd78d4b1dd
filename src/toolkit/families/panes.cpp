// Docking panes.
#include "toolkit/families/main_window.h"
#include "toolkit/frame/core.h"
#include "toolkit/frame/frame.h"
#include "toolkit/frame/windows.h"
#include "toolkit/views/docking.h"

namespace orba {
namespace {

enum Property : int { kindProperty = 15, titleFlagProperty = 16 };

DockTitle titleOf(int flag) {
    if (flag == OALL || (flag & OQUIT)) return DockTitle::closable;
    return flag & OTITLE ? DockTitle::title : DockTitle::none;
}

DockPane& paneOf(Widget& widget) { return *static_cast<DockPane*>(widget.view.data()); }

bool getPaneProperty(Widget& widget, int property, Value& value) {
    if (property != kindProperty) return false;
    const bool floating = paneOf(widget).dock() == Dock::floating;
    value.integer = static_cast<int>(floating ? Kind::window : Kind::dockingPane);
    return true;
}

bool setPaneProperty(Widget& widget, int property, const Value& value) {
    if (property != titleFlagProperty) return false;
    widget.titleFlag = value.integer;
    paneOf(widget).setTitleBar(titleOf(value.integer));
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
    Widget* parent = widgetOf(call.integer(0));
    QMainWindow* window = mainWindowOf(parent);
    if (!window) {
        reportFailure(7, call.integer(0));
        return 0;
    }
    auto* body = new QWidget;
    const int flag = call.given(owTitleFlag) ? call.keyword(owTitleFlag) : static_cast<int>(OQUIT);
    auto* view = new DockPane(
        window, dockOf(call.integer(1)), body, {pixelsAcross(call.integer(2)), pixelsDown(call.integer(3))},
        {pixelsAcross(call.integer(4)), pixelsDown(call.integer(5))}, call.keywordText(owTitle), titleOf(flag));
    Widget& pane = addWidget(Kind::dockingPane, panes, parent, view);
    pane.client = body;
    knowObject(pane, body);
    watch(body);
    pane.titleFlag = flag;
    view->report = [handle = pane.handle](DockEvent event) { reportDocking(handle, static_cast<int>(event)); };
    const int handle = finishCreation(pane, call);
    windowBarsChanged(*parent);
    return handle;
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
