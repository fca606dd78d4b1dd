// Sliders, spinners, gauges and progress bars.
#include "toolkit/families/family_support.h"
#include "toolkit/views/icons/icons.h"
#include "toolkit/views/sliders.h"
#include "toolkit/views/text/value_entry.h"

#include <QMouseEvent>
#include <QSignalBlocker>
#include <cmath>

namespace orba {
namespace {

// --------------------------------------------------------------------------------------------------- sliders

struct SliderData : FamilyData {
    double minimum = 0, maximum = 1, step = 0;
    int back = 0;
    int ticks = 0;
};

Slider* sliderOf(Widget& widget) { return dynamic_cast<Slider*>(widget.view.data()); }

void showSlider(Widget& widget) {
    const SliderData& data = dataOf<SliderData>(widget);
    SliderOptions options;
    options.vertical = widget.type == OVERTICAL || widget.type == OREVERSEVERTICAL;
    options.reversed = widget.type == OREVERSEHORIZONTAL || widget.type == OREVERSEVERTICAL;
    options.minimum = data.minimum;
    options.maximum = data.maximum;
    options.step = data.step;
    options.ticks = std::clamp(data.ticks, 0, 1000);
    options.back = data.back == 12 ? QColor() : colourOrNone(data.back);
    sliderOf(widget)->setOptions(options);
}

constexpr Attribute sliderAttributes[] = {keeps<&SliderData::ticks>(owSliderTicks), keeps<&SliderData::back>(owFillCol),
                                          keeps<&Widget::type>(owSliderType)};

QSize sliderSize(Widget& widget) {
    return sliderOf(widget)->orientation() == Qt::Vertical ? QSize(lineHeight(), 120) : QSize(120, lineHeight());
}

void enquireSliderInfo(Widget& widget, OWIDGET& info) {
    const SliderData& data = dataOf<SliderData>(widget);
    info.value = float(sliderOf(widget)->number());
    info.vmin = float(data.minimum);
    info.vmax = float(data.maximum);
    info.step = float(data.step);
    info.fillCol = data.back;
}

void takeSliderInfo(Widget& widget, const OWIDGET& info) {
    SliderData& data = dataOf<SliderData>(widget);
    data.minimum = info.vmin;
    data.maximum = info.vmax;
    data.step = info.step;
    showSlider(widget);
    sliderOf(widget)->setNumber(info.value);
}

const Family sliders{.name = "slider",
                     .attributes = sliderAttributes,
                     .show = showSlider,
                     .naturalSize = sliderSize,
                     .coloursChanged = showSlider,
                     .enquireInfo = enquireSliderInfo,
                     .takeInfo = takeSliderInfo};

// A click on a slider is an event also where it moves nothing, so that a program can tell that it was touched.
class SliderPress : public QObject {
public:
    SliderPress(QWidget* view, int handle) : QObject(view), handle_(handle) { view->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress) moved_ = false;
        if (event->type() == QEvent::MouseButtonRelease && !moved_) post(handle_, Slot::general);
        return false;
    }
    void moved() {
        moved_ = true;
        post(handle_, Slot::general);
        post(handle_, Slot::change, 1);
    }

private:
    int handle_;
    bool moved_ = false;
};

Word createSlider(const Arguments& call) {
    auto* slider = new Slider(clientOf(call));
    Widget& widget = addWidget<SliderData>(Kind::slider, sliders, call, slider);
    auto& data = dataOf<SliderData>(widget);
    data.minimum = call.real(5);
    data.maximum = call.real(6);
    data.step = call.real(7);
    if (call.given(owBackCol)) data.back = call.keyword(owBackCol);
    showSlider(widget);
    slider->setNumber(call.real(8));
    auto* press = new SliderPress(slider, widget.handle);
    slider->moved = [press] { press->moved(); };
    return finishCreation(widget, call);
}

// -------------------------------------------------------------------------------------------------- spinners

struct SpinnerData : FamilyData {
    int buddy = 0;
    int step = 1;
    int justify = ORIGHT;
};

constexpr Attribute spinnerAttributes[] = {keeps<&SpinnerData::step>(owStep), keeps<&SpinnerData::buddy>(owBuddy),
                                           keeps<&SpinnerData::justify>(owJustify)};

QSize spinnerSize(Widget&) { return {18, lineHeight()}; }

const Family spinners{.name = "spinner", .attributes = spinnerAttributes, .naturalSize = spinnerSize};

ValueEntry* buddyOf(Widget& widget) {
    Widget* buddy = widgetOf(dataOf<SpinnerData>(widget).buddy);
    return buddy ? dynamic_cast<ValueEntry*>(buddy->view.data()) : nullptr;
}

Word createSpinner(const Arguments& call) {
    auto* spinner = new Spinner(clientOf(call));
    Widget& widget = addWidget<SpinnerData>(Kind::spinner, spinners, call, spinner);
    const int type = typeKeyword(call, owSliderType);
    widget.type = type;
    spinner->setHorizontal(type == OHORIZONTAL || type == OREVERSEHORIZONTAL);
    const int handle = widget.handle;
    const bool reversed = type == OREVERSEHORIZONTAL || type == OREVERSEVERTICAL;
    spinner->stepped = [handle, reversed](int direction) {
        Widget* self = widgetOf(handle);
        if (!self) return;
        if (reversed) direction = -direction;
        if (ValueEntry* entry = buddyOf(*self)) entry->step(direction * std::max(1, dataOf<SpinnerData>(*self).step));
        post(handle, Slot::general, direction);
    };
    return finishCreation(widget, call);
}

Word enquireSlider(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    double value = 0;
    if (const Slider* slider = sliderOf(widget))
        value = slider->number();
    else if (const ValueEntry* entry = buddyOf(widget))
        value = entry->value();
    call.give(1, float(value));
    return 0;
}

Word setSlider(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    if (Slider* slider = sliderOf(widget))
        slider->setNumber(call.real(1));
    else if (ValueEntry* entry = buddyOf(widget))
        entry->setValue(call.real(1));
    return 0;
}

// ---------------------------------------------------------------------------------------------------- gauges

struct GaugeData : FamilyData {
    QString icon;
    int minimum = 0, maximum = 100;
    int ticks1 = 0, ticks2 = 0;
    int access = OEDIT;
};

Gauge& gaugeOf(Widget& widget) { return static_cast<Gauge&>(*widget.view); }

void showGauge(Widget& widget) {
    const GaugeData& data = dataOf<GaugeData>(widget);
    GaugeOptions options;
    options.minimum = data.minimum;
    options.maximum = data.maximum;
    options.ticksAbove = data.ticks1;
    options.ticksBelow = data.ticks2;
    options.editable = data.access == OEDIT;
    if (!data.icon.isEmpty() && icons::iconExists(data.icon)) options.icon = icons::iconByName(data.icon);
    gaugeOf(widget).setOptions(options);
}

constexpr Attribute gaugeAttributes[] = {keeps<&GaugeData::access>(owAccess), keeps<&GaugeData::maximum>(owMaximum),
                                         keeps<&GaugeData::minimum>(owMinimum), keeps<&GaugeData::ticks1>(owTicks1),
                                         keeps<&GaugeData::ticks2>(owTicks2)};

bool getGaugeProperty(Widget& widget, int property, Value& value) {
    if (property != propertyOf(owIntValue)) return false;
    value.integer = gaugeOf(widget).value();
    return true;
}

bool setGaugeProperty(Widget& widget, int property, const Value& value) {
    if (property != propertyOf(owIntValue)) return false;
    gaugeOf(widget).setValue(value.integer);
    return true;
}

void enquireGaugeInfo(Widget& widget, OWIDGET& info) {
    const GaugeData& data = dataOf<GaugeData>(widget);
    info.value = float(gaugeOf(widget).value());
    info.vmin = float(data.minimum);
    info.vmax = float(data.maximum);
    info.step = 1;
}

void takeGaugeInfo(Widget& widget, const OWIDGET& info) {
    GaugeData& data = dataOf<GaugeData>(widget);
    data.minimum = int(info.vmin);
    data.maximum = int(info.vmax);
    showGauge(widget);
    gaugeOf(widget).setValue(int(info.value));
}

QSize gaugeSize(Widget&) { return {160, 40}; }

const Family gauges{.name = "gauge",
                    .attributes = gaugeAttributes,
                    .show = showGauge,
                    .get = getGaugeProperty,
                    .set = setGaugeProperty,
                    .naturalSize = gaugeSize,
                    .coloursChanged = showGauge,
                    .enquireInfo = enquireGaugeInfo,
                    .takeInfo = takeGaugeInfo};

Word createGauge(const Arguments& call) {
    auto* gauge = new Gauge(clientOf(call));
    Widget& widget = addWidget<GaugeData>(Kind::gauge, gauges, call, gauge);
    dataOf<GaugeData>(widget).icon = call.text(5);
    showGauge(widget);
    gauge->setValue(call.keyword(owIntValue));
    auto* press = new SliderPress(gauge, widget.handle);
    gauge->moved = [press] { press->moved(); };
    gauge->focused = [handle = widget.handle] { post(handle, Slot::select, 1); };
    return finishCreation(widget, call);
}

Word enquireGauge(const Arguments& call) {
    call.give(1, gaugeOf(*widgetOf(call.integer(0))).value());
    return 0;
}

Word setGauge(const Arguments& call) {
    gaugeOf(*widgetOf(call.integer(0))).setValue(call.integer(1));
    return 0;
}

// --------------------------------------------------------------------------------------------- progress bars

struct ProgressData : FamilyData {
    int type = ODEFAULT;
    int minimum = 0, maximum = 100, value = 0;
};

ProgressBar& progressOf(Widget& widget) { return static_cast<ProgressBar&>(*widget.view); }

void showProgress(Widget& widget) {
    ProgressData& data = dataOf<ProgressData>(widget);
    ProgressBar& bar = progressOf(widget);
    bar.setSmooth(data.type == OSMOOTH);
    bar.setRange(
        data.minimum,
        std::max(data.minimum < std::numeric_limits<int>::max() ? data.minimum + 1 : data.minimum, data.maximum));
    data.value = std::clamp(data.value, bar.minimum(), bar.maximum());
    bar.setValue(data.value);
    bar.update();
}

constexpr Attribute progressAttributes[] = {
    keeps<&ProgressData::maximum>(owMaximum), keeps<&ProgressData::minimum>(owMinimum),
    keeps<&ProgressData::value>(owIntValue), keeps<&ProgressData::type>(owProgressType)};

QSize progressSize(Widget&) { return {160, 18}; }

// A click on the bar is the bar's, not one on what lies around it.
class ProgressPress : public QObject {
public:
    ProgressPress(QWidget* view, int handle) : QObject(view), handle_(handle) { view->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        const bool pressed = event->type() == QEvent::MouseButtonPress;
        if (!pressed && event->type() != QEvent::MouseButtonRelease) return false;
        if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) return false;
        if (!pressed) post(handle_, Slot::general);
        event->accept();
        return true;
    }

private:
    int handle_;
};

const Family progressBars{
    .name = "progress bar", .attributes = progressAttributes, .show = showProgress, .naturalSize = progressSize};

Word createProgress(const Arguments& call) {
    Widget& widget = addWidget<ProgressData>(Kind::progressBar, progressBars, call, new ProgressBar(clientOf(call)));
    showProgress(widget);
    new ProgressPress(widget.view, widget.handle);
    return finishCreation(widget, call);
}

Word setProgress(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    dataOf<ProgressData>(widget).value = call.integer(1);
    showProgress(widget);
    return 0;
}

const Registration registration({
    {Fn::owCreateSlider, createSlider},
    {Fn::owCreateSpinner, createSpinner},
    {Fn::owEnqSliderValue, enquireSlider},
    {Fn::owSetSliderValue, setSlider},
    {Fn::owCreateGauge, createGauge},
    {Fn::owEnqGaugeValue, enquireGauge},
    {Fn::owSetGaugeValue, setGauge},
    {Fn::owCreateProgressBar, createProgress},
    {Fn::owSetProgressValue, setProgress},
});

} // namespace
} // namespace orba
