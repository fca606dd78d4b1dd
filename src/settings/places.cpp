#include "settings/places.h"

#include "platform/paths.h"

std::string settingsFileToRead(const std::string& name) {
    return fileReadable(name) ? name : settingsFileToWrite(name);
}

std::string settingsFileToWrite(const std::string& name) { return joinPath(settingsPlaces.dataDir, name); }
