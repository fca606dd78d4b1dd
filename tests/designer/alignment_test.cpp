// Aligning a group by its dialogue, with keys and mouse.
#include "dialogue_test.h"

#include "surface/align.h"
#include "surface/commands.h"
#include "surface/dialogue_keys.h"

#include <QRect>

namespace robot = orba::testing;

namespace {

constexpr int OK = 15477, CANCEL = 15478, LEFT = 15961, RIGHT = 15963, BOTTOM = 15967;

struct AlignmentTest : DialogueTest {
    WidgetNode* first = desk.place(PLACE_BUTTON, desk.panel, 20, 30);
    WidgetNode* second = desk.place(PLACE_TEXT_ENTRY, desk.panel, 60, 90); // 100 wide

    void group() {
        robot::drag(desk.panel->handle, {5, 5}, {300, 300});
        desk.run();
        ASSERT_TRUE(groupStands());
    }
};

} // namespace

TEST_F(AlignmentTest, MembersMeetAndStayAGroup) {
    group();
    desk.command(CMD_ALIGN);
    ASSERT_TRUE(dialogueOpen());
    press(LEFT);
    EXPECT_TRUE(dialogue::isOn(LEFT));
    press(RIGHT);
    EXPECT_FALSE(dialogue::isOn(LEFT)) << "one of a column";
    press(BOTTOM);
    press(OK);
    EXPECT_FALSE(dialogueOpen());
    EXPECT_EQ(first->xpos + first->width, 160);
    EXPECT_EQ(second->xpos, 60);
    EXPECT_EQ(first->ypos + first->height, second->ypos + second->height);
    EXPECT_TRUE(groupStands());
    EXPECT_EQ(project.projectModified, 1);
    desk.command(CMD_UNDO);
    EXPECT_EQ(first->xpos, 20);
    EXPECT_EQ(first->ypos, 30);
    desk.command(CMD_REDO);
    EXPECT_EQ(first->xpos, 85);
}

TEST_F(AlignmentTest, IsForGroupsAndCancelChangesNothing) {
    desk.command(CMD_ALIGN);
    EXPECT_FALSE(dialogueOpen());
    group();
    desk.command(CMD_ALIGN);
    press(LEFT);
    press(CANCEL);
    EXPECT_FALSE(dialogueOpen());
    EXPECT_EQ(second->xpos, 60);
    EXPECT_TRUE(groupStands());
}

TEST(Align, EachRule) {
    struct Case {
        Align across, down;
        std::vector<int> x, y;
    };
    const Case cases[] = {
        {Align::Off, Align::Off, {10, 50, 30}, {5, 8, 100}},   {Align::Near, Align::Off, {10, 10, 10}, {5, 8, 100}},
        {Align::Far, Align::Near, {60, 50, 69}, {5, 5, 5}},    {Align::Middle, Align::Off, {10, 5, 15}, {5, 8, 100}},
        {Align::Off, Align::Middle, {10, 50, 30}, {5, 10, 2}}, {Align::Off, Align::Far, {10, 50, 30}, {106, 116, 100}},
    };
    const int widths[] = {20, 30, 11}, heights[] = {21, 11, 27};
    for (const Case& row : cases) {
        WidgetNode nodes[3];
        Records records;
        for (int i = 0; i < 3; i++) {
            nodes[i].xpos = cases[0].x[static_cast<std::size_t>(i)];
            nodes[i].ypos = cases[0].y[static_cast<std::size_t>(i)];
            nodes[i].width = widths[i];
            nodes[i].height = heights[i];
            records.push_back(&nodes[i]);
        }
        alignRecords(records, row.across, row.down);
        std::vector<int> x, y;
        for (const WidgetNode& node : nodes) x.push_back(node.xpos), y.push_back(node.ypos);
        EXPECT_EQ(x, row.x);
        EXPECT_EQ(y, row.y);
    }
}
