// Child processes: compilers with their output in a log file, and the built program with windows of its own. Each child
// heads a process group, so that ending it ends what it has started itself.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// A file open for children to write to. Created anew; -1 is none.
using LogHandle = std::intptr_t;
inline constexpr LogHandle NO_LOG = -1;
LogHandle createLogFile(const std::string& path); // NO_LOG on failure, with lastSystemError set
void closeLogFile(LogHandle log);
bool writeLogFile(LogHandle log, const std::string& text);

enum class ProcessKind {
    hidden,   // no window, standard output and standard error into the log
    windowed, // a program with windows of its own, away from our terminal
    console,  // in a terminal window of its own
};

struct ProcessStart {
    std::string commandLine; // words parted by blanks; see splitCommandLine
    std::string folder;      // working directory; empty: ours
    ProcessKind kind = ProcessKind::hidden;
    LogHandle log = NO_LOG;                                       // hidden only
    std::vector<std::pair<std::string, std::string>> environment; // put over our own
};

// A running child. Plain value; `none` when handle is 0.
struct ChildProcess {
    std::intptr_t handle = 0; // process handle, or process identifier
    std::int64_t group = 0;
    std::string statusFile; // console: where the end status of the program inside the terminal is left
};

// Exit code of a process that has not ended. A program that itself ends with 259 looks the same, so ask processRunning.
inline constexpr std::uint32_t STILL_RUNNING = 259;

// The start of a program; false with lastSystemError set when it could not be started.
bool startProcess(const ProcessStart& start, ChildProcess& child);

// Asks once, without waiting. False when the process cannot be asked. A child that ended by itself gives its exit code;
// one that died of a signal or an exception gives a code above 0xC0000000, so always above 1024.
bool processExitCode(ChildProcess& child, std::uint32_t& code);

// Waits up to `milliseconds` for the end, then asks as above.
bool waitProcess(ChildProcess& child, int milliseconds, std::uint32_t& code);

// Ends the child and all of its group: first politely, after `graceMilliseconds` by force.
// `idle`, when given, is called while it waits.
void terminateProcess(ChildProcess& child, int graceMilliseconds, void (*idle)() = nullptr);

// Ends what a child that has ended left behind in its group, and lets go of the handle.
void releaseProcess(ChildProcess& child, bool endGroup);

// What the end of a process was, in words for a log: "ended with code 2", "was ended by signal 11 (Segmentation
// fault)".
std::string exitWords(std::uint32_t code);

// Words of a command line. Blanks part them, double quotes hold them together; a backslash is an ordinary character
// unless it stands ahead of a double quote, where two stand for one and a single one makes the quote an ordinary
// character.
std::vector<std::string> splitCommandLine(const std::string& line);

// A path written so that splitCommandLine gives it back between the double quotes of a command line; without those
// quotes.
std::string escapedForQuotes(const std::string& path);
