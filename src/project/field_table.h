// The fields of a record and of an entry in the order of the files. Reader, writer and the default records walk these.
#pragma once

#include "project/records.h"

#include <array>
#include <span>

enum FileVersion : int {
    VERSION_10 = 10,
    VERSION_20 = 20,
    VERSION_21 = 21,
    VERSION_30 = 30,
    VERSION_40 = 40,
    VERSION_50 = 50,
    VERSION_51 = 51,
    VERSION_70 = 70,
    VERSION_71 = 71,
    VERSION_75 = 75,
    VERSION_80 = 80,
    CURRENT_VERSION = VERSION_80,
};

// Bytes of the slots of the stream.
inline constexpr std::size_t HEADER_BYTES = 100;
inline constexpr std::size_t NUM_BYTES = 25;
inline constexpr std::size_t STR_BYTES = NAME_LIMIT + 1;
inline constexpr std::size_t KEY_BYTES = 7;
inline constexpr std::size_t BLOCK_NAME_BYTES = 51;
inline constexpr std::size_t OLD_TEXT_BYTES = 256;    // of `text` before version 3.0
inline constexpr std::size_t OLD_BLOCK_BYTES = 32768; // of a code block before version 3.0

enum FieldKind {
    FIELD_NUMBER,
    FIELD_TYPE,   // of the widget, by its code
    FIELD_REAL_G, // "%g"
    FIELD_REAL_F, // "%f"
    FIELD_STRING,
    FIELD_TEXT,      // as many bytes as fieldWidth tells
    FIELD_GRID_MODE, // of the project; strayed into the records of some versions
    FIELD_TAB_LIST,  // a number whose value when absent depends on the type
};

struct FieldRow {
    FieldKind kind;
    const char* name;
    int WidgetNode::*number = nullptr;
    float WidgetNode::*real = nullptr;
    std::string WidgetNode::*string = nullptr;
    int since = VERSION_10;
    int absent = 0;              // of a number, in files that do not hold it
    const char* absentText = ""; // of a string
    int until = CURRENT_VERSION; // last version that holds it
};

// Ahead of the slots; those follow in slotFileOrder.
std::span<const FieldRow> recordFields();

// An entry: its strings, five slots, then its numbers.
struct EntryStringRow {
    std::string MenuEntryRec::*field;
    int since;
};
struct EntryNumberRow {
    int MenuEntryRec::*field;
};
extern const std::array<EntryStringRow, 6> entryStrings;
extern const std::array<EntryNumberRow, 4> entryNumbers;
inline constexpr std::array<int, ENTRY_SLOTS> entrySlotSince = {VERSION_10, VERSION_50, VERSION_50, VERSION_50,
                                                                VERSION_50};

// Places of the counters behind the colour table. A place without a counter repeats `copyOf`, or holds 1.
struct CounterPlace {
    Counter counter;
    int since;
    Counter copyOf = COUNTER_NONE;
};
extern const std::array<CounterPlace, 29> counterPlaces; // behind nextFormNumber

// Order of the blocks in a file, and the version that brought each.
struct BlockPlace {
    CodeBlockIndex block;
    int since;
};
extern const std::array<BlockPlace, CODE_BLOCKS> blockFileOrder;
extern const std::array<CodeBlockIndex, 4> oldBlockFileOrder; // 32768 bytes each, before version 3.0
