// What the creation of a widget says, one row for each attribute: its keyword, the field that holds it, what the values
// are called, and when it may be left unsaid. Fortran 90, C and the live widgets of the design surface walk these rows.
#pragma once

#include "codegen/values.h"
#include "project/records.h"

#include <span>
#include <string_view>

enum class Keyword {
#define KEYWORD(name) name,
#include "codegen/keywords.def"
#undef KEYWORD
    // What every type says in the same words...
    PLACE, // origin and expansion
    HELP,
    TAB,
    LINE, // ...and the line ends of C
    WINDOWS_LINE,
    WINDOWS_END,
};

std::string_view keywordName(Keyword keyword); // "owVpos"

enum class AttributeKind {
    NUMBER,
    NAMED, // a number that has a name; without one, `other` or nothing is written
    EDGE,  // where a border or a filling ends: 0 is the outer edge
    WHOLE, // a real without its fraction
    TEXT,
    IMAGE,    // a name that is no text: quotes and backslashes stand as they are
    RESOURCE, // name of an icon
};

struct Attribute {
    Keyword keyword;
    AttributeKind kind = AttributeKind::NUMBER;
    int WidgetNode::*whole = nullptr; // the field, one of the three
    float WidgetNode::*real = nullptr;
    std::string WidgetNode::*text = nullptr;
    std::span<const NamedValue> names = {};
    std::string_view other = {};
    int standard = NO_STANDARD; // what the toolkit takes for a number that isn't told
    // What is standard goes without saying in Fortran 90, and so does what doesn't meet `when`. C tells both all the
    // same, and so does live creation, but for `lean` attributes.
    bool otherIsStandard = false;
    bool lean = false;
    bool (*when)(const WidgetNode& node) = nullptr;
    bool onWindowsOnly = false;
    bool live = true; // while designing too
    // The name that stands behind " ," in place of ", ".
    std::string_view blankAheadInFree = {};
    std::string_view blankAheadInC = {};

    static constexpr int NO_STANDARD = -2147483647 - 1;
};

struct AttributesOfType {
    WidgetType type;
    std::string_view routine;              // empty for a type that is created in words of its own
    std::span<const Attribute> attributes; // in the order of Fortran 90
    std::span<const Keyword> inC;          // those of C and its line ends, between help and place
};

// Null for the types that are created in words of their own: windows, bars and what stands on them.
const AttributesOfType* attributesOf(WidgetType type);

// Whether an attribute is told at all where standards are told too: in C and by live creation.
bool isTold(const Attribute& attribute, const WidgetNode& node);
bool isStandard(const Attribute& attribute, const WidgetNode& node);
