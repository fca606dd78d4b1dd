#include "platform/environment.h"
#include "platform/environment_system.h"
#include "platform/paths.h"

#include <cstdlib>
#include <windows.h>

const char SEARCH_PATH_SEPARATOR = ';';
const char* const PROGRAM_SUFFIX = ".exe";

void setEnvironment(const char* name, const std::string& value) {
    SetEnvironmentVariableA(name, value.c_str());
    _putenv_s(name, value.c_str()); // the C library keeps a copy of its own
}

std::string machineArchitecture() { return environmentValue("PROCESSOR_ARCHITECTURE"); }

std::string userConfigurationFolder() {
    std::string base = environmentValue("APPDATA");
    return base.empty() ? base : joinPath(base, "ORBAWIDG");
}

bool folderWritable(const std::string& path) {
    std::string probe = joinPath(path, "wdprobe.tmp");
    HANDLE file = CreateFileA(probe.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    CloseHandle(file);
    return true;
}

bool fileExecutable(const std::string& path) { return fileReadable(path); }
