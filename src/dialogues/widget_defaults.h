// The records that new widgets are copies of: a dialogue over the property sheet with a sample of the type at hand, and
// the sets as files.
#pragma once

enum WidgetDefaultsId : int {
    DEFAULTS_SHEET = 15910,
    DEFAULTS_FRAME,
    DEFAULTS_SAMPLE,
    DEFAULTS_CANCEL = 15100,
    DEFAULTS_TYPES = 15101,
    DEFAULTS_OK = 15103,
    DEFAULTS_SAVE_STARTUP = 15105,
    DEFAULTS_SAVE_AS = 15106,
    DEFAULTS_WINDOW = 15507,
};

void leaveWidgetDefaults(); // as Cancel does, if the dialogue is open: the program is about to end
