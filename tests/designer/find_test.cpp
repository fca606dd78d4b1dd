// Find & Replace by mouse and keys, in the block that is shown and in all code; going to a line.
#include "desk.h"

#include "dialogues/find.h"
#include "dialogues/frame.h"
#include "editing/code_editor.h"
#include "editing/commands.h"
#include "editing/editor_window.h"
#include "editing/modes.h"
#include "editing/text_view.h"
#include "project/code_stores.h"
#include "shell/commands.h"
#include "shell/compiler_log.h"

#include <QTest>

#include <chrono>

namespace robot = orba::testing;

namespace {

class Finding : public testing::Test {
protected:
    // A bar in the code stands where the caret is, two around what is selected.
    void show(std::string marked) {
        showCode("Initialization", nullptr, 1, 1);
        const size_t from = marked.find('|');
        marked.erase(from, 1);
        size_t to = marked.find('|');
        if (to == std::string::npos)
            to = from;
        else
            marked.erase(to, 1);
        owSetTextSetting(codeText(), marked.c_str(), 0);
        select(codeText(), {static_cast<int>(from) + 1, static_cast<int>(to) + 1});
        desk.run();
    }
    static std::string shown() {
        std::string code = linesOf(codeText());
        const TextRange range = selectionOf(codeText());
        if (range.end > range.start) code.insert(static_cast<size_t>(range.end) - 1, "|");
        return code.insert(static_cast<size_t>(range.start) - 1, "|");
    }
    void press(int control) {
        robot::click(dialogue::widget(control));
        desk.run();
    }
    void typeText(int control, const char* text) {
        dialogue::focus(control);
        robot::settle();
        robot::key(dialogue::widget(control), Qt::Key_A, Qt::ControlModifier);
        robot::key(0, Qt::Key_Delete);
        robot::type(0, text);
        desk.run();
    }
    void open(int command) {
        robot::focus(codeText());
        desk.run();
        desk.command(command);
    }

    Desk desk;
};

TEST_F(Finding, ReturnGoesFromHitToHit) {
    show("one two one|");
    open(CMD_FIND);
    ASSERT_NE(dialogue::widget(FIND_TEXT), 0);
    EXPECT_FALSE(dialogue::isEnabled(FIND_REPLACE));
    typeText(FIND_TEXT, "one");
    robot::key(0, Qt::Key_Return);
    desk.run();
    EXPECT_EQ(shown(), "|one| two one") << "past the end it goes on at the start";
    robot::key(0, Qt::Key_Return);
    desk.run();
    EXPECT_EQ(shown(), "one two |one|");
    robot::key(0, Qt::Key_Escape);
    desk.run();
    EXPECT_EQ(dialogue::widget(FIND_TEXT), 0);
    EXPECT_EQ(owEnqActiveWidget(), codeText());
    robot::key(0, Qt::Key_F3);
    desk.run();
    EXPECT_EQ(shown(), "|one| two one") << "F3 goes on without the window";
}

TEST_F(Finding, KeysInTheFieldsLeaveTheCodeAlone) {
    show("one| two");
    open(CMD_REPLACE);
    typeText(FIND_TEXT, "abc");
    for (const auto key : {Qt::Key_A, Qt::Key_X, Qt::Key_V, Qt::Key_Z}) {
        robot::key(0, key, Qt::ControlModifier);
        desk.run();
    }
    robot::key(0, Qt::Key_Delete);
    desk.run();
    EXPECT_EQ(linesOf(codeText()), "one two");
    press(FIND_OK);
}

TEST_F(Finding, TheSelectionIsWhatIsLookedFor) {
    show("|two| one two");
    open(CMD_FIND);
    EXPECT_EQ(dialogue::text(FIND_TEXT), "two");
    press(FIND_NEXT_BUTTON);
    EXPECT_EQ(shown(), "two one |two|");
    press(FIND_OK);
    show("|" + std::string(300, 'x') + "|");
    robot::expectBox("Find/Replace Error", "Selected text too long for find/replace operation - truncated", OANSWEROK);
    open(CMD_FIND);
    EXPECT_EQ(dialogue::text(FIND_TEXT), std::string(255, 'x'));
    press(FIND_OK);
}

TEST_F(Finding, WhatIsNotThereIsTold) {
    show("|one");
    open(CMD_FIND);
    for (const char* text : {"two", ""}) {
        typeText(FIND_TEXT, text);
        robot::expectBox("Find/Replace", "String not found", OANSWEROK);
        press(FIND_NEXT_BUTTON);
        EXPECT_EQ(shown(), "|one");
    }
    press(FIND_OK);
}

TEST_F(Finding, UpAndMatchCase) {
    show("One one One|");
    open(CMD_FIND);
    typeText(FIND_TEXT, "One");
    press(FIND_UP);
    press(FIND_MATCH_CASE);
    press(FIND_NEXT_BUTTON);
    EXPECT_EQ(shown(), "One one |One|");
    press(FIND_NEXT_BUTTON);
    EXPECT_EQ(shown(), "|One| one One");
    press(FIND_DOWN);
    press(FIND_MATCH_CASE);
    press(FIND_OK);
}

TEST_F(Finding, ReplaceGoesOnAndIsUndone) {
    show("|a b a");
    open(CMD_REPLACE);
    EXPECT_FALSE(dialogue::isEnabled(FIND_UNDO));
    typeText(FIND_TEXT, "a");
    typeText(FIND_REPLACEMENT, "aa");
    press(FIND_REPLACE);
    EXPECT_EQ(shown(), "aa b |a|");
    EXPECT_TRUE(codeEditing.codeModified);
    press(FIND_UNDO);
    EXPECT_EQ(linesOf(codeText()), "a b a");
    EXPECT_FALSE(dialogue::isEnabled(FIND_UNDO));
    press(FIND_OK);
}

TEST_F(Finding, ReplaceAllIsOneEdit) {
    show("|x\xC3\xA4 x\nx");
    open(CMD_REPLACE);
    typeText(FIND_TEXT, "x");
    typeText(FIND_REPLACEMENT, "yx");
    robot::expectBox("Replace Text", "3 replacements will be made - OK to continue?", OANSWEROK);
    press(FIND_REPLACE_ALL);
    EXPECT_EQ(linesOf(codeText()), "yx\xC3\xA4 yx\nyx");
    press(FIND_UNDO);
    EXPECT_EQ(linesOf(codeText()), "x\xC3\xA4 x\nx");
    owTextUndoAction(codeText(), OUNDO);
    EXPECT_EQ(linesOf(codeText()), "yx\xC3\xA4 yx\nyx") << "each is one step of the code's own history";
    owTextUndoAction(codeText(), OUNDO);
    EXPECT_EQ(linesOf(codeText()), "x\xC3\xA4 x\nx");
    typeText(FIND_TEXT, "nowhere");
    robot::expectBox("Replace Text", "0 replacements will be made - OK to continue?", OANSWEROK);
    press(FIND_REPLACE_ALL);
    press(FIND_OK);
}

TEST_F(Finding, UndoDiesWithTheTextItBelongsTo) {
    show("|a b");
    open(CMD_REPLACE);
    typeText(FIND_TEXT, "a");
    typeText(FIND_REPLACEMENT, "c");
    press(FIND_REPLACE);
    showCode("Local Variables", nullptr, 1, 1);
    desk.run();
    press(FIND_MATCH_CASE);
    EXPECT_FALSE(dialogue::isEnabled(FIND_UNDO));
    press(FIND_MATCH_CASE);
    press(FIND_OK);
}

TEST_F(Finding, HitsInAllCodeLeadToTheirPlaces) {
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    button->slots[SLOT_GENERAL] = "a = 1\r\nb = target";
    project.codeBlocks[BLOCK_LOCAL_VARIABLES] = "integer :: target";
    selectWidget(desk.form);
    show("|");
    open(CMD_FIND);
    typeText(FIND_TEXT, "target");
    press(FIND_EVERYWHERE);
    press(FIND_NEXT_BUTTON);
    const auto lineOfLog = [](int row) {
        char text[256] = "";
        owEnqListEntry(logWidget(), row, text, sizeof text, 0);
        return std::string(text);
    };
    EXPECT_EQ(lineOfLog(1), "Local Variables 1: integer :: target");
    EXPECT_EQ(lineOfLog(2), "Form1_Button1, General Callback 2: b = target");
    press(FIND_EVERYWHERE);
    press(FIND_OK);
    selectLogLine(1);
    desk.command(CMD_LOG_PLACE);
    EXPECT_EQ(project.currentBlockName, "Local Variables");
    EXPECT_EQ(selectionOf(codeText()).start, 12);
    desk.command(CMD_NEXT_MESSAGE);
    EXPECT_EQ(project.currentWidget, button);
    EXPECT_EQ(selectionOf(codeText()).start, 11);
}

TEST_F(Finding, GoesToALine) {
    show("|one\ntwo\nthree");
    open(CMD_GO_TO_LINE);
    ASSERT_NE(dialogue::widget(GO_TO_LINE), 0);
    dialogue::setNumber(GO_TO_LINE, 2);
    press(GO_TO_OK);
    EXPECT_EQ(shown(), "one\n|two\nthree");
    open(CMD_GO_TO_LINE);
    dialogue::setNumber(GO_TO_LINE, 99);
    press(GO_TO_OK);
    EXPECT_EQ(shown(), "one\ntwo\n|three");
}

} // namespace
