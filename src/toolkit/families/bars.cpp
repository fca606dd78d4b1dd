// Tool bars with their buttons and separators.
#include "toolkit/families/main_window.h"
#include "toolkit/frame/session.h"
#include "toolkit/frame/windows.h"
#include "toolkit/views/docking.h"
#include "toolkit/views/icons/icons.h"

#include <QAction>
#include <QEvent>

namespace orba {

DockTitle dockTitleOf(int flag) {
    if (flag == OALL || (flag & OQUIT)) return DockTitle::closable;
    return flag & OTITLE ? DockTitle::title : DockTitle::none;
}

int titleFlagOf(const Arguments& call) {
    return call.given(owTitleFlag) ? call.keyword(owTitleFlag) : static_cast<int>(OQUIT);
}

QMainWindow* mainWindowOf(Widget* widget) {
    const Widget* window = windowOf(widget);
    if (!window || !window->view) return nullptr;
    auto* main = qobject_cast<QMainWindow*>(window->view.data());
    return main ? main : window->view->findChild<QMainWindow*>();
}

QMainWindow* mainWindowGiven(const Arguments& call) {
    QMainWindow* window = mainWindowOf(widgetOf(call.integer(0)));
    if (!window) reportFailure(7, call.integer(0));
    return window;
}

int finishBar(Widget& bar, const Arguments& call) {
    const int handle = finishCreation(bar, call);
    windowBarsChanged(*bar.parent);
    return handle;
}

namespace {

ToolBar& barOf(Widget& widget) { return *static_cast<ToolBar*>(widget.view.data()); }

// ---- The bar

// Hides and shows a child with its place on the bar: the bar keeps a place for a widget that merely hides itself. What
// the bar's layout hides for a moment is not hidden: only the status of the widget tells.
class ChildFollower : public QObject {
public:
    ChildFollower(const Widget& child, QAction* place) : QObject(place), handle_(child.handle), place_(place) {
        child.view->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::HideToParent && event->type() != QEvent::ShowToParent) return false;
        if (const Widget* child = widgetOf(handle_)) place_->setVisible(child->status != OHIDDEN);
        return false;
    }

private:
    int handle_;
    QAction* place_;
};

void barChildAdded(Widget& bar, Widget& child) {
    if (!child.view) return;
    QAction* place = barOf(bar).addWidget(child.view);
    new ChildFollower(child, place);
}

// A widget on a bar keeps the width that the program gave it; its height is the bar's.
void placeOnBar(Widget&, Widget& child) {
    if (!child.view) return;
    if (child.place.width > 0) child.view->setFixedWidth(child.place.width);
}

void barChildLeaving(Widget& bar, Widget& child) {
    if (!bar.view) return;
    const QList<QAction*> places = barOf(bar).actions();
    for (QAction* place : places)
        if (barOf(bar).widgetForAction(place) == child.view) barOf(bar).removeAction(place);
}

QString barText(Widget& widget) { return widget.view->windowTitle(); }
void setBarText(Widget& widget, const QString& text) { barOf(widget).setTitle(text); }

void setBarStatus(Widget& widget, int status) {
    barOf(widget).setShown(status != OHIDDEN);
    barOf(widget).setEnabled(status != OUNSELECTABLE);
    windowBarsChanged(*widget.parent);
}

bool setBarProperty(Widget& widget, int property, const Value& value) {
    if (property != propertyOf(owTitleFlag)) return false;
    widget.titleFlag = value.integer;
    barOf(widget).setTitleBar(dockTitleOf(value.integer));
    return true;
}

const Family toolBars{.name = "tool bar",
                      .set = setBarProperty,
                      .setStatus = setBarStatus,
                      .text = barText,
                      .setText = setBarText,
                      .childAdded = barChildAdded,
                      .childLeaving = barChildLeaving,
                      .placeChild = placeOnBar};

Word createToolBar(const Arguments& call) {
    QMainWindow* window = mainWindowGiven(call);
    if (!window) return 0;
    const int size = call.integer(2) > 0 ? call.integer(2) : 22;
    const int flag = titleFlagOf(call);
    auto* view = new ToolBar(window, dockOf(call.integer(1)), size, call.keywordText(owTitle), dockTitleOf(flag));
    Widget& bar = addWidget(Kind::toolBar, toolBars, call, view, nullptr);
    bar.titleFlag = flag;
    view->report = [handle = bar.handle](DockEvent event) { reportDocking(handle, static_cast<int>(event)); };
    return finishBar(bar, call);
}

Word setToolbarPos(const Arguments& call) {
    Widget& bar = *widgetOf(call.integer(0));
    const QPoint position(pixelsAcross(call.integer(1)), pixelsDown(call.integer(2)));
    barOf(bar).place(dockOf(call.integer(4)), position, pixelsAcross(call.integer(3)));
    windowBarsChanged(*bar.parent);
    return 0;
}

Word enqToolbarPos(const Arguments& call) {
    const ToolBar& bar = barOf(*widgetOf(call.integer(0)));
    const QPoint position = bar.floatPosition();
    call.give(1, unitsAcross(position.x()));
    call.give(2, unitsDown(position.y()));
    call.give(3, unitsAcross(bar.floatWidth() > 0 ? bar.floatWidth() : bar.sizeHint().width()));
    call.give(4, static_cast<int>(bar.dock()));
    return 0;
}

// ---- Buttons

struct ButtonData : FamilyData {
    bool isText = false;
    int iconType = OMOUSESENSITIVE;
};

BarButton& buttonOf(Widget& widget) { return *static_cast<BarButton*>(widget.view.data()); }

// A push button has a raised face, a mouse sensitive icon rises under the pointer, a pictogram stays as it is.
void showButtonType(Widget& widget) {
    BarButton& button = buttonOf(widget);
    const int type = dataOf<ButtonData>(widget).iconType;
    button.setAutoRaise(type != OBUTTON);
    button.setFlat(type == OPICTOGRAM);
}

void setButtonStatus(Widget& widget, int status) {
    BarButton& button = buttonOf(widget);
    button.setVisible(status != OHIDDEN);
    button.setEnabled(status != OUNSELECTABLE);
    button.setPressedLook(status == OCHECKED);
}

void setButtonIcon(Widget& widget, const QIcon& icon) {
    buttonOf(widget).setIcon(icon);
    buttonOf(widget).setToolButtonStyle(dataOf<ButtonData>(widget).isText ? Qt::ToolButtonTextBesideIcon
                                                                          : Qt::ToolButtonIconOnly);
}

bool setButtonProperty(Widget& widget, int property, const Value& value) {
    switch (property) {
    case propertyOf(owIconType):
        dataOf<ButtonData>(widget).iconType = value.integer;
        showButtonType(widget);
        return true;
    case propertyOf(owIcon):
    case propertyOf(owIconHandle): setButtonIcon(widget, icons::iconOfResource(value.integer)); return true;
    case propertyOf(owOffCol): setViewColour(widget.view, QPalette::Button, value.integer); return true;
    case propertyOf(owOnCol): setViewColour(widget.view, QPalette::Highlight, value.integer); return true;
    case propertyOf(owTextCol): setViewColour(widget.view, QPalette::ButtonText, value.integer); return true;
    default: return false;
    }
}

bool getButtonProperty(Widget& widget, int property, Value& value) {
    if (property != propertyOf(owIconType)) return false;
    value.integer = dataOf<ButtonData>(widget).iconType;
    return true;
}

QString buttonText(Widget& widget) { return buttonOf(widget).property("label").toString(); }

void setButtonText(Widget& widget, const QString& text) {
    buttonOf(widget).setProperty("label", text);
    if (dataOf<ButtonData>(widget).isText)
        buttonOf(widget).setText(labelWithMnemonic(text, widget.accel));
    else
        setButtonIcon(widget, icons::iconByName(text));
}

const Family barButtons{.name = "tool bar button",
                        .get = getButtonProperty,
                        .set = setButtonProperty,
                        .setStatus = setButtonStatus,
                        .text = buttonText,
                        .setText = setButtonText};

Word createToolBarButton(const Arguments& call) {
    Widget* bar = widgetOf(call.integer(0));
    auto* view = new BarButton(bar->view);
    auto data = std::make_unique<ButtonData>();
    data->isText = call.integer(1) == OTEXTBUTTON;
    const int type = call.given(owIconType) ? call.keyword(owIconType) : call.given(owType) ? call.keyword(owType) : 0;
    data->iconType = type != 0 ? type : static_cast<int>(data->isText ? OBUTTON : OMOUSESENSITIVE);
    view->setIconSize(barOf(*bar).iconSize());
    view->setFocusPolicy(Qt::NoFocus);
    view->setMinimumSize(barOf(*bar).iconSize() + QSize(6, 6));
    view->setToolButtonStyle(data->isText ? Qt::ToolButtonTextOnly : Qt::ToolButtonIconOnly);
    Widget& button = addWidget(Kind::toolButton, barButtons, call, view, std::move(data));
    setButtonText(button, call.text(2));
    showButtonType(button);
    const int handle = button.handle;
    QObject::connect(view, &QToolButton::pressed, view, [handle] { post(handle, Slot::select, 1); });
    QObject::connect(view, &QToolButton::clicked, view, [handle] { post(handle, Slot::general); });
    QObject::connect(view, &BarButton::hovered, view, [handle] { post(handle, Slot::move); });
    return finishCreation(button, call);
}

// ---- Separators

BarSeparator& separatorOf(Widget& widget) { return *static_cast<BarSeparator*>(widget.view.data()); }

bool setSeparatorProperty(Widget& widget, int property, const Value& value) {
    if (property != propertyOf(owSeparatorType)) return false;
    separatorOf(widget).setType(value.integer);
    return true;
}

bool getSeparatorProperty(Widget& widget, int property, Value& value) {
    if (property != propertyOf(owSeparatorType)) return false;
    value.integer = separatorOf(widget).type();
    return true;
}

const Family separators{.name = "tool bar separator", .get = getSeparatorProperty, .set = setSeparatorProperty};

Word createToolBarSeparator(const Arguments& call) {
    Widget* bar = widgetOf(call.integer(0));
    auto* view = new BarSeparator(&barOf(*bar), call.keyword(owSeparatorType));
    Widget& separator = addWidget(Kind::toolSeparator, separators, call, view, nullptr);
    return finishCreation(separator, call);
}

const Registration registration({{Fn::owCreateToolBar, createToolBar},
                                 {Fn::owSetToolbarPos, setToolbarPos},
                                 {Fn::owEnqToolbarPos, enqToolbarPos},
                                 {Fn::owCreateToolBarButton, createToolBarButton},
                                 {Fn::owCreateToolBarSeparator, createToolBarSeparator}});

} // namespace

// The close box follows the quit mode; the program hears of it in every mode.
void reportDocking(int handle, int status) {
    Widget* widget = widgetOf(handle);
    if (!widget) return;
    if (status != OCLOSED) {
        post(handle, Slot::general, status);
        return;
    }
    post(handle, Slot::general, OCLOSED);
    if (widget->quitMode == OLEAVE) return;
    setStatus(*widget, OHIDDEN);
    if (widget->quitMode == OREMOVE) session.doomed.push_back(handle);
}

} // namespace orba
