// The input and the keys of dialogues. A dialogue that is opened takes the input from all other windows, and no command
// of the designer has a key until it is closed. Return presses the default button, which the toolkit does once the
// field that has the focus is committed; Esc cancels; F1 shows the dialogue's help. A push button that gets the focus
// takes the mark of the default button for as long.
//
// A dialogue may open another one: the one below waits, and gets the input back, its own widget first, when the other
// is closed. Only when the last one is closed do the commands have their keys again.
#pragma once

struct DialogueButton {
    int handle = 0;
    int command = 0;
};

// Of a window that is made already. `home` is the default button, marked at first, its handle 0 for none; Esc sends
// `cancelCommand`, none for 0. `topic` is the page that F1 opens, null for that of what was worked on before.
void openDialogueKeys(int window, DialogueButton home, int cancelCommand, const char* topic = nullptr);

// Another push button of the dialogue on top.
void addDialogueButton(DialogueButton button);

// Closes the keys of the dialogue on top, whose window goes next. The input goes to the dialogue below, or to what had
// it before the first.
void closeDialogueKeys();

bool dialogueOpen();
