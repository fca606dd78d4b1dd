#include "editing/all_code.h"

#include "project/code_stores.h"
#include "project/tree.h"

void eachCode(const std::function<void(const CodePlace&, std::string&)>& visit) {
    for (int i = 0; i < CODE_BLOCKS; ++i)
        visit({.name = codeBlockTable[static_cast<size_t>(i)].name}, project.codeBlocks[static_cast<size_t>(i)]);
    for (WidgetNode* node = project.forms; node; node = walkList(node, project.forms))
        for (size_t slot = 0; slot < node->slots.size(); ++slot)
            visit({.owner = node, .name = slotTable[slot].name}, node->slots[slot]);
    for (WidgetNode* node = project.forms; node; node = walkList(node, project.forms))
        for (MenuEntryRec& entry : node->entries)
            for (size_t slot = 0; slot < entry.slots.size(); ++slot)
                visit({.owner = node, .entry = entry.name, .name = slotTable[entrySlotKinds[slot]].name},
                      entry.slots[slot]);
}

std::vector<CodeHit> findInAllCode(const Search& search) {
    std::vector<CodeHit> found;
    eachCode([&](const CodePlace& place, std::string& code) {
        size_t lineStart = 0;
        int line = 1;
        for (const Hit& hit : findAll(code, search)) {
            for (size_t end = code.find('\n', lineStart); end < hit.start; end = code.find('\n', lineStart)) {
                lineStart = end + 1;
                ++line;
            }
            const std::string text = code.substr(lineStart, code.find_first_of("\r\n", lineStart) - lineStart);
            found.push_back({place, line, positionOf(text, hit.start - lineStart), text});
        }
    });
    return found;
}

std::string describe(const CodePlace& place) {
    const std::string entry = place.entry.empty() ? "" : ", " + place.entry;
    return (place.owner ? place.owner->name + entry + ", " : "") + place.name;
}
