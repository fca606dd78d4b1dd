// Numbered error reports.
#pragma once

#include <string>

namespace orba {

// Reports an error of the routine whose trace name is set: number 1600 + code on standard error, with the argument
// where it matters. A code below 1 says that no master window was made, and ends the program.
void reportError(int code, int argument, bool withArgument);

// The same with the argument, for what only a family can see.
void reportFailure(int code, int argument);

// The routine being called, six blanks between calls.
extern const char* traceName;

// For tests and for programs that keep their own log: every report also goes here. Null for none.
using ReportSink = void (*)(int number, const char* routine, int argument);
void setReportSink(ReportSink sink);

} // namespace orba
