// Where the control windows stand: one table that every room may read, filled at start-up and stored at exit by the
// settings room. Positions and sizes are pixels.
#pragma once

#include <array>

// Rows in the order of the window state file.
enum WindowRow : int {
    WINDOW_MASTER,
    WINDOW_PROPERTIES,
    WINDOW_HIERARCHY,
    WINDOW_CODE_EDITOR, // the source viewer opens at its position and size too
    WINDOW_TEXT_EDITOR, // the Text Editor dialogue
    WINDOW_ICON_BAR,
    WINDOW_TOOL_BOX,
    WINDOW_COMPILER_LOG,
    WINDOW_ROWS,
};

// Position codes of a pane or bar. The row of the master window holds the toolkit's window state instead.
enum WindowPosition : int {
    POSITION_BOTTOM = -1,
    POSITION_HIDDEN = 0,
    POSITION_TOP = 1,
    POSITION_LEFT = 2,
    POSITION_RIGHT = 3,
    POSITION_FLOATING = 4,
};

struct WindowState {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    int state = 0;
    int handle = 0; // of the live window, 0 while it is not built; the room that builds the window sets it
};

inline std::array<WindowState, WINDOW_ROWS> windowStates;
