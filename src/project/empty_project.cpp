// Forms and projects from nothing: a new form, the empty project, the mending of a damaged one, the grid.
#include "project/code_stores.h"
#include "project/colours.h"
#include "project/defaults.h"
#include "project/host.h"
#include "project/naming.h"
#include "project/tree.h"
#include "project/widget_types.h"

#include <algorithm>

namespace {

constexpr int DEFAULT_GRID_HORIZ = 36;
constexpr int DEFAULT_GRID_VERT = 27;

int roundedDown(int value, int step) {
    if (step <= 1) return value;
    const int rest = value % step;
    return value - (rest < 0 ? rest + step : rest);
}

void intoCells(WidgetNode& node, int x, int y) {
    node.xpos = x / std::max(1, project.gridPixelX);
    node.ypos = y / std::max(1, project.gridPixelY);
    node.width /= std::max(1, project.gridPixelX);
    node.height /= std::max(1, project.gridPixelY);
    for (int& width : node.columnWidths) width = std::max(1, width / std::max(1, project.gridPixelX));
    for (int& height : node.rowHeights) height = std::max(1, height / std::max(1, project.gridPixelY));
}

OwnedList mainPanelFor(const WidgetNode& form) {
    OwnedList panel = createFromDefaults(TYPE_FORM, 0, 0);
    panel->type = TYPE_MAIN_PANEL;
    panel->name = (form.name + "_MainPanel").substr(0, NAME_LIMIT);
    panel->text.clear();
    panel->onToolbar = 0;
    panel->subType = 99;
    panel->titleFlag = 0;
    panel->expand = 1;
    panel->hpos = 0;
    panel->vpos = 0;
    panel->icon = panel->backgroundImage;
    panel->format = panel->icon.empty() ? -1 : 1;
    if (!panel->icon.empty()) panel->backgroundImage = resourceName(panel->icon);
    return panel;
}

// Columns and rows that an array or table box can be shown with: sizes for each, and not more than a damaged count in
// the file may claim.
bool mendCells(WidgetNode& node) {
    constexpr int MOST = 10000; // beyond those whose sizes the file holds
    if (!is(node, HAS_CELLS)) return false;
    const auto mendCount = [](int& count, const std::vector<int>& sizes) {
        const int held = static_cast<int>(sizes.size());
        const int sound = count < 0 || count > held + MOST ? held : count;
        const bool changed = sound != count;
        count = sound;
        return changed;
    };
    const bool columns = mendCount(node.columns, node.columnWidths);
    return mendCount(node.rows, node.rowHeights) || columns;
}

// Whatever was told while a file was read: some of its records may be gone again.
void countNamedRecords() {
    project.widgetCount = 0;
    for (const WidgetNode* node = project.forms; node; node = walkList(node, project.forms))
        if (node->type != TYPE_MAIN_PANEL && !node->name.empty()) ++project.widgetCount;
}

} // namespace

std::string resourceName(std::string_view path) {
    const std::size_t slash = path.find_last_of("/\\");
    std::string name(slash == std::string_view::npos ? path : path.substr(slash + 1));
    std::replace(name.begin(), name.end(), ' ', '_');
    return name.substr(0, name.find('.'));
}

OwnedList createFromDefaults(WidgetType type, int x, int y) {
    WidgetNode* source = defaultRecord(type);
    if (!source) return nullptr;
    OwnedList node = copyNode(source, false);
    if (project.gridMode == 1) {
        intoCells(*node, x, y);
        return node;
    }
    const int step = project.snapOn == 1 ? project.snapGrid : 1;
    node->xpos = roundedDown(x, step);
    node->ypos = roundedDown(y, step);
    return node;
}

WidgetNode* newForm() {
    const bool first = project.nextFormNumber == 1;
    while (!nameFree("Form" + std::to_string(project.nextFormNumber)) ||
           !nameFree("Form" + std::to_string(project.nextFormNumber) + "_MainPanel"))
        takeNumber(project.nextFormNumber);
    OwnedList form = createFromDefaults(TYPE_FORM, project.nextFormX, project.nextFormY);
    if (project.projectPlatform != 'w') {
        form->icon = "MBIG1084";
        form->iconId = 84;
    }
    const std::string number = std::to_string(project.nextFormNumber);
    form->name = "Form" + number;
    form->text = "Form " + number;
    form->formType = first ? FORM_MASTER_SDI : FORM_STATIC_SDI;
    form->parentName = "NONE";
    ++project.widgetCount;
    linkChild(*form, mainPanelFor(*form));
    takeNumber(project.nextFormNumber);
    project.nextFormX += project.gridPixelX;
    project.nextFormY += project.gridPixelY;
    return appendForm(std::move(form));
}

void resetProject() {
    if (project.forms) host.closeForms();
    deleteList(project.forms);
    forgetCodeCopies();
    const ProjectState old = project;
    project = ProjectState();
    project.projectLanguage = old.projectLanguage;
    project.projectPlatform = old.projectPlatform;
    project.doubleBuffering = old.doubleBuffering;
    project.gridHoriz = old.gridHoriz;
    project.gridVert = old.gridVert;
    project.gridPixelX = old.gridPixelX;
    project.gridPixelY = old.gridPixelY;
    project.gridMode = old.gridMode;
    project.snapOn = old.snapOn;
    project.snapGrid = old.snapGrid;
    project.fileVersion = old.fileVersion;
    project.fileLists.fill(FileList(1));
    project.sourceFileTimes.assign(1, 0);
    project.compilerSwitches = switchDefaults.compiler;
    project.linkerSwitches = switchDefaults.linker;
    project.customSwitches = project.compilerSwitches.empty() && project.linkerSwitches.empty() ? 0 : 1;
    colourMarks.colourTop = FIXED_COLOURS - 1;
}

bool mendForms(WidgetNode* behind) {
    bool mended = false;
    const auto first = [&] { return behind ? behind->next : project.forms; };
    for (WidgetNode* node = first(); node;) {
        WidgetNode* following = walkList(node, project.forms);
        const bool misplaced = (node->parent == nullptr) != (node->type == TYPE_FORM);
        if (misplaced || node->type == TYPE_NONE) {
            // What is below goes with it.
            following = node;
            while (following && !following->next) following = following->parent;
            following = following ? following->next : nullptr;
            deleteNode(node);
            mended = true;
        } else if (mendCells(*node)) {
            mended = true;
        }
        node = following;
    }
    for (WidgetNode* form = first(); form; form = form->next) {
        if (form->child && form->child->type == TYPE_MAIN_PANEL) continue;
        linkChildAfter(*form, nullptr, mainPanelFor(*form));
        mended = true;
    }
    countNamedRecords();
    return mended;
}

bool mendProject() {
    const bool mended = mendForms(nullptr);
    if (project.forms) return mended;
    newForm();
    return true;
}

void recountCounters() {
    std::array<bool, COUNTERS> inUse{};
    for (WidgetNode* node = project.forms; node; node = walkList(node, project.forms)) {
        const Counter counter = cardOf(*node).counter;
        if (counter != COUNTER_NONE) inUse[static_cast<std::size_t>(counter)] = true;
    }
    for (std::size_t i = 0; i < inUse.size(); ++i)
        if (!inUse[i]) project.counters[i] = 1;
}

void applyGrid() {
    const bool grid = project.gridMode == 1;
    host.setGrid(grid ? project.gridHoriz : DEFAULT_GRID_HORIZ, grid ? project.gridVert : DEFAULT_GRID_VERT, grid);
    host.enquireGrid(project.gridPixelX, project.gridPixelY);
    host.setGrid(DEFAULT_GRID_HORIZ, DEFAULT_GRID_VERT, 0);
}
