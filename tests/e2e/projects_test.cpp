// Projects of every kind as a user begins them: New Project by mouse in each language and platform, a widget, code, F5,
// and the program answers; libraries and listed sources from the project's settings alone.
#include "designer.h"

#include "examples/examples.h"
#include "project/convert.h"
#include "project/files.h"
#include "project/tree.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

void answerBrowser(pid_t program, const std::string& title, const std::string& name) {
    desk::waitFor(program, "the box " + title, desk::inWindow(title, {}));
    desk::key("ctrl+a");
    desk::type(name);
    desk::key("Return");
}

desk::Thing button(pid_t program, const std::string& label) {
    return desk::waitFor(program, "the button " + label, [&](const desk::Thing& thing) {
        return desk::withText(label)(thing) && thing.kind.find("Button") != std::string::npos;
    });
}

desk::Thing inDialogue(pid_t program, const std::string& title, const std::string& text) {
    return desk::waitFor(program, text, desk::inWindow(title, desk::withText(text)));
}

bool gone(pid_t program) {
    return desk::waitUntil([&] { return kill(program, 0) != 0; });
}

std::string freshFolder(const std::string& name) {
    const std::string folder = desk::scratchFolder() + "/" + name;
    fs::create_directories(folder);
    return folder;
}

struct Kind {
    const char* name;
    const char* language; // labels of the dialogue
    const char* platform;
    const char* code;
    ProjectType expected;
};
const Kind KINDS[] = {
    {"f90",
     "F90",
     "Windows",
     "call owSetWidgetProp(Form1_Button1, owLabel='pressed')",
     {.language = 90, .platform = 'w'}},
    {"c",
     "C/C++",
     "Windows",
     "owSetWidgetProp(Form1_Button1, owLabel, \"pressed\", 0);",
     {.language = 99, .platform = 'w'}},
    {"x",
     "F90",
     "X-Win",
     "call owSetWidgetProp(Form1_Button1, owLabel='pressed')",
     {.language = 90, .platform = 'x', .gridMode = 1, .gridHoriz = 32, .gridVert = 24}},
    {"glx",
     "C/C++",
     "GLX-Win",
     "owSetWidgetProp(Form1_Button1, owLabel, \"pressed\", 0);",
     {.language = 99, .platform = 'g', .gridMode = 1, .gridHoriz = 32, .gridVert = 24}},
};

} // namespace

TEST(BuildingProjects, OfEachLanguageAndPlatformAnswer) {
    ASSERT_TRUE(desk::open());
    for (const Kind& kind : KINDS) {
        const std::string folder = freshFolder(std::string("new_") + kind.name);
        const pid_t program = designer::open(folder);
        desk::click(desk::waitFor(program, "New Project", desk::withTip("New Project")));
        desk::click(inDialogue(program, "Project Type", kind.language));
        desk::click(inDialogue(program, "Project Type", kind.platform));
        desk::picture(std::string(ORBA_BINARY_DIR) + "/pictures/project_type_" + kind.name + ".png");
        desk::click(inDialogue(program, "Project Type", "OK"));
        ASSERT_TRUE(desk::waitUntil([&] { return !desk::shows(program, desk::inWindow("Project Type", {})); }));
        desk::settle(program);
        designer::moveForm(program, "Form 1", 740, 150);
        designer::place(program, "Button", "Form 1", 60, 60);
        designer::replaceCode(program, kind.code);
        desk::key("F5");
        answerBrowser(program, "Save Project As", kind.name);
        answerBrowser(program, "Create ORBAWIDG code", kind.name);
        const pid_t made = designer::startedProgram(program);
        ASSERT_GT(made, 0) << kind.name;
        desk::settle(made);
        desk::click(button(made, "Button 1"));
        desk::waitFor(made, "the answer", desk::withText("pressed"));
        EXPECT_EQ(designer::close(program), 0);
        EXPECT_TRUE(gone(made) || kill(made, SIGTERM) == 0);
        ASSERT_TRUE(loadProject(folder, std::string(kind.name) + ".wdp"));
        EXPECT_TRUE(projectType() == kind.expected) << kind.name;
        EXPECT_TRUE(fs::exists(folder + "/" + kind.name + (kind.expected.language == 99 ? ".cpp" : ".f90")));
    }
}

TEST(BuildingProjects, ALibraryComesFromTheSettingsAlone) {
    ASSERT_TRUE(desk::open());
    const std::string folder = freshFolder("library");
    example::makeEquations();
    project.linkerSwitches.clear();
    project.customSwitches = 0;
    ASSERT_TRUE(saveProject(folder, "equations.wdp", true));
    const pid_t program = designer::open(folder, "equations.wdp");
    designer::chooseMenu(program, "Project", "Project Settings...");
    const desk::Thing label = inDialogue(program, "Project Settings", "Linker Switches:");
    desk::clickAt(label.x + 200, label.y + label.height / 2);
    desk::type(" -llapack -lblas"); // the typing tool takes a leading dash for an option
    desk::picture(std::string(ORBA_BINARY_DIR) + "/pictures/project_settings.png");
    desk::click(inDialogue(program, "Project Settings", "OK"));
    desk::key("F5");
    answerBrowser(program, "Create ORBAWIDG code", "equations");
    const pid_t made = designer::startedProgram(program);
    ASSERT_GT(made, 0) << "it was not linked";
    desk::settle(made);
    desk::click(button(made, "Solve"));
    desk::waitFor(made, "the solution", desk::withText("x = 1.0000   y = 3.0000"));
    desk::picture(std::string(ORBA_BINARY_DIR) + "/pictures/equations.png");
    desk::click(button(made, "Quit"));
    EXPECT_TRUE(gone(made));
    EXPECT_EQ(designer::close(program), 0);
}

TEST(BuildingProjects, AListedSourceThatWasEditedIsCompiledAgain) {
    ASSERT_TRUE(desk::open());
    const std::string folder = freshFolder("listed");
    const auto writeAnswer = [&](const char* words) {
        std::ofstream(folder + "/answer.f90")
            << "subroutine answer(text)\n character(*) :: text\n text = '" << words << "'\nend subroutine\n";
    };
    writeAnswer("first answer");
    example::makeDialogue(90);
    WidgetNode* accept = findName(project.forms, "Accept", false);
    ASSERT_TRUE(accept);
    accept->slots[SLOT_GENERAL] = "call answer(words)\r\ncall owSetTextSetting(Name, trim(words))";
    project.codeBlocks[BLOCK_LOCAL_VARIABLES] = "character(40) :: words\r\nexternal :: answer";
    ASSERT_TRUE(saveProject(folder, "listed.wdp", true));
    const pid_t program = designer::open(folder, "listed.wdp");
    const auto settings = [&](const std::string& source) {
        designer::chooseMenu(program, "Project", "Project Settings...");
        const desk::Thing caption = inDialogue(program, "Project Settings", "Files:");
        if (!source.empty()) {
            const desk::Thing row = desk::waitFor(program, "the first row", [&](const desk::Thing& thing) {
                return thing.window == "Project Settings" && thing.kind == "Cell" && thing.x > caption.x + 60;
            });
            desk::click(row);
            desk::type(source);
            desk::key("Return");
        }
        desk::click(inDialogue(program, "Project Settings", "OK"));
        EXPECT_TRUE(desk::waitUntil([&] { return !desk::shows(program, desk::inWindow("Project Settings", {})); }));
    };
    const auto runShows = [&](const std::string& words) {
        const pid_t made = designer::startedProgram(program);
        ASSERT_GT(made, 0);
        desk::settle(made);
        desk::click(button(made, "OK"));
        desk::waitFor(made, words, desk::withText(words));
        desk::click(button(made, "Cancel"));
        EXPECT_TRUE(gone(made));
        desk::waitFor(program, "Execute enabled again",
                      [](const desk::Thing& thing) { return thing.tooltip == "Execute" && thing.has('e'); });
    };
    settings(folder + "/answer.f90");
    desk::key("F5");
    answerBrowser(program, "Create ORBAWIDG code", "listed");
    runShows("first answer");
    writeAnswer("second answer");
    settings("");
    desk::key("F5");
    runShows("second answer");
    EXPECT_EQ(designer::close(program), 0);
}
