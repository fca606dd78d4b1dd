#include "project/code_stores.h"
#include "project/tree.h"
#include "support/sample_project.h"

#include <gtest/gtest.h>

namespace {

std::string offered(const WidgetNode& node) {
    std::string names;
    for (WidgetSlot slot : offeredSlots(node)) {
        const std::string name = slotTable[slot].name;
        names += (names.empty() ? "" : ", ") + name.substr(0, name.size() - std::string(" Callback").size());
    }
    return names;
}

TEST(CodeStores, SlotsByTypeAndPlatform) {
    struct Row {
        WidgetType type;
        const char* windows;
        const char* elsewhere;
    };
    const Row rows[] = {
        {TYPE_FORM,
         "General, Select, Drag Drop, Window Moved, Window Resized, Window Quit, Window Minimized, Window Scrolled, "
         "Window Lost Focus",
         "General, Select, Window Moved, Window Resized, Window Quit, Window Minimized, Window Scrolled, Window Lost "
         "Focus"},
        {TYPE_BUTTON, "General, Select, Move, Double Click, Drag Select, Drag Move, Drag Drop, File Drop",
         "General, Select, Move"},
        {TYPE_TOGGLE, "General, Select, Move, Drag Drop", "General, Select, Move"},
        {TYPE_TEXT_ENTRY, "General, Select, Move, Change, Double Click, Drag Drop, File Drop, HyperLink",
         "General, Select, Move, Change"},
        {TYPE_VALUE_LABEL, "General, Select, Move, Drag Drop, Value Error", "General, Select, Move"},
        {TYPE_ICON, "General, Select, Move, Double Click, Drag Select, Drag Move, Drag Drop", "General, Select, Move"},
        {TYPE_LIST_BOX, "General, Select, Change, Double Click, Drag Drop, File Drop", "General, Select"},
        {TYPE_SLIDER, "General, Drag Drop", "General"},
        {TYPE_GRAPHICS_FRAME, "General, Select, Move, Expose, Double Click, Drag Drop, File Drop",
         "General, Select, Move, Expose"},
        {TYPE_VALUE_ARRAY, "General, Select, Change, Double Click, Drag Drop", "General, Select, Change"},
        {TYPE_TOOL_BAR, "General, Drag Drop, Window Moved, Window Resized, Window Quit",
         "General, Window Moved, Window Resized, Window Quit"},
        {TYPE_TABLE_BOX, "General, Double Click, Drag Drop", "General"},
        {TYPE_RADIO_BOX, "General, Select, Drag Drop", "General, Select"},
        {TYPE_TREE_VIEW, "", ""},
        {TYPE_PROGRESS_BAR, "", ""},
        {TYPE_TOOL_SEPARATOR, "", ""},
        {TYPE_MAIN_PANEL, "", ""},
    };
    freshProject();
    for (const Row& row : rows) {
        WidgetNode node;
        node.type = row.type;
        project.projectPlatform = 'w';
        EXPECT_EQ(offered(node), row.windows);
        project.projectPlatform = 'x';
        EXPECT_EQ(offered(node), row.elsewhere);
    }
    WidgetNode master;
    master.type = TYPE_FORM;
    master.formType = FORM_MASTER_MDI;
    EXPECT_NE(offered(master).find("File Drop"), std::string::npos);
    freshProject();
}

TEST(CodeStores, TablesNameTheirRows) {
    for (std::size_t i = 0; i < slotTable.size(); ++i) EXPECT_EQ(slotTable[i].slot, static_cast<int>(i));
    EXPECT_EQ(slotIndexOf("Expose Callback"), SLOT_EXPOSE);
    EXPECT_EQ(slotTable[SLOT_EXPOSE].identifier, 3);
    EXPECT_EQ(slotTable[SLOT_WINDOW_QUIT].windowStatus, 2);
    EXPECT_EQ(blockIndexOf("User Routines/Functions"), BLOCK_USER_ROUTINES);
    EXPECT_EQ(blockIndexOf("User defined variables"), -1);
    EXPECT_EQ(entrySlotIndexOf("Double Click Callback"), ENTRY_DOUBLE_CLICK);
    EXPECT_EQ(entrySlotIndexOf("Move Callback"), -1);
    EXPECT_EQ(storedSize(""), 2);
}

TEST(CodeStores, BindingAWidgetChoosesWhatIsShown) {
    WidgetNode* panel = freshProject()->child;
    WidgetNode* text = addRecord(panel, TYPE_TEXT_ENTRY, "Form1_Text1");
    WidgetNode* slider = addRecord(panel, TYPE_SLIDER, "Form1_Slider1");
    WidgetNode* tree = addRecord(panel, TYPE_TREE_VIEW, "Form1_TreeView1");
    struct Row {
        const char* before;
        WidgetNode* widget;
        const char* after;
        EditTarget target;
        int position;
    };
    const Row rows[] = {
        {"General Callback", text, "General Callback", EDIT_WIDGET_SLOT, 11},
        {"HyperLink Callback", text, "HyperLink Callback", EDIT_WIDGET_SLOT, 11},
        {"HyperLink Callback", slider, "General Callback", EDIT_WIDGET_SLOT, 11},
        {"Initialization", slider, "General Callback", EDIT_WIDGET_SLOT, 11},
        {"Select Callback", tree, "Local Variables", EDIT_BLOCK, 3},
        {"Pre Action", tree, "Pre Action", EDIT_BLOCK, 5},
    };
    for (const Row& row : rows) {
        project.currentBlockName = row.before;
        bindWidgetCode(*row.widget);
        EXPECT_EQ(project.currentBlockName, row.after);
        EXPECT_EQ(codeEditing.target, row.target);
        EXPECT_EQ(codeEditing.listPosition, row.position);
    }
    freshProject();
}

TEST(CodeStores, CommitWritesWhatIsShownAndOnlyWhenChanged) {
    WidgetNode* panel = freshProject()->child;
    WidgetNode* text = addRecord(panel, TYPE_TEXT_ENTRY, "Form1_Text1");
    text->slots[SLOT_EXPOSE] = "not offered, but kept";
    project.currentBlockName = "Change Callback";
    bindWidgetCode(*text);
    project.projectModified = project.sourceStale = 0;
    commitCode("lost", 1, 1);
    EXPECT_EQ(text->slots[SLOT_CHANGE], "") << "nothing was modified";
    EXPECT_EQ(project.projectModified, 0);
    codeEditing.codeModified = true;
    commitCode("a~b|c", 4, 6);
    EXPECT_EQ(text->slots[SLOT_CHANGE], "a~b|c");
    EXPECT_EQ(storedSize(text->slots[SLOT_CHANGE]), 7);
    EXPECT_EQ(text->slots[SLOT_EXPOSE], "not offered, but kept");
    EXPECT_EQ(codeEditing.caretStart[SLOT_LIST_POSITION], 4);
    EXPECT_EQ(codeEditing.caretEnd[SLOT_LIST_POSITION], 6);
    EXPECT_FALSE(codeEditing.codeModified);
    EXPECT_EQ(project.projectModified, 1);
    EXPECT_EQ(project.sourceStale, 1);

    project.currentBlockName = "Pre Action";
    codeEditing.codeModified = true;
    commitCode("call work", 2, 3);
    EXPECT_EQ(project.codeBlocks[BLOCK_PRE_ACTION], "call work");
    EXPECT_EQ(codeEditing.caretStart[5], 2);
    EXPECT_EQ(text->slots[SLOT_CHANGE], "a~b|c");
    EXPECT_EQ(shownCode(), "call work");
    project.currentBlockName = "no such name";
    EXPECT_EQ(&shownCode(), &codeEditing.workingSlots[SLOT_GENERAL]);
    codeEditing.codeModified = true;
    commitCode("nowhere", 1, 1);
    EXPECT_EQ(text->slots[SLOT_GENERAL], "") << "a name that matches nothing leaves the stores unchanged";
    freshProject();
}

TEST(CodeStores, EntriesAreEditedInACopyAndWrittenBackByName) {
    WidgetNode* form = freshProject();
    addEntry(*form, MENU_BAR, 0, "", "Form1_Menubar");
    addEntry(*form, MENU_ENTRY, 0, "File", "Form1_File_entry");
    addEntry(*form, MENU_PULL_DOWN, 1, "", "File_Pop1");
    addEntry(*form, MENU_ENTRY, 1, "Quit", "Form1_Quit_entry");
    addEntry(*form, MENU_SEPARATOR, 1, "##sep1", "separator1");
    EXPECT_EQ(offeredEntrySlots(*form), std::vector{ENTRY_GENERAL});
    copyEntriesForEditing(form);
    EXPECT_EQ(codeEditing.entryCopy.size(), 3U) << "entries and separators";
    EXPECT_FALSE(bindEntryCode(""));
    EXPECT_FALSE(bindEntryCode("File_Pop1"));
    project.currentBlockName = "Pre Action";
    ASSERT_TRUE(bindEntryCode("Form1_Quit_entry"));
    EXPECT_EQ(project.currentBlockName, "General Callback");
    EXPECT_EQ(codeEditing.target, EDIT_MENU_SLOT);
    codeEditing.codeModified = true;
    commitCode("stop", 1, 1);
    EXPECT_EQ(form->entries[3].slots[ENTRY_GENERAL], "stop");
    EXPECT_EQ(form->entries[1].slots[ENTRY_GENERAL], "");

    WidgetNode* tree = addRecord(form->child, TYPE_TREE_VIEW, "Form1_TreeView1");
    addEntry(*tree, MENU_ENTRY, 0, "leaf", "leaf");
    EXPECT_EQ(offeredEntrySlots(*tree),
              (std::vector{ENTRY_GENERAL, ENTRY_SELECT, ENTRY_CHANGE, ENTRY_DOUBLE_CLICK, ENTRY_DRAG_DROP}));
    copyEntriesForEditing(tree);
    ASSERT_TRUE(bindEntryCode("leaf"));
    EXPECT_EQ(codeEditing.target, EDIT_TREE_SLOT);
    project.currentBlockName = "Drag Drop Callback";
    codeEditing.codeModified = true;
    commitCode("drop", 1, 1);
    EXPECT_EQ(tree->entries[0].slots[ENTRY_DRAG_DROP], "drop");
    EXPECT_EQ(tree->entries[0].slots[ENTRY_DOUBLE_CLICK], "");
    freshProject();
}

TEST(CodeStores, ClearingEmptiesTheCopiesAndTheNextCommitTheStores) {
    WidgetNode* button = addRecord(freshProject()->child, TYPE_BUTTON, "Form1_Button1");
    for (std::string& slot : button->slots) slot = "code";
    for (std::string& block : project.codeBlocks) block = "block";
    bindWidgetCode(*button);
    clearShownCode();
    EXPECT_TRUE(codeEditing.codeModified);
    EXPECT_EQ(shownCode(), "");
    EXPECT_EQ(button->slots[SLOT_GENERAL], "code");
    clearAllCode();
    commitCode("", 1, 1);
    for (const std::string& slot : button->slots) EXPECT_EQ(slot, "");
    for (const std::string& block : project.codeBlocks) EXPECT_EQ(block, "");
    freshProject();
}

} // namespace
