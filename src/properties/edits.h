// What a change of a cell does: the record first, then its live widget. Each handler gets the record that the row edits
// and the new value; a refusal leaves the record alone, and the sheet shows it again.
#pragma once

#include "properties/rows.h"

#define PROPERTY_EDIT(name) void name(WidgetNode& target, const PropertyRow& row, const CellInput& input)

// edits_text.cpp
PROPERTY_EDIT(editName);
PROPERTY_EDIT(editText);
PROPERTY_EDIT(editBarTitle);
PROPERTY_EDIT(editBubbleHelp);
PROPERTY_EDIT(editAccelerator);
PROPERTY_EDIT(editAlign);
PROPERTY_EDIT(editArrayLabels);
PROPERTY_EDIT(editActiveOnInit);

// edits_types.cpp
PROPERTY_EDIT(editFormType);
PROPERTY_EDIT(editButtonType);
PROPERTY_EDIT(editToggleType);
PROPERTY_EDIT(editTextType);
PROPERTY_EDIT(editValueType);
PROPERTY_EDIT(editSliderType);
PROPERTY_EDIT(editSign);
PROPERTY_EDIT(editInitialStatus);
PROPERTY_EDIT(editPanelBoundary);
PROPERTY_EDIT(editScrollBars);
PROPERTY_EDIT(editArrayChoice);

// edits_numbers.cpp
PROPERTY_EDIT(editTextFieldWidth);
PROPERTY_EDIT(editValueFieldWidth);
PROPERTY_EDIT(editDecimals);
PROPERTY_EDIT(editScrollable);
PROPERTY_EDIT(editSize);
PROPERTY_EDIT(editStep);
PROPERTY_EDIT(editValue);
PROPERTY_EDIT(editClampedValue);
PROPERTY_EDIT(editMinimum);
PROPERTY_EDIT(editMaximum);
PROPERTY_EDIT(editCellCount);
PROPERTY_EDIT(editLabelsSize);

// edits_geometry.cpp
PROPERTY_EDIT(editPosition);
PROPERTY_EDIT(editWidth);
PROPERTY_EDIT(editHeight);
PROPERTY_EDIT(editOrigin);
PROPERTY_EDIT(editExpand);
PROPERTY_EDIT(editBarPosition);

// edits_looks.cpp
PROPERTY_EDIT(editColour);
PROPERTY_EDIT(editFontFace);
PROPERTY_EDIT(editPointSize);
PROPERTY_EDIT(editIcon);
PROPERTY_EDIT(editBackgroundImage);

#undef PROPERTY_EDIT

// True when the user lets the icons of a tree view's entries be replaced by one for all. `position` 1 to 3: icon, close
// icon, open icon.
bool mayReplaceEntryIcons(const WidgetNode& treeView, int position);

// What is known of a chosen picture beside its name: `format` and `iconId` of the record.
struct PictureKind {
    int format, number;
};

// A chosen icon into the field of its row, and its kind if that is the widget's; the user was asked what has to be
// asked.
void setIcon(WidgetNode& target, const PropertyRow& row, const std::string& name, const PictureKind* kind);

// ---- What the handlers share.

// Stores the value in the row's field, sets the live property and does what the row says follows.
void storeAndFollow(WidgetNode& target, const PropertyRow& row, const CellInput& input);

int liveKeyword(const WidgetNode& target, const PropertyRow& row); // of the row's property; 0 for none
void setLive(const WidgetNode& node, int keyword, int value);      // one property of the live widget
void rebuildLive(WidgetNode& node);                                // these three do nothing while defaults are edited
void redrawLive(WidgetNode& node);
void rebuildFormOf(WidgetNode& node); // and gives `node` the focus
void markEdited();
