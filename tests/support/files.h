// Temporary folders and whole files for tests.
#pragma once

#include <string>

// A folder of its own, gone with all that is in it at the end of the scope.
class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::string path;
    std::string file(const std::string& name) const { return path + "/" + name; }
};

std::string readBytes(const std::string& path); // fails the test when there is no such file
void writeBytes(const std::string& path, const std::string& bytes);

// Where two byte strings part: "" when equal, else the offset and what stands there.
std::string byteDifference(const std::string& got, const std::string& wanted);
