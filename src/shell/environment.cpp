#include "shell/environment.h"

#include "platform/environment.h"
#include "settings/places.h"

static const char PROGRAM_TITLE[] = "ORBAWIDG Designer";
static const char VERSION_TEXT[] = " v8.5";

void readEnvironment() {
    readFolders();
    environment.mainTitle = std::string(PROGRAM_TITLE) + VERSION_TEXT;
    environment.aboutTitle = environment.mainTitle + (folders.system64 ? " - 64bit" : "");
    settingsPlaces.dataDir = folders.dataDir;
}
