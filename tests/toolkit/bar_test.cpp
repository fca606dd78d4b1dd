// Tool bars, docking panes and status bars.
#include "toolkit/testing/robot.h"

#include <QLabel>
#include <QMainWindow>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <gtest/gtest.h>

using namespace orba::testing;

namespace {

struct BarPlace {
    int x, y, width, position;
};

BarPlace placeOf(int bar) {
    BarPlace place{};
    owEnqToolbarPos(bar, &place.x, &place.y, &place.width, &place.position);
    return place;
}

struct PanePlace {
    int x, y, dockedWidth, dockedHeight, floatWidth, floatHeight, position;
};

PanePlace panePlaceOf(int pane) {
    PanePlace place{};
    owEnqPanePos(pane, &place.x, &place.y, &place.dockedWidth, &place.dockedHeight, &place.floatWidth,
                 &place.floatHeight, &place.position);
    return place;
}

int addButton(int bar, const char* icon, int callback) {
    return owCreateToolBarButton(bar, OICONBUTTON, icon, owIconType, OMOUSESENSITIVE, owHelp, "A button", owCallback,
                                 callback);
}

QRect onWindow(int handle) {
    QWidget* view = viewOf(handle);
    return {view->mapTo(view->window(), QPoint(0, 0)), view->size()};
}

} // namespace

TEST(ToolBars, StandWhereTheyArePut) {
    const Toolkit toolkit(Toolkit::Master::mdi);
    const int bar = owCreateToolBar(toolkit.master, OTOP, 22, owTitle, "Bar", owCallback, OIDENT);
    addButton(bar, "save", 7001);
    for (const int position : {OBOTTOM, OTOP, OLEFTSIDE, ORIGHTSIDE, OFLOATING, OTOP, 0, OLEFTSIDE}) {
        owSetToolbarPos(bar, 210, 220, 300, position);
        settle();
        EXPECT_EQ(placeOf(bar).position, position);
        EXPECT_EQ(isShown(bar), position != 0) << position;
    }
    owSetToolbarPos(bar, 210, 220, 300, OFLOATING);
    EXPECT_EQ(placeOf(bar).width, 300);
    EXPECT_TRUE(viewOf(bar)->isWindow());
    EXPECT_TRUE(events().empty()) << "what the program does is no event";
}

TEST(ToolBars, OfOneSideStandInRows) {
    const Toolkit toolkit(Toolkit::Master::mdi);
    const int first = owCreateToolBar(toolkit.master, OTOP, 22, owTitle, "First");
    const int second = owCreateToolBar(toolkit.master, OTOP, 22, owTitle, "Second");
    addButton(first, "save", 1);
    addButton(second, "cut", 2);
    settle();
    EXPECT_GE(rectOf(second).top(), rectOf(first).bottom());
}

TEST(ToolBars, HideAndComeBackToTheirSide) {
    const Toolkit toolkit(Toolkit::Master::mdi);
    const int bar = owCreateToolBar(toolkit.master, ORIGHTSIDE, 22, owTitle, "Bar");
    addButton(bar, "save", 1);
    owSetWidgetStatus(bar, OHIDDEN);
    EXPECT_FALSE(isShown(bar));
    EXPECT_EQ(placeOf(bar).position, 0);
    owSetWidgetStatus(bar, OSELECTABLE);
    EXPECT_TRUE(isShown(bar));
    EXPECT_EQ(placeOf(bar).position, ORIGHTSIDE);
}

TEST(ToolBars, ADoubleClickBesideTheButtonsLetsThemLooseAndBack) {
    const Toolkit toolkit(Toolkit::Master::mdi);
    const int bar = owCreateToolBar(toolkit.master, OBOTTOM, 22, owTitle, "Bar", owCallback, OIDENT);
    const int button = addButton(bar, "save", 1);
    settle();
    for (const int position : {OFLOATING, OBOTTOM}) {
        events();
        QTest::mouseDClick(viewOf(bar), Qt::LeftButton, {},
                           QPoint(rectOf(button).right() + 3, rectOf(button).center().y()));
        EXPECT_EQ(placeOf(bar).position, position);
        bool moved = false;
        for (const OACTION& action : events()) moved = moved || (action.callback == bar && action.status == OMOVED);
        EXPECT_TRUE(moved);
    }
}

TEST(ToolBars, ButtonsReportAndTheProgramPressesThem) {
    const Toolkit toolkit(Toolkit::Master::mdi);
    const int bar = owCreateToolBar(toolkit.master, OTOP, 23, owTitle, "Bar");
    const int icon = addButton(bar, "Pointer", 7001);
    const int text = owCreateToolBarButton(bar, OTEXTBUTTON, "Go & stop", owCallback, OIDENT);
    settle();
    events();
    click(icon);
    click(text);
    EXPECT_EQ(identifiers(), (std::vector<int>{7001, text}));
    EXPECT_EQ(shownText(text), "Go & stop");
    EXPECT_EQ(toolTip(icon), "A button");
    const auto rises = [](int handle) { return qobject_cast<QToolButton*>(viewOf(handle))->autoRaise(); };
    EXPECT_TRUE(rises(icon));
    EXPECT_FALSE(rises(text)) << "a text button whose type is not told is a push button";
    auto* view = qobject_cast<QToolButton*>(viewOf(icon));
    EXPECT_EQ(view->iconSize(), QSize(23, 23));
    owSetWidgetStatus(icon, OCHECKED);
    EXPECT_TRUE(view->isChecked());
    click(icon);
    EXPECT_TRUE(view->isChecked()) << "a click does not release it";
    EXPECT_EQ(identifiers(), (std::vector<int>{7001}));
    owSetWidgetStatus(icon, OUNSELECTABLE);
    EXPECT_FALSE(view->isChecked());
    click(icon);
    EXPECT_TRUE(identifiers().empty()) << "a disabled button is deaf";
}

TEST(ToolBars, AHiddenButtonLeavesNoGap) {
    const Toolkit toolkit(Toolkit::Master::mdi);
    const int bar = owCreateToolBar(toolkit.master, OTOP, 22, owTitle, "Bar");
    const int one = addButton(bar, "save", 1), two = addButton(bar, "cut", 2);
    settle();
    const QRect first = rectOf(one);
    owSetWidgetStatus(one, OHIDDEN);
    settle();
    EXPECT_EQ(rectOf(two).left(), first.left());
    owSetWidgetStatus(one, OSELECTABLE);
    settle();
    EXPECT_TRUE(isShown(one));
    EXPECT_EQ(rectOf(one).left(), first.left());
    EXPECT_GT(rectOf(two).left(), first.right());
}

TEST(ToolBars, HoldOtherWidgetsAtTheirWidth) {
    const Toolkit toolkit(Toolkit::Master::mdi);
    const int bar = owCreateToolBar(toolkit.master, OTOP, 22, owTitle, "Bar");
    const int combo = owCreateComboBox(bar, 0, 0, 150, 200, ODOW, ODISPLAY, owCallback, OIDENT, 0);
    const int button = addButton(bar, "save", 1);
    settle();
    EXPECT_EQ(rectOf(combo).width(), 150);
    EXPECT_GT(rectOf(button).left(), rectOf(combo).right());
    owEraseWidget(combo);
    settle();
    EXPECT_LT(rectOf(button).left(), 100) << "an erased widget leaves its place";
}

TEST(ToolBars, SeparatorsOfEveryTypeTakeRoomAndDrawTheirLines) {
    const Toolkit toolkit(Toolkit::Master::mdi);
    const int bar = owCreateToolBar(toolkit.master, OTOP, 22, owTitle, "Bar");
    std::vector<QImage> pictures;
    for (const int type : {0, 1, 2, 5, 6}) {
        const int separator = owCreateToolBarSeparator(bar, owSeparatorType, type);
        settle();
        int answer = -1;
        owEnqWidgetProp(separator, owSeparatorType, &answer, 0);
        EXPECT_EQ(answer, type);
        EXPECT_GE(rectOf(separator).width(), 5);
        EXPECT_GE(rectOf(separator).height(), 22);
        for (const QImage& before : pictures) EXPECT_NE(picture(separator), before) << type;
        pictures.push_back(picture(separator));
    }
}

TEST(ToolBars, ClosingFollowsTheQuitMode) {
    struct Case {
        int mode;
        bool shown, alive;
    };
    for (const Case& row : {Case{OHIDE, false, true}, Case{OLEAVE, true, true}, Case{OREMOVE, false, false}}) {
        const Toolkit toolkit(Toolkit::Master::mdi);
        const int bar = owCreateToolBar(toolkit.master, OTOP, 22, owTitle, "Bar", owTitleFlag, OQUIT, owQuitMode,
                                        row.mode, owCallback, OIDENT);
        addButton(bar, "save", 1);
        owSetToolbarPos(bar, 300, 300, 0, OFLOATING);
        settle();
        events();
        viewOf(bar)->close();
        const std::vector<OACTION> heard = events();
        ASSERT_EQ(heard.size(), 1U) << row.mode;
        EXPECT_EQ(heard[0].callback, bar);
        EXPECT_EQ(heard[0].status, OCLOSED);
        EXPECT_EQ(viewOf(bar) != nullptr, row.alive) << row.mode;
        EXPECT_EQ(isShown(bar), row.shown) << row.mode;
    }
}

TEST(DockingPanes, StandWhereTheyArePutAtTheirSize) {
    const Toolkit toolkit(Toolkit::Master::mdi);
    owSetWidgetProp(toolkit.master, owWidth, 900, owHeight, 700, 0);
    const int pane = owCreateDockingPane(toolkit.master, ORIGHTSIDE, 0, 0, 235, 513, owTitleFlag, OQUIT, owTitle,
                                         "Properties", owCallback, OIDENT);
    settle(50);
    for (const int position : {OLEFTSIDE, ORIGHTSIDE, OTOP, OBOTTOM, OFLOATING, 0, ORIGHTSIDE}) {
        owSetPanePos(pane, 150, 160, 240, 180, position);
        settle(30);
        const PanePlace place = panePlaceOf(pane);
        EXPECT_EQ(place.position, position);
        EXPECT_EQ(isShown(pane), position != 0);
        if (position == OFLOATING) {
            EXPECT_EQ(place.floatWidth, 240);
            EXPECT_EQ(place.floatHeight, 180);
            EXPECT_EQ(place.x, 150);
            EXPECT_EQ(place.y, 160);
        } else {
            EXPECT_EQ(place.dockedWidth, 240);
            EXPECT_EQ(place.dockedHeight, 180);
        }
        const bool column = position == OLEFTSIDE || position == ORIGHTSIDE;
        EXPECT_TRUE(!column || viewOf(pane)->width() == 240) << viewOf(pane)->width();
    }
    EXPECT_TRUE(events().empty()) << "what the program does is no event";
}

TEST(DockingPanes, OfOneSideStandSideBySideAndKeepTheirWidths) {
    const Toolkit toolkit(Toolkit::Master::mdi);
    owSetWidgetProp(toolkit.master, owWidth, 1000, owHeight, 700, 0);
    const int tree =
        owCreateDockingPane(toolkit.master, OLEFTSIDE, 0, 0, 150, 500, owTitleFlag, OQUIT, owTitle, "Hierarchy");
    const int code =
        owCreateDockingPane(toolkit.master, OLEFTSIDE, 0, 0, 420, 500, owTitleFlag, OQUIT, owTitle, "Code");
    settle(50);
    EXPECT_EQ(viewOf(tree)->width(), 150);
    EXPECT_EQ(viewOf(code)->width(), 420);
    EXPECT_GT(onWindow(code).left(), onWindow(tree).right() - 1);
    owSetWidgetStatus(code, OHIDDEN);
    settle(50);
    EXPECT_EQ(viewOf(tree)->width(), 150) << "the middle of the window takes the room";
    owSetWidgetStatus(code, OSELECTABLE);
    settle(50);
    EXPECT_EQ(viewOf(tree)->width(), 150);
    EXPECT_EQ(viewOf(code)->width(), 420);
}

TEST(DockingPanes, NeverMakeTheWindowLarger) {
    const Toolkit toolkit(Toolkit::Master::mdi);
    owSetWidgetProp(toolkit.master, owWidth, 900, owHeight, 600, 0);
    owCreatePullDownMenu(owCreateMenuEntry(owCreateMenuBar(toolkit.master), "File", 0));
    for (int bar = 0; bar < 2; ++bar) {
        const int handle = owCreateToolBar(toolkit.master, OTOP, 40, owTitle, "Bar");
        owCreatePushButton(handle, 0, 0, 40, 40, "Run", 0);
    }
    owCreateStatusBar(toolkit.master, 0);
    owCreateDockingPane(toolkit.master, OBOTTOM, 0, 0, 900, 120, owTitle, "Log");
    const int code = owCreateDockingPane(toolkit.master, OLEFTSIDE, 0, 0, 400, 520, owTitle, "Code");
    settle(50);
    const QSize before = viewOf(toolkit.master)->window()->size();
    owSetPanePos(code, 0, 0, 400, 520, OTOP);
    settle(50);
    EXPECT_EQ(viewOf(toolkit.master)->window()->size(), before);
    EXPECT_GT(viewOf(code)->height(), 150) << "it takes what there is";
}

TEST(DockingPanes, TheirBodyHoldsWidgetsThatGrowWithIt) {
    const Toolkit toolkit(Toolkit::Master::mdi);
    owSetWidgetProp(toolkit.master, owWidth, 900, owHeight, 700, 0);
    const int pane =
        owCreateDockingPane(toolkit.master, OLEFTSIDE, 0, 0, 200, 300, owTitleFlag, OTITLE, owTitle, "Pane");
    const int list = owCreateListBox(pane, 0, 0, 50, 50, ONONE, owHpos, OCENTRE, owVpos, OMIDDLE, owExpand, OON, 0);
    settle(50);
    EXPECT_EQ(rectOf(list).width(), 200);
    owSetPanePos(pane, 0, 0, 320, 300, OLEFTSIDE);
    settle(50);
    EXPECT_EQ(rectOf(list).width(), 320);
    EXPECT_EQ(rectOf(list).size(), viewOf(list)->parentWidget()->size());
}

TEST(DockingPanes, CloseBoxAsksTheProgram) {
    const Toolkit toolkit(Toolkit::Master::mdi);
    const int pane = owCreateDockingPane(toolkit.master, OLEFTSIDE, 0, 0, 200, 300, owTitleFlag, OQUIT, owTitle, "Pane",
                                         owQuitMode, OLEAVE, owCallback, 4711);
    settle();
    events();
    auto* box = viewOf(pane)->findChild<QAbstractButton*>("qt_dockwidget_closebutton");
    ASSERT_NE(box, nullptr);
    ASSERT_TRUE(box->isVisible());
    QTest::mouseClick(box, Qt::LeftButton);
    const std::vector<OACTION> heard = events();
    ASSERT_FALSE(heard.empty());
    EXPECT_EQ(heard.back().callback, 4711);
    EXPECT_EQ(heard.back().widget, pane);
    EXPECT_EQ(heard.back().status, OCLOSED);
    EXPECT_TRUE(isShown(pane));
    owSetWidgetProp(pane, owTitleFlag, OTITLE, 0);
    settle();
    EXPECT_FALSE(box->isVisible()) << "a title alone has no close box";
}

TEST(DockingPanes, KindTellsAFloatingOne) {
    const Toolkit toolkit(Toolkit::Master::mdi);
    const int pane = owCreateDockingPane(toolkit.master, OLEFTSIDE, 0, 0, 200, 300, owTitle, "Pane");
    int kind = 0;
    owEnqWidgetProp(pane, owKind, &kind, 0);
    EXPECT_NE(kind, 2);
    owSetPanePos(pane, 100, 100, 200, 200, OFLOATING);
    owEnqWidgetProp(pane, owKind, &kind, 0);
    EXPECT_EQ(kind, 2);
    owRemoveWindow(pane);
    EXPECT_FALSE(isShown(pane));
    owSetWidgetStatus(pane, OSELECTABLE);
    EXPECT_TRUE(isShown(pane));
}

TEST(DockingPanes, AClickOnTitleOrEmptyBodyTellsOnce) {
    const Toolkit toolkit(Toolkit::Master::mdi);
    const int pane = owCreateDockingPane(toolkit.master, OLEFTSIDE, 0, 0, 200, 300, owTitleFlag, OQUIT, owTitle, "Pane",
                                         owCallback, OIDENT);
    owCreatePanel(pane, 0, 0, 0, 0, owHpos, OCENTRE, owVpos, OMIDDLE, owExpand, OON, 0);
    settle(50);
    for (const QPoint place : {QPoint(60, 8), QPoint(60, 120)}) {
        events();
        QWidget* target = viewOf(pane)->childAt(place);
        if (!target) target = viewOf(pane);
        QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier, target->mapFrom(viewOf(pane), place));
        settle(60);
        const std::vector<OACTION> heard = events();
        ASSERT_EQ(heard.size(), 1U) << place.y();
        EXPECT_EQ(heard[0].callback, pane);
        EXPECT_NE(heard[0].status, OCLOSED);
    }
}

TEST(StatusBars, PanesEndAtTheirEdges) {
    const Toolkit toolkit(Toolkit::Master::plain);
    const int edges[] = {100, 200, -1};
    const int bar = owCreateStatusBar(toolkit.master, owPanes, 3, owSizes, edges, 0);
    owSetStatusBarText(bar, 0, "Ready");
    owSetStatusBarText(bar, 1, "Line: 12");
    owSetStatusBarText(bar, 2, "end");
    settle();
    EXPECT_EQ(rectOf(bar).width(), 400);
    const QImage shown = picture(bar);
    const auto inkBetween = [&](int left, int right) {
        int ink = 0;
        for (int x = left; x < right; ++x)
            for (int y = 3; y < shown.height() - 3; ++y) ink += qGray(shown.pixel(x, y)) < 100;
        return ink;
    };
    EXPECT_GT(inkBetween(4, 96), 5);
    EXPECT_GT(inkBetween(104, 196), 5);
    EXPECT_GT(inkBetween(204, 380), 5);
    owSetStatusBarText(bar, 1, "");
    EXPECT_TRUE(reports().empty());
    owSetStatusBarText(bar, 3, "no such pane");
    owSetStatusBarText(bar, -1, "no such pane");
    EXPECT_EQ(reports(), (std::vector<int>{1635, 1635}));
    owSetStatusBarText(toolkit.panel, 0, "no bar");
    EXPECT_EQ(reports().size(), 1U);
}

TEST(Bars, OnlyOnWindowsAndOnlyTheirOwnChildren) {
    const Toolkit toolkit(Toolkit::Master::plain);
    EXPECT_EQ(owCreateToolBar(toolkit.panel, OTOP, 22, owTitle, "Bar"), 0);
    EXPECT_EQ(owCreateDockingPane(toolkit.panel, OTOP, 0, 0, 10, 10, owTitle, "Pane"), 0);
    EXPECT_EQ(owCreateToolBarButton(toolkit.panel, OICONBUTTON, "save"), 0);
    EXPECT_EQ(owCreateStatusBar(toolkit.panel, 0), 0);
    EXPECT_EQ(reports().size(), 4U);
    EXPECT_EQ(owCreateToolBar(0, OTOP, 22), 0);
    EXPECT_EQ(reports(), (std::vector<int>{1626}));
}
