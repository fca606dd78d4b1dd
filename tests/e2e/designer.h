// Working the designer as a user does: its windows, tool box, property sheet and code editor, by mouse and keys.
#pragma once

#include "desk.h"

namespace designer {

// Starts the designer in `folder` without the start-up pause and waits for the first form. `project` may be empty.
pid_t open(const std::string& folder, const std::string& project = "");
// Ends it through the File menu; `saveAnswer` is the button to press if it asks about unsaved changes.
int close(pid_t program, const std::string& saveAnswer = "No");

// Moves the form's window so that its client area begins near x, y.
void moveForm(pid_t program, const std::string& title, int x, int y);
// Places a widget: the Tool Box button of that bubble help, then a click at x, y from the top left of the form.
void place(pid_t program, const std::string& tool, const std::string& form, int x, int y);
void clickForm(pid_t program, const std::string& form, int x, int y);
void select(pid_t program, const std::string& name); // by its row in the hierarchy
std::string property(pid_t program, const std::string& label);
void setProperty(pid_t program, const std::string& label, const std::string& text);
// Chooses a row of the code editor's "Select Code Block" list and puts the cursor into the text.
void chooseBlock(pid_t program, const std::string& name);
void replaceCode(pid_t program, const std::string& code); // of the block or slot that is shown
std::string shownCode(pid_t program);
void chooseMenu(pid_t program, const std::string& menu, const std::string& entry);

// The program that the designer started, once its window is there; 0 when none comes.
pid_t startedProgram(pid_t designer, double seconds = 60);

} // namespace designer
