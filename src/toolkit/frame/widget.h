// The records behind handles: a widget, its place, its family.
#pragma once

#include "toolkit/frame/arguments.h"

#include <QHash>
#include <QPointF>
#include <QPointer>
#include <QRect>
#include <QWidget>
#include <array>
#include <memory>
#include <span>
#include <vector>

namespace orba {

// Kind numbers as programs see them (OWIDGET.kind, owKind).
enum class Kind : int {
    none = -1,
    master = 0,
    menuBar = 1,
    window = 2, // complex dialogue box, also inside an MDI master; a floating pane says 2 as well
    popupMenu = 3,
    pullDownMenu = 4,
    menuEntry = 5,
    graphicsFrame = 6,
    pushButton = 7,
    toggle = 8,
    slider = 9,
    textEntry = 10,
    valueEntry = 11,
    icon = 12,
    listBox = 13,
    comboBox = 14,
    panel = 15,
    radioBox = 16,
    textLabel = 17, // a text entry made to display only
    statusBar = 20,
    menuSeparator = 21,
    array = 23, // of texts or values
    tabBox = 24,
    treeView = 25,
    treeEntry = 26,
    tableBox = 27,
    ttyEntry = 28,
    spinner = 29,
    toolBar = 30,
    toolSeparator = 31,
    mdiClient = 32, // handle 2 of an MDI program
    dockingPane = 33,
    propertyList = 35,
    progressBar = 36,
    toolButton = 37, // on a tool bar, with text or icon
    gauge = 38,
    openGlFrame = 40,
};

// Callbacks of a widget. The automatic identifier of all but the general one is handle + offset.
enum class Slot : int {
    general,
    select,
    move,
    expose,
    change,
    dragDrop,
    doubleClick,
    fileDrop,
    dragSelect,
    dragMove,
    valueError,
    link,
    count
};

// A property or setting on its way in or out; which member counts follows from the keyword's kind.
struct Value {
    int integer = 0;
    double real = 0;
    QString text;
};

struct Widget;
struct FamilyData;

// What a family keeps under a keyword (see attributes.h): the member behind it is of the record that all widgets have
// or of the family's data.
struct Attribute {
    int keyword;
    int property;                                                // 0 where only the creation call has the keyword
    int* (*integer)(Widget* record, FamilyData* data) = nullptr; // one of the three; null of an absent holder
    double* (*real)(Widget* record, FamilyData* data) = nullptr;
    QString* (*text)(Widget* record, FamilyData* data) = nullptr;
};

// How a family behaves where it differs from the common ways. Any pointer may be null.
struct Family {
    const char* name = "";
    // What it keeps under keywords, and what brings a view into line with it.
    std::span<const Attribute> attributes = {};
    void (*show)(Widget& widget) = nullptr;
    // A property by number that is neither kept nor one of the common ones (see properties.cpp), or differs from them.
    // False when the family does not know it; then the other ways are tried.
    bool (*get)(Widget& widget, int property, Value& value) = nullptr;
    bool (*set)(Widget& widget, int property, const Value& value) = nullptr;
    // -1 hidden, 0 disabled, 1 enabled, 2 checked. Commonly: shows, hides, enables the view.
    void (*setStatus)(Widget& widget, int status) = nullptr;
    // Label or title, for owEnqWidgetInfo, owLabel, owTitle, when it is no attribute.
    QString (*text)(Widget& widget) = nullptr;
    void (*setText)(Widget& widget, const QString& text) = nullptr;
    // Pixels for a width or height of 0. Commonly the view's size hint.
    QSize (*naturalSize)(Widget& widget) = nullptr;
    // The font was set on the view; the colour table or the desktop's palette changed.
    void (*fontChanged)(Widget& widget) = nullptr;
    void (*coloursChanged)(Widget& widget) = nullptr;
    // Fills or takes value, vmin, vmax, step of the information record.
    void (*enquireInfo)(Widget& widget, OWIDGET& info) = nullptr;
    void (*takeInfo)(Widget& widget, const OWIDGET& info) = nullptr;
    // A child was added to the client area, or is about to go.
    void (*childAdded)(Widget& widget, Widget& child) = nullptr;
    void (*childLeaving)(Widget& widget, Widget& child) = nullptr;
    // Before the view is deleted, children first.
    void (*erased)(Widget& widget) = nullptr;
    // A parent that places its children itself (bars, tabs, property lists): called once a child has its arguments,
    // with place.width and height in pixels. The frame then neither places nor shows the child.
    void (*placeChild)(Widget& widget, Widget& child) = nullptr;
    // The status of a child is the parent's to show. False leaves it to the child's family.
    bool (*setChildStatus)(Widget& widget, Widget& child, int status) = nullptr;
    // An event of a child that has no callback for it.
    void (*childEvent)(Widget& widget, Widget& child, Slot slot) = nullptr;
};

// What a family keeps of its own with a widget.
struct FamilyData {
    virtual ~FamilyData() = default;
};

// Where a widget stands in its parent's client area. Pixels.
struct Placement {
    bool placed = false; // false: the parent or Qt places it (bar buttons, pages, menus, windows)
    int x = 0;           // distance from the edge that hpos names; from the left when centred
    int y = 0;           // upward from the bottom, downward from the top; from the top when centred
    int width = 0;       // 0: the natural size, or the whole parent along an expanding centred axis
    int height = 0;
    int hpos = OLEFT;
    int vpos = OBOTTOM;
    int expand = 0;
    QSize inset{0, 0}; // owSize below 100 in grid mode: pixels left free in the widget's cells
};

struct Widget {
    int handle = 0;
    Kind kind = Kind::none;
    const Family* family = nullptr;
    Widget* parent = nullptr; // null for the master window
    std::vector<Widget*> children;
    QPointer<QWidget> view;   // null for menu and tree entries
    QPointer<QWidget> client; // where children live; null: the view itself
    Placement place;
    std::array<int, static_cast<int>(Slot::count)> callbacks{};
    QHash<int, int> keys; // of its own and of all that lies in it: key code to identifier
    int status = OSELECTABLE;
    int quitMode = OHIDE;
    int titleFlag = OALL;
    int type = 0;  // owType or the family's own type keyword
    int accel = 0; // mnemonic, a character code
    int tabList = OON;
    int dragMode = OOFF;
    QString help;
    int helpJustify = OCENTRE;
    int helpDelay = -1;
    QString fontFace = QStringLiteral("MS Sans Serif"); // as the program named it
    int pointSize = 10;
    int charSet = 0;
    std::unique_ptr<FamilyData> data;
};

template <typename T> T& dataOf(Widget& widget) { return static_cast<T&>(*widget.data); }

} // namespace orba
