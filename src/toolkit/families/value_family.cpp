// Value entries and labels.
#include "toolkit/families/family_support.h"
#include "toolkit/views/text/program_text.h"
#include "toolkit/views/text/value_entry.h"

#include <cmath>
#include <limits>

namespace orba {
namespace {

constexpr int eventTextLength = 255;

struct ValueData : FamilyData {
    int type = ODECIMAL;
    int sign = 0;
    int field = 0;
    int decimals = 0;
    int display = OEDIT;
    int readOnly = OOFF;
    int charSet = 0;
    int thousands = 0;
    int justify = OLEFT;
    int border = 0;
    int back1 = 0, back2 = 0, text = 0;
    double minimum = 0, maximum = 0; // both 0: no limits
    double increment = 0;
    QString prefix, postfix;
    std::optional<double> rogue;
    QString rogueText;
};

ValueEntry& entryOf(Widget& widget) { return static_cast<ValueEntry&>(*widget.view); }

ValueOptions optionsOf(const ValueData& data) {
    ValueOptions options;
    options.format = {valueType(data.type), ValueSign(std::clamp(data.sign, 0, 3)), data.decimals};
    options.field = std::abs(std::max(data.field, -1000));
    options.label = data.display != OEDIT;
    options.readOnly = data.readOnly == OON;
    options.anyCharacter = data.charSet == OALPHANUMERIC;
    options.thousands = data.thousands != 0;
    if (data.minimum < data.maximum) options.minimum = data.minimum, options.maximum = data.maximum;
    options.increment = data.increment;
    options.justify = std::clamp(data.justify, -1, 1);
    options.border = data.border >= 0 && data.border <= 3 ? TextBorder(data.border) : TextBorder::Default;
    options.prefix = data.prefix;
    options.postfix = data.postfix;
    options.rogue = data.rogue;
    options.rogueText = data.rogueText;
    options.inactive = colourOrNone(data.back1);
    options.active = colourOrNone(data.back2);
    options.text = textColourOrNone(data.text);
    return options;
}

void showValueData(Widget& widget) {
    ValueOptions options = optionsOf(dataOf<ValueData>(widget));
    options.tabStop = widget.tabList != OOFF;
    entryOf(widget).setOptions(options);
}

constexpr Attribute attributes[] = {
    keeps<&ValueData::type>(owValueType),      keeps<&ValueData::sign>(owSign),
    keeps<&ValueData::readOnly>(owReadOnly),   keeps<&ValueData::charSet>(owCharSet),
    keeps<&ValueData::thousands>(owThousands), keeps<&ValueData::justify>(owJustify),
    keeps<&ValueData::border>(owBorderType),   keeps<&ValueData::back1>(owBack1Col),
    keeps<&ValueData::back2>(owBack2Col),      keeps<&ValueData::text>(owTextCol),
    keeps<&ValueData::minimum>(owVmin),        keeps<&ValueData::maximum>(owVmax),
    keeps<&ValueData::increment>(owIncrement), keeps<&ValueData::prefix>(owPrefix),
    keeps<&ValueData::postfix>(owPostfix),
};

bool getValueProperty(Widget& widget, int property, Value& value) {
    if (property != propertyOf(owRealValue)) return false;
    value.real = entryOf(widget).value();
    return true;
}

bool setValueProperty(Widget& widget, int property, const Value& value) {
    if (property == propertyOf(owRealValue)) {
        entryOf(widget).setValue(value.real);
        return true;
    }
    return setTabStop(widget, property, value);
}

QString shownText(Widget& widget) { return fromProgram(entryOf(widget).shown()); }

void takeText(Widget& widget, const QString& text) {
    const ValueEntry& entry = entryOf(widget);
    if (auto number = parseValue(toProgram(text), entry.options().format)) entryOf(widget).setValue(*number);
}

QSize naturalSize(Widget& widget) {
    const int field = std::clamp(std::abs(std::max(dataOf<ValueData>(widget).field, -1000)), 4, 40);
    return {widget.view->fontMetrics().horizontalAdvance(u'0') * field + 14, lineHeight()};
}

void enquireInfo(Widget& widget, OWIDGET& info) {
    const ValueData& data = dataOf<ValueData>(widget);
    info.value = float(entryOf(widget).value());
    info.vmin = float(data.minimum);
    info.vmax = float(data.maximum);
    info.step = float(data.increment);
}

void takeInfo(Widget& widget, const OWIDGET& info) {
    ValueData& data = dataOf<ValueData>(widget);
    data.minimum = info.vmin;
    data.maximum = info.vmax;
    data.increment = info.step;
    showValueData(widget);
    entryOf(widget).setValue(info.value);
}

const Family valueEntries{.name = "value entry",
                          .attributes = attributes,
                          .show = showValueData,
                          .get = getValueProperty,
                          .set = setValueProperty,
                          .text = shownText,
                          .setText = takeText,
                          .naturalSize = naturalSize,
                          .coloursChanged = showValueData,
                          .enquireInfo = enquireInfo,
                          .takeInfo = takeInfo};

ValueHooks hooksOf(int handle, bool label) {
    ValueHooks hooks;
    auto shown = [handle] {
        Widget* widget = widgetOf(handle);
        return widget ? shownText(*widget).left(eventTextLength) : QString();
    };
    hooks.committed = [handle, shown] { post(handle, Slot::general, 0, {}, shown()); };
    hooks.refused = [handle](ValueError error) { post(handle, Slot::valueError, int(error)); };
    hooks.selected = [handle] { post(handle, Slot::select, 1); };
    hooks.changed = [handle] { post(handle, Slot::change, 1); };
    if (label) hooks.pressed = [handle, shown] { post(handle, Slot::general, 0, {}, shown()); };
    return hooks;
}

Word createValueEntry(const Arguments& call) {
    auto data = dataFrom<ValueData>(valueEntries, call);
    data->field = call.integer(6);
    data->decimals = call.integer(7);
    data->display = call.integer(8);
    const bool label = data->display != OEDIT;
    auto* entry = new ValueEntry(optionsOf(*data), {}, clientOf(call));
    Widget& widget = addWidget(Kind::valueEntry, valueEntries, call, entry, std::move(data));
    entry->setHooks(hooksOf(widget.handle, label));
    entry->setValue(call.given(owRealValue) ? call.keywordReal(owRealValue) : call.real(5));
    return finishCreation(widget, call);
}

ValueEntry* valueEntryOf(const Arguments& call) {
    return dynamic_cast<ValueEntry*>(widgetOf(call.integer(0))->view.data());
}

double valueOf(const Arguments& call) {
    const ValueEntry* entry = valueEntryOf(call);
    return entry ? entry->value() : 0;
}

Word enquireValue(const Arguments& call) {
    call.give(1, float(valueOf(call)));
    return 0;
}

Word enquireDouble(const Arguments& call) {
    call.give(1, valueOf(call));
    return 0;
}

Word enquireInteger(const Arguments& call) {
    constexpr double limit = std::numeric_limits<int>::max();
    call.give(1, int(std::lround(std::clamp(valueOf(call), -limit, limit))));
    return 0;
}

Word setValue(const Arguments& call) {
    if (ValueEntry* entry = valueEntryOf(call)) entry->setValue(call.real(1));
    return 0;
}

Word clearValue(const Arguments& call) {
    if (ValueEntry* entry = valueEntryOf(call)) entry->clear();
    return 0;
}

Word setRogueValue(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    if (!valueEntryOf(call)) return 0;
    dataOf<ValueData>(widget).rogue = call.real(1);
    dataOf<ValueData>(widget).rogueText = call.text(2);
    showValueData(widget);
    return 0;
}

const Registration registration({
    {Fn::owCreateValueEntry, createValueEntry},
    {Fn::owEnqValueSetting, enquireValue},
    {Fn::owEnqValueSettingDouble, enquireDouble},
    {Fn::owEnqValueSettingInteger, enquireInteger},
    {Fn::owSetValueSetting, setValue},
    {Fn::owClearValueEntry, clearValue},
    {Fn::owSetRogueValueStr, setRogueValue},
});

} // namespace
} // namespace orba
