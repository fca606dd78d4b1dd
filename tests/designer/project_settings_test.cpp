// The Project Settings dialogue: its lists row by row, the browser, the questions, the switches.
#define QT_NO_KEYWORDS // the records have a field of the name slots

#include "designer_fixture.h"

#include "dialogues/commands.h"
#include "dialogues/frame.h"
#include "dialogues/project_settings.h"
#include "platform/text_files.h"
#include "project/build_inputs.h"
#include "project/files.h"
#include "toolkit/testing/robot.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>

using namespace orba::testing;

namespace {

constexpr int YES = 6, NO = 3;

class ProjectSettings : public DesignerTest {
protected:
    void SetUp() override {
        DesignerTest::SetUp();
        start();
        for (const char* name : {"a.f90", "b.f90", "x.o", "lib.a"}) writeTextFile(file(name), "");
        std::filesystem::create_directories(root / "modules");
    }
    void open() {
        choose(menuEntry(CMD_PROJECT_SETTINGS));
        pump();
        ASSERT_TRUE(dialogue::widget(SETTINGS_OK));
    }
    void press(int id) {
        click(dialogue::widget(id));
        pump();
    }
    void showList(int row) {
        dialogue::choose(SETTINGS_LISTS, row);
        owPostCallback(SETTINGS_LISTS, 0);
        pump();
    }
    static int list() { return dialogue::widget(SETTINGS_ROWS); }
    static int count() { return owPropertyItemCount(list()); }
    static std::string rowText(int row) {
        char text[300] = "";
        owEnqPropertySetting(list(), row, owLength, 300, owString, text, 0);
        return text;
    }
    // Types over what stands in a row, as the user does.
    void typeRow(int row, const std::string& text) {
        owSelectProperty(list(), row);
        owSetActiveWidget(list());
        settle();
        key(0, Qt::Key_Return);
        settle();
        key(0, Qt::Key_A, Qt::ControlModifier);
        if (text.empty())
            key(0, Qt::Key_Delete);
        else
            type(0, text.c_str());
        key(0, Qt::Key_Return);
        pump();
    }
    static std::string notFound(const std::string& path) {
        return "The file " + path + " was not found - Leave it in the list?";
    }
};

} // namespace

TEST_F(ProjectSettings, RowsAreTypedAndComeBackFromTheFile) {
    open();
    EXPECT_EQ(count(), 1);
    typeRow(1, file("a.f90"));
    EXPECT_EQ(count(), 2) << "an empty one behind it";
    typeRow(2, file("b.f90"));
    showList(2);
    EXPECT_EQ(count(), 1);
    typeRow(1, file("x.o"));
    showList(3);
    typeRow(1, file("lib.a"));
    showList(4);
    EXPECT_EQ(dialogue::text(SETTINGS_CAPTION), "Directories:");
    typeRow(1, file("modules"));
    dialogue::setText(SETTINGS_COMPILER, "-O2");
    dialogue::setText(SETTINGS_LINKER, "-llapack -lblas");
    press(SETTINGS_OK);
    const FileList expected[] = {
        {file("a.f90"), file("b.f90"), ""}, {file("x.o"), ""}, {file("lib.a"), ""}, {file("modules"), ""}};
    for (int i = 0; i < FILE_LISTS; ++i) EXPECT_EQ(project.fileLists[i], expected[i]) << i;
    EXPECT_EQ(project.customSwitches, 1);
    EXPECT_EQ(project.projectModified, 1);
    EXPECT_EQ(project.sourceStale, 1);
    const BuildInputs set = buildInputs();
    ASSERT_TRUE(saveProject(root.string(), "p.wdp", false));
    end();
    start("p.wdp");
    EXPECT_TRUE(buildInputs() == set);
    open();
    EXPECT_EQ(rowText(2), file("b.f90"));
    EXPECT_EQ(dialogue::text(SETTINGS_LINKER), "-llapack -lblas");
    press(SETTINGS_CANCEL);
}

TEST_F(ProjectSettings, EscInARowGivesUpTheRowAlone) {
    open();
    owSelectProperty(list(), 1);
    owSetActiveWidget(list());
    settle();
    key(0, Qt::Key_Return);
    settle();
    type(0, "half");
    key(0, Qt::Key_Escape);
    pump();
    ASSERT_TRUE(dialogue::widget(SETTINGS_OK));
    EXPECT_EQ(rowText(1), "");
    key(0, Qt::Key_Escape);
    pump();
    EXPECT_FALSE(dialogue::widget(SETTINGS_OK));
}

TEST_F(ProjectSettings, ARowThatIsBeingTypedIsTakenByOk) {
    open();
    owSelectProperty(list(), 1);
    owSetActiveWidget(list());
    settle();
    key(0, Qt::Key_Return);
    settle();
    type(0, file("a.f90").c_str());
    press(SETTINGS_OK);
    EXPECT_EQ(project.fileLists[LIST_SOURCES], (FileList{file("a.f90"), ""}));
}

TEST_F(ProjectSettings, CancelDropsEverything) {
    open();
    typeRow(1, file("a.f90"));
    dialogue::setText(SETTINGS_COMPILER, "-O2");
    press(SETTINGS_CANCEL);
    EXPECT_EQ(project.fileLists[LIST_SOURCES], FileList(1));
    EXPECT_EQ(project.compilerSwitches.find("-O2"), std::string::npos);
    EXPECT_EQ(project.projectModified, 0);
}

TEST_F(ProjectSettings, AFileThatIsNotThereStaysOnlyWhenTheUserWantsIt) {
    const std::string gone = file("gone.f90");
    open();
    expectBox("File not found", notFound(gone).c_str(), NO);
    typeRow(1, gone);
    EXPECT_EQ(count(), 1);
    EXPECT_EQ(rowText(1), "");
    expectBox("File not found", notFound(gone).c_str(), YES);
    typeRow(1, gone);
    EXPECT_EQ(rowText(1), gone);
    typeRow(2, file("a.f90"));
    expectBox("File not found", notFound(gone + "0").c_str(), NO);
    typeRow(1, gone + "0");
    EXPECT_EQ(rowText(1), file("a.f90")) << "the row goes";
    showList(4);
    expectBox("Directory not found", "The directory /nowhere was not found - Leave it in the list?", NO);
    typeRow(1, "/nowhere");
    press(SETTINGS_OK);
    EXPECT_EQ(project.fileLists[LIST_SOURCES], (FileList{file("a.f90"), ""}));
    EXPECT_EQ(project.fileLists[LIST_MODULES], FileList(1));
}

TEST_F(ProjectSettings, ASourceMayStandBesideTheProjectAndLackItsExtension) {
    project.sourceDir = root.string();
    std::filesystem::current_path(data);
    open();
    typeRow(1, "a.f90");
    typeRow(2, "b");
    EXPECT_EQ(count(), 3) << "without a question";
    press(SETTINGS_CANCEL);
}

TEST_F(ProjectSettings, AnEmptiedRowGoes) {
    open();
    typeRow(1, file("a.f90"));
    typeRow(2, file("b.f90"));
    typeRow(1, "");
    EXPECT_EQ(count(), 2);
    EXPECT_EQ(rowText(1), file("b.f90"));
    press(SETTINGS_OK);
    EXPECT_EQ(project.fileLists[LIST_SOURCES], (FileList{file("b.f90"), ""}));
}

TEST_F(ProjectSettings, FilesAndFoldersAreBrowsedFor) {
    open();
    owSelectProperty(list(), 1);
    const auto browse = [] {
        auto* view = qobject_cast<QAbstractItemView*>(viewOf(list()));
        ASSERT_TRUE(view);
        const QRect cell = view->visualRect(view->model()->index(0, 1));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, {cell.right() - 10, cell.center().y()});
        pump();
    };
    expectBrowser("Load Project File", "");
    browse();
    EXPECT_EQ(count(), 1) << "cancelled";
    expectBrowser("Load Project File", file("a.f90"));
    browse();
    EXPECT_EQ(rowText(1), file("a.f90"));
    EXPECT_EQ(count(), 2);
    showList(4);
    owSelectProperty(list(), 1);
    expectBrowser("Load Project File", file("modules"));
    browse();
    EXPECT_EQ(rowText(1), file("modules"));
    press(SETTINGS_CANCEL);
}

TEST_F(ProjectSettings, ACProjectHasNoModules) {
    open();
    dialogue::choose(SETTINGS_LISTS, 4);
    EXPECT_EQ(dialogue::text(SETTINGS_LISTS), "Module directories");
    press(SETTINGS_CANCEL);
    project.projectLanguage = 99;
    open();
    int rows = 0, selected = 0, current = 0;
    owEnqListStatus(dialogue::widget(SETTINGS_LISTS), &rows, &selected, &current);
    EXPECT_EQ(rows, 3);
    EXPECT_EQ(dialogue::text(SETTINGS_TYPE), "C Windows Project");
    press(SETTINGS_CANCEL);
}

TEST_F(ProjectSettings, AFullListTakesNoMore) {
    for (int i = 1; i < FILE_LIST_ROWS; ++i)
        project.fileLists[LIST_SOURCES].insert(project.fileLists[LIST_SOURCES].begin(), file("a.f90"));
    open();
    EXPECT_EQ(count(), FILE_LIST_ROWS);
    int status = 1;
    owEnqPropertySetting(list(), FILE_LIST_ROWS, owPropertyStatus, &status, 0);
    EXPECT_EQ(status, OUNSELECTABLE);
    press(SETTINGS_OK);
    EXPECT_EQ(project.fileLists[LIST_SOURCES].size(), FILE_LIST_ROWS);
}

TEST_F(ProjectSettings, ReturnInASwitchEntryTakesIt) {
    open();
    focus(dialogue::widget(SETTINGS_LINKER));
    settle();
    type(0, "-lm");
    key(0, Qt::Key_Return);
    pump();
    EXPECT_FALSE(dialogue::widget(SETTINGS_OK));
    EXPECT_NE(project.linkerSwitches.find("-lm"), std::string::npos);
}
