// The widgets of the code editor, for the files of this room.
#pragma once

struct EditorWindow {
    int pane = 0;
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

// The names of the lists, as they stand in them.
void fillList(int list, const char* const* begin, const char* const* end);
void selectInList(int list, const char* name);

void showBoundCode();                 // the text of the shown name, its remembered selection, line and column
void rememberCaret();                 // of the shown name
void showPlace(int line, int column); // brings up the editor with that line selected, or the caret in its column
