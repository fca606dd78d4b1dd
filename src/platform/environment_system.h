// What environment.cpp asks of the system's own file beside it.
#pragma once

#include <string>

std::string machineArchitecture();     // empty when the system does not tell
std::string userConfigurationFolder(); // of this program; need not exist. Empty when the user has none.
bool folderWritable(const std::string& path);
bool fileExecutable(const std::string& path);

extern const char SEARCH_PATH_SEPARATOR; // between the folders of PATH
extern const char* const PROGRAM_SUFFIX; // of programs that are named without it
