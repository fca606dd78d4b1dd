// The two halves of the C generator: the program around the forms, and the widgets.
#pragma once

#include "codegen/generation.h"

extern const std::span<const CreationRow> C_CREATION;

// ",keyword,owGetIconResource("name")" for an icon that is not empty.
void writeIconResource(Generation& g, std::string_view keyword, std::string_view icon);

void writeCTreeEntry(Generation& g, const WidgetNode& tree, const MenuEntryRec& entry, std::string_view parent);
void writeCListEntry(Generation& g, const WidgetNode& list, const ListEntryRec& entry);
