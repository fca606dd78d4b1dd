// Finding and replacing in a text: what is a hit, where the search goes on, and what places are called.
#include "editing/search.h"

#include <gtest/gtest.h>

#include <chrono>

namespace {

struct FindCase {
    const char* what;
    const char* code;
    Search search;
    size_t start, end; // of the selection
    bool up;
    int found; // byte of the hit, -1 none
    bool wrapped;
};

TEST(Search, FindsTheNextAndThePreviousHit) {
    const FindCase cases[] = {
        {"from the start", "one two one", {"one"}, 0, 0, false, 0, false},
        {"goes on behind the selected hit", "one two one", {"one"}, 0, 3, false, 8, false},
        {"past the end it goes on at the start", "one two one", {"one"}, 8, 11, false, 0, true},
        {"up", "one two one", {"one"}, 8, 11, true, 0, false},
        {"up past the start it goes on at the end", "one two one", {"one"}, 0, 0, true, 8, true},
        {"nothing", "one", {"two"}, 0, 0, false, -1, false},
        {"an empty text is nowhere", "one", {""}, 0, 0, false, -1, false},
        {"an empty code", "", {"one"}, 0, 0, false, -1, false},
        {"either case", "CALL x", {"call"}, 0, 0, false, 0, false},
        {"the same case", "CALL call", {"call", true}, 0, 0, false, 5, false},
        {"letters of patterns are letters", "a.*b [x] a.*b", {".*"}, 2, 2, false, 10, false},
        {"umlauts in either case", "\xC3\x84rger \xC3\xA4rger", {"\xC3\xA4rger"}, 0, 6, false, 7, false},
        {"an emoji", "x \xF0\x9F\x98\x80 y", {"\xF0\x9F\x98\x80"}, 0, 0, false, 2, false},
        {"inside a longer name", "Form1_Button Form1_B", {"Form1_B"}, 0, 0, false, 0, false},
        {"whole names", "Form1_Button Form1_B", {"Form1_B", false, true}, 0, 0, false, 13, false},
        {"whole names behind a letter that is none of ASCII", "\xC3\xA4x x", {"x", false, true}, 0, 0, false, 4, false},
        {"a whole name between marks", "a(Form1_B)=1", {"form1_b", false, true}, 0, 0, false, 2, false},
        {"over a line end", "a\nb a\nb", {"a\nb"}, 0, 3, false, 4, false},
    };
    for (const FindCase& row : cases) {
        SCOPED_TRACE(row.what);
        const Hit hit = findNext(row.code, row.search, {row.start, row.end}, row.up);
        EXPECT_EQ(hit ? static_cast<int>(hit.start) : -1, row.found);
        EXPECT_EQ(hit.wrapped, row.wrapped);
        EXPECT_TRUE(!hit || hit.end - hit.start == row.search.text.size());
    }
}

struct ReplaceCase {
    const char* what;
    const char* code;
    Search search;
    const char* replacement;
    size_t from;
    const char* after;
    int count;
};

TEST(Search, ReplacesAllAtOnce) {
    const ReplaceCase cases[] = {
        {"longer", "a b a", {"a"}, "xyz", 0, "xyz b xyz", 2},
        {"shorter", "aaa b", {"aaa"}, "x", 0, "x b", 1},
        {"deleted", "a b a", {"a"}, "", 0, " b ", 2},
        {"holds what is looked for", "a a", {"a"}, "aa", 0, "aa aa", 2},
        {"hits do not overlap", "aaa", {"aa"}, "b", 0, "ba", 1},
        {"from a place on", "a a a", {"a"}, "b", 1, "a b b", 2},
        {"an empty text", "a b", {""}, "x", 0, "a b", 0},
        {"whole names", "x = x1 + x", {"X", false, true}, "y", 0, "y = x1 + y", 2},
    };
    for (const ReplaceCase& row : cases) {
        SCOPED_TRACE(row.what);
        const Replaced result = replaceAll(row.code, row.search, row.replacement, row.from);
        EXPECT_EQ(result.code, row.after);
        EXPECT_EQ(result.count, row.count);
    }
}

TEST(Search, TenThousandHitsTakeNoTime) {
    std::string code;
    for (int i = 0; i < 10000; ++i) code += "call owDrawWindow(form, 1)\n";
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(replaceAll(code, {"form"}, "Form1").count, 10000);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(100));
}

TEST(Search, TheSelectionIsAHitOrNot) {
    EXPECT_TRUE(selectionIsHit("one two", {"TWO"}, {4, 7}));
    EXPECT_FALSE(selectionIsHit("one two", {"TWO", true}, {4, 7}));
    EXPECT_FALSE(selectionIsHit("one two", {"two"}, {3, 6}));
    EXPECT_FALSE(selectionIsHit("one two", {"two"}, {4, 6}));
    EXPECT_FALSE(selectionIsHit("one two", {""}, {4, 4}));
}

TEST(Search, TheOldestOfElevenTextsIsForgotten) {
    SearchHistory history;
    for (int i = 1; i <= 11; ++i) history.add("text " + std::to_string(i));
    history.add("text 5");
    history.add("");
    ASSERT_EQ(history.rows.size(), SearchHistory::ROWS);
    EXPECT_EQ(history.rows.front(), "text 11");
    EXPECT_EQ(history.rows.back(), "text 2");
}

TEST(Search, PositionsCountUnitsAndBytesGoBack) {
    const std::string code = "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80z";
    const size_t bytes[] = {0, 1, 3, 6, 10, 11};
    const int positions[] = {1, 2, 3, 4, 6, 7};
    for (size_t i = 0; i < std::size(bytes); ++i) {
        EXPECT_EQ(positionOf(code, bytes[i]), positions[i]);
        EXPECT_EQ(bytesAt(code, positions[i]), bytes[i]);
    }
    EXPECT_EQ(bytesAt(code, 5), 6u); // between the two units of one letter
    EXPECT_EQ(bytesAt(code, 99), code.size());
}

} // namespace
