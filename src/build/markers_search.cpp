// The way back by the texts that the generators write: all of them are looked up in one pass over the source, and then
// held against the line in their fixed order.
#include "build/navigation.h"
#include "codegen/markers.h"
#include "project/code_stores.h"
#include "project/records.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>
#include <unordered_map>

namespace {

constexpr int WINDOW_STATUSES = 6;

// First line of each marker, 0 where there is none.
struct MarkerLines {
    std::array<int, CODE_BLOCKS> blocks{};
    std::array<int, WINDOW_STATUSES> statuses{};
    std::unordered_map<std::string_view, int> heads; // by what stands between the parentheses: name and offset
};

bool isComment(std::string_view line) {
    return !line.empty() && (line[0] == '!' || line[0] == 'C' || line.substr(0, 2) == "//");
}

bool containsAnyCase(std::string_view line, std::string_view words) {
    auto same = [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); };
    return std::search(line.begin(), line.end(), words.begin(), words.end(), same) != line.end();
}

void noteFirst(int& place, int line) {
    if (place == 0) place = line;
}

void noteLine(MarkerLines& markers, std::string_view text, int line, std::string_view head) {
    if (isComment(text)) {
        for (size_t block = 0; block < codeBlockTable.size(); block++) {
            if (containsAnyCase(text, codeBlockTable[block].comment)) noteFirst(markers.blocks[block], line);
        }
        return;
    }
    size_t at = text.find(head);
    if (at != std::string_view::npos) {
        std::string_view key = text.substr(at + head.size());
        markers.heads.try_emplace(key.substr(0, key.find(')')), line);
    }
    for (int status = 0; status < WINDOW_STATUSES; status++) {
        if (markers.statuses[static_cast<size_t>(status)] == 0 &&
            text.find(statusTest(project.projectLanguage, status)) != std::string_view::npos) {
            markers.statuses[static_cast<size_t>(status)] = line;
        }
    }
}

MarkerLines findMarkers(std::string_view source) {
    MarkerLines markers;
    std::string_view head = branchHead(project.projectLanguage);
    int line = 1;
    for (size_t from = 0; from < source.size(); line++) {
        size_t end = std::min(source.find('\n', from), source.size());
        noteLine(markers, source.substr(from, end - from), line, head);
        from = end + 1;
    }
    return markers;
}

// The search as it goes on: what it has found, and whether it has come to a marker at or behind the line.
struct Search {
    const MarkerLines& markers;
    int line;
    CodeLocation result;
};

// False when the marker on `markerLine` stands at or behind the line that is looked for.
bool passMarker(Search& search, int markerLine, const CodeLocation& place) {
    if (markerLine == 0) return true;
    if (search.line <= markerLine) return false;
    search.result = place;
    search.result.line = search.line - markerLine;
    return true;
}

bool passBlocks(Search& search, std::initializer_list<CodeBlockIndex> blocks) {
    return std::all_of(blocks.begin(), blocks.end(), [&](CodeBlockIndex block) {
        CodeLocation place;
        place.place = CodePlace::block;
        place.block = block;
        return passMarker(search, search.markers.blocks[block], place);
    });
}

int headLine(const MarkerLines& markers, const std::string& name, std::string_view offset) {
    auto found = markers.heads.find(name + std::string(offset));
    return found == markers.heads.end() ? 0 : found->second;
}

bool passEntries(Search& search, WidgetNode* list) {
    for (WidgetNode* node = list; node; node = node->next) {
        bool holder = node->type == TYPE_FORM || node->type == TYPE_TREE_VIEW;
        for (MenuEntryRec* entry = holder ? node->entries : nullptr; entry; entry = entry->next) {
            for (int slot = 0; entry->kind == MENU_ENTRY && slot < ENTRY_SLOTS; slot++) {
                if (entry->slots[static_cast<size_t>(slot)].empty()) continue;
                CodeLocation place;
                place.place = CodePlace::entrySlot;
                place.widget = node;
                place.entry = entry;
                place.slot = slot;
                std::string_view offset = slotOffset(entrySlotKinds[static_cast<size_t>(slot)]);
                if (!passMarker(search, headLine(search.markers, entry->name, offset), place)) return false;
            }
        }
        if (!passEntries(search, node->child)) return false;
    }
    return true;
}

bool passSlot(Search& search, WidgetNode* node, WidgetSlot slot) {
    if (node->slots[slot].empty()) return true;
    CodeLocation place;
    place.place = CodePlace::widgetSlot;
    place.widget = node;
    place.slot = slot;
    bool window = slot >= SLOT_WINDOW_MOVED && slot <= SLOT_WINDOW_LOST_FOCUS;
    int marker = window ? search.markers.statuses[static_cast<size_t>(slot - SLOT_WINDOW_MOVED)]
                        : headLine(search.markers, node->name, slotOffset(slot));
    return passMarker(search, marker, place);
}

bool passSlots(Search& search, WidgetNode* node) {
    if (!passSlot(search, node, SLOT_GENERAL)) return false;
    for (int slot = SLOT_WINDOW_MOVED; slot <= SLOT_WINDOW_LOST_FOCUS; slot++) {
        if (!passSlot(search, node, static_cast<WidgetSlot>(slot))) return false;
    }
    return std::all_of(DEFINE_ORDER.begin(), DEFINE_ORDER.end(),
                       [&](WidgetSlot slot) { return slot == SLOT_GENERAL || passSlot(search, node, slot); });
}

// A marker behind the line ends the chain that it stands in; the parents' chains go on.
void passWidgets(Search& search, WidgetNode* list) {
    for (WidgetNode* node = list; node; node = node->next) {
        if (!passSlots(search, node)) return;
        passWidgets(search, node->child);
    }
}

} // namespace

CodeLocation findByMarkers(const std::string& source, int line, int column) {
    MarkerLines markers = findMarkers(source);
    CodeLocation start;
    start.place = CodePlace::block;
    start.block = BLOCK_GLOBAL_DEFINITIONS;
    Search search{markers, line, start};
    if (passBlocks(search, {BLOCK_GLOBAL_DEFINITIONS, BLOCK_GLOBAL_ROUTINES, BLOCK_LOCAL_VARIABLES,
                            BLOCK_INITIALIZATION, BLOCK_PRE_ACTION, BLOCK_LOOP_START}) &&
        passEntries(search, project.forms)) {
        passWidgets(search, project.forms);
        passBlocks(search, {BLOCK_LOOP_END, BLOCK_TERMINATION, BLOCK_USER_ROUTINES});
    }
    search.result.column = column;
    return search.result;
}
