// The whole designer in this process, worked through its real widgets: in a folder of its own, without the splash.
#pragma once

#include "menu-c.h"
#include "project/records.h"
#include "shell/command_states.h"
#include "shell/command_table.h"
#include "shell/designer.h"
#include "support/scratch.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

class DesignerTest : public testing::Test {
protected:
    ScratchFolder scratch{"orba-designer"};
    std::filesystem::path before, root, data;

    void SetUp() override;
    void TearDown() override;

    void start(const std::string& commandLine = "");
    void end();
    bool running = false;

    // Handles every event that waits, as the action loop does.
    static void pump();
    // Runs a command as its entry, button or key does.
    static void send(int command);
    static int menuEntry(int command) { return commandWidget(command, CommandWidget::MenuEntry); }
    static int button(int command) { return commandWidget(command, CommandWidget::Button); }
    // Handle of the live widget of a record.
    static int live(const std::string& name);
    static std::string title();
    std::string file(const std::string& name) const { return (root / name).string(); }
};
