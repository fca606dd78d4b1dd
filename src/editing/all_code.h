// All code of the project: the blocks, the slots of the widgets, then those of menu and tree entries.
#pragma once

#include "editing/search.h"
#include "project/records.h"

#include <functional>
#include <string>
#include <vector>

struct CodePlace {
    WidgetNode* owner = nullptr; // null: a block of the project
    std::string entry = {};      // name of the menu or tree entry, empty for the widget itself
    const char* name = "";       // of the block or slot, as the code editor lists it
};

// Widgets before their children, children before siblings. The visitor may change the code.
void eachCode(const std::function<void(const CodePlace& place, std::string& code)>& visit);

struct CodeHit {
    CodePlace place;
    int line = 1;     // from 1
    int column = 1;   // UTF-16 units, from 1
    std::string text; // the line
};
// What was typed and not committed is not there.
std::vector<CodeHit> findInAllCode(const Search& search);

std::string describe(const CodePlace& place); // "Form1_Button1, General Callback"
