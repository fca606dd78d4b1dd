// The help files: context help for the area that last took the input, the topics of the Help menu, and the About box.
#pragma once

#include <string>

// Topic of the context help for `design.helpContext` and the current widget; empty for none.
std::string helpTopic();

void contextHelpCommand(); // CMD_HELP
void helpTopicsCommand();  // CMD_HELP_DESIGNER and its neighbours
void aboutCommand();       // CMD_ABOUT
void aboutOkCommand();     // CMD_ABOUT_OK
