// The list of the code editor that chooses a block or slot: which of them hold code, and how much.
#pragma once

#include <string>

void clearBlockRows();
void addBlockRow(const std::string& name); // of a block or slot, or the rule between them
void selectBlockRow(const std::string& name);
std::string chosenBlockRow(); // its name, empty for none
void showBlockSizes();        // of the editing copies, beside the names
