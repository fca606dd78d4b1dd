// Reading goes on without recursion: a file may nest its records as deep as it is long.
#include "project/code_stores.h"
#include "project/records_io.h"
#include "project/tree.h"
#include "project/widget_types.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

void readTextField(RecordSource& source, WidgetNode& node) {
    if (source.version >= VERSION_30) {
        const std::int64_t bytes = std::min<std::int64_t>(std::abs(std::int64_t{node.fieldWidth}) + 1, TEXT_LIMIT + 1);
        readText(source.reader, node.text, bytes, TEXT_LIMIT);
        return;
    }
    readText(source.reader, node.text, OLD_TEXT_BYTES, NAME_LIMIT);
    if (node.fieldWidth == 0) node.fieldWidth = static_cast<int>(node.text.size());
}

void takeAbsent(RecordSource& source, WidgetNode& node, const FieldRow& row) {
    switch (row.kind) {
    case FIELD_NUMBER: node.*row.number = row.absent; break;
    case FIELD_STRING: node.*row.string = row.absentText; break;
    case FIELD_TAB_LIST: node.*row.number = isArray(node) ? 0 : 1; break;
    case FIELD_GRID_MODE:
        if (source.version < row.since && source.gridMode) *source.gridMode = row.absent;
        break;
    default: break;
    }
}

void readType(FileReader& reader, WidgetNode& node) {
    int code = codeOf(node);
    readNumber(reader, code);
    node.type = typeOfCode(code);
    node.unknownCode = node.type == TYPE_UNKNOWN ? code : 0;
}

void readField(RecordSource& source, WidgetNode& node, const FieldRow& row) {
    switch (row.kind) {
    case FIELD_NUMBER:
    case FIELD_TAB_LIST: readNumber(source.reader, node.*row.number); break;
    case FIELD_TYPE: readType(source.reader, node); break;
    case FIELD_REAL_G:
    case FIELD_REAL_F: readReal(source.reader, node.*row.real); break;
    case FIELD_STRING: readString(source.reader, node.*row.string); break;
    case FIELD_TEXT: readTextField(source, node); break;
    case FIELD_GRID_MODE: {
        int strayed = 0;
        readNumber(source.reader, source.gridMode ? *source.gridMode : strayed);
        break;
    }
    }
}

void readSlot(FileReader& reader, CallbackSlot& slot) {
    int size = 0;
    readNumber(reader, size);
    readText(reader, slot, size, SIZE_MAX);
}

// What a record of an old version has to become. Each row runs on the whole record, in this order.
struct Upgrade {
    int below;
    void (*apply)(WidgetNode& node);
};

const Upgrade upgrades[] = {
    {VERSION_50,
     [](WidgetNode& node) {
         if (node.type == TYPE_BUTTON) node.justify = 0;
         if (isArray(node)) node.borderType = 2;
     }},
    {VERSION_30,
     [](WidgetNode& node) {
         if (node.type == TYPE_TOOL_BAR) node.titleFlag = 1;
         node.scrollMode = node.type == TYPE_PANEL || node.type == TYPE_RADIO_BOX ? -1
                           : node.type == TYPE_TEXT_ENTRY                         ? 1
                                                                                  : 0;
     }},
    {VERSION_40,
     [](WidgetNode& node) {
         if (node.type == TYPE_TEXT_LABEL) {
             node.borderType = 0;
             if (node.colour2 == 0) node.colour2 = 12;
         }
         if (isText(node) && node.colour3 == 0) node.colour3 = 16;
         if (node.type != TYPE_FORM) node.initialState = 1;
     }},
    {VERSION_30,
     [](WidgetNode& node) {
         constexpr int OLD_ICON = 2011;
         constexpr int OLD_SLIDERS[] = {2014, 2020, 2021};
         const int code = node.unknownCode;
         if (std::ranges::find(OLD_SLIDERS, code) != std::end(OLD_SLIDERS)) node.type = TYPE_SLIDER;
         if (code == OLD_ICON) node.type = TYPE_ICON;
         if (node.type != TYPE_UNKNOWN) node.unknownCode = 0;
         if (node.type != TYPE_ICON) return;
         node.subType = code == OLD_ICON ? 1 : 7;
         node.icon = node.text.substr(0, NAME_LIMIT);
         node.text.clear();
     }},
};

void readFields(RecordSource& source, WidgetNode& node) {
    for (const FieldRow& row : recordFields()) {
        if (source.version >= row.since && source.version <= row.until)
            readField(source, node, row);
        else
            takeAbsent(source, node, row);
    }
    for (const SlotPlace& place : slotFileOrder)
        if (source.version >= place.since) readSlot(source.reader, node.slots[place.slot]);
    for (const Upgrade& upgrade : upgrades)
        if (source.version < upgrade.below) upgrade.apply(node);
    if (!node.name.empty() && node.type != TYPE_MAIN_PANEL) ++source.namedRecords;
}

// As many numbers as the file holds, though it may claim more.
void readSizes(FileReader& reader, std::vector<int>& sizes, int count) {
    sizes.clear();
    for (int i = 0; i < count; ++i) {
        int size = 0;
        readNumber(reader, size);
        if (reader.ended) return;
        sizes.push_back(size);
    }
}

void readStatusBar(FileReader& reader, WidgetNode& node) {
    node.statusBar = std::make_unique<StatusBarRec>();
    StatusBarRec& bar = *node.statusBar;
    readNumber(reader, bar.storedHandle);
    for (int& size : bar.sizes) readNumber(reader, size);
    for (std::string& text : bar.texts) readString(reader, text);
    readNumber(reader, bar.panes);
    bar.panes = std::clamp(bar.panes, 0, STATUS_PANES);
    readString(reader, bar.name);
}

void readEntry(RecordSource& source, MenuEntryRec& entry) {
    for (const EntryStringRow& row : entryStrings)
        if (source.version >= row.since) readString(source.reader, entry.*row.field);
    for (int i = 0; i < ENTRY_SLOTS; ++i)
        if (source.version >= entrySlotSince[i]) readSlot(source.reader, entry.slots[i]);
    for (const EntryNumberRow& row : entryNumbers) readNumber(source.reader, entry.*row.field);
}

void readListEntry(RecordSource& source, ListEntryRec& entry) {
    readString(source.reader, entry.text);
    if (source.version >= VERSION_50) readString(source.reader, entry.icon);
}

// The entries behind MENU or LIST, added to `entries`. False when their end was not found.
template <typename Entry>
bool readEntries(RecordSource& source, std::vector<Entry>& entries, void (*readOne)(RecordSource&, Entry&)) {
    for (;;) {
        const std::uint64_t before = source.reader.fields;
        Entry entry;
        readOne(source, entry);
        if (source.reader.fields == before) return false; // the data ended ahead of it
        entries.push_back(std::move(entry));
        const Keyword keyword = readKeyword(source.reader);
        if (keyword == KEY_END || keyword == KEY_ENDFIL) return true;
        if (keyword == KEY_NEXT) continue;
        source.reader.damaged = true;
        return false;
    }
}

// Reads the sections behind a record up to the word that links it to another: CHILD, NEXT, END or ENDFIL. KEY_NONE when
// there is none, which ends every chain.
Keyword readSections(RecordSource& source, WidgetNode& node) {
    for (;;) {
        const Keyword keyword = readKeyword(source.reader);
        bool whole = true;
        switch (keyword) {
        case KEY_ARRAY:
            readSizes(source.reader, node.columnWidths, node.columns);
            readSizes(source.reader, node.rowHeights, node.rows);
            break;
        case KEY_STABAR: readStatusBar(source.reader, node); break;
        case KEY_MENU: whole = readEntries(source, node.entries, readEntry); break;
        case KEY_LIST: whole = readEntries(source, node.listEntries, readListEntry); break;
        default: return keyword;
        }
        if (!whole) return KEY_NONE;
    }
}

// Reads a record and hangs it behind `previous` below `parent`. Null when the data ended ahead of it.
WidgetNode* readRecord(RecordSource& source, WidgetNode* parent, WidgetNode* previous) {
    const std::uint64_t before = source.reader.fields;
    auto record = std::make_unique<WidgetNode>();
    record->inProject = source.intoProject;
    if (record->inProject) record->id = newRecordId();
    readFields(source, *record);
    if (source.reader.fields == before && (previous || parent)) return nullptr;
    WidgetNode* node = record.release();
    node->parent = parent;
    if (previous)
        previous->next = node;
    else if (parent)
        parent->child = node;
    if (parent) parent->lastChild = node;
    return node;
}

} // namespace

OwnedList readRecords(RecordSource& source) {
    OwnedList first(readRecord(source, nullptr, nullptr));
    WidgetNode* node = first.get();
    while (node) {
        switch (readSections(source, *node)) {
        case KEY_CHILD: {
            WidgetNode* previous =
                node->child ? node->lastChild : nullptr; // a second CHILD goes on where the first ended
            node = readRecord(source, node, previous);
            break;
        }
        case KEY_NEXT: node = readRecord(source, node->parent, node); break;
        case KEY_END:
        case KEY_ENDFIL: node = node->parent; break;
        default: node = nullptr;
        }
    }
    return first;
}
