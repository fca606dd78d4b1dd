// The editor of menus, by keys and by mouse.
#include "dialogue_test.h"

#include "dialogues/choose_icon.h"
#include "dialogues/commands.h"
#include "dialogues/entry_editor.h"
#include "dialogues/icon_grid.h"
#include "project/files.h"
#include "surface/dialogue_keys.h"

#include <QAction>
#include <QEvent>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>

namespace robot = orba::testing;

namespace {

// Counts how often a window is brought to the front.
struct RaiseWatch : QObject {
    explicit RaiseWatch(QWidget* watched) : QObject(watched) { watched->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        raised += event->type() == QEvent::ZOrderChange || event->type() == QEvent::WindowActivate;
        return false;
    }
    int raised = 0;
};

struct MenuEditor : DialogueTest {
    void open() {
        desk.command(CMD_MENU_EDITOR);
        ASSERT_NE(dialogue::widget(ENTRY_LIST), 0);
    }
    void fillIn(int id, const char* text) {
        dialogue::focus(id);
        dialogue::setText(id, "");
        type(text);
        key(Qt::Key_Tab);
    }
    static QPoint row(int number) {
        const auto* list = qobject_cast<QListWidget*>(robot::viewOf(dialogue::widget(ENTRY_LIST)));
        return list->visualItemRect(list->item(number - 1)).center();
    }
    // What the form shows: titles, and behind each its entries.
    std::string live() const {
        std::string text;
        for (const QAction* action : robot::viewOf(desk.form->handle)->findChild<QMenuBar*>()->actions())
            text += shown(*action);
        return text;
    }
    static std::string shown(const QAction& action) {
        if (action.isSeparator()) return "-";
        std::string text = action.text().remove(QLatin1Char('&')).toStdString();
        if (!action.menu()) return text + " ";
        text += "(";
        for (const QAction* below : action.menu()->actions()) text += shown(*below);
        return text + ")";
    }
    bool hasMenu() const {
        const QMenuBar* bar = robot::viewOf(desk.form->handle)->findChild<QMenuBar*>();
        return bar && !bar->actions().isEmpty();
    }
    std::string captions() const {
        std::string text;
        for (const MenuEntryRec& entry : desk.form->entries)
            if (entry.kind == MENU_ENTRY || entry.kind == MENU_SEPARATOR)
                text += std::string(static_cast<std::size_t>(entry.level), '-') + entry.label + " ";
        return text;
    }
    const MenuEntryRec* entry(const std::string& caption) const {
        for (const MenuEntryRec& one : desk.form->entries)
            if (one.label == caption) return &one;
        return nullptr;
    }
    // File, Open, Save, a line, Exit; Help.
    void makeMenu() {
        open();
        type("File");
        alt(Qt::Key_N);
        type("Open");
        alt(Qt::Key_Right);
        alt(Qt::Key_N);
        type("Exit");
        alt(Qt::Key_Right);
        alt(Qt::Key_S);
        alt(Qt::Key_N);
        type("Help");
        key(Qt::Key_Return);
    }
    void expectError(const char* title, const char* text) { robot::expectBox(title, text, OANSWEROK); }
};

} // namespace

TEST_F(MenuEditor, ADoubleClickOnItsIconOpensItOnce) {
    for (int i = 0; i < 3; i++) owPostCallback(CMD_MENU_EDITOR, 0);
    desk.run();
    type("File");
    const auto* rows = qobject_cast<QListWidget*>(robot::viewOf(dialogue::widget(ENTRY_LIST)));
    ASSERT_TRUE(rows && rows->count() == 1);
    EXPECT_EQ(rows->item(0)->text(), "File");
    press(ENTRY_MENU_CANCEL);
    EXPECT_FALSE(dialogueOpen());
}

TEST_F(MenuEditor, AMenuIsMadeByKeysAlone) {
    const QSize before = robot::viewOf(desk.panel->handle)->size();
    project.projectModified = project.sourceStale = 0;
    makeMenu();
    EXPECT_FALSE(dialogueOpen());
    EXPECT_EQ(captions(), "File -Open -##sep1 -Exit Help ");
    EXPECT_EQ(live(), "File(Open -Exit )Help ");
    EXPECT_EQ(entry("Open")->name, "Form1_Open_entry");
    EXPECT_EQ(entry("Open")->callbackId, entry("Open")->handle);
    EXPECT_EQ(project.projectModified + project.sourceStale, 2);
    EXPECT_EQ(robot::viewOf(desk.panel->handle)->size(), before) << "the bar takes nothing from the form";
}

TEST_F(MenuEditor, AMenuIsMadeByTheMouse) {
    desk.command(CMD_MENU_EDITOR);
    type("File");
    press(ENTRY_NEXT);
    type("Open");
    press(ENTRY_RIGHT);
    press(ENTRY_INSERT);
    auto& form = *new RaiseWatch(robot::frameOf(desk.form->handle));
    type("New");
    EXPECT_EQ(live(), "File(New Open )") << "shown while it is edited";
    EXPECT_EQ(form.raised, 0) << "under the editor";
    press(ENTRY_DOWN);
    press(ENTRY_SEPARATOR);
    press(ENTRY_PREV);
    press(ENTRY_UP);
    press(ENTRY_MENU_OK);
    EXPECT_EQ(captions(), "File -##sep1 -Open -New ");
    desk.command(CMD_MENU_EDITOR);
    robot::drag(dialogue::widget(ENTRY_LIST), row(4), row(2));
    desk.run();
    robot::click(dialogue::widget(ENTRY_LIST), row(1));
    desk.run();
    EXPECT_EQ(dialogue::text(ENTRY_CAPTION), "File");
    press(ENTRY_MENU_OK);
    EXPECT_EQ(captions(), "File -New -##sep1 -Open ");
}

TEST_F(MenuEditor, CancelLeavesEverything) {
    makeMenu();
    const std::string before = captions(), shownBefore = live();
    for (const int command :
         {ENTRY_INSERT, ENTRY_DELETE, ENTRY_DELETE_ALL, ENTRY_NEXT, ENTRY_DOWN, ENTRY_RIGHT, ENTRY_SEPARATOR}) {
        project.projectModified = 0;
        open();
        dialogue::focus(ENTRY_LIST);
        key(Qt::Key_Down);
        press(command);
        type("other");
        key(Qt::Key_Escape);
        EXPECT_FALSE(dialogueOpen());
        EXPECT_EQ(captions(), before) << command;
        EXPECT_EQ(live(), shownBefore) << command;
        EXPECT_EQ(project.projectModified, 0) << command;
    }
}

TEST_F(MenuEditor, ARefusedOkTellsEachFaultOnceAndGoesToTheRow) {
    open();
    type("File");
    alt(Qt::Key_N);
    type("Open");
    alt(Qt::Key_Right);
    alt(Qt::Key_N);
    type("Deep");
    alt(Qt::Key_Right);
    alt(Qt::Key_Right);
    alt(Qt::Key_Right);
    dialogue::focus(ENTRY_LIST);
    key(Qt::Key_Home);
    expectError("Level Error", "A menu item or menu items have skipped a level of indentation");
    key(Qt::Key_Return);
    EXPECT_TRUE(dialogueOpen());
    EXPECT_EQ(dialogue::choice(ENTRY_LIST), 3);
    EXPECT_EQ(dialogue::text(ENTRY_CAPTION), "Deep");
    EXPECT_TRUE(desk.form->entries.empty());
    alt(Qt::Key_Left);
    alt(Qt::Key_Left);
    dialogue::setText(ENTRY_NAME, "Form1");
    expectError("Invalid Name", "Form1 is a duplicate or invalid Fortran/C variable name");
    key(Qt::Key_Return);
    EXPECT_TRUE(dialogueOpen());
    fillIn(ENTRY_NAME, "deeper");
    press(ENTRY_MENU_OK);
    EXPECT_FALSE(dialogueOpen());
    EXPECT_EQ(entry("Deep")->name, "deeper");
}

TEST_F(MenuEditor, FieldsCanBeHadAsTheEntryAllows) {
    open();
    const auto enabled = [](std::initializer_list<int> ids) {
        std::string text;
        for (const int id : ids) text += dialogue::isEnabled(id) ? '1' : '0';
        return text;
    };
    const auto state = [&] {
        return enabled(
            {ENTRY_HELP, ENTRY_ICON1, ENTRY_BROWSE3, ENTRY_LEFT, ENTRY_RIGHT, ENTRY_SEPARATOR, ENTRY_ACCELERATOR});
    };
    type("File");
    EXPECT_EQ(state(), "0000001") << "the first row";
    alt(Qt::Key_N);
    EXPECT_EQ(state(), "0000101");
    alt(Qt::Key_Right);
    EXPECT_EQ(state(), "1111111");
    type("##");
    EXPECT_EQ(state(), "0001100") << "a separator";
    project.projectPlatform = 'x';
    alt(Qt::Key_I);
    EXPECT_EQ(state(), "0001111");
    project.projectPlatform = 'w';
    key(Qt::Key_Escape);
}

TEST_F(MenuEditor, AcceleratorsAreSharedOnWindowsOnly) {
    makeMenu();
    open();
    fillIn(ENTRY_ACCELERATOR, "F");
    alt(Qt::Key_N);
    fillIn(ENTRY_ACCELERATOR, "F");
    project.projectPlatform = 'x';
    alt(Qt::Key_N);
    alt(Qt::Key_N);
    expectError("Duplicate Accelerator Key", "Another Menu Entry has this accelerator key");
    fillIn(ENTRY_ACCELERATOR, "F");
    EXPECT_EQ(dialogue::text(ENTRY_ACCELERATOR), "");
    project.projectPlatform = 'w';
    press(ENTRY_MENU_OK);
    EXPECT_EQ(entry("Open")->accel, 'F');
    EXPECT_EQ(entry("Exit")->accel, 0);
}

TEST_F(MenuEditor, CodeGoesWithItsEntry) {
    makeMenu();
    for (MenuEntryRec& one : desk.form->entries)
        if (one.label == "Open") one.slots[ENTRY_GENERAL] = "call open()";
    open();
    dialogue::focus(ENTRY_LIST);
    key(Qt::Key_Down);
    alt(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(captions(), "File -##sep1 -Open -Exit Help ");
    EXPECT_EQ(entry("Open")->slots[ENTRY_GENERAL], "call open()");
    const char* question = "If you proceed, you will lose the code attached to this entry! Do you wish to continue?";
    open();
    dialogue::focus(ENTRY_LIST);
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    robot::expectBox("Entry has callback code attached", question, OANSWERNO);
    alt(Qt::Key_Left);
    key(Qt::Key_Return);
    EXPECT_EQ(entry("Open")->level, 1);
    EXPECT_EQ(entry("Open")->slots[ENTRY_GENERAL], "call open()");
    open();
    dialogue::focus(ENTRY_LIST);
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    robot::expectBox("Entry has callback code attached", question, OANSWERYES);
    alt(Qt::Key_Left);
    key(Qt::Key_Return);
    EXPECT_EQ(entry("Open")->level, 0);
    EXPECT_EQ(entry("Open")->slots[ENTRY_GENERAL], "");
}

TEST_F(MenuEditor, ANewNameIsFollowedInTheCodeAndByForms) {
    makeMenu();
    project.codeBlocks[BLOCK_INITIALIZATION] = "call owSetWidgetStatus(Form1_Open_entry, 0)";
    desk.form->parentName = "Form1_Exit_entry"; // as of a form that the entry opens
    open();
    dialogue::focus(ENTRY_LIST);
    key(Qt::Key_Down);
    fillIn(ENTRY_NAME, "opener");
    dialogue::focus(ENTRY_LIST);
    key(Qt::Key_End);
    key(Qt::Key_Up);
    fillIn(ENTRY_NAME, "leaver");
    robot::expectBox("Update Code Blocks",
                     "1 occurance(s) of the old widget name: Form1_Open_entry\nhave been found in the user code and "
                     "callback code blocks\n\nDo you want to change them all to the new widget name: opener?",
                     OANSWERYES);
    press(ENTRY_MENU_OK);
    EXPECT_EQ(project.codeBlocks[BLOCK_INITIALIZATION], "call owSetWidgetStatus(opener, 0)");
    EXPECT_EQ(desk.form->parentName, "leaver");
    desk.form->parentName = "NONE";
}

TEST_F(MenuEditor, IconsAreChosen) {
    makeMenu();
    open();
    dialogue::focus(ENTRY_LIST);
    key(Qt::Key_Down);
    press(ENTRY_BROWSE1);
    EXPECT_FALSE(dialogue::isEnabled(ICON_BITMAP));
    press(ICON_VISTA);
    press(GRID_FIRST_PICTURE + 1);
    EXPECT_EQ(dialogue::text(ENTRY_ICON1), "fileopen&");
    press(ENTRY_BROWSE2);
    key(Qt::Key_Escape);
    EXPECT_EQ(dialogue::text(ENTRY_ICON2), "");
    EXPECT_EQ(owEnqActiveWidget(), dialogue::widget(ENTRY_BROWSE2)) << "the editor has its input again";
    key(Qt::Key_Return);
    EXPECT_EQ(dialogue::widget(ENTRY_LIST) != 0, true);
    key(Qt::Key_Escape);
    press(ENTRY_MENU_OK);
    EXPECT_EQ(entry("Open")->icon1, "fileopen&");
}

TEST_F(MenuEditor, EmptyRowsAtTheEndsDropAndOnlyThemEmptiesTheMenu) {
    makeMenu();
    open();
    press(ENTRY_INSERT); // an empty first row
    press(ENTRY_MENU_OK);
    EXPECT_EQ(captions(), "File -Open -##sep1 -Exit Help ");
    open();
    press(ENTRY_DELETE_ALL);
    press(ENTRY_MENU_OK);
    EXPECT_TRUE(desk.form->entries.empty());
    EXPECT_FALSE(hasMenu());
}

TEST_F(MenuEditor, TheBarIsDeleted) {
    desk.command(CMD_DELETE_MENU_BAR); // nothing to delete, no question
    makeMenu();
    const char* text = "This will remove the menu bar and all associated pull-down menus from the current form.\n"
                       "Are you sure you want to continue?";
    robot::expectBox("Confirm menu removal", text, OANSWERNO);
    desk.command(CMD_DELETE_MENU_BAR);
    EXPECT_TRUE(hasMenu());
    robot::expectBox("Confirm menu removal", text, OANSWERYES);
    desk.command(CMD_DELETE_MENU_BAR);
    EXPECT_FALSE(hasMenu());
    EXPECT_TRUE(desk.form->entries.empty());
}

TEST_F(MenuEditor, AChildFormAsksFirst) {
    desk.command(CMD_NEW_FORM);
    WidgetNode* child = project.forms->next;
    ASSERT_TRUE(child);
    selectWidget(child);
    ASSERT_EQ(child->formType, FORM_STATIC_SDI);
    robot::expectBox("Child SDI Form current", "Are you sure you want to add a menu bar to this Child SDI Form?",
                     OANSWERNO);
    desk.command(CMD_MENU_EDITOR);
    EXPECT_FALSE(dialogueOpen());
    robot::expectBox("Child SDI Form current", "Are you sure you want to add a menu bar to this Child SDI Form?",
                     OANSWERYES);
    open();
    key(Qt::Key_Escape);
    project.currentWidget = nullptr;
    robot::expectBox("No valid form selected!", "You must select a valid form first", OANSWEROK);
    desk.command(CMD_MENU_EDITOR);
}

// Whatever one does with many entries and long captions.
TEST_F(MenuEditor, ManyEntriesAndLongCaptions) {
    makeMenu();
    MenuEntryRec last = *entry("Exit");
    const std::string longest(255, 'w');
    for (int i = 0; i < 500; ++i) {
        last.label = i == 250 ? longest : "entry";
        last.name = "entry" + std::to_string(i);
        desk.form->entries.insert(desk.form->entries.begin() + 4, last);
    }
    open();
    dialogue::focus(ENTRY_LIST);
    key(Qt::Key_End);
    alt(Qt::Key_N);
    type("Last");
    key(Qt::Key_Return);
    EXPECT_EQ(desk.form->entries.back().label, "Last");
    EXPECT_EQ(desk.form->entries.size(), 500U + 8U);
}
