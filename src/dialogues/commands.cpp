#include "dialogues/commands.h"

namespace {

// What has no handler yet shows in the menus, and stays disabled.
// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_STATUS_BAR_EDITOR, .label = "Status bar...", .mnemonic = 'S', .menuIcon = "Status&", .barIcon = "Status", .bubbleHelp = "Create/View Status Bar", .when = WHEN_WINDOWS},
};
// clang-format on

} // namespace

std::vector<Command> dialogueCommands() {
    return joined({defaultsCommands(), menuEditorCommands(), preferencesCommands(), projectSettingsCommands(),
                   projectTypeCommands(), snapDialogueCommands(), syntaxCommands(), COMMANDS});
}
