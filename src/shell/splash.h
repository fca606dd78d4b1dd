// The pause before the windows show: the program's name and picture for three seconds, or until a key or the mouse is
// pressed.
#pragma once

// Nothing when the environment variable ORBA_NO_SPLASH is set.
void showSplash();
