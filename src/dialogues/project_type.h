// What kind of project: its language, platform, double buffering, grid and scaling. One dialogue for a new project and
// for changing the open one.
#pragma once

enum ProjectTypeId : int {
    TYPE_F77 = 15830,
    TYPE_F90,
    TYPE_C,
    TYPE_WINDOWS,
    TYPE_X,
    TYPE_GLX,
    TYPE_HARDWARE,
    TYPE_SOFTWARE,
    TYPE_GRID_OFF,
    TYPE_GRID_ON,
    TYPE_HORIZ,
    TYPE_VERT,
    TYPE_PIXEL_X,
    TYPE_PIXEL_Y,
    TYPE_FIXED,
    TYPE_SCALABLE,
    TYPE_MODEL, // what a new project begins with
    TYPE_MODEL_LABEL,
    TYPE_LOSSES,
    GROUP_SOURCE,
    GROUP_PLATFORM,
    GROUP_BUFFERING,
    GROUP_GRID,
    GROUP_SCALABLE,
    TYPE_OK = 15417,
    TYPE_CANCEL = 15418,
    TYPE_WINDOW = 15513,
};

// Asks for the type of a new project and starts it on OK; Cancel leaves the open one as it is.
void newProjectDialogue();
