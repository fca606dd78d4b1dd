// The steps that all creation routines share.
#include "toolkit/frame/frame.h"

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

bool readsKeyword(Fn function, int keyword) {
    for (const int* one = functionRow(function).keywords; *one != 0; one++) {
        if (*one == keyword) return true;
    }
    return false;
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

int finishCreation(Widget& widget, const Arguments& call) {
    if (widget.handle == 0 || !widgetOf(widget.handle)) return 0;
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
    if (call.given(owReadOnly) && call.keyword(owReadOnly) != -1) {
        Value readOnly{.integer = call.keyword(owReadOnly), .real = 0, .text = {}};
        setProperty(widget, 129, readOnly);
    }
    if (call.given(owTabList)) {
        Value tabList{.integer = call.keyword(owTabList), .real = 0, .text = {}};
        setProperty(widget, 131, tabList);
    }
    placeWidget(widget);
    // A child of a shown parent has to be shown by name; the others come with their window.
    if (widget.place.placed && widget.view) widget.view->show();
    const int status = call.keyword(owWidgetStatus);
    if (status != ODEFAULTSTATUS) setStatus(widget, status);
    return widget.handle;
}

} // namespace orba
