// Tabbed dialogue boxes.
#include "toolkit/testing/robot.h"

#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <gtest/gtest.h>

using namespace orba::testing;

namespace {

struct Tabs {
    Toolkit toolkit;
    int box, first, second, third;

    Tabs() {
        box = owCreateTabDialogueBox(toolkit.panel, 0, 0, 320, 200, owVpos, OTOP, owCallback, OIDENT, owSelectCallback,
                                     OIDENT, 0);
        first = owCreatePanel(box, 0, 0, 300, 150, owTitle, "Widgets", owIcon, owGetIconResource("widget"), 0);
        second = owCreatePanel(box, 0, 0, 300, 150, owTitle, "Menu & more", 0);
        third = owCreatePanel(box, 0, 0, 300, 150, owTitle, "Tree", 0);
        settle();
        events();
    }
    QTabWidget* view() const { return qobject_cast<QTabWidget*>(viewOf(box)); }
    void clickTab(int index) const {
        QTabBar* bar = view()->tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(index).center());
    }
};

} // namespace

TEST(TabBoxes, PanelsArePagesWithTitleAndIcon) {
    const Tabs tabs;
    ASSERT_EQ(tabs.view()->count(), 3);
    EXPECT_EQ(tabs.view()->tabText(0), "Widgets");
    EXPECT_EQ(tabs.view()->tabText(1), "Menu && more");
    EXPECT_FALSE(tabs.view()->tabIcon(0).isNull());
    EXPECT_TRUE(tabs.view()->tabIcon(1).isNull());
    owSetWidgetProp(tabs.second, owTitle, "Menus", 0);
    EXPECT_EQ(tabs.view()->tabText(1), "Menus");
    EXPECT_TRUE(isShown(tabs.first));
    EXPECT_FALSE(isShown(tabs.second));
}

TEST(TabBoxes, APageThatTheUserBringsUpIsTold) {
    const Tabs tabs;
    tabs.clickTab(2);
    const std::vector<OACTION> heard = events();
    ASSERT_FALSE(heard.empty());
    EXPECT_EQ(heard.back().callback, tabs.box);
    EXPECT_EQ(heard.back().widget, tabs.box);
    EXPECT_EQ(heard.back().status, tabs.third) << "the status is the page";
    EXPECT_TRUE(isShown(tabs.third));
}

TEST(TabBoxes, APageComesUpByItsStatus) {
    const Tabs tabs;
    owSetWidgetStatus(tabs.second, OSELECTABLE);
    EXPECT_TRUE(isShown(tabs.second));
    owSetWidgetStatus(tabs.third, OCHECKED);
    EXPECT_TRUE(isShown(tabs.third));
    EXPECT_TRUE(events().empty());
    owSetWidgetStatus(tabs.second, OUNSELECTABLE);
    EXPECT_FALSE(tabs.view()->isTabEnabled(1));
    tabs.clickTab(1);
    EXPECT_TRUE(isShown(tabs.third)) << "a disabled tab stays behind";
    owSetWidgetStatus(tabs.second, OHIDDEN);
    EXPECT_FALSE(tabs.view()->isTabVisible(1));
}

TEST(TabBoxes, PagesHoldWidgetsAndGoWithThem) {
    const Tabs tabs;
    const int button = owCreatePushButton(tabs.first, 10, 10, 80, 24, "OK", owCallback, OIDENT, 0);
    settle();
    EXPECT_TRUE(isShown(button));
    EXPECT_EQ(rectOf(tabs.first).width(), viewOf(tabs.first)->parentWidget()->width()) << "a page fills its box";
    owEraseWidget(tabs.first);
    EXPECT_EQ(tabs.view()->count(), 2);
    EXPECT_EQ(viewOf(button), nullptr);
    EXPECT_TRUE(isShown(tabs.second));
    EXPECT_TRUE(events().empty());
}

TEST(TabBoxes, TheFontOfTheTabsStaysOutOfThePages) {
    const Tabs tabs;
    const int button = owCreatePushButton(tabs.first, 10, 10, 80, 24, "OK", 0);
    const QFont before = viewOf(button)->font();
    owSetFontAttribs(tabs.box, owPointSize, 24, owBold, 1, 0);
    EXPECT_EQ(viewOf(button)->font(), before);
    EXPECT_EQ(tabs.view()->tabBar()->font().pointSize(), 24);
    const int page = owCreatePanel(tabs.box, 0, 0, 300, 150, owTitle, "Late", 0);
    const int late = owCreatePushButton(page, 10, 10, 80, 24, "OK", 0);
    EXPECT_EQ(viewOf(late)->font(), before);
    int size = 0, bold = 0;
    owEnqWidgetProp(tabs.box, owPointSize, &size, owBold, &bold, 0);
    EXPECT_EQ(size, 24);
    EXPECT_EQ(bold, 1);
}
