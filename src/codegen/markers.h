// Texts that the generators write and that lead from a line of generated source back to user code.
#pragma once

#include "project/records.h"

#include <array>
#include <string>
#include <string_view>

// The words of the comment that stands ahead of each code block, by CodeBlockIndex, in every language; Fortran 77
// writes some of them in another case, so search without regard to case.
extern const std::array<std::string_view, CODE_BLOCKS> BLOCK_MARKERS;

// Behind the widget's name in a callback identifier: "", "+OIDENT", "+2*OIDENT"... by WidgetSlot. The six window slots
// share the general identifier.
extern const std::array<std::string_view, WIDGET_SLOTS> WIDGET_SLOT_OFFSETS;
// The same by EntrySlot.
extern const std::array<std::string_view, ENTRY_SLOTS> ENTRY_SLOT_OFFSETS;

// The order in which define calls and dispatch branches of the slots with an identifier are written.
extern const std::array<WidgetSlot, 12> DEFINE_ORDER;

// How a branch of the dispatch begins up to the name: "if (callid == (" or "IF(CALLID.EQ.(".
std::string_view branchHead(int language);
// The test on the action state for status 0 to 5, without what follows it: "if(owdactlist%status == 0)" and its like.
std::string statusTest(int language, int status);
