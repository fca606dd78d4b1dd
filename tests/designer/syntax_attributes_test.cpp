// Attributes of the code's colours: the files that keep them, and the dialogue that changes them.
#include "designer_fixture.h"

#include "editing/syntax.h"
#include "platform/environment.h"
#include "platform/text_files.h"
#include "toolkit/testing/robot.h"

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
