#include "designer_session.h"

#include "menu-c.h"
#include "project/records.h"
#include "shell/designer.h"
#include "surface/state.h"
#include "toolkit/testing/robot.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace robot = orba::testing;

namespace {

constexpr int END_OF_EVENTS = 19991; // posted behind the events that wait
constexpr int ROUNDS = 3;            // an event may bring others
constexpr int ROUND_MILLISECONDS = 10;

} // namespace

DesignerSession::DesignerSession() {
    std::filesystem::create_directories(data);
    std::filesystem::current_path(root);
    std::filesystem::copy_file(ORBA_SOURCE_DIR "/data/defaults.syn", root / "defaults.syn");
    setenv("ORBADATA", data.c_str(), 1);
    setenv("ORBA_NO_SPLASH", "1", 1);
    robot::watchProgram(true);
}

DesignerSession::~DesignerSession() {
    if (running_) end();
    EXPECT_TRUE(robot::scriptIsEmpty()) << "a box that was expected did not come";
    EXPECT_TRUE(robot::reports().empty());
    robot::watchProgram(false);
    std::filesystem::current_path(before_);
}

void DesignerSession::start(const std::string& commandLine) {
    project = {};
    design = {};
    startDesigner(commandLine);
    running_ = true;
    pump();
}

void DesignerSession::end() {
    running_ = false;
    endDesigner();
}

void DesignerSession::pump() {
    for (int round = 0; round < ROUNDS; round++) {
        robot::settle(ROUND_MILLISECONDS);
        owPostCallback(END_OF_EVENTS, 0);
        for (int callback = 0; owAction(&callback) != END_OF_EVENTS;) handleEvent(callback);
    }
}

void DesignerSession::send(int command) {
    owPostCallback(command, 0);
    pump();
}
