// What the generators ask of records.

#include "codegen/generation.h"
#include "codegen/quotes.h"

#include "project/preferences.h"
#include "project/tree.h"

#include <algorithm>
#include <limits>

bool hasStatusBar(const WidgetNode& form) { return project.projectPlatform == 'w' && form.statusBar; }

// A lone blank is what an empty field of the preferences holds.
bool checksConfiguration() {
    return preferences.configCheck != 0 && !preferences.configDirExpr.empty() && preferences.configDirExpr != " ";
}

bool hasWindowCode(const WidgetNode& node) {
    for (int slot = SLOT_WINDOW_MOVED; slot <= SLOT_WINDOW_LOST_FOCUS; ++slot) {
        if (!node.slots[static_cast<std::size_t>(slot)].empty()) return true;
    }
    return false;
}

bool needsGeneralCallback(const WidgetNode& node) { return !node.slots[SLOT_GENERAL].empty() || hasWindowCode(node); }

bool hasListEntries(const WidgetNode& list) {
    return list.contents == 0 && !list.listEntries.empty() && !list.listEntries.front().text.empty();
}

TypeSet typesBelow(const WidgetNode& form) {
    TypeSet types;
    for (const WidgetNode* node = &form; node; node = walkBelow(node, &form)) types.add(node->type);
    return types;
}

int difference(int a, int b) { return static_cast<int>(static_cast<unsigned>(a) - static_cast<unsigned>(b)); }

int wholeNumber(float value) {
    constexpr float LIMIT = 2147483648.0F;
    if (value >= LIMIT) return std::numeric_limits<int>::max();
    return value >= -LIMIT ? static_cast<int>(value) : std::numeric_limits<int>::min();
}

bool hasStandardFace(const WidgetNode& node) { return node.fontFace == "MS Sans Serif" && node.pointSize == 10; }

bool isPlainText(const WidgetNode& node) { return isText(node) && node.subType != 1; }

std::string fieldText(const WidgetNode& node) {
    return isText(node) && !isPlainText(node) ? withoutRichLineFeeds(node.text) : node.text;
}

bool needsFont(const Generation& g, const Placed& widget) {
    const WidgetNode& node = widget.node;
    if (!g.windows) return false;
    const bool plain =
        node.bold == 0 && node.italic == 0 && node.underline == 0 && node.strikeout == 0 && node.charSet == 0;
    if (!hasStandardFace(node) || !plain) return true;
    if (!isPlainText(node)) return false;
    const bool singleLine =
        (project.gridMode != 0 ? node.height == 1 : node.height <= 25) && !standsIn(node, TYPE_PANE);
    return !singleLine && node.justify != -1;
}

namespace {

// Pictures of the Windows resources have their counterparts among the menu icon files elsewhere.
void replaceStockPicture(Picture& picture) {
    if (picture.image.find("MBIG") != std::string_view::npos) {
        picture = {picture.kind, "MENUBIG1.ICN", false};
    } else if (picture.image.find("MSML") != std::string_view::npos) {
        picture = {picture.kind, "MENUSML1.ICN", false};
    }
    picture.kind = 0;
}

} // namespace

Picture formPicture(const Generation& g, const WidgetNode& form) {
    Picture picture{form.format, form.icon, true};
    if (!g.windows && picture.kind == 4) replaceStockPicture(picture);
    return picture;
}

Picture iconPicture(const Generation& g, const WidgetNode& icon) {
    if (icon.format == 3) return {4, icon.backgroundImage, false};
    return formPicture(g, icon);
}

Picture toolPicture(const WidgetNode& icon) {
    if (icon.format == 3) return {4, icon.backgroundImage, false};
    return {icon.format, icon.icon, true};
}

namespace {

// As many sizes as the widget has columns or rows and the record holds.
std::span<const int> held(const std::vector<int>& sizes, int count) {
    return std::span(sizes).first(std::min(sizes.size(), static_cast<std::size_t>(std::max(count, 0))));
}

} // namespace

std::vector<CellSize> cellSizes(const WidgetNode& array) {
    const std::span<const int> widths = held(array.columnWidths, array.columns);
    const std::span<const int> heights = held(array.rowHeights, array.rows);
    if (widths.empty() || heights.empty()) return {};
    const auto sameAs = [](int first) { return [first](int size) { return size == first; }; };
    if (std::all_of(widths.begin(), widths.end(), sameAs(widths.front())) &&
        std::all_of(heights.begin(), heights.end(), sameAs(heights.front()))) {
        return {{0, 0, widths.front(), heights.front(), true}};
    }
    std::vector<CellSize> sizes(std::max(widths.size(), heights.size()));
    int lastWidth = -1;
    int lastHeight = -1;
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        const std::size_t column = std::min(i, widths.size() - 1);
        const std::size_t row = std::min(i, heights.size() - 1);
        const bool changed = widths[column] != lastWidth || heights[row] != lastHeight;
        lastWidth = widths[column];
        lastHeight = heights[row];
        sizes[i] = {static_cast<int>(column) + 1, static_cast<int>(row) + 1, lastWidth, lastHeight, changed};
    }
    return sizes;
}

std::vector<TableColumn> tableColumns(const WidgetNode& table) {
    const std::span<const int> widths = held(table.columnWidths, table.columns);
    std::vector<TableColumn> columns(widths.size());
    std::string_view labels = table.xLabels;
    int number = 0;
    for (TableColumn& column : columns) {
        const std::size_t bar = labels.find('|');
        column = {number + 1, widths[static_cast<std::size_t>(number)], !labels.empty(), labels.substr(0, bar)};
        labels = bar == std::string_view::npos ? std::string_view() : labels.substr(bar + 1);
        ++number;
    }
    return columns;
}
