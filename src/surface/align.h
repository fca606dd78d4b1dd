// Alignment of widgets that are selected together.
#pragma once

#include "project/tree.h"

// Where the widgets meet along one axis: at the edge of the smallest place, at the middle of the first one, or at the
// far edge of the largest.
enum class Align { Off, Near, Middle, Far };

// Moves records that all have one parent and count from its left and top.
void alignRecords(const Records& records, Align across, Align down);
