// One command line as a hidden child process with its output in the log.
#pragma once

#include "platform/processes.h"

#include <cstdint>
#include <cstdio>
#include <string>

struct LoggedRun {
    LoggedRun() = default;
    LoggedRun(const LoggedRun&) = delete;
    LoggedRun& operator=(const LoggedRun&) = delete;
    ~LoggedRun();

    LogHandle log = NO_LOG;
    std::FILE* record = nullptr; // takes each command line, one a line
    std::string logPath;         // the log by name
    bool show = false;           // feed the hooks with what the children write, line by line
    bool plainMessages = false;  // ask the children for messages in English, whatever the user's language
    std::uint32_t exitCode = 0;  // of the last command that was started
    bool cancelled = false;      // the last command was ended by buildHooks.cancelled, or for the size of its output

    // how far the hooks have seen the log
    long long fedBytes = 0;
    int fedLines = 0;
};

// Creates the record and the log. False, with lastSystemError set, when the log cannot be written.
bool openLoggedRun(LoggedRun& run, const std::string& recordPath, const std::string& logPath);
void closeLoggedRun(LoggedRun& run); // before its end, for those who read the log

// 1 when the process could be started, else 0; how it ended is only in run.exitCode. Waits without limit; ends a
// command that fills the log beyond LOG_BYTES_LIMIT. With `reportFailure` a failed start is reported in a box titled
// "Compile/Link".
int runLogged(LoggedRun& run, const std::string& commandLine, bool reportFailure);

inline constexpr long long LOG_BYTES_LIMIT = 256LL << 20;
