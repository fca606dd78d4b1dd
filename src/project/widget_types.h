// What is known of each type of widget, one card each. What upper rooms know of the types (icons, help topics, creation
// calls, sheets) stands there, in tables with a row for each type in the same order.
#pragma once

#include "project/records.h"

#include <cstdint>
#include <initializer_list>
#include <span>

// A set of types.
class TypeSet {
public:
    constexpr TypeSet() = default;
    constexpr TypeSet(std::initializer_list<WidgetType> types) {
        for (const WidgetType type : types) add(type);
    }
    static constexpr TypeSet allBut(std::initializer_list<WidgetType> types) {
        TypeSet set;
        set.bits_ = ~TypeSet(types).bits_;
        return set;
    }
    constexpr void add(WidgetType type) { bits_ |= std::uint64_t{1} << type; }
    constexpr bool holds(WidgetType type) const { return (bits_ >> type & 1) != 0; }
    constexpr bool empty() const { return bits_ == 0; }

private:
    std::uint64_t bits_ = 0;
};

// A slot that a type offers in the code editor's list.
enum SlotCondition : int { SLOT_ALWAYS, SLOT_ON_WINDOWS, SLOT_ON_MASTER_MDI };
struct OfferedSlot {
    WidgetSlot slot;
    SlotCondition condition = SLOT_ALWAYS;
};

// How a widget's size becomes the size of its creation call. With `expand` on, a size that the toolkit works out
// itself is written as 0.
enum SizingRule {
    AS_IT_IS,        // both sizes as they are
    BY_ORIGIN,       // each size that the origin centres gives way
    WIDTH_GIVES_WAY, // the width alone, wherever the origin is
    LIST_BY_ORIGIN,  // as by origin, with a width of 1 where that is 0
};

enum Trait : unsigned {
    IS_ARRAY = 1U << 0U,
    IS_TEXT = 1U << 1U,  // text entry and label
    IS_VALUE = 1U << 2U, // value entry and label
    IS_BAR_OR_PANE = 1U << 3U,
    IS_EDITED = 1U << 4U,         // the user of the program types into it
    IS_TITLED = 1U << 5U,         // its text is a title
    HAS_CELLS = 1U << 6U,         // columns and rows with sizes
    HAS_HELP = 1U << 7U,          // its creation tells bubble help
    USERS_FIELD_WIDTH = 1U << 8U, // fieldWidth is the user's; of the others the length of the text
    ANSWERS_SELECT = 1U << 9U,    // while designing a select event selects it
};

struct TypeCard {
    WidgetType type = TYPE_NONE;
    int code = 0;                    // in files
    const char* label = "";          // as the Widget Defaults list names it; "" for types without a default record
    const char* word = "";           // of default names: form name, underscore, word, number; "" for none
    Counter counter = COUNTER_NONE;  // that gives the number
    const char* noun = "";           // in the comment ahead of its creation; "" for no comment
    const char* nounFixed = nullptr; // the same in Fortran 77 where it differs
    SizingRule sizing = AS_IT_IS;
    int defaultPlace = 0;       // of its default record in their file, from 1; 0 for none
    int defaultSince = 10;      // version of the file that brought that record
    bool onWindowsOnly = false; // cannot stand in an X project
    unsigned traits = 0;
    TypeSet takes = {};                      // what may stand in it; empty for what is no container
    std::span<const OfferedSlot> slots = {}; // in the order of the code editor's list
};

// The cards of all types in their order; of a type that is none or unknown an empty one.
std::span<const TypeCard> typeCards();
const TypeCard& cardOf(WidgetType type);
inline const TypeCard& cardOf(const WidgetNode& node) { return cardOf(node.type); }

inline bool isKnown(WidgetType type) { return type > TYPE_NONE && type < TYPE_UNKNOWN; }

// Types and the codes of files. A code that names no type gives TYPE_UNKNOWN.
WidgetType typeOfCode(int code);
int codeOf(WidgetType type);
inline int codeOf(const WidgetNode& node) { return node.type == TYPE_UNKNOWN ? node.unknownCode : codeOf(node.type); }

// Any of the traits.
inline bool is(const WidgetNode& node, unsigned traits) { return (cardOf(node).traits & traits) != 0; }
inline bool isArray(const WidgetNode& node) { return is(node, IS_ARRAY); }
inline bool isText(const WidgetNode& node) { return is(node, IS_TEXT); }
inline bool isValue(const WidgetNode& node) { return is(node, IS_VALUE); }
inline bool isBarOrPane(const WidgetNode& node) { return is(node, IS_BAR_OR_PANE); }
inline bool isEdited(const WidgetNode& node) { return is(node, IS_EDITED); }

// What a widget is by its parent.
inline bool standsIn(const WidgetNode& node, WidgetType parent) { return node.parent && node.parent->type == parent; }
inline bool isTabPage(const WidgetNode& node) { return node.type == TYPE_PANEL && standsIn(node, TYPE_TAB_BOX); }

// What a form is by its form type.
inline bool isMaster(const WidgetNode& node) {
    return node.type == TYPE_FORM && (node.formType == FORM_MASTER_SDI || node.formType == FORM_MASTER_MDI);
}
inline bool isDynamic(const WidgetNode& form) {
    return form.formType == FORM_DYNAMIC_SDI || form.formType == FORM_DYNAMIC_MDI;
}
inline bool isMdiChild(const WidgetNode& form) {
    return form.formType == FORM_STATIC_MDI || form.formType == FORM_DYNAMIC_MDI;
}

// Word of a counter, as default names carry it: "Button", "TxtArray".
const char* counterWord(Counter counter);

// --- Tables with a row for each type.

// The first type whose row is not at its place in a table whose rows bear the types in their order; none when all are.
template <typename Row, std::size_t N> constexpr WidgetType missingRow(const Row (&rows)[N]) {
    for (int i = 0; i < WIDGET_TYPES; ++i) {
        const auto type = static_cast<WidgetType>(TYPE_FORM + i);
        if (i >= static_cast<int>(N) || rows[i].type != type) return type;
    }
    return TYPE_NONE;
}

// static_assert(Missing<missingRow(ROWS)>::none): the compiler tells the type whose row is missing.
template <WidgetType type> struct Missing {
    static constexpr bool none = type == TYPE_NONE;
    static_assert(none, "a table lacks the row of this type, or has it elsewhere");
};

// The row of a type in such a table; null for a type that is none or unknown.
template <typename Row, std::size_t N> constexpr const Row* rowOf(const Row (&rows)[N], WidgetType type) {
    static_assert(N == WIDGET_TYPES);
    return type > TYPE_NONE && type < TYPE_UNKNOWN ? &rows[type - TYPE_FORM] : nullptr;
}
