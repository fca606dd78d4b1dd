// Handles, and which record a Qt widget belongs to.
#pragma once

#include "toolkit/frame/widget.h"

namespace orba {

// The record of a handle; null when it names nothing.
Widget* widgetOf(int handle);
// The record whose view or client is `object` or holds it; null when there is none.
Widget* widgetAt(const QObject* object);
// The window (master, dialogue box) that holds a widget, itself included.
Widget* windowOf(Widget* widget);
// The Qt parent for a child's view.
QWidget* clientOf(Widget* parent);
// All live widgets, in no order.
void forEachWidget(void (*visit)(Widget& widget));
int widgetCount();

// Makes the record: draws a handle, links it under its parent, knows the view. The view must have clientOf(parent) as
// its Qt parent, or be placed by Qt. `parent` null: a window without one. A handle is there: checked/ has seen to it.
Widget& addWidget(Kind kind, const Family& family, Widget* parent, QWidget* view);
bool handleIsLeft();

// Erases a widget with all its children.
void eraseWidget(Widget& widget);

// Makes a further object (a client area) known as part of a widget.
void knowObject(Widget& widget, const QObject* object);
void resetRegistry();

} // namespace orba
