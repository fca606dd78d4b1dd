// The frame around the forms: start-up, commands and keys, control windows, dialogues, help.
#include "designer_fixture.h"

#include "dialogues/snap_dialogue.h"
#include "editing/editor_window.h"
#include "platform/paths.h"
#include "platform/text_files.h"
#include "project/files.h"
#include "project/placement.h"
#include "project/preferences.h"
#include "project/tree.h"
#include "settings/places.h"
#include "settings/preferences_file.h"
#include "settings/recent_projects.h"
#include "shell/environment.h"
#include "shell/help.h"
#include "shell/menus.h"
#include "shell/project_commands.h"
#include "shell/window_control.h"
#include "surface/selection.h"
#include "surface/state.h"
#include "surface/window_states.h"
#include "toolkit/testing/robot.h"

#include <QWidget>
#include <map>
#include <utility>

namespace {

using namespace orba::testing;

constexpr int BUTTON_TOOL = CMD_TOOL_PUSH_BUTTON;

std::string label(int entry) {
    char text[256];
    owEnqWidgetProp(entry, owLabel, text, 0);
    return text;
}

} // namespace

// ---- The command line -----------------------------------------------------------------------------------------

// The tables of the rooms are written apart; what they share must not meet twice.
TEST(CommandTable, NoIdentifierAndNoKeyOfOnePlaceIsGivenTwice) {
    std::map<int, int> identifiers;
    std::map<std::pair<int, unsigned>, int> keys;
    for (const Command& command : commandTable()) {
        EXPECT_EQ(++identifiers[command.id], 1) << command.id;
        for (const unsigned place : {IN_DESIGN, IN_TEXT, IN_FIELDS})
            if (command.key && (command.keyModes & place)) {
                const int other = std::exchange(keys[{command.key, place}], command.id);
                EXPECT_EQ(other, 0) << "the key of " << command.id;
            }
    }
    EXPECT_GT(identifiers.size(), 140U);
}

TEST(CommandLine, NamesOneProject) {
    struct Case {
        const char* line;
        const char* folder; // null: the current one
        const char* name;
    };
    const Case cases[] = {
        {"", nullptr, ""},
        {"bridge.wdp", nullptr, "bridge.wdp"},
        {"bridge.wdp more words", nullptr, "bridge.wdp"},
        {"\"two words.wdp\" behind", nullptr, "two words.wdp"},
        {"C:\\work\\bridge.wdp", "C:\\work", "bridge.wdp"},
        {"\"C:\\my work\\bridge.wdp\"", "C:\\my work", "bridge.wdp"},
        {"\"/home/me/my work/bridge\"", "/home/me/my work", "bridge"},
        {"bridge\"rest", nullptr, "bridge"},
        {"sub/bridge.wdp", "+sub", "bridge.wdp"},
        {"./bridge.wdp", "+.", "bridge.wdp"},
    };
    for (const Case& one : cases) {
        const FilePlace place = placeFromCommandLine(one.line);
        EXPECT_EQ(place.name, one.name) << one.line;
        std::string folder = one.folder ? one.folder : currentFolder();
        if (folder[0] == '+')
            folder = absolutePath(joinPath(currentFolder(), folder.substr(1))); // below the current one
        EXPECT_EQ(place.folder, folder) << one.line;
    }
}

// ---- Start-up -------------------------------------------------------------------------------------------------

TEST_F(DesignerTest, StartsWithOneUntitledForm) {
    start();
    ASSERT_NE(project.forms, nullptr);
    EXPECT_EQ(project.forms->name, "Form1");
    EXPECT_EQ(project.forms->next, nullptr);
    EXPECT_EQ(project.projectModified, 0);
    EXPECT_EQ(project.currentWidget, project.forms);
    EXPECT_TRUE(isShown(project.forms->handle));
    EXPECT_EQ(title(), "ORBAWIDG Designer v8.5");
    EXPECT_EQ(owEnqWidgetStatus(button(CMD_TOOL_SELECTOR)), OCHECKED);
    for (const int command :
         std::initializer_list<int>{CMD_PASTE, CMD_UNDO, CMD_REDO, CMD_FIND, CMD_PRINT_CODE, CMD_PRINT_ERRORS,
                                    CMD_EXECUTE, CMD_ABORT, CMD_ALIGN, CMD_CLEAR_CODE, CMD_TEXT_MENU})
        EXPECT_EQ(owEnqWidgetStatus(menuEntry(command)), OUNSELECTABLE) << command;
    for (const int command :
         std::initializer_list<int>{CMD_VIEW_ICON_BAR, CMD_VIEW_TOOL_BOX, CMD_VIEW_HIERARCHY, CMD_VIEW_PROPERTIES,
                                    CMD_VIEW_CODE_EDITOR, CMD_VIEW_COMPILER_LOG})
        EXPECT_EQ(owEnqWidgetStatus(menuEntry(command)), OCHECKED) << command;
}

TEST_F(DesignerTest, OpensTheProjectOfTheCommandLine) {
    start();
    send(BUTTON_TOOL);
    placeWidget(TOOL_PUSH_BUTTON, project.forms->child, 40, 40);
    ASSERT_TRUE(saveProject(root.string(), "with blanks.wdp", false));
    end();
    start("\"" + file("with blanks.wdp") + "\"");
    EXPECT_EQ(title(), "ORBAWIDG Designer v8.5 - [with blanks.wdp - F90 Windows Project]");
    EXPECT_TRUE(isShown(live("Form1_Button1")));
    EXPECT_EQ(recentProject(0), file("with blanks.wdp"));
}

TEST_F(DesignerTest, AMissingProjectLeavesTheFirstOne) {
    expectBox("Error opening file", "Cannot open Project file :gone.wdp", OANSWEROK);
    start("gone");
    EXPECT_EQ(project.forms->name, "Form1");
    EXPECT_TRUE(isShown(project.forms->handle));
    EXPECT_EQ(title(), "ORBAWIDG Designer v8.5");
}

// ---- Commands and keys ----------------------------------------------------------------------------------------

TEST_F(DesignerTest, AToolPlacesOneWidgetAndIsLaidDown) {
    start();
    click(button(BUTTON_TOOL));
    pump();
    EXPECT_EQ(design.activeTool, TOOL_PUSH_BUTTON);
    EXPECT_EQ(owEnqWidgetStatus(button(BUTTON_TOOL)), OCHECKED);
    EXPECT_EQ(owEnqWidgetStatus(button(CMD_TOOL_SELECTOR)), OSELECTABLE);
    click(project.forms->child->handle, {50, 60});
    pump();
    ASSERT_NE(live("Form1_Button1"), 0);
    EXPECT_EQ(design.activeTool, TOOL_SELECTOR);
    EXPECT_EQ(owEnqWidgetStatus(button(CMD_TOOL_SELECTOR)), OCHECKED);
    EXPECT_EQ(project.projectModified, 1);
}

TEST_F(DesignerTest, AToolStaysInHandWhenPreferred) {
    preferences = {};
    preferences.repeatPlacement = 1;
    settingsPlaces.dataDir = data.string();
    savePreferences();
    start();
    click(button(BUTTON_TOOL));
    pump();
    click(project.forms->child->handle, {50, 60});
    pump();
    click(project.forms->child->handle, {50, 160});
    pump();
    EXPECT_EQ(design.activeTool, TOOL_PUSH_BUTTON);
    EXPECT_NE(live("Form1_Button2"), 0);
}

TEST_F(DesignerTest, KeysFollowTheInput) {
    start();
    struct Case {
        int key;
        int design;
        int text;
    };
    const Case cases[] = {
        {controlKey('X'), CMD_CUT, CMD_TEXT_CUT},
        {controlKey('C'), CMD_COPY, CMD_TEXT_COPY},
        {controlKey('V'), CMD_PASTE, CMD_TEXT_PASTE},
        {OKEYDEL, CMD_DELETE, CMD_TEXT_DELETE},
        {controlKey('Z'), CMD_UNDO, CMD_TEXT_UNDO},
        {controlKey('Y'), CMD_REDO, CMD_TEXT_REDO},
        {controlKey('S'), CMD_SAVE_PROJECT, CMD_COMMIT_CODE},
        {controlKey('W'), 0, CMD_INSERT_NAME},
        {controlKey('N'), CMD_NEW_PROJECT, 0},
        {controlKey('D'), CMD_DUPLICATE, 0},
        {controlKey('U'), CMD_UNADOPT, 0},
        {OKEYRIGHTBUTTON, CMD_POPUP, 0},
        {functionKey(1), CMD_HELP, CMD_CODE_HELP},
        {functionKey(2), CMD_SHOW_ALL, CMD_SHOW_ALL},
    };
    setCommandStatus(CMD_PASTE, STATUS_ENABLED);
    for (const Case& one : cases) {
        EXPECT_EQ(owEnqWidgetKeyCallback(project.forms->handle, one.key), one.design) << one.key;
        EXPECT_EQ(owEnqWidgetKeyCallback(codeText(), one.key), one.text) << one.key;
    }
    EXPECT_EQ(owEnqWidgetKeyCallback(project.forms->handle, controlKey('F')), CMD_NEW_FORM);
    EXPECT_NE(owEnqWidgetKeyCallback(codeText(), controlKey('F')), CMD_NEW_FORM);
    setCommandStatus(CMD_PASTE, STATUS_DISABLED);
    EXPECT_EQ(owEnqWidgetKeyCallback(project.forms->handle, controlKey('V')), 0);
}

TEST_F(DesignerTest, SharedEntriesSayWhatTheyActOn) {
    start();
    EXPECT_EQ(label(menuEntry(CMD_CUT)), "Cut Widget|Ctrl+X");
    EXPECT_EQ(owEnqWidgetStatus(menuEntry(CMD_PASTE)), OUNSELECTABLE);
    setInputMode(true);
    EXPECT_EQ(label(menuEntry(CMD_CUT)), "Cut Text|Ctrl+X");
    EXPECT_EQ(toolTip(button(CMD_CUT)).toStdString(), "Cut Text");
    EXPECT_EQ(owEnqWidgetStatus(menuEntry(CMD_PASTE)), OSELECTABLE);
    EXPECT_EQ(owEnqWidgetStatus(menuEntry(CMD_CLEAR_CODE)), OSELECTABLE);
    setInputMode(false);
    EXPECT_EQ(label(menuEntry(CMD_CUT)), "Cut Widget|Ctrl+X");
    EXPECT_EQ(toolTip(button(CMD_CUT)).toStdString(), "Cut Widget from Form to Paste Buffer");
    EXPECT_EQ(owEnqWidgetStatus(menuEntry(CMD_PASTE)), OUNSELECTABLE);
    EXPECT_EQ(owEnqWidgetStatus(menuEntry(CMD_CLEAR_CODE)), OUNSELECTABLE);
}

TEST_F(DesignerTest, CommandsSayWhatAPreferenceAddsToThem) {
    start();
    EXPECT_EQ(label(menuEntry(CMD_GENERATE)), "Save Project and Generate Code");
    EXPECT_EQ(label(menuEntry(CMD_COMPILE)), "Save Project, Compile, Link & Execute|F5");
    EXPECT_EQ(toolTip(button(CMD_COMPILE)).toStdString(), "Save Project, Compile, Link & Execute");
    EXPECT_EQ(label(menuEntry(CMD_SAVE_PROJECT)), "Save Project|Ctrl+S");
    preferences.generateSavesProject = 0;
    preferences.saveGeneratesCode = 1;
    showPreferenceLabels();
    EXPECT_EQ(label(menuEntry(CMD_GENERATE)), "Generate Code");
    EXPECT_EQ(toolTip(button(CMD_COMPILE)).toStdString(), "Compile, Link & Execute");
    EXPECT_EQ(label(menuEntry(CMD_SAVE_PROJECT)), "Save Project and Generate Code|Ctrl+S");
    EXPECT_EQ(label(menuEntry(CMD_SAVE_PROJECT_AS)), "Save Project As... and Generate Code");
}

TEST_F(DesignerTest, CompileAndExecuteHaveTheirKeysOnlyWhileEnabled) {
    start();
    setCommandStatus(CMD_COMPILE, STATUS_ENABLED);
    setCommandStatus(CMD_EXECUTE, STATUS_ENABLED);
    EXPECT_EQ(owEnqWidgetKeyCallback(project.forms->handle, functionKey(5)), CMD_COMPILE);
    EXPECT_EQ(owEnqWidgetKeyCallback(project.forms->handle, functionKey(6)), CMD_EXECUTE);
    setCommandStatus(CMD_COMPILE, STATUS_DISABLED);
    setCommandStatus(CMD_EXECUTE, STATUS_DISABLED);
    EXPECT_EQ(owEnqWidgetKeyCallback(project.forms->handle, functionKey(5)), 0);
    EXPECT_EQ(owEnqWidgetKeyCallback(project.forms->handle, functionKey(6)), 0);
    EXPECT_EQ(owEnqWidgetStatus(button(CMD_EXECUTE)), OUNSELECTABLE);
}

TEST_F(DesignerTest, DelIsFreeWhenItIsNotToDelete) {
    preferences = {};
    preferences.delDeletes = 0;
    settingsPlaces.dataDir = data.string();
    savePreferences();
    start();
    EXPECT_EQ(owEnqWidgetKeyCallback(project.forms->handle, OKEYDEL), 0);
    EXPECT_EQ(label(menuEntry(CMD_DELETE)), "Delete Widget");
}

TEST_F(DesignerTest, ToolsOfWindowsStayVisibleAndClosedElsewhere) {
    start();
    project.projectPlatform = 'x';
    refreshCommands();
    for (const int tool : {CMD_TOOL_TAB_BOX, CMD_TOOL_TOOL_BAR, CMD_TOOL_PANE, CMD_TOOL_TEXT_ARRAY,
                           CMD_TOOL_VALUE_ARRAY, CMD_TOOL_TABLE_BOX, CMD_TOOL_GAUGE, CMD_TOOL_PROGRESS_BAR,
                           CMD_TOOL_TTY_ENTRY, CMD_TOOL_TREE_VIEW, CMD_TOOL_TOOL_SEPARATOR}) {
        EXPECT_EQ(owEnqWidgetStatus(button(tool)), OUNSELECTABLE) << tool;
        EXPECT_TRUE(isShown(button(tool))) << tool;
    }
    EXPECT_EQ(owEnqWidgetStatus(button(BUTTON_TOOL)), OSELECTABLE);
    project.projectPlatform = 'w';
    refreshCommands();
    EXPECT_EQ(owEnqWidgetStatus(button(CMD_TOOL_TABLE_BOX)), OSELECTABLE);
}

TEST_F(DesignerTest, AnUnknownIdentifierDoesNothing) {
    start();
    send(15999);
    EXPECT_EQ(project.projectModified, 0);
    EXPECT_EQ(project.currentWidget, project.forms);
}

// ---- Control windows ------------------------------------------------------------------------------------------

TEST_F(DesignerTest, ViewEntriesShowAndHideTheirWindows) {
    start();
    const struct {
        int command;
        WindowRow row;
    } windows[] = {{CMD_VIEW_ICON_BAR, WINDOW_ICON_BAR},       {CMD_VIEW_TOOL_BOX, WINDOW_TOOL_BOX},
                   {CMD_VIEW_HIERARCHY, WINDOW_HIERARCHY},     {CMD_VIEW_PROPERTIES, WINDOW_PROPERTIES},
                   {CMD_VIEW_CODE_EDITOR, WINDOW_CODE_EDITOR}, {CMD_VIEW_COMPILER_LOG, WINDOW_COMPILER_LOG}};
    for (const auto& window : windows) {
        const int handle = windowStates[window.row].handle;
        choose(menuEntry(window.command));
        pump();
        EXPECT_FALSE(isShown(handle)) << window.command;
        EXPECT_EQ(owEnqWidgetStatus(menuEntry(window.command)), OSELECTABLE);
        choose(menuEntry(window.command));
        pump();
        EXPECT_TRUE(isShown(handle)) << window.command;
        EXPECT_EQ(owEnqWidgetStatus(menuEntry(window.command)), OCHECKED);
    }
}

TEST_F(DesignerTest, ACloseBoxUnchecksTheEntryOfItsWindow) {
    start();
    const int pane = windowStates[WINDOW_PROPERTIES].handle;
    viewOf(pane)->close();
    pump();
    EXPECT_FALSE(isShown(pane));
    EXPECT_EQ(owEnqWidgetStatus(menuEntry(CMD_VIEW_PROPERTIES)), OSELECTABLE);
    choose(menuEntry(CMD_VIEW_PROPERTIES));
    pump();
    EXPECT_TRUE(isShown(pane));
}

TEST_F(DesignerTest, AHiddenWindowIsHiddenAtTheNextStart) {
    start();
    choose(menuEntry(CMD_VIEW_HIERARCHY));
    pump();
    end();
    start();
    EXPECT_FALSE(isShown(windowStates[WINDOW_HIERARCHY].handle));
    EXPECT_EQ(owEnqWidgetStatus(menuEntry(CMD_VIEW_HIERARCHY)), OSELECTABLE);
    EXPECT_TRUE(isShown(windowStates[WINDOW_PROPERTIES].handle));
    choose(menuEntry(CMD_DEFAULT_POSITIONS));
    pump();
    EXPECT_TRUE(isShown(windowStates[WINDOW_HIERARCHY].handle));
    EXPECT_FALSE(pathExists((data / "wdesign.ini").string()));
    // The entries keep what they showed.
    EXPECT_EQ(owEnqWidgetStatus(menuEntry(CMD_VIEW_HIERARCHY)), OSELECTABLE);
}

TEST_F(DesignerTest, ThePanesFitASmallScreen) {
    start();
    int screenWidth = 0, screenHeight = 0;
    owEnqScreenSize(&screenWidth, &screenHeight);
    ASSERT_LT(screenWidth, 150 + 235 + 560); // the panes alone would not fit
    EXPECT_LE(viewOf(MASTER_WINDOW)->width(), screenWidth);
    EXPECT_EQ(viewOf(windowStates[WINDOW_HIERARCHY].handle)->width(), 150);
    EXPECT_GE(viewOf(windowStates[WINDOW_PROPERTIES].handle)->width(), 200); // the code editor gives way first
    end();
    start(); // and asks for as much as before on a wider one
    EXPECT_EQ(windowStates[WINDOW_CODE_EDITOR].width, 560);
}

TEST_F(DesignerTest, TheMasterWindowComesBackWhereItWasLeft) {
    writeTextFile((data / "wdesign.ini").string(), "50 60 700 500 1\n");
    start();
    moveByUser(MASTER_WINDOW, {90, 80});
    pump();
    resizeByUser(MASTER_WINDOW, {640, 480});
    pump();
    end();
    std::string text;
    readTextFile((data / "wdesign.ini").string(), text);
    EXPECT_EQ(text.substr(0, text.find('\n')), "    90     80    640    480   1");
}

TEST_F(DesignerTest, AllFormsHideAndShowTogether) {
    start();
    send(CMD_NEW_FORM);
    ASSERT_NE(project.forms->next, nullptr);
    send(CMD_SHOW_ALL);
    for (const WidgetNode* form = project.forms; form; form = form->next) {
        EXPECT_FALSE(isShown(form->handle));
        EXPECT_EQ(form->formHidden, 1);
    }
    EXPECT_TRUE(textModeInForce());
    EXPECT_EQ(toolTip(button(CMD_SHOW_ALL)).toStdString(), "Show all Forms");
    send(CMD_SHOW_ALL);
    for (const WidgetNode* form = project.forms; form; form = form->next) {
        EXPECT_TRUE(isShown(form->handle));
        EXPECT_EQ(form->formHidden, 0);
    }
    EXPECT_FALSE(textModeInForce());
    EXPECT_EQ(toolTip(button(CMD_SHOW_ALL)).toStdString(), "Hide all Forms");
}

TEST_F(DesignerTest, AProjectSavedWithItsFormsHiddenShowsThemAtTheFirstKey) {
    start();
    send(CMD_SHOW_ALL);
    ASSERT_TRUE(saveProject(root.string(), "hidden.wdp", false));
    send(CMD_SHOW_ALL);
    ASSERT_TRUE(openProjectFile(root.string(), "hidden.wdp"));
    pump();
    EXPECT_FALSE(isShown(project.forms->handle));
    EXPECT_EQ(toolTip(button(CMD_SHOW_ALL)).toStdString(), "Show all Forms");
    send(CMD_SHOW_ALL);
    EXPECT_TRUE(isShown(project.forms->handle));
}

// ---- Snap grid ------------------------------------------------------------------------------------------------

TEST_F(DesignerTest, TheSnapGridIsSetInItsDialogue) {
    start();
    choose(menuEntry(CMD_SNAP_DIALOGUE));
    pump();
    EXPECT_EQ(owEnqWidgetKeyCallback(owEnqActiveWindow(), OKEYESC), SNAP_CANCEL);
    send(SNAP_OFF);
    send(SNAP_OK);
    EXPECT_EQ(project.snapOn, 0);
    EXPECT_EQ(owEnqSnapGrid(), 1);
    EXPECT_EQ(project.projectModified, 1);
    project.projectModified = 0;
    choose(menuEntry(CMD_SNAP_DIALOGUE));
    pump();
    send(SNAP_ON);
    send(SNAP_CANCEL);
    EXPECT_EQ(project.snapOn, 0);
    EXPECT_EQ(project.projectModified, 0);
    project.gridMode = 1;
    refreshCommands();
    EXPECT_EQ(owEnqWidgetStatus(menuEntry(CMD_SNAP_DIALOGUE)), OUNSELECTABLE);
    project.gridMode = 0;
}

// ---- Help -----------------------------------------------------------------------------------------------------

TEST_F(DesignerTest, TopicsFollowWhatLastTookTheInput) {
    start();
    design.helpContext = "Object Hierarchy";
    EXPECT_EQ(helpTopic(), "Object Hierarchy");
    design.helpContext = "Form";
    EXPECT_EQ(helpTopic(), "Form");
    const WidgetNode* box = placeWidget(TOOL_CHECK_BOX, project.forms->child, 40, 40).widget;
    ASSERT_NE(box, nullptr);
    project.currentWidget = const_cast<WidgetNode*>(box);
    EXPECT_EQ(helpTopic(), "Check Box");
    project.projectPlatform = 'x';
    EXPECT_EQ(helpTopic(), "");
    send(CMD_HELP); // opens nothing and says nothing
    project.projectPlatform = 'w';
    project.currentWidget = project.forms;
}

TEST_F(DesignerTest, MissingHelpIsReportedEachTime) {
    setenv("ORBA", root.c_str(), 1);
    start();
    design.helpContext = "Tool Box";
    const struct {
        int command;
        const char* text;
    } cases[] = {
        {CMD_HELP, "ORBAWIDG Designer help file could not be found"},
        {CMD_HELP_DESIGNER, "ORBAWIDG Designer help file could not be found"},
        {CMD_HELP_TOOLKIT, "ORBAWIDG help file could not be found"},
        {CMD_HELP_BASE, "ORBA help file could not be found"},
        {CMD_HELP_PLOT, "ORBAPLOT help file could not be found"},
        {CMD_HELP_MESH, "ORBAMESH help file could not be found"},
    };
    for (const auto& one : cases) {
        expectBox("Error opening help file", one.text, OANSWEROK);
        send(one.command);
    }
    unsetenv("ORBA");
}

TEST_F(DesignerTest, HelpThatIsAPageAloneIsShown) {
    std::filesystem::create_directories(root / "Help");
    writeTextFile(file("Help/Wdesign85.html"), "<h1>Tools</h1>");
    setenv("ORBA", root.c_str(), 1);
    start();
    design.helpContext = "Tool Box";
    send(CMD_HELP); // no box
    send(CMD_HELP_DESIGNER);
    unsetenv("ORBA");
}

TEST_F(DesignerTest, TheAboutBoxClosesWithReturn) {
    start();
    choose(menuEntry(CMD_ABOUT));
    pump();
    const int box = owEnqActiveWindow();
    EXPECT_TRUE(isShown(box));
    key(0, Qt::Key_Return);
    pump();
    EXPECT_EQ(viewOf(box), nullptr);
    EXPECT_NE(owEnqActiveWindow(), box);
}
