// What a live widget shows is what the program shows: pages, fonts, colours and icons straight from the records.
#include "desk.h"

#include "codegen/attributes.h"
#include "project/widget_types.h"
#include "properties/edits.h"
#include "surface/live.h"

#include <QComboBox>
#include <QFont>
#include <QWidget>

#include <algorithm>

namespace robot = orba::testing;

namespace {

enum MoreTools : int { PLACE_ICON = 17007, PLACE_COMBO = 17011, PLACE_TREE = 17024 };

int live(const WidgetNode* node, int keyword) {
    int value = -999;
    owEnqWidgetProp(node->handle, keyword, &value, 0);
    return value;
}

TEST(Looks, ATabBoxShowsThePageThatTheProgramShows) {
    Desk desk;
    WidgetNode* first = desk.place(PLACE_TAB_BOX, desk.panel, 20, 20);
    ASSERT_TRUE(first);
    WidgetNode* box = first->parent;
    WidgetNode* second = desk.place(PLACE_PANEL, box, 90, 10); // beside the tabs
    ASSERT_TRUE(second);
    ASSERT_EQ(second->parent, box);

    selectWidget(desk.form);
    rebuildWidget(*box);
    EXPECT_TRUE(robot::isShown(first->handle));
    second->initialState = 2;
    rebuildWidget(*box);
    EXPECT_TRUE(robot::isShown(second->handle)) << "the page that is checked";

    second->initialState = 1;
    selectWidget(second);
    rebuildWidget(*box);
    EXPECT_TRUE(robot::isShown(second->handle)) << "the page that is being worked on stays up";
}

TEST(Looks, FontsAreThoseThatTheProgramSets) {
    const int tools[] = {PLACE_BUTTON, PLACE_CHECK_BOX, PLACE_LIST, PLACE_VALUE_ENTRY, PLACE_TEXT_ENTRY,
                         PLACE_PANEL,  PLACE_TAB_BOX,   PLACE_ICON, PLACE_COMBO,       PLACE_TREE};
    for (const int tool : tools) {
        Desk desk;
        WidgetNode* widget = desk.place(tool, desk.panel, 20, 20);
        ASSERT_TRUE(widget) << tool;
        if (tool == PLACE_TAB_BOX) widget = widget->parent; // its first page is what is selected
        widget->text = "Text";
        widget->bold = widget->strikeout = 1;
        rebuildWidget(*widget);
        EXPECT_EQ(live(widget, owBold), 1) << tool;
        EXPECT_EQ(live(widget, owStrikeout), 1) << tool;
    }
}

TEST(Looks, TheTitleOfARadioBoxHasNoFontOfItsOwn) {
    Desk desk;
    WidgetNode* box = desk.place(PLACE_PANEL, desk.panel, 20, 20);
    ASSERT_TRUE(box && desk.place(TOOL_RADIO_BUTTON, box, 10, 10));
    ASSERT_EQ(box->type, TYPE_RADIO_BOX);
    const int own = live(box, owPointSize);
    box->pointSize = 24;
    rebuildWidget(*box);
    EXPECT_EQ(live(box, owPointSize), own) << "when it is made";
    selectWidget(box);
    desk.setProperty("Point Size", "28");
    EXPECT_EQ(box->pointSize, 28);
    EXPECT_EQ(live(box, owPointSize), own) << "when it is edited";
}

TEST(Looks, APageDoesNotTakeTheFontOfItsTabs) {
    Desk desk;
    WidgetNode* page = desk.place(PLACE_TAB_BOX, desk.panel, 20, 20);
    ASSERT_TRUE(page);
    WidgetNode* box = page->parent;
    WidgetNode* button = desk.place(PLACE_BUTTON, page, 20, 20);
    ASSERT_TRUE(button);
    box->pointSize = 24;
    rebuildWidget(*box);
    EXPECT_EQ(live(box, owPointSize), 24);
    EXPECT_LT(robot::viewOf(button->handle)->font().pointSizeF(), 24);
}

TEST(Looks, AComboBoxIsAsEditableAsInTheProgram) {
    Desk desk;
    WidgetNode* combo = desk.place(PLACE_COMBO, desk.panel, 20, 20);
    ASSERT_TRUE(combo);
    for (const char* choice : {"Editable", "List Choice Only", "Editable"}) {
        desk.setProperty("Editable", choice);
        const auto* view = qobject_cast<QComboBox*>(robot::viewOf(combo->handle));
        ASSERT_TRUE(view);
        EXPECT_EQ(view->isEditable(), *choice == 'E') << choice;
    }
    selectWidget(desk.form);
    desk.click(combo);
    EXPECT_EQ(project.currentWidget, combo) << "a click into its field selects it";
}

TEST(Looks, TheActiveColourOfAListOutlivesItsRebuild) {
    Desk desk;
    WidgetNode* list = desk.place(PLACE_LIST, desk.panel, 20, 20);
    ASSERT_TRUE(list);
    const auto chosen = [&] {
        return robot::viewOf(list->handle)->palette().color(QPalette::Active, QPalette::Highlight);
    };
    list->colour2 = 5;
    rebuildWidget(*list);
    const QColor fifth = chosen();
    list->colour2 = 3;
    rebuildWidget(*list);
    EXPECT_NE(chosen(), fifth);
}

TEST(Looks, TheIconsOfATreeViewAreWrittenIntoItsEntries) {
    Desk desk;
    WidgetNode* tree = desk.place(PLACE_TREE, desk.panel, 20, 20);
    ASSERT_TRUE(tree);
    tree->subType = ORESOURCEICONS;
    for (const int kind : {MENU_BAR, MENU_ENTRY, MENU_ENTRY}) tree->entries.emplace_back().kind = kind;
    editIcon(*tree, propertyRow(ROW_CLOSE_ICON), {.text = "mthumb", .number = 0, .value = 0});
    EXPECT_EQ(tree->closeIcon, "mthumb");
    EXPECT_EQ(tree->entries[0].icon2, "") << "the box itself is no entry";
    for (const int entry : {1, 2}) EXPECT_EQ(tree->entries[entry].icon2, "mthumb");
}

TEST(Looks, ARowThatSetsWhatItsWidgetIsCreatedWithFindsItOnEveryType) {
    int found = 0;
    for (const TypeCard& type : typeCards()) {
        WidgetNode widget;
        widget.type = type.type;
        for (const RowId id : sheetOf(widget)) {
            const PropertyRow& row = propertyRow(id);
            if (row.keyword != PropertyRow::AS_CREATED) continue;
            EXPECT_NE(liveKeyword(widget, row), 0) << type.label << ": " << row.label;
            ++found;
        }
    }
    EXPECT_GT(found, 40);
}

} // namespace
