// Commands that open dialogues: their identifiers and their tables. What goes on inside a dialogue stands in the table
// of its controls, see frame.h.
#pragma once

#include "surface/command.h"

#include <span>
#include <vector>

enum DialogueCommandId : int {
    CMD_SYNTAX_ATTRIBUTES = 15039,
    CMD_CHANGE_PROJECT_TYPE = 15089,
    CMD_DEFAULTS_LOAD = 15102,
    CMD_DEFAULTS_RESTORE = 15104,
    CMD_PROJECT_SETTINGS = 15142,
    CMD_DEFAULTS_CHANGE = 15223,
    CMD_PREFERENCES = 15228,
    CMD_SNAP_DIALOGUE = 15229,
    CMD_DELETE_MENU_BAR = 15247,
    CMD_MENU_EDITOR = 15472,
    CMD_STATUS_BAR_EDITOR = 15473,
};

// The rows of each file, where its handlers stand.
std::span<const Command> alignmentCommands();
std::span<const Command> catalogueCommands();
std::span<const Command> defaultsCommands();
std::span<const Command> findCommands();
std::span<const Command> menuEditorCommands();
std::span<const Command> preferencesCommands();
std::span<const Command> projectSettingsCommands();
std::span<const Command> projectTypeCommands();
std::span<const Command> snapDialogueCommands();
std::span<const Command> statusBarEditorCommands();
std::span<const Command> syntaxCommands();

std::vector<Command> dialogueCommands(); // the rows of the room
