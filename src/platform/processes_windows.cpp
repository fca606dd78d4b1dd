#include "platform/environment.h"
#include "platform/paths.h"
#include "platform/processes.h"

#include <cstdio>
#include <windows.h>

namespace {

bool fail() {
    lastSystemError = {static_cast<int>(GetLastError()), {}};
    char* text = nullptr;
    DWORD length =
        FormatMessageA(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                       nullptr, static_cast<DWORD>(lastSystemError.code), MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT),
                       reinterpret_cast<char*>(&text), 0, nullptr);
    if (length > 0) lastSystemError.text.assign(text, length);
    LocalFree(text);
    return false;
}

HANDLE processOf(const ChildProcess& child) { return reinterpret_cast<HANDLE>(child.handle); }
HANDLE jobOf(const ChildProcess& child) { return reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(child.group)); }

// Our own variables with the changes put over them, as one block.
std::string environmentBlock(const std::vector<std::pair<std::string, std::string>>& changes) {
    std::string block;
    char* own = GetEnvironmentStringsA();
    for (const char* entry = own; own && *entry; entry += std::string(entry).size() + 1) {
        std::string text = entry;
        bool changed = false;
        for (const auto& change : changes) changed = changed || text.rfind(change.first + "=", 0) == 0;
        if (!changed) block.append(text).push_back('\0');
    }
    if (own) FreeEnvironmentStringsA(own);
    for (const auto& change : changes) block.append(change.first + "=" + change.second).push_back('\0');
    block.push_back('\0');
    return block;
}

} // namespace

LogHandle createLogFile(const std::string& path) {
    SECURITY_ATTRIBUTES inheritable{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE file = CreateFileA(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, &inheritable, CREATE_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE) return reinterpret_cast<LogHandle>(file);
    fail();
    return NO_LOG;
}

void closeLogFile(LogHandle log) {
    if (log != NO_LOG) CloseHandle(reinterpret_cast<HANDLE>(log));
}

bool writeLogFile(LogHandle log, const std::string& text) {
    DWORD written = 0;
    return log != NO_LOG &&
           WriteFile(reinterpret_cast<HANDLE>(log), text.data(), static_cast<DWORD>(text.size()), &written, nullptr) &&
           written == text.size();
}

bool startProcess(const ProcessStart& start, ChildProcess& child) {
    child = {};
    STARTUPINFOA info{};
    info.cb = sizeof info;
    info.dwFlags = STARTF_USESHOWWINDOW;
    info.wShowWindow = SW_SHOW;
    DWORD flags = DETACHED_PROCESS | CREATE_NEW_PROCESS_GROUP;
    std::string line = start.commandLine;
    if (start.kind == ProcessKind::hidden) {
        info.dwFlags |= STARTF_USESTDHANDLES;
        info.wShowWindow = SW_HIDE;
        info.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
        info.hStdOutput = info.hStdError = reinterpret_cast<HANDLE>(start.log);
        flags = 0;
    } else if (start.kind == ProcessKind::console) {
        line = environmentValue("COMSPEC") + " /c " + line;
        flags = CREATE_NEW_CONSOLE;
    }
    std::string block = environmentBlock(start.environment);
    PROCESS_INFORMATION made{};
    if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, start.kind == ProcessKind::hidden,
                        flags | CREATE_SUSPENDED, start.environment.empty() ? nullptr : block.data(),
                        start.folder.empty() ? nullptr : start.folder.c_str(), &info, &made)) {
        return fail();
    }
    // The job holds whatever the child starts; without one only the child itself can be ended.
    HANDLE job = CreateJobObjectA(nullptr, nullptr);
    if (job && !AssignProcessToJobObject(job, made.hProcess)) {
        CloseHandle(job);
        job = nullptr;
    }
    ResumeThread(made.hThread);
    CloseHandle(made.hThread);
    child.handle = reinterpret_cast<std::intptr_t>(made.hProcess);
    child.group = reinterpret_cast<std::intptr_t>(job);
    return true;
}

bool processExitCode(ChildProcess& child, std::uint32_t& code) {
    DWORD told = 0;
    if (!GetExitCodeProcess(processOf(child), &told)) return fail();
    code = told;
    return true;
}

bool waitProcess(ChildProcess& child, int milliseconds, std::uint32_t& code) {
    WaitForSingleObject(processOf(child), static_cast<DWORD>(milliseconds));
    return processExitCode(child, code);
}

void terminateProcess(ChildProcess& child, int graceMilliseconds, void (*idle)()) {
    (void)graceMilliseconds; // a program without a console takes no polite end from here
    if (child.handle == 0) return;
    if (idle) idle();
    TerminateProcess(processOf(child), STILL_RUNNING);
    releaseProcess(child, true);
}

void releaseProcess(ChildProcess& child, bool endGroup) {
    if (child.handle == 0) return;
    if (child.group != 0) {
        if (endGroup) TerminateJobObject(jobOf(child), STILL_RUNNING);
        CloseHandle(jobOf(child));
    }
    CloseHandle(processOf(child));
    child = {};
}

std::string exitWords(std::uint32_t code) {
    char text[64];
    std::snprintf(text, sizeof text, code < 0x80000000U ? "ended with code %u" : "was ended by exception 0x%08X", code);
    return text;
}
