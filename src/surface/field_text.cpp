#include "surface/field_text.h"

#include "menu-c.h"
#include "platform/letters.h"
#include "project/host.h"

#include <cstdlib>

namespace {

constexpr int LONGEST_RICH = 32767;                // bytes of a rich text that a source can hold, too
constexpr std::size_t ROOM = std::size_t{1} << 20; // for rich text that turns out to be too long

void widenField(WidgetNode& node, int width) {
    if (width > std::abs(node.fieldWidth)) node.fieldWidth = node.fieldWidth < 0 ? -width : width;
}

} // namespace

std::string liveText(const WidgetNode& node, bool rich) {
    std::string text(rich ? ROOM : TEXT_LIMIT + 1, '\0');
    owEnqTextSetting(node.handle, text.data(), static_cast<int>(text.size()), owEntryType, rich ? 1 : 0, 0);
    text.resize(text.find('\0'));
    return text;
}

bool storeFieldText(WidgetNode& node, std::string_view text) {
    if (node.subType != ORICHEDIT) {
        node.text = cutBetweenLetters(text, static_cast<std::size_t>(std::abs(node.fieldWidth)));
        return true;
    }
    if (text.size() > LONGEST_RICH) {
        host.infoBox("Text too long", "With its formatting the text is longer than the 32767 characters that a project "
                                      "can hold|Shorten it, or remove some of its formatting");
        return false;
    }
    widenField(node, static_cast<int>(text.size()));
    node.text = text;
    return true;
}
