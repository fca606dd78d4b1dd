// Widgets that set the status of others, and the order in which Tab goes through them.
#include "toolkit/frame/widget_links.h"

#include "toolkit/frame/properties.h"
#include "toolkit/frame/registry.h"
#include "toolkit/frame/report.h"
#include "toolkit/frame/routines.h"

#include <algorithm>

namespace orba {
namespace {

// When `source` is worked by the user and has `state`, `target` gets `status`.
struct Link {
    int source;
    int target;
    int status;
    int state; // -1 any
};
std::vector<Link> links;

constexpr Kind sources[] = {Kind::toggle, Kind::pushButton, Kind::icon, Kind::toolButton, Kind::menuEntry};

int stateOf(const Widget& widget) {
    if (widget.kind != Kind::toggle) return widget.status;
    int state = 0;
    const Word fixed[] = {wordOf(widget.handle), wordOf(&state)};
    handlerOf(Fn::owEnqToggleSwitch)({Fn::owEnqToggleSwitch, fixed, 2, nullptr, 0});
    return state;
}

Word defineLink(const Arguments& call) {
    const Widget& source = *widgetOf(call.integer(0));
    const int target = call.integer(1);
    if (std::find(std::begin(sources), std::end(sources), source.kind) == std::end(sources)) {
        reportFailure(56, source.handle);
        return 0;
    }
    if (!widgetOf(target)) {
        reportFailure(26, target);
        return 0;
    }
    std::erase_if(links, [](const Link& link) { return !widgetOf(link.source) || !widgetOf(link.target); });
    links.push_back({source.handle, target, std::clamp(call.integer(2), OHIDDEN, OCHECKED), call.integer(3)});
    return 0;
}

Word changeOrder(const Arguments& call) {
    Widget& widget = *widgetOf(call.integer(0));
    const int after = call.integer(1);
    if (!widget.parent) return 0;
    std::vector<Widget*>& row = widget.parent->children;
    const Widget* before = after == 0 ? nullptr : widgetOf(after);
    if (after != 0 && (!before || before->parent != widget.parent || before == &widget)) {
        reportFailure(26, after);
        return 0;
    }
    std::erase(row, &widget);
    const auto place = before ? std::find(row.begin(), row.end(), before) + 1 : row.begin();
    row.insert(place, &widget);
    QWidget* last = nullptr;
    for (const Widget* child : row) {
        if (!child->view) continue;
        if (last) QWidget::setTabOrder(last, child->view);
        last = child->view;
    }
    return 0;
}

const Registration registration({
    {Fn::owDefineWidgetLinks, defineLink},
    {Fn::owChangeWidgetOrder, changeOrder},
});

} // namespace

void obeyLinks(const Widget& widget) {
    if (links.empty()) return;
    for (const Link& link : std::vector<Link>(links)) {
        if (link.source != widget.handle || (link.state != -1 && link.state != stateOf(widget))) continue;
        if (Widget* target = widgetOf(link.target)) setStatus(*target, link.status);
    }
}

} // namespace orba
