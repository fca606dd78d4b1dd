// The Preferences dialogue: every row reaches its field, its effect and its file, and Cancel takes each one back.
#define QT_NO_KEYWORDS // the records have a field of the name slots

#include "designer_fixture.h"

#include "dialogues/commands.h"
#include "dialogues/frame.h"
#include "dialogues/preferences.h"
#include "editing/editor_window.h"
#include "platform/text_files.h"
#include "project/host.h"
#include "project/preferences.h"
#include "settings/preferences_file.h"
#include "shell/compiler_log.h"
#include "surface/selection.h"
#include "surface/state.h"
#include "toolkit/testing/robot.h"

#include <QFont>
#include <QLineEdit>
#include <QTest>
#include <QTextDocument>
#include <QTextEdit>

using namespace orba::testing;

namespace {

using P = Preferences;

class PreferenceDialogue : public DesignerTest {
protected:
    void SetUp() override {
        DesignerTest::SetUp();
        start();
    }
    void open() {
        choose(menuEntry(CMD_PREFERENCES));
        pump();
        ASSERT_TRUE(dialogue::widget(PREF_OK));
    }
    void press(int id) {
        click(dialogue::widget(id));
        pump();
    }
    void enter(int page, int id, const char* text) {
        dialogue::showPage(page);
        QWidget* view = viewOf(dialogue::widget(id));
        auto* line = qobject_cast<QLineEdit*>(view);
        if (!line) line = view->findChild<QLineEdit*>();
        ASSERT_TRUE(line);
        line->setFocus(Qt::MouseFocusReason);
        settle();
        key(0, Qt::Key_A, Qt::ControlModifier);
        type(0, text);
        key(0, Qt::Key_Tab);
        pump();
    }
    // What the next start would find.
    static Preferences onFile() {
        const Preferences now = preferences;
        reloadPreferences();
        const Preferences file = preferences;
        preferences = now;
        return file;
    }
    static std::string label(int command) { return shownText(menuEntry(command)).toStdString(); }
    static int pointSize(int handle) { return viewOf(handle)->font().pointSize(); }
    static int codePointSize() {
        return viewOf(codeText())->findChild<QTextEdit*>()->document()->defaultFont().pointSize();
    }
};

struct Switch {
    int page, id;
    int P::*field;
};
constexpr Switch SWITCHES[] = {
    {PAGE_DESIGN, PREF_REPEAT, &P::repeatPlacement},
    {PAGE_DESIGN, PREF_DELETE, &P::delDeletes},
    {PAGE_EDITING, PREF_PROMPTS, &P::argumentPrompts},
    {PAGE_EDITING, PREF_COLOURS, &P::syntaxColours},
    {PAGE_EDITING, PREF_ASSIST, &P::codeAssist},
    {PAGE_EDITING, PREF_TAB, &P::replaceTab},
    {PAGE_SAVE, PREF_BACKUP, &P::autoBackupOn},
    {PAGE_SAVE, PREF_GENERATE_SAVES, &P::generateSavesProject},
    {PAGE_SAVE, PREF_SAVE_GENERATES, &P::saveGeneratesCode},
    {PAGE_INITIALIZATION, PREF_CONFIG, &P::configCheck},
};

struct Number {
    int page, id;
    int P::*field;
    int least, most;
};
constexpr Number NUMBERS[] = {
    {PAGE_EDITING, PREF_TAB_SPACES, &P::tabSpaces, 0, 99},
    {PAGE_EDITING, PREF_GLOBAL_INDENT, &P::globalIndent, 0, 99},
    {PAGE_EDITING, PREF_SELECTED_INDENT, &P::selectedIndent, 0, 99},
    {PAGE_SAVE, PREF_BACKUP_MINUTES, &P::autoBackupMinutes, 1, 1440},
};

} // namespace

TEST_F(PreferenceDialogue, EverySwitchActsAtOnceAndGoesToTheFile) {
    for (const Switch& row : SWITCHES) {
        const int before = preferences.*row.field;
        open();
        dialogue::showPage(row.page);
        EXPECT_EQ(dialogue::isOn(row.id), before != 0) << row.id;
        press(row.id);
        EXPECT_EQ(preferences.*row.field, !before) << row.id << ": at once";
        press(PREF_CANCEL);
        EXPECT_EQ(preferences.*row.field, before) << row.id << ": taken back";
        open();
        dialogue::showPage(row.page);
        press(row.id);
        press(PREF_OK);
        EXPECT_EQ(onFile().*row.field, !before) << row.id;
    }
}

TEST_F(PreferenceDialogue, EveryNumberStaysWithinItsLimits) {
    for (const Number& row : NUMBERS) {
        const int before = preferences.*row.field;
        for (const char* hostile : {"999999999", "-7", "", "abc", "1e9", "0"}) {
            open();
            enter(row.page, row.id, hostile);
            EXPECT_GE(preferences.*row.field, row.least) << row.id << " " << hostile;
            EXPECT_LE(preferences.*row.field, row.most) << row.id << " " << hostile;
            press(PREF_CANCEL);
            EXPECT_EQ(preferences.*row.field, before) << row.id;
        }
        open();
        enter(row.page, row.id, "17");
        EXPECT_EQ(preferences.*row.field, 17) << row.id;
        press(PREF_OK);
        EXPECT_EQ(onFile().*row.field, 17) << row.id;
    }
    EXPECT_TRUE(reports().empty());
}

TEST_F(PreferenceDialogue, NumbersAreGreyWhileTheirSwitchIsOff) {
    open();
    for (const auto& [page, id, number] : {std::tuple(PAGE_EDITING, PREF_TAB, PREF_TAB_SPACES),
                                           std::tuple(PAGE_SAVE, PREF_BACKUP, PREF_BACKUP_MINUTES)}) {
        dialogue::showPage(page);
        EXPECT_TRUE(dialogue::isEnabled(number));
        press(id);
        EXPECT_FALSE(dialogue::isEnabled(number));
    }
    press(PREF_CANCEL);
    open();
    EXPECT_TRUE(dialogue::isEnabled(PREF_TAB_SPACES));
    EXPECT_TRUE(dialogue::isEnabled(PREF_PROMPTS));
    press(PREF_CANCEL);
    project.projectLanguage = 99;
    open();
    EXPECT_FALSE(dialogue::isEnabled(PREF_PROMPTS)) << "a C project has no prompts";
    press(PREF_CANCEL);
}

TEST_F(PreferenceDialogue, CommandsSayWhatASwitchAddsToThem) {
    open();
    dialogue::showPage(PAGE_SAVE);
    press(PREF_GENERATE_SAVES);
    EXPECT_EQ(label(CMD_GENERATE).substr(0, 13), "Generate Code");
    press(PREF_SAVE_GENERATES);
    EXPECT_EQ(label(CMD_SAVE_PROJECT).substr(0, 30), "Save Project and Generate Code");
    dialogue::showPage(PAGE_DESIGN);
    press(PREF_DELETE);
    EXPECT_EQ(label(CMD_DELETE).find("DEL"), std::string::npos);
    press(PREF_CANCEL);
    EXPECT_EQ(label(CMD_GENERATE).substr(0, 30), "Save Project and Generate Code");
    EXPECT_EQ(label(CMD_SAVE_PROJECT).find("Generate"), std::string::npos);
    EXPECT_NE(label(CMD_DELETE).find("DEL"), std::string::npos);
}

TEST_F(PreferenceDialogue, ThePointSizeIsAppliedAtOnce) {
    open();
    const int before = pointSize(logWidget());
    dialogue::showPage(PAGE_EDITING);
    dialogue::choose(PREF_POINT_SIZE, 8); // 24
    EXPECT_EQ(dialogue::text(PREF_POINT_SIZE), " 24");
    owPostCallback(PREF_POINT_SIZE, 0);
    pump();
    EXPECT_EQ(preferences.codePointSize, 24);
    EXPECT_EQ(pointSize(logWidget()), 24);
    EXPECT_EQ(codePointSize(), 24);
    press(PREF_CANCEL);
    EXPECT_EQ(pointSize(logWidget()), before);
    EXPECT_EQ(codePointSize(), before);
    EXPECT_EQ(project.projectModified, 0);
}

TEST_F(PreferenceDialogue, APointSizeCanBeTypedAndNonsenseIsNotTaken) {
    const int before = preferences.codePointSize;
    for (const char* nonsense : {"999999999", "0", "-5", "abc", ""}) {
        open();
        enter(PAGE_EDITING, PREF_POINT_SIZE, nonsense);
        EXPECT_EQ(preferences.codePointSize, before) << nonsense;
        press(PREF_CANCEL);
    }
    open();
    enter(PAGE_EDITING, PREF_POINT_SIZE, "13");
    EXPECT_EQ(preferences.codePointSize, 13);
    press(PREF_OK);
    EXPECT_EQ(onFile().codePointSize, 13);
}

TEST_F(PreferenceDialogue, TheExpressionHasRoomForAsMuchAsTheFile) {
    open();
    dialogue::showPage(PAGE_INITIALIZATION);
    press(PREF_CONFIG);
    enter(PAGE_INITIALIZATION, PREF_CONFIG_TEXT, "abcdefghijklmnopqrstuvwxyz");
    EXPECT_EQ(preferences.configDirExpr, "abcdefghijklmnopqrstuvwx");
    press(PREF_OK);
    EXPECT_EQ(onFile().configDirExpr, "abcdefghijklmnopqrstuvwx");
    open();
    EXPECT_EQ(dialogue::text(PREF_CONFIG_TEXT), "abcdefghijklmnopqrstuvwx");
    enter(PAGE_INITIALIZATION, PREF_CONFIG_TEXT, " ");
    EXPECT_EQ(preferences.configDirExpr, "");
    press(PREF_CANCEL);
    EXPECT_EQ(preferences.configDirExpr, "abcdefghijklmnopqrstuvwx");
}

TEST_F(PreferenceDialogue, ColoursWithoutTheirFileFallBackToOff) {
    open();
    dialogue::showPage(PAGE_EDITING);
    press(PREF_COLOURS);
    EXPECT_EQ(commandStatus(CMD_SYNTAX_ATTRIBUTES), STATUS_DISABLED);
    std::filesystem::rename(root / "defaults.syn", root / "elsewhere");
    expectBox("Load Syntax Attributes", "Cannot find defaults.syn.|Syntax highlighting not available", 4);
    press(PREF_COLOURS);
    EXPECT_FALSE(dialogue::isOn(PREF_COLOURS));
    EXPECT_EQ(preferences.syntaxColours, 0);
    std::filesystem::rename(root / "elsewhere", root / "defaults.syn");
    press(PREF_COLOURS);
    EXPECT_TRUE(dialogue::isOn(PREF_COLOURS));
    EXPECT_EQ(commandStatus(CMD_SYNTAX_ATTRIBUTES), STATUS_ENABLED);
    press(PREF_CANCEL);
}

TEST_F(PreferenceDialogue, AFolderThatCannotBeWrittenIsReported) {
    std::filesystem::create_directories(data / "wdesign.prf" / "in the way");
    open();
    press(PREF_REPEAT);
    expectBox("Save Prefences", "Cannot open wdesign.prf to save preferences", 4);
    press(PREF_OK);
    EXPECT_EQ(preferences.repeatPlacement, 1) << "in force all the same";
}

TEST_F(PreferenceDialogue, RepeatedPlacementLaysTheToolDown) {
    selectTool(TOOL_PUSH_BUTTON);
    open();
    press(PREF_REPEAT);
    EXPECT_EQ(design.activeTool, TOOL_SELECTOR);
    press(PREF_CANCEL);
}
