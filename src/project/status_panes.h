// Panes of a status bar: records hold their right edges, users think in widths.
#pragma once

#include "project/records.h"

#include <array>
#include <vector>

inline constexpr int REST_OF_BAR = -1; // width of a pane that takes what the others leave
inline constexpr int PANE_WIDTH = 100; // of a new pane

struct BarPane {
    int width = PANE_WIDTH;
    std::string text;
    bool operator==(const BarPane&) const = default;
};

std::vector<BarPane> panesOf(const StatusBarRec& bar); // at least one, at most STATUS_PANES

// Writes panes, edges and texts; what lies behind the last pane is cleared. A pane that takes the rest although others
// follow gets PANE_WIDTH instead: true when there was one.
bool setPanes(StatusBarRec& bar, const std::vector<BarPane>& panes);
