// A program with every type of widget, in each language: it starts, shows all its forms, answers a press and ends.
#include "desk.h"

#include "examples/builder.h"
#include "project/files.h"
#include "project/tree.h"
#include "support/program_languages.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <ostream>

namespace fs = std::filesystem;
using namespace example;

namespace {

struct Language {
    ProgramLanguage program;
    const char* press; // code of the button that answers
    const char* leave;
};

void PrintTo(const Language& language, std::ostream* out) { PrintTo(language.program, out); }

constexpr Language languages[] = {
    {FORTRAN_90_PROGRAM, "call owSetTextSetting(ANSWER, 'Pressed')\r\ncall owDrawWindow(SECOND, 1)", "callid = -1"},
    {FORTRAN_77_PROGRAM, "      CALL TEXSET(ANSWER,'Pressed')\r\n      CALL WINDRA(SECOND)", "      CALLID=-1"},
    {C_PROGRAM, "owSetTextSetting(ANSWER, \"Pressed\", 0);\r\nowDrawWindow(SECOND, 1);", "callid = -1;"},
};

// Types that stand on a panel, in a grid of cells of 150 by 90.
constexpr WidgetType cells[] = {
    TYPE_TOGGLE,  TYPE_TEXT_ENTRY, TYPE_VALUE_ENTRY,  TYPE_VALUE_LABEL,    TYPE_ICON,       TYPE_LIST_BOX,
    TYPE_SLIDER,  TYPE_PANEL,      TYPE_COMBO_BOX,    TYPE_GRAPHICS_FRAME, TYPE_TEXT_ARRAY, TYPE_VALUE_ARRAY,
    TYPE_TAB_BOX, TYPE_GAUGE,      TYPE_PROGRESS_BAR, TYPE_TTY_ENTRY,      TYPE_TREE_VIEW,  TYPE_TABLE_BOX};

void addCells(WidgetNode& form) {
    int number = 0;
    for (WidgetType type : cells) {
        const int column = number % 5;
        const int row = number / 5;
        WidgetNode& node = add(form, type, "W" + std::to_string(++number), 10 + 152 * column, 330 - 96 * row, 144, 88);
        if (type == TYPE_ICON) node.text.clear();
        if (type == TYPE_LIST_BOX || type == TYPE_COMBO_BOX) addListEntries(node, {"one", "two"});
        if (type == TYPE_TAB_BOX) add(node, TYPE_PANEL, "PAGE1", 0, 0, 140, 60, "Page");
        if (type == TYPE_TREE_VIEW) addTreeEntries(node, {{0, "TRUNK", "Trunk"}, {1, "TWIG", "Twig"}});
        if (type == TYPE_PROGRESS_BAR) node.height = 20;
        if (type == TYPE_VALUE_ARRAY) { // the place of the tab box behind it is its own
            node.hpos = 1;
            node.xpos = 780 - node.xpos - node.width;
        }
    }
}

WidgetNode& makeProject(const Language& language) {
    WidgetNode& form = begin(language.program.number, "EVERY", "Every widget", 780, 470);
    WidgetNode& bar = add(form, TYPE_TOOL_BAR, "BAR", 0, 0, 400, 30, "Tools");
    bar.onToolbar = 0;
    WidgetNode& tool = add(bar, TYPE_BUTTON, "TOOL", 0, 0, 60, 24, "Tool");
    tool.onToolbar = 1;
    add(bar, TYPE_TOOL_SEPARATOR, "GAP", 0, 0, 10, 24);
    WidgetNode& picture = add(bar, TYPE_ICON, "PICTURE", 0, 0, 24, 24);
    picture.onToolbar = 1;
    addCells(form);
    addRadioBox(form, "CHOICE", 466, 42, 144, 88, "Choice", {"A", "B"});
    addLabel(form, "ANSWER", 620, 106, 140, "Not yet");
    add(form, TYPE_BUTTON, "PRESS", 620, 70, 70, 28, "Press").slots[SLOT_GENERAL] = language.press;
    add(form, TYPE_BUTTON, "LEAVE", 696, 70, 70, 28, "Quit").slots[SLOT_GENERAL] = language.leave;
    addStatusBar(form, "FOOT", {200, -1}, {"Ready", ""});
    WidgetNode& second = addForm("SECOND", "Second form", FORM_STATIC_SDI, 300, 160);
    addLabel(second, "HELLO", 20, 100, 200, "Here I am");
    if (language.program.number != 77) add(second, TYPE_PANE, "PANE", 0, 0, 120, 100, "Pane").initialPosition = 2;
    return form;
}

class EveryWidget : public testing::TestWithParam<Language> {};

} // namespace

TEST_P(EveryWidget, StartsShowsItsFormsAnswersAndEnds) {
    const Language& language = GetParam();
    ASSERT_TRUE(desk::open());
    const std::string folder = desk::scratchFolder() + "/every" + language.program.name;
    fs::create_directories(folder);
    makeProject(language);
    ASSERT_TRUE(saveProject(folder, "every.wdp", true));
    const std::string script =
        "cd " + folder + " && ( " + makeCommand(language.program, "every") + " ) > compile.log 2>&1";
    ASSERT_EQ(std::system(script.c_str()), 0) << script;
    const pid_t program = desk::start({"./every"}, {}, folder, folder + "/run.log");
    desk::settle(program);
    const desk::Thing press = desk::waitFor(program, "Press", desk::withText("Press"));
    const desk::Thing tabs = desk::waitFor(program, "the tab box", desk::ofKind("QTabWidget"));
    EXPECT_EQ(tabs.x - press.x, 10 + 2 * 152 - 620);
    EXPECT_EQ(tabs.width, 144);
    desk::click(press);
    desk::waitFor(program, "the answer", desk::withText("Pressed"));
    desk::waitFor(program, "the second form", desk::withText("Here I am"));
    desk::picture(std::string(ORBA_BINARY_DIR) + "/pictures/every" + language.program.name + ".png");
    desk::click(desk::waitFor(program, "Quit", desk::withText("Quit")));
    EXPECT_EQ(desk::stop(program), 0);
    std::ifstream log(folder + "/run.log");
    for (std::string line; std::getline(log, line);) EXPECT_EQ(line.find("Error "), std::string::npos) << line;
}

INSTANTIATE_TEST_SUITE_P(Languages, EveryWidget, testing::ValuesIn(languages),
                         [](const auto& info) { return std::string(info.param.program.name); });
