#include "shell/designer.h"

#include "codegen/generate.h"
#include "compile/catalogue.h"
#include "compile/execute.h"
#include "dialogues/editors.h"
#include "dialogues/frame.h"
#include "dialogues/widget_defaults.h"
#include "editing/modes.h"
#include "editing/syntax.h"
#include "menu-c.h"
#include "project/defaults.h"
#include "project/host.h"
#include "project/preferences.h"
#include "settings/places.h"
#include "settings/preferences_file.h"
#include "settings/recent_projects.h"
#include "settings/window_states.h"
#include "shell/build_commands.h"
#include "shell/command_states.h"
#include "shell/command_table.h"
#include "shell/environment.h"
#include "shell/input.h"
#include "shell/menus.h"
#include "shell/project_commands.h"
#include "shell/splash.h"
#include "shell/toolkit_host.h"
#include "shell/window_control.h"
#include "surface/event.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/selection.h"
#include "surface/state.h"
#include "surface/undo.h"
#include "surface/window_states.h"

// ---- Start-up -------------------------------------------------------------------------------------------------

namespace {

void openLibraries() {
    oOpenOrba();
    oGuiwin();
    owInitializeMenu();
    oMoveTo2D(0, 0);
}

void readGrid() {
    int columns = 0, rows = 0, cellWidth = 0, cellHeight = 0;
    owEnqGuiGrid(&columns, &rows, &cellWidth, &cellHeight);
    environment.codePointSize = cellHeight / 2 - 2;
    project.gridHoriz = 36;
    project.gridVert = 27;
    setGridMode(1);
    host.enquireGrid(project.gridPixelX, project.gridPixelY);
    owSetSnapGrid(project.snapGrid);
}

void readSettings() {
    int screenWidth = 0, screenHeight = 0;
    owEnqScreenSize(&screenWidth, &screenHeight);
    loadWindowStates(screenWidth, screenHeight);
    loadPreferences(environment.codePointSize);
    setGridMode(0);
}

void buildWindows() {
    buildMasterWindow();
    selectTool(TOOL_SELECTOR);
    if (preferences.syntaxColours && !loadSyntaxAttributes()) syntaxNotAvailable();
    joinEditors();
    buildControlWindows();
    joinBuildToWindows();
    joinProjectDialogues();
    hooks.formFileForgotten = forgetFormFile;
    loadRecentProjects(fileMenu());
    showPreferenceLabels();
}

void makeFirstProject() {
    owManage();
    raiseFloatingWindows();
    owSetActiveWindow(MASTER_WINDOW);
    startNewProject(); // its form has the input at first
}

} // namespace

void startDesigner(const std::string& commandLine) {
    project.projectPlatform = 'w';
    readEnvironment();
    fillHost();
    openLibraries();
    readGrid();
    noteStartColours();
    readSettings();
    buildWindows();
    setUpCompiler();
    loadStartupDefaults(settingsPlaces.dataDir);
    leaveTextMode();
    showSplash();
    followInput();
    startAutoBackup();
    makeFirstProject();
    const FilePlace place = placeFromCommandLine(commandLine);
    if (!place.name.empty()) {
        openProjectFile(place.folder, place.name);
        activateWidget(project.currentWidget);
    }
}

// ---- The action loop ------------------------------------------------------------------------------------------

namespace {

constexpr int EXPOSE_OFFSET = 3 * OIDENT;

} // namespace

void handleEvent(int callback) {
    if (callback >= EXPOSE_OFFSET && project.currentWidget && project.currentWidget->type == TYPE_GRAPHICS_FRAME)
        drawFrameCross(*project.currentWidget);
    owEnqActionState(&action);
    runCommand(callback);
    designEvent(callback);
    giveInputBackAfter(callback);
    noteEdit();
}

void runActionLoop() {
    while (!design.quitRequested) {
        int callback = 0;
        owAction(&callback);
        handleEvent(callback);
    }
}

// ---- The end --------------------------------------------------------------------------------------------------

void endDesigner() {
    leaveWidgetDefaults(); // gives the sheet its pane back
    forgetDialogues();
    saveWindowStates();
    closeProject();
    freeDefaults();
    forgetProgram();
    owCloseMenu();
    oCloseOrba();
    forgetCommandWidgets();
    for (WindowState& state : windowStates) state.handle = 0;
    design = {};
}

int runDesigner(const std::string& commandLine) {
    startDesigner(commandLine);
    runActionLoop();
    endDesigner();
    return 0;
}
