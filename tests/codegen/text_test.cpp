#include "codegen/quotes.h"
#include "codegen/text.h"

#include "project/records.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <limits>

namespace {

// Numbers look as printf writes them in the C locale, whatever locale the program runs in.
TEST(Format, RealsLookLikePrintf) {
    const double values[] = {0,
                             -0.0,
                             1,
                             -1.5,
                             0.1,
                             99999.95,
                             999999.4,
                             1e6,
                             123456,
                             1234567,
                             0.0001,
                             0.00009999995,
                             1e-5,
                             -2.5e9,
                             1e38,
                             1e-38,
                             3.4028235e38,
                             12.5,
                             1.0 / 3,
                             100000.4,
                             9.9999996,
                             2147483648.0,
                             std::numeric_limits<double>::infinity()};
    for (const double value : values) {
        char expected[400];
        std::string text;
        std::snprintf(expected, sizeof expected, "%#g", value);
        put(text, "%#g", value);
        EXPECT_EQ(text, expected);
        text.clear();
        std::snprintf(expected, sizeof expected, "%f", value);
        put(text, "%f", value);
        EXPECT_EQ(text, expected);
    }
}

TEST(Format, FillsPlacesInTurnAndTakesValuesAsTheyAre) {
    std::string text;
    put(text, "%s%%%s=%2d,%2d,%1d,%d", "100% sure", std::string("%d"), 9, 123, 4, -5);
    EXPECT_EQ(text, "100% sure%%d= 9,123,4,-5");
}

TEST(Quotes, AreWrittenSoThatTheStringGoesOn) {
    struct Case {
        const char* stored;
        const char* fortran;
        const char* c;
    };
    const Case cases[] = {
        {"it's", "it''s", "it's"},
        {"say \"x\"", "say \"x\"", "say \\\"x\\\""},
        {"\\\"", "\\\"", "\\\""},               // a quote that has its backslash
        {"a\\\\\"b", "a\\\\\"b", "a\\\\\\\"b"}, // the backslash ahead of the quote belongs to the one ahead of it
        {"C:\\dir", "C:\\dir", "C:\\\\dir"},    // begins no escape of C
        {"C:\\temp", "C:\\temp", "C:\\temp"},   // begins one, which stays
        {"end\\", "end\\", "end\\\\"},
        {"\\xz \\x1", "\\xz \\x1", "\\\\xz \\x1"},
        {"\\u00e9 \\101 \\9", "\\u00e9 \\101 \\9", "\\\\u00e9 \\101 \\\\9"},
        {"a\\\\b", "a\\\\b", "a\\\\b"},
        {"a\r\nb\nc\rd", "a|b|c\rd", "a|b|c|d"},
        {"100% |é", "100% |é", "100% |é"},
        {"", "", ""},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(fortranText(c.stored), c.fortran);
        EXPECT_EQ(cText(c.stored), c.c);
    }
}

TEST(Quotes, ALongTextKeepsItsLimitAndNoHalfPair) {
    for (const std::size_t before : {32766U, 32765U, 30000U}) {
        const std::string head(before, 'x');
        const std::string fortran = fortranText(head + std::string(TEXT_LIMIT - before, '\''));
        const std::string c = cText(head + std::string(TEXT_LIMIT - before, '"'));
        for (const std::string& text : {fortran, c}) {
            EXPECT_LE(text.size(), 32767U);
            EXPECT_GE(text.size(), 32766U);
            EXPECT_EQ((text.size() - before) % 2, 0U);
        }
    }
}

TEST(Quotes, TextsAndPathsOfC) {
    struct Case {
        const char* stored;
        const char* path;
        const char* text;
    };
    const Case cases[] = {
        {"C:\\a\\b", "C:\\\\a\\\\b", "C:\\\\a\\\\b"},              // lone ones are doubled
        {"\\\\server\\c", "\\\\server\\\\c", "\\\\\\server\\\\c"}, // a pair: only paths know it
        {"a\\\"b", "a\\\\\"b", "a\\\"b"},                          // what keeps a quote inside the string is left alone
        {"a\\\\\"b", "a\\\\\"b", "a\\\\\\\"b"},                    // and two ahead of a quote become three
        {"\\\\xab", "\\\\xab", "\\\\\\xab"},
        {"\\\\x", "\\\\x", "\\\\x"}, // no escape that the language does not have
        {"end\\", "end\\\\", "end\\\\"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(doubledBackslashes(c.stored), c.path);
        EXPECT_EQ(doubledTextBackslashes(c.stored), c.text);
    }
    EXPECT_EQ(withBars("a\r\nb\nc\rd\r\n\r"), "a|b|c\rd|\r");
}

TEST(Quotes, ATextIsCutBetweenLetters) {
    std::string letters;
    while (letters.size() < TEXT_LIMIT - 1) letters += "é";
    const std::string text = "x'\"" + letters; // from here on the letters lie across the limit
    for (const std::string& cut : {fortranText(text), cText(text), cFieldText(text)}) {
        EXPECT_LE(cut.size(), 32767U);
        EXPECT_GE(cut.size(), 32764U);
        EXPECT_EQ(cut.substr(cut.size() - 2), "é");
    }
}

TEST(Quotes, RichTextStaysWhole) {
    EXPECT_EQ(cFieldText(R"({\rtf1 a\\b "c"\par})"), R"({\\rtf1 a\\\\b \"c\"\\par})");
    const std::string text = "{\\rtf1 " + std::string(TEXT_LIMIT - 10, '\'') + "}";
    EXPECT_EQ(fortranText(text).size(), text.size() + TEXT_LIMIT - 10);
    EXPECT_TRUE(cFieldText(text).ends_with("'}"));
}

TEST(Quotes, LoneLineFeedsOfRichTextMeanNothing) {
    struct Case {
        const char* stored;
        const char* written;
    };
    const Case cases[] = {
        {"{\\rtf1\n\\pard\\f0 one\\par\n\\b two\\par\n}", "{\\rtf1\\pard\\f0 one\\par\\b two\\par}"},
        {"\\par\nHello", "\\par Hello"}, // the feed ended the word
        {"\\fs18\n7", "\\fs18 7"},
        {"\\par\n two", "\\par  two"}, // and the blank behind it is the text's own
        {"one\ntwo", "onetwo"},
        {"one\r\ntwo", "one\r\ntwo"},
    };
    for (const Case& c : cases) EXPECT_EQ(withoutRichLineFeeds(c.stored), c.written);
}

TEST(Quotes, EscapesOfC) {
    for (const char* text : {"a\\n", "\\x41", "\\101", "\\\\", "\\\""}) EXPECT_TRUE(holdsEscape(text)) << text;
    for (const char* text : {"C:\\dir", "\\x", "end\\", "\\U", "plain"}) EXPECT_FALSE(holdsEscape(text)) << text;
}

TEST(Quotes, IconResourceNames) {
    EXPECT_EQ(iconResourceName("Stock name"), "Stock name");
    EXPECT_EQ(iconResourceName("C:\\my icons\\an icon.v1.ico"), "an_icon");
    EXPECT_EQ(iconResourceName("../pics/a b.ico"), "a_b");
    EXPECT_EQ(iconResourceName("dir.d\\plain"), "plain");
}

} // namespace
