// Graphics frames as widgets, and the one that drawing goes to.
#pragma once

#include "toolkit/frame/core.h"
#include "toolkit/views/drawing.h"

namespace orba {

// What stays in force from one drawing routine to the next, for all frames.
struct DrawingState {
    int frame = 0; // handle of the active frame, 0 for none
    QPointF at;    // current position
    Pen pen;
    int lineColour = 1;
    Fill fill;
    int fillColour = 1;
    Letters letters;
    double markerSize = 0;
    View view; // window and viewport in the active frame
};
DrawingState& drawing();

// Null when there is none.
GraphicsFrame* activeFrame();
GraphicsFrame* frameOf(Widget* widget);
void activateFrame(Widget& widget);

} // namespace orba
