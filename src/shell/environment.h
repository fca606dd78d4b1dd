// What the program calls itself, and the size of its code font. Filled once at start-up; the folders and the machine
// are the platform room's.
#pragma once

#include <string>

struct Environment {
    std::string mainTitle;  // in the title bar
    std::string aboutTitle; // of the About box; names the word size
    int codePointSize = 9;  // the system's own, until a preference says otherwise
};

inline Environment environment;

// Reads the folders and the architecture and forms the titles; tells the settings room where its files lie.
void readEnvironment();
