#include "compile/command_lines.h"
#include "compile/driver.h"
#include "compile/execute.h"
#include "compile/log.h"
#include "compile/markers_search.h"
#include "compile/navigation.h"
#include "compile_room.h"

#include "codegen/generate.h"
#include "project/code_stores.h"
#include "project/language.h"
#include "project/tree.h"

#include <gmock/gmock.h>

using testing::SizeIs;

namespace {

// A place of code in the project of these tests.
struct Place {
    CodePlace place;
    int index; // block or slot
    const char* widget = "";
    const char* entry = "";
    bool markersFindIt = true; // the marker stands directly ahead of the code, and nowhere before that
};
const Place PLACES[] = {
    {CodePlace::block, BLOCK_GLOBAL_DEFINITIONS, "", "", false},
    {CodePlace::block, BLOCK_GLOBAL_ROUTINES},
    {CodePlace::block, BLOCK_LOCAL_VARIABLES},
    {CodePlace::block, BLOCK_INITIALIZATION},
    {CodePlace::block, BLOCK_PRE_ACTION},
    {CodePlace::block, BLOCK_LOOP_START},
    {CodePlace::block, BLOCK_LOOP_END},
    {CodePlace::block, BLOCK_TERMINATION},
    {CodePlace::block, BLOCK_USER_ROUTINES},
    {CodePlace::widgetSlot, SLOT_WINDOW_MOVED, "Form1"},
    {CodePlace::widgetSlot, SLOT_WINDOW_QUIT, "Form1", "", false}, // runs where the master window is closed
    {CodePlace::widgetSlot, SLOT_WINDOW_MOVED, "Form2"},
    {CodePlace::widgetSlot, SLOT_GENERAL, "Button1"},
    {CodePlace::widgetSlot, SLOT_DRAG_DROP, "Button1"},
    {CodePlace::widgetSlot, SLOT_GENERAL, "Button12"},
    {CodePlace::entrySlot, ENTRY_GENERAL, "Form1", "Form1_Save"},
    {CodePlace::entrySlot, ENTRY_CHANGE, "Tree1", "Tree1_Leaf"},
};

WidgetNode* addWidget(WidgetNode& parent, WidgetType type, const char* name) {
    WidgetNode* node = linkChild(parent, createFromDefaults(type, 10, 10));
    renameNode(*node, name);
    return node;
}

MenuEntryRec entry(const char* name, int kind) {
    MenuEntryRec made;
    made.name = made.label = name;
    made.kind = kind;
    return made;
}

struct NavigationTest : BuildRoom, testing::WithParamInterface<int> {
    NavigationTest() {
        setenv("PATH", "/usr/bin:/bin", 1);
        project.projectLanguage = GetParam();
        project.sourceDir = work;
        project.sourceName = std::string("app") + languageFacts(GetParam()).extension;
        compiler.profile = COMPILER_GNU;
        WidgetNode* first = newForm();
        renameNode(*first, "Form1");
        first->formType = FORM_MASTER_SDI;
        first->entries = {entry("Form1_Bar", MENU_BAR), entry("Form1_Save", MENU_ENTRY)};
        addWidget(*first->child, TYPE_BUTTON, "Button12");
        addWidget(*first->child, TYPE_BUTTON, "Button1");
        addWidget(*first->child, TYPE_TREE_VIEW, "Tree1")->entries = {entry("Tree1_Leaf", MENU_ENTRY)};
        WidgetNode* second = newForm();
        renameNode(*second, "Form2");
        second->formType = FORM_STATIC_SDI;
    }

    static std::string good(const Place& place) {
        bool routine = place.place == CodePlace::block &&
                       (place.index == BLOCK_GLOBAL_ROUTINES || place.index == BLOCK_USER_ROUTINES);
        std::string name = "helper" + std::to_string(place.index);
        if (GetParam() == 99) return routine ? "void " + name + "() {\r\n\r\n}" : "  ;\r\n\r\n";
        std::string margin = GetParam() == 77 ? "      " : "";
        return routine ? margin + "subroutine " + name + "()\r\n\r\n" + margin + "end subroutine" : "\r\n\r\n";
    }
    // The same with an error in line 2, column `column`.
    static std::string bad(const Place& place, int& column) {
        std::string code = good(place);
        std::string error = GetParam() == 99 ? "  undeclared x;" : "  garbage here ?";
        column = 3;
        if (GetParam() == 77) {
            error = "      " + error.substr(2);
            column = 7;
        }
        return code.insert(code.find("\r\n") + 2, error);
    }
    static std::string& store(const Place& place) {
        if (place.place == CodePlace::block) return project.codeBlocks[static_cast<size_t>(place.index)];
        WidgetNode* node = findName(project.forms, place.widget, false);
        if (place.place == CodePlace::widgetSlot) return node->slots[static_cast<size_t>(place.index)];
        const auto at = std::ranges::find(node->entries, place.entry, &MenuEntryRec::name);
        return at->slots[static_cast<size_t>(place.index)];
    }
    static void expectPlace(const CodeLocation& found, const Place& place, const std::string& how) {
        EXPECT_EQ(static_cast<int>(found.place), static_cast<int>(place.place)) << how;
        EXPECT_EQ(place.place == CodePlace::block ? found.block : found.slot, place.index) << how;
        EXPECT_EQ(found.widget ? found.widget->name : "", place.widget) << how;
        EXPECT_EQ(found.entry ? found.entry->name : "", place.entry) << how;
        EXPECT_EQ(found.line, 2) << how;
    }
    void fillAll() {
        for (const Place& place : PLACES) store(place) = good(place);
    }
    static bool toolkitBuilt() {
        ToolkitPlaces toolkit = toolkitPlaces("");
        return !toolkit.moduleDirs.empty() && std::filesystem::exists(toolkit.moduleDirs[0] + "/menu_f77.mod") &&
               std::filesystem::exists(toolkit.libraryDirs[0] + "/liborbawidg.so") && toolkit.fortranDouble;
    }
    void generate() {
        project.sourceStale = 1;
        buildHooks.generateSource();
        ASSERT_EQ(project.sourceStale, 0);
    }
};

std::string languageName(const testing::TestParamInfo<int>& info) { return "Language" + std::to_string(info.param); }

} // namespace

INSTANTIATE_TEST_SUITE_P(Languages, NavigationTest, testing::Values(90, 77, 99), languageName);

// A real build of each: the errors of real compilers lead to the user's own lines.
TEST_P(NavigationTest, PlantedErrorsLeadToTheirOwnLineAndColumn) {
    if (!toolkitBuilt()) GTEST_SKIP() << "the toolkit is not built here";
    fillAll();
    for (const Place& place : PLACES) {
        std::string what = std::to_string(static_cast<int>(place.place)) + " " + std::to_string(place.index) + " " +
                           place.widget + place.entry;
        int column = 0;
        notes = {};
        store(place) = bad(place, column);
        generate();
        compileCommand(true);
        ASSERT_THAT(notes.shown, SizeIs(1)) << what << testing::PrintToString(notes.list);
        expectPlace(notes.shown[0], place, what + testing::PrintToString(notes.list));
        EXPECT_EQ(notes.shown[0].column, column) << what << testing::PrintToString(notes.list);
        EXPECT_TRUE(buildSourceMapped());
        store(place) = good(place);
    }
}

TEST_P(NavigationTest, ColumnsCountCharacters) {
    if (!toolkitBuilt()) GTEST_SKIP() << "the toolkit is not built here";
    const Place& place = PLACES[BLOCK_INITIALIZATION];
    std::string line =
        GetParam() == 99 ? "\tconst char* s = \"äö\"; \tundeclared x;" : "\tprint *, 'äö' ;garbage here ?";
    if (GetParam() == 77) line.replace(0, 1, "      "); // a tab ahead of column 7 is its own matter there
    store(place) = line;
    generate();
    compileCommand(true);
    ASSERT_THAT(notes.shown, SizeIs(1)) << testing::PrintToString(notes.list);
    std::string ahead = line.substr(0, line.find(GetParam() == 99 ? "undeclared" : "garbage"));
    EXPECT_EQ(notes.shown[0].column, static_cast<int>(ahead.size()) - 2 + 1) << "two letters have two bytes each";
    EXPECT_EQ(notes.shown[0].line, 1);
}

TEST_P(NavigationTest, AProgramIsBuiltStartedAndAborted) {
    if (!toolkitBuilt()) GTEST_SKIP() << "the toolkit is not built here";
    if (ORBA_SANITIZED) GTEST_SKIP() << "programs are linked without the sanitizers that this toolkit needs";
    for (const Place& place : PLACES) {
        if (std::string(place.widget).empty()) store(place) = good(place);
    }
    for (const char* switches : {"", " -fdefault-real-8 -fdefault-double-8"}) {
        project.compilerSwitches = GetParam() == 99 ? "-O1" : switches;
        project.customSwitches = 1;
        notes = {};
        generate();
        compileCommand(false);
        ASSERT_NE(childProcess.handle, 0) << testing::PrintToString(notes.list);
        std::uint32_t code = 0;
        EXPECT_TRUE(waitProcess(childProcess, 500, code));
        EXPECT_EQ(code, STILL_RUNNING) << exitWords(code);
        abortCommand();
        EXPECT_TRUE(nothingLeftRunning());
        EXPECT_THAT(notes.boxes, testing::IsEmpty());
    }
}

TEST_P(NavigationTest, MarkersAloneFindWhatStandsBehindThem) {
    fillAll();
    GeneratedText generated;
    ASSERT_TRUE(generateText(work + "/app.x", generated));
    std::vector<Marker> markers = findMarkers(generated.text);
    int found = 0;
    for (const PastedCode& pasted : generated.map) {
        for (const Place& place : PLACES) {
            bool block = pasted.kind == PastedCode::PROJECT_BLOCK;
            if (block != (place.place == CodePlace::block) || pasted.index != place.index ||
                (pasted.kind == PastedCode::ENTRY_SLOT) != (place.place == CodePlace::entrySlot) ||
                (!block && pasted.widget != place.widget) || !place.markersFindIt) {
                continue;
            }
            expectPlace(searchMarkers(markers, pasted.firstLine + 1, 0), place,
                        place.widget + std::to_string(place.index));
            found++;
        }
    }
    EXPECT_EQ(found, 15);
    CodeLocation start = searchMarkers(markers, 1, 0);
    EXPECT_EQ(start.block, BLOCK_GLOBAL_DEFINITIONS);
    EXPECT_EQ(start.line, 1);
}

TEST_P(NavigationTest, AMapThatDoesNotFitIsNotUsed) {
    fillAll();
    generate();
    std::string source = work + "/" + project.sourceName;
    loadBuildSource(source);
    EXPECT_TRUE(buildSourceMapped()) << "of the generation itself";
    noteGenerated({});
    loadBuildSource(source);
    EXPECT_TRUE(buildSourceMapped()) << "of one in memory";
    std::string text = textOf(source);
    scratch.write("my project/" + project.sourceName,
                  text.substr(0, text.find("reated on")) + text.substr(text.find('\n', text.find("reated on"))));
    loadBuildSource(source);
    EXPECT_TRUE(buildSourceMapped()) << "another date";
    scratch.write("my project/" + project.sourceName, text + "\n");
    loadBuildSource(source);
    EXPECT_FALSE(buildSourceMapped()) << "edited by hand";
    loadBuildSource(work + "/missing");
    EXPECT_FALSE(buildSourceMapped());
}

TEST_P(NavigationTest, TextThatNoUserWroteSelectsItsWidget) {
    fillAll();
    generate();
    std::string text = textOf(work + "/" + project.sourceName);
    loadBuildSource(work + "/" + project.sourceName);
    int line = 1;
    int creations = 0;
    std::string owner;
    std::istringstream lines(text);
    for (std::string each; std::getline(lines, each); line++) {
        size_t words = each.find(" child of ");
        if (each.empty()) owner.clear();
        if (words != std::string::npos)
            owner = each.substr(each.rfind(' ', words - 1) + 1, words - each.rfind(' ', words - 1) - 1);
        if (owner != "Button1" && owner != "Tree1") continue;
        if (each.find("Tree1_Leaf") != std::string::npos) continue;
        CodeLocation found = findLocation(line, 1);
        EXPECT_EQ(static_cast<int>(found.place), static_cast<int>(CodePlace::widgetStatement)) << each;
        EXPECT_EQ(found.widget ? found.widget->name : "", owner) << each;
        creations++;
    }
    EXPECT_GT(creations, 4);
    deleteNode(findName(project.forms, "Form2", false)->child); // what has gone since the build
    findName(project.forms, "Form2", false)->child = nullptr;
    for (int each = 1; each < line; each++) findLocation(each, 1);
}

TEST_P(NavigationTest, CodeOfWidgetsThatAreGoneLeadsNowhere) {
    fillAll();
    generate();
    loadBuildSource(work + "/" + project.sourceName);
    GeneratedText generated;
    ASSERT_TRUE(generateText(work + "/" + project.sourceName, generated));
    WidgetNode* button = findName(project.forms, "Button1", false);
    deleteNode(button);
    for (const PastedCode& pasted : generated.map) {
        CodeLocation found = findLocation(pasted.firstLine, 1);
        EXPECT_EQ(found.place == CodePlace::none, pasted.widget == "Button1") << pasted.widget;
    }
}
