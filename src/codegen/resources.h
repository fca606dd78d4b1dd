// What stands beside a generated source: the manifest of the program, and the script that binds it, icons and bitmaps
// into the executable. Both are replaced whole or not at all.
#pragma once

#include <string>
#include <string_view>

// Writes base + ".exe.manifest". False when it cannot be written.
bool writeManifest(const std::string& base, std::string_view title);

// Writes base + "rc.rc" with the manifest's line and one line for each icon and bitmap of the project that can be
// found; a box tells of each one that cannot. False when the script cannot be written.
bool writeResourceScript(const std::string& base);
