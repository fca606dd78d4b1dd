// The compiler log and the search for the first error in it.
#pragma once

#include <string>
#include <vector>

// A log longer than this keeps its head, its tail and what stands around its first error; a line says how much is left
// out.
inline constexpr int LOG_HEAD_LINES = 2000;
inline constexpr int LOG_TAIL_LINES = 400;
inline constexpr size_t LOG_ENTRY_LIMIT = 255; // characters of an entry in the list
inline constexpr size_t LOG_LINE_LIMIT = 4096; // characters kept of a line

// The entries of the Compiler Log, whole lines as plain UTF-8 without control characters.
struct CompilerLog {
    std::vector<std::string> lines;
    int omittedAfter = 0; // entry behind which lines are left out; 0: all are there
};
extern CompilerLog compilerLog;

// Reads the log of a build. False, with an empty log, when the file cannot be opened.
bool readLog(const std::string& path, int compilerProfile, CompilerLog& log);

// A line as it can be shown: bytes of no encoding become '?', control characters blanks, colour sequences nothing.
std::string plainLogLine(const std::string& bytes);

// As much of a line as an entry of the list takes; a character is never cut in two.
std::string logEntry(const std::string& line);

// What the two passes find.
struct LogScan {
    int result = 0;   // entry that reports the first error, from 1; 0: none
    int analysed = 0; // entry that leads to the error's place; 0: a link error, or none
};
LogScan scanLogLines(const std::vector<std::string>& lines, int compilerProfile);

// How the messages of the GNU compilers are laid out: lines of source and carets between a message's parts, and the
// message itself where gfortran writes it, below its position.
bool isSourceExcerpt(const std::string& line);
bool isFortranMessage(const std::string& line); // "Error:", "Fatal Error:", "Warning:"

// Scans `compilerLog`, selects the entry, sets the list's font and goes to the error. Returns the scan's result; above
// 0 means that the build failed.
int scanLog(int compilerProfile);

// Empties the log, for another project has come in.
void forgetLog();

// A click on an entry of the log (15028), numbered from 1.
// The next message behind an entry (step 1), or ahead of it (-1), that leads to a place in the code; 0 for none.
int messageBeside(int entry, int step);

void logEntryChosen(int entry);
