#include "toolkit/frame/creation.h"

#include "toolkit/frame/events.h"
#include "toolkit/frame/layout.h"
#include "toolkit/frame/properties.h"

#include <cstring>

namespace orba {
namespace {

// Callbacks are defined in this order.
constexpr Slot definitionOrder[] = {Slot::link,       Slot::valueError, Slot::fileDrop, Slot::doubleClick,
                                    Slot::dragSelect, Slot::dragMove,   Slot::dragDrop, Slot::expose,
                                    Slot::change,     Slot::move,       Slot::select,   Slot::general};

bool isPlaced(Fn function) {
    return std::strncmp(functionRow(function).arguments, "int parent, int xpos, int ypos, int width, int height", 53) ==
           0;
}

void takePlace(Widget& widget, const Arguments& call) {
    Placement& place = widget.place;
    place.placed = true;
    place.x = pixelsAcross(call.integer(1));
    place.y = pixelsDown(call.integer(2));
    place.width = pixelsAcross(call.integer(3));
    place.height = pixelsDown(call.integer(4));
    place.hpos = call.keyword(owHpos);
    place.vpos = call.keyword(owVpos);
    place.expand = call.keyword(owExpand);
    const int size = call.keyword(owSize);
    if (gridMode() && size < 100 && readsKeyword(call.function, owSize)) {
        place.inset = QSize(gridCell().width() * (100 - size) / 100, gridCell().height() * (100 - size) / 100);
    }
}

} // namespace

bool readsKeyword(Fn function, int keyword) {
    for (const int* one = functionRow(function).keywords; *one != 0; one++) {
        if (*one == keyword) return true;
    }
    return false;
}

bool hasHandleFor(Fn function) { return functionRow(function).result != Result::HANDLE || handleIsLeft(); }

QWidget* clientOf(const Arguments& call) { return clientOf(widgetOf(call.integer(0))); }

Widget& addWidget(Kind kind, const Family& family, const Arguments& call, QWidget* view,
                  std::unique_ptr<FamilyData> data) {
    Widget& widget = addWidget(kind, family, widgetOf(call.integer(0)), view);
    widget.data = std::move(data);
    takeAttributes(family, call, &widget, nullptr);
    return widget;
}

int finishCreation(Widget& widget, const Arguments& call) {
    if (isPlaced(call.function) && widget.kind != Kind::window) takePlace(widget, call);
    const Family* parent = widget.parent ? widget.parent->family : nullptr;
    if (parent && parent->placeChild) {
        widget.place.placed = false;
        parent->placeChild(*widget.parent, widget);
    }
    if (call.given(owAccel)) widget.accel = call.keyword(owAccel);
    if (call.given(owQuitMode)) widget.quitMode = call.keyword(owQuitMode);
    if (call.given(owDragMode)) widget.dragMode = call.keyword(owDragMode);
    for (Slot slot : definitionOrder) {
        if (const int identifier = call.keyword(slotRow(slot).keyword)) defineCallback(widget, slot, identifier);
    }
    const QString help = call.keywordText(owHelp);
    if (!help.isEmpty()) {
        widget.help = help;
        widget.helpDelay = call.keyword(owHelpDelay);
        widget.helpJustify = call.keyword(owHelpJustify);
        showHelp(widget);
    }
    if (call.given(owReadOnly) && call.keyword(owReadOnly) != -1)
        setProperty(widget, propertyOf(owReadOnly), call.keyword(owReadOnly));
    if (call.given(owTabList)) setProperty(widget, propertyOf(owTabList), call.keyword(owTabList));
    placeWidget(widget);
    // A child of a shown parent has to be shown by name; the others come with their window.
    if (widget.place.placed && widget.view) widget.view->show();
    const int status = call.keyword(owWidgetStatus);
    if (status != ODEFAULTSTATUS) setStatus(widget, status);
    return widget.handle;
}

} // namespace orba
