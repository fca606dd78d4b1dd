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

constexpr bool SET = false;
constexpr bool ASKED = true;

constexpr KeywordRow keywords[] = {
#define KEYWORD(name, kind, property, onlyAsked, fallback)                                                             \
    {name, #name, ValueKind::kind, property, onlyAsked, fallback},
#include "toolkit/tables/keywords.def"
#undef KEYWORD
};

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
