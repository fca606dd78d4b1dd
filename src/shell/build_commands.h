// Generating, compiling and running the project, and the Compiler Log window.
#pragma once

// The Compiler Log's list inside the pane; joins the build room to the windows.
void buildCompilerLog(int pane);

void generateCommand();      // CMD_GENERATE
void compileAndRunCommand(); // CMD_COMPILE
void rebuildCommand();       // CMD_REBUILD
void printErrorsCommand();   // CMD_PRINT_ERRORS
void logLineCommand();       // CMD_LOG_LINE
void logPlaceCommand();      // CMD_LOG_PLACE
void nextMessageCommand();   // CMD_NEXT_MESSAGE
void previousMessageCommand();

int logWidget(); // handle of the list
