#include "platform/paths.h"

#include <windows.h>

char nativeSeparator() { return '\\'; }

bool fileReadable(const std::string& path) {
    DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY)) return false;
    HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    CloseHandle(file);
    return true;
}

std::string shortPath(const std::string& path) {
    char text[MAX_PATH + 1];
    DWORD length = GetShortPathNameA(path.c_str(), text, sizeof text);
    return length > 0 && length < sizeof text ? std::string(text, length) : path;
}

std::string ownFile(const std::string& folder, const std::string& stem, const std::string& extension) {
    return joinPath(folder, stem + std::to_string(GetCurrentProcessId()) + extension);
}

std::string programPath() {
    char text[MAX_PATH + 1];
    DWORD length = GetModuleFileNameA(nullptr, text, sizeof text);
    return length < sizeof text ? std::string(text, length) : std::string();
}
