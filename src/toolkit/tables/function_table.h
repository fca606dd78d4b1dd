// The routines and the keywords of the toolkit as tables, for the library and for the generators of its bindings. No
// Qt.
#pragma once

#include "toolkit/include/menu-c.h"

#include <cstdint>

namespace orba {

// Stands in the rows of owSetWidgetProp and owEnqWidgetProp for every keyword with a property.
inline constexpr int ANY = -1;

// Fn::owCreatePanel and so on, in the order of functions.def. Some are macros in menu-c.h.
#pragma push_macro("owCreateToolBar")
#undef owCreateToolBar
#pragma push_macro("owCreateToolBarButton")
#undef owCreateToolBarButton
#pragma push_macro("owCreateToolBarSeparator")
#undef owCreateToolBarSeparator
#pragma push_macro("owCreateDockingPane")
#undef owCreateDockingPane
#pragma push_macro("owAddTableBoxColumn")
#undef owAddTableBoxColumn
#pragma push_macro("owCreateMenuBar")
#undef owCreateMenuBar
#pragma push_macro("owCreatePullDownMenu")
#undef owCreatePullDownMenu
#pragma push_macro("owCreateMenuSeparator")
#undef owCreateMenuSeparator
#pragma push_macro("owDrawWindow")
#undef owDrawWindow
enum class Fn : int {
#define ROUTINE(name, result, arguments, ...) name,
#define BY_REFERENCE(name, result, arguments, ...) name,
#include "toolkit/tables/functions.def"
#undef ROUTINE
#undef BY_REFERENCE
    count
};
#pragma pop_macro("owCreateToolBar")
#pragma pop_macro("owCreateToolBarButton")
#pragma pop_macro("owCreateToolBarSeparator")
#pragma pop_macro("owCreateDockingPane")
#pragma pop_macro("owAddTableBoxColumn")
#pragma pop_macro("owCreateMenuBar")
#pragma pop_macro("owCreatePullDownMenu")
#pragma pop_macro("owCreateMenuSeparator")
#pragma pop_macro("owDrawWindow")

enum class Result { NONE, INT, HANDLE };

struct FunctionRow {
    const char* name;
    Result result;
    const char* arguments; // as in functions.def
    bool byReference;      // keyword values are pointers to results
    int keywords[48];      // closed by 0
};

const FunctionRow& functionRow(Fn function);
// Fn::count when there is none of that name.
Fn functionByName(const char* name);

// What follows a keyword in a list.
enum class ValueKind { INT, TEXT, REAL, INTS };

// Keywords that programs reach by number only.
inline constexpr int owFirstChild = 32193, owNextWidget = 32192, owWindow = 32191, owWindowState = 32190,
                     owKeyword32189 = 32189, owKeyword32179 = 32179, owKeyword32178 = 32178, owKeyword32177 = 32177,
                     owKeyword32176 = 32176, owKeyword32168 = 32168, owKeyword32167 = 32167, owKeyword32166 = 32166,
                     owKeyword32156 = 32156, owKeyword32155 = 32155, owKeyword32092 = 32092;

struct KeywordRow {
    int number;
    const char* name;
    ValueKind kind;
    int property;     // number in the property interface, 0 for none
    bool enquiryOnly; // owSetWidgetProp does not take it
    int fallback;     // value when a creation call does not give it; texts are empty and reals 0
};

// The property that a keyword stands for, 0 for none: the name by which code speaks of it.
constexpr int propertyOf(int keyword) {
    constexpr int rows[][2] = {
#define KEYWORD(name, kind, property, onlyAsked, fallback) {name, property},
#include "toolkit/tables/keywords.def"
#undef KEYWORD
    };
    for (const auto& row : rows) {
        if (row[0] == keyword) return row[1];
    }
    return 0;
}

// Null for a number that is no keyword.
const KeywordRow* keywordRow(int number);
// All keywords by falling number, `count` of them.
const KeywordRow* keywordRows(int* count);

// A value a routine uses when its keyword is not given: the row's own default where it has one, else the keyword's.
int keywordDefault(Fn function, int keyword);

} // namespace orba
