#include "program_fixture.h"

#include "toolkit/families/text_family.h"
#include "toolkit/views/text/syntax_highlighter.h"

#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextLayout>

using namespace orba;

class Syntax : public Program {
protected:
    void SetUp() override {
        Program::SetUp();
        ASSERT_EQ(owLoadSyntaxKeywords(ORBA_SOURCE_DIR "/data/defaults.syn"), 1);
    }

    // Category whose colour the first character of `word` has; -1 for none.
    static int categoryOf(const QTextDocument& document, const char* word) {
        QTextCursor found = document.find(QString::fromUtf8(word), 0, QTextDocument::FindCaseSensitively);
        if (found.isNull()) return -2;
        const int at = found.selectionStart() - found.block().position();
        for (const auto& range : found.block().layout()->formats())
            if (range.start <= at && at < range.start + range.length)
                for (int i = 1; i < syntaxCategoryCount; ++i)
                    if (range.format.foreground().color() == QColor(i, i, i)) return i;
        return 0;
    }

    // A category's colour here is its number, so that a test can tell them apart.
    static void paint(QTextDocument& document, SyntaxLanguage language) {
        for (int i = 0; i < syntaxCategoryCount; ++i) syntaxTree().fonts[std::size_t(i)].colour = i;
        syntaxChanged();
        auto* highlighter =
            new SyntaxHighlighter(&document, language, [](int colour) { return QColor(colour, colour, colour); });
        highlighter->rehighlight();
    }

    struct Word {
        const char* word;
        SyntaxCategory category;
    };
    static void expectWords(QTextDocument& document, std::initializer_list<Word> words) {
        for (const Word& row : words) EXPECT_EQ(categoryOf(document, row.word), int(row.category)) << row.word;
    }
};

TEST_F(Syntax, ColoursFortran90) {
    QTextDocument document;
    document.setPlainText(
        "SUBROUTINE t ! note if\n  integer :: my1 = 42\n  x = 1.5d-3 + 'it''s' // \"two\"\n"
        "  call owCreatePanel(form, owExpand=OON)\n  if (a.eq.1.and.b) stop\n  call oMoveTo2D(1.0, 2.0)");
    paint(document, SyntaxLanguage::Fortran90);
    expectWords(document, {{"SUBROUTINE", SyntaxCategory::Language},
                           {"note if", SyntaxCategory::Comments},
                           {"integer", SyntaxCategory::Types},
                           {"my1", SyntaxCategory::Plain},
                           {"42", SyntaxCategory::Numerics},
                           {"1.5d-3", SyntaxCategory::Numerics},
                           {"'it", SyntaxCategory::SingleQuoted},
                           {"\"two", SyntaxCategory::DoubleQuoted},
                           {"owCreatePanel", SyntaxCategory::Widgets},
                           {"owExpand", SyntaxCategory::Optionals},
                           {"OON", SyntaxCategory::Parameters},
                           {"oMoveTo2D", SyntaxCategory::Base},
                           {"stop", SyntaxCategory::Language}});
}

TEST_F(Syntax, ColoursFortran77CommentsByColumn) {
    QTextDocument document;
    document.setPlainText("C a comment\n      CALL BUTTON(1)\n* other");
    paint(document, SyntaxLanguage::Fortran77);
    expectWords(document, {{"a comment", SyntaxCategory::Comments},
                           {"CALL", SyntaxCategory::Language},
                           {"BUTTON", SyntaxCategory::Widgets},
                           {"other", SyntaxCategory::Comments}});
}

TEST_F(Syntax, ColoursCWithCommentsOverLines) {
    QTextDocument document;
    document.setPlainText("#include <x.h>\nint f() { /* one\ntwo */ return 0x1F; } // rest\nchar c = '\\''; IF");
    paint(document, SyntaxLanguage::C);
    expectWords(document, {{"#include", SyntaxCategory::Preprocessor},
                           {"int", SyntaxCategory::Types},
                           {"one", SyntaxCategory::Comments},
                           {"two", SyntaxCategory::Comments},
                           {"return", SyntaxCategory::Language},
                           {"0x1F", SyntaxCategory::Numerics},
                           {"rest", SyntaxCategory::Comments},
                           {"'\\'", SyntaxCategory::SingleQuoted},
                           {"IF", SyntaxCategory::Plain}}); // C tells case apart
}

TEST_F(Syntax, ColouringIsNoChangeOfTheText) {
    const int text = entry("", 100, ORICHEDIT);
    owSetTextSetting(text, "integer :: i\r\n! note\r\nend", 0);
    focus(text);
    events();
    owSetSyntaxHighlighting(text, OON, owLanguage, 2, 0);
    QTest::qWait(50); // colouring comes a moment later
    owSetSyntaxFont(5, owBold, 0, 0);
    QTest::qWait(50);
    EXPECT_EQ(identifiers(), std::vector<int>{});
    EXPECT_EQ(owTextUndoAction(text, OCANUNDO), 0);
    const QTextDocument& document = *textEntryOf(widgetOf(text))->editor()->document();
    EXPECT_FALSE(document.firstBlock().layout()->formats().isEmpty());
    owSetSyntaxHighlighting(text, OOFF, 0);
    QTest::qWait(50);
    EXPECT_TRUE(document.firstBlock().layout()->formats().isEmpty());
    EXPECT_TRUE(events().empty());
}

TEST_F(Syntax, KeepsAttributesAndKeywordsInItsFile) {
    QTemporaryDir folder;
    const std::string path = folder.filePath("a.syn").toStdString();
    owSetSyntaxFont(5, owFontFace, "Courier New", owTextCol, 0x01123456, owBold, 1, owItalic, 1, owUnderline, 1,
                    owStrikeout, 1, 0);
    owSetSyntaxFont(0, owTextCol, 3, 0);
    const SyntaxTree before = syntaxTree();
    ASSERT_EQ(owSaveSyntaxKeywords(path.c_str()), 1);
    owInitializeSyntaxTree();
    EXPECT_EQ(syntaxCategoryOf("integer", SyntaxLanguage::Fortran90), SyntaxCategory::Plain);
    ASSERT_EQ(owLoadSyntaxKeywords(path.c_str()), 1);
    EXPECT_EQ(syntaxTree().fonts, before.fonts);
    EXPECT_EQ(syntaxTree().fortran, before.fortran);
    EXPECT_EQ(syntaxTree().c, before.c);
    char face[64];
    int colour = 0, bold = 0, underline = 0;
    owEnqSyntaxFont(5, owLength, 64, owFontFace, face, owTextCol, &colour, owBold, &bold, owUnderline, &underline, 0);
    EXPECT_STREQ(face, "Courier New");
    EXPECT_EQ(colour, 0x01123456);
    EXPECT_EQ(bold, 1);
    EXPECT_EQ(underline, 1);
}

TEST_F(Syntax, RefusesFilesThatAreNone) {
    EXPECT_EQ(owLoadSyntaxKeywords("/nonexistent/x.syn"), 0);
    EXPECT_EQ(owLoadSyntaxKeywords(ORBA_SOURCE_DIR "/CMakeLists.txt"), 0);
    EXPECT_EQ(owSaveSyntaxKeywords("/nonexistent/x.syn"), 0);
    EXPECT_EQ(syntaxCategoryOf("integer", SyntaxLanguage::Fortran90), SyntaxCategory::Types);
}
