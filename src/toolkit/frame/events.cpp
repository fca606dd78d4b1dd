// The one queue of events, and the routines that read and feed it.
#include "toolkit/frame/events.h"

#include "toolkit/frame/registry.h"
#include "toolkit/frame/report.h"
#include "toolkit/frame/routines.h"
#include "toolkit/frame/screen.h"
#include "toolkit/frame/session.h"
#include "toolkit/frame/widget_links.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

namespace orba {

Session session;

namespace {

constexpr SlotRow slotRows[] = {
    {Slot::general, owCallback, 0},
    {Slot::select, owSelectCallback, 1},
    {Slot::move, owMoveCallback, 2},
    {Slot::expose, owExposeCallback, 3},
    {Slot::change, owChangeCallback, 4},
    {Slot::dragDrop, owDragDropCallback, 5},
    {Slot::doubleClick, owDoubleClickCallback, 6},
    {Slot::fileDrop, owFileDropCallback, 7},
    {Slot::dragSelect, owDragSelectCallback, 8},
    {Slot::dragMove, owDragMoveCallback, 9},
    {Slot::valueError, owValueErrorCallback, 10},
    {Slot::link, owLinkCallback, 11},
};
static_assert(std::size(slotRows) == static_cast<std::size_t>(Slot::count));

void (*boxWatcher)(QDialog& box) = nullptr;

// While events wait, the screen still gets its turn this often.
constexpr int PUMP_MILLISECONDS = 20;

void append(Event event) {
    session.queue.push_back(std::move(event));
    if (session.waiting) session.waiting->exit();
}

// Geometry events of one window that follow one another are one event.
bool repeatsLast(int identifier, int handle, int status) {
    if (session.queue.empty()) return false;
    const Event& last = session.queue.back();
    return last.identifier == identifier && last.handle == handle && last.status == status;
}

// A window that was closed for good goes once the program has read the event that says so.
void eraseDoomed() {
    const std::vector<int> doomed = std::exchange(session.doomed, {});
    for (int handle : doomed) {
        const bool unread = std::any_of(session.queue.begin(), session.queue.end(),
                                        [handle](const Event& event) { return event.handle == handle; });
        Widget* widget = widgetOf(handle);
        if (widget && unread) {
            session.doomed.push_back(handle);
        } else if (widget) {
            eraseWidget(*widget);
        }
    }
}

void waitForEvent() {
    QEventLoop loop;
    while (session.queue.empty()) {
        session.waiting = &loop;
        loop.exec();
        session.waiting = nullptr;
    }
}

void keepScreenAlive() {
    static QElapsedTimer sincePump;
    if (sincePump.isValid() && sincePump.elapsed() < PUMP_MILLISECONDS) return;
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    sincePump.start();
}

Word action(const Arguments& call) {
    if (sessionState() < 2) reportError(-1, 0, false);
    eraseDoomed();
    widgets::releaseHeldInput();
    if (session.queue.empty()) {
        waitForEvent();
    } else {
        keepScreenAlive();
    }
    session.current = std::move(session.queue.front());
    session.queue.pop_front();
    call.give<int>(0, session.current.identifier);
    return session.current.identifier;
}

Word enquireActionState(const Arguments& call) {
    auto* action = call.record<OACTION>(0);
    if (!action) return 0;
    const Event& event = session.current;
    *action = OACTION{};
    action->callback = event.identifier;
    action->widget = event.handle;
    action->key = event.key;
    action->status = event.status;
    action->xpos = static_cast<float>(event.position.x());
    action->ypos = static_cast<float>(event.position.y());
    action->count = static_cast<int>(std::min<std::size_t>(event.values.size(), std::size(action->args)));
    for (int i = 0; i < action->count; i++) {
        action->args[i] = event.values[static_cast<std::size_t>(i)].first;
        action->iargs[i] = event.values[static_cast<std::size_t>(i)].second;
    }
    textOut(event.text, action->text, static_cast<int>(sizeof action->text));
    return 0;
}

Word postCallback(const Arguments& call) {
    postIdentifier(call.integer(0), call.integer(1));
    return 0;
}

Word flushQueue(const Arguments&) {
    session.queue.clear();
    return 0;
}

template <Slot slot> Word define(const Arguments& call) {
    defineCallback(*widgetOf(call.integer(0)), slot, call.integer(1));
    return 0;
}

const Registration registration({
    {Fn::owAction, action},
    {Fn::owEnqActionState, enquireActionState},
    {Fn::owPostCallback, postCallback},
    {Fn::owFlushCallbackQueue, flushQueue},
    {Fn::owDefineCallback, define<Slot::general>},
    {Fn::owDefineSelectCallback, define<Slot::select>},
    {Fn::owDefineMoveCallback, define<Slot::move>},
    {Fn::owDefineExposeCallback, define<Slot::expose>},
    {Fn::owDefineChangeCallback, define<Slot::change>},
    {Fn::owDefineDragDropCallback, define<Slot::dragDrop>},
    {Fn::owDefineDoubleClickCallback, define<Slot::doubleClick>},
    {Fn::owDefineFileDropCallback, define<Slot::fileDrop>},
    {Fn::owDefineDragSelectCallback, define<Slot::dragSelect>},
    {Fn::owDefineDragMoveCallback, define<Slot::dragMove>},
    {Fn::owDefineValueErrorCallback, define<Slot::valueError>},
    {Fn::owDefineLinkCallback, define<Slot::link>},
});

} // namespace

const SlotRow& slotRow(Slot slot) { return slotRows[static_cast<int>(slot)]; }

void defineCallback(Widget& widget, Slot slot, int identifier) {
    if (identifier == OIDENT) identifier = widget.handle + slotRow(slot).offset * OIDENT;
    widget.callbacks[static_cast<std::size_t>(slot)] = identifier;
    if ((slot == Slot::dragDrop || slot == Slot::fileDrop) && widget.view) widget.view->setAcceptDrops(true);
    if (slot == Slot::move && widget.view) widget.view->setMouseTracking(true);
}

bool hasCallback(const Widget& widget, Slot slot) { return widget.callbacks[static_cast<std::size_t>(slot)] != 0; }

void post(int handle, Slot slot, int status, QPointF position, const QString& text) {
    if (session.program) return;
    if (slot == Slot::select && handle == session.expectedFocus && handle != 0) {
        session.expectedFocus = 0;
        return;
    }
    Widget* widget = widgetOf(handle);
    if (!widget) return;
    if (slot == Slot::general) obeyLinks(*widget);
    if (!hasCallback(*widget, slot)) {
        Widget* parent = widget->parent;
        if (parent && parent->family->childEvent) parent->family->childEvent(*parent, *widget, slot);
        return;
    }
    const int identifier = widget->callbacks[static_cast<std::size_t>(slot)];
    const bool window = widget->kind == Kind::master || widget->kind == Kind::window;
    if (window && slot == Slot::general && repeatsLast(identifier, handle, status)) return;
    if (slot == Slot::move && repeatsLast(identifier, handle, status))
        session.queue.pop_back(); // only the last position
    append({identifier, handle, session.lastKey, status, position, text, {}});
}

int statusOfEvent(const Widget& widget) { return session.current.handle == widget.handle ? session.current.status : 0; }

void postIdentifier(int identifier, int handle, int key, int status, QPointF position) {
    if (identifier == 0) return;
    append({identifier, handle, key, status, position, {}, {}});
}

void addEventValue(float value, int whole) {
    if (!session.queue.empty()) session.queue.back().values.emplace_back(value, whole);
}

int lastKey() { return session.lastKey; }

void setBoxWatcher(void (*watcher)(QDialog& box)) { boxWatcher = watcher; }

int runBox(QDialog& box) {
    session.openBoxes++;
    if (boxWatcher) boxWatcher(box);
    const int result = box.exec();
    session.openBoxes--;
    return result;
}

void forgetEvents(const Widget& widget) {
    std::erase_if(session.queue, [&widget](const Event& event) { return event.handle == widget.handle; });
    if (session.activeWindow == widget.handle) session.activeWindow = 0;
    if (session.inputTold == widget.handle) session.inputTold = 0; // another widget may get the number
}

} // namespace orba
