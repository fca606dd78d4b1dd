#include "codegen/markers.h"

#include "codegen/generation.h"

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

namespace {

std::string_view withoutIndent(std::string_view text) { return text.substr(text.find_first_not_of(' ')); }

} // namespace

std::string_view branchHead(int language) { return withoutIndent(languageOf(language).dispatch.ifHead); }

std::string statusTest(int language, int status) {
    const std::string_view head = withoutIndent(languageOf(language).dispatch.ifStatus);
    return std::string(head) + static_cast<char>('0' + status) + ")";
}
