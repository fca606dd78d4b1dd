// The built program as a process: start, watch, end.
#pragma once

#include "platform/processes.h"

#include <string>

inline constexpr int WATCH_PERIOD = 2000; // milliseconds
inline constexpr int ABORT_GRACE = 1000;  // milliseconds between the polite end and the forced one

// The running program; handle 0: none.
extern ChildProcess childProcess;

void executeCommand(); // Execute (15157, F6)
void watchProgram();   // a tick of the watch timer (19010)
void abortCommand();   // Abort Execution (15158)

// Starts the program, in a terminal window if project.linkerSwitches contain "console", and the watch. False when it
// could not be started; the failure has been reported then.
bool runProgram(const std::string& exePath);

// A box with `title` and "%s failed with error %d: %s" for the last failure of the system.
void reportSystemError(const std::string& title);

// For the end of the designer: leaves a running program to itself.
void forgetProgram();
