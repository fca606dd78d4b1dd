#include "platform/paths.h"

#include <climits>
#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

char nativeSeparator() { return '/'; }

bool fileReadable(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && access(path.c_str(), R_OK) == 0;
}

std::string shortPath(const std::string& path) { return path; }

std::string ownFile(const std::string& folder, const std::string& stem, const std::string& extension) {
    return joinPath(folder, stem + std::to_string(getpid()) + extension);
}

std::string programPath() {
    char path[PATH_MAX];
    ssize_t length = readlink("/proc/self/exe", path, sizeof path);
    return length > 0 ? std::string(path, static_cast<size_t>(length)) : std::string();
}
