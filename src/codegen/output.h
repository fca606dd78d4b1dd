// Generated files: one that says nothing new stays as it is, its time too, so that nothing is built again for it.
#pragma once

#include "platform/safe_file.h"

#include <string_view>

// Gives the file that was written its name, unless the old one of that name says the same. Behind `dated`, which a line
// may hold, lines may differ. False when the file could not be written.
bool commitWhatIsNew(SafeFile& file, std::string_view dated = {});
