// How each kind of control is made; used by the frame alone.
#pragma once

#include "dialogues/frame.h"

// Pixels of one unit of a dialogue's table, from what its texts and a line of the desktop's font need.
struct Scale {
    double across = 1, down = 1;
};
Scale scaleOf(const Dialogue& dialogue, int window); // of its window, which may be empty yet

// Identifiers of the frame, told apart by the widget that sends them.
enum FrameEvent : int {
    FRAME_DOUBLE_CLICK = 15991,
    FRAME_TYPED = 15993, // also the "..." of a property list
    FRAME_ROW_MOVED = 15994,
    FRAME_REFUSED = 15995, // end of what was pressed before a refusal showed its box
    FRAME_KEY = 15996,     // a key of a dialogue's own
    FRAME_HELP = 15997,    // F1 in a modeless dialogue
};

inline constexpr int DIALOGUE_MARGIN = 8; // pixels around the controls

// Creates the control under a toolkit handle; `outermost` when that is the window. Returns the handle, 0 for none.
int createControl(const Control& control, int parent, bool outermost, Scale scale);

bool isButton(Field field);    // what a press on counts as a command
bool isContainer(Field field); // what others can lie in
