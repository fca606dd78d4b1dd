// Selecting, placing, moving, resizing: from a mouse action on a form to the change of the project.
#pragma once

#include "project/records.h"

void selectTool(int tool);
void selectWidget(WidgetNode* node);
void adoptWidget(const WidgetNode& node);

// Makes `list` (owned copies) the selection, one live panel standing for all of them. Takes the list, whatever comes.
void groupSelection(WidgetNode* parent, WidgetNode* list);
void ungroupSelection(WidgetNode* list, WidgetNode* second);
void buildGroupPanel(WidgetNode& parent, WidgetNode* list, bool keep);
// With Shift held, adds a widget beside the selected ones to the selection. True when Shift was meant for it.
bool shiftAdds(WidgetNode& found);
void dropSelection();        // ends a group, frees the selection list
void refreshSelectionList(); // copies of the records as they are now, code on show included
void showSelectionCount();   // in the status bar
void forgetRecords(); // before the records of the project are freed: live forms down, no pointer to a record left

void readGeometry(WidgetNode* node); // null for the group

// The pass over the forms that follows every event. `id` is the identifier of the event.
void designEvent(int id);

// The part of it that listens to windows and to presses on panels: runs when no widget took the event.
void formEvent(int id);

// Ends a rubber band at `x`, `y` in pixels of `panel` and selects what lies inside.
enum class Band { Still, Empty, Caught }; // the pointer didn't move; nothing lay inside; a selection was tried
Band endRubberBand(WidgetNode& panel, int x, int y);

// Handlers of the commands of the surface. Each runs once for its identifier, before designEvent.
void newFormCommand();       // CMD_NEW_FORM
void movedCommand();         // CMD_MOVED
void doubleClickCommand();   // CMD_DOUBLE_CLICK
void unadoptCommand();       // CMD_UNADOPT
void textEditedCommand();    // CMD_TEXT_EDITED
void entrySelectedCommand(); // CMD_TEXT_SELECTED, CMD_VALUE_SELECTED
void valueEditedCommand();   // CMD_VALUE_EDITED
void toggledCommand();       // CMD_TOGGLED
void hierarchyRowCommand();  // CMD_HIERARCHY_ROW
