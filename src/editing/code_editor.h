// The code editor: one text widget, bound to one code block or callback slot at a time.
#pragma once

#include "project/records.h"

#include <string>

void refreshBlockList();
void showCurrentBlock();
void commitEditor();
void bindCode(WidgetNode* widget); // commit, refill for the widget, show
void showCallback(WidgetNode& widget);
void forgetCode(); // before a project is replaced: working copies go
void showCode(const std::string& blockName, WidgetNode* widget, int line,
              int column); // brings up a place in the code; line from 1, column 0 for the whole line

void showBoundCode();                 // the text of the shown name, its remembered selection, line and column
void rememberCaret();                 // of the shown name
void showPlace(int line, int column); // brings up the editor with that line selected, or the caret in its column
