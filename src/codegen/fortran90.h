// The parts of the Fortran 90 generator: the program around the forms, the forms, the widgets.
#pragma once

#include "codegen/generation.h"

extern const CreationRows& FORTRAN_90_CREATION;

// The constant of a dynamic form's module that stands for its parent.
std::string_view parentConstant(const WidgetNode& form);

// ", keyword=NAME" when the value has a name.
template <class Table> void addNamed(Generation& g, std::string_view keyword, const Table& table, int value) {
    const std::string_view name = nameOf(table, value);
    if (!name.empty()) add(g, ", %s=%s", keyword, name);
}

void addPosition(Generation& g, const WidgetNode& node);
void addBorder(Generation& g, const WidgetNode& node);
void addBackgroundImage(Generation& g, const WidgetNode& node);
void endStatement(Generation& g); // closes it and writes it split

// ", keyword=owGetIconResource('name')" for an icon that is not empty.
void addIconResource(Generation& g, std::string_view keyword, std::string_view icon);

void writeFreeTreeEntry(Generation& g, const WidgetNode& tree, const MenuEntryRec& entry, std::string_view parent);
void writeFreeListEntry(Generation& g, const WidgetNode& list, const ListEntryRec& entry);

void createFreeForm(Generation& g, const Placed& w);
void createFreeMainPanel(Generation& g, const Placed& w);
