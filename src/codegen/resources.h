// What stands beside a generated source: the manifest of the program and the script that binds it, icons and bitmaps
// into the executable. And the writing of such files.
#pragma once

#include <string>
#include <string_view>

// Writes base + ".exe.manifest". False when it cannot be written.
bool writeManifest(const std::string& base, std::string_view title);

// Writes base + "rc.rc" with the manifest's line and one line for each icon and bitmap of the project that can be
// found; a box tells of each one that cannot. False when the script cannot be written.
bool writeResourceScript(const std::string& base);

// True when the file can be opened for writing, or made. What it holds stays as it is, and none is left behind.
bool mayWriteFile(const std::string& path);

// Replaces the file by the whole of `text` or leaves it as it was.
bool replaceFile(const std::string& path, std::string_view text);
