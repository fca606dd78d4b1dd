// Add ORBA Command by mouse and keys: the tree, its filter, and what comes into the code.
#include "desk.h"

#include "dialogues/catalogue_window.h"
#include "dialogues/frame.h"
#include "editing/code_editor.h"
#include "editing/commands.h"
#include "editing/editor_window.h"
#include "editing/text_view.h"
#include "project/code_stores.h"

#include <QTest>
#include <QTreeWidget>

namespace robot = orba::testing;

namespace {

class CatalogueWindow : public testing::Test {
protected:
    void open(const char* code = "", TextRange selected = {}) {
        showCode("Initialization", nullptr, 1, 1);
        owSetTextSetting(codeText(), code, 0);
        select(codeText(), selected);
        robot::focus(codeText());
        desk.run();
        desk.command(CMD_INSERT_COMMAND);
        ASSERT_NE(dialogue::widget(CATALOGUE_TREE), 0);
    }
    static QTreeWidget* tree() { return qobject_cast<QTreeWidget*>(robot::viewOf(dialogue::widget(CATALOGUE_TREE))); }
    void filter(const char* text) {
        robot::type(dialogue::widget(CATALOGUE_FILTER), text);
        desk.run();
    }
    void press(int control) {
        robot::click(dialogue::widget(control));
        desk.run();
    }
    static std::string withCaret() {
        std::string code = linesOf(codeText());
        const TextRange range = selectionOf(codeText());
        if (range.end > range.start) code.insert(static_cast<size_t>(range.end) - 1, "|");
        return code.insert(static_cast<size_t>(range.start) - 1, "|");
    }
    bool isOpenNow() { return dialogue::widget(CATALOGUE_TREE) != 0; }

    Desk desk;
};

TEST_F(CatalogueWindow, ShowsTheFoldersWithTheLastOneOpen) {
    open();
    QTreeWidget* view = tree();
    ASSERT_EQ(view->topLevelItemCount(), 6);
    EXPECT_EQ(view->topLevelItem(0)->text(0), u"Generate Form");
    EXPECT_EQ(view->topLevelItem(2)->text(0), u"ORBA routines");
    EXPECT_FALSE(view->topLevelItem(2)->isExpanded());
    EXPECT_EQ(view->topLevelItem(5)->text(0), u"ORBAWIDG routines");
    EXPECT_TRUE(view->topLevelItem(5)->isExpanded());
    EXPECT_TRUE(view->topLevelItem(1)->child(0)->isDisabled()) << "the library lacks it";
    EXPECT_FALSE(view->topLevelItem(5)->child(0)->isDisabled());
    press(CATALOGUE_CANCEL);
    EXPECT_FALSE(isOpenNow());
    EXPECT_EQ(owEnqActiveWidget(), codeText());
}

TEST_F(CatalogueWindow, OkInsertsTheCallThatMakesAForm) {
    open();
    robot::key(0, Qt::Key_Return);
    desk.run();
    EXPECT_EQ(withCaret(), "call Generate|()");
    EXPECT_FALSE(isOpenNow());
}

TEST_F(CatalogueWindow, AFilteredRoutineIsInsertedByReturn) {
    open("x = 1\n", {7, 7});
    filter("drawwindow");
    EXPECT_EQ(tree()->topLevelItemCount(), 1);
    EXPECT_NE(robot::shownText(dialogue::widget(CATALOGUE_SIGNATURE)).indexOf("owDrawWindow(window: Integer"), -1);
    robot::key(0, Qt::Key_Return);
    desk.run();
    EXPECT_EQ(withCaret(), "x = 1\ncall owDrawWindow(| , )");
    EXPECT_TRUE(codeEditing.codeModified);
    desk.command(CMD_TEXT_UNDO);
    EXPECT_EQ(linesOf(codeText()), "x = 1\n") << "one step";
}

TEST_F(CatalogueWindow, ADoubleClickInsertsWithPrompts) {
    preferences.argumentPrompts = 1;
    open();
    filter("owSetWidgetStatus");
    QTest::mouseDClick(tree()->viewport(), Qt::LeftButton, {},
                       tree()->visualItemRect(tree()->topLevelItem(0)).center());
    desk.run();
    preferences.argumentPrompts = 0;
    EXPECT_EQ(withCaret(), "call owSetWidgetStatus(widget=| ,status= )");
}

TEST_F(CatalogueWindow, ASelectionStaysBehindTheCall) {
    open("abc", {1, 4});
    filter("owManage");
    press(CATALOGUE_OK);
    EXPECT_EQ(withCaret(), "call owManage()|abc|");
}

TEST_F(CatalogueWindow, ARoutineThatTheLibraryLacksCannotBeChosen) {
    open();
    filter("oBezierNowhere");
    EXPECT_EQ(tree()->topLevelItemCount(), 0);
    EXPECT_FALSE(dialogue::isEnabled(CATALOGUE_OK));
    press(CATALOGUE_CANCEL);
    open();
    filter("oWoglst");
    ASSERT_EQ(tree()->topLevelItemCount(), 1);
    EXPECT_FALSE(dialogue::isEnabled(CATALOGUE_OK));
    robot::key(0, Qt::Key_Return);
    desk.run();
    EXPECT_EQ(linesOf(codeText()), "");
    EXPECT_TRUE(isOpenNow());
    robot::key(0, Qt::Key_Escape);
    desk.run();
    EXPECT_FALSE(isOpenNow());
}

TEST_F(CatalogueWindow, ACProjectGetsCallsOfC) {
    project.projectLanguage = 99;
    open();
    filter("owEnqListEntry");
    robot::key(0, Qt::Key_Return);
    desk.run();
    project.projectLanguage = 90;
    EXPECT_EQ(withCaret(), " = owEnqListEntry(| , , , );");
}

TEST_F(CatalogueWindow, AFortran77ProjectHasItsOwnNames) {
    project.projectLanguage = 77;
    open();
    EXPECT_EQ(tree()->topLevelItem(4)->childCount(), 0);
    EXPECT_GE(tree()->topLevelItem(5)->childCount(), 169);
    filter("GUIINF");
    robot::key(0, Qt::Key_Return);
    desk.run();
    project.projectLanguage = 90;
    EXPECT_EQ(withCaret(), "CALL GUIINF(| , )");
}

} // namespace
