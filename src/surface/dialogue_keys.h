// The keys of a dialogue while it is open: Return presses the marked button, Esc cancels, Tab and Shift+Tab move on and
// take the mark to a push button that gets the focus.
#pragma once

struct DialogueButton {
    int handle = 0;
    int command = 0;
};

// Confines the input to `window` and binds the keys. `home` is the default button, marked at first.
void openDialogueKeys(int window, DialogueButton home, int cancelCommand);

// Another push button of the open dialogue, which Return presses while it has the focus.
void addDialogueButton(DialogueButton button);

// Frees the keys and gives the input back.
void closeDialogueKeys();

bool dialogueOpen(); // the keys are bound at the moment

void dialogueTabCommand(); // Tab or Shift+Tab in a dialogue
