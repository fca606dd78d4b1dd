// What the designer remembers beyond the project itself: the selection, the tool in hand, the modes that change how
// events are read. One instance, `design`.
#pragma once

#include "project/records.h"

#include <string>

enum Tool : int {
    TOOL_SELECTOR = 17000, // 17001 to 17027 place a widget
    TOOL_PANEL = 17010,
    TOOL_TAB_BOX = 17019,
};

struct DesignState {
    WidgetNode* selectionList = nullptr; // owned copies of the selected records; their handles lead to the real ones
    int selectionCount = 1;
    WidgetNode* pasteBuffer = nullptr; // owned copies
    int activeTool = TOOL_SELECTOR;
    int quitRequested = 0;   // 1 ends the action loop
    int formsShown = 1;      // 0 while all forms are hidden
    std::string helpContext; // the area that last took the input
    int unadopted = 0;       // 1: the current widget can be operated like one of a running program
    int defaultsMode = 0;    // 1 while the property sheet edits a default record
    int menuEditorOpen = 0;
    int treeEditorOpen = 0;
    int listEditorOpen = 0;
    int codeFocus = 0;     // 1 while closing a dialogue returns the input to the code editor
    int skipPlacement = 0; // the next placement click is passed over once
    int skipCommit = 0;    // the next selectWidget leaves the code editor's text alone: its widget is gone

    // Undo of the last drag; see undo.h.
    int undoAvailable = 0;
    int redoAvailable = 0;
    WidgetNode* undoWidget = nullptr;                        // null for a group
    int undoParent = 0;                                      // handle of the parent to go back to, 0 for the same one
    int undoX = 0, undoY = 0, undoWidth = 0, undoHeight = 0; // in the project's unit

    // The rubber band: corners in pixels of the pressed panel, then in the project's unit.
    int rubberBandArmed = 0;
    int panelBandArmed = 0; // the press was on a panel, not on the main panel
    int bandStartX = 0, bandStartY = 0, bandEndX = 0, bandEndY = 0;

    // The temporary panel of a group.
    int groupPanel = 0;
    int groupParent = 0;                                              // handle of its live parent
    int groupLeft = 0, groupRight = 0, groupTop = 0, groupBottom = 0; // in the project's unit

    int placeholderChild = 0; // blank child that keeps an empty tool bar or pane showing
    int valueWidget = 0;      // handle of the value entry that the value callback reads
};

extern DesignState design;

// Every change of the project ends here: it has to be saved, and its source generated again.
inline void markChanged() { project.projectModified = project.sourceStale = 1; }
