// The Object Hierarchy: a tree view with one row per form and widget.
#pragma once

#include "project/records.h"

#include <string>

void createHierarchy(int pane); // the tree view box, filling the pane of that handle
void buildHierarchyEntry(WidgetNode& node);
void buildHierarchy(WidgetNode* list);
void removeHierarchyEntry(WidgetNode& node, bool withSiblings);
void rebuildHierarchyRows(WidgetNode& first); // of a record and what follows it, in their order
void clearHierarchy();                        // erases the tree view box and makes it again, empty

// Selects the form or widget of that name, as a click on its row does. From the tree a hidden form is shown again.
void selectByName(const std::string& name, bool fromTree);

// Resource icon of a record, as its row and the tab order list show it.
const char* hierarchyIcon(const WidgetNode& node);
int hierarchyBox(); // handle of the tree view
