// What the checked entries refuse, in which order, and under which name; operations by number; boxes.
#include "toolkit/testing/robot.h"

#include "toolkit/keywords/call.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>

using namespace orba;
using namespace orba::testing;

namespace {

using Ids = std::vector<int>;

struct Widgets {
    Toolkit toolkit;
    int panel = toolkit.panel;
    int button = owCreatePushButton(panel, 0, 0, 60, 20, "b", 0);
    int toggle = owCreateToggleButton(panel, 0, 30, 60, 20, "t", 0, 0);
    int text = owCreateTextEntry(panel, 0, 60, 60, 20, "", 20, OEDIT, 0);
    int value = owCreateValueEntry(panel, 0, 90, 60, 20, 1.0, 8, 2, OEDIT, 0);
};

TEST(Checks, WrongKindsHaveTheirOwnNumbers) {
    Widgets w;
    int number = 0, other = 0, third = 0;
    float real = 0;
    double wide = 0;
    char buffer[20];
    OARRAYCELL cell;
    OLIMIT limits;
    const struct {
        int error;
        const char* routine;
        std::function<void()> call;
    } rows[] = {
        {1607, "owCreatePushButton", [&] { owCreatePushButton(w.button, 0, 0, 1, 1, "", 0); }},
        {1607, "owCreatePanel", [&] { owCreatePanel(w.text, 0, 0, 1, 1, 0); }},
        {1607, "owCreateMenuEntry", [&] { owCreateMenuEntry(w.panel, "", 0); }},
        {1607, "owCreateTreeEntry", [&] { owCreateTreeEntry(w.panel, OLASTCHILD, "", 0); }},
        {1621, "owEnqToggleSwitch", [&] { owEnqToggleSwitch(w.button, &number); }},
        {1621, "owSetToggleSwitch", [&] { owSetToggleSwitch(w.text, 1); }},
        {1623, "owReplaceText", [&] { owReplaceText(w.button, "x", 0); }},
        {1623, "owEnqTextPos", [&] { owEnqTextPos(w.panel, 5, 0); }},
        {1624, "owEnqValueSetting", [&] { owEnqValueSetting(w.text, &real); }},
        {1624, "owSetValueSetting", [&] { owSetValueSetting(w.panel, 1.0); }},
        {1624, "owEnqValueSettingDouble", [&] { owEnqValueSettingDouble(w.text, &wide); }},
        {1625, "owDrawWindow", [&] { owDrawWindow(w.button, 1); }},
        {1625, "owCreateStatusBar", [&] { owCreateStatusBar(w.panel, 0); }},
        {1625, "owCreateToolBar", [&] { owCreateToolBar(w.panel, OTOP, 16); }},
        {1625, "owCreateComplexDialogueBox", [&] { owCreateComplexDialogueBox(w.text, 0, 0, 1, 1, OALL, "", 0); }},
        {1630, "owDefineExposeCallback", [&] { owDefineExposeCallback(w.button, 1); }},
        {1630, "owDefineChangeCallback", [&] { owDefineChangeCallback(w.button, 1); }},
        {1630, "owDefineValueErrorCallback", [&] { owDefineValueErrorCallback(w.text, 1); }},
        {1630, "owDefineLinkCallback", [&] { owDefineLinkCallback(w.value, 1); }},
        {1631, "owClearGraphicsFrame", [&] { owClearGraphicsFrame(w.panel); }},
        {1631, "owEnqGraphicsFrameBounds", [&] { owEnqGraphicsFrameBounds(w.panel, &limits); }},
        {1647, "owSetActiveWidget", [&] { owSetActiveWidget(owCreateMenuBar(1)); }},
        {1656, "owDefineWidgetLinks", [&] { owDefineWidgetLinks(w.panel, w.text, 0, 0); }},
        {1663, "owEnqCellAttribs", [&] { owEnqCellAttribs(w.text, 1, 1, &cell); }},
        {1663, "owAddArrayRow", [&] { owAddArrayRow(w.panel, 1); }},
        {1664, "owEnqGaugeValue", [&] { owEnqGaugeValue(w.panel, &number); }},
        {1666, "owSetProgressValue", [&] { owSetProgressValue(w.panel, 1); }},
        {1667, "owSetListEntry", [&] { owSetListEntry(w.panel, OADD, 0); }},
        {1667, "owEnqListStatus", [&] { owEnqListStatus(w.text, &number, &other, &third); }},
        {1667, "owSetStatusBarText", [&] { owSetStatusBarText(w.panel, 0, ""); }},
        {1667, "owPropertyItemCount", [&] { owPropertyItemCount(w.panel); }},
        {1668, "owAddTableBoxColumn", [&] { owAddTableBoxColumn(w.panel, 1, 20); }},
        {1668, "owEnqTableBoxLabel", [&] { owEnqTableBoxLabel(w.panel, 1, buffer, 20); }},
    };
    for (const auto& row : rows) {
        row.call();
        EXPECT_EQ(reports(), Ids{row.error}) << row.routine;
        EXPECT_EQ(lastReportedRoutine(), row.routine);
    }
}

TEST(Checks, RangesHaveTheirOwnNumbers) {
    Widgets w;
    const int p = w.panel;
    const struct {
        int error;
        std::function<int()> call;
    } rows[] = {
        {1634, [&] { return owCreatePushButton(p, 0, 0, 1, 1, "", owSize, 49, 0); }},
        {1634, [&] { return owCreateTextEntry(p, 0, 0, 1, 1, "", 1, 0, owSize, 101, 0); }},
        {1619, [&] { return owCreatePushButton(p, 0, 0, 1, 1, "", owOnCol, -1, 0); }},
        {1619, [&] { return owCreateTextEntry(p, 0, 0, 1, 1, "", 1, 0, owBack1Col, -1, 0); }},
        {1633, [&] { return owCreateTextEntry(p, 0, 0, 1, 1, "", 1, 0, owBorderType, 4, 0); }},
        {1633, [&] { return owCreateListBox(p, 0, 0, 1, 1, 8, 0); }},
        {1633, [&] { return owCreateTreeViewBox(p, 0, 0, 1, 1, owIconSet, 4, 0); }},
        {1635, [&] { return owCreatePanel(p, 0, 0, 1, 1, owExpand, 25, 0); }},
        {1635, [&] { return owCreatePanel(p, 0, 0, 1, 1, owHpos, 2, 0); }},
        {1635, [&] { return owCreateValueEntry(p, 0, 0, 1, 1, 0.0, 8, 9, 0, 0); }},
    };
    for (std::size_t i = 0; i < std::size(rows); i++) {
        EXPECT_EQ(rows[i].call(), 0) << i;
        EXPECT_EQ(reports(), Ids{rows[i].error}) << i;
    }
    EXPECT_GT(owCreatePushButton(p, 0, 0, 1, 1, "", owSize, 50, 0), 0);
    EXPECT_GT(owCreatePanel(p, 0, 0, 1, 1, owExpand, 24, 0), 0);
    EXPECT_TRUE(reports().empty());
}

TEST(Checks, ZeroNegativeAndStaleHandles) {
    Widgets w;
    owEraseWidget(w.button);
    for (int handle : {0, -1, -50000, w.button, 17000, 49999, 50000, 1 << 30}) {
        owSetWidgetStatus(handle, OHIDDEN);
        EXPECT_EQ(owCreatePanel(handle, 0, 0, 1, 1, 0), 0);
        EXPECT_EQ(reports(), (Ids{1626, 1626})) << handle;
    }
    owSetActiveWidget(-w.text);
    EXPECT_TRUE(reports().empty()) << "a negative handle returns the focus";
    EXPECT_EQ(owEnqActiveWidget(), w.text);
}

TEST(Checks, TheHandleComesBeforeTheRange) {
    Widgets w;
    owSetWidgetStatus(0, 99);
    owSetToggleSwitch(w.button, 99);
    owSetToggleSwitch(w.toggle, 99);
    EXPECT_EQ(reports(), (Ids{1626, 1621, 1635}));
}

TEST(KeywordLists, UnknownOnesAreSkippedAlone) {
    Widgets w;
    // owTitle is none of a button's; the value that follows is then read as a keyword of its own, and skipped as well.
    const int button = owCreatePushButton(w.panel, 0, 0, 60, 20, "b", owTitle, owCallback, 4711, 0);
    click(button);
    EXPECT_EQ(identifiers(), Ids{4711});
}

TEST(KeywordLists, WordsDoTheSameAsCalls) {
    Widgets w;
    const std::int64_t words[] = {w.panel, 5,    6,          70,     20, wordOf(static_cast<const void*>("words")),
                                  owVpos,  OTOP, owCallback, OIDENT, 0};
    const int button = static_cast<int>(owCallWords(static_cast<int>(Fn::owCreatePushButton), words));
    ASSERT_GT(button, 0);
    EXPECT_EQ(rectOf(button), QRect(5, 6, 70, 20));
    EXPECT_EQ(shownText(button), QStringLiteral("words"));
    click(button);
    EXPECT_EQ(identifiers(), Ids{button});
    EXPECT_EQ(owCallWords(-1, words), 0);
    EXPECT_EQ(owCallWords(9999, words), 0);
}

TEST(Texts, TrailingBlanksNeverComeBack) {
    Widgets w;
    char buffer[16];
    const struct {
        const char* in;
        int length;
        const char* out;
    } rows[] = {{"abc   ", 16, "abc"},       {"    ", 16, ""},   {"  x", 16, "  x"},
                {"abcdef", 4, "abc"},        {"ab cd", 4, "ab"}, {"\xc3\xa4\xc3\xb6", 4, "\xc3\xa4"},
                {"\xe4\xf6", 16, "\xe4\xf6"}};
    for (const auto& row : rows) {
        owSetTextSetting(w.text, row.in, 0);
        owEnqTextSetting(w.text, buffer, row.length, 0);
        EXPECT_STREQ(buffer, row.out) << row.in;
    }
}

TEST(Texts, AMegabyteIsNoTrouble) {
    Widgets w;
    const std::string huge(1 << 20, 'x');
    EXPECT_GT(owCreatePushButton(w.panel, 0, 0, 60, 20, huge.c_str(), owHelp, huge.c_str(), 0), 0);
    EXPECT_GT(owCreateMenuEntry(owCreateMenuBar(1), huge.c_str(), 0), 0);
    owSetWidgetProp(w.panel, owTitle, huge.c_str(), 0);
    char small[5];
    owEnqWidgetProp(w.button, owLength, 5, owLabel, small, 0);
    EXPECT_STREQ(small, "b");
    EXPECT_GT(owCreatePushButton(w.panel, 0, 0, 60, 20, nullptr, 0), 0);
    EXPECT_TRUE(reports().empty());
}

TEST(Dispatch, OperationsStandForRoutines) {
    Widgets w;
    int first = 0, second = 0;
    owDispatch(70, 13, 0, 0, 0, 0, 0, &first, &second, "");
    EXPECT_EQ(owEnqSnapGrid(), 13);
    owDispatch(71, 0, 0, 0, 0, 0, 0, &first, &second, "");
    EXPECT_EQ(first, 13);
    owDispatch(850, 0, 0, 0, 0, 0, 0, &first, &second, "save");
    EXPECT_EQ(first, owGetIconResource("save"));
    const int tree = owCreateTreeViewBox(w.panel, 0, 0, 50, 50, 0);
    owDispatch(880, tree, 1, 0, 0, 0, 0, &first, &second, "row");
    EXPECT_GT(first, 0);
    EXPECT_EQ(shownText(first), QStringLiteral("row"));
    owDispatch(0, 1, 2, 3, 4, 5, 6, &first, &second, "");
    owDispatch(876, 0, 0, 0, 0, 0, 0, nullptr, nullptr, nullptr);
    EXPECT_TRUE(reports().empty());
}

TEST(Links, AToggleSwitchesAnotherWidget) {
    Widgets w;
    owDefineWidgetLinks(w.toggle, w.text, OUNSELECTABLE, 1);
    owDefineWidgetLinks(w.toggle, w.text, OSELECTABLE, 0);
    click(w.toggle);
    EXPECT_FALSE(viewOf(w.text)->isEnabled());
    click(w.toggle);
    EXPECT_TRUE(viewOf(w.text)->isEnabled());
}

TEST(Drops, FilesGoToTheWidgetThatTakesThem) {
    Widgets w;
    owDefineFileDropCallback(w.panel, OIDENT);
    QMimeData data;
    data.setUrls(
        {QUrl::fromLocalFile(QStringLiteral("/tmp/a.f90")), QUrl::fromLocalFile(QStringLiteral("/tmp/b.f90"))});
    QDragEnterEvent enter(QPoint(3, 4), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewOf(w.panel), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(3, 4), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewOf(w.panel), &drop);
    const auto all = events();
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].callback, w.panel + 7 * OIDENT);
    EXPECT_STREQ(all[0].text, "/tmp/a.f90|/tmp/b.f90");
}

TEST(TabOrder, FollowsTheProgram) {
    Widgets w;
    owChangeWidgetOrder(w.value, 0);
    owSetActiveWidget(w.value);
    key(0, Qt::Key_Tab);
    EXPECT_EQ(owEnqActiveWidget(), w.button);
    owChangeWidgetOrder(w.value, 999);
    EXPECT_EQ(reports(), Ids{1626});
}

TEST(Boxes, AnswersAndTexts) {
    Toolkit toolkit;
    const struct {
        int buttons, answer;
    } rows[] = {{OBOXOKCANCEL, OANSWEROK},       {OBOXOKCANCEL, OANSWERCANCEL}, {OBOXYESNO, OANSWERYES},
                {OBOXYESNO, OANSWERNO},          {OBOXYESNOCANCEL, OANSWERYES}, {OBOXYESNOCANCEL, OANSWERNO},
                {OBOXYESNOCANCEL, OANSWERCANCEL}};
    for (const auto& row : rows) {
        expectBox("Title", "first line|second line", row.answer);
        EXPECT_EQ(owDisplayMessageBox("Title", "first line|second line", OQUESTION, row.buttons), row.answer);
    }
    expectBox("Oops", "bad", OANSWEROK);
    owDisplayErrorBox("Oops", "bad");
    char name[200] = "", folder[200] = "/tmp";
    expectBrowser("Open Project", "");
    EXPECT_EQ(owFileBrowser(name, 200, folder, 200, "*.wdp|Projects", owTitle, "Open Project", 0), 0);
    EXPECT_STREQ(name, "");
    EXPECT_TRUE(scriptIsEmpty());
}

} // namespace
