// The lists of the code editor's selector: all widgets, the entries of a menu, the entries of a tree view.
#pragma once

#include "project/records.h"

#include <string>

// Brings up a place in a slot, by its name in the list of blocks, of the menu or tree entry `entryName` of `owner`.
void showEntryCode(WidgetNode* owner, const std::string& entryName, const std::string& slotName, int line, int column);

// Brings the editor up on the general callback of an entry of the menu or tree view of `owner`.
void showEntryCallback(WidgetNode& owner, const std::string& entryName);

// Brings a name of the list of widgets up to date.
void nameAdded(const std::string& name);
void nameRemoved(const std::string& name);
void nameChanged(const std::string& from, const std::string& to);
void clearNames();
