#include "platform/safe_file.h"

#include "platform/paths.h"

#include <windows.h>

#include <algorithm>

namespace {

std::wstring wide(const std::string& text) {
    const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
    std::wstring result(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), result.data(), length);
    return result;
}

bool fail(SafeFile& file) {
    if (!file.failed) file.error = static_cast<int>(GetLastError());
    file.failed = true;
    return false;
}

HANDLE handleOf(const SafeFile& file) { return reinterpret_cast<HANDLE>(file.handle); }

bool isOpen(const SafeFile& file) { return file.handle != -1; }

} // namespace

bool openSafeFile(SafeFile& file, const std::string& path) {
    file.target = path;
    const DWORD attributes = GetFileAttributesW(wide(path).c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY))) {
        SetLastError(ERROR_ACCESS_DENIED);
        return fail(file);
    }
    file.temporary = path + "." + std::to_string(GetCurrentProcessId()) + ".saving";
    const HANDLE handle = CreateFileW(wide(file.temporary).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    file.handle = reinterpret_cast<std::intptr_t>(handle);
    return handle != INVALID_HANDLE_VALUE || fail(file);
}

void writeSafeFile(SafeFile& file, const void* bytes, std::size_t count) {
    if (file.failed || !isOpen(file)) return;
    const char* next = static_cast<const char*>(bytes);
    while (count > 0) {
        const DWORD part = static_cast<DWORD>(std::min<std::size_t>(count, 1U << 20));
        DWORD written = 0;
        if (!WriteFile(handleOf(file), next, part, &written, nullptr) || written == 0) {
            fail(file);
            return;
        }
        next += written;
        count -= written;
    }
}

bool commitSafeFile(SafeFile& file, bool keepOld) {
    if (!file.failed && !FlushFileBuffers(handleOf(file))) fail(file);
    if (isOpen(file) && !CloseHandle(handleOf(file))) fail(file);
    file.handle = -1;
    const std::wstring target = wide(file.target);
    const std::wstring temporary = wide(file.temporary);
    if (!file.failed && keepOld && GetFileAttributesW(target.c_str()) != INVALID_FILE_ATTRIBUTES &&
        !CopyFileW(target.c_str(), wide(file.target + ".bak").c_str(), FALSE))
        fail(file);
    if (!file.failed &&
        !MoveFileExW(temporary.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        fail(file);
    if (file.failed) DeleteFileW(temporary.c_str());
    return !file.failed;
}

SafeFile::~SafeFile() {
    if (isOpen(*this)) abandonSafeFile(*this);
}

void abandonSafeFile(SafeFile& file) {
    if (isOpen(file)) CloseHandle(handleOf(file));
    file.handle = -1;
    if (!file.temporary.empty()) DeleteFileW(wide(file.temporary).c_str());
}

std::string errorText(int error) {
    char text[256] = "";
    FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, static_cast<DWORD>(error), 0,
                   text, sizeof text, nullptr);
    return text;
}

std::FILE* openForReading(const std::string& path) {
    const DWORD attributes = GetFileAttributesW(wide(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY)) return nullptr;
    return _wfopen(wide(path).c_str(), L"rb");
}
