// wdgen --upgrade and wdgen --list: files of any version brought to the current one, and a look at what is in them.
#pragma once

#include <string>
#include <vector>

// FILE -o FILE [--x-windows]. Returns the exit status.
int upgradeCommand(const std::vector<std::string>& arguments);

// FILE. One line a record on standard output: depth, type, name, x, y, width, height. Returns the exit status.
int listCommand(const std::vector<std::string>& arguments);
