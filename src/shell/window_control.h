// The windows around the forms: Icon Bar, Tool Box, Properties, Object Hierarchy, Code Editor, Compiler Log, and the
// master window that holds them. Built once at start-up, shown and hidden, docked and floated until the end.
#pragma once

void buildMasterWindow(); // with its menus, bars and status bar, at the stored place
void buildControlWindows();
void raiseFloatingWindows(); // once the master window shows, above which they belong

// Shows the window of a View entry if it is hidden, and checks the entry.
void showControlWindow(int viewCommand);

// Forms were shown, hidden or loaded: whether the button for all of them hides or shows them next.
void markFormsShown();
