// The place where a run happens: a folder of its own with a project, files to open, settings and compilers that refuse
// everything at once.
#pragma once

#include <string>
#include <vector>

// The example projects, and an empty one for each language, "empty90" to "empty99"; with an x for the other platform.
const std::vector<std::string>& stageNames();

// Makes the folder the current one and returns it; the project is "one.wdp". Remove the folder when done.
std::string setStage(const std::string& project);
