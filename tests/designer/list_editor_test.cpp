// The editors of lists and of tree views, by keys and by mouse.
#include "dialogue_test.h"

#include "dialogues/choose_icon.h"
#include "dialogues/entry_editor.h"
#include "dialogues/icon_grid.h"
#include "dialogues/list_editor.h"
#include "properties/commands.h"
#include "properties/sheet.h"
#include "surface/dialogue_keys.h"
#include "surface/live.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QListWidget>
#include <QTreeWidget>

namespace robot = orba::testing;

namespace {

struct RowEditors : DialogueTest {
    WidgetNode* edited = nullptr;

    void place(int tool) {
        edited = desk.place(tool, desk.panel, 40, 40);
        ASSERT_TRUE(edited);
        if (edited->type != TYPE_TREE_VIEW) desk.setProperty("Contents", "User Defined");
    }
    void open() {
        const int row = owPropertyItemNumber(propertyList(), "Entries");
        ASSERT_GT(row, 0);
        owSelectProperty(propertyList(), row);
        owPostCallback(CMD_PROPERTY_BUTTON, propertyList());
        desk.run();
        ASSERT_TRUE(dialogueOpen());
    }
    void clickRow(int list, int number) {
        const auto* view = qobject_cast<QListWidget*>(robot::viewOf(dialogue::widget(list)));
        robot::click(dialogue::widget(list), view->visualItemRect(view->item(number - 1)).center());
        desk.run();
    }
    std::string stored() const {
        std::string text;
        for (const ListEntryRec& row : edited->listEntries)
            text += row.text + (row.icon.empty() ? "" : "=" + row.icon) + " ";
        return text;
    }
    std::string live() const {
        std::string text;
        if (const auto* list = qobject_cast<QListWidget*>(robot::viewOf(edited->handle)))
            for (int row = 0; row < list->count(); ++row) text += list->item(row)->text().toStdString() + " ";
        if (const auto* combo = qobject_cast<QComboBox*>(robot::viewOf(edited->handle)))
            for (int row = 0; row < combo->count(); ++row) text += combo->itemText(row).toStdString() + " ";
        return text;
    }
    static std::string liveTree(const QTreeWidgetItem& item) {
        std::string text = item.text(0).toStdString();
        if (item.childCount() == 0) return text + " ";
        text += "(";
        for (int i = 0; i < item.childCount(); ++i) text += liveTree(*item.child(i));
        return text + ")";
    }
    std::string liveTree() const {
        std::string text;
        const auto* tree = qobject_cast<QTreeWidget*>(robot::viewOf(edited->handle));
        for (int i = 0; tree && i < tree->topLevelItemCount(); ++i) text += liveTree(*tree->topLevelItem(i));
        return text;
    }
    void makeList() {
        open();
        for (const char* row : {"one", "two", "two"}) {
            type(row);
            alt(Qt::Key_N);
        }
        key(Qt::Key_Return);
    }
};

} // namespace

TEST_F(RowEditors, RowsAreTypedAndAnEmptyLastOneIsDropped) {
    for (const int tool : std::initializer_list<int>{PLACE_LIST, TOOL_COMBO_BOX}) {
        place(tool);
        project.projectModified = project.sourceStale = 0;
        makeList();
        EXPECT_FALSE(dialogueOpen());
        EXPECT_EQ(stored(), "one two two ");
        EXPECT_EQ(live(), "one two two ");
        EXPECT_EQ(project.projectModified + project.sourceStale, 2);
        if (edited->type == TYPE_COMBO_BOX) {
            EXPECT_EQ(qobject_cast<QComboBox*>(robot::viewOf(edited->handle))->currentText(), QStringLiteral("one"));
        }
    }
}

TEST_F(RowEditors, EqualRowsAreEditedEach) {
    place(PLACE_LIST);
    makeList();
    open();
    clickRow(LIST_ROWS, 3);
    EXPECT_EQ(dialogue::text(LIST_CAPTION), "two");
    robot::doubleClick(
        dialogue::widget(LIST_ROWS),
        qobject_cast<QListWidget*>(robot::viewOf(dialogue::widget(LIST_ROWS)))
            ->visualItemRect(qobject_cast<QListWidget*>(robot::viewOf(dialogue::widget(LIST_ROWS)))->item(2))
            .center());
    desk.run();
    EXPECT_EQ(owEnqActiveWidget(), dialogue::widget(LIST_CAPTION));
    key(Qt::Key_End);
    type("!");
    EXPECT_EQ(live(), "one two two! ") << "shown while it is edited";
    press(LIST_UP);
    press(LIST_OK);
    EXPECT_EQ(stored(), "one two! two ");
}

TEST_F(RowEditors, ABlankRowInTheMiddleIsRefusedOnce) {
    place(PLACE_LIST);
    makeList();
    open();
    clickRow(LIST_ROWS, 2);
    press(LIST_INSERT);
    press(LIST_PREV);
    robot::expectBox("Blank Entry", "One or more list entries are blank", OANSWEROK);
    key(Qt::Key_Return);
    EXPECT_TRUE(dialogueOpen());
    EXPECT_EQ(dialogue::choice(LIST_ROWS), 2) << "the faulty row";
    EXPECT_EQ(stored(), "one two two ");
    press(LIST_DELETE);
    press(LIST_OK);
    EXPECT_EQ(stored(), "one two two ");
}

TEST_F(RowEditors, CancelLeavesTheListAlone) {
    place(PLACE_LIST);
    makeList();
    for (const int command : {LIST_INSERT, LIST_DELETE, LIST_DELETE_ALL, LIST_NEXT, LIST_DOWN}) {
        project.projectModified = 0;
        open();
        press(command);
        type("x");
        if (command == LIST_NEXT)
            robot::closeByUser(dialogue::window(LIST_OK));
        else
            robot::key(0, Qt::Key_Escape);
        desk.run();
        EXPECT_FALSE(dialogueOpen());
        EXPECT_EQ(stored(), "one two two ") << command;
        EXPECT_EQ(live(), "one two two ") << command;
        EXPECT_EQ(project.projectModified, 0) << command;
    }
}

TEST_F(RowEditors, LinesThatArePastedBecomeRows) {
    place(PLACE_LIST);
    open();
    QApplication::clipboard()->setText(QStringLiteral("alpha\r\nbeta\n\ngamma\n"));
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(dialogue::text(LIST_CAPTION), "gamma");
    QApplication::clipboard()->setText(QStringLiteral("!"));
    key(Qt::Key_End);
    key(Qt::Key_V, Qt::ControlModifier);
    key(Qt::Key_Return);
    EXPECT_EQ(stored(), "alpha beta gamma! ");
}

TEST_F(RowEditors, IconsOfRowsShowWhereTheListHasThem) {
    place(PLACE_LIST);
    edited->displayIcons = 0;
    open();
    EXPECT_FALSE(dialogue::isEnabled(LIST_ICON));
    EXPECT_FALSE(dialogue::isEnabled(LIST_BROWSE));
    press(LIST_CANCEL);
    edited->displayIcons = 1;
    open();
    type("one");
    press(LIST_BROWSE);
    EXPECT_FALSE(dialogue::isEnabled(ICON_BITMAP));
    press(ICON_VISTA);
    press(GRID_FIRST_PICTURE + 2);
    EXPECT_EQ(dialogue::text(LIST_ICON), "save&");
    press(LIST_OK);
    EXPECT_EQ(stored(), "one=save& ");
}

// ---- Trees

TEST_F(RowEditors, ATreeIsMadeByKeysAlone) {
    place(TOOL_TREE_VIEW);
    open();
    type("Root");
    alt(Qt::Key_N);
    type("Leaf");
    alt(Qt::Key_Right);
    alt(Qt::Key_N);
    type("Other");
    key(Qt::Key_Return);
    EXPECT_FALSE(dialogueOpen());
    EXPECT_EQ(liveTree(), "Root(Leaf )Other ");
    ASSERT_EQ(edited->entries.size(), 5U);
    EXPECT_EQ(edited->entries[0].name, edited->name + "_TreeView");
    EXPECT_EQ(edited->entries[1].name, edited->name + "_Root_entry");
    EXPECT_EQ(edited->entries[2].kind, MENU_PULL_DOWN);
    EXPECT_EQ(edited->entries[2].name, edited->entries[1].name);
    EXPECT_EQ(project.currentWidget, edited);
}

TEST_F(RowEditors, ATreeWithALevelSkippedIsRefused) {
    place(TOOL_TREE_VIEW);
    open();
    type("Root");
    press(ENTRY_NEXT);
    type("Leaf");
    press(ENTRY_RIGHT);
    press(ENTRY_RIGHT);
    robot::expectBox("Level Error", "A tree view item or tree view items have skipped a level of indentation",
                     OANSWEROK);
    press(ENTRY_TREE_OK);
    EXPECT_TRUE(dialogueOpen());
    EXPECT_TRUE(edited->entries.empty());
    press(ENTRY_LEFT);
    dialogue::setText(ENTRY_CAPTION, "");
    press(ENTRY_NEXT); // nothing behind an empty caption
    press(ENTRY_INSERT);
    type("New");
    robot::expectBox("Entry not named", "One or more tree view entries do not have a caption or name", OANSWEROK);
    press(ENTRY_TREE_OK);
    press(ENTRY_DELETE);
    press(ENTRY_TREE_OK);
    EXPECT_EQ(liveTree(), "Root(New )");
    open();
    press(ENTRY_DELETE_ALL);
    press(ENTRY_TREE_OK);
    EXPECT_TRUE(edited->entries.empty());
    EXPECT_EQ(liveTree(), "");
}

TEST_F(RowEditors, EntriesOfATreeHaveItsIconsAtFirstAndTheirCodeAlways) {
    place(TOOL_TREE_VIEW);
    edited->subType = ORESOURCEICONS;
    edited->icon = "save&";
    edited->closeIcon = "cut&";
    open();
    EXPECT_EQ(dialogue::text(ENTRY_ICON1), "save&");
    EXPECT_EQ(dialogue::text(ENTRY_ICON2), "cut&");
    type("Root");
    alt(Qt::Key_N);
    type("Leaf");
    alt(Qt::Key_Right);
    key(Qt::Key_Return);
    edited->entries.back().slots[ENTRY_GENERAL] = "call leaf()";
    edited->subType = OFOLDERS;
    open();
    EXPECT_FALSE(dialogue::isEnabled(ENTRY_ICON1));
    dialogue::focus(ENTRY_LIST);
    key(Qt::Key_Down);
    alt(Qt::Key_Left); // asks nothing
    key(Qt::Key_Return);
    EXPECT_EQ(liveTree(), "Root Leaf ");
    EXPECT_EQ(edited->entries.back().slots[ENTRY_GENERAL], "call leaf()");
    EXPECT_EQ(edited->entries.back().icon1, "save&");
}
