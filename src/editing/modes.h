// Design mode and text mode: what the shared entries of the Edit menu mean. Text mode holds while the code editor's
// text has the focus; the keys go by the focus themselves.
#pragma once

void inputMoved(int widget); // the widget has the focus now
void enterTextMode();        // the code editor's text gets the input
void leaveTextMode();        // a form is about to get it
