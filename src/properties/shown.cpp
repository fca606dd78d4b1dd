// What the cells of the property sheet show.
#include "platform/letters.h"
#include "project/widget_types.h"
#include "properties/rows.h"
#include "surface/live.h"
#include "surface/state.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr char NOT_USED[] = "NOT USED";

// Labels of arrays that the library writes itself.
struct LabelForm {
    const char* stored;
    const char* shown;
};
constexpr LabelForm LABEL_FORMS[] = {
    {"*digits", "Digits"}, {"*letters", "Letters"}, {"*months", "Months"}, {"*days", "Days"}};

// Of the state that a type starts in, most can be told only whether it is shown.
Choices stateChoices(WidgetType type) {
    constexpr TypeSet FOUR = {TYPE_BUTTON, TYPE_ICON, TYPE_PANEL};
    constexpr TypeSet THREE = {TYPE_TOGGLE,    TYPE_TEXT_ENTRY, TYPE_VALUE_ENTRY, TYPE_LIST_BOX,
                               TYPE_COMBO_BOX, TYPE_GAUGE,      TYPE_TTY_ENTRY};
    return FOUR.holds(type) ? choices::fourStates : THREE.holds(type) ? choices::threeStates : choices::hiddenVisible;
}

NumberFormat textFieldWidth(const WidgetNode& widget) {
    const bool standard = widget.subType == 0;
    const bool rich = widget.subType == 1;
    if (isSingleLine(widget) && !rich) return {.width = 10, .minimum = 0, .maximum = 255};
    if (!isSingleLine(widget) && standard) return {.width = 10, .minimum = 0, .maximum = 30000};
    return {.width = 10, .minimum = 256, .maximum = widget.type == TYPE_TEXT_ENTRY ? 32767.0 : 2147483648.0};
}

// The form's picture and colour are its main panel's, but for the default record, which has none.
const WidgetNode& painted(const WidgetNode& widget) {
    return widget.type == TYPE_FORM && !design.defaultsMode && widget.child ? *widget.child : widget;
}

} // namespace

const WidgetNode& targetOf(const WidgetNode& widget, const PropertyRow& row) {
    return row.ofTabBox && isTabPage(widget) ? *widget.parent : widget;
}
WidgetNode& targetOf(WidgetNode& widget, const PropertyRow& row) {
    return row.ofTabBox && isTabPage(widget) ? *widget.parent : widget;
}

Cell cellKind(const WidgetNode& widget, const PropertyRow& row) {
    if (row.id != ROW_TEXT) return row.cell;
    return isSingleLine(widget) && widget.subType != 1 ? Cell::Text : Cell::Button;
}

Choices choicesOf(const WidgetNode& widget, const PropertyRow& row) {
    switch (row.id) {
    case ROW_STATE: return stateChoices(widget.type);
    case ROW_TOGGLE_TYPE: return standsIn(widget, TYPE_RADIO_BOX) ? choices::radioType : choices::toggleType;
    case ROW_TEXT_TYPE:
        return widget.type == TYPE_TEXT_ENTRY && isSingleLine(widget) ? choices::textType : choices::textTypeMulti;
    case ROW_CHAR_SET: return isValue(widget) ? choices::valueCharSet : choices::charSet;
    default: return row.choices;
    }
}

NumberFormat numberFormat(const WidgetNode& widget, const PropertyRow& row) {
    switch (row.id) {
    case ROW_TEXT_FIELD_WIDTH: return textFieldWidth(widget);
    case ROW_VALUE: return {.width = std::abs(widget.fieldWidth), .decimals = widget.format};
    case ROW_VALUE_MINIMUM:
    case ROW_VALUE_MAXIMUM: return {.width = 20, .decimals = widget.format};
    default: return row.number;
    }
}

std::string shownText(const WidgetNode& widget, const PropertyRow& row) {
    switch (row.id) {
    case ROW_BUBBLE_HELP:
    case ROW_BUBBLE_ALIGN:
        if (project.projectPlatform != 'w' || widget.type == TYPE_LIST_BOX || widget.type == TYPE_SLIDER)
            return NOT_USED;
        break;
    case ROW_ACCELERATOR: return letterText(widget.accel > 0 ? static_cast<char32_t>(widget.accel) : 0);
    case ROW_SCROLLABLE: return widget.fieldWidth < 1 ? "On" : "Off";
    case ROW_FONT_FACE: return isTabPage(widget) ? widget.parent->fontFace : widget.fontFace;
    case ROW_POINT_SIZE: return std::to_string(isTabPage(widget) ? widget.parent->pointSize : widget.pointSize);
    case ROW_CHAR_SET:
        return labelOf(choicesOf(widget, row), isTabPage(widget) ? widget.parent->charSet : widget.charSet);
    case ROW_X_LABELS:
    case ROW_Y_LABELS: return shownArrayLabels(widget.*row.text);
    case ROW_BACKGROUND_IMAGE:
        return widget.type == TYPE_FORM && design.defaultsMode ? widget.backgroundImage : painted(widget).icon;
    default: break;
    }
    const WidgetNode& target = targetOf(widget, row);
    if (row.text) return target.*row.text;
    return row.whole ? labelOf(choicesOf(widget, row), target.*row.whole) : "";
}

double shownNumber(const WidgetNode& widget, const PropertyRow& row) {
    const WidgetNode& target = targetOf(widget, row);
    if (row.id == ROW_TEXT_FIELD_WIDTH || row.id == ROW_VALUE_FIELD_WIDTH) return std::abs(target.fieldWidth);
    if ((row.id == ROW_X_LABELS_HEIGHT || row.id == ROW_Y_LABELS_WIDTH) && project.gridMode == 1) {
        const int wholeCells = target.*row.whole / std::max(project.gridPixelX, 1);
        return wholeCells;
    }
    if (row.id == ROW_PROGRESS_VALUE) // as the bar shows it, which keeps a value that its limits have left behind
        return static_cast<double>(std::max(std::min(target.value, target.maxValue), target.minValue));
    if (row.real) return static_cast<double>(target.*row.real);
    return row.whole ? target.*row.whole : 0;
}

int shownColour(const WidgetNode& widget, const PropertyRow& row) {
    const bool tickedOff =
        row.id == ROW_OFF_COLOUR && widget.type == TYPE_TOGGLE && (widget.subType == 3 || widget.subType == 5);
    if (tickedOff) return row.colour;
    const int index = row.id == ROW_FORM_COLOUR ? painted(widget).colour3 : widget.*row.whole;
    return index != 0 ? index : row.colour;
}

std::string shownArrayLabels(const std::string& stored) {
    const auto form = std::ranges::find(LABEL_FORMS, stored, &LabelForm::stored);
    return form == std::end(LABEL_FORMS) ? stored : form->shown;
}

std::string storedArrayLabels(const std::string& shown) {
    const auto form = std::ranges::find(LABEL_FORMS, shown, &LabelForm::shown);
    return form == std::end(LABEL_FORMS) ? shown : form->stored;
}
