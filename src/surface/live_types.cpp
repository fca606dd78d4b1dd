// The creation calls, one function and one row for each type.
#include "surface/live_types.h"

#include "codegen/quotes.h"

#include "menu-c.h"
#include "project/tree.h"
#include "surface/commands.h"
#include "surface/live.h"
#include "surface/state.h"

#include <algorithm>
#include <string>

// Keyword pairs that most creation calls share.
#define PLACED(n) owVpos, (n).vpos, owHpos, (n).hpos, owExpand, (n).expand
#define HELPED(n) owHelp, (n).bubbleHelp.c_str(), owHelpJustify, (n).helpJustify
#define ENTRY_COLOURS(n) owBack1Col, (n).colour1, owBack2Col, (n).colour2, owTextCol, (n).colour3
#define LIST_COLOURS(n) owOffCol, (n).colour1, owOnCol, (n).colour2, owTextCol, (n).colour3
#define BOX(n) (n).xpos, (n).ypos, (n).width, (n).height

namespace {

constexpr int AUTOMATIC = OIDENT; // asks for identifiers made from the handle

int createForm(const WidgetNode& n, int) {
    return owCreateComplexDialogueBox(1, BOX(n), OALL, n.text.c_str(), owMaxWidth, n.width, owMaxHeight, n.height,
                                      owIconFile, n.icon.c_str(), owIconFormat, n.format, owIconID, n.iconId, owVpos,
                                      n.vpos, owHpos, n.hpos, owQuitMode, OLEAVE, 0);
}

int createMainPanel(const WidgetNode& n, int parent) {
    return owCreatePanel(parent, 0, 0, n.width, n.height, owBorderType, n.subType, owTitle, n.text.c_str(), owImage,
                         n.icon.c_str(), owLineCol, n.colour1, owLineBorder, n.colour2, owFillCol, n.colour3,
                         owFillBorder, n.colour4, PLACED(n), owCallback, AUTOMATIC, owSelectCallback, AUTOMATIC, 0);
}

int createButton(const WidgetNode& n, int parent) {
    if (n.onToolbar)
        return owCreateToolBarButton(parent, OTEXTBUTTON, n.text.c_str(), owIconType, OBUTTON, HELPED(n), owTabList,
                                     n.tabList, owCallback, AUTOMATIC, 0);
    return owCreatePushButton(parent, BOX(n), n.text.c_str(), owType, n.subType, owAccel, n.accel, owJustify, n.justify,
                              owSize, n.size, owOnCol, n.colour1, owOffCol, n.colour2, owTextCol, n.colour3, owTabList,
                              n.tabList, PLACED(n), HELPED(n), owCallback, AUTOMATIC, 0);
}

int createToggle(const WidgetNode& n, int parent) {
    return owCreateToggleButton(parent, BOX(n), n.text.c_str(), n.initialStatus, owType, n.subType, owSize, n.size,
                                owAccel, n.accel, owOnCol, n.colour1, owOffCol, n.colour2, owTextCol, 1, owTabList,
                                n.tabList, PLACED(n), HELPED(n), owCallback, CMD_TOGGLED, 0);
}

// As a program gets it: line ends as bars, which are lines again where there is room for them.
std::string textOfCall(const WidgetNode& n) { return n.subType == ORICHEDIT ? n.text : withBars(n.text); }

// What fills a pane has room for lines whatever height its record keeps.
int heightOfText(const WidgetNode& n) {
    const bool fillsPane = n.parent && n.parent->type == TYPE_PANE && n.expand != 0 && n.vpos == 0;
    return fillsPane ? 0 : n.height;
}

int createTextEntry(const WidgetNode& n, int parent) {
    return owCreateTextEntry(parent, n.xpos, n.ypos, n.width, heightOfText(n), textOfCall(n).c_str(), n.fieldWidth,
                             n.editMode, owEntryType, n.subType, owTextMargin, n.sign, owSize, n.size, owBorderType,
                             n.borderType, ENTRY_COLOURS(n), owScrollMode, n.scrollMode, owJustify, n.justify,
                             owOLEInserts, n.oleInserts, owReadOnly, n.readOnly, owAutoURL, n.autoUrl, owTabList,
                             n.tabList, PLACED(n), HELPED(n), owCallback, CMD_TEXT_EDITED, owSelectCallback,
                             CMD_TEXT_SELECTED, 0);
}

int createTextLabel(const WidgetNode& n, int parent) {
    return owCreateTextEntry(parent, n.xpos, n.ypos, n.width, heightOfText(n), textOfCall(n).c_str(), n.fieldWidth,
                             n.editMode, owEntryType, n.subType, owTextMargin, n.sign, owSize, n.size, owBorderType,
                             n.borderType, ENTRY_COLOURS(n), owScrollMode, n.scrollMode, owJustify, n.justify,
                             owAutoURL, n.autoUrl, PLACED(n), HELPED(n), owSelectCallback, AUTOMATIC, 0);
}

int createValueEntry(const WidgetNode& n, int parent) {
    return owCreateValueEntry(parent, BOX(n), static_cast<double>(n.value), n.fieldWidth, n.format, n.editMode,
                              owValueType, n.subType, owSign, n.sign, owSize, n.size, owVmin,
                              static_cast<double>(n.minValue), owVmax, static_cast<double>(n.maxValue), owBorderType,
                              n.borderType, ENTRY_COLOURS(n), owReadOnly, n.readOnly, owTabList, n.tabList, PLACED(n),
                              HELPED(n), owCallback, CMD_VALUE_EDITED, owSelectCallback, CMD_VALUE_SELECTED, 0);
}

int createValueLabel(const WidgetNode& n, int parent) {
    return owCreateValueEntry(parent, BOX(n), static_cast<double>(n.value), n.fieldWidth, n.format, n.editMode,
                              owValueType, n.subType, owSign, n.sign, owSize, n.size, owBorderType, n.borderType,
                              ENTRY_COLOURS(n), owJustify, n.justify, PLACED(n), HELPED(n), owCallback, AUTOMATIC, 0);
}

int createIcon(const WidgetNode& n, int parent) {
    if (n.onToolbar)
        return owCreateToolBarButton(parent, OICONBUTTON, n.icon.c_str(), owIconType, n.subType, HELPED(n), owTabList,
                                     n.tabList, owCallback, AUTOMATIC, 0);
    return owCreateIcon(parent, BOX(n), n.icon.c_str(), n.format, n.iconId, owLabel, n.text.c_str(), owType, n.subType,
                        owSize, n.size, owTabList, n.tabList, PLACED(n), HELPED(n), owCallback, AUTOMATIC, 0);
}

int createListBox(const WidgetNode& n, int parent) {
    if (n.displayIcons)
        return owCreateListBox(parent, BOX(n), n.contents, owType, n.subType, owStyle, n.approxSize, owSort, n.sorted,
                               LIST_COLOURS(n), owTabList, n.tabList, owUseIcons, 1, PLACED(n), owCallback, AUTOMATIC,
                               owSelectCallback, AUTOMATIC, 0);
    return owCreateListBox(parent, BOX(n), n.contents, owType, n.subType, owStyle, n.approxSize, owSort, n.sorted,
                           LIST_COLOURS(n), owTabList, n.tabList, owDescWidth, n.fieldWidth, PLACED(n), owCallback,
                           AUTOMATIC, owSelectCallback, AUTOMATIC, 0);
}

int createSlider(const WidgetNode& n, int parent) {
    return owCreateSlider(parent, BOX(n), static_cast<double>(n.minValue), static_cast<double>(n.maxValue),
                          static_cast<double>(n.stepValue), static_cast<double>(n.value), owType, n.subType, owSize,
                          n.size, owFillCol, n.colour3, PLACED(n), owCallback, AUTOMATIC, 0);
}

int createPanel(const WidgetNode& n, int parent) {
    const bool titled = n.titleFlag != 0 && n.scrollMode == -1;
    const int boundary = n.type == TYPE_RADIO_BOX ? n.borderType : n.subType;
    const std::string title = titled || (n.parent && n.parent->type == TYPE_TAB_BOX) ? n.text : "";
    return owCreatePanel(parent, BOX(n), owTitle, title.c_str(), owBorderType, boundary, owImage, n.icon.c_str(),
                         owIcon, owGetIconResource(n.closeIcon.c_str()), owLineCol, n.colour1, owLineBorder, n.colour2,
                         owFillCol, n.colour3, owFillBorder, n.colour4, owScrollMode, n.scrollMode, owTabList,
                         n.tabList, PLACED(n), HELPED(n), owCallback, AUTOMATIC, owSelectCallback, AUTOMATIC, 0);
}

int createComboBox(const WidgetNode& n, int parent) {
    return owCreateComboBox(parent, BOX(n), n.contents, n.editMode, owSort, n.sorted, owDescWidth, n.fieldWidth,
                            owUseIcons, n.displayIcons, owTabList, n.tabList, PLACED(n), HELPED(n), owSelectCallback,
                            AUTOMATIC, 0);
}

int createFrame(const WidgetNode& n, int parent) {
    const OLIMIT limits = {n.xMin, n.xMax, n.yMin, n.yMax};
    return owCreateGraphicsFrame(parent, BOX(n), &limits, PLACED(n), HELPED(n), owCallback, AUTOMATIC, owExposeCallback,
                                 AUTOMATIC, 0);
}

#define ARRAY_KEYWORDS(n)                                                                                              \
    owAxisW, (n).yLabelsWidth, owAxisH, (n).xLabelsHeight, owXtext, (n).xLabels.c_str(), owYtext, (n).yLabels.c_str(), \
        owXjust, (n).alignXLabels, owYjust, (n).alignYLabels, owScrollMode, (n).scrollMode, owBorderType, (n).subType, \
        owAxisBackColour, (n).colour1, owSelectedCellColour, (n).colour2, owXtextColour, (n).colour3, owYtextColour,   \
        (n).colour4, owGridBackColour, (n).cellBackground, owCellBorderColour, (n).cellBorder, owCellBorderLineType,   \
        (n).borderType, owReadOnly, (n).readOnly, owTabAction, (n).tabAction, owTabList, (n).tabList

int createTextArray(const WidgetNode& n, int parent) {
    return owCreateTextArray(parent, BOX(n), n.columns, n.rows, ARRAY_KEYWORDS(n), PLACED(n), HELPED(n),
                             owSelectCallback, AUTOMATIC, 0);
}

int createValueArray(const WidgetNode& n, int parent) {
    return owCreateValueArray(parent, BOX(n), n.columns, n.rows, ARRAY_KEYWORDS(n), PLACED(n), HELPED(n),
                              owSelectCallback, AUTOMATIC, 0);
}

int createToolBar(const WidgetNode& n, int window) {
    return owCreateToolBar(window, n.initialPosition, n.iconSize, owTitle, n.text.c_str(), owTitleFlag, n.titleFlag,
                           owQuitMode, OLEAVE, owCallback, AUTOMATIC);
}

int createPane(const WidgetNode& n, int window) {
    return owCreateDockingPane(window, n.initialPosition, BOX(n), owTitle, n.text.c_str(), owTitleFlag, n.titleFlag,
                               owQuitMode, OLEAVE, owCallback, AUTOMATIC);
}

int createTabBox(const WidgetNode& n, int parent) {
    return owCreateTabDialogueBox(parent, BOX(n), PLACED(n), owSelectCallback, AUTOMATIC, 0);
}

int createGauge(const WidgetNode& n, int parent) {
    return owCreateGauge(parent, BOX(n), n.icon.c_str(), owMinimum, static_cast<int>(n.minValue), owMaximum,
                         static_cast<int>(n.maxValue), owIntValue, static_cast<int>(n.value), owTicks1, n.topTicks,
                         owTicks2, n.bottomTicks, owTabList, n.tabList, PLACED(n), HELPED(n), owCallback, AUTOMATIC, 0);
}

int createProgressBar(const WidgetNode& n, int parent) {
    return owCreateProgressBar(parent, BOX(n), owProgressType, n.subType, owMinimum, static_cast<int>(n.minValue),
                               owMaximum, static_cast<int>(n.maxValue), owIntValue, static_cast<int>(n.value),
                               PLACED(n), 0);
}

int createTtyEntry(const WidgetNode& n, int parent) {
    return owCreateTTYEntry(parent, BOX(n), n.size, n.text.c_str(), owPrompt, n.icon.c_str(), owTextMargin, n.sign,
                            owOffCol, n.colour1, owOnCol, n.colour2, owTextCol, n.colour3, owReadOnly, n.readOnly,
                            PLACED(n), HELPED(n), owSelectCallback, AUTOMATIC, 0);
}

int createTreeView(const WidgetNode& n, int parent) {
    return owCreateTreeViewBox(parent, BOX(n), owIconSet, n.subType, PLACED(n), 0);
}

int createTableBox(const WidgetNode& n, int parent) {
    return owCreateTableBox(parent, BOX(n), PLACED(n), owCallback, AUTOMATIC, 0);
}

int createSeparator(const WidgetNode& n, int parent) {
    return owCreateToolBarSeparator(parent, owSeparatorType, n.subType);
}

// ---- What follows the creation call.

void finishForm(WidgetNode& n) {
    buildLiveStatusBar(n);
    buildLiveMenu(n);
}

void finishButton(WidgetNode& n) {
    if (n.onToolbar) owSetWidgetProp(n.handle, owOnCol, n.colour1, owOffCol, n.colour2, owTextCol, n.colour3, 0);
}

void finishToggle(WidgetNode& n) {
    if (n.subType != O3DRADIO && n.subType != O3DCHECKBOX) owSetWidgetProp(n.handle, owTextCol, n.colour3, 0);
}

void finishValue(WidgetNode& n) {
    owSetValueSetting(n.handle, static_cast<double>(n.value));
    if (n.type == TYPE_VALUE_ENTRY) design.valueWidget = n.handle;
}

void finishList(WidgetNode& n) {
    if (n.contents == 0 && n.listEntries) fillListEntries(n);
}

void finishPanel(WidgetNode& n) {
    owSetGuiCursor(n.handle, 0, OCURSORCROSS);
    if (n.parent && n.parent->type == TYPE_TAB_BOX) owSetWidgetStatus(n.handle, OSELECTABLE);
}

void finishFrame(WidgetNode& n) { drawFrameCross(n); }

// The labels of a table box are one text split at bars; a column past the last label has none.
void finishTable(WidgetNode& n) {
    size_t start = 0;
    for (int column = 0; column < n.columns; ++column) {
        const int width = column < static_cast<int>(n.columnWidths.size()) ? n.columnWidths[column] : 2;
        owAddTableBoxColumn(n.handle, column + 1, width);
        if (start > n.xLabels.size()) continue;
        const size_t end = std::min(n.xLabels.find('|', start), n.xLabels.size());
        const std::string label = n.xLabels.substr(start, end - start);
        if (!label.empty()) owSetTableBoxLabel(n.handle, column + 1, label.c_str());
        start = end + 1;
    }
}

void finishToolBar(WidgetNode& n) {
    if (n.initialPosition == OFLOATING) owSetToolbarPos(n.handle, n.xpos, n.ypos, n.width, n.initialPosition);
    if (!n.child) design.placeholders[n.id] = owCreateToolBarButton(n.handle, OTEXTBUTTON, " ");
}

void finishPane(WidgetNode& n) {
    if (!n.child)
        design.placeholders[n.id] = owCreatePanel(n.handle, 0, 0, 0, 0, owBorderType, ONOBOUNDARY, owVpos, OMIDDLE,
                                                  owHpos, OCENTRE, owExpand, 1, 0);
}

// A type whose creation call takes no callback can be selected all the same.
void tellOfClicks(WidgetNode& n) { owDefineCallback(n.handle, n.handle); }

void finishTree(WidgetNode& n) {
    tellOfClicks(n);
    buildLiveTree(n);
}

constexpr bool C = true, S = true, FONT = true, NO = false;

const LiveType TYPES[] = {
    {TYPE_FORM, createForm, finishForm, NO, NO, NO},
    {TYPE_MAIN_PANEL, createMainPanel, nullptr, C, S, NO},
    {TYPE_BUTTON, createButton, finishButton, C, NO, FONT},
    {TYPE_TOGGLE, createToggle, finishToggle, NO, NO, FONT},
    {TYPE_TEXT_ENTRY, createTextEntry, nullptr, NO, NO, FONT},
    {TYPE_TEXT_LABEL, createTextLabel, nullptr, NO, S, FONT},
    {TYPE_VALUE_ENTRY, createValueEntry, finishValue, NO, NO, FONT},
    {TYPE_VALUE_LABEL, createValueLabel, finishValue, C, NO, FONT},
    {TYPE_ICON, createIcon, finishButton, C, NO, FONT},
    {TYPE_LIST_BOX, createListBox, finishList, C, S, FONT},
    {TYPE_SLIDER, createSlider, nullptr, C, NO, NO},
    {TYPE_PANEL, createPanel, finishPanel, C, S, FONT},
    {TYPE_RADIO_BOX, createPanel, finishPanel, C, S, NO}, // no program gives its title a font
    {TYPE_COMBO_BOX, createComboBox, finishList, NO, S, FONT},
    {TYPE_GRAPHICS_FRAME, createFrame, finishFrame, C, NO, NO},
    {TYPE_TEXT_ARRAY, createTextArray, applyArrayGeometry, NO, S, FONT},
    {TYPE_VALUE_ARRAY, createValueArray, applyArrayGeometry, NO, S, FONT},
    {TYPE_TOOL_BAR, createToolBar, finishToolBar, C, NO, NO},
    {TYPE_TAB_BOX, createTabBox, nullptr, NO, S, FONT},
    {TYPE_GAUGE, createGauge, nullptr, C, NO, NO},
    {TYPE_PROGRESS_BAR, createProgressBar, tellOfClicks, C, NO, NO},
    {TYPE_TTY_ENTRY, createTtyEntry, nullptr, NO, S, FONT},
    {TYPE_TREE_VIEW, createTreeView, finishTree, C, NO, FONT},
    {TYPE_TABLE_BOX, createTableBox, finishTable, C, NO, FONT},
    {TYPE_TOOL_SEPARATOR, createSeparator, nullptr, NO, NO, NO},
    {TYPE_PANE, createPane, finishPane, C, NO, NO},
};

} // namespace

const LiveType* liveType(int type) {
    const auto row = std::ranges::find(TYPES, type, &LiveType::type);
    return row == std::end(TYPES) ? nullptr : row;
}

int createStandIn(const WidgetNode& n, int parent) {
    return owCreatePanel(parent, BOX(n), owTitle, n.name.c_str(), owBorderType, OSINGLE, PLACED(n), owCallback,
                         AUTOMATIC, owSelectCallback, AUTOMATIC, 0);
}
