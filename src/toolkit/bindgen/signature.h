// The argument lists of the function table taken apart, for the generators of bindings. No Qt.
#pragma once

#include "toolkit/tables/function_table.h"

#include <string>
#include <vector>

namespace orba {

struct Parameter {
    std::string type; // as in functions.def; a buffer is followed by a parameter of type "length"
    std::string name;
};

std::vector<Parameter> parametersOf(const FunctionRow& row);
// The C type of a parameter, for instance "const char*" for a text.
const char* cType(const std::string& type);
// A routine as menu-c.h declares it, without the semicolon.
std::string cDeclaration(const FunctionRow& row);

} // namespace orba
