// Widths of the panes of a status bar and the edges that records hold.
#include "project/status_panes.h"

#include <gtest/gtest.h>

namespace {

TEST(StatusPanes, WidthsBecomeEdgesAndComeBack) {
    const struct {
        const char* name;
        std::vector<int> widths, edges;
        bool corrected;
        std::vector<int> back;
    } cases[] = {
        {"rest last", {100, 50, -1}, {100, 150, -1}, false, {100, 50, -1}},
        {"one pane", {-1}, {-1}, false, {-1}},
        {"rest first", {-1, 40}, {100, 140}, true, {100, 40}},
        {"rest in the middle", {10, -1, 5}, {10, 110, 115}, true, {10, 100, 5}},
        {"nothing", {0, 7}, {0, 7}, false, {0, 7}},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        StatusBarRec bar;
        bar.sizes.fill(77);
        std::vector<BarPane> panes;
        for (const int width : one.widths) panes.push_back({width, std::to_string(width)});
        EXPECT_EQ(setPanes(bar, panes), one.corrected);
        EXPECT_EQ(std::vector(bar.sizes.begin(), bar.sizes.begin() + bar.panes), one.edges);
        EXPECT_EQ(bar.sizes[static_cast<std::size_t>(bar.panes)], 0) << "behind the last";
        std::vector<int> back;
        for (const BarPane& pane : panesOf(bar)) back.push_back(pane.width);
        EXPECT_EQ(back, one.back);
        EXPECT_EQ(panesOf(bar)[0].text, std::to_string(one.widths[0]));
    }
}

// A file can hold anything.
TEST(StatusPanes, AreAtLeastOneAndAtMostThirtyTwo) {
    StatusBarRec bar;
    EXPECT_EQ(panesOf(bar).size(), 1U);
    bar.panes = 4000;
    EXPECT_EQ(panesOf(bar).size(), 32U);
    EXPECT_FALSE(setPanes(bar, std::vector<BarPane>(40)));
    EXPECT_EQ(bar.panes, 32);
}

} // namespace
