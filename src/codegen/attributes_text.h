// How the attributes of a widget are spelled in a source.
#pragma once

#include "codegen/attributes.h"
#include "codegen/generation.h"

// The forms of one language; keyword and value stand behind each.
struct AttributeForms {
    std::string_view Attribute::*blankAhead; // of the name that has its blank ahead of the comma
    bool namesEdges;                         // the outer one; the others go without saying
    std::string_view number;
    std::string_view name;
    std::string_view nameBehindBlank;
    std::string_view string; // keyword, quoted text
    std::string_view resource;
    std::string (*text)(std::string_view text); // as it stands between quotes
};

// Appends ", keyword=value" or nothing: a number without a name, or what only Windows has.
void appendAttribute(const Generation& g, std::string& to, const Attribute& attribute, const WidgetNode& node,
                     const AttributeForms& forms);
