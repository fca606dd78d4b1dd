// Placing, selecting, moving, grouping and deleting on a live form, with mouse events on the real widgets.
#include "desk.h"

#include "editing/editor_window.h"
#include "surface/hierarchy.h"
#include "surface/live.h"

#include <QAction>
#include <QPoint>
#include <QRect>
#include <QSize>

#include <algorithm>

namespace robot = orba::testing;

namespace {

using Names = std::vector<std::string>;

Names childrenOf(const WidgetNode* parent) {
    Names names;
    for (const WidgetNode* child = parent->child; child; child = child->next) names.push_back(child->name);
    return names;
}

struct Place {
    int x, y, width, height;
    bool operator==(const Place&) const = default;
};
Place placeOf(const WidgetNode* n) { return {n->xpos, n->ypos, n->width, n->height}; }
void PrintTo(const Place& p, std::ostream* out) { *out << p.x << "," << p.y << " " << p.width << "x" << p.height; }

// The live widget stands where the record says, in pixels from the top left of its parent.
void expectLiveAt(const WidgetNode* n) {
    EXPECT_EQ(robot::rectOf(n->handle), QRect(n->xpos, n->ypos, n->width, n->height)) << n->name;
}

TEST(Surface, StartsOnOneFormThatIsSelectedAndSaved) {
    Desk desk;
    EXPECT_EQ(project.currentWidget, desk.form);
    EXPECT_EQ(project.projectModified, 0);
    EXPECT_TRUE(robot::isShown(desk.form->handle));
    EXPECT_EQ(robot::rectOf(desk.panel->handle), QRect(0, 0, 400, 550));
}

TEST(Surface, PlacesOnTheSnapGridAndGivesTheToolBack) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 57, 83);
    ASSERT_TRUE(button);
    EXPECT_EQ(button->name, "Form1_Button1");
    EXPECT_EQ(placeOf(button), (Place{50, 80, 75, 25}));
    expectLiveAt(button);
    EXPECT_EQ(robot::shownText(button->handle).toStdString(), "Button 1");
    EXPECT_EQ(design.activeTool, TOOL_SELECTOR);
    EXPECT_EQ(robot::gripCount(), 8);
    EXPECT_EQ(project.projectModified, 1);
    EXPECT_GT(button->hierarchyItem, 0);
}

TEST(Surface, ToolStaysInHandWhileThePreferenceSaysSo) {
    Desk desk;
    preferences.repeatPlacement = 1;
    desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    desk.click(desk.panel, 20, 100);
    preferences.repeatPlacement = 0;
    EXPECT_EQ(childrenOf(desk.panel), (Names{"Form1_Button1", "Form1_Button2"}));
}

TEST(Surface, RefusedPlacementKeepsTheTool) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    robot::expectBox("Not a valid parent widget", "This widget cannot support child widgets.", OANSWEROK);
    EXPECT_FALSE(desk.place(PLACE_SLIDER, button, 5, 5));
    EXPECT_EQ(design.activeTool, static_cast<int>(PLACE_SLIDER));
    EXPECT_EQ(childrenOf(desk.panel), (Names{"Form1_Button1"}));
}

TEST(Surface, TabBoxComesWithAPage) {
    Desk desk;
    WidgetNode* page = desk.place(PLACE_TAB_BOX, desk.panel, 20, 20);
    ASSERT_TRUE(page);
    EXPECT_EQ(page->type, TYPE_PANEL);
    EXPECT_EQ(page->parent->type, TYPE_TAB_BOX);
    EXPECT_EQ(page->scrollMode, ONOBARS);
    EXPECT_EQ(robot::gripCount(), 0) << "a page can't be dragged";
}

TEST(Surface, FirstWidgetTakesTheBlankButtonOffAFloatingToolBar) {
    Desk desk;
    WidgetNode* bar = desk.place(PLACE_TOOL_BAR, desk.panel, 200, 200);
    ASSERT_TRUE(bar);
    EXPECT_TRUE(design.placeholders.empty()) << "a docked bar shows without";
    desk.setProperty("Initial Position", "Floating");
    rebuildWidget(*desk.form);
    EXPECT_GT(design.placeholders[bar->id], 0);
    WidgetNode* button = desk.place(PLACE_BUTTON, bar, 60, 10);
    ASSERT_TRUE(button);
    EXPECT_EQ(button->onToolbar, 1);
    EXPECT_TRUE(design.placeholders.empty());
}

struct DragCase {
    const char* what;
    int grip; // -1 moves
    QPoint distance;
    Place after;
};

TEST(Surface, DragsMoveAndResizeTheRecord) {
    const DragCase cases[] = {
        {"move", -1, {33, 47}, {80, 130, 75, 25}},
        {"bottom right", 4, {20, 30}, {50, 80, 95, 55}},
        {"top left", 0, {-10, -20}, {40, 60, 85, 45}},
    };
    Desk desk;
    for (const DragCase& row : cases) {
        SCOPED_TRACE(row.what);
        WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 50, 80);
        ASSERT_TRUE(button);
        if (row.grip < 0)
            robot::drag(button->handle, {30, 10}, QPoint(30, 10) + row.distance);
        else
            robot::dragGrip(row.grip, row.distance);
        desk.run();
        EXPECT_EQ(placeOf(button), row.after);
        expectLiveAt(button);
        desk.command(CMD_UNDO);
        EXPECT_EQ(placeOf(button), (Place{50, 80, 75, 25}));
        expectLiveAt(button);
        desk.command(CMD_REDO);
        EXPECT_EQ(placeOf(button), row.after);
        robot::expectBox("Confirm Widget Deletion",
                         ("This will permanently erase " + button->name + ".|Do you want to continue?").c_str(),
                         OANSWERYES);
        desk.command(CMD_DELETE);
    }
}

TEST(Surface, TallTextEntryTakesALongText) {
    Desk desk;
    WidgetNode* text = desk.place(PLACE_TEXT_ENTRY, desk.panel, 20, 20);
    ASSERT_EQ(text->fieldWidth, 255);
    robot::dragGrip(5, {0, 40});
    desk.run();
    EXPECT_EQ(text->height, 65);
    EXPECT_EQ(text->fieldWidth, 30000);
    robot::dragGrip(5, {0, -40});
    desk.run();
    EXPECT_EQ(text->fieldWidth, 255);
}

TEST(Surface, DropOnAPanelMovesTheWidgetThere) {
    Desk desk;
    WidgetNode* panel = desk.place(PLACE_PANEL, desk.panel, 150, 200);
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    button->slots[SLOT_GENERAL] = "x = 1";
    robot::drag(button->handle, {5, 5}, {5 + 150, 5 + 220});
    desk.run();
    ASSERT_TRUE(panel->child);
    WidgetNode* moved = panel->child;
    EXPECT_EQ(childrenOf(desk.panel), (Names{panel->name}));
    EXPECT_EQ(moved->slots[SLOT_GENERAL], "x = 1");
    EXPECT_EQ(placeOf(moved), (Place{20, 40, 75, 25}));
    expectLiveAt(moved);
    EXPECT_EQ(project.currentWidget, moved);
    desk.command(CMD_UNDO);
    EXPECT_EQ(childrenOf(panel), Names{});
    ASSERT_TRUE(panel->next);
    EXPECT_EQ(placeOf(panel->next), (Place{20, 20, 75, 25}));
}

TEST(Surface, GroupMovesToAnotherParentAndBack) {
    Desk desk;
    WidgetNode* panel = desk.place(PLACE_PANEL, desk.panel, 150, 200);
    desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    desk.place(PLACE_BUTTON, desk.panel, 20, 60)->slots[SLOT_GENERAL] = "n = 1";
    robot::drag(desk.panel->handle, {10, 10}, {120, 120});
    desk.run();
    robot::drag(design.groupPanel, {5, 30}, {5 + 150, 30 + 210});
    desk.run();
    ASSERT_EQ(childrenOf(panel).size(), 2U);
    EXPECT_EQ(placeOf(panel->child), (Place{20, 30, 75, 25}));
    EXPECT_EQ(panel->child->next->slots[SLOT_GENERAL], "n = 1");
    desk.command(CMD_UNDO);
    EXPECT_EQ(childrenOf(panel), Names{});
    EXPECT_EQ(childrenOf(desk.panel).size(), 3U);
    desk.click(desk.panel, 300, 450);
    EXPECT_EQ(project.currentWidget, desk.form);
    expectLiveAt(panel->next);
}

TEST(Surface, DropOnAButtonPutsTheWidgetBack) {
    Desk desk;
    desk.place(PLACE_BUTTON, desk.panel, 150, 200);
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    robot::expectBox("Not a valid parent widget", "This widget cannot support child widgets.", OANSWEROK);
    robot::expectBox("Widget placement", "Widgets can only be placed on forms or other container widgets", OANSWEROK);
    robot::drag(button->handle, {5, 5}, {5 + 150, 5 + 190});
    desk.run();
    EXPECT_EQ(placeOf(button), (Place{20, 20, 75, 25}));
    expectLiveAt(button);
}

TEST(Surface, RubberBandSelectsWhatLiesInside) {
    Desk desk;
    WidgetNode* one = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    WidgetNode* two = desk.place(PLACE_BUTTON, desk.panel, 20, 60);
    desk.place(PLACE_BUTTON, desk.panel, 200, 20);
    robot::drag(desk.panel->handle, {10, 10}, {120, 120});
    desk.run();
    EXPECT_FALSE(project.currentWidget);
    EXPECT_EQ(design.selectionCount, 2);
    ASSERT_GT(design.groupPanel, 0);
    EXPECT_EQ(robot::rectOf(design.groupPanel), QRect(20, 20, 75, 65));
    robot::drag(design.groupPanel, {5, 5}, {35, 45});
    desk.run();
    EXPECT_EQ(placeOf(one), (Place{50, 60, 75, 25}));
    EXPECT_EQ(placeOf(two), (Place{50, 100, 75, 25}));
    desk.command(CMD_UNDO);
    EXPECT_EQ(placeOf(two), (Place{20, 60, 75, 25}));
    desk.click(desk.panel, 300, 400);
    EXPECT_EQ(project.currentWidget, desk.form);
    expectLiveAt(one);
}

TEST(Surface, GroupOfOtherOriginsIsRefused) {
    Desk desk;
    desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    desk.place(PLACE_BUTTON, desk.panel, 20, 60)->hpos = OCENTRE;
    project.currentWidget->xpos = 20;
    robot::expectBox("Grouping",
                     "Only widgets with Left horizontal origin and Top vertical origin can be grouped together",
                     OANSWEROK);
    robot::drag(desk.panel->handle, {5, 5}, {390, 300});
    desk.run();
    EXPECT_EQ(design.groupPanel, 0);
}

TEST(Surface, CheckBoxIsSelectedByItsFirstClickAndTickedByTheSecond) {
    Desk desk;
    WidgetNode* toggle = desk.place(PLACE_CHECK_BOX, desk.panel, 20, 20);
    desk.click(desk.panel, 300, 400);
    const QPoint box(8, 12);
    robot::click(toggle->handle, box);
    desk.run();
    EXPECT_EQ(project.currentWidget, toggle);
    EXPECT_EQ(toggle->initialStatus, 0);
    robot::click(toggle->handle, box);
    desk.run();
    EXPECT_EQ(toggle->initialStatus, 1);
}

TEST(Surface, TextAndValuesAreTypedOntoTheForm) {
    Desk desk;
    WidgetNode* text = desk.place(PLACE_TEXT_ENTRY, desk.panel, 20, 20);
    robot::type(text->handle, "abc");
    robot::key(text->handle, Qt::Key_Return);
    desk.run();
    EXPECT_EQ(text->text, "abc");
    EXPECT_EQ(desk.property("Text"), "abc");
    WidgetNode* value = desk.place(PLACE_VALUE_ENTRY, desk.panel, 20, 80);
    robot::key(value->handle, Qt::Key_A, Qt::ControlModifier);
    robot::type(value->handle, "2.5");
    robot::key(value->handle, Qt::Key_Return);
    desk.run();
    EXPECT_FLOAT_EQ(value->value, 2.5F);
    desk.click(text);
    EXPECT_EQ(project.currentWidget, text);
    EXPECT_EQ(text->text, "abc");
}

struct EntryRow {
    int kind, level;
    const char* label;
};

// Entries, each named after its label.
std::vector<MenuEntryRec> entriesOf(std::initializer_list<EntryRow> rows) {
    std::vector<MenuEntryRec> entries;
    for (const EntryRow& row : rows) {
        MenuEntryRec& entry = entries.emplace_back();
        entry.kind = row.kind;
        entry.level = row.level;
        entry.label = entry.name = row.label;
    }
    return entries;
}

const MenuEntryRec* entryOf(const WidgetNode* node, const std::string& label) {
    const auto entry = std::ranges::find(node->entries, label, &MenuEntryRec::label);
    return entry == node->entries.end() ? nullptr : &*entry;
}

TEST(Surface, MenuOfAFormIsLive) {
    Desk desk;
    desk.form->entries = entriesOf({{MENU_BAR, 0, ""},
                                    {MENU_ENTRY, 0, "File"},
                                    {MENU_PULL_DOWN, 1, ""},
                                    {MENU_ENTRY, 1, "Send"},
                                    {MENU_PULL_DOWN, 2, ""},
                                    {MENU_ENTRY, 2, "Mail"},
                                    {MENU_SEPARATOR, 1, ""},
                                    {MENU_ENTRY, 1, "Exit"},
                                    {MENU_ENTRY, 0, "Help"}});
    rebuildWidget(*desk.form);
    desk.run();
    for (const char* label : {"File", "Send", "Mail", "Exit", "Help"}) {
        const MenuEntryRec* entry = entryOf(desk.form, label);
        ASSERT_GT(entry->handle, 0) << label;
        EXPECT_TRUE(robot::actionOf(entry->handle)) << label;
    }
    EXPECT_EQ(entryOf(desk.form, "Exit")->callbackId, entryOf(desk.form, "Exit")->handle);
    EXPECT_EQ(robot::reports(), std::vector<int>{});
    selectWidget(desk.form);
    desk.click(desk.panel, 100, 100);
    EXPECT_EQ(project.currentWidget, desk.form) << "a form that was built anew still hears its panel";
}

TEST(Surface, AnEntryChosenInAMenuLeadsToItsCode) {
    Desk desk;
    desk.form->entries = entriesOf({{MENU_BAR, 0, ""},
                                    {MENU_ENTRY, 0, "File"},
                                    {MENU_PULL_DOWN, 1, ""},
                                    {MENU_ENTRY, 1, "Open"},
                                    {MENU_ENTRY, 1, "Exit"}});
    MenuEntryRec& exit = desk.form->entries.back();
    exit.name = "Form1_Exit";
    exit.slots[SLOT_GENERAL] = "callid = -1";
    rebuildWidget(*desk.form);
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 50, 80);
    ASSERT_EQ(project.currentWidget, button);
    robot::actionOf(exit.handle)->trigger();
    desk.run();
    EXPECT_EQ(project.currentWidget, desk.form);
    EXPECT_EQ(robot::shownText(codeText()).toStdString(), "callid = -1");
    EXPECT_EQ(owEnqActiveWidget(), codeText());
}

TEST(Surface, EntriesOfATreeViewAreLive) {
    Desk desk;
    constexpr int PLACE_TREE = TOOL_TREE_VIEW;
    WidgetNode* tree = desk.place(PLACE_TREE, desk.panel, 20, 20);
    tree->entries = entriesOf({{MENU_BAR, 0, ""},
                               {MENU_ENTRY, 0, "Fruit"},
                               {MENU_PULL_DOWN, 1, ""},
                               {MENU_ENTRY, 1, "Apple"},
                               {MENU_ENTRY, 0, "Stone"}});
    rebuildWidget(*tree);
    desk.run();
    for (const char* label : {"Fruit", "Apple", "Stone"}) {
        char shown[64] = "";
        owEnqTreeViewLabel(entryOf(tree, label)->handle, shown, sizeof shown);
        EXPECT_STREQ(shown, label);
    }
    EXPECT_EQ(robot::reports(), std::vector<int>{});
}

TEST(Surface, TheOnlyFormStays) {
    Desk desk;
    robot::expectBox("Cannot delete form",
                     "Form1 is the only form in the project.|If you wish to start a new project from scratch, choose "
                     "the New Project option from the File menu",
                     OANSWEROK);
    desk.command(CMD_DELETE);
    EXPECT_EQ(project.forms, desk.form);
}

TEST(Surface, CopyAndPasteShiftBesideTheOriginal) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 50, 100);
    button->slots[SLOT_SELECT] = "y = 2";
    desk.command(CMD_COPY);
    desk.click(desk.panel, 300, 400);
    desk.command(CMD_PASTE);
    WidgetNode* copy = project.currentWidget;
    ASSERT_NE(copy, button);
    EXPECT_EQ(copy->xpos, 50 + project.gridPixelX);
    EXPECT_EQ(copy->ypos, 100 + project.gridPixelY);
    EXPECT_EQ(copy->slots[SLOT_SELECT], "y = 2");
    EXPECT_NE(copy->name, button->name);
}

TEST(Surface, HierarchyRowShowsAHiddenForm) {
    Desk desk;
    desk.command(CMD_NEW_FORM);
    WidgetNode* second = desk.form->next;
    ASSERT_TRUE(second);
    robot::expectBox("Confirm Widget Hide",
                     "This will hide the Form|It can be redisplayed by clicking on the Form name or one of its "
                     "children in the Object Hierarchy or Property Combo.|Do you want to continue?",
                     OANSWERYES);
    robot::closeByUser(second->handle);
    desk.run();
    EXPECT_EQ(second->formHidden, 1);
    EXPECT_FALSE(robot::isShown(second->handle));
    EXPECT_EQ(project.currentWidget, desk.form);
    selectByName("Form2", true);
    desk.run();
    EXPECT_TRUE(robot::isShown(second->handle));
    EXPECT_EQ(project.currentWidget, second);
}

TEST(Surface, GridProjectCountsInCells) {
    Desk desk;
    project.gridMode = 1;
    applyGrid();
    for (WidgetNode* node : {desk.form, desk.panel}) {
        node->width = 20;
        node->height = 24;
    }
    desk.form->xpos = desk.form->ypos = 2;
    discardForms(project.forms);
    desk.run();
    const int cellX = project.gridPixelX, cellY = project.gridPixelY;
    EXPECT_EQ(robot::rectOf(desk.panel->handle).size(), QSize(20 * cellX, 24 * cellY));
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 3 * cellX + 2, 4 * cellY + 2);
    ASSERT_TRUE(button);
    EXPECT_EQ(placeOf(button), (Place{3, 4, 75 / cellX, 25 / cellY}));
    robot::drag(button->handle, {5, 5}, QPoint(5, 5) + QPoint(2 * cellX + 3, 3 * cellY + 3));
    desk.run();
    EXPECT_EQ(placeOf(button), (Place{5, 7, 75 / cellX, 25 / cellY}));
    EXPECT_EQ(robot::rectOf(button->handle).topLeft(), QPoint(5 * cellX, 7 * cellY)) << "whole cells";
    desk.setProperty("Size", "80");
    EXPECT_EQ(button->size, 80);
    desk.command(CMD_COPY);
    desk.command(CMD_DUPLICATE);
    EXPECT_EQ(project.currentWidget->xpos, 6);
    EXPECT_EQ(project.currentWidget->ypos, 8);
    project.gridMode = 0;
    applyGrid();
}

TEST(Surface, EveryToolMakesALiveWidget) {
    Desk desk;
    for (const ToolRow& tool : placementTools()) {
        if (tool.tool == TOOL_RADIO_BUTTON || tool.type == TYPE_TOOL_SEPARATOR || tool.type == TYPE_PANE) continue;
        SCOPED_TRACE(tool.entry);
        WidgetNode* made = desk.place(tool.tool, desk.panel, 20, 300);
        ASSERT_TRUE(made);
        EXPECT_GT(made->handle, 0);
        WidgetNode* top = made->parent->type == TYPE_TAB_BOX ? made->parent : made;
        rebuildWidget(*top);
        EXPECT_GT(top->handle, 0);
        project.currentWidget = top;
        selectWidget(top);
        robot::expectBox("Confirm Widget Deletion",
                         ("This will permanently erase " + top->name +
                          (top->child ? " and all it's child widgets" : "") + ".|Do you want to continue?")
                             .c_str(),
                         OANSWERYES);
        desk.command(CMD_DELETE);
        EXPECT_EQ(robot::reports(), std::vector<int>{});
    }
}

} // namespace
