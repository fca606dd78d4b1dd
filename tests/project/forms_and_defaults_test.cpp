// Form files and the widget defaults: what is written, what is asked, what stays.
#include "project/colours.h"
#include "project/defaults.h"
#include "project/files.h"
#include "project/tree.h"
#include "support/box_script.h"
#include "support/file_writer.h"
#include "support/files.h"
#include "support/sample_project.h"
#include "support/scratch.h"

#include <gtest/gtest.h>

namespace {

void namedForms(int count) {
    freshProject();
    for (int i = 2; i <= count; ++i) newForm();
}

TEST(FormFile, HoldsTheActiveFormAndAllBehindIt) {
    const ScratchFolder folder;
    namedForms(4);
    findName(project.forms, "Form3_MainPanel", false)->selected = 1;
    project.snapGrid = 17;
    ASSERT_TRUE(saveForm(folder / "third.wdf"));
    EXPECT_EQ(byteDifference(readBytes(folder / "third.wdf"),
                             encodeForm(FileImage(), findForm(project.forms, "Form3"), 17, 17)),
              "");
    clearSelected(project.forms);
    freshProject();
    project.snapGrid = 17;
    const BoxScript boxes;
    WidgetNode* first = nullptr;
    EXPECT_EQ(insertForm(folder.path, "third", &first), 3);
    ASSERT_TRUE(first);
    EXPECT_EQ(first->name, "Form3");
    EXPECT_EQ(first->next->name, "Form4");
    EXPECT_EQ(project.widgetCount, 3);
    EXPECT_EQ(project.formFileName, "third.wdf");
    EXPECT_EQ(findName(project.forms, "Form4_MainPanel", false)->parent, first->next);
}

TEST(FormFile, RandomFormsComeBackEqual) {
    const ScratchFolder folder;
    const BoxScript boxes;
    std::mt19937 random(5);
    for (int round = 0; round < 5; ++round) {
        randomProject(random, 2, 40);
        project.gridMode = 0;
        project.snapGrid = 11;
        clearSelected(project.forms);
        project.forms->next->selected = 1;
        const std::string wanted = encodeChain(FileImage(), project.forms->next);
        ASSERT_TRUE(saveForm(folder / "some.wdf"));
        freshProject()->name = "Other";
        project.snapGrid = 11;
        WidgetNode* first = nullptr;
        ASSERT_NE(insertForm(folder.path, "some.wdf", &first), 0);
        EXPECT_EQ(byteDifference(encodeChain(FileImage(), first), wanted), "");
    }
}

TEST(FormFile, MismatchesAreAskedAboutAndRefusalsLeaveTheProject) {
    const std::string language = "Code type does not match project|Callback code blocks may need converting";
    const std::string snap = "Form Snap Grid does not match project snap grid|Placement of widgets may be affected";
    struct Row {
        const char* marks;
        char platform;
        int snapX;
        int snapY;
        std::vector<ExpectedBox> boxes;
        bool inserted;
    };
    const Row rows[] = {
        {"F90-s", 'w', 10, 10, {}, true},
        {"F90-w", 'x', 10, 10, {{"Incompatable form type", "Cannot insert a Windows form into an X project"}}, false},
        {"F90-s", 'x', 10, 10, {}, true},
        {"C-s", 'w', 10, 10, {{"Mismatch form type", language, ANSWER_CANCEL}}, false},
        {"C-s", 'w', 10, 10, {{"Mismatch form type", language, ANSWER_OK}}, true},
        {"F90-s", 'w', 10, 9, {{"Mismatch form type", snap, ANSWER_CANCEL}}, false},
        {"F77-s", 'w', 9, 10, {{"Mismatch form type", language}, {"Mismatch form type", snap, ANSWER_OK}}, true},
    };
    const ScratchFolder folder;
    for (const Row& row : rows) {
        namedForms(2);
        FileImage image;
        image.marks = row.marks;
        const std::string bytes = encodeForm(image, project.forms->next, row.snapX, row.snapY);
        writeBytes(folder / "form.wdf", bytes);
        freshProject();
        project.projectPlatform = row.platform;
        BoxScript boxes;
        for (const ExpectedBox& box : row.boxes) boxes.expect(box);
        EXPECT_EQ(insertForm(folder.path, "form.wdf") != 0, row.inserted) << row.marks;
        EXPECT_EQ(project.forms->next != nullptr, row.inserted) << row.marks;
        EXPECT_EQ(project.nextFormNumber, row.inserted ? 3 : 2);
    }
}

TEST(FormFile, AFormOfANameThatIsThereIsTakenBack) {
    const ScratchFolder folder;
    namedForms(2);
    ASSERT_TRUE(saveForm(folder / "both.wdf"));
    const int count = project.widgetCount;
    BoxScript boxes({{"Invalid Form Name", "Form of same name alredy exists in this project"}});
    EXPECT_EQ(insertForm(folder.path, "both.wdf"), 0);
    EXPECT_EQ(project.widgetCount, count);
    EXPECT_EQ(project.forms->next->next, nullptr);
    boxes.expect({"Error opening file", "Cannot open Form file :none.wdf"});
    EXPECT_EQ(insertForm(folder.path, "none"), 0);
    boxes.expect({"Error saving file", "File to save to could not be opened or created"});
    EXPECT_FALSE(saveForm(folder / "no folder/x.wdf"));
}

TEST(Defaults, BuiltInRecordsOfEveryType) {
    freshProject();
    struct Row {
        WidgetType type;
        int width, height, tabList, initialState, justify, subType, size;
    };
    const Row rows[] = {
        {TYPE_FORM, 400, 550, 1, 0, -1, 0, 0},          {TYPE_BUTTON, 75, 25, 1, 1, 0, 0, 100},
        {TYPE_TOGGLE, 100, 25, 1, 1, -1, 0, 100},       {TYPE_TEXT_ENTRY, 100, 25, 1, 1, -1, 0, 100},
        {TYPE_TEXT_LABEL, 100, 25, 1, 1, -1, 0, 100},   {TYPE_VALUE_ENTRY, 100, 25, 1, 1, -1, 0, 100},
        {TYPE_VALUE_LABEL, 100, 25, 1, 1, -1, 0, 100},  {TYPE_ICON, 50, 50, 1, 1, -1, 7, 100},
        {TYPE_LIST_BOX, 125, 75, 1, 1, -1, 0, 100},     {TYPE_SLIDER, 75, 25, 1, 1, -1, 32764, 100},
        {TYPE_PANEL, 175, 125, 1, 1, -1, 6, 0},         {TYPE_COMBO_BOX, 125, 100, 1, 1, -1, 0, 0},
        {TYPE_GRAPHICS_FRAME, 125, 75, 1, 1, -1, 0, 0}, {TYPE_TEXT_ARRAY, 150, 150, 0, 1, -1, 4, 0},
        {TYPE_VALUE_ARRAY, 150, 150, 0, 1, -1, 4, 0},   {TYPE_TOOL_BAR, -1, 0, 1, 1, -1, 0, 0},
        {TYPE_TAB_BOX, 175, 125, 1, 1, -1, 6, 0},       {TYPE_GAUGE, 75, 25, 1, 1, -1, 0, 0},
        {TYPE_PROGRESS_BAR, 75, 25, 1, 1, -1, 0, 0},    {TYPE_TTY_ENTRY, 150, 150, 1, 1, -1, 0, 80},
        {TYPE_TREE_VIEW, 150, 150, 1, 1, -1, 0, 0},     {TYPE_TABLE_BOX, 225, 100, 1, 1, -1, 0, 0},
        {TYPE_TOOL_SEPARATOR, 0, 0, 1, 1, -1, 1, 0},    {TYPE_PANE, 150, 150, 1, 1, -1, 0, 0},
    };
    static_assert(std::size(rows) == DEFAULT_RECORDS);
    for (const Row& row : rows) {
        const WidgetNode& n = *defaultRecord(row.type);
        EXPECT_EQ(
            std::vector<int>({n.type, n.width, n.height, n.tabList, n.initialState, n.justify, n.subType, n.size}),
            std::vector<int>(
                {row.type, row.width, row.height, row.tabList, row.initialState, row.justify, row.subType, row.size}));
        EXPECT_EQ(n.fontFace, "MS Sans Serif");
        EXPECT_EQ(std::vector({n.hpos, n.vpos, n.pointSize, n.buildInfo}), std::vector({-1, 1, 10, 1}));
    }
    EXPECT_EQ(defaultRecord(TYPE_MAIN_PANEL), nullptr);
    EXPECT_EQ(defaultRecord(TYPE_RADIO_BOX), nullptr);
    EXPECT_EQ(defaultRecord(TYPE_TABLE_BOX)->columnWidths, std::vector<int>(5, 44));
    EXPECT_EQ(defaultRecord(TYPE_VALUE_ARRAY)->rowHeights, std::vector<int>(10, 22));
}

TEST(Defaults, AFileComesBackAndMovesItsColoursIntoTheProject) {
    const ScratchFolder folder;
    freshProject();
    for (int i = FIXED_COLOURS; i < COLOURS; ++i) host.defineColour(i, 0, 0, 0);
    colourMarks = ColourMarks();
    defaultRecord(TYPE_PANEL)->colour3 = defaultsColourIndex(0.25F, 0, 0);
    defaultRecord(TYPE_PANEL)->slots[SLOT_GENERAL] = "call ~x";
    ASSERT_TRUE(saveDefaults(folder / "mine.wdd"));
    FileImage image;
    image.colours[705] = 0.25F;
    std::vector<const WidgetNode*> records;
    for (const OwnedList& record : defaultRecords) records.push_back(record.get());
    EXPECT_EQ(byteDifference(readBytes(folder / "mine.wdd"), encodeDefaults(image, records)), "");

    makeDefaults();
    for (int i = FIXED_COLOURS; i < COLOURS; ++i) host.defineColour(i, 0, 0, 0);
    colourMarks = ColourMarks();
    const BoxScript boxes;
    ASSERT_TRUE(loadDefaults(folder / "mine.wdd"));
    EXPECT_EQ(defaultRecord(TYPE_PANEL)->colour3, 20);
    EXPECT_EQ(defaultRecord(TYPE_PANEL)->slots[SLOT_GENERAL], "call ~x");
    EXPECT_EQ(colourMarks.colourTop, 20);
    EXPECT_EQ(colourMarks.defaultsColourBottom, 255);
    for (int i = FIXED_COLOURS; i < COLOURS; ++i) host.defineColour(i, 0, 0, 0);
    colourMarks = ColourMarks();
    makeDefaults();
}

TEST(Defaults, WhatCannotBeLoadedOrSavedIsToldAndStartUpGoesOn) {
    const ScratchFolder folder;
    freshProject();
    WidgetNode* button = defaultRecord(TYPE_BUTTON);
    BoxScript boxes({{"Error loading widget defaults file", "File to load to could not be opened"}});
    EXPECT_FALSE(loadDefaults(folder / "none.wdd"));
    EXPECT_EQ(defaultRecord(TYPE_BUTTON), button) << "the old set stays";
    boxes.expect({"Error saving file", "File to save to could not be opened or created"});
    EXPECT_FALSE(saveDefaults(folder / "none/x.wdd"));
    button->width = 999;
    loadStartupDefaults(folder.path);
    EXPECT_EQ(defaultRecord(TYPE_BUTTON)->width, 75);
    defaultRecord(TYPE_BUTTON)->width = 998;
    ASSERT_TRUE(saveDefaults(folder / "wdesign.wdd"));
    makeDefaults();
    loadStartupDefaults(folder.path);
    EXPECT_EQ(defaultRecord(TYPE_BUTTON)->width, 998);
    makeDefaults();
}

} // namespace
