#include "dialogues/commands.h"

std::vector<Command> dialogueCommands() {
    return joined({defaultsCommands(), menuEditorCommands(), preferencesCommands(), projectSettingsCommands(),
                   projectTypeCommands(), snapDialogueCommands(), statusBarEditorCommands(), syntaxCommands()});
}
