// The state of the commands: enabled, disabled or pressed on every entry and button that offers them, and their labels
// in the mode in force.
#pragma once

#include <string>

enum CommandStatus : int { STATUS_HIDDEN = -1, STATUS_DISABLED = 0, STATUS_ENABLED = 1, STATUS_PRESSED = 2 };

// An entry or button, by its toolkit handle, now shows the command's state.
enum class CommandWidget { MenuEntry, PopupEntry, Button };
void addCommandWidget(int command, CommandWidget kind, int handle);
int commandWidget(int command, CommandWidget kind); // handle of the first one, 0 for none
void forgetCommandWidgets();                        // when the windows are gone

// The state that the owner of the command asks for. A command whose conditions do not hold stays disabled until they
// do.
void setCommandStatus(int command, int status);
int commandStatus(int command);   // as shown
bool commandAllowed(int command); // enabled in its own mode, whichever holds
void setToolStatus(int tool, int status);

void setCommandLabel(int command, const std::string& label);
void setCommandHelp(int command, const std::string& bubbleHelp);

// Brings all entries, buttons and keys into line after the platform, the grid mode or a preference has changed.
void refreshCommands();

// Labels and bubble helps of the commands that say what a preference adds to them.
void showPreferenceLabels();

// Text mode: the code editor has the input. The shared entries of the Edit menu act on text.
void setInputMode(bool text);
void refreshInputMode(); // labels and keys anew, a preference has changed
void showStepLabels();   // Undo and Redo of a form bear the names of the steps
bool textModeInForce();

// Compile goes with Rebuild All; the keys F5 and F6 follow.
void enableCompile(bool enabled);
void enableExecute(bool enabled);
