#include "settings/places.h"

#include <filesystem>

static std::string inDataFolder(const std::string& name) {
    return (std::filesystem::path(settingsPlaces.dataDir) / name).string();
}

std::string settingsFileToRead(const std::string& name) {
    std::error_code ignored;
    if (settingsPlaces.dataDir.empty() || std::filesystem::is_regular_file(name, ignored)) return name;
    return inDataFolder(name);
}

std::string settingsFileToWrite(const std::string& name) {
    return settingsPlaces.dataDir.empty() ? name : inDataFolder(name);
}
