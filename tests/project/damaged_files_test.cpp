// Bytes that no writer made: read without a crash, without a hang, without more memory than they deserve.
#include "project/defaults.h"
#include "project/files.h"
#include "project/tree.h"
#include "support/box_script.h"
#include "support/file_writer.h"
#include "support/files.h"
#include "support/sample_project.h"
#include "support/scratch.h"

#include <gtest/gtest.h>

#include <cstring>
#include <malloc.h>

namespace {

constexpr std::size_t HEAD = 100 + 6 * 25;                         // of a project file
constexpr std::size_t EMPTY_RECORD = 10 * 256 + 73 * 25 + 18 * 27; // with an empty text: one byte more

ExpectedBox incompleteBox(const std::string& path) {
    return {"File is incomplete",
            "The file " + path +
                " is incomplete or damaged.|What could be read of it has been loaded.||Please check it before you go "
                "on. The file itself is unchanged;|the first save over it keeps it beside the new one with \".bak\" "
                "behind its name."};
}

int countRecords() {
    int count = 0;
    for (WidgetNode* n = project.forms; n; n = walkList(n, project.forms)) ++count;
    return count;
}

int countNamed() {
    int count = 0;
    for (WidgetNode* n = project.forms; n; n = walkList(n, project.forms))
        if (n->type != TYPE_MAIN_PANEL && !n->name.empty()) ++count;
    return count;
}

class DamagedFile : public testing::Test {
protected:
    void load(const std::string& bytes, bool complete = false) {
        writeBytes(folder / "bad.wdp", bytes);
        BoxScript boxes;
        if (!complete) boxes.expect(incompleteBox(folder / "bad.wdp"));
        EXPECT_TRUE(loadProject(folder.path, "bad.wdp"));
    }
    std::string projectBytes() {
        for (WidgetNode* form = project.forms; form; form = form->next)
            form->fieldWidth = static_cast<int>(form->text.size());
        return encodeProject(FileImage(), project);
    }

    ScratchFolder folder;
};

TEST_F(DamagedFile, ACutFileLoadsAsFarAsItGoes) {
    WidgetNode* form = freshProject();
    addRecord(form->child, TYPE_BUTTON, "Form1_Button1")->bubbleHelp = "help";
    addRecord(form->child, TYPE_BUTTON, "Form1_Button2");
    project.codeBlocks[BLOCK_INITIALIZATION] = "start";
    project.currentBlockName = "Initialization";
    const std::string whole = projectBytes();
    const std::size_t panel = HEAD + EMPTY_RECORD + 1 + 6 + 7;
    const std::size_t first = panel + EMPTY_RECORD + 1 + 7;
    struct Row {
        std::size_t length;
        int records;
        const char* what;
    };
    const Row rows[] = {
        {100, 1, "nothing behind the header"},
        {HEAD, 1, "no record"},
        {panel, 1, "CHILD without a child"},
        {panel + 255, 1, "a name that is not wholly there"},
        {panel + 256, 2, "a name and no more"},
        {first + 256 + 10, 3, "in the second field"},
        {first + EMPTY_RECORD + 1 + 7, 3, "NEXT with nothing behind it"},
        {first + 2 * EMPTY_RECORD + 2 + 14 + 7, 4, "behind the forms"},
        {whole.size() - 51 - 25 * 9, 4, "in the blocks"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        load(whole.substr(0, row.length));
        EXPECT_EQ(countRecords(), row.records);
    }
    load(whole.substr(0, first + 256 + 12)); // `selected` is cut
    EXPECT_EQ(findName(project.forms, "Form1_Button1", false)->bubbleHelp, "");
    load(whole.substr(0, whole.size() - 1));
    EXPECT_EQ(project.currentBlockName, "General Callback") << "a field that is not wholly there counts as unread";
    EXPECT_EQ(project.codeBlocks[BLOCK_INITIALIZATION], "start");
    load(whole, true);
}

TEST_F(DamagedFile, EveryCutIsSurvivedAndCanBeSavedAndMended) {
    std::mt19937 random(7);
    randomProject(random, 2, 12);
    const std::string whole = projectBytes();
    BoxScript boxes;
    boxes.allowAll();
    for (std::size_t length = 0; length < whole.size(); length += 997) {
        writeBytes(folder / "cut.wdp", whole.substr(0, length));
        const bool loaded = loadProject(folder.path, "cut.wdp");
        ASSERT_EQ(loaded, length >= 100) << length;
        if (!loaded) continue;
        const int records = countRecords();
        ASSERT_TRUE(saveProject(folder.path, "again.wdp", true));
        ASSERT_TRUE(loadProject(folder.path, "again.wdp"));
        ASSERT_EQ(countRecords(), records) << length;
        mendProject();
        ASSERT_TRUE(project.forms);
        ASSERT_EQ(project.forms->type, TYPE_FORM);
        ASSERT_EQ(project.forms->child->type, TYPE_MAIN_PANEL);
    }
}

TEST_F(DamagedFile, AWordThatIsNoKeywordEndsEveryChain) {
    WidgetNode* form = freshProject();
    addRecord(form->child, TYPE_BUTTON, "Form1_Button1");
    std::string bytes = projectBytes();
    const std::size_t childEnd = HEAD + 3 * (EMPTY_RECORD + 1) + 6 + 2 * 7;
    ASSERT_STREQ(bytes.c_str() + childEnd, "END");
    bytes.replace(childEnd, 4, std::string("FIN\0", 4));
    bytes.erase(childEnd + 7, 14); // so that the colours stand right behind it
    load(bytes);
    EXPECT_EQ(countRecords(), 3);
    EXPECT_EQ(project.nextFormNumber, 2) << "the rest of the file is read on";
}

TEST_F(DamagedFile, SizesThatTheFileDoesNotHoldTakeNoMemory) {
    WidgetNode* form = freshProject();
    WidgetNode* array = addRecord(form->child, TYPE_TEXT_ARRAY, "Form1_TxtArray1");
    array->columnWidths = {1, 2, 3};
    array->rowHeights.clear();
    array->columns = 3;
    array->rows = 0;
    const std::string whole = projectBytes();
    const std::size_t record = HEAD + 2 * (EMPTY_RECORD + 1) + 6 + 2 * 7;
    ASSERT_STREQ(whole.c_str() + record, "Form1_TxtArray1");
    const std::size_t columns = record + 5 * 256 + 21 * 25;
    ASSERT_STREQ(whole.c_str() + columns, "3");
    const std::size_t slot = record + EMPTY_RECORD + 1 - 18 * 27;
    ASSERT_STREQ(whole.c_str() + slot, "2");
    const std::size_t lists =
        whole.find("General Callback") - 9 * 27 - 4 * 25 - 256 - 256 - 4 * 256 - 2 * 25 - 512 - 4 * 25;
    ASSERT_STREQ(whole.c_str() + lists, "1");
    for (const std::size_t at : {columns, columns + 25, slot, lists})
        for (const char* size : {"2000000000", "-2000000000", "99999999999999999999"}) {
            SCOPED_TRACE(std::to_string(at) + " " + size);
            std::string bytes = whole;
            bytes.replace(at, std::strlen(size) + 1, size, std::strlen(size) + 1);
            writeBytes(folder / "size.wdp", bytes);
            BoxScript boxes;
            boxes.allowAll();
            const struct mallinfo2 before = mallinfo2();
            ASSERT_TRUE(loadProject(folder.path, "size.wdp"));
            const struct mallinfo2 after = mallinfo2();
            EXPECT_LT(after.uordblks + after.hblkhd, before.uordblks + before.hblkhd + 20 * whole.size());
            ASSERT_TRUE(saveProject(folder.path, "size2.wdp", true));
            EXPECT_LT(readBytes(folder / "size2.wdp").size(), 20 * whole.size());
        }
}

TEST_F(DamagedFile, RecordsMayLieAsDeepAsTheFileIsLong) {
    constexpr int DEPTH = 30000;
    freshProject();
    WidgetNode* deepest = project.forms->child;
    for (int i = 0; i < DEPTH; ++i) deepest = addRecord(deepest, TYPE_PANEL, "");
    ASSERT_TRUE(saveProject(folder.path, "deep.wdp", true));
    BoxScript boxes;
    ASSERT_TRUE(loadProject(folder.path, "deep.wdp"));
    EXPECT_EQ(countRecords(), DEPTH + 2);
    const OwnedList copy = copyNode(project.forms, true);
    EXPECT_TRUE(copy->child);
    EXPECT_EQ(findName(project.forms, "none", true), nullptr);
    freshProject();
}

TEST_F(DamagedFile, RandomBytesAreSurvived) {
    std::mt19937 random(99);
    randomProject(random, 1, 26);
    const std::string project0 = projectBytes();
    std::vector<const WidgetNode*> records;
    makeDefaults();
    for (const OwnedList& record : defaultRecords) records.push_back(record.get());
    const std::string defaults0 = encodeDefaults(FileImage(), records);
    const std::string form0 = encodeForm(FileImage(), project.forms, 10, 10);
    BoxScript boxes;
    boxes.allowAll();
    const auto byte = [&](std::size_t below) {
        return std::uniform_int_distribution<std::size_t>(0, below - 1)(random);
    };
    for (int round = 0; round < 150; ++round) {
        const std::string* bases[] = {&project0, &form0, &defaults0};
        std::string bytes = *bases[round % 3];
        for (int i = 0; i < 40; ++i) bytes[20 + byte(bytes.size() - 20)] = static_cast<char>(byte(256));
        if (round % 5 == 0) bytes.erase(100 + byte(1000), byte(50));
        writeBytes(folder / "random.bin", bytes);
        if (round % 3 == 0) (void)loadProject(folder.path, "random.bin");
        if (round % 3 == 1) (void)insertForm(folder.path, "random.bin");
        if (round % 3 == 2) (void)loadDefaults(folder / "random.bin");
        ASSERT_TRUE(saveProject(folder.path, "out.wdp", true));
    }
    makeDefaults();
    freshProject();
}

TEST_F(DamagedFile, RecordsThatAnInsertedFormLosesAreNotCounted) {
    freshProject();
    ASSERT_TRUE(saveProject(folder.path, "project.wdp", true));
    freshProject()->name = "Other";
    BoxScript boxes;
    boxes.allowAll();
    (void)insertForm(folder.path, "project.wdp"); // another kind of file
    EXPECT_EQ(project.widgetCount, countNamed());
}

TEST_F(DamagedFile, TheFirstSaveOverItKeepsItBeside) {
    freshProject();
    const std::string cut = projectBytes().substr(0, 9000);
    load(cut);
    ASSERT_TRUE(saveProject(folder.path, "elsewhere.wdp", true));
    ASSERT_TRUE(saveProject(folder / ".", "bad.wdp", false)) << "the same file under another name";
    EXPECT_EQ(byteDifference(readBytes(folder / "bad.wdp.bak"), cut), "");
    const std::string first = readBytes(folder / "bad.wdp");
    project.forms->text = "changed";
    ASSERT_TRUE(saveProject(folder.path, "bad.wdp", false));
    EXPECT_EQ(byteDifference(readBytes(folder / "bad.wdp.bak"), cut), "") << "the second save keeps nothing";
    EXPECT_NE(readBytes(folder / "bad.wdp"), first);
}

TEST_F(DamagedFile, MendingTakesAwayWhatCannotBeShown) {
    WidgetNode* form = freshProject();
    addRecord(form->child, TYPE_BUTTON, "Form1_Button1");
    WidgetNode* panel = addRecord(form->child, TYPE_PANEL, "Form1_Panel1");
    addRecord(panel, TYPE_NONE, "Form1_None");
    addRecord(panel, TYPE_UNKNOWN, "Form1_Strange")->unknownCode = 2044;
    addRecord(form->child, TYPE_FORM, "Form1_Inner");
    addRecord(form->child, TYPE_SLIDER, "Form1_Slider1");
    addRecord(nullptr, TYPE_BUTTON, "Loose");
    panel->columns = 2000000000; // means nothing on a panel
    WidgetNode* array = addRecord(panel, TYPE_VALUE_ARRAY, "Form1_ValArray1");
    array->columns = 2000000000;
    array->rows = -5;
    array->columnWidths.clear();
    array->rowHeights.clear();
    addRecord(nullptr, TYPE_FORM, "Form2");
    writeBytes(folder / "bad.wdp", projectBytes());
    BoxScript boxes;
    ASSERT_TRUE(loadProject(folder.path, "bad.wdp")) << "read as it stands";
    EXPECT_EQ(countRecords(), 11);
    boxes.expect(incompleteBox(folder / "bad.wdp"));
    mendLoadedProject();
    std::string names;
    for (WidgetNode* n = project.forms; n; n = walkList(n, project.forms)) names += n->name + " ";
    EXPECT_EQ(names, "Form1 Form1_MainPanel Form1_Button1 Form1_Panel1 Form1_Strange Form1_ValArray1 Form1_Slider1 "
                     "Form2 Form2_MainPanel ");
    const WidgetNode* mended = findName(project.forms, "Form1_ValArray1", false);
    EXPECT_EQ(std::pair(mended->columns, mended->rows), std::pair(0, 0));
    EXPECT_EQ(findName(project.forms, "Form1_Panel1", false)->columns, 2000000000);
    mendLoadedProject();
}

} // namespace
