// Who has the input: told by the toolkit when the focus moves, so that the mode of input follows, and that a command
// from a menu or an icon gives the input back.
#pragma once

void followInput(); // from now on

// To what had the input before a dialogue, the menu bar or an icon took it.
void giveInputBack();
void giveInputBackAfter(int command); // the command has run: only if it left the input with no one
