// One command line as a hidden child process with its output in the log.
#pragma once

#include "platform/processes.h"

#include <cstdint>
#include <cstdio>
#include <string>

struct LoggedRun {
    LogHandle log = NO_LOG;
    std::string logPath;         // the same file by name: what the child adds to it is fed to the hooks line by line
    std::FILE* record = nullptr; // takes each command line, one a line
    long long fed = 0;           // bytes of the log that the hooks have seen
    std::uint32_t exitCode = 0;  // of the last command that was started
};

// 1 when the process could be started, else 0; how it ended is only in run.exitCode. Waits without limit. With
// `reportFailure` a failed start is reported in a box titled "Compile/Link".
int runLogged(LoggedRun& run, const std::string& commandLine, bool reportFailure);
