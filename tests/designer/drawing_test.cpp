// Drawing on a form: rubber bands and what they show, sizes drawn with a tool, arrow keys, Shift, the right button.
#include "desk.h"

#include "surface/live.h"

#include <QPoint>
#include <QRect>

#include <chrono>
#include <utility>

namespace robot = orba::testing;

namespace {

struct Place {
    int x, y, width, height;
    bool operator==(const Place&) const = default;
};
Place placeOf(const WidgetNode* n) { return {n->xpos, n->ypos, n->width, n->height}; }
void PrintTo(const Place& p, std::ostream* out) { *out << p.x << "," << p.y << " " << p.width << "x" << p.height; }

using Names = std::vector<std::string>;
Names selectedNames() {
    Names names;
    for (const WidgetNode* one : design.selection) names.push_back(one->name);
    return names;
}

// A tool in hand, pressed at one point and released at another.
WidgetNode* draw(Desk& desk, int tool, WidgetNode* parent, QPoint from, QPoint to) {
    const WidgetNode* before = project.currentWidget;
    selectTool(tool);
    owAdoptChild(0, 0, 0);
    robot::drag(parent->handle, from, to);
    desk.run();
    return project.currentWidget != before ? project.currentWidget : nullptr;
}

struct Held {
    explicit Held(Qt::KeyboardModifiers modifiers) { robot::hold(modifiers); }
    ~Held() { robot::hold(Qt::NoModifier); }
};

void shiftClick(Desk& desk, int handle, QPoint at = robot::MIDDLE) {
    const Held shift(Qt::ShiftModifier);
    robot::click(handle, at);
    desk.run();
}

struct Container {
    const char* name;
    int tool;
    int inside; // a tool that it takes
};
void PrintTo(const Container& container, std::ostream* out) { *out << container.name; }

class Band : public testing::TestWithParam<Container> {
protected:
    // The container, 260 by 300 pixels large; the form itself for no tool.
    static WidgetNode* make(Desk& desk) {
        if (GetParam().tool == 0) return desk.panel;
        WidgetNode* box = desk.place(GetParam().tool, desk.panel, 20, 40);
        if (!box) return nullptr;
        selectWidget(box->parent->type == TYPE_TAB_BOX ? box->parent : box);
        desk.setProperty("Width", "260");
        desk.setProperty("Height", "300");
        return box;
    }
};

TEST_P(Band, IsDrawnWhereThePointerGoesAndCatchesWhatLiesInside) {
    Desk desk;
    WidgetNode* box = make(desk);
    ASSERT_TRUE(box);
    WidgetNode* one = desk.place(GetParam().inside, box, 30, 60);
    WidgetNode* two = one ? desk.place(GetParam().inside, one->parent, 30, 120) : nullptr;
    ASSERT_TRUE(two);
    box = one->parent;
    desk.click(desk.panel, 380, 480);
    EXPECT_TRUE(robot::rubberBand().isEmpty());
    robot::press(box->handle, {5, 30});
    robot::moveHeld(box->handle, {100, 80});
    EXPECT_EQ(robot::rubberBand().size(), QSize(96, 51));
    EXPECT_FALSE(robot::outlineText().isEmpty());
    robot::moveHeld(box->handle, {230, 200});
    EXPECT_EQ(robot::rubberBand().size(), QSize(226, 171));
    robot::release(box->handle, {230, 200});
    desk.run();
    EXPECT_TRUE(robot::rubberBand().isEmpty());
    EXPECT_EQ(selectedNames(), (Names{one->name, two->name}));
    EXPECT_GT(design.groupPanel, 0);
}

INSTANTIATE_TEST_SUITE_P(Kinds, Band,
                         testing::Values(Container{"Form", 0, TOOL_PUSH_BUTTON},
                                         Container{"Panel", TOOL_PANEL, TOOL_PUSH_BUTTON},
                                         Container{"TabPage", TOOL_TAB_BOX, TOOL_CHECK_BOX},
                                         Container{"RadioBox", TOOL_PANEL, TOOL_RADIO_BUTTON},
                                         Container{"GraphicsFrame", TOOL_GRAPHICS_FRAME, TOOL_TEXT_LABEL}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(Drawing, ADragTellsPlaceAndSize) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 50, 80);
    ASSERT_TRUE(button);
    robot::press(button->handle, {30, 10});
    robot::moveHeld(button->handle, {53, 10});
    EXPECT_EQ(robot::outlineText().toStdString(), "70, 80   75 × 25");
    robot::release(button->handle, {30, 10});
    EXPECT_TRUE(robot::outlineText().isEmpty());
}

struct DrawCase {
    const char* what;
    int tool;
    QPoint from, to;
    Place after;
};

TEST(Drawing, AToolDrawsTheSize) {
    const DrawCase cases[] = {
        {"to the right and down", PLACE_BUTTON, {48, 61}, {171, 128}, {50, 60, 120, 70}},
        {"to the left and up", PLACE_PANEL, {300, 300}, {102, 199}, {100, 200, 200, 100}},
        {"along one line", PLACE_TEXT_ENTRY, {40, 42}, {200, 45}, {40, 40, 160, 25}},
        {"a click has the size of the type", PLACE_BUTTON, {57, 83}, {59, 84}, {50, 80, 75, 25}},
    };
    for (const DrawCase& row : cases) {
        SCOPED_TRACE(row.what);
        Desk desk;
        WidgetNode* made = draw(desk, row.tool, desk.panel, row.from, row.to);
        ASSERT_TRUE(made);
        EXPECT_EQ(placeOf(made), row.after);
        EXPECT_EQ(robot::rectOf(made->handle), QRect(made->xpos, made->ypos, made->width, made->height));
        EXPECT_EQ(design.activeTool, TOOL_SELECTOR);
    }
}

TEST(Drawing, ATabBoxIsDrawnWithItsPage) {
    Desk desk;
    WidgetNode* page = draw(desk, PLACE_TAB_BOX, desk.panel, {20, 20}, {320, 260});
    ASSERT_TRUE(page);
    ASSERT_EQ(page->parent->type, TYPE_TAB_BOX);
    EXPECT_EQ(placeOf(page->parent), (Place{20, 20, 300, 240}));
}

TEST(Drawing, ATallTextEntryIsDrawnForLongText) {
    Desk desk;
    WidgetNode* text = draw(desk, PLACE_TEXT_ENTRY, desk.panel, {20, 20}, {220, 120});
    ASSERT_TRUE(text);
    EXPECT_EQ(text->height, 100);
    EXPECT_EQ(text->fieldWidth, 30000);
}

TEST(Drawing, EscDropsTheToolInHand) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 50, 80);
    for (const int focus : {button->handle, 1}) {
        selectTool(PLACE_PANEL);
        owAdoptChild(0, 0, 0);
        robot::key(focus, Qt::Key_Escape);
        desk.run();
        EXPECT_EQ(design.activeTool, TOOL_SELECTOR) << focus;
        EXPECT_EQ(robot::gripCount(), 8) << focus;
    }
}

struct KeyCase {
    Qt::Key key;
    Qt::KeyboardModifiers held;
    Place after; // of 50,80 75x25
};

TEST(Drawing, ArrowKeysMoveAndSizeTheSelectedWidget) {
    const KeyCase cases[] = {
        {Qt::Key_Right, Qt::NoModifier, {60, 80, 75, 25}},
        {Qt::Key_Left, Qt::NoModifier, {40, 80, 75, 25}},
        {Qt::Key_Up, Qt::NoModifier, {50, 70, 75, 25}},
        {Qt::Key_Down, Qt::NoModifier, {50, 90, 75, 25}},
        {Qt::Key_Right, Qt::ControlModifier, {51, 80, 75, 25}},
        {Qt::Key_Right, Qt::ShiftModifier, {50, 80, 85, 25}},
        {Qt::Key_Up, Qt::ShiftModifier | Qt::ControlModifier, {50, 80, 75, 24}},
    };
    Desk desk;
    desk.place(PLACE_BUTTON, desk.panel, 200, 200); // the focus could go there
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 50, 80);
    ASSERT_TRUE(button);
    for (const KeyCase& row : cases) {
        SCOPED_TRACE(row.key);
        robot::key(button->handle, row.key, row.held);
        desk.run();
        EXPECT_EQ(project.currentWidget, button);
        EXPECT_EQ(placeOf(button), row.after);
        EXPECT_EQ(robot::rectOf(button->handle), QRect(button->xpos, button->ypos, button->width, button->height));
        desk.command(CMD_UNDO);
        EXPECT_EQ(placeOf(button), (Place{50, 80, 75, 25}));
    }
}

TEST(Drawing, StepsOfTheArrowKeysAreUndoneTogether) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 50, 80);
    for (int i = 0; i < 8; i++) robot::key(button->handle, Qt::Key_Left);
    desk.run();
    EXPECT_EQ(button->xpos, 0) << "not out of the form";
    desk.command(CMD_UNDO);
    EXPECT_EQ(button->xpos, 50);
}

TEST(Drawing, ArrowKeysMoveAGroup) {
    Desk desk;
    WidgetNode* one = desk.place(PLACE_BUTTON, desk.panel, 50, 80);
    WidgetNode* two = desk.place(PLACE_BUTTON, desk.panel, 50, 140);
    robot::drag(desk.panel->handle, {20, 40}, {240, 240});
    desk.run();
    ASSERT_GT(design.groupPanel, 0);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Down}) robot::key(design.groupPanel, key);
    desk.run();
    EXPECT_EQ(placeOf(one), (Place{60, 100, 75, 25}));
    EXPECT_EQ(placeOf(two), (Place{60, 160, 75, 25}));
    EXPECT_EQ(design.selectionCount, 2);
}

TEST(Drawing, ArrowKeysBelongToTheFieldThatIsTypedIn) {
    Desk desk;
    WidgetNode* entry = desk.place(PLACE_TEXT_ENTRY, desk.panel, 50, 80);
    ASSERT_TRUE(entry);
    robot::type(entry->handle, "ac");
    robot::key(0, Qt::Key_Left);
    robot::type(0, "b");
    desk.run();
    EXPECT_EQ(robot::shownText(entry->handle).toStdString(), "abc");
    EXPECT_EQ(entry->xpos, 50);
}

TEST(Drawing, UnadoptedWidgetsKeepTheArrowKeys) {
    Desk desk;
    WidgetNode* list = desk.place(PLACE_LIST, desk.panel, 50, 80);
    ASSERT_TRUE(list);
    desk.command(CMD_UNADOPT);
    robot::key(list->handle, Qt::Key_Down);
    desk.run();
    EXPECT_EQ(list->ypos, 80);
}

TEST(Drawing, ShiftTabMakesNoGroup) {
    Desk desk;
    WidgetNode* one = desk.place(PLACE_VALUE_ENTRY, desk.panel, 50, 80);
    WidgetNode* two = desk.place(PLACE_VALUE_ENTRY, desk.panel, 50, 140);
    ASSERT_TRUE(one && two);
    const Held shift(Qt::ShiftModifier);
    robot::key(two->handle, Qt::Key_Backtab, Qt::ShiftModifier);
    desk.run();
    EXPECT_EQ(design.selectionCount, 1);
    EXPECT_FALSE(groupStands());
}

// Three buttons one below the other; the first and the last make the group, the second lies in its box.
struct Three {
    Desk desk;
    WidgetNode* first = desk.place(PLACE_BUTTON, desk.panel, 50, 80);
    WidgetNode* second = desk.place(PLACE_BUTTON, desk.panel, 50, 140);
    WidgetNode* third = desk.place(PLACE_BUTTON, desk.panel, 50, 200);
    Three() {
        desk.click(first);
        shiftClick(desk, third->handle);
    }
};
constexpr QPoint ON_FIRST{10, 10}, ON_SECOND{10, 70}, BETWEEN{10, 45}; // of the group's box

TEST(Drawing, ShiftAndClickAddsAndRemovesInsideTheBoxOfAGroup) {
    Three form;
    ASSERT_EQ(selectedNames(), (Names{form.first->name, form.third->name}));
    shiftClick(form.desk, design.groupPanel, ON_SECOND);
    EXPECT_EQ(selectedNames(), (Names{form.first->name, form.third->name, form.second->name}));
    shiftClick(form.desk, design.groupPanel, BETWEEN);
    EXPECT_EQ(design.selectionCount, 3) << "a click beside them all keeps the group";
    shiftClick(form.desk, design.groupPanel, ON_FIRST);
    EXPECT_EQ(selectedNames(), (Names{form.third->name, form.second->name}));
    for (const WidgetNode* one : {form.first, form.second, form.third})
        EXPECT_TRUE(findHandle(one->handle) || groupStands());
    EXPECT_TRUE(robot::isShown(form.first->handle)) << "it has its own live widget again";
}

TEST(Drawing, AClickInAGroupSelectsWhatIsThere) {
    const struct {
        QPoint at;
        bool form;
    } rows[] = {{ON_FIRST, false}, {BETWEEN, true}};
    for (const auto& row : rows) {
        Three three;
        robot::click(design.groupPanel, row.at);
        three.desk.run();
        EXPECT_EQ(project.currentWidget, row.form ? three.desk.form : three.first);
        EXPECT_FALSE(groupStands());
    }
}

TEST(Drawing, ShiftAndClickAddsAPanel) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 50, 80);
    WidgetNode* panel = desk.place(PLACE_PANEL, desk.panel, 50, 140);
    ASSERT_TRUE(button && panel);
    desk.click(button);
    shiftClick(desk, panel->handle, {20, 60});
    EXPECT_EQ(selectedNames(), (Names{button->name, panel->name}));
}

TEST(Drawing, ABandWithShiftComesToTheSelection) {
    Desk desk;
    WidgetNode* one = desk.place(PLACE_BUTTON, desk.panel, 50, 80);
    WidgetNode* two = desk.place(PLACE_BUTTON, desk.panel, 50, 240);
    ASSERT_TRUE(one && two);
    desk.click(one);
    const Held shift(Qt::ShiftModifier);
    robot::drag(desk.panel->handle, {20, 220}, {240, 300});
    desk.run();
    EXPECT_EQ(selectedNames(), (Names{one->name, two->name}));
}

TEST(Drawing, DeleteErasesAGroup) {
    for (const bool yes : {false, true}) {
        Three form;
        robot::expectBox("Confirm Widget Deletion",
                         "This will permanently erase the 2 selected widgets.|Do you want to continue?",
                         yes ? OANSWERYES : OANSWERNO);
        form.desk.command(CMD_DELETE);
        EXPECT_EQ(form.desk.panel->child == form.second, yes);
        EXPECT_EQ(form.second->next == nullptr, yes);
        EXPECT_EQ(groupStands(), !yes);
        EXPECT_EQ(project.widgetCount, yes ? 2 : 4);
    }
}

TEST(Drawing, AFormOfThousandsIsLeftAtOnce) {
    constexpr int WIDGETS = 3000;
    constexpr std::chrono::milliseconds LONGEST{1000};
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    ASSERT_TRUE(button);
    for (int i = 2; i <= WIDGETS; i++) {
        OwnedList copy = copyNode(button, false);
        copy->name = "Form1_Button" + std::to_string(i);
        linkChild(*desk.panel, std::move(copy));
    }
    discardForms(project.forms);
    WidgetNode* last = findName(project.forms, "Form1_Button" + std::to_string(WIDGETS), false);
    selectWidget(last);
    desk.run();
    const auto start = std::chrono::steady_clock::now();
    eraseForms(project.forms);
    EXPECT_LT(std::chrono::steady_clock::now() - start, LONGEST);
    realiseForms(project.forms);
}

TEST(Drawing, TheRightButtonSelectsWhatItIsAbout) {
    Desk desk;
    WidgetNode* one = desk.place(PLACE_BUTTON, desk.panel, 50, 80);
    WidgetNode* two = desk.place(PLACE_BUTTON, desk.panel, 50, 140);
    ASSERT_TRUE(one && two);
    robot::click(one->handle, robot::MIDDLE, Qt::RightButton);
    desk.run();
    EXPECT_EQ(project.currentWidget, one);
}

} // namespace
