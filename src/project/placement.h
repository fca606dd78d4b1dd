// Which widget may go into which parent, how a new widget gets its place, text and name, and what may become a master.
// Every refusal is an error box of the host and leaves the tree unchanged.
#pragma once

#include "project/records.h"

#include <span>
#include <string_view>

// One tool of the Tool Box that places a widget.
struct ToolRow {
    int tool;
    const char* entry; // caption in the Tool Box
    WidgetType type;
    const char* text; // initial text, "%d" standing for the counter of the type's word; null: from the default record
};
inline constexpr int TOOL_RADIO_BUTTON = 17020;
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

enum NameMode { NAME_NEW, NAME_PASTED };

// Names `node`, what is below it and, with `withSiblings`, what follows it; each adds 1 to widgetCount. NAME_NEW makes
// default names, NAME_PASTED moves names of another form's widgets to the form that now holds them. The records must
// be linked into the tree.
void defaultName(WidgetNode* node, NameMode mode, bool withSiblings = true);

// A letter, then letters, digits and underscores, used by no form, widget or status bar. With `skipCurrent` names of
// the current widget and below count as free, and entry names of all others as used.
bool validName(std::string_view name, bool skipCurrent);
bool isIdentifier(std::string_view name);

// `caption` with every character that cannot stand in an identifier turned into an underscore.
std::string identifierFrom(std::string_view caption);

// Asked before the chain `list` is put under the current widget; a current form gives way to its main panel. May shift
// the chain when it lies outside. False to stop; the user has been told why.
bool checkPasteParent(WidgetNode* list);

// Gives `form` the form type that the user chose, with all that follows for other forms. False when refused. On true
// quitModeEnabled() tells the state of the row Quit Mode.
bool changeFormType(WidgetNode& form, int formType);
bool quitModeEnabled(const WidgetNode& form);
