// Commands that open dialogues: their identifiers and their tables. What goes on inside a dialogue stands in the table
// of its controls, see frame.h.
#pragma once

#include "surface/command.h"

#include <span>
#include <vector>

enum DialogueCommandId : int {
    CMD_SNAP_DIALOGUE = 15229,
    CMD_DELETE_MENU_BAR = 15247,
    CMD_MENU_EDITOR = 15472,
    CMD_STATUS_BAR_EDITOR = 15473,
};

// The rows of each file, where its handlers stand.
std::span<const Command> snapDialogueCommands();

std::vector<Command> dialogueCommands(); // the rows of the room
