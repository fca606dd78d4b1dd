#include "compile/markers_search.h"

#include "codegen/markers.h"
#include "project/code_stores.h"
#include "project/preferences.h"
#include "project/records.h"
#include "project/tree.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <unordered_set>

namespace {

constexpr int WINDOW_STATUSES = 6;

// --- one pass over the source

struct Pass {
    std::vector<Marker> markers;
    std::array<bool, CODE_BLOCKS> blockSeen{};
    std::unordered_set<std::string_view> headsSeen;
    std::string_view head;
    std::array<std::string, WINDOW_STATUSES> statusTests;
};

bool isComment(std::string_view line) {
    return !line.empty() && (line[0] == '!' || line[0] == 'C' || line.substr(0, 2) == "//");
}

// Some languages write the words in another case.
bool containsAnyCase(std::string_view line, std::string_view words) {
    auto same = [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); };
    return std::search(line.begin(), line.end(), words.begin(), words.end(), same) != line.end();
}

void noteComment(Pass& pass, std::string_view text, int line) {
    for (size_t block = 0; block < codeBlockTable.size(); block++) {
        if (pass.blockSeen[block] || !containsAnyCase(text, codeBlockTable[block].comment)) continue;
        pass.blockSeen[block] = true;
        pass.markers.push_back({Marker::BLOCK, line, static_cast<int>(block), {}, {}});
    }
}

void noteStatement(Pass& pass, std::string_view text, int line) {
    size_t at = text.find(pass.head);
    if (at != std::string_view::npos) {
        std::string_view key = text.substr(at + pass.head.size());
        key = key.substr(0, key.find(')'));
        if (!pass.headsSeen.insert(key).second) return;
        size_t plus = std::min(key.find('+'), key.size());
        pass.markers.push_back(
            {Marker::HEAD, line, 0, std::string(key.substr(0, plus)), std::string(key.substr(plus))});
        return;
    }
    for (size_t status = 0; status < pass.statusTests.size(); status++) {
        if (text.find(pass.statusTests[status]) == std::string_view::npos) continue;
        pass.markers.push_back({Marker::STATUS, line, static_cast<int>(status), {}, {}});
        return;
    }
}

// --- what a marker stands for in the project as it is now

MenuEntryRec* entryNamed(WidgetNode* list, const std::string& name, WidgetNode*& owner) {
    for (WidgetNode* node = list; node; node = node->next) {
        for (MenuEntryRec& entry : node->entries) {
            owner = node;
            if (entry.name == name) return &entry;
        }
        if (MenuEntryRec* below = entryNamed(node->child, name, owner)) return below;
    }
    return nullptr;
}

CodeLocation placeOfHead(const Marker& marker) {
    CodeLocation place;
    place.widget = findName(project.forms, marker.name, false);
    for (WidgetSlot slot : DEFINE_ORDER) {
        if (!place.widget || slotOffset(slot) != marker.offset) continue;
        place.place = CodePlace::widgetSlot;
        place.slot = slot;
        return place;
    }
    place.entry = entryNamed(project.forms, marker.name, place.widget);
    for (int slot = 0; slot < ENTRY_SLOTS; slot++) {
        if (!place.entry || slotOffset(entrySlotKinds[static_cast<size_t>(slot)]) != marker.offset) continue;
        place.place = CodePlace::entrySlot;
        place.slot = slot;
        return place;
    }
    return {};
}

// A window's tests stand in the branch of its general identifier.
CodeLocation placeOfStatus(const std::vector<Marker>& markers, size_t at) {
    for (size_t above = at; above-- > 0;) {
        if (markers[above].kind != Marker::HEAD) continue;
        CodeLocation place = placeOfHead(markers[above]);
        if (place.place != CodePlace::widgetSlot || place.slot != SLOT_GENERAL) return {};
        place.slot = SLOT_WINDOW_MOVED + markers[at].index;
        return place;
    }
    return {};
}

CodeLocation placeOfMarker(const std::vector<Marker>& markers, size_t at) {
    if (markers[at].kind == Marker::HEAD) return placeOfHead(markers[at]);
    if (markers[at].kind == Marker::STATUS) return placeOfStatus(markers, at);
    CodeLocation place;
    place.place = CodePlace::block;
    place.block = markers[at].index;
    return place;
}

} // namespace

std::vector<Marker> findMarkers(std::string_view source) {
    Pass pass;
    pass.head = branchHead(project.projectLanguage);
    for (int status = 0; status < WINDOW_STATUSES; status++) {
        pass.statusTests[static_cast<size_t>(status)] = statusTest(project.projectLanguage, status);
    }
    int line = 1;
    for (size_t from = 0; from < source.size(); line++) {
        size_t end = std::min(source.find('\n', from), source.size());
        std::string_view text = source.substr(from, end - from);
        isComment(text) ? noteComment(pass, text, line) : noteStatement(pass, text, line);
        from = end + 1;
    }
    return std::move(pass.markers);
}

CodeLocation searchMarkers(const std::vector<Marker>& markers, int line, int column) {
    auto behind = std::lower_bound(markers.begin(), markers.end(), line,
                                   [](const Marker& marker, int wanted) { return marker.line < wanted; });
    CodeLocation place;
    for (size_t at = static_cast<size_t>(behind - markers.begin()); at-- > 0 && place.place == CodePlace::none;) {
        place = placeOfMarker(markers, at);
        place.line = line - markers[at].line;
    }
    if (place.place == CodePlace::none) {
        place = {};
        place.place = CodePlace::block;
    }
    bool indented = place.place != CodePlace::block;
    if (column > 0) place.column = std::max(1, column - (indented ? preferences.globalIndent : 0));
    return place;
}
