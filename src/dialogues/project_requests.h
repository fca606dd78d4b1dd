// What the dialogues of the project and of the preferences ask of the shell, which fills it.
#pragma once

#include "project/convert.h"

#include <string>

struct ProjectRequests {
    // A new project of a type, empty or as the project file `model` has it. After an error box the open one stays.
    void (*startProject)(const ProjectType& type, const std::string& model) = [](const ProjectType&,
                                                                                 const std::string&) {};
    void (*kindChanged)() = [] {};        // of the open project: title, commands, compiler and program follow
    void (*preferencesChanged)() = [] {}; // labels, keys, the backup's timer and the log follow
};

inline ProjectRequests projectRequests;
