// Whole files for tests.
#pragma once

#include <string>

std::string readBytes(const std::string& path); // fails the test when there is no such file
void writeBytes(const std::string& path, const std::string& bytes);

// Where two byte strings part: "" when equal, else the offset and what stands there.
std::string byteDifference(const std::string& got, const std::string& wanted);
