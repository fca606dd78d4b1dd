#include "project/widget_types.h"

#include <algorithm>
#include <array>
#include <iterator>

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

// Holders of several kinds of widgets.
constexpr TypeSet ON_PANELS = TypeSet::allBut({TYPE_PANE, TYPE_TOOL_BAR});
constexpr TypeSet IN_FRAMES = {TYPE_PANEL, TYPE_TEXT_ENTRY, TYPE_TEXT_LABEL, TYPE_VALUE_ENTRY, TYPE_VALUE_LABEL};
constexpr TypeSet ON_BARS = {TYPE_BUTTON, TYPE_ICON, TYPE_COMBO_BOX, TYPE_TOOL_SEPARATOR};
constexpr TypeSet IN_PANES = {TYPE_TEXT_ENTRY, TYPE_LIST_BOX,  TYPE_PANEL,
                              TYPE_TAB_BOX,    TYPE_TREE_VIEW, TYPE_TABLE_BOX};

constexpr TypeCard cards[] = {
    {.type = TYPE_FORM, .code = 2001, .label = "Form", .defaultPlace = 1, .traits = IS_TITLED, .slots = formSlots},
    {.type = TYPE_MAIN_PANEL, .code = 2002, .takes = TypeSet::allBut({})},
    {.type = TYPE_BUTTON, .code = 2003, .label = "Push Button", .word = "Button", .counter = COUNTER_BUTTON,
     .noun = "button", .sizing = BY_ORIGIN, .defaultPlace = 7, .traits = HAS_HELP, .slots = buttonSlots},
    {.type = TYPE_TOGGLE, .code = 2005, .label = "Check Box", .word = "Toggle", .counter = COUNTER_TOGGLE,
     .noun = "toggle button", .sizing = WIDTH_GIVES_WAY, .defaultPlace = 8, .traits = HAS_HELP,
     .slots = pointedSlots},
    {.type = TYPE_TEXT_ENTRY, .code = 2006, .label = "Text Entry", .word = "Text", .counter = COUNTER_TEXT,
     .noun = "text widget", .nounFixed = "editable text entry", .sizing = BY_ORIGIN, .defaultPlace = 10,
     .traits = IS_TEXT | IS_EDITED | HAS_HELP | USERS_FIELD_WIDTH, .slots = textEntrySlots},
    {.type = TYPE_TEXT_LABEL, .code = 2007, .label = "Text Label", .word = "Text", .counter = COUNTER_TEXT,
     .noun = "text widget", .nounFixed = "text label", .sizing = BY_ORIGIN, .defaultPlace = 9,
     .traits = IS_TEXT | HAS_HELP | USERS_FIELD_WIDTH | ANSWERS_SELECT, .slots = pointedSlots},
    {.type = TYPE_VALUE_ENTRY, .code = 2008, .label = "Value Entry", .word = "Value", .counter = COUNTER_VALUE,
     .noun = "value entry", .nounFixed = "editable value entry", .sizing = WIDTH_GIVES_WAY, .defaultPlace = 13,
     .traits = IS_VALUE | IS_EDITED | HAS_HELP | USERS_FIELD_WIDTH, .slots = valueSlots},
    {.type = TYPE_VALUE_LABEL, .code = 2009, .label = "Value Label", .word = "Value", .counter = COUNTER_VALUE,
     .noun = "value entry", .nounFixed = "static value entry", .sizing = WIDTH_GIVES_WAY, .defaultPlace = 12,
     .traits = IS_VALUE | HAS_HELP | USERS_FIELD_WIDTH, .slots = valueSlots},
    {.type = TYPE_ICON, .code = 2010, .label = "Icon", .word = "Icon", .counter = COUNTER_ICON, .noun = "icon",
     .sizing = BY_ORIGIN, .defaultPlace = 16, .traits = HAS_HELP, .slots = iconSlots},
    {.type = TYPE_LIST_BOX, .code = 2012, .label = "ListBox", .word = "List", .counter = COUNTER_LIST,
     .noun = "list box", .sizing = LIST_BY_ORIGIN, .defaultPlace = 5,
     .traits = HAS_HELP | USERS_FIELD_WIDTH | ANSWERS_SELECT, .slots = listSlots},
    {.type = TYPE_SLIDER, .code = 2013, .label = "Slider", .word = "Slider", .counter = COUNTER_SLIDER,
     .noun = "slider", .sizing = BY_ORIGIN, .defaultPlace = 15, .traits = HAS_HELP, .slots = sliderSlots},
    {.type = TYPE_PANEL, .code = 2015, .label = "Panel", .word = "Panel", .counter = COUNTER_PANEL, .noun = "panel",
     .defaultPlace = 3, .traits = IS_TITLED | HAS_HELP, .takes = ON_PANELS, .slots = panelSlots},
    {.type = TYPE_COMBO_BOX, .code = 2016, .label = "ComboBox", .word = "Combo", .counter = COUNTER_COMBO,
     .noun = "combo box", .sizing = WIDTH_GIVES_WAY, .defaultPlace = 6,
     .traits = HAS_HELP | USERS_FIELD_WIDTH | ANSWERS_SELECT, .slots = chosenSlots},
    {.type = TYPE_RADIO_BOX, .code = 2017, .word = "Radio", .counter = COUNTER_RADIO, .noun = "radio box child",
     .sizing = BY_ORIGIN, .traits = IS_TITLED | HAS_HELP, .takes = {TYPE_TOGGLE}, .slots = chosenSlots},
    {.type = TYPE_GRAPHICS_FRAME, .code = 2018, .label = "Graphics Frame", .word = "Graphics",
     .counter = COUNTER_GRAPHICS, .noun = "graphics frame", .sizing = BY_ORIGIN, .defaultPlace = 17,
     .traits = HAS_HELP, .takes = IN_FRAMES, .slots = frameSlots},
    {.type = TYPE_TEXT_ARRAY, .code = 2022, .label = "Text Array", .word = "TxtArray", .counter = COUNTER_TXT_ARRAY,
     .noun = "text array", .sizing = BY_ORIGIN, .defaultPlace = 11, .onWindowsOnly = true,
     .traits = IS_ARRAY | HAS_CELLS | HAS_HELP | ANSWERS_SELECT, .slots = arraySlots},
    {.type = TYPE_VALUE_ARRAY, .code = 2023, .label = "Value Array", .word = "ValArray", .counter = COUNTER_VAL_ARRAY,
     .noun = "value array", .sizing = BY_ORIGIN, .defaultPlace = 14, .onWindowsOnly = true,
     .traits = IS_ARRAY | HAS_CELLS | HAS_HELP | ANSWERS_SELECT, .slots = arraySlots},
    {.type = TYPE_TOOL_BAR, .code = 2025, .label = "ToolBar", .word = "ToolBar", .counter = COUNTER_TOOL_BAR,
     .noun = "ToolBar", .defaultPlace = 4, .onWindowsOnly = true, .traits = IS_BAR_OR_PANE | IS_TITLED,
     .takes = ON_BARS, .slots = dockedSlots},
    {.type = TYPE_TAB_BOX, .code = 2027, .label = "Tabbed Dialogue Box", .word = "TabDiaBox",
     .counter = COUNTER_TAB_DIA_BOX, .noun = "tabdded dialogue box", .nounFixed = "tabbed dialogue box",
     .sizing = BY_ORIGIN, .defaultPlace = 2, .onWindowsOnly = true, .traits = ANSWERS_SELECT, .takes = {TYPE_PANEL},
     .slots = chosenSlots},
    {.type = TYPE_GAUGE, .code = 2028, .label = "Gauge", .word = "Gauge", .counter = COUNTER_GAUGE, .noun = "gauge",
     .sizing = BY_ORIGIN, .defaultPlace = 18, .onWindowsOnly = true, .traits = HAS_HELP, .slots = pointedSlots},
    {.type = TYPE_PROGRESS_BAR, .code = 2029, .label = "Progress Bar", .word = "Progress",
     .counter = COUNTER_PROGRESS, .noun = "progress bar", .sizing = BY_ORIGIN, .defaultPlace = 19,
     .onWindowsOnly = true, .traits = HAS_HELP},
    {.type = TYPE_TTY_ENTRY, .code = 2030, .label = "TTY Entry", .word = "TTYEntry", .counter = COUNTER_TTY_ENTRY,
     .noun = "TTY entry", .sizing = BY_ORIGIN, .defaultPlace = 20, .onWindowsOnly = true,
     .traits = HAS_HELP | ANSWERS_SELECT, .slots = chosenSlots},
    {.type = TYPE_TREE_VIEW, .code = 2031, .label = "Treeview", .word = "TreeView", .counter = COUNTER_TREE_VIEW,
     .noun = "tree view", .sizing = BY_ORIGIN, .defaultPlace = 21, .defaultSince = 40, .onWindowsOnly = true},
    {.type = TYPE_TABLE_BOX, .code = 2032, .label = "Table Box", .word = "TableBox", .counter = COUNTER_TABLE_BOX,
     .noun = "table box view", .sizing = BY_ORIGIN, .defaultPlace = 22, .defaultSince = 40, .onWindowsOnly = true,
     .traits = HAS_CELLS, .slots = tableSlots},
    {.type = TYPE_TOOL_SEPARATOR, .code = 2033, .label = "Toolbar Separator", .word = "ToolSep",
     .counter = COUNTER_TOOL_SEP, .noun = "ToolBar Separator", .defaultPlace = 23, .defaultSince = 50},
    {.type = TYPE_PANE, .code = 2034, .label = "Pane", .word = "Pane", .counter = COUNTER_PANE,
     .noun = "Docking Pane", .nounFixed = "", .defaultPlace = 24, .defaultSince = 70, .onWindowsOnly = true,
     .traits = IS_BAR_OR_PANE | IS_TITLED, .takes = IN_PANES, .slots = dockedSlots},
};
// clang-format on
static_assert(Missing<missingRow(cards)>::none);

constexpr TypeCard NO_CARD = {.code = 2000};

constexpr int FIRST_CODE = 2000, CODES = 35;
constexpr auto typesByCode = [] {
    std::array<WidgetType, CODES> types{};
    types.fill(TYPE_UNKNOWN);
    types[0] = TYPE_NONE;
    for (const TypeCard& card : cards) types[static_cast<std::size_t>(card.code - FIRST_CODE)] = card.type;
    return types;
}();

} // namespace

std::span<const TypeCard> typeCards() { return cards; }

const TypeCard& cardOf(WidgetType type) {
    const TypeCard* card = rowOf(cards, type);
    return card ? *card : NO_CARD;
}

WidgetType typeOfCode(int code) {
    const bool inRange = code >= FIRST_CODE && code < FIRST_CODE + CODES;
    return inRange ? typesByCode[static_cast<std::size_t>(code - FIRST_CODE)] : TYPE_UNKNOWN;
}

int codeOf(WidgetType type) { return cardOf(type).code; }

const char* counterWord(Counter counter) {
    const auto* card = std::ranges::find(cards, counter, &TypeCard::counter);
    return card == std::end(cards) ? "" : card->word;
}
