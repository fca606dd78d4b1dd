// The windows around the forms: Icon Bar, Tool Box, Properties, Object Hierarchy, Code Editor, Compiler Log, and the
// master window that holds them. Built once at start-up, shown and hidden, docked and floated until the end.
#pragma once

void buildMasterWindow(); // with its menus, bars and status bar, at the stored place
void buildControlWindows();
void raiseFloatingWindows(); // once the master window shows, above which they belong

// Shows the window of a View entry if it is hidden, and checks the entry.
void showControlWindow(int viewCommand);
bool controlWindowShown(int viewCommand);

// Forms were shown, hidden or loaded: whether the button for all of them hides or shows them next.
void markFormsShown();

void viewPaneCommand();         // CMD_VIEW_HIERARCHY, ..._PROPERTIES, ..._CODE_EDITOR, ..._COMPILER_LOG
void viewBarCommand();          // CMD_VIEW_ICON_BAR, ..._TOOL_BOX
void controlWindowEvent();      // a window's own event
void showAllCommand();          // CMD_SHOW_ALL
void raiseWindowsCommand();     // CMD_RAISE_WINDOWS
void defaultPositionsCommand(); // CMD_DEFAULT_POSITIONS
void masterWindowEvent();       // CMD_MASTER_WINDOW
