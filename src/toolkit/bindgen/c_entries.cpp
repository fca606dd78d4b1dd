// Writes the C entry points of every routine from the function table: c_entries.cpp of the library.
#include "toolkit/bindgen/signature.h"

#include <cstdio>

namespace {

using namespace orba;

std::string words(const std::vector<Parameter>& parameters) {
    std::string text;
    for (const Parameter& parameter : parameters) {
        if (!text.empty()) text += ", ";
        text += "wordOf(" + std::string(parameter.type == "ODIM" ? "&" : "") + parameter.name + ")";
    }
    return text;
}

void writeEntry(const FunctionRow& row) {
    const std::vector<Parameter> parameters = parametersOf(row);
    const bool keywords = row.keywords[0] != 0;
    std::printf("%s {\n", cDeclaration(row).c_str());
    std::printf("    Call call(Fn::%s, {%s});\n", row.name, words(parameters).c_str());
    if (keywords) {
        std::printf("    va_list pairs;\n    va_start(pairs, %s);\n    call.readList(pairs);\n    va_end(pairs);\n",
                    parameters.back().name.c_str());
    }
    std::printf("    %scall.run()%s;\n}\n\n", row.result == Result::NONE ? "" : "return static_cast<int>(",
                row.result == Result::NONE ? "" : ")");
}

} // namespace

int main() {
    std::printf(
        "// Written by bindgen from functions.def.\n#include \"toolkit/keywords/call.h\"\n\n#include <cstdarg>\n\n"
        "using namespace orba;\n\nextern \"C\" {\n\n");
    // Some routines are macros in the header.
    for (int i = 0; i < static_cast<int>(Fn::count); i++)
        std::printf("#undef %s\n", functionRow(static_cast<Fn>(i)).name);
    for (int i = 0; i < static_cast<int>(Fn::count); i++) writeEntry(functionRow(static_cast<Fn>(i)));
    std::printf("} // extern \"C\"\n");
    return 0;
}
