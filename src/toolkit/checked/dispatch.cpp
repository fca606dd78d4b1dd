// Operations by number: each stands for one routine.
#include "toolkit/checked/entries.h"
#include "toolkit/frame/properties.h"
#include "toolkit/frame/registry.h"
#include "toolkit/frame/report.h"
#include "toolkit/frame/routines.h"

namespace orba {
namespace {

// Where an argument of the routine comes from: "a" to "f" the six integers, "1" and "2" the results, "s" the text, "n"
// and "y" the values 0 and 1.
struct Operation {
    int number;
    Fn function;
    const char* fixed;
    int resultTo = 0; // 1 or 2: the routine's result goes there
    struct {
        int keyword;
        char from;
    } keywords[5] = {};
};

constexpr Operation operations[] = {
    {48, Fn::owSetActiveCell, "abc"},
    {50, Fn::owSetTrackingPos, "ab"},
    {52, Fn::owFindText, "abs", 1, {{owMatchCase, 'c'}}},
    {70, Fn::owSetSnapGrid, "a"},
    {71, Fn::owEnqSnapGrid, "", 1},
    {72, Fn::owDrawWindow, "ab"},
    {102, Fn::owSetProgressValue, "ab"},
    {201, Fn::owAddTableBoxColumn, "abc", 0, {{owLabel, 's'}}},
    {202, Fn::owAddTableBoxEntry, "abcs", 1},
    {203, Fn::owSetTableBoxLabel, "abs"},
    {205, Fn::owEnqTableBoxAttribs, "ab1"},
    {207, Fn::owRemoveTableBoxColumn, "ab"},
    {352, Fn::owEnqGaugeValue, "a1"},
    {353, Fn::owSetGaugeValue, "ab"},
    {600, Fn::owMDIAction, "a"},
    {850, Fn::owGetIconResource, "s", 1},
    {860, Fn::owEnqActiveWidget, "", 1},
    {870, Fn::owFreezeRTFChanges, "ay"},
    {871, Fn::owFreezeRTFChanges, "an"},
    {890, Fn::owSetListEntry, "ab", 0, {{owEntry, 'c'}, {owIcon, 'd'}, {owString, 's'}}},
    {903, Fn::owSetSelectedTextRange, "abc"},
    {904, Fn::owEnqSelectedTextRange, "a12"},
    {910, Fn::owReplaceText, "as"},
    {911, Fn::owEnqTextPos, "ab", 1, {{owPosition, 'c'}}},
    {913, Fn::owTextUndoAction, "ab", 1},
    {1000, Fn::owDefineDragDropCallback, "ab"},
    {1010, Fn::owDefineDragSelectCallback, "ab"},
    {1020, Fn::owDefineDragMoveCallback, "ab"},
    {1030, Fn::owDefineDragRect, "abcde"},
    {1200, Fn::owDefineChangeCallback, "ab"},
    {1201, Fn::owDefineDoubleClickCallback, "ab"},
    {1202, Fn::owDefineFileDropCallback, "ab"},
    {1203, Fn::owDefineValueErrorCallback, "ab"},
    {1204, Fn::owDefineLinkCallback, "ab"},
    {1300, Fn::owSetWidgetProp, "a", 0, {{owImage, 's'}}},
    {2000, Fn::owAddArrayRow, "ab"},
    {2001, Fn::owAddArrayColumn, "ab"},
    {2002, Fn::owRemoveArrayRow, "ab"},
    {2003, Fn::owRemoveArrayColumn, "ab"},
    {2700, Fn::owEnqKeyCallback, "a", 1},
    {2710, Fn::owDefineKeySelectCallback, "ab"},
    {2900, Fn::owEnqClipboardStatus, "a", 1},
    {5050, Fn::owSetToolbarPos, "abcde"},
    {6000, Fn::owAdoptChild, "abc"},
};

constexpr int MENU_ICONS = 854; // entry, check icon, uncheck icon, grey icon
constexpr int TREE_ENTRY = 880; // parent, position 1 for the last child, icon, close icon, open icon

struct Request {
    const Arguments& call;
    int at(char from) const { return call.integer(1 + (from - 'a')); }
    Word word(char from) const {
        switch (from) {
        case '1': return call.fixed[7];
        case '2': return call.fixed[8];
        case 's': return call.fixed[9];
        case 'n': return 0;
        case 'y': return 1;
        default: return wordOf(at(from));
        }
    }
};

void run(const Operation& operation, const Request& request) {
    Word fixed[8];
    int count = 0;
    for (const char* from = operation.fixed; *from; from++) fixed[count++] = request.word(*from);
    KeywordValue keywords[5];
    int given = 0;
    for (const auto& pair : operation.keywords) {
        if (pair.keyword) keywords[given++] = {pair.keyword, request.word(pair.from)};
    }
    const Word result = checkedCall({operation.function, fixed, count, keywords, given});
    if (operation.resultTo) request.call.give<int>(6 + operation.resultTo, static_cast<int>(result));
}

void setMenuIcons(const Request& request) {
    Widget* entry = widgetOf(request.at('a'));
    if (!entry || entry->kind != Kind::menuEntry) {
        reportFailure(26, request.at('a'));
        return;
    }
    const std::pair<int, char> icons[] = {{owCheckIcon, 'b'}, {owUncheckIcon, 'c'}, {owGreyIcon, 'd'}};
    for (const auto& [keyword, from] : icons) setProperty(*entry, propertyOf(keyword), request.at(from));
}

void createTreeEntry(const Request& request) {
    const int position = request.at('b') == 1 ? OLASTCHILD : request.at('b');
    const Word fixed[] = {request.word('a'), wordOf(position), request.word('s')};
    const KeywordValue keywords[] = {
        {owIcon, request.word('c')}, {owCloseIcon, request.word('d')}, {owOpenIcon, request.word('e')}};
    const Word handle = checkedCall({Fn::owCreateTreeEntry, fixed, 3, keywords, 3});
    request.call.give<int>(7, static_cast<int>(handle));
}

Word dispatch(const Arguments& call) {
    const int number = call.integer(0);
    if (number < 1) return 0;
    const Request request{call};
    if (number == MENU_ICONS) {
        setMenuIcons(request);
        return 0;
    }
    if (number == TREE_ENTRY) {
        createTreeEntry(request);
        return 0;
    }
    for (const Operation& operation : operations) {
        if (operation.number == number) run(operation, request);
    }
    return 0;
}

const Registration registration({{Fn::owDispatch, dispatch}});

} // namespace
} // namespace orba
