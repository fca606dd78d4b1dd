// Keys, mouse buttons and timers of the whole program, and the input that is confined to one window.
#include "toolkit/frame/keys.h"

#include "toolkit/frame/colours.h"
#include "toolkit/frame/events.h"
#include "toolkit/frame/registry.h"
#include "toolkit/frame/report.h"
#include "toolkit/frame/routines.h"
#include "toolkit/frame/session.h"
#include "toolkit/frame/windows.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>

#include <algorithm>

namespace orba {
namespace {

constexpr int SHIFTED = 1000;
constexpr int CONTROLLED = 2000;
constexpr int ALTERED = 4000;

struct SpecialKey {
    int key;
    int code;
};
constexpr SpecialKey specialKeys[] = {
    {Qt::Key_Tab, OKEYTAB},       {Qt::Key_Backtab, OKEYSHIFTTAB}, {Qt::Key_Return, OKEYRETURN},
    {Qt::Key_Enter, OKEYRETURN},  {Qt::Key_Escape, OKEYESC},       {Qt::Key_Delete, OKEYDEL},
    {Qt::Key_Backspace, 8},       {Qt::Key_Left, OKEYLEFT},        {Qt::Key_Up, OKEYUP},
    {Qt::Key_Right, OKEYRIGHT},   {Qt::Key_Down, OKEYDOWN},        {Qt::Key_Home, OKEYHOME},
    {Qt::Key_End, OKEYEND},       {Qt::Key_PageUp, OKEYPAGEUP},    {Qt::Key_PageDown, OKEYPAGEDOWN},
    {Qt::Key_Insert, OKEYINSERT},
};

bool isArrowCode(int code) { return code >= OKEYLEFT && code <= OKEYDOWN; }

int specialCode(int key) {
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return OKEYF1 + (key - Qt::Key_F1);
    for (const SpecialKey& row : specialKeys) {
        if (row.key == key) return row.code;
    }
    return 0;
}

int buttonCode(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton: return OKEYLEFTBUTTON;
    case Qt::MiddleButton: return OKEYMIDDLEBUTTON;
    case Qt::RightButton: return OKEYRIGHTBUTTON;
    default: return 0;
    }
}

bool boxIsOpen() {
    return session.openBoxes > 0 || QApplication::activeModalWidget() || QApplication::activePopupWidget();
}

// A key goes from the widget that has the focus up through its parents; it counts once, at its first station.
bool isFirstStation(const QObject* target) {
    const QWidget* focus = QApplication::focusWidget();
    if (!focus || focus == target) return true;
    for (const QObject* parent = focus->parent(); parent; parent = parent->parent()) {
        if (parent == target) return false;
    }
    return true;
}

// Typed characters that share a number with an arrow key are no key of the program's.
bool namesTypedCharacter(int code, const QKeyEvent& event) { return isArrowCode(code) && !event.text().isEmpty(); }

// What is being edited in a cell of a list.
bool editsCell(const QObject* target) {
    const auto* viewport = target ? target->parent() : nullptr;
    for (; viewport && viewport->isWidgetType(); viewport = viewport->parent())
        if (const auto* view = qobject_cast<const QAbstractItemView*>(viewport->parent()))
            return view->viewport() == viewport;
    return false;
}

// What the key sends from `widget`: the innermost one that speaks of it decides, then the program's own keys. With
// `alone` those around it are not asked.
int identifierOf(const Widget& widget, int code, bool alone = false) {
    for (const Widget* one = &widget; one; one = alone ? nullptr : one->parent) {
        const auto row = one->keys.find(code);
        if (row != one->keys.end()) return row.value() == OLEAVEKEY ? 0 : row.value();
    }
    return session.keys.value(code);
}

// True when the program has taken the key.
bool takeKey(QObject* target, const QKeyEvent& event) {
    const int code = keyCode(event);
    if (code == 0) return false;
    session.lastKey = code;
    if (boxIsOpen() || namesTypedCharacter(code, event) || !isFirstStation(target)) return false;
    const Widget* widget = widgetAt(target);
    if (!widget) return false;
    const bool endsCell = code == OKEYESC && editsCell(target); // and not what is around the list
    if (const int identifier = identifierOf(*widget, code, endsCell)) {
        postIdentifier(identifier, widget->handle, code);
        return true;
    }
    if (const int identifier = session.keySelects.value(code)) postIdentifier(identifier, widget->handle, code);
    return false;
}

bool takeButton(QObject* target, const QMouseEvent& event) {
    const int code = buttonCode(event.button());
    session.lastKey = code;
    const Widget* widget = widgetAt(target);
    if (!widget || !widget->view || boxIsOpen()) return false;
    const int identifier = identifierOf(*widget, code);
    if (identifier == 0) return false;
    postIdentifier(identifier, widget->handle, code, 0, widget->view->mapFromGlobal(event.globalPosition()));
    return true;
}

class InputFilter : public QObject {
public:
    bool eventFilter(QObject* target, QEvent* event) override {
        switch (event->type()) {
        case QEvent::KeyPress:
            if (!target->isWidgetType()) return false;
            inputByUser();
            if (blocked(target)) return true;
            return takeKey(target, *static_cast<QKeyEvent*>(event));
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            if (!target->isWidgetType()) return false;
            inputByUser();
            if (blocked(target)) {
                if (Widget* window = widgetOf(session.activeWindow)) raiseWindow(*window);
                return true;
            }
            return takeButton(target, *static_cast<QMouseEvent*>(event));
        case QEvent::MouseButtonRelease:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::DragEnter: return target->isWidgetType() && blocked(target);
        case QEvent::ApplicationPaletteChange:
            if (target == qApp) {
                loadColours();
                recolour();
            }
            return false;
        default: return false;
        }
    }

private:
    static bool blocked(const QObject* target) { return inputBlocked(target); }
};

InputFilter* filter = nullptr;

// Moves that nobody has read yet count as the last one of them.
void tellInput(const QWidget* now) {
    const Widget* widget = now ? widgetAt(now) : nullptr;
    if (!widget || session.inputIdentifier == 0 || widget->handle == session.inputTold) return;
    session.inputTold = widget->handle;
    std::erase_if(session.queue, [](const Event& event) { return event.identifier == session.inputIdentifier; });
    postIdentifier(session.inputIdentifier, widget->handle, session.lastKey);
}

struct Timer {
    int identifier;
    int milliseconds;
    QTimer* timer;
};
std::vector<Timer> timers;

template <typename Condition> void stopTimers(Condition condition) {
    for (const Timer& one : timers) {
        if (condition(one)) delete one.timer;
    }
    std::erase_if(timers, condition);
}

bool waits(int identifier) {
    return std::any_of(session.queue.begin(), session.queue.end(),
                       [identifier](const Event& event) { return event.identifier == identifier; });
}

Word defineTimer(const Arguments& call) {
    const int milliseconds = call.integer(0);
    const int identifier = call.integer(1);
    if (identifier == 0) {
        stopTimers([milliseconds](const Timer& one) { return milliseconds == 0 || one.milliseconds == milliseconds; });
        return 0;
    }
    stopTimers([identifier](const Timer& one) { return one.identifier == identifier; });
    if (milliseconds == 0) return 0;
    auto* timer = new QTimer;
    // A tick that nobody has read yet is enough.
    QObject::connect(timer, &QTimer::timeout, [identifier] {
        if (!waits(identifier)) postIdentifier(identifier, 1);
    });
    timer->start(milliseconds);
    timers.push_back({identifier, milliseconds, timer});
    return 0;
}

void setKey(QHash<int, int>& keys, int code, int identifier) {
    if (identifier == 0) {
        keys.remove(code);
    } else {
        keys.insert(code, identifier);
    }
}

Word defineKey(const Arguments& call) {
    setKey(session.keys, call.integer(0), call.integer(1));
    return 0;
}

Word defineKeySelect(const Arguments& call) {
    setKey(session.keySelects, call.integer(0), call.integer(1));
    return 0;
}

Word enquireKey(const Arguments& call) { return session.keys.value(call.integer(0)); }
Word enquireKeySelect(const Arguments& call) { return session.keySelects.value(call.integer(0)); }

Word setActiveWindow(const Arguments& call) {
    const int handle = call.integer(0);
    if (handle < 0) {
        reportFailure(26, handle);
        return 0;
    }
    Widget* window = widgetOf(handle == 0 ? 1 : handle);
    if (!window) {
        reportFailure(26, handle);
        return 0;
    }
    if (handle > 1 && window->kind != Kind::window) {
        reportFailure(25, handle);
        return 0;
    }
    session.activeWindow = handle > 1 ? handle : 0;
    if (handle == 0 && QApplication::activeWindow()) return 0;
    raiseWindow(*window);
    return 0;
}

Word enquireActiveWindow(const Arguments&) {
    if (session.activeWindow) return session.activeWindow;
    const Widget* window = windowOf(widgetAt(QApplication::activeWindow()));
    return window ? window->handle : 1;
}

// The widget whose view takes the focus in a composite view.
QWidget* focusTarget(QWidget* view) {
    if (view->focusPolicy() != Qt::NoFocus || view->focusProxy()) return view;
    for (QWidget* child : view->findChildren<QWidget*>()) {
        if (child->focusPolicy() != Qt::NoFocus && widgetAt(child) == widgetAt(view)) return child;
    }
    return nullptr;
}

constexpr Kind unfocusable[] = {Kind::menuBar,       Kind::popupMenu, Kind::pullDownMenu,  Kind::menuEntry,
                                Kind::menuSeparator, Kind::statusBar, Kind::toolSeparator, Kind::treeEntry};

Word setActiveWidget(const Arguments& call) {
    const int handle = std::abs(call.integer(0));
    Widget* widget = widgetOf(handle);
    if (!widget) {
        reportFailure(26, call.integer(0));
        return 0;
    }
    if (!widget->view ||
        std::find(std::begin(unfocusable), std::end(unfocusable), widget->kind) != std::end(unfocusable)) {
        reportFailure(47, handle);
        return 0;
    }
    QWidget* target = focusTarget(widget->view);
    // A plain container takes the focus itself, so that the keys do not stay with the widget that had it.
    if (!target) target = widget->view;
    activateView(widget->view);
    target->setFocus(Qt::OtherFocusReason);
    return 0;
}

Word enquireActiveWidget(const Arguments&) {
    const Widget* widget = widgetAt(QApplication::focusWidget());
    return widget ? widget->handle : 0;
}

const Registration registration({
    {Fn::owDefineTimerCallback, defineTimer},
    {Fn::owDefineKeyCallback, defineKey},
    {Fn::owDefineKeySelectCallback, defineKeySelect},
    {Fn::owEnqKeyCallback, enquireKey},
    {Fn::owEnqKeySelectCallback, enquireKeySelect},
    {Fn::owSetActiveWindow, setActiveWindow},
    {Fn::owEnqActiveWindow, enquireActiveWindow},
    {Fn::owSetActiveWidget, setActiveWidget},
    {Fn::owEnqActiveWidget, enquireActiveWidget},
});

} // namespace

int keyCode(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    if (const int code = specialCode(event.key())) {
        if (code == OKEYSHIFTTAB || (code == OKEYTAB && !(held & Qt::ControlModifier))) return code;
        return code + (held & Qt::ShiftModifier ? SHIFTED : 0) + (held & Qt::ControlModifier ? CONTROLLED : 0) +
               (held & Qt::AltModifier ? ALTERED : 0);
    }
    if (held & Qt::AltModifier) return 0;
    if (held & Qt::ControlModifier) {
        return event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z ? event.key() - Qt::Key_A + 1 : 0;
    }
    const QString text = event.text();
    return text.size() == 1 ? text[0].unicode() : 0;
}

bool inputBlocked(const QObject* target) {
    if (session.activeWindow == 0 || boxIsOpen()) return false;
    const Widget* widget = widgetAt(target);
    if (!widget) return false;
    for (; widget; widget = widget->parent) {
        if (widget->handle == session.activeWindow) return false;
    }
    return true;
}

void defineWidgetKey(int handle, int code, int identifier) {
    if (Widget* widget = widgetOf(handle)) setKey(widget->keys, code, identifier);
}

int widgetKey(int handle, int code) {
    const Widget* widget = widgetOf(handle);
    return widget ? identifierOf(*widget, code) : 0;
}

void defineInput(int identifier) {
    session.inputIdentifier = identifier;
    session.inputTold = 0;
}

void setWindowInput(int handle) {
    const Widget* widget = widgetOf(handle);
    if (!widget || !widget->view) return;
    QWidget* target = focusTarget(widget->view);
    (target ? target : widget->view.data())->setFocus(Qt::OtherFocusReason);
}

void installInputFilter() {
    if (!filter) filter = new InputFilter;
    qApp->installEventFilter(filter);
    QObject::connect(qApp, &QApplication::focusChanged, filter, [](QWidget*, QWidget* now) { tellInput(now); });
}

void removeInputFilter() {
    delete filter;
    filter = nullptr;
}

void closeTimers() {
    stopTimers([](const Timer&) { return true; });
}

} // namespace orba
