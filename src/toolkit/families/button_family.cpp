// Push buttons, toggles and icons.
#include "toolkit/families/family_support.h"
#include "toolkit/views/buttons.h"
#include "toolkit/views/icons/icons.h"

#include <QFocusEvent>

namespace orba {
namespace {

// Focus of a button, which QAbstractButton has no signal for.
class ButtonWatch : public QObject {
public:
    ButtonWatch(QAbstractButton* button, int handle) : QObject(button), handle_(handle) {
        button->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::FocusIn && byUser(*static_cast<QFocusEvent*>(event)))
            post(handle_, Slot::select, 1);
        return QObject::eventFilter(watched, event);
    }

private:
    int handle_;
};

void watch(QAbstractButton* button, int handle) {
    new ButtonWatch(button, handle);
    QObject::connect(button, &QAbstractButton::clicked, button,
                     [button, handle] { post(handle, Slot::general, 0, button->mapFromGlobal(QCursor::pos())); });
}

// ----------------------------------------------------------------------------------------------- push buttons

// What push buttons and toggles have in common.
struct ButtonData : FamilyData {
    QString label;
    int on = 0, off = 0, text = 0;
    int justify = OCENTRE;
    int icon = 0;
};

// The window face is what the theme draws, the window text what it writes.
constexpr int windowFace = 12, windowText = 16;
template <typename Look> void takeLook(Look& look, const Widget& widget, const ButtonData& data) {
    look.label = data.label;
    look.accelerator = widget.accel;
    look.on = colourOrNone(data.on == windowFace ? 0 : data.on);
    look.off = colourOrNone(data.off == windowFace ? 0 : data.off);
    look.text = textColourOrNone(data.text == windowText ? 0 : data.text);
}

void showButton(Widget& widget) {
    const ButtonData& data = dataOf<ButtonData>(widget);
    ButtonLook look;
    takeLook(look, widget, data);
    look.type = widget.type == OUSERDEFINED     ? ButtonType::UserDefined
                : widget.type == ODEFAULTBUTTON ? ButtonType::Default
                                                : ButtonType::Standard;
    look.justify = std::clamp(data.justify, -1, 1);
    look.icon = icons::iconOfResource(data.icon);
    static_cast<PushButton&>(*widget.view).setLook(look);
}

constexpr Attribute buttonAttributes[] = {
    keeps<&ButtonData::label>(owLabel),  keeps<&ButtonData::on>(owOnCol),        keeps<&ButtonData::off>(owOffCol),
    keeps<&ButtonData::text>(owTextCol), keeps<&ButtonData::justify>(owJustify), keeps<&ButtonData::icon>(owIconHandle),
    keeps<&Widget::type>(owButtonType),  keeps<&Widget::accel>(owAccel),
};

QSize buttonSize(Widget& widget) { return {std::max(widget.view->sizeHint().width(), 75), lineHeight() + 2}; }

void setButtonStatus(Widget& widget, int status) {
    auto& button = static_cast<PushButton&>(*widget.view);
    button.setVisible(status != OHIDDEN);
    button.setEnabled(status != OUNSELECTABLE);
    button.setDown(status == OCHECKED);
}

const Family pushButtons{.name = "push button",
                         .attributes = buttonAttributes,
                         .show = showButton,
                         .setStatus = setButtonStatus,
                         .naturalSize = buttonSize,
                         .coloursChanged = showButton};

Word createPushButton(const Arguments& call) {
    auto* button = new PushButton(clientOf(call));
    Widget& widget = addWidget<ButtonData>(Kind::pushButton, pushButtons, call, button);
    dataOf<ButtonData>(widget).label = call.text(5);
    showButton(widget);
    watch(button, widget.handle);
    return finishCreation(widget, call);
}

// ---------------------------------------------------------------------------------------------------- toggles

ToggleButton& toggleOf(Widget& widget) { return static_cast<ToggleButton&>(*widget.view); }

void showToggle(Widget& widget) {
    ToggleLook look;
    takeLook(look, widget, dataOf<ButtonData>(widget));
    look.type = toggleType(widget.type);
    look.exclusive = widget.parent && widget.parent->kind == Kind::radioBox;
    toggleOf(widget).setLook(look);
}

constexpr Attribute toggleAttributes[] = {
    keeps<&ButtonData::label>(owLabel),  keeps<&ButtonData::on>(owOnCol),    keeps<&ButtonData::off>(owOffCol),
    keeps<&ButtonData::text>(owTextCol), keeps<&Widget::type>(owToggleType), keeps<&Widget::accel>(owAccel),
};

QSize toggleSize(Widget& widget) { return {widget.view->sizeHint().width(), lineHeight()}; }

void setToggleStatus(Widget& widget, int status) {
    widget.view->setVisible(status != OHIDDEN);
    widget.view->setEnabled(status != OUNSELECTABLE);
    if (status == OCHECKED) toggleOf(widget).setChecked(true);
}

const Family toggles{.name = "toggle",
                     .attributes = toggleAttributes,
                     .show = showToggle,
                     .setStatus = setToggleStatus,
                     .naturalSize = toggleSize,
                     .coloursChanged = showToggle};

// In a radio box one toggle at most is on: the others go off with it, and raise nothing.
void releaseOthers(Widget& widget) {
    if (!widget.parent || widget.parent->kind != Kind::radioBox || !toggleOf(widget).isChecked()) return;
    for (Widget* sibling : widget.parent->children)
        if (sibling != &widget && sibling->kind == Kind::toggle) toggleOf(*sibling).setChecked(false);
}

int numberInBox(const Widget& widget) {
    int number = 0;
    for (const Widget* sibling : widget.parent->children) {
        if (sibling->kind == Kind::toggle) ++number;
        if (sibling == &widget) return number;
    }
    return 0;
}

Word createToggle(const Arguments& call) {
    auto* toggle = new ToggleButton(clientOf(call));
    Widget& widget = addWidget<ButtonData>(Kind::toggle, toggles, call, toggle);
    dataOf<ButtonData>(widget).label = call.text(5);
    showToggle(widget);
    toggle->setChecked(call.integer(6) != 0);
    releaseOthers(widget);
    const int handle = widget.handle;
    QObject::connect(toggle, &QAbstractButton::toggled, toggle, [handle](bool on) {
        if (Widget* changed = widgetOf(handle); changed && on) releaseOthers(*changed);
    });
    watch(toggle, handle);
    // The box reports its members too: the status is the number of the toggle, from 1.
    QObject::connect(toggle, &QAbstractButton::clicked, toggle, [handle] {
        if (Widget* pressed = widgetOf(handle); pressed && pressed->parent && pressed->parent->kind == Kind::radioBox)
            post(*pressed->parent, Slot::general, numberInBox(*pressed));
    });
    return finishCreation(widget, call);
}

Word enquireSwitch(const Arguments& call) {
    call.give(1, toggleOf(*widgetOf(call.integer(0))).isChecked() ? 1 : 0);
    return 0;
}

Word setSwitch(const Arguments& call) {
    toggleOf(*widgetOf(call.integer(0))).setChecked(call.integer(1) != 0);
    return 0;
}

// ------------------------------------------------------------------------------------------------------ icons

struct IconData : FamilyData {
    QString label;
    QString file;
    int format = 0;
    int number = 0;   // of the picture in a file of many
    int resource = 0; // picture from owGetIconResource, before the file
};

IconButton& iconOf(Widget& widget) { return static_cast<IconButton&>(*widget.view); }

// A picture of a file of many goes by the stock name of its number.
QString pictureName(const IconData& data) {
    if (data.format != OMENUICON || data.number <= 0) return data.file;
    constexpr int firstNumber = 1000;
    const char* set = data.file.contains(u"SML", Qt::CaseInsensitive) ? "MSML" : "MBIG";
    return QLatin1String(set) + QString::number(firstNumber + data.number);
}

void showIcon(Widget& widget) {
    const IconData& data = dataOf<IconData>(widget);
    IconLook look = iconOf(widget).look();
    look.type = iconType(widget.type);
    look.label = data.label;
    look.icon = data.resource ? icons::iconOfResource(data.resource) : icons::iconByName(pictureName(data));
    iconOf(widget).setLook(look);
}

constexpr Attribute iconAttributes[] = {keeps<&IconData::label>(owLabel), keeps<&IconData::resource>(owIconHandle),
                                        keeps<&Widget::type>(owIconType)};

void setIconStatus(Widget& widget, int status) {
    widget.view->setVisible(status != OHIDDEN);
    widget.view->setEnabled(status != OUNSELECTABLE);
    IconLook look = iconOf(widget).look();
    look.pressed = status == OCHECKED;
    iconOf(widget).setLook(look);
}

QSize iconSize(Widget& widget) {
    const int label = dataOf<IconData>(widget).label.isEmpty() ? 0 : widget.view->fontMetrics().height() + 2;
    return {40, 40 + label};
}

const Family iconWidgets{.name = "icon",
                         .attributes = iconAttributes,
                         .show = showIcon,
                         .setStatus = setIconStatus,
                         .naturalSize = iconSize,
                         .coloursChanged = showIcon};

Word createIcon(const Arguments& call) {
    auto* icon = new IconButton(clientOf(call));
    Widget& widget = addWidget<IconData>(Kind::icon, iconWidgets, call, icon);
    auto& data = dataOf<IconData>(widget);
    data.file = call.text(5);
    data.format = call.integer(6);
    data.number = call.integer(7);
    showIcon(widget);
    watch(icon, widget.handle);
    return finishCreation(widget, call);
}

const Registration registration({
    {Fn::owCreatePushButton, createPushButton},
    {Fn::owCreateToggleButton, createToggle},
    {Fn::owEnqToggleSwitch, enquireSwitch},
    {Fn::owSetToggleSwitch, setSwitch},
    {Fn::owCreateIcon, createIcon},
});

} // namespace
} // namespace orba
