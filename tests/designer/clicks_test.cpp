// Whatever is clicked is what is selected: every type of widget, on the form and in every kind of container.
#include "desk.h"

#include "surface/live.h"

#include <QPoint>
#include <QRect>

namespace robot = orba::testing;

namespace {

constexpr QPoint FREE{380, 480}; // of the form's panel, beside all that these tests place
constexpr int PLACE_RADIO_BUTTON = TOOL_RADIO_BUTTON;

std::string selected() { return project.currentWidget ? project.currentWidget->name : "(a group)"; }

// The form loses the selection to nothing but itself.
void clickAside(Desk& desk) {
    desk.click(desk.panel, FREE.x(), FREE.y());
    EXPECT_EQ(project.currentWidget, desk.form);
}

const ToolRow& toolOf(int type) {
    for (const ToolRow& tool : placementTools())
        if (tool.type == type) return tool;
    ADD_FAILURE() << "no tool makes a " << type;
    return placementTools()[0];
}

// The parts of a widget that a user may hit.
std::vector<QPoint> partsOf(const WidgetNode& widget) {
    const QRect rect(QPoint(0, 0), robot::rectOf(widget.handle).size());
    std::vector<QPoint> parts;
    if (widget.type != TYPE_RADIO_BOX) parts.push_back(rect.center()); // where its first button stands
    if (widget.type == TYPE_TEXT_ARRAY || widget.type == TYPE_VALUE_ARRAY) parts.push_back({6, 6});
    if (widget.type == TYPE_TAB_BOX) parts.insert(parts.end(), {{20, 8}, {rect.width() - 4, 8}});
    if (widget.type == TYPE_PANEL || widget.type == TYPE_RADIO_BOX) parts.insert(parts.end(), {{1, 40}, {12, 4}});
    return parts;
}

void expectSelectedByClick(Desk& desk, WidgetNode& widget) {
    for (const QPoint& part : partsOf(widget)) {
        SCOPED_TRACE(widget.name + " at " + std::to_string(part.x()) + "," + std::to_string(part.y()));
        clickAside(desk);
        robot::click(widget.handle, part);
        desk.run();
        EXPECT_EQ(selected(), widget.name);
        robot::click(widget.handle, part);
        desk.run();
        EXPECT_EQ(selected(), widget.name) << "a second click keeps it";
    }
}

TEST(Clicks, EveryTypeIsSelectedByAnyPartOfIt) {
    for (const ToolRow& tool : placementTools()) {
        const bool docks = tool.type == TYPE_TOOL_BAR || tool.type == TYPE_PANE || tool.type == TYPE_TOOL_SEPARATOR;
        if (docks || tool.tool == PLACE_RADIO_BUTTON) continue;
        Desk desk;
        SCOPED_TRACE(tool.entry);
        WidgetNode* made = desk.place(tool.tool, desk.panel, 20, 300);
        ASSERT_TRUE(made);
        expectSelectedByClick(desk, made->parent->type == TYPE_TAB_BOX ? *made->parent : *made);
    }
}

struct Container {
    const char* name;
    int tool;
};
void PrintTo(const Container& container, std::ostream* out) { *out << container.name; }

class InContainer : public testing::TestWithParam<Container> {};

// A widget of each of three kinds inside: selected when it is placed and when it is clicked, the container by its own
// face, and a band around both catches them.
TEST_P(InContainer, WidgetsArePlacedSelectedAndBanded) {
    Desk desk;
    WidgetNode* box = desk.place(GetParam().tool, desk.panel, 20, 400);
    ASSERT_TRUE(box);
    selectWidget(box->parent->type == TYPE_TAB_BOX ? box->parent : box);
    desk.setProperty("Width", "260");
    desk.setProperty("Height", "300");
    WidgetNode* one = desk.place(PLACE_BUTTON, box, 20, 60);
    ASSERT_TRUE(one);
    EXPECT_EQ(selected(), one->name) << "placed";
    EXPECT_EQ(one->parent, box);
    WidgetNode* two = desk.place(PLACE_TEXT_LABEL, box, 20, 120);
    ASSERT_TRUE(two);
    EXPECT_EQ(two->parent, box);
    for (WidgetNode* widget : {one, two}) expectSelectedByClick(desk, *widget);
    clickAside(desk);
    robot::click(box->handle, {200, 200});
    desk.run();
    EXPECT_EQ(project.currentWidget, box->parent->type == TYPE_TAB_BOX ? box->parent : box);
    clickAside(desk);
    robot::drag(box->handle, {5, 20}, {240, 200});
    desk.run();
    EXPECT_EQ(design.selectionCount, 2);
    ASSERT_GT(design.groupPanel, 0);
}

INSTANTIATE_TEST_SUITE_P(Kinds, InContainer,
                         testing::Values(Container{"Panel", PLACE_PANEL}, Container{"TabPage", PLACE_TAB_BOX}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(Clicks, ARadioButtonAndItsBoxAreSelected) {
    Desk desk;
    WidgetNode* panel = desk.place(PLACE_PANEL, desk.panel, 200, 300);
    ASSERT_TRUE(panel);
    WidgetNode* radio = desk.place(TOOL_RADIO_BUTTON, panel, 10, 40);
    ASSERT_TRUE(radio);
    EXPECT_EQ(selected(), radio->name);
    EXPECT_EQ(radio->parent->type, TYPE_RADIO_BOX);
    expectSelectedByClick(desk, *radio);
    expectSelectedByClick(desk, *radio->parent);
}

TEST(Clicks, ATabBoxOfOnePageGetsFurtherPagesByItsStrip) {
    Desk desk;
    WidgetNode* page = desk.place(PLACE_TAB_BOX, desk.panel, 20, 300);
    ASSERT_TRUE(page);
    WidgetNode* box = page->parent;
    for (const QPoint& strip : {QPoint(20, 8), QPoint(robot::rectOf(box->handle).width() - 4, 8)}) {
        selectTool(PLACE_PANEL);
        owAdoptChild(0, 0, 0);
        robot::click(box->handle, strip);
        desk.run();
        EXPECT_EQ(project.currentWidget->parent, box) << strip.x() << " " << selected();
    }
    int pages = 0;
    for (const WidgetNode* one = box->child; one; one = one->next) ++pages;
    EXPECT_EQ(pages, 3);
}

TEST(Clicks, ASelectedProgressBarSaysThatItHasNoCallbacks) {
    Desk desk;
    WidgetNode* bar = desk.place(toolOf(TYPE_PROGRESS_BAR).tool, desk.panel, 20, 300);
    ASSERT_TRUE(bar);
    robot::expectBox("Callback Editor", "Callbacks are not permitted on Progress Bars", OANSWEROK);
    robot::doubleClick(bar->handle);
    desk.run();
    EXPECT_EQ(project.currentWidget, bar);
}

} // namespace
