// Commands and events of the drawing of forms: their identifiers and their tables.
#pragma once

#include "surface/command.h"

#include <span>
#include <vector>

inline constexpr int OBJECT_SELECT_OFFSET = 50000; // select identifier of a widget = handle + this

enum SurfaceCommandId : int {
    CMD_COPY = 15130,
    CMD_CUT = 15131,
    CMD_PASTE = 15132,
    CMD_UNDO = 15134,
    CMD_REDO = 15135,
    CMD_DUPLICATE = 15136,
    CMD_NEW_FORM = 15144,
    CMD_DIALOGUE_TAB = 15165,
    CMD_DOUBLE_CLICK = 15277,  // on the adopted widget
    CMD_DESIGN_KEY = 15314,    // an arrow key or Esc on a form
    CMD_GROUP_CLICKED = 15315, // on the panel of a group
    CMD_MOVED = 15316,         // the adopted widget was moved, resized or dropped
    CMD_TEXT_EDITED = 15328,
    CMD_TEXT_SELECTED = 15329,
    CMD_TOGGLED = 15331,
    CMD_VALUE_EDITED = 15339,
    CMD_VALUE_SELECTED = 15340,
    CMD_UNADOPT = 15474,
    CMD_TAB_ORDER = 15475,
    CMD_ALIGN = 15476,
    CMD_HIERARCHY_ROW = 15529,
    CMD_DELETE = 19000,
    CMD_HELP = 19001,
};

// The rows of each file, where its handlers stand.
std::span<const Command> clipboardCommands();
std::span<const Command> designEventCommands();
std::span<const Command> dialogueKeyCommands();
std::span<const Command> hierarchyCommands();
std::span<const Command> moveCommands();
std::span<const Command> pointerCommands();
std::span<const Command> undoCommands();
std::span<const Command> widgetEventCommands();

std::vector<Command> surfaceCommands(); // the rows of the room

// Handles of live widgets are below this; commands lie between 14000 and 20000.
inline bool isCommand(int identifier) { return identifier >= 14000 && identifier < 20000; }
