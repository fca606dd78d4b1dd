#include "editing/commands.h"

std::vector<Command> editingCommands() {
    return joined({codeEditorCommands(), codeFileCommands(), codeListCommands(), nameChooserCommands(),
                   nameFamilyCommands(), sourceViewerCommands(), textCommands()});
}
