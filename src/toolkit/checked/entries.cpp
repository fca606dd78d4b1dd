#include "toolkit/checked/entries.h"

#include "toolkit/frame/creation.h"
#include "toolkit/frame/report.h"
#include "toolkit/frame/routines.h"
#include "toolkit/frame/session.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <optional>

namespace orba {
namespace {

// What the toolkit must be for a routine to run.
enum class Needs { nothing, master, noMaster };

using enum Kind;

// Kinds that an argument may have, closed by none. An empty set takes every widget.
using Kinds = std::array<Kind, 16>;

constexpr Kinds ANY_KIND{none};
constexpr Kinds WINDOWS{master, window, none};
constexpr Kinds WINDOWS_AND_PANES{master, window, popupMenu, dockingPane, toolBar, none};
// A dialogue box may also hang on the menu entry or button that opens it.
constexpr Kinds DIALOGUE_PARENTS{master, window, menuEntry, pushButton, icon, toolButton, none};
constexpr Kinds CONTAINERS{master,  window,        panel,       radioBox,     array,  dockingPane,
                           toolBar, graphicsFrame, openGlFrame, propertyList, tabBox, none};
constexpr Kinds MENUS{menuBar, popupMenu, pullDownMenu, none};
constexpr Kinds MENU_ENTRIES{menuEntry, none};
constexpr Kinds BARS{toolBar, none};
constexpr Kinds PANES{dockingPane, none};
constexpr Kinds STATUS_BARS{statusBar, none};
constexpr Kinds TOGGLES{toggle, none};
constexpr Kinds TEXTS{textEntry, textLabel, ttyEntry, none};
constexpr Kinds TEXT_SETTINGS{textEntry, textLabel, ttyEntry, comboBox, pushButton, toggle, valueEntry, none};
constexpr Kinds PRINTABLE{textEntry, textLabel, ttyEntry, listBox, none};
constexpr Kinds VALUES{valueEntry, spinner, none};
constexpr Kinds SLIDERS{slider, spinner, none};
constexpr Kinds GAUGES{gauge, none};
constexpr Kinds PROGRESS{progressBar, none};
constexpr Kinds LISTS{listBox, comboBox, tableBox, none};
constexpr Kinds TABLES{tableBox, none};
constexpr Kinds TREES{treeView, treeEntry, none};
constexpr Kinds TREE_ENTRIES{treeEntry, none};
constexpr Kinds PROPERTY_LISTS{propertyList, none};
constexpr Kinds ARRAYS{array, none};
constexpr Kinds FRAMES{graphicsFrame, openGlFrame, none};
constexpr Kinds SCROLLED{panel, window,   textEntry, textLabel,    ttyEntry, listBox,
                         array, tableBox, treeView,  propertyList, none};
constexpr Kinds CHANGING{textEntry,    textLabel, ttyEntry, listBox, comboBox, array,      treeEntry, treeView,
                         propertyList, slider,    gauge,    tabBox,  spinner,  valueEntry, none};
constexpr Kinds ENTRIES_WITH_ERRORS{valueEntry, array, spinner, none};
constexpr Kinds LINKING{textEntry, textLabel, none};

// One look at one argument or keyword value. `code` is reported when it is outside.
struct Range {
    int argument; // index of a fixed argument, or -1 when `keyword` counts
    int keyword;
    int low, high;
    int code;
};

constexpr int NO_LIMIT = 1 << 30;
constexpr Range NO_RANGE{-1, 0, 0, 0, 0};
constexpr Range TEXT_SIZE{-1, owSize, 50, 100, 34};
constexpr Range COLOUR_ON{-1, owOnCol, 0, NO_LIMIT, 19};
constexpr Range COLOUR_OFF{-1, owOffCol, 0, NO_LIMIT, 19};
constexpr Range COLOUR_TEXT{-1, owTextCol, 0, NO_LIMIT, 19};
constexpr Range COLOUR_LINE{-1, owLineCol, 0, NO_LIMIT, 19};
constexpr Range COLOUR_FILL{-1, owFillCol, 0, NO_LIMIT, 19};
constexpr Range BOUNDARY{-1, owBorderType, 0, 99, 33};
constexpr Range EXPANSION{-1, owExpand, 0, 24, 35};
constexpr Range HORIZONTAL{-1, owHpos, -1, 1, 35};
constexpr Range VERTICAL{-1, owVpos, -1, 1, 35};

constexpr Range style(int argument, int low, int high) { return {argument, 0, low, high, 33}; }
constexpr Range value(int argument, int low, int high) { return {argument, 0, low, high, 35}; }
constexpr Range keywordStyle(int keyword, int low, int high) { return {-1, keyword, low, high, 33}; }

struct Entry {
    Fn function;
    int handleArgument; // index of the handle that is checked, -1 for none
    Kinds kinds;
    int kindError;
    std::array<Range, 7> ranges{};
};

constexpr int NO_HANDLE = -1;

// Every routine that is more than a look at the state. Those without a row need a master window and nothing else.
constexpr Entry entries[] = {
    {Fn::owCreateComplexDialogueBox,
     0,
     DIALOGUE_PARENTS,
     25,
     {HORIZONTAL, VERTICAL, value(3, 0, 32767), value(4, 0, 32767)}},
    {Fn::owCreateMDIComplexDialogueBox, 0, DIALOGUE_PARENTS, 25, {value(3, 0, 32767), value(4, 0, 32767)}},
    {Fn::owSetWindowIcon, 0, WINDOWS, 25},
    {Fn::owDrawWindow, 0, WINDOWS_AND_PANES, 25, {value(1, 0, 1)}},
    {Fn::owRemoveWindow, 0, WINDOWS_AND_PANES, 25},
    {Fn::owPushWindow, 0, WINDOWS, 25},
    {Fn::owPopWindow, 0, WINDOWS, 25},
    {Fn::owMDIAction, NO_HANDLE, ANY_KIND, 0, {style(0, 0, 4)}},
    {Fn::owDesignWindow, 0, WINDOWS, 25},
    {Fn::owDesignPicture, 0, ANY_KIND, 0},
    {Fn::owEnqSystemMenu, 0, WINDOWS, 25},
    {Fn::owCreateMenuBar, 0, WINDOWS, 25},
    {Fn::owCreatePullDownMenu, 0, MENU_ENTRIES, 7},
    {Fn::owCreateMenuEntry, 0, MENUS, 7},
    {Fn::owCreateMenuSeparator, 0, MENUS, 7},
    {Fn::owCreatePopupMenu, 0, ANY_KIND, 25},
    {Fn::owCreateStatusBar, 0, WINDOWS, 25, {{-1, owPanes, 0, 32, 35}}},
    {Fn::owSetStatusBarText, 0, STATUS_BARS, 67, {value(1, 0, 31)}},
    {Fn::owSetTextPanes, 0, STATUS_BARS, 67, {value(1, 0, 32)}},
    {Fn::owCreateToolBar, 0, WINDOWS, 25, {style(1, -1, 4), value(2, 0, 512)}},
    {Fn::owCreateToolBarButton, 0, BARS, 7, {style(1, 0, 1)}},
    {Fn::owCreateToolBarSeparator, 0, BARS, 7, {keywordStyle(owSeparatorType, 0, 99)}},
    {Fn::owCreateDockingPane, 0, WINDOWS, 25, {style(1, -1, 4)}},
    {Fn::owSetToolbarPos, 0, BARS, 67, {style(4, -1, 4)}},
    {Fn::owEnqToolbarPos, 0, BARS, 67},
    {Fn::owSetPanePos, 0, PANES, 67, {style(5, -1, 4)}},
    {Fn::owEnqPanePos, 0, PANES, 67},
    {Fn::owCreatePanel, 0, CONTAINERS, 7, {EXPANSION, HORIZONTAL, VERTICAL, BOUNDARY, COLOUR_LINE, COLOUR_FILL}},
    {Fn::owCreateRadioBox, 0, CONTAINERS, 7, {EXPANSION, HORIZONTAL, VERTICAL, BOUNDARY, COLOUR_LINE, COLOUR_FILL}},
    {Fn::owCreateTabDialogueBox, 0, CONTAINERS, 7, {EXPANSION, HORIZONTAL, VERTICAL}},
    {Fn::owCreatePushButton,
     0,
     CONTAINERS,
     7,
     {EXPANSION, HORIZONTAL, VERTICAL, TEXT_SIZE, COLOUR_ON, COLOUR_OFF, COLOUR_TEXT}},
    {Fn::owCreateToggleButton,
     0,
     CONTAINERS,
     7,
     {EXPANSION, HORIZONTAL, VERTICAL, TEXT_SIZE, COLOUR_ON, COLOUR_OFF, value(6, 0, 2)}},
    {Fn::owCreateIcon, 0, CONTAINERS, 7, {EXPANSION, HORIZONTAL, VERTICAL, TEXT_SIZE}},
    {Fn::owEnqToggleSwitch, 0, TOGGLES, 21},
    {Fn::owSetToggleSwitch, 0, TOGGLES, 21, {value(1, 0, 1)}},
    {Fn::owCreateTextEntry,
     0,
     CONTAINERS,
     7,
     {EXPANSION, HORIZONTAL, VERTICAL, TEXT_SIZE, COLOUR_ON, COLOUR_OFF, keywordStyle(owBorderType, 0, 3)}},
    {Fn::owCreateTTYEntry, 0, CONTAINERS, 7, {EXPANSION, HORIZONTAL, VERTICAL, COLOUR_ON, COLOUR_OFF}},
    {Fn::owCreateValueEntry,
     0,
     CONTAINERS,
     7,
     {EXPANSION, HORIZONTAL, VERTICAL, TEXT_SIZE, COLOUR_ON, COLOUR_OFF, {7, 0, 0, 8, 35}}},
    {Fn::owEnqValueSetting, 0, VALUES, 24},
    {Fn::owEnqValueSettingDouble, 0, VALUES, 24},
    {Fn::owEnqValueSettingInteger, 0, VALUES, 24},
    {Fn::owSetValueSetting, 0, VALUES, 24},
    {Fn::owClearValueEntry, 0, VALUES, 24},
    {Fn::owSetRogueValueStr, 0, {valueEntry, array, none}, 24},
    {Fn::owCreateSlider, 0, CONTAINERS, 7, {EXPANSION, HORIZONTAL, VERTICAL, TEXT_SIZE, COLOUR_FILL}},
    {Fn::owCreateSpinner, 0, CONTAINERS, 7, {EXPANSION, HORIZONTAL, VERTICAL}},
    {Fn::owCreateGauge,
     0,
     CONTAINERS,
     7,
     {EXPANSION, HORIZONTAL, VERTICAL, {-1, owTicks1, 0, 32767, 35}, {-1, owTicks2, 0, 32767, 35}}},
    {Fn::owCreateProgressBar, 0, CONTAINERS, 7, {EXPANSION, HORIZONTAL, VERTICAL}},
    {Fn::owEnqSliderValue, 0, SLIDERS, 67},
    {Fn::owSetSliderValue, 0, SLIDERS, 67},
    {Fn::owEnqGaugeValue, 0, GAUGES, 64},
    {Fn::owSetGaugeValue, 0, GAUGES, 64},
    {Fn::owSetProgressValue, 0, PROGRESS, 66},
    {Fn::owCreateListBox,
     0,
     CONTAINERS,
     7,
     {EXPANSION, HORIZONTAL, VERTICAL, style(5, 0, 7), keywordStyle(owType, 0, 2)}},
    {Fn::owCreateComboBox, 0, CONTAINERS, 7, {EXPANSION, HORIZONTAL, VERTICAL, style(5, 0, 7), style(6, 0, 1)}},
    {Fn::owSetListEntry, 0, LISTS, 67, {style(1, -2, 5)}},
    {Fn::owEnqListEntry, 0, LISTS, 67},
    {Fn::owEnqListStatus, 0, LISTS, 67},
    {Fn::owEnqListSelected, 0, LISTS, 67},
    {Fn::owDefineRowDragCallback, 0, LISTS, 67},
    {Fn::owCreateTableBox, 0, CONTAINERS, 7, {EXPANSION, HORIZONTAL, VERTICAL}},
    {Fn::owAddTableBoxColumn, 0, TABLES, 68, {value(1, 1, 32767), value(2, 0, 32767)}},
    {Fn::owRemoveTableBoxColumn, 0, TABLES, 68},
    {Fn::owAddTableBoxEntry, 0, TABLES, 68},
    {Fn::owSetTableBoxLabel, 0, TABLES, 68},
    {Fn::owEnqTableBoxLabel, 0, TABLES, 68},
    {Fn::owSetTableBoxAttribs, 0, TABLES, 68},
    {Fn::owEnqTableBoxAttribs, 0, TABLES, 68},
    {Fn::owCreateTreeViewBox, 0, CONTAINERS, 7, {EXPANSION, HORIZONTAL, VERTICAL, keywordStyle(owIconSet, 0, 3)}},
    {Fn::owCreateTreeEntry, 0, TREES, 7},
    {Fn::owTreeViewAction, 0, TREES, 67, {style(1, 0, 9)}},
    {Fn::owSetTreeViewLabel, 0, TREE_ENTRIES, 67},
    {Fn::owEnqTreeViewLabel, 0, TREES, 67},
    {Fn::owCreatePropertyList, 0, CONTAINERS, 7, {EXPANSION, HORIZONTAL, VERTICAL}},
    {Fn::owAddPropertyToList, 0, PROPERTY_LISTS, 67, {style(1, 0, 3)}},
    {Fn::owRemovePropertyFromList, 0, PROPERTY_LISTS, 67},
    {Fn::owPropertyItemCount, 0, PROPERTY_LISTS, 67},
    {Fn::owPropertyItemNumber, 0, PROPERTY_LISTS, 67},
    {Fn::owSelectProperty, 0, PROPERTY_LISTS, 67},
    {Fn::owSetPropertySetting, 0, PROPERTY_LISTS, 67},
    {Fn::owEnqPropertySetting, 0, PROPERTY_LISTS, 67},
    {Fn::owCreateTextArray,
     0,
     CONTAINERS,
     7,
     {EXPANSION, HORIZONTAL, VERTICAL, value(5, 1, 32767), value(6, 1, 1000000)}},
    {Fn::owCreateValueArray,
     0,
     CONTAINERS,
     7,
     {EXPANSION, HORIZONTAL, VERTICAL, value(5, 1, 32767), value(6, 1, 1000000)}},
    {Fn::owAddArrayRow, 0, ARRAYS, 63},
    {Fn::owAddArrayColumn, 0, ARRAYS, 63},
    {Fn::owRemoveArrayRow, 0, ARRAYS, 63},
    {Fn::owRemoveArrayColumn, 0, ARRAYS, 63},
    {Fn::owSetCellAttribs, 0, ARRAYS, 63},
    {Fn::owEnqCellAttribs, 0, ARRAYS, 63},
    {Fn::owSetCellSetting, 0, ARRAYS, 63},
    {Fn::owEnqCellSetting, 0, ARRAYS, 63},
    {Fn::owSetTextArray, 0, ARRAYS, 63},
    {Fn::owEnqTextArray, 0, ARRAYS, 63},
    {Fn::owSetValueArray, 0, ARRAYS, 63},
    {Fn::owEnqValueArray, 0, ARRAYS, 63},
    {Fn::owClearArrayCell, 0, ARRAYS, 63},
    {Fn::owSetActiveCell, 0, ARRAYS, 63},
    {Fn::owSelectArrayCells, 0, ARRAYS, 63},
    {Fn::owEnqArrayCells, 0, ARRAYS, 63},
    {Fn::owDefineArrayAction, 0, ARRAYS, 63},
    {Fn::owSetArrayGridReturnAction, 0, ARRAYS, 63},
    {Fn::owEnqArrayGridReturnAction, 0, ARRAYS, 63},
    {Fn::owDrawWidget, 0, ANY_KIND, 0},
    {Fn::owEraseWidget, 0, ANY_KIND, 0},
    {Fn::owSetWidgetStatus, 0, ANY_KIND, 0, {style(1, -1, 2)}},
    {Fn::owEnqWidgetStatus, 0, ANY_KIND, 0},
    {Fn::owSetWidgetProp, 0, ANY_KIND, 0},
    {Fn::owEnqWidgetProp, 0, ANY_KIND, 0},
    {Fn::owSetWidgetInfo, 0, ANY_KIND, 0},
    {Fn::owEnqWidgetInfo, 0, ANY_KIND, 0},
    {Fn::owSetWidgetHelp, 0, ANY_KIND, 0},
    {Fn::owSetFontAttribs, 0, ANY_KIND, 0},
    {Fn::owEnqFontAttribs, 0, ANY_KIND, 0},
    {Fn::owFontAttribsDialogue, 0, ANY_KIND, 0},
    {Fn::owSetCursorPos, 0, ANY_KIND, 0},
    {Fn::owSetScrollBarPos, 0, SCROLLED, 67},
    {Fn::owEnqScrollBarPos, 0, SCROLLED, 67},
    {Fn::owChangeWidgetOrder, 0, ANY_KIND, 0},
    {Fn::owReturnChildList, 0, ANY_KIND, 0},
    {Fn::owDefineWidgetLinks, 0, ANY_KIND, 56},
    {Fn::owDefineDragRect, 0, ANY_KIND, 0},
    {Fn::owDefineDragShape, 0, ANY_KIND, 0},
    {Fn::owDefineCallback, 0, ANY_KIND, 0},
    {Fn::owDefineSelectCallback, 0, ANY_KIND, 0},
    {Fn::owDefineMoveCallback, 0, ANY_KIND, 0},
    {Fn::owDefineExposeCallback, 0, FRAMES, 30},
    {Fn::owDefineChangeCallback, 0, CHANGING, 30},
    {Fn::owDefineDragDropCallback, 0, ANY_KIND, 0},
    {Fn::owDefineDoubleClickCallback, 0, ANY_KIND, 0},
    {Fn::owDefineFileDropCallback, 0, ANY_KIND, 0},
    {Fn::owDefineDragSelectCallback, 0, ANY_KIND, 0},
    {Fn::owDefineDragMoveCallback, 0, ANY_KIND, 0},
    {Fn::owDefineValueErrorCallback, 0, ENTRIES_WITH_ERRORS, 30},
    {Fn::owDefineLinkCallback, 0, LINKING, 30},
    {Fn::owDefineKeyCallback, NO_HANDLE, ANY_KIND, 0, {value(0, -20, NO_LIMIT)}},
    {Fn::owDefineKeySelectCallback, NO_HANDLE, ANY_KIND, 0, {value(0, -20, NO_LIMIT)}},
    {Fn::owDefineTimerCallback, NO_HANDLE, ANY_KIND, 0, {value(0, 0, NO_LIMIT)}},
    {Fn::owEnqTextSetting, 0, TEXT_SETTINGS, 23},
    {Fn::owSetTextSetting, 0, TEXT_SETTINGS, 23},
    {Fn::owReplaceText, 0, TEXTS, 23},
    {Fn::owGetTextFromFile, 0, TEXTS, 23},
    {Fn::owSaveTextToFile, 0, TEXTS, 23},
    {Fn::owExtractText, 0, TEXTS, 23},
    {Fn::owExtractWord, 0, TEXTS, 23},
    {Fn::owEnqTextPos, 0, TEXTS, 23},
    {Fn::owEnqSelectedTextRange, 0, {textEntry, textLabel, ttyEntry, comboBox, none}, 23},
    {Fn::owSetSelectedTextRange, 0, {textEntry, textLabel, ttyEntry, comboBox, none}, 23},
    {Fn::owEnqSelectedText, 0, TEXTS, 23},
    {Fn::owFindText, 0, TEXTS, 23},
    {Fn::owFindTextDialogue, 0, TEXTS, 23},
    {Fn::owReplaceTextDialogue, 0, TEXTS, 23},
    {Fn::owTextUndoAction, 0, TEXTS, 23, {style(1, 0, 4)}},
    {Fn::owCopyTextToClipboard, 0, TEXTS, 23, {style(1, -1, 2)}},
    {Fn::owPrintTextWidget, 0, PRINTABLE, 23},
    {Fn::owSetParagraphProp, 0, TEXTS, 23},
    {Fn::owEnqParagraphProp, 0, TEXTS, 23},
    {Fn::owAddParagraphTabstop, 0, TEXTS, 23},
    {Fn::owRemoveParagraphTabstop, 0, TEXTS, 23},
    {Fn::owEnqParagraphTabstop, 0, TEXTS, 23},
    {Fn::owFreezeRTFChanges, 0, TEXTS, 23, {{1, 0, 0, 1, 59}}},
    {Fn::owSetSyntaxHighlighting, 0, TEXTS, 23, {{1, 0, 0, 1, 59}}},
    {Fn::owCreateGraphicsFrame, 0, CONTAINERS, 7, {EXPANSION, HORIZONTAL, VERTICAL}},
    {Fn::owActivateGraphicsFrame, 0, FRAMES, 31},
    {Fn::owClearGraphicsFrame, 0, FRAMES, 31},
    {Fn::owSetGraphicsFrameBounds, 0, FRAMES, 31},
    {Fn::owEnqGraphicsFrameBounds, 0, FRAMES, 31},
    {Fn::owEnqGraphicsPixelBounds, 0, FRAMES, 31},
    {Fn::owDumpImage, 0, ANY_KIND, 0},
    {Fn::owCopyGraphicsToClipboard, 0, FRAMES, 70},
    {Fn::owSetGuiGridMode, NO_HANDLE, ANY_KIND, 0, {{0, 0, 0, 1, 59}}},
    {Fn::owSetSnapGrid, NO_HANDLE, ANY_KIND, 0, {value(0, 1, 32767)}},
    {Fn::owSetGuiStyle, NO_HANDLE, ANY_KIND, 0, {style(0, 0, 3)}},
    {Fn::owSetBubbleHelpSwitch, NO_HANDLE, ANY_KIND, 0, {{0, 0, 0, 1, 59}}},
    {Fn::owDisplayMessageBox, NO_HANDLE, ANY_KIND, 0, {style(3, 0, 4)}},
    {Fn::owCreateMasterWindow, NO_HANDLE, ANY_KIND, 0, {HORIZONTAL, VERTICAL, value(2, 0, 32767), value(3, 0, 32767)}},
    {Fn::owCreateMDIMasterWindow,
     NO_HANDLE,
     ANY_KIND,
     0,
     {HORIZONTAL, VERTICAL, value(2, 0, 32767), value(3, 0, 32767)}},
};

constexpr auto entryOf = [] {
    std::array<short, static_cast<int>(Fn::count)> rows{};
    for (std::size_t i = 0; i < std::size(entries); i++) {
        rows[static_cast<int>(entries[i].function)] = static_cast<short>(i + 1);
    }
    return rows;
}();

// Routines that also run before there is a master window.
constexpr Fn beforeMaster[] = {
    Fn::owInitializeMenu,
    Fn::owCloseMenu,
    Fn::owAction,
    Fn::owDefineGuiGrid,
    Fn::owEnqGuiGrid,
    Fn::owSetGuiGridMode,
    Fn::owEnqGuiGridMode,
    Fn::owSetSnapGrid,
    Fn::owEnqSnapGrid,
    Fn::owSetGuiStyle,
    Fn::owEnqGuiStyle,
    Fn::owGetIconResource,
    Fn::owGetBitmapResource,
    Fn::owGetCursorResource,
    Fn::owDisplayErrorBox,
    Fn::owDisplayInfoBox,
    Fn::owDisplayMessageBox,
    Fn::owSetBubbleHelpSwitch,
    Fn::owEnqBubbleHelpSwitch,
    Fn::owInitializeSyntaxTree,
    Fn::owLoadSyntaxKeywords,
    Fn::owSaveSyntaxKeywords,
    Fn::owAddSyntaxKeyword,
    Fn::owSetSyntaxFont,
    Fn::owEnqSyntaxFont,
    Fn::owEnqIconPicture,
    Fn::owEnqResourceImageInfo,
    Fn::owDispatch,
};

constexpr auto needs = [] {
    std::array<Needs, static_cast<int>(Fn::count)> rows{};
    for (int i = 0; i < static_cast<int>(Fn::count); i++) {
        // The base library stands below the toolkit.
        rows[i] = i >= static_cast<int>(Fn::oOpenOrba) ? Needs::nothing : Needs::master;
    }
    for (Fn function : beforeMaster) rows[static_cast<int>(function)] = Needs::nothing;
    rows[static_cast<int>(Fn::owCreateMasterWindow)] = Needs::noMaster;
    rows[static_cast<int>(Fn::owCreateMDIMasterWindow)] = Needs::noMaster;
    return rows;
}();

bool holds(const Kinds& kinds, Kind kind) {
    if (kinds[0] == none) return true;
    for (Kind one : kinds) {
        if (one == none) return false;
        if (one == kind) return true;
    }
    return false;
}

bool stateAllows(const Arguments& call) {
    const Needs need = needs[static_cast<int>(call.function)];
    if (need == Needs::noMaster && sessionState() >= 2) {
        reportError(18, 0, false);
        return false;
    }
    if (need == Needs::master && sessionState() < 2) {
        reportError(1, 0, false);
        return false;
    }
    return true;
}

bool handleAllows(const Entry& entry, const Arguments& call) {
    if (entry.handleArgument == NO_HANDLE) return true;
    const int handle = call.integer(entry.handleArgument);
    const Widget* widget = handle < 1 ? nullptr : widgetOf(handle);
    if (!widget) {
        reportError(26, handle, true);
        return false;
    }
    if (!holds(entry.kinds, widget->kind)) {
        reportError(entry.kindError, handle, true);
        return false;
    }
    return true;
}

// The old percent size below 50 is refused only where a size stands for text.
bool rangesAllow(const Entry& entry, const Arguments& call) {
    for (const Range& range : entry.ranges) {
        if (range.code == 0) continue;
        if (range.argument < 0 && !call.given(range.keyword)) continue;
        const int number = range.argument >= 0 ? call.integer(range.argument) : call.keyword(range.keyword);
        if (number < range.low || number > range.high) {
            reportError(range.code, number, false);
            return false;
        }
    }
    return true;
}

// Widgets that would cover the client area of an MDI master.
bool mdiAllows(const Arguments& call) {
    if (functionRow(call.function).result != Result::HANDLE || call.fixedCount == 0 || call.integer(0) != 1)
        return true;
    const Widget* client = widgetOf(2);
    if (!client || client->kind != mdiClient || !widgetOf(1)) return true;
    if (call.keyword(owVpos) != OMIDDLE || call.keyword(owHpos) != OCENTRE || call.keyword(owExpand) != OON)
        return true;
    if (!call.given(owExpand)) return true;
    reportError(62, 0, false);
    return false;
}

bool checksPass(const Arguments& call) {
    if (!stateAllows(call)) return false;
    const int row = entryOf[static_cast<int>(call.function)];
    if (row == 0) return true;
    const Entry& entry = entries[row - 1];
    return handleAllows(entry, call) && rangesAllow(entry, call) && mdiAllows(call);
}

} // namespace

Word checkedCall(const Arguments& call) {
    const char* outer = traceName;
    traceName = functionRow(call.function).name;
    Word result = 0;
    std::optional<ProgramDoing::Mark> program; // but what comes while it waits for the user
    if (call.function != Fn::owAction) program.emplace(session.program);
    if (checksPass(call) && hasHandleFor(call.function)) {
        if (const Handler handler = handlerOf(call.function)) result = handler(call);
    }
    traceName = outer;
    return result;
}

} // namespace orba
