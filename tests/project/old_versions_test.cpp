// Files of every old version come out as the records of today.
#include "project/defaults.h"
#include "project/files.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "support/box_script.h"
#include "support/file_writer.h"
#include "support/files.h"
#include "support/sample_project.h"
#include "support/scratch.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

constexpr int VERSIONS[] = {10, 20, 21, 30, 40, 50, 51, 70, 71, 75, 80};

// A project with records whose every field differs from what it has when absent.
void fillProject() {
    freshProject();
    WidgetNode* panel = project.forms->child;
    struct Row {
        WidgetType type;
        const char* name;
        int code = 0; // of a type that went with an old version
    };
    const Row records[] = {
        {TYPE_BUTTON, "Form1_Button1"},        {TYPE_TOGGLE, "Form1_Toggle1"},
        {TYPE_TEXT_ENTRY, "Form1_Text1"},      {TYPE_TEXT_LABEL, "Form1_Text2"},
        {TYPE_PANEL, "Form1_Panel1"},          {TYPE_RADIO_BOX, "Form1_Radio1"},
        {TYPE_TEXT_ARRAY, "Form1_TxtArray1"},  {TYPE_VALUE_ARRAY, "Form1_ValArray1"},
        {TYPE_TOOL_BAR, "Form1_ToolBar1"},     {TYPE_LIST_BOX, "Form1_List1"},
        {TYPE_UNKNOWN, "Form1_Icon1", 2011},   {TYPE_ICON, "Form1_Icon2"},
        {TYPE_UNKNOWN, "Form1_Slider1", 2014}, {TYPE_UNKNOWN, "Form1_Slider2", 2020},
        {TYPE_UNKNOWN, "Form1_Slider3", 2021},
    };
    for (const auto& [type, name, code] : records) addRecord(panel, type, name)->unknownCode = code;
    for (WidgetNode* n = project.forms; n; n = walkList(n, project.forms)) {
        n->text = "Gee~text";
        n->fieldWidth = 8;
        n->icon = "old.ico";
        n->bubbleHelp = "help";
        n->justify = 1;
        n->borderType = 3;
        n->titleFlag = 10;
        n->colour2 = n->colour3 = 0;
        n->yLabelsWidth = n->xLabelsHeight = 3;
        n->xLabels = n->yLabels = "lab";
        n->alignXLabels = n->alignYLabels = 1;
        n->activeOnInit = 1;
        n->iconSize = 48;
        n->initialPosition = 3;
        n->onToolbar = 1;
        n->initialState = 8;
        n->scrollMode = 32764;
        n->fontFace = "Times";
        n->pointSize = 24;
        n->charSet = 5;
        n->bold = n->italic = n->underline = n->strikeout = n->contents = 1;
        n->closeIcon = n->openIcon = "icon";
        n->displayIcons = n->helpJustify = n->cellBackground = n->cellBorder = n->readOnly = 1;
        n->oleInserts = 0;
        n->formHidden = n->autoUrl = 1;
        n->tabAction = 2;
        n->tabList = 7;
        for (std::size_t i = 0; i < n->slots.size(); ++i) n->slots[i] = "a~b^c" + std::to_string(i);
    }
    addEntry(*project.forms, MENU_BAR, 0, "", "Form1_Menubar");
    addEntry(*project.forms, MENU_ENTRY, 0, "File", "Form1_File");
    for (MenuEntryRec& e : project.forms->entries) {
        e.help = e.icon1 = e.icon2 = e.icon3 = "x";
        for (std::string& slot : e.slots) slot = "a~b^c";
    }
    addListEntry(*findName(project.forms, "Form1_List1", false), "row", "icon");
    for (CodeBlock& block : project.codeBlocks) block = "call~it^now";
    project.fileLists[LIST_SOURCES] = {"one.f90", "two.f90", ""};
    project.fileLists[LIST_MODULES] = {"mods", ""};
    project.sourceFileTimes = {111, -222, 0};
    project.sourceDir = "/src";
    project.sourceName = "main.f90";
    project.exeTime = -5;
    project.sourceStale = 0;
    project.currentBlockName = "Pre Action";
    project.counters.fill(4);
    project.gridHoriz = 40;
    project.gridVert = 30;
    project.gridMode = 1;
    project.scalable = 1;
    project.snapOn = 0;
    project.snapGrid = 13;
    project.compilerSwitches = "-O";
    project.linkerSwitches = "-s";
}

WidgetNode* record(const char* name) {
    WidgetNode* node = findName(project.forms, name, false);
    EXPECT_TRUE(node) << name;
    return node;
}

class OldVersion : public testing::TestWithParam<int> {
protected:
    void SetUp() override {
        version = GetParam();
        fillProject();
        image.version = version;
        image.marks = "F77-w";
        image.padding = '\xa5';
        image.strayGridMode = 1;
        image.colours[3] = 1; // red of index 21
        writeBytes(folder / "old.wdp", encodeProject(image, project));
        freshProject();
    }
    void load() {
        BoxScript boxes;
        if (version == 10)
            boxes.expect({"Menu Functionality", "Do you want to utilize new Windows functionality?", ANSWER_YES});
        ASSERT_TRUE(loadProject(folder.path, "old.wdp"));
    }
    // What a field holds, with what it has when the version lacks it.
    template <typename T> T since(int first, T held, T absent) { return version >= first ? held : absent; }

    int version = 0;
    FileImage image;
    ScratchFolder folder;
};

TEST_P(OldVersion, EveryFieldIsReadOrTakesItsValue) {
    load();
    for (const char* name : {"Form1_Button1", "Form1_Toggle1", "Form1_Text2", "Form1_TxtArray1", "Form1_List1"}) {
        SCOPED_TRACE(name);
        const WidgetNode& n = *record(name);
        const bool array = n.type == TYPE_TEXT_ARRAY;
        EXPECT_EQ(n.text, "Gee~text");
        EXPECT_EQ(n.bubbleHelp, since<std::string>(20, "help", ""));
        EXPECT_EQ(n.yLabelsWidth, since(20, 3, 10));
        EXPECT_EQ(n.xLabelsHeight, since(20, 3, 10));
        EXPECT_EQ(n.xLabels, since<std::string>(20, "lab", ""));
        EXPECT_EQ(n.alignYLabels, since(20, 1, 0));
        EXPECT_EQ(n.activeOnInit, since(20, 1, 0));
        EXPECT_EQ(n.iconSize, since(20, 48, 25));
        EXPECT_EQ(n.initialPosition, since(20, 3, 1));
        EXPECT_EQ(n.onToolbar, since(20, 1, 0));
        EXPECT_EQ(n.initialState, since(40, 8, 1));
        EXPECT_EQ(n.scrollMode, since(30, 32764, 0));
        EXPECT_EQ(n.fontFace, since<std::string>(30, "Times", "MS Sans Serif"));
        EXPECT_EQ(n.pointSize, since(30, 24, 10));
        EXPECT_EQ(n.charSet, since(30, 5, 0));
        EXPECT_EQ(n.strikeout, since(40, 1, 0));
        EXPECT_EQ(n.contents, since(40, 1, 0));
        EXPECT_EQ(n.closeIcon, since<std::string>(50, "icon", ""));
        EXPECT_EQ(n.oleInserts, since(50, 0, 1));
        EXPECT_EQ(n.readOnly, since(50, 1, 0));
        EXPECT_EQ(n.formHidden, since(70, 1, 0));
        EXPECT_EQ(n.autoUrl, since(70, 1, 0));
        EXPECT_EQ(n.tabAction, since(70, 2, 1));
        EXPECT_EQ(n.tabList, since(70, 7, array ? 0 : 1));
    }
    EXPECT_EQ(project.forms->initialState, since(30, 8, 0)) << "forms keep theirs";
}

TEST_P(OldVersion, OldLooksAndTypesAreUpgraded) {
    load();
    EXPECT_EQ(record("Form1_Button1")->justify, since(50, 1, 0));
    EXPECT_EQ(record("Form1_Toggle1")->justify, 1);
    EXPECT_EQ(record("Form1_TxtArray1")->borderType, since(50, 3, 2));
    EXPECT_EQ(record("Form1_ValArray1")->borderType, since(50, 3, 2));
    EXPECT_EQ(record("Form1_ToolBar1")->titleFlag, since(30, 10, 1));
    EXPECT_EQ(record("Form1_Button1")->titleFlag, 10);
    EXPECT_EQ(record("Form1_Panel1")->scrollMode, since(30, 32764, -1));
    EXPECT_EQ(record("Form1_Radio1")->scrollMode, since(30, 32764, -1));
    EXPECT_EQ(record("Form1_Text1")->scrollMode, since(30, 32764, 1));
    EXPECT_EQ(record("Form1_Text2")->borderType, since(40, 3, 0));
    EXPECT_EQ(record("Form1_Text2")->colour2, since(40, 0, 12));
    EXPECT_EQ(record("Form1_Text2")->colour3, since(40, 0, 16));
    EXPECT_EQ(record("Form1_Text1")->colour2, 0);
    EXPECT_EQ(record("Form1_Text1")->colour3, since(40, 0, 16));
    for (const char* slider : {"Form1_Slider1", "Form1_Slider2", "Form1_Slider3"})
        EXPECT_EQ(record(slider)->type == TYPE_SLIDER, version < 30) << slider;
    for (const auto& [name, subType] : {std::pair("Form1_Icon1", 1), std::pair("Form1_Icon2", 7)}) {
        if (version >= 30) continue;
        const WidgetNode& icon = *record(name);
        EXPECT_EQ(icon.type, TYPE_ICON);
        EXPECT_EQ(icon.subType, subType);
        EXPECT_EQ(icon.icon, "Gee~text");
        EXPECT_EQ(icon.text, "");
    }
    if (version >= 30) {
        EXPECT_EQ(codeOf(*record("Form1_Icon1")), 2011);
        EXPECT_EQ(record("Form1_Icon2")->icon, "old.ico");
    }
}

TEST_P(OldVersion, CodeIsReadIntoItsSlotsAndBlocks) {
    load();
    const std::string code = version < 71 ? "a|b\tc" : "a~b^c";
    const int firsts[] = {10, 10, 10, 30, 30, 30, 30, 30, 10, 40, 40, 40, 40, 40, 40, 40, 50, 70};
    const WidgetNode& button = *record("Form1_Button1");
    for (int slot = 0; slot < WIDGET_SLOTS; ++slot)
        EXPECT_EQ(button.slots[slot], since<std::string>(firsts[slot], code + std::to_string(slot), "")) << slot;

    ASSERT_EQ(project.forms->entries.size(), 2U);
    EXPECT_EQ(project.forms->entries[0].name, "Form1_Menubar");
    const MenuEntryRec& entry = project.forms->entries[1];
    EXPECT_EQ(entry.label, "File");
    EXPECT_EQ(entry.kind, MENU_ENTRY);
    EXPECT_EQ(entry.help, since<std::string>(21, "x", ""));
    EXPECT_EQ(entry.icon3, since<std::string>(50, "x", ""));
    EXPECT_EQ(entry.slots[ENTRY_GENERAL], code);
    EXPECT_EQ(entry.slots[ENTRY_DRAG_DROP], since<std::string>(50, code, ""));
    const std::vector<ListEntryRec>& rows = record("Form1_List1")->listEntries;
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].text, "row");
    EXPECT_EQ(rows[0].icon, since<std::string>(50, "icon", ""));

    const std::string block = version < 71 ? "call|it\tnow" : "call~it^now";
    const int blockFirsts[] = {30, 51, 10, 10, 20, 10, 30, 10, 21};
    for (int i = 0; i < CODE_BLOCKS; ++i)
        EXPECT_EQ(project.codeBlocks[i], since<std::string>(blockFirsts[i], block, "")) << i;
    EXPECT_EQ(project.currentBlockName, since<std::string>(70, "Pre Action", "General Callback"));
}

TEST_P(OldVersion, GridSnapAndCountersFollowTheVersion) {
    load();
    EXPECT_EQ(project.gridMode, 1);
    EXPECT_EQ(project.gridHoriz, since(40, 40, 32));
    EXPECT_EQ(project.gridVert, since(40, 30, 24));
    EXPECT_EQ(project.gridPixelX, since(40, 20, 25));
    EXPECT_EQ(project.gridPixelY, since(40, 20, 25));
    EXPECT_EQ(project.scalable, since(40, 1, 0));
    EXPECT_EQ(project.snapOn, since(30, 0, 1));
    EXPECT_EQ(project.snapGrid, since(30, 13, 25));
    EXPECT_EQ(project.counters[COUNTER_BUTTON], 4);
    EXPECT_EQ(project.counters[COUNTER_GRAPHICS], 4);
    EXPECT_EQ(project.counters[COUNTER_TAB_DIA_BOX], since(20, 4, 1));
    EXPECT_EQ(project.counters[COUNTER_TABLE_BOX], since(30, 4, 1));
    EXPECT_EQ(project.counters[COUNTER_PANE], since(71, 4, 1));
    EXPECT_EQ(project.nextFormNumber, 2);
    float red = 0;
    float green = 0;
    float blue = 0;
    host.enquireColour(21, red, green, blue);
    EXPECT_FLOAT_EQ(red, 1);
}

TEST_P(OldVersion, CompileDataBecomesTables) {
    load();
    const FileList sources = since<FileList>(20, {"one.f90", "two.f90", ""}, {""});
    EXPECT_EQ(project.fileLists[LIST_SOURCES], sources);
    EXPECT_EQ(project.fileLists[LIST_MODULES], since<FileList>(20, {"mods", ""}, {""}));
    EXPECT_EQ(project.fileLists[LIST_OBJECTS], FileList{""});
    ASSERT_EQ(project.sourceFileTimes.size(), sources.size());
    if (version >= 20) {
        EXPECT_EQ(project.sourceFileTimes[1], since<std::int64_t>(40, -222, 0));
    }
    EXPECT_EQ(project.compilerSwitches, since<std::string>(20, "-O", ""));
    EXPECT_EQ(project.linkerSwitches, since<std::string>(30, "-s", ""));
    EXPECT_EQ(project.exeTime, since<std::int64_t>(40, -5, 0));
    EXPECT_EQ(project.sourceDir, since<std::string>(30, "/src", ""));
    EXPECT_EQ(project.sourceName, since<std::string>(40, "main.f90", ""));
    EXPECT_EQ(project.sourceStale, since(40, 0, 1));
}

TEST_P(OldVersion, PlatformAndLanguageComeFromTheHeader) {
    load();
    EXPECT_EQ(project.fileVersion, version);
    EXPECT_EQ(project.projectLanguage, 77);
    EXPECT_EQ(project.projectPlatform, 'w');
    EXPECT_EQ(project.projectModified, version == 10 ? 1 : 0);
}

TEST_P(OldVersion, FormsAreReadFromVersion30On) {
    fillProject();
    const std::string bytes = encodeForm(image, project.forms, 13, 13);
    writeBytes(folder / "old.wdf", bytes);
    WidgetNode* mine = freshProject();
    mine->name = "Mine";
    mine->child->name = "Mine_MainPanel";
    project.projectLanguage = 77;
    project.snapGrid = 13;
    if (version < 30) {
        const BoxScript boxes({{"Error opening file", "ORBAWIDG Designer file is post version 7.0"}});
        EXPECT_EQ(insertForm(folder.path, "old"), 0);
        return;
    }
    const BoxScript boxes;
    WidgetNode* first = nullptr;
    project.codeBlocks[0] = "keep~this^";
    project.forms->slots[SLOT_GENERAL] = "and~this^";
    ASSERT_EQ(insertForm(folder.path, "old", &first), 3);
    ASSERT_EQ(first, project.forms->next);
    EXPECT_EQ(first->name, "Form1");
    EXPECT_EQ(record("Form1_Button1")->slots[SLOT_GENERAL], version < 71 ? "a|b\tc0" : "a~b^c0");
    EXPECT_EQ(project.codeBlocks[0], "keep~this^");
    EXPECT_EQ(project.forms->slots[SLOT_GENERAL], "and~this^");
    EXPECT_EQ(project.gridMode, 0) << "the strayed grid mode of a form's records changes nothing";
    EXPECT_EQ(project.widgetCount, 1 + 16);
}

TEST_P(OldVersion, DefaultsAreReadFromVersion30On) {
    if (version < 30) return;
    std::vector<const WidgetNode*> records;
    makeDefaults();
    for (const OwnedList& n : defaultRecords) {
        n->width = 321;
        n->slots[SLOT_GENERAL] = "a~b";
        records.push_back(n.get());
    }
    writeBytes(folder / "old.wdd", encodeDefaults(image, records));
    freshProject();
    const BoxScript boxes;
    ASSERT_TRUE(loadDefaults(folder / "old.wdd"));
    EXPECT_EQ(defaultRecord(TYPE_FORM)->width, 321);
    EXPECT_EQ(defaultRecord(TYPE_FORM)->slots[SLOT_GENERAL], "a~b") << "code of defaults is left alone";
    EXPECT_EQ(defaultRecord(TYPE_GAUGE)->width, 321);
    EXPECT_EQ(defaultRecord(TYPE_TREE_VIEW)->width, since(40, 321, 150));
    EXPECT_EQ(defaultRecord(TYPE_TABLE_BOX)->width, since(40, 321, 225));
    EXPECT_EQ(defaultRecord(TYPE_TOOL_SEPARATOR)->width, since(50, 321, 0));
    EXPECT_EQ(defaultRecord(TYPE_PANE)->width, since(70, 321, 150));
    EXPECT_EQ(defaultRecord(TYPE_TABLE_BOX)->columnWidths.size(), 5u);
    makeDefaults();
}

INSTANTIATE_TEST_SUITE_P(All, OldVersion, testing::ValuesIn(VERSIONS),
                         [](const auto& info) { return "V" + std::to_string(info.param); });

TEST(OldVersions, TheFirstVersionAsksForItsPlatform) {
    const ScratchFolder folder;
    freshProject();
    FileImage image;
    image.version = 10;
    image.marks = "F90-w";
    writeBytes(folder / "v1.wdp", encodeProject(image, project));
    const BoxScript boxes({{"Menu Functionality", "Do you want to utilize new Windows functionality?", ANSWER_NO}});
    ASSERT_TRUE(loadProject(folder.path, "v1.wdp"));
    EXPECT_EQ(project.projectPlatform, 'x');
    EXPECT_EQ(project.projectModified, 0);
    EXPECT_EQ(project.gridMode, 1);
}

TEST(OldVersions, PixelProjectsOfWindowsGetTheirOwnSnap) {
    struct Row {
        int version;
        const char* marks;
        int strayed;
        int snapOn;
        int snapGrid;
        int horiz;
    };
    const Row rows[] = {{20, "F90-w", 0, 0, 24, 32},
                        {20, "F90-x", 0, 1, 25, 32},
                        {21, "F90-w", 1, 1, 25, 32},
                        {30, "F90-w", 0, 1, 10, 36},
                        {30, "F90-w", 1, 1, 10, 32}};
    const ScratchFolder folder;
    for (const Row& row : rows) {
        const BoxScript boxes;
        freshProject();
        FileImage image;
        image.version = row.version;
        image.marks = row.marks;
        image.strayGridMode = row.strayed;
        writeBytes(folder / "snap.wdp", encodeProject(image, project));
        ASSERT_TRUE(loadProject(folder.path, "snap.wdp"));
        EXPECT_EQ(project.snapOn, row.snapOn) << row.version;
        EXPECT_EQ(project.snapGrid, row.snapGrid) << row.version;
        EXPECT_EQ(project.gridHoriz, row.horiz) << row.version;
        EXPECT_EQ(project.gridPixelX, row.strayed ? 25 : 22) << "the default grid is in force in pixel mode";
    }
}

TEST(OldVersions, AFieldWidthOfZeroBecomesTheLengthOfTheText) {
    const ScratchFolder folder;
    const BoxScript boxes;
    WidgetNode* form = freshProject();
    WidgetNode* entry = addRecord(form->child, TYPE_TEXT_ENTRY, "Form1_Text1");
    entry->text = "hello";
    entry->fieldWidth = 0;
    FileImage image;
    image.version = 21;
    writeBytes(folder / "width.wdp", encodeProject(image, project));
    ASSERT_TRUE(loadProject(folder.path, "width.wdp"));
    EXPECT_EQ(project.forms->child->child->fieldWidth, 5);
    EXPECT_EQ(project.forms->child->child->text, "hello");
}

} // namespace
