// The widgets of the code editor, for the files of this room.
#pragma once

#include <string>

struct EditorWindow {
    int pane = 0;
    int body = 0;    // fills the pane
    int textTop = 0; // pixels of the body above the text
    int text = 0;
    int hiddenText = 0; // plain, never shown: reads files
    int blockList = 0;
    int widgetList = 0;
    int menuList = 0;
    int treeList = 0;
    int widgetTab = 0;
    int menuTab = 0;
    int treeTab = 0;
};

extern EditorWindow editor;

int codeText(); // handle of the text widget

// Rows of the lists by what stands in them.
void addRow(int list, const char* text);
void selectInList(int list, const char* name);
std::string chosenRow(int list); // empty for none

// The code's font and colours anew. With `marks` the text counts as changed, or as unchanged for modifiedValue 0.
void refreshFont(bool marks, int modifiedValue);
void showLineColumn(int position); // into the status bar
