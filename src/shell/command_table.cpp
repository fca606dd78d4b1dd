#include "shell/command_table.h"

#include "dialogues/frame.h"

#include <cassert>
#include <unordered_map>
#include <vector>

namespace {

// An identifier that two rows bear would run only one of them.
std::unordered_map<int, const Command*> indexOf(std::span<const Command> table) {
    std::unordered_map<int, const Command*> rows;
    for (const Command& command : table) {
        [[maybe_unused]] const bool free = rows.emplace(command.id, &command).second;
        assert(free);
    }
    return rows;
}

} // namespace

std::span<const Command> commandTable() {
    static const std::vector<Command> table =
        joined({surfaceCommands(), propertyCommands(), editingCommands(), dialogueCommands(), shellCommands()});
    return table;
}

const Command* findCommand(int id) {
    static const std::unordered_map<int, const Command*> index = indexOf(commandTable());
    const auto found = index.find(id);
    return found == index.end() ? nullptr : found->second;
}

namespace {

int running = 0;

} // namespace

int currentCommand() { return running; }

bool runCommand(int id) {
    running = id;
    const Command* command = findCommand(id);
    if (!command) return dialogueEvent(id);
    if (command->handler) command->handler();
    return command->handler != nullptr;
}
