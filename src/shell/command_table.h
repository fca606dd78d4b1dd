// All commands of the designer, the tables of its rooms in one. The menus, the Icon Bar, the Tool Box, the popup menu,
// the key map and the dispatch are made from it.
#pragma once

#include "dialogues/commands.h"
#include "editing/commands.h"
#include "properties/commands.h"
#include "shell/commands.h"
#include "surface/commands.h"

#include <span>

std::span<const Command> commandTable();
const Command* findCommand(int id); // null for none

// Runs the handler of an identifier. False when no command has it, as with every widget on a form.
bool runCommand(int id);
int currentCommand(); // the identifier that is being run
