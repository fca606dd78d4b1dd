#include "project/host.h"
#include "project/records.h"

ProjectState project;

Host host = {
    .messageBox = [](const std::string&, const std::string&, int, int buttons) -> int {
        return buttons == BOX_OK || buttons == BOX_OK_CANCEL ? ANSWER_OK : ANSWER_YES;
    },
    .errorBox = [](const std::string&, const std::string&) {},
    .infoBox = [](const std::string&, const std::string&) {},
    .busyCursor = [](bool) {},
    .defineColour = [](int, float, float, float) {},
    .enquireColour = [](int, float& red, float& green, float& blue) { red = green = blue = 0; },
    .setGrid = [](int, int, int) {},
    .enquireGrid = [](int& pixelX, int& pixelY) { pixelX = pixelY = 22; },
    .storeArrayGeometry = [](WidgetNode&) {},
    .fileDialogue = [](const std::string&, const std::string&, bool, std::string&, std::string&) { return false; },
};
