// Tool bars and panes dock at the edges of a form, and take no part in what free widgets do.
#include "desk.h"

#include <QTest>

#include <vector>

namespace robot = orba::testing;

namespace {

void shiftClick(Desk& desk, const WidgetNode& widget) {
    QWidget* view = robot::viewOf(widget.handle);
    QTest::mouseClick(view, Qt::LeftButton, Qt::ShiftModifier, {view->width() - 3, view->height() - 3});
    desk.run();
}

} // namespace

TEST(Docked, JoinNoGroup) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 40, 120);
    WidgetNode* bar = desk.place(PLACE_TOOL_BAR, desk.panel, 10, 10);
    WidgetNode* pane = desk.place(PLACE_PANE, desk.panel, 10, 60);
    for (WidgetNode* docked : {bar, pane}) {
        ASSERT_TRUE(docked);
        desk.click(button);
        shiftClick(desk, *docked);
        EXPECT_FALSE(groupStands());
        EXPECT_EQ(project.currentWidget, docked);
        EXPECT_TRUE(robot::isShown(docked->handle));

        shiftClick(desk, *button);
        EXPECT_FALSE(groupStands());
        EXPECT_EQ(project.currentWidget, button);
    }
    EXPECT_TRUE(robot::reports().empty());
}
