// What the creation routines of Fortran 77 have no words for is set behind them, property by property, where a widget
// has it otherwise than the toolkit would.

#include "codegen/attributes.h"
#include "codegen/fortran77.h"
#include "codegen/quotes.h"

#include <algorithm>

namespace {

// The number by which the old interface knows a property, and what its creation routines leave it at.
struct NumberedProperty {
    Keyword keyword;
    int number;
    int untold;
    TypeSet types;
};

using enum Keyword;
constexpr TypeSet ARRAYS = {TYPE_TEXT_ARRAY, TYPE_VALUE_ARRAY};
constexpr TypeSet LISTS = {TYPE_LIST_BOX};

constexpr NumberedProperty PROPERTIES[] = {
    {owJustify, 30, 0, {TYPE_BUTTON}},
    {owOffCol, 25, 0, LISTS},
    {owOnCol, 26, 0, LISTS},
    {owTextCol, 27, 0, LISTS},
    {owIcon, 99, 0, {TYPE_PANEL}},
    {owPrompt, 76, 0, {TYPE_TTY_ENTRY}},
    {owReadOnly, 129, 0, {TYPE_TEXT_ENTRY, TYPE_VALUE_ENTRY, TYPE_TTY_ENTRY, TYPE_TEXT_ARRAY, TYPE_VALUE_ARRAY}},
    {owBorderType, 20, 4, ARRAYS},
    {owAxisBackColour, 118, 12, ARRAYS},
    {owXtextColour, 119, 1, ARRAYS},
    {owYtextColour, 120, 1, ARRAYS},
    {owGridBackColour, 121, 0, ARRAYS},
    {owCellBorderColour, 122, 0, ARRAYS},
    {owCellBorderLineType, 123, 2, ARRAYS},
    {owSelectedCellColour, 124, 0, ARRAYS},
    {owTabAction, 132, 1, ARRAYS},
};
constexpr int TAB_LIST = 131;
constexpr int HELP_JUSTIFY = 126;

void writeNumber(Generation& g, const WidgetNode& node, int property, int value) {
    write(g, "      CALL PRPSET(%s,%d,%d,0.0D0,' ')\n", node.name, property, value);
}

void writeValue(Generation& g, const WidgetNode& node, const Attribute& attribute, const NumberedProperty& property) {
    switch (attribute.kind) {
    case AttributeKind::TEXT:
        writeSplit(g, "      CALL PRPSET(%s,%d,0,0.0D0,'%s')\n", node.name, property.number,
                   fortranText(node.*attribute.text));
        break;
    case AttributeKind::RESOURCE:
        writeFetchIcon(g, "icon1", node.*attribute.text);
        write(g, "      CALL PRPSET(%s,%d,icon1,0.0D0,' ')\n", node.name, property.number);
        break;
    default: {
        const int value = node.*attribute.whole;
        const bool nameless =
            attribute.kind == AttributeKind::NAMED && attribute.other.empty() && nameOf(attribute.names, value).empty();
        if (value != property.untold && !nameless) writeNumber(g, node, property.number, value);
        break;
    }
    }
}

void writeProperty(Generation& g, const WidgetNode& node, const Attribute& attribute) {
    if (attribute.onWindowsOnly && !g.windows) return;
    if (attribute.when && !attribute.when(node)) return;
    const auto* row = std::ranges::find_if(PROPERTIES, [&](const NumberedProperty& property) {
        return property.keyword == attribute.keyword && property.types.holds(node.type);
    });
    if (row != std::end(PROPERTIES)) writeValue(g, node, attribute, *row);
}

} // namespace

void writeFurtherProperties(Generation& g, const Placed& widget) {
    const WidgetNode& node = widget.node;
    const AttributesOfType* type = attributesOf(node.type);
    if (!type || node.onToolbar == 1) return;
    for (const Attribute& attribute : type->attributes) {
        switch (attribute.keyword) {
        case PLACE: break;
        case HELP:
            if (!node.bubbleHelp.empty() && node.helpJustify != 0) writeNumber(g, node, HELP_JUSTIFY, node.helpJustify);
            break;
        case TAB:
            if (node.tabList == 0) writeNumber(g, node, TAB_LIST, 0);
            break;
        default: writeProperty(g, node, attribute); break;
        }
    }
}
