// Property lists: cells of four kinds, worked with mouse and keys.
#include "toolkit/testing/robot.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

using namespace orba::testing;

namespace {

constexpr int SELECTED = 15358, PRESSED = 15356, CHANGED = 15357;

// A list with a row of every kind, numbered as the members say.
struct Sheet {
    Toolkit toolkit;
    int list, combo, number;
    enum Row { NAME = 1, TYPE, XPOS, COLOUR, ICON, HELP, LABEL };

    Sheet() {
        list = owCreatePropertyList(toolkit.panel, 0, 0, 300, 280, owVpos, OTOP, owColumnWidth, 120, owRowHeight, 20,
                                    owSelectCallback, SELECTED, owCallback, PRESSED, owChangeCallback, CHANGED, 0);
        combo = owCreateComboBox(list, 0, 0, 200, 200, ONONE, ODISPLAY, 0);
        for (const char* entry : {"Standard", "User Defined", "Default Button"})
            owSetListEntry(combo, OADD, owString, entry, 0);
        owSetListEntry(combo, OSELECT, owEntry, 1, 0);
        number = owCreateValueEntry(list, 0, 0, 50, 20, 120.0, 5, 0, OEDIT, 0);
        owAddPropertyToList(list, OPROPTEXT, "Name", owString, "Form1_Button1", 0);
        owAddPropertyToList(list, OPROPCOMBO, "Type", owPropertyWidget, combo, 0);
        owAddPropertyToList(list, OPROPVALUE, "Xpos", owPropertyWidget, number, 0);
        owAddPropertyToList(list, OPROPBUTTON, "On Colour", owBackCol, 2, 0);
        owAddPropertyToList(list, OPROPBUTTON, "Icon", owString, "MBIG1001", owReadOnly, 0, 0);
        owAddPropertyToList(list, OPROPTEXT, "Bubble Help", owString, "NOT USED", owPropertyStatus, 0, 0);
        owAddPropertyToList(list, OPROPTEXT, "Label", owString, "OK", 0);
        settle();
        events();
    }

    QTableView* view() const { return static_cast<QTableView*>(viewOf(list)); }
    // A place in a row's cell, measured from the left end of the cell, or from its right end when negative.
    QPoint cell(int row, int across = 20) const {
        const QRect rect = view()->visualRect(view()->model()->index(row - 1, 1));
        return {across < 0 ? rect.right() + across : rect.left() + across, rect.center().y()};
    }
    void pressCell(int row) const { QTest::mousePress(view()->viewport(), Qt::LeftButton, {}, cell(row, 20)); }
    void releaseCell(int row) const { QTest::mouseRelease(view()->viewport(), Qt::LeftButton, {}, cell(row, 20)); }
    void clickCell(int row, int across = 20) const {
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, cell(row, across));
    }
    std::string text(int row) const {
        char buffer[256] = "";
        owEnqPropertySetting(list, row, owString, buffer, 0);
        return buffer;
    }
    double value(int row) const {
        double result = -1;
        owEnqPropertySetting(list, row, owPropertyValue, &result, 0);
        return result;
    }
    std::string shown(int row) const { return view()->model()->index(row - 1, 1).data().toString().toStdString(); }
};

// Identifier and row of every event.
std::vector<std::pair<int, int>> heard() {
    std::vector<std::pair<int, int>> all;
    for (const OACTION& action : events()) all.emplace_back(action.callback, action.status);
    return all;
}

using Heard = std::vector<std::pair<int, int>>;

void typeKeys(const char* text) { QTest::keyClicks(QApplication::focusWidget(), text); }
void typeKey(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, with);
}

} // namespace

TEST(PropertyLists, RowsAreFoundByLabel) {
    const Sheet sheet;
    EXPECT_EQ(owPropertyItemCount(sheet.list), 7);
    EXPECT_EQ(owPropertyItemNumber(sheet.list, "Icon"), Sheet::ICON);
    EXPECT_EQ(owPropertyItemNumber(sheet.list, "icon"), 0);
    EXPECT_EQ(owPropertyItemNumber(sheet.list, "Bubble Help Align"), 0);
    char label[256] = "";
    int kind = -1, status = -1, widget = -1;
    owEnqPropertySetting(sheet.list, Sheet::TYPE, owPropertyLabel, label, owPropertyKind, &kind, owPropertyStatus,
                         &status, owPropertyWidget, &widget, 0);
    EXPECT_STREQ(label, "Type");
    EXPECT_EQ(kind, OPROPCOMBO);
    EXPECT_EQ(status, 1);
    EXPECT_EQ(widget, sheet.combo);
    EXPECT_EQ(sheet.text(Sheet::TYPE), "Standard");
    EXPECT_EQ(sheet.value(Sheet::XPOS), 120);
    owRemovePropertyFromList(sheet.list, Sheet::NAME);
    EXPECT_EQ(owPropertyItemNumber(sheet.list, "Icon"), Sheet::ICON - 1);
}

TEST(PropertyLists, TypingIntoATextCell) {
    const Sheet sheet;
    sheet.clickCell(Sheet::LABEL);
    typeKeys("Cancel");
    EXPECT_EQ(sheet.text(Sheet::LABEL), "OK") << "not taken over yet";
    typeKey(Qt::Key_Return);
    EXPECT_EQ(heard(), (Heard{{SELECTED, Sheet::LABEL}, {CHANGED, Sheet::LABEL}}));
    EXPECT_EQ(sheet.text(Sheet::LABEL), "Cancel");
    sheet.clickCell(Sheet::LABEL);
    typeKeys("dropped");
    typeKey(Qt::Key_Escape);
    EXPECT_EQ(sheet.text(Sheet::LABEL), "Cancel");
    sheet.clickCell(Sheet::LABEL);
    typeKeys("Cancel");
    typeKey(Qt::Key_Return);
    EXPECT_TRUE(heard().empty()) << "the same text again is no change";
    sheet.clickCell(Sheet::NAME);
    QTest::keyClicks(QApplication::focusWidget(), QString(300, 'x'));
    typeKey(Qt::Key_Return);
    EXPECT_EQ(sheet.text(Sheet::NAME), std::string(255, 'x'));
}

TEST(PropertyLists, WhatIsBeingTypedIsTakenOverBeforeAnythingElseHappens) {
    struct Case {
        const char* name;
        void (*leave)(const Sheet& sheet);
    };
    const int f5 = 9005;
    const Case cases[] = {
        {"a click on another row", [](const Sheet& sheet) { sheet.clickCell(Sheet::NAME); }},
        {"a click beside the list", [](const Sheet& sheet) { click(sheet.toolkit.panel, QPoint(380, 150)); }},
        {"Tab", [](const Sheet&) { typeKey(Qt::Key_Tab); }},
        {"Shift+Tab", [](const Sheet&) { typeKey(Qt::Key_Backtab, Qt::ShiftModifier); }},
        {"the arrow up", [](const Sheet&) { typeKey(Qt::Key_Up); }},
        {"a function key that the program has bound", [](const Sheet&) { typeKey(Qt::Key_F5); }},
    };
    for (const Case& row : cases) {
        const Sheet sheet;
        owDefineKeyCallback(OKEYF1 + 4, f5);
        sheet.clickCell(Sheet::LABEL);
        typeKeys("Go");
        row.leave(sheet);
        const Heard all = heard();
        ASSERT_GE(all.size(), 2U) << row.name;
        EXPECT_EQ(all[1], (std::pair{CHANGED, int(Sheet::LABEL)})) << row.name;
        EXPECT_EQ(sheet.text(Sheet::LABEL), "Go") << row.name;
    }
}

TEST(PropertyLists, RowZeroIsThatOfTheEventInHand) {
    const Sheet sheet;
    sheet.clickCell(Sheet::LABEL);
    typeKeys("Go");
    typeKey(Qt::Key_Backtab, Qt::ShiftModifier); // the current row is another one when the change is read
    std::vector<std::string> labels;
    for (int i = 0; i < 3; ++i) {
        int identifier = 0;
        char label[256] = "";
        owAction(&identifier);
        owEnqPropertySetting(sheet.list, 0, owPropertyLabel, label, 0);
        labels.emplace_back(label);
    }
    EXPECT_EQ(labels, (std::vector<std::string>{"Label", "Label", "Icon"}));
}

TEST(PropertyLists, ChoosingFromAComboCell) {
    const Sheet sheet;
    sheet.pressCell(Sheet::TYPE);
    settle(30);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "a list under the pressed button would close again";
    sheet.releaseCell(Sheet::TYPE);
    settle(30);
    QWidget* popup = QApplication::activePopupWidget();
    ASSERT_NE(popup, nullptr) << "one click opens the choices";
    typeKey(Qt::Key_Down);
    QTest::keyClick(popup->findChild<QAbstractItemView*>(), Qt::Key_Return);
    settle();
    EXPECT_EQ(heard(), (Heard{{SELECTED, Sheet::TYPE}, {CHANGED, Sheet::TYPE}}));
    EXPECT_EQ(sheet.text(Sheet::TYPE), "User Defined");
    EXPECT_EQ(sheet.shown(Sheet::TYPE), "User Defined");
    owDefineCallback(sheet.combo, 15397);
    auto* combo = qobject_cast<QComboBox*>(viewOf(sheet.combo));
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    const std::vector<OACTION> own = events();
    ASSERT_EQ(own.size(), 1U);
    EXPECT_EQ(own[0].callback, 15397) << "a callback of its own goes before the list's";
    EXPECT_EQ(sheet.text(Sheet::TYPE), "Default Button");
}

// A key that the row's cell has no use for ends there.
TEST(PropertyLists, AnyKeyOnAnyRowComesToAnEnd) {
    const Sheet sheet;
    for (int row = Sheet::NAME; row <= Sheet::LABEL; ++row) {
        SCOPED_TRACE(row);
        owSelectProperty(sheet.list, row);
        viewOf(sheet.list)->setFocus();
        for (const char* key : {"x", "?", " ", "1", "S"}) typeKeys(key);
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_F9, Qt::Key_Insert}) typeKey(key);
        EXPECT_TRUE(viewOf(sheet.list)->isVisible());
        while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    }
    events();
}

TEST(PropertyLists, TheWheelOverACellChangesNoValue) {
    const Sheet sheet;
    owSelectProperty(sheet.list, Sheet::TYPE);
    settle();
    QWidget* combo = viewOf(sheet.combo);
    const QPointF at(combo->rect().center());
    QWheelEvent wheel(at, combo->mapToGlobal(at), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(combo, &wheel);
    settle();
    EXPECT_EQ(sheet.text(Sheet::TYPE), "Standard");
}

TEST(PropertyLists, NumbersAreEnteredWithReturnAndByLeaving) {
    const Sheet sheet;
    sheet.clickCell(Sheet::XPOS);
    typeKeys("77");
    typeKey(Qt::Key_Return);
    EXPECT_EQ(heard(), (Heard{{SELECTED, Sheet::XPOS}, {CHANGED, Sheet::XPOS}}));
    EXPECT_EQ(sheet.value(Sheet::XPOS), 77);
    sheet.clickCell(Sheet::XPOS);
    typeKeys("80");
    sheet.clickCell(Sheet::NAME);
    EXPECT_EQ(heard(), (Heard{{CHANGED, Sheet::XPOS}, {SELECTED, Sheet::NAME}}));
    EXPECT_EQ(sheet.shown(Sheet::XPOS), "80");
    owSetPropertySetting(sheet.list, Sheet::XPOS, owPropertyValue, 2147483.0, 0);
    EXPECT_EQ(sheet.value(Sheet::XPOS), 2147483);
    EXPECT_TRUE(heard().empty()) << "the program's own change is no event";
}

TEST(PropertyLists, ANumberBeingTypedIsTakenOverBeforeACommand) {
    const Sheet sheet;
    const int f5 = 9005;
    owDefineKeyCallback(OKEYF1 + 4, f5);
    sheet.clickCell(Sheet::XPOS);
    typeKeys("64");
    typeKey(Qt::Key_F5);
    std::vector<int> order;
    for (const auto& [identifier, row] : heard()) order.push_back(identifier);
    EXPECT_EQ(order, (std::vector<int>{SELECTED, CHANGED, f5}));
    EXPECT_EQ(sheet.value(Sheet::XPOS), 64);
}

TEST(PropertyLists, ButtonsOfCells) {
    const Sheet sheet;
    sheet.clickCell(Sheet::COLOUR, -8);
    EXPECT_EQ(heard(), (Heard{{SELECTED, Sheet::COLOUR}, {PRESSED, Sheet::COLOUR}}));
    sheet.clickCell(Sheet::COLOUR, 10);
    EXPECT_TRUE(heard().empty()) << "beside the button nothing happens";
    typeKey(Qt::Key_Return);
    EXPECT_EQ(heard(), (Heard{{PRESSED, Sheet::COLOUR}})) << "Return presses it";
    sheet.clickCell(Sheet::ICON, -8);
    EXPECT_EQ(heard(), (Heard{{SELECTED, Sheet::ICON}, {PRESSED, Sheet::ICON}}));
    sheet.clickCell(Sheet::ICON);
    typeKeys("lamp.bmp");
    typeKey(Qt::Key_Return);
    EXPECT_EQ(heard(), (Heard{{CHANGED, Sheet::ICON}})) << "a name may also be typed";
    EXPECT_EQ(sheet.text(Sheet::ICON), "lamp.bmp");
    QPoint press = sheet.cell(Sheet::ICON, -8);
    QTest::mousePress(sheet.view()->viewport(), Qt::LeftButton, {}, press);
    QTest::mouseRelease(sheet.view()->viewport(), Qt::LeftButton, {}, press + QPoint(-60, 0));
    EXPECT_TRUE(heard().empty()) << "let go beside it, the button is not pressed";
}

TEST(PropertyLists, ADisabledRowIsGreyAndDeaf) {
    const Sheet sheet;
    sheet.clickCell(Sheet::HELP);
    EXPECT_EQ(heard(), (Heard{{SELECTED, Sheet::HELP}}));
    EXPECT_EQ(QApplication::focusWidget(), sheet.view());
    typeKeys("x");
    typeKey(Qt::Key_Return);
    EXPECT_EQ(sheet.text(Sheet::HELP), "NOT USED");
    const QImage grey = picture(sheet.list);
    owSetPropertySetting(sheet.list, Sheet::HELP, owPropertyStatus, 1, 0);
    settle();
    EXPECT_NE(picture(sheet.list), grey);
    sheet.clickCell(Sheet::HELP);
    typeKeys("now");
    typeKey(Qt::Key_Return);
    EXPECT_EQ(sheet.text(Sheet::HELP), "now");
    for (const int row : {int(Sheet::TYPE), int(Sheet::XPOS), int(Sheet::COLOUR)}) {
        owSetPropertySetting(sheet.list, row, owPropertyStatus, 0, 0);
        events();
        sheet.clickCell(row, -8);
        settle(20);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << row;
        for (const auto& [identifier, status] : heard()) EXPECT_EQ(identifier, SELECTED) << row;
    }
}

TEST(PropertyLists, ColoursAndTextsSetByTheProgram) {
    const Sheet sheet;
    oDefineRGB(40, 0, 0.5, 1);
    owSetPropertySetting(sheet.list, Sheet::COLOUR, owString, "", owBackCol, 40, 0);
    settle();
    const QImage shown = picture(sheet.list);
    const QPoint middle = sheet.view()->viewport()->mapTo(sheet.view(), sheet.cell(Sheet::COLOUR, 30));
    EXPECT_EQ(shown.pixelColor(middle).rgb(), QColor::fromRgbF(0, 0.5F, 1).rgb());
    owSetPropertySetting(sheet.list, Sheet::COLOUR, owString, "#FFFFF0", owBackCol, 0, 0);
    EXPECT_EQ(sheet.text(Sheet::COLOUR), "#FFFFF0");
    owSetPropertySetting(sheet.list, Sheet::TYPE, owString, "Default Button", 0);
    EXPECT_EQ(sheet.text(Sheet::TYPE), "Default Button");
    owSetPropertySetting(sheet.list, Sheet::LABEL, owPropertyLabel, "Title", owString, "Main", 0);
    EXPECT_EQ(owPropertyItemNumber(sheet.list, "Title"), Sheet::LABEL);
    EXPECT_TRUE(events().empty());
}

TEST(PropertyLists, KeysMoveAlongTheRows) {
    const Sheet sheet;
    owSelectProperty(sheet.list, Sheet::NAME);
    sheet.view()->setFocus();
    EXPECT_TRUE(heard().empty());
    typeKey(Qt::Key_Down);
    typeKey(Qt::Key_End);
    typeKey(Qt::Key_Home);
    EXPECT_EQ(heard(), (Heard{{SELECTED, Sheet::TYPE}, {SELECTED, Sheet::LABEL}, {SELECTED, Sheet::NAME}}));
    typeKeys("New");
    typeKey(Qt::Key_Return);
    EXPECT_EQ(sheet.text(Sheet::NAME), "New") << "typing begins an edit";
    EXPECT_EQ(heard(), (Heard{{CHANGED, Sheet::NAME}}));
    typeKey(Qt::Key_F2);
    typeKey(Qt::Key_End);
    typeKeys("er");
    typeKey(Qt::Key_Tab);
    EXPECT_EQ(sheet.text(Sheet::NAME), "Newer");
    EXPECT_EQ(heard(), (Heard{{CHANGED, Sheet::NAME}, {SELECTED, Sheet::TYPE}}));
}

TEST(PropertyLists, TheUserSetsTheWidthOfTheLabels) {
    const Sheet sheet;
    int width = 0, height = 0;
    owEnqWidgetProp(sheet.list, owColumnWidth, &width, owRowHeight, &height, 0);
    EXPECT_EQ(width, 120);
    EXPECT_GE(height, 20);
    QWidget* area = sheet.view()->viewport();
    QTest::mousePress(area, Qt::LeftButton, {}, QPoint(120, 30));
    QMouseEvent move(QEvent::MouseMove, QPointF(160, 30), area->mapToGlobal(QPointF(160, 30)), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(area, &move);
    QTest::mouseRelease(area, Qt::LeftButton, {}, QPoint(160, 30));
    owEnqWidgetProp(sheet.list, owColumnWidth, &width, 0);
    EXPECT_EQ(width, 160);
    owSetWidgetProp(sheet.list, owColumnWidth, 100, 0);
    owEnqWidgetProp(sheet.list, owColumnWidth, &width, 0);
    EXPECT_EQ(width, 100);
}

TEST(PropertyLists, BadRowsAndWidgetsAreReported) {
    const Sheet sheet;
    owSetPropertySetting(sheet.list, 99, owString, "x", 0);
    owEnqPropertySetting(sheet.list, -3, 0);
    owRemovePropertyFromList(sheet.list, 8);
    EXPECT_EQ(reports(), (std::vector<int>{1635, 1635, 1635}));
    EXPECT_GT(owAddPropertyToList(sheet.list, OPROPCOMBO, "Alien", owPropertyWidget, sheet.toolkit.panel, 0), 0);
    EXPECT_EQ(reports(), (std::vector<int>{1626}));
    owEraseWidget(sheet.combo);
    sheet.clickCell(Sheet::TYPE);
    EXPECT_EQ(sheet.text(Sheet::TYPE), "");
    owSelectProperty(sheet.list, 0);
    owSelectProperty(sheet.list, 100);
    EXPECT_EQ(owPropertyItemCount(sheet.list), 8);
}
