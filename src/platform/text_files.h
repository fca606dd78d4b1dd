// Short text files read and written whole.
#pragma once

#include <cstddef>
#include <string>

// At most `limit` bytes, as they stand. False when the file cannot be opened for reading.
bool readTextFile(const std::string& path, std::string& text, size_t limit = 256U << 20);

// Replaces the file. False when it cannot be written.
bool writeTextFile(const std::string& path, const std::string& text);
