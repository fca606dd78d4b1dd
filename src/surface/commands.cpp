#include "surface/commands.h"

namespace {

// What has no handler yet shows in the menus, and stays disabled.
// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_TAB_ORDER, .label = "Change Widget Tab Order...", .mnemonic = 'C'},
};
// clang-format on

} // namespace

std::vector<Command> surfaceCommands() {
    return joined({clipboardCommands(), designEventCommands(), dialogueKeyCommands(), hierarchyCommands(),
                   moveCommands(), pointerCommands(), undoCommands(), widgetEventCommands(), COMMANDS});
}
