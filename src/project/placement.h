// Which widget may go into which parent, how a new widget gets its place, text and name, and what may become a master.
// Every refusal is an error box of the host and leaves the tree unchanged.
#pragma once

#include "project/naming.h"
#include "project/tools.h"
#include "project/tree.h"

#include <span>

// One tool of the Tool Box that places a widget.
struct ToolRow {
    int tool;
    const char* entry; // caption in the Tool Box
    WidgetType type;
    const char* text; // initial text, "%d" standing for the counter of the type's word; null: from the default record
};
std::span<const ToolRow> placementTools();
const ToolRow* placementTool(int tool); // null for the selector and for unknown tools

// What a placement did.
struct Placement {
    WidgetNode* widget = nullptr;    // the new record, linked and named, not live yet; null after a refusal
    WidgetNode* converted = nullptr; // the panel that became a radio box, now under a new name and text...
    std::string oldName;             // ...and the name it had
};

// Places a new widget of `tool` on `parent`, the record under the mouse. The click is in the parent's unit, in a
// graphics frame in the frame's own coordinates. A Tabbed Dialogue Box comes without its first panel: the caller makes
// the box live and calls again with the Panel tool.
Placement placeWidget(int tool, WidgetNode* parent, float clickX, float clickY);

// Why `target`, a container, may not take the records; the text is null when it may.
struct Refusal {
    const char* title = nullptr;
    const char* text = nullptr;
};
Refusal refusalToHold(const WidgetNode& target, const Records& records);
bool mayHold(const WidgetNode& target, const Records& records); // the same, and the user is told

// What takes a widget that is put on `node`: the main panel of a form, else the record itself.
WidgetNode* containerFor(WidgetNode* node);

// Asks what is to be done with records that lie outside of `target`, and may shift them near its origin. False when the
// user cancelled.
bool settleInside(const WidgetNode& target, const Records& records);

// A toggle of the modern kinds looks like its neighbours in the parent that it is put in; true when that changed it.
bool followLook(WidgetNode& node, const WidgetNode& parent);

// Gives `form` the form type that the user chose, with all that follows for other forms. False when refused. On true
// quitModeEnabled() tells the state of the row Quit Mode.
bool changeFormType(WidgetNode& form, int formType);
bool quitModeEnabled(const WidgetNode& form);
