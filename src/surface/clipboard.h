// Copies of widgets inside the program: cut, copy, paste, duplicate, and deletion; undo and redo of the last drag.
#pragma once

#include "project/tree.h"

void copyCommand();      // CMD_COPY
void cutCommand();       // CMD_CUT
void pasteCommand();     // CMD_PASTE
void duplicateCommand(); // CMD_DUPLICATE
void deleteCommand();    // CMD_DELETE
void undoCommand();      // CMD_UNDO
void redoCommand();      // CMD_REDO

// Takes records out of the tree, their live widgets too, and frees them; returns the record to select next.
WidgetNode* removeRecords(const Records& records);
