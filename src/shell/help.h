// The help files: context help for the area that last took the input, the topics of the Help menu, and the About box.
#pragma once

#include <string>

// Topic of the context help for `design.helpContext` and the current widget; empty for none.
std::string helpTopic();
