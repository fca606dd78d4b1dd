// Find & Replace: the identifiers of its controls.
#pragma once

enum FindId : int {
    FIND_NEXT_BUTTON = 15160,
    FIND_OK = 15161, // and the window's events
    FIND_REPLACE = 15162,
    FIND_REPLACE_ALL = 15163,
    FIND_UNDO = 15166,
    FIND_TEXT = 15920,
    FIND_REPLACEMENT,
    FIND_DIRECTION,
    FIND_UP,
    FIND_DOWN,
    FIND_MATCH_CASE,
    FIND_EVERYWHERE,
    FIND_WINDOW,
};

enum GoToId : int { GO_TO_LINE = 15940, GO_TO_OK, GO_TO_CANCEL, GO_TO_WINDOW };
