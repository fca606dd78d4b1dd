// The window state file "wdesign.ini": eight lines, one for each row of `windowStates`.
#pragma once

// Fills `windowStates` from the file, makes no window larger than the screen and pulls each inside it. A line that is
// missing, does not read as numbers or tells of no size gives its row, and no other, the default. Sizes are pixels of
// the screen; handles of live windows are left alone.
void loadWindowStates(int screenWidth, int screenHeight);

// Writes the file from the live windows (rows with a handle) and the stored rows. Tells the user when it cannot.
void saveWindowStates();

// Deletes the file that would be read.
void deleteWindowStates();
