// Where windows open: at the place that the program names, whatever bars are in them.
#include "desk.h"

#include "examples/builder.h"
#include "project/files.h"
#include "project/records.h"
#include "support/program_languages.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using namespace example;

namespace {

constexpr int LEFT = 100, TOP = 150, STEP = 320;

WidgetNode& placed(WidgetNode& form, int step) {
    form.hpos = -1;
    form.vpos = 1;
    form.xpos = LEFT + step * STEP;
    form.ypos = TOP;
    return form;
}

void addMenu(WidgetNode& form) {
    for (const int kind : {MENU_BAR, MENU_ENTRY}) {
        MenuEntryRec& entry = form.entries.emplace_back();
        entry.kind = kind;
        entry.name = form.name + std::to_string(kind);
        entry.label = "Entry";
    }
}

} // namespace

TEST(Places, AWindowOpensWhereItIsToldWithAMenuOrABarAsWithout) {
    ASSERT_TRUE(desk::open());
    const std::string folder = desk::scratchFolder() + "/places";
    fs::create_directories(folder);
    addMenu(placed(begin(99, "MENUED", "Menued", 280, 160), 0));
    placed(addForm("PLAIN", "Plain", FORM_STATIC_SDI, 280, 160), 1);
    WidgetNode& barred = placed(addForm("BARRED", "Barred", FORM_STATIC_SDI, 280, 160), 2);
    WidgetNode& bar = add(barred, TYPE_TOOL_BAR, "BAR", 0, 0, 200, 30, "Tools");
    bar.onToolbar = 0;
    add(bar, TYPE_BUTTON, "TOOL", 0, 0, 60, 24, "Tool").onToolbar = 1;
    project.codeBlocks[BLOCK_PRE_ACTION] = "owDrawWindow(PLAIN, 1);\r\nowDrawWindow(BARRED, 1);\r\n";
    ASSERT_TRUE(saveProject(folder, "places.wdp", true));
    const std::string script = "cd " + folder + " && ( " + makeCommand(C_PROGRAM, "places") + " ) > compile.log 2>&1";
    ASSERT_EQ(std::system(script.c_str()), 0) << script;
    const pid_t program = desk::start({"./places"}, {}, folder, folder + "/run.log");
    desk::settle(program);
    const auto window = [&](const char* title) {
        return desk::waitFor(program, title, desk::inWindow(title, desk::ofKind("orba::FormWindow")));
    };
    const desk::Thing plain = window("Plain");
    for (const auto& [title, step] : {std::pair{"Menued", -1}, {"Barred", 1}}) {
        const desk::Thing other = window(title);
        EXPECT_EQ(other.x, plain.x + step * STEP) << title;
        EXPECT_EQ(other.y, plain.y) << title;
    }
    kill(program, SIGTERM);
    desk::stop(program);
}
