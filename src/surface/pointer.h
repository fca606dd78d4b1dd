// Presses and releases on what holds widgets: the rubber band between them, and clicks on the panel of a group.
#pragma once

#include "project/records.h"

// Pixels from the top left of a container.
struct PixelPoint {
    int x, y;
};
PixelPoint eventPoint(const WidgetNode& container); // of the event at hand, which is about it

// Whether a rubber band can begin on it.
bool holdsBand(const WidgetNode& node);

void pressOn(const WidgetNode& container);
void releaseOn(WidgetNode& mainPanel);

// Ends a rubber band on `container` and selects what lies inside; with Shift held, beside what is selected already.
enum class Band { Still, Empty, Caught }; // the pointer didn't move; nothing lay inside; a selection was tried
Band endRubberBand(WidgetNode& container);
