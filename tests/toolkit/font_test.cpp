#include "program_fixture.h"

#include "toolkit/families/text_family.h"
#include "toolkit/views/panel.h"

#include <QFontInfo>

using namespace orba;

class Fonts : public Program {
protected:
    static std::string face(int handle) {
        char buffer[64] = "";
        owEnqFontAttribs(handle, owLength, 64, owFontFace, buffer, 0);
        return buffer;
    }
};

TEST_F(Fonts, NamesOfOtherSystemsFindTheirLikesAndAreToldAgain) {
    const int button = owCreatePushButton(panel, 10, 10, 88, 24, "x", owVpos, OTOP, 0);
    const int line = entry("x"), lines = entry("x", 80), rich = entry("x", 80, ORICHEDIT);
    for (int handle : {button, line, lines, rich}) {
        const auto shown = [&] {
            TextEntry* entry = textEntryOf(widgetOf(handle));
            return entry ? entry->field()->font() : view(handle)->font();
        };
        EXPECT_EQ(face(handle), "MS Sans Serif");
        owSetFontAttribs(handle, owFontFace, "Courier New", owPointSize, 12, owItalic, 1, 0);
        EXPECT_EQ(face(handle), "Courier New");
        EXPECT_TRUE(QFontInfo(shown()).fixedPitch());
        EXPECT_EQ(shown().pointSize(), 12);
        EXPECT_TRUE(shown().italic());
        owSetFontAttribs(handle, owFontFace, "MS Sans Serif", owPointSize, 10, owItalic, 0, 0);
        EXPECT_EQ(face(handle), "MS Sans Serif");
        EXPECT_EQ(QFontInfo(shown()).family(), QFontInfo(QApplication::font()).family());
        EXPECT_EQ(shown().pointSizeF(), QApplication::font().pointSizeF()); // so that all widgets agree
        owSetFontAttribs(handle, owFontFace, "No Such Face", 0);
        EXPECT_EQ(face(handle), "No Such Face");
        owSetFontAttribs(handle, owPointSize, -5, 0);
        EXPECT_GT(shown().pointSizeF(), 0);
    }
}

TEST_F(Fonts, AFontOutlivesTheChangeBetweenOneLineAndMany) {
    const int text = entry("x");
    owSetFontAttribs(text, owFontFace, "Courier New", owPointSize, 14, owBold, 1, 0);
    owSetWidgetProp(text, owHeight, 80, 0);
    EXPECT_EQ(face(text), "Courier New");
    EXPECT_EQ(textEntryOf(widgetOf(text))->field()->font().pointSize(), 14);
    EXPECT_TRUE(textEntryOf(widgetOf(text))->field()->font().bold());
}

TEST_F(Fonts, TheTitleOfAPanelKeepsItsFontToItself) {
    const int box = owCreatePanel(panel, 10, 10, 200, 100, owVpos, OTOP, owTitle, "Title", 0);
    const int button = owCreatePushButton(box, 10, 30, 88, 24, "x", owVpos, OTOP, 0);
    const QFont before = view(button)->font();
    owSetFontAttribs(box, owFontFace, "Courier New", owPointSize, 20, owBold, 1, 0);
    EXPECT_EQ(view(button)->font(), before);
    EXPECT_EQ(face(box), "Courier New");
    EXPECT_EQ(static_cast<Panel*>(view(box))->look().titleFont.pointSize(), 20);
    int bold = 0, size = 0;
    owEnqFontAttribs(box, owBold, &bold, owPointSize, &size, 0);
    EXPECT_EQ(bold, 1);
    EXPECT_EQ(size, 20);
}

TEST_F(Fonts, MeasureTextsInPixels) {
    const int plain = owEnqTextLength("mmmm", 0), large = owEnqTextLength("mmmm", owPointSize, 30, 0);
    EXPECT_GT(plain, 10);
    EXPECT_GT(large, plain);
    EXPECT_EQ(owEnqTextLength("iiii", owFontFace, "Courier New", 0),
              owEnqTextLength("mmmm", owFontFace, "Courier New", 0));
    EXPECT_EQ(owEnqTextLength("", 0), 0);
}
