// The one open project, the one host, and the host of a machine without a display.
#include "project/colours.h"
#include "project/host.h"
#include "project/records.h"

#include <algorithm>
#include <array>

ProjectState project;
SwitchDefaults switchDefaults;
Host host;

namespace headless {
namespace {

struct Colour {
    float red = 0, green = 0, blue = 0;
};
std::array<Colour, COLOURS> colourTable;
int cellX = 22, cellY = 22;

} // namespace

int messageBox(const std::string&, const std::string&, int, int buttons) {
    return buttons == BOX_OK || buttons == BOX_OK_CANCEL ? ANSWER_OK : ANSWER_YES;
}

void defineColour(int index, float red, float green, float blue) {
    if (index >= FIXED_COLOURS && index < COLOURS) colourTable[static_cast<std::size_t>(index)] = {red, green, blue};
}

void enquireColour(int index, float& red, float& green, float& blue) {
    red = green = blue = 0;
    if (index < 0 || index >= COLOURS) return;
    if (index < FIXED_COLOURS) {
        red = green = blue = -1.0F - static_cast<float>(index);
        return;
    }
    const Colour& colour = colourTable[static_cast<std::size_t>(index)];
    red = colour.red;
    green = colour.green;
    blue = colour.blue;
}

void setGrid(int horizontal, int vertical, int) {
    cellX = std::max(1, 800 / std::max(1, horizontal));
    cellY = std::max(1, 600 / std::max(1, vertical));
}

void enquireGrid(int& pixelX, int& pixelY) {
    pixelX = cellX;
    pixelY = cellY;
}

} // namespace headless
