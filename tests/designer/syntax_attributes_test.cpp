// Attributes of the code's colours: the files that keep them, and the dialogue that changes them.
#include "designer_fixture.h"

#include "dialogues/commands.h"
#include "dialogues/frame.h"
#include "dialogues/syntax_attributes.h"

#include "editing/syntax.h"
#include "platform/environment.h"
#include "platform/text_files.h"
#include "toolkit/testing/robot.h"

#include <QColor>

using namespace orba::testing;

namespace {

class SyntaxFiles : public DesignerTest {
protected:
    static constexpr int LANGUAGE = 5;
    std::string userFile() const { return (data / "wdesign.syn").string(); }
    std::string delivered() const { return (root / "defaults.syn").string(); }
    static std::string contents(const std::string& path) {
        std::string text;
        EXPECT_TRUE(readTextFile(path, text)) << path;
        return text;
    }
    // All attributes and words in force, as the toolkit writes them.
    std::string inForce() const {
        const std::string path = file("now.syn");
        EXPECT_EQ(owSaveSyntaxKeywords(path.c_str()), 1);
        return contents(path);
    }
    static void makeBold(int category) {
        SyntaxAttributes attributes = syntaxAttributes(category);
        attributes.face = "Courier New";
        attributes.colour = 0x01123456;
        attributes.underline = 1;
        setSyntaxAttributes(category, attributes);
    }
};

} // namespace

TEST_F(SyntaxFiles, TheUsersFileHoldsAttributesAndNoWords) {
    start();
    makeBold(LANGUAGE);
    const std::string before = inForce();
    ASSERT_TRUE(saveSyntaxAttributes());
    EXPECT_EQ(inForce(), before) << "saving changes nothing";
    const std::string saved = contents(userFile());
    EXPECT_NE(saved.find("colour 0x01123456\nstyle bold underline"), saved.npos);
    EXPECT_EQ(saved.find("\nfortran "), saved.npos);
    EXPECT_EQ(saved.find("\nc "), saved.npos);
    end();
    start();
    EXPECT_EQ(inForce(), before);
}

TEST_F(SyntaxFiles, WordsOfALaterVersionGetTheUsersColour) {
    start();
    makeBold(LANGUAGE);
    ASSERT_TRUE(saveSyntaxAttributes());
    end();
    std::string text = contents(delivered());
    text.insert(text.find("fortran abs"), "fortran brandnewword\n");
    writeTextFile(delivered(), text);
    start();
    EXPECT_NE(inForce().find("brandnewword"), std::string::npos);
    EXPECT_EQ(syntaxAttributes(LANGUAGE).colour, 0x01123456);
}

TEST_F(SyntaxFiles, AnOldFileOfTheUserGivesItsAttributesAlone) {
    writeTextFile(userFile(), "ORBAWIDG syntax 1\ncategory 5 Language\ncolour 0x01010203\nfortran mine integer\n");
    start();
    EXPECT_EQ(syntaxAttributes(LANGUAGE).colour, 0x01010203);
    EXPECT_EQ(inForce().find(" mine"), std::string::npos);
}

TEST_F(SyntaxFiles, ADamagedFileGivesWayAndIsToldOfOnce) {
    writeTextFile(userFile(), "no attributes at all");
    expectBox("Load Syntax Attributes",
              (userFile() + " holds no syntax attributes.|Those of defaults.syn are in force.").c_str(), 4);
    start();
    EXPECT_EQ(syntaxAttributes(LANGUAGE).bold, 1);
    EXPECT_TRUE(loadSyntaxAttributes()) << "without a second box";
}

TEST_F(SyntaxFiles, RestoredDefaultsComeFromTheDeliveredFile) {
    start();
    const std::string before = inForce();
    makeBold(LANGUAGE);
    ASSERT_TRUE(saveSyntaxAttributes());
    ASSERT_TRUE(loadDefaultSyntaxAttributes());
    EXPECT_EQ(inForce(), before);
}

TEST_F(SyntaxFiles, WithoutAnyFileTheAttributesInForceStay) {
    start();
    const std::string before = inForce();
    std::filesystem::remove(delivered());
    folders.installDir.clear();
    for (const char* title : {"Load Syntax Attributes", "Load Default Syntax Attributes"})
        expectBox(title, "Cannot find defaults.syn.|Syntax highlighting not available", 4);
    EXPECT_FALSE(loadSyntaxAttributes());
    EXPECT_FALSE(loadDefaultSyntaxAttributes());
    EXPECT_EQ(inForce(), before);
    // The words in force are the only ones then, and go into the file.
    ASSERT_TRUE(saveSyntaxAttributes());
    EXPECT_EQ(contents(userFile()), before);
}

TEST_F(SyntaxFiles, AFileThatCannotBeWrittenIsReported) {
    start();
    makeBold(LANGUAGE);
    const std::string before = inForce();
    std::filesystem::create_directories(userFile() + "/in the way");
    expectBox("Save Syntax Attributes", "Cannot open wdesign.syn to save attributes", 4);
    EXPECT_FALSE(saveSyntaxAttributes());
    EXPECT_EQ(inForce(), before);
}

// ---- The dialogue

namespace {

class SyntaxDialogue : public SyntaxFiles {
protected:
    static constexpr int COMMENTS = 1;

    void open() {
        choose(menuEntry(CMD_SYNTAX_ATTRIBUTES));
        pump();
        ASSERT_TRUE(dialogue::widget(SYNTAX_OK));
    }
    void press(int id) {
        click(dialogue::widget(id));
        pump();
    }
    void showCategory(int category) {
        dialogue::choose(SYNTAX_CATEGORY, category + 1);
        owPostCallback(SYNTAX_CATEGORY, 0);
        pump();
    }
};

} // namespace

TEST_F(SyntaxDialogue, ShowsAndChangesEachCategory) {
    start();
    open();
    for (int category = 0; category < SYNTAX_CATEGORIES; ++category) {
        showCategory(category);
        const SyntaxAttributes before = syntaxAttributes(category);
        EXPECT_EQ(dialogue::isOn(SYNTAX_BOLD), before.bold != 0) << category;
        EXPECT_EQ(dialogue::isOn(SYNTAX_ITALIC), before.italic != 0) << category;
        for (const int style : {SYNTAX_BOLD, SYNTAX_ITALIC, SYNTAX_UNDERLINE, SYNTAX_STRIKEOUT}) press(style);
        const SyntaxAttributes after = syntaxAttributes(category);
        EXPECT_EQ(after.bold, !before.bold) << category;
        EXPECT_EQ(after.italic, !before.italic) << category;
        EXPECT_EQ(after.underline + after.strikeout, 2) << category;
        EXPECT_EQ(after.face, "") << "the face was not touched";
        EXPECT_EQ(after.colour, before.colour);
    }
    press(SYNTAX_CANCEL);
}

TEST_F(SyntaxDialogue, OkWritesAndTheNextStartReads) {
    start();
    open();
    showCategory(COMMENTS);
    press(SYNTAX_BOLD);
    showCategory(LANGUAGE);
    expectColourBox(QColor(0x12, 0x34, 0x56));
    press(SYNTAX_COLOUR);
    EXPECT_EQ(syntaxAttributes(LANGUAGE).colour, 0x01123456);
    press(SYNTAX_OK);
    const std::string before = inForce();
    end();
    start();
    EXPECT_EQ(inForce(), before);
    EXPECT_EQ(syntaxAttributes(COMMENTS).bold, 1);
    EXPECT_EQ(syntaxAttributes(LANGUAGE).colour, 0x01123456);
}

TEST_F(SyntaxDialogue, CancelLosesTheChangesOfAllCategories) {
    start();
    const std::string before = inForce();
    open();
    showCategory(COMMENTS);
    press(SYNTAX_BOLD);
    showCategory(LANGUAGE);
    press(SYNTAX_ITALIC);
    std::filesystem::remove(delivered());
    press(SYNTAX_CANCEL);
    EXPECT_EQ(inForce(), before) << "without a file, too";
    EXPECT_FALSE(std::filesystem::exists(userFile()));
}

TEST_F(SyntaxDialogue, RestoreDefaultsShowsTheDelivered) {
    start();
    const std::string before = inForce();
    open();
    showCategory(LANGUAGE);
    press(SYNTAX_BOLD);
    EXPECT_FALSE(dialogue::isOn(SYNTAX_BOLD));
    press(SYNTAX_RESTORE);
    EXPECT_TRUE(dialogue::isOn(SYNTAX_BOLD));
    EXPECT_EQ(inForce(), before);
    press(SYNTAX_OK);
}

TEST_F(SyntaxDialogue, ColoursOfTheTableBecomeTrueOnes) {
    start();
    SyntaxAttributes plain = syntaxAttributes(0);
    plain.colour = 3;
    setSyntaxAttributes(0, plain);
    open();
    showCategory(0);
    expectColourBox(QColor(255, 255, 255));
    press(SYNTAX_COLOUR);
    EXPECT_EQ(syntaxAttributes(0).colour, 0x01FFFFFF);
    press(SYNTAX_CANCEL);
    EXPECT_EQ(syntaxAttributes(0).colour, 3);
}

TEST_F(SyntaxDialogue, AFolderThatCannotBeWrittenIsReported) {
    start();
    std::filesystem::create_directories(userFile() + "/in the way");
    open();
    showCategory(LANGUAGE);
    press(SYNTAX_ITALIC);
    expectBox("Save Syntax Attributes", "Cannot open wdesign.syn to save attributes", 4);
    press(SYNTAX_OK);
    EXPECT_EQ(syntaxAttributes(LANGUAGE).italic, 1) << "in force until the end";
}

TEST_F(SyntaxDialogue, TheSampleIsOfTheProjectsLanguage) {
    start();
    for (const auto& [language, word] :
         {std::pair(90, "integer ::"), std::pair(99, "#include"), std::pair(77, "CALL")}) {
        project.projectLanguage = language;
        open();
        EXPECT_NE(dialogue::text(SYNTAX_CODE).find(word), std::string::npos) << language;
        const std::string before = dialogue::text(SYNTAX_CODE);
        type(dialogue::widget(SYNTAX_CODE), "x");
        EXPECT_EQ(dialogue::text(SYNTAX_CODE), before) << "nobody writes there";
        press(SYNTAX_CANCEL);
    }
    project.projectLanguage = 90;
}
