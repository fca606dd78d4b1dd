#include "project/status_panes.h"

#include <algorithm>

std::vector<BarPane> panesOf(const StatusBarRec& bar) {
    const auto count = static_cast<std::size_t>(std::clamp(bar.panes, 1, STATUS_PANES));
    std::vector<BarPane> panes(count);
    int edge = 0; // of the pane before, counted on over one that takes the rest
    for (std::size_t i = 0; i < count; ++i) {
        const int size = bar.sizes[i];
        panes[i] = {size == REST_OF_BAR ? REST_OF_BAR : size - edge, bar.texts[i]};
        if (size != REST_OF_BAR) edge = size;
    }
    return panes;
}

bool setPanes(StatusBarRec& bar, const std::vector<BarPane>& panes) {
    const std::size_t count = std::min<std::size_t>(panes.size(), STATUS_PANES);
    bool corrected = false;
    int edge = 0;
    bar.panes = static_cast<int>(count);
    bar.sizes.fill(0);
    bar.texts.fill({});
    for (std::size_t i = 0; i < count; ++i) {
        const bool rest = panes[i].width < 0;
        const bool last = i + 1 == count;
        corrected |= rest && !last;
        if (!rest || !last) edge += rest ? PANE_WIDTH : panes[i].width;
        bar.sizes[i] = rest && last ? REST_OF_BAR : edge;
        bar.texts[i] = panes[i].text;
    }
    return corrected;
}
