// What the program calls itself, the size of its code font, and the handles that its first windows always have. Filled
// once at start-up; the folders and the machine are the platform room's.
#pragma once

#include <string>

inline constexpr int MASTER_WINDOW = 1;
inline constexpr int FORMS_ROOM = 2; // its free middle, which has the input while none of its fields has

struct Environment {
    std::string mainTitle;  // in the title bar
    std::string aboutTitle; // of the About box; names the word size
    int codePointSize = 9;  // the system's own, until a preference says otherwise
};

inline Environment environment;

// Reads the folders and the architecture and forms the titles; tells the settings room where its files lie.
void readEnvironment();
