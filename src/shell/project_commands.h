// Projects and forms as files: new, open, save, the question before one is left, the backup, the exit.
#pragma once

#include "shell/saving.h"

#include <string>

// Reads a project in place of the open one and shows it. False after a box; the open project then stays.
bool openProjectFile(const std::string& folder, const std::string& name);

// Folder and file name of a command line: one name, perhaps between double quotes, with either kind of slash.
FilePlace placeFromCommandLine(const std::string& commandLine);

// Throws the open project away and begins one with "Form1", in the language, platform and grid in force.
void startNewProject();

void joinProjectDialogues(); // what they ask for is answered from here on

void closeProject();    // at the end of the program: live forms and records go
void startAutoBackup(); // with the period of the preferences, or stops it
void forgetFormFile();  // the next Save Form asks for a name
