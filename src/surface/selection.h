// Selecting, placing, moving, resizing: from a mouse action on a form to the change of the project.
#pragma once

#include "project/tree.h"

#include <vector>

struct Box;

void selectTool(int tool);
void selectWidget(WidgetNode* node);
void adoptWidget(const WidgetNode& node);
bool mayBeDragged(const WidgetNode& node); // whether the mouse moves it while it is selected

// Makes the records, all of one parent, the selection, with one live panel standing for all of them. A single one is
// selected as usual; records that can't be moved together stay unselected, and the user is told.
void groupSelection(const Records& members);
void ungroup();                  // the members get live widgets in their parent again; they stay in the selection
void buildGroupPanel(bool keep); // of the selection; with `keep` the panel that stands goes on
// With Shift held, adds a widget beside the selected ones to the selection. True when Shift was meant for it.
bool shiftAdds(WidgetNode& found);
void dropSelection();      // ends a group; nothing is in the selection then
void adoptSelection();     // the drag handles again, after they were taken off for a while
void showSelectionCount(); // in the status bar
void selectClicked();      // the widget that the event at hand is about, as the right button does
void forgetRecords();      // before the records of the project are freed: live forms down, no pointer to a record left

// Takes what a drag made of the live widget, or of the group's panel, into the records. False when nothing changed, or
// what was asked for can't be: then the live widget is back at its place.
bool takeGeometry(WidgetNode& node);
bool takeGroupGeometry();
void giveBox(WidgetNode& node, const Box& box); // a record, as far as its type can have that height

// Hangs the selection on another parent, live, behind the children of it.
void moveSelectionTo(WidgetNode& target);

// The pass over the forms that follows every event. `id` is the identifier of the event.
void designEvent(int id);

// The part of it that listens to windows and to presses on panels: runs when no widget took the event.
void formEvent(int id);

// What the user has typed into the selected text or value entry and not left yet goes into its record.
void takeTypedText();
