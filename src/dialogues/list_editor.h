// Controls of the editor of list and combo boxes.
#pragma once

enum ListControl : int {
    LIST_CANCEL = 15200,
    LIST_CAPTION = 15201,
    LIST_DELETE = 15202,
    LIST_DELETE_ALL = 15203,
    LIST_DOWN = 15204,
    LIST_INSERT = 15205,
    LIST_ROWS = 15206,
    LIST_NEXT = 15207,
    LIST_OK = 15208,
    LIST_PREV = 15209,
    LIST_UP = 15210,
    LIST_ICON = 15213,
    LIST_BROWSE = 15214,
    LIST_WINDOW = 15512,
    LIST_PASTE = 15837, // hidden text that takes what is pasted, to see its lines
    LIST_ICON_LABEL = 15838,
};
