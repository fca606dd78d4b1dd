#include "platform/letters.h"
#include "project/code_stores.h"
#include "project/host.h"
#include "project/records_io.h"
#include "project/widget_types.h"

#include <algorithm>
#include <cstdlib>
#include <span>

namespace {

void writeField(FileWriter& writer, const WidgetNode& node, const FieldRow& row) {
    if (row.until < CURRENT_VERSION) return;
    switch (row.kind) {
    case FIELD_NUMBER:
    case FIELD_TAB_LIST: writeNumber(writer, node.*row.number); break;
    case FIELD_TYPE: writeNumber(writer, codeOf(node)); break;
    case FIELD_REAL_G:
    case FIELD_REAL_F: writeReal(writer, node.*row.real, row.kind); break;
    case FIELD_STRING: writeString(writer, node.*row.string); break;
    case FIELD_TEXT:
        writeText(writer, node.text,
                  static_cast<std::size_t>(
                      std::min<std::int64_t>(std::abs(std::int64_t{node.fieldWidth}) + 1, TEXT_LIMIT + 1)));
        break;
    case FIELD_GRID_MODE: break;
    }
}

// Code ends at a NUL, whatever stands behind it.
int codeSize(const std::string& code) { return static_cast<int>(std::min(code.find('\0'), code.size())) + 2; }

void writeSlot(FileWriter& writer, const CallbackSlot& slot) {
    const int size = codeSize(slot);
    writeNumber(writer, size);
    writeText(writer, slot, static_cast<std::size_t>(size));
}

void writeFields(FileWriter& writer, WidgetNode& node) {
    node.text.resize(cutBetweenLetters(node.text, TEXT_LIMIT).size());
    deriveFieldWidth(node);
    for (const FieldRow& row : recordFields()) writeField(writer, node, row);
    for (const SlotPlace& place : slotFileOrder) writeSlot(writer, node.slots[place.slot]);
}

// Exactly as many numbers as the record counts, for a reader has only that count to go by.
void writeSizes(FileWriter& writer, const std::vector<int>& sizes, int count) {
    for (int i = 0; i < count; ++i) {
        const auto at = static_cast<std::size_t>(i);
        writeNumber(writer, at < sizes.size() ? sizes[at] : (sizes.empty() ? 1 : sizes.back()));
    }
}

bool hasArrays(const WidgetNode& node) { return !node.columnWidths.empty(); }

// A damaged file can count far more columns than it holds.
void limitCount(int& count, std::size_t held) {
    constexpr int SPARE = 10000;
    if (count > static_cast<int>(held) + SPARE) count = static_cast<int>(held);
}

void writeStatusBar(FileWriter& writer, const StatusBarRec& bar) {
    writeKeyword(writer, KEY_STABAR);
    writeNumber(writer, bar.storedHandle);
    for (int size : bar.sizes) writeNumber(writer, size);
    for (const std::string& text : bar.texts) writeString(writer, text);
    writeNumber(writer, bar.panes);
    writeString(writer, bar.name);
}

void writeEntry(FileWriter& writer, const MenuEntryRec& entry) {
    for (const EntryStringRow& row : entryStrings) writeString(writer, entry.*row.field);
    for (const CallbackSlot& slot : entry.slots) {
        const int size = codeSize(slot);
        writeEntrySize(writer, size);
        writeText(writer, slot, static_cast<std::size_t>(size));
    }
    for (const EntryNumberRow& row : entryNumbers) writeNumber(writer, entry.*row.field);
}

void writeListEntry(FileWriter& writer, const ListEntryRec& entry) {
    writeString(writer, entry.text);
    writeString(writer, entry.icon);
}

template <typename Entry>
void writeEntries(FileWriter& writer, Keyword section, std::span<const Entry> entries,
                  void (*writeOne)(FileWriter&, const Entry&)) {
    if (entries.empty()) return;
    writeKeyword(writer, section);
    for (const Entry& entry : entries) {
        writeOne(writer, entry);
        writeKeyword(writer, &entry == &entries.back() ? KEY_END : KEY_NEXT);
    }
}

// An empty last row is not stored.
std::span<const ListEntryRec> storedListEntries(const WidgetNode& node) {
    const std::span<const ListEntryRec> all = node.listEntries;
    const bool emptyLast = !all.empty() && all.back().text.empty() && all.back().icon.empty();
    return emptyLast ? all.first(all.size() - 1) : all;
}

// A record with the sections ahead of its children.
void writeOne(FileWriter& writer, WidgetNode& node) {
    if (hasArrays(node)) {
        host.storeArrayGeometry(node);
        limitCount(node.columns, node.columnWidths.size());
        limitCount(node.rows, node.rowHeights.size());
    }
    writeFields(writer, node);
    if (hasArrays(node)) {
        writeKeyword(writer, KEY_ARRAY);
        writeSizes(writer, node.columnWidths, node.columns);
        writeSizes(writer, node.rowHeights, node.rows);
    }
    if (node.statusBar && node.type == TYPE_FORM) writeStatusBar(writer, *node.statusBar);
    writeEntries<MenuEntryRec>(writer, KEY_MENU, node.entries, writeEntry);
    writeEntries(writer, KEY_LIST, storedListEntries(node), writeListEntry);
    if (node.child) writeKeyword(writer, KEY_CHILD);
}

void writeChainEnd(FileWriter& writer, const WidgetNode& last) {
    writeKeyword(writer, last.type == TYPE_FORM ? KEY_ENDFIL : KEY_END);
}

// `first`, what is below it, and with `siblings` what follows it.
void writeChain(FileWriter& writer, WidgetNode* first, bool siblings) {
    WidgetNode* node = first;
    for (;;) {
        writeOne(writer, *node);
        if (node->child) {
            node = node->child;
            continue;
        }
        const WidgetNode* top = first->parent;
        for (;;) {
            if (node->next && (siblings || node != first)) break;
            writeChainEnd(writer, *node);
            if (node->parent == top) return;
            node = node->parent;
        }
        writeKeyword(writer, KEY_NEXT);
        node = node->next;
    }
}

} // namespace

void writeRecords(FileWriter& writer, WidgetNode* first) {
    if (first) writeChain(writer, first, true);
}

void writeRecord(FileWriter& writer, WidgetNode& record) { writeChain(writer, &record, false); }
