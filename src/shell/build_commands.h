// Generating, compiling and running the project, and the Compiler Log window.
#pragma once

// The Compiler Log's list inside the pane; joins the build room to the windows.
void buildCompilerLog(int pane);

// Generates to the known source file, or asks for one when there is none. False when cancelled or failed.
bool generateKnownSource();

// Compile goes with Rebuild All; the keys F5 and F6 follow.
void enableCompile(bool enabled);
void enableExecute(bool enabled);

void generateCommand();      // CMD_GENERATE
void compileAndRunCommand(); // CMD_COMPILE
void rebuildCommand();       // CMD_REBUILD
void printErrorsCommand();   // CMD_PRINT_ERRORS
void logLineCommand();       // CMD_LOG_LINE
