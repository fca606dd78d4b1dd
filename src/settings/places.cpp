#include "settings/places.h"

#include "platform/paths.h"
#include "platform/safe_file.h"

std::string settingsFileToRead(const std::string& name) {
    return fileReadable(name) ? name : settingsFileToWrite(name);
}

std::string settingsFileToWrite(const std::string& name) { return joinPath(settingsPlaces.dataDir, name); }

bool writeSettingsFile(const std::string& name, const std::string& text) {
    SafeFile file;
    if (!openSafeFile(file, settingsFileToWrite(name))) return false;
    writeSafeFile(file, text.data(), text.size());
    return commitSafeFile(file);
}
