// The header that programs include and the table that the entry points are made from are one interface.
#include "toolkit/bindgen/signature.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

using namespace orba;

namespace {

using Declarations = std::set<std::string>;

// Entry points that are no rows of the table: they have no Fortran binding.
const Declarations cOnly = {"int owEnqShiftKey(void)",
                            "int owStopAsked(int)",
                            "void owEnqScreenSize(int*, int*)",
                            "void owUpdateWindows(void)",
                            "void owDefineWidgetKeyCallback(int, int, int)",
                            "int owEnqWidgetKeyCallback(int, int)",
                            "void owDefineInputCallback(int)",
                            "void owSetWindowInput(int)",
                            "void owMarkTextLine(int, int)",
                            "void owShowCodeView(int, int, int)",
                            "void owMarkTextFinding(int, int, int, int, int, const char*)",
                            "int owEnqTextFindings(int)",
                            "int owShowTextDocument(int, int)",
                            "void owForgetTextDocuments(int)",
                            "void owOfferWords(int, int, const char*, int)",
                            "int owEnqWordsOffered(int)"};

// A declaration by its types: parameters may bear any name.
std::string typesOf(const std::string& declaration) {
    return std::regex_replace(declaration, std::regex(R"(([\w*]) \w+(?=[,)]))"), "$1");
}

Declarations inHeader() {
    std::ifstream file(ORBA_SOURCE_DIR "/src/toolkit/include/menu-c.h");
    std::string text((std::istreambuf_iterator<char>(file)), {});
    text = std::regex_replace(text, std::regex(R"(/\*[^*]*\*+([^/*][^*]*\*+)*/)"), "");
    text = std::regex_replace(text, std::regex(R"(\n#[^\n]*)"), "");
    text = std::regex_replace(text, std::regex(R"(\s+)"), " ");
    const std::regex routine(R"((void|int) o\w+\([^;{)]*\)(?=;))");
    Declarations found;
    for (std::sregex_iterator at(text.begin(), text.end(), routine), end; at != end; ++at)
        found.insert(typesOf(at->str()));
    return found;
}

Declarations inTable() {
    Declarations all = cOnly;
    for (int i = 0; i < static_cast<int>(Fn::count); i++)
        all.insert(typesOf(cDeclaration(functionRow(static_cast<Fn>(i)))));
    return all;
}

TEST(Interface, TheHeaderDeclaresWhatTheTableHas) { EXPECT_EQ(inHeader(), inTable()); }

TEST(Interface, NoKeywordHasTwoRows) {
    int count = 0;
    const KeywordRow* rows = keywordRows(&count);
    std::set<int> numbers;
    for (int i = 0; i < count; i++) {
        EXPECT_TRUE(numbers.insert(rows[i].number).second) << rows[i].name;
        EXPECT_EQ(keywordRow(rows[i].number), &rows[i]) << rows[i].name;
        EXPECT_EQ(propertyOf(rows[i].number), rows[i].property) << rows[i].name;
    }
    EXPECT_EQ(propertyOf(0), 0);
}

} // namespace
