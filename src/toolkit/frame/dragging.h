// Drag and drop.
#pragma once

#include <QObject>

class QEvent;

namespace orba {

// True when the event is used up.
bool dragEvent(QObject* target, QEvent* event);

} // namespace orba
