// The sheet: forms full of widgets, each with one property that isn't as it is placed. It is made in the running
// designer by the edits of the property sheet, so that it holds what a user can bring about and nothing else.
#pragma once

#include "properties/rows.h"

#include <string>
#include <vector>

// A place on a form of the sheet, in pixels from its top left, that one edit changes; the whole form where the edited
// widget is a bar, a pane or the form itself.
struct Spot {
    std::string what; // "Push Button: Type = 1"
    WidgetType type;
    RowId row;
    std::string form; // its title, which no other form of the sheet has
    int x, y, width, height;
};

// What stands in a cell before it is edited. Some rows are in force only with another property as it is here.
struct Scene {
    const char* name;
    WidgetType type;
    WidgetNode* (*make)(WidgetNode& parent, int x, int y); // returns the widget to edit
};

// Fills the open project, which is a new one.
std::vector<Spot> makeSheet();
