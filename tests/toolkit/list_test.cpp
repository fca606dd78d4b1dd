// List boxes and combo boxes.
#include "toolkit/testing/robot.h"
#include "toolkit/views/list_contents.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace orba::testing;

namespace {

int makeList(const Toolkit& toolkit, int type = OSINGLECHOICE, int sort = OUNSORTED) {
    const int list = owCreateListBox(toolkit.panel, 0, 0, 200, 150, ONONE, owVpos, OTOP, owType, type, owSort, sort,
                                     owCallback, OIDENT, owSelectCallback, OIDENT, owDoubleClickCallback, OIDENT, 0);
    for (const char* row : {"pear", "apple", "fig", "cherry"}) owSetListEntry(list, OADD, owString, row, 0);
    settle();
    events();
    return list;
}

int makeCombo(const Toolkit& toolkit, int display) {
    const int combo = owCreateComboBox(toolkit.panel, 0, 0, 200, 150, ONONE, display, owVpos, OTOP, owCallback, OIDENT,
                                       owSelectCallback, OIDENT, 0);
    for (const char* row : {"pear", "apple", "fig"}) owSetListEntry(combo, OADD, owString, row, 0);
    settle();
    events();
    return combo;
}

std::vector<std::string> rowsOf(int list) {
    int count = 0, selected = 0, current = 0;
    owEnqListStatus(list, &count, &selected, &current);
    std::vector<std::string> rows;
    for (int i = 1; i <= count; ++i) {
        char text[256] = "";
        EXPECT_EQ(owEnqListEntry(list, i, text, sizeof text, 0), i);
        rows.emplace_back(text);
    }
    return rows;
}

std::string currentText(int list) {
    char text[256] = "";
    owEnqListEntry(list, -1, text, sizeof text, 0);
    return text;
}

struct Status {
    int count = -1, selected = -1, current = -1;
    bool operator==(const Status&) const = default;
};
Status statusOf(int list) {
    Status status;
    owEnqListStatus(list, &status.count, &status.selected, &status.current);
    return status;
}

void clickRow(int list, int row, Qt::KeyboardModifiers with = Qt::NoModifier) {
    auto* view = qobject_cast<QListWidget*>(viewOf(list));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, with, view->visualItemRect(view->item(row - 1)).center());
}

using Rows = std::vector<std::string>;

} // namespace

TEST(ListBoxes, ActionsOnEntries) {
    const Toolkit toolkit;
    const int list = makeList(toolkit);
    EXPECT_EQ(rowsOf(list), (Rows{"pear", "apple", "fig", "cherry"}));
    owSetListEntry(list, OINSERT, owEntry, 2, owString, "quince", 0);
    EXPECT_EQ(rowsOf(list), (Rows{"pear", "quince", "apple", "fig", "cherry"}));
    owSetListEntry(list, OSELECT, owEntry, 3, 0);
    EXPECT_EQ(statusOf(list), (Status{5, 1, 3}));
    EXPECT_EQ(currentText(list), "apple");
    owSetListEntry(list, ODELETE, owEntry, 1, 0);
    EXPECT_EQ(rowsOf(list), (Rows{"quince", "apple", "fig", "cherry"}));
    owSetListEntry(list, ODELETE, 0);
    EXPECT_EQ(rowsOf(list), (Rows{"quince", "fig", "cherry"})) << "without a number the current row goes";
    owSetListEntry(list, ODESELECT, 0);
    EXPECT_EQ(statusOf(list).selected, 0);
    owSetListEntry(list, ODELETE, owEntry, 99, 0);
    owSetListEntry(list, OSELECT, owEntry, 99, 0);
    EXPECT_EQ(statusOf(list).count, 3);
    owSetListEntry(list, OCLEAR, 0);
    EXPECT_EQ(statusOf(list), (Status{0, 0, 0}));
    char text[8] = "x";
    EXPECT_EQ(owEnqListEntry(list, 1, text, sizeof text, 0), 0);
    EXPECT_STREQ(text, "");
    EXPECT_TRUE(events().empty());
}

TEST(ListBoxes, SelectionByText) {
    const std::vector<QString> rows{"oBmp2( , )", "oBmp( )", "oBmpFile( )", "Files", "File"};
    struct Case {
        const char* text;
        bool whole;
        int row;
    };
    constexpr Case cases[] = {{"oBmp", false, 1}, {"oBmpF", false, 2}, {"oB", false, 0},
                              {"File", false, 4}, {"Fil", false, 3},   {"oBmp", true, -1},
                              {"Files", true, 3}, {"none", false, -1}, {"", false, -1}};
    for (const Case& row : cases) EXPECT_EQ(orba::findListText(rows, row.text, row.whole), row.row) << row.text;
    const Toolkit toolkit;
    const int list = makeList(toolkit);
    owSetListEntry(list, OSELECT, owString, "fig", owEntry, -1, 0);
    EXPECT_EQ(currentText(list), "fig");
    owSetListEntry(list, OSELECT, owString, "no such row", owEntry, -1, 0);
    EXPECT_EQ(currentText(list), "fig") << "a text that is not there changes nothing";
}

TEST(ListBoxes, ThreeWaysOfChoosing) {
    const Toolkit toolkit;
    const int single = makeList(toolkit);
    clickRow(single, 2);
    clickRow(single, 4);
    EXPECT_EQ(statusOf(single), (Status{4, 1, 4}));
    owEraseWidget(single);
    const int multiple = makeList(toolkit, OMULTIPLECHOICE);
    clickRow(multiple, 2);
    clickRow(multiple, 4);
    EXPECT_EQ(statusOf(multiple), (Status{4, 2, 4}));
    clickRow(multiple, 2);
    EXPECT_EQ(statusOf(multiple), (Status{4, 1, 2}));
    owEraseWidget(multiple);
    const int extended = makeList(toolkit, OMULTIPLECHOICE2);
    clickRow(extended, 1);
    clickRow(extended, 3, Qt::ShiftModifier);
    EXPECT_EQ(statusOf(extended), (Status{4, 3, 3}));
    clickRow(extended, 2, Qt::ControlModifier);
    EXPECT_EQ(statusOf(extended).selected, 2);
    clickRow(extended, 4);
    EXPECT_EQ(statusOf(extended), (Status{4, 1, 4}));
}

TEST(ListBoxes, EventsOfMouseAndKeys) {
    const Toolkit toolkit;
    const int list = makeList(toolkit);
    clickRow(list, 2);
    std::vector<OACTION> heard = events();
    ASSERT_EQ(heard.size(), 2U);
    EXPECT_EQ(heard[0].callback, list + OIDENT) << "the list takes the input";
    EXPECT_EQ(heard[0].status, 1);
    EXPECT_EQ(heard[1].callback, list);
    EXPECT_EQ(heard[1].status, 2) << "the row";
    clickRow(list, 2);
    EXPECT_EQ(identifiers(), (std::vector<int>{list})) << "the same row again";
    QTest::keyClick(viewOf(list), Qt::Key_Down);
    QTest::keyClick(viewOf(list), Qt::Key_Return);
    EXPECT_EQ(identifiers(), (std::vector<int>{list, list}));
    doubleClick(list, QPoint(30, 10));
    const std::vector<int> doubled = identifiers();
    EXPECT_NE(std::find(doubled.begin(), doubled.end(), list + 6 * OIDENT), doubled.end());
    owSetListEntry(list, OSELECT, owEntry, 1, 0);
    EXPECT_TRUE(events().empty()) << "the program's selection is no event";
}

TEST(ListBoxes, SortedOnesPutEachEntryInItsPlace) {
    const Toolkit toolkit;
    const int list = makeList(toolkit, OSINGLECHOICE, OSORTED);
    EXPECT_EQ(rowsOf(list), (Rows{"apple", "cherry", "fig", "pear"}));
    owSetListEntry(list, OADD, owString, "Date", 0);
    EXPECT_EQ(rowsOf(list), (Rows{"apple", "cherry", "Date", "fig", "pear"}));
}

TEST(ListBoxes, ALogDropsItsOldestLines) {
    const Toolkit toolkit;
    const int list = owCreateListBox(toolkit.panel, 0, 0, 200, 100, ONONE, owVpos, OTOP, owCapacity, 50, 0);
    for (int i = 1; i <= 120; ++i) owSetListEntry(list, OADD, owString, std::to_string(i).c_str(), 0);
    const Rows rows = rowsOf(list);
    ASSERT_EQ(rows.size(), 50U);
    EXPECT_EQ(rows.front(), "71");
    EXPECT_EQ(rows.back(), "120");
    settle();
    auto* view = qobject_cast<QListWidget*>(viewOf(list));
    EXPECT_TRUE(view->viewport()->rect().intersects(view->visualItemRect(view->item(49))))
        << "the last line can be seen";
}

TEST(ListBoxes, ContentsFillThemselves) {
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    QDir().mkdir("sub");
    QFile file("data.txt");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const Toolkit toolkit;
    const auto rows = [&](int contents) { return rowsOf(owCreateListBox(toolkit.panel, 0, 0, 100, 100, contents, 0)); };
    EXPECT_EQ(rows(OFILES), (Rows{"data.txt"}));
    EXPECT_EQ(rows(ODIRECTORIES), (Rows{"..", "sub"}));
    const Rows drives = rows(ODRIVES);
    for (const std::string& drive : drives) EXPECT_TRUE(QDir(QString::fromStdString(drive)).exists()) << drive;
    EXPECT_FALSE(rows(OFONTS).empty());
    EXPECT_EQ(rows(ODOW).size(), 7U);
    EXPECT_EQ(rows(OMOY).at(11), "December");
    EXPECT_TRUE(rows(ONONE).empty());
    rows(OPRINTERS); // those of the system, if any
    QDir::setCurrent(before);
}

TEST(ListBoxes, ApproximateHeightShowsWholeRows) {
    const Toolkit toolkit;
    const int list = owCreateListBox(toolkit.panel, 0, 0, 200, 101, ODOW, owVpos, OTOP, owStyle, OAPPROX, 0);
    owSetWidgetProp(list, owHeight, 107, 0);
    settle();
    auto* view = qobject_cast<QListWidget*>(viewOf(list));
    EXPECT_EQ(view->viewport()->height() % view->sizeHintForRow(0), 0);
    EXPECT_LE(view->height(), 107);
}

TEST(ListBoxes, DescriptionsStandInAColumnOfTheirOwn) {
    const Toolkit toolkit;
    const int plain = owCreateListBox(toolkit.panel, 0, 0, 200, 60, ONONE, owVpos, OTOP, 0);
    const int described = owCreateListBox(toolkit.panel, 0, 70, 200, 60, ONONE, owVpos, OTOP, owDescWidth, 80, 0);
    for (const int list : {plain, described}) owSetListEntry(list, OADD, owString, "a|b", 0);
    settle();
    int width = 0;
    owEnqWidgetProp(described, owDescWidth, &width, 0);
    EXPECT_EQ(width, 80);
    EXPECT_NE(picture(plain), picture(described));
}

TEST(ListBoxes, IconsBesideTheTexts) {
    const Toolkit toolkit;
    const int list = makeList(toolkit);
    owSetListEntry(list, OADD, owString, "with a picture", owIcon, owGetIconResource("Button"), 0);
    auto* view = qobject_cast<QListWidget*>(viewOf(list));
    EXPECT_TRUE(view->item(0)->icon().isNull());
    EXPECT_FALSE(view->item(4)->icon().isNull());
}

TEST(ComboBoxes, AreOneLineHighAndOpenTheirList) {
    const Toolkit toolkit;
    const int combo = makeCombo(toolkit, ODISPLAY);
    EXPECT_LT(rectOf(combo).height(), 32);
    EXPECT_EQ(rectOf(combo).top(), 0);
    int height = 0;
    owEnqWidgetProp(combo, owHeight, &height, 0);
    EXPECT_EQ(height, 150) << "the height of a combo box is that of its open list";
}

TEST(ComboBoxes, ChoosingByTheUserAndByTheProgram) {
    const Toolkit toolkit;
    const int combo = makeCombo(toolkit, ODISPLAY);
    EXPECT_EQ(statusOf(combo), (Status{3, 0, 0})) << "nothing is chosen at first";
    owSetListEntry(combo, OSELECT, owEntry, 1, 0);
    EXPECT_EQ(currentText(combo), "pear");
    EXPECT_TRUE(events().empty());
    viewOf(combo)->setFocus();
    EXPECT_EQ(identifiers(), (std::vector<int>{combo + OIDENT}));
    QTest::keyClick(viewOf(combo), Qt::Key_Down);
    const std::vector<OACTION> heard = events();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_EQ(heard[0].callback, combo);
    EXPECT_EQ(heard[0].status, 2);
    EXPECT_EQ(currentText(combo), "apple");
    owSetListEntry(combo, ODELETE, owEntry, 2, 0);
    EXPECT_EQ(rowsOf(combo), (Rows{"pear", "fig"}));
    owSetListEntry(combo, OINSERT, owEntry, 1, owString, "first", 0);
    EXPECT_EQ(rowsOf(combo), (Rows{"first", "pear", "fig"}));
    owSetListEntry(combo, OCLEAR, 0);
    EXPECT_EQ(statusOf(combo), (Status{0, 0, 0}));
    EXPECT_TRUE(events().empty());
}

TEST(ComboBoxes, EditableOnesTakeAnyText) {
    const Toolkit toolkit;
    const int combo = makeCombo(toolkit, OEDIT);
    owSetListEntry(combo, OSELECT, owEntry, 1, 0);
    focus(combo);
    events();
    auto* line = viewOf(combo)->findChild<QLineEdit*>();
    ASSERT_NE(line, nullptr);
    line->selectAll();
    QTest::keyClicks(line, "11");
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_EQ(identifiers(), (std::vector<int>{combo}));
    EXPECT_EQ(currentText(combo), "11");
    EXPECT_EQ(statusOf(combo), (Status{3, 0, 0})) << "typing adds no row";
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_TRUE(identifiers().empty()) << "the same text again is no event";
    line->selectAll();
    QTest::keyClicks(line, "fig");
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_EQ(statusOf(combo).current, 3) << "a typed entry is the row";
    owSetListEntry(combo, OSELECT, owString, "something else", owEntry, -1, 0);
    EXPECT_EQ(currentText(combo), "something else");
}

TEST(ComboBoxes, ShowTheirEntryWithoutItsDescription) {
    const Toolkit toolkit;
    const int plain = owCreateComboBox(toolkit.panel, 0, 0, 150, 100, ONONE, ODISPLAY, owVpos, OTOP, 0);
    const int described =
        owCreateComboBox(toolkit.panel, 0, 40, 150, 100, ONONE, ODISPLAY, owVpos, OTOP, owDescWidth, 60, 0);
    owSetListEntry(plain, OADD, owString, "Fe", 0);
    owSetListEntry(described, OADD, owString, "Fe|iron", 0);
    for (const int combo : {plain, described}) owSetListEntry(combo, OSELECT, owEntry, 1, 0);
    settle();
    EXPECT_EQ(picture(plain), picture(described));
    EXPECT_EQ(currentText(described), "Fe|iron");
}

TEST(ComboBoxes, SortedOnesPutEachEntryInItsPlace) {
    const Toolkit toolkit;
    const int combo = owCreateComboBox(toolkit.panel, 0, 0, 100, 100, ONONE, ODISPLAY, owSort, OSORTED, 0);
    for (const char* row : {"pear", "apple", "Fig"}) owSetListEntry(combo, OADD, owString, row, 0);
    EXPECT_EQ(rowsOf(combo), (Rows{"apple", "Fig", "pear"}));
}

TEST(Lists, TextsOfAnyLengthAndWrongHandles) {
    const Toolkit toolkit;
    const int list = makeList(toolkit);
    const std::string large(1 << 20, 'y');
    owSetListEntry(list, OADD, owString, large.c_str(), 0);
    std::string back(large.size() + 1, '\0');
    EXPECT_EQ(owEnqListEntry(list, 5, back.data(), static_cast<int>(back.size()), 0), 5);
    EXPECT_EQ(back.substr(0, large.size()), large);
    owSetListEntry(list, OADD, owString, "", 0);
    EXPECT_EQ(statusOf(list).count, 6);
    EXPECT_TRUE(reports().empty());
    owSetListEntry(0, OADD, owString, "x", 0);
    owSetListEntry(-5, OADD, owString, "x", 0);
    owSetListEntry(toolkit.panel, OADD, owString, "x", 0);
    EXPECT_EQ(reports(), (std::vector<int>{1626, 1626, 1667}));
    owSetListEntry(list, 9, 0);
    EXPECT_EQ(reports().size(), 1U);
}

TEST(ListBox, IsCutToWholeRowsWhateverComesFirst) {
    const Toolkit toolkit;
    constexpr int ASKED = 71;
    const auto make = [&] {
        return owCreateListBox(toolkit.panel, 0, 0, 200, ASKED, ONONE, owVpos, OTOP, owStyle, OAPPROX, 0);
    };
    const auto fill = [](int list) {
        for (const char* row : {"pear", "apple", "fig", "cherry"}) owSetListEntry(list, OADD, owString, row, 0);
    };
    owDrawWindow(toolkit.master, 1);
    const int rowsFirst = make(), fontFirst = make();
    fill(rowsFirst);
    for (const int list : {rowsFirst, fontFirst}) owSetFontAttribs(list, owPointSize, 20, 0);
    fill(fontFirst);
    settle();
    EXPECT_LT(rectOf(rowsFirst).height(), ASKED);
    EXPECT_EQ(rectOf(rowsFirst).height(), rectOf(fontFirst).height());
    owSetWidgetProp(rowsFirst, owHeight, 2 * ASKED, 0);
    EXPECT_GT(rectOf(rowsFirst).height(), ASKED);
}

TEST(Disabled, ListsAndSlidersLookIt) {
    const Toolkit toolkit;
    const int list = owCreateListBox(toolkit.panel, 0, 0, 100, 60, ONONE, owOffCol, 0, owTextCol, 0, 0);
    owSetListEntry(list, OADD, owString, "a row", 0);
    const int coloured = owCreateListBox(toolkit.panel, 0, 70, 100, 60, ONONE, owOffCol, 4, owTextCol, 5, 0);
    owSetListEntry(coloured, OADD, owString, "a row", 0);
    const int slider = owCreateSlider(toolkit.panel, 110, 0, 100, 30, 0.0, 10.0, 1.0, 5.0, 0);
    owDrawWindow(toolkit.master, 1);
    settle();
    for (const int widget : {list, coloured, slider}) {
        const QImage enabled = picture(widget);
        owSetWidgetStatus(widget, OUNSELECTABLE);
        EXPECT_NE(picture(widget), enabled) << widget;
        owSetWidgetStatus(widget, OSELECTABLE);
        EXPECT_EQ(picture(widget), enabled) << widget;
    }
}

// A row that is dragged tells where it is to go and stays until the program moves it.
TEST(ListBox, RowsAreDragged) {
    const Toolkit toolkit;
    const int list = makeList(toolkit);
    const QPoint first(10, 8);
    drag(list, first, {10, 100});
    EXPECT_NE(statusOf(list).current, 1) << "without a callback the selection follows the pointer";
    owDefineRowDragCallback(list, 77);
    click(list, first);
    events();
    drag(list, first, {10, 149});
    const std::vector<OACTION> told = events();
    ASSERT_FALSE(told.empty());
    EXPECT_EQ(told.back().callback, 77);
    EXPECT_EQ(told.back().status, 1);
    EXPECT_EQ(told.back().iargs[0], 4);
    EXPECT_EQ(rowsOf(list).front(), "pear");
    EXPECT_EQ(statusOf(list).current, 1);
    click(list, first);
    EXPECT_NE(events().back().callback, 77) << "a click is no drag";
}

TEST(ListBox, TellsWhichRowsAreSelected) {
    const Toolkit toolkit;
    const int list = makeList(toolkit, OMULTIPLECHOICE2);
    for (const int row : {2, 4}) owSetListEntry(list, OSELECT, owEntry, row, 0);
    std::vector<int> selected;
    for (int row = 0; row <= 5; ++row)
        if (owEnqListSelected(list, row)) selected.push_back(row);
    EXPECT_EQ(selected, (std::vector{2, 4}));
}

// Alt makes a key of its own of the cursor keys.
TEST(ListBox, AltAndAnArrowIsAKeyOfItsOwn) {
    const Toolkit toolkit;
    const int list = makeList(toolkit);
    owDefineWidgetKeyCallback(list, OKEYUP + 4000, 78);
    key(list, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(identifiers(), (std::vector{OIDENT + list, 78}));
}
