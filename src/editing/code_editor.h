// The code editor: one text widget, bound to one code block or callback slot at a time.
#pragma once

#include "project/records.h"

#include <string>

// Fills the docking pane of handle `pane` and joins the editor to the hooks. Once, at start-up.
void buildCodeEditor(int pane);
int codeText(); // handle of the text widget

void refreshBlockList();
void loadWidgetSlots(WidgetNode& widget);
void showCurrentBlock();
void commitEditor();
void bindCode(WidgetNode* widget); // commit, refill for the widget, show
void showCallback(WidgetNode& widget);
void forgetCode(); // before a project is replaced: working copies go
void showCode(const std::string& blockName, WidgetNode* widget, int line,
              int column); // brings up a place in the code; line from 1, column 0 for the whole line

// The same for a slot, by its name in the list of blocks, of the menu or tree entry `entryName` of `owner`.
void showEntryCode(WidgetNode* owner, const std::string& entryName, const std::string& slotName, int line, int column);

// Brings a name of the lists up to date.
void nameAdded(const std::string& name);
void nameRemoved(const std::string& name);
void nameChanged(const std::string& from, const std::string& to);
void clearNames();

// Handlers of the events of the editor's widgets.
void blockChosenCommand();     // CMD_CODE_BLOCK
void widgetChosenCommand();    // CMD_WIDGET_LIST
void selectorTabCommand();     // CMD_SELECTOR_TABS
void menuEntryChosenCommand(); // CMD_MENU_ENTRY_LIST
void treeEntryChosenCommand(); // CMD_TREE_ENTRY_LIST
void codeChangedCommand();     // CMD_CODE_CHANGED
void caretMovedCommand();      // CMD_CODE_SELECT
void clearCodeCommand();       // CMD_CLEAR_CODE
void clearAllCodeCommand();    // CMD_CLEAR_ALL_CODE
void insertFileCommand();      // CMD_INSERT_FILE
void printCodeCommand();       // CMD_PRINT_CODE
void commitCommand();          // CMD_COMMIT_CODE
void codeHelpCommand();        // CMD_CODE_HELP
