#include "surface/live.h"

#include "menu-c.h"
#include "project/colours.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "surface/commands.h"
#include "surface/hierarchy.h"
#include "surface/hooks.h"
#include "surface/live_types.h"
#include "surface/selection.h"
#include "surface/state.h"

#include <algorithm>

namespace {

constexpr int DEFAULT_COLUMNS = 36, DEFAULT_ROWS = 27; // the grid while toolkit calls speak in pixels
constexpr int ROW_PIXELS = 25;                         // height of a single-line widget

struct ScrollBars {
    int x = 0, y = 0;
} scrollBars; // of the array that storeArrayGeometry saw last

bool isTable(const WidgetNode& node) { return node.type == TYPE_TABLE_BOX; }

// A bar that was never placed floats beside its form.
void placeBar(WidgetNode& bar, const WidgetNode& form) {
    const bool unplaced = bar.type == TYPE_TOOL_BAR ? bar.width == -1 : bar.xpos == -1;
    if (!unplaced) return;
    bar.xpos = form.xpos - 50;
    bar.ypos = form.ypos + 200;
    if (bar.type == TYPE_TOOL_BAR) bar.width = 1000;
}

void setFont(const WidgetNode& node) {
    owSetFontAttribs(node.handle, owFontFace, node.fontFace.c_str(), owPointSize, node.pointSize, owCharSet,
                     node.charSet, owBold, node.bold, owItalic, node.italic, owUnderline, node.underline, owStrikeout,
                     node.strikeout, 0);
}

// Brings up the pages of tab boxes that hold `node`, or that it is.
void raisePages(const WidgetNode& node) {
    for (const WidgetNode* up = &node; up && up->type != TYPE_FORM; up = up->parent)
        if (up->parent && up->parent->type == TYPE_TAB_BOX) owSetWidgetStatus(up->handle, OCHECKED);
}

// A program shows the page that it checks, else the first.
void raiseFirstPage(const WidgetNode& tabBox) {
    const WidgetNode* shown = tabBox.child;
    for (const WidgetNode* page = tabBox.child; page; page = page->next)
        if (page->initialState == OCHECKED) shown = page;
    if (shown) raisePages(*shown);
}

// The toolkit handle that the live widget is made under, from the one that the caller names.
int liveParent(WidgetNode& node, int parent) {
    if (!isBarOrPane(node)) return parent;
    const WidgetNode* form = formOf(&node, project.forms);
    if (form) placeBar(node, *form);
    if (parent < 0) return -parent;
    return form ? form->handle : parent;
}

// The identifiers by which the widget's events arrive, and those by which they lead back to the record.
void defineEvents(WidgetNode& node, int general, int select) {
    node.designCallbackId = general == LiveType::BY_HANDLE ? node.handle : 0;
    node.designSelectId = select == LiveType::BY_HANDLE ? node.handle + OBJECT_SELECT_OFFSET : 0;
    if (general != 0) owDefineCallback(node.handle, node.designCallbackId ? node.designCallbackId : general);
    if (select != 0) owDefineSelectCallback(node.handle, node.designSelectId ? node.designSelectId : select);
}

void realiseOne(WidgetNode& node, int parent) {
    const LiveType* type = liveType(node.type);
    if (!type) return;
    setGridMode(design.defaultsMode ? 0 : project.gridMode); // default records are in pixels
    const int under = liveParent(node, parent);
    int handle = type->create(node, under);
    const bool standIn = handle <= 0 && node.type != TYPE_FORM;
    if (standIn) handle = createStandIn(node, under);
    setHandle(node, std::max(handle, 0), under);
    if (handle > 0 && !design.defaultsMode) // a sample sends nothing
        defineEvents(node, standIn ? LiveType::BY_HANDLE : type->general, standIn ? LiveType::BY_HANDLE : type->select);
    if (handle > 0 && !standIn) {
        if (bearsFont(node)) setFont(node);
        if (type->finish && !(parent < 0 && isBarOrPane(node))) type->finish(node);
    }
    setGridMode(0);
}

void eraseLive(WidgetNode& node) {
    if (node.handle > 0) owEraseWidget(node.handle);
}

// The window callbacks of a form and the press and release of its main panel.
void defineFormCallbacks(WidgetNode& form) {
    owDefineCallback(form.handle, form.handle);
    owDefineSelectCallback(form.handle, form.handle + OBJECT_SELECT_OFFSET);
    form.formCallbackId = form.handle;
    form.designSelectId = form.handle + OBJECT_SELECT_OFFSET;
    hooks.formMade(form.handle);
    if (WidgetNode* panel = form.child) {
        owDefineCallback(panel->handle, panel->handle);
        panel->designCallbackId = panel->handle;
    }
}

} // namespace

void setGridMode(int mode) {
    owSetGuiGridMode(mode);
    if (mode == 1)
        owDefineGuiGrid(project.gridHoriz, project.gridVert);
    else
        owDefineGuiGrid(DEFAULT_COLUMNS, DEFAULT_ROWS);
}

bool bearsFont(const WidgetNode& node) {
    if (isText(node) && node.subType == ORICHEDIT) return false; // rich text carries its own
    const LiveType* type = liveType(node.type);
    return type && type->font;
}

void realiseWidget(WidgetNode& node, int parent, bool withSiblings) {
    for (WidgetNode* one = &node; one; one = one->next) {
        realiseOne(*one, parent);
        if (one->child) realiseWidget(*one->child, one->handle, true);
        if (one->type == TYPE_TAB_BOX) raiseFirstPage(*one);
        if (!withSiblings || one->type == TYPE_FORM) return;
    }
}

void rebuildWidget(WidgetNode& node) {
    if (design.defaultsMode) return;
    if (standsIn(node, TYPE_TAB_BOX)) return rebuildWidget(*node.parent); // made alone, a page would be the last
    const bool group = groupStands() && liesWithin(design.selection.front(), &node);
    if (group) ungroup();
    storeGeometryBelow(node);
    replaceLive(node);
    if (group) buildGroupPanel(false);
}

void replaceLive(WidgetNode& node) {
    if (design.defaultsMode) return;
    eraseLive(node);
    const bool isForm = node.type == TYPE_FORM;
    realiseWidget(node, isForm ? 0 : node.parentHandle, false);
    if (isForm) defineFormCallbacks(node);
    if (project.currentWidget && liesWithin(project.currentWidget, &node)) raisePages(*project.currentWidget);
    redrawWidget(node, isForm);
}

void redrawWidget(WidgetNode& node, bool front) {
    if (node.type == TYPE_FORM) {
        if (!node.formHidden) owDrawWindow(node.handle, front);
        return;
    }
    WidgetNode* parent = parentOf(&node, project.forms);
    WidgetNode* window = activeForm(project.forms);
    if (!window) window = formOf(&node, project.forms);
    const auto drawWindow = [&] {
        if (window && !window->formHidden) owDrawWindow(window->handle, front);
    };
    if (parent && parent->type == TYPE_TAB_BOX) drawWindow();
    const WidgetNode* bar = isBarOrPane(node) ? &node : parent && isBarOrPane(*parent) ? parent : nullptr;
    if (!bar) return owDrawWidget(node.handle);
    int x = 0, y = 0, width = 0, height = 0, floatWidth = 0, floatHeight = 0, position = 0;
    if (bar->type == TYPE_TOOL_BAR)
        owEnqToolbarPos(bar->handle, &x, &y, &width, &position);
    else
        owEnqPanePos(bar->handle, &x, &y, &width, &height, &floatWidth, &floatHeight, &position);
    if (position == OFLOATING)
        owDrawWidget(node.handle);
    else
        drawWindow();
}

void redrawAllForms() {
    for (WidgetNode* form = project.forms; form; form = form->next) redrawWidget(*form, true);
}

void realiseForms(WidgetNode* list) {
    for (WidgetNode* form = list; form; form = form->next) {
        realiseWidget(*form, 0, true);
        redrawWidget(*form, true);
    }
    buildHierarchy(list);
    project.currentWidget = nullptr;
    for (WidgetNode* form = list; form; form = form->next) defineFormCallbacks(*form);
    if (list) selectWidget(list);
}

void eraseForms(WidgetNode* list) {
    owAdoptChild(0, 0, 0);
    for (WidgetNode* form = list; form; form = form->next) eraseLive(*form);
    design.placeholders.clear();
    design.groupPanel = 0;
    clearHierarchy();
}

void discardForms(WidgetNode* list) {
    dropSelection();
    eraseForms(list);
    realiseForms(list);
}

void clearPlaceholder(const WidgetNode& parent) {
    const auto blank = design.placeholders.find(parent.id);
    if (blank == design.placeholders.end() || !isBarOrPane(parent)) return;
    owEraseWidget(blank->second);
    design.placeholders.erase(blank);
}

void fillListEntries(WidgetNode& node) {
    for (const ListEntryRec& entry : node.listEntries) {
        if (entry.icon.empty())
            owSetListEntry(node.handle, OADD, owString, entry.text.c_str(), 0);
        else
            owSetListEntry(node.handle, OADD, owString, entry.text.c_str(), owIcon,
                           owGetIconResource(entry.icon.c_str()), 0);
    }
    if (node.type == TYPE_COMBO_BOX) owSetListEntry(node.handle, OSELECT, owEntry, 1, 0);
}

void drawFrameCross(const WidgetNode& frame) {
    constexpr int CROSS_COLOUR = 2;
    owActivateGraphicsFrame(frame.handle);
    owClearGraphicsFrame(frame.handle);
    oSetLineColour(CROSS_COLOUR);
    oMoveTo2D(static_cast<double>(frame.xMin), static_cast<double>(frame.yMin));
    oDrawLineTo2D(static_cast<double>(frame.xMax), static_cast<double>(frame.yMax));
    oMoveTo2D(static_cast<double>(frame.xMax), static_cast<double>(frame.yMin));
    oDrawLineTo2D(static_cast<double>(frame.xMin), static_cast<double>(frame.yMax));
    oFlushGraphics();
}

void storeArrayGeometry(WidgetNode& node) {
    if (node.handle <= 0 || !(isArray(node) || isTable(node))) return;
    setGridMode(design.defaultsMode ? 0 : project.gridMode);
    node.columnWidths.resize(std::max(node.columns, 0));
    OARRAYCELL cell = {};
    for (int column = 0; column < node.columns; ++column) {
        if (isTable(node)) {
            owEnqTableBoxAttribs(node.handle, column + 1, &node.columnWidths[column]);
            continue;
        }
        owEnqCellAttribs(node.handle, column + 1, 1, &cell);
        node.columnWidths[column] = cell.width;
    }
    if (isArray(node)) {
        node.rowHeights.resize(std::max(node.rows, 0));
        for (int row = 0; row < node.rows; ++row) {
            owEnqCellAttribs(node.handle, 1, row + 1, &cell);
            node.rowHeights[row] = cell.height;
        }
        owEnqScrollBarPos(node.handle, &scrollBars.x, &scrollBars.y);
    }
    setGridMode(0);
}

void storeGeometryBelow(WidgetNode& node) {
    for (WidgetNode* one = &node; one; one = walkBelow(one, &node)) storeArrayGeometry(*one);
}

void applyArrayGeometry(WidgetNode& node) {
    if (node.handle <= 0) return;
    setGridMode(design.defaultsMode ? 0 : project.gridMode);
    const int columns = std::min<int>(node.columns, node.columnWidths.size());
    const int rows = std::min<int>(node.rows, node.rowHeights.size());
    for (int column = 0; column < columns; ++column) {
        if (isTable(node)) {
            owSetTableBoxAttribs(node.handle, column + 1, node.columnWidths[column]);
            continue;
        }
        OARRAYCELL cell = {};
        owEnqCellAttribs(node.handle, column + 1, 1, &cell);
        cell.width = node.columnWidths[column];
        owSetCellAttribs(node.handle, column + 1, 1, &cell);
    }
    for (int row = 0; isArray(node) && row < rows; ++row) {
        OARRAYCELL cell = {};
        owEnqCellAttribs(node.handle, 1, row + 1, &cell);
        cell.height = node.rowHeights[row];
        owSetCellAttribs(node.handle, 1, row + 1, &cell);
    }
    if (isArray(node)) owSetScrollBarPos(node.handle, scrollBars.x, scrollBars.y);
    setGridMode(0);
}

void activateWidget(WidgetNode* node) {
    if (!node || design.defaultsMode) return;
    raisePages(*node);
    const bool takesFocus = node->type != TYPE_TOGGLE && node->type != TYPE_TOOL_SEPARATOR;
    if (takesFocus && node->handle > 0) owSetActiveWidget(node->handle);
}

int colourIndex(float red, float green, float blue, bool forceProject) {
    return design.defaultsMode && !forceProject ? defaultsColourIndex(red, green, blue)
                                                : projectColourIndex(red, green, blue);
}

bool isSingleLine(const WidgetNode& node) {
    if (design.defaultsMode || standsIn(node, TYPE_PANE)) return false;
    return project.gridMode == 1 ? node.height == 1 : node.height <= ROW_PIXELS;
}
