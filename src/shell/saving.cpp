#include "shell/saving.h"

#include "codegen/generate.h"
#include "compile/navigation.h"
#include "editing/code_editor.h"
#include "menu-c.h"
#include "platform/paths.h"
#include "project/files.h"
#include "project/host.h"
#include "project/preferences.h"
#include "settings/recent_projects.h"
#include "shell/command_states.h"
#include "shell/environment.h"
#include "shell/menus.h"
#include "surface/hierarchy.h"
#include "surface/state.h"
#include "surface/undo.h"

void showProjectTitle() {
    std::string title = environment.mainTitle;
    const std::string& name = project.projectName.empty() ? project.projectTitle : project.projectName;
    if (!name.empty()) title += " - [" + name + " - " + projectKind() + "]";
    owSetWidgetProp(MASTER_WINDOW, owTitle, title.c_str(), 0);
}

// ---- Saving ---------------------------------------------------------------------------------------------------

namespace {

bool saveTo(const std::string& folder, const std::string& name) {
    if (!saveProject(folder, name, false)) return false;
    noteSaved();
    showProjectTitle();
    addRecentProject(fileMenu(), joinPath(project.projectDir, project.projectName));
    return true;
}

// What makes a project the owner of its source and program.
struct ProjectSource {
    std::string folder, name;
    MissingSource missing;
    int stale;
    std::int64_t exeTime;
};

ProjectSource sourceOfProject() {
    return {project.sourceDir, project.sourceName, project.missingSource, project.sourceStale, project.exeTime};
}

void restoreSource(const ProjectSource& source) {
    project.sourceDir = source.folder;
    project.sourceName = source.name;
    project.missingSource = source.missing;
    project.sourceStale = source.stale;
    project.exeTime = source.exeTime;
}

bool chooseProjectName(bool asksOverwrite, FilePlace& place) {
    place.folder = project.projectDir.empty() ? currentFolder() : project.projectDir;
    place.name = project.projectTitle;
    return chooseSaveFile("Save Project As", ".wdp", asksOverwrite, place.folder, place.name);
}

} // namespace

bool saveUnderChosenName() {
    FilePlace place;
    if (!chooseProjectName(true, place)) return false;
    const std::string old = joinPath(project.projectDir, project.projectName);
    if (project.projectName.empty() || absolutePath(old) == absolutePath(joinPath(place.folder, place.name)))
        return saveTo(place.folder, place.name);
    const ProjectSource before = sourceOfProject();
    startAnotherProject();
    if (!saveTo(place.folder, place.name)) {
        restoreSource(before);
        return false;
    }
    enableExecute(false);
    return true;
}

bool saveOpenProject() {
    if (project.projectName.empty()) return saveUnderChosenName();
    return saveTo(project.projectDir, project.projectName);
}

bool saveQuestion(const char* title, bool asksOverwrite) {
    if (!project.projectModified) return true;
    switch (host.messageBox(title, "Do you wish to save the current project first?", BOX_QUESTION, BOX_YES_NO_CANCEL)) {
    case ANSWER_NO: return true;
    case ANSWER_YES: break;
    default: return false;
    }
    if (!project.projectName.empty()) return saveTo(project.projectDir, project.projectName);
    FilePlace place;
    return chooseProjectName(asksOverwrite, place) && saveTo(place.folder, place.name);
}

// ---- Generating -----------------------------------------------------------------------------------------------

namespace {

// Asks for the source file. While there is none, the project's own name and folder are the proposal.
bool askSourceFile() {
    const std::string oldName = project.sourceName, oldFolder = project.sourceDir;
    if (project.sourceName.empty()) project.sourceName = project.projectTitle;
    if (project.sourceDir.empty()) project.sourceDir = project.projectDir;
    if (chooseSourceFile()) return true;
    project.sourceName = oldName;
    project.sourceDir = oldFolder;
    return false;
}

// A source that was chosen now belongs to the project. One that was saved a moment ago is saved again with it.
void keepChosenSource() {
    const bool saving = preferences.generateSavesProject || preferences.saveGeneratesCode;
    if (project.projectModified) return;
    if (project.projectName.empty() || !saving || !saveOpenProject()) project.projectModified = 1;
}

void showFormsInOrder() {
    rebuildHierarchyRows(*project.forms);
    if (const WidgetNode* selected = project.currentWidget; selected && selected->hierarchyItem)
        owTreeViewAction(selected->hierarchyItem, OSELECTENTRY);
}

bool generateTo(const std::string& before) {
    const std::string path = sourcePath();
    const WidgetNode* first = project.forms;
    if (!generateNoted()) return false;
    if (project.forms != first) showFormsInOrder(); // the master form has come to the head
    if (path != before) keepChosenSource();
    showProjectTitle();
    enableExecute(false); // there is no program of this source yet
    return true;
}

} // namespace

bool generateKnownSource() {
    commitEditor();
    const std::string before = sourcePath();
    if (project.sourceName.empty() && !askSourceFile()) return false;
    return generateTo(before);
}

bool generateToChosenSource() {
    const std::string before = sourcePath();
    return askSourceFile() && generateTo(before);
}
