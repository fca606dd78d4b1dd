#include "editing/commands.h"

namespace {

// What has no handler yet shows in the menus, and stays disabled.
// clang-format off
constexpr Command COMMANDS[] = {
    {.id = CMD_FIND, .label = "Find|Ctrl+F", .mnemonic = 'F', .key = controlKey('F'), .keyModes = IN_TEXT, .when = WHEN_TEXT_MODE},
    {.id = CMD_FIND_NEXT, .label = "Find Next|F3", .mnemonic = 'N', .key = functionKey(3), .keyModes = IN_TEXT | WHEN_ENABLED, .when = WHEN_TEXT_MODE | STARTS_DISABLED},
    {.id = CMD_REPLACE, .label = "Replace", .mnemonic = 'R', .when = WHEN_TEXT_MODE},
};
// clang-format on

} // namespace

std::vector<Command> editingCommands() {
    return joined({codeEditorCommands(), codeFileCommands(), codeListCommands(), nameChooserCommands(),
                   nameFamilyCommands(), sourceViewerCommands(), textCommands(), COMMANDS});
}
