// What the project adds to its build: listed sources, objects, libraries, folders of modules, and switches. The lists
// are worked on as copies, which OK gives to the project.
#pragma once

enum ProjectSettingsId : int {
    SETTINGS_ENVIRONMENT = 15880,
    SETTINGS_TYPE,
    SETTINGS_LISTS,
    SETTINGS_CAPTION,
    SETTINGS_ROWS,
    SETTINGS_COMPILER,
    SETTINGS_LINKER,
    SETTINGS_CANCEL = 15090,
    SETTINGS_OK = 15094,
    SETTINGS_WINDOW = 15516,
};
