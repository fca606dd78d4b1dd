// Design mode and text mode: which command a key sends, and what the shared entries of the Edit menu mean.
#pragma once

void enterTextMode();
void leaveTextMode();
bool inTextMode();
