#include "program_fixture.h"

#include "toolkit/families/text_family.h"

#include <QCheckBox>
#include <QClipboard>
#include <QPdfWriter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTimer>

using namespace orba;

class TextEntries : public Program {
protected:
    static int position(int handle, int property, int at) { return owEnqTextPos(handle, property, owPosition, at, 0); }
};

TEST_F(TextEntries, AMarkedLineIsShadedUntilTheTextChanges) {
    const int text = entry("one\r\ntwo\r\nthree", 120);
    auto* edit = view(text)->findChild<QTextEdit*>();
    ASSERT_TRUE(edit);
    owMarkTextLine(text, 2);
    ASSERT_EQ(edit->extraSelections().size(), 1);
    EXPECT_EQ(edit->extraSelections()[0].cursor.blockNumber(), 1);
    focus(text);
    QTest::keyClick(field(text), Qt::Key_Down);
    EXPECT_EQ(edit->extraSelections().size(), 1) << "the caret may move";
    QTest::keyClicks(field(text), "d");
    EXPECT_TRUE(edit->extraSelections().isEmpty());
    owMarkTextLine(text, 1);
    owMarkTextLine(text, 4);
    EXPECT_TRUE(edit->extraSelections().isEmpty()) << "there is no such line";
}

TEST_F(TextEntries, TypingRaisesChangeAndLeavingRaisesTheGeneralEvent) {
    const int text = entry("abc"), other = entry("", 22);
    focus(text);
    EXPECT_EQ(identifiers(), std::vector<int>{text + OIDENT});
    QTest::keyClick(field(text), Qt::Key_End);
    events();
    QTest::keyClicks(field(text), "d");
    std::vector<Seen> seen = events();
    ASSERT_EQ(seen.size(), 2U);
    EXPECT_EQ(seen[0].callback, text + 4 * OIDENT);
    EXPECT_EQ(seen[0].status, 1);
    EXPECT_EQ(seen[1].callback, text + OIDENT);
    EXPECT_EQ(::Program::text(text), "abcd");
    focus(other);
    seen = events();
    ASSERT_EQ(seen.size(), 2U);
    EXPECT_EQ(seen[0].callback, text);
    EXPECT_EQ(seen[0].text, "abcd");
    EXPECT_EQ(seen[1].callback, other + OIDENT);
    focus(text);
    focus(other); // nothing changed
    for (int id : identifiers()) EXPECT_NE(id, text);
}

TEST_F(TextEntries, ReturnInASingleLineRaisesTheGeneralEvent) {
    const int text = entry("go");
    focus(text);
    events();
    QTest::keyClick(field(text), Qt::Key_Return);
    EXPECT_EQ(identifiers(), std::vector<int>{text});
}

TEST_F(TextEntries, TheProgramsOwnChangesRaiseNothing) {
    const int text = entry("one|two", 80, ORICHEDIT);
    focus(text);
    events();
    owSetTextSetting(text, "new text", 0);
    owSetSelectedTextRange(text, 1, 4);
    owReplaceText(text, "old", 0);
    owSetFontAttribs(text, owBold, 1, 0);
    EXPECT_TRUE(events().empty());
    EXPECT_EQ(::Program::text(text), "old text");
}

TEST_F(TextEntries, BarsOfTheCreationCallAreLinesWhereThereIsRoom) {
    EXPECT_EQ(text(entry("one|two ", 60)), "one\r\ntwo");
    EXPECT_EQ(text(entry("one|two ", 22)), "one|two");
    EXPECT_EQ(text(entry("a|b", 60, ORICHEDIT)), "a\r\nb");
    const int set = entry("", 60);
    owSetTextSetting(set, "a|b", 0);
    EXPECT_EQ(text(set), "a|b");
}

TEST_F(TextEntries, RichTextOfASourceShowsNoBarsForItsLineEnds) {
    const int text = entry("{\\rtf1\\pard one | two\\par|three}", 80, ORICHEDIT);
    EXPECT_EQ(field(text)->property("plainText").toString(), "one | two\nthree");
}

TEST_F(TextEntries, AFieldWidthPartsNoLetter) {
    const int text = owCreateTextEntry(panel, 0, 0, 200, 22, "ab\xf0\x9f\x98\x80", 3, OEDIT, 0);
    EXPECT_EQ(::Program::text(text), "ab");
    owSetTextSetting(text, "\xf0\x9f\x98\x80\xf0\x9f\x98\x80", 0);
    EXPECT_EQ(::Program::text(text), "\xf0\x9f\x98\x80");
}

TEST_F(TextEntries, AnswersForPositionsAndLines) {
    const int rich = entry("", 80, ORICHEDIT), plain = entry("", 80);
    for (int handle : {rich, plain}) owSetTextSetting(handle, "one\r\n\r\nthree\nend", 0);
    struct {
        int handle, property, at, result;
    } const rows[] = {
        {rich, 0, 1, 1},  {rich, 0, 4, 1},   {rich, 0, 5, 2},  {rich, 0, 6, 3},  {rich, 0, 14, 4},  {rich, 0, 999, 4},
        {rich, 1, 0, 0},  {rich, 1, 1, 4},   {rich, 1, 2, 5},  {rich, 1, 3, 11}, {rich, 1, 4, -1},  {rich, 2, 1, 3},
        {rich, 2, 5, 0},  {rich, 2, 6, 5},   {rich, 2, 12, 3}, {rich, 5, 0, 14}, {rich, 6, 0, 17},  {plain, 1, 1, 5},
        {plain, 1, 2, 7}, {plain, 1, 3, 14}, {plain, 2, 8, 5}, {plain, 0, 8, 3}, {plain, 5, 0, 17}, {plain, 6, 0, 17},
    };
    for (const auto& row : rows)
        EXPECT_EQ(position(row.handle, row.property, row.at), row.result) << row.property << ' ' << row.at;
    owSetSelectedTextRange(rich, 7, 7);
    EXPECT_EQ(position(rich, 0, -1), 3);
    EXPECT_EQ(position(rich, 1, -1), 5);
}

TEST_F(TextEntries, SelectsReadsAndReplacesRanges) {
    for (int height : {22, 80}) {
        const int text = entry("", height);
        owSetTextSetting(text, "hello wörld", 0);
        int start = 0, end = 0;
        char buffer[64];
        owSetSelectedTextRange(text, 7, 12);
        owEnqSelectedTextRange(text, &start, &end, owLength, 64, owString, buffer, 0);
        EXPECT_EQ(start, 7);
        EXPECT_EQ(end, 12);
        EXPECT_STREQ(buffer, "wörld");
        owReplaceText(text, "moon", 0);
        EXPECT_EQ(::Program::text(text), "hello moon");
        owSetSelectedTextRange(text, 1, 0);
        owEnqSelectedTextRange(text, &start, &end, 0);
        EXPECT_EQ(start, 1);
        EXPECT_EQ(end, 11);
        owSetSelectedTextRange(text, 0, 0);
        owEnqSelectedTextRange(text, &start, &end, 0);
        EXPECT_EQ(start, end);
        owSetSelectedTextRange(text, 500, 900);
        owEnqSelectedTextRange(text, &start, &end, 0);
        EXPECT_EQ(start, 11);
        EXPECT_EQ(owExtractText(text, 1, 6, buffer, 64), 5);
        EXPECT_STREQ(buffer, "hello");
        EXPECT_EQ(owExtractWord(text, 9, buffer, 64), 7);
        EXPECT_STREQ(buffer, "moon");
    }
}

TEST_F(TextEntries, FindsWithAndWithoutCase) {
    const int text = entry("", 80, ORICHEDIT);
    owSetTextSetting(text, "if (callid == (Button1))\nC Pre Action\nbutton1", 0);
    EXPECT_EQ(owFindText(text, 0, "Button1", 0), 16);
    EXPECT_EQ(owFindText(text, 17, "Button1", 0), 39);
    EXPECT_EQ(owFindText(text, 17, "Button1", owMatchCase, 1, 0), 0);
    EXPECT_EQ(owFindText(text, 1, "pre action", 0), 28);
    EXPECT_EQ(owFindText(text, 39, "button1", 0), 39);
    EXPECT_EQ(owFindText(text, 40, "button1", 0), 0);
    EXPECT_EQ(owFindText(text, 1, "", 0), 0);
    EXPECT_EQ(owFindText(text, 99999, "if", 0), 0);
}

TEST_F(TextEntries, UndoAndRedoAreTheUsersAndAreReported) {
    for (int height : {22, 80}) {
        const int text = entry("", height);
        owSetTextSetting(text, "abc", 0);
        EXPECT_EQ(owTextUndoAction(text, OCANUNDO), 0);
        focus(text);
        QTest::keyClick(field(text), Qt::Key_End);
        QTest::keyClicks(field(text), "X");
        EXPECT_EQ(owTextUndoAction(text, OCANUNDO), 1);
        events();
        owTextUndoAction(text, OUNDO);
        EXPECT_EQ(::Program::text(text), "abc");
        bool changed = false;
        for (int id : identifiers()) changed = changed || id == text + 4 * OIDENT;
        EXPECT_TRUE(changed);
        EXPECT_EQ(owTextUndoAction(text, OCANREDO), 1);
        owTextUndoAction(text, OREDO);
        EXPECT_EQ(::Program::text(text), "abcX");
        owTextUndoAction(text, ORESETUNDO);
        EXPECT_EQ(owTextUndoAction(text, OCANUNDO), 0);
        EXPECT_EQ(::Program::text(text), "abcX");
    }
}

TEST_F(TextEntries, TheClipboardCutsCopiesAndPastes) {
    const int text = entry("", 80, ORICHEDIT);
    owSetTextSetting(text, "one two", 0);
    owSetSelectedTextRange(text, 1, 5);
    owCopyTextToClipboard(text, OCUT);
    EXPECT_EQ(::Program::text(text), "two");
    EXPECT_EQ(owEnqClipboardStatus(OPLAINTEXT), 1);
    EXPECT_EQ(QApplication::clipboard()->text(), "one ");
    owSetSelectedTextRange(text, 4, 4);
    owCopyTextToClipboard(text, OPASTE);
    EXPECT_EQ(::Program::text(text), "twoone");
    owSetSelectedTextRange(text, 1, 4);
    owCopyTextToClipboard(text, ODELETESELECTION);
    EXPECT_EQ(::Program::text(text), "one");
}

TEST_F(TextEntries, LimitsWhatIsTyped) {
    const int line = entry("", 22, OSTANDARD, 3), lines = entry("", 80, OSTANDARD, 5);
    for (int text : {line, lines}) {
        focus(text);
        QTest::keyClicks(field(text), "abcdefgh");
    }
    events();
    EXPECT_EQ(text(line), "abc");
    EXPECT_EQ(text(lines), "abcde");
    owSetTextSetting(lines, "longer than five", 0);
    EXPECT_EQ(text(lines), "longer than five"); // the program may
}

TEST_F(TextEntries, ReadOnlyAndLabelsTakeNoKeys) {
    for (int height : {22, 80}) {
        const int text = entry("fixed", height), label = entry("label", height, OSTANDARD, 0, ODISPLAY);
        owSetWidgetProp(text, owReadOnly, OON, 0);
        focus(text);
        QTest::keyClicks(field(text), "x");
        EXPECT_EQ(::Program::text(text), "fixed");
        events();
        QWidget* shown = textEntryOf(widgetOf(label))->field();
        QTest::mouseClick(height > 25 ? textEntryOf(widgetOf(label))->editor()->viewport() : shown, Qt::LeftButton);
        EXPECT_FALSE(shown->hasFocus());
        EXPECT_EQ(identifiers(), std::vector<int>{label + OIDENT});
    }
}

TEST_F(TextEntries, ASecretShowsNoCharacters) {
    const int text = entry("secret", 22, OSECURITY);
    EXPECT_EQ(::Program::text(text), "secret");
    const QString shown = textEntryOf(widgetOf(text))->lineEdit()->displayText();
    EXPECT_EQ(shown.size(), 6);
    EXPECT_FALSE(shown.contains('s'));
    focus(text);
    QTest::keyClicks(field(text), "x");
    for (const Seen& event : events()) EXPECT_EQ(event.text, "");
}

TEST_F(TextEntries, GrowsFromOneLineToManyAndBack) {
    const int text = entry("kept");
    EXPECT_TRUE(textEntryOf(widgetOf(text))->singleLine());
    owSetWidgetProp(text, owHeight, 60, 0);
    EXPECT_FALSE(textEntryOf(widgetOf(text))->singleLine());
    EXPECT_EQ(::Program::text(text), "kept");
    owSetWidgetProp(text, owHeight, 25, 0);
    EXPECT_TRUE(textEntryOf(widgetOf(text))->singleLine());
    EXPECT_EQ(::Program::text(text), "kept");
}

TEST_F(TextEntries, TakesAMegabyteAndNothing) {
    std::string lines;
    while (lines.size() < 1000000) lines += "a line of some forty characters of text\r\n";
    for (int type : {OSTANDARD, ORICHEDIT}) {
        const int text = entry("", 100, type);
        owSetTextSetting(text, lines.c_str(), 0);
        EXPECT_EQ(::Program::text(text).size(), lines.size());
        owSetTextSetting(text, "", 0);
        EXPECT_EQ(::Program::text(text), "");
        EXPECT_EQ(position(text, 5, 0), 0);
    }
    const std::string one(1000000, 'x');
    const int line = entry("", 22);
    owSetTextSetting(line, one.c_str(), 0);
    EXPECT_EQ(text(line).size(), one.size());
    EXPECT_EQ(owFindText(line, 1, "y", 0), 0);
}

TEST_F(TextEntries, LoadsAndSavesFiles) {
    QTemporaryDir folder;
    const std::string plain = folder.filePath("a.txt").toStdString(), rtf = folder.filePath("b.rtf").toStdString();
    const int text = entry("", 100, ORICHEDIT), other = entry("", 100, ORICHEDIT);
    owSetTextSetting(text, "{\\rtf1 one {\\b two}\\par three}", owEntryType, ORICHEDIT, 0);
    EXPECT_EQ(owSaveTextToFile(text, plain.c_str(), 0), 1);
    EXPECT_EQ(owSaveTextToFile(text, rtf.c_str(), 0), 1);
    EXPECT_EQ(owGetTextFromFile(other, plain.c_str(), 0), 1);
    EXPECT_EQ(::Program::text(other), "one two\r\nthree");
    EXPECT_EQ(owGetTextFromFile(other, rtf.c_str(), 0), 1);
    EXPECT_EQ(::Program::text(other), "one two\r\nthree");
    QTextCursor found = textEntryOf(widgetOf(other))->editor()->document()->find("two");
    EXPECT_GT(found.charFormat().fontWeight(), int(QFont::Medium));
    EXPECT_EQ(owGetTextFromFile(other, "/nonexistent", 0), 0);
    EXPECT_EQ(owSaveTextToFile(other, "/nonexistent/x", 0), 0);
    EXPECT_EQ(::Program::text(other), "one two\r\nthree");
}

TEST_F(TextEntries, RichTextGoesOutAndInAgain) {
    const int text = entry("", 100, ORICHEDIT), other = entry("", 100, ORICHEDIT);
    owSetTextSetting(text, "{\\rtf1 a {\\i b} c}", owEntryType, ORICHEDIT, 0);
    const std::string rtf = ::Program::text(text, ORICHEDIT);
    EXPECT_EQ(rtf.substr(0, 5), "{\\rtf");
    EXPECT_GE(position(text, 6, 0), int(rtf.size())); // a buffer of that length holds it
    owSetTextSetting(other, rtf.c_str(), owEntryType, ORICHEDIT, 0);
    EXPECT_EQ(::Program::text(other), "a b c");
    EXPECT_EQ(::Program::text(other, ORICHEDIT), rtf);
}

TEST_F(TextEntries, FontsGoToTheSelectionOfRichText) {
    const int text = entry("", 100, ORICHEDIT);
    owSetTextSetting(text, "{\\rtf1 one two}", owEntryType, ORICHEDIT, 0);
    owSetSelectedTextRange(text, 5, 8);
    owSetFontAttribs(text, owFontFace, "Courier New", owPointSize, 20, owBold, 1, 0);
    char face[64];
    int size = 0, bold = 0, underline = 1;
    owEnqFontAttribs(text, owLength, 64, owFontFace, face, owPointSize, &size, owBold, &bold, owUnderline, &underline,
                     0);
    EXPECT_STREQ(face, "Courier New");
    EXPECT_EQ(size, 20);
    EXPECT_EQ(bold, 1);
    EXPECT_EQ(underline, 0);
    owSetSelectedTextRange(text, 2, 2);
    owEnqFontAttribs(text, owBold, &bold, owPointSize, &size, 0);
    EXPECT_EQ(bold, 0);
    EXPECT_NE(size, 20);
}

TEST_F(TextEntries, ParagraphsKeepJustificationIndentsAndBullets) {
    const int text = entry("", 100, ORICHEDIT);
    owSetTextSetting(text, "one\ntwo", 0);
    owSetSelectedTextRange(text, 6, 6);
    owSetParagraphProp(text, owJustify, 1, owFirstIndent, 500, owRightIndent, 500, owLeftIndent, -500, owBullet, 1, 0);
    int justify = 9, first = 9, right = 9, left = 9, bullet = 9;
    owEnqParagraphProp(text, owJustify, &justify, owFirstIndent, &first, owRightIndent, &right, owLeftIndent, &left,
                       owBullet, &bullet, 0);
    EXPECT_EQ(justify, 1);
    EXPECT_EQ(first, 500);
    EXPECT_EQ(right, 500);
    EXPECT_NE(left, 0);
    EXPECT_EQ(bullet, 1);
    owSetSelectedTextRange(text, 1, 1);
    owEnqParagraphProp(text, owJustify, &justify, owBullet, &bullet, 0);
    EXPECT_EQ(justify, -1);
    EXPECT_EQ(bullet, 0);
    owSetSelectedTextRange(text, 6, 6);
    owSetParagraphProp(text, owBullet, 0, owLeftIndent, 0, 0);
    owEnqParagraphProp(text, owLeftIndent, &left, owBullet, &bullet, 0);
    EXPECT_EQ(left, 0);
    EXPECT_EQ(bullet, 0);
}

TEST_F(TextEntries, AddressesAreLinksWhenAsked) {
    const int text = owCreateTextEntry(panel, 10, 10, 300, 60, "", 0, OEDIT, owVpos, OTOP, owEntryType, ORICHEDIT,
                                       owAutoURL, OON, owLinkCallback, OIDENT, 0);
    owSetTextSetting(text, "http://one.example/a, and more", 0);
    QTextEdit* edit = textEntryOf(widgetOf(text))->editor();
    QApplication::processEvents();
    events();
    QTextCursor at(edit->document());
    at.setPosition(5);
    QTest::mouseClick(edit->viewport(), Qt::LeftButton, {}, edit->cursorRect(at).center());
    std::vector<Seen> seen = events();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].callback, text + 11 * OIDENT);
    EXPECT_EQ(seen[0].text, "http://one.example/a");
    at.setPosition(25);
    QTest::mouseClick(edit->viewport(), Qt::LeftButton, {}, edit->cursorRect(at).center());
    EXPECT_TRUE(events().empty());
}

TEST_F(TextEntries, ShowsItsTwoBackgrounds) {
    const int text = owCreateTextEntry(panel, 10, 10, 200, 22, "x", 0, OEDIT, owVpos, OTOP, owBack1Col, 5, owBack2Col,
                                       6, owTextCol, 2, 0);
    const int other = entry("");
    EXPECT_EQ(field(text)->palette().color(QPalette::Base), colourOf(5));
    EXPECT_EQ(field(text)->palette().color(QPalette::Text), colourOf(2));
    focus(text);
    EXPECT_EQ(field(text)->palette().color(QPalette::Base), colourOf(6));
    focus(other);
    EXPECT_EQ(field(text)->palette().color(QPalette::Base), colourOf(5));
}

TEST_F(TextEntries, ArrowKeysReportTheCaretAndTheirCode) {
    const int text = entry("", 80, ORICHEDIT);
    owSetTextSetting(text, "a\nb\nc", 0);
    focus(text);
    events();
    QTest::keyClick(field(text), Qt::Key_Down);
    QApplication::processEvents();
    EXPECT_EQ(owAction(nullptr), text + OIDENT);
    OACTION action;
    owEnqActionState(&action);
    EXPECT_EQ(action.key, OKEYDOWN);
    EXPECT_EQ(position(text, 0, -1), 2);
    EXPECT_TRUE(events().empty()); // one event for one move
}

namespace {

// Works a box that a routine opens, and closes it.
void inBox(const std::function<void(QWidget* box)>& work) {
    QTimer::singleShot(0, qApp, [work] {
        QWidget* box = QApplication::activeModalWidget();
        ASSERT_TRUE(box);
        EXPECT_TRUE(QTest::qWaitForWindowActive(box));
        work(box);
        box->close();
    });
}

QPushButton* buttonOf(QWidget* box, const char* label) {
    for (auto* button : box->findChildren<QPushButton*>())
        if (button->text().remove(u'&') == QLatin1String(label)) return button;
    ADD_FAILURE() << label;
    return nullptr;
}

} // namespace

TEST_F(TextEntries, TheFindBoxSelectsOneMatchAfterTheOther) {
    const int text = entry("", 80, ORICHEDIT);
    owSetTextSetting(text, "One two one\ntwo one", 0);
    char wanted[64] = "";
    int starts[4] = {};
    QString message;
    inBox([&](QWidget* box) {
        QTest::keyClicks(box->findChild<QLineEdit*>(), "one");
        for (int& start : starts) {
            QTest::keyClick(box, Qt::Key_Return);
            int end = 0;
            owEnqSelectedTextRange(text, &start, &end, 0);
        }
        box->findChild<QCheckBox*>()->setChecked(true);
        QTest::mouseClick(buttonOf(box, "Find Next"), Qt::LeftButton);
    });
    EXPECT_EQ(owFindTextDialogue(text, wanted, sizeof wanted), 1);
    EXPECT_STREQ(wanted, "one");
    EXPECT_EQ(starts[0], 1);
    EXPECT_EQ(starts[1], 9);
    EXPECT_EQ(starts[2], 17);
    EXPECT_EQ(starts[3], 1); // round again
    int start = 0, end = 0;
    owEnqSelectedTextRange(text, &start, &end, 0);
    EXPECT_EQ(start, 9); // "One" is another word now
    inBox([](QWidget* box) {
        QTest::keyClicks(box->findChild<QLineEdit*>(), "three");
        QTest::keyClick(box, Qt::Key_Return);
    });
    EXPECT_EQ(owFindTextDialogue(text, wanted, sizeof wanted), 0);
    EXPECT_STREQ(wanted, "three");
}

TEST_F(TextEntries, TheReplaceBoxReplacesOneOrAll) {
    const int text = entry("", 80);
    owSetTextSetting(text, "aa b aa b aa", 0);
    char wanted[64];
    const auto work = [&](const char* replacement, std::initializer_list<const char*> buttons) {
        owSetSelectedTextRange(text, 1, 1);
        inBox([&](QWidget* box) {
            const auto lines = box->findChildren<QLineEdit*>();
            lines[0]->setText("aa");
            lines[1]->setText(replacement);
            for (const char* label : buttons) QTest::mouseClick(buttonOf(box, label), Qt::LeftButton);
        });
        owReplaceTextDialogue(text, wanted, sizeof wanted);
    };
    work("c", {"Find Next", "Replace"});
    EXPECT_EQ(::Program::text(text), "c b aa b aa");
    work("aaa", {"Replace All"}); // a replacement that holds what is replaced
    EXPECT_EQ(::Program::text(text), "c b aaa b aaa");
    work("", {"Replace All"});
    EXPECT_EQ(::Program::text(text), "c b a b a");
}

TEST_F(TextEntries, PrintsToPdf) {
    QTemporaryDir folder;
    const int text = entry("", 80, ORICHEDIT);
    owSetTextSetting(text, "{\\rtf1 one {\\b two}\\par three}", owEntryType, ORICHEDIT, 0);
    const TextEntry& shown = *textEntryOf(widgetOf(text));
    EXPECT_EQ(shown.printable(10, false)->toPlainText(), "one two\nthree");
    owSetSelectedTextRange(text, 5, 8);
    EXPECT_EQ(shown.printable(10, true)->toPlainText(), "two");
    QPdfWriter printer(folder.filePath("a.pdf"));
    shown.printable(12, false)->print(&printer);
    QFile file(folder.filePath("a.pdf"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.read(4), "%PDF");
    EXPECT_EQ(shown.editor()->document()->defaultFont(), shown.field()->font()); // the screen keeps its size
}

TEST_F(TextEntries, ALongTextShowsItsBeginningWhateverIsSetLater) {
    const std::string longText(200, 'x');
    const int text = entry(longText.c_str());
    auto* line = qobject_cast<QLineEdit*>(field(text));
    ASSERT_TRUE(line);
    EXPECT_EQ(line->cursorPosition(), 0);
    owSetWidgetProp(text, owTextCol, 5, 0);
    EXPECT_EQ(line->cursorPosition(), 0);
    owSetWidgetProp(text, owReadOnly, 1, owTabList, 1, 0);
    EXPECT_EQ(line->cursorPosition(), 0);
}
