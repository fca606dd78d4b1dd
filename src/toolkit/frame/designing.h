// Windows whose widgets are drawn by the user, not worked: what the mouse and the keys do on a form that is designed.
#pragma once

#include <QString>

class QRect;
class QWidget;

namespace orba {

struct Widget;

// The widget over which outlines and handles of `view` are drawn: the client area of its window, or the pane that
// floats.
QWidget* designRoomOf(QWidget* view);

// Place and size that `rect` of its parent's client area would give the widget, as the designer counts them; empty in a
// window that is not designed.
QString readoutOf(const Widget& widget, const QRect& rect);

void forgetDesigning(); // at the toolkit's end

} // namespace orba
