// The catalogue: its order, the calls that it inserts, and that each of them compiles once its values are given.
#include "editing/catalogue.h"

#include "support/scratch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <set>

namespace {

enum : int { F77 = 77, F90 = 90, C = 99 };

std::vector<const CatalogueRoutine*> available(int language) {
    std::vector<const CatalogueRoutine*> all;
    for (const CatalogueFolder& folder : catalogueOf(language))
        for (const CatalogueRoutine& routine : folder.routines)
            if (routine.available) all.push_back(&routine);
    return all;
}

TEST(Catalogue, FoldersAreInTheOrderOfTheTree) {
    struct Row {
        const char* label;
        size_t least; // rows; the library may have more
        const char* first;
    };
    const Row rows[] = {{"Code Generators", 40, "oWogl"},
                        {"ORBA routines", 462, "oSavpic"},
                        {"ORBAPLOT routines", 115, "opAddAkimaCurve"},
                        {"ORBAMESH routines", 146, "omActivateTriangles"},
                        {"ORBAWIDG routines", 247, "owAction"}};
    const auto folders = catalogueOf(F90);
    ASSERT_EQ(folders.size(), std::size(rows));
    for (size_t i = 0; i < std::size(rows); ++i) {
        EXPECT_STREQ(folders[i].label, rows[i].label);
        EXPECT_GE(folders[i].routines.size(), rows[i].least);
        EXPECT_STREQ(folders[i].routines[0].name, rows[i].first);
        const auto oldStyle = catalogueOf(F77)[i];
        EXPECT_STREQ(oldStyle.label, rows[i].label);
        EXPECT_EQ(oldStyle.routines.empty(), i < 4) << rows[i].label;
    }
    EXPECT_GE(catalogueOf(F77)[4].routines.size(), 169u);
    EXPECT_EQ(catalogueOf(C).data(), folders.data());
}

TEST(Catalogue, ALabelLeadsToOneRow) {
    for (const int language : {F90, C}) {
        std::set<std::string> names;
        for (const CatalogueFolder& folder : catalogueOf(language))
            for (const CatalogueRoutine& routine : folder.routines)
                EXPECT_TRUE(names.insert(routine.name).second) << routine.name;
    }
    EXPECT_EQ(findRoutine("owdrawwindow", F90), findRoutine("owDrawWindow", F90));
    EXPECT_EQ(findRoutine("owdrawwindow", C), nullptr);
    EXPECT_EQ(findRoutine("", F90), nullptr);
    EXPECT_STREQ(findRoutine("oBmp", C)->name, "oBmp");
    EXPECT_FALSE(findRoutine("oBmp", C)->available);
    EXPECT_EQ(findRoutine("owDispatch", F90), nullptr) << "not for user code";
}

struct InsertionCase {
    const char* name;
    int language;
    bool prompts;
    const char* text; // with a bar at the caret
};

TEST(Catalogue, InsertedCalls) {
    const InsertionCase cases[] = {
        {"oEnqRGB", F90, false, "call oEnqRGB(| , )"},
        {"oEnqRGB", F90, true, "call oEnqRGB(index=| ,rgb= )"},
        {"oEnqRGB", C, true, "oEnqRGB(| , );"},
        {"oDrawLineTo2D", F90, true, "call oDrawLineTo2D(x=| ,y= )"},
        {"owManage", F90, false, "call owManage(|)"},
        {"owManage", F90, true, "call owManage(|)"},
        {"owManage", C, false, "owManage(|);"},
        {"owSetWidgetStatus", C, false, "owSetWidgetStatus(| , );"},
        {"owCreateListBox", F90, false, " = owCreateListBox(| , , , , , )"},
        {"owCreateListBox", F90, true, " = owCreateListBox(parent=| ,xpos= ,ypos= ,width= ,height= ,list= )"},
        {"owCreateListBox", C, false, " = owCreateListBox(| , , , , , , 0);"},
        {"owEnqListEntry", F90, false, " = owEnqListEntry(| , , )"},
        {"owEnqListEntry", C, false, " = owEnqListEntry(| , , , );"},
        {"owFileBrowser", F90, false, " = owFileBrowser(| , , )"},
        {"owFileBrowser", C, false, " = owFileBrowser(| , , , , , 0);"},
        {"oEnqDrawingLimits", F90, false, "call oEnqDrawingLimits(| , )"},
        {"owDrawWindow", C, false, "owDrawWindow(| , );"},
        {"ACTENQ", F77, false, "CALL ACTENQ(| , , , , , , , , , )"},
        {"BUTTON", F77, true, "CALL BUTTON(| , , , , , )"},
        {"MENU", F77, false, "CALL MENU|"},
        {"WTYENQ", F77, false, " = WTYENQ(| )"},
    };
    for (const InsertionCase& row : cases) {
        SCOPED_TRACE(row.name + std::string(" ") + std::to_string(row.language));
        const CatalogueRoutine* routine = findRoutine(row.name, row.language);
        ASSERT_TRUE(routine);
        Insertion insertion = insertionFor(*routine, row.language, row.prompts);
        EXPECT_EQ(insertion.text.insert(static_cast<size_t>(insertion.caret), "|"), row.text);
    }
    const std::pair<int, const char*> generate[] = {
        {F77, "CALL Generate|()"}, {F90, "call Generate|()"}, {C, "Generate|();"}};
    for (const auto& [language, text] : generate) {
        Insertion insertion = insertionForGenerate(language);
        EXPECT_EQ(insertion.text.insert(static_cast<size_t>(insertion.caret), "|"), text);
    }
}

TEST(Catalogue, SignaturesTellNamesAndTypes) {
    EXPECT_EQ(signatureOf(*findRoutine("oEnqRGB", F90), F90).text, "(index: Integer, rgb: ORGBSTY)");
    EXPECT_EQ(signatureOf(*findRoutine("owManage", F90), F90).text, "()");
    EXPECT_EQ(signatureOf(*findRoutine("owEnqTextPos", F90), F90).text, "(text: Integer, property: Integer... )");
    const Signature c = signatureOf(*findRoutine("owEnqListEntry", C), C);
    EXPECT_EQ(c.text, "(list: Integer, entry: Integer, string: Character, stringLength: Integer)");
    ASSERT_EQ(c.arguments.size(), 4u);
    EXPECT_EQ(c.text.substr(c.arguments[1].start, c.arguments[1].end - c.arguments[1].start), "entry: Integer");
    EXPECT_EQ(signatureOf(*findRoutine("LINTO2", F77), F77).text, "(x: Real, y: Real)");
}

TEST(Catalogue, NothingIsToldOfARoutineThatTheLibraryLacks) {
    for (const int language : {F77, F90})
        for (const CatalogueFolder& folder : catalogueOf(language))
            for (const CatalogueRoutine& routine : folder.routines)
                EXPECT_TRUE(routine.available || (!*routine.arguments && !*routine.about)) << routine.name;
    EXPECT_GT(available(F90).size(), 250u);
    EXPECT_GT(available(F77).size(), 200u);
}

// ------------------------------------------------------------------------------------------------- calls compile

// A variable that fits an argument in Fortran: an element of an array fits an array as well.
std::string fortranVariable(const CatalogueArgument& argument) {
    if (argument.type == "Character") return "some_text";
    return "some_" + std::string(argument.type) + "(1)";
}

// One of C++ that turns into whatever an argument is.
constexpr char C_VARIABLES[] = "#include <menu-c.h>\n"
                               "struct Anything {\n"
                               "    operator int() const;\n    operator double() const;\n    operator ODIM() const;\n"
                               "    template <class T> operator T*() const;\n};\n"
                               "extern Anything value;\nextern ODIM some_ODIM;\nextern int receiver;\n";

// What the user types between the marks of an inserted call.
std::string filled(const CatalogueRoutine& routine, int language, bool prompts) {
    std::string text = insertionFor(routine, language, prompts).text;
    size_t at = text.find('(');
    for (const CatalogueArgument& argument : argumentsOf(routine)) {
        std::string values[2];
        if (language != C)
            values[0] = fortranVariable(argument);
        else
            values[0] =
                routine.name == std::string("oEnqDrawingLimits") && argument.name == "paper" ? "some_ODIM" : "value";
        if (language == C && argument.filled) values[1] = "value";
        for (const std::string& value : values) {
            if (value.empty()) continue;
            at = text.find_first_of(",)", at + 1);
            EXPECT_NE(at, std::string::npos) << text;
            text.insert(at, value);
            at += value.size();
        }
    }
    return text.starts_with(" =") ? "receiver" + text : text;
}

std::string fortranDeclarations(int language) {
    std::set<std::string> records;
    for (const CatalogueRoutine* routine : available(language))
        for (const CatalogueArgument& argument : argumentsOf(*routine))
            if (argument.type[0] == 'O') records.insert(std::string(argument.type));
    std::string text = "      integer :: some_Integer(99), receiver\n      real :: some_Real(99)\n"
                       "      character(80) :: some_text\n      double precision :: some_Double(99)\n";
    for (const std::string& record : records) text += "      type(" + record + ") :: some_" + record + "(99)\n";
    return text;
}

class InsertedCalls : public testing::TestWithParam<std::pair<int, bool>> {};

TEST_P(InsertedCalls, CompileOnceTheirValuesAreGiven) {
    const auto [language, prompts] = GetParam();
    const std::string module = language == F77 ? "menu_f77" : "menu_f90";
    std::string source = language == C ? std::string(C_VARIABLES) + "void all() {\n"
                                       : "      subroutine every\n      use " + module + "\n      implicit none\n" +
                                             fortranDeclarations(language);
    for (const CatalogueRoutine* routine : available(language))
        source += "      " + filled(*routine, language, prompts) + "\n";
    source += language == C ? "}\n" : "      end subroutine\n";

    const ScratchFolder folder("catalogue");
    const char* const name = language == C ? "calls.cpp" : language == F77 ? "calls.f" : "calls.f90";
    folder.write(name, source);
    const std::string compiler = language == C     ? "g++ -fsyntax-only"
                                 : language == F77 ? "gfortran -fsyntax-only -ffixed-line-length-none"
                                                   : "gfortran -fsyntax-only -ffree-line-length-none";
    const std::string command = "cd " + folder.path.string() + " && " + compiler +
                                " -I" ORBA_BINARY_DIR "/include/orbawidg " + name + " > messages 2>&1";
    EXPECT_EQ(std::system(command.c_str()), 0) << textOf(folder / "messages").substr(0, 3000);
}

INSTANTIATE_TEST_SUITE_P(Catalogue, InsertedCalls,
                         testing::Values(std::pair<int, bool>{F77, false}, std::pair<int, bool>{F90, false},
                                         std::pair<int, bool>{F90, true}, std::pair<int, bool>{C, false}),
                         [](const auto& info) {
                             return "In" + std::to_string(info.param.first) + (info.param.second ? "Prompts" : "");
                         });

} // namespace
