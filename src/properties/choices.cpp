#include "properties/choices.h"

#include <algorithm>

namespace {

constexpr bool W = true; // only with platform 'w'

constexpr Choice OFF_ON[] = {{"Off", 0}, {"On", 1}};
constexpr Choice ON_OFF[] = {{"On", 1}, {"Off", 0}};
constexpr Choice FALSE_TRUE[] = {{"False", 0}, {"True", 1}};
constexpr Choice LEFT_CENTRE_RIGHT[] = {{"Left", -1}, {"Centre", 0}, {"Right", 1}};
constexpr Choice VERTICAL_ORIGIN[] = {{"Bottom", -1}, {"Middle", 0}, {"Top", 1}};
// The codes from 2 on are numbered from 1, so that an entry shows again as it was chosen.
constexpr Choice EXPAND[] = {{"Off", 0}, {"On", 1},  {"1", 2},   {"2", 3},   {"3", 4},   {"4", 5},   {"5", 6},
                             {"6", 7},   {"7", 8},   {"8", 9},   {"9", 10},  {"10", 11}, {"11", 12}, {"12", 13},
                             {"13", 14}, {"14", 15}, {"15", 16}, {"16", 17}, {"17", 18}, {"18", 19}, {"19", 20},
                             {"20", 21}, {"21", 22}, {"22", 23}, {"23", 24}};
constexpr Choice FILL[] = {{"Outer Edge", 0}, {"Outer Grid Cell", 1}};
constexpr Choice BOUNDARY[] = {{"No Boundary", 0},           {"Single Boundary", 1},    {"Double Boundary", 2},
                               {"Pressed Boundary", 3},      {"Projected Boundary", 4}, {"Chiselled Boundary", 5},
                               {"Inv Chiselled Boundary", 6}};
constexpr Choice SCROLL_BARS[] = {{"No Bars", -1}, {"Vertical", 32763}, {"Horizontal", 32764}, {"Both Bars", 0}};
constexpr Choice CHAR_SET[] = {{"Default", 0}, {"ANSI", 1},     {"Symbol", 2},      {"OEM", 3},      {"Greek", 4},
                               {"Baltic", 5},  {"Chinese", 6},  {"East Europe", 7}, {"GB2312", 8},   {"Hangul", 9},
                               {"MAC", 10},    {"Russian", 11}, {"Japanese", 12},   {"Turkish", 13}, {"Vietnamese", 14},
                               {"Johab", 15},  {"Arabic", 16},  {"Hebrew", 17},     {"Thai", 18}};
constexpr Choice VALUE_CHAR_SET[] = {{"Default/Numeric", 0}, {"Alphanumeric", 1}};
constexpr Choice FORM_TYPE[] = {{"Master MDI", 3},       {"Master SDI", 1},        {"Static Child MDI", 2},
                                {"Static Child SDI", 0}, {"Dynamic Child MDI", 5}, {"Dynamic Child SDI", 4}};
constexpr Choice FORM_TITLE[] = {{"Full Title Bar", -1}, {"No Title Bar", 0},          {"Title Only", 1},
                                 {"Title + Quit", 2},    {"Title + Maximize", 6},      {"Title + Minimize", 10},
                                 {"Toolbar Style", 17},  {"Toolbar Style + Quit", 18}, {"Toolbar Style", 16}};
constexpr Choice BAR_TITLE[] = {{"Title Only", 1}, {"Title + Quit", 2}};
constexpr Choice QUIT_MODE[] = {{"Hide Window", 0}, {"Destroy Window", 1}, {"Ignore Quit", 2}};
constexpr Choice FORM_STATE[] = {
    {"Normal", 0}, {"Minimized", 8}, {"Maximized", 4}, {"Centred", 32}, {"Top of Screen", 1}};
constexpr Choice FOUR_STATES[] = {{"Hidden", -1}, {"Unselectable", 0}, {"Selectable", 1}, {"Checked", 2}};
constexpr Choice THREE_STATES[] = {{"Hidden", -1}, {"Unselectable", 0}, {"Selectable", 1}};
constexpr Choice HIDDEN_VISIBLE[] = {{"Hidden", -1}, {"Visible", 1}};
constexpr Choice BUTTON_TYPE[] = {{"Standard", 0}, {"User Defined", 1}, {"Default Button", 2}};
constexpr Choice TOGGLE_TYPE[] = {{"Bevelled Square", 0}, {"Bevelled Diamond", 1}, {"Simple Square", 2},
                                  {"Tick Box", 3},        {"Simple Circle", 4},    {"Check Box", 5},
                                  {"3D Check Box", 7, W}};
constexpr Choice RADIO_TYPE[] = {{"Bevelled Square", 0},   {"Bevelled Diamond", 1}, {"Simple Square", 2},
                                 {"Tick Box", 3},          {"Simple Circle", 4},    {"Check Box", 5},
                                 {"3D Radio Button", 6, W}};
constexpr Choice TEXT_TYPE[] = {{"Standard", 0}, {"Rich Text", 1}, {"Security", -1}};
constexpr Choice BORDER[] = {{"Default", 0}, {"3D Border", 1}, {"2D Border", 2}, {"No Border", 3}};
constexpr Choice VALUE_TYPE[] = {
    {"Decimal", 0},          {"Scientific", 1},  {"Binary", 2},         {"Octal", 3},         {"Hexadecimal", 4},
    {"Angular Degrees", 5},  {"Percent", 6},     {"Farenheit", 7},      {"Celsius", 8},       {"Kelvin", 9},
    {"Pounds Sterling", 10}, {"US Dollars", 11}, {"French Francs", 13}, {"Deutschmarks", 12}, {"Yen", 14},
    {"Euro", 15, W}};
constexpr Choice SIGN[] = {{"Default", 0}, {"Credit - []", 1}, {"Credit - ()", 2}, {"Credit - red chars", 3}};
constexpr Choice ICON_TYPE[] = {{"Icon Button", 7}, {"Pictogram", 1}, {"Mouse Sensitive", 2, W}};
constexpr Choice CONTENTS[] = {{"User Defined", 0},       {"Files", 1},      {"Directories", 2},
                               {"Disk Drives", 3},        {"Fonts", 4, W},   {"Days of the Week", 5},
                               {"Months of the Year", 6}, {"Printers", 7, W}};
constexpr Choice LIST_TYPE[] = {{"Single Choice", 0}, {"Multi Choice", 1}, {"Extended Multi Choice", 2, W}};
constexpr Choice LIST_SORTING[] = {{"Sorted", 1}, {"Unsorted", 0}};
constexpr Choice COMBO_SORTING[] = {{"Unsorted", 0}, {"Sorted", 1}};
constexpr Choice LIST_STYLE[] = {{"Exact Size", 0}, {"Approx. Size", 1}};
constexpr Choice EDITABLE[] = {{"List Choice Only", 1}, {"Editable", 0}};
constexpr Choice SLIDER_TYPE[] = {
    {"Horizontal", 32764}, {"Reverse Horizontal", 2}, {"Vertical", 32763}, {"Reverse Vertical", 3}};
constexpr Choice FRAME_TYPE[] = {{"GDI", 0}, {"OpenGL", 40}};
constexpr Choice LINE_STYLE[] = {{"Invisible", -1}, {"Solid", 0}, {"Dashed", 1}, {"Dotted", 2}, {"Dash-Dotted", 3}};
constexpr Choice TAB_ACTION[] = {{"On", 1}, {"Off", 0}, {"Cycle", 2}};
constexpr Choice BAR_POSITION[] = {{"Top", 1}, {"Bottom", -1}, {"Left", 2}, {"Right", 3}, {"Floating", 4}};
constexpr Choice ACCESS_MODE[] = {{"Display Only", 1}, {"User Editable", 0}};
constexpr Choice PROGRESS_TYPE[] = {{"Step", 0}, {"Smooth", 32745}};
constexpr Choice ICON_SET[] = {{"None", 0}, {"Folders & Documents", 1}, {"Books & Pages", 2}, {"User Defined", 3}};
constexpr Choice SEPARATOR_TYPE[] = {
    {"Space", 0}, {"Single line", 1}, {"Double line", 2}, {"3D chiselled line", 5}, {"3D inverse chiselled line", 6}};
constexpr Choice POINT_SIZE[] = {{"8", 8},   {"9", 9},   {"10", 10}, {"11", 11}, {"12", 12}, {"14", 14},
                                 {"16", 16}, {"18", 18}, {"20", 20}, {"22", 22}, {"24", 24}, {"26", 26},
                                 {"28", 28}, {"36", 36}, {"48", 48}, {"72", 72}};

} // namespace

namespace choices {
const Choices offOn = OFF_ON, onOff = ON_OFF, falseTrue = FALSE_TRUE, leftCentreRight = LEFT_CENTRE_RIGHT,
              horizontalOrigin = LEFT_CENTRE_RIGHT, verticalOrigin = VERTICAL_ORIGIN, expand = EXPAND, fill = FILL,
              boundary = BOUNDARY, scrollBars = SCROLL_BARS, charSet = CHAR_SET, valueCharSet = VALUE_CHAR_SET,
              formType = FORM_TYPE, formTitle = FORM_TITLE, barTitle = BAR_TITLE, quitMode = QUIT_MODE,
              formState = FORM_STATE, fourStates = FOUR_STATES, threeStates = THREE_STATES,
              hiddenVisible = HIDDEN_VISIBLE, buttonType = BUTTON_TYPE, toggleType = TOGGLE_TYPE,
              radioType = RADIO_TYPE, textType = TEXT_TYPE, textTypeMulti = Choices(TEXT_TYPE).first(2),
              border = BORDER, valueType = VALUE_TYPE, sign = SIGN, iconType = ICON_TYPE, contents = CONTENTS,
              listType = LIST_TYPE, listSorting = LIST_SORTING, comboSorting = COMBO_SORTING, listStyle = LIST_STYLE,
              editable = EDITABLE, sliderType = SLIDER_TYPE, frameType = FRAME_TYPE, lineStyle = LINE_STYLE,
              tabAction = TAB_ACTION, barPosition = BAR_POSITION, accessMode = ACCESS_MODE,
              progressType = PROGRESS_TYPE, iconSet = ICON_SET, separatorType = SEPARATOR_TYPE, pointSize = POINT_SIZE;
} // namespace choices

std::string labelOf(Choices entries, int value) {
    const auto entry = std::ranges::find(entries, value, &Choice::value);
    return entry == entries.end() ? std::string() : entry->label;
}

bool valueOf(Choices entries, const std::string& label, int& value) {
    const auto entry = std::ranges::find(entries, label, &Choice::label);
    if (entry == entries.end()) return false;
    value = entry->value;
    return true;
}
