// The toolkit's state from owInitializeMenu to owCloseMenu.
#pragma once

namespace orba {

// 0 closed, 1 open, 2 with a master window.
int sessionState();
void setSessionState(int state);

// The box for a program that waits for events without a window, and the program's end.
[[noreturn]] void abortSession();

// Starts Qt if the program has not; safe to call again.
void startQt();

} // namespace orba
