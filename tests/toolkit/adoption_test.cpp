// The adopted widget: handles, moving, resizing, snapping, drop targets, clicks that pass through.
#include "toolkit/testing/robot.h"

#include <QPoint>
#include <QRect>

#include <gtest/gtest.h>

using namespace orba::testing;

namespace {

using Ids = std::vector<int>;
constexpr int MOVED = 15316;
constexpr int DOUBLE = 15277;

struct Adopted {
    Toolkit toolkit;
    int target = owCreatePanel(toolkit.panel, 200, 100, 120, 100, owVpos, OTOP, owCallback, OIDENT, 0);
    int widget = owCreatePanel(toolkit.panel, 20, 30, 60, 40, owVpos, OTOP, owCallback, 4711, 0);
    Adopted() {
        owSetSnapGrid(10);
        owAdoptChild(widget, MOVED, DOUBLE);
        events();
    }
};

TEST(Adoption, ShowsEightHandlesUntilItEnds) {
    Adopted form;
    EXPECT_EQ(gripCount(), 8);
    owAdoptChild(form.target, MOVED, DOUBLE);
    EXPECT_EQ(gripCount(), 8) << "one widget at a time";
    owAdoptChild(0, 0, 0);
    EXPECT_EQ(gripCount(), 0);
    owAdoptChild(form.widget, MOVED, DOUBLE);
    owEraseWidget(form.widget);
    EXPECT_EQ(gripCount(), 0);
}

TEST(Adoption, MovesInStepsAndTellsTheParent) {
    Adopted form;
    drag(form.widget, {30, 20}, {30 + 44, 20 + 17});
    EXPECT_EQ(rectOf(form.widget), QRect(60, 50, 60, 40));
    const auto all = events();
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].callback, MOVED);
    EXPECT_EQ(all[0].widget, form.widget);
    EXPECT_EQ(all[0].status, form.toolkit.panel);
    int x = 0, y = 0;
    owEnqWidgetProp(form.widget, owXpos, &x, owYpos, &y, 0);
    EXPECT_EQ(x, 60);
    EXPECT_EQ(y, 50);
}

TEST(Adoption, TellsTheWidgetBelowTheDrop) {
    Adopted form;
    drag(form.widget, {30, 20}, {30 + 200, 20 + 100});
    const auto all = events();
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].status, form.target);
}

TEST(Adoption, ResizesByEveryHandle) {
    const struct {
        int grip;
        QRect after; // of 20,30 60x40 after a drag of 20,10
    } rows[] = {{0, {40, 40, 40, 30}}, {1, {20, 40, 60, 30}}, {2, {20, 40, 80, 30}}, {3, {20, 30, 80, 40}},
                {4, {20, 30, 80, 50}}, {5, {20, 30, 60, 50}}, {6, {40, 30, 40, 50}}, {7, {40, 30, 40, 40}}};
    for (const auto& row : rows) {
        Adopted form;
        dragGrip(row.grip, {20, 10});
        EXPECT_EQ(rectOf(form.widget), row.after) << row.grip;
        const auto all = events();
        ASSERT_EQ(all.size(), 1U) << row.grip;
        EXPECT_EQ(all[0].status, form.toolkit.panel);
    }
}

TEST(Adoption, AClickStillWorksTheWidget) {
    Adopted form;
    click(form.widget);
    EXPECT_EQ(identifiers(), Ids{4711});
    EXPECT_EQ(rectOf(form.widget), QRect(20, 30, 60, 40));
}

TEST(Adoption, ATextEntryTakesKeysWhileAdopted) {
    Adopted form;
    const int entry = owCreateTextEntry(form.toolkit.panel, 20, 200, 80, 24, "", 20, OEDIT, owVpos, OTOP, 0);
    owAdoptChild(entry, MOVED, DOUBLE);
    click(entry);
    type(entry, "abc");
    EXPECT_EQ(shownText(entry), QStringLiteral("abc"));
}

TEST(Adoption, DoubleClickHasItsOwnEvent) {
    Adopted form;
    doubleClick(form.widget);
    const Ids got = identifiers();
    ASSERT_FALSE(got.empty());
    EXPECT_EQ(got.back(), DOUBLE);
}

TEST(Adoption, ADragThatComesBackTellsNothing) {
    Adopted form;
    drag(form.widget, {30, 20}, {33, 22});
    EXPECT_TRUE(identifiers().empty());
    EXPECT_EQ(rectOf(form.widget), QRect(20, 30, 60, 40));
}

TEST(Adoption, OriginsAreKept) {
    Toolkit toolkit;
    const int widget = owCreatePanel(toolkit.panel, 20, 30, 60, 40, owHpos, ORIGHT, 0); // 320,230 in 400 by 300
    owSetSnapGrid(1);
    owAdoptChild(widget, MOVED, DOUBLE);
    drag(widget, {30, 20}, {20, 10});
    int x = 0, y = 0;
    owEnqWidgetProp(widget, owXpos, &x, owYpos, &y, 0);
    EXPECT_EQ(x, 30);
    EXPECT_EQ(y, 40);
}

TEST(Adoption, WhatCannotBeDraggedIsRefused) {
    Toolkit toolkit;
    owAdoptChild(toolkit.master, MOVED, DOUBLE);
    owAdoptChild(12345, MOVED, DOUBLE);
    EXPECT_EQ(reports(), (Ids{1667, 1626}));
    EXPECT_EQ(gripCount(), 0);
}

} // namespace
