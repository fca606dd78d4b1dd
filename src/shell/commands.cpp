#include "shell/commands.h"

std::vector<Command> shellCommands() {
    return joined({buildCommands(), helpCommands(), inputCommands(), logCommands(), menuCommands(), projectCommands(),
                   windowCommands()});
}
