#include "program_fixture.h"

#include "toolkit/views/text/value_entry.h"

using namespace orba;

class ValueEntries : public Program {
protected:
    int value(double start, int display = OEDIT) {
        return owCreateValueEntry(panel, 10, 10, 100, 22, start, 8, 2, display, owVpos, OTOP, owVmin, -100.0, owVmax,
                                  100.0, owSign, OCREDIT2, owCallback, OIDENT, owSelectCallback, OIDENT,
                                  owValueErrorCallback, OIDENT, 0);
    }
    static double number(int handle) {
        double result = 0;
        owEnqValueSettingDouble(handle, &result);
        return result;
    }
    static std::string shown(int handle) { return static_cast<ValueEntry*>(view(handle))->shown(); }
    static void type(int handle, const char* keys) {
        focus(handle);
        QTest::keyClicks(field(handle), keys);
    }
};

TEST_F(ValueEntries, ShowsTheFormOfItsTypeAtRestAndTheBareNumberInUse) {
    const int first = value(-12.5), other = value(1);
    EXPECT_EQ(shown(first), "(12.50)");
    focus(first);
    EXPECT_EQ(shown(first), "-12.50");
    focus(other);
    EXPECT_EQ(shown(first), "(12.50)");
    owSetValueSetting(first, 3.0);
    EXPECT_EQ(shown(first), "3.00");
}

TEST_F(ValueEntries, EntersWithReturnAndWithLeaving) {
    const int first = value(1), other = value(2);
    type(first, "7.25");
    EXPECT_EQ(number(first), 7.25); // what stands in the line already counts
    events();
    QTest::keyClick(field(first), Qt::Key_Return);
    std::vector<Seen> seen = events();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].callback, first);
    EXPECT_EQ(number(first), 7.25);
    type(first, "8");
    focus(other);
    EXPECT_EQ(identifiers(), (std::vector<int>{first, other + OIDENT}));
    EXPECT_EQ(number(first), 8);
}

TEST_F(ValueEntries, EscBringsTheValueBack) {
    const int first = value(120), other = value(2);
    type(first, "333");
    events();
    QTest::keyClick(field(first), Qt::Key_Escape);
    EXPECT_EQ(number(first), 120);
    EXPECT_EQ(shown(first), "120.00");
    focus(other);
    EXPECT_EQ(number(first), 120);
    EXPECT_EQ(identifiers(), (std::vector<int>{other + OIDENT}));
}

TEST_F(ValueEntries, RefusesWhatIsOutsideTheLimitsOrNoNumber) {
    const struct {
        const char* keys;
        int status;
    } rows[] = {{"101", int(ValueError::TooLarge)},
                {"-100.5", int(ValueError::TooSmall)},
                {"1-2", int(ValueError::NotANumber)}};
    const int first = value(5);
    for (const auto& row : rows) {
        type(first, row.keys);
        events();
        QTest::keyClick(field(first), Qt::Key_Return);
        std::vector<Seen> seen = events();
        ASSERT_EQ(seen.size(), 1U) << row.keys;
        EXPECT_EQ(seen[0].callback, first + 10 * OIDENT);
        EXPECT_EQ(seen[0].status, row.status);
        EXPECT_EQ(number(first), 5);
        EXPECT_EQ(shown(first), "5.00");
    }
}

TEST_F(ValueEntries, TakesNoLettersAndNoMoreThanItsField) {
    const int first = value(0);
    type(first, "a1b2c.5");
    EXPECT_EQ(shown(first), "12.5");
    field(first)->setFocus();
    static_cast<ValueEntry*>(view(first))->field()->selectAll();
    QTest::keyClicks(field(first), "1234567890");
    EXPECT_EQ(shown(first), "12345678");
}

TEST_F(ValueEntries, ClearsAndShowsRogueValues) {
    const int first = value(5);
    owClearValueEntry(first);
    EXPECT_EQ(shown(first), "");
    EXPECT_EQ(number(first), 0);
    owSetRogueValueStr(first, -1.0, "none");
    owSetValueSetting(first, -1.0);
    EXPECT_EQ(shown(first), "none");
    owSetValueSetting(first, 1e300);
    EXPECT_EQ(number(first), 1e300);
    int whole = 0;
    owEnqValueSettingInteger(first, &whole);
    EXPECT_GT(whole, 2000000000);
}

TEST_F(ValueEntries, AClickTakesTheWholeValueAndTheNextSetsTheCaret) {
    const int first = value(5);
    for (const bool again : {false, true}) {
        owSetActiveWidget(value(1)); // the focus goes elsewhere
        owSetValueSetting(first, 5.0);
        for (int clicks = again ? 2 : 1; clicks > 0; clicks--) {
            QTest::mouseClick(field(first), Qt::LeftButton, {}, QPoint(field(first)->width() - 4, 8));
            QApplication::processEvents();
        }
        QTest::keyClicks(field(first), "2");
        EXPECT_EQ(shown(first), again ? "5.002" : "2");
        QTest::keyClick(field(first), Qt::Key_Escape);
        QTest::keyClick(field(first), Qt::Key_Return);
    }
}

TEST_F(ValueEntries, ALabelTellsThatItWasPressed) {
    const int label = value(5, ODISPLAY);
    QTest::mouseClick(static_cast<ValueEntry*>(view(label))->field(), Qt::LeftButton);
    EXPECT_EQ(identifiers(), (std::vector<int>{label, label + OIDENT}));
}

TEST_F(ValueEntries, ASpinnerStepsItsBuddyWithinTheLimits) {
    const int first = value(98);
    const int spinner =
        owCreateSpinner(panel, 120, 10, 18, 30, owVpos, OTOP, owBuddy, first, owStep, 2, owCallback, OIDENT, 0);
    events();
    QWidget* arrows = view(spinner);
    QTest::mouseClick(arrows, Qt::LeftButton, {}, QPoint(9, 5));
    QTest::mouseClick(arrows, Qt::LeftButton, {}, QPoint(9, 5));
    EXPECT_EQ(number(first), 100);
    QTest::mouseClick(arrows, Qt::LeftButton, {}, QPoint(9, 25));
    EXPECT_EQ(number(first), 98);
    int steps = 0;
    for (const Seen& event : events()) steps += event.callback == spinner ? event.status : 0;
    EXPECT_EQ(steps, 1);
}
