// Building as a user meets it: planted errors bring up their line, the mended program runs and is used, and one that
// never comes to an end is aborted.
#include "designer.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

constexpr const char* FORM = "Greeting";

void answerBrowser(pid_t program, const std::string& title, const std::string& name) {
    desk::waitFor(program, "the box " + title, desk::inWindow(title, {}));
    desk::key("ctrl+a");
    desk::type(name);
    desk::key("Return");
}

// Waits until the log holds a line with `words`.
void waitForLog(pid_t program, const std::string& words) {
    constexpr double COMPILING = 60; // seconds
    const auto isLine = [&](const desk::Thing& thing) {
        return thing.kind == "Cell" && thing.text.find(words) != std::string::npos;
    };
    desk::waitFor(program, words + " in the log", isLine, COMPILING);
}

// What is typed next goes to the place of the error.
void typeAtCaret(pid_t program, const std::string& text, const std::string& expected) {
    desk::type(text);
    EXPECT_TRUE(desk::waitUntil([&] { return designer::shownCode(program) == expected; }))
        << designer::shownCode(program);
}

// On the form itself.
void selectGreet(pid_t program) { designer::clickForm(program, FORM, 50, 142); }
void selectLeave(pid_t program) { designer::clickForm(program, FORM, 150, 142); }

void greet(pid_t greeting, const std::string& name) {
    desk::click(desk::waitFor(greeting, "the name field", desk::inWindow(FORM, desk::withTip("Whom to greet"))));
    desk::type(name);
    desk::click(desk::waitFor(greeting, "Greet", desk::inWindow(FORM, desk::withText("Greet"))));
}

} // namespace

TEST(Building, FromErrorsToAProgramThatIsUsedAndOneThatIsAborted) {
    ASSERT_TRUE(desk::open());
    const std::string folder = desk::scratchFolder() + "/building";
    fs::create_directory(folder);
    fs::copy(std::string(ORBA_SOURCE_DIR) + "/examples/greeting/greeting.wdp", folder + "/greeting.wdp");
    const pid_t program = designer::open(folder, "greeting.wdp");

    selectGreet(program);
    const std::string good = designer::shownCode(program);
    designer::replaceCode(program, "who = ' '\ngarbage here ?");
    selectLeave(program);
    desk::key("F5");
    answerBrowser(program, "Create ORBAWIDG code", "greeting");
    waitForLog(program, "Error: ");
    EXPECT_TRUE(desk::waitUntil([&] { return designer::shownCode(program) == "who = ' '\ngarbage here ?"; }));
    EXPECT_EQ(designer::property(program, "Name"), "Greet");
    typeAtCaret(program, "!", "who = ' '\n!garbage here ?");
    desk::picture(std::string(ORBA_BINARY_DIR) + "/pictures/slot_error.png");

    designer::replaceCode(program, good);
    designer::chooseBlock(program, "Initialization");
    designer::replaceCode(program, "who = ' '\n\nwho = = 'x'");
    selectLeave(program);
    desk::key("F5");
    waitForLog(program, "who = = 'x'");
    EXPECT_TRUE(desk::waitUntil([&] { return designer::shownCode(program).find("who = = 'x'") != std::string::npos; }));
    typeAtCaret(program, "!", "who = ' '\n\nwho = =! 'x'");
    EXPECT_EQ(designer::startedProgram(program, 1), 0);

    designer::replaceCode(program, "who = ' '");
    desk::key("F5");
    pid_t greeting = designer::startedProgram(program);
    ASSERT_GT(greeting, 0);
    greet(greeting, "Ada");
    desk::waitFor(greeting, "the answer", desk::inWindow(FORM, desk::withText("Hello, Ada!")));
    desk::click(desk::waitFor(greeting, "Quit", desk::inWindow(FORM, desk::withText("Quit"))));
    EXPECT_TRUE(desk::waitUntil([&] { return kill(greeting, 0) != 0; }));

    selectGreet(program);
    designer::replaceCode(program, "do; who = 'for ever'; end do"); // on one line, which the editor does not indent
    desk::waitFor(program, "Compile enabled again", [](const desk::Thing& thing) {
        return thing.tooltip.find("Compile") != std::string::npos && thing.has('e');
    });
    desk::key("F5");
    greeting = designer::startedProgram(program);
    ASSERT_GT(greeting, 0);
    greet(greeting, "Ada");
    EXPECT_TRUE(desk::waitUntil([&] { return desk::look(greeting).empty(); })) << "it should be busy for ever";
    desk::click(desk::waitFor(program, "Abort", [](const desk::Thing& thing) {
        return thing.tooltip == "Abort Execution" && thing.has('e');
    }));
    EXPECT_TRUE(desk::waitUntil([&] { return kill(greeting, 0) != 0; })) << "still running";
    desk::waitFor(program, "Execute enabled again",
                  [](const desk::Thing& thing) { return thing.tooltip == "Execute" && thing.has('e'); });
    EXPECT_EQ(designer::close(program), 0);
}
