// Generating, compiling and running the project, and the steps from message to message.
#pragma once

void joinBuildToWindows(); // what a build asks of the designer and tells it; once the windows stand
