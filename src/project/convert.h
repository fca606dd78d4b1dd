// Conversions of a whole project: between pixels and cells of the grid, and to what a platform can show. They work on
// the records alone; live widgets are made anew by the caller.
#pragma once

#include "project/tree.h"

// Pixels of one cell of the grid; anything below 1 counts as 1.
struct CellSize {
    int x, y;
};

// Positions and sizes of `list` and all below it, from cells to pixels. A widget that fills only a share of its cell is
// as large as that share was, in the middle of where the cell was.
void toPixels(WidgetNode* list, CellSize cell);

// From pixels to whole cells, with what lies past the last whole one cut off. Nothing that had a size loses it.
void toGrid(WidgetNode* list, CellSize cell);

// The outermost records of `list` that only Windows projects can hold; what is below them goes with them.
Records windowsOnlyRecords(WidgetNode* list);

// Takes what only Windows projects have out of the fields of `list` and all below: status bars, images of panels, the
// kinds of text and graphics that need more than X.
void dropWindowsFields(WidgetNode* list);

// What kind of project the open one is.
struct ProjectType {
    int language = 90;
    char platform = 'w';
    int doubleBuffering = 0;
    int gridMode = 0;
    int gridHoriz = 36, gridVert = 27;
    int scalable = 0;
    bool operator==(const ProjectType&) const = default;
};
ProjectType projectType();

// Whether the widgets of the open project would be others, or elsewhere, under another type.
bool changesWidgets(const ProjectType& wanted);

// Makes the open project one of another type: what its platform cannot hold goes, places and sizes change their unit,
// snap and counters follow. Marks the project. Where widgets change their live ones must be down, with the sizes of
// columns and rows in the records.
void convertProject(const ProjectType& wanted);

// Another language: a source that is named otherwise in it gets its extension, unless a file of that name is there
// already, which could be anything; then the next generation asks for a name.
void setProjectLanguage(int language);
