// What the files of the frame itself share, and no family needs.
#pragma once

#include "toolkit/frame/core.h"

#include <QEventLoop>
#include <QHash>
#include <QString>

#include <deque>
#include <utility>

namespace orba {

// One event on its way to the program.
struct Event {
    int identifier = 0;
    int handle = 0;
    int key = 0;
    int status = 0;
    QPointF position;
    QString text;
    std::vector<std::pair<float, int>> values;
};

// Everything that lasts from owInitializeMenu to owCloseMenu.
struct Session {
    int state = 0;
    std::deque<Event> queue;
    Event current;
    QEventLoop* waiting = nullptr; // the loop of owAction while it waits
    std::vector<int> doomed;       // windows to erase once the present event has been handled
    QHash<int, int> keys;          // key code to identifier
    QHash<int, int> keySelects;
    int lastKey = 0;
    int activeWindow = 0; // handle that the input is confined to, 0 for none
    int gridColumns = 36;
    int gridRows = 27;
    bool gridCells = false; // numbers are cells
    int snap = 1;
    bool bubbleHelp = true;
    int style = 0;
    int entrySelection = 0;
    bool managed = false;  // owManage ran
    int openBoxes = 0;     // boxes of the toolkit that wait for an answer
    int expectedFocus = 0; // widget that gets the focus once its window is active
    int programDepth = 0;  // above 0 while the program's own calls run: what Qt signals then is no user's doing
};

extern Session session;

// Key of a Qt key event as programs see it, 0 for none.
int keyCode(const class QKeyEvent& event);

// The common properties of every widget.
bool getCommonProperty(Widget& widget, int property, Value& value);
bool setCommonProperty(Widget& widget, int property, const Value& value);
bool getProperty(Widget& widget, int property, Value& value);
bool setProperty(Widget& widget, int property, const Value& value);

void setStatus(Widget& widget, int status);
void showHelp(Widget& widget);

// The keyword and the identifier offset of a callback.
struct SlotRow {
    Slot slot;
    int keyword;
    int property; // 0 for none
    int offset;   // times OIDENT
};
const SlotRow& slotRow(Slot slot);
void defineCallback(Widget& widget, Slot slot, int identifier);

// Makes a further object (a client area) known as part of a widget.
void knowObject(Widget& widget, const QObject* object);
void resetRegistry();

// Installs the filter that every view of a widget goes through.
void watch(QWidget* view);
void forgetWidget(Widget& widget); // adoption, focus, queue

// Drag and drop; true when the event is used up.
bool dragEvent(QObject* target, QEvent* event);
// What hangs on a widget that the user worked.
void obeyLinks(const Widget& widget);

bool inputBlocked(const QObject* target); // confined to another window
void closeTimers();
void loadColours();
void adoptedErased(int handle);
void installInputFilter();
void removeInputFilter();

} // namespace orba
