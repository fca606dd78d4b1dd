#include "project_script.h"

#include "codegen/check.h"
#include "project/tree.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

std::vector<std::string> complaints(int language, const std::string& script) {
    project.projectLanguage = language;
    readProjectScript(script);
    std::vector<std::string> lines;
    for (const Complaint& complaint : checkProject()) lines.push_back(complaintLine(complaint));
    return lines;
}

const std::string FORM = "2001 Form1\n  2002\n";

TEST(Check, FindsNothingInAProjectThatCompiles) {
    for (const int language : {77, 90, 99}) {
        EXPECT_TRUE(complaints(language, FORM + "    2003 Form1_Button1\n    .text it's \"fine\"\n    2006 T\n"
                                                "    .text two\\nlines \\\\\n    2012 L\n    * it's\n")
                        .empty())
            << language;
    }
}

// What one project gets to hear, by language. An empty text stands for no complaint.
struct Case {
    const char* what;
    const char* script; // behind a form with its main panel
    const char* in77;
    const char* in90;
    const char* inC;
};

const Case CASES[] = {
    {"names that differ in case", "    2003 Abc\n    2003 aBC\n",
     "Form1: aBC: Name: this name is taken by \"Abc\", from which it differs only in case; change it",
     "Form1: aBC: Name: this name is taken by \"Abc\", from which it differs only in case; change it", ""},
    {"equal names", "    2003 Abc\n    2003 Abc\n", "Form1: Abc: Name: this name is taken by \"Abc\"; change it",
     "Form1: Abc: Name: this name is taken by \"Abc\"; change it",
     "Form1: Abc: Name: this name is taken by \"Abc\"; change it"},
    {"a reserved word", "    2003 while\n", "", "",
     "Form1: while: Name: this name is taken by the language as a reserved word; change it"},
    {"a routine of the library", "    2003 owManage\n", "",
     "Form1: owManage: Name: this name is taken by a routine or constant of the library; change it",
     "Form1: owManage: Name: this name is taken by a routine or constant of the library; change it"},
    {"a routine of the old interface", "    2003 Button\n",
     "Form1: Button: Name: this name is taken by a routine or constant of the library; change it", "", ""},
    {"a name of the program", "    2003 GenerateForm1\n",
     "Form1: GenerateForm1: Name: this name is taken by the generated program itself; change it",
     "Form1: GenerateForm1: Name: this name is taken by the generated program itself; change it",
     "Form1: GenerateForm1: Name: this name is taken by the generated program itself; change it"},
    {"64 characters", "    2003 a23456789012345678901234567890123456789012345678901234567890bcde\n",
     "Form1: a23456789012345678901234567890123456789012345678901234567890bcde: Name: a Fortran name has at most 63 "
     "characters; shorten it",
     "Form1: a23456789012345678901234567890123456789012345678901234567890bcde: Name: a Fortran name has at most 63 "
     "characters; shorten it",
     ""},
    {"no identifier", "    2003 Save As_Pop1\n",
     "Form1: Save As_Pop1: Name: a name begins with a letter and goes on with letters, digits and underscores; change "
     "it",
     "Form1: Save As_Pop1: Name: a name begins with a letter and goes on with letters, digits and underscores; change "
     "it",
     "Form1: Save As_Pop1: Name: a name begins with a letter and goes on with letters, digits and underscores; change "
     "it"},
    {"quotes in a help text", "    2003 B\n    .bubbleHelp it's \"x\"\n", "", "", ""},
    {"quotes in labels", "    2022 A\n    .xLabels a\"b'\n    columns 1\n    rows 1\n", "", "", ""},
    {"quotes in column labels", "    2032 A\n    .xLabels 'a'\n    columns 1\n", "", "", ""},
    {"a line end in a prompt", "    2030 A\n    .icon a\\nb\n", "", "", ""},
    {"a backslash at the end", "    2003 B\n    .text C:\\\\\n", "", "", ""},
    {"an escape in a label", "    2003 B\n    .text C:\\\\temp\n", "", "",
     "Form1: B: Label: a backslash begins an escape here, so the program shows what the escape stands for; double the "
     "backslash to show it"},
    {"an escape in a help text", "    2003 B\n    .bubbleHelp a\\\\x41\n", "", "",
     "Form1: B: Bubble Help: a backslash begins an escape here, so the program shows what the escape stands for; "
     "double the backslash to show it"},
    {"no escape", "    2003 B\n    .text C:\\\\Users\n", "", "", ""},
    {"an image that is missing", "    2010 I\n    .format 3\n    .icon nowhere.ico\n",
     "Form1: I: Icon: the image file \"nowhere.ico\" cannot be found; choose another one",
     "Form1: I: Icon: the image file \"nowhere.ico\" cannot be found; choose another one",
     "Form1: I: Icon: the image file \"nowhere.ico\" cannot be found; choose another one"},
    {"an image of a list", "    2012 L\n    * a ; nowhere.ico\n",
     "Form1: L: Entries: the image file \"nowhere.ico\" cannot be found; choose another one",
     "Form1: L: Entries: the image file \"nowhere.ico\" cannot be found; choose another one",
     "Form1: L: Entries: the image file \"nowhere.ico\" cannot be found; choose another one"},
};

TEST(Check, NamesTextsAndImages) {
    for (const Case& c : CASES) {
        const std::pair<int, const char*> languages[] = {{77, c.in77}, {90, c.in90}, {99, c.inC}};
        for (const auto& [language, expected] : languages) {
            const std::vector<std::string> lines = complaints(language, FORM + c.script);
            const std::vector<std::string> wanted =
                *expected == '\0' ? std::vector<std::string>() : std::vector<std::string>{expected};
            EXPECT_EQ(lines, wanted) << c.what << " in " << language;
        }
    }
}

TEST(Check, EntriesAndStatusBars) {
    EXPECT_EQ(
        complaints(90, "2001 Form1\n= Bar ; 10 it's\n+ 1001 0 Menu\n+ 1003 0 E ; E ; 0 ; it's\n+ 1003 0 bar ; F\n"),
        (std::vector<std::string>{
            "Form1: bar: Name: this name is taken by \"Bar\", from which it differs only in case; change it"}));
    EXPECT_EQ(complaints(90, "project platform x\n2001 Form1\n= Bar ; 10 a\n"),
              (std::vector<std::string>{"Form1: Bar: Statusbar: an X project cannot hold a status bar; delete it"}));
}

TEST(Check, StatementsOverTooManyLines) {
    const std::string head = FORM + "    2006 T\n    .text ";
    for (const int language : {77, 90, 99}) {
        const std::size_t further = language == 77 ? 61 : 120;
        EXPECT_TRUE(complaints(language, head + std::string(further * 250, 'x')).empty()) << language;
        const std::vector<std::string> lines = complaints(language, head + std::string(further * 260, 'x'));
        if (language == 99) {
            EXPECT_TRUE(lines.empty());
        } else {
            EXPECT_EQ(lines, (std::vector<std::string>{
                                 "Form1: T: Text: its statement goes on for more than 255 lines, the most of "
                                 "Fortran; shorten the text"}));
        }
    }
}

TEST(Check, ChangesNothingThatTheNextSourceShows) {
    complaints(90, "2001 M\n+ 1001 0 Bar\n+ 1003 0 E ; E\n2001 D\n.formType 4\n.parentName E\n2001 S\n.formType 0\n");
    EXPECT_EQ(findForm(project.forms, "D")->parentName, "E");
    EXPECT_EQ(findForm(project.forms, "S")->parentName, "NONE");
}

TEST(Check, AProjectWithoutAMaster) {
    EXPECT_EQ(complaints(90, "2001 Form1\n.formType 0\n"),
              (std::vector<std::string>{"Form Type: no form is the master; set one form to Master"}));
}

} // namespace
