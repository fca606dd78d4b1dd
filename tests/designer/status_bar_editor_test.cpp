// The editor of status bars, by keys and by mouse.
#include "dialogue_test.h"

#include "dialogues/commands.h"
#include "dialogues/status_bar_editor.h"
#include "surface/dialogue_keys.h"

#include <QLabel>
#include <QStatusBar>

namespace robot = orba::testing;

namespace {

struct StatusBarEditor : DialogueTest {
    void open() {
        desk.command(CMD_STATUS_BAR_EDITOR);
        ASSERT_TRUE(dialogueOpen());
    }
    // Shortcuts press a button or toggle visibly before it sends its event.
    void fillIn(int id, const char* text) {
        dialogue::focus(id);
        key(Qt::Key_A, Qt::ControlModifier);
        robot::type(0, text);
        key(Qt::Key_Tab);
    }
    std::string stored() const {
        if (!desk.form->statusBar) return "none";
        std::string text = desk.form->statusBar->name + ":";
        for (int pane = 0; pane < desk.form->statusBar->panes; ++pane)
            text += " " + std::to_string(desk.form->statusBar->sizes[pane]) + "=" + desk.form->statusBar->texts[pane];
        return text;
    }
    bool shown() const { return robot::viewOf(desk.form->handle)->findChild<QStatusBar*>() != nullptr; }
};

} // namespace

TEST_F(StatusBarEditor, ABarIsMadeByKeysAlone) {
    const QSize before = robot::viewOf(desk.panel->handle)->size();
    project.projectModified = project.sourceStale = 0;
    open();
    EXPECT_FALSE(dialogue::isEnabled(STATUS_TEXT));
    alt(Qt::Key_S);
    EXPECT_EQ(dialogue::text(STATUS_TEXT), "Ready");
    EXPECT_TRUE(shown()) << "shown while it is edited";
    EXPECT_FALSE(dialogue::isEnabled(STATUS_REMOVE));
    alt(Qt::Key_I);
    fillIn(STATUS_WIDTH, "50");
    fillIn(STATUS_TEXT, "Line");
    alt(Qt::Key_I);
    fillIn(STATUS_WIDTH, "-1");
    key(Qt::Key_Return);
    EXPECT_FALSE(dialogueOpen());
    EXPECT_EQ(stored(), "StatBar1: 100=Ready 150=Line -1=");
    EXPECT_EQ(project.projectModified + project.sourceStale, 2);
    EXPECT_EQ(robot::viewOf(desk.panel->handle)->size(), before) << "the bar takes nothing from the form";
    project.projectModified = 0;
    open();
    EXPECT_EQ(dialogue::number(STATUS_WIDTH), 100);
    press(STATUS_OK);
    EXPECT_EQ(project.projectModified, 0) << "nothing has changed";
}

TEST_F(StatusBarEditor, PanesAreWorkedByTheMouse) {
    open();
    press(STATUS_TOGGLE);
    press(STATUS_INSERT);
    fillIn(STATUS_TEXT, "second");
    press(STATUS_INSERT);
    fillIn(STATUS_TEXT, "third");
    EXPECT_EQ(dialogue::text(STATUS_NUMBER), "3");
    press(STATUS_UP);
    dialogue::setNumber(STATUS_SLIDER, 9);
    owPostCallback(STATUS_SLIDER, 0);
    desk.run();
    EXPECT_EQ(dialogue::number(STATUS_SLIDER), 2) << "not past the last pane";
    press(STATUS_OK);
    EXPECT_EQ(stored(), "StatBar1: 100=Ready 200=third 300=second");
    open();
    press(STATUS_REMOVE);
    EXPECT_EQ(dialogue::text(STATUS_NUMBER), "1");
    press(STATUS_CANCEL);
    EXPECT_EQ(stored(), "StatBar1: 100=Ready 200=third 300=second");
    open();
    press(STATUS_TOGGLE);
    EXPECT_FALSE(shown());
    robot::closeByUser(dialogue::window(STATUS_OK));
    desk.run();
    EXPECT_TRUE(shown());
    open();
    press(STATUS_TOGGLE);
    press(STATUS_OK);
    EXPECT_EQ(stored(), "none");
    EXPECT_FALSE(shown());
}

TEST_F(StatusBarEditor, WidthsAreCorrected) {
    open();
    press(STATUS_TOGGLE);
    fillIn(STATUS_WIDTH, "-5");
    EXPECT_EQ(dialogue::number(STATUS_WIDTH), 100);
    fillIn(STATUS_WIDTH, "-1");
    press(STATUS_INSERT);
    robot::expectBox("Negative Panel Size",
                     "A panel that is not the last one has a negative value\npanel size has been set to 100",
                     OANSWEROK);
    press(STATUS_OK);
    EXPECT_EQ(stored(), "StatBar1: 100=Ready 200=");
}

TEST_F(StatusBarEditor, NamesAreGoodAndFree) {
    open();
    press(STATUS_TOGGLE);
    press(STATUS_OK);
    desk.command(CMD_NEW_FORM);
    WidgetNode* second = project.forms->next;
    selectWidget(second);
    open();
    press(STATUS_TOGGLE);
    EXPECT_EQ(dialogue::text(STATUS_NAME), "StatBar2") << "the first free number";
    for (const char* bad : {"StatBar1", "2bar", "Form1"}) {
        robot::expectBox("Invalid Name",
                         (std::string(bad) + " is an empty, duplicate or invalid Fortran/C variable name").c_str(),
                         OANSWEROK);
        fillIn(STATUS_NAME, bad);
        EXPECT_EQ(dialogue::text(STATUS_NAME), "StatBar2");
    }
    fillIn(STATUS_NAME, "theBar");
    press(STATUS_OK);
    EXPECT_EQ(second->statusBar->name, "theBar");
    open();
    fillIn(STATUS_TEXT, "x"); // the unchanged name is no duplicate
    press(STATUS_OK);
    EXPECT_EQ(second->statusBar->texts[0], "x");
}

TEST_F(StatusBarEditor, HasAtMostThirtyTwoPanes) {
    open();
    press(STATUS_TOGGLE);
    for (int pane = 0; pane < 40; ++pane) owPostCallback(STATUS_INSERT, 0);
    desk.run();
    EXPECT_FALSE(dialogue::isEnabled(STATUS_INSERT));
    press(STATUS_OK);
    EXPECT_EQ(desk.form->statusBar->panes, STATUS_PANES);
}
