// What no widget can be, whatever is typed.
#pragma once

#include "properties/rows.h"

// Whether the number of a row is one that a widget can have; true for rows that are no numbers.
bool isSane(const PropertyRow& row, const CellInput& input);
