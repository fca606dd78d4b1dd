// Sliders, gauges, progress bars, arrays, tables, TTY entries and graphics frames.
#include "program_fixture.h"

#include "toolkit/families/text_family.h"
#include "toolkit/views/array_grid.h"
#include "toolkit/views/drawing.h"
#include "toolkit/views/sliders.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTableWidget>
#include <QTemporaryDir>

using namespace orba;

class Measures : public Program {
protected:
    static float slider(int handle) {
        float value = -1;
        owEnqSliderValue(handle, &value);
        return value;
    }
};

TEST_F(Measures, SlidersRunInFourDirections) {
    const struct {
        int type;
        QPoint low; // where the minimum is
    } rows[] = {
        {OHORIZONTAL, {3, 10}}, {OREVERSEHORIZONTAL, {196, 10}}, {OVERTICAL, {10, 196}}, {OREVERSEVERTICAL, {10, 3}}};
    for (const auto& row : rows) {
        const bool vertical = row.type == OVERTICAL || row.type == OREVERSEVERTICAL;
        const int one = owCreateSlider(panel, 10, 10, vertical ? 20 : 200, vertical ? 200 : 20, -10.0, 10.0, 0.5, 3.25,
                                       owVpos, OTOP, owType, row.type, owCallback, OIDENT, 0);
        EXPECT_FLOAT_EQ(slider(one), 3.25F);
        QTest::mouseClick(view(one), Qt::LeftButton, {}, row.low);
        EXPECT_FLOAT_EQ(slider(one), -10) << row.type;
        EXPECT_FALSE(events().empty());
        focus(one);
        events();
        QTest::keyClick(view(one), Qt::Key_End);
        EXPECT_FLOAT_EQ(slider(one), 10) << row.type;
        EXPECT_EQ(identifiers(), std::vector<int>{one});
        owSetSliderValue(one, 99.0);
        EXPECT_FLOAT_EQ(slider(one), 10);
        EXPECT_TRUE(events().empty());
        owEraseWidget(one);
    }
}

TEST_F(Measures, GaugesFollowMouseAndKeysUnlessTheyOnlyShow) {
    int value = 0;
    const int one = owCreateGauge(panel, 10, 10, 200, 40, "", owVpos, OTOP, owMinimum, -50, owMaximum, 50, owIntValue,
                                  10, owTicks1, 11, owCallback, OIDENT, 0);
    owEnqGaugeValue(one, &value);
    EXPECT_EQ(value, 10);
    auto* gauge = static_cast<Gauge*>(view(one));
    QTest::mouseClick(gauge, Qt::LeftButton, {}, QPoint(gauge->positionOf(-20), 20));
    owEnqGaugeValue(one, &value);
    EXPECT_EQ(value, -20);
    EXPECT_EQ(identifiers(), std::vector<int>{one});
    focus(one);
    QTest::keyClick(gauge, Qt::Key_Right);
    QTest::keyClick(gauge, Qt::Key_PageUp);
    owEnqGaugeValue(one, &value);
    EXPECT_EQ(value, -9);
    owSetGaugeValue(one, 1000);
    owEnqGaugeValue(one, &value);
    EXPECT_EQ(value, 50);
    const int shown = owCreateGauge(panel, 10, 60, 200, 40, "", owVpos, OTOP, owIntValue, 30, owAccess, ODISPLAY, 0);
    QTest::mouseClick(view(shown), Qt::LeftButton, {}, QPoint(190, 20));
    owEnqGaugeValue(shown, &value);
    EXPECT_EQ(value, 30);
}

TEST_F(Measures, ProgressBarsFillWithTheirValue) {
    for (int type : {int(ODEFAULT), OSMOOTH}) {
        const int bar = owCreateProgressBar(panel, 10, 10, 200, 20, owVpos, OTOP, owMinimum, 0, owMaximum, 10,
                                            owProgressType, type, 0);
        QImage before = view(bar)->grab().toImage();
        for (int value : {5, 10}) {
            owSetProgressValue(bar, value);
            const QImage after = view(bar)->grab().toImage();
            EXPECT_NE(after, before) << type << ' ' << value;
            before = after;
        }
        owSetProgressValue(bar, 99);
        EXPECT_EQ(view(bar)->grab().toImage(), before);
    }
}

class Arrays : public Program {
protected:
    int array(int columns, int rows, int tabAction = OON, bool values = false) {
        const auto create = values ? owCreateValueArray : owCreateTextArray;
        return create(panel, 10, 10, 300, 200, columns, rows, owVpos, OTOP, owTabAction, tabAction, owCallback, OIDENT,
                      owSelectCallback, OIDENT, owChangeCallback, OIDENT, 0);
    }
    static std::string cell(int handle, int column, int row) {
        char text[64];
        owEnqTextArray(handle, column, row, text, sizeof text);
        return text;
    }
    static QWidget* editor(int handle) {
        return static_cast<ArrayGrid*>(view(handle))->viewport()->findChild<QLineEdit*>();
    }
    static void current(int handle, int& column, int& row) {
        int column2 = 0, row2 = 0;
        owEnqArrayCells(handle, &column, &row, &column2, &row2);
    }
};

TEST_F(Arrays, EditCellsInPlace) {
    const int one = array(3, 4);
    owSetActiveCell(one, 2, 3);
    focus(one);
    events();
    QTest::keyClick(view(one), Qt::Key_A);
    ASSERT_TRUE(editor(one));
    QTest::keyClicks(editor(one), "bc");
    QTest::keyClick(editor(one), Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(cell(one, 2, 3), "abc");
    std::vector<int> seen;
    for (const Seen& event : events()) {
        seen.push_back(event.callback);
        if (event.callback == one || event.callback == one + 4 * OIDENT) {
            EXPECT_EQ(event.first, 2);
            EXPECT_EQ(event.second, 3);
            EXPECT_EQ(event.text, "abc");
        }
    }
    EXPECT_EQ(seen, (std::vector<int>{one + 4 * OIDENT, one, one + OIDENT}));
    int column = 0, row = 0;
    current(one, column, row);
    EXPECT_EQ(column, 2);
    EXPECT_EQ(row, 4);
}

TEST_F(Arrays, TabGoesThroughTheCellsAsTold) {
    for (int action : {OOFF, OON, OCYCLE}) {
        const int one = array(2, 2, action), after = entry("");
        owSetActiveCell(one, 1, 1);
        focus(one);
        int column = 0, row = 0;
        for (int tabs = 0; tabs < 3; ++tabs) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        current(one, column, row);
        EXPECT_EQ(view(one)->hasFocus(), action != OOFF) << action;
        if (action == OOFF) continue;
        EXPECT_EQ(column * 10 + row, 22);
        QTest::keyClick(view(one), Qt::Key_Tab);
        current(one, column, row);
        EXPECT_EQ(view(one)->hasFocus(), action == OCYCLE) << action;
        EXPECT_EQ(column * 10 + row, action == OCYCLE ? 11 : 22);
        owEraseWidget(one);
        owEraseWidget(after);
    }
}

TEST_F(Arrays, KeepSizesLooksAndContentsThroughChangesOfShape) {
    const int one = array(3, 3);
    OARRAYCELL look{};
    look.width = 40;
    look.height = 24;
    owSetCellAttribs(one, 0, 0, &look);
    look.width = 90;
    look.height = 30;
    look.backCol = 5;
    look.readOnly = OON;
    owSetCellAttribs(one, 2, 2, &look);
    owSetTextArray(one, 2, 2, "keep");
    owAddArrayColumn(one, 1);
    owAddArrayRow(one, 1);
    EXPECT_EQ(cell(one, 3, 3), "keep");
    OARRAYCELL told{};
    owEnqCellAttribs(one, 3, 3, &told);
    EXPECT_EQ(told.width, 90);
    EXPECT_EQ(told.height, 30);
    EXPECT_EQ(told.backCol, 5);
    EXPECT_EQ(told.readOnly, OON);
    owEnqCellAttribs(one, 2, 2, &told);
    EXPECT_EQ(told.width, 40);
    owRemoveArrayColumn(one, 3);
    EXPECT_EQ(cell(one, 3, 3), "");
    owSetActiveCell(one, 1, 99);
    EXPECT_EQ(cell(one, 99, 1), "");
    owRemoveArrayRow(one, 99);
    for (int i = 0; i < 9; ++i) owRemoveArrayRow(one, 1);
    EXPECT_EQ(static_cast<ArrayGrid*>(view(one))->rows(), 1); // the last one stays
}

TEST_F(Arrays, ValuesAreFormattedAndChecked) {
    const int one = array(2, 2, OON, true);
    OARRAYCELL look{};
    look.type = OMPERCENT;
    look.decimals = 1;
    owSetCellAttribs(one, 1, 0, &look);
    owSetValueArray(one, 1, 1, 12.34);
    EXPECT_EQ(cell(one, 1, 1), "12.3%");
    float value = 0;
    owEnqValueArray(one, 1, 1, &value);
    EXPECT_FLOAT_EQ(value, 12.34F);
    owSetActiveCell(one, 1, 1);
    focus(one);
    QTest::keyClick(view(one), Qt::Key_X);
    ASSERT_TRUE(editor(one));
    QTest::keyClick(editor(one), Qt::Key_Return);
    EXPECT_EQ(cell(one, 1, 1), "12.3%"); // no number
}

TEST_F(Arrays, LabelsTakeAllForms) {
    const struct {
        const char* labels;
        int index;
        const char* label;
    } rows[] = {{"*digits", 9, "10"},   {"*letters", 25, "Z"},
                {"*letters", 26, "AA"}, {"*letters", 701, "ZZ"},
                {"*months", 0, "Jan"},  {"*months", 12, "Jan"},
                {"*days", 0, "Mon"},    {"A|B", 1, "B"},
                {"A|B", 2, ""},         {"", 0, ""}};
    for (const auto& row : rows)
        EXPECT_EQ(arrayLabel(row.labels, row.index).toStdString(), row.label) << row.labels << row.index;
}

TEST_F(Arrays, TableBoxesHoldLabelledColumnsAndReportRows) {
    const int table =
        owCreateTableBox(panel, 10, 10, 300, 150, owVpos, OTOP, owCallback, OIDENT, owDoubleClickCallback, OIDENT, 0);
    owAddTableBoxColumn(table, 1, 80, owLabel, "Name");
    owAddTableBoxColumn(table, 2, 60);
    EXPECT_EQ(owAddTableBoxEntry(table, 0, 1, "first"), 1);
    EXPECT_EQ(owAddTableBoxEntry(table, 0, 1, "second"), 2);
    EXPECT_EQ(owAddTableBoxEntry(table, 2, 2, "more"), 2);
    EXPECT_EQ(owAddTableBoxEntry(table, 1, 9, "none"), 0);
    int width = 0;
    char label[32];
    owEnqTableBoxAttribs(table, 1, &width);
    owEnqTableBoxLabel(table, 1, label, sizeof label);
    EXPECT_EQ(width, 80);
    EXPECT_STREQ(label, "Name");
    auto* view = static_cast<QTableWidget*>(Program::view(table));
    events();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualItemRect(view->item(1, 0)).center());
    std::vector<Seen> seen = events();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].status, 2);
    EXPECT_EQ(seen[0].text, "second");
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(10, view->viewport()->height() - 3));
    EXPECT_EQ(identifiers(), std::vector<int>{table});
}

TEST_F(Arrays, TtyEntriesTakeLinesBehindThePromptAndRememberThem) {
    const int tty =
        owCreateTTYEntry(panel, 10, 10, 300, 120, 5, "Welcome", owVpos, OTOP, owPrompt, "> ", owCallback, OIDENT, 0);
    auto* edit = textEntryOf(widgetOf(tty))->editor();
    const auto shown = [&] { return edit->toPlainText().toStdString(); };
    focus(tty);
    QTest::keyClicks(edit, "one");
    owSetTextSetting(tty, "output", 0); // goes ahead of what is being typed
    EXPECT_EQ(shown(), "Welcome\noutput\n> one");
    QTest::keyClick(edit, Qt::Key_Return);
    std::vector<Seen> seen = events();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].text, "one");
    EXPECT_EQ(text(tty), "one");
    for (int i = 0; i < 9; ++i) QTest::keyClick(edit, Qt::Key_Backspace); // the prompt stays
    QTest::keyClick(edit, Qt::Key_Up);
    EXPECT_EQ(shown(), "Welcome\noutput\n> one\n> one");
    QTest::keyClick(edit, Qt::Key_Down);
    EXPECT_EQ(shown(), "Welcome\noutput\n> one\n> ");
    for (int i = 0; i < 20; ++i) owSetTextSetting(tty, "line", 0);
    EXPECT_LE(edit->document()->blockCount(), 6);
    QTest::keyClicks(edit, "two");
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(events().back().text, "two");
}

class Graphics : public Program {
protected:
    int frame(OLIMIT limits = {0, 100, 0, 50}) {
        return owCreateGraphicsFrame(panel, 10, 10, 200, 100, &limits, owVpos, OTOP, owCallback, OIDENT,
                                     owExposeCallback, OIDENT, 0);
    }
    static QColor at(int handle, int x, int y) {
        return static_cast<GraphicsFrame*>(view(handle))->picture().pixelColor(x, y);
    }
};

TEST_F(Graphics, DrawsInTheUnitsOfItsLimitsAndRepaintsWhenItGrows) {
    const int one = frame();
    owActivateGraphicsFrame(one);
    oSetFillMode(1, 2);
    oFillRect(10, 10, 20, 20);
    EXPECT_EQ(at(one, 30, 70), colourOf(2)); // x 15 is pixel 30, y 15 is 30 from the bottom
    EXPECT_NE(at(one, 30, 30), colourOf(2));
    oSetLineColour(4);
    oSetLineWidthPixel(3);
    oMoveTo2D(0, 40);
    oDrawLineTo2D(100, 40);
    EXPECT_EQ(at(one, 100, 20), colourOf(4));
    owSetWidgetProp(one, owWidth, 400, owHeight, 200, 0);
    EXPECT_EQ(at(one, 60, 140), colourOf(2));
    EXPECT_EQ(at(one, 200, 40), colourOf(4));
    owClearGraphicsFrame(one);
    EXPECT_NE(at(one, 60, 140), colourOf(2));
}

TEST_F(Graphics, EachShapeLeavesItsMark) {
    const int one = frame();
    owActivateGraphicsFrame(one);
    const OPOINT points[] = {{10, 10}, {50, 40}, {90, 10}};
    const std::function<void()> shapes[] = {
        [&] { oDrawPolylineTo2D(3, points); },
        [&] { oDrawPolylineBy2D(1, points); },
        [&] { oFillPolygonTo2D(3, points); },
        [] { oDrawRect2D(10, 10, 90, 40); },
        [] { oDrawCircle2D(10); },
        [] { oDrawEllipse2D(20, 5); },
        [] { oDrawArcTo2D(50, 25, 60, 35); },
        [] { oDrawArcBy2D(10, 0, 90); },
        [] { oDrawMarker(3); },
        [&] { oDrawPolymarkerTo2D(3, points, 2); },
        [] { oDisplayStr("text"); },
        [] { oDisplayInteger(42, 5); },
        [] { oDisplayRealFixed(1.5, 8, 2); },
        [] { oDrawLineBy2D(10, 10); },
    };
    int number = 0;
    for (const auto& shape : shapes) {
        owClearGraphicsFrame(one);
        const QImage before = static_cast<GraphicsFrame*>(view(one))->picture();
        oMoveTo2D(40, 25);
        shape();
        EXPECT_NE(static_cast<GraphicsFrame*>(view(one))->picture(), before) << number;
        ++number;
    }
}

TEST_F(Graphics, ReportsTheMouseInDrawingUnits) {
    const int one = frame(), other = frame({0, 1, 0, 1});
    owActivateGraphicsFrame(other);
    view(one)->raise();
    events();
    QTest::mouseClick(view(one), Qt::LeftButton, {}, QPoint(50, 80));
    std::vector<Seen> seen = events();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].callback, one);
    EXPECT_EQ(seen[0].status, -1);
    EXPECT_NEAR(seen[0].x, 25, 1);
    EXPECT_NEAR(seen[0].y, 10, 1);
    oSetFillMode(1, 2);
    oFillRect(0, 0, 100, 50); // the frame that was clicked is the active one now
    EXPECT_EQ(at(one, 100, 50), colourOf(2));
    EXPECT_NE(at(other, 100, 50), colourOf(2));
}

TEST_F(Graphics, TellsOnceThatItCameToLight) {
    events();
    const int one = frame();
    EXPECT_EQ(identifiers(), std::vector<int>{one + 3 * OIDENT});
    owSetWidgetProp(one, owWidth, 250, 0);
    EXPECT_EQ(identifiers(), std::vector<int>{one + 3 * OIDENT});
    oDrawCircle2D(5);
    EXPECT_TRUE(events().empty());
}

TEST_F(Graphics, SavesPicturesAndRefusesBadLimits) {
    QTemporaryDir folder;
    const std::string file = folder.filePath("a.png").toStdString(), dump = folder.filePath("b.png").toStdString();
    const int one = frame();
    owActivateGraphicsFrame(one);
    oSetFillMode(1, 2);
    oFillRect(0, 0, 100, 50);
    EXPECT_EQ(oSavePng(file.c_str()), 1);
    EXPECT_EQ(QImage(QString::fromStdString(file)).pixelColor(100, 50), colourOf(2));
    EXPECT_EQ(owDumpImage(one, dump.c_str()), 1);
    EXPECT_EQ(oSavePng("/nonexistent/a.png"), 0);
    EXPECT_EQ(frame({5, 5, 0, 1}), 0);
    owEraseWidget(one);
    oFillRect(0, 0, 1, 1); // into nowhere
    EXPECT_EQ(oSavePng(file.c_str()), 0);
}
