// The frame that all families of widgets share: records behind handles, events, creation, layout, properties, colours.
//
// A family is one file. It says which routines it answers and how its widgets behave:
//
//     const Family pushButtons{.name = "push button", .set = setButtonProperty, .text = buttonText, ...};
//     Word createPushButton(const Arguments& call) {
//         Widget* parent = widgetOf(call.integer(0));
//         auto* view = new QPushButton(call.text(5), clientOf(parent));
//         Widget& button = addWidget(Kind::pushButton, pushButtons, parent, view);
//         QObject::connect(view, &QPushButton::clicked, [handle = button.handle] { post(handle, Slot::general); });
//         return finishCreation(button, call);
//     }
//     const Registration registration({{Fn::owCreatePushButton, createPushButton}, ...});
//
// When a handler runs, the checks of checked/ have passed: the toolkit is open, the handle names a widget of the right
// kind, ranges hold. Only handles that are no first argument need a look of their own.
//
// Signal handlers only post events; they never call the program. While one of the program's own calls runs, post() does
// nothing: what Qt signals then is the program's doing. So a handler needs no signal blocking of its own, unless the
// signal comes later through the event loop.
//
// The frame itself posts double clicks (but on lists, tables, trees and property lists, whose families know the row),
// pointer moves, drag and drop and file drops for every view.
#pragma once

#include "toolkit/frame/arguments.h"
#include "toolkit/views/fonts.h"

#include <QColor>
#include <QPointF>
#include <QPointer>
#include <QRect>
#include <QWidget>

#include <array>
#include <initializer_list>
#include <memory>
#include <span>
#include <vector>

namespace orba {

// ------------------------------------------------------------------------------------------------------- routines

using Handler = Word (*)(const Arguments& call); // a handle, an integer, or 0 where the routine has no result

struct Routine {
    Fn function;
    Handler handler;
};

// Put one at namespace scope in a family's file.
struct Registration {
    Registration(std::initializer_list<Routine> routines);
};

Handler handlerOf(Fn function); // null when no family has it
Fn routineRegisteredTwice();    // Fn::count when each has one handler at most

// -------------------------------------------------------------------------------------------------------- records

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

// How a family behaves where it differs from the common ways. Any pointer may be null.
struct Family {
    const char* name = "";
    // A property by number, when it is not one of the common ones (see properties.cpp) or the family keeps it itself.
    // False when the family does not know it; then the common ways are tried.
    bool (*get)(Widget& widget, int property, Value& value) = nullptr;
    bool (*set)(Widget& widget, int property, const Value& value) = nullptr;
    // -1 hidden, 0 disabled, 1 enabled, 2 checked. Commonly: shows, hides, enables the view.
    void (*setStatus)(Widget& widget, int status) = nullptr;
    // Label or title, for owEnqWidgetInfo, owLabel, owTitle.
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

// The record of a handle; null when it names nothing.
Widget* widgetOf(int handle);
// The record whose view or client is `object` or holds it; null when there is none.
Widget* widgetAt(const QObject* object);
// The window (master, dialogue box) that holds a widget, itself included.
Widget* windowOf(Widget* widget);
// The Qt parent for a child's view.
QWidget* clientOf(Widget* parent);
// All live widgets, in no order.
void forEachWidget(void (*visit)(Widget& widget));
int widgetCount();

template <typename T> T& dataOf(Widget& widget) { return static_cast<T&>(*widget.data); }

// Makes the record: draws a handle, links it under its parent, knows the view. The view must have clientOf(parent) as
// its Qt parent, or be placed by Qt. `parent` null: a window without one.
Widget& addWidget(Kind kind, const Family& family, Widget* parent, QWidget* view);

// The last steps of every creation, for the keywords and arguments that the routine has: place (arguments "xpos" to
// "height" and the PLACE keywords), size, type, accelerator, tab list, callbacks in their fixed order, help, drag mode,
// read only, status; then shows the view. Returns the handle.
int finishCreation(Widget& widget, const Arguments& call);

// Erases a widget with all its children.
void eraseWidget(Widget& widget);

// --------------------------------------------------------------------------------------------------------- events

// Appends an event of a widget if it has that callback. Position in pixels in the view, from its top left.
void post(int handle, Slot slot, int status = 0, QPointF position = {}, const QString& text = {});
inline void post(const Widget& widget, Slot slot, int status = 0, QPointF position = {}, const QString& text = {}) {
    post(widget.handle, slot, status, position, text);
}
// Puts values into OACTION.args and iargs of the event that was posted last.
void addEventValue(float value, int whole);
// Appends an event by identifier; 0 appends nothing.
void postIdentifier(int identifier, int handle, int key = 0, int status = 0, QPointF position = {});
bool hasCallback(const Widget& widget, Slot slot);
// Status of the event that the program has in hand, if this widget raised it; else 0.
int statusOfEvent(const Widget& widget);
// Code of the last key or the mouse button that went to the program's windows, as OACTION.key gives it.
int lastKey();
// Runs Qt until a box that was opened is answered: no event of the program is read meanwhile.
int runBox(class QDialog& box);
// Is told of every box before it comes up; for tests that answer boxes. Null for none.
void setBoxWatcher(void (*watcher)(QDialog& box));

// --------------------------------------------------------------------------------------------------------- layout

// The reference cell in pixels, and whether numbers are cells.
QSize gridCell();
bool gridMode();
// From the unit in force to pixels and back.
int pixelsAcross(int units);
int pixelsDown(int units);
int unitsAcross(int pixels);
int unitsDown(int pixels);

// Puts one widget, or all children of a parent, in place. Called by the frame when a client area changes its size.
void placeWidget(Widget& widget);
void placeChildren(Widget& parent);
// Takes the view's present geometry as the widget's place, keeping its origin (end of a drag).
void takeGeometry(Widget& widget);

// ------------------------------------------------------------------------------------------------ colours, fonts

// Colour of an index or true colour. Index 12 is the window face, 16 its text, 18 the background of entries.
QColor colourOf(int colour);
bool isTrueColour(int colour);
void defineColour(int index, const QColor& colour);
// A change of these roles of a view's palette that stays until changed again; 0 means the desktop's own.
void setViewColour(QWidget* view, QPalette::ColorRole role, int colour);
// Height in pixels that suits a line of the desktop's font in entries.
int lineHeight();

// ------------------------------------------------------------------------------------------------ drawing helpers

// "&" doubled, and the accelerator's character marked as mnemonic, for labels of buttons and menus.
QString labelWithMnemonic(const QString& label, int accel);
// A program's text with bars as line breaks.
QString barsToLines(QString text);

// Reports a numbered error of the routine being called (see report.h); for what only the family can see.
void reportFailure(int code, int argument);

// Handlers of families that wish to know that the toolkit opens or closes (caches).
void onClose(void (*callback)());

} // namespace orba
