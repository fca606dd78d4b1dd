#include "platform/environment.h"

#include "platform/environment_system.h"
#include "platform/paths.h"
#include "platform/text_files.h"

#include <cstdlib>
#include <string_view>

Folders folders;
SystemError lastSystemError;

bool environmentSet(const char* name) { return std::getenv(name) != nullptr; }

std::string environmentValue(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

namespace {

// An installation has its headers one folder above the program; a build tree says so in a file beside it.
std::string installDirOfProgram() {
    std::string own = folderOf(programPath());
    std::string places;
    if (readTextFile(joinPath(own, "wdesign.places"), places)) {
        constexpr std::string_view KEY = "install=";
        size_t at = places.rfind(KEY, 0) == 0 ? 0 : places.find(std::string("\n").append(KEY));
        if (at == std::string::npos) return own;
        at = places.find('=', at) + 1;
        return places.substr(at, places.find_first_of("\r\n", at) - at);
    }
    std::string above = folderOf(own);
    return folderExists(joinPath(joinPath(above, "include"), "orbawidg")) ? above : std::string();
}

std::string findDataDir(const std::string& orba) {
    std::string named = environmentValue("ORBADATA");
    if (pathExists(named)) return named;
    if (!orba.empty() && folderExists(orba) && folderWritable(orba)) return orba;
    std::string own = userConfigurationFolder();
    if (!own.empty() && makeFolders(own)) return own;
    return orba;
}

} // namespace

void readFolders() {
    std::string orba = environmentValue("ORBA");
    folders.installDir = environmentSet("ORBA") ? orba : installDirOfProgram();
    folders.dataDir = findDataDir(orba);
    folders.architectureText = machineArchitecture();
    folders.system64 = wordSize64();
    if (folders.system64 && folders.installDir.find("(x86)") != std::string::npos) folders.architectureText.clear();
}

bool wordSize64() { return folders.architectureText.find("64") != std::string::npos; }

std::string findProgram(const std::string& name) {
    if (name.find_first_of("/\\") != std::string::npos) return fileExecutable(name) ? name : std::string();
    std::string path = environmentValue("PATH");
    for (size_t from = 0; from <= path.size();) {
        size_t end = path.find(SEARCH_PATH_SEPARATOR, from);
        if (end == std::string::npos) end = path.size();
        for (const char* suffix : {"", PROGRAM_SUFFIX}) {
            std::string file = joinPath(path.substr(from, end - from), name + suffix);
            if (fileExecutable(file)) return file;
        }
        from = end + 1;
    }
    return {};
}
