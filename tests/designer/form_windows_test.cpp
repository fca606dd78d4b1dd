// Where the windows of forms stand while they are designed, and how much of a large one shows.
#include "desk.h"

#include "shell/commands.h"
#include "surface/live.h"

#include <QGuiApplication>
#include <QPoint>
#include <QRect>
#include <QScreen>
#include <QScrollBar>
#include <QWidget>

namespace robot = orba::testing;

namespace {

QRect onScreen(const QWidget& view) { return {view.mapToGlobal(QPoint(0, 0)), view.size()}; }

QRect windowOf(const WidgetNode& form) { return robot::viewOf(form.handle)->frameGeometry(); }

// What the bars and panes of the master window leave of it.
QRect freeMiddle() {
    constexpr int CLIENT = 2; // handle of the client area
    return onScreen(*robot::viewOf(CLIENT));
}

QScrollBar* scrollBar(const WidgetNode& form, Qt::Orientation orientation) {
    for (QScrollBar* bar : robot::viewOf(form.handle)->findChildren<QScrollBar*>())
        if (bar->orientation() == orientation && bar->isVisible()) return bar;
    return nullptr;
}

// The master window as large as the screen, with room for small forms between its panes. Form1's own place is over one.
struct RoomyDesk : Desk {
    RoomyDesk() {
        command(CMD_VIEW_CODE_EDITOR);
        robot::moveByUser(1, {0, 0});
        robot::resizeByUser(1, {800, 780});
        run();
        setProperty("Width", "250");
        setProperty("Height", "200");
        setProperty("Xpos", "60");
        setProperty("Ypos", "150");
        project.projectModified = 0;
    }
};

TEST(FormWindows, StandOverTheFreeMiddleAndKeepTheirOwnPlace) {
    RoomyDesk desk;
    ASSERT_FALSE(freeMiddle().contains(QPoint(60, 150)));
    ASSERT_GT(freeMiddle().width(), 300);
    EXPECT_TRUE(freeMiddle().contains(windowOf(*desk.form)));
    EXPECT_EQ(desk.property("Xpos"), "60");
    EXPECT_EQ(desk.property("Ypos"), "150");
    EXPECT_EQ(project.projectModified, 0);
    int x = 0, y = 0;
    owEnqWidgetProp(desk.form->handle, owXpos, &x, owYpos, &y, 0);
    EXPECT_EQ(QPoint(x, y), QPoint(60, 150)) << "so does whoever asks the toolkit";
}

TEST(FormWindows, DoNotHideOneAnother) {
    RoomyDesk desk;
    desk.command(CMD_NEW_FORM);
    ASSERT_TRUE(desk.form->next);
    EXPECT_NE(windowOf(*desk.form).topLeft(), windowOf(*desk.form->next).topLeft());
}

TEST(FormWindows, GoWithTheFreeMiddleUntilTheyAreMoved) {
    RoomyDesk desk;
    const QRect before = windowOf(*desk.form);
    const QRect middle = freeMiddle();
    desk.command(CMD_VIEW_HIERARCHY);
    robot::settle(20);
    ASSERT_NE(freeMiddle(), middle);
    EXPECT_TRUE(freeMiddle().contains(windowOf(*desk.form)));
    EXPECT_NE(windowOf(*desk.form), before);
    EXPECT_EQ(desk.form->xpos, 60);

    robot::moveByUser(desk.form->handle, {30, 310}); // over a pane, as its user wants it
    desk.run();
    EXPECT_EQ(desk.form->xpos, 30);
    EXPECT_EQ(desk.form->ypos, 310);
    EXPECT_EQ(project.projectModified, 1);
    desk.command(CMD_VIEW_HIERARCHY);
    robot::settle(20);
    EXPECT_EQ(robot::viewOf(desk.form->handle)->pos(), QPoint(30, 310));
    desk.setProperty("Title Bar (Not WYSIWYG)", "X"); // whatever makes the window anew
    desk.run();
    EXPECT_EQ(windowOf(*desk.form).topLeft(), QPoint(30, 310));
}

TEST(FormWindows, ALargeFormIsScrolled) {
    RoomyDesk desk;
    desk.setProperty("Width", "3000");
    desk.setProperty("Height", "2000");
    EXPECT_EQ(desk.form->width, 3000);
    EXPECT_EQ(desk.form->height, 2000);
    EXPECT_EQ(robot::rectOf(desk.panel->handle), QRect(0, 0, 3000, 2000)) << "it is as large as it will be";
    const QRect window = windowOf(*desk.form);
    EXPECT_LE(window.width(), QGuiApplication::primaryScreen()->availableGeometry().width());
    EXPECT_LE(window.height(), freeMiddle().height());
    QScrollBar* across = scrollBar(*desk.form, Qt::Horizontal);
    QScrollBar* down = scrollBar(*desk.form, Qt::Vertical);
    ASSERT_TRUE(across && down);
    across->setValue(across->maximum());
    down->setValue(down->maximum());
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 2900, 1950);
    ASSERT_TRUE(button);
    EXPECT_EQ(button->xpos, 2900);
    EXPECT_EQ(button->ypos, 1950);
    robot::drag(button->handle, {30, 10}, {10, -20});
    desk.run();
    EXPECT_EQ(button->xpos, 2880);
    EXPECT_EQ(button->ypos, 1920);
}

TEST(FormWindows, ASelectedWidgetIsScrolledIntoSight) {
    RoomyDesk desk;
    desk.setProperty("Width", "3000");
    desk.setProperty("Height", "2000");
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 2900, 1950);
    ASSERT_TRUE(button);
    EXPECT_FALSE(robot::viewOf(button->handle)->visibleRegion().isEmpty());
}

TEST(FormWindows, AToolBarTakesNothingOffTheForm) {
    Desk desk;
    ASSERT_TRUE(desk.place(PLACE_TOOL_BAR, desk.panel, 200, 200));
    desk.run();
    const QSize window = robot::viewOf(desk.form->handle)->size();
    EXPECT_EQ(robot::rectOf(desk.panel->handle).size(), QSize(desk.form->width, desk.form->height));
    rebuildWidget(*desk.form);
    desk.run();
    EXPECT_EQ(robot::viewOf(desk.form->handle)->size(), window);
    EXPECT_EQ(robot::rectOf(desk.panel->handle).size(), QSize(desk.form->width, desk.form->height));
}

TEST(FormWindows, TheUsersSizeOfAWindowIsTheForms) {
    RoomyDesk desk;
    robot::resizeByUser(desk.form->handle, {330, 280});
    desk.run();
    EXPECT_EQ(desk.form->width, 330);
    EXPECT_EQ(desk.form->height, 280);
    EXPECT_FALSE(scrollBar(*desk.form, Qt::Horizontal));
    EXPECT_EQ(robot::rectOf(desk.panel->handle), QRect(0, 0, 330, 280));
}

TEST(FormWindows, TheWindowOfALargeFormIsItsUsersToSize) {
    RoomyDesk desk;
    desk.setProperty("Width", "3000");
    desk.setProperty("Height", "2000");
    robot::resizeByUser(desk.form->handle, {500, 400});
    desk.run();
    EXPECT_EQ(desk.form->width, 3000) << "the form stays as it is";
    EXPECT_EQ(desk.form->height, 2000);
    EXPECT_EQ(robot::viewOf(desk.form->handle)->size(), QSize(500, 400));
    EXPECT_TRUE(scrollBar(*desk.form, Qt::Horizontal));
}

} // namespace
