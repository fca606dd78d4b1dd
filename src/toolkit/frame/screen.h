// The screen, and repainting while the program is busy.
#pragma once

namespace widgets {
void screenSize(int& width, int& height); // pixels of the main screen; 0 before the toolkit has started
void updateWindows();
// The same, but what can stop a long command works: menus, whatever calls back with the identifier, Esc, the close box
// of the master window. True when one of them was used. All other input is held back until releaseHeldInput.
bool stopAsked(int identifier);
void releaseHeldInput();
bool shiftHeld(); // at this moment
} // namespace widgets
