// CodeAssist by real keys: the signature above the caret, and the words that are offered.
#include "desk.h"

#include "editing/code_editor.h"
#include "editing/commands.h"
#include "editing/editor_window.h"
#include "editing/text_view.h"
#include "project/code_stores.h"

#include <QApplication>
#include <QTest>
#include <QTextEdit>

namespace robot = orba::testing;

namespace {

class Assist : public testing::Test {
protected:
    Assist() {
        showCode("Initialization", nullptr, 1, 1);
        robot::focus(codeText());
        desk.run();
    }
    void type(const char* text) {
        for (const char* letter = text; *letter; ++letter) {
            const char one[] = {*letter, 0};
            robot::type(0, one);
            desk.run();
        }
    }
    void press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        robot::key(0, key, held);
        desk.run();
    }
    static QTextEdit* edit() { return robot::viewOf(codeText())->findChild<QTextEdit*>(); }
    // The display beside the code that holds a signature; null for none.
    static QTextEdit* popup() {
        for (QTextEdit* one : robot::viewOf(editor.body)->findChildren<QTextEdit*>())
            if (one != edit() && one->isVisible() && one->toPlainText().startsWith(u'(')) return one;
        return nullptr;
    }
    static QString boldPart() {
        QString bold;
        const QTextEdit* text = popup();
        for (int at = 0; text && at < text->document()->characterCount() - 1; ++at) {
            QTextCursor letter(text->document());
            letter.setPosition(at + 1);
            if (letter.charFormat().fontWeight() >= QFont::Bold) bold += text->document()->characterAt(at);
        }
        return bold;
    }

    Desk desk;
};

TEST_F(Assist, TheSignatureFollowsTheArguments) {
    type("call oEnqRGB");
    press(Qt::Key_Escape);
    EXPECT_FALSE(popup());
    type("(");
    ASSERT_TRUE(popup());
    EXPECT_EQ(popup()->toPlainText(), u"(index: Integer, rgb: ORGBSTY)");
    EXPECT_EQ(boldPart(), u"index: Integer");
    type("1,");
    EXPECT_EQ(boldPart(), u"rgb: ORGBSTY");
    press(Qt::Key_Left);
    EXPECT_EQ(boldPart(), u"index: Integer");
    press(Qt::Key_End);
    type("c,");
    EXPECT_EQ(boldPart(), u"") << "past the last one";
    type(")");
    EXPECT_FALSE(popup());
    EXPECT_EQ(linesOf(codeText()), "call oEnqRGB(1,c,)");
    EXPECT_EQ(owEnqActiveWidget(), codeText());
}

TEST_F(Assist, TheSignatureGoesWithTheLineAndTheInput) {
    desk.place(PLACE_BUTTON, desk.panel, 20, 20); // which the click below leaves
    showCode("Initialization", nullptr, 1, 1);
    robot::focus(codeText());
    desk.run();
    type("call owManage(");
    EXPECT_TRUE(popup());
    press(Qt::Key_Return);
    EXPECT_FALSE(popup());
    press(Qt::Key_Up);
    press(Qt::Key_End);
    EXPECT_TRUE(popup());
    desk.click(desk.panel, 300, 300);
    EXPECT_FALSE(popup());
}

TEST_F(Assist, NothingShowsWhileThePreferenceIsOff) {
    preferences.codeAssist = 0;
    type("call owManage(");
    EXPECT_FALSE(popup());
    EXPECT_FALSE(owEnqWordsOffered(codeText()));
    preferences.codeAssist = 1;
}

TEST_F(Assist, WordsComeAfterThreeLettersAndTypingGoesOn) {
    type("call ow");
    EXPECT_FALSE(owEnqWordsOffered(codeText()));
    type("D");
    EXPECT_TRUE(owEnqWordsOffered(codeText()));
    type("rawWin");
    EXPECT_TRUE(owEnqWordsOffered(codeText()));
    press(Qt::Key_Tab);
    EXPECT_EQ(linesOf(codeText()), "call owDrawWindow");
    EXPECT_FALSE(owEnqWordsOffered(codeText()));
    type("(1,1)");
    press(Qt::Key_Return);
    type("owD");
    press(Qt::Key_Return);
    EXPECT_EQ(linesOf(codeText()), "call owDrawWindow(1,1)\nowD\n") << "Return is the text's own";
}

TEST_F(Assist, CtrlSpaceOffersTheNamesOfTheProject) {
    desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    showCode("Initialization", nullptr, 1, 1);
    robot::focus(codeText());
    desk.run();
    type("Fo");
    press(Qt::Key_Space, Qt::ControlModifier);
    ASSERT_TRUE(owEnqWordsOffered(codeText()));
    type("rm1_B");
    press(Qt::Key_Return);
    EXPECT_EQ(linesOf(codeText()), "Form1_Button1");
    EXPECT_TRUE(codeEditing.codeModified);
}

TEST_F(Assist, KeywordsAreOfferedInsideACall) {
    type("call owSetListEntry(1,2,owStr");
    EXPECT_TRUE(owEnqWordsOffered(codeText()));
    press(Qt::Key_Tab);
    EXPECT_EQ(linesOf(codeText()), "call owSetListEntry(1,2,owString");
}

TEST_F(Assist, NoWordsInCommentsAndStrings) {
    type("! owDraw");
    EXPECT_FALSE(owEnqWordsOffered(codeText()));
    press(Qt::Key_Return);
    type("x = 'owDraw");
    EXPECT_FALSE(owEnqWordsOffered(codeText()));
}

} // namespace
