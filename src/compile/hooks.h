// What a build needs of the windows around it. The designer fills the record once at its start; every pointer is always
// callable; the defaults generate without a question and show nothing, so that a build runs without a display as well.
//
// The list of the Compiler Log is kept by this room (log.h); the hooks only show it.
#pragma once

#include "compile/location.h"

#include <string>
#include <vector>

struct BuildHooks {
    // --- ahead of a build
    void (*selectorTool)();   // the tool box returns to the selector
    bool (*saveFirst)();      // the preference "Code Generation automatically saves Project"
    bool (*saveProject)();    // saves, asking for a name if there is none; false when nothing was saved
    void (*generateSource)(); // generates if it can, asking for a file; leaves project.sourceStale 1 when it did not
    void (*commitEditor)();   // before the stores are read

    // --- the log
    void (*clearLog)();
    void (*logFont)();                                          // "Courier New" at the code font size
    void (*appendLogLine)(const std::string& line);             // one entry at the end, at most 255 characters
    void (*setLogLines)(const std::vector<std::string>& lines); // the whole list anew
    void (*selectLogLine)(int line);                            // from 1; brought into view
    void (*showLog)();                                          // shows the Compiler Log window if it was hidden

    // --- while a command runs: called some twenty times a second; repaints windows, reads no commands
    void (*idle)();
    bool (*cancelled)(); // asked as often; true ends the running command's whole process group

    // --- commands. Enabling Compile binds F5, enabling Execute binds F6, disabling frees the key.
    void (*enableCompile)(bool enabled);
    void (*enableExecute)(bool enabled);
    void (*enableAbort)(bool enabled);
    void (*enablePrintErrors)(bool enabled);
    void (*watchTimer)(int milliseconds); // the timer with callback 19010; 0 stops it

    // --- an error's place: shows the block, slot or entry slot in the code editor and selects the line there; a
    // location of kind widgetStatement selects the widget alone
    void (*showLocation)(const CodeLocation& location);
};

extern BuildHooks buildHooks;
