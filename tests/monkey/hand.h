// Carries an act out on the running designer, by input events that go the way of the screen's own.
#pragma once

#include "event.h"

#include <string>

// Opens the designer in this process on an empty project, or on the one of the file.
void openDesigner(const std::string& file);
void closeDesigner();

// Performs an act and lets the designer do all that follows from it. What went wrong on the way, else "".
std::string perform(const Event& event);
