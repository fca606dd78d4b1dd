#include "codegen/split.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::vector<std::string> split(const std::string& line, const SplitRule& rule) {
    std::string text;
    appendSplit(text, line + "\n", rule);
    std::vector<std::string> lines;
    std::size_t from = 0;
    for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', from)) {
        lines.push_back(text.substr(from, end - from));
        from = end + 1;
    }
    EXPECT_EQ(from, text.size());
    return lines;
}

using Lines = std::vector<std::string>;

// A call whose first line would end behind `taken` characters, with `behind` following.
std::string filled(const std::string& head, char fill, std::size_t taken, const std::string& behind) {
    return head + std::string(taken - head.size(), fill) + behind;
}

TEST(Split, BeginsAtTheThresholdOfEachLanguage) {
    struct Case {
        const SplitRule& rule;
        std::size_t longest; // characters of a line that stays whole, without its line end
    };
    for (const Case& c : {Case{SPLIT_FREE, 131}, Case{SPLIT_FIXED, 72}, Case{SPLIT_C, 1022}}) {
        EXPECT_EQ(split(filled("f(a,", 'x', c.longest, ""), c.rule).size(), 1U) << c.longest;
        EXPECT_GT(split(filled("f(a,", 'x', c.longest + 1, ""), c.rule).size(), 1U) << c.longest;
    }
}

TEST(Split, GoesBackToTheLastCommaOrBracketOutsideOfStrings) {
    EXPECT_EQ(split(filled("call f(a, b,", 'x', 132, ""), SPLIT_FREE),
              (Lines{"call f(a, b, &", "     " + std::string(120, 'x')}));
    EXPECT_EQ(split(filled("call f(", 'x', 80, ""), SPLIT_FIXED),
              (Lines{"call f(", "     +" + std::string(61, 'x'), "     +" + std::string(12, 'x')}));
    EXPECT_EQ(split("f('a,(b'," + std::string(125, 'x'), SPLIT_FREE)[0], "f('a,(b', &");
    EXPECT_EQ(split("f(1,'" + std::string(110, ',') + "'," + std::string(30, 'x'), SPLIT_FREE)[0],
              "f(1,'" + std::string(110, ',') + "', &");
    EXPECT_EQ(split("f(\"" + std::string(900, ',') + "\"" + std::string(200, 'x'), SPLIT_C)[0], "f(");
}

TEST(Split, StaysWhereTheLineEndsInACommaAlready) {
    EXPECT_EQ(split(filled("f(a,", 'x', 125, ",") + std::string(20, 'y'), SPLIT_FREE),
              (Lines{filled("f(a,", 'x', 125, ", &"), "     " + std::string(20, 'y')}));
}

TEST(Split, KeepsALineWithoutAPlaceToBreak) {
    EXPECT_EQ(split(std::string(140, 'x'), SPLIT_FREE),
              (Lines{std::string(126, 'x') + " &", "     " + std::string(14, 'x')}));
    EXPECT_EQ(split(std::string(80, 'x'), SPLIT_FIXED), (Lines{std::string(67, 'x'), "     +" + std::string(13, 'x')}));
}

TEST(Split, ClosesAndReopensAStringAtABreak) {
    EXPECT_EQ(split(filled("f('", 'x', 150, "')"), SPLIT_FREE),
              (Lines{filled("f('", 'x', 126, "'// &"), "     '" + std::string(24, 'x') + "')"}));
    EXPECT_EQ(split(filled("f('", 'x', 100, "')"), SPLIT_FIXED),
              (Lines{filled("f('", 'x', 67, "'//"), "     +'" + std::string(33, 'x') + "')"}));
    EXPECT_EQ(split(filled("f(\"", 'x', 1100, "\")"), SPLIT_C),
              (Lines{filled("f(\"", 'x', 1017, "\""), "     \"" + std::string(83, 'x') + "\")"}));
}

// The quote that ends the string is the first character that the line would not take.
TEST(Split, TakesAClosingQuoteOver) {
    EXPECT_EQ(split(filled("f('", 'x', 126, "', owHelp=1)"), SPLIT_FREE),
              (Lines{filled("f('", 'x', 126, "' &"), "     , owHelp=1)"}));
    EXPECT_EQ(split(filled("f(\"", 'x', 1017, "\", owHelp,1)"), SPLIT_C),
              (Lines{filled("f(\"", 'x', 1017, "\""), "     , owHelp,1)"}));
    // The old form goes back to the comma all the same.
    EXPECT_EQ(split(filled("f(a,'", 'x', 67, "',b,c,d)"), SPLIT_FIXED),
              (Lines{"f(a,", "     +'" + std::string(62, 'x').substr(0, 60) + "'//", "     +'xx',b,c,d)"}));
}

TEST(Split, NeverPartsADoubledQuote) {
    // The first half is the last character taken: the second half comes along and the string is closed behind it.
    EXPECT_EQ(split(filled("f('", 'x', 125, "''" + std::string(20, 'y') + "')"), SPLIT_FREE),
              (Lines{filled("f('", 'x', 125, "'''// &"), "     '" + std::string(20, 'y') + "')"}));
    // Both halves lie behind the break.
    EXPECT_EQ(split(filled("f('", 'x', 126, "''" + std::string(20, 'y') + "')"), SPLIT_FREE),
              (Lines{filled("f('", 'x', 126, "'// &"), "     '''" + std::string(20, 'y') + "')"}));
}

TEST(Split, NeverPartsABackslashFromWhatItTakes) {
    EXPECT_EQ(split(filled("f(\"", 'x', 1016, "\\\"" + std::string(20, 'y') + "\")"), SPLIT_C),
              (Lines{filled("f(\"", 'x', 1016, "\\\"\""), "     \"" + std::string(20, 'y') + "\")"}));
    // The backslash at the break is the second of a pair, so the quote behind it ends the string.
    EXPECT_EQ(split(filled("f(\"", 'x', 1015, "\\\\\", 0);" + std::string(20, 'y')), SPLIT_C),
              (Lines{filled("f(\"", 'x', 1015, "\\\\\""), "     , 0);" + std::string(20, 'y')}));
}

TEST(Split, NeverPartsALetterOrTheNumberOfAnEscape) {
    const std::string accent = "\xc3\xa9";
    const std::string ideogram = "\xe6\x97\xa5";
    EXPECT_EQ(split(filled("f('", 'x', 125, accent + std::string(20, 'y') + "')"), SPLIT_FREE),
              (Lines{filled("f('", 'x', 125, "'// &"), "     '" + accent + std::string(20, 'y') + "')"}));
    EXPECT_EQ(split(filled("f('", 'x', 65, ideogram + std::string(20, 'y') + "')"), SPLIT_FIXED),
              (Lines{filled("f('", 'x', 65, "'//"), "     +'" + ideogram + std::string(20, 'y') + "')"}));
    for (const char* escape : {"\\101", "\\x41", "\\7", "\\x4A5"}) {
        for (std::size_t taken = 1012; taken < 1018; ++taken) {
            const std::string line = filled("f(\"", 'x', taken, escape + std::string(20, 'y') + "\")");
            int whole = 0;
            for (const std::string& part : split(line, SPLIT_C)) whole += part.find(escape) != std::string::npos;
            EXPECT_EQ(whole, 1) << escape << " behind " << taken;
        }
    }
}

// Joined again by the rules of the language, every split statement is what it was, and no line is too long.
TEST(Split, LosesNothing) {
    for (std::size_t length = 60; length < 420; ++length) {
        std::string text;
        for (std::size_t i = 0; i < length; ++i) text += i % 7 == 3 ? "''" : i % 5 == 0 ? "," : "x";
        const std::string line = "   Name = owCreate(Parent, 1, 2, '" + text + "', owHelp='" + text + "', owOn=1)";
        std::string joined;
        for (std::string part : split(line, SPLIT_FREE)) {
            EXPECT_LE(part.size(), 132U);
            if (part.ends_with(" &")) part.resize(part.size() - 2);
            const bool opens = !joined.empty() && joined.ends_with("'//");
            if (opens) {
                joined.resize(joined.size() - 3);
                EXPECT_EQ(part.substr(0, 6), "     '");
                part = part.substr(6);
            } else if (!joined.empty()) {
                part = part.substr(5);
            }
            joined += part;
        }
        EXPECT_EQ(joined, line) << length;
    }
}

} // namespace
