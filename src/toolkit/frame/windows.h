// The windows of a program: master window, dialogue boxes of their own, dialogue boxes inside an MDI master.
#pragma once

#include "toolkit/frame/widget.h"
#include "toolkit/views/program_doing.h"

#include <QMainWindow>

class QMdiArea;
class QMdiSubWindow;

namespace orba {

struct WindowData : FamilyData {
    QSize client;             // size that the program asked for the area of the children
    bool wholeWindow = false; // the size counts the bars as well (an MDI master)
    int initState = ONORMAL;
    bool shown = false;             // was on the screen before
    ProgramDoing program;           // changes it, and the window manager follows
    QRect known;                    // last geometry that Qt told of
    QMdiSubWindow* frame = nullptr; // of a dialogue box inside an MDI master
    bool placedByUser = false;      // its user has moved it
    bool aside = false;             // it stands over the free middle of the master window, not at its place
    bool designed = false;          // its widgets are drawn by the user, see designing.h
    QSize unit{1, 1};               // pixels that count as one while it is designed
};

// The Qt window of every window of a program. Its central widget is the client area; bars and panes dock around it.
class FormWindow : public QMainWindow {
    Q_OBJECT
public:
    FormWindow(QWidget* parent, Qt::WindowFlags flags) : QMainWindow(parent, flags) {}
    int handle = 0;

protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* target, QEvent* event) override; // its frame inside an MDI master
    QMenu* createPopupMenu() override { return nullptr; }
};

WindowData& windowData(const Widget& window);
QWidget* windowArea(const Widget& window); // its client area
QSize windowSize(const Widget& window);    // as the program measures it
void readWindowPlace(Widget& window);      // takes over where the window stands now
QPoint ownPlaceOf(const Widget& window);   // where its place says that it stands
void moveWindow(Widget& window);           // to where its place says
void startSettling(Widget& window);        // what Qt tells of it for a while answers the program

// Shows a window, in front of the others or where it was.
void showWindow(Widget& window, bool front);
void raiseWindow(Widget& window);
void fitWindow(Widget& window);            // gives the client area the size the program asked for
void windowBarsChanged(Widget& anyWidget); // bars of a window came or went
void activateView(QWidget* view);          // its window takes the input; no event follows
void inputByUser();                        // a key or button: what happens now is the user's doing

// The Qt window that a tool bar, pane or bar of a window docks to.
FormWindow* formWindowOf(Widget* widget);

// The frame of a window on the screen: the window itself, or its frame inside an MDI master.
QWidget* outerOf(const Widget& window);

} // namespace orba
