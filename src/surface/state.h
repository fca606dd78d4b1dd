// What the designer remembers beyond the project itself: the selection, the tool in hand, the modes that change how
// events are read. One instance, `design`.
#pragma once

#include "project/tools.h"
#include "project/tree.h"
#include "surface/geometry.h"

#include <map>
#include <set>
#include <string>
#include <vector>

// Copies of what was copied or cut, and what paste has to know of the originals, which may be gone.
struct PasteBuffer {
    OwnedList chain;
    int parent = 0;          // id of the record that held the originals
    std::vector<int> beside; // ids of the originals and of what was pasted last: pasting with them selected goes beside
    int shift = 0;           // cells that the next copy lies from the place of the original
};

struct DesignState {
    Records selection;      // the selected records, all of one parent; while there are several, a group stands
    int selectionCount = 1; // as the status bar tells it
    PasteBuffer pasteBuffer;
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

    // The rubber band: corners in pixels of the pressed panel, then in the project's unit.
    int rubberBandArmed = 0;
    int bandContainer = 0;  // id of what was pressed
    int panelBandArmed = 0; // the press was on a panel, not on the main panel
    int bandStartX = 0, bandStartY = 0, bandEndX = 0, bandEndY = 0;

    // The temporary panel of a group: it holds live copies, while the members themselves have no live widgets.
    int groupPanel = 0;
    Box groupBox = {}; // around the members

    std::set<int> movedForms; // record ids of the forms that the user has moved: their windows keep to their places
    std::map<int, int>
        placeholders;    // by record id of an empty floating tool bar or pane: the blank child that keeps it showing
    int valueWidget = 0; // handle of the value entry that the value callback reads
};

extern DesignState design;

inline bool groupStands() { return design.selection.size() > 1; }

inline void markChanged() { markProjectChanged(); }
