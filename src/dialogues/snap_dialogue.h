// Controls of the dialogue of the snap grid.
#pragma once

enum SnapControl : int {
    SNAP_ON = 15420,
    SNAP_OFF = 15421,
    SNAP_OK = 15422,
    SNAP_CANCEL = 15423,
    SNAP_WINDOW = 15515,
    SNAP_PANEL = 15830,
    SNAP_STEP = 15831,
};
