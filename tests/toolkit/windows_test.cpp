// Windows, menus, layout, confinement of the input.
#include "toolkit/testing/robot.h"

#include "toolkit/frame/core.h"

#include <QAction>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QWidget>
#include <QWindow>

#include <gtest/gtest.h>

using namespace orba;
using namespace orba::testing;

namespace {

using Ids = std::vector<int>;

int dialogue(int parent, int quitMode = OLEAVE) {
    return owCreateComplexDialogueBox(parent, 50, 60, 200, 150, OALL, "Dialogue", owVpos, OTOP, owQuitMode, quitMode,
                                      owCallback, OIDENT, owSelectCallback, OIDENT, 0);
}

struct Geometry {
    int x = 0, y = 0, width = 0, height = 0;
    bool operator==(const Geometry&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Geometry& g) {
    return out << g.x << "," << g.y << " " << g.width << "x" << g.height;
}

Geometry geometryOf(int handle) {
    Geometry g;
    owEnqWidgetProp(handle, owXpos, &g.x, owYpos, &g.y, owWidth, &g.width, owHeight, &g.height, 0);
    return g;
}

TEST(Master, OnlyOne) {
    Toolkit toolkit;
    EXPECT_EQ(owCreateMasterWindow(0, 0, 10, 10, OALL, "again", 0), 0);
    EXPECT_EQ(reports(), Ids{1618});
}

TEST(Master, ClosingItIsMinusOne) {
    Toolkit toolkit;
    closeByUser(toolkit.master);
    EXPECT_EQ(identifiers(), Ids{-1});
    EXPECT_TRUE(isShown(toolkit.master));
}

TEST(Master, BeforeItNothingWorks) {
    Toolkit toolkit(Toolkit::Master::none);
    EXPECT_EQ(owCreatePanel(1, 0, 0, 10, 10, 0), 0);
    owSetWidgetStatus(1, 1);
    EXPECT_EQ(reports(), (Ids{1601, 1601}));
    EXPECT_EQ(lastReportedRoutine(), "owSetWidgetStatus");
    owDefineGuiGrid(36, 27);
    EXPECT_TRUE(reports().empty());
}

TEST(Dialogues, AreShownAndRemovedByTheProgram) {
    Toolkit toolkit;
    const int window = dialogue(toolkit.master);
    EXPECT_FALSE(isShown(window));
    owDrawWindow(window, 1);
    EXPECT_TRUE(isShown(window));
    EXPECT_EQ(geometryOf(window), (Geometry{50, 60, 200, 150}));
    owRemoveWindow(window);
    EXPECT_FALSE(isShown(window));
    owDrawWindow(window);
    EXPECT_TRUE(isShown(window));
    EXPECT_TRUE(identifiers().empty());
}

TEST(Dialogues, TellWhatTheUserDid) {
    Toolkit toolkit;
    const int window = dialogue(toolkit.master);
    owDrawWindow(window, 1);
    events();
    moveByUser(window, {80, 90});
    resizeByUser(window, {260, 170});
    closeByUser(window);
    Ids statuses;
    for (const OACTION& event : events()) {
        if (event.callback == window) statuses.push_back(event.status);
    }
    EXPECT_EQ(statuses, (Ids{OMOVED, ORESIZED, OCLOSED}));
    EXPECT_EQ(geometryOf(window), (Geometry{80, 90, 260, 170}));
    EXPECT_TRUE(isShown(window)) << "quit mode OLEAVE";
}

TEST(Dialogues, QuitModes) {
    Toolkit toolkit;
    const int hides = dialogue(toolkit.master, OHIDE);
    const int goes = dialogue(toolkit.master, OREMOVE);
    owDrawWindow(hides, 1);
    owDrawWindow(goes, 1);
    events();
    closeByUser(hides);
    closeByUser(goes);
    EXPECT_FALSE(isShown(hides));
    EXPECT_NE(viewOf(goes), nullptr) << "alive until its event has been handled";
    events();
    EXPECT_NE(viewOf(hides), nullptr);
    EXPECT_EQ(viewOf(goes), nullptr);
}

TEST(Dialogues, OriginsMeasureFromTheScreen) {
    Toolkit toolkit;
    const int window = owCreateComplexDialogueBox(toolkit.master, 30, 40, 200, 100, OALL, "", owHpos, ORIGHT, 0);
    owDrawWindow(window, 1);
    EXPECT_EQ(geometryOf(window), (Geometry{30, 40, 200, 100}));
    const QSize screen = viewOf(window)->screen()->size();
    EXPECT_EQ(frameOf(window)->x(), screen.width() - 30 - 200);
    EXPECT_EQ(frameOf(window)->y(), screen.height() - 40 - 100);
}

TEST(Dialogues, ClientAreaKeepsItsSizeBesideBars) {
    Toolkit toolkit;
    const int window = dialogue(toolkit.master);
    const int panel = owCreatePanel(window, 0, 0, 200, 150, owHpos, OCENTRE, owVpos, OMIDDLE, owExpand, OON, 0);
    owCreateMenuEntry(owCreateMenuBar(window), "File", 0);
    owDrawWindow(window, 1);
    settle();
    EXPECT_EQ(viewOf(panel)->size(), QSize(200, 150));
}

TEST(Dialogues, TellThatTheyWereScrolled) {
    Toolkit toolkit;
    const int window = dialogue(toolkit.master);
    const int panel = owCreatePanel(window, 0, 0, 100, 80, owVpos, OTOP, owScrollMode, OBOTHBARS, 0);
    owCreatePanel(panel, 0, 300, 50, 50, owVpos, OTOP, 0);
    owDrawWindow(window, 1);
    events();
    auto* area = viewOf(panel)->findChild<QScrollArea*>();
    ASSERT_NE(area, nullptr);
    area->verticalScrollBar()->setValue(40);
    Ids statuses;
    for (const OACTION& event : events()) {
        if (event.callback == window) statuses.push_back(event.status);
    }
    EXPECT_EQ(statuses, Ids{OSCROLLED});
}

TEST(Dialogues, TitleFlagsChooseTheButtons) {
    Toolkit toolkit;
    const struct {
        int flag;
        bool title, quit, maximize, minimize;
    } rows[] = {{OALL, true, true, true, true},
                {OTITLE, true, false, false, false},
                {OQUIT, true, true, false, false},
                {OMAXIMIZE, true, false, true, false},
                {OMAXIMIZE + OQUIT, true, true, true, false},
                {OMINIMIZE + OQUIT, true, true, false, true},
                {OMINIMIZE + OMAXIMIZE, true, false, true, true}};
    for (const auto& row : rows) {
        const int window = owCreateComplexDialogueBox(toolkit.master, 0, 0, 100, 100, row.flag, "x", 0);
        const Qt::WindowFlags flags = viewOf(window)->windowFlags();
        EXPECT_EQ(flags.testFlag(Qt::WindowTitleHint), row.title) << row.flag;
        EXPECT_EQ(flags.testFlag(Qt::WindowCloseButtonHint), row.quit) << row.flag;
        EXPECT_EQ(flags.testFlag(Qt::WindowMaximizeButtonHint), row.maximize) << row.flag;
        EXPECT_EQ(flags.testFlag(Qt::WindowMinimizeButtonHint), row.minimize) << row.flag;
    }
    const int bare = owCreateComplexDialogueBox(toolkit.master, 0, 0, 100, 100, ONONE, "x", 0);
    EXPECT_TRUE(viewOf(bare)->windowFlags().testFlag(Qt::FramelessWindowHint));
    const int tool = owCreateComplexDialogueBox(toolkit.master, 0, 0, 100, 100, OTOOL, "x", 0);
    EXPECT_EQ(viewOf(tool)->windowType(), Qt::Tool);
}

TEST(Dialogues, ATitleMayHoldTheMarkOfAModifiedDocument) {
    Toolkit toolkit;
    const int window = owCreateComplexDialogueBox(toolkit.master, 0, 0, 200, 100, OALL, "a[*]b", 0);
    owDrawWindow(window, 1);
    settle();
    EXPECT_EQ(viewOf(window)->windowHandle()->title(), QStringLiteral("a[*]b"));
    owSetWidgetProp(window, owTitle, "[*]", 0);
    EXPECT_EQ(viewOf(window)->windowHandle()->title(), QStringLiteral("[*]"));
    char title[20] = "";
    owEnqWidgetProp(window, owTitle, title, 0);
    EXPECT_STREQ(title, "[*]");
}

TEST(Dialogues, InitialStates) {
    Toolkit toolkit;
    const auto make = [&](int state) {
        const int window = owCreateComplexDialogueBox(toolkit.master, 50, 60, 200, 100, OALL, "x", owVpos, OTOP,
                                                      owInitState, state, 0);
        owDrawWindow(window, 1);
        return window;
    };
    const QSize screen = viewOf(toolkit.master)->screen()->size();
    EXPECT_EQ(frameOf(make(OTOP))->pos(), QPoint(50, 0));
    EXPECT_EQ(frameOf(make(OCENTRED))->pos(), QPoint((screen.width() - 200) / 2, (screen.height() - 100) / 2));
    OWIDGET info;
    owEnqWidgetInfo(make(OMAXIMIZE), &info);
    EXPECT_EQ(info.state, OMAXIMIZE);
    owEnqWidgetInfo(make(ONORMAL), &info);
    EXPECT_EQ(info.state, 1);
}

TEST(Dialogues, ActiveWindowHasTheInputAlone) {
    Toolkit toolkit;
    const int button = owCreatePanel(toolkit.panel, 0, 0, 80, 24, owVpos, OTOP, owCallback, 600, 0);
    const int window = dialogue(toolkit.master);
    const int inside = owCreatePanel(window, 0, 0, 80, 24, owCallback, 601, 0);
    owDrawWindow(window, 1);
    owSetActiveWindow(window);
    events();
    click(button);
    click(inside);
    closeByUser(toolkit.master);
    EXPECT_EQ(identifiers(), Ids{601});
    owSetActiveWindow(0);
    click(button);
    const Ids got = identifiers();
    EXPECT_NE(std::find(got.begin(), got.end(), 600), got.end());
    owSetActiveWindow(button);
    EXPECT_EQ(reports(), Ids{1625});
}

TEST(Mdi, DialoguesLiveInTheClientArea) {
    Toolkit toolkit(Toolkit::Master::mdi);
    const int window =
        owCreateMDIComplexDialogueBox(toolkit.master, 20, 30, 200, 120, OALL, "Child", owCallback, OIDENT, 0);
    owDrawWindow(window, 1);
    EXPECT_FALSE(viewOf(window)->isWindow());
    EXPECT_EQ(frameOf(window)->pos(), QPoint(20, 30));
    EXPECT_EQ(geometryOf(window), (Geometry{20, 30, 200, 120}));
    events();
    closeByUser(window);
    const auto all = events();
    ASSERT_FALSE(all.empty());
    EXPECT_EQ(all.back().callback, window);
    EXPECT_EQ(all.back().status, OCLOSED);
    owEraseWidget(window);
    EXPECT_EQ(viewOf(window), nullptr);
}

TEST(Mdi, NothingFillsTheClientArea) {
    Toolkit toolkit(Toolkit::Master::mdi);
    EXPECT_EQ(owCreatePanel(1, 0, 0, 10, 10, owHpos, OCENTRE, owVpos, OMIDDLE, owExpand, OON, 0), 0);
    EXPECT_EQ(reports(), Ids{1662});
}

TEST(Layout, OriginsAndExpansion) {
    struct Row {
        int x, y, width, height, hpos, vpos, expand;
        QRect before, after; // in a parent of 200 by 100, then of 300 by 160
    };
    const Row rows[] = {
        {10, 20, 50, 30, OLEFT, OTOP, 0, {10, 20, 50, 30}, {10, 20, 50, 30}},
        {10, 20, 50, 30, OLEFT, OBOTTOM, 0, {10, 50, 50, 30}, {10, 110, 50, 30}},
        {10, 20, 50, 30, ORIGHT, OTOP, 0, {140, 20, 50, 30}, {240, 20, 50, 30}},
        {0, 20, 50, 30, OCENTRE, OTOP, 0, {75, 20, 50, 30}, {125, 20, 50, 30}},
        {0, 20, 50, 30, OCENTRE, OTOP, 1, {0, 20, 200, 30}, {0, 20, 300, 30}},
        {10, 0, 50, 30, OLEFT, OMIDDLE, 1, {10, 0, 50, 100}, {10, 0, 50, 160}},
        {0, 0, 0, 0, OCENTRE, OMIDDLE, 1, {0, 0, 200, 100}, {0, 0, 300, 160}},
        {0, 0, 0, 0, OCENTRE, OMIDDLE, 12, {50, 25, 100, 50}, {75, 40, 150, 80}},
        {10, 20, 50, 30, OLEFT, OTOP, 1, {10, 20, 50, 30}, {10, 20, 50, 30}},
    };
    Toolkit toolkit;
    for (const Row& row : rows) {
        const int parent = owCreatePanel(toolkit.panel, 0, 0, 200, 100, owVpos, OTOP, 0);
        const int child = owCreatePanel(parent, row.x, row.y, row.width, row.height, owHpos, row.hpos, owVpos, row.vpos,
                                        owExpand, row.expand, 0);
        EXPECT_EQ(rectOf(child), row.before) << row.hpos << row.vpos << row.expand;
        owSetWidgetProp(parent, owWidth, 300, owHeight, 160, 0);
        EXPECT_EQ(rectOf(child), row.after) << row.hpos << row.vpos << row.expand;
        owEraseWidget(parent);
    }
}

TEST(Layout, WhatFillsLeavesRoomForStrips) {
    Toolkit toolkit;
    const int parent = owCreatePanel(toolkit.panel, 0, 0, 200, 100, owVpos, OTOP, 0);
    owCreatePanel(parent, 0, 0, 0, 22, owHpos, OCENTRE, owExpand, OON, 0);
    owCreatePanel(parent, 0, 0, 0, 15, owHpos, OCENTRE, owVpos, OTOP, owExpand, OON, 0);
    const int body = owCreatePanel(parent, 0, 0, 0, 0, owHpos, OCENTRE, owVpos, OMIDDLE, owExpand, OON, 0);
    EXPECT_EQ(rectOf(body), QRect(0, 15, 200, 63));
}

TEST(Layout, GridModeCountsCells) {
    Toolkit toolkit;
    owSetGuiGridMode(1);
    const int panel = owCreatePanel(toolkit.panel, 1, 2, 3, 4, owVpos, OTOP, 0);
    EXPECT_EQ(rectOf(panel), QRect(22, 44, 66, 88));
    EXPECT_EQ(geometryOf(panel), (Geometry{1, 2, 3, 4}));
    int columns = 0, rows = 0, width = 0, height = 0;
    owEnqGuiGrid(&columns, &rows, &width, &height);
    EXPECT_EQ(width, 22);
    EXPECT_EQ(height, 22);
    EXPECT_EQ(columns, viewOf(panel)->screen()->size().width() / 22);
    owSetGuiGridMode(0);
    EXPECT_EQ(geometryOf(panel), (Geometry{22, 44, 66, 88}));
    owDefineGuiGrid(4, 4);
    EXPECT_EQ(reports(), Ids{1645});
}

TEST(Layout, InformationRecordMovesTheWidget) {
    Toolkit toolkit;
    const int panel = owCreatePanel(toolkit.panel, 10, 10, 40, 30, owVpos, OTOP, owCallback, 5, 0);
    OWIDGET info;
    owEnqWidgetInfo(panel, &info);
    EXPECT_EQ(info.width, 40);
    EXPECT_EQ(info.callback, 5);
    EXPECT_EQ(info.parent, toolkit.panel);
    EXPECT_EQ(info.window, toolkit.master);
    EXPECT_EQ(info.kind, 15);
    info.width = 70;
    info.ypos = 25;
    owSetWidgetInfo(panel, &info);
    EXPECT_EQ(rectOf(panel), QRect(10, 25, 70, 30));
}

struct MenuFixture {
    Toolkit toolkit;
    int bar = owCreateMenuBar(1);
    int file = owCreateMenuEntry(bar, "File", owAccel, 'F', 0);
    int pullDown = owCreatePullDownMenu(file);
    int save = owCreateMenuEntry(pullDown, "Save Project|Ctrl+S", owAccel, 'S', owCallback, 15151, 0);
};

TEST(Menus, EntriesShowMnemonicAndKey) {
    MenuFixture menu;
    EXPECT_EQ(actionOf(menu.file)->text(), QStringLiteral("&File"));
    EXPECT_EQ(actionOf(menu.save)->text(), QStringLiteral("&Save Project\tCtrl+S"));
    EXPECT_EQ(shownText(menu.save), QStringLiteral("Save Project|Ctrl+S"));
    owSetWidgetProp(menu.save, owLabel, "Save & Close", 0);
    EXPECT_EQ(actionOf(menu.save)->text(), QStringLiteral("&Save && Close"));
    choose(menu.save);
    EXPECT_EQ(identifiers(), Ids{15151});
}

TEST(Menus, StatusIsTheProgramsAlone) {
    MenuFixture menu;
    owSetWidgetStatus(menu.save, OCHECKED);
    EXPECT_TRUE(actionOf(menu.save)->isChecked());
    choose(menu.save);
    EXPECT_TRUE(actionOf(menu.save)->isChecked()) << "choosing changes no check";
    EXPECT_EQ(owEnqWidgetStatus(menu.save), OCHECKED);
    owSetWidgetStatus(menu.save, OUNSELECTABLE);
    EXPECT_FALSE(actionOf(menu.save)->isEnabled());
    owSetWidgetStatus(menu.save, OHIDDEN);
    EXPECT_FALSE(actionOf(menu.save)->isVisible());
    events();
    owSetWidgetStatus(menu.save, OSELECTABLE);
    choose(menu.save);
    EXPECT_EQ(identifiers(), Ids{15151});
}

TEST(Menus, ADialogueThatHangsOnAnEntryComesUp) {
    MenuFixture menu;
    const int window = owCreateComplexDialogueBox(menu.save, 0, 0, 50, 50, OALL, "Opened", 0);
    ASSERT_GT(window, 0);
    choose(menu.save);
    EXPECT_TRUE(isShown(window));
}

TEST(Menus, PopUpsComeUpAtThePointer) {
    MenuFixture menu;
    const int popup = owCreatePopupMenu(1, 0, 0, ONONE, "", 0);
    const int entry = owCreateMenuEntry(popup, "Cut Widget|Ctrl+X", owCallback, 15131, 0);
    owDrawWindow(popup, 1);
    EXPECT_TRUE(isShown(popup));
    choose(entry);
    owRemoveWindow(popup);
    EXPECT_FALSE(isShown(popup));
    EXPECT_EQ(identifiers(), Ids{15131});
}

TEST(Menus, WrongParentsAreRefused) {
    MenuFixture menu;
    EXPECT_EQ(owCreateMenuEntry(menu.toolkit.panel, "x", 0), 0);
    EXPECT_EQ(owCreateMenuBar(menu.toolkit.panel), 0);
    EXPECT_EQ(owCreatePullDownMenu(menu.bar), 0);
    EXPECT_EQ(reports(), (Ids{1607, 1625, 1607}));
}

} // namespace
