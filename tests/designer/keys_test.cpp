// A key belongs to whatever has the input: every kind of control with every key of a command, by real key events; what
// has the input after a click, a menu, a dialogue; dialogues above dialogues.
#include "designer_fixture.h"

#include "dialogues/snap_dialogue.h"
#include "editing/editor_window.h"
#include "editing/text_view.h"
#include "platform/text_files.h"
#include "project/tree.h"
#include "properties/sheet.h"
#include "shell/compiler_log.h"
#include "shell/environment.h"
#include "shell/window_control.h"
#include "surface/dialogue_keys.h"
#include "surface/hierarchy.h"
#include "surface/selection.h"
#include "surface/state.h"
#include "toolkit/testing/robot.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <functional>

using namespace orba::testing;

namespace {

struct KeyRow {
    const char* name;
    int code;
    Qt::Key key;
    Qt::KeyboardModifiers held;
    int design, text, fields; // the command it sends there, 0: the widget has it
};

constexpr KeyRow control(char letter, int design, int text, int fields = 0) {
    return {
        nullptr, controlKey(letter), static_cast<Qt::Key>(Qt::Key_A + letter - 'A'), Qt::ControlModifier, design, text,
        fields};
}
constexpr KeyRow everywhere(int number, int command) {
    return {
        nullptr, functionKey(number), static_cast<Qt::Key>(Qt::Key_F1 + number - 1), Qt::NoModifier, command, command,
        command};
}

const KeyRow KEYS[] = {
    {"Del", OKEYDEL, Qt::Key_Delete, Qt::NoModifier, CMD_DELETE, CMD_TEXT_DELETE, 0},
    control('A', 0, 0),
    control('C', CMD_COPY, CMD_TEXT_COPY),
    control('D', CMD_DUPLICATE, 0),
    control('F', CMD_NEW_FORM, CMD_FIND),
    control('G', 0, CMD_GO_TO_LINE),
    control('N', CMD_NEW_PROJECT, 0),
    control('S', CMD_SAVE_PROJECT, CMD_COMMIT_CODE, CMD_SAVE_PROJECT),
    control('U', CMD_UNADOPT, 0),
    control('V', CMD_PASTE, CMD_TEXT_PASTE),
    control('W', 0, CMD_INSERT_NAME),
    control('X', CMD_CUT, CMD_TEXT_CUT),
    control('Y', CMD_REDO, CMD_TEXT_REDO),
    control('Z', CMD_UNDO, CMD_TEXT_UNDO),
    {"Return", OKEYRETURN, Qt::Key_Return, Qt::NoModifier, 0, 0, 0},
    {"Esc", OKEYESC, Qt::Key_Escape, Qt::NoModifier, 0, 0, 0},
    {"Up", OKEYUP, Qt::Key_Up, Qt::NoModifier, 0, 0, 0},
    {"Tab", OKEYTAB, Qt::Key_Tab, Qt::NoModifier, 0, CMD_TEXT_TAB, 0},
    {"Shift+Tab", OKEYSHIFTTAB, Qt::Key_Backtab, Qt::ShiftModifier, 0, CMD_UNINDENT, 0},
    {"F1", functionKey(1), Qt::Key_F1, Qt::NoModifier, CMD_HELP, CMD_CODE_HELP, CMD_HELP},
    everywhere(2, CMD_SHOW_ALL),
    everywhere(3, 0),
    everywhere(4, CMD_NEXT_MESSAGE),
    {"Shift+F4", shifted(functionKey(4)), Qt::Key_F4, Qt::ShiftModifier, CMD_PREVIOUS_MESSAGE, CMD_PREVIOUS_MESSAGE,
     CMD_PREVIOUS_MESSAGE},
    everywhere(5, CMD_COMPILE),
    everywhere(6, CMD_EXECUTE),
    everywhere(11, CMD_RAISE_WINDOWS),
    everywhere(12, CMD_DEFAULT_POSITIONS),
};

enum class Where { Design, Text, Fields, Dialogue };

int expected(const KeyRow& row, Where where) {
    switch (where) {
    case Where::Design: return row.design;
    case Where::Text: return row.text;
    case Where::Fields: return row.fields;
    case Where::Dialogue: return row.code == functionKey(1) ? static_cast<int>(CMD_HELP) : 0;
    }
    return 0;
}

void takeInput(int handle) {
    owSetActiveWidget(handle);
    settle();
}

// The first row of a kind, brought to editing.
void editCell(int kind) {
    const int list = propertyList();
    for (int row = 1;; ++row) {
        int found = 0, status = 0;
        char label[64] = "";
        owEnqPropertySetting(list, row, owPropertyKind, &found, owPropertyStatus, &status, owLength,
                             static_cast<int>(sizeof label), owPropertyLabel, label, 0);
        ASSERT_NE(*label, 0) << "no such row";
        if (found != kind || status != 1) continue;
        owSelectProperty(list, row);
        takeInput(list);
        if (kind != OPROPBUTTON) key(0, kind == OPROPCOMBO ? Qt::Key_Right : Qt::Key_Return);
        settle();
        return;
    }
}

void focusField(int window) {
    QLineEdit* field = nullptr;
    for (QLineEdit* one : viewOf(window)->findChildren<QLineEdit*>())
        if (!one->isReadOnly()) field = one;
    ASSERT_TRUE(field);
    field->window()->activateWindow();
    field->setFocus(Qt::MouseFocusReason);
    settle();
}

struct Place {
    const char* name;
    Where where;
    std::function<void()> focusIt;
};

class Keys : public DesignerTest {
protected:
    WidgetNode *button = nullptr, *entry = nullptr;

    void SetUp() override {
        DesignerTest::SetUp();
        start();
        selectTool(TOOL_TEXT_ENTRY);
        click(project.forms->child->handle, {50, 160});
        pump();
        entry = project.currentWidget;
        selectTool(TOOL_PUSH_BUTTON);
        click(project.forms->child->handle, {50, 60});
        pump();
        button = project.currentWidget;
        for (const int command : std::initializer_list<int>{CMD_PASTE, CMD_COMPILE, CMD_EXECUTE})
            setCommandStatus(command, STATUS_ENABLED);
        ASSERT_NE(button, entry);
    }

    // The commands among what the key sends, unhandled.
    static std::vector<int> commandsOf(const KeyRow& row) {
        events();
        key(0, row.key, row.held);
        settle();
        std::vector<int> commands;
        for (const int identifier : identifiers()) {
            const Command* command = findCommand(identifier);
            if (command && command->key == row.code) commands.push_back(identifier);
        }
        return commands;
    }

    static void expectKeys(const Place& place) {
        for (const KeyRow& row : KEYS) {
            SCOPED_TRACE(std::string(place.name) + ", " + (row.name ? row.name : "key " + std::to_string(row.code)));
            place.focusIt();
            ASSERT_TRUE(QApplication::focusWidget());
            const int command = expected(row, place.where);
            EXPECT_EQ(commandsOf(row), command ? std::vector<int>{command} : std::vector<int>{});
            if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
        }
    }

    void openViewer() {
        writeTextFile(file("app.f90"), "program app\nend program\n");
        project.sourceDir = root.string();
        project.sourceName = "app.f90";
        project.sourceStale = 0;
        send(CMD_SOURCE_VIEWER);
    }

    static bool codeHasFocus() { return owEnqActiveWidget() == codeText(); }
};

} // namespace

TEST_F(Keys, OfCommandsWorkWhereTheyBelong) {
    const Place places[] = {
        {"form", Where::Design, [] { owSetActiveWidget(project.forms->child->handle); }},
        {"button on the form", Where::Design, [this] { owSetActiveWidget(button->handle); }},
        {"text entry on the form", Where::Design, [this] { owSetActiveWidget(entry->handle); }},
        {"hierarchy", Where::Design, [] { takeInput(hierarchyBox()); }},
        {"tool box", Where::Design, [] { owSetActiveWidget(commandWidget(CMD_TOOL_PANEL, CommandWidget::Button)); }},
        {"icon bar", Where::Design, [] { owSetActiveWidget(commandWidget(CMD_COPY, CommandWidget::Button)); }},
        {"nothing", Where::Design, [] { owSetActiveWidget(FORMS_ROOM); }},
        {"code text", Where::Text, [] { owSetActiveWidget(codeText()); }},
        {"property list", Where::Fields, [] { takeInput(propertyList()); }},
        {"text cell", Where::Fields, [] { editCell(OPROPTEXT); }},
        {"number cell", Where::Fields, [] { editCell(OPROPVALUE); }},
        {"choice cell", Where::Fields, [] { editCell(OPROPCOMBO); }},
        {"colour row", Where::Fields,
         [] {
             if (project.currentWidget != project.forms) selectWidget(project.forms);
             editCell(OPROPBUTTON);
         }},
        {"list of blocks", Where::Fields, [] { takeInput(editor.blockList); }},
        {"list of widgets", Where::Fields, [] { takeInput(editor.widgetList); }},
        {"log", Where::Fields, [] { takeInput(logWidget()); }},
    };
    for (const Place& place : places) expectKeys(place);
    EXPECT_NE(findName(project.forms, "Form1_Button1", false), nullptr);
}

TEST_F(Keys, OfCommandsRestWhileADialogueHasTheInput) {
    send(CMD_SNAP_DIALOGUE);
    const int snap = owEnqActiveWindow();
    expectKeys({"field of a dialogue", Where::Dialogue, [snap] { focusField(snap); }});
    send(SNAP_CANCEL);
    owSetActiveWidget(codeText());
    send(CMD_NAMES_FORMS);
    EXPECT_TRUE(dialogueOpen());
    const int list = owEnqActiveWidget();
    expectKeys({"list of a dialogue", Where::Dialogue, [list] { takeInput(list); }});
    send(CMD_NAME_CANCEL);
    EXPECT_FALSE(dialogueOpen());
    expectKeys({"form again", Where::Design, [this] { owSetActiveWidget(button->handle); }});
}

TEST_F(Keys, OfTheViewersTextAreNoneOfItsFields) {
    openViewer();
    const int window = owEnqActiveWindow();
    ASSERT_NE(window, MASTER_WINDOW);
    const KeyRow all = control('A', 0, 0);
    events();
    key(0, all.key, all.held);
    const std::vector<int> sent = identifiers();
    EXPECT_EQ(std::count(sent.begin(), sent.end(), CMD_VIEWER_SELECT_ALL), 1);
    Place field{"field of the viewer", Where::Fields, [window] { focusField(window); }};
    expectKeys(field);
    field.focusIt();
    events();
    key(0, all.key, all.held);
    type(0, "2");
    EXPECT_EQ(qobject_cast<QLineEdit*>(QApplication::focusWidget())->text(), QStringLiteral("2"));
    pump();
    send(CMD_VIEWER_EXIT);
}

TEST_F(Keys, AFieldKeepsItsEditingKeys) {
    owSelectProperty(propertyList(), owPropertyItemNumber(propertyList(), "Label"));
    takeInput(propertyList());
    key(0, Qt::Key_Return);
    auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(field);
    field->setText(QStringLiteral("abc"));
    key(0, Qt::Key_Home);
    key(0, Qt::Key_Delete);
    pump();
    EXPECT_EQ(field->text(), QStringLiteral("bc"));
    EXPECT_EQ(live("Form1_Button1"), button->handle);
}

// ---- Where the input is ----------------------------------------------------------------------------------------

TEST_F(Keys, TextModeHoldsWhileTheCodeHasTheFocus) {
    EXPECT_FALSE(textModeInForce());
    const struct {
        const char* name;
        int handle;
        bool text;
    } steps[] = {{"code", codeText(), true},           {"list of blocks", editor.blockList, false},
                 {"code again", codeText(), true},     {"properties", propertyList(), false},
                 {"code once more", codeText(), true}, {"log", logWidget(), false}};
    for (const auto& step : steps) {
        takeInput(step.handle);
        pump();
        EXPECT_EQ(textModeInForce(), step.text) << step.name;
    }
    takeInput(codeText());
    pump();
    click(project.forms->child->handle, {200, 200});
    pump();
    EXPECT_FALSE(textModeInForce());
    EXPECT_FALSE(codeHasFocus());
    moveCaret(codeText(), 1); // the caret may move while the input is elsewhere
    pump();
    EXPECT_FALSE(textModeInForce());
}

TEST_F(Keys, AClickInTheHierarchyLeadsToTheCodeAndKeysStayThere) {
    takeInput(hierarchyBox());
    pump();
    selectWidget(project.forms);
    takeInput(hierarchyBox());
    key(0, Qt::Key_Down);
    pump();
    EXPECT_NE(project.currentWidget, project.forms);
    EXPECT_EQ(owEnqActiveWidget(), hierarchyBox());
    EXPECT_FALSE(textModeInForce());
    click(hierarchyBox(), {40, 8}); // the form's row
    pump();
    EXPECT_EQ(project.currentWidget, project.forms);
    EXPECT_TRUE(codeHasFocus());
    EXPECT_TRUE(textModeInForce());
}

TEST_F(Keys, AMenuAndAnIconGiveTheInputBack) {
    const int holders[] = {codeText(), hierarchyBox(), logWidget()};
    for (const int holder : holders) {
        takeInput(holder);
        pump();
        viewOf(MASTER_WINDOW)->window()->activateWindow();
        choose(menuEntry(CMD_VIEW_TOOL_BOX));
        pump();
        click(DesignerTest::button(CMD_VIEW_TOOL_BOX) ? DesignerTest::button(CMD_VIEW_TOOL_BOX)
                                                      : DesignerTest::button(CMD_TOOL_SELECTOR));
        pump();
        EXPECT_EQ(owEnqActiveWidget(), holder);
    }
    owSetActiveWidget(button->handle);
    pump();
    viewOf(MASTER_WINDOW)->window()->activateWindow();
    settle();
    EXPECT_EQ(owEnqActiveWidget(), FORMS_ROOM) << "a press on the menu bar does not wake the code";
    pump();
    EXPECT_FALSE(textModeInForce());
    choose(menuEntry(CMD_COPY));
    pump();
    EXPECT_EQ(owEnqActiveWidget(), button->handle);
    takeInput(codeText());
    pump();
    send(CMD_INDENT);
    EXPECT_TRUE(codeHasFocus());
}

TEST_F(Keys, ADialogueGivesTheInputBack) {
    for (const int holder : {codeText(), button->handle, logWidget()}) {
        owSetActiveWidget(holder);
        pump();
        const bool text = textModeInForce();
        for (const int command : std::initializer_list<int>{CMD_SNAP_DIALOGUE, CMD_ABOUT}) {
            send(command);
            ASSERT_TRUE(dialogueOpen());
            key(0, Qt::Key_Escape);
            pump();
            EXPECT_FALSE(dialogueOpen());
            EXPECT_EQ(owEnqActiveWidget(), holder);
            EXPECT_EQ(textModeInForce(), text);
        }
    }
}

TEST_F(Keys, TheHierarchyGetsTheInputBackAlsoWhenItWasMadeAnew) {
    takeInput(hierarchyBox());
    pump();
    const int before = hierarchyBox();
    clearHierarchy();
    buildHierarchy(project.forms);
    ASSERT_NE(hierarchyBox(), before);
    send(CMD_SNAP_DIALOGUE);
    key(0, Qt::Key_Escape);
    pump();
    EXPECT_FALSE(dialogueOpen());
    EXPECT_EQ(owEnqActiveWidget(), hierarchyBox());
}

// ---- Dialogues --------------------------------------------------------------------------------------------------

TEST_F(Keys, ReturnInAFieldTakesItsValueAndPressesTheButtonOnce) {
    send(CMD_SNAP_DIALOGUE);
    focusField(owEnqActiveWindow());
    events();
    auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    field->selectAll();
    type(0, "7");
    key(0, Qt::Key_Return);
    std::vector<int> all = identifiers();
    EXPECT_EQ(std::count(all.begin(), all.end(), SNAP_OK), 1);
    send(SNAP_OK);
    EXPECT_EQ(project.snapGrid, 7);
}

TEST_F(Keys, ADialogueAboveAnotherGoesFirst) {
    constexpr int CLOSE_LOWER = 901, CLOSE_UPPER = 902, OK_LOWER = 903, OK_UPPER = 904;
    struct Box {
        int window, field, ok;
    };
    const auto makeBox = [](const char* title, int okCommand) {
        Box box{};
        box.window = owCreateComplexDialogueBox(1, 300, 250, 200, 100, OTITLE, title, owVpos, OTOP, 0);
        box.field = owCreateTextEntry(box.window, 10, 10, 80, 24, "", 20, OEDIT, owVpos, OTOP, 0);
        box.ok = owCreatePushButton(box.window, 10, 50, 80, 24, "OK", owVpos, OTOP, owType, ODEFAULTBUTTON, owCallback,
                                    okCommand, 0);
        owDrawWindow(box.window, 1);
        return box;
    };
    const auto press = [](Qt::Key code) {
        events();
        key(0, code);
        return identifiers();
    };
    design.helpContext = "Form";
    const Box lower = makeBox("Lower", OK_LOWER);
    openDialogueKeys(lower.window, {lower.ok, OK_LOWER}, CLOSE_LOWER, "Lower");
    owSetActiveWidget(lower.field);
    settle();
    const Box upper = makeBox("Upper", OK_UPPER);
    openDialogueKeys(upper.window, {upper.ok, OK_UPPER}, CLOSE_UPPER, "Upper");
    owSetActiveWidget(upper.field);
    EXPECT_EQ(press(Qt::Key_Escape), std::vector<int>{CLOSE_UPPER});
    EXPECT_EQ(press(Qt::Key_Return), std::vector<int>{OK_UPPER});
    EXPECT_EQ(design.helpContext, "Upper");
    click(lower.ok);
    EXPECT_EQ(owEnqActiveWindow(), upper.window) << "the one below waits";
    EXPECT_EQ(identifiers(), std::vector<int>{});
    closeDialogueKeys();
    owRemoveWindow(upper.window);
    settle();
    EXPECT_TRUE(dialogueOpen());
    EXPECT_EQ(owEnqActiveWidget(), lower.field);
    EXPECT_EQ(design.helpContext, "Lower");
    EXPECT_EQ(press(Qt::Key_Escape), std::vector<int>{CLOSE_LOWER});
    EXPECT_EQ(press(Qt::Key_Return), std::vector<int>{OK_LOWER});
    EXPECT_EQ(press(Qt::Key_F5), std::vector<int>{}) << "no command has its key yet";
    closeDialogueKeys();
    owRemoveWindow(lower.window);
    settle();
    EXPECT_FALSE(dialogueOpen());
    EXPECT_EQ(design.helpContext, "Form");
    EXPECT_EQ(owEnqActiveWidget(), button->handle);
    const std::vector<int> sent = press(Qt::Key_F5);
    EXPECT_EQ(std::count(sent.begin(), sent.end(), CMD_COMPILE), 1);
}
