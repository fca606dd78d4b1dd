// The parts of invariants.h, each about one side of the designer, and what they share.
#pragma once

#include "project/tree.h"

#include <string>

// Remembers `words` when it does not hold; the first such is the one that is told.
void expect(bool holds, const std::string& words);

template <typename Visit> void forEachRecord(Visit visit) {
    for (WidgetNode* node = project.forms; node; node = walkList(node, project.forms)) visit(*node);
}

void checkRecords(); // links, names, the selection
void checkLists();   // hierarchy and names list
void checkScreen();  // windows and what is painted on them
void checkLive();    // live widgets and their handles, without a group
void checkFiles();   // save, load, generate; the project is loaded anew
