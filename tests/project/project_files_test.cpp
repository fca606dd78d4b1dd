// Project files of the current version: bytes, and equal records after a load.
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

#include <cstring>

namespace {

std::string expectedBytes() { return encodeProject(FileImage(), project); }

TEST(ProjectFile, RandomProjectsOfEveryTypeAreWrittenFieldByFieldAndComeBackEqual) {
    const BoxScript boxes;
    const ScratchFolder folder;
    std::mt19937 random(20260301);
    for (int round = 0; round < 25; ++round) {
        randomProject(random, 1 + round % 4, 60);
        const int count = project.widgetCount;
        const std::string wanted = expectedBytes();
        ASSERT_TRUE(saveProject(folder.path, "some.wdp", false));
        const std::string saved = readBytes(folder / "some.wdp");
        ASSERT_EQ(byteDifference(saved, wanted), "") << "round " << round;

        freshProject();
        ASSERT_TRUE(loadProject(folder.path, "some"));
        EXPECT_EQ(project.widgetCount, count);
        EXPECT_EQ(project.projectModified, 0);
        EXPECT_EQ(project.projectName, "some.wdp");
        EXPECT_EQ(project.projectTitle, "some");
        ASSERT_EQ(byteDifference(expectedBytes(), wanted), "") << "round " << round;
        ASSERT_TRUE(saveProject(folder.path, "again.wdp", true));
        ASSERT_EQ(byteDifference(readBytes(folder / "again.wdp"), wanted), "") << "round " << round;
    }
}

TEST(ProjectFile, TheSmallestProjectHasTheKnownLayout) {
    const ScratchFolder folder;
    freshProject();
    ASSERT_TRUE(saveProject(folder.path, "small.wdp", false));
    const std::string bytes = readBytes(folder / "small.wdp");
    EXPECT_STREQ(bytes.c_str(), "ORBAWIDGDESIGNV8.0-F90-s");
    EXPECT_STREQ(bytes.c_str() + 100, "36");
    EXPECT_STREQ(bytes.c_str() + 100 + 6 * 25, "Form1");
    // A record without text and code: 10 strings, 73 numbers, 18 slots of 27 bytes.
    const std::size_t empty = 10 * 256 + 73 * 25 + 18 * 27;
    const std::size_t form = 100 + 6 * 25;
    const std::size_t panel = form + empty + 1 + std::string("Form 1").size() + 7;
    EXPECT_STREQ(bytes.c_str() + panel - 7, "CHILD");
    EXPECT_STREQ(bytes.c_str() + panel, "Form1_MainPanel");
    EXPECT_STREQ(bytes.c_str() + panel + empty + 1, "END");
    EXPECT_STREQ(bytes.c_str() + panel + empty + 8, "ENDFIL");
    EXPECT_STREQ(bytes.c_str() + bytes.size() - 51, "General Callback");
}

TEST(ProjectFile, HeaderMarksFollowLanguagePlatformAndBuffering) {
    struct Row {
        int language;
        char platform;
        int buffering;
        const char* marks;
        char platformRead;
    };
    const Row rows[] = {
        {90, 'w', 1, "F90-w", 'w'}, {90, 'g', 1, "F90-g", 'g'}, {90, 'x', 1, "F90-x", 'x'}, {90, 'w', 0, "F90-s", 'w'},
        {77, 'w', 1, "F77-w", 'w'}, {77, 'g', 1, "F77-g", 'g'}, {77, 'x', 1, "F77-x", 'x'}, {77, 'x', 0, "F77-x", 'x'},
        {99, 'w', 1, "C-w", 'w'},   {99, 'g', 1, "C-g", 'g'},   {99, 'x', 1, "C-x", 'x'},   {99, 'g', 0, "C-g", 'g'},
    };
    const BoxScript boxes;
    const ScratchFolder folder;
    for (const Row& row : rows) {
        freshProject();
        project.projectLanguage = row.language;
        project.projectPlatform = row.platform;
        project.doubleBuffering = row.buffering;
        EXPECT_EQ(headerString(), std::string("ORBAWIDGDESIGNV8.0-") + row.marks);
        ASSERT_TRUE(saveProject(folder.path, "marks.wdp", false));
        freshProject();
        ASSERT_TRUE(loadProject(folder.path, "marks.wdp"));
        EXPECT_EQ(project.projectLanguage, row.language) << row.marks;
        EXPECT_EQ(project.projectPlatform, row.platformRead) << row.marks;
        EXPECT_EQ(project.doubleBuffering, 0);
    }
}

TEST(ProjectFile, TextTakesAsManyBytesAsTheFieldWidthAsksFor) {
    struct Row {
        WidgetType type;
        int fieldWidth;
        std::size_t length;
        int widthSaved;
        std::size_t bytes;
    };
    const Row rows[] = {
        {TYPE_TEXT_LABEL, 40000, 5, 40000, 32769},
        {TYPE_TEXT_ENTRY, -30, 5, -30, 31},
        {TYPE_TEXT_ENTRY, 3, 12, 3, 4}, // the text is cut to the width
        {TYPE_BUTTON, 77, 5, 5, 6},
        {TYPE_FORM, 0, 32768, 32768, 32769},
        {TYPE_LIST_BOX, 9, 20, 9, 10},
        {TYPE_TEXT_LABEL, -2147483647 - 1, 2, -2147483647 - 1, 32769},
    };
    const BoxScript boxes;
    const ScratchFolder folder;
    std::size_t empty = 0;
    for (const Row& row : rows) {
        WidgetNode* form = freshProject();
        WidgetNode* node = row.type == TYPE_FORM ? form : addRecord(form->child, row.type, "Form1_It");
        node->text.assign(row.length, 'x');
        node->fieldWidth = row.fieldWidth;
        ASSERT_TRUE(saveProject(folder.path, "text.wdp", false));
        if (empty == 0) empty = readBytes(folder / "text.wdp").size() - row.bytes;
        if (row.type != TYPE_FORM) {
            EXPECT_EQ(readBytes(folder / "text.wdp").size(), empty + row.bytes);
        }
        EXPECT_EQ(node->fieldWidth, row.widthSaved);
        ASSERT_TRUE(loadProject(folder.path, "text.wdp"));
        node = row.type == TYPE_FORM ? project.forms : project.forms->child->child;
        EXPECT_EQ(node->fieldWidth, row.widthSaved);
        EXPECT_EQ(node->text, std::string(std::min(row.length, row.bytes), 'x'));
    }
}

TEST(ProjectFile, NumbersAreReadAsTheirSlotsStart) {
    // Padding and text behind a number, blanks ahead of it, exponents, numbers that fit nowhere.
    const ScratchFolder folder;
    const BoxScript boxes;
    freshProject();
    FileImage image;
    image.padding = '7';
    std::string bytes = encodeProject(image, project);
    const std::size_t xpos = 100 + 6 * 25 + 5 * 256 + 2 * 25 + 256 - 256 + 4 * 25;
    const auto put = [&](std::size_t at, const char* text) {
        bytes.replace(at, std::strlen(text) + 1, text, std::strlen(text) + 1);
    };
    ASSERT_STREQ(bytes.c_str() + xpos, "200");
    put(xpos, "  42 and more");
    put(xpos + 25, "+7");
    put(xpos + 50, "99999999999999999999999");
    put(xpos + 75, "none");
    put(xpos + 18 * 25, "-1.5e+3x");
    writeBytes(folder / "odd.wdp", bytes);
    ASSERT_TRUE(loadProject(folder.path, "odd.wdp"));
    EXPECT_EQ(project.forms->xpos, 42);
    EXPECT_EQ(project.forms->ypos, 7);
    EXPECT_EQ(project.forms->width, 2147483647);
    EXPECT_EQ(project.forms->height, 0);
}

TEST(ProjectFile, RealsAreWrittenAsTheirFormatsSay) {
    struct Row {
        float value;
        const char* g;
        const char* f;
    };
    const Row rows[] = {{0, "0", "0.000000"},
                        {-0.0F, "-0", "-0.000000"},
                        {1.5F, "1.5", "1.500000"},
                        {99999, "99999", "99999.000000"},
                        {1234567, "1.23457e+06", "1234567.000000"},
                        {0.1F, "0.1", "0.100000"},
                        {-2e-7F, "-2e-07", "-0.000000"},
                        {3e30F, "3e+30", "2.99999989e+30"}}; // the last is too long for its slot in full
    const ScratchFolder folder;
    for (const Row& row : rows) {
        WidgetNode* form = freshProject();
        form->text.clear();
        form->value = form->xMin = row.value;
        ASSERT_TRUE(saveProject(folder.path, "real.wdp", false));
        const std::string bytes = readBytes(folder / "real.wdp");
        const std::size_t value = 100 + 6 * 25 + 5 * 256 + 23 * 25;
        EXPECT_STREQ(bytes.c_str() + value, row.g);
        EXPECT_STREQ(bytes.c_str() + value + 9 * 25, row.f);
    }
}

TEST(ProjectFile, ColoursOfTheProjectComeBackAndLeaveThoseOfTheDefaultsAlone) {
    const BoxScript boxes;
    const ScratchFolder folder;
    freshProject();
    for (int i = FIXED_COLOURS; i < COLOURS; ++i) host.defineColour(i, 0, 0, 0);
    colourMarks = ColourMarks();
    EXPECT_EQ(projectColourIndex(1, 0, 0), 20);
    EXPECT_EQ(projectColourIndex(0, 1, 0), 21);
    EXPECT_EQ(projectColourIndex(1, 0, 0), 20);
    EXPECT_EQ(defaultsColourIndex(0, 0, 1), 255);
    EXPECT_EQ(defaultsColourIndex(0, 0, 1), 255);
    ASSERT_TRUE(saveProject(folder.path, "colours.wdp", false));

    // Another run, whose defaults hold another colour at the top and use it.
    for (int i = FIXED_COLOURS; i < COLOURS; ++i) host.defineColour(i, 0, 0, 0);
    colourMarks = ColourMarks();
    makeDefaults();
    defaultRecord(TYPE_BUTTON)->colour1 = defaultsColourIndex(0.5F, 0.5F, 0.5F);
    defaultRecord(TYPE_BUTTON)->colour2 = 12;
    ASSERT_EQ(defaultRecord(TYPE_BUTTON)->colour1, 255);
    ASSERT_TRUE(loadProject(folder.path, "colours.wdp"));
    float red = 0;
    float green = 0;
    float blue = 0;
    host.enquireColour(21, red, green, blue);
    EXPECT_FLOAT_EQ(green, 1);
    host.enquireColour(255, red, green, blue);
    EXPECT_FLOAT_EQ(red, 0.5F);
    EXPECT_EQ(defaultRecord(TYPE_BUTTON)->colour1, 22) << "moved behind the project's own";
    EXPECT_EQ(defaultRecord(TYPE_BUTTON)->colour2, 12) << "a fixed colour";
    EXPECT_EQ(colourMarks.colourTop, 22);
    EXPECT_EQ(colourMarks.defaultsColourBottom, 255);
    for (int i = FIXED_COLOURS; i < COLOURS; ++i) host.defineColour(i, 0, 0, 0);
    colourMarks = ColourMarks();
}

TEST(ProjectFile, FilesThatCannotBeReadLeaveTheOpenProjectAlone) {
    struct Row {
        const char* name;
        std::string bytes;
        ExpectedBox box;
    };
    const Row rows[] = {
        {"none.wdp", "", {"Error opening file", "File is not a ORBAWIDG Designer file"}},
        {"text.wdp", std::string(5000, 'x'), {"Error opening file", "File is not a ORBAWIDG Designer file"}},
        {"short.wdp", "ORBAWIDGDESIGNV8.0-F90-s", {"Error opening file", "File is not a ORBAWIDG Designer file"}},
        {"later.wdp",
         "ORBAWIDGDESIGNV9.0-F90-s" + std::string(5000, '\0'),
         {"Error opening file", "ORBAWIDG Designer file is post version  v8.5"}},
    };
    const ScratchFolder folder;
    WidgetNode* form = freshProject();
    for (const Row& row : rows) {
        const BoxScript boxes({row.box});
        writeBytes(folder / row.name, row.bytes);
        EXPECT_FALSE(loadProject(folder.path, row.name)) << row.name;
        EXPECT_EQ(project.forms, form);
        EXPECT_FALSE(boxes.busy);
    }
    const BoxScript missing({{"Error opening file", "Cannot open Project file :missing.wdp"},
                             {"Error opening file", "Cannot open Project file :" + std::string(".")}});
    EXPECT_FALSE(loadProject(folder.path, "missing"));
    EXPECT_FALSE(loadProject(folder.path, "."));
    EXPECT_EQ(project.forms, form);
}

TEST(ProjectFile, ExecutableIsCurrentOnlyWithItsSourceAndItsTime) {
    const BoxScript boxes;
    const ScratchFolder folder;
    freshProject();
    project.sourceDir = folder.path;
    project.sourceName = "prog.f90";
    project.sourceStale = 0;
    project.exeTime = 12345;
    writeBytes(folder / "prog.f90", "end\n");
    writeBytes(folder / "prog", "program");
    ASSERT_TRUE(saveProject(folder.path, "exe.wdp", false));
    ASSERT_TRUE(loadProject(folder.path, "exe.wdp"));
    EXPECT_FALSE(executableCurrent()) << "another time";
    EXPECT_EQ(project.sourceName, "prog.f90");
    EXPECT_EQ(project.sourceStale, 0);
    std::remove((folder / "prog.f90").c_str());
    ASSERT_TRUE(loadProject(folder.path, "exe.wdp"));
    EXPECT_EQ(project.sourceName, "prog.f90") << "loading alone forgets nothing";
    EXPECT_FALSE(executableCurrent());
    EXPECT_EQ(project.sourceName, "");
    EXPECT_EQ(project.sourceDir, "");
    EXPECT_EQ(project.sourceStale, 1);
}

TEST(ProjectFile, BackupsTakeTheirNameFromTheProjectAndChangeNoName) {
    EXPECT_EQ(backupName("bridge.wdp"), "bridge_Backup.wdp");
    EXPECT_EQ(backupName("a.b.wdp"), "a_Backup.b.wdp");
    const ScratchFolder folder;
    freshProject();
    project.projectModified = 1;
    project.projectName = "bridge.wdp";
    project.projectDir = folder.path;
    project.projectTitle = "bridge";
    ASSERT_TRUE(autoBackup());
    EXPECT_FALSE(readBytes(folder / "bridge_Backup.wdp").empty());
    EXPECT_EQ(project.projectName, "bridge.wdp");
    EXPECT_EQ(project.projectTitle, "bridge");
    EXPECT_EQ(project.projectModified, 1);
}

TEST(ProjectFile, ChoosingANameAddsTheExtensionAndAsksBeforeItOverwrites) {
    const ScratchFolder folder;
    writeBytes(folder / "old.wdp", "x");
    BoxScript boxes({{"Overwrite existing file?", "File already exists. Overwrite?", ANSWER_NO}});
    static int shown;
    static std::string dir;
    shown = 0;
    dir = folder.path;
    host.fileDialogue = [](const std::string& title, const std::string&, bool saving, std::string& chosenFolder,
                           std::string& name) {
        EXPECT_EQ(title, "Save Project As");
        EXPECT_TRUE(saving);
        chosenFolder = dir;
        name = ++shown == 1 ? "old" : "new";
        return true;
    };
    std::string chosenFolder;
    std::string name;
    ASSERT_TRUE(chooseSaveFile("Save Project As", ".wdp", true, chosenFolder, name));
    EXPECT_EQ(shown, 2);
    EXPECT_EQ(name, "new.wdp");
    EXPECT_EQ(chosenFolder, folder.path);
    shown = 0;
    ASSERT_TRUE(chooseSaveFile("Save Project As", ".wdp", false, chosenFolder, name));
    EXPECT_EQ(name, "old.wdp") << "overwritten without a question";
}

TEST(ProjectFile, AStringTooLongForItsSlotLosesNoHalfCharacter) {
    const BoxScript boxes;
    const ScratchFolder folder;
    WidgetNode* form = freshProject();
    form->bubbleHelp = std::string(254, 'x') + "\xc3\xa4" + "y";
    form->icon = std::string(300, 'z');
    ASSERT_TRUE(saveProject(folder.path, "long.wdp", false));
    ASSERT_TRUE(loadProject(folder.path, "long.wdp"));
    EXPECT_EQ(project.forms->bubbleHelp, std::string(254, 'x'));
    EXPECT_EQ(project.forms->icon, std::string(255, 'z'));
}

} // namespace
