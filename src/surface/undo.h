// Undo and redo of every edit. The timeline itself stands in the project room.
#pragma once

void beginTimeline(); // of a project that was begun or loaded just now
void noteEdit();      // at the end of every event: what it changed becomes a step
void noteSaved();     // the project stands on its disk as it is
void showSteps();     // Undo and Redo are live while there is a step, and bear its name
