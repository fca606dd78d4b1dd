// The screen, and repainting while the program is busy.
#pragma once

namespace widgets {
void screenSize(int& width, int& height); // pixels of the main screen; 0 before the toolkit has started
void updateWindows();
bool shiftHeld(); // at this moment
} // namespace widgets
