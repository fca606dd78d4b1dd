// The type of a project: new ones, and the open one changed, each question and what follows from it.
#define QT_NO_KEYWORDS // the records have a field of the name slots

#include "designer_fixture.h"

#include "dialogues/commands.h"
#include "dialogues/frame.h"
#include "dialogues/project_type.h"
#include "editing/code_editor.h"
#include "editing/editor_window.h"
#include "platform/environment.h"
#include "platform/text_files.h"
#include "project/convert.h"
#include "project/files.h"
#include "surface/selection.h"
#include "surface/state.h"
#include "toolkit/testing/robot.h"

using namespace orba::testing;
using Pair = std::pair<int, int>;

namespace {

constexpr int OK = 4, CANCEL = 1;

struct Question {
    const char* title;
    const char* text;
};
constexpr Question LANGUAGE = {"Change Project Code Type",
                               "All project and callback code blocks and external file references|will probably become "
                               "invalid and project will not build||Are you sure you want to continue?"};
constexpr Question TO_X = {"Change Project to X-Windows Functionality",
                           "All array grids, tree views, table boxes, progress bars, gauges, and status bar widgets "
                           "will be removed|and project will be converted to grid mode||Are you sure you want to "
                           "continue?"};
constexpr Question TO_WINDOWS = {"Change Project to Full Windows Functionality",
                                 "Windows functionality will become available||Do you want to continue?"};
constexpr Question TO_PIXELS = {"Change Project to Pixel Mode",
                                "Variable snap grid will become available||Do you want to continue?"};
constexpr Question TO_GRID = {"Change Project to Grid Mode",
                              "Widgets will be aligned to grid||Are you sure you want to continue?"};
constexpr Question GRID_SIZE = {"Change Project Grid Settings",
                                "Project grid size will change causing movement of widgets.||Are you sure you want to "
                                "continue?"};
constexpr Question SCALABLE = {"Change Project to Scalable Mode",
                               "Project area will be scaled to fit screen when application is run.||Are you sure you "
                               "want to continue?"};
constexpr Question FIXED = {"Change Project to Fixed Mode",
                            "Reverting project to be resolution dependent.||Do you want to continue?"};
constexpr Question CONVERT = {"Change Project Type", "Project is about to be converted to adopt requested "
                                                     "changes.||Are you sure you want to continue?"};

void expect(const Question& question, int answer) { expectBox(question.title, question.text, answer); }

class ProjectTypes : public DesignerTest {
protected:
    void SetUp() override {
        DesignerTest::SetUp();
        start();
    }
    void press(int id) {
        click(dialogue::widget(id));
        pump();
    }
    void enter(int id, const char* number) {
        focus(dialogue::widget(id));
        settle();
        key(0, Qt::Key_A, Qt::ControlModifier);
        type(0, number);
        key(0, Qt::Key_Tab);
        pump();
    }
    void openChange() {
        choose(menuEntry(CMD_CHANGE_PROJECT_TYPE));
        pump();
        ASSERT_TRUE(dialogue::widget(TYPE_OK));
    }
    void openNew() {
        choose(menuEntry(CMD_NEW_PROJECT));
        pump();
        ASSERT_TRUE(dialogue::widget(TYPE_OK));
    }
    // Everything that the dialogue could change, and the widgets.
    static std::string records() {
        std::string text = std::to_string(project.projectLanguage) + project.projectPlatform +
                           std::to_string(project.doubleBuffering) + std::to_string(project.gridMode) + ' ' +
                           std::to_string(project.gridHoriz) + ' ' + std::to_string(project.gridVert) +
                           std::to_string(project.scalable) + std::to_string(project.projectModified);
        for (const WidgetNode* node = project.forms; node; node = walkList(node, project.forms))
            text += '\n' + node->name + ' ' + std::to_string(node->xpos) + ' ' + std::to_string(node->width);
        return text;
    }
    WidgetNode* place(int tool, int x, int y) {
        selectTool(tool);
        click(project.forms->child->handle, {x, y});
        pump();
        return project.currentWidget;
    }
};

} // namespace

TEST_F(ProjectTypes, ANewProjectTakesWhatItsDialogueShows) {
    struct Row {
        int language, platform;
        ProjectType expected;
    };
    const Row rows[] = {
        {TYPE_C, TYPE_WINDOWS, {.language = 99, .platform = 'w'}},
        {TYPE_F90, TYPE_X, {.language = 90, .platform = 'x', .gridMode = 1, .gridHoriz = 32, .gridVert = 24}},
        {TYPE_C, TYPE_GLX, {.language = 99, .platform = 'g', .gridMode = 1, .gridHoriz = 32, .gridVert = 24}},
        {TYPE_F90, TYPE_WINDOWS, {.language = 90, .platform = 'w', .gridMode = 1}},
    };
    for (const Row& row : rows) {
        openNew();
        press(row.language);
        press(row.platform);
        press(TYPE_OK);
        EXPECT_TRUE(projectType() == row.expected) << records();
        EXPECT_FALSE(dialogue::widget(TYPE_OK)) << "the dialogue is closed";
        ASSERT_TRUE(project.forms);
        EXPECT_TRUE(isShown(project.forms->handle));
        EXPECT_EQ(project.projectModified, 0);
        EXPECT_EQ(project.sourceStale, 1);
        EXPECT_EQ(Pair(project.snapOn, project.snapGrid), Pair(1, project.gridMode ? project.gridPixelX : 10));
    }
}

TEST_F(ProjectTypes, ANewProjectCanBeginWithATemplate) {
    folders.installDir = root.string();
    std::filesystem::copy(ORBA_SOURCE_DIR "/data/templates", root / "templates");
    struct Row {
        int row;
        const char* form;
        int language, platform;
    };
    const Row rows[] = {{1, "Form1", TYPE_F90, TYPE_WINDOWS},
                        {2, "Dialogue", TYPE_F90, TYPE_WINDOWS},
                        {3, "Tool", TYPE_C, TYPE_WINDOWS},
                        {3, "Tool", TYPE_F90, TYPE_X},
                        {4, "Calculator", TYPE_C, TYPE_GLX}};
    for (const Row& row : rows) {
        openNew();
        dialogue::choose(TYPE_MODEL, row.row);
        press(row.language);
        press(row.platform);
        press(TYPE_OK);
        EXPECT_EQ(project.forms->name, row.form);
        EXPECT_EQ(project.projectLanguage, row.language == TYPE_C ? 99 : 90) << row.form;
        EXPECT_EQ(project.gridMode, row.platform == TYPE_WINDOWS ? 0 : 1) << row.form;
        EXPECT_EQ(project.forms->statusBar != nullptr, row.row == 3 && row.platform == TYPE_WINDOWS);
        EXPECT_TRUE(isShown(project.forms->handle));
        EXPECT_EQ(project.projectName + project.projectTitle + project.sourceName, "") << "it has no name yet";
        EXPECT_EQ(Pair(project.projectModified, project.sourceStale), Pair(0, 1));
        EXPECT_EQ(title().find('['), std::string::npos) << title();
    }
}

TEST_F(ProjectTypes, NoNewProjectIsInFixedForm) {
    project.projectLanguage = 77;
    openNew();
    EXPECT_TRUE(dialogue::isOn(TYPE_F90));
    press(TYPE_OK);
    EXPECT_EQ(project.projectLanguage, 90);
}

TEST_F(ProjectTypes, ADamagedTemplateLeavesTheOpenProject) {
    folders.installDir = root.string();
    std::filesystem::copy(ORBA_SOURCE_DIR "/data/templates", root / "templates");
    writeTextFile(file("templates/tool_f90.wdp"), "no project");
    const WidgetNode* form = project.forms;
    openNew();
    dialogue::choose(TYPE_MODEL, 3);
    press(TYPE_X);
    expectBox("Error opening file", "File is not a ORBAWIDG Designer file", OK);
    press(TYPE_OK);
    EXPECT_EQ(project.forms, form);
    EXPECT_EQ(project.projectPlatform, 'w');
    EXPECT_EQ(project.currentWidget, form);
}

TEST_F(ProjectTypes, TheCostOfAChangeToXIsTold) {
    place(TOOL_GAUGE, 110, 200);
    openChange();
    EXPECT_EQ(dialogue::text(TYPE_LOSSES), "X-Win would remove 1 widget");
    press(TYPE_CANCEL);
}

TEST_F(ProjectTypes, CancelOfANewProjectKeepsTheOpenOne) {
    const WidgetNode* button = place(TOOL_PUSH_BUTTON, 50, 60);
    ASSERT_EQ(button->type, TYPE_BUTTON);
    expectBox("Start New Project", "Do you wish to save the current project first?", 3);
    openNew();
    press(TYPE_X);
    press(TYPE_C);
    const std::string before = records();
    press(TYPE_CANCEL);
    EXPECT_EQ(records(), before);
    EXPECT_EQ(project.currentWidget, button);
    EXPECT_EQ(project.projectModified, 1);
    EXPECT_EQ(project.projectLanguage, 90);
}

TEST_F(ProjectTypes, ControlsFollowOneAnother) {
    openNew();
    EXPECT_FALSE(dialogue::isEnabled(TYPE_HORIZ));
    EXPECT_FALSE(dialogue::isEnabled(TYPE_SCALABLE));
    EXPECT_TRUE(dialogue::isEnabled(TYPE_HARDWARE));
    press(TYPE_X);
    EXPECT_TRUE(dialogue::isOn(TYPE_GRID_ON));
    EXPECT_FALSE(dialogue::isEnabled(TYPE_HARDWARE));
    EXPECT_TRUE(dialogue::isEnabled(TYPE_HORIZ));
    EXPECT_EQ(dialogue::number(TYPE_PIXEL_X), 25);
    press(TYPE_GRID_OFF);
    EXPECT_TRUE(dialogue::isOn(TYPE_GRID_ON)) << "an X project has its grid";
    press(TYPE_WINDOWS);
    EXPECT_EQ(Pair(dialogue::number(TYPE_HORIZ), dialogue::number(TYPE_VERT)), Pair(36, 27));
    enter(TYPE_HORIZ, "20");
    EXPECT_EQ(dialogue::number(TYPE_PIXEL_X), 40);
    enter(TYPE_PIXEL_Y, "30");
    EXPECT_EQ(dialogue::number(TYPE_VERT), 20);
    press(TYPE_GRID_OFF);
    EXPECT_FALSE(dialogue::isEnabled(TYPE_HORIZ));
    press(TYPE_CANCEL);
}

TEST_F(ProjectTypes, NumbersThatMakeNoGridAreRefused) {
    openNew();
    press(TYPE_GRID_ON);
    for (const char* number : {"0", "1", "11", "", "abc", "-9"}) {
        enter(TYPE_HORIZ, number);
        EXPECT_GE(dialogue::number(TYPE_HORIZ), 12) << number;
        EXPECT_LE(dialogue::number(TYPE_PIXEL_X), 66) << number;
        enter(TYPE_PIXEL_Y, number);
        EXPECT_GE(dialogue::number(TYPE_VERT), 12) << number;
    }
    press(TYPE_OK);
    EXPECT_GE(project.gridHoriz, 12);
    EXPECT_TRUE(reports().empty());
}

TEST_F(ProjectTypes, EveryQuestionCanBeRefused) {
    struct Row {
        int control;
        const Question& question;
        ProjectType before;
        int back; // the control that is on again
    };
    const ProjectType pixels, grid = {.gridMode = 1}, scalable = {.gridMode = 1, .scalable = 1},
                              x = {.platform = 'x', .gridMode = 1, .gridHoriz = 32, .gridVert = 24};
    const Row rows[] = {{TYPE_C, LANGUAGE, pixels, TYPE_F90},           {TYPE_X, TO_X, pixels, TYPE_WINDOWS},
                        {TYPE_GLX, TO_X, pixels, TYPE_WINDOWS},         {TYPE_WINDOWS, TO_WINDOWS, x, TYPE_X},
                        {TYPE_GRID_OFF, TO_PIXELS, grid, TYPE_GRID_ON}, {TYPE_GRID_ON, TO_GRID, pixels, TYPE_GRID_OFF},
                        {TYPE_SCALABLE, SCALABLE, grid, TYPE_FIXED},    {TYPE_FIXED, FIXED, scalable, TYPE_SCALABLE}};
    for (const Row& row : rows) {
        if (!(projectType() == row.before)) {
            convertProject(row.before);
            project.projectModified = 0;
        }
        openChange();
        const std::string before = records();
        expect(row.question, CANCEL);
        press(row.control);
        EXPECT_TRUE(dialogue::isOn(row.back)) << row.question.title;
        EXPECT_FALSE(dialogue::isOn(row.control)) << row.question.title;
        press(TYPE_OK); // without a question: nothing has changed
        EXPECT_FALSE(dialogue::widget(TYPE_OK));
        EXPECT_EQ(records(), before) << row.question.title;
    }
}

TEST_F(ProjectTypes, TheWarningOfTheGridIsGivenUntilItIsRefused) {
    convertProject({.gridMode = 1});
    project.projectModified = 0;
    openChange();
    expect(GRID_SIZE, OK);
    enter(TYPE_HORIZ, "20");
    EXPECT_EQ(dialogue::number(TYPE_PIXEL_X), 40);
    expect(GRID_SIZE, CANCEL);
    enter(TYPE_VERT, "20");
    EXPECT_EQ(Pair(dialogue::number(TYPE_HORIZ), dialogue::number(TYPE_VERT)), Pair(20, 27));
    enter(TYPE_VERT, "15");
    EXPECT_EQ(dialogue::number(TYPE_PIXEL_Y), 40) << "silent from now on";
    press(TYPE_CANCEL);
    EXPECT_EQ(project.gridHoriz, 36);
    openChange();
    expect(GRID_SIZE, CANCEL);
    enter(TYPE_VERT, "20");
    press(TYPE_CANCEL);
}

TEST_F(ProjectTypes, AnXProjectKeepsItsGrid) {
    convertProject({.platform = 'x', .gridMode = 1, .gridHoriz = 32, .gridVert = 24});
    openChange();
    expectBox("Change Project to Pixel Mode", "Can't change X-Windows project to pixel mode", OK);
    press(TYPE_GRID_OFF);
    EXPECT_TRUE(dialogue::isOn(TYPE_GRID_ON));
    press(TYPE_CANCEL);
}

TEST_F(ProjectTypes, ChangingToXRemovesConvertsAndComesBackFromAFile) {
    WidgetNode* button = place(TOOL_PUSH_BUTTON, 110, 66);
    place(TOOL_GAUGE, 110, 200);
    ASSERT_EQ(project.currentWidget->type, TYPE_GAUGE);
    send(CMD_COPY);
    const int id = button->id;
    openChange();
    expect(TO_X, OK);
    press(TYPE_X);
    expect(CONVERT, OK);
    press(TYPE_OK);
    EXPECT_EQ(projectType().platform, 'x');
    EXPECT_EQ(project.gridMode, 1);
    EXPECT_EQ(findName(project.forms, "Form1_Gauge1", false), nullptr);
    button = findRecord(id);
    ASSERT_TRUE(button);
    EXPECT_TRUE(isShown(button->handle));
    EXPECT_EQ(button->width, 3);
    EXPECT_EQ(project.currentWidget, project.forms) << "the gauge was selected";
    EXPECT_FALSE(design.pasteBuffer.chain);
    EXPECT_EQ(commandStatus(CMD_PASTE), STATUS_DISABLED);
    EXPECT_EQ(commandStatus(CMD_TOOL_GAUGE), STATUS_DISABLED);
    EXPECT_EQ(commandStatus(CMD_EXECUTE), STATUS_DISABLED);
    EXPECT_EQ(project.projectModified, 1);
    ASSERT_TRUE(saveProject(root.string(), "x.wdp", false));
    end();
    start("x.wdp");
    EXPECT_EQ(project.projectPlatform, 'x');
    EXPECT_NE(title().find("F90 X-Windows Project"), std::string::npos) << title();
    EXPECT_EQ(commandStatus(CMD_TOOL_GAUGE), STATUS_DISABLED);
}

TEST_F(ProjectTypes, WhatTheDialogueCannotShowStays) {
    project.projectLanguage = 77;
    convertProject({.language = 77, .gridMode = 1, .gridHoriz = 160, .gridVert = 120});
    openChange();
    EXPECT_FALSE(dialogue::isOn(TYPE_F90));
    EXPECT_FALSE(isShown(dialogue::widget(TYPE_F77)));
    expect(SCALABLE, OK);
    press(TYPE_SCALABLE);
    expect(CONVERT, OK);
    press(TYPE_OK);
    const ProjectType expected = {.language = 77, .gridMode = 1, .gridHoriz = 160, .gridVert = 120, .scalable = 1};
    EXPECT_TRUE(projectType() == expected) << records();
}

TEST_F(ProjectTypes, RefusedAtTheEndLeavesEveryRecord) {
    place(TOOL_GAUGE, 110, 200);
    openChange();
    const std::string before = records();
    expect(TO_X, OK);
    press(TYPE_X);
    expect(LANGUAGE, OK);
    press(TYPE_C);
    expect(CONVERT, CANCEL);
    press(TYPE_OK);
    EXPECT_FALSE(dialogue::widget(TYPE_OK));
    EXPECT_EQ(records(), before);
}

TEST_F(ProjectTypes, ScalableAloneLaysNothingOutAnew) {
    convertProject({.gridMode = 1});
    const int form = project.forms->handle;
    openChange();
    expect(SCALABLE, OK);
    press(TYPE_SCALABLE);
    expect(CONVERT, OK);
    press(TYPE_OK);
    EXPECT_EQ(project.scalable, 1);
    EXPECT_EQ(project.forms->handle, form);
}

TEST_F(ProjectTypes, WidgetsComeBackAtTheirCellsAndHiddenFormsStayHidden) {
    WidgetNode* button = place(TOOL_PUSH_BUTTON, 205, 66);
    const int id = button->id;
    send(CMD_NEW_FORM);
    WidgetNode* second = project.forms->next;
    send(CMD_SHOW_ALL);
    ASSERT_FALSE(isShown(second->handle));
    openChange();
    expect(TO_GRID, OK);
    press(TYPE_GRID_ON);
    expect(CONVERT, OK);
    press(TYPE_OK);
    button = findRecord(id);
    ASSERT_TRUE(button);
    EXPECT_EQ(button->xpos, 9);
    EXPECT_FALSE(isShown(project.forms->handle));
    EXPECT_FALSE(isShown(project.forms->next->handle));
    send(CMD_SHOW_ALL);
    EXPECT_TRUE(isShown(project.forms->handle));
    EXPECT_EQ(rectOf(button->handle).x(), 9 * project.gridPixelX);
    EXPECT_EQ(commandStatus(CMD_SNAP_DIALOGUE), STATUS_DISABLED);
    openChange();
    expect(TO_PIXELS, OK);
    press(TYPE_GRID_OFF);
    expect(CONVERT, OK);
    press(TYPE_OK);
    EXPECT_EQ(findRecord(id)->xpos, 198);
    EXPECT_EQ(rectOf(findRecord(id)->handle).x(), 198);
    EXPECT_EQ(commandStatus(CMD_SNAP_DIALOGUE), STATUS_ENABLED);
}

TEST_F(ProjectTypes, CodeThatIsBeingTypedIsKept) {
    place(TOOL_GAUGE, 110, 200);
    WidgetNode* button = place(TOOL_PUSH_BUTTON, 110, 66);
    showCallback(*button);
    pump();
    type(codeText(), "call work()");
    pump();
    openChange();
    expect(TO_X, OK);
    press(TYPE_X);
    expect(CONVERT, OK);
    press(TYPE_OK);
    const WidgetNode* after = findName(project.forms, "Form1_Button1", false);
    ASSERT_TRUE(after);
    EXPECT_EQ(after->slots[SLOT_GENERAL], "call work()");
    EXPECT_EQ(project.currentWidget, after);
}
