// The menu bar, the Icon Bar, the Tool Box and the popup menu: which commands of the table stand in them, in which
// order.
#pragma once

void buildMenuBar(int masterWindow);
int buildIconBar(int masterWindow); // each returns its handle
int buildToolBox(int masterWindow);
int buildWidgetPopup(int masterWindow);

int fileMenu(); // handle of the pull-down, whose end holds the recent projects
