// The time that this process lives in. It stands still while the designer works, and where the designer would wait it
// jumps to the end of the wait, so that a run is the same however busy the machine is, and takes no longer than its
// work.
#pragma once

void passTime(int milliseconds);
