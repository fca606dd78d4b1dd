#include "compile/run_logged.h"

#include "compile/execute.h"
#include "compile/hooks.h"
#include "compile/log.h"

#include <filesystem>
#include <string_view>

namespace {

constexpr int IDLE_MILLISECONDS = 50;

// Shows what the log has got since the last time, whole lines only unless it is the last time.
void feedHooks(LoggedRun& run, bool last) {
    if (!run.show || run.fedLines >= LOG_HEAD_LINES) return;
    std::FILE* file = std::fopen(run.logPath.c_str(), "rb");
    if (!file) return;
    std::string text;
    char piece[1 << 16];
    if (std::fseek(file, static_cast<long>(run.fedBytes), SEEK_SET) == 0) {
        while (size_t got = std::fread(piece, 1, sizeof piece, file)) {
            text.append(piece, got);
            if (text.size() > (4U << 20)) break;
        }
    }
    std::fclose(file);
    size_t from = 0;
    while (from < text.size() && run.fedLines < LOG_HEAD_LINES) {
        size_t end = text.find('\n', from);
        if (end == std::string::npos && !last && text.size() - from < LOG_LINE_LIMIT) break;
        if (end == std::string::npos) end = text.size();
        buildHooks.appendLogLine(logEntry(plainLogLine(text.substr(from, end - from))));
        run.fedLines++;
        from = end + 1;
    }
    run.fedBytes += static_cast<long long>(from < text.size() ? from : text.size());
}

bool logTooLong(const LoggedRun& run) {
    std::error_code failure;
    auto size = std::filesystem::file_size(run.logPath, failure);
    return !failure && static_cast<long long>(size) > LOG_BYTES_LIMIT;
}

// What the log says of a command that was ended from here.
constexpr const char* CANCELLED_WORDS = "wdesign: error: the command was cancelled\n";
constexpr const char* TOO_LONG_WORDS = "wdesign: error: the command was ended because its messages filled the log\n";

void waitForEnd(LoggedRun& run, ChildProcess& child) {
    constexpr int GRACE_MILLISECONDS = 500;
    while (waitProcess(child, IDLE_MILLISECONDS, run.exitCode) && run.exitCode == STILL_RUNNING) {
        feedHooks(run, false);
        buildHooks.idle();
        bool tooLong = logTooLong(run);
        if (!tooLong && !buildHooks.cancelled()) continue;
        run.cancelled = true;
        terminateProcess(child, GRACE_MILLISECONDS, buildHooks.idle);
        writeLogFile(run.log, tooLong ? TOO_LONG_WORDS : CANCELLED_WORDS);
        return;
    }
    releaseProcess(child, true);
}

} // namespace

bool openLoggedRun(LoggedRun& run, const std::string& recordPath, const std::string& logPath) {
    run.logPath = logPath;
    run.record = std::fopen(recordPath.c_str(), "wb");
    run.log = createLogFile(logPath);
    if (run.log != NO_LOG) return true;
    return false;
}

LoggedRun::~LoggedRun() { closeLoggedRun(*this); }

void closeLoggedRun(LoggedRun& run) {
    if (run.record) std::fclose(run.record);
    if (run.log != NO_LOG) closeLogFile(run.log);
    run.record = nullptr;
    run.log = NO_LOG;
}

int runLogged(LoggedRun& run, const std::string& commandLine, bool reportFailure) {
    if (run.record) {
        std::fprintf(run.record, "%s\n", commandLine.c_str());
        std::fflush(run.record);
    }
    ProcessStart start;
    start.commandLine = commandLine;
    start.log = run.log;
    if (run.plainMessages) start.environment = {{"LC_ALL", "C"}, {"LANGUAGE", "C"}};
    ChildProcess child;
    run.exitCode = 0;
    run.cancelled = false;
    if (!startProcess(start, child)) {
        if (reportFailure) reportSystemError("Compile/Link");
        return 0;
    }
    waitForEnd(run, child);
    feedHooks(run, true);
    return 1;
}
