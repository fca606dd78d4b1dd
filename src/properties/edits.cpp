// Storing a value and what follows from it, for every row that needs no more.
#include "properties/edits.h"

#include "menu-c.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "surface/live.h"
#include "surface/live_types.h"
#include "surface/state.h"

namespace {

void store(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    if (row.text) target.*row.text = input.text;
    if (row.real) target.*row.real = static_cast<float>(input.number);
    if (row.whole) target.*row.whole = row.cell == Cell::Number ? static_cast<int>(input.number) : input.value;
}

void follow(WidgetNode& target, After after) {
    switch (after) {
    case After::Nothing: break;
    case After::Redraw: redrawLive(target); break;
    case After::Rebuild: rebuildLive(target); break;
    case After::Font: isText(target) || target.type == TYPE_COMBO_BOX ? rebuildLive(target) : redrawLive(target); break;
    case After::RebuildForm: rebuildFormOf(target); break;
    }
}

// A separator, and an icon on a tool bar, come to life with their bar.
After afterOf(const WidgetNode& target, const PropertyRow& row) {
    const bool onBar = standsIn(target, TYPE_TOOL_BAR);
    return row.after == After::Rebuild && onBar ? After::RebuildForm : row.after;
}

} // namespace

void storeAndFollow(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    store(target, row, input);
    const bool shows = row.after != After::Font || bearsFont(target);
    const int keyword = liveKeyword(target, row);
    if (keyword && row.whole && shows) setLive(target, keyword, target.*row.whole);
    if (row.id == ROW_FORM_TITLE_BAR || row.id == ROW_BAR_TITLE_BAR) activateWidget(&target);
    follow(target, afterOf(target, row));
    markEdited();
}

int liveKeyword(const WidgetNode& target, const PropertyRow& row) {
    return row.keyword == PropertyRow::AS_CREATED ? createdKeyword(target.type, row.whole) : row.keyword;
}

void setLive(const WidgetNode& node, int keyword, int value) {
    if (node.handle > 0) owSetWidgetProp(node.handle, keyword, value, 0);
}

void rebuildLive(WidgetNode& node) {
    if (!design.defaultsMode) rebuildWidget(node);
}

void redrawLive(WidgetNode& node) {
    if (!design.defaultsMode) redrawWidget(node, false);
}

void rebuildFormOf(WidgetNode& node) {
    if (design.defaultsMode) return;
    if (WidgetNode* form = formOf(&node, project.forms)) rebuildWidget(*form);
    activateWidget(&node);
}

void markEdited() {
    if (!design.defaultsMode) markChanged();
}
