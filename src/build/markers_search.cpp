// The way back by the texts that the generators write: all of them are looked up in one pass over the source, and then
// held against the line in their fixed order.
#include "build/navigation.h"
#include "codegen/markers.h"
#include "project/code_stores.h"
#include "project/preferences.h"
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

// The search as it goes on. Of the markers ahead of the line the nearest one wins: code stands directly behind its own.
// Of two on the same line, as all windows' tests of one status are, the first in the order does.
struct Search {
    const MarkerLines& markers;
    int line;
    int nearest = 0;
    CodeLocation result;
};

void passMarker(Search& search, int markerLine, const CodeLocation& place) {
    if (markerLine <= search.nearest || markerLine >= search.line) return;
    search.nearest = markerLine;
    search.result = place;
    search.result.line = search.line - markerLine;
}

void passBlocks(Search& search, int first, int last) {
    for (int block = first; block <= last; block++) {
        CodeLocation place;
        place.place = CodePlace::block;
        place.block = block;
        passMarker(search, search.markers.blocks[static_cast<size_t>(block)], place);
    }
}

int headLine(const MarkerLines& markers, const std::string& name, std::string_view offset) {
    auto found = markers.heads.find(name + std::string(offset));
    return found == markers.heads.end() ? 0 : found->second;
}

void passEntry(Search& search, WidgetNode* owner, MenuEntryRec* entry) {
    for (int slot = 0; entry->kind == MENU_ENTRY && slot < ENTRY_SLOTS; slot++) {
        if (entry->slots[static_cast<size_t>(slot)].empty()) continue;
        CodeLocation place;
        place.place = CodePlace::entrySlot;
        place.widget = owner;
        place.entry = entry;
        place.slot = slot;
        std::string_view offset = slotOffset(entrySlotKinds[static_cast<size_t>(slot)]);
        passMarker(search, headLine(search.markers, entry->name, offset), place);
    }
}

void passEntries(Search& search, WidgetNode* list) {
    for (WidgetNode* node = list; node; node = node->next) {
        bool holder = node->type == TYPE_FORM || node->type == TYPE_TREE_VIEW;
        for (MenuEntryRec* entry = holder ? node->entries : nullptr; entry; entry = entry->next) {
            passEntry(search, node, entry);
        }
        passEntries(search, node->child);
    }
}

void passSlot(Search& search, WidgetNode* node, int slot) {
    if (node->slots[static_cast<size_t>(slot)].empty()) return;
    CodeLocation place;
    place.place = CodePlace::widgetSlot;
    place.widget = node;
    place.slot = slot;
    bool window = slot >= SLOT_WINDOW_MOVED && slot <= SLOT_WINDOW_LOST_FOCUS;
    int marker = window ? search.markers.statuses[static_cast<size_t>(slot - SLOT_WINDOW_MOVED)]
                        : headLine(search.markers, node->name, slotOffset(static_cast<WidgetSlot>(slot)));
    passMarker(search, marker, place);
}

void passWidgets(Search& search, WidgetNode* list) {
    for (WidgetNode* node = list; node; node = node->next) {
        passSlot(search, node, SLOT_GENERAL);
        for (int slot = SLOT_WINDOW_MOVED; slot <= SLOT_WINDOW_LOST_FOCUS; slot++) passSlot(search, node, slot);
        for (WidgetSlot slot : DEFINE_ORDER) {
            if (slot != SLOT_GENERAL) passSlot(search, node, slot);
        }
        passWidgets(search, node->child);
    }
}

} // namespace

CodeLocation findByMarkers(const std::string& source, int line, int column) {
    MarkerLines markers = findMarkers(source);
    Search search{markers, line, 0, {}};
    search.result.place = CodePlace::block;
    search.result.block = BLOCK_GLOBAL_DEFINITIONS;
    passBlocks(search, BLOCK_GLOBAL_DEFINITIONS, BLOCK_LOOP_START);
    passEntries(search, project.forms);
    passWidgets(search, project.forms);
    passBlocks(search, BLOCK_LOOP_END, BLOCK_USER_ROUTINES);
    bool slot = search.result.place != CodePlace::block;
    if (column > 0) search.result.column = std::max(1, column - (slot ? preferences.globalIndent : 0));
    return search.result;
}
