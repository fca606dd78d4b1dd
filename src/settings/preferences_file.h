// The preferences file "wdesign.prf": sixteen numbers and texts in slots of 25 bytes.
#pragma once

// Fills `preferences`. Fields that the file does not hold, or that hold what no user can
// have set, take their defaults; `defaultPointSize` is the one of the
// code font, which depends on the system.
void loadPreferences(int defaultPointSize);

// Switches the colours of the code off until the next start: there are no attributes to show them with.
void syntaxNotAvailable();

// Writes the file. Tells the user when it cannot.
void savePreferences();
