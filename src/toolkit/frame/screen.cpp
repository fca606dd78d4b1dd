#include "toolkit/frame/screen.h"

#include "toolkit/frame/registry.h"
#include "toolkit/frame/session.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPointer>
#include <QScreen>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace orba {
namespace {

constexpr int MASTER_CLOSED = -1;
constexpr std::size_t MOST_HELD = 2000; // events; a user who types more gets no more from it

struct HeldInput {
    QPointer<QObject> window;
    std::function<std::unique_ptr<QEvent>()> event; // makes it when its time has come
};
std::vector<HeldInput> held;

// Mouse events share the one point of their device, copies too: a later event would move an earlier one to its own
// place. So what is kept of them is their values.
std::function<std::unique_ptr<QEvent>()> heldMouse(const QMouseEvent& event) {
    return [type = event.type(), at = event.position(), global = event.globalPosition(), button = event.button(),
            buttons = event.buttons(), modifiers = event.modifiers()] {
        return std::make_unique<QMouseEvent>(type, at, global, button, buttons, modifiers);
    };
}

std::function<std::unique_ptr<QEvent>()> heldKey(const QEvent& event) {
    return [key = std::shared_ptr<QEvent>(event.clone())] { return std::unique_ptr<QEvent>(key->clone()); };
}

bool isInput(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease: return true;
    default: return false;
    }
}

// Whether what lies at a place of the screen may be used while a long command runs.
bool stops(const QWidget* view, int identifier) {
    if (qobject_cast<const QMenuBar*>(view) || qobject_cast<const QMenu*>(view)) return true;
    const Widget* widget = widgetAt(view);
    return widget && widget->callbacks[static_cast<std::size_t>(Slot::general)] == identifier;
}

bool isEscape(const QEvent& event) {
    const bool key = event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease;
    return key && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

// Sees the input as it comes to the windows, before any widget does.
class StopFilter : public QObject {
public:
    explicit StopFilter(int identifier) : identifier_(identifier) { qApp->installEventFilter(this); }
    bool escaped = false;

    bool eventFilter(QObject* target, QEvent* event) override {
        if (!target->isWindowType() || !isInput(event->type())) return false;
        if (QApplication::activePopupWidget()) return false; // an open menu
        if (isEscape(*event)) {
            escaped = escaped || event->type() == QEvent::KeyPress;
            return true;
        }
        if (event->type() == QEvent::Wheel) return true;
        const auto* mouse = dynamic_cast<const QMouseEvent*>(event);
        if (mouse) {
            if (stops(QApplication::widgetAt(mouse->globalPosition().toPoint()), identifier_)) return false;
            if (mouse->type() == QEvent::MouseMove && mouse->buttons() == Qt::NoButton) return true;
        }
        if (held.size() < MOST_HELD) held.push_back({target, mouse ? heldMouse(*mouse) : heldKey(*event)});
        return true;
    }

private:
    int identifier_;
};

// Takes the events that ask for the stop out of the queue; the closed master window stays to be handled afterwards.
bool takeStop(int identifier) {
    const bool asked = std::erase_if(session.queue, [&](const Event& event) { return event.identifier == identifier; });
    const auto closed = [](const Event& event) { return event.identifier == MASTER_CLOSED; };
    return asked || std::any_of(session.queue.begin(), session.queue.end(), closed);
}

} // namespace
} // namespace orba

void widgets::screenSize(int& width, int& height) {
    const QScreen* screen = qGuiApp ? QGuiApplication::primaryScreen() : nullptr;
    width = screen ? screen->geometry().width() : 0;
    height = screen ? screen->geometry().height() : 0;
}

bool widgets::shiftHeld() { return qGuiApp && (QGuiApplication::queryKeyboardModifiers() & Qt::ShiftModifier); }

void widgets::updateWindows() {
    if (qApp) QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

bool widgets::stopAsked(int identifier) {
    if (!qApp) return false;
    orba::StopFilter filter(identifier);
    QCoreApplication::processEvents();
    return orba::takeStop(identifier) || filter.escaped;
}

void widgets::releaseHeldInput() {
    for (const orba::HeldInput& input : std::exchange(orba::held, {}))
        QMetaObject::invokeMethod(
            qApp,
            [input] {
                if (input.window) QCoreApplication::sendEvent(input.window, input.event().get());
            },
            Qt::QueuedConnection);
}
