// The editors that the buttons of the property sheet open.
#pragma once

#include "project/records.h"

void joinEditors(); // to the hooks

void openListEditor(WidgetNode& list);
void openTreeEditor(WidgetNode& treeView);
void openPlainTextEditor(WidgetNode& text);
void openRichTextEditor(WidgetNode& text);
