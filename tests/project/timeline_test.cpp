#include "project/timeline.h"

#include "project/files.h"
#include "project/tree.h"
#include "support/files.h"
#include "support/records_equal.h"
#include "support/sample_project.h"
#include "support/scratch.h"

#include <gtest/gtest.h>

namespace {

struct TimelineTest : testing::Test {
    ScratchFolder scratch{"timeline"};
    std::mt19937 random{7};

    std::string bytes() {
        saveProject(scratch.path.string(), "now.wdp", true);
        return readBytes(scratch / "now.wdp");
    }
    int number(int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); }

    // Any record, or any that can be taken out of its parent.
    WidgetNode* anyRecord(bool loose = false) {
        Records all;
        for (WidgetNode* node = project.forms; node; node = walkList(node, project.forms))
            if (!loose || (node->parent && node->type != TYPE_MAIN_PANEL)) all.push_back(node);
        return all.empty() ? nullptr : all[static_cast<std::size_t>(number(static_cast<int>(all.size())))];
    }
};

std::string currentLabel() { return stepToUndo() ? stepToUndo()->label : ""; }

} // namespace

TEST_F(TimelineTest, RandomEditsAreTakenBackAndDoneAgain) {
    for (int round = 0; round < 3; round++) {
        randomProject(random, 3, 40);
        startTimeline();
        std::vector<std::string> states = {bytes()};
        for (int i = 0; i < 50; i++) {
            WidgetNode* any = anyRecord();
            WidgetNode* loose = anyRecord(true);
            WidgetNode* form = project.forms;
            switch (number(9)) {
            case 0: any->xpos++; break;
            case 1: renameNode(*any, "fresh" + std::to_string(i)); break;
            case 2: any->slots[SLOT_GENERAL] += "x = 1"; break;
            case 3: linkChild(*form->child, createFromDefaults(TYPE_BUTTON, i, i)); break;
            case 4:
                if (loose) deleteNode(loose);
                break;
            case 5:
                if (loose && loose->parent->child != loose) {
                    WidgetNode& parent = *loose->parent;
                    linkChildAfter(parent, nullptr, unlinkNode(loose));
                }
                break;
            case 6:
                if (loose && !liesWithin(form->child, loose)) linkChild(*form->child, unlinkNode(loose));
                break;
            case 7: project.codeBlocks[BLOCK_INITIALIZATION] += "y = 2"; break;
            default:
                newForm();
                moveFormToHead(project.forms->next);
                break;
            }
            if (recordStep()) states.push_back(bytes());
        }
        ASSERT_EQ(timelinePosition(), states.size() - 1);
        for (std::size_t i = states.size() - 1; i > 0; i--) {
            EXPECT_EQ(byteDifference(bytes(), states[i]), "") << i;
            undoStep();
        }
        EXPECT_EQ(byteDifference(bytes(), states[0]), "");
        EXPECT_FALSE(stepToUndo());
        for (std::size_t i = 1; i < states.size(); i++) {
            const std::string label = stepToRedo()->label;
            redoStep();
            ASSERT_EQ(byteDifference(bytes(), states[i]), "") << label;
        }
        EXPECT_FALSE(stepToRedo());
        EXPECT_FALSE(recordStep()) << "taking steps is no edit: " << currentLabel();
        resetProject();
    }
}

TEST_F(TimelineTest, ARecordComesOutOfOneThatMovesItself) {
    WidgetNode* form = freshProject();
    WidgetNode* button = addRecord(form->child, TYPE_BUTTON, "Greet");
    WidgetNode* panel = addRecord(form->child, TYPE_PANEL, "Box");
    startTimeline();
    const std::string before = bytes();
    linkChild(*panel, unlinkNode(button)); // now the panel is the first
    recordStep();
    const std::string after = bytes();
    undoStep();
    EXPECT_EQ(byteDifference(bytes(), before), "");
    redoStep();
    EXPECT_EQ(byteDifference(bytes(), after), "");
}

TEST_F(TimelineTest, StepsAreNamedForWhatTheyChange) {
    WidgetNode* form = freshProject();
    WidgetNode* panel = addRecord(form->child, TYPE_PANEL, "Box");
    WidgetNode* button = addRecord(panel, TYPE_BUTTON, "Greet");
    startTimeline();
    const auto step = [](const std::string& label) {
        EXPECT_TRUE(recordStep());
        EXPECT_EQ(currentLabel(), label);
    };
    button->xpos += 5;
    step("Move Greet");
    button->width += 5;
    step("Resize Greet");
    button->slots[SLOT_GENERAL] = "x = 1";
    step("Code of Greet");
    button->text = "Hello";
    step("Text of Greet");
    button->colour1 = 3;
    step("Change Greet");
    project.codeBlocks[BLOCK_INITIALIZATION] = "y = 1";
    step("Code of Initialization");
    button->xpos++;
    panel->xpos++;
    step("Move 2 widgets");
    nameStep("Label of Greet");
    button->text = "Ho";
    step("Label of Greet");
    addRecord(form->child, TYPE_ICON, "Lamp");
    step("New Lamp");
    linkChild(*form->child, unlinkNode(button));
    step("Move Greet");
    deleteNode(panel);
    step("Delete Box");
    newForm();
    EXPECT_TRUE(recordStep());
    EXPECT_TRUE(currentLabel().starts_with("New ")) << currentLabel();
    project.gridMode = 1;
    step("Project settings");
}

TEST_F(TimelineTest, EditsOfOneKindMergeUntilTheProjectIsSaved) {
    WidgetNode* form = freshProject();
    WidgetNode* button = addRecord(form->child, TYPE_BUTTON, "Greet");
    button->xpos = 10;
    startTimeline();
    markTimelineSaved();
    const auto nudge = [&] {
        button->xpos++;
        nameStep("", "nudge");
        recordStep();
    };
    nudge();
    nudge();
    EXPECT_EQ(timelinePosition(), 1U);
    undoStep();
    EXPECT_EQ(button->xpos, 10);
    EXPECT_TRUE(timelineAtSaved());
    redoStep();
    EXPECT_EQ(button->xpos, 12);
    EXPECT_FALSE(timelineAtSaved());
    markTimelineSaved();
    nudge();
    EXPECT_EQ(timelinePosition(), 2U) << "the saved state can be reached again";
    undoStep();
    EXPECT_TRUE(timelineAtSaved());
    undoStep();
    button->text = "other";
    recordStep();
    EXPECT_FALSE(stepToRedo()) << "an edit forgets what was taken back";
    undoStep();
    EXPECT_FALSE(timelineAtSaved()) << "and the saved state with it";
}

TEST_F(TimelineTest, TheOldestStepsGoWhenMemoryIsUsedUp) {
    WidgetNode* form = freshProject();
    startTimeline();
    markTimelineSaved();
    constexpr std::size_t LARGE = 1U << 20U;
    for (int i = 0; i < 100; i++) {
        form->slots[SLOT_GENERAL] = std::string(LARGE, static_cast<char>('a' + i % 26));
        recordStep();
    }
    EXPECT_LT(timelineSteps().size(), 40U);
    EXPECT_GT(timelineSteps().size(), 20U);
    while (stepToUndo()) undoStep();
    EXPECT_FALSE(timelineAtSaved());
    EXPECT_EQ(form->slots[SLOT_GENERAL].size(), LARGE) << "the start is out of reach";
}
