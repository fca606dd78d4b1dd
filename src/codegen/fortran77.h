// The two halves of the Fortran 77 generator: the program around the forms, and the widgets.
#pragma once

#include "codegen/generation.h"

extern const CreationRows& FORTRAN_77_CREATION;

// A statement that may be too long for a line.
template <class... Values> void writeSplit(Generation& g, std::string_view format, const Values&... values) {
    add(g, format, values...);
    writeStatementSplit(g);
}

void writeHelpStatement(Generation& g, std::string_view name, std::string_view help); // nothing for an empty one

// Fetches an image of the resources into the variable `variable`.
void writeFetchIcon(Generation& g, std::string_view variable, std::string_view icon);

// Behind the creation of a widget.
void writeFurtherProperties(Generation& g, const Placed& widget);

void writeFixedTreeEntry(Generation& g, const WidgetNode& tree, const MenuEntryRec& entry, std::string_view parent);
void writeFixedListEntry(Generation& g, const WidgetNode& list, const ListEntryRec& entry);
