// Works a program's widgets as a user would, for tests. Everything goes through real Qt input events.
//
//     Toolkit toolkit;                      // opens the toolkit with a master window; closes it at its end
//     const int button = owCreatePushButton(toolkit.panel, 10, 10, 80, 24, "OK", owCallback, OIDENT, 0);
//     click(button);
//     EXPECT_EQ(identifiers(), (std::vector<int>{button}));
#pragma once

#include "toolkit/include/menu-c.h"

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QString>

#include <string>
#include <vector>

class QAction;
class QDialog;
class QWidget;

namespace orba::testing {

// A toolkit with a master window at 100, 100 of 400 by 300 pixels and a panel that fills it. Handles 0 where not made.
struct Toolkit {
    enum class Master { none, plain, mdi };
    explicit Toolkit(Master kind = Master::plain);
    ~Toolkit();
    int master = 0;
    int panel = 0; // on a plain master
};

// For a program that opens and closes the toolkit itself: boxes are answered by the script from now on, or no longer.
void watchProgram(bool on);

// --- finding

QWidget* viewOf(int handle);   // null when the handle names nothing or the widget has no view
QAction* actionOf(int handle); // of a menu entry
QWidget* frameOf(int handle);  // the window on the screen: the view, or its frame inside an MDI master
QRect rectOf(int handle);      // of the view in its parent
bool isShown(int handle);      // on the screen, with all its parents

// --- working. Positions are pixels in the view, from its top left; the middle unless told otherwise.

inline constexpr QPoint MIDDLE{-1, -1};
void press(int handle, QPoint at = MIDDLE, Qt::MouseButton button = Qt::LeftButton);
void release(int handle, QPoint at = MIDDLE, Qt::MouseButton button = Qt::LeftButton);
void click(int handle, QPoint at = MIDDLE, Qt::MouseButton button = Qt::LeftButton);
void moveHeld(int handle, QPoint to); // the pointer, with the left button held down
// Shift and the like are held down from now on, whatever the mouse does; none lets go.
void hold(Qt::KeyboardModifiers modifiers);
void doubleClick(int handle, QPoint at = MIDDLE);
// Press at `from`, moves in small steps, release at `to`.
void drag(int handle, QPoint from, QPoint to);
// Drags handle number 0 to 7 of the adopted widget (0 top left, then clockwise) by a distance.
void dragGrip(int grip, QPoint distance);
int gripCount();       // handles that are shown
QRect rubberBand();    // on the screen, empty while none is drawn
QString outlineText(); // beside what is drawn or dragged, empty for none
// Keys to the widget that has the focus; a handle gets the focus first.
void type(int handle, const char* text);
void key(int handle, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void focus(int handle);
// Chooses a menu entry, checked entries included.
void choose(int entry);
void moveByUser(int window, QPoint to);
void resizeByUser(int window, QSize size);
void showWhole(int window); // a designed one, whose client area is scrolled otherwise
void closeByUser(int window);
// Lets Qt do what waits.
void settle(int milliseconds = 0);

// --- reading

QImage picture(int handle);
QColor pixel(int handle, QPoint at);
QString shownText(int handle); // label, title, text
QString toolTip(int handle);

// --- events and reports

// All events that wait, read through owAction and owEnqActionState.
std::vector<OACTION> events();
std::vector<int> identifiers();
// Numbers reported since the last call.
std::vector<int> reports();
std::string lastReportedRoutine();

// --- boxes. A script line is used up by the next box; a box that the script does not expect, and a line that no box
// used, fail the test.

// Answers as owDisplayMessageBox gives them: 4 OK, 1 Cancel, 6 Yes, 3 No.
void expectBox(const char* title, const char* text, int answer);
// An empty path cancels the browser.
void expectBrowser(const char* title, const std::string& path);
void expectColourBox(const QColor& choice);
// Any other box: accepted or rejected.
void expectDialogue(const char* title, bool accept);
bool scriptIsEmpty();

// From now on boxes go to `answerer` instead of the script, and it has to end them; null: to the script again.
void answerBoxes(void (*answerer)(QDialog& box));

} // namespace orba::testing
