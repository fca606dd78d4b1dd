// From a compiler's message to the user's own line.
#pragma once

#include "build/location.h"

#include <string>
#include <vector>

// What a message says: a line and perhaps a column of a file.
struct MessagePosition {
    int line = 0;     // 0: none told
    int column = 0;   // from 1; 0: none told
    std::string file; // empty when the message format of this compiler is not read for one
};

// The position in one line of a log, by the patterns of the compiler.
MessagePosition messagePosition(const std::string& message, int compilerProfile);

// The same for an entry of the log (from 1), looking at the lines around it where the compiler spreads a message over
// several. `sourcePath` is the main source: for the GNU row a message about another file leads to the line that
// included it, or nowhere.
MessagePosition logPosition(const std::vector<std::string>& lines, int entry, int compilerProfile,
                            const std::string& sourcePath);

// The source of the last build, and what is known of the places of code in it. Loaded at the end of every build.
void loadBuildSource(const std::string& sourcePath);
const std::string& buildSourceText();

// The user's place for a line and column of the main source. The source map decides where one fits the text; otherwise
// the markers do.
CodeLocation findLocation(int line, int column);

// The search by markers alone, in `source`: the comment lines and branch heads in their fixed order.
CodeLocation findByMarkers(const std::string& source, int line, int column);

// Both steps and buildHooks.showLocation. Nothing happens when the message holds no usable line number.
void goToError(const std::string& message, int compilerProfile);
