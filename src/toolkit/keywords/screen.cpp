#include "toolkit/widgets/screen.h"

#include "menu-c.h"

void owEnqScreenSize(int* width, int* height) { widgets::screenSize(*width, *height); }
void owUpdateWindows() { widgets::updateWindows(); }
