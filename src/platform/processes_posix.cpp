#include "platform/environment.h"
#include "platform/paths.h"
#include "platform/processes.h"
#include "platform/text_files.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

extern char** environ;

namespace {

// A death by signal stands above every exit status, where the other system has its exceptions.
constexpr std::uint32_t SIGNAL_BASE = 0xC0000000U;
constexpr int POLL_MILLISECONDS = 5;

bool fail(int code) {
    lastSystemError = {code, std::strerror(code)};
    return false;
}

// --- starting

std::vector<std::string> mergedEnvironment(const std::vector<std::pair<std::string, std::string>>& changes) {
    std::vector<std::string> all;
    for (char** entry = environ; *entry; entry++) {
        std::string text = *entry;
        std::string name = text.substr(0, text.find('='));
        bool changed = false;
        for (const auto& change : changes) changed = changed || change.first == name;
        if (!changed) all.push_back(std::move(text));
    }
    for (const auto& change : changes) all.push_back(change.first + "=" + change.second);
    return all;
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> all;
    all.reserve(texts.size() + 1);
    for (std::string& text : texts) all.push_back(text.data());
    all.push_back(nullptr);
    return all;
}

// Every child starts with a clean slate of signals and files, at the head of its own group.
bool spawn(const ProcessStart& start, std::vector<std::string> words, pid_t& pid) {
    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_init(&files);
    posix_spawnattr_init(&attributes);

    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    if (start.kind == ProcessKind::hidden && start.log != NO_LOG) {
        posix_spawn_file_actions_adddup2(&files, static_cast<int>(start.log), STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&files, static_cast<int>(start.log), STDERR_FILENO);
    }
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 34)
    posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
#endif
    if (!start.folder.empty()) posix_spawn_file_actions_addchdir_np(&files, start.folder.c_str());

    sigset_t all;
    sigset_t none;
    sigfillset(&all);
    sigemptyset(&none);
    posix_spawnattr_setsigdefault(&attributes, &all);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setpgroup(&attributes, 0);
    short flags = POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK;
    flags =
        static_cast<short>(flags | (start.kind == ProcessKind::hidden ? POSIX_SPAWN_SETPGROUP : POSIX_SPAWN_SETSID));
    posix_spawnattr_setflags(&attributes, flags);

    std::vector<std::string> variables = mergedEnvironment(start.environment);
    int failure =
        posix_spawnp(&pid, words[0].c_str(), &files, &attributes, pointers(words).data(), pointers(variables).data());
    posix_spawn_file_actions_destroy(&files);
    posix_spawnattr_destroy(&attributes);
    return failure == 0 || fail(failure);
}

// --- console programs
//
// A terminal may hand its window over to a server and end at once, and tells nothing of how the program inside ended.
// So a small shell line inside the terminal leaves its process number, and in the end the program's status, in a file.

struct Terminal {
    const char* program;
    std::array<const char*, 2> options; // ahead of the command and its words
};
constexpr Terminal TERMINALS[] = {
    {"x-terminal-emulator", {"-e", nullptr}},
    {"xterm", {"-e", nullptr}},
    {"konsole", {"-e", nullptr}},
    {"gnome-terminal", {"--wait", "--"}},
    {"xfce4-terminal", {"--disable-server", "-x"}},
    {"mate-terminal", {"-x", nullptr}},
    {"alacritty", {"-e", nullptr}},
    {"kitty", {"--", nullptr}},
    {"urxvt", {"-e", nullptr}},
};

constexpr const char* INSIDE_TERMINAL =
    "status=$1; echo \"pid $$\" >\"$1\"; cd -- \"$2\" && shift 2 && \"$@\"; code=$?; "
    "[ -e \"$status\" ] && echo \"end $code\" >>\"$status\"";

bool terminalWords(std::vector<std::string>& words) {
    std::string own = environmentValue("TERMINAL");
    if (!own.empty() && !findProgram(own).empty()) {
        words = {own, "-e"};
        return true;
    }
    for (const Terminal& terminal : TERMINALS) {
        if (findProgram(terminal.program).empty()) continue;
        words = {terminal.program};
        for (const char* option : terminal.options) {
            if (option) words.emplace_back(option);
        }
        return true;
    }
    lastSystemError = {ENOENT, "no terminal program was found; install xterm, or name one in the variable TERMINAL"};
    return false;
}

bool makeStatusFile(std::string& path) {
    std::error_code failure;
    path = joinPath(std::filesystem::temp_directory_path(failure).string(), "wdesign-run-XXXXXX");
    int file = mkstemp(path.data());
    if (file < 0) return fail(errno);
    close(file);
    return true;
}

struct ConsoleStatus {
    pid_t pid = 0;
    bool ended = false;
    int status = 0;
};

ConsoleStatus readConsoleStatus(const std::string& path) {
    ConsoleStatus status;
    std::string text;
    if (!readTextFile(path, text, 256)) return status;
    if (text.rfind("pid ", 0) == 0) status.pid = static_cast<pid_t>(std::atol(text.c_str() + 4));
    size_t end = text.find("end ");
    if (end != std::string::npos && text.back() == '\n') {
        status.ended = true;
        status.status = std::atoi(text.c_str() + end + 4);
    }
    return status;
}

// Whether a terminal that is gone has handed its command over to a server that has not begun with it yet.
bool awaitsHandedOver(const ChildProcess& child) {
    constexpr auto LONGEST = std::chrono::seconds(5);
    if (child.statusFile.empty() || readConsoleStatus(child.statusFile).pid > 0) return false;
    std::error_code failure;
    auto made = std::filesystem::last_write_time(child.statusFile, failure);
    return !failure && std::filesystem::file_time_type::clock::now() - made < LONGEST;
}

// A shell tells a death by signal as 128 and the signal's number.
std::uint32_t codeOfShellStatus(int status) {
    if (status > 128) return SIGNAL_BASE + static_cast<std::uint32_t>(status - 128);
    return static_cast<std::uint32_t>(status);
}

// --- asking and ending

// Leaves the ended child as it is, so that its number and its group stay taken until releaseProcess.
bool askChild(pid_t pid, std::uint32_t& code) {
    siginfo_t info{};
    if (waitid(P_PID, static_cast<id_t>(pid), &info, WEXITED | WNOHANG | WNOWAIT) != 0) return fail(errno);
    if (info.si_pid == 0) {
        code = STILL_RUNNING;
    } else if (info.si_code == CLD_EXITED) {
        code = static_cast<std::uint32_t>(info.si_status);
    } else {
        code = SIGNAL_BASE + static_cast<std::uint32_t>(info.si_status);
    }
    return true;
}

void signalGroups(const ChildProcess& child, int signal) {
    kill(static_cast<pid_t>(-child.group), signal);
    if (child.statusFile.empty()) return;
    ConsoleStatus status = readConsoleStatus(child.statusFile);
    if (status.pid > 1) kill(-status.pid, signal); // the shell line leads the group inside the terminal
}

bool groupAlive(const ChildProcess& child) {
    std::uint32_t code = 0;
    if (!askChild(static_cast<pid_t>(child.handle), code) || code == STILL_RUNNING) return true;
    if (child.statusFile.empty()) return false;
    ConsoleStatus status = readConsoleStatus(child.statusFile);
    return status.pid > 1 && !status.ended && kill(status.pid, 0) == 0;
}

// Let go of while still running: a terminal that takes a moment to close, a program that outlives us.
std::vector<pid_t> lingering;

void reapLingering() {
    std::erase_if(lingering, [](pid_t pid) {
        int status = 0;
        return waitpid(pid, &status, WNOHANG) != 0;
    });
}

// Whoever started us may have said that ends of children are of no interest; then nobody could ask after them.
void keepEndsOfChildren() {
    struct sigaction action {};
    if (sigaction(SIGCHLD, nullptr, &action) != 0) return;
    if (action.sa_handler != SIG_IGN && (action.sa_flags & SA_NOCLDWAIT) == 0) return;
    action = {};
    action.sa_handler = SIG_DFL;
    sigaction(SIGCHLD, &action, nullptr);
}

} // namespace

LogHandle createLogFile(const std::string& path) {
    int file = open(path.c_str(), O_RDWR | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0666);
    if (file >= 0) return file;
    fail(errno);
    return NO_LOG;
}

void closeLogFile(LogHandle log) {
    if (log != NO_LOG) close(static_cast<int>(log));
}

bool writeLogFile(LogHandle log, const std::string& text) {
    return log != NO_LOG && write(static_cast<int>(log), text.data(), text.size()) == static_cast<ssize_t>(text.size());
}

bool startProcess(const ProcessStart& start, ChildProcess& child) {
    child = {};
    keepEndsOfChildren();
    std::vector<std::string> words = splitCommandLine(start.commandLine);
    if (words.empty()) return fail(ENOENT);
    if (start.kind == ProcessKind::console) {
        if (words[0].find('/') != std::string::npos && access(words[0].c_str(), X_OK) != 0) return fail(errno);
        std::vector<std::string> whole;
        if (!terminalWords(whole) || !makeStatusFile(child.statusFile)) return false;
        std::string folder = start.folder.empty() ? std::string(".") : start.folder;
        whole.insert(whole.end(), {"/bin/sh", "-c", INSIDE_TERMINAL, "sh", child.statusFile, folder});
        whole.insert(whole.end(), words.begin(), words.end());
        words = std::move(whole);
    }
    pid_t pid = 0;
    if (!spawn(start, std::move(words), pid)) {
        if (!child.statusFile.empty()) removeFile(child.statusFile);
        child = {};
        return false;
    }
    child.handle = pid;
    child.group = pid;
    return true;
}

bool processExitCode(ChildProcess& child, std::uint32_t& code) {
    if (child.handle == 0) return fail(ESRCH);
    if (!child.statusFile.empty()) {
        ConsoleStatus status = readConsoleStatus(child.statusFile);
        if (status.ended) {
            code = codeOfShellStatus(status.status);
            return true;
        }
        if (status.pid > 1 && kill(status.pid, 0) == 0) {
            code = STILL_RUNNING;
            return true;
        }
    }
    if (!askChild(static_cast<pid_t>(child.handle), code)) return false;
    if (code == 0 && awaitsHandedOver(child)) code = STILL_RUNNING;
    return true;
}

bool waitProcess(ChildProcess& child, int milliseconds, std::uint32_t& code) {
    auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    while (processExitCode(child, code)) {
        if (code != STILL_RUNNING || std::chrono::steady_clock::now() >= end) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(POLL_MILLISECONDS));
    }
    return false;
}

void terminateProcess(ChildProcess& child, int graceMilliseconds, void (*idle)()) {
    if (child.handle == 0) return;
    signalGroups(child, SIGTERM);
    signalGroups(child, SIGCONT); // a stopped program could not answer
    for (int waited = 0; waited < graceMilliseconds && groupAlive(child); waited += POLL_MILLISECONDS) {
        if (idle && waited % 50 == 0) idle();
        std::this_thread::sleep_for(std::chrono::milliseconds(POLL_MILLISECONDS));
    }
    signalGroups(child, SIGKILL);
    releaseProcess(child, true);
}

void releaseProcess(ChildProcess& child, bool endGroup) {
    reapLingering();
    if (child.handle == 0) return;
    if (endGroup) signalGroups(child, SIGKILL);
    pid_t pid = static_cast<pid_t>(child.handle);
    int status = 0;
    if (waitpid(pid, &status, endGroup ? 0 : WNOHANG) == 0) lingering.push_back(pid);
    if (!child.statusFile.empty()) removeFile(child.statusFile);
    child = {};
}

std::string exitWords(std::uint32_t code) {
    if (code < SIGNAL_BASE) return "ended with code " + std::to_string(code);
    int signal = static_cast<int>(code - SIGNAL_BASE);
    return "was ended by signal " + std::to_string(signal) + " (" + strsignal(signal) + ")";
}
