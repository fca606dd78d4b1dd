// The parts of the C generator: the program around the forms, the forms, the widgets.
#pragma once

#include "codegen/generation.h"

extern const CreationRows& C_CREATION;

// At the start of each further line of a statement.
inline constexpr std::string_view CONTINUATION = "              \t";

// ", keyword,NAME" when the value has a name.
template <class Table> void writeNamed(Generation& g, std::string_view keyword, const Table& table, int value) {
    const std::string_view name = nameOf(table, value);
    if (!name.empty()) write(g, ", %s,%s", keyword, name);
}

void writeOrigin(Generation& g, const WidgetNode& node);
void writeBorder(Generation& g, const WidgetNode& node);
void writeBackgroundImage(Generation& g, const WidgetNode& node);

// An image name that comes from the record's icon is a path, and its backslashes are doubled.
std::string imageText(const Picture& picture);

// ",keyword,owGetIconResource("name")" for an icon that is not empty.
void writeIconResource(Generation& g, std::string_view keyword, std::string_view icon);

void writeCTreeEntry(Generation& g, const WidgetNode& tree, const MenuEntryRec& entry, std::string_view parent);
void writeCListEntry(Generation& g, const WidgetNode& list, const ListEntryRec& entry);

void createCForm(Generation& g, const Placed& w);
void createCMainPanel(Generation& g, const Placed& w);
