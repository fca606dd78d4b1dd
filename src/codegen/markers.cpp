#include "codegen/markers.h"

const std::array<std::string_view, CODE_BLOCKS> BLOCK_MARKERS = {
    "Global Definitions",  "Global Routines",          "User defined variables",
    "Initialization code", "Pre Action Code",          "Start of Action Loop",
    "End of Action Loop",  "Program termination code", "User Routines/Functions"};

const std::array<std::string_view, WIDGET_SLOTS> WIDGET_SLOT_OFFSETS = {
    "",          "+OIDENT",   "+2*OIDENT", "+4*OIDENT", "+6*OIDENT",  "+8*OIDENT",
    "+9*OIDENT", "+5*OIDENT", "+3*OIDENT", "+7*OIDENT", "",           "",
    "",          "",          "",          "",          "+10*OIDENT", "+11*OIDENT"};

const std::array<std::string_view, ENTRY_SLOTS> ENTRY_SLOT_OFFSETS = {"", "+OIDENT", "+4*OIDENT", "+5*OIDENT",
                                                                      "+6*OIDENT"};

const std::array<WidgetSlot, 12> DEFINE_ORDER = {SLOT_GENERAL,     SLOT_SELECT,    SLOT_MOVE,         SLOT_EXPOSE,
                                                 SLOT_CHANGE,      SLOT_DRAG_DROP, SLOT_DOUBLE_CLICK, SLOT_FILE_DROP,
                                                 SLOT_DRAG_SELECT, SLOT_DRAG_MOVE, SLOT_VALUE_ERROR,  SLOT_HYPERLINK};

std::string_view branchHead(int language) { return language == 77 ? "IF(CALLID.EQ.(" : "if (callid == ("; }

std::string statusTest(int language, int status) {
    const std::string_view head = language == 77   ? "IF(IOWDSTAT.EQ."
                                  : language == 90 ? "if(owdactlist%status == "
                                                   : "if(owdactlist.status == ";
    return std::string(head) + static_cast<char>('0' + status) + ")";
}
