#include "platform/environment.h"
#include "platform/environment_system.h"
#include "platform/paths.h"

#include <cstdlib>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <unistd.h>

const char SEARCH_PATH_SEPARATOR = ':';
const char* const PROGRAM_SUFFIX = "";

void setEnvironment(const char* name, const std::string& value) { setenv(name, value.c_str(), 1); }

std::string machineArchitecture() {
    if (environmentSet("PROCESSOR_ARCHITECTURE")) return environmentValue("PROCESSOR_ARCHITECTURE");
    utsname names{};
    return uname(&names) == 0 ? names.machine : "";
}

std::string userConfigurationFolder() {
    std::string base = environmentValue("XDG_CONFIG_HOME");
    if (!isAbsolutePath(base)) {
        std::string home = environmentValue("HOME");
        if (home.empty()) return {};
        base = joinPath(home, ".config");
    }
    return joinPath(base, "orbawidg");
}

bool folderWritable(const std::string& path) { return access(path.c_str(), W_OK | X_OK) == 0; }

bool fileExecutable(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && access(path.c_str(), X_OK) == 0;
}
