// Commands and events of the property table: their identifiers and their table.
#pragma once

#include "surface/command.h"

#include <span>

enum PropertyCommandId : int {
    CMD_PROPERTY_BUTTON = 15356,
    CMD_PROPERTY_CHANGED = 15357,
    CMD_PROPERTY_SELECTED = 15358,
    CMD_FONT_FACE = 15397,
    CMD_POINT_SIZE = 15716,
};

std::span<const Command> propertyCommands();
