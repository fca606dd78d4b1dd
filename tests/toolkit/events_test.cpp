// Handles, identifiers, the queue, keys and timers.
#include "toolkit/testing/robot.h"

#include "toolkit/frame/core.h"

#include <QWidget>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWindow>
#include <fstream>
#include <gtest/gtest.h>

#include <set>

using namespace orba;
using namespace orba::testing;

namespace {

using Ids = std::vector<int>;

int makePanel(int parent, int x, int y, int callback = 0, int select = 0) {
    return owCreatePanel(parent, x, y, 40, 20, owVpos, OTOP, owCallback, callback, owSelectCallback, select, 0);
}

TEST(Routines, EachHasOneHandler) {
    const Fn repeated = routineRegisteredTwice();
    EXPECT_EQ(repeated, Fn::count) << functionRow(repeated == Fn::count ? Fn::owAction : repeated).name;
}

TEST(Handles, StayOutOfCommandIdentifiers) {
    Toolkit toolkit;
    EXPECT_EQ(toolkit.master, 1);
    const int bar = owCreateMenuBar(toolkit.master);
    std::set<int> live;
    for (int i = 0; i < 14'500; i++) {
        const int handle = owCreateMenuEntry(bar, "x", 0);
        ASSERT_GT(handle, 1);
        ASSERT_LT(handle, OIDENT);
        ASSERT_FALSE(handle >= 14000 && handle < 20000) << handle;
        ASSERT_TRUE(live.insert(handle).second) << handle;
    }
}

namespace {

// Memory of this process in pages of 4 KB.
long residentPages() {
    long size = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> size >> resident;
    return resident;
}

} // namespace

TEST(Handles, FreedOnesComeBackOnlyAfterTheWholeRange) {
    Toolkit toolkit;
    const int first = makePanel(toolkit.panel, 0, 0);
    owEraseWidget(first);
    const int before = widgetCount();
    int last = first;
    [[maybe_unused]] long warm = 0; // pages in use once everything that is made but once has been made
    for (int i = 0; i < 45'000; i++) {
        if (i == 5'000) warm = residentPages();
        const int handle = makePanel(toolkit.panel, 0, 0);
        ASSERT_GT(handle, 0);
        ASSERT_LT(handle, OIDENT);
        ASSERT_TRUE(i >= 40'000 || handle != first) << i;
        owEraseWidget(handle);
        last = handle;
    }
    EXPECT_GT(last, 0);
    EXPECT_EQ(widgetCount(), before);
#ifndef __SANITIZE_ADDRESS__ // which keeps freed memory back on purpose
    EXPECT_LT(residentPages() - warm, 1024) << "40,000 more widgets took over 4 MB";
#endif
}

TEST(Handles, ErasingTakesTheChildrenAlong) {
    Toolkit toolkit;
    const int outer = owCreatePanel(toolkit.panel, 0, 0, 100, 100, 0);
    const int inner = makePanel(outer, 5, 5);
    owEraseWidget(outer);
    EXPECT_EQ(viewOf(inner), nullptr);
    owEraseWidget(inner);
    EXPECT_EQ(reports(), Ids{1626});
}

TEST(Identifiers, AutomaticOnesFollowTheHandle) {
    Toolkit toolkit;
    const int panel = makePanel(toolkit.panel, 10, 10, OIDENT, OIDENT);
    click(panel);
    EXPECT_EQ(identifiers(), (Ids{panel + OIDENT, panel}));
    owDefineCallback(panel, 77);
    owDefineSelectCallback(panel, 0);
    click(panel);
    EXPECT_EQ(identifiers(), Ids{77});
}

TEST(Identifiers, EveryCallbackHasItsOffset) {
    Toolkit toolkit;
    const int entry = owCreateTextEntry(toolkit.panel, 0, 0, 80, 24, "", 20, OEDIT, 0);
    owDefineLinkCallback(entry, OIDENT);
    owDefineChangeCallback(entry, OIDENT);
    owDefineMoveCallback(entry, OIDENT);
    owDefineDoubleClickCallback(entry, OIDENT);
    owDefineFileDropCallback(entry, OIDENT);
    int link = 0, change = 0, move = 0, fileDrop = 0;
    owEnqWidgetProp(entry, owLinkCallback, &link, owChangeCallback, &change, owMoveCallback, &move, owFileDropCallback,
                    &fileDrop, 0);
    EXPECT_EQ(link, entry + 11 * OIDENT);
    EXPECT_EQ(change, entry + 4 * OIDENT);
    EXPECT_EQ(move, entry + 2 * OIDENT);
    EXPECT_EQ(fileDrop, entry + 7 * OIDENT);
    doubleClick(entry);
    const Ids got = identifiers();
    EXPECT_NE(std::find(got.begin(), got.end(), entry + 6 * OIDENT), got.end());
}

TEST(Queue, KeepsOrderAndTellsTheWidget) {
    Toolkit toolkit;
    const int a = makePanel(toolkit.panel, 10, 10, 501);
    const int b = makePanel(toolkit.panel, 60, 10, 502);
    owPostCallback(500, 0);
    click(a, {3, 4});
    click(b);
    const auto all = events();
    ASSERT_EQ(all.size(), 3U);
    EXPECT_EQ(all[0].callback, 500);
    EXPECT_EQ(all[1].callback, 501);
    EXPECT_EQ(all[1].widget, a);
    EXPECT_FLOAT_EQ(all[1].xpos, 3);
    EXPECT_FLOAT_EQ(all[1].ypos, 4);
    EXPECT_EQ(all[2].widget, b);
}

TEST(Queue, FlushForgetsWhatWaits) {
    Toolkit toolkit;
    owPostCallback(1, 0);
    owFlushCallbackQueue();
    EXPECT_TRUE(identifiers().empty());
}

TEST(Queue, AnErasedWidgetHasNoEventsLeft) {
    Toolkit toolkit;
    const int panel = makePanel(toolkit.panel, 10, 10, 501);
    click(panel);
    owEraseWidget(panel);
    EXPECT_TRUE(identifiers().empty());
}

TEST(Queue, ChangesByTheProgramRaiseNothing) {
    Toolkit toolkit;
    const int toggle = owCreateToggleButton(toolkit.panel, 0, 0, 80, 24, "t", 0, owCallback, OIDENT, 0);
    const int entry = owCreateTextEntry(toolkit.panel, 0, 40, 80, 24, "", 20, OEDIT, owCallback, OIDENT,
                                        owSelectCallback, OIDENT, owChangeCallback, OIDENT, 0);
    owSetToggleSwitch(toggle, 1);
    owSetTextSetting(entry, "hello", 0);
    owSetActiveWidget(entry);
    owDefineCallback(toolkit.master, OIDENT);
    owSetWidgetProp(toolkit.master, owWidth, 420, owXpos, 120, 0);
    EXPECT_EQ(identifiers(), Ids{});
}

TEST(Keys, GoToTheProgramOrToBoth) {
    Toolkit toolkit;
    const int entry = owCreateTextEntry(toolkit.panel, 0, 0, 80, 24, "", 20, OEDIT, 0);
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers held;
        int code;
    } rows[] = {{Qt::Key_F1, Qt::NoModifier, 513},    {Qt::Key_F12, Qt::NoModifier, 524},
                {Qt::Key_S, Qt::ControlModifier, 19}, {Qt::Key_Escape, Qt::NoModifier, 27},
                {Qt::Key_Return, Qt::NoModifier, 13}, {Qt::Key_Delete, Qt::NoModifier, 127},
                {Qt::Key_Tab, Qt::NoModifier, 9},     {Qt::Key_Backtab, Qt::ShiftModifier, 542},
                {Qt::Key_X, Qt::NoModifier, 'x'}};
    for (const auto& row : rows) {
        owDefineKeyCallback(row.code, 700);
        owSetActiveWidget(entry);
        key(0, row.key, row.held);
        const auto all = events();
        ASSERT_EQ(all.size(), 1U) << row.code;
        EXPECT_EQ(all[0].callback, 700);
        EXPECT_EQ(all[0].key, row.code);
        owDefineKeyCallback(row.code, 0);
        EXPECT_EQ(owEnqKeyCallback(row.code), 0);
    }
    owDefineKeySelectCallback('x', 701);
    type(entry, "x");
    EXPECT_EQ(identifiers(), Ids{701});
    EXPECT_EQ(shownText(entry), QStringLiteral("x"));
}

TEST(Keys, TheRightButtonIsAKey) {
    Toolkit toolkit;
    owDefineKeyCallback(-3, 800);
    click(toolkit.panel, {7, 9}, Qt::RightButton);
    const auto all = events();
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].callback, 800);
    EXPECT_EQ(all[0].widget, toolkit.panel);
    owDefineKeyCallback(-21, 1);
    EXPECT_EQ(reports(), Ids{1635});
}

TEST(Keys, OfAWidgetGoBeforeThoseAroundIt) {
    Toolkit toolkit;
    const int outer = owCreatePanel(toolkit.panel, 0, 0, 200, 200, 0);
    const int inner = owCreatePanel(outer, 0, 0, 100, 100, 0);
    const int inside = owCreateTextEntry(inner, 0, 0, 80, 24, "", 20, OEDIT, 0);
    const int between = owCreateTextEntry(outer, 0, 120, 80, 24, "", 20, OEDIT, 0);
    const int outside = owCreateTextEntry(toolkit.panel, 220, 0, 80, 24, "", 20, OEDIT, 0);
    owDefineKeyCallback('x', 700);
    owDefineWidgetKeyCallback(outer, 'x', 701);
    owDefineWidgetKeyCallback(inner, 'x', OLEAVEKEY);
    const struct {
        int entry, identifier;
        const char* text;
    } rows[] = {{outside, 700, ""}, {between, 701, ""}, {inside, 0, "x"}};
    for (const auto& row : rows) {
        EXPECT_EQ(owEnqWidgetKeyCallback(row.entry, 'x'), row.identifier);
        type(row.entry, "x");
        EXPECT_EQ(identifiers(), row.identifier ? Ids{row.identifier} : Ids{});
        EXPECT_EQ(shownText(row.entry), QLatin1String(row.text));
    }
    owDefineWidgetKeyCallback(inner, 'x', 0);
    type(inside, "x");
    EXPECT_EQ(identifiers(), Ids{701}) << "a row taken back leaves the key to the widget around";
    owDefineWidgetKeyCallback(outer, OKEYRIGHTBUTTON, 702);
    click(inner, {50, 50}, Qt::RightButton);
    click(toolkit.panel, {300, 200}, Qt::RightButton);
    EXPECT_EQ(identifiers(), Ids{702});
}

TEST(Input, TellsWhereTheFocusHasMoved) {
    Toolkit toolkit;
    const int one = owCreateTextEntry(toolkit.panel, 0, 0, 80, 24, "", 20, OEDIT, 0);
    const int two = owCreateTextEntry(toolkit.panel, 0, 40, 80, 24, "", 20, OEDIT, 0);
    focus(one);
    owDefineInputCallback(900);
    events();
    click(two);
    auto all = events();
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].callback, 900);
    EXPECT_EQ(all[0].widget, two);
    owSetActiveWidget(one);
    owSetActiveWidget(two);
    owSetActiveWidget(one);
    all = events();
    ASSERT_EQ(all.size(), 1U) << "only where it has ended";
    EXPECT_EQ(all[0].widget, one);
    owDefineInputCallback(0);
    click(two);
    EXPECT_EQ(identifiers(), Ids{});
}

TEST(Input, OfAWindowIsSetWhileAnotherOneIsActive) {
    Toolkit toolkit;
    const int here = owCreateTextEntry(toolkit.panel, 0, 0, 80, 24, "", 20, OEDIT, 0);
    const int next = owCreateTextEntry(toolkit.panel, 0, 40, 80, 24, "", 20, OEDIT, 0);
    const int window = owCreateComplexDialogueBox(1, 10, 10, 200, 100, OTITLE, "Other", 0);
    const int there = owCreateTextEntry(window, 0, 0, 80, 24, "", 20, OEDIT, 0);
    owSetActiveWidget(here);
    owDrawWindow(window, 1);
    owSetActiveWidget(there);
    settle(20);
    owSetWindowInput(next);
    EXPECT_EQ(owEnqActiveWidget(), there);
    viewOf(window)->window()->hide();
    viewOf(1)->window()->activateWindow();
    settle(20);
    EXPECT_EQ(owEnqActiveWidget(), next);
}

TEST(Timers, RepeatUntilStopped) {
    Toolkit toolkit;
    owDefineTimerCallback(20, 900);
    settle(70);
    EXPECT_EQ(identifiers(), Ids{900}) << "ticks that nobody read are one event";
    settle(40);
    EXPECT_EQ(identifiers(), Ids{900});
    owDefineTimerCallback(20, 0);
    settle(50);
    EXPECT_TRUE(identifiers().empty());
    owDefineTimerCallback(20, 901);
    owDefineTimerCallback(0, 901);
    settle(50);
    EXPECT_TRUE(identifiers().empty());
}

// While a long command runs its own button and Esc end it; what else is clicked waits.
TEST(LongCommands, StopAtTheirButtonAndAtEsc) {
    const Toolkit toolkit;
    constexpr int STOP = 901, OTHER = 902;
    const int stop = owCreatePushButton(toolkit.panel, 10, 10, 80, 24, "Abort", owCallback, STOP, 0);
    const int other = owCreatePushButton(toolkit.panel, 10, 60, 80, 24, "Other", owCallback, OTHER, 0);
    settle();
    QWidget* top = viewOf(toolkit.master)->window();
    const auto click = [&](int handle) {
        const QWidget* view = viewOf(handle);
        const QPoint at = view->rect().center();
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
            QCoreApplication::postEvent(top->windowHandle(),
                                        new QMouseEvent(type, view->mapTo(top, at), view->mapToGlobal(at),
                                                        Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
    };
    EXPECT_EQ(owStopAsked(STOP), 0);
    click(other);
    EXPECT_EQ(owStopAsked(STOP), 0);
    click(stop);
    EXPECT_EQ(owStopAsked(STOP), 1);
    EXPECT_EQ(owStopAsked(STOP), 0) << "asked once";
    QCoreApplication::postEvent(top->windowHandle(), new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
    EXPECT_EQ(owStopAsked(STOP), 1);
    EXPECT_TRUE(identifiers().empty()) << "neither the stop nor what waits is an event of the command";
    EXPECT_EQ(identifiers(), Ids{OTHER}) << "what waited comes when the command has ended";
}

} // namespace
