// Every edit is a step that can be taken back and done again, on the records and on the live form.
#include "desk.h"

#include "editing/editor_window.h"
#include "project/files.h"
#include "project/timeline.h"
#include "support/files.h"
#include "support/scratch.h"
#include "surface/live.h"

#include <QRect>

#include <random>

namespace robot = orba::testing;

namespace {

QRect placeOf(const WidgetNode* n) { return {n->xpos, n->ypos, n->width, n->height}; }

// The project's file, whatever is selected.
std::string bytes(const ScratchFolder& scratch) {
    clearSelected(project.forms);
    saveProject(scratch.path.string(), "now.wdp", true);
    return readBytes(scratch / "now.wdp");
}

// Every record shows as a live widget at its place.
void expectLive() {
    for (WidgetNode* node = project.forms; node; node = walkList(node, project.forms)) {
        ASSERT_GT(node->handle, 0) << node->name;
        EXPECT_EQ(findHandle(node->handle), node) << node->name;
        const QRect place = placeOf(node);
        EXPECT_EQ(node->type == TYPE_BUTTON ? robot::rectOf(node->handle) : place, place) << node->name;
        EXPECT_TRUE(node->type == TYPE_MAIN_PANEL || node->hierarchyItem > 0) << node->name;
    }
}

std::string undoLabel() { return stepToUndo() ? stepToUndo()->label : ""; }

} // namespace

TEST(Undo, TakesBackEveryKindOfEdit) {
    Desk desk;
    ScratchFolder scratch{"undo"};
    std::vector<std::pair<std::string, std::string>> states; // label of the step, the file behind it
    states.emplace_back("", bytes(scratch));
    const auto done = [&](const std::string& label) {
        EXPECT_EQ(undoLabel(), label);
        states.emplace_back(label, bytes(scratch));
    };
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 50, 80);
    done("New Form1_Button1");
    desk.setProperty("Label", "Greet");
    done("Label of Form1_Button1");
    desk.setProperty("Name", "greet");
    done("Name of Form1_Button1");
    robot::drag(button->handle, {5, 5}, {45, 65});
    desk.run();
    done("Move greet");
    WidgetNode* panel = desk.place(PLACE_PANEL, desk.panel, 150, 200);
    done("New Form1_Panel1");
    desk.click(button);
    robot::drag(button->handle, {5, 5}, {5 + 100, 5 + 110});
    desk.run();
    ASSERT_EQ(button->parent, panel);
    done("Move greet");
    desk.command(CMD_COPY);
    desk.command(CMD_PASTE);
    done("New Form1_Button2");
    robot::expectBox("Confirm Widget Deletion",
                     "This will permanently erase Form1_Panel1 and all it's child widgets.|Do you want to continue?",
                     OANSWERYES);
    selectWidget(panel);
    desk.command(CMD_DELETE);
    done("Delete Form1_Panel1");
    desk.place(PLACE_TAB_BOX, desk.panel, 20, 20);
    done("New Form1_TabDiaBox1");
    desk.command(CMD_NEW_FORM);
    done("New Form2");

    for (std::size_t i = states.size() - 1; i > 0; i--) {
        desk.command(CMD_UNDO);
        EXPECT_EQ(byteDifference(bytes(scratch), states[i - 1].second), "") << states[i].first;
        expectLive();
        EXPECT_TRUE(project.currentWidget);
    }
    EXPECT_EQ(project.projectModified, 0) << "as it was begun";
    EXPECT_FALSE(stepToUndo());
    for (std::size_t i = 1; i < states.size(); i++) {
        desk.command(CMD_REDO);
        EXPECT_EQ(byteDifference(bytes(scratch), states[i].second), "") << states[i].first;
        expectLive();
    }
    EXPECT_EQ(project.projectModified, 1);
}

TEST(Undo, BringsCodeBackIntoTheEditor) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 50, 80);
    robot::doubleClick(button->handle, {10, 10});
    desk.run();
    robot::type(codeText(), "x = 1");
    desk.run();
    desk.click(desk.panel, 300, 400);
    EXPECT_EQ(undoLabel(), "Code of Form1_Button1");
    desk.command(CMD_UNDO);
    EXPECT_EQ(project.currentWidget, button);
    EXPECT_EQ(button->slots[SLOT_GENERAL], "");
    EXPECT_EQ(robot::shownText(codeText()).toStdString(), "");
    desk.command(CMD_REDO);
    EXPECT_EQ(button->slots[SLOT_GENERAL], "x = 1");
    EXPECT_EQ(robot::shownText(codeText()).toStdString(), "x = 1");
}

TEST(Undo, SelectingIsNoEditAndASavedProjectIsReachedAgain) {
    Desk desk;
    ScratchFolder scratch{"undo"};
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 50, 80);
    const std::size_t steps = timelinePosition();
    desk.click(desk.panel, 300, 400);
    desk.click(button);
    EXPECT_EQ(timelinePosition(), steps);
    desk.setProperty("Width", "100");
    desk.setProperty("Width", "120");
    EXPECT_EQ(timelinePosition(), steps + 1) << "edits of one cell";
    desk.command(CMD_UNDO);
    EXPECT_EQ(button->width, 75);
    desk.setProperty("Height", "40");
    EXPECT_FALSE(stepToRedo());
}
