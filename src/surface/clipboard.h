// Copies of widgets inside the program: cut, copy, paste, duplicate, and deletion; undo and redo of the last drag.
#pragma once

#include "project/records.h"

void copyCommand();      // CMD_COPY
void cutCommand();       // CMD_CUT
void pasteCommand();     // CMD_PASTE
void duplicateCommand(); // CMD_DUPLICATE
void deleteCommand();    // CMD_DELETE
void undoCommand();      // CMD_UNDO
void redoCommand();      // CMD_REDO

// Takes records out of the tree; returns the record to select next. With `wholeList`, `node` is a chain of copies and
// each real record is found by name; else `node` is a real record, which is freed.
WidgetNode* removeWidget(WidgetNode* node, bool eraseLive, bool wholeList);

// Adds deep copies of `list` to the children of the current widget, live; returns the first new record.
WidgetNode* insertClones(const WidgetNode* list);

// Moves the selection to the children of `target` through the paste buffer, which is used up by it. With `group` the
// moved widgets are left without a current one.
void moveSelectionTo(WidgetNode* target, bool group);
