// Tests that start and end the designer themselves, once or more often, in one folder.
#pragma once

#include "designer_session.h"

#include "menu-c.h"
#include "project/records.h"
#include "shell/command_states.h"
#include "shell/command_table.h"
#include "shell/designer.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

class DesignerTest : public testing::Test {
protected:
    DesignerSession session;
    const std::filesystem::path &root = session.root, &data = session.data;

    void start(const std::string& commandLine = "") { session.start(commandLine); }
    void end() { session.end(); }
    static void pump() { DesignerSession::pump(); }
    static void send(int command) { DesignerSession::send(command); }
    static int menuEntry(int command) { return commandWidget(command, CommandWidget::MenuEntry); }
    static int button(int command) { return commandWidget(command, CommandWidget::Button); }
    // Handle of the live widget of a record.
    static int live(const std::string& name);
    static std::string title();
    std::string file(const std::string& name) const { return (root / name).string(); }
};
