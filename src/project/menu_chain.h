// Chains of menu and tree entries between the list that an editor shows and the records that hold them: the flat list
// of entries with levels, what is wrong with one, and the chain with its bar and pull-downs that is made of it.
#pragma once

#include "project/naming.h"
#include "project/records.h"

#include <string>
#include <string_view>
#include <vector>

// A caption that makes a separator of a menu entry.
inline bool isSeparatorCaption(std::string_view caption) { return caption.find("##") != std::string_view::npos; }

// The entries and separators of a chain, as an editor lists them. Levels below 0 become 0.
std::vector<MenuEntryRec> editableEntries(const std::vector<MenuEntryRec>& chain);

// An entry without caption and name at either end does not count: the list without them.
std::vector<MenuEntryRec> withoutEmptyEnds(std::vector<MenuEntryRec> entries);

struct ChainFault {
    const char* title;
    std::string text;
    int row; // of the faulty entry, from 0
};

// What is wrong with the entries that are to become those of `owner`, a form or a tree view: at most one fault of each
// kind, in the order in which they are told. Nothing is wrong with a list of which nothing remains.
std::vector<ChainFault> checkEntries(const std::vector<MenuEntryRec>& entries, const WidgetNode& owner);

// The chain of `owner` that the entries make; empty when nothing remains of them. Pull-downs get names that are free;
// what `owner` holds at the moment counts as gone. The entries have no fault, or their levels are mended as far as it
// takes: for showing a list that is not ready yet.
std::vector<MenuEntryRec> buildChain(const std::vector<MenuEntryRec>& entries, const WidgetNode& owner);

// The names that are taken for entries of `owner`: those of the project but its own entries', and those of `entries`.
NamesInUse namesBeside(const std::vector<MenuEntryRec>& entries, const WidgetNode& owner);

// A free name for an entry of `owner` with that caption; it counts as used from then on.
std::string entryNameFrom(const WidgetNode& owner, std::string_view caption, NamesInUse& names);

// A free caption and name for a new separator: "##sep1", "separator1".
MenuEntryRec newSeparator(int level, NamesInUse& names);
