// A text entry as an editor of code: what Return does, brackets, marks, histories of several texts, words that are
// offered.
#include "program_fixture.h"

#include "toolkit/families/text_family.h"
#include "toolkit/testing/robot.h"
#include "toolkit/views/text/code_lines.h"

#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QMimeData>
#include <QTest>
#include <QTextBlock>
#include <QToolTip>
#include <QWheelEvent>

using namespace orba;
using namespace orba::testing;

namespace {

constexpr int ZOOMED = 4711;

class CodeEntry : public Program {
protected:
    void SetUp() override {
        Program::SetUp();
        ASSERT_EQ(owLoadSyntaxKeywords(ORBA_SOURCE_DIR "/data/defaults.syn"), 1);
        text = owCreateTextEntry(panel, 0, 0, 380, 260, "", 2147483646, OEDIT, owEntryType, ORICHEDIT, owWordWrap, 0,
                                 owChangeCallback, OIDENT, 0);
        owShowCodeView(text, 3, ZOOMED);
        setLanguage(2);
    }
    void setLanguage(int language) { owSetSyntaxHighlighting(text, 1, owLanguage, language, 0); }

    std::string code() const {
        std::string out = entry().text(false);
        std::erase(out, '\r');
        return out;
    }
    TextEntry& entry() const { return *textEntryOf(widgetOf(text)); }
    QTextEdit* edit() const { return entry().editor(); }

    // Types with a bar at the caret: "a|b".
    void load(std::string marked) {
        const size_t caret = marked.find('|');
        marked.erase(caret, 1);
        owSetTextSetting(text, marked.c_str(), 0);
        owSetSelectedTextRange(text, static_cast<int>(caret) + 1, static_cast<int>(caret) + 1);
        focus(text);
    }
    std::string withCaret() const {
        std::string out = code();
        int start = 0, end = 0;
        entry().selection(start, end);
        return out.insert(static_cast<size_t>(start) - 1, "|");
    }

    // What is marked with a background or an underline, but for whole lines.
    std::vector<QString> marked() const {
        settle();
        std::vector<QString> words;
        for (const auto& mark : edit()->extraSelections())
            if (!mark.format.boolProperty(QTextFormat::FullWidthSelection)) words.push_back(mark.cursor.selectedText());
        return words;
    }

    int text = 0;
};

struct ReturnCase {
    const char* what;
    int language;
    const char* before;
    const char* after;
};

TEST_F(CodeEntry, ReturnIndentsAsTheCodeDoes) {
    const ReturnCase cases[] = {
        {"as the line above", 2, "   x = 1|", "   x = 1\n   |"},
        {"in the middle", 2, "   x|  = 1", "   x\n   |= 1"},
        {"deeper in a block", 2, "if (a > 0) then|", "if (a > 0) then\n   |"},
        {"a block with a name", 2, "outer: do i = 1, n|", "outer: do i = 1, n\n   |"},
        {"an if of one line is none", 2, "if (a > 0) x = 1|", "if (a > 0) x = 1\n|"},
        {"a do with a label is none", 2, "      do 10 i = 1, n|", "      do 10 i = 1, n\n      |"},
        {"words in comments and strings are none", 2, "x = 1 ! do|", "x = 1 ! do\n|"},
        {"an end goes below its start", 2, "do i = 1, n\n   x = 1\n   end do|", "do i = 1, n\n   x = 1\nend do\n|"},
        {"an end is completed", 2, "if (a) then\n   x = 1\n   end|", "if (a) then\n   x = 1\nend if\n|"},
        {"in capitals too", 2, "SELECT CASE (i)\n   END|", "SELECT CASE (i)\nEND SELECT\n|"},
        {"else divides", 2, "if (a) then\n   x = 1\n   else|", "if (a) then\n   x = 1\nelse\n   |"},
        {"inner blocks are passed over", 2, "do\n   if (a) then\n   end if\n   end do|",
         "do\n   if (a) then\n   end if\nend do\n|"},
        {"the end of a program stays", 2, "   end|", "   end\n   |"},
        {"a brace in C", 3, "if (a) {|", "if (a) {\n   |"},
        {"its partner", 3, "if (a) {\n   x = 1;\n   }|", "if (a) {\n   x = 1;\n}\n|"},
        {"no words in C", 3, "do|", "do\n|"},
        {"columns of the fixed form", 1, "      x = 1|", "      x = 1\n      |"},
    };
    for (const ReturnCase& row : cases) {
        SCOPED_TRACE(row.what);
        setLanguage(row.language);
        load(row.before);
        key(0, Qt::Key_Return);
        EXPECT_EQ(withCaret(), row.after);
        entry().undo();
        std::string before = row.before;
        before.erase(before.find('|'), 1);
        EXPECT_EQ(code(), before) << "one step of the history";
    }
}

TEST_F(CodeEntry, MatchingBracketsAreMarked) {
    struct {
        const char* what;
        const char* code;
        std::vector<QString> marked;
    } const cases[] = {
        {"behind the opening one", "f(|a, (b))", {"(", ")"}},
        {"at the closing one", "f(a, (b)|)", {")", "("}},
        {"over lines", "f(|a, &\n  b)", {"(", ")"}},
        {"none beside the caret", "f(a|b)", {}},
        {"one alone", "f(|a", {"("}},
        {"none in strings", "f(|')')", {"(", ")"}},
        {"none in comments", "f(| ! )\n)", {"(", ")"}},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        load(row.code);
        EXPECT_EQ(marked(), row.marked);
    }
}

TEST_F(CodeEntry, TenThousandOpenBracketsAreNoHindrance) {
    std::string code = "f(|";
    for (int i = 0; i < 10000; ++i) code += "\n((";
    load(code);
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 20; ++i) key(0, i % 2 ? Qt::Key_Left : Qt::Key_Right);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(4));
}

TEST_F(CodeEntry, AMarkHoldsUntilItsLineIsEdited) {
    load("one\ntwo\nthree|");
    owMarkTextFinding(text, 2, 1, 0, 1, "two is wrong");
    owMarkTextFinding(text, 3, 2, 2, 0, "hr is odd");
    EXPECT_EQ(marked(), (std::vector<QString>{"two", "hr"}));
    owSetSelectedTextRange(text, 1, 1);
    type(text, "x");
    EXPECT_EQ(marked(), (std::vector<QString>{"two", "hr"}));
    key(0, Qt::Key_Return); // lines move with their marks
    EXPECT_EQ(marked(), (std::vector<QString>{"two", "hr"}));
    owSetSelectedTextRange(text, 8, 8);
    type(text, "x");
    EXPECT_EQ(code(), "x\none\ntxwo\nthree");
    EXPECT_EQ(marked(), std::vector<QString>{"hr"});
    EXPECT_EQ(owEnqTextFindings(text), 1);
    owMarkTextFinding(text, 0, 0, 0, 0, "");
    EXPECT_EQ(owEnqTextFindings(text), 0);
}

TEST_F(CodeEntry, FindingsBeyondTheTextAreBroughtInside) {
    load("ab\n|");
    const int places[][2] = {{1, 99}, {2, 1}, {9, 1}, {1, -4}};
    for (const auto& place : places) owMarkTextFinding(text, place[0], place[1], 0, 1, "?");
    EXPECT_EQ(owEnqTextFindings(text), 3) << "no mark for a line that is not there";
}

TEST_F(CodeEntry, ABubbleTellsWhatIsWrong) {
    load("one two|");
    owMarkTextFinding(text, 1, 5, 0, 1, "two is wrong");
    QTextCursor at(edit()->document());
    at.setPosition(5);
    const QPoint point = edit()->cursorRect(at).center();
    QHelpEvent help(QEvent::ToolTip, point, edit()->viewport()->mapToGlobal(point));
    QApplication::sendEvent(edit()->viewport(), &help);
    EXPECT_EQ(QToolTip::text(), u"two is wrong");
    QToolTip::hideText();
}

TEST_F(CodeEntry, EachTextHasItsOwnHistory) {
    load("|");
    EXPECT_EQ(owShowTextDocument(text, 7), 0);
    type(text, "seven");
    EXPECT_EQ(owShowTextDocument(text, 8), 0);
    EXPECT_EQ(code(), "");
    setLanguage(2);
    type(text, "eight");
    EXPECT_EQ(owShowTextDocument(text, 7), 1);
    EXPECT_EQ(code(), "seven");
    entry().undo();
    EXPECT_EQ(code(), "");
    EXPECT_EQ(owShowTextDocument(text, 8), 1);
    EXPECT_EQ(code(), "eight");
    owForgetTextDocuments(text);
    EXPECT_EQ(code(), "eight");
    EXPECT_EQ(owShowTextDocument(text, 7), 0);
    for (int number = 100; number < 300; ++number) owShowTextDocument(text, number);
    EXPECT_EQ(owShowTextDocument(text, 299), 1);
    EXPECT_EQ(owShowTextDocument(text, 100), 0) << "only the last ones are kept";
}

TEST_F(CodeEntry, TheWheelWithCtrlIsTold) {
    load("one|");
    identifiers();
    QWidget* view = edit()->viewport();
    QWheelEvent turn(QPointF(20, 20), view->mapToGlobal(QPointF(20, 20)), QPoint(), QPoint(0, 120), Qt::NoButton,
                     Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view, &turn);
    EXPECT_EQ(identifiers(), std::vector<int>{ZOOMED});
}

TEST_F(CodeEntry, TheCaretsPlaceIsTold) {
    load("one\ntwo|");
    const int x = owEnqTextPos(text, 7, owPosition, 5, 0), y = owEnqTextPos(text, 8, owPosition, 5, 0);
    EXPECT_GT(x, 20) << "behind the line numbers";
    EXPECT_GT(owEnqTextPos(text, 7, owPosition, 6, 0), x);
    EXPECT_EQ(owEnqTextPos(text, 8, owPosition, 1, 0) + owEnqTextPos(text, 9, 0), y);
    EXPECT_GT(owEnqTextPos(text, 7, owPosition, -1, 0), owEnqTextPos(text, 7, owPosition, 6, 0)) << "of the caret";
}

TEST_F(CodeEntry, WhatIsPastedComesPlain) {
    load("|");
    QApplication::clipboard()->setMimeData([] {
        auto* data = new QMimeData;
        data->setHtml("<b>bold</b>");
        data->setText("bold");
        return data;
    }());
    owCopyTextToClipboard(text, OPASTE);
    EXPECT_EQ(code(), "bold");
    QTextCursor at(edit()->document());
    at.setPosition(2);
    EXPECT_LT(at.charFormat().fontWeight(), QFont::Bold);
}

// ------------------------------------------------------------------------------------------------ words offered

constexpr char WORDS[] = "owDrawWidget\tdraws\nowDrawWindow\towns\nmyDraw\nnothing";

TEST_F(CodeEntry, OfferedWordsNarrowAndAreTaken) {
    load("owDr|");
    owOfferWords(text, 4, WORDS, 1);
    ASSERT_TRUE(owEnqWordsOffered(text));
    EXPECT_EQ(entry().words()->topLevelItemCount(), 2);
    type(text, "aw");
    EXPECT_EQ(entry().words()->topLevelItemCount(), 2);
    key(0, Qt::Key_Down);
    key(0, Qt::Key_Return);
    EXPECT_EQ(withCaret(), "owDrawWindow|");
    EXPECT_FALSE(owEnqWordsOffered(text));
    entry().undo();
    EXPECT_EQ(code(), "owDraw");
}

TEST_F(CodeEntry, OfferedWordsAreNeverInTheWay) {
    struct {
        const char* what;
        Qt::Key key;
        const char* after;
    } const cases[] = {
        {"Esc only closes", Qt::Key_Escape, "owDr|"},
        {"Return is the text's while nothing is chosen", Qt::Key_Return, "owDr\n|"},
        {"a letter that fits nothing closes", Qt::Key_Q, "owDrq|"},
        {"an arrow sideways", Qt::Key_Left, "owD|r"},
        {"a sign", Qt::Key_Plus, "owDr+|"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        load("owDr|");
        owOfferWords(text, 4, WORDS, 0);
        ASSERT_TRUE(owEnqWordsOffered(text));
        QTest::keyClick(edit(), row.key);
        EXPECT_EQ(withCaret(), row.after);
        EXPECT_FALSE(owEnqWordsOffered(text));
    }
}

TEST_F(CodeEntry, WordsAreOfferedOnlyWhenSomeFit) {
    load("xyz|");
    owOfferWords(text, 3, WORDS, 1);
    EXPECT_FALSE(owEnqWordsOffered(text));
    load("nothing|");
    owOfferWords(text, 7, WORDS, 1);
    EXPECT_FALSE(owEnqWordsOffered(text)) << "the word is there already";
}

} // namespace
