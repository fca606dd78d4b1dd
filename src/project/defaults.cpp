#include "project/defaults.h"

#include "project/host.h"
#include "project/tree.h"
#include "project/widget_types.h"

#include <initializer_list>

const std::array<WidgetType, DEFAULT_RECORDS> defaultOrder = [] {
    std::array<WidgetType, DEFAULT_RECORDS> order{};
    for (const TypeCard& card : typeCards())
        if (card.defaultPlace > 0) order[static_cast<std::size_t>(card.defaultPlace - 1)] = card.type;
    return order;
}();

std::array<OwnedList, DEFAULT_RECORDS> defaultRecords;

namespace {

using W = WidgetNode;

// One built-in value that differs from the common ones.
struct Value {
    int W::*number = nullptr;
    float W::*real = nullptr;
    std::string W::*string = nullptr;
    float amount = 0;
    const char* text = "";

    constexpr Value(int W::*field, int value) : number(field), amount(static_cast<float>(value)) {}
    constexpr Value(float W::*field, float value) : real(field), amount(value) {}
    constexpr Value(std::string W::*field, const char* value) : string(field), text(value) {}
};

struct Built {
    WidgetType type;
    int width;
    int height;
    std::initializer_list<Value> values;
};

// clang-format off
constexpr std::initializer_list<Value> arrayValues = {
    {&W::columns, 10}, {&W::rows, 10}, {&W::subType, 4}, {&W::borderType, 2}, {&W::colour1, 12}, {&W::colour3, 1},
    {&W::colour4, 1}, {&W::yLabelsWidth, -1}, {&W::xLabelsHeight, -1}, {&W::xLabels, "*digits"},
    {&W::yLabels, "*digits"}, {&W::tabAction, 1}, {&W::tabList, 0}};

constexpr Built builtIn[] = {
    {TYPE_FORM, 400, 550, {{&W::titleFlag, -1}, {&W::format, 4}, {&W::initialState, 0}, {&W::icon, "Gee"},
                           {&W::parentName, "NONE"}}},
    {TYPE_MAIN_PANEL, 0, 0, {}}, // made from the form's
    {TYPE_BUTTON, 75, 25, {{&W::size, 100}, {&W::justify, 0}}},
    {TYPE_TOGGLE, 100, 25, {{&W::size, 100}, {&W::colour3, 1}}},
    {TYPE_TEXT_ENTRY, 100, 25, {{&W::size, 100}, {&W::fieldWidth, 255}, {&W::scrollMode, 32763}, {&W::colour3, 16},
                                {&W::oleInserts, 1}}},
    {TYPE_TEXT_LABEL, 100, 25, {{&W::size, 100}, {&W::fieldWidth, 255}, {&W::editMode, 1}, {&W::scrollMode, 32763},
                                {&W::colour2, 12}, {&W::colour3, 16}, {&W::oleInserts, 1}}},
    {TYPE_VALUE_ENTRY, 100, 25, {{&W::size, 100}, {&W::fieldWidth, 8}, {&W::format, 3}}},
    {TYPE_VALUE_LABEL, 100, 25, {{&W::size, 100}, {&W::fieldWidth, 8}, {&W::format, 3}, {&W::editMode, 1}}},
    {TYPE_ICON, 50, 50, {{&W::size, 100}, {&W::subType, 7}, {&W::format, 4}, {&W::icon, "Gee"}}},
    {TYPE_LIST_BOX, 125, 75, {{&W::size, 100}}},
    {TYPE_SLIDER, 75, 25, {{&W::size, 100}, {&W::maxValue, 5.0F}, {&W::stepValue, 1.0F}, {&W::subType, 32764}}},
    {TYPE_PANEL, 175, 125, {{&W::titleFlag, 1}, {&W::subType, 6}, {&W::scrollMode, -1}}},
    {TYPE_COMBO_BOX, 125, 100, {{&W::editMode, 1}}},
    {TYPE_RADIO_BOX, 0, 0, {}}, // made from a panel
    {TYPE_GRAPHICS_FRAME, 125, 75, {{&W::xMax, 1000.0F}, {&W::yMax, 750.0F}}},
    {TYPE_TEXT_ARRAY, 150, 150, arrayValues},
    {TYPE_VALUE_ARRAY, 150, 150, arrayValues},
    {TYPE_TOOL_BAR, -1, 0, {{&W::iconSize, 35}, {&W::initialPosition, 1}, {&W::titleFlag, 1}}},
    {TYPE_TAB_BOX, 175, 125, {{&W::subType, 6}}},
    {TYPE_GAUGE, 75, 25, {{&W::maxValue, 100.0F}, {&W::iconId, 1}, {&W::topTicks, 10}, {&W::bottomTicks, 10},
                          {&W::icon, "mthumb01"}}},
    {TYPE_PROGRESS_BAR, 75, 25, {{&W::maxValue, 100.0F}}},
    {TYPE_TTY_ENTRY, 150, 150, {{&W::size, 80}, {&W::icon, "Prompt>"}}},
    {TYPE_TREE_VIEW, 150, 150, {}},
    {TYPE_TABLE_BOX, 225, 100, {{&W::columns, 5}, {&W::rows, 5}, {&W::xLabels, "one|two|three|four|five"}}},
    {TYPE_TOOL_SEPARATOR, 0, 0, {{&W::subType, 1}}},
    {TYPE_PANE, 150, 150, {{&W::xpos, -1}, {&W::initialPosition, 2}, {&W::titleFlag, 1}}},
};
// clang-format on
static_assert(Missing<missingRow(builtIn)>::none);

void give(WidgetNode& node, const Value& value) {
    if (value.number) node.*value.number = static_cast<int>(value.amount);
    if (value.real) node.*value.real = value.amount;
    if (value.string) node.*value.string = value.text;
}

} // namespace

OwnedList makeDefaultRecord(WidgetType type) {
    const Built* row = rowOf(builtIn, type);
    if (!row || cardOf(type).defaultPlace == 0) return nullptr;
    OwnedList node(new WidgetNode());
    node->type = type;
    node->justify = -1;
    node->hpos = -1;
    node->vpos = 1;
    node->fontFace = "MS Sans Serif";
    node->pointSize = 10;
    node->initialState = 1;
    node->width = row->width;
    node->height = row->height;
    for (const Value& value : row->values) give(*node, value);
    if (node->columns > 0) {
        node->columnWidths.assign(static_cast<std::size_t>(node->columns), 2 * project.gridPixelX);
        node->rowHeights.assign(static_cast<std::size_t>(node->rows), project.gridPixelY);
    }
    return node;
}

WidgetNode* defaultRecord(WidgetType type) {
    const int place = cardOf(type).defaultPlace;
    if (place == 0) return nullptr;
    OwnedList& record = defaultRecords[static_cast<std::size_t>(place - 1)];
    if (!record) record = makeDefaultRecord(type);
    return record.get();
}

void makeDefaults() {
    freeDefaults();
    for (const WidgetType type : defaultOrder) defaultRecord(type);
}

void freeDefaults() {
    for (OwnedList& record : defaultRecords) record.reset();
}
