// The list of the Compiler Log window: its lines, and what a click on one does.
#pragma once

#include <string>
#include <vector>

void buildCompilerLog(int pane); // inside the pane
int logWidget();                 // handle of the list

void clearLog();
void appendLogLine(const std::string& line);
void setLogLines(const std::vector<std::string>& lines); // in place of all that are there
void selectLogLine(int line);                            // from 1
int currentLogLine();                                    // 0 for none
void setLogFont();                                       // of the size that the preferences give code
