// The whole road: the greeting example is drawn anew in the designer, saved, compared with the one in examples/,
// generated, compiled, run and used; then a wrong line of code leads to the compiler's message.
#include "designer.h"

#include "project/files.h"
#include "project/tree.h"
#include "support/records_equal.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

constexpr const char* FORM = "Greeting";

// Draws the example on the first form. What is written here is what examples/greeting/greeting.wdp holds.
void drawGreeting(pid_t program) {
    designer::moveForm(program, "Form 1", 740, 150);
    designer::setProperty(program, "Title", FORM);
    designer::setProperty(program, "Xpos", "740");
    designer::setProperty(program, "Ypos", "140");
    designer::setProperty(program, "Width", "360");
    designer::setProperty(program, "Height", "190");

    designer::place(program, "Text Label", FORM, 20, 20);
    designer::setProperty(program, "Name", "NameLabel");
    designer::setProperty(program, "Text", "Your name");
    designer::setProperty(program, "Width", "90");

    designer::place(program, "Text Entry", FORM, 120, 20);
    designer::setProperty(program, "Name", "NameField");
    designer::setProperty(program, "Width", "210");
    designer::setProperty(program, "Bubble Help", "Whom to greet");

    designer::place(program, "Text Label", FORM, 20, 70);
    designer::setProperty(program, "Name", "Answer");
    designer::setProperty(program, "Text", "Type a name and press Greet");
    designer::setProperty(program, "Width", "310");

    designer::place(program, "Button", FORM, 20, 130);
    designer::setProperty(program, "Name", "Greet");
    designer::setProperty(program, "Label", "Greet");
    designer::replaceCode(program, "call owEnqTextSetting(NameField, who)\n"
                                   "call owSetTextSetting(Answer, 'Hello, '//trim(who)//'!')");

    designer::place(program, "Button", FORM, 120, 130);
    designer::setProperty(program, "Name", "Leave");
    designer::setProperty(program, "Label", "Quit");
    designer::replaceCode(program, "callid = -1");

    designer::chooseBlock(program, "Local Variables");
    designer::replaceCode(program, "character(80) :: who");
    designer::clickForm(program, FORM, 300, 140);
}

// Answers a file browser: types the name and confirms.
void answerBrowser(pid_t program, const std::string& title, const std::string& name) {
    desk::waitFor(program, "the box " + title, desk::inWindow(title, {}));
    desk::key("ctrl+a");
    desk::type(name);
    desk::key("Return");
}

void useGreeting(pid_t greeting) {
    const desk::Thing field = desk::waitFor(greeting, "the name field", [](const desk::Thing& thing) {
        return thing.window == FORM && thing.tooltip.find("Whom to greet") != std::string::npos;
    });
    desk::click(field);
    desk::type("Ada");
    desk::click(desk::waitFor(greeting, "Greet", desk::inWindow(FORM, desk::withText("Greet"))));
    desk::waitFor(greeting, "the answer", desk::inWindow(FORM, desk::withText("Hello, Ada!")));
}

desk::Test commandIs(const std::string& tip, bool enabled) {
    return [tip, enabled](const desk::Thing& thing) { return thing.tooltip == tip && thing.has('e') == enabled; };
}

} // namespace

TEST(Greeting, FromAnEmptyProjectToARunningProgram) {
    ASSERT_TRUE(desk::open());
    const std::string folder = desk::scratchFolder() + "/greeting";
    fs::create_directory(folder);
    const pid_t program = designer::open(folder);
    drawGreeting(program);
    desk::picture(std::string(ORBA_BINARY_DIR) + "/pictures/designer.png");
    desk::key("ctrl+s");
    answerBrowser(program, "Save Project As", "greeting");
    ASSERT_TRUE(desk::waitUntil([&] { return fs::exists(folder + "/greeting.wdp"); }));
    ASSERT_FALSE(HasFailure());

    ASSERT_TRUE(loadProject(folder, "greeting.wdp"));
    const OwnedList drawn = copyNode(project.forms, true);
    ASSERT_TRUE(loadProject(std::string(ORBA_SOURCE_DIR) + "/examples/greeting", "greeting.wdp"));
    EXPECT_EQ(differences(drawn.get(), project.forms), "");

    desk::key("F5");
    answerBrowser(program, "Create ORBAWIDG code", "greeting");
    const pid_t greeting = designer::startedProgram(program);
    ASSERT_GT(greeting, 0) << "the program did not start";
    useGreeting(greeting);
    desk::picture(std::string(ORBA_BINARY_DIR) + "/pictures/greeting.png");
    desk::waitFor(program, "Abort enabled", commandIs("Abort Execution", true));
    desk::click(desk::waitFor(greeting, "Quit", desk::inWindow(FORM, desk::withText("Quit"))));
    desk::waitFor(program, "Execute enabled again", commandIs("Execute", true), 4);
    desk::waitFor(program, "Abort disabled", commandIs("Abort Execution", false), 1);

    designer::select(program, "Greet");
    designer::replaceCode(program, "call owEnqTextSetting(NameField, nobody)");
    desk::key("F5");
    desk::waitFor(
        program, "the compiler's message",
        [](const desk::Thing& thing) {
            return thing.kind == "Cell" && thing.has('c') && thing.text.rfind("Error: ", 0) == 0;
        },
        60);
    EXPECT_EQ(designer::shownCode(program), "call owEnqTextSetting(NameField, nobody)");
    desk::waitFor(program, "the column of the message",
                  [](const desk::Thing& thing) { return thing.text.find("Line: 1; Column: 40") != std::string::npos; });
    EXPECT_EQ(designer::startedProgram(program, 2), 0) << "a program was started in spite of the error";
    desk::picture(std::string(ORBA_BINARY_DIR) + "/pictures/error.png");
    EXPECT_EQ(designer::close(program), 0);
}
