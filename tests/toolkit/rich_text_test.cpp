#include "program_fixture.h"

#include "toolkit/views/text/program_text.h"
#include "toolkit/views/text/rtf.h"

#include <QTextBlock>
#include <QTextList>

using namespace orba;

namespace {

const QByteArray sample =
    R"({\rtf1\ansi\deff0{\fonttbl{\f0\fnil Sans;}{\f1 Courier New;}}{\colortbl ;\red255\green0\blue0;\red0\green0\blue255;}
\pard\qc\f0\fs28\b Title\b0\par
\pard\ql\fs20 plain {\i slanted} {\ul under}{\cf1 red} \f1 code\f0  caf\'e9 \u8364? done\par
{\*\pn\pnlvlblt\pnf0{\pntxtb\'b7}}\fi-360\li360 one\par
two\par
\pard\li500\fi250\ri100 indented\par
\pard\qr {\field{\*\fldinst HYPERLINK "http://a.example"}{\fldrslt link}}\par
\pard\qj last})";

QTextCharFormat formatOf(const QTextDocument& document, const char* word) {
    QTextCursor found = document.find(QString::fromUtf8(word));
    EXPECT_FALSE(found.isNull()) << word;
    return found.charFormat();
}

void check(const QTextDocument& document) {
    EXPECT_EQ(document.toPlainText(),
              QString::fromUtf8("Title\nplain slanted underred code café € done\none\ntwo\nindented\nlink\nlast"));
    EXPECT_EQ(formatOf(document, "Title").fontWeight(), int(QFont::Bold));
    EXPECT_EQ(formatOf(document, "Title").fontPointSize(), 14);
    EXPECT_NE(formatOf(document, "plain").fontWeight(), int(QFont::Bold));
    EXPECT_TRUE(formatOf(document, "slanted").fontItalic());
    EXPECT_TRUE(formatOf(document, "under").fontUnderline());
    EXPECT_EQ(formatOf(document, "red").foreground().color(), QColor(255, 0, 0));
    EXPECT_EQ(formatOf(document, "code").fontFamilies().toStringList().value(0), "Courier New");
    EXPECT_EQ(formatOf(document, "link").anchorHref(), "http://a.example");
    const QTextBlock first = document.firstBlock();
    EXPECT_TRUE(first.blockFormat().alignment() & Qt::AlignHCenter);
    EXPECT_FALSE(document.findBlockByNumber(1).textList());
    ASSERT_TRUE(document.findBlockByNumber(2).textList());
    EXPECT_EQ(document.findBlockByNumber(2).textList(), document.findBlockByNumber(3).textList());
    const QTextBlockFormat indented = document.findBlockByNumber(4).blockFormat();
    EXPECT_FALSE(document.findBlockByNumber(4).textList());
    EXPECT_NEAR(indented.leftMargin(), 500 * pixelsPerTwip, 0.5);
    EXPECT_NEAR(indented.textIndent(), 250 * pixelsPerTwip, 0.5);
    EXPECT_NEAR(indented.rightMargin(), 100 * pixelsPerTwip, 0.5);
    EXPECT_TRUE(document.findBlockByNumber(5).blockFormat().alignment() & Qt::AlignRight);
    EXPECT_TRUE(document.findBlockByNumber(6).blockFormat().alignment() & Qt::AlignJustify);
}

void read(QTextDocument& document, const QByteArray& rtf) {
    QTextCursor cursor(&document);
    insertRtf(cursor, rtf, QTextCharFormat());
}

} // namespace

class RichText : public Program {};

TEST_F(RichText, ReadsCharactersParagraphsBulletsAndLinks) {
    QTextDocument document;
    read(document, sample);
    check(document);
}

TEST_F(RichText, WritesWhatItReads) {
    QTextDocument first, second, third;
    read(first, sample);
    read(second, writeRtf(first));
    check(second);
    read(third, writeRtf(second));
    EXPECT_EQ(writeRtf(third), writeRtf(second));
}

// A line end of the source arrives as a bar; a bar of the text stays one.
TEST_F(RichText, BarsOfItsSourceAreLineEnds) {
    struct Case {
        const char *source, *shown;
    };
    for (const Case& c :
         {Case{R"({\rtf1\ansi{\fonttbl{\f0 Sans;}}|{\colortbl ;}|\viewkind4\uc1\pard\f0\fs20 one\par|two\par|})",
               "one\ntwo"},
          Case{R"({\rtf1\pard one\b|two})", "onetwo"}, Case{R"({\rtf1\pard\f0 a|b\par||c})", "a|b\nc"},
          Case{R"({\rtf1\pard |a|\par| b})", "|a|\n b"}, Case{R"({\rtf1\pard a\\par|b})", "a\\par|b"},
          Case{R"({\rtf1\pard {\b a}|b}|)", "a|b"}}) {
        QTextDocument document;
        QTextCursor cursor(&document);
        insertRtf(cursor, QByteArray::fromStdString(withSourceLines(c.source)), {});
        EXPECT_EQ(document.toPlainText().trimmed().toStdString(), QString(c.shown).trimmed().toStdString()) << c.source;
    }
}

TEST_F(RichText, EndsInSomeTextWhateverTheBytes) {
    for (int length = 0; length < sample.size(); length += 3) {
        QTextDocument document;
        read(document, sample.left(length));
        EXPECT_LE(document.characterCount(), 200);
    }
    for (const QByteArray& bytes :
         {QByteArray("{\\rtf1 a") + QByteArray(200000, '{') + "b" + QByteArray(200000, '}') + "}",
          QByteArray("{\\rtf1\\u99999999999 x\\fs-5 y\\li99999999999 z\\'zz\\'"),
          QByteArray("{\\rtf1\\bin999999999 abc"), QByteArray("}}}}{{{{"),
          QByteArray("{\\rtf1{\\fonttbl{\\f0 ") + QByteArray(100000, 'n') + ";}}\\f0 t\\f77 u}",
          QByteArray("\\\\\\", 3), QByteArray("{\\rtf1\\cf5 c\\highlight9 d{\\colortbl;\\red999;}}")}) {
        QTextDocument document;
        read(document, bytes);
        EXPECT_LT(document.characterCount(), 1000);
    }
}

TEST(ProgramText, EveryByteComesBackAsItWentIn) {
    std::string all;
    for (int byte = 1; byte < 256; ++byte) all += char(byte);
    for (const std::string& bytes :
         {all, std::string("plain"), std::string("caf\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80"), std::string("\xC3"),
          std::string("\xE2\x82"), std::string("\xED\xB2\x80"), std::string("\xC0\x80"), std::string()})
        EXPECT_EQ(toProgram(fromProgram(bytes)), bytes);
    EXPECT_EQ(fromProgram("caf\xC3\xA9").size(), 4);
    EXPECT_EQ(unifyLineEnds("a\r\nb\rc\nd\r\n"), "a\nb\nc\nd\n");
}
