#include "codegen/quotes.h"
#include "codegen/text.h"

#include "project/tree.h"

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

TEST(Quotes, AreCountedByTheLanguagesRule) {
    EXPECT_EQ(countQuotes("it's ''", 90), 3);
    EXPECT_EQ(countQuotes("\"a\" \\\" '", 99), 2);
}

TEST(Quotes, AreEscapedForTheSourceAndRestored) {
    struct Case {
        const char* stored;
        int language;
        const char* written;
    };
    const Case cases[] = {{"it's", 90, "it''s"},     {"it's", 77, "it''s"}, {"say \"x\"", 99, "say \\\"x\\\""},
                          {"\\\"", 99, "\\\""},      {"it's", 99, "it's"},  {"\"", 90, "\""},
                          {"C:\\dir", 99, "C:\\dir"}};
    for (const Case& c : cases) {
        resetProject();
        WidgetNode* form = newForm();
        form->text = c.stored;
        form->listEntries = new ListEntryRec{c.stored, c.stored, nullptr};
        form->entries = new MenuEntryRec;
        form->entries->label = c.stored;
        form->entries->help = c.stored;
        form->bubbleHelp = c.stored;
        SavedStrings saved = escapeQuotes(project.forms, c.language);
        EXPECT_EQ(form->text, c.written);
        EXPECT_EQ(form->listEntries->text, c.written);
        EXPECT_EQ(form->entries->label, c.written);
        EXPECT_EQ(form->listEntries->icon, c.stored);
        EXPECT_EQ(form->entries->help, c.stored);
        EXPECT_EQ(form->bubbleHelp, c.stored);
        restoreQuotes(saved);
        EXPECT_EQ(form->text, c.stored);
        EXPECT_EQ(form->listEntries->text, c.stored);
        EXPECT_EQ(form->entries->label, c.stored);
    }
}

TEST(Quotes, EscapedTextKeepsItsLimitAndNoHalfPair) {
    for (const std::size_t before : {32766U, 32765U, 30000U}) {
        resetProject();
        WidgetNode* form = newForm();
        form->text = std::string(before, 'x') + std::string(TEXT_LIMIT - before, '\'');
        SavedStrings saved = escapeQuotes(project.forms, 90);
        EXPECT_LE(form->text.size(), 32767U);
        EXPECT_GE(form->text.size(), 32766U);
        EXPECT_EQ((form->text.size() - before) % 2, 0U);
        restoreQuotes(saved);
        EXPECT_EQ(form->text.size(), static_cast<std::size_t>(TEXT_LIMIT));
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
    EXPECT_EQ(withBarsForC("a\r\nb\nc\rd\r\n\r"), "a|b|c|d||");
}

TEST(Quotes, IconResourceNames) {
    EXPECT_EQ(iconResourceName("Stock name"), "Stock name");
    EXPECT_EQ(iconResourceName("C:\\my icons\\an icon.v1.ico"), "an_icon");
    EXPECT_EQ(iconResourceName("../pics/a b.ico"), "a_b");
    EXPECT_EQ(iconResourceName("dir.d\\plain"), "plain");
}

} // namespace
