#include "shell/environment.h"

#include "platform/environment.h"
#include "settings/places.h"

namespace {

const char PROGRAM_TITLE[] = "ORBAWIDG Designer";
const char VERSION_TEXT[] = " v8.5";

} // namespace

void readEnvironment() {
    readFolders();
    environment.mainTitle = std::string(PROGRAM_TITLE) + VERSION_TEXT;
    environment.aboutTitle = environment.mainTitle + (folders.system64 ? " - 64bit" : "");
    settingsPlaces.dataDir = folders.dataDir;
}
