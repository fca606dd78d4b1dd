// The tool in hand meets a form.
#pragma once

#include "project/records.h"

// Places a widget of the tool in hand on `clicked`, at the size that was drawn from the press to the release, or at its
// own where the pointer stood still.
void placeWithTool(WidgetNode& clicked);
