#include "surface/align.h"

#include <algorithm>

namespace {

struct Axis {
    int WidgetNode::*place;
    int WidgetNode::*extent;
};
constexpr Axis ACROSS = {&WidgetNode::xpos, &WidgetNode::width}, DOWN = {&WidgetNode::ypos, &WidgetNode::height};

void alignAlong(const Records& records, const Axis& axis, Align align) {
    const auto place = [&](const WidgetNode* one) { return one->*axis.place; };
    const auto end = [&](const WidgetNode* one) { return one->*axis.place + one->*axis.extent; };
    const int nearest = place(*std::ranges::min_element(records, {}, place));
    const int farthest = end(*std::ranges::max_element(records, {}, end));
    const int middle = place(records.front()) + records.front()->*axis.extent / 2;
    for (WidgetNode* one : records) {
        const int extent = one->*axis.extent;
        if (align == Align::Near) one->*axis.place = nearest;
        if (align == Align::Middle) one->*axis.place = middle - extent / 2;
        if (align == Align::Far) one->*axis.place = farthest - extent;
    }
}

} // namespace

void alignRecords(const Records& records, Align across, Align down) {
    if (records.empty()) return;
    alignAlong(records, ACROSS, across);
    alignAlong(records, DOWN, down);
}
