#include "dialogues/commands.h"

namespace {

// What has no handler yet shows in the menus, and stays disabled.
// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_DELETE_MENU_BAR, .label = "Delete Menu Bar", .mnemonic = 'M', .menuIcon = "deletemenu&"},
    {.id = CMD_MENU_EDITOR, .label = "Menu entries...", .mnemonic = 'M', .menuIcon = "Menu&", .barIcon = "menu", .bubbleHelp = "Create/View Menu Bar"},
    {.id = CMD_STATUS_BAR_EDITOR, .label = "Status bar...", .mnemonic = 'S', .menuIcon = "Status&", .barIcon = "Status", .bubbleHelp = "Create/View Status Bar", .when = WHEN_WINDOWS},
};
// clang-format on

} // namespace

std::vector<Command> dialogueCommands() {
    return joined({defaultsCommands(), preferencesCommands(), projectSettingsCommands(), projectTypeCommands(),
                   snapDialogueCommands(), syntaxCommands(), COMMANDS});
}
