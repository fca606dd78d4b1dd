#include "designer.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace designer {
namespace {

constexpr const char* MAIN = "ORBAWIDG Designer";

desk::Thing cellRightOf(pid_t program, const desk::Thing& label) {
    return desk::waitFor(program, "the value of " + label.text, [&](const desk::Thing& thing) {
        return thing.kind == "Cell" && thing.y == label.y && thing.x > label.x;
    });
}

desk::Thing labelCell(pid_t program, const std::string& label) {
    return desk::waitFor(program, "the row " + label, [&](const desk::Thing& thing) {
        return thing.kind == "Cell" && thing.text == label && thing.x > 700; // the sheet is docked at the right
    });
}

desk::Thing codeText(pid_t program) {
    return desk::waitFor(program, "the code editor", desk::inWindow(MAIN, desk::ofKind("QTextEdit")));
}

desk::Thing formWindow(pid_t program, const std::string& title) {
    return desk::waitFor(
        program, "the form " + title,
        [&](const desk::Thing& thing) { return thing.window == title && thing.kind == "orba::FormWindow"; }, 30);
}

} // namespace

pid_t open(const std::string& folder, const std::string& project) {
    std::vector<std::string> command = {ORBA_DESIGNER};
    if (!project.empty()) command.push_back(project);
    const pid_t program = desk::start(command, {{"ORBA_NO_SPLASH", "1"}}, folder, folder + "/designer.log");
    desk::waitFor(program, "the main window", desk::inWindow(MAIN, desk::ofKind("orba::FormWindow")), 30);
    desk::waitFor(program, "a form", [](const desk::Thing& thing) {
        return thing.kind == "orba::FormWindow" && thing.window.find(MAIN) == std::string::npos;
    });
    desk::settle(program);
    return program;
}

int close(pid_t program, const std::string& saveAnswer) {
    chooseMenu(program, "File", "Exit");
    desk::waitUntil([&] {
        for (const desk::Thing& thing : desk::look(program))
            if (thing.window == "Exit ORBAWIDG Designer" && desk::withText(saveAnswer)(thing)) {
                desk::click(thing);
                return true;
            }
        return !desk::running(program);
    });
    return desk::stop(program);
}

void moveForm(pid_t program, const std::string& title, int x, int y) {
    const desk::Thing form = formWindow(program, title);
    desk::drag(form.x + 60, form.y - 8, x + 60, y - 8);
}

void place(pid_t program, const std::string& tool, const std::string& form, int x, int y) {
    desk::click(desk::waitFor(program, "the tool " + tool, desk::inWindow(MAIN, desk::withTip(tool))));
    clickForm(program, form, x, y);
}

void clickForm(pid_t program, const std::string& form, int x, int y) {
    const desk::Thing window = formWindow(program, form);
    desk::clickAt(window.x + x, window.y + y);
}

void select(pid_t program, const std::string& name) {
    desk::click(desk::waitFor(program, "the row " + name, [&](const desk::Thing& thing) {
        return thing.kind == "Cell" && thing.text == name && thing.x < 400;
    }));
}

std::string property(pid_t program, const std::string& label) {
    return cellRightOf(program, labelCell(program, label)).text;
}

void setProperty(pid_t program, const std::string& label, const std::string& text) {
    desk::click(cellRightOf(program, labelCell(program, label)));
    desk::key("ctrl+a");
    desk::type(text);
    desk::key("Return");
    EXPECT_TRUE(desk::waitUntil([&] { return property(program, label) == text; })) << label << " is not " << text;
}

void chooseBlock(pid_t program, const std::string& name) {
    desk::click(desk::waitFor(program, "the block list", desk::withTip("Select Code Block")));
    desk::click(desk::waitFor(program, "the block " + name,
                              [&](const desk::Thing& thing) { return thing.kind == "Cell" && thing.text == name; }));
    desk::click(codeText(program));
}

void replaceCode(pid_t program, const std::string& code) {
    desk::click(codeText(program));
    desk::key("ctrl+a");
    desk::key("Delete");
    size_t begin = 0;
    while (begin <= code.size()) { // a line at a time; the editor indents each like the one above
        const size_t end = std::min(code.find('\n', begin), code.size());
        desk::type(code.substr(begin, end - begin));
        if (end < code.size()) desk::key("Return");
        begin = end + 1;
    }
    EXPECT_TRUE(desk::waitUntil([&] { return shownCode(program) == code; })) << shownCode(program);
}

std::string shownCode(pid_t program) { return codeText(program).text; }

void chooseMenu(pid_t program, const std::string& menu, const std::string& entry) {
    desk::click(desk::waitFor(program, "the menu " + menu, [&](const desk::Thing& thing) {
        return thing.kind == "Action" && desk::withText(menu)(thing);
    }));
    desk::click(desk::waitFor(program, "the entry " + entry, [&](const desk::Thing& thing) {
        return thing.kind == "Action" && desk::withText(entry)(thing);
    }));
}

pid_t startedProgram(pid_t designer, double seconds) {
    pid_t found = 0;
    desk::waitUntil(
        [&] {
            for (pid_t program : desk::probed()) {
                if (program == designer) continue;
                for (const desk::Thing& thing : desk::look(program))
                    if (thing.kind == "orba::FormWindow") found = program;
            }
            return found != 0;
        },
        seconds);
    return found;
}

} // namespace designer
