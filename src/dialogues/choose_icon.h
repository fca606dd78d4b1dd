// The choice of an icon: first of a format, then of a picture of a stock set, or of a file.
#pragma once

#include <functional>
#include <string>

// What may be chosen, by bits.
enum IconSets : unsigned {
    STOCK_LARGE = 1,
    STOCK_SMALL = 2,
    STOCK_THUMB = 4,
    STOCK_TOOLBAR = 8,
    STOCK_VISTA = 16,
    ICON_FILE = 32,
    BITMAP_FILE = 64,
    ALL_ICONS = 63,
};

struct IconChoice {
    std::string name;  // of a stock picture, or the path of a file
    IconSets set = {}; // where it comes from
    int number = 0;    // from 1 within a stock set whose pictures have numbers, else 0
};

// Lets the user choose one of `sets`; `present` is the name of the icon that is marked as the present one. `deliver`
// gets the choice once the chooser is closed; nothing when the user cancels.
void chooseIcon(unsigned sets, const std::string& present, std::function<void(const IconChoice&)> deliver);

enum IconControl : int {
    ICON_LARGE = 15170,
    ICON_LARGE_PICTURE = 15171,
    ICON_BITMAP = 15172,
    ICON_ICO = 15173,
    ICON_CANCEL = 15175,
    ICON_SMALL = 15177,
    ICON_SMALL_PICTURE = 15178,
    ICON_THUMB_PICTURE = 15179,
    ICON_THUMB = 15180,
    ICON_TOOLBAR_PICTURE = 15181,
    ICON_TOOLBAR = 15182,
    ICON_VISTA = 15183,
    ICON_VISTA_PICTURE = 15184,
    ICON_WINDOW = 15509,
};
