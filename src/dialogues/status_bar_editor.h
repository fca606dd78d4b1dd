// Controls of the editor of a form's status bar.
#pragma once

enum StatusBarControl : int {
    STATUS_INSERT = 15174,
    STATUS_REMOVE = 15176,
    STATUS_TOGGLE = 15430,
    STATUS_CANCEL = 15431,
    STATUS_NUMBER = 15432,
    STATUS_NAME = 15433,
    STATUS_OK = 15434,
    STATUS_SLIDER = 15435,
    STATUS_TEXT = 15436,
    STATUS_WIDTH = 15437,
    STATUS_WINDOW = 15518,
    STATUS_ROWS = 15839,
    STATUS_UP = 15840,
    STATUS_DOWN = 15841,
    STATUS_LABELS = 15842, // first of five labels
};
