#include "toolkit/tables/function_table.h"

#include <array>
#include <cstring>

namespace orba {
namespace {

constexpr Result NONE = Result::NONE;
constexpr Result INT = Result::INT;
constexpr Result HANDLE = Result::HANDLE;

constexpr FunctionRow functions[] = {
#define ROUTINE(name, result, arguments, ...) {#name, result, arguments, false, {__VA_ARGS__ __VA_OPT__(, ) 0}},
#define BY_REFERENCE(name, result, arguments, ...) {#name, result, arguments, true, {__VA_ARGS__ __VA_OPT__(, ) 0}},
#include "toolkit/tables/functions.def"
#undef ROUTINE
#undef BY_REFERENCE
};
static_assert(std::size(functions) == static_cast<std::size_t>(Fn::count));

constexpr ValueKind I = ValueKind::INT;
constexpr ValueKind T = ValueKind::TEXT;
constexpr ValueKind R = ValueKind::REAL;
constexpr ValueKind IS = ValueKind::INTS;
constexpr bool ENQUIRY_ONLY = true;

#define KEYWORD(name) name, #name
// number and name, kind of value, property, whether it can only be asked, default
constexpr KeywordRow keywords[] = {
    {KEYWORD(owXpos), I, 1, false, 0},
    {KEYWORD(owYpos), I, 2, false, 0},
    {KEYWORD(owWidth), I, 3, false, 0},
    {KEYWORD(owHeight), I, 4, false, 0},
    {KEYWORD(owAccel), I, 21, false, 0},
    {KEYWORD(owSelectCallback), I, 39, false, 0},
    {KEYWORD(owCallback), I, 19, false, 0},
    {KEYWORD(owType), I, 0, false, 0},
    {KEYWORD(owSize), I, 28, false, 100},
    {KEYWORD(owOnCol), I, 26, false, 0},
    {KEYWORD(owOffCol), I, 25, false, 0},
    {KEYWORD(owMaxWidth), I, 0, false, 0},
    {KEYWORD(owMaxHeight), I, 0, false, 0},
    {KEYWORD(owTitle), T, 82, false, 0},
    {KEYWORD(owLineCol), I, 35, false, 0},
    {KEYWORD(owLineBorder), I, 36, false, OOUTERGRID},
    {KEYWORD(owFillCol), I, 37, false, 0},
    {KEYWORD(owFillBorder), I, 38, false, OOUTERGRID},
    {KEYWORD(owBorderType), I, 20, false, 0},
    {KEYWORD(owBackCol), I, 0, false, 0},
    {KEYWORD(owBack1Col), I, 25, false, 0},
    {KEYWORD(owBack2Col), I, 26, false, 0},
    {KEYWORD(owTextMargin), I, 40, false, 0},
    {KEYWORD(owTextCol), I, 27, false, 1},
    {KEYWORD(owJustify), I, 30, false, OLEFT},
    {KEYWORD(owSign), I, 40, false, 0},
    {KEYWORD(owVmin), R, 101, false, 0},
    {KEYWORD(owVmax), R, 102, false, 0},
    {KEYWORD(owMoveCallback), I, 18, false, 0},
    {KEYWORD(owExposeCallback), I, 17, false, 0},
    {KEYWORD(owIconFile), T, 0, false, 0},
    {KEYWORD(owIconFormat), I, 0, false, -1},
    {KEYWORD(owIconID), I, 0, false, 0},
    {KEYWORD(owHpos), I, 57, false, OLEFT},
    {KEYWORD(owVpos), I, 58, false, OBOTTOM},
    {KEYWORD(owExpand), I, 6, false, 0},
    {KEYWORD(owInitState), I, 0, false, ONORMAL},
    {KEYWORD(owQuitMode), I, 77, false, OHIDE},
    {KEYWORD(owStyle), I, 0, false, OEXACT},
    {KEYWORD(owSort), I, 41, false, OUNSORTED},
    {KEYWORD(owEntry), I, 0, false, -1},
    {KEYWORD(owString), T, 0, false, 0},
    {KEYWORD(owAxisW), I, 44, false, 0},
    {KEYWORD(owAxisH), I, 43, false, 0},
    {KEYWORD(owXjust), I, 85, false, OCENTRE},
    {KEYWORD(owYjust), I, 86, false, OCENTRE},
    {KEYWORD(owXtext), T, 87, false, 0},
    {KEYWORD(owYtext), T, 88, false, 0},
    {KEYWORD(owLinkColour), I, 109, false, 0},
    {KEYWORD(owHelpPos), I, 56, false, 3},
    {KEYWORD(owHelp), T, 55, false, 0},
    {KEYWORD(owImage), T, 64, false, 0},
    {KEYWORD(owRowLines), I, 0, false, 0},
    {KEYWORD(owPanes), I, 71, false, 1},
    {KEYWORD(owSizes), IS, 0, false, 0},
    {KEYWORD(owLabel), T, 66, false, 0},
    {KEYWORD(owAccess), I, 34, false, OEDIT},
    {KEYWORD(owTicks1), I, 80, false, 0},
    {KEYWORD(owTicks2), I, 81, false, 0},
    {KEYWORD(owScrollable), I, 0, false, 0},
    {KEYWORD(owMaximum), I, 68, false, 100},
    {KEYWORD(owPrompt), T, 76, false, 0},
    {KEYWORD(owFontFace), T, 53, false, 0},
    {KEYWORD(owPointSize), I, 72, false, 0},
    {KEYWORD(owCharSet), I, 49, false, 0},
    {KEYWORD(owBold), I, 45, false, 0},
    {KEYWORD(owItalic), I, 65, false, 0},
    {KEYWORD(owUnderline), I, 84, false, 0},
    {KEYWORD(owStrikeout), I, 79, false, 0},
    {KEYWORD(owBullet), I, 46, false, 0},
    {KEYWORD(owLeftIndent), I, 62, false, 0},
    {KEYWORD(owFirstIndent), I, 61, false, 0},
    {KEYWORD(owRightIndent), I, 63, false, 0},
    {KEYWORD(owDialogueMode), I, 50, false, 0},
    {KEYWORD(owPosition), I, 0, false, -1},
    {KEYWORD(owDragDropCallback), I, 23, false, 0},
    {KEYWORD(owFrameType), I, 54, false, OGDI},
    {KEYWORD(owDragSelectCallback), I, 12, false, 0},
    {KEYWORD(owDragMoveCallback), I, 11, false, 0},
    {KEYWORD(owButtonType), I, 47, false, 0},
    {KEYWORD(owListType), I, 42, false, 0},
    {KEYWORD(owListStyle), I, 73, false, 0},
    {KEYWORD(owScrollMode), I, 78, false, OBOTHBARS},
    {KEYWORD(owRadioType), I, 67, false, OFREEFORM},
    {KEYWORD(owSliderType), I, 70, false, OHORIZONTAL},
    {KEYWORD(owChangeCallback), I, 48, false, 0},
    {KEYWORD(owToggleType), I, 83, false, 0},
    {KEYWORD(owIconType), I, 59, false, 0},
    {KEYWORD(owIconSet), I, 60, false, ONONE},
    {KEYWORD(owValueType), I, 52, false, 0},
    {KEYWORD(owPostfix), T, 74, false, 0},
    {KEYWORD(owPrefix), T, 75, false, 0},
    {KEYWORD(owDragMode), I, 24, false, 0},
    {KEYWORD(owEntryType), I, 51, false, OSTANDARD},
    {32193, "owFirstChild", I, 7, false, 0},
    {32192, "owNextWidget", I, 8, false, 0},
    {32191, "owWindow", I, 9, false, 0},
    {32190, "owWindowState", I, 10, false, 0},
    {32189, "owKeyword32189", I, 13, false, 0},
    {KEYWORD(owSliderTicks), I, 14, false, 0},
    {KEYWORD(owKind), I, 15, false, 0},
    {KEYWORD(owTitleFlag), I, 16, false, OALL},
    {KEYWORD(owWidgetStatus), I, 29, false, ODEFAULTSTATUS},
    {KEYWORD(owMinHeight), I, 31, false, 0},
    {KEYWORD(owMinWidth), I, 31, false, 0},
    {KEYWORD(owTitleBorder), I, 32, false, 0},
    {KEYWORD(owParent), I, 5, false, 0},
    {KEYWORD(owMinimum), I, 69, false, 0},
    {32179, "owKeyword32179", I, 104, false, 0},
    {32178, "owKeyword32178", I, 105, false, 0},
    {32177, "owKeyword32177", I, 107, false, 0},
    {32176, "owKeyword32176", I, 108, false, 0},
    {KEYWORD(owRealValue), R, 103, false, 0},
    {KEYWORD(owIntValue), I, 89, false, 0},
    {KEYWORD(owProgressType), I, 90, false, ODEFAULT},
    {KEYWORD(owRowHeight), I, 44, false, 0},
    {KEYWORD(owGridLines), I, 92, false, 1},
    {KEYWORD(owDoubleClickCallback), I, 0, false, 0},
    {KEYWORD(owMatchCase), I, 0, false, 0},
    {32168, "owKeyword32168", I, 91, false, 0},
    {32167, "owKeyword32167", I, 92, false, 0},
    {32166, "owKeyword32166", I, 93, false, 0},
    {KEYWORD(owSelectedText), T, 94, ENQUIRY_ONLY, 0},
    {KEYWORD(owPropertyStatus), I, 0, false, 1},
    {KEYWORD(owPropertyLabel), T, 0, false, 0},
    {KEYWORD(owPropertyKind), I, 0, false, 0},
    {KEYWORD(owPropertyWidget), I, 0, false, 0},
    {KEYWORD(owPropertyValue), R, 0, false, 0},
    {KEYWORD(owColumnWidth), I, 43, false, 0},
    {32156, "owKeyword32156", I, 95, false, 0},
    {32155, "owKeyword32155", I, 96, false, 0},
    {KEYWORD(owDescWidth), I, 97, false, 0},
    {KEYWORD(owSeparatorType), I, 42, false, ONONE},
    {KEYWORD(owHelpDelay), I, 98, false, -1},
    {KEYWORD(owLanguage), I, 0, false, 0},
    {KEYWORD(owCapacity), I, 0, false, 0},
    {KEYWORD(owFileDropCallback), I, 112, false, 0},
    {KEYWORD(owCheckIcon), I, 113, ENQUIRY_ONLY, 0},
    {KEYWORD(owUncheckIcon), I, 114, ENQUIRY_ONLY, 0},
    {KEYWORD(owIcon), I, 99, false, 0},
    {KEYWORD(owOpenIcon), I, 115, ENQUIRY_ONLY, 0},
    {KEYWORD(owCloseIcon), I, 116, ENQUIRY_ONLY, 0},
    {KEYWORD(owIconHandle), I, 100, false, 0},
    {KEYWORD(owUseIcons), I, 0, false, 0},
    {KEYWORD(owIconLabelPos), I, 110, false, 0},
    {KEYWORD(owGreyIcon), I, 111, false, 0},
    {KEYWORD(owBuildInfo), I, 0, false, OON},
    {KEYWORD(owOLEInserts), I, 117, ENQUIRY_ONLY, 1},
    {KEYWORD(owWordWrap), I, 125, false, 1},
    {KEYWORD(owAxisBackColour), I, 118, false, 12},
    {KEYWORD(owXtextColour), I, 119, false, 1},
    {KEYWORD(owYtextColour), I, 120, false, 1},
    {KEYWORD(owGridBackColour), I, 121, false, 0},
    {KEYWORD(owCellBorderColour), I, 122, false, 0},
    {KEYWORD(owCellBorderLineType), I, 123, false, 2},
    {KEYWORD(owSelectedCellColour), I, 124, false, 0},
    {KEYWORD(owLength), I, 0, false, 256},
    {KEYWORD(owHelpJustify), I, 126, false, OCENTRE},
    {KEYWORD(owValueErrorCallback), I, 128, false, 0},
    {KEYWORD(owFixedSize), I, 127, false, 0},
    {KEYWORD(owReadOnly), I, 129, false, -1},
    {KEYWORD(owCellSelect), I, 130, false, 1},
    {KEYWORD(owTabList), I, 131, false, OON},
    {KEYWORD(owTabAction), I, 132, false, OON},
    {KEYWORD(owStep), I, 133, ENQUIRY_ONLY, 1},
    {KEYWORD(owBuddy), I, 134, false, 0},
    {32092, "owKeyword32092", I, 136, false, 0},
    {KEYWORD(owNumbering), I, 135, false, 0},
    {KEYWORD(owAutoURL), I, 137, false, 0},
    {KEYWORD(owLinkCallback), I, 138, false, 0},
    {KEYWORD(owIncrement), R, 0, false, 0},
    {KEYWORD(owThousands), I, 0, false, 0},
    {KEYWORD(owStartPosition), I, 0, false, 0},
};
#undef KEYWORD

// Where one routine starts from another value than its keyword's.
struct OwnDefault {
    Fn function;
    int keyword;
    int value;
};
constexpr OwnDefault ownDefaults[] = {
    {Fn::owCreatePushButton, owJustify, OCENTRE},     {Fn::owCreateValueEntry, owJustify, OLEFT},
    {Fn::owCreatePanel, owScrollMode, ONOBARS},       {Fn::owCreateToolBar, owTitleFlag, OTITLE},
    {Fn::owCreateDockingPane, owTitleFlag, OQUIT},    {Fn::owCreateSlider, owType, OHORIZONTAL},
    {Fn::owCreateSpinner, owType, OVERTICAL},         {Fn::owCreateIcon, owType, OBUTTON},
    {Fn::owCreateToolBarButton, owIconType, OBUTTON}, {Fn::owCreateListBox, owTextCol, 16},
};

constexpr int FIRST_KEYWORD = 32077;
constexpr int LAST_KEYWORD = 32299;

constexpr auto rowsByNumber = [] {
    std::array<short, LAST_KEYWORD - FIRST_KEYWORD + 1> rows{};
    for (std::size_t i = 0; i < std::size(keywords); i++) {
        rows[keywords[i].number - FIRST_KEYWORD] = static_cast<short>(i + 1);
    }
    return rows;
}();

} // namespace

const FunctionRow& functionRow(Fn function) { return functions[static_cast<int>(function)]; }

Fn functionByName(const char* name) {
    for (std::size_t i = 0; i < std::size(functions); i++) {
        if (std::strcmp(functions[i].name, name) == 0) return static_cast<Fn>(i);
    }
    return Fn::count;
}

const KeywordRow* keywordRow(int number) {
    if (number < FIRST_KEYWORD || number > LAST_KEYWORD) return nullptr;
    const int row = rowsByNumber[number - FIRST_KEYWORD];
    return row == 0 ? nullptr : &keywords[row - 1];
}

const KeywordRow* keywordRows(int* count) {
    *count = static_cast<int>(std::size(keywords));
    return keywords;
}

int keywordDefault(Fn function, int keyword) {
    for (const OwnDefault& row : ownDefaults) {
        if (row.function == function && row.keyword == keyword) return row.value;
    }
    const KeywordRow* row = keywordRow(keyword);
    return row ? row->fallback : 0;
}

} // namespace orba
