// Where a child lies in its parent, and the way from pixels to the project's unit.
#pragma once

#include "project/tree.h"

struct Edges {
    int left, top, right, bottom;
};

// Of a child inside a parent of that size, all in the project's unit; top counts from the parent's top.
Edges edgesOf(const WidgetNode& child, int parentWidth, int parentHeight);

// In the project's unit where nothing else is said.
struct Box {
    int x, y, width, height;
    bool operator==(const Box&) const = default;
};

Box readPixels(int handle);           // position and size of a live widget, in pixels
Box inProjectUnit(const Box& pixels); // integer division by the cell in a grid project
// Position along one axis of what begins at `corner` from the left or top of its parent; one in the middle keeps `old`.
// `origin` is -1 for the edge that positions count from, 1 for the other one.
int positionFrom(int origin, int corner, int extent, int parentExtent, int old);
void placeLive(int handle, const Box& box); // position and size in the project's unit
Box boxAround(const Records& members);      // of one parent; left and top as edges, in the project's unit
inline Box boxOf(const WidgetNode& n) { return {n.xpos, n.ypos, n.width, n.height}; }

int singleLineHeight(); // of a text widget, in the project's unit

// Brings the length of a text widget into line with its height. With `keepRich` rich text keeps a long one on one line.
void fitFieldWidth(WidgetNode& node, bool keepRich);
