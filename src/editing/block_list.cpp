#include "editing/block_list.h"

#include "editing/editor_window.h"
#include "menu-c.h"
#include "project/code_stores.h"

#include <algorithm>
#include <vector>

namespace {

struct Row {
    std::string name;
    std::string shown; // as the list has it
};
std::vector<Row> rows;

// Lines of code of a block or slot, or of the entry that is edited.
size_t linesOf(const std::string& name) {
    const int block = blockIndexOf(name), slot = slotIndexOf(name);
    const std::string* code = block >= 0  ? &codeEditing.blockCopies[static_cast<size_t>(block)]
                              : slot >= 0 ? &codeEditing.workingSlots[static_cast<size_t>(slot)]
                                          : nullptr;
    if (!code || code->find_first_not_of(" \t\r\n") == std::string::npos) return 0;
    return static_cast<size_t>(std::ranges::count(*code, '\n')) + (code->back() == '\n' ? 0 : 1);
}

std::string shownRow(const std::string& name) {
    const size_t lines = linesOf(name);
    if (lines == 0) return name;
    return name + "|" + std::to_string(lines) + (lines == 1 ? " line" : " lines");
}

} // namespace

void clearBlockRows() {
    rows.clear();
    owSetListEntry(editor.blockList, OCLEAR, 0);
}

void addBlockRow(const std::string& name) {
    rows.push_back({name, name});
    addRow(editor.blockList, name.c_str());
}

void selectBlockRow(const std::string& name) {
    const auto row = std::ranges::find(rows, name, &Row::name);
    if (row != rows.end())
        owSetListEntry(editor.blockList, OSELECT, owEntry, static_cast<int>(row - rows.begin()) + 1, 0);
}

std::string chosenBlockRow() {
    int count = 0, selected = 0, current = 0;
    owEnqListStatus(editor.blockList, &count, &selected, &current);
    const bool any = current >= 1 && current <= static_cast<int>(rows.size());
    return any ? rows[static_cast<size_t>(current) - 1].name : std::string();
}

void showBlockSizes() {
    const std::string chosen = chosenBlockRow();
    bool changed = false;
    for (size_t i = 0; i < rows.size(); ++i) {
        const std::string shown = shownRow(rows[i].name);
        if (shown == rows[i].shown) continue;
        rows[i].shown = shown;
        changed = true;
        const int entry = static_cast<int>(i) + 1;
        owSetListEntry(editor.blockList, ODELETE, owEntry, entry, 0);
        owSetListEntry(editor.blockList, OINSERT, owString, shown.c_str(), owEntry, entry, 0);
    }
    if (changed) selectBlockRow(chosen);
}
