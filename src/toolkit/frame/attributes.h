// What a family keeps of its widgets under a keyword, told once: the creation call, owSetWidgetProp and owEnqWidgetProp
// read the same rows.
//
//     constexpr Attribute attributes[] = {keeps<&GaugeData::ticks1>(owTicks1), keeps<&Widget::type>(owSliderType),
//     ...}; const Family gauges{.name = "gauge", .attributes = attributes, .show = showGauge, ...};
#pragma once

#include "toolkit/frame/widget.h"

#include <memory>
#include <type_traits>

namespace orba {

template <typename Holder, typename Member, Member Holder::*member>
constexpr Member* memberIn([[maybe_unused]] Widget* record, [[maybe_unused]] FamilyData* data) {
    if constexpr (std::is_same_v<Holder, Widget>) {
        return record ? &(record->*member) : nullptr;
    } else {
        return data ? &(static_cast<Holder*>(data)->*member) : nullptr;
    }
}

template <auto member> struct Keeps;
template <typename Holder, int Holder::*member> struct Keeps<member> {
    static constexpr Attribute row(int keyword) {
        return {.keyword = keyword, .property = propertyOf(keyword), .integer = memberIn<Holder, int, member>};
    }
};
template <typename Holder, double Holder::*member> struct Keeps<member> {
    static constexpr Attribute row(int keyword) {
        return {.keyword = keyword, .property = propertyOf(keyword), .real = memberIn<Holder, double, member>};
    }
};
template <typename Holder, QString Holder::*member> struct Keeps<member> {
    static constexpr Attribute row(int keyword) {
        return {.keyword = keyword, .property = propertyOf(keyword), .text = memberIn<Holder, QString, member>};
    }
};
template <auto member> constexpr Attribute keeps(int keyword) { return Keeps<member>::row(keyword); }

// The attributes that a creation call gives, into the record, the data or both. What its routine does not read stays.
void takeAttributes(const Family& family, const Arguments& call, Widget* record, FamilyData* data);
template <typename Data> std::unique_ptr<Data> dataFrom(const Family& family, const Arguments& call) {
    auto data = std::make_unique<Data>();
    takeAttributes(family, call, nullptr, data.get());
    return data;
}
// The value of the routine's type keyword, for which owType stands as well.
int typeKeyword(const Arguments& call, int keyword);

// By number; false when the family does not keep it. The view follows a change.
bool getAttribute(Widget& widget, int property, Value& value);
bool setAttribute(Widget& widget, int property, const Value& value);

// The label or title of a widget, which its family gives or keeps as owLabel or owTitle. setText is false where there
// is none to set.
bool hasText(Widget& widget);
QString textOf(Widget& widget);
bool setText(Widget& widget, const QString& text);

} // namespace orba
