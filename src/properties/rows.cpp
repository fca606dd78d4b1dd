// The table of rows. Each row stands at the index of its identifier.
#include "properties/rows.h"

#include "menu-c.h"
#include "properties/edits.h"

namespace {

using N = WidgetNode;
constexpr NumberFormat POSITION = {.width = 5};
constexpr NumberFormat COUNT = {.width = 4};
constexpr NumberFormat LIMIT = {.width = 10, .decimals = 2};
constexpr NumberFormat WHOLE = {.width = 8};
constexpr int FACE = 12, TEXT = 16, ENTRY = 18; // fixed colours of the table

// What a row of a menu of choices, a colour and a number has in common.
constexpr PropertyRow chooser(RowId id, const char* label, Choices choices, int N::* field, int keyword, After after,
                              bool onlyChanges = false, decltype(PropertyRow::edit) edit = nullptr) {
    return {.id = id, .label = label, .cell = Cell::Choice, .choices = choices, .whole = field, .keyword = keyword,
            .after = after, .onlyChanges = onlyChanges, .edit = edit};
}
constexpr PropertyRow colour(RowId id, const char* label, int N::* field, int unset, int keyword,
                             const char* unsetText = "") {
    return {.id = id, .label = label, .cell = Cell::Colour, .whole = field, .colour = unset, .unset = unsetText,
            .keyword = keyword, .after = After::Redraw, .edit = editColour};
}
constexpr PropertyRow number(RowId id, const char* label, int N::* field, NumberFormat format,
                             decltype(PropertyRow::edit) edit, int keyword = 0, After after = After::Nothing) {
    return {.id = id, .label = label, .cell = Cell::Number, .whole = field, .number = format, .keyword = keyword,
            .after = after, .edit = edit};
}
constexpr PropertyRow real(RowId id, const char* label, float N::* field, NumberFormat format,
                           decltype(PropertyRow::edit) edit, int keyword = 0, After after = After::Nothing) {
    return {.id = id, .label = label, .cell = Cell::Number, .real = field, .number = format, .keyword = keyword,
            .after = after, .edit = edit};
}
constexpr PropertyRow line(RowId id, const char* label, std::string N::* field, decltype(PropertyRow::edit) edit) {
    return {.id = id, .label = label, .cell = Cell::Text, .text = field, .edit = edit};
}
constexpr PropertyRow button(RowId id, const char* label, std::string N::* field, decltype(PropertyRow::edit) edit) {
    return {.id = id, .label = label, .cell = Cell::Button, .text = field, .edit = edit};
}
constexpr PropertyRow ofTabBox(PropertyRow row) {
    row.ofTabBox = true;
    return row;
}

const PropertyRow ROWS[] = {
    line(ROW_NAME, "Name", &N::name, editName),
    chooser(ROW_FORM_TYPE, "Form Type", choices::formType, &N::formType, 0, After::Nothing, true, editFormType),
    line(ROW_LABEL, "Label", &N::text, editText),
    line(ROW_TITLE, "Title", &N::text, editText),
    line(ROW_BAR_TITLE, "Title", &N::text, editBarTitle),
    line(ROW_TEXT, "Text", &N::text, editText),
    chooser(ROW_FORM_TITLE_BAR, "Title Bar (Not WYSIWYG)", choices::formTitle, &N::titleFlag, 0, After::Nothing),
    chooser(ROW_BAR_TITLE_BAR, "Title Bar (Not WYSIWYG)", choices::barTitle, &N::titleFlag, 0, After::Nothing),
    button(ROW_ICON, "Icon", &N::icon, editIcon),
    chooser(ROW_QUIT_MODE, "Quit Mode", choices::quitMode, &N::quitMode, 0, After::Nothing),
    ofTabBox(number(ROW_XPOS, "Xpos", &N::xpos, POSITION, editPosition, owXpos)),
    ofTabBox(number(ROW_YPOS, "Ypos", &N::ypos, POSITION, editPosition, owYpos)),
    ofTabBox(number(ROW_WIDTH, "Width", &N::width, POSITION, editWidth, owWidth)),
    ofTabBox(number(ROW_HEIGHT, "Height", &N::height, POSITION, editHeight, owHeight)),
    number(ROW_SIZE, "Size", &N::size, COUNT, editSize, owSize, After::Rebuild),
    ofTabBox(chooser(ROW_HORIZONTAL, "Horizontal Origin", choices::horizontalOrigin, &N::hpos, owHpos, After::Redraw,
                     true, editOrigin)),
    ofTabBox(chooser(ROW_VERTICAL, "Vertical Origin", choices::verticalOrigin, &N::vpos, owVpos, After::Redraw, true,
                     editOrigin)),
    ofTabBox(chooser(ROW_EXPAND, "Expand", choices::expand, &N::expand, owExpand, After::Redraw, true, editExpand)),
    button(ROW_BACKGROUND_IMAGE, "Background Image", &N::icon, editBackgroundImage),
    colour(ROW_FORM_COLOUR, "Background Colour", &N::colour3, FACE, owFillCol),
    colour(ROW_BACK_COLOUR, "Background Colour", &N::colour1, FACE, owOffCol),
    colour(ROW_SLIDER_COLOUR, "Background Colour", &N::colour3, FACE, owFillCol),
    chooser(ROW_FORM_STATE, "Initial State (Not WYSIWYG)", choices::formState, &N::initialState, 0, After::Nothing),
    chooser(ROW_STATE, "Initial State (Not WYSIWYG)", choices::threeStates, &N::initialState, 0, After::Nothing),
    chooser(ROW_BUILD_INFO, "Build Info", choices::onOff, &N::buildInfo, 0, After::Nothing),
    chooser(ROW_BUTTON_TYPE, "Type", choices::buttonType, &N::subType, owType, After::Rebuild, true, editButtonType),
    chooser(ROW_TOGGLE_TYPE, "Type", choices::toggleType, &N::subType, owType, After::Rebuild, true, editToggleType),
    chooser(ROW_TEXT_TYPE, "Type", choices::textType, &N::subType, 0, After::Rebuild, true, editTextType),
    chooser(ROW_VALUE_TYPE, "Type", choices::valueType, &N::subType, 0, After::Rebuild, true, editValueType),
    chooser(ROW_ICON_TYPE, "Type", choices::iconType, &N::subType, 0, After::Rebuild, true),
    chooser(ROW_LIST_TYPE, "Type", choices::listType, &N::subType, 0, After::Rebuild, true),
    chooser(ROW_SLIDER_TYPE, "Type", choices::sliderType, &N::subType, 0, After::Rebuild, true, editSliderType),
    chooser(ROW_FRAME_TYPE, "Type", choices::frameType, &N::subType, 0, After::Rebuild, true),
    chooser(ROW_PROGRESS_TYPE, "Type", choices::progressType, &N::subType, 0, After::Rebuild, true),
    chooser(ROW_SEPARATOR_TYPE, "Type", choices::separatorType, &N::subType, 0, After::RebuildForm, true),
    {.id = ROW_ACCELERATOR, .label = "Accelerator", .cell = Cell::Text, .whole = &N::accel, .keyword = owAccel,
     .after = After::Redraw, .edit = editAccelerator},
    chooser(ROW_ALIGN, "Align", choices::leftCentreRight, &N::justify, owJustify, After::Redraw, true, editAlign),
    line(ROW_BUBBLE_HELP, "Bubble Help", &N::bubbleHelp, editBubbleHelp),
    chooser(ROW_BUBBLE_ALIGN, "Bubble Help Align", choices::leftCentreRight, &N::helpJustify, owHelpJustify,
            After::Redraw, true),
    colour(ROW_ON_COLOUR, "On Colour", &N::colour1, FACE, owOnCol),
    colour(ROW_OFF_COLOUR, "Off Colour", &N::colour2, FACE, owOffCol),
    colour(ROW_TEXT_COLOUR, "Text Colour", &N::colour3, TEXT, owTextCol),
    colour(ROW_INACTIVE_COLOUR, "Inactive Colour", &N::colour1, ENTRY, owOffCol),
    colour(ROW_ACTIVE_COLOUR, "Active Colour", &N::colour2, ENTRY, owOnCol),
    colour(ROW_LIST_ACTIVE_COLOUR, "Active Colour", &N::colour2, FACE, owOnCol),
    {.id = ROW_FONT_FACE, .label = "Font Face", .cell = Cell::EditableChoice, .text = &N::fontFace,
     .keyword = owFontFace, .after = After::Font, .edit = editFontFace},
    {.id = ROW_POINT_SIZE, .label = "Point Size", .cell = Cell::EditableChoice, .choices = choices::pointSize,
     .whole = &N::pointSize, .keyword = owPointSize, .after = After::Font, .edit = editPointSize},
    chooser(ROW_CHAR_SET, "Character Set", choices::charSet, &N::charSet, owCharSet, After::Font),
    chooser(ROW_BOLD, "Bold", choices::offOn, &N::bold, owBold, After::Font),
    chooser(ROW_ITALIC, "Italic", choices::offOn, &N::italic, owItalic, After::Font),
    chooser(ROW_UNDERLINE, "Underline", choices::offOn, &N::underline, owUnderline, After::Font),
    chooser(ROW_STRIKEOUT, "Strikeout", choices::offOn, &N::strikeout, owStrikeout, After::Font),
    chooser(ROW_DRAG, "Drag Mode", choices::offOn, &N::dragMode, 0, After::Nothing),
    chooser(ROW_TAB_LIST, "Tab List", choices::onOff, &N::tabList, owTabList, After::Nothing),
    chooser(ROW_INITIAL_STATUS, "Initial Status", choices::offOn, &N::initialStatus, 0, After::Nothing, false,
            editInitialStatus),
    number(ROW_TEXT_FIELD_WIDTH, "Field Width", &N::fieldWidth, {.width = 10}, editTextFieldWidth),
    number(ROW_VALUE_FIELD_WIDTH, "Field Width", &N::fieldWidth, {.width = 10, .minimum = 2, .maximum = 32},
           editValueFieldWidth),
    chooser(ROW_READ_ONLY, "Read Only", choices::falseTrue, &N::readOnly, owReadOnly, After::Nothing),
    chooser(ROW_SCROLL_BARS, "Scroll Bars", choices::scrollBars, &N::scrollMode, 0, After::Rebuild, false,
            editScrollBars),
    chooser(ROW_SCROLLABLE, "Scrollable", choices::offOn, nullptr, 0, After::Rebuild, false, editScrollable),
    chooser(ROW_BORDER, "Border", choices::border, &N::borderType, 0, After::Rebuild, true),
    chooser(ROW_ACTIVE_ON_INIT, "Active on Initialize", choices::offOn, &N::activeOnInit, 0, After::Nothing, false,
            editActiveOnInit),
    chooser(ROW_OLE, "Allow OLE embedding", choices::offOn, &N::oleInserts, 0, After::Rebuild),
    chooser(ROW_AUTO_URL, "Auto URL", choices::falseTrue, &N::autoUrl, owAutoURL, After::Rebuild),
    real(ROW_VALUE, "Value", &N::value, {}, editValue),
    real(ROW_VALUE_MINIMUM, "Minimum Value", &N::minValue, {.width = 20}, editMinimum),
    real(ROW_VALUE_MAXIMUM, "Maximum Value", &N::maxValue, {.width = 20}, editMaximum),
    number(ROW_DECIMALS, "Number of Decimal Places", &N::format, {.width = 2, .minimum = 0, .maximum = 8},
           editDecimals),
    chooser(ROW_SIGN, "Sign Type", choices::sign, &N::sign, 0, After::Rebuild, true, editSign),
    chooser(ROW_CONTENTS, "Contents", choices::contents, &N::contents, 0, After::Rebuild, true),
    button(ROW_ENTRIES, "Entries", nullptr, nullptr),
    chooser(ROW_LIST_SORTING, "Sorting", choices::listSorting, &N::sorted, 0, After::Rebuild, true),
    chooser(ROW_COMBO_SORTING, "Sorting", choices::comboSorting, &N::sorted, 0, After::Rebuild, true),
    chooser(ROW_LIST_STYLE, "Style", choices::listStyle, &N::approxSize, 0, After::Rebuild, true),
    {.id = ROW_DESCRIPTION_WIDTH, .label = "Description Width", .cell = Cell::Number, .whole = &N::fieldWidth,
     .number = {.width = 4, .minimum = 0, .maximum = 1024}, .after = After::Rebuild, .onlyChanges = true},
    chooser(ROW_DISPLAY_ICONS, "Display Icons", choices::offOn, &N::displayIcons, 0, After::Rebuild),
    chooser(ROW_EDITABLE, "Editable", choices::editable, &N::editMode, 0, After::Rebuild, true),
    real(ROW_SLIDER_VALUE, "Slider Value", &N::value, LIMIT, editClampedValue),
    real(ROW_SLIDER_MINIMUM, "Minimum Value", &N::minValue, LIMIT, editMinimum),
    real(ROW_SLIDER_MAXIMUM, "Maximum Value", &N::maxValue, LIMIT, editMaximum),
    real(ROW_STEP, "Step", &N::stepValue, {.width = 8, .decimals = 2}, editStep),
    chooser(ROW_PANEL_BOUNDARY, "Border Type", choices::boundary, &N::subType, 0, After::Rebuild, false,
            editPanelBoundary),
    chooser(ROW_RADIO_BOUNDARY, "Border Type", choices::boundary, &N::borderType, 0, After::Rebuild, false,
            editPanelBoundary),
    chooser(ROW_ARRAY_BOUNDARY, "Border Type", choices::boundary, &N::subType, 0, After::Rebuild),
    button(ROW_TAB_ICON, "Tab Icon", &N::closeIcon, editIcon),
    colour(ROW_FILL_COLOUR, "Fill Colour", &N::colour3, FACE, owFillCol),
    chooser(ROW_FILL_TO, "Fill To", choices::fill, &N::colour4, owFillBorder, After::Redraw),
    colour(ROW_BORDER_COLOUR, "Border Colour", &N::colour1, FACE, owLineCol),
    chooser(ROW_BORDER_POSITION, "Border Position", choices::fill, &N::colour2, owLineBorder, After::Redraw),
    real(ROW_X_MINIMUM, "Minimum X Limit", &N::xMin, LIMIT, nullptr, 0, After::Rebuild),
    real(ROW_X_MAXIMUM, "Maximum X Limit", &N::xMax, LIMIT, nullptr, 0, After::Rebuild),
    real(ROW_Y_MINIMUM, "Minimum Y Limit", &N::yMin, LIMIT, nullptr, 0, After::Rebuild),
    real(ROW_Y_MAXIMUM, "Maximum Y Limit", &N::yMax, LIMIT, nullptr, 0, After::Rebuild),
    number(ROW_COLUMNS, "Columns", &N::columns, COUNT, editCellCount),
    number(ROW_ROWS, "Rows", &N::rows, COUNT, editCellCount),
    {.id = ROW_X_LABELS, .label = "X Labels", .cell = Cell::EditableChoice, .text = &N::xLabels,
     .after = After::Rebuild, .edit = editArrayLabels},
    {.id = ROW_Y_LABELS, .label = "Y Labels", .cell = Cell::EditableChoice, .text = &N::yLabels,
     .after = After::Rebuild, .edit = editArrayLabels},
    line(ROW_COLUMN_LABELS, "Column Labels", &N::xLabels, editArrayLabels),
    number(ROW_X_LABELS_HEIGHT, "X Labels Height", &N::xLabelsHeight, COUNT, editLabelsSize),
    number(ROW_Y_LABELS_WIDTH, "Y Labels Width", &N::yLabelsWidth, COUNT, editLabelsSize),
    chooser(ROW_ALIGN_X_LABELS, "Align X Labels", choices::leftCentreRight, &N::alignXLabels, 0, After::Rebuild, false,
            editArrayChoice),
    chooser(ROW_ALIGN_Y_LABELS, "Align Y Labels", choices::leftCentreRight, &N::alignYLabels, 0, After::Rebuild, false,
            editArrayChoice),
    colour(ROW_LABELS_COLOUR, "Labels Background Colour", &N::colour1, 0, owAxisBackColour),
    colour(ROW_X_LABELS_COLOUR, "X Labels Colour", &N::colour3, 0, owXtextColour),
    colour(ROW_Y_LABELS_COLOUR, "Y Labels Colour", &N::colour4, 0, owYtextColour),
    colour(ROW_CELL_BACKGROUND, "Cell Background Colour", &N::cellBackground, 0, owGridBackColour, "#FFFFF0"),
    colour(ROW_CELL_BORDER, "Cell Border Colour", &N::cellBorder, 0, owCellBorderColour, "#D4D0C8"),
    chooser(ROW_LINE_STYLE, "Cell Border Linestyle", choices::lineStyle, &N::borderType, 0, After::Rebuild),
    colour(ROW_SELECTED_CELL, "Selected Cell Colour", &N::colour2, 0, owSelectedCellColour, "#641E1E"),
    chooser(ROW_TAB_ACTION, "Tab Action", choices::tabAction, &N::tabAction, owTabAction, After::Nothing),
    number(ROW_ICON_SIZE, "Icon Size", &N::iconSize, COUNT, nullptr, 0, After::RebuildForm),
    chooser(ROW_BAR_POSITION, "Initial Position", choices::barPosition, &N::initialPosition, 0, After::Redraw, true,
            editBarPosition),
    real(ROW_GAUGE_VALUE, "Gauge Value", &N::value, WHOLE, editClampedValue),
    real(ROW_GAUGE_MINIMUM, "Minimum Value", &N::minValue, WHOLE, editMinimum),
    real(ROW_GAUGE_MAXIMUM, "Maximum Value", &N::maxValue, WHOLE, editMaximum),
    number(ROW_TOP_TICKS, "Top Ticks", &N::topTicks, WHOLE, nullptr, owTicks1, After::Redraw),
    number(ROW_BOTTOM_TICKS, "Bottom Ticks", &N::bottomTicks, WHOLE, nullptr, owTicks2, After::Redraw),
    chooser(ROW_ACCESS_MODE, "Access Mode", choices::accessMode, &N::accessMode, 0, After::Nothing),
    real(ROW_PROGRESS_VALUE, "Progress Value", &N::value, WHOLE, editClampedValue),
    {.id = ROW_PROMPT, .label = "Prompt", .cell = Cell::Text, .text = &N::icon, .after = After::Rebuild},
    number(ROW_LINES, "Number of Lines", &N::size, COUNT, nullptr, 0, After::Rebuild),
    chooser(ROW_ICON_SET, "Icon Set", choices::iconSet, &N::subType, 0, After::Rebuild, true),
    button(ROW_CLOSE_ICON, "Close Icon", &N::closeIcon, editIcon),
    button(ROW_OPEN_ICON, "Open Icon", &N::openIcon, editIcon),
};
static_assert(std::size(ROWS) == ROW_COUNT);

} // namespace

const PropertyRow& propertyRow(RowId id) { return ROWS[id]; }
