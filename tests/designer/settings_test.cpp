// The files that belong to the user: window states, preferences, recent projects.
#include "platform/paths.h"
#include "platform/text_files.h"
#include "project/host.h"
#include "project/preferences.h"
#include "settings/places.h"
#include "settings/preferences_file.h"
#include "settings/recent_projects.h"
#include "settings/window_states.h"
#include "support/scratch.h"
#include "surface/window_states.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::string boxShown;

// A data folder and a current directory of its own for every test, and the last box.
class SettingsFiles : public testing::Test {
protected:
    ScratchFolder scratch{"orba-settings"};
    std::filesystem::path before, root, data, current;
    Host oldHost;

    void SetUp() override {
        before = std::filesystem::current_path();
        root = scratch.path;
        data = root / "data";
        current = root / "here";
        std::filesystem::create_directories(data);
        std::filesystem::create_directories(current);
        std::filesystem::current_path(current);
        settingsPlaces.dataDir = data.string();
        windowStates = {};
        preferences = {};
        oldHost = host;
        boxShown.clear();
        host.infoBox = [](const std::string& title, const std::string& text) { boxShown = title + ": " + text; };
    }
    void TearDown() override {
        host = oldHost;
        settingsPlaces.dataDir.clear();
        std::filesystem::current_path(before);
    }
    static std::string contents(const std::filesystem::path& file) {
        std::string text;
        readTextFile(file.string(), text);
        return text;
    }
};

std::string shown(const WindowState& state) {
    return std::to_string(state.x) + " " + std::to_string(state.y) + " " + std::to_string(state.width) + " " +
           std::to_string(state.height) + " " + std::to_string(state.state);
}

const char* const DEFAULT_ROWS[] = {"4 42 1016 678 4", "0 0 235 513 3", "0 0 150 513 2", "0 0 560 462 2",
                                    "0 0 430 300 32",  "0 0 1000 0 1",  "0 0 1000 0 1",  "0 0 800 119 -1"};

} // namespace

TEST_F(SettingsFiles, WithoutAFileEveryWindowStandsAtItsDefault) {
    loadWindowStates(1024, 768);
    for (int row = 0; row < WINDOW_ROWS; row++) EXPECT_EQ(shown(windowStates[row]), DEFAULT_ROWS[row]) << row;
}

namespace {

struct WindowFileCase {
    const char* name;
    std::string text;
    int row;
    const char* expected;
};

const std::string GOOD_LINE = "    10     20    300    200   2\n";
const std::string GOOD_EDITOR = "    10     20    300    200   2  12\n";

const WindowFileCase WINDOW_FILES[] = {
    {"seven lines leave the log at its default",
     GOOD_LINE + GOOD_LINE + GOOD_LINE + GOOD_EDITOR + GOOD_LINE + GOOD_LINE + GOOD_LINE, WINDOW_COMPILER_LOG,
     "0 0 800 119 -1"},
    {"and keep the others", GOOD_LINE + GOOD_LINE + GOOD_LINE + GOOD_EDITOR + GOOD_LINE + GOOD_LINE + GOOD_LINE,
     WINDOW_TOOL_BOX, "10 20 300 200 2"},
    {"right edge", GOOD_LINE + "2000 0 600 100 4\n", WINDOW_PROPERTIES, "424 0 600 100 4"},
    {"bottom edge", GOOD_LINE + "0 900 600 100 4\n", WINDOW_PROPERTIES, "0 668 600 100 4"},
    {"negative places", "-30 -7 600 500 4\n", WINDOW_MASTER, "0 0 600 500 4"},
    {"a negative size", "5 6 -600 -50 4\n", WINDOW_MASTER, "4 42 1016 678 4"},
    {"no size", "5 6 0 0 1\n", WINDOW_MASTER, "4 42 1016 678 4"},
    {"larger than the screen", "100 50 3840 2100 1\n", WINDOW_MASTER, "0 0 1024 768 1"},
    {"a huge width", "0 0 40000 500 1\n", WINDOW_MASTER, "0 0 1024 500 1"},
    {"more digits than a number has", "0 0 99999999999999999999 500 1\n", WINDOW_MASTER, "4 42 1016 678 4"},
    {"no number", "nan inf 1e3 0x10 1\n", WINDOW_MASTER, "4 42 1016 678 4"},
    {"an empty row", "\n" + GOOD_LINE, WINDOW_MASTER, "4 42 1016 678 4"},
    {"and the row behind it", "\n" + GOOD_LINE, WINDOW_PROPERTIES, "10 20 300 200 2"},
    {"the row behind a short one", "1 2 3\n" + GOOD_LINE, WINDOW_PROPERTIES, "10 20 300 200 2"},
    {"the row behind a word", "word\n" + GOOD_LINE, WINDOW_PROPERTIES, "10 20 300 200 2"},
    {"a pane at no side", GOOD_LINE + "10 20 300 200 17\n", WINDOW_PROPERTIES, "0 0 235 513 3"},
    {"a bar without width", GOOD_LINE + GOOD_LINE + GOOD_LINE + GOOD_EDITOR + GOOD_LINE + "0 0 -5 0 1\n",
     WINDOW_ICON_BAR, "0 0 1000 0 1"},
    {"bars are held by the bottom edge only",
     GOOD_LINE + GOOD_LINE + GOOD_LINE + GOOD_EDITOR + GOOD_LINE + "-2000 -5 600 100 4\n", WINDOW_ICON_BAR,
     "-2000 0 600 100 4"},
    {"the right edge does not hold bars",
     GOOD_LINE + GOOD_LINE + GOOD_LINE + GOOD_EDITOR + GOOD_LINE + "2000 900 600 100 4\n", WINDOW_ICON_BAR,
     "2000 668 600 100 4"},
    {"a word spoils its line", "1 2 three 4 5\n", WINDOW_MASTER, "4 42 1016 678 4"},
    {"lines may be broken anywhere",
     "1 2\n3 4 5 11 12 13 14 3 " + GOOD_LINE + GOOD_EDITOR + GOOD_LINE + GOOD_LINE + "1\n2 3 4 3\n" + GOOD_LINE,
     WINDOW_PROPERTIES, "11 12 13 14 3"},
    {"the editor's line needs its sixth number", GOOD_LINE + GOOD_LINE + GOOD_LINE + "1 2 3 4 5 x\n",
     WINDOW_CODE_EDITOR, "0 0 560 462 2"},
};

} // namespace

TEST_F(SettingsFiles, WindowStatesAreReadLineByLine) {
    for (const WindowFileCase& one : WINDOW_FILES) {
        writeTextFile((data / "wdesign.ini").string(), one.text);
        loadWindowStates(1024, 768);
        EXPECT_EQ(shown(windowStates[one.row]), one.expected) << one.name;
    }
}

TEST_F(SettingsFiles, WindowStatesAreWrittenInColumns) {
    loadWindowStates(1024, 768);
    preferences.codePointSize = 11;
    windowStates[WINDOW_MASTER].x = -1234567;
    saveWindowStates();
    EXPECT_EQ(contents(data / "wdesign.ini"), "-1234567     42   1016    678   4\n"
                                              "     0      0    235    513   3\n"
                                              "     0      0    150    513   2\n"
                                              "     0      0    560    462   2  11\n"
                                              "     0      0    430    300  32\n"
                                              "     0      0   1000      0   1\n"
                                              "     0      0   1000      0   1\n"
                                              "     0      0    800    119  -1\n");
    EXPECT_EQ(boxShown, "");
}

TEST_F(SettingsFiles, AFileInTheCurrentDirectoryIsReadFirstAndNeverWritten) {
    writeTextFile((current / "wdesign.ini").string(), "1 2 300 400 4\n");
    writeTextFile((data / "wdesign.ini").string(), "9 9 300 400 4\n");
    loadWindowStates(1024, 768);
    EXPECT_EQ(windowStates[WINDOW_MASTER].x, 1);
    saveWindowStates();
    EXPECT_EQ(contents(current / "wdesign.ini"), "1 2 300 400 4\n");
    EXPECT_EQ(contents(data / "wdesign.ini").substr(0, 13), "     1      2");
    deleteWindowStates();
    EXPECT_FALSE(pathExists((current / "wdesign.ini").string()));
    EXPECT_TRUE(pathExists((data / "wdesign.ini").string()));
    deleteWindowStates();
    EXPECT_FALSE(pathExists((data / "wdesign.ini").string()));
}

TEST_F(SettingsFiles, WithoutADataFolderTheCurrentDirectoryServes) {
    settingsPlaces.dataDir.clear();
    loadWindowStates(1024, 768);
    saveWindowStates();
    savePreferences();
    EXPECT_TRUE(pathExists((current / "wdesign.ini").string()));
    EXPECT_TRUE(pathExists((current / "wdesign.prf").string()));
}

TEST_F(SettingsFiles, AFileThatCannotBeWrittenIsReported) {
    settingsPlaces.dataDir = (root / "missing" / "folder").string();
    saveWindowStates();
    EXPECT_EQ(boxShown, "Save Window States: Cannot open wdesign.ini to save window states");
    savePreferences();
    EXPECT_EQ(boxShown, "Save Prefences: Cannot open wdesign.prf to save preferences");
}

// ---- Preferences ----------------------------------------------------------------------------------------------

namespace {

std::string slots(std::initializer_list<const char*> texts) {
    std::string bytes;
    for (std::string text : texts) {
        text.resize(25, '\0');
        bytes += text;
    }
    return bytes;
}

} // namespace

TEST_F(SettingsFiles, PreferencesHaveTheirDefaults) {
    preferences.autoBackupMinutes = 99;
    loadPreferences(13);
    savePreferences();
    EXPECT_EQ(contents(data / "wdesign.prf"),
              slots({"1", "0", "1", "1", "1", "1", "0", "1", "20", "0", "", "9", "13", "3", "6", "1"}));
}

TEST_F(SettingsFiles, PreferencesComeBackFromTheirSlots) {
    const std::string expression = "getenv('ORBACONFIGDIRS')"; // 24 characters
    writeTextFile((data / "wdesign.prf").string(), slots({"0", "1", "0", "0", "0", "0", "1", "0", "5", "1",
                                                          expression.c_str(), "12.7", "10", "2", "4", "0"}));
    loadPreferences(9);
    EXPECT_EQ(preferences.repeatPlacement, 1); // the file says "place once"
    EXPECT_EQ(preferences.configDirExpr, expression);
    EXPECT_EQ(preferences.globalIndent, 12); // the whole part
    EXPECT_EQ(preferences.codePointSize, 10);
    savePreferences();
    EXPECT_EQ(contents(data / "wdesign.prf"),
              slots({"0", "1", "0", "0", "0", "0", "1", "0", "5", "1", expression.c_str(), "12", "10", "2", "4", "0"}));
}

TEST_F(SettingsFiles, BytesBehindTheEndOfASlotMeanNothing) {
    std::string bytes = slots({"0", "1"});
    bytes.replace(2, 23, 23, '7');
    writeTextFile((data / "wdesign.prf").string(), bytes);
    loadPreferences(9);
    EXPECT_EQ(preferences.repeatPlacement, 1);
    EXPECT_EQ(preferences.argumentPrompts, 1);
}

TEST_F(SettingsFiles, AShortPreferenceFileLeavesTheRestAtDefaults) {
    std::string bytes = slots({"1", "1", "0"}) + std::string("0").append(10, '\0'); // the fourth slot is cut
    writeTextFile((data / "wdesign.prf").string(), bytes);
    loadPreferences(9);
    EXPECT_EQ(preferences.argumentPrompts, 1);
    EXPECT_EQ(preferences.delDeletes, 0);
    EXPECT_EQ(preferences.syntaxColours, 1);
    EXPECT_EQ(preferences.autoBackupMinutes, 20);
}

TEST_F(SettingsFiles, NumbersThatNobodyCanHaveSetLeaveTheirDefault) {
    loadPreferences(9);
    const Preferences defaults = preferences;
    for (const char* number : {"-7", "999999999", "99999999999999999999", "nan", "1e", "", "word", "\xff\x01"}) {
        writeTextFile((data / "wdesign.prf").string(),
                      slots({number, number, number, number, number, number, number, number, number, number, "", number,
                             number, number, number, number}));
        loadPreferences(9);
        if (std::string(number) == "1e") continue; // a number ahead of something else counts
        EXPECT_EQ(preferences.repeatPlacement, defaults.repeatPlacement) << number;
        EXPECT_EQ(preferences.delDeletes, 1) << number;
        EXPECT_EQ(preferences.autoBackupOn, 1) << number;
        EXPECT_EQ(preferences.autoBackupMinutes, 20) << number;
        EXPECT_EQ(preferences.globalIndent, 9) << number;
        EXPECT_EQ(preferences.codePointSize, 9) << number;
        EXPECT_EQ(preferences.tabSpaces, 6) << number;
    }
}

TEST_F(SettingsFiles, ALongExpressionIsCutBetweenCharacters) {
    loadPreferences(9);
    preferences.configDirExpr = "12345678901234567890123\u00E9"; // 23 bytes and one of two
    savePreferences();
    loadPreferences(9);
    EXPECT_EQ(preferences.configDirExpr, "12345678901234567890123");
}

// Another process saves again and again; whoever reads meanwhile finds the file of one of them.
TEST_F(SettingsFiles, TwoWritersNeverMakeAMixture) {
    const auto save = [](int number, const std::string& text) {
        preferences.globalIndent = preferences.selectedIndent = preferences.tabSpaces = number;
        preferences.configDirExpr = text;
        savePreferences();
    };
    save(1, "aaaaaaaaaaaaaaaaaaaaaaaa");
    const std::string one = contents(data / "wdesign.prf");
    save(22, "b");
    const std::string other = contents(data / "wdesign.prf");
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        for (int i = 0; i < 100; i++) save(1, "aaaaaaaaaaaaaaaaaaaaaaaa");
        _exit(0);
    }
    for (int i = 0; i < 100; i++) {
        save(22, "b");
        const std::string found = contents(data / "wdesign.prf");
        EXPECT_TRUE(found == one || found == other) << found.size();
    }
    int status = 1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(data), {}), 1) << "nothing is left beside it";
    EXPECT_EQ(boxShown, "");
}
