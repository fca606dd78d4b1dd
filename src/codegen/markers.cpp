#include "codegen/markers.h"

#include "project/code_stores.h"

std::string_view slotOffset(WidgetSlot slot) {
    static const std::array<std::string, WIDGET_SLOTS> offsets = [] {
        std::array<std::string, WIDGET_SLOTS> texts;
        for (const SlotRow& row : slotTable) {
            if (row.identifier == 1) texts[row.slot] = "+OIDENT";
            if (row.identifier > 1) texts[row.slot] = "+" + std::to_string(row.identifier) + "*OIDENT";
        }
        return texts;
    }();
    return offsets[slot];
}

std::string_view branchHead(int language) { return language == 77 ? "IF(CALLID.EQ.(" : "if (callid == ("; }

std::string statusTest(int language, int status) {
    const std::string_view head = language == 77   ? "IF(IOWDSTAT.EQ."
                                  : language == 90 ? "if(owdactlist%status == "
                                                   : "if(owdactlist.status == ";
    return std::string(head) + static_cast<char>('0' + status) + ")";
}
