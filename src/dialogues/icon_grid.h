// The stock pictures of one set in a grid, of which one is chosen.
#pragma once

#include "dialogues/choose_icon.h"

inline constexpr int GRID_FIRST_PICTURE = 14300; // id of the first picture in the grid; the others follow

enum GridControl : int {
    GRID_FILTER = 15836,
    GRID_LARGE_WINDOW = 15511,
    GRID_SMALL_WINDOW = 15510,
    GRID_THUMB_WINDOW = 15519,
    GRID_TOOLBAR_WINDOW = 15520,
    GRID_VISTA_WINDOW = 15525,
};

// `present` is marked. Esc and the close box deliver nothing.
void openIconGrid(IconSets set, const std::string& present, void (*deliver)(const IconChoice&));

// The name of a picture of a set, from 1 on; empty behind the last.
std::string iconName(IconSets set, int number);
