// Projects and forms as files, the questions before one is left, generation, and the built program.
#include "designer_fixture.h"

#include "compile/hooks.h"
#include "dialogues/project_type.h"
#include "platform/paths.h"
#include "platform/text_files.h"
#include "project/defaults.h"
#include "project/files.h"
#include "project/host.h"
#include "project/placement.h"
#include "project/preferences.h"
#include "project_script.h"
#include "settings/recent_projects.h"
#include "shell/project_commands.h"
#include "surface/commands.h"
#include "surface/hierarchy.h"
#include "surface/state.h"
#include "toolkit/testing/robot.h"

#include <QTreeWidget>

using namespace orba::testing;

// ---- Projects -------------------------------------------------------------------------------------------------

namespace {

const char SAVE_TEXT[] = "Do you wish to save the current project first?";

} // namespace

TEST_F(DesignerTest, AnUnchangedProjectIsLeftWithoutAQuestion) {
    start();
    send(CMD_EXIT);
    EXPECT_EQ(design.quitRequested, 1);
}

TEST_F(DesignerTest, CancelKeepsTheProgramRunning) {
    start();
    project.projectModified = 1;
    expectBox("Exit ORBAWIDG Designer", SAVE_TEXT, OANSWERCANCEL);
    send(CMD_EXIT);
    EXPECT_EQ(design.quitRequested, 0);
    EXPECT_EQ(project.projectModified, 1);
    project.projectModified = 0;
}

TEST_F(DesignerTest, NoExitsWithoutASave) {
    start();
    project.projectModified = 1;
    expectBox("Exit ORBAWIDG Designer", SAVE_TEXT, OANSWERNO);
    send(CMD_EXIT);
    EXPECT_EQ(design.quitRequested, 1);
}

TEST_F(DesignerTest, YesAndThenNoNameCancelsWhatAskedForIt) {
    start();
    project.projectModified = 1;
    expectBox("Exit ORBAWIDG Designer", SAVE_TEXT, OANSWERYES);
    expectBrowser("Save Project As", "");
    send(CMD_EXIT);
    EXPECT_EQ(design.quitRequested, 0);
    expectBox("Start New Project", SAVE_TEXT, OANSWERYES);
    expectBrowser("Save Project As", "");
    send(CMD_NEW_PROJECT);
    EXPECT_EQ(project.projectModified, 1);
    project.projectModified = 0;
}

TEST_F(DesignerTest, YesSavesUnderTheChosenNameWithoutAskingAboutAnOldFile) {
    writeTextFile(file("old.wdp"), "something");
    start();
    project.projectModified = 1;
    expectBox("Exit ORBAWIDG Designer", SAVE_TEXT, OANSWERYES);
    expectBrowser("Save Project As", file("old"));
    send(CMD_EXIT);
    EXPECT_EQ(design.quitRequested, 1);
    std::string bytes;
    readTextFile(file("old.wdp"), bytes);
    EXPECT_EQ(bytes.substr(0, 18), "ORBAWIDGDESIGNV8.0");
}

TEST_F(DesignerTest, TheOpenQuestionAsksBeforeItOverwrites) {
    writeTextFile(file("old.wdp"), "something");
    start();
    project.projectModified = 1;
    expectBox("Open New Project", SAVE_TEXT, OANSWERYES);
    expectBrowser("Save Project As", file("old.wdp"));
    expectBox("Overwrite existing file?", "File already exists. Overwrite?", OANSWERNO);
    expectBrowser("Save Project As", file("new.wdp"));
    expectBrowser("Open Project", "");
    send(CMD_OPEN_PROJECT);
    EXPECT_TRUE(pathExists(file("new.wdp")));
    std::string bytes;
    readTextFile(file("old.wdp"), bytes);
    EXPECT_EQ(bytes, "something");
}

TEST_F(DesignerTest, AFailedSaveStopsWhatAskedForIt) {
    start();
    project.projectModified = 1;
    project.projectName = "bridge.wdp";
    project.projectDir = file("no/such/folder");
    for (const char* what : {"Exit ORBAWIDG Designer", "Start New Project", "Open New Project"}) {
        expectBox(what, SAVE_TEXT, OANSWERYES);
        expectBox("Error saving file", "File to save to could not be opened or created", OANSWEROK);
    }
    send(CMD_EXIT);
    send(CMD_NEW_PROJECT);
    send(CMD_OPEN_PROJECT);
    EXPECT_EQ(design.quitRequested, 0);
    EXPECT_EQ(project.projectModified, 1);
    EXPECT_EQ(project.projectName, "bridge.wdp");
    project.projectModified = 0;
}

TEST_F(DesignerTest, SaveAsksForANameOnce) {
    start();
    project.projectModified = 1;
    expectBrowser("Save Project As", file("bridge"));
    click(button(CMD_SAVE_PROJECT));
    pump();
    EXPECT_EQ(project.projectModified, 0);
    EXPECT_EQ(title(), "ORBAWIDG Designer v8.5 - [bridge.wdp - F90 Windows Project]");
    project.projectModified = 1;
    choose(menuEntry(CMD_SAVE_PROJECT));
    pump();
    EXPECT_EQ(project.projectModified, 0);
    EXPECT_TRUE(pathExists(file("bridge.wdp")));
}

TEST_F(DesignerTest, RecentProjectsMoveToTheTopAndFallOffTheEnd) {
    start();
    for (const char* name : {"a.wdp", "b.wdp", "c.wdp", "d.wdp", "e.wdp", "f.wdp", "c.wdp"}) {
        expectBrowser("Save Project As", file(name));
        if (pathExists(file(name)))
            expectBox("Overwrite existing file?", "File already exists. Overwrite?", OANSWERYES);
        send(CMD_SAVE_PROJECT_AS);
    }
    std::string list;
    readTextFile((data / "wdesign.lst").string(), list);
    std::string expected;
    for (const char* name : {"c.wdp", "f.wdp", "e.wdp", "d.wdp", "b.wdp"}) expected += file(name) + "\n";
    EXPECT_EQ(list, expected);
    send(CMD_RECENT_FIRST + 3);
    EXPECT_EQ(project.projectName, "d.wdp");
    EXPECT_EQ(recentProject(0), file("d.wdp"));
}

TEST_F(DesignerTest, AFailedOpenKeepsTheProjectAndItsChanges) {
    writeTextFile(file("poem.wdp"), std::string(4000, 'x'));
    start();
    project.projectModified = 1;
    expectBox("Open New Project", SAVE_TEXT, OANSWERNO);
    expectBrowser("Open Project", file("poem.wdp"));
    expectBox("Error opening file", "File is not a ORBAWIDG Designer file", OANSWEROK);
    send(CMD_OPEN_PROJECT);
    EXPECT_EQ(project.projectModified, 1);
    EXPECT_TRUE(isShown(project.forms->handle));
    project.projectModified = 0;
}

TEST_F(DesignerTest, ANewProjectStartsAgain) {
    start();
    placeWidget(TOOL_PUSH_BUTTON, project.forms->child, 40, 40);
    ASSERT_TRUE(saveProject(root.string(), "old.wdp", false));
    project.projectModified = 1;
    expectBox("Start New Project", SAVE_TEXT, OANSWERNO);
    send(CMD_NEW_PROJECT);
    send(TYPE_OK);
    EXPECT_EQ(live("Form1_Button1"), 0);
    EXPECT_EQ(project.forms->name, "Form1");
    EXPECT_EQ(project.projectName, "");
    EXPECT_EQ(project.projectModified, 0);
    EXPECT_EQ(title(), "ORBAWIDG Designer v8.5");
}

TEST_F(DesignerTest, BackupsOfChangedProjectsStandBesideThemAndMarkNothing) {
    start();
    project.projectModified = 1;
    send(CMD_AUTO_BACKUP);
    send(CMD_AUTO_BACKUP);
    EXPECT_TRUE(pathExists(file("Auto_Backup.wdp")));
    EXPECT_EQ(project.projectName, "");
    EXPECT_EQ(project.projectModified, 1);
    ASSERT_TRUE(saveProject(root.string(), "a.b.wdp", false));
    send(CMD_AUTO_BACKUP);
    EXPECT_FALSE(pathExists(file("a_Backup.b.wdp"))) << "nothing was changed since";
    project.projectModified = 1;
    send(CMD_AUTO_BACKUP);
    EXPECT_TRUE(pathExists(file("a_Backup.b.wdp")));
    EXPECT_EQ(project.projectName, "a.b.wdp");
    expectBox("Exit ORBAWIDG Designer", SAVE_TEXT, OANSWERNO);
    send(CMD_EXIT);
    EXPECT_EQ(design.quitRequested, 1);
}

TEST_F(DesignerTest, AFormIsSavedAndInserted) {
    start();
    send(CMD_NEW_FORM);
    expectBrowser("Save Form As", file("second"));
    send(CMD_SAVE_FORM);
    ASSERT_TRUE(pathExists(file("second.wdf")));
    send(CMD_SAVE_FORM); // goes where it went before
    expectBrowser("Insert Form", file("second.wdf"));
    expectBox("Invalid Form Name", "Form of same name alredy exists in this project", OANSWEROK);
    send(CMD_INSERT_FORM);
    project.projectModified = 0;
    send(CMD_NEW_PROJECT);
    send(TYPE_OK);
    expectBrowser("Insert Form", file("second.wdf"));
    send(CMD_INSERT_FORM);
    ASSERT_NE(project.forms->next, nullptr);
    EXPECT_EQ(project.forms->next->name, "Form2");
    EXPECT_TRUE(isShown(project.forms->next->handle));
    EXPECT_EQ(project.projectModified, 1);
    project.projectModified = 0;
}

TEST_F(DesignerTest, GenerateSavesFirstAndAsksForTheSource) {
    start();
    expectBrowser("Save Project As", file("bridge"));
    expectBrowser("Create ORBAWIDG code", file("bridge"));
    send(CMD_GENERATE);
    EXPECT_TRUE(pathExists(file("bridge.f90")));
    EXPECT_EQ(project.sourceStale, 0);
    EXPECT_EQ(project.sourceName, "bridge.f90");
}

TEST_F(DesignerTest, TheHierarchyFollowsAMasterThatGenerationPutsFirst) {
    start();
    send(CMD_NEW_FORM);
    project.forms->formType = FORM_STATIC_SDI;
    project.forms->next->formType = FORM_MASTER_SDI;
    expectBrowser("Save Project As", file("bridge"));
    expectBrowser("Create ORBAWIDG code", file("bridge"));
    send(CMD_GENERATE);
    ASSERT_EQ(project.forms->name, "Form2");
    const auto* rows = qobject_cast<QTreeWidget*>(viewOf(hierarchyBox()));
    ASSERT_TRUE(rows && rows->topLevelItemCount() == 2);
    EXPECT_EQ(rows->topLevelItem(0)->text(0), "Form2");
    EXPECT_EQ(rows->topLevelItem(1)->text(0), "Form1");
    EXPECT_EQ(rows->currentItem(), rows->topLevelItem(0)) << "the form that was selected";
}

TEST_F(DesignerTest, AChosenSourceBelongsToItsProjectAndToNoOther) {
    start();
    expectBrowser("Save Project As", file("bridge"));
    expectBrowser("Create ORBAWIDG code", file("bridge"));
    send(CMD_GENERATE);
    EXPECT_EQ(project.projectModified, 0);
    end();
    start(file("bridge.wdp"));
    EXPECT_EQ(project.sourceName, "bridge.f90");
    std::string source, later;
    readTextFile(file("bridge.f90"), source);
    expectBrowser("Save Project As", file("tunnel"));
    send(CMD_SAVE_PROJECT_AS);
    EXPECT_EQ(project.sourceName, "");
    project.forms->text = "Tunnel";
    project.sourceStale = 1;
    expectBrowser("Create ORBAWIDG code", "");
    expectBox("Source not generated", "Compilation aborted.", OANSWEROK);
    send(CMD_COMPILE);
    readTextFile(file("bridge.f90"), later);
    EXPECT_EQ(later, source);
    project.projectModified = 0;
}

TEST_F(DesignerTest, TheLogIsEmptiedWithItsProject) {
    start();
    expectBrowser("Save Project As", file("bridge"));
    send(CMD_SAVE_PROJECT_AS);
    static int emptied;
    emptied = 0;
    buildHooks.clearLog = [] { ++emptied; };
    send(CMD_NEW_PROJECT);
    send(TYPE_OK);
    EXPECT_EQ(emptied, 1);
    expectBrowser("Open Project", file("bridge.wdp"));
    send(CMD_OPEN_PROJECT);
    EXPECT_EQ(emptied, 2);
}

TEST_F(DesignerTest, ACancelledGenerationLeavesNoName) {
    preferences = {};
    start();
    preferences.generateSavesProject = 0;
    project.projectTitle = "bridge";
    expectBrowser("Create ORBAWIDG code", "");
    expectBox("Source not generated", "Compilation aborted.", OANSWEROK);
    send(CMD_COMPILE);
    EXPECT_EQ(project.sourceName, "");
    EXPECT_EQ(project.sourceDir, "");
    EXPECT_EQ(project.sourceStale, 1);
}

// ---- Files ----------------------------------------------------------------------------------------------------

namespace {

// Where two files differ: the number of bytes and the first few places.
std::string difference(const std::string& first, const std::string& second) {
    std::string places;
    std::size_t count = first.size() == second.size() ? 0 : 1;
    for (std::size_t at = 0; at < std::min(first.size(), second.size()); at++) {
        if (first[at] == second[at]) continue;
        if (count++ < 20) places += " " + std::to_string(at);
    }
    return count == 0 ? "" : std::to_string(count) + " bytes:" + places;
}

} // namespace

TEST_F(DesignerTest, AProjectThatIsOnlyOpenedAndSavedIsTheSameFile) {
    for (const char* name : {"beam", "converter", "greeting", "heat"}) {
        const std::string own = file(std::string(name) + ".wdp");
        std::filesystem::copy_file(std::string(ORBA_SOURCE_DIR "/examples/") + name + "/" + name + ".wdp", own);
        std::string before, after;
        readTextFile(own, before);
        start(own);
        send(CMD_SAVE_PROJECT);
        end();
        readTextFile(own, after);
        EXPECT_EQ(difference(before, after), "") << name;
    }
}

// So are the projects of all golden sources, which have every type of widget, in each language, once a designer has
// saved them: what only live widgets know, such as the place where a docked bar will float, then stands in the file.
TEST_F(DesignerTest, EveryProjectThatIsOnlyOpenedAndSavedIsTheSameFile) {
    const auto openAndSave = [&] {
        std::string bytes;
        start(file("golden.wdp"));
        send(CMD_SAVE_PROJECT);
        end();
        readTextFile(file("golden.wdp"), bytes);
        return bytes;
    };
    for (const auto& entry : std::filesystem::directory_iterator(ORBA_SOURCE_DIR "/tests/codegen/golden")) {
        if (entry.path().extension() != ".project") continue;
        for (const int language : {77, 90, 99}) {
            std::string script;
            readTextFile(entry.path().string(), script);
            host = {}; // no designer runs
            makeDefaults();
            project.projectLanguage = language;
            readProjectScript(script);
            host.defineColour(255, 0, 0, 0); // the last colours are those of the widget defaults, and in no project
            ASSERT_TRUE(saveProject(root.string(), "golden.wdp", true));
            resetProject(); // a designer starts with none
            const std::string before = openAndSave();
            EXPECT_EQ(difference(before, openAndSave()), "") << entry.path().stem() << " in " << language;
        }
    }
    reports(); // some of the scripts ask for sizes and styles that no live widget has
}

// ---- The built program ----------------------------------------------------------------------------------------

namespace {

// A program that stands where a build would have put it.
void placeProgram(const std::filesystem::path& folder, const std::string& script) {
    project.sourceDir = folder.string();
    project.sourceName = "prog.f90";
    const std::string path = (folder / "prog").string();
    writeTextFile(path, "#!/bin/sh\n" + script + "\n");
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    setCommandStatus(CMD_EXECUTE, STATUS_ENABLED);
    setCommandStatus(CMD_COMPILE, STATUS_ENABLED);
}

struct RunStatus {
    int compile, execute, abort;
    bool operator==(const RunStatus&) const = default;
};

RunStatus runStatus() { return {commandStatus(CMD_COMPILE), commandStatus(CMD_EXECUTE), commandStatus(CMD_ABORT)}; }

constexpr RunStatus RUNNING = {STATUS_DISABLED, STATUS_DISABLED, STATUS_ENABLED};
constexpr RunStatus IDLE = {STATUS_ENABLED, STATUS_ENABLED, STATUS_DISABLED};

// Ticks of the watch until the program's end has been noticed.
void watchUntilIdle(void (*tick)(int)) {
    for (int tries = 0; tries < 100 && !(runStatus() == IDLE); tries++) {
        settle(50);
        tick(CMD_WATCH);
    }
}

} // namespace

TEST_F(DesignerTest, AProgramThatEndsIsNoticed) {
    start();
    placeProgram(root, "sleep 0.2; exit 3");
    send(CMD_EXECUTE);
    EXPECT_EQ(runStatus(), RUNNING);
    EXPECT_EQ(owEnqKeyCallback(functionKey(6)), 0);
    watchUntilIdle(send);
    EXPECT_EQ(runStatus(), IDLE);
    EXPECT_EQ(owEnqKeyCallback(functionKey(6)), CMD_EXECUTE);
}

TEST_F(DesignerTest, AProgramThatCrashesIsReported) {
    start();
    placeProgram(root, "kill -SEGV $$");
    expectBox("Application Terminted", "Unhandled Exception or Missing DLL", OANSWEROK);
    send(CMD_EXECUTE);
    watchUntilIdle(send);
    EXPECT_EQ(runStatus(), IDLE);
}

TEST_F(DesignerTest, AbortEndsTheProgram) {
    start();
    placeProgram(root, "echo $$ > started; exec sleep 60");
    send(CMD_EXECUTE);
    for (int tries = 0; tries < 100 && !pathExists(file("started")); tries++) settle(20);
    settle(50);
    click(button(CMD_ABORT));
    pump();
    EXPECT_EQ(runStatus(), IDLE);
    std::string pid;
    readTextFile(file("started"), pid);
    EXPECT_FALSE(std::filesystem::exists("/proc/" + pid.substr(0, pid.find('\n')) + "/exe"));
}

TEST_F(DesignerTest, ExecuteNeedsABuild) {
    start();
    expectBox("Execute Project", "Must Compile & Link first", OANSWEROK);
    send(CMD_EXECUTE);
}
