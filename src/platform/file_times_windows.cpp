#include "platform/file_times.h"

#include <windows.h>

std::int64_t fileTime(const std::string& path) {
    HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return 0;
    FILETIME written{};
    BOOL told = GetFileTime(file, nullptr, nullptr, &written);
    CloseHandle(file);
    if (!told) return 0;
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(written.dwHighDateTime) << 32 | written.dwLowDateTime);
}
