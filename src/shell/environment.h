// What the program found when it started: its folders, the machine, its titles. Filled once by readEnvironment.
#pragma once

#include <string>

struct Environment {
    std::string installDir; // of the libraries, "ORBA"
    std::string architecture;
    std::string mainTitle;  // in the title bar
    std::string aboutTitle; // of the About box; names the word size
    int codePointSize = 9;  // the system's own, until a preference says otherwise
};

inline Environment environment;

// Reads the folders and the architecture and forms the titles; tells the settings room where its files lie.
void readEnvironment();
