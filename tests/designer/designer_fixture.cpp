#include "designer_fixture.h"

#include "project/host.h"
#include "project/preferences.h"
#include "project/tree.h"
#include "surface/state.h"
#include "toolkit/testing/robot.h"

#include <cstdlib>

static constexpr int END_OF_EVENTS = 19991; // posted behind the events that wait

void DesignerTest::SetUp() {
    before = std::filesystem::current_path();
    root = scratch.path;
    data = root / "data";
    std::filesystem::create_directories(data);
    std::filesystem::current_path(root);
    std::filesystem::copy_file(ORBA_SOURCE_DIR "/data/defaults.syn", root / "defaults.syn");
    setenv("ORBADATA", data.c_str(), 1);
    setenv("ORBA_NO_SPLASH", "1", 1);
    orba::testing::watchProgram(true);
}

void DesignerTest::TearDown() {
    if (running) end();
    EXPECT_TRUE(orba::testing::scriptIsEmpty()) << "a box that was expected did not come";
    EXPECT_TRUE(orba::testing::reports().empty());
    orba::testing::watchProgram(false);
    std::filesystem::current_path(before);
}

void DesignerTest::start(const std::string& commandLine) {
    project = {};
    design = {};
    startDesigner(commandLine);
    running = true;
    pump();
}

void DesignerTest::end() {
    running = false;
    endDesigner();
}

void DesignerTest::pump() {
    for (int round = 0; round < 3; round++) {
        orba::testing::settle(10);
        owPostCallback(END_OF_EVENTS, 0);
        for (int callback = 0; owAction(&callback) != END_OF_EVENTS;) handleEvent(callback);
    }
}

void DesignerTest::send(int command) {
    owPostCallback(command, 0);
    pump();
}

int DesignerTest::live(const std::string& name) {
    const WidgetNode* node = findName(project.forms, name, false);
    return node ? node->handle : 0;
}

std::string DesignerTest::title() {
    char text[256];
    owEnqWidgetProp(1, owTitle, text, 0);
    return text;
}
