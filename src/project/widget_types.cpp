#include "project/widget_types.h"

#include <algorithm>
#include <array>

namespace {

constexpr SlotCondition W = SLOT_ON_WINDOWS;

// clang-format off
constexpr OfferedSlot formSlots[] = {{SLOT_GENERAL}, {SLOT_SELECT}, {SLOT_DRAG_DROP, W},
    {SLOT_FILE_DROP, SLOT_ON_MASTER_MDI}, {SLOT_WINDOW_MOVED}, {SLOT_WINDOW_RESIZED}, {SLOT_WINDOW_QUIT},
    {SLOT_WINDOW_MINIMIZED}, {SLOT_WINDOW_SCROLLED}, {SLOT_WINDOW_LOST_FOCUS}};
constexpr OfferedSlot buttonSlots[] = {{SLOT_GENERAL}, {SLOT_SELECT}, {SLOT_MOVE}, {SLOT_DOUBLE_CLICK, W},
    {SLOT_DRAG_SELECT, W}, {SLOT_DRAG_MOVE, W}, {SLOT_DRAG_DROP, W}, {SLOT_FILE_DROP, W}};
constexpr OfferedSlot pointedSlots[] = {{SLOT_GENERAL}, {SLOT_SELECT}, {SLOT_MOVE}, {SLOT_DRAG_DROP, W}};
constexpr OfferedSlot textEntrySlots[] = {{SLOT_GENERAL}, {SLOT_SELECT}, {SLOT_MOVE}, {SLOT_CHANGE},
    {SLOT_DOUBLE_CLICK, W}, {SLOT_DRAG_DROP, W}, {SLOT_FILE_DROP, W}, {SLOT_HYPERLINK, W}};
constexpr OfferedSlot valueSlots[] = {{SLOT_GENERAL}, {SLOT_SELECT}, {SLOT_MOVE}, {SLOT_DRAG_DROP, W},
    {SLOT_VALUE_ERROR, W}};
constexpr OfferedSlot iconSlots[] = {{SLOT_GENERAL}, {SLOT_SELECT}, {SLOT_MOVE}, {SLOT_DOUBLE_CLICK, W},
    {SLOT_DRAG_SELECT, W}, {SLOT_DRAG_MOVE, W}, {SLOT_DRAG_DROP, W}};
constexpr OfferedSlot listSlots[] = {{SLOT_GENERAL}, {SLOT_SELECT}, {SLOT_CHANGE, W}, {SLOT_DOUBLE_CLICK, W},
    {SLOT_DRAG_DROP, W}, {SLOT_FILE_DROP, W}};
constexpr OfferedSlot sliderSlots[] = {{SLOT_GENERAL}, {SLOT_DRAG_DROP, W}};
constexpr OfferedSlot panelSlots[] = {{SLOT_GENERAL}, {SLOT_SELECT}, {SLOT_MOVE}, {SLOT_DOUBLE_CLICK, W},
    {SLOT_DRAG_DROP, W}, {SLOT_FILE_DROP, W}};
constexpr OfferedSlot chosenSlots[] = {{SLOT_GENERAL}, {SLOT_SELECT}, {SLOT_DRAG_DROP, W}};
constexpr OfferedSlot frameSlots[] = {{SLOT_GENERAL}, {SLOT_SELECT}, {SLOT_MOVE}, {SLOT_EXPOSE},
    {SLOT_DOUBLE_CLICK, W}, {SLOT_DRAG_DROP, W}, {SLOT_FILE_DROP, W}};
constexpr OfferedSlot arraySlots[] = {{SLOT_GENERAL}, {SLOT_SELECT}, {SLOT_CHANGE}, {SLOT_DOUBLE_CLICK, W},
    {SLOT_DRAG_DROP, W}};
constexpr OfferedSlot dockedSlots[] = {{SLOT_GENERAL}, {SLOT_DRAG_DROP, W}, {SLOT_WINDOW_MOVED},
    {SLOT_WINDOW_RESIZED}, {SLOT_WINDOW_QUIT}};
constexpr OfferedSlot tableSlots[] = {{SLOT_GENERAL}, {SLOT_DOUBLE_CLICK, W}, {SLOT_DRAG_DROP, W}};

constexpr bool ANY = false, WINDOWS = true;

const WidgetTypeRow table[] = {
    {TYPE_FORM, "Form", "", COUNTER_NONE, ANY, formSlots},
    {TYPE_MAIN_PANEL, "", "", COUNTER_NONE, ANY, {}},
    {TYPE_BUTTON, "Push Button", "Button", COUNTER_BUTTON, ANY, buttonSlots},
    {TYPE_TOGGLE, "Check Box", "Toggle", COUNTER_TOGGLE, ANY, pointedSlots},
    {TYPE_TEXT_ENTRY, "Text Entry", "Text", COUNTER_TEXT, ANY, textEntrySlots},
    {TYPE_TEXT_LABEL, "Text Label", "Text", COUNTER_TEXT, ANY, pointedSlots},
    {TYPE_VALUE_ENTRY, "Value Entry", "Value", COUNTER_VALUE, ANY, valueSlots},
    {TYPE_VALUE_LABEL, "Value Label", "Value", COUNTER_VALUE, ANY, valueSlots},
    {TYPE_ICON, "Icon", "Icon", COUNTER_ICON, ANY, iconSlots},
    {TYPE_LIST_BOX, "ListBox", "List", COUNTER_LIST, ANY, listSlots},
    {TYPE_SLIDER, "Slider", "Slider", COUNTER_SLIDER, ANY, sliderSlots},
    {TYPE_PANEL, "Panel", "Panel", COUNTER_PANEL, ANY, panelSlots},
    {TYPE_COMBO_BOX, "ComboBox", "Combo", COUNTER_COMBO, ANY, chosenSlots},
    {TYPE_RADIO_BOX, "", "Radio", COUNTER_RADIO, ANY, chosenSlots},
    {TYPE_GRAPHICS_FRAME, "Graphics Frame", "Graphics", COUNTER_GRAPHICS, ANY, frameSlots},
    {TYPE_TEXT_ARRAY, "Text Array", "TxtArray", COUNTER_TXT_ARRAY, WINDOWS, arraySlots},
    {TYPE_VALUE_ARRAY, "Value Array", "ValArray", COUNTER_VAL_ARRAY, WINDOWS, arraySlots},
    {TYPE_TOOL_BAR, "ToolBar", "ToolBar", COUNTER_TOOL_BAR, WINDOWS, dockedSlots},
    {TYPE_TAB_BOX, "Tabbed Dialogue Box", "TabDiaBox", COUNTER_TAB_DIA_BOX, WINDOWS, chosenSlots},
    {TYPE_GAUGE, "Gauge", "Gauge", COUNTER_GAUGE, WINDOWS, pointedSlots},
    {TYPE_PROGRESS_BAR, "Progress Bar", "Progress", COUNTER_PROGRESS, WINDOWS, {}},
    {TYPE_TTY_ENTRY, "TTY Entry", "TTYEntry", COUNTER_TTY_ENTRY, WINDOWS, chosenSlots},
    {TYPE_TREE_VIEW, "Treeview", "TreeView", COUNTER_TREE_VIEW, WINDOWS, {}},
    {TYPE_TABLE_BOX, "Table Box", "TableBox", COUNTER_TABLE_BOX, WINDOWS, tableSlots},
    {TYPE_TOOL_SEPARATOR, "Toolbar Separator", "ToolSep", COUNTER_TOOL_SEP, ANY, {}},
    {TYPE_PANE, "Pane", "Pane", COUNTER_PANE, WINDOWS, dockedSlots},
};
// clang-format on

} // namespace

std::span<const WidgetTypeRow> widgetTypes() { return table; }

const WidgetTypeRow* widgetType(int type) {
    const auto* row = std::find_if(std::begin(table), std::end(table), [&](const auto& r) { return r.type == type; });
    return row == std::end(table) ? nullptr : row;
}

const char* counterWord(Counter counter) {
    for (const WidgetTypeRow& row : table)
        if (row.counter == counter) return row.word;
    return "";
}
