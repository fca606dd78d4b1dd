// The preferences file "wdesign.prf": sixteen numbers and texts in slots of 25 bytes.
#pragma once

#include "project/preferences.h"

// Fills `preferences`. Fields that the file does not hold, or that hold what no user can
// have set, take their defaults; `defaultPointSize` is the one of the
// code font, which depends on the system.
void loadPreferences(int defaultPointSize);
void reloadPreferences(); // the same again

// Switches the colours of the code off until the next start: there are no attributes to show them with.
void syntaxNotAvailable();

// Writes the file. Tells the user when it cannot.
void savePreferences();

// What the number of a preference can be.
struct PreferenceRange {
    int least, most;
};
PreferenceRange preferenceRange(int Preferences::*number);

inline constexpr int CONFIG_EXPRESSION_BYTES = 24; // that the file has room for
