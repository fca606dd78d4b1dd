#include "codegen/attributes.h"

#include "project/widget_types.h"

namespace {

using N = WidgetNode;
using Kind = AttributeKind;
using enum Keyword;

// --- What rows have in common.

constexpr Attribute number(Keyword keyword, int N::*field, int standard = Attribute::NO_STANDARD) {
    return {.keyword = keyword, .whole = field, .standard = standard};
}
constexpr Attribute whole(Keyword keyword, float N::*field) {
    return {.keyword = keyword, .kind = Kind::WHOLE, .real = field};
}
constexpr Attribute edge(Keyword keyword, int N::*field) {
    return {.keyword = keyword, .kind = Kind::EDGE, .whole = field};
}
constexpr Attribute named(Keyword keyword, int N::*field, std::span<const NamedValue> names,
                          std::string_view other = {}) {
    return {.keyword = keyword, .kind = Kind::NAMED, .whole = field, .names = names, .other = other, .lean = true};
}
// The name for all other values is what the toolkit takes anyway.
constexpr Attribute orStandard(Keyword keyword, int N::*field, std::span<const NamedValue> names,
                               std::string_view other) {
    Attribute row = named(keyword, field, names, other);
    row.otherIsStandard = true;
    return row;
}
constexpr NamedValue ON[] = {{1, "OON"}};
constexpr Attribute toggle(Keyword keyword, int N::*field) { return named(keyword, field, ON); }

constexpr Attribute string(Keyword keyword, Kind kind, std::string N::*field, bool (*when)(const N&) = nullptr) {
    return {.keyword = keyword, .kind = kind, .text = field, .lean = true, .when = when};
}
constexpr Attribute lean(Attribute row, bool (*when)(const N&) = nullptr) {
    row.lean = true;
    row.when = when;
    return row;
}
constexpr Attribute when(bool (*condition)(const N&), Attribute row) {
    row.when = condition;
    return row;
}
constexpr Attribute onWindows(Attribute row) {
    row.onWindowsOnly = true;
    return row;
}
constexpr Attribute inProgramOnly(Attribute row) {
    row.live = false;
    return row;
}

// --- Conditions.

bool isUserDefined(const N& n) { return n.subType == 1; }
bool isTitled(const N& n) { return n.titleFlag != 0; }
bool isTitledPanel(const N& n) { return isTitled(n) && n.scrollMode == -1; }
bool hasText(const N& n) { return !n.text.empty(); }
bool hasPrompt(const N& n) { return !n.icon.empty(); }
bool hasTabIcon(const N& n) { return !n.closeIcon.empty(); }
bool hasImage(const N& n) { return n.format == 1; }
bool hasDescriptionWidth(const N& n) { return n.fieldWidth > 0; }

// --- Attributes of several types.

constexpr Attribute SIZE = lean(number(owSize, &N::size, 100));
constexpr Attribute ACCELERATOR = number(owAccel, &N::accel, 0);
constexpr Attribute DRAG = inProgramOnly(toggle(owDragMode, &N::dragMode));
constexpr Attribute READ_ONLY = toggle(owReadOnly, &N::readOnly);
constexpr Attribute READ_ONLY_ENTRY = lean(READ_ONLY, isEdited);
constexpr Attribute SCROLL_MODE = onWindows(named(owScrollMode, &N::scrollMode, SCROLL_BARS, "ONOBARS"));
constexpr Attribute SORT = named(owSort, &N::sorted, LIST_SORT);
constexpr Attribute USE_ICONS = toggle(owUseIcons, &N::displayIcons);
constexpr Attribute DESCRIPTION = lean(number(owDescWidth, &N::fieldWidth), hasDescriptionWidth);
constexpr Attribute BACK_1 = number(owBack1Col, &N::colour1);
constexpr Attribute BACK_2 = number(owBack2Col, &N::colour2);
constexpr Attribute TEXT_COLOUR = number(owTextCol, &N::colour3);
constexpr Attribute TEXT_COLOUR_OR_BLACK = number(owTextCol, &N::colour3, 1);
constexpr Attribute LINE_COLOUR = number(owLineCol, &N::colour1, 0);
constexpr Attribute LINE_EDGE = edge(owLineBorder, &N::colour2);
constexpr Attribute FILL_COLOUR = number(owFillCol, &N::colour3, 0);
constexpr Attribute FILL_EDGE = edge(owFillBorder, &N::colour4);
constexpr Attribute FIELD_BORDER = onWindows(named(owBorderType, &N::borderType, ENTRY_BORDER));
constexpr Attribute MINIMUM = whole(owMinimum, &N::minValue);
constexpr Attribute MAXIMUM = whole(owMaximum, &N::maxValue);
constexpr Attribute INTEGER_VALUE = whole(owIntValue, &N::value);
constexpr Attribute OF_ALL_PLACE{.keyword = PLACE}, OF_ALL_HELP{.keyword = HELP}, OF_ALL_TAB{.keyword = TAB};

// Text widgets have a blank ahead of the comma.
constexpr Attribute textScroll() {
    Attribute row = SCROLL_MODE;
    row.blankAheadInFree = "OVERTICAL";
    return row;
}
constexpr Attribute boundary(Keyword keyword) {
    Attribute row = named(keyword, &N::subType, BOUNDARY, NO_BOUNDARY);
    row.blankAheadInC = "OINVERSECHISEL";
    return row;
}

constexpr NamedValue NO_INSERTS[] = {{0, "OOFF"}};
constexpr NamedValue ALPHANUMERIC[] = {{1, "OALPHANUMERIC"}}; // charSet of a value widget
constexpr NamedValue OPENGL[] = {{FRAME_OPENGL, "OOPENGL"}};

// --- The types.

constexpr Attribute BUTTON[] = {
    orStandard(owType, &N::subType, BUTTON_TYPE, "OSTANDARD"),
    named(owJustify, &N::justify, LEFT_RIGHT),
    DRAG,
    SIZE,
    ACCELERATOR,
    when(isUserDefined, number(owOnCol, &N::colour1, 0)),
    when(isUserDefined, number(owOffCol, &N::colour2, 0)),
    when(isUserDefined, TEXT_COLOUR_OR_BLACK),
    OF_ALL_PLACE,
    OF_ALL_HELP,
    OF_ALL_TAB,
};
constexpr Keyword BUTTON_IN_C[] = {owType, owDragMode, owJustify, owSize,    owAccel,
                                   LINE,   owOnCol,    owOffCol,  owTextCol, TAB};

constexpr Attribute TOGGLE[] = {
    named(owType, &N::subType, TOGGLE_TYPE, "OBEVELSQUARE"),
    SIZE,
    ACCELERATOR,
    number(owOnCol, &N::colour1, 0),
    number(owOffCol, &N::colour2, 0),
    TEXT_COLOUR_OR_BLACK,
    OF_ALL_PLACE,
    OF_ALL_HELP,
    OF_ALL_TAB,
};
constexpr Keyword TOGGLE_IN_C[] = {owType, owSize, owAccel, LINE, owOnCol, owOffCol, owTextCol, TAB};

constexpr Attribute FIELD[] = {
    orStandard(owEntryType, &N::subType, ENTRY_TYPE, "OSTANDARD"),
    SIZE,
    named(owJustify, &N::justify, CENTRE_RIGHT),
    named(owOLEInserts, &N::oleInserts, NO_INSERTS),
    toggle(owAutoURL, &N::autoUrl),
    BACK_1,
    BACK_2,
    TEXT_COLOUR,
    textScroll(),
    FIELD_BORDER,
    OF_ALL_PLACE,
    READ_ONLY_ENTRY,
    OF_ALL_HELP,
    OF_ALL_TAB,
};
constexpr Keyword FIELD_IN_C[] = {owEntryType, owSize, owJustify,    owOLEInserts, owAutoURL,  owBack1Col, owBack2Col,
                                  owTextCol,   LINE,   owScrollMode, owBorderType, owReadOnly, TAB};

constexpr Attribute VALUE[] = {
    named(owType, &N::subType, VALUE_TYPE, "ODECIMAL"),
    orStandard(owSign, &N::sign, VALUE_SIGN, "ODEFAULT"),
    SIZE,
    orStandard(owJustify, &N::justify, CENTRE_RIGHT, "OLEFT"),
    BACK_1,
    BACK_2,
    TEXT_COLOUR,
    lean(FIELD_BORDER, isEdited),
    named(owCharSet, &N::charSet, ALPHANUMERIC),
    OF_ALL_PLACE,
    READ_ONLY_ENTRY,
    OF_ALL_HELP,
    OF_ALL_TAB,
};
constexpr Keyword VALUE_IN_C[] = {owType,     owSign,    owSize,       owJustify, LINE,       owBack1Col,
                                  owBack2Col, owTextCol, owBorderType, owCharSet, owReadOnly, TAB};

constexpr Attribute ICON[] = {
    named(owType, &N::subType, ICON_TYPE),
    DRAG,
    SIZE,
    string(owLabel, Kind::TEXT, &N::text, hasText),
    OF_ALL_PLACE,
    OF_ALL_HELP,
    OF_ALL_TAB,
};
constexpr Keyword ICON_IN_C[] = {owType, owDragMode, owLabel, owSize, TAB};

constexpr Attribute LIST[] = {
    named(owType, &N::subType, LIST_TYPE),
    named(owStyle, &N::approxSize, LIST_STYLE),
    SORT,
    USE_ICONS,
    DESCRIPTION,
    OF_ALL_PLACE,
    number(owOffCol, &N::colour1),
    number(owOnCol, &N::colour2),
    TEXT_COLOUR,
    OF_ALL_HELP,
    OF_ALL_TAB,
};
constexpr Keyword LIST_IN_C[] = {owType,   owStyle, owSort,    owUseIcons, owDescWidth,
                                 owOffCol, owOnCol, owTextCol, LINE,       TAB};

constexpr Attribute COMBO[] = {SORT, USE_ICONS, DESCRIPTION, OF_ALL_PLACE, OF_ALL_HELP, OF_ALL_TAB};
constexpr Keyword COMBO_IN_C[] = {owSort, owUseIcons, owDescWidth, TAB};

constexpr Attribute SLIDER[] = {
    named(owType, &N::subType, SLIDER_TYPE, "OHORIZONTAL"),
    SIZE,
    number(owBackCol, &N::colour3),
    OF_ALL_PLACE,
};
constexpr Keyword SLIDER_IN_C[] = {owType, owSize, owBackCol};

constexpr Attribute PANEL[] = {
    string(owTitle, Kind::TEXT, &N::text, isTitledPanel),
    boundary(owType),
    LINE_COLOUR,
    LINE_EDGE,
    FILL_COLOUR,
    FILL_EDGE,
    onWindows(string(owImage, Kind::IMAGE, &N::backgroundImage, hasImage)),
    onWindows(string(owIcon, Kind::RESOURCE, &N::closeIcon, hasTabIcon)),
    SCROLL_MODE,
    OF_ALL_PLACE,
    OF_ALL_HELP,
    OF_ALL_TAB,
};
constexpr Keyword PANEL_IN_C[] = {owTitle,      owType, LINE,    owLineCol, owLineBorder, owFillCol,
                                  owFillBorder, LINE,   owImage, owIcon,    owScrollMode, TAB};

constexpr Attribute RADIO_BOX[] = {
    named(owType, nullptr, {}, "OFREEFORM"),
    named(owBorderType, &N::borderType, BOUNDARY, NO_BOUNDARY),
    LINE_COLOUR,
    LINE_EDGE,
    FILL_COLOUR,
    FILL_EDGE,
    string(owTitle, Kind::TEXT, &N::text, isTitled),
    OF_ALL_PLACE,
    OF_ALL_HELP,
};
constexpr Keyword RADIO_BOX_IN_C[] = {owType,    owTitle,      owBorderType, LINE,
                                      owLineCol, owLineBorder, owFillCol,    owFillBorder};

constexpr Attribute FRAME[] = {
    inProgramOnly(onWindows(named(owFrameType, &N::subType, OPENGL, "OGDI"))),
    OF_ALL_PLACE,
    OF_ALL_HELP,
};
constexpr Keyword FRAME_IN_C[] = {owFrameType};

constexpr Attribute ARRAY[] = {
    number(owAxisW, &N::yLabelsWidth),
    number(owAxisH, &N::xLabelsHeight),
    string(owXtext, Kind::TEXT, &N::xLabels),
    string(owYtext, Kind::TEXT, &N::yLabels),
    named(owXjust, &N::alignXLabels, LEFT_CENTRE_RIGHT),
    named(owYjust, &N::alignYLabels, LEFT_CENTRE_RIGHT),
    SCROLL_MODE,
    onWindows(boundary(owBorderType)),
    onWindows(number(owAxisBackColour, &N::colour1, 12)),
    onWindows(number(owXtextColour, &N::colour3, 1)),
    onWindows(number(owYtextColour, &N::colour4, 1)),
    onWindows(number(owGridBackColour, &N::cellBackground, 0)),
    onWindows(number(owCellBorderColour, &N::cellBorder, 0)),
    onWindows(number(owCellBorderLineType, &N::borderType, 2)),
    onWindows(number(owSelectedCellColour, &N::colour2, 0)),
    OF_ALL_PLACE,
    OF_ALL_HELP,
    OF_ALL_TAB,
    named(owTabAction, &N::tabAction, TAB_ACTION),
    READ_ONLY,
};
constexpr Keyword ARRAY_IN_C[] = {owXtext,
                                  owYtext,
                                  LINE,
                                  owAxisW,
                                  owAxisH,
                                  owXjust,
                                  owYjust,
                                  owScrollMode,
                                  owBorderType,
                                  WINDOWS_LINE,
                                  owAxisBackColour,
                                  owXtextColour,
                                  owYtextColour,
                                  owGridBackColour,
                                  WINDOWS_LINE,
                                  owCellBorderColour,
                                  owCellBorderLineType,
                                  owSelectedCellColour,
                                  WINDOWS_END,
                                  owReadOnly,
                                  TAB,
                                  owTabAction};

constexpr Attribute GAUGE[] = {
    MINIMUM,
    MAXIMUM,
    INTEGER_VALUE,
    number(owTicks1, &N::topTicks),
    number(owTicks2, &N::bottomTicks),
    inProgramOnly(named(owAccess, &N::accessMode, GAUGE_ACCESS)),
    OF_ALL_PLACE,
    OF_ALL_HELP,
    OF_ALL_TAB,
};
constexpr Keyword GAUGE_IN_C[] = {owAccess, owTicks1, owTicks2, owMinimum, owMaximum, owIntValue, TAB};

constexpr Attribute PROGRESS[] = {
    MINIMUM, MAXIMUM, INTEGER_VALUE, named(owProgressType, &N::subType, PROGRESS_TYPE), OF_ALL_PLACE, OF_ALL_HELP,
};
constexpr Keyword PROGRESS_IN_C[] = {owProgressType, owMinimum, owMaximum, owIntValue};

constexpr Attribute TTY[] = {
    string(owPrompt, Kind::TEXT, &N::icon, hasPrompt),
    READ_ONLY,
    number(owOffCol, &N::colour1, 0), // while it has no input
    number(owOnCol, &N::colour2, 0),
    TEXT_COLOUR_OR_BLACK,
    OF_ALL_PLACE,
    OF_ALL_HELP,
};
constexpr Keyword TTY_IN_C[] = {owPrompt, owOffCol, owOnCol, owTextCol, owReadOnly};

constexpr Attribute TREE[] = {named(owIconSet, &N::subType, TREE_ICONS), OF_ALL_PLACE};
constexpr Keyword TREE_IN_C[] = {owIconSet};

constexpr Attribute PLACED_ONLY[] = {OF_ALL_PLACE};

constexpr AttributesOfType TYPES[] = {
    {TYPE_FORM, "", {}, {}},
    {TYPE_MAIN_PANEL, "", {}, {}},
    {TYPE_BUTTON, "owCreatePushButton", BUTTON, BUTTON_IN_C},
    {TYPE_TOGGLE, "owCreateToggleButton", TOGGLE, TOGGLE_IN_C},
    {TYPE_TEXT_ENTRY, "owCreateTextEntry", FIELD, FIELD_IN_C},
    {TYPE_TEXT_LABEL, "owCreateTextEntry", FIELD, FIELD_IN_C},
    {TYPE_VALUE_ENTRY, "owCreateValueEntry", VALUE, VALUE_IN_C},
    {TYPE_VALUE_LABEL, "owCreateValueEntry", VALUE, VALUE_IN_C},
    {TYPE_ICON, "owCreateIcon", ICON, ICON_IN_C},
    {TYPE_LIST_BOX, "owCreateListBox", LIST, LIST_IN_C},
    {TYPE_SLIDER, "owCreateSlider", SLIDER, SLIDER_IN_C},
    {TYPE_PANEL, "owCreatePanel", PANEL, PANEL_IN_C},
    {TYPE_COMBO_BOX, "owCreateComboBox", COMBO, COMBO_IN_C},
    {TYPE_RADIO_BOX, "owCreateRadioBox", RADIO_BOX, RADIO_BOX_IN_C},
    {TYPE_GRAPHICS_FRAME, "owCreateGraphicsFrame", FRAME, FRAME_IN_C},
    {TYPE_TEXT_ARRAY, "owCreateTextArray", ARRAY, ARRAY_IN_C},
    {TYPE_VALUE_ARRAY, "owCreateValueArray", ARRAY, ARRAY_IN_C},
    {TYPE_TOOL_BAR, "", {}, {}},
    {TYPE_TAB_BOX, "owCreateTabDialogueBox", PLACED_ONLY, {}},
    {TYPE_GAUGE, "owCreateGauge", GAUGE, GAUGE_IN_C},
    {TYPE_PROGRESS_BAR, "owCreateProgressBar", PROGRESS, PROGRESS_IN_C},
    {TYPE_TTY_ENTRY, "owCreateTTYEntry", TTY, TTY_IN_C},
    {TYPE_TREE_VIEW, "owCreateTreeViewBox", TREE, TREE_IN_C},
    {TYPE_TABLE_BOX, "owCreateTableBox", PLACED_ONLY, {}},
    {TYPE_TOOL_SEPARATOR, "", {}, {}},
    {TYPE_PANE, "", {}, {}},
};
static_assert(Missing<missingRow(TYPES)>::none);

// Every attribute of a type is told in C too, once.
constexpr bool cTellsAll() {
    for (const AttributesOfType& row : TYPES) {
        for (const Attribute& attribute : row.attributes) {
            if (attribute.keyword == PLACE || attribute.keyword == HELP) continue;
            int told = 0;
            for (const Keyword keyword : row.inC) told += keyword == attribute.keyword ? 1 : 0;
            if (told != 1) return false;
        }
    }
    return true;
}
static_assert(cTellsAll());

constexpr std::string_view NAMES[] = {
#define KEYWORD(name) #name,
#include "codegen/keywords.def"
#undef KEYWORD
};

} // namespace

std::string_view keywordName(Keyword keyword) { return NAMES[static_cast<std::size_t>(keyword)]; }

const AttributesOfType* attributesOf(WidgetType type) {
    const AttributesOfType* row = rowOf(TYPES, type);
    return row && !row->routine.empty() ? row : nullptr;
}

bool isTold(const Attribute& attribute, const WidgetNode& node) {
    if (!attribute.lean) return true;
    return (!attribute.when || attribute.when(node)) &&
           (attribute.standard == Attribute::NO_STANDARD || !isStandard(attribute, node));
}

bool isStandard(const Attribute& attribute, const WidgetNode& node) {
    if (attribute.when && !attribute.when(node)) return true;
    if (attribute.kind == AttributeKind::EDGE) return node.*attribute.whole != 0;
    if (attribute.otherIsStandard) return nameOf(attribute.names, node.*attribute.whole).empty();
    return attribute.standard != Attribute::NO_STANDARD && node.*attribute.whole == attribute.standard;
}
