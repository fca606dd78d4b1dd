// What all creation routines share.
#pragma once

#include "toolkit/frame/attributes.h"
#include "toolkit/frame/registry.h"

namespace orba {

// The record of a new widget in the widget that is the call's first argument, with the attributes that the call gives.
// The view lies in clientOf of it. `data` may have been filled before, for a view that is made from it.
Widget& addWidget(Kind kind, const Family& family, const Arguments& call, QWidget* view,
                  std::unique_ptr<FamilyData> data);
template <typename Data> Widget& addWidget(Kind kind, const Family& family, const Arguments& call, QWidget* view) {
    return addWidget(kind, family, call, view, dataFrom<Data>(family, call));
}
// Where the view of the new widget lies.
QWidget* clientOf(const Arguments& call);

// The last steps of every creation, for the keywords and arguments that the routine has: place (arguments "xpos" to
// "height" and the PLACE keywords), size, type, accelerator, tab list, callbacks in their fixed order, help, drag mode,
// read only, status; then shows the view. Returns the handle.
int finishCreation(Widget& widget, const Arguments& call);

bool readsKeyword(Fn function, int keyword);
// False for a routine that makes a widget when all 43,998 handles are in use.
bool hasHandleFor(Fn function);

} // namespace orba
