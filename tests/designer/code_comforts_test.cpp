// The code editor's comforts: a history for each block, the list that tells what holds code, the size of the letters.
#include "desk.h"

#include "editing/block_list.h"
#include "editing/code_editor.h"
#include "editing/commands.h"
#include "editing/editor_window.h"
#include "editing/text_view.h"
#include "project/code_stores.h"
#include "project/preferences.h"
#include "surface/event.h"
#include "surface/hooks.h"

#include <QApplication>
#include <QComboBox>
#include <QTextEdit>
#include <QWheelEvent>

#include <chrono>

namespace robot = orba::testing;

namespace {

void showBlock(Desk& desk, const char* name) {
    showCode(name, nullptr, 1, 1);
    desk.run();
}

std::string code() {
    std::string lines = textOf(codeText());
    std::erase(lines, '\r');
    return lines;
}

void typeCode(Desk& desk, const char* text) {
    robot::type(codeText(), text);
    desk.run();
}

TEST(CodeComforts, EachBlockKeepsItsHistoryBeyondACommit) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    typeCode(desk, "x = 1");
    commitEditor();
    showBlock(desk, "Initialization");
    typeCode(desk, "y = 2");
    desk.click(desk.panel, 300, 300);
    selectWidget(button);
    showCallback(*button);
    EXPECT_EQ(code(), "x = 1");
    desk.command(CMD_TEXT_UNDO);
    EXPECT_EQ(code(), "");
    commitEditor();
    EXPECT_EQ(button->slots[SLOT_GENERAL], "");
    showBlock(desk, "Initialization");
    EXPECT_EQ(code(), "y = 2");
    desk.command(CMD_TEXT_UNDO);
    desk.command(CMD_TEXT_REDO);
    EXPECT_EQ(code(), "y = 2");
}

TEST(CodeComforts, HistorySurvivesUppercaseAndPaste) {
    Desk desk;
    showBlock(desk, "Initialization");
    typeCode(desk, "abc");
    select(codeText(), {1, 4});
    desk.command(CMD_UPPERCASE);
    EXPECT_EQ(code(), "ABC");
    desk.command(CMD_TEXT_COPY);
    desk.command(CMD_TEXT_PASTE);
    desk.command(CMD_TEXT_PASTE);
    EXPECT_EQ(code(), "ABCABC");
    for (int step = 0; step < 4 && code() != "abc"; ++step) desk.command(CMD_TEXT_UNDO);
    EXPECT_EQ(code(), "abc");
}

TEST(CodeComforts, CodeChangedElsewhereIsShownAsItIs) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    typeCode(desk, "x = 1");
    commitEditor();
    showBlock(desk, "Initialization");
    button->slots[SLOT_GENERAL] = "changed";
    showCallback(*button);
    EXPECT_EQ(code(), "changed");
}

QString rowOf(const char* name) {
    const auto* list = robot::viewOf(editor.blockList)->findChild<QComboBox*>();
    if (!list) list = qobject_cast<QComboBox*>(robot::viewOf(editor.blockList));
    for (int row = 0; row < list->count(); ++row)
        if (list->itemText(row).section('|', 0, 0) == name) return list->itemText(row);
    return {};
}

TEST(CodeComforts, TheListTellsWhatHoldsCode) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    button->slots[SLOT_SELECT] = "a = 1\r\nb = 2\r\n";
    button->slots[SLOT_MOVE] = "  \r\n";
    project.codeBlocks[BLOCK_INITIALIZATION] = "c = 3";
    selectWidget(desk.form);
    selectWidget(button);
    EXPECT_EQ(rowOf("Select Callback"), "Select Callback|2 lines");
    EXPECT_EQ(rowOf("Move Callback"), "Move Callback");
    EXPECT_EQ(rowOf("Initialization"), "Initialization|1 line");
    EXPECT_EQ(chosenBlockRow(), "General Callback");
    typeCode(desk, "x = 1");
    commitEditor();
    EXPECT_EQ(rowOf("General Callback"), "General Callback|1 line");
    EXPECT_EQ(chosenBlockRow(), "General Callback");
}

TEST(CodeComforts, TheWheelWithCtrlSizesTheLetters) {
    Desk desk;
    showBlock(desk, "Initialization");
    typeCode(desk, "abc");
    const int before = preferences.codePointSize;
    QWidget* view = robot::viewOf(codeText())->findChild<QTextEdit*>()->viewport();
    QWheelEvent turn(QPointF(60, 20), view->mapToGlobal(QPointF(60, 20)), QPoint(), QPoint(0, 240), Qt::NoButton,
                     Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view, &turn);
    desk.run();
    EXPECT_EQ(preferences.codePointSize, before + 2);
    EXPECT_EQ(robot::viewOf(codeText())->findChild<QTextEdit*>()->font().pointSize(), before + 2);
    desk.command(CMD_TEXT_UNDO);
    EXPECT_EQ(code(), "") << "the history is still there";
    preferences.codePointSize = before;
}

TEST(CodeComforts, ReturnIndentsAndIsUndoneAtOnce) {
    Desk desk;
    showBlock(desk, "Initialization");
    typeCode(desk, "if (a) then");
    robot::key(0, Qt::Key_Return);
    typeCode(desk, "x = 1");
    robot::key(0, Qt::Key_Return);
    typeCode(desk, "end");
    robot::key(0, Qt::Key_Return);
    desk.run();
    EXPECT_EQ(code(), "if (a) then\n   x = 1\nend if\n");
    EXPECT_TRUE(codeEditing.codeModified);
}

} // namespace
