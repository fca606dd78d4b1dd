// What the user prefers in all projects. Each change acts at once; OK writes it to the file, Cancel reads that back.
#pragma once

enum PreferenceId : int {
    PREF_TABS = 15850,
    PAGE_DESIGN,
    PAGE_EDITING,
    PAGE_SAVE,
    PAGE_INITIALIZATION,
    PREF_REPEAT,
    PREF_DELETE,
    PREF_PROMPTS,
    PREF_COLOURS,
    PREF_ASSIST,
    PREF_TAB,
    PREF_TAB_SPACES,
    PREF_GLOBAL_INDENT,
    PREF_SELECTED_INDENT,
    PREF_POINT_SIZE,
    PREF_BACKUP,
    PREF_BACKUP_MINUTES,
    PREF_GENERATE_SAVES,
    PREF_SAVE_GENERATES,
    PREF_CONFIG,
    PREF_CONFIG_TEXT,
    PREF_CANCEL = 15700,
    PREF_OK = 15701,
    PREF_WINDOW = 15720,
};
