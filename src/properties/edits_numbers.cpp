#include "properties/edits.h"

#include "menu-c.h"
#include "surface/field_text.h"
#include "surface/live.h"
#include "surface/state.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

namespace {

constexpr int DECIMAL_RESERVE = 2; // sign and point of a number beside its decimals

bool showsWholeNumbers(const WidgetNode& n) { return n.type == TYPE_GAUGE || n.type == TYPE_PROGRESS_BAR; }

void setLiveValue(const WidgetNode& node, float value) {
    switch (node.type) {
    case TYPE_SLIDER: owSetSliderValue(node.handle, static_cast<double>(value)); break;
    case TYPE_GAUGE: owSetGaugeValue(node.handle, static_cast<int>(value)); break;
    case TYPE_PROGRESS_BAR: owSetProgressValue(node.handle, static_cast<int>(value)); break;
    default: owSetValueSetting(node.handle, static_cast<double>(value)); break;
    }
}

// The limits of a live widget: whole numbers as properties, others with the rest of what is known of it.
void setLiveLimits(const WidgetNode& node) {
    if (node.handle <= 0) return;
    if (showsWholeNumbers(node)) {
        owSetWidgetProp(node.handle, owMinimum, static_cast<int>(node.minValue), owMaximum,
                        static_cast<int>(node.maxValue), 0);
        return;
    }
    OWIDGET info = {};
    setGridMode(project.gridMode);
    owEnqWidgetInfo(node.handle, &info);
    info.vmin = node.minValue;
    info.vmax = node.maxValue;
    owSetWidgetInfo(node.handle, &info);
    setGridMode(0);
}

// The value row follows new limits: entry and slider show what the live widget made of them, a gauge is brought inside,
// a progress bar only shows itself inside.
void followLimits(WidgetNode& node) {
    setLiveLimits(node);
    if (node.type == TYPE_VALUE_ENTRY) owEnqValueSetting(node.handle, &node.value);
    if (node.type == TYPE_SLIDER) owEnqSliderValue(node.handle, &node.value);
    const float inside = std::max(std::min(node.value, node.maxValue), node.minValue);
    if (node.type == TYPE_GAUGE) node.value = inside;
    if (showsWholeNumbers(node)) setLiveValue(node, inside);
    redrawLive(node);
    markEdited();
}

// Sizes of the columns of a live widget that is about to get `count` of them; rows likewise.
void resizeCells(WidgetNode& node, std::vector<int>& sizes, int count, int unit) {
    if (!design.defaultsMode) storeArrayGeometry(node);
    const int fresh = project.gridMode == 1 ? std::max(unit, 1) : unit;
    sizes.resize(std::max(count, 0), fresh);
}

} // namespace

void editTextFieldWidth(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    const int width = std::abs(static_cast<int>(input.number));
    const bool scrolls = target.type == TYPE_TEXT_ENTRY && target.fieldWidth < 0;
    target.fieldWidth = scrolls ? -width : width;
    if (!design.defaultsMode) storeFieldText(target, liveText(target, target.subType == ORICHEDIT));
    rebuildLive(target);
    markEdited();
}

void editValueFieldWidth(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    const int width = static_cast<int>(input.number);
    if (width < target.format + DECIMAL_RESERVE) return;
    target.fieldWidth = target.fieldWidth < 0 ? -width : width;
    setLiveValue(target, target.value);
    rebuildLive(target);
    markEdited();
}

void editDecimals(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    const int decimals = static_cast<int>(input.number);
    if (decimals > std::abs(target.fieldWidth) - DECIMAL_RESERVE) return;
    target.format = decimals;
    setLiveValue(target, target.value);
    rebuildLive(target);
    markEdited();
}

void editScrollable(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    const int width = std::abs(target.fieldWidth);
    target.fieldWidth = input.value ? -width : width;
    rebuildLive(target);
    markEdited();
}

void editSize(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    storeAndFollow(target, row, input);
    if (target.type == TYPE_TOGGLE) owSetToggleSwitch(target.handle, target.initialStatus);
}

void editStep(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    target.*row.real = static_cast<float>(input.number);
    if (target.handle > 0) {
        OWIDGET info = {};
        setGridMode(project.gridMode);
        owEnqWidgetInfo(target.handle, &info);
        info.step = target.stepValue;
        owSetWidgetInfo(target.handle, &info);
        setGridMode(0);
    }
    redrawLive(target);
    markEdited();
}

void editValue(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    target.value = static_cast<float>(input.number);
    if (target.handle > 0) {
        setLiveValue(target, target.value);
        owEnqValueSetting(target.handle, &target.value); // the widget keeps to its limits and decimals
        setLiveValue(target, target.value);
    }
    redrawLive(target);
    markEdited();
}

void editClampedValue(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    float value = static_cast<float>(input.number);
    value = std::min(value, target.maxValue);
    value = std::max(value, target.minValue);
    target.value = value;
    setLiveValue(target, value);
    redrawLive(target);
    markEdited();
}

void editMaximum(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    target.maxValue = static_cast<float>(input.number);
    if (target.minValue > target.maxValue)
        target.minValue = target.type == TYPE_SLIDER ? target.maxValue - 1 : target.maxValue;
    followLimits(target);
}

void editMinimum(WidgetNode& target, const PropertyRow&, const CellInput& input) {
    target.minValue = static_cast<float>(input.number);
    if (target.minValue > target.maxValue)
        target.maxValue = target.type == TYPE_SLIDER ? target.minValue + 1 : target.minValue;
    followLimits(target);
}

void editCellCount(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    const int count = static_cast<int>(input.number);
    if (count == target.*row.whole || count < 1) return;
    const bool grid = project.gridMode == 1 && !design.defaultsMode;
    if (row.id == ROW_COLUMNS)
        resizeCells(target, target.columnWidths, count, grid ? 2 : 2 * project.gridPixelX);
    else
        resizeCells(target, target.rowHeights, count, grid ? 1 : project.gridPixelY);
    target.*row.whole = count;
    replaceLive(target);
    markEdited();
}

void editLabelsSize(WidgetNode& target, const PropertyRow& row, const CellInput& input) {
    const int unit = project.gridMode == 1 ? project.gridPixelX : 1;
    target.*row.whole = static_cast<int>(input.number) * unit;
    if (!design.defaultsMode) storeArrayGeometry(target);
    rebuildLive(target);
    markEdited();
}
