#include "toolkit/frame/screen.h"

#include "menu-c.h"

void owEnqScreenSize(int* width, int* height) { widgets::screenSize(*width, *height); }
int owEnqShiftKey() { return widgets::shiftHeld() ? 1 : 0; }
int owStopAsked(int callback) { return widgets::stopAsked(callback) ? 1 : 0; }
void owUpdateWindows() { widgets::updateWindows(); }
