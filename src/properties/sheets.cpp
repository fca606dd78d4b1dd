// Which rows each type of widget has, in their order, and when a row is left out or grey.
#include "project/widget_types.h"
#include "properties/rows.h"
#include "surface/live.h"
#include "surface/state.h"

#include <algorithm>

namespace {

// Rows that stand together on many sheets; a sheet names a group by its first row.
const RowId BUBBLE[] = {ROW_BUBBLE_HELP, ROW_BUBBLE_ALIGN};
const RowId POSITION[] = {ROW_XPOS, ROW_YPOS, ROW_WIDTH, ROW_HEIGHT};
const RowId ORIGIN[] = {ROW_HORIZONTAL, ROW_VERTICAL};
const RowId FONT[] = {ROW_FONT_FACE, ROW_POINT_SIZE, ROW_CHAR_SET};
const RowId STYLE[] = {ROW_BOLD, ROW_ITALIC, ROW_UNDERLINE, ROW_STRIKEOUT};
const RowId FILL[] = {ROW_FILL_COLOUR, ROW_FILL_TO, ROW_BORDER_COLOUR, ROW_BORDER_POSITION};
const RowId ENTRY_COLOURS[] = {ROW_INACTIVE_COLOUR, ROW_ACTIVE_COLOUR, ROW_TEXT_COLOUR};
const RowId BUTTON_COLOURS[] = {ROW_ON_COLOUR, ROW_OFF_COLOUR, ROW_TEXT_COLOUR};

const std::span<const RowId> GROUPS[] = {BUBBLE, POSITION, ORIGIN, FONT, STYLE, FILL, ENTRY_COLOURS, BUTTON_COLOURS};

struct Sheet {
    WidgetType type;
    std::initializer_list<RowId> rows;
};

// A row that begins a group stands for the whole group.
constexpr std::initializer_list<RowId> ARRAY_ROWS = {ROW_NAME,
                                                     ROW_ARRAY_BOUNDARY,
                                                     ROW_COLUMNS,
                                                     ROW_ROWS,
                                                     ROW_X_LABELS,
                                                     ROW_Y_LABELS,
                                                     ROW_X_LABELS_HEIGHT,
                                                     ROW_Y_LABELS_WIDTH,
                                                     ROW_ALIGN_X_LABELS,
                                                     ROW_ALIGN_Y_LABELS,
                                                     ROW_SCROLL_BARS,
                                                     ROW_ACTIVE_ON_INIT,
                                                     ROW_BUBBLE_HELP,
                                                     ROW_XPOS,
                                                     ROW_HORIZONTAL,
                                                     ROW_EXPAND,
                                                     ROW_LABELS_COLOUR,
                                                     ROW_X_LABELS_COLOUR,
                                                     ROW_Y_LABELS_COLOUR,
                                                     ROW_CELL_BACKGROUND,
                                                     ROW_CELL_BORDER,
                                                     ROW_LINE_STYLE,
                                                     ROW_SELECTED_CELL,
                                                     ROW_FONT_FACE,
                                                     ROW_BOLD,
                                                     ROW_READ_ONLY,
                                                     ROW_TAB_ACTION,
                                                     ROW_TAB_LIST,
                                                     ROW_STATE};
constexpr Sheet SHEETS[] = {
    {TYPE_FORM,
     {ROW_NAME, ROW_FORM_TYPE, ROW_TITLE, ROW_FORM_TITLE_BAR, ROW_ICON, ROW_QUIT_MODE, ROW_XPOS, ROW_HORIZONTAL,
      ROW_BACKGROUND_IMAGE, ROW_FORM_COLOUR, ROW_FORM_STATE, ROW_BUILD_INFO}},
    {TYPE_MAIN_PANEL, {}}, // never selected
    {TYPE_BUTTON,
     {ROW_NAME, ROW_BUTTON_TYPE, ROW_LABEL, ROW_ACCELERATOR, ROW_ALIGN, ROW_BUBBLE_HELP, ROW_XPOS, ROW_SIZE,
      ROW_HORIZONTAL, ROW_EXPAND, ROW_ON_COLOUR, ROW_FONT_FACE, ROW_BOLD, ROW_DRAG, ROW_TAB_LIST, ROW_STATE}},
    {TYPE_TOGGLE,
     {ROW_NAME, ROW_TOGGLE_TYPE, ROW_INITIAL_STATUS, ROW_LABEL, ROW_ACCELERATOR, ROW_BUBBLE_HELP, ROW_XPOS, ROW_SIZE,
      ROW_HORIZONTAL, ROW_ON_COLOUR, ROW_FONT_FACE, ROW_BOLD, ROW_TAB_LIST, ROW_STATE}},
    {TYPE_TEXT_ENTRY,
     {ROW_NAME,
      ROW_TEXT_TYPE,
      ROW_TEXT,
      ROW_TEXT_FIELD_WIDTH,
      ROW_ALIGN,
      ROW_READ_ONLY,
      ROW_SCROLL_BARS,
      ROW_SCROLLABLE,
      ROW_BORDER,
      ROW_ACTIVE_ON_INIT,
      ROW_BUBBLE_HELP,
      ROW_XPOS,
      ROW_SIZE,
      ROW_HORIZONTAL,
      ROW_EXPAND,
      ROW_OLE,
      ROW_INACTIVE_COLOUR,
      ROW_FONT_FACE,
      ROW_BOLD,
      ROW_AUTO_URL,
      ROW_TAB_LIST,
      ROW_STATE}},
    {TYPE_TEXT_LABEL,
     {ROW_NAME, ROW_TEXT_TYPE, ROW_TEXT, ROW_TEXT_FIELD_WIDTH, ROW_ALIGN, ROW_BORDER, ROW_SCROLL_BARS, ROW_BUBBLE_HELP,
      ROW_XPOS, ROW_SIZE, ROW_HORIZONTAL, ROW_EXPAND, ROW_BACK_COLOUR, ROW_TEXT_COLOUR, ROW_FONT_FACE, ROW_BOLD,
      ROW_AUTO_URL, ROW_STATE}},
    {TYPE_VALUE_ENTRY,
     {ROW_NAME,        ROW_VALUE_TYPE, ROW_VALUE,     ROW_VALUE_MINIMUM, ROW_VALUE_MAXIMUM, ROW_VALUE_FIELD_WIDTH,
      ROW_DECIMALS,    ROW_SIGN,       ROW_READ_ONLY, ROW_SCROLLABLE,    ROW_BORDER,        ROW_ACTIVE_ON_INIT,
      ROW_BUBBLE_HELP, ROW_XPOS,       ROW_SIZE,      ROW_HORIZONTAL,    ROW_EXPAND,        ROW_INACTIVE_COLOUR,
      ROW_FONT_FACE,   ROW_BOLD,       ROW_TAB_LIST,  ROW_STATE}},
    {TYPE_VALUE_LABEL,
     {ROW_NAME, ROW_VALUE_TYPE, ROW_VALUE, ROW_VALUE_FIELD_WIDTH, ROW_DECIMALS, ROW_ALIGN, ROW_SIGN, ROW_BUBBLE_HELP,
      ROW_XPOS, ROW_SIZE, ROW_HORIZONTAL, ROW_EXPAND, ROW_BACK_COLOUR, ROW_TEXT_COLOUR, ROW_FONT_FACE, ROW_BOLD,
      ROW_STATE}},
    {TYPE_ICON,
     {ROW_NAME, ROW_ICON_TYPE, ROW_ICON, ROW_BUBBLE_HELP, ROW_LABEL, ROW_XPOS, ROW_SIZE, ROW_HORIZONTAL, ROW_EXPAND,
      ROW_FONT_FACE, ROW_BOLD, ROW_DRAG, ROW_TAB_LIST, ROW_STATE}},
    {TYPE_LIST_BOX,
     {ROW_NAME, ROW_CONTENTS, ROW_ENTRIES, ROW_LIST_TYPE, ROW_LIST_SORTING, ROW_LIST_STYLE, ROW_DESCRIPTION_WIDTH,
      ROW_BUBBLE_HELP, ROW_XPOS, ROW_HORIZONTAL, ROW_EXPAND, ROW_BACK_COLOUR, ROW_LIST_ACTIVE_COLOUR, ROW_TEXT_COLOUR,
      ROW_FONT_FACE, ROW_BOLD, ROW_DISPLAY_ICONS, ROW_TAB_LIST, ROW_STATE}},
    {TYPE_SLIDER,
     {ROW_NAME, ROW_SLIDER_TYPE, ROW_SLIDER_VALUE, ROW_SLIDER_MINIMUM, ROW_SLIDER_MAXIMUM, ROW_STEP, ROW_BUBBLE_HELP,
      ROW_XPOS, ROW_SIZE, ROW_HORIZONTAL, ROW_EXPAND, ROW_SLIDER_COLOUR, ROW_STATE}},
    {TYPE_PANEL,
     {ROW_NAME, ROW_PANEL_BOUNDARY, ROW_SCROLL_BARS, ROW_TITLE, ROW_BUBBLE_HELP, ROW_XPOS, ROW_HORIZONTAL, ROW_EXPAND,
      ROW_BACKGROUND_IMAGE, ROW_TAB_ICON, ROW_FILL_COLOUR, ROW_FONT_FACE, ROW_TAB_LIST, ROW_STATE}},
    {TYPE_COMBO_BOX,
     {ROW_NAME, ROW_CONTENTS, ROW_ENTRIES, ROW_EDITABLE, ROW_COMBO_SORTING, ROW_DESCRIPTION_WIDTH, ROW_BUBBLE_HELP,
      ROW_XPOS, ROW_HORIZONTAL, ROW_EXPAND, ROW_FONT_FACE, ROW_BOLD, ROW_DISPLAY_ICONS, ROW_TAB_LIST, ROW_STATE}},
    {TYPE_RADIO_BOX,
     {ROW_NAME, ROW_TITLE, ROW_RADIO_BOUNDARY, ROW_BUBBLE_HELP, ROW_XPOS, ROW_HORIZONTAL, ROW_EXPAND, ROW_FILL_COLOUR,
      ROW_FONT_FACE, ROW_STATE}},
    {TYPE_GRAPHICS_FRAME,
     {ROW_NAME, ROW_FRAME_TYPE, ROW_X_MINIMUM, ROW_X_MAXIMUM, ROW_Y_MINIMUM, ROW_Y_MAXIMUM, ROW_BUBBLE_HELP, ROW_XPOS,
      ROW_HORIZONTAL, ROW_EXPAND, ROW_STATE}},
    {TYPE_TEXT_ARRAY, ARRAY_ROWS},
    {TYPE_VALUE_ARRAY, ARRAY_ROWS},
    {TYPE_TOOL_BAR,
     {ROW_NAME, ROW_BAR_TITLE, ROW_ICON_SIZE, ROW_BAR_POSITION, ROW_BAR_TITLE_BAR, ROW_QUIT_MODE, ROW_XPOS, ROW_STATE}},
    {TYPE_TAB_BOX, {ROW_NAME, ROW_XPOS, ROW_HORIZONTAL, ROW_EXPAND, ROW_FONT_FACE, ROW_STATE}},
    {TYPE_GAUGE,
     {ROW_NAME, ROW_ICON, ROW_GAUGE_VALUE, ROW_GAUGE_MINIMUM, ROW_GAUGE_MAXIMUM, ROW_TOP_TICKS, ROW_BOTTOM_TICKS,
      ROW_ACCESS_MODE, ROW_BUBBLE_HELP, ROW_XPOS, ROW_HORIZONTAL, ROW_EXPAND, ROW_TAB_LIST, ROW_STATE}},
    {TYPE_PROGRESS_BAR,
     {ROW_NAME, ROW_PROGRESS_TYPE, ROW_PROGRESS_VALUE, ROW_GAUGE_MINIMUM, ROW_GAUGE_MAXIMUM, ROW_XPOS, ROW_HORIZONTAL,
      ROW_EXPAND}},
    {TYPE_TTY_ENTRY,
     {ROW_NAME, ROW_PROMPT, ROW_LINES, ROW_BUBBLE_HELP, ROW_READ_ONLY, ROW_XPOS, ROW_HORIZONTAL, ROW_EXPAND,
      ROW_INACTIVE_COLOUR, ROW_FONT_FACE, ROW_BOLD, ROW_STATE}},
    {TYPE_TREE_VIEW,
     {ROW_NAME, ROW_ENTRIES, ROW_ICON_SET, ROW_XPOS, ROW_HORIZONTAL, ROW_EXPAND, ROW_FONT_FACE, ROW_BOLD, ROW_STATE,
      ROW_ICON, ROW_CLOSE_ICON, ROW_OPEN_ICON}},
    {TYPE_TABLE_BOX,
     {ROW_NAME, ROW_COLUMNS, ROW_COLUMN_LABELS, ROW_ACTIVE_ON_INIT, ROW_XPOS, ROW_HORIZONTAL, ROW_EXPAND, ROW_FONT_FACE,
      ROW_BOLD, ROW_STATE}},
    {TYPE_TOOL_SEPARATOR, {ROW_NAME, ROW_SEPARATOR_TYPE}},
    {TYPE_PANE, {ROW_NAME, ROW_BAR_TITLE, ROW_BAR_POSITION, ROW_BAR_TITLE_BAR, ROW_QUIT_MODE, ROW_XPOS, ROW_STATE}},
};
static_assert(Missing<missingRow(SHEETS)>::none);

// ---- What the rules ask about a widget.

bool always(const WidgetNode&) { return true; }
bool inDefaults(const WidgetNode&) { return design.defaultsMode != 0; }
bool offWindows(const WidgetNode&) { return project.projectPlatform != 'w'; }
bool offWindowsInProject(const WidgetNode& n) { return offWindows(n) && !inDefaults(n); }
bool onToolBar(const WidgetNode& n) { return n.onToolbar != 0; }
bool tabPageInProject(const WidgetNode& n) { return isTabPage(n) && !inDefaults(n); }
bool noTabPage(const WidgetNode& n) { return !isTabPage(n); }
bool noBuildInfo(const WidgetNode& n) { return !isMaster(n) || offWindows(n) || inDefaults(n); }
bool plainButton(const WidgetNode& n) { return n.subType != 1; }
bool plainButtonOffBar(const WidgetNode& n) { return plainButton(n) && !onToolBar(n); }
bool modernToggle(const WidgetNode& n) { return n.subType == 6 || n.subType == 7; }
bool ticked(const WidgetNode& n) { return n.subType == 3 || n.subType == 5; }
bool singleLine(const WidgetNode& n) { return isSingleLine(n); }
bool multiLine(const WidgetNode& n) { return !isSingleLine(n); }
bool rich(const WidgetNode& n) { return n.subType == 1; }
bool notRich(const WidgetNode& n) { return n.subType != 1; }
bool singleLineNotRich(const WidgetNode& n) { return singleLine(n) && notRich(n); }
bool unlabelled(const WidgetNode& n) { return n.text.empty(); }
bool systemContents(const WidgetNode& n) { return n.contents != 0; }
bool scrolls(const WidgetNode& n) { return n.scrollMode != -1; }
bool ownIconsOff(const WidgetNode& n) { return n.subType != 3; }
bool docked(const WidgetNode& n) { return n.initialPosition != 4; }
int boundaryOf(const WidgetNode& n) { return n.type == TYPE_RADIO_BOX ? n.borderType : n.subType; }
bool noBoundary(const WidgetNode& n) { return boundaryOf(n) == 0; }
bool noLine(const WidgetNode& n) { return boundaryOf(n) != 1 && boundaryOf(n) != 2; }

// Origins: 1 and 7 are centred across, 3 and 5 halfway up, 4 is the middle of the parent.
const WidgetNode& box(const WidgetNode& n) { return isTabPage(n) ? *n.parent : n; }
bool acrossOf(int origin) { return origin == 1 || origin == 7 || origin == 4; }
bool uprightOf(int origin) { return origin == 3 || origin == 5 || origin == 4; }
bool centredAcross(const WidgetNode& n) { return acrossOf(originCode(box(n))); }
bool centredUpright(const WidgetNode& n) { return uprightOf(originCode(box(n))); }
bool cornered(const WidgetNode& n) { return !centredAcross(n) && !centredUpright(n); }
bool fillsAcross(const WidgetNode& n) { return centredAcross(n) && box(n).expand != 0; }
bool fillsUpright(const WidgetNode& n) { return centredUpright(n) && box(n).expand != 0; }
bool besideTheMiddle(const WidgetNode& n) { return originCode(n) == 3 || originCode(n) == 5; }
bool comboKeepsSize(const WidgetNode& n) { return originCode(n) != 1 && originCode(n) != 7; }
bool comboFillsAcross(const WidgetNode& n) { return !comboKeepsSize(n) && n.expand != 0; }

struct GreyRule {
    int type; // 0 for every type that has the row and no rule of its own kind elsewhere
    std::vector<RowId> rows;
    bool (*when)(const WidgetNode&);
};

const std::vector<RowId> FONT_ROWS = {ROW_FONT_FACE, ROW_POINT_SIZE, ROW_CHAR_SET};
const std::vector<RowId> STYLE_ROWS = {ROW_BOLD, ROW_ITALIC, ROW_UNDERLINE, ROW_STRIKEOUT};
const std::vector<RowId> FONT_AND_STYLE = {ROW_FONT_FACE, ROW_POINT_SIZE, ROW_CHAR_SET, ROW_BOLD,
                                           ROW_ITALIC,    ROW_UNDERLINE,  ROW_STRIKEOUT};

const GreyRule GREY_RULES[] = {
    {0,
     {ROW_NAME, ROW_LABEL, ROW_TITLE, ROW_BAR_TITLE, ROW_TEXT, ROW_FORM_TYPE, ROW_FORM_STATE, ROW_STATE},
     inDefaults},
    {0, {ROW_XPOS, ROW_YPOS, ROW_BUBBLE_HELP, ROW_ENTRIES}, inDefaults},
    {0, {ROW_BUBBLE_HELP, ROW_BUBBLE_ALIGN, ROW_TAB_LIST, ROW_BACKGROUND_IMAGE}, offWindows},
    {0, FONT_AND_STYLE, offWindows},
    {0, {ROW_SCROLL_BARS, ROW_DRAG}, offWindowsInProject},
    {0, {ROW_SCROLL_BARS}, tabPageInProject},
    {0, {ROW_TEXT_TYPE, ROW_SCROLLABLE, ROW_BORDER, ROW_AUTO_URL}, offWindows},
    {0, {ROW_LIST_STYLE, ROW_DESCRIPTION_WIDTH, ROW_DISPLAY_ICONS, ROW_FRAME_TYPE, ROW_TAB_ACTION}, offWindows},
    {0, {ROW_ENTRIES}, systemContents},
    {TYPE_FORM, {ROW_QUIT_MODE}, inDefaults},
    {TYPE_FORM, {ROW_QUIT_MODE}, isMaster},
    {TYPE_FORM, {ROW_BUILD_INFO}, noBuildInfo},
    {TYPE_LIST_BOX, {ROW_BUBBLE_HELP, ROW_BUBBLE_ALIGN}, always},
    {TYPE_SLIDER, {ROW_BUBBLE_HELP, ROW_BUBBLE_ALIGN}, always},
    {TYPE_BUTTON, {ROW_ON_COLOUR, ROW_OFF_COLOUR, ROW_TEXT_COLOUR}, plainButtonOffBar},
    {TYPE_BUTTON, {ROW_ALIGN}, plainButton},
    {TYPE_BUTTON,
     {ROW_XPOS, ROW_YPOS, ROW_WIDTH, ROW_HEIGHT, ROW_HORIZONTAL, ROW_VERTICAL, ROW_EXPAND, ROW_ACCELERATOR,
      ROW_BUTTON_TYPE, ROW_SIZE},
     onToolBar},
    {TYPE_TOGGLE, {ROW_ON_COLOUR, ROW_OFF_COLOUR, ROW_TEXT_COLOUR}, modernToggle},
    {TYPE_TOGGLE, {ROW_OFF_COLOUR}, ticked},
    {TYPE_TEXT_ENTRY, {ROW_ALIGN}, always},
    {TYPE_TEXT_ENTRY, {ROW_READ_ONLY}, offWindows},
    {TYPE_VALUE_ENTRY, {ROW_READ_ONLY}, offWindows},
    {TYPE_VALUE_ENTRY, {ROW_EXPAND}, besideTheMiddle}, // it grows across alone
    {TYPE_VALUE_LABEL, {ROW_EXPAND}, besideTheMiddle},
    {TYPE_TEXT_ENTRY, {ROW_SCROLL_BARS}, singleLine},
    {TYPE_TEXT_ENTRY, {ROW_ACTIVE_COLOUR, ROW_SCROLLABLE}, multiLine},
    {TYPE_TEXT_ENTRY, {ROW_OLE}, notRich},
    {TYPE_TEXT_ENTRY, {ROW_AUTO_URL}, notRich},
    {TYPE_TEXT_ENTRY, {ROW_TEXT_COLOUR}, rich},
    {TYPE_TEXT_ENTRY, FONT_AND_STYLE, rich},
    {TYPE_TEXT_LABEL, {ROW_SCROLL_BARS}, singleLine},
    {TYPE_TEXT_LABEL, {ROW_BORDER}, singleLineNotRich},
    {TYPE_TEXT_LABEL, {ROW_AUTO_URL}, notRich},
    {TYPE_TEXT_LABEL, {ROW_TEXT_COLOUR, ROW_ALIGN}, rich},
    {TYPE_TEXT_LABEL, FONT_AND_STYLE, rich},
    {TYPE_ICON, {ROW_LABEL}, offWindows},
    {TYPE_ICON,
     {ROW_XPOS, ROW_YPOS, ROW_WIDTH, ROW_HEIGHT, ROW_SIZE, ROW_HORIZONTAL, ROW_VERTICAL, ROW_EXPAND, ROW_LABEL},
     onToolBar},
    {TYPE_ICON, FONT_AND_STYLE, unlabelled},
    {TYPE_COMBO_BOX, {ROW_XPOS, ROW_YPOS, ROW_HORIZONTAL, ROW_VERTICAL, ROW_EXPAND}, onToolBar},
    {TYPE_PANEL,
     {ROW_HORIZONTAL, ROW_VERTICAL, ROW_FILL_TO, ROW_PANEL_BOUNDARY, ROW_BORDER_POSITION, ROW_BORDER_COLOUR},
     isTabPage},
    {TYPE_PANEL, FONT_ROWS, isTabPage},
    {TYPE_PANEL, {ROW_TAB_ICON}, noTabPage},
    {TYPE_PANEL, {ROW_PANEL_BOUNDARY, ROW_BORDER_COLOUR, ROW_BORDER_POSITION, ROW_TITLE}, scrolls},
    {TYPE_PANEL, FONT_ROWS, scrolls},
    {0, {ROW_BORDER_POSITION}, noBoundary},
    {0, {ROW_BORDER_COLOUR}, noLine},
    {TYPE_TOOL_BAR, {ROW_XPOS, ROW_YPOS}, docked},
    {TYPE_PANE, {ROW_XPOS, ROW_YPOS}, docked},
    {TYPE_TREE_VIEW, {ROW_ICON, ROW_CLOSE_ICON, ROW_OPEN_ICON}, ownIconsOff},
};

// The rules of origin and expansion, for types that have the rows; a combo box has rules of its own.
const GreyRule ORIGIN_RULES[] = {
    {0, {ROW_XPOS}, centredAcross}, {0, {ROW_YPOS}, centredUpright}, {0, {ROW_EXPAND}, cornered},
    {0, {ROW_WIDTH}, fillsAcross},  {0, {ROW_HEIGHT}, fillsUpright},
};
const GreyRule COMBO_ORIGIN_RULES[] = {
    {0, {ROW_XPOS}, centredAcross},
    {0, {ROW_YPOS}, centredUpright},
    {0, {ROW_EXPAND}, comboKeepsSize},
    {0, {ROW_WIDTH}, comboFillsAcross},
};

bool anyRule(std::span<const GreyRule> rules, const WidgetNode& widget, RowId row) {
    return std::ranges::any_of(rules, [&](const GreyRule& rule) {
        return (rule.type == 0 || rule.type == widget.type) && std::ranges::find(rule.rows, row) != rule.rows.end() &&
               rule.when(widget);
    });
}

// Rows that a widget does without.
bool isLeftOut(const WidgetNode& widget, RowId row) {
    if (row == ROW_SIZE) return project.gridMode != 1;
    if (widget.type == TYPE_TOOL_BAR) return row == ROW_WIDTH || row == ROW_HEIGHT;
    const bool fixedHeight = widget.type == TYPE_TOGGLE || isValue(widget);
    return row == ROW_HEIGHT && fixedHeight && project.projectPlatform != 'w';
}

} // namespace

int originCode(const WidgetNode& widget) { return (widget.vpos + 1) * 3 + widget.hpos + 1; }

std::vector<RowId> sheetOf(const WidgetNode& widget) {
    std::vector<RowId> rows;
    const Sheet* sheet = rowOf(SHEETS, widget.type);
    if (!sheet) return rows;
    const auto add = [&](RowId row) {
        if (!isLeftOut(widget, row)) rows.push_back(row);
    };
    for (const RowId row : sheet->rows) {
        const auto group = std::ranges::find_if(GROUPS, [&](auto rowsOf) { return rowsOf[0] == row; });
        if (group == std::end(GROUPS))
            add(row);
        else
            std::ranges::for_each(*group, add);
    }
    return rows;
}

bool isGrey(const WidgetNode& widget, const PropertyRow& row) {
    if (anyRule(GREY_RULES, widget, row.id)) return true;
    if (isBarOrPane(widget)) return false;
    if (widget.type == TYPE_COMBO_BOX) return anyRule(COMBO_ORIGIN_RULES, widget, row.id);
    return anyRule(ORIGIN_RULES, widget, row.id);
}
