// The creation calls, one row for each type.
#include "surface/live_types.h"

#include "codegen/attributes.h"
#include "codegen/quotes.h"
#include "menu-c.h"
#include "menu-words.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "surface/commands.h"
#include "surface/live.h"
#include "surface/state.h"

#include <algorithm>
#include <bit>
#include <initializer_list>
#include <string>
#include <vector>

#define BOX(n) (n).xpos, (n).ypos, (n).width, (n).height

namespace {

// ---- Calls put together from the attributes of a type, as a program's are.

// One word of a call. Texts must outlive it.
struct Word {
    std::int64_t bits;
    Word(int value) : bits(value) {}
    Word(float value) : bits(std::bit_cast<std::int64_t>(static_cast<double>(value))) {}
    Word(const std::string& text) : Word(static_cast<const void*>(text.c_str())) {}
    Word(const void* record) : bits(static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(record))) {}
};

class Words {
public:
    void add(Word word) { bits_.push_back(word.bits); }
    void add(int keyword, Word value) {
        add(keyword);
        add(value);
    }
    int call(std::string_view routine) {
        add(0);
        return static_cast<int>(owCallWords(owRoutineNumber(std::string(routine).c_str()), bits_.data()));
    }

private:
    std::vector<std::int64_t> bits_;
};

constexpr int NUMBERS[] = {
#define KEYWORD(name) name,
#include "codegen/keywords.def"
#undef KEYWORD
};

bool isNamed(const Attribute& attribute, const WidgetNode& n) {
    if (!attribute.whole) return false;
    return !attribute.other.empty() || !nameOf(attribute.names, n.*attribute.whole).empty();
}

void addValue(Words& words, const Attribute& attribute, const WidgetNode& n) {
    const int keyword = NUMBERS[static_cast<size_t>(attribute.keyword)];
    switch (attribute.kind) {
    case AttributeKind::NUMBER:
    case AttributeKind::EDGE: words.add(keyword, n.*attribute.whole); break;
    case AttributeKind::NAMED:
        if (isNamed(attribute, n)) words.add(keyword, n.*attribute.whole);
        break;
    case AttributeKind::WHOLE: words.add(keyword, static_cast<int>(n.*attribute.real)); break;
    case AttributeKind::TEXT: words.add(keyword, n.*attribute.text); break;
    case AttributeKind::IMAGE: words.add(keyword, n.icon); break; // the file: a program holds it as a resource
    case AttributeKind::RESOURCE: words.add(keyword, owGetIconResource((n.*attribute.text).c_str())); break;
    }
}

void addPlace(Words& words, const WidgetNode& n) {
    words.add(owVpos, n.vpos);
    words.add(owHpos, n.hpos);
    words.add(owExpand, n.expand);
}

void addHelp(Words& words, const WidgetNode& n) {
    words.add(owHelp, n.bubbleHelp);
    words.add(owHelpJustify, n.helpJustify);
}

void addAttributes(Words& words, const AttributesOfType& type, const WidgetNode& n) {
    for (const Attribute& attribute : type.attributes) {
        switch (attribute.keyword) {
        case Keyword::PLACE: addPlace(words, n); break;
        case Keyword::HELP: addHelp(words, n); break;
        case Keyword::TAB: words.add(owTabList, n.tabList); break;
        default:
            if (attribute.live && isTold(attribute, n)) addValue(words, attribute, n);
        }
    }
}

// A field that fills a pane has room for lines whatever height its record keeps.
int heightOf(const WidgetNode& n) {
    const bool fillsPane = standsIn(n, TYPE_PANE) && n.expand != 0 && n.vpos == OMIDDLE;
    return isText(n) && fillsPane ? 0 : n.height;
}

// As a program gets it: line ends as bars, which are lines again where there is room for them.
std::string textOfCall(const WidgetNode& n) { return n.subType == ORICHEDIT ? n.text : withBars(n.text); }

// `fixed` stands behind place and size.
int create(const WidgetNode& n, int parent, std::initializer_list<Word> fixed, std::string_view routine = {}) {
    const AttributesOfType& type = *attributesOf(n.type);
    Words words;
    for (const int word : {parent, n.xpos, n.ypos, n.width, heightOf(n)}) words.add(word);
    for (const Word word : fixed) words.add(word);
    addAttributes(words, type, n);
    return words.call(routine.empty() ? type.routine : routine);
}

int accessOf(const WidgetNode& n) { return isEdited(n) ? OEDIT : ODISPLAY; }

// ---- The types.

int createForm(const WidgetNode& n, int) {
    return owCreateComplexDialogueBox(1, BOX(n), OALL, n.text.c_str(), owMaxWidth, n.width, owMaxHeight, n.height,
                                      owIconFile, n.icon.c_str(), owIconFormat, n.format, owIconID, n.iconId, owVpos,
                                      n.vpos, owHpos, n.hpos, owQuitMode, OLEAVE, 0);
}

int createMainPanel(const WidgetNode& n, int parent) {
    return owCreatePanel(parent, 0, 0, n.width, n.height, owBorderType, ONOBOUNDARY, owImage, n.icon.c_str(), owLineCol,
                         n.colour1, owLineBorder, n.colour2, owFillCol, n.colour3, owFillBorder, n.colour4, owVpos,
                         n.vpos, owHpos, n.hpos, owExpand, n.expand, 0);
}

int createOnBar(const WidgetNode& n, int bar, int kind, const std::string& string, int type) {
    return owCreateToolBarButton(bar, kind, string.c_str(), owIconType, type, owHelp, n.bubbleHelp.c_str(),
                                 owHelpJustify, n.helpJustify, owTabList, n.tabList, 0);
}

int createButton(const WidgetNode& n, int parent) {
    return n.onToolbar ? createOnBar(n, parent, OTEXTBUTTON, n.text, OBUTTON) : create(n, parent, {n.text});
}
int createToggle(const WidgetNode& n, int parent) { return create(n, parent, {n.text, n.initialStatus}); }
int createText(const WidgetNode& n, int parent) {
    const std::string text = textOfCall(n);
    return create(n, parent, {text, n.fieldWidth, accessOf(n)});
}

int createValue(const WidgetNode& n, int parent) {
    if (n.type == TYPE_VALUE_LABEL) return create(n, parent, {n.value, n.fieldWidth, n.format, accessOf(n)});
    return create(n, parent, {n.value, n.fieldWidth, n.format, accessOf(n), owVmin, n.minValue, owVmax, n.maxValue});
}

int createIcon(const WidgetNode& n, int parent) {
    return n.onToolbar ? createOnBar(n, parent, OICONBUTTON, n.icon, n.subType)
                       : create(n, parent, {n.icon, n.format, n.iconId});
}
int createListBox(const WidgetNode& n, int parent) { return create(n, parent, {n.contents}); }
int createComboBox(const WidgetNode& n, int parent) { return create(n, parent, {n.contents, n.editMode}); }

int createSlider(const WidgetNode& n, int parent) {
    return create(n, parent, {n.minValue, n.maxValue, n.stepValue, n.value});
}

int createFrame(const WidgetNode& n, int parent) {
    const OLIMIT limits = {n.xMin, n.xMax, n.yMin, n.yMax};
    return create(n, parent, {static_cast<const void*>(&limits)});
}

int createArray(const WidgetNode& n, int parent) { return create(n, parent, {n.columns, n.rows}); }
int createGauge(const WidgetNode& n, int parent) { return create(n, parent, {n.icon}); }
int createTtyEntry(const WidgetNode& n, int parent) { return create(n, parent, {n.size, n.text}); }
int createPlain(const WidgetNode& n, int parent) { return create(n, parent, {}); }

// The boxes in it are widgets of their own while designing, so it is a panel that looks like it.
int createRadioBox(const WidgetNode& n, int parent) { return create(n, parent, {}, "owCreatePanel"); }

int createToolBar(const WidgetNode& n, int window) {
    return owCreateToolBar(window, n.initialPosition, n.iconSize, owTitle, n.text.c_str(), owTitleFlag, n.titleFlag,
                           owQuitMode, OLEAVE);
}

int createPane(const WidgetNode& n, int window) {
    return owCreateDockingPane(window, n.initialPosition, BOX(n), owTitle, n.text.c_str(), owTitleFlag, n.titleFlag,
                               owQuitMode, OLEAVE);
}

int createSeparator(const WidgetNode& n, int parent) {
    return owCreateToolBarSeparator(parent, owSeparatorType, n.subType);
}

// ---- What follows the creation call.

void finishForm(WidgetNode& n) {
    const bool cells = project.gridMode == 1;
    owDesignWindow(n.handle, design.movedForms.contains(n.id), cells ? project.gridPixelX : 1,
                   cells ? project.gridPixelY : 1);
    buildLiveStatusBar(n);
    buildLiveMenu(n);
}

// The creation call of a button on a tool bar takes no colours.
void finishButton(WidgetNode& n) {
    if (n.onToolbar) owSetWidgetProp(n.handle, owOnCol, n.colour1, owOffCol, n.colour2, owTextCol, n.colour3, 0);
}

void finishValue(WidgetNode& n) {
    owSetValueSetting(n.handle, static_cast<double>(n.value));
    if (n.type == TYPE_VALUE_ENTRY) design.valueWidget = n.handle;
}

void finishList(WidgetNode& n) {
    if (n.contents == 0) fillListEntries(n);
}

void finishPanel(WidgetNode& n) {
    owSetGuiCursor(n.handle, 0, OCURSORCROSS);
    if (!standsIn(n, TYPE_TAB_BOX)) return;
    owSetWidgetProp(n.handle, owTitle, n.text.c_str(), 0); // its tab has one in any case
    owSetWidgetStatus(n.handle, OSELECTABLE);
}

void finishFrame(WidgetNode& n) {
    owDefineExposeCallback(n.handle, n.handle + 3 * OIDENT);
    drawFrameCross(n);
}

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
    if (n.initialPosition != OFLOATING) return;
    owSetToolbarPos(n.handle, n.xpos, n.ypos, n.width, n.initialPosition);
    if (!n.child) design.placeholders[n.id] = owCreateToolBarButton(n.handle, OTEXTBUTTON, " ");
}

void finishPane(WidgetNode& n) {
    if (!n.child)
        design.placeholders[n.id] = owCreatePanel(n.handle, 0, 0, 0, 0, owBorderType, ONOBOUNDARY, owVpos, OMIDDLE,
                                                  owHpos, OCENTRE, owExpand, 1, 0);
}

constexpr int BY_HANDLE = LiveType::BY_HANDLE, NONE = 0;
constexpr bool FONT = true, NO = false;

constexpr LiveType TYPES[] = {
    {TYPE_FORM, createForm, finishForm, NONE, NONE, NO},
    {TYPE_MAIN_PANEL, createMainPanel, nullptr, BY_HANDLE, BY_HANDLE, NO},
    {TYPE_BUTTON, createButton, finishButton, BY_HANDLE, NONE, FONT},
    {TYPE_TOGGLE, createToggle, nullptr, CMD_TOGGLED, NONE, FONT},
    {TYPE_TEXT_ENTRY, createText, nullptr, CMD_TEXT_EDITED, CMD_TEXT_SELECTED, FONT},
    {TYPE_TEXT_LABEL, createText, nullptr, NONE, BY_HANDLE, FONT},
    {TYPE_VALUE_ENTRY, createValue, finishValue, CMD_VALUE_EDITED, CMD_VALUE_SELECTED, FONT},
    {TYPE_VALUE_LABEL, createValue, finishValue, BY_HANDLE, NONE, FONT},
    {TYPE_ICON, createIcon, nullptr, BY_HANDLE, NONE, FONT},
    {TYPE_LIST_BOX, createListBox, finishList, BY_HANDLE, BY_HANDLE, FONT},
    {TYPE_SLIDER, createSlider, nullptr, BY_HANDLE, NONE, NO},
    {TYPE_PANEL, createPlain, finishPanel, BY_HANDLE, BY_HANDLE, FONT},
    {TYPE_COMBO_BOX, createComboBox, finishList, NONE, BY_HANDLE, FONT},
    {TYPE_RADIO_BOX, createRadioBox, finishPanel, BY_HANDLE, BY_HANDLE, NO}, // no program gives its title a font
    {TYPE_GRAPHICS_FRAME, createFrame, finishFrame, BY_HANDLE, BY_HANDLE, NO},
    {TYPE_TEXT_ARRAY, createArray, applyArrayGeometry, NONE, BY_HANDLE, FONT},
    {TYPE_VALUE_ARRAY, createArray, applyArrayGeometry, NONE, BY_HANDLE, FONT},
    {TYPE_TOOL_BAR, createToolBar, finishToolBar, BY_HANDLE, NONE, NO},
    {TYPE_TAB_BOX, createPlain, nullptr, NONE, BY_HANDLE, FONT},
    {TYPE_GAUGE, createGauge, nullptr, BY_HANDLE, NONE, NO},
    {TYPE_PROGRESS_BAR, createPlain, nullptr, BY_HANDLE, NONE, NO},
    {TYPE_TTY_ENTRY, createTtyEntry, nullptr, NONE, BY_HANDLE, FONT},
    {TYPE_TREE_VIEW, createPlain, buildLiveTree, BY_HANDLE, NONE, FONT},
    {TYPE_TABLE_BOX, createPlain, finishTable, BY_HANDLE, NONE, FONT},
    {TYPE_TOOL_SEPARATOR, createSeparator, nullptr, NONE, NONE, NO},
    {TYPE_PANE, createPane, finishPane, BY_HANDLE, NONE, NO},
};
static_assert(Missing<missingRow(TYPES)>::none);

} // namespace

const LiveType* liveType(WidgetType type) { return rowOf(TYPES, type); }

int createdKeyword(WidgetType type, int WidgetNode::*field) {
    const AttributesOfType* known = attributesOf(type);
    if (!known) return 0;
    const auto told = std::ranges::find(known->attributes, field, &Attribute::whole);
    return told == known->attributes.end() ? 0 : NUMBERS[static_cast<size_t>(told->keyword)];
}

int createStandIn(const WidgetNode& n, int parent) {
    return owCreatePanel(parent, BOX(n), owTitle, n.name.c_str(), owBorderType, OSINGLE, owVpos, n.vpos, owHpos, n.hpos,
                         owExpand, n.expand, 0);
}
