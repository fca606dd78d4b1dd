// What the user prefers, whatever project is open. One instance, `preferences`: the settings room reads and writes its
// file and the Preferences dialogue changes it; every other room only reads it.
#pragma once

#include <string>

struct Preferences {
    int repeatPlacement = 0;      // 1 keeps the tool in hand after a placement
    int argumentPrompts = 0;      // ask for the arguments of an inserted Fortran 90 command
    int delDeletes = 1;           // Del deletes the current widget
    int syntaxColours = 1;        // colour the code
    int codeAssist = 1;           // popup of names while code is typed
    int generateSavesProject = 1; // generating code saves the project first
    int saveGeneratesCode = 0;    // saving the project generates the code
    int autoBackupOn = 1;
    int autoBackupMinutes = 20;
    int configCheck = 0;       // generated code looks for a configuration file...
    std::string configDirExpr; // ...in the folder that this expression names; at most 24 characters
    int globalIndent = 9;      // blanks before code of the project blocks in generated source
    int codePointSize = 9;     // of the code editor and the compiler log; start-up sets the system's own
    int selectedIndent = 3;    // blanks of one indent step of the selected lines
    int tabSpaces = 6;         // blanks for one tab...
    int replaceTab = 1;        // ...when tabs are replaced
};

// Points of the code font that can be read and still show code.
inline constexpr int SMALLEST_CODE_FONT = 4;
inline constexpr int LARGEST_CODE_FONT = 144;

inline Preferences preferences;
