#include "project/field_table.h"

#include <iterator>
#include <string_view>

namespace {

using W = WidgetNode;

constexpr FieldRow number(const char* name, int W::*field, int since = VERSION_10, int absent = 0) {
    return {.kind = FIELD_NUMBER, .name = name, .number = field, .since = since, .absent = absent};
}
constexpr FieldRow realG(const char* name, float W::*field) {
    return {.kind = FIELD_REAL_G, .name = name, .real = field};
}
constexpr FieldRow realF(const char* name, float W::*field) {
    return {.kind = FIELD_REAL_F, .name = name, .real = field};
}
constexpr FieldRow string(const char* name, std::string W::*field, int since = VERSION_10, const char* absent = "") {
    return {.kind = FIELD_STRING, .name = name, .string = field, .since = since, .absentText = absent};
}

// clang-format off
constexpr FieldRow table[] = {
    string("name", &W::name),
    number("selected", &W::selected),
    number("formCallbackId", &W::storedFormCallbackId),
    string("icon", &W::icon),
    string("backgroundImage", &W::backgroundImage),
    string("parentName", &W::parentName),
    string("bubbleHelp", &W::bubbleHelp, VERSION_20),
    number("formType", &W::formType),
    {.kind = FIELD_TYPE, .name = "type"},
    number("reserved", &W::reserved),
    number("parentHandle", &W::storedParentHandle),
    number("xpos", &W::xpos),
    number("ypos", &W::ypos),
    number("width", &W::width),
    number("height", &W::height),
    number("initialStatus", &W::initialStatus),
    number("titleFlag", &W::titleFlag),
    number("iconId", &W::iconId),
    number("subType", &W::subType),
    number("size", &W::size),
    number("accel", &W::accel),
    number("fieldWidth", &W::fieldWidth),
    number("justify", &W::justify),
    number("sign", &W::sign),
    number("format", &W::format),
    number("editMode", &W::editMode),
    number("columns", &W::columns),
    number("rows", &W::rows),
    realG("value", &W::value),
    realG("minValue", &W::minValue),
    realG("maxValue", &W::maxValue),
    realG("stepValue", &W::stepValue),
    number("borderType", &W::borderType),
    number("colour1", &W::colour1),
    number("colour2", &W::colour2),
    number("colour3", &W::colour3),
    number("colour4", &W::colour4),
    realF("xMin", &W::xMin),
    realF("yMin", &W::yMin),
    realF("xMax", &W::xMax),
    realF("yMax", &W::yMax),
    {.kind = FIELD_TEXT, .name = "text", .string = &W::text},
    number("hpos", &W::hpos),
    number("vpos", &W::vpos),
    number("expand", &W::expand),
    number("sorted", &W::sorted),
    number("approxSize", &W::approxSize),
    number("quitMode", &W::quitMode),
    number("yLabelsWidth", &W::yLabelsWidth, VERSION_20, 10),
    number("xLabelsHeight", &W::xLabelsHeight, VERSION_20, 10),
    string("xLabels", &W::xLabels, VERSION_20),
    string("yLabels", &W::yLabels, VERSION_20),
    number("alignXLabels", &W::alignXLabels, VERSION_20),
    number("alignYLabels", &W::alignYLabels, VERSION_20),
    {.kind = FIELD_GRID_MODE, .name = "gridMode", .since = VERSION_20, .absent = 1, .until = VERSION_30},
    number("activeOnInit", &W::activeOnInit, VERSION_20),
    number("iconSize", &W::iconSize, VERSION_20, 25),
    number("initialPosition", &W::initialPosition, VERSION_20, 1),
    number("onToolbar", &W::onToolbar, VERSION_20),
    number("initialState", &W::initialState, VERSION_30),
    number("scrollMode", &W::scrollMode, VERSION_30),
    number("dragMode", &W::dragMode, VERSION_30),
    number("topTicks", &W::topTicks, VERSION_30),
    number("bottomTicks", &W::bottomTicks, VERSION_30),
    number("accessMode", &W::accessMode, VERSION_30),
    string("fontFace", &W::fontFace, VERSION_30, "MS Sans Serif"),
    number("pointSize", &W::pointSize, VERSION_30, 10),
    number("charSet", &W::charSet, VERSION_30),
    number("bold", &W::bold, VERSION_40),
    number("italic", &W::italic, VERSION_40),
    number("underline", &W::underline, VERSION_40),
    number("strikeout", &W::strikeout, VERSION_40),
    number("contents", &W::contents, VERSION_40),
    string("closeIcon", &W::closeIcon, VERSION_50),
    string("openIcon", &W::openIcon, VERSION_50),
    number("displayIcons", &W::displayIcons, VERSION_50),
    number("helpJustify", &W::helpJustify, VERSION_50),
    number("oleInserts", &W::oleInserts, VERSION_50, 1),
    number("cellBackground", &W::cellBackground, VERSION_50),
    number("cellBorder", &W::cellBorder, VERSION_50),
    number("readOnly", &W::readOnly, VERSION_50),
    number("formHidden", &W::formHidden, VERSION_70),
    number("autoUrl", &W::autoUrl, VERSION_70),
    number("tabAction", &W::tabAction, VERSION_70, 1),
    {.kind = FIELD_TAB_LIST, .name = "tabList", .number = &W::tabList, .since = VERSION_70},
};
// clang-format on
constexpr bool namesDiffer() {
    for (const FieldRow& row : table)
        for (const FieldRow* other = &row + 1; other != std::end(table); ++other)
            if (std::string_view(row.name) == other->name) return false;
    return true;
}
static_assert(std::size(table) == 85 && namesDiffer()); // 84 fields and the strayed one

} // namespace

std::span<const FieldRow> recordFields() { return table; }

const std::array<EntryStringRow, 6> entryStrings = {{
    {&MenuEntryRec::name, VERSION_10},
    {&MenuEntryRec::label, VERSION_10},
    {&MenuEntryRec::icon1, VERSION_50},
    {&MenuEntryRec::icon2, VERSION_50},
    {&MenuEntryRec::icon3, VERSION_50},
    {&MenuEntryRec::help, VERSION_21},
}};

const std::array<EntryNumberRow, 4> entryNumbers = {
    {{&MenuEntryRec::kind}, {&MenuEntryRec::level}, {&MenuEntryRec::storedHandle}, {&MenuEntryRec::accel}}};

const std::array<CounterPlace, 29> counterPlaces = {{
    {COUNTER_BUTTON, VERSION_10},
    {COUNTER_TOGGLE, VERSION_10},
    {COUNTER_LIST, VERSION_10},
    {COUNTER_SLIDER, VERSION_10},
    {COUNTER_NONE, VERSION_10, COUNTER_SLIDER},
    {COUNTER_TEXT, VERSION_10},
    {COUNTER_VALUE, VERSION_10},
    {COUNTER_ICON, VERSION_10},
    {COUNTER_NONE, VERSION_10},
    {COUNTER_NONE, VERSION_10},
    {COUNTER_NONE, VERSION_10},
    {COUNTER_PANEL, VERSION_10},
    {COUNTER_COMBO, VERSION_10},
    {COUNTER_RADIO, VERSION_10},
    {COUNTER_GRAPHICS, VERSION_10},
    {COUNTER_NONE, VERSION_10},
    {COUNTER_TXT_ARRAY, VERSION_20},
    {COUNTER_VAL_ARRAY, VERSION_20},
    {COUNTER_TOOL_BAR, VERSION_20},
    {COUNTER_NONE, VERSION_20},
    {COUNTER_TAB_DIA_BOX, VERSION_20},
    {COUNTER_NONE, VERSION_20},
    {COUNTER_GAUGE, VERSION_30},
    {COUNTER_PROGRESS, VERSION_30},
    {COUNTER_TTY_ENTRY, VERSION_30},
    {COUNTER_TREE_VIEW, VERSION_30},
    {COUNTER_TABLE_BOX, VERSION_30},
    {COUNTER_TOOL_SEP, VERSION_71},
    {COUNTER_PANE, VERSION_71},
}};

const std::array<BlockPlace, CODE_BLOCKS> blockFileOrder = {{
    {BLOCK_GLOBAL_DEFINITIONS, VERSION_30},
    {BLOCK_GLOBAL_ROUTINES, VERSION_51},
    {BLOCK_LOCAL_VARIABLES, VERSION_30},
    {BLOCK_INITIALIZATION, VERSION_30},
    {BLOCK_PRE_ACTION, VERSION_30},
    {BLOCK_LOOP_START, VERSION_30},
    {BLOCK_LOOP_END, VERSION_30},
    {BLOCK_TERMINATION, VERSION_30},
    {BLOCK_USER_ROUTINES, VERSION_30},
}};

const std::array<CodeBlockIndex, 4> oldBlockFileOrder = {BLOCK_LOCAL_VARIABLES, BLOCK_INITIALIZATION, BLOCK_LOOP_START,
                                                         BLOCK_TERMINATION};
