// Keys, mouse buttons and timers of the whole program.
#pragma once

#include <QObject>

class QKeyEvent;

namespace orba {

// Key of a Qt key event as programs see it, 0 for none.
int keyCode(const QKeyEvent& event);
// Whether input is confined to another window.
bool inputBlocked(const QObject* target);
// Keys of a widget and of all that lies in it; OLEAVEKEY leaves one to what has the focus, 0 takes the row back.
void defineWidgetKey(int handle, int code, int identifier);
int widgetKey(int handle, int code); // identifier that the key sends from the widget, 0 when the widget has it
void defineInput(int identifier);    // sent when the focus has moved to another widget; 0 ends it
void setWindowInput(int handle);     // the widget has the focus once its window is active
void installInputFilter();
void removeInputFilter();
void closeTimers();

} // namespace orba
