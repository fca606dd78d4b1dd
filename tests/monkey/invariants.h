// What must hold whenever the designer is idle, whatever was done to it. Saves the project to a file, opens it again
// and generates on the way; a group is no selection any longer afterwards.
#pragma once

#include <string>

// The first thing that does not hold, in words that are the same for the same fault as far as may be; "" when all does.
std::string brokenInvariant();
