// The code editor: what it is bound to, when text reaches the stores, and the commands on text.
#include "desk.h"

#include "editing/code_editor.h"
#include "editing/code_lists.h"
#include "editing/editor_window.h"
#include "editing/modes.h"
#include "editing/text_view.h"
#include "project/preferences.h"
#include "shell/command_states.h"
#include "shell/command_table.h"
#include "surface/event.h"
#include "surface/hooks.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace robot = orba::testing;

namespace {

// What the project's blocks are named in the list.
void showBlock(Desk& desk, const char* name) {
    showCode(name, nullptr, 1, 1);
    desk.run();
}

// Stored code ends its lines in carriage return and line feed; the tables below don't.
std::string linesOf(int text) {
    std::string lines = textOf(text);
    std::erase(lines, '\r');
    return lines;
}

void typeCode(Desk& desk, const char* text) {
    robot::type(codeText(), text);
    desk.run();
}

TEST(Editor, TextOfASlotIsCommittedWhenTheSelectionMoves) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    EXPECT_EQ(project.currentBlockName, "General Callback");
    typeCode(desk, "x = 1");
    EXPECT_TRUE(textModeInForce());
    EXPECT_EQ(button->slots[SLOT_GENERAL], "");
    desk.click(desk.panel, 300, 300);
    EXPECT_EQ(button->slots[SLOT_GENERAL], "x = 1");
    EXPECT_FALSE(textModeInForce());
    EXPECT_EQ(textOf(codeText()), "");
    selectWidget(button);
    EXPECT_EQ(textOf(codeText()), "x = 1");
}

TEST(Editor, BlocksKeepTheirTextAndAClickShowsTheCallbackAgain) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    showBlock(desk, "Local Variables");
    typeCode(desk, "integer :: n");
    desk.click(desk.panel, 300, 300);
    desk.click(button);
    EXPECT_EQ(project.codeBlocks[BLOCK_LOCAL_VARIABLES], "integer :: n");
    EXPECT_EQ(project.currentBlockName, "General Callback");
}

TEST(Editor, DoubleClickOnAWidgetBringsUpItsCallback) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    showBlock(desk, "Initialization");
    desk.click(button);
    desk.run();
    robot::doubleClick(button->handle);
    desk.run();
    EXPECT_EQ(project.currentBlockName, "General Callback");
    EXPECT_TRUE(textModeInForce());
}

TEST(Editor, DeletingAWidgetLosesNoOtherCode) {
    Desk desk;
    desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    showBlock(desk, "Global Definitions");
    typeCode(desk, "real :: a");
    robot::expectBox("Confirm Widget Deletion", "This will permanently erase Form1_Button1.|Do you want to continue?",
                     OANSWERYES);
    desk.command(CMD_DELETE);
    EXPECT_EQ(project.codeBlocks[BLOCK_GLOBAL_DEFINITIONS], "real :: a");
}

struct LineCase {
    const char* what;
    int command;
    const char* before;
    TextRange selected;
    const char* after;
};

TEST(Editor, CommandsOnLines) {
    const LineCase cases[] = {
        {"caret inside a line", CMD_INDENT, "a\nb", {2, 2}, "   a\nb"},
        {"caret in column 1 leaves the line", CMD_INDENT, "a\nb", {1, 1}, "a\nb"},
        {"selection that ends in column 1", CMD_INDENT, "a\nb\nc", {1, 5}, "   a\n   b\nc"},
        {"tabs become blanks", CMD_INDENT, "\ta", {1, 3}, "         a"},
        {"back", CMD_UNINDENT, "   abc", {1, 7}, "abc"},
        {"a short line stays", CMD_UNINDENT, "  a", {1, 4}, "  a"},
        {"too few blanks", CMD_UNINDENT, "  abcd", {1, 7}, "  abcd"},
        {"comment", CMD_COMMENT, "a\nb", {1, 4}, "!a\n!b"},
        {"uncomment", CMD_UNCOMMENT, "!a\n !b", {1, 7}, "a\n !b"},
        {"upper case", CMD_UPPERCASE, "abc def", {1, 4}, "ABC def"},
        {"lower case", CMD_LOWERCASE, "ABC DEF", {5, 8}, "ABC def"},
    };
    Desk desk;
    preferences.selectedIndent = 3;
    preferences.tabSpaces = 6;
    showBlock(desk, "User Routines/Functions");
    for (const LineCase& row : cases) {
        SCOPED_TRACE(row.what);
        owSetTextSetting(codeText(), row.before, 0);
        select(codeText(), row.selected);
        desk.command(row.command);
        EXPECT_EQ(linesOf(codeText()), row.after);
    }
}

TEST(Editor, ACaretStaysACaretWhenItsLineChanges) {
    Desk desk;
    showBlock(desk, "User Routines/Functions");
    owSetTextSetting(codeText(), "abc\nd", 0);
    select(codeText(), {3, 3});
    for (const int command : {CMD_COMMENT, CMD_UNCOMMENT}) {
        desk.command(command);
        const TextRange range = selectionOf(codeText());
        EXPECT_EQ(range.start, command == CMD_COMMENT ? 4 : 3);
        EXPECT_EQ(range.end, range.start);
    }
}

TEST(Editor, AnyNumberOfLinesIsOneEdit) {
    Desk desk;
    preferences.selectedIndent = 3;
    showBlock(desk, "User Routines/Functions");
    std::string before;
    for (int line = 0; line < 5000; ++line) before += "a line of code\n";
    for (const int command : {CMD_COMMENT, CMD_INDENT}) {
        owSetTextSetting(codeText(), before.c_str(), 0);
        const std::string lines = linesOf(codeText());
        select(codeText(), {1, -1});
        desk.command(command);
        EXPECT_NE(linesOf(codeText()), lines);
        owTextUndoAction(codeText(), OUNDO);
        EXPECT_EQ(linesOf(codeText()), lines);
        EXPECT_FALSE(owTextUndoAction(codeText(), OCANUNDO));
    }
}

TEST(Editor, CodeOfAMenuEntryReachesTheMenu) {
    Desk desk;
    desk.form->entries.emplace_back().kind = MENU_BAR;
    for (const char* name : {"FileOpen", "FileExit"}) {
        MenuEntryRec& entry = desk.form->entries.emplace_back();
        entry.kind = MENU_ENTRY;
        entry.label = entry.name = name;
    }
    selectWidget(desk.form);
    EXPECT_NE(owEnqWidgetStatus(editor.menuTab), OUNSELECTABLE);
    action.status = editor.menuTab;
    runCommand(CMD_SELECTOR_TABS);
    EXPECT_EQ(project.currentBlockName, "General Callback");
    typeCode(desk, "call open()");
    owSetListEntry(editor.menuList, OSELECT, owString, "FileExit", owEntry, -1, 0);
    runCommand(CMD_MENU_ENTRY_LIST);
    EXPECT_EQ(textOf(codeText()), "");
    typeCode(desk, "stop");
    selectWidget(desk.form);
    EXPECT_EQ(desk.form->entries[1].slots[ENTRY_GENERAL], "call open()");
    EXPECT_EQ(desk.form->entries[2].slots[ENTRY_GENERAL], "stop");
    EXPECT_EQ(desk.form->slots[SLOT_GENERAL], "");
}

TEST(Editor, TabKeyTypesBlanks) {
    Desk desk;
    preferences.replaceTab = 1;
    preferences.tabSpaces = 4;
    showBlock(desk, "Pre Action");
    typeCode(desk, "a");
    robot::key(codeText(), Qt::Key_Tab);
    desk.run();
    typeCode(desk, "b");
    EXPECT_EQ(textOf(codeText()), "a    b");
}

TEST(Editor, PlaceOfAnErrorIsShown) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    button->slots[SLOT_GENERAL] = "one\ntwo\nthree";
    selectWidget(desk.form);
    showCode("General Callback", button, 2, 0);
    EXPECT_EQ(project.currentWidget, button);
    const TextRange line = selectionOf(codeText());
    EXPECT_EQ(line.start, 5);
    EXPECT_EQ(line.end, 8);
    showCode("General Callback", button, 3, 2);
    EXPECT_EQ(selectionOf(codeText()).start, 10);
}

TEST(Editor, NewNameReachesTheCode) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    desk.form->slots[SLOT_GENERAL] = "call hide(FORM1_Button1)";
    project.codeBlocks[BLOCK_INITIALIZATION] = "form1_button1 = 0 ! Form1_Button12";
    selectWidget(button);
    robot::expectBox(
        "Update Code Blocks",
        "2 occurance(s) of the old widget name: Form1_Button1|have been found in the user code and callback "
        "code blocks||Do you want to change them all to the new widget name: Go?",
        OANSWERYES);
    desk.setProperty("Name", "Go");
    EXPECT_EQ(desk.form->slots[SLOT_GENERAL], "call hide(Go)");
    EXPECT_EQ(project.codeBlocks[BLOCK_INITIALIZATION], "Go = 0 ! Form1_Button12");
}

TEST(Editor, NamesThatFollowAFormFollowItInTheCodeToo) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    button->slots[SLOT_GENERAL] = "call owDrawWindow(form1, 1) ! Form1_Button1, Form1_Mine";
    desk.click(desk.panel, 300, 5);
    robot::expectBox("Update Code Blocks",
                     "2 occurance(s) of the old widget name: Form1|have been found in the user code and callback "
                     "code blocks||Do you want to change them all to the new widget name: Main?",
                     OANSWERYES);
    desk.setProperty("Name", "Main");
    EXPECT_EQ(button->slots[SLOT_GENERAL], "call owDrawWindow(Main, 1) ! Main_Button1, Form1_Mine");
}

std::vector<std::string> listedNames() {
    int count = 0, selected = 0, current = 0;
    owEnqListStatus(editor.widgetList, &count, &selected, &current);
    std::vector<std::string> names(static_cast<size_t>(count), std::string(NAME_LIMIT + 1, '\0'));
    for (int row = 0; row < count; ++row) {
        std::string& name = names[static_cast<size_t>(row)];
        owEnqListEntry(editor.widgetList, row + 1, name.data(), NAME_LIMIT, 0);
        name.resize(name.find('\0'));
    }
    return names;
}

TEST(Editor, MainPanelsAreNotListedWhateverTheFormIsCalled) {
    Desk desk;
    desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    desk.click(desk.panel, 300, 5);
    desk.setProperty("Name", "Main");
    EXPECT_EQ(listedNames(), (std::vector<std::string>{"Main", "Main_Button1"}));
}

// What nothing answers to yet is grey.
TEST(Editor, IconsWithoutACommandAreGrey) {
    Desk desk;
    const std::pair<const char*, bool> icons[] = {{"Insert ORBA Command", hooks.hasCommand(CMD_INSERT_COMMAND)},
                                                  {"Increase Indent", true}};
    for (const auto& [tip, enabled] : icons) {
        const QWidgetList all = QApplication::allWidgets();
        const auto icon = std::ranges::find_if(all, [&](const QWidget* one) { return one->toolTip() == tip; });
        ASSERT_NE(icon, all.end()) << tip;
        EXPECT_EQ((*icon)->isEnabled(), enabled) << tip;
    }
}

} // namespace
