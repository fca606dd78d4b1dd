// The build driver: from the generated source to an executable.
#pragma once

#include <string>
#include <vector>

// The command behind Compile, Link & Execute (force 0) and Rebuild All (force 1), whole: save if the preference says
// so, generate if stale, build, log, scan, and either the way to the error or the start of the program.
void compileCommand(bool force);

// Runs what has to run for project.sourceDir/sourceName. Above 0 when every step was started; compiler errors are only
// in the log. Writes the record of commands and the log into dataDir and leaves them to the caller.
int buildProject(bool force, int compilerProfile, const std::string& sourcePath, int customSwitches);

// The words of a text of switches, parted by blank, comma, tab and line feed.
std::vector<std::string> wordsOf(const std::string& text);

// Splits `text` at blank, comma, tab and line feed and appends `separator` and each word to `command`.
void addWords(std::string& command, const std::string& separator, const std::string& text);

// The full path of the project's source, from sourceDir and sourceName.
std::string projectSourcePath();
