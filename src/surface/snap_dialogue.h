// The step that drags keep to: a dialogue of the project.
#pragma once

void snapDialogueCommand(); // CMD_SNAP_DIALOGUE
void snapOnCommand();       // CMD_SNAP_ON
void snapOffCommand();      // CMD_SNAP_OFF
void snapOkCommand();       // CMD_SNAP_OK
void snapCancelCommand();   // CMD_SNAP_CANCEL
void snapWindowEvent();     // CMD_SNAP_WINDOW
