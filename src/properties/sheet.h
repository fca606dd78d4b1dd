// The Properties window: a two-column list of the current widget's properties.
#pragma once

#include "project/records.h"

#include <string>

// Makes the list inside `panel`, which fills the docking pane of handle `pane`, and joins the sheet to the hooks.
void buildPropertySheet(int pane, int panel);

// Rebuilds the list for `widget`; null leaves it empty.
void showProperties(WidgetNode* widget);

// While default records are edited the sheet stands in a panel of their dialogue, and `edited` hears of each change. It
// shows nothing at first, and goes back to its pane with nothing on show.
void lendSheet(int panel, void (*edited)());
void returnSheet();

const std::string& selectedPropertyLabel();
bool sheetHolds(int widget); // handle of the list or of a cell in it
int propertyList();          // handle of the list; another one after every showProperties
