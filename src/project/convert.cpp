#include "project/convert.h"

#include "platform/paths.h"
#include "project/language.h"
#include "project/widget_types.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

constexpr int PIXEL_SNAP = 10;   // step of the snap grid in pixel mode
constexpr int LARGEST = 1000000; // pixels; what a damaged file may hold stays a number

int inPixels(int cells, int cell) {
    const std::int64_t pixels = std::int64_t{cells} * cell;
    return static_cast<int>(std::clamp<std::int64_t>(pixels, -LARGEST, LARGEST));
}

// A size that was there stays there.
int notLost(int converted, int before) { return before > 0 ? std::max(converted, 1) : converted; }

int sizeInPixels(int cells, int cell) { return notLost(inPixels(cells, cell), cells); }
int sizeInCells(int pixels, int cell) { return notLost(pixels / cell, pixels); }

// A bar or pane that was never placed is marked by a number that is no length.
bool unplaced(const WidgetNode& node) {
    return (node.type == TYPE_TOOL_BAR && node.width == -1) || (node.type == TYPE_PANE && node.xpos == -1);
}

using Length = int (*)(int length, int cell);

void convertBox(WidgetNode& node, CellSize cell, Length place, Length size) {
    if (!unplaced(node)) {
        node.xpos = place(node.xpos, cell.x);
        node.ypos = place(node.ypos, cell.y);
        if (node.type != TYPE_TOOL_BAR || node.width > 0) node.width = size(node.width, cell.x);
    } else if (node.type == TYPE_PANE) {
        node.width = size(node.width, cell.x);
    }
    node.height = size(node.height, cell.y);
    for (int& width : node.columnWidths) width = std::max(size(width, cell.x), 1);
    for (int& height : node.rowHeights) height = std::max(size(height, cell.y), 1);
}

constexpr TypeSet FILLS_A_SHARE = {TYPE_BUTTON,      TYPE_TOGGLE,      TYPE_TEXT_ENTRY, TYPE_TEXT_LABEL,
                                   TYPE_VALUE_ENTRY, TYPE_VALUE_LABEL, TYPE_SLIDER};

// The margin around a widget in its cell: half of what its share leaves, of a cell of 25 pixels.
void leaveMargin(WidgetNode& node) {
    if (!FILLS_A_SHARE.holds(node.type)) return;
    const int margin = (100 - std::clamp(node.size, 0, 100)) * 25 / 200;
    node.xpos += margin;
    node.ypos += margin;
    node.width = notLost(node.width - 2 * margin, node.width);
    node.height = notLost(node.height - 2 * margin, node.height);
}

CellSize sound(CellSize cell) { return {std::max(cell.x, 1), std::max(cell.y, 1)}; }

} // namespace

void toPixels(WidgetNode* list, CellSize cell) {
    for (WidgetNode* node = list; node; node = walkList(node, list)) {
        convertBox(*node, sound(cell), inPixels, sizeInPixels);
        leaveMargin(*node);
    }
}

void toGrid(WidgetNode* list, CellSize cell) {
    const Length place = [](int pixels, int size) { return pixels / size; };
    for (WidgetNode* node = list; node; node = walkList(node, list)) convertBox(*node, sound(cell), place, sizeInCells);
}

Records windowsOnlyRecords(WidgetNode* list) {
    Records found;
    for (WidgetNode* node = list; node; node = walkList(node, list)) {
        const bool inside = !found.empty() && liesWithin(node, found.back());
        if (!inside && cardOf(*node).onWindowsOnly) found.push_back(node);
    }
    return found;
}

namespace {

void dropImage(WidgetNode& panel) {
    panel.icon.clear();
    panel.backgroundImage.clear();
    panel.format = 0;
}

} // namespace

void dropWindowsFields(WidgetNode* list) {
    for (WidgetNode* node = list; node; node = walkList(node, list)) {
        switch (node->type) {
        case TYPE_FORM: node->statusBar.reset(); break;
        case TYPE_MAIN_PANEL:
        case TYPE_PANEL: dropImage(*node); break;
        case TYPE_GRAPHICS_FRAME: node->subType = 0; break;
        case TYPE_ICON: node->text.clear(); break;
        case TYPE_TEXT_ENTRY:
        case TYPE_TEXT_LABEL:
            node->subType = 0;
            node->fieldWidth = std::abs(node->fieldWidth);
            break;
        default: break;
        }
    }
}

// ---- The whole project

ProjectType projectType() {
    return {.language = project.projectLanguage,
            .platform = project.projectPlatform,
            .doubleBuffering = project.doubleBuffering,
            .gridMode = project.gridMode,
            .gridHoriz = project.gridHoriz,
            .gridVert = project.gridVert,
            .scalable = project.scalable};
}

namespace {

bool changesGrid(const ProjectType& wanted) {
    return wanted.gridHoriz != project.gridHoriz || wanted.gridVert != project.gridVert ||
           wanted.gridMode != project.gridMode;
}

void removeWindowsOnly() {
    for (WidgetNode* node : windowsOnlyRecords(project.forms)) {
        for (const WidgetNode* one = node; one; one = walkBelow(one, node))
            if (one->type != TYPE_MAIN_PANEL && !one->name.empty()) --project.widgetCount;
        deleteNode(node);
    }
    dropWindowsFields(project.forms);
    recountCounters();
}

void convertGrid(const ProjectType& wanted) {
    const CellSize before = {project.gridPixelX, project.gridPixelY};
    const int modeBefore = project.gridMode;
    project.gridHoriz = wanted.gridHoriz;
    project.gridVert = wanted.gridVert;
    project.gridMode = wanted.gridMode;
    applyGrid();
    if (!modeBefore && wanted.gridMode) toGrid(project.forms, before);
    if (modeBefore && !wanted.gridMode) toPixels(project.forms, before);
    project.snapOn = 1;
    project.snapGrid = wanted.gridMode ? project.gridPixelX : PIXEL_SNAP;
}

} // namespace

bool changesWidgets(const ProjectType& wanted) {
    if (changesGrid(wanted) || wanted.platform != project.projectPlatform) return true;
    return wanted.platform != 'w' && !windowsOnlyRecords(project.forms).empty();
}

void convertProject(const ProjectType& wanted) {
    const bool newGrid = changesGrid(wanted);
    project.projectPlatform = wanted.platform;
    if (wanted.platform != 'w') removeWindowsOnly();
    project.doubleBuffering = wanted.doubleBuffering;
    setProjectLanguage(wanted.language);
    if (newGrid) convertGrid(wanted);
    project.scalable = wanted.scalable;
    markProjectChanged();
}

void setProjectLanguage(int language) {
    project.projectLanguage = language;
    project.missingSource = {};
    const LanguageFacts& facts = languageFacts(language);
    const std::string& name = project.sourceName;
    const std::size_t point = name.rfind('.');
    if (name.empty()) return;
    const std::string extension = point == std::string::npos ? "" : name.substr(point);
    if (!extension.empty() && std::string(facts.filter).find("*" + extension + "|") != std::string::npos) return;
    const std::string renamed = name.substr(0, point) + facts.extension;
    project.sourceName = pathExists(joinPath(project.sourceDir, renamed)) ? "" : renamed;
}
