// The open project and its source as files: saving, generating and the question before the project is left.
#pragma once

#include <string>

struct FilePlace {
    std::string folder;
    std::string name; // empty: none
};

// Saves under the remembered name, or asks for one. False when cancelled or failed.
bool saveOpenProject();
bool saveUnderChosenName(); // asks in any case

// Asks whether to save a changed project first, in a box of that title. False when the caller must stop: the user
// cancelled, or a save failed. `asksOverwrite`: a name chosen for an untitled project is asked about when it exists.
bool saveQuestion(const char* title, bool asksOverwrite);

// Generates to the known source file, or asks for one when there is none. False when cancelled or failed.
bool generateKnownSource();
bool generateToChosenSource(); // asks in any case

void showProjectTitle(); // in the title bar
