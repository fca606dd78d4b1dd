#include "dialogues/commands.h"

std::vector<Command> dialogueCommands() {
    return joined({alignmentCommands(), catalogueCommands(), defaultsCommands(), findCommands(), menuEditorCommands(),
                   preferencesCommands(), projectSettingsCommands(), projectTypeCommands(), snapDialogueCommands(),
                   statusBarEditorCommands(), syntaxCommands()});
}
