// The list of the Compiler Log window: its lines, and what a click on one does.
#pragma once

#include <string>
#include <vector>

void buildCompilerLog(int pane); // inside the pane
int logWidget();                 // handle of the list

void clearLog();
void appendLogLine(const std::string& line);
void setLogLines(const std::vector<std::string>& lines); // in place of all that are there
// Lines that lead where `chosen` goes, not to the places that a compiler tells; until others come.
void showLogLines(const std::vector<std::string>& lines, void (*chosen)(int line));
bool stepInLog(int step);     // to the next of such lines, or the one ahead; false when there are none
void selectLogLine(int line); // from 1
int currentLogLine();         // 0 for none
void setLogFont();            // of the size that the preferences give code
