// Windows that are designed.
//
// A press on the bare face of a container begins a rubber band: it is drawn here, while the container tells the program
// of the press and the release as always. Arrow keys and Esc go to the designer, unless the user types in a field.
#include "toolkit/frame/designing.h"

#include "toolkit/frame/design_windows.h"
#include "toolkit/frame/events.h"
#include "toolkit/frame/keys.h"
#include "toolkit/frame/registry.h"
#include "toolkit/frame/report.h"
#include "toolkit/frame/routines.h"
#include "toolkit/frame/session.h"
#include "toolkit/frame/windows.h"
#include "toolkit/views/outline.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTextEdit>

#include <algorithm>

namespace orba {
namespace {

constexpr int BAND_DISTANCE = 3; // pixels of the pointer's way that begin a band

int designCallback = 0; // identifier of the keys, 0 for none

const WindowData* designedWindow(const QWidget* view) {
    const Widget* window = windowOf(widgetAt(view));
    if (!window || window->kind != Kind::window || !window->data) return nullptr;
    const WindowData& data = windowData(*window);
    return data.designed ? &data : nullptr;
}

bool holdsWidgets(Kind kind) { return kind == Kind::panel || kind == Kind::radioBox || kind == Kind::graphicsFrame; }

// Whether the arrow keys move a caret there.
bool takesText(const QWidget* focus) {
    if (const auto* line = qobject_cast<const QLineEdit*>(focus)) return !line->isReadOnly();
    if (const auto* text = qobject_cast<const QTextEdit*>(focus)) return !text->isReadOnly();
    if (const auto* plain = qobject_cast<const QPlainTextEdit*>(focus)) return !plain->isReadOnly();
    return qobject_cast<const QAbstractSpinBox*>(focus) != nullptr;
}

// A tool is taken from the master window's bars, which have the input afterwards.
bool isMaster(const QWidget* view) {
    const Widget* window = windowOf(widgetAt(view));
    return window && window->kind == Kind::master;
}

bool isArrow(int key) {
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

class Designing : public QObject {
public:
    bool eventFilter(QObject* target, QEvent* event) override {
        switch (event->type()) {
        case QEvent::MouseButtonPress: pressed(target, *static_cast<QMouseEvent*>(event)); return false;
        case QEvent::MouseMove: moved(*static_cast<QMouseEvent*>(event)); return false;
        case QEvent::MouseButtonRelease:
            if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) end();
            return false;
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show: masterChanged(target); return false;
        case QEvent::KeyPress: return keyPressed(target, *static_cast<QKeyEvent*>(event));
        default: return false;
        }
    }

    void end() {
        container_ = nullptr;
        delete band_.data();
    }

private:
    // Its free middle may have become another.
    void masterChanged(const QObject* target) {
        const Widget* master = widgetOf(1);
        if (!master || (target != master->view && target != master->client) || settling_) return;
        settling_ = true;
        const auto settle = [this] {
            settling_ = false;
            settleDesignWindows();
        };
        QMetaObject::invokeMethod(this, settle, Qt::QueuedConnection);
    }

    void pressed(QObject* target, const QMouseEvent& event) {
        if (event.button() != Qt::LeftButton || container_ || !target->isWidgetType() || inputBlocked(target)) return;
        auto* view = static_cast<QWidget*>(target);
        Widget* widget = widgetAt(view);
        if (!widget || !holdsWidgets(widget->kind) || !designedWindow(view)) return;
        container_ = clientOf(widget);
        handle_ = widget->handle;
        start_ = container_->mapFromGlobal(event.globalPosition().toPoint());
    }

    void moved(const QMouseEvent& event) {
        if (!container_) return;
        if (!(event.buttons() & Qt::LeftButton)) return end(); // its release went elsewhere
        const QPoint pointer = event.globalPosition().toPoint();
        if (!band_ && (container_->mapFromGlobal(pointer) - start_).manhattanLength() < BAND_DISTANCE) return;
        showPoint(container_, pointer);
        if (!band_) {
            band_ = new OutlineView(designRoomOf(container_));
            band_->setObjectName(QStringLiteral("rubber-band"));
            band_->setFilled(true);
        }
        const QRect room = container_->rect();
        const QRect inside = QRect(start_, container_->mapFromGlobal(pointer)).normalized() & room;
        const Widget* widget = widgetOf(handle_);
        band_->showAround(inside.translated(container_->mapTo(band_->parentWidget(), QPoint(0, 0))),
                          widget ? readoutOf(*widget, inside) : QString());
    }

    // True when the designer has taken the key.
    static bool keyPressed(QObject* target, const QKeyEvent& event) {
        const bool escape = event.key() == Qt::Key_Escape;
        if (designCallback == 0 || !(escape || isArrow(event.key())) || !target->isWidgetType()) return false;
        const auto* view = static_cast<const QWidget*>(target);
        const QWidget* focus = QApplication::focusWidget();
        if (session.openBoxes > 0 || QApplication::activeModalWidget() || QApplication::activePopupWidget())
            return false;
        if ((focus && focus != view) || inputBlocked(target)) return false;
        if (!designedWindow(view) && !(escape && isMaster(view))) return false;
        if (!escape && takesText(view)) return false;
        if (event.modifiers() & Qt::AltModifier) return false;
        inputByUser();
        const Widget* widget = widgetAt(view);
        session.lastKey = keyCode(event);
        postIdentifier(designCallback, widget ? widget->handle : 0, session.lastKey);
        return !escape;
    }

    QPointer<QWidget> container_; // whose face was pressed; null while no band is drawn
    int handle_ = 0;
    QPoint start_; // in it
    QPointer<OutlineView> band_;
    bool settling_ = false; // settleDesignWindows is on its way
};

Designing* designing = nullptr;

void installDesigning() {
    if (designing) return;
    designing = new Designing;
    qApp->installEventFilter(designing);
}

Word designWindow(const Arguments& call) {
    Widget& window = *widgetOf(call.integer(0));
    WindowData& data = windowData(window);
    data.designed = true;
    data.placedByUser = call.integer(1) != 0;
    data.unit = QSize(std::max(1, call.integer(2)), std::max(1, call.integer(3)));
    makeScrollable(window);
    settleDesignWindow(window);
    installDesigning();
    return 0;
}

Word setDesignCallback(const Arguments& call) {
    designCallback = call.integer(0);
    return 0;
}

// The views stay what they are to look at.
Word designPicture(const Arguments& call) {
    const Widget& panel = *widgetOf(call.integer(0));
    for (const Widget* child : panel.children) {
        if (!child->view) continue;
        child->view->setAttribute(Qt::WA_TransparentForMouseEvents);
        child->view->setFocusPolicy(Qt::NoFocus);
        for (QWidget* part : child->view->findChildren<QWidget*>()) part->setFocusPolicy(Qt::NoFocus);
    }
    return 0;
}

const Registration registration({
    {Fn::owDesignWindow, designWindow},
    {Fn::owDesignPicture, designPicture},
    {Fn::owSetDesignCallback, setDesignCallback},
});

} // namespace

QWidget* designRoomOf(QWidget* view) {
    const Widget* window = windowOf(widgetAt(view));
    const bool inside = window && window->client && (window->client == view || window->client->isAncestorOf(view));
    return inside ? window->client.data() : view->window();
}

QString readoutOf(const Widget& widget, const QRect& rect) {
    const WindowData* data = designedWindow(widget.view);
    if (!data) return {};
    const auto [across, down] = std::pair(data->unit.width(), data->unit.height());
    return QStringLiteral("%1, %2   %3 × %4")
        .arg(rect.x() / across)
        .arg(rect.y() / down)
        .arg(rect.width() / across)
        .arg(rect.height() / down);
}

void forgetDesigning() {
    delete designing;
    designing = nullptr;
    designCallback = 0;
}

} // namespace orba
