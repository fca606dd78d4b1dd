// From a build to the code editor: errors of a real compiler in blocks, slots and entries, in the whole designer.
#define QT_NO_KEYWORDS // the records have a field of the name slots

#include "compile/driver.h"
#include "compile/log.h"
#include "compile/toolkit_places.h"
#include "editing/code_editor.h"
#include "editing/editor_window.h"
#include "editing/text_view.h"
#include "platform/paths.h"
#include "project/code_stores.h"
#include "project/preferences.h"
#include "project/tree.h"
#include "shell/command_states.h"
#include "shell/compiler_log.h"
#include "shell/designer.h"
#include "support/scratch.h"
#include "surface/selection.h"
#include "surface/state.h"
#include "toolkit/testing/robot.h"

#include <QTextBlock>
#include <QTextEdit>
#include <filesystem>

#include <gtest/gtest.h>

namespace {

struct BuildErrors : testing::Test {
    ScratchFolder scratch{"build errors"};
    ScopedVariable data{"ORBADATA", scratch.path.c_str()};
    ScopedVariable install{"ORBA", nullptr};
    ScopedVariable noSplash{"ORBA_NO_SPLASH", "1"};

    void SetUp() override {
        const ToolkitPlaces toolkit = toolkitPlaces("");
        if (toolkit.moduleDirs.empty() || !fileReadable(joinPath(toolkit.moduleDirs[0], "menu_f90.mod"))) {
            GTEST_SKIP() << "the modules are not built here";
        }
        std::filesystem::copy_file(ORBA_SOURCE_DIR "/data/defaults.syn", scratch.path / "wdesign.syn");
        startDesigner("");
        started = true;
        preferences.generateSavesProject = 0;
        project.sourceDir = scratch.path.string();
        project.sourceName = "app.f90";
        MenuEntryRec bar, save;
        bar.name = "Form1_Bar";
        bar.kind = MENU_BAR;
        save.name = save.label = "Form1_Save";
        save.kind = MENU_ENTRY;
        project.forms->entries = {bar, save};
    }
    void TearDown() override {
        if (started) endDesigner();
    }
    // Builds with `code` in the place, and takes it out again.
    static void buildWith(std::string& place) {
        place = "! all well\r\n   garbage here ?";
        project.sourceStale = 1;
        refreshBlockCopies();
        compileCommand(false);
        place.clear();
    }
    // Carries all that waits to the commands.
    static void run() {
        constexpr int END = 19991;
        for (int round = 0; round < 3; round++) {
            orba::testing::settle(10);
            owPostCallback(END, 0);
            for (int callback = 0; owAction(&callback) != END;) handleEvent(callback);
        }
    }
    static void pressKey(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        orba::testing::key(0, key, held);
        run();
    }
    static void expectInputInCode(const std::string& line) {
        EXPECT_EQ(owEnqActiveWidget(), codeText());
        EXPECT_TRUE(textModeInForce());
        const int start = caretLineStart(codeText());
        EXPECT_EQ(extract(codeText(), {start, start + lineLength(codeText(), start)}), line);
        auto marks = orba::testing::viewOf(codeText())->findChild<QTextEdit*>()->extraSelections();
        marks.removeIf([](const auto& mark) { return !mark.format.boolProperty(QTextFormat::FullWidthSelection); });
        ASSERT_EQ(marks.size(), 2) << "the line of the caret and that of the error";
        for (const auto& mark : marks) EXPECT_EQ(mark.cursor.block().text().toStdString(), line);
    }
    static std::string behindCaret() {
        const int caret = selectionOf(codeText()).start;
        return extract(codeText(), {caret, textLength(codeText()) + 1});
    }
    bool started = false;
};

} // namespace

TEST_F(BuildErrors, LeadToTheirPlacesInTheEditor) {
    WidgetNode* form = project.forms;
    buildWith(project.codeBlocks[BLOCK_INITIALIZATION]);
    ASSERT_FALSE(compilerLog.lines.empty());
    EXPECT_EQ(project.currentBlockName, "Initialization");
    EXPECT_EQ(codeEditing.target, EDIT_BLOCK);
    EXPECT_EQ(behindCaret(), "garbage here ?");

    buildWith(form->slots[SLOT_WINDOW_RESIZED]);
    EXPECT_EQ(project.currentBlockName, "Window Resized Callback");
    EXPECT_EQ(codeEditing.target, EDIT_WIDGET_SLOT);
    EXPECT_EQ(project.currentWidget, form);
    EXPECT_EQ(behindCaret(), "garbage here ?");

    buildWith(form->entries[1].slots[ENTRY_GENERAL]);
    EXPECT_EQ(project.currentBlockName, "General Callback");
    EXPECT_EQ(codeEditing.target, EDIT_MENU_SLOT);
    ASSERT_NE(codeEditing.currentEntry, nullptr);
    EXPECT_EQ(codeEditing.currentEntry->name, "Form1_Save");
    EXPECT_EQ(behindCaret(), "garbage here ?");

    buildWith(form->slots[SLOT_GENERAL]);
    EXPECT_EQ(codeEditing.target, EDIT_WIDGET_SLOT) << "and back from the entries";
    EXPECT_EQ(behindCaret(), "garbage here ?");
}

TEST_F(BuildErrors, GiveTheInputToTheCode) {
    namespace robot = orba::testing;
    run();
    project.codeBlocks[BLOCK_INITIALIZATION] = "   call first garbage\r\n! well\r\n   call second garbage";
    project.forms->slots[SLOT_GENERAL] = "   call third garbage";
    project.sourceStale = 1;
    refreshBlockCopies();
    compileCommand(false);
    run();
    expectInputInCode("   call first garbage");

    // Through the messages and back, from wherever the input is.
    pressKey(Qt::Key_F4);
    expectInputInCode("   call second garbage");
    selectWidget(project.forms);
    run();
    EXPECT_NE(owEnqActiveWidget(), codeText());
    pressKey(Qt::Key_F4);
    expectInputInCode("   call third garbage");
    pressKey(Qt::Key_F4);
    expectInputInCode("   call third garbage");
    pressKey(Qt::Key_F4, Qt::ShiftModifier);
    expectInputInCode("   call second garbage");

    // In the log itself: keys walk on, Return and a click lead to the code.
    owSetActiveWidget(logWidget());
    run();
    pressKey(Qt::Key_Home);
    pressKey(Qt::Key_Down);
    EXPECT_EQ(owEnqActiveWidget(), logWidget());
    EXPECT_FALSE(textModeInForce());
    const auto selectMessage = [](int step) {
        int count = 0, selected = 0, current = 0;
        owEnqListStatus(logWidget(), &count, &selected, &current);
        const int line = messageBeside(step > 0 ? 0 : count + 1, step);
        owSetListEntry(logWidget(), OSELECT, owEntry, line, 0);
        owSetActiveWidget(logWidget());
        run();
        return line;
    };
    selectMessage(1);
    pressKey(Qt::Key_Return);
    expectInputInCode("   call first garbage");
    selectMessage(-1);
    robot::doubleClick(logWidget(), {20, 4});
    run();
    EXPECT_EQ(owEnqActiveWidget(), codeText());
}
