// The files of the help, in the folder Help of the installation.
#pragma once

#include <string>

// Shows a topic of a help file in a window of its own. Beside the file that is named, or in its place, may stand its
// pages as one of the same name with ".html". False when there is none of them.
bool showHelpFile(const std::string& name, const std::string& topic);

// The page of a routine, by the beginning of its name; a box says so when its file is missing. Nothing for a word that
// begins like none.
void showRoutineHelp(const std::string& name);
