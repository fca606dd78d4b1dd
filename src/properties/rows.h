// The rows of the property sheet as tables: what each row shows, which field it edits, when it is grey, and which rows
// each type of widget has.
#pragma once

#include "project/records.h"
#include "properties/choices.h"

#include <string>
#include <vector>

enum class Cell { Text, Button, Choice, EditableChoice, Number, Colour };

enum RowId : int {
    ROW_NAME,
    ROW_FORM_TYPE,
    ROW_LABEL,
    ROW_TITLE,
    ROW_BAR_TITLE,
    ROW_TEXT,
    ROW_FORM_TITLE_BAR,
    ROW_BAR_TITLE_BAR,
    ROW_ICON,
    ROW_QUIT_MODE,
    ROW_XPOS,
    ROW_YPOS,
    ROW_WIDTH,
    ROW_HEIGHT,
    ROW_SIZE,
    ROW_HORIZONTAL,
    ROW_VERTICAL,
    ROW_EXPAND,
    ROW_BACKGROUND_IMAGE,
    ROW_FORM_COLOUR,
    ROW_BACK_COLOUR,
    ROW_SLIDER_COLOUR,
    ROW_FORM_STATE,
    ROW_STATE,
    ROW_BUILD_INFO,
    ROW_BUTTON_TYPE,
    ROW_TOGGLE_TYPE,
    ROW_TEXT_TYPE,
    ROW_VALUE_TYPE,
    ROW_ICON_TYPE,
    ROW_LIST_TYPE,
    ROW_SLIDER_TYPE,
    ROW_FRAME_TYPE,
    ROW_PROGRESS_TYPE,
    ROW_SEPARATOR_TYPE,
    ROW_ACCELERATOR,
    ROW_ALIGN,
    ROW_BUBBLE_HELP,
    ROW_BUBBLE_ALIGN,
    ROW_ON_COLOUR,
    ROW_OFF_COLOUR,
    ROW_TEXT_COLOUR,
    ROW_INACTIVE_COLOUR,
    ROW_ACTIVE_COLOUR,
    ROW_LIST_ACTIVE_COLOUR,
    ROW_FONT_FACE,
    ROW_POINT_SIZE,
    ROW_CHAR_SET,
    ROW_BOLD,
    ROW_ITALIC,
    ROW_UNDERLINE,
    ROW_STRIKEOUT,
    ROW_DRAG,
    ROW_TAB_LIST,
    ROW_INITIAL_STATUS,
    ROW_TEXT_FIELD_WIDTH,
    ROW_VALUE_FIELD_WIDTH,
    ROW_READ_ONLY,
    ROW_SCROLL_BARS,
    ROW_SCROLLABLE,
    ROW_BORDER,
    ROW_ACTIVE_ON_INIT,
    ROW_OLE,
    ROW_AUTO_URL,
    ROW_VALUE,
    ROW_VALUE_MINIMUM,
    ROW_VALUE_MAXIMUM,
    ROW_DECIMALS,
    ROW_SIGN,
    ROW_CONTENTS,
    ROW_ENTRIES,
    ROW_LIST_SORTING,
    ROW_COMBO_SORTING,
    ROW_LIST_STYLE,
    ROW_DESCRIPTION_WIDTH,
    ROW_DISPLAY_ICONS,
    ROW_EDITABLE,
    ROW_SLIDER_VALUE,
    ROW_SLIDER_MINIMUM,
    ROW_SLIDER_MAXIMUM,
    ROW_STEP,
    ROW_PANEL_BOUNDARY,
    ROW_RADIO_BOUNDARY,
    ROW_ARRAY_BOUNDARY,
    ROW_TAB_ICON,
    ROW_FILL_COLOUR,
    ROW_FILL_TO,
    ROW_BORDER_COLOUR,
    ROW_BORDER_POSITION,
    ROW_X_MINIMUM,
    ROW_X_MAXIMUM,
    ROW_Y_MINIMUM,
    ROW_Y_MAXIMUM,
    ROW_COLUMNS,
    ROW_ROWS,
    ROW_X_LABELS,
    ROW_Y_LABELS,
    ROW_COLUMN_LABELS,
    ROW_X_LABELS_HEIGHT,
    ROW_Y_LABELS_WIDTH,
    ROW_ALIGN_X_LABELS,
    ROW_ALIGN_Y_LABELS,
    ROW_LABELS_COLOUR,
    ROW_X_LABELS_COLOUR,
    ROW_Y_LABELS_COLOUR,
    ROW_CELL_BACKGROUND,
    ROW_CELL_BORDER,
    ROW_LINE_STYLE,
    ROW_SELECTED_CELL,
    ROW_TAB_ACTION,
    ROW_ICON_SIZE,
    ROW_BAR_POSITION,
    ROW_GAUGE_VALUE,
    ROW_GAUGE_MINIMUM,
    ROW_GAUGE_MAXIMUM,
    ROW_TOP_TICKS,
    ROW_BOTTOM_TICKS,
    ROW_ACCESS_MODE,
    ROW_PROGRESS_VALUE,
    ROW_PROMPT,
    ROW_LINES,
    ROW_ICON_SET,
    ROW_CLOSE_ICON,
    ROW_OPEN_ICON,
    ROW_COUNT
};

// What follows on the surface once the record holds the new value and, if the row has a keyword, so does the live
// widget.
enum class After { Nothing, Redraw, Rebuild, RebuildForm, Font };

struct NumberFormat {
    int width = 0; // characters
    int decimals = 0;
    double minimum = 0;
    double maximum = 0; // no limits when it isn't above minimum
};

// A new value as it comes from a cell.
struct CellInput {
    std::string text;
    double number = 0;
    int value = 0; // of the chosen entry
};

struct PropertyRow {
    RowId id;
    const char* label;
    Cell cell;
    Choices choices = {};
    int WidgetNode::*whole = nullptr; // the field, one of the three
    float WidgetNode::*real = nullptr;
    std::string WidgetNode::*text = nullptr;
    NumberFormat number = {};
    int colour = 0;         // colour index shown while the field holds 0
    const char* unset = ""; // text of a colour cell while the field holds 0
    int keyword = 0;        // property of the live widget, AS_CREATED for the one that its creation told the field by
    After after = After::Nothing;
    bool onlyChanges = false; // choosing the stored value again does nothing at all
    bool ofTabBox = false;    // on a panel in a tab box, the box is shown and edited
    void (*edit)(WidgetNode& target, const PropertyRow& row,
                 const CellInput& input) = nullptr; // null: store and follow

    static constexpr int AS_CREATED = -1;
};

const PropertyRow& propertyRow(RowId id);

// The rows of a widget in their order; none for a type that has no sheet.
std::vector<RowId> sheetOf(const WidgetNode& widget);

// What depends on the state of the widget.
bool isGrey(const WidgetNode& widget, const PropertyRow& row);
Cell cellKind(const WidgetNode& widget, const PropertyRow& row);
Choices choicesOf(const WidgetNode& widget, const PropertyRow& row);
NumberFormat numberFormat(const WidgetNode& widget, const PropertyRow& row);

// What a cell shows: the text of text, button and choice cells, the number, the index of a colour cell.
std::string shownText(const WidgetNode& widget, const PropertyRow& row);
double shownNumber(const WidgetNode& widget, const PropertyRow& row);
int shownColour(const WidgetNode& widget, const PropertyRow& row);

// The record that a row shows and edits: the widget, or the tab box that it is a page of.
WidgetNode& targetOf(WidgetNode& widget, const PropertyRow& row);
const WidgetNode& targetOf(const WidgetNode& widget, const PropertyRow& row);

int originCode(const WidgetNode& widget); // 0 bottom left, 4 centre, 8 top right

// Labels of arrays: "Digits", "Letters", "Months" and "Days" are stored under names of the library, other texts as
// typed.
std::string shownArrayLabels(const std::string& stored);
std::string storedArrayLabels(const std::string& shown);
