#include "program_fixture.h"
#include "toolkit/testing/robot.h"

#include "toolkit/views/buttons.h"

using namespace orba;

class Buttons : public Program {
protected:
    static int state(int toggle) {
        int status = -1;
        owEnqToggleSwitch(toggle, &status);
        return status;
    }
    int toggle(int parent, int type, int y = 10) {
        return owCreateToggleButton(parent, 10, y, 100, 22, "Label", 0, owVpos, OTOP, owType, type, owCallback, OIDENT,
                                    0);
    }
    // How many pixels of the mark have the colour.
    static int pixels(int handle, const QColor& colour) {
        auto* button = static_cast<ToggleButton*>(view(handle));
        const QImage image = button->grab(button->indicator()).toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == colour;
        return count;
    }
};

TEST_F(Buttons, AnswerToMouseKeysAndAccelerator) {
    const int button =
        owCreatePushButton(panel, 10, 10, 88, 24, "Save it", owVpos, OTOP, owAccel, 'v', owCallback, OIDENT, 0);
    QTest::mouseClick(view(button), Qt::LeftButton);
    EXPECT_EQ(identifiers(), std::vector<int>{button});
    focus(button);
    events();
    for (Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
        QTest::keyClick(view(button), key);
        EXPECT_EQ(identifiers(), std::vector<int>{button}) << key;
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::AltModifier);
    std::vector<int> seen; // the button shows itself pressed for a moment first
    for (int i = 0; i < 100 && seen.empty(); ++i) QTest::qWait(20), seen = identifiers();
    EXPECT_EQ(seen, std::vector<int>{button});
    owSetWidgetStatus(button, OUNSELECTABLE);
    QTest::mouseClick(view(button), Qt::LeftButton);
    EXPECT_TRUE(events().empty());
    QTest::mousePress(view(button), Qt::LeftButton);
    QTest::mouseRelease(view(button), Qt::LeftButton, {}, QPoint(500, 500));
    EXPECT_TRUE(events().empty());
}

TEST_F(Buttons, ReturnPressesTheDefaultButtonOfTheWindow) {
    const int button =
        owCreatePushButton(panel, 10, 40, 88, 24, "OK", owVpos, OTOP, owType, ODEFAULTBUTTON, owCallback, OIDENT, 0);
    const int other = owCreatePushButton(panel, 110, 40, 88, 24, "No", owVpos, OTOP, owCallback, OIDENT, 0);
    const int line = entry("x"), lines = entry("x", 80);
    for (int text : {line, lines}) {
        focus(text);
        events();
        QTest::keyClick(field(text), Qt::Key_Return);
        const std::vector<int> seen = identifiers();
        EXPECT_EQ(std::count(seen.begin(), seen.end(), button), text == line ? 1 : 0);
    }
    focus(other);
    events();
    QTest::keyClick(view(other), Qt::Key_Return);
    EXPECT_EQ(identifiers(), std::vector<int>{other});
    owSetWidgetStatus(button, OUNSELECTABLE);
    focus(line);
    events();
    QTest::keyClick(field(line), Qt::Key_Return);
    EXPECT_EQ(identifiers(), std::vector<int>{line});
}

TEST_F(Buttons, MarkTheAcceleratorAndKeepAmpersands) {
    EXPECT_EQ(markedLabel("Save", 'S'), "&Save");
    EXPECT_EQ(markedLabel("save", 'A'), "s&ave");
    EXPECT_EQ(markedLabel("R&D", 0), "R&&D");
    EXPECT_EQ(markedLabel("R&D", 'D'), "R&&&D");
    EXPECT_EQ(markedLabel("one|two", 0), "one\ntwo");
    EXPECT_EQ(markedLabel("x", 'q'), "x");
}

TEST_F(Buttons, UserDefinedOnesShowTheirColours) {
    const int button =
        owCreatePushButton(panel, 10, 10, 120, 40, " ", owVpos, OTOP, owType, OUSERDEFINED, owOffCol, 2, owOnCol, 4, 0);
    const auto centre = [&] { return view(button)->grab().toImage().pixelColor(20, 20); };
    EXPECT_LT(std::abs(centre().hue() - colourOf(2).hue()), 25);
    QTest::mousePress(view(button), Qt::LeftButton);
    EXPECT_LT(std::abs(centre().hue() - colourOf(4).hue()), 25);
    QTest::mouseRelease(view(button), Qt::LeftButton);
}

TEST_F(Buttons, EveryToggleTypeSwitchesAndShowsIt) {
    owSetWidgetStatus(panel, OSELECTABLE);
    for (int type = 0; type < toggleTypeCount; ++type) {
        const int one = toggle(panel, type);
        const QImage off = view(one)->grab().toImage();
        QTest::mouseClick(view(one), Qt::LeftButton, {}, QPoint(60, 10)); // on the label
        EXPECT_EQ(identifiers(), std::vector<int>{one}) << type;
        EXPECT_EQ(state(one), 1);
        EXPECT_NE(view(one)->grab().toImage(), off) << type;
        focus(one);
        QTest::keyClick(view(one), Qt::Key_Space);
        EXPECT_EQ(state(one), 0);
        events();
        owSetToggleSwitch(one, 1);
        EXPECT_EQ(state(one), 1);
        EXPECT_TRUE(events().empty());
        owEraseWidget(one);
    }
}

TEST_F(Buttons, TogglesShowTheirColours) {
    for (int type : {OBEVELSQUARE, OBEVELDIAMOND, OSIMPLESQUARE, OSIMPLECIRCLE}) {
        const int one = owCreateToggleButton(panel, 10, 10, 100, 22, "x", 1, owVpos, OTOP, owType, type, owOnCol, 2,
                                             owOffCol, 3, 0);
        EXPECT_GT(pixels(one, colourOf(2)), 10) << type;
        owSetToggleSwitch(one, 0);
        EXPECT_EQ(pixels(one, colourOf(2)), 0) << type;
        EXPECT_GT(pixels(one, colourOf(3)), 10) << type;
    }
}

TEST_F(Buttons, OneToggleOfARadioBoxIsOn) {
    const int box = owCreateRadioBox(panel, 10, 10, 200, 100, owVpos, OTOP, owType, OFREEFORM, owCallback, OIDENT, 0);
    const int a = toggle(box, O3DRADIO, 10), b = toggle(box, OBEVELSQUARE, 40);
    QTest::mouseClick(view(a), Qt::LeftButton);
    std::vector<Seen> seen = events();
    ASSERT_EQ(seen.size(), 2U);
    EXPECT_EQ(seen[0].callback, a);
    EXPECT_EQ(seen[1].callback, box);
    EXPECT_EQ(seen[1].status, 1);
    QTest::mouseClick(view(b), Qt::LeftButton);
    EXPECT_EQ(state(a), 0);
    EXPECT_EQ(state(b), 1);
    QTest::mouseClick(view(b), Qt::LeftButton);
    EXPECT_EQ(state(b), 1);
    owSetToggleSwitch(a, 1);
    EXPECT_EQ(state(b), 0);
    const int free1 = toggle(panel, O3DRADIO, 200), free2 = toggle(panel, O3DRADIO, 230);
    owSetToggleSwitch(free1, 1);
    owSetToggleSwitch(free2, 1);
    EXPECT_EQ(state(free1), 1);
}

TEST_F(Buttons, IconsOfEachTypeAnswerAndShowAPicture) {
    for (int type : {OPICTOGRAM, OMOUSESENSITIVE, OBUTTON}) {
        const int icon = owCreateIcon(panel, 10, 10, 40, 40, "no such picture", ODLLICON, 0, owVpos, OTOP, owType, type,
                                      owCallback, OIDENT, 0);
        QTest::mouseClick(view(icon), Qt::LeftButton);
        EXPECT_EQ(identifiers(), std::vector<int>{icon});
        const QImage image = view(icon)->grab().toImage();
        int different = 0;
        for (int i = 8; i < 32; ++i)
            different += image.pixel(i, 20) != image.pixel(6, 6) || image.pixel(20, i) != image.pixel(6, 6);
        EXPECT_GT(different, 2) << type; // a missing image is no empty square
        owEraseWidget(icon);
    }
}

TEST_F(Buttons, PanelsReportPressAndReleaseWithTheirPlaces) {
    const int one = owCreatePanel(panel, 20, 20, 100, 80, owVpos, OTOP, owType, OCHISEL, owTitle, "Title", owCallback,
                                  OIDENT, owSelectCallback, OIDENT, 0);
    QTest::mousePress(view(one), Qt::LeftButton, {}, QPoint(10, 30));
    QTest::mouseRelease(view(one), Qt::LeftButton, {}, QPoint(50, 60));
    std::vector<Seen> seen = events();
    ASSERT_EQ(seen.size(), 2U);
    EXPECT_EQ(seen[0].callback, one + OIDENT);
    EXPECT_EQ(seen[0].status, 1);
    EXPECT_EQ(seen[0].x, 10);
    EXPECT_EQ(seen[0].y, 30);
    EXPECT_EQ(seen[1].callback, one);
    EXPECT_EQ(seen[1].x, 50);
    EXPECT_EQ(seen[1].y, 60);
}

// Press and release of what lies inside are not told of what lies around it.
TEST_F(Buttons, AClickInsideIsNotOneOnThePanelAround) {
    const int outer =
        owCreatePanel(panel, 0, 0, 300, 250, owVpos, OTOP, owCallback, OIDENT, owSelectCallback, OIDENT, 0);
    const int inner =
        owCreatePanel(outer, 10, 10, 100, 100, owVpos, OTOP, owCallback, OIDENT, owSelectCallback, OIDENT, 0);
    const OLIMIT limits = {0, 1, 0, 1};
    const int frame = owCreateGraphicsFrame(outer, 120, 10, 80, 80, &limits, owVpos, OTOP, owCallback, OIDENT, 0);
    const int bar = owCreateProgressBar(outer, 10, 120, 100, 20, owVpos, OTOP, 0);
    const int tabs = owCreateTabDialogueBox(outer, 120, 120, 150, 100, owVpos, OTOP, owSelectCallback, OIDENT, 0);
    owCreatePanel(tabs, 0, 0, 100, 80, owTitle, "One", 0);
    const int array = owCreateTextArray(outer, 210, 10, 80, 80, 2, 2, owVpos, OTOP, owXtext, "Digits", owYtext,
                                        "Digits", owSelectCallback, OIDENT, 0);
    struct Click {
        int handle;
        QPoint at;
        std::vector<int> heard;
    };
    const Click clicks[] = {{inner, {50, 50}, {inner + OIDENT, inner}},
                            {frame, {40, 40}, {frame}},
                            {bar, {50, 10}, {}},
                            {tabs, {20, 8}, {tabs + OIDENT}},
                            {tabs, {145, 8}, {tabs + OIDENT}},
                            {array, {3, 3}, {array + OIDENT}}};
    for (const Click& one : clicks) {
        events();
        orba::testing::click(one.handle, one.at);
        std::vector<int> heard;
        for (const Seen& event : events()) heard.push_back(event.callback);
        EXPECT_EQ(heard, one.heard) << one.handle << " at " << one.at.x();
    }
}

TEST_F(Buttons, PanelsDrawSevenBoundariesAndScroll) {
    QImage before;
    for (int type = ONOBOUNDARY; type <= OINVERSECHISEL; ++type) {
        const int one = owCreatePanel(panel, 20, 20, 100, 80, owVpos, OTOP, owType, type, owFillCol, 5, owLineBorder,
                                      OOUTEREDGE, 0);
        const QImage image = view(one)->grab().toImage();
        EXPECT_EQ(image.pixelColor(50, 40), colourOf(5));
        EXPECT_NE(image, before) << type;
        before = image;
        owEraseWidget(one);
    }
    const int scrolled = owCreatePanel(panel, 20, 20, 100, 80, owVpos, OTOP, owScrollMode, OBOTHBARS, 0);
    const int far = owCreatePushButton(scrolled, 300, 200, 50, 20, "far", owVpos, OTOP, 0);
    QApplication::processEvents();
    owSetScrollBarPos(scrolled, 10000, 10000);
    int x = 0, y = 0;
    owEnqScrollBarPos(scrolled, &x, &y);
    EXPECT_GE(x, 240);
    EXPECT_GE(y, 120);
    EXPECT_FALSE(view(far)->visibleRegion().isEmpty());
}
