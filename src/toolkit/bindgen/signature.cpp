#include "toolkit/bindgen/signature.h"

#include <algorithm>

namespace orba {
namespace {

// Routines that are declared with "..." though the table knows no keyword for them, so that calls with and without a
// closing 0 are one form.
constexpr Fn openWithoutKeywords[] = {Fn::owDrawWindow,          Fn::owCreateMenuBar, Fn::owCreatePullDownMenu,
                                      Fn::owCreateMenuSeparator, Fn::owEnqListEntry,  Fn::owSetWidgetHelp};

bool isOpen(const FunctionRow& row) {
    return row.keywords[0] != 0 || std::find(std::begin(openWithoutKeywords), std::end(openWithoutKeywords),
                                             functionByName(row.name)) != std::end(openWithoutKeywords);
}

} // namespace

std::vector<Parameter> parametersOf(const FunctionRow& row) {
    std::vector<Parameter> parameters;
    std::string text = row.arguments;
    while (!text.empty()) {
        const std::size_t comma = text.find(", ");
        const std::string one = text.substr(0, comma);
        text = comma == std::string::npos ? "" : text.substr(comma + 2);
        const std::size_t blank = one.rfind(' ');
        Parameter parameter{one.substr(0, blank), one.substr(blank + 1)};
        parameters.push_back(parameter);
        if (parameter.type == "buffer") parameters.push_back({"length", parameter.name + "Length"});
    }
    return parameters;
}

const char* cType(const std::string& type) {
    static constexpr struct {
        const char* type;
        const char* c;
    } rows[] = {
        {"int", "int"},         {"length", "int"},   {"real", "double"},        {"text", "const char*"},
        {"int*", "int*"},       {"ints*", "int*"},   {"real*", "float*"},       {"double*", "double*"},
        {"ints", "const int*"}, {"buffer", "char*"}, {"reals", "const float*"},
    };
    for (const auto& row : rows) {
        if (type == row.type) return row.c;
    }
    return type.c_str(); // records stand in the table as in C
}

std::string cDeclaration(const FunctionRow& row) {
    std::string list;
    for (const Parameter& parameter : parametersOf(row)) {
        list += (list.empty() ? "" : ", ") + std::string(cType(parameter.type)) + " " + parameter.name;
    }
    if (isOpen(row)) list += list.empty() ? "..." : ", ...";
    return std::string(row.result == Result::NONE ? "void " : "int ") + row.name + "(" +
           (list.empty() ? "void" : list) + ")";
}

} // namespace orba
