#include "shell/commands.h"

namespace {

// What has no handler yet shows in the menus, and stays disabled.
// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_PROJECT_SETTINGS, .label = "Project Settings...", .mnemonic = 'S'},
    {.id = CMD_CHANGE_PROJECT_TYPE, .label = "Change Project Type...", .mnemonic = 'T'},
    {.id = CMD_DEFAULTS_RESTORE, .label = "Restore System", .mnemonic = 'R'},
    {.id = CMD_DEFAULTS_LOAD, .label = "Load User", .mnemonic = 'L'},
    {.id = CMD_DEFAULTS_CHANGE, .label = "Change Current...", .mnemonic = 'C'},
    {.id = CMD_PREFERENCES, .label = "Preferences...", .mnemonic = 'P'},
    {.id = CMD_SYNTAX_ATTRIBUTES, .label = "Edit Syntax Attributes...", .mnemonic = 'E', .when = WHEN_SYNTAX},
};
// clang-format on

} // namespace

std::vector<Command> shellCommands() {
    return joined({buildCommands(), helpCommands(), inputCommands(), logCommands(), menuCommands(), projectCommands(),
                   windowCommands(), COMMANDS});
}
