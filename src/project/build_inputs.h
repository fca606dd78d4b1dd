// What a project adds to its build: listed files, folders of modules, switches.
#pragma once

#include "project/records.h"

struct BuildInputs {
    std::array<FileList, FILE_LISTS> lists; // by FileListIndex, each with an empty row at its end
    std::string compilerSwitches;
    std::string linkerSwitches;
    bool operator==(const BuildInputs&) const = default;
};

BuildInputs buildInputs(); // of the open project

// Gives them to the open project: rows in their order without the empty ones between them, each at most as many as a
// file has room for. A source that was listed before keeps the time of its last compilation, so that one that was
// edited since is compiled; one that is new has none. Marks the project.
void setBuildInputs(const BuildInputs& inputs);
