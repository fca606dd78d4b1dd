#include "surface/geometry.h"

#include "menu-c.h"
#include "surface/live.h"

#include <algorithm>

namespace {

struct Span {
    int from, to;
};

// `origin` is -1 for the edge that positions count from, 1 for the other one, 0 for the middle.
Span spanOf(int origin, int position, int extent, int parentExtent, bool expanded) {
    if (origin < 0) return {position, position + extent};
    if (origin > 0) return {parentExtent - position - extent, parentExtent - position};
    const int from = static_cast<int>((parentExtent - extent) * 0.5);
    return {from, expanded ? parentExtent : from + extent};
}

} // namespace

Edges edgesOf(const WidgetNode& child, int parentWidth, int parentHeight) {
    const bool expanded = child.expand >= 1;
    const Span across = spanOf(child.hpos, child.xpos, child.width, parentWidth, expanded);
    const Span down = spanOf(-child.vpos, child.ypos, child.height, parentHeight, expanded);
    return {across.from, down.from, across.to, down.to};
}

int positionFrom(int origin, int corner, int extent, int parentExtent, int old) {
    if (origin == 0) return old;
    return origin < 0 ? corner : parentExtent - corner - extent;
}

Box boxAround(const Records& members) {
    constexpr int FAR = 9999;
    const WidgetNode* parent = members.front()->parent;
    Edges all = {FAR, FAR, -FAR, -FAR};
    for (const WidgetNode* one : members) {
        const Edges edges = edgesOf(*one, parent->width, parent->height);
        all.left = std::min(all.left, edges.left);
        all.top = std::min(all.top, edges.top);
        all.right = std::max(all.right, edges.right);
        all.bottom = std::max(all.bottom, edges.bottom);
    }
    return {all.left, all.top, all.right - all.left, all.bottom - all.top};
}

Box readPixels(int handle) {
    Box box = {};
    owEnqWidgetProp(handle, owXpos, &box.x, owYpos, &box.y, owWidth, &box.width, owHeight, &box.height, 0);
    return box;
}

Box inProjectUnit(const Box& pixels) {
    if (project.gridMode != 1) return pixels;
    const int cellX = std::max(project.gridPixelX, 1), cellY = std::max(project.gridPixelY, 1);
    return {pixels.x / cellX, pixels.y / cellY, pixels.width / cellX, pixels.height / cellY};
}

void placeLive(int handle, const Box& box) {
    setGridMode(project.gridMode);
    owSetWidgetProp(handle, owXpos, box.x, owYpos, box.y, owWidth, box.width, owHeight, box.height, 0);
    setGridMode(0);
}

int singleLineHeight() { return project.gridMode == 1 ? 1 : 25; }
