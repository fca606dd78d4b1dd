// Keys, mouse buttons and timers of the whole program.
#pragma once

#include <QObject>

class QKeyEvent;

namespace orba {

// Key of a Qt key event as programs see it, 0 for none.
int keyCode(const QKeyEvent& event);
// Whether input is confined to another window.
bool inputBlocked(const QObject* target);
void installInputFilter();
void removeInputFilter();
void closeTimers();

} // namespace orba
