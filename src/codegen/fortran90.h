// The two halves of the Fortran 90 generator: the program around the forms, and the widgets.
#pragma once

#include "codegen/generation.h"

extern const std::span<const CreationRow> FORTRAN_90_CREATION;

// ", keyword=owGetIconResource('name')" for an icon that is not empty.
void addIconResource(Generation& g, std::string_view keyword, std::string_view icon);

void writeFreeTreeEntry(Generation& g, const WidgetNode& tree, const MenuEntryRec& entry, std::string_view parent);
void writeFreeListEntry(Generation& g, const WidgetNode& list, const ListEntryRec& entry);
