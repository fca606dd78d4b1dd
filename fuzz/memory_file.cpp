#include "memory_file.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

const std::string& memoryFolder() {
    // Never destroyed, since it is needed at the very end.
    static const std::string& folder = *new std::string("/dev/shm/orbawidg-fuzz-" + std::to_string(getpid()));
    static const bool made = [] {
        std::atexit([] { std::filesystem::remove_all(folder); });
        return mkdir(folder.c_str(), 0700) == 0;
    }();
    if (!made) abort();
    return folder;
}

void memoryFile(const char* name, const std::uint8_t* bytes, std::size_t count) {
    std::FILE* file = std::fopen((memoryFolder() + "/" + name).c_str(), "wb");
    if (!file || (count > 0 && std::fwrite(bytes, count, 1, file) != 1)) abort();
    std::fclose(file);
}
