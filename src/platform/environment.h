// Environment variables, the folders that they name, and the system's word for its last failure.
#pragma once

#include <string>

bool environmentSet(const char* name);
std::string environmentValue(const char* name); // empty when unset
void setEnvironment(const char* name, const std::string& value);

// Where the system and its settings live. Read once at start by readFolders().
struct Folders {
    // "ORBA"; without it the folder above the program's own when an installation or a build tree is there. Empty:
    // unknown.
    std::string installDir;
    // "ORBADATA" when it names something that exists; then "ORBA" when it can be written to; then the user's
    // configuration folder, which is made. Empty when there is none of them.
    std::string dataDir;
    // "PROCESSOR_ARCHITECTURE", or the machine's own name where that variable is unknown; emptied when installDir holds
    // "(x86)". A 64-bit build is one test everywhere: this text contains "64".
    std::string architectureText;
    bool system64 = false; // the text held "64" before it was emptied: for the title of the About box
};

extern Folders folders;
void readFolders();

// Whether `architectureText` calls for the 64-bit tools.
bool wordSize64();

// Looks a program up along PATH; a name with a separator in it is taken as it is. Empty when there is none to run.
std::string findProgram(const std::string& name);

// Code and text of the last failed call of this room, in the system's own words.
struct SystemError {
    int code = 0;
    std::string text;
};
extern SystemError lastSystemError;
