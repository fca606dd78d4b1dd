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
        if (event->type() == QEvent::FocusIn) {
            const auto reason = static_cast<QFocusEvent*>(event)->reason();
            if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) post(handle_, Slot::select, 1);
        }
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

struct ButtonData : FamilyData {
    QString label;
    int on = 0, off = 0, text = 0;
    int justify = OCENTRE;
    int icon = 0;
};

void showButton(Widget& widget) {
    const ButtonData& data = dataOf<ButtonData>(widget);
    ButtonLook look;
    look.type = widget.type == OUSERDEFINED     ? ButtonType::UserDefined
                : widget.type == ODEFAULTBUTTON ? ButtonType::Default
                                                : ButtonType::Standard;
    look.label = data.label;
    look.accelerator = widget.accel;
    look.justify = std::clamp(data.justify, -1, 1);
    look.on = colourOrNone(data.on == 12 ? 0 : data.on); // the window face is what the theme draws
    look.off = colourOrNone(data.off == 12 ? 0 : data.off);
    look.text = textColourOrNone(data.text == 16 ? 0 : data.text);
    look.icon = icons::iconOfResource(data.icon);
    static_cast<PushButton&>(*widget.view).setLook(look);
}

constexpr IntegerProperty<ButtonData> buttonProperties[] = {{25, &ButtonData::off},
                                                            {26, &ButtonData::on},
                                                            {27, &ButtonData::text},
                                                            {30, &ButtonData::justify},
                                                            {100, &ButtonData::icon}};
constexpr int typeProperty = 47, accelProperty = 21;

bool getButtonProperty(Widget& widget, int property, Value& value) {
    if (property == typeProperty) {
        value.integer = widget.type;
        return true;
    }
    return getInteger(buttonProperties, dataOf<ButtonData>(widget), property, value);
}

bool setButtonProperty(Widget& widget, int property, const Value& value) {
    if (property == typeProperty)
        widget.type = value.integer;
    else if (property == accelProperty)
        widget.accel = value.integer;
    else if (!setInteger(buttonProperties, dataOf<ButtonData>(widget), property, value))
        return false;
    showButton(widget);
    return true;
}

QString buttonText(Widget& widget) { return dataOf<ButtonData>(widget).label; }

void setButtonText(Widget& widget, const QString& text) {
    dataOf<ButtonData>(widget).label = text;
    showButton(widget);
}

QSize buttonSize(Widget& widget) { return {std::max(widget.view->sizeHint().width(), 75), lineHeight() + 2}; }

void setButtonStatus(Widget& widget, int status) {
    auto& button = static_cast<PushButton&>(*widget.view);
    button.setVisible(status != OHIDDEN);
    button.setEnabled(status != OUNSELECTABLE);
    button.setDown(status == OCHECKED);
}

const Family pushButtons{.name = "push button",
                         .get = getButtonProperty,
                         .set = setButtonProperty,
                         .setStatus = setButtonStatus,
                         .text = buttonText,
                         .setText = setButtonText,
                         .naturalSize = buttonSize,
                         .coloursChanged = showButton};

Word createPushButton(const Arguments& call) {
    Widget* parent = widgetOf(call.integer(0));
    auto* button = new PushButton(clientOf(parent));
    Widget& widget = addWidget(Kind::pushButton, pushButtons, parent, button);
    if (widget.handle == 0) return 0; // no handle was left
    auto data = std::make_unique<ButtonData>();
    data->label = call.text(5);
    data->on = call.keyword(owOnCol);
    data->off = call.keyword(owOffCol);
    data->text = call.keyword(owTextCol);
    data->justify = call.keyword(owJustify);
    data->icon = call.keyword(owIconHandle);
    widget.data = std::move(data);
    widget.type = typeKeyword(call, owButtonType);
    widget.accel = call.keyword(owAccel);
    showButton(widget);
    watch(button, widget.handle);
    return finishCreation(widget, call);
}

// ---------------------------------------------------------------------------------------------------- toggles

struct ToggleData : FamilyData {
    QString label;
    int on = 0, off = 0, text = 0;
};

ToggleButton& toggleOf(Widget& widget) { return static_cast<ToggleButton&>(*widget.view); }

void showToggle(Widget& widget) {
    const ToggleData& data = dataOf<ToggleData>(widget);
    ToggleLook look;
    look.type = toggleType(widget.type);
    look.label = data.label;
    look.accelerator = widget.accel;
    look.on = colourOrNone(data.on == 12 ? 0 : data.on);
    look.off = colourOrNone(data.off == 12 ? 0 : data.off);
    look.text = textColourOrNone(data.text == 16 ? 0 : data.text);
    look.exclusive = widget.parent && widget.parent->kind == Kind::radioBox;
    toggleOf(widget).setLook(look);
}

constexpr IntegerProperty<ToggleData> toggleProperties[] = {
    {25, &ToggleData::off}, {26, &ToggleData::on}, {27, &ToggleData::text}};
constexpr int toggleTypeProperty = 83;

bool getToggleProperty(Widget& widget, int property, Value& value) {
    if (property == toggleTypeProperty) {
        value.integer = widget.type;
        return true;
    }
    return getInteger(toggleProperties, dataOf<ToggleData>(widget), property, value);
}

bool setToggleProperty(Widget& widget, int property, const Value& value) {
    if (property == toggleTypeProperty)
        widget.type = value.integer;
    else if (property == accelProperty)
        widget.accel = value.integer;
    else if (!setInteger(toggleProperties, dataOf<ToggleData>(widget), property, value))
        return false;
    showToggle(widget);
    return true;
}

QString toggleText(Widget& widget) { return dataOf<ToggleData>(widget).label; }

void setToggleText(Widget& widget, const QString& text) {
    dataOf<ToggleData>(widget).label = text;
    showToggle(widget);
}

QSize toggleSize(Widget& widget) { return {widget.view->sizeHint().width(), lineHeight()}; }

void setToggleStatus(Widget& widget, int status) {
    widget.view->setVisible(status != OHIDDEN);
    widget.view->setEnabled(status != OUNSELECTABLE);
    if (status == OCHECKED) toggleOf(widget).setChecked(true);
}

const Family toggles{.name = "toggle",
                     .get = getToggleProperty,
                     .set = setToggleProperty,
                     .setStatus = setToggleStatus,
                     .text = toggleText,
                     .setText = setToggleText,
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
    Widget* parent = widgetOf(call.integer(0));
    auto* toggle = new ToggleButton(clientOf(parent));
    Widget& widget = addWidget(Kind::toggle, toggles, parent, toggle);
    if (widget.handle == 0) return 0; // no handle was left
    auto data = std::make_unique<ToggleData>();
    data->label = call.text(5);
    data->on = call.keyword(owOnCol);
    data->off = call.keyword(owOffCol);
    data->text = call.keyword(owTextCol);
    widget.data = std::move(data);
    widget.type = typeKeyword(call, owToggleType);
    widget.accel = call.keyword(owAccel);
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

constexpr IntegerProperty<IconData> iconProperties[] = {{100, &IconData::resource}};
constexpr int iconTypeProperty = 59, labelProperty = 66;

bool getIconProperty(Widget& widget, int property, Value& value) {
    if (property == iconTypeProperty)
        value.integer = widget.type;
    else if (property == labelProperty)
        value.text = dataOf<IconData>(widget).label;
    else
        return getInteger(iconProperties, dataOf<IconData>(widget), property, value);
    return true;
}

bool setIconProperty(Widget& widget, int property, const Value& value) {
    if (property == iconTypeProperty)
        widget.type = value.integer;
    else if (property == labelProperty)
        dataOf<IconData>(widget).label = value.text;
    else if (!setInteger(iconProperties, dataOf<IconData>(widget), property, value))
        return false;
    showIcon(widget);
    return true;
}

QString iconText(Widget& widget) { return dataOf<IconData>(widget).label; }

void setIconText(Widget& widget, const QString& text) {
    dataOf<IconData>(widget).label = text;
    showIcon(widget);
}

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
                         .get = getIconProperty,
                         .set = setIconProperty,
                         .setStatus = setIconStatus,
                         .text = iconText,
                         .setText = setIconText,
                         .naturalSize = iconSize,
                         .coloursChanged = showIcon};

Word createIcon(const Arguments& call) {
    Widget* parent = widgetOf(call.integer(0));
    auto* icon = new IconButton(clientOf(parent));
    Widget& widget = addWidget(Kind::icon, iconWidgets, parent, icon);
    if (widget.handle == 0) return 0; // no handle was left
    auto data = std::make_unique<IconData>();
    data->file = call.text(5);
    data->format = call.integer(6);
    data->number = call.integer(7);
    data->label = call.keywordText(owLabel);
    data->resource = call.keyword(owIconHandle);
    widget.data = std::move(data);
    widget.type = call.given(owIconType) ? call.keyword(owIconType) : call.keyword(owType);
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
