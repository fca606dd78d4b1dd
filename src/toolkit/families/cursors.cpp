// Pointer shapes, the pointer's place, and the switches that only keep what the program says.
#include "toolkit/frame/core.h"
#include "toolkit/frame/session.h"

#include <QApplication>
#include <QCursor>
#include <QMenu>

#include <algorithm>

namespace orba {
namespace {

constexpr Qt::CursorShape shapes[] = {Qt::ArrowCursor,        Qt::ArrowCursor, Qt::CrossCursor,  Qt::WaitCursor,
                                      Qt::PointingHandCursor, Qt::IBeamCursor, Qt::SizeAllCursor};

struct CursorName {
    const char* name;
    int cursor;
};
constexpr CursorName names[] = {{"arrow", OCURSORARROW}, {"cross", OCURSORCROSS}, {"busy", OCURSORBUSY},
                                {"wait", OCURSORBUSY},   {"hand", OCURSORHAND},   {"text", OCURSORTEXT},
                                {"move", OCURSORMOVE}};

bool everywhere = false; // a shape holds for the whole program
QPoint tracking(-1, -1);

void releaseEverywhere() {
    if (everywhere) QApplication::restoreOverrideCursor();
    everywhere = false;
}

Word setCursor(const Arguments& call) {
    const int handle = call.integer(0);
    const int cursor = call.integer(2);
    if (cursor < 0 || cursor >= static_cast<int>(std::size(shapes))) {
        reportFailure(35, cursor);
        return 0;
    }
    if (handle == 0) {
        releaseEverywhere();
        if (cursor == OCURSORDEFAULT) return 0;
        QApplication::setOverrideCursor(shapes[cursor]);
        everywhere = true;
        return 0;
    }
    Widget* widget = widgetOf(handle);
    if (!widget) {
        reportFailure(26, handle);
    } else if (widget->view && cursor == OCURSORDEFAULT) {
        widget->view->unsetCursor();
    } else if (widget->view) {
        widget->view->setCursor(shapes[cursor]);
    }
    return 0;
}

Word cursorResource(const Arguments& call) {
    const QString name = call.text(0);
    for (const CursorName& row : names) {
        if (name.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0) return row.cursor;
    }
    return 0;
}

Word setPointer(const Arguments& call) {
    const Widget& widget = *widgetOf(call.integer(0));
    if (widget.view) QCursor::setPos(widget.view->mapToGlobal(QPoint(call.integer(1), call.integer(2))));
    return 0;
}

Word setTracking(const Arguments& call) {
    tracking = QPoint(call.integer(0), call.integer(1));
    return 0;
}

Word enquireTracking(const Arguments& call) {
    const QPoint point = tracking == QPoint(-1, -1) ? QCursor::pos() : tracking;
    call.give<int>(0, point.x());
    call.give<int>(1, point.y());
    return 0;
}

Word setStyle(const Arguments& call) {
    session.style = call.integer(0);
    return 0;
}

Word enquireStyle(const Arguments&) { return session.style; }

// Windows have the system menu of the window manager; it offers nothing to a program.
Word systemMenu(const Arguments& call) {
    call.give<int>(1, 0);
    return 0;
}

const Registration registration({
    {Fn::owSetGuiCursor, setCursor},
    {Fn::owGetCursorResource, cursorResource},
    {Fn::owSetCursorPos, setPointer},
    {Fn::owSetTrackingPos, setTracking},
    {Fn::owEnqTrackingPos, enquireTracking},
    {Fn::owSetGuiStyle, setStyle},
    {Fn::owEnqGuiStyle, enquireStyle},
    {Fn::owEnqSystemMenu, systemMenu},
});

const bool registered = [] {
    onClose(releaseEverywhere);
    return true;
}();

} // namespace
} // namespace orba
