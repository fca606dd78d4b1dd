// The live widgets of the records: every form is a real window, every widget a real one of the toolkit.
#pragma once

#include "project/records.h"

// 1: toolkit calls speak in cells of the project's grid; 0: in pixels, with the default grid of 36 by 27.
void setGridMode(int mode);

// Creates the live widget of `node` under the toolkit handle `parent`, then what is below it and, with `withSiblings`,
// what follows it (never for a form). A negative `parent` of a bar or pane is its window already.
void realiseWidget(WidgetNode& node, int parent, bool withSiblings);

// Erases a live widget and makes it anew from its record, with all below it. What only the live widgets know, the sizes
// of columns and rows, comes into the records first.
void rebuildWidget(WidgetNode& node);
void replaceLive(WidgetNode& node); // by the records as they are

// Shows a live widget after a change. `front` brings a form to the front. Hidden forms stay hidden.
void redrawWidget(WidgetNode& node, bool front);
void redrawAllForms();

// Realises the forms of `list`, fills the hierarchy and selects the first.
void realiseForms(WidgetNode* list);

// Takes all live forms of `list` down and makes them anew.
void discardForms(WidgetNode* list);

// Takes all live forms down and empties the hierarchy, before the records are freed.
void eraseForms(WidgetNode* list);

// Takes the blank child off an empty tool bar or pane that is about to get its first widget.
void clearPlaceholder(const WidgetNode& parent);

// Whether the font fields show on the widget: the program gives it a font too.
bool bearsFont(const WidgetNode& node);

void fillListEntries(WidgetNode& node);
void drawFrameCross(const WidgetNode& frame); // the cross that stands for the drawing of a graphics frame

// Column and row sizes of an array or table box: from the live widget to the record, and back.
void storeArrayGeometry(WidgetNode& node);
void applyArrayGeometry(WidgetNode& node);
void storeGeometryBelow(WidgetNode& node); // the first for a record and all below it

// Brings up the tab pages that hold `node` and gives it the focus. Nothing for null or while defaults are edited.
void activateWidget(WidgetNode* node);

// Index of a colour in the colour table, made if need be. Components from 0 to 1.
int colourIndex(float red, float green, float blue, bool forceProject);

// One text row high: what decides between the single-line and the multi-line form of a text widget.
bool isSingleLine(const WidgetNode& node);
