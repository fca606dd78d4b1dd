// From a compiler's message to the user's own line.
#pragma once

#include "compile/compilers.h"
#include "compile/location.h"

#include <string>
#include <vector>

struct GeneratedText;

// The position in one line of a log, by the patterns of the compiler.
MessagePosition messagePosition(const std::string& message, int compilerProfile);

// The same for an entry of the log (from 1), with a look at the lines around it where the compiler spreads a message
// over several. `sourcePath` is the main source: a message of the GNU compilers about another file leads to the line
// that includes that file, or nowhere; the messages of the others are taken for the main source whatever they say.
MessagePosition logPosition(const std::vector<std::string>& lines, int entry, int compilerProfile,
                            const std::string& sourcePath);

// Remembers the map of a generation, for the builds that follow.
void noteGenerated(GeneratedText generated);

// Generates the source of the open project to its file and remembers the map. False after a box.
bool generateNoted();

// Loads the source of a build and finds out where code stands in it: from the map that was noted last, or from one of
// a generation in memory, if that text is the file's, the date of its header aside. Without a map the markers do.
void loadBuildSource(const std::string& sourcePath);
bool buildSourceMapped();

// The user's place for a line and column, in characters, of the build's source. Text that no user wrote leads to the
// widget whose statement it is, and otherwise to the end of the code ahead of it.
CodeLocation findLocation(int line, int column);

// Whether an entry of `compilerLog` has a usable line number.
bool logEntryLeads(int entry);

// Shows the place of an entry of `compilerLog`. Nothing happens when it holds no usable line number.
void goToLogEntry(int entry, int compilerProfile);
