// Last-write times of files.
#pragma once

#include <cstdint>
#include <string>

// Units of 100 ns since the start of 1601, as project files hold them; 0 when the file cannot be asked.
std::int64_t fileTime(const std::string& path);
