// What a drag, a paste and their undo leave behind, with mouse events on the real widgets.
#include "desk.h"

#include "surface/live.h"

#include <QPoint>
#include <QRect>

namespace robot = orba::testing;

namespace {

using Names = std::vector<std::string>;

Names childrenOf(const WidgetNode* parent) {
    Names names;
    for (const WidgetNode* child = parent->child; child; child = child->next) names.push_back(child->name);
    return names;
}

QRect placeOf(const WidgetNode* n) { return {n->xpos, n->ypos, n->width, n->height}; }

void drag(Desk& desk, const WidgetNode* widget, QPoint distance) {
    robot::drag(widget->handle, {5, 5}, QPoint(5, 5) + distance);
    desk.run();
}

} // namespace

TEST(Moves, UndoOfADropGivesBackThePlaceAmongTheOthers) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    WidgetNode* panel = desk.place(PLACE_PANEL, desk.panel, 150, 200);
    desk.place(PLACE_SLIDER, desk.panel, 20, 60);
    const Names before = childrenOf(desk.panel);
    desk.click(button);
    drag(desk, button, {150, 220});
    ASSERT_EQ(childrenOf(panel), Names{before[0]});
    desk.command(CMD_UNDO);
    EXPECT_EQ(childrenOf(desk.panel), before);
    desk.command(CMD_REDO);
    EXPECT_EQ(childrenOf(panel), Names{before[0]});
}

TEST(Moves, OtherOriginsAndStretchedSizesAreNotDraggedAway) {
    struct Case {
        const char *label, *value;
    };
    for (const Case& row : {Case{"Horizontal Origin", "Centre"}, Case{"Vertical Origin", "Middle"}, {"Expand", "On"}}) {
        SCOPED_TRACE(row.value);
        Desk desk;
        WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 50, 80);
        if (row.label == std::string("Expand")) desk.setProperty("Horizontal Origin", "Centre"); // else it is grey
        desk.setProperty(row.label, row.value);
        ASSERT_EQ(desk.property(row.label), row.value);
        const QRect before = placeOf(button);
        drag(desk, button, {30, 40});
        const QRect record = placeOf(button), live = robot::rectOf(button->handle);
        EXPECT_EQ(record.size(), before.size());
        rebuildWidget(*desk.form);
        EXPECT_EQ(robot::rectOf(button->handle), live) << "it stays where it was dropped";
        EXPECT_EQ(placeOf(button), record);
    }
}

TEST(Moves, UndoOutlivesWhatIsMadeAnewAndBringsBackWhatIsGone) {
    Desk desk;
    WidgetNode* panel = desk.place(PLACE_PANEL, desk.panel, 150, 200);
    WidgetNode* button = desk.place(PLACE_BUTTON, panel, 10, 20);
    const QRect before = placeOf(button);
    drag(desk, button, {20, 30});
    ASSERT_NE(placeOf(button), before);
    rebuildWidget(*desk.form);
    desk.click(button);
    desk.command(CMD_UNDO);
    EXPECT_EQ(placeOf(button), before);
    EXPECT_EQ(robot::rectOf(button->handle).topLeft(), before.topLeft());

    robot::expectBox("Confirm Widget Deletion",
                     "This will permanently erase Form1_Panel1 and all it's child widgets.|Do you want to continue?",
                     OANSWERYES);
    selectWidget(panel);
    desk.command(CMD_DELETE);
    ASSERT_FALSE(desk.panel->child);
    desk.command(CMD_UNDO);
    ASSERT_TRUE(desk.panel->child && desk.panel->child->child);
    EXPECT_EQ(placeOf(desk.panel->child->child), before);
    EXPECT_GT(desk.panel->child->child->handle, 0);
}

TEST(Moves, PastesGoFurtherEachTimeAndACutComesBackInPlace) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 50, 80);
    desk.command(CMD_COPY);
    QRect last = placeOf(button);
    for (int i = 0; i < 3; i++) {
        desk.command(CMD_PASTE);
        const QRect place = placeOf(project.currentWidget);
        EXPECT_GT(place.x(), last.x());
        EXPECT_GT(place.y(), last.y());
        last = place;
    }
    desk.command(CMD_CUT);
    selectWidget(desk.form);
    desk.command(CMD_PASTE);
    EXPECT_EQ(placeOf(project.currentWidget), last);
}

TEST(Moves, TheFirstRadioButtonOfAPanelIsOne) {
    Desk desk;
    WidgetNode* panel = desk.place(PLACE_PANEL, desk.panel, 50, 80);
    desk.place(TOOL_RADIO_BUTTON, panel, 10, 20);
    const std::string first = desk.property("Type");
    desk.place(TOOL_RADIO_BUTTON, panel, 10, 50);
    EXPECT_EQ(first, desk.property("Type"));
    EXPECT_FALSE(first.empty());
}

TEST(Moves, EachEmptyToolBarHasABlankButtonOfItsOwn) {
    Desk desk;
    WidgetNode* bars[2];
    for (WidgetNode*& bar : bars) {
        bar = desk.place(PLACE_TOOL_BAR, desk.panel, 200, 200);
        ASSERT_TRUE(bar);
        desk.setProperty("Initial Position", "Floating");
    }
    rebuildWidget(*desk.form);
    ASSERT_EQ(design.placeholders.size(), 2U);
    ASSERT_TRUE(desk.place(PLACE_BUTTON, bars[0], 60, 10));
    EXPECT_FALSE(design.placeholders.contains(bars[0]->id));
    EXPECT_TRUE(design.placeholders.contains(bars[1]->id));
}

TEST(Moves, WhatCannotBePlacedThereCannotBePastedThere) {
    Desk desk;
    WidgetNode* bar = desk.place(PLACE_TOOL_BAR, desk.panel, 200, 200);
    WidgetNode* separator = desk.place(TOOL_TOOL_SEPARATOR, bar, 5, 5);
    ASSERT_TRUE(separator);
    selectWidget(separator);
    desk.command(CMD_COPY);
    selectWidget(desk.form);
    const Names before = childrenOf(desk.panel);
    robot::expectBox("Not a valid parent widget", "Toolbar Separators can only be placed on toolbars", OANSWEROK);
    desk.command(CMD_PASTE);
    EXPECT_EQ(childrenOf(desk.panel), before);
}
