#include "properties/commands.h"

#include "properties/sheet.h"

namespace {

// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_PROPERTY_SELECTED, .handler = propertySelectedCommand},
    {.id = CMD_PROPERTY_BUTTON, .handler = propertyButtonCommand},
    {.id = CMD_PROPERTY_CHANGED, .handler = propertyChangedCommand},
    {.id = CMD_FONT_FACE, .handler = fontFaceCommand},
    {.id = CMD_POINT_SIZE, .handler = pointSizeCommand},
};
// clang-format on

} // namespace

std::span<const Command> propertyCommands() { return COMMANDS; }
