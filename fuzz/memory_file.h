// A folder in memory for the files of one fuzzing process; gone at its end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

const std::string& memoryFolder();

// Writes the bytes to a file of that name there.
void memoryFile(const char* name, const std::uint8_t* bytes, std::size_t count);
