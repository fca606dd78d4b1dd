#include "project/colours.h"

#include "project/defaults.h"
#include "project/host.h"

#include <array>
#include <cstdlib>

ColourMarks colourMarks;

namespace {

using Levels = std::array<int, 3>; // what colours are compared by

Levels levelsOf(float red, float green, float blue) {
    return {static_cast<int>(red * 256), static_cast<int>(green * 256), static_cast<int>(blue * 256)};
}

Levels levelsAt(int index) {
    float red = 0;
    float green = 0;
    float blue = 0;
    host.enquireColour(index, red, green, blue);
    return levelsOf(red, green, blue);
}

int distance(const Levels& a, const Levels& b) {
    int sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i) sum += std::abs(a[i] - b[i]);
    return sum;
}

// Searches from `first` to `last`. Returns the first equal index, else -1 with `nearest` the closest one.
int search(const Levels& wanted, int first, int last, int& nearest) {
    const int step = first <= last ? 1 : -1;
    int best = -1;
    for (int index = first; index != last + step; index += step) {
        const int away = distance(levelsAt(index), wanted);
        if (away == 0) return index;
        if (best < 0 || away < best) best = away, nearest = index;
    }
    return -1;
}

} // namespace

int projectColourIndex(float red, float green, float blue) {
    int nearest = 0;
    const int found = search(levelsOf(red, green, blue), 0, colourMarks.colourTop, nearest);
    if (found >= 0) return found;
    if (colourMarks.colourTop + 1 >= colourMarks.defaultsColourBottom) return nearest;
    host.defineColour(++colourMarks.colourTop, red, green, blue);
    return colourMarks.colourTop;
}

int defaultsColourIndex(float red, float green, float blue) {
    int nearest = COLOURS - 1;
    if (colourMarks.defaultsColourBottom < COLOURS) {
        const int found = search(levelsOf(red, green, blue), COLOURS - 1, colourMarks.defaultsColourBottom, nearest);
        if (found >= 0) return found;
    }
    if (colourMarks.defaultsColourBottom - 1 <= colourMarks.colourTop) return nearest;
    host.defineColour(--colourMarks.defaultsColourBottom, red, green, blue);
    return colourMarks.defaultsColourBottom;
}

void mapDefaultColours() {
    constexpr std::array fields = {&WidgetNode::colour1, &WidgetNode::colour2, &WidgetNode::colour3,
                                   &WidgetNode::colour4};
    for (const OwnedList& record : defaultRecords) {
        if (!record) continue;
        for (int WidgetNode::*field : fields) {
            int& index = (*record).*field;
            if (index < FIXED_COLOURS || index >= COLOURS) continue; // fixed colours stay what they are
            float red = 0;
            float green = 0;
            float blue = 0;
            host.enquireColour(index, red, green, blue);
            index = projectColourIndex(red, green, blue);
        }
    }
}
