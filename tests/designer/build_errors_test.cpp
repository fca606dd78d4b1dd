// From a build to the code editor: errors of a real compiler in blocks, slots and entries, in the whole designer.
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
#include "shell/designer.h"
#include "support/scratch.h"
#include "surface/state.h"

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
