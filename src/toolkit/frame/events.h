// The one queue of events.
#pragma once

#include "toolkit/frame/widget.h"

#include <QPointF>
#include <QString>

class QDialog;

namespace orba {

// Appends an event of a widget if it has that callback. Position in pixels in the view, from its top left.
void post(int handle, Slot slot, int status = 0, QPointF position = {}, const QString& text = {});
inline void post(const Widget& widget, Slot slot, int status = 0, QPointF position = {}, const QString& text = {}) {
    post(widget.handle, slot, status, position, text);
}
// Puts values into OACTION.args and iargs of the event that was posted last.
void addEventValue(float value, int whole);
// Appends an event by identifier; 0 appends nothing.
void postIdentifier(int identifier, int handle, int key = 0, int status = 0, QPointF position = {});
bool hasCallback(const Widget& widget, Slot slot);
// Status of the event that the program has in hand, if this widget raised it; else 0.
int statusOfEvent(const Widget& widget);
// Code of the last key or the mouse button that went to the program's windows, as OACTION.key gives it.
int lastKey();
// Runs Qt until a box that was opened is answered: no event of the program is read meanwhile.
int runBox(QDialog& box);
// Is told of every box before it comes up; for tests that answer boxes. Null for none.
void setBoxWatcher(void (*watcher)(QDialog& box));

// The keyword and the identifier offset of a callback.
struct SlotRow {
    Slot slot;
    int keyword;
    int offset; // times OIDENT
};
const SlotRow& slotRow(Slot slot);
void defineCallback(Widget& widget, Slot slot, int identifier);

void forgetEvents(const Widget& widget); // it goes

} // namespace orba
