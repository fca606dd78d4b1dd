// The whole program: start-up in its order, the action loop, the end.
#pragma once

#include <string>

// Builds the windows, reads the settings and makes the first project; then the project that the command line names is
// loaded. `commandLine` is what follows the program's name, perhaps empty.
void startDesigner(const std::string& commandLine);

// Carries every event to its command and to the forms, until the user has left.
void runActionLoop();
void handleEvent(int callback); // one round, for the event that owAction has given

// Writes the window states and closes the windows.
void endDesigner();

// The three in one; returns the exit code of the program.
int runDesigner(const std::string& commandLine);
