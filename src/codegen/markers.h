// Texts that the generators write and that lead from a line of generated source back to user code. The comments ahead
// of the code blocks are in codeBlockTable.
#pragma once

#include "project/records.h"

#include <array>
#include <string>
#include <string_view>

// Behind the widget's name in a callback identifier: "", "+OIDENT", "+2*OIDENT" and so on. The six window slots share
// the general identifier.
std::string_view slotOffset(WidgetSlot slot);

// The order in which define calls and dispatch branches of the slots with an identifier are written.
inline constexpr std::array<WidgetSlot, 12> DEFINE_ORDER = {
    SLOT_GENERAL,      SLOT_SELECT,    SLOT_MOVE,        SLOT_EXPOSE,    SLOT_CHANGE,      SLOT_DRAG_DROP,
    SLOT_DOUBLE_CLICK, SLOT_FILE_DROP, SLOT_DRAG_SELECT, SLOT_DRAG_MOVE, SLOT_VALUE_ERROR, SLOT_HYPERLINK};

// How a branch of the dispatch begins up to the name: "if (callid == (" or "IF(CALLID.EQ.(".
std::string_view branchHead(int language);

// The test on the action state for status 0 to 5, without what follows it: "if(owdactlist%status == 0)" and its like.
std::string statusTest(int language, int status);
