// The toolkit's state from owInitializeMenu to owCloseMenu.
#pragma once

#include "toolkit/views/program_doing.h"

#include <QEventLoop>
#include <QHash>
#include <QPointF>
#include <QString>
#include <deque>
#include <utility>
#include <vector>

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
    int inputIdentifier = 0; // sent when the focus has moved, 0 for none
    int inputTold = 0;       // widget that it was sent for last
    int activeWindow = 0;    // handle that the input is confined to, 0 for none
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
    ProgramDoing program;  // its own calls run: what Qt signals then is no user's doing
};

extern Session session;

// 0 closed, 1 open, 2 with a master window.
int sessionState();
void setSessionState(int state);

// The box for a program that waits for events without a window, and the program's end.
[[noreturn]] void abortSession();

// Starts Qt if the program has not; safe to call again.
void startQt();

// Handlers of families that wish to know that the toolkit closes (caches).
void onClose(void (*callback)());

} // namespace orba
