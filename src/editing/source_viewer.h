// The Source Code Viewer: the generated source in a window of its own, read only.
#pragma once

bool viewerCommand(int identifier); // true when the identifier is one of the viewer's own and was handled
