// The files that belong to the user and not to a project, and where they are looked for.
#pragma once

#include <string>

struct SettingsPlaces {
    std::string dataDir; // folder of the settings files; empty when there is none
};

inline SettingsPlaces settingsPlaces;

// The file to read: the one in the current directory if it stands there, else the one in the data folder. The result
// need not exist.
std::string settingsFileToRead(const std::string& name);

// The file to write: in the data folder when there is one, else in the current directory.
std::string settingsFileToWrite(const std::string& name);

// Writes that file whole or not at all, also where two designers save at once. False when it can't be written.
bool writeSettingsFile(const std::string& name, const std::string& text);
