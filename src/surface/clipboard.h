// Copies of widgets inside the program: cut, copy, paste, duplicate, and deletion; undo and redo of the last drag.
#pragma once

#include "project/tree.h"

void deleteCommand(); // CMD_DELETE

// Takes records out of the tree, their live widgets too, and frees them; returns the record to select next.
WidgetNode* removeRecords(const Records& records);
