#include "properties/limits.h"

#include <algorithm>
#include <cstdlib>

namespace {

struct Limits {
    RowId row;
    double least, most;
};
constexpr double FAR = 30000;        // pixels or cells: beyond any screen
constexpr double LARGEST_ICON = 256; // pixels
constexpr double LARGEST_TYPE = 400; // points
constexpr Limits LIMITS[] = {
    {ROW_XPOS, -FAR, FAR},
    {ROW_YPOS, -FAR, FAR},
    {ROW_WIDTH, 0, FAR},
    {ROW_HEIGHT, 0, FAR},
    {ROW_SIZE, 1, FAR},
    {ROW_LINES, 1, FAR},
    {ROW_ICON_SIZE, 1, LARGEST_ICON},
    {ROW_X_LABELS_HEIGHT, 0, FAR},
    {ROW_Y_LABELS_WIDTH, 0, FAR},
    {ROW_POINT_SIZE, 1, LARGEST_TYPE},
};

} // namespace

bool isSane(const PropertyRow& row, const CellInput& input) {
    const auto limits = std::ranges::find(LIMITS, row.id, &Limits::row);
    if (limits == std::end(LIMITS)) return true;
    const double number = row.cell == Cell::Number ? input.number : std::atof(input.text.c_str());
    return number >= limits->least && number <= limits->most;
}
