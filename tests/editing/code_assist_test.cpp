// What the line around the caret says: the call, the argument in force, the name that is begun; and the words that fit.
#include "editing/code_assist.h"

#include "editing/catalogue.h"
#include "project/records.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

enum : int { F77 = 77, F90 = 90, C = 99 };

struct CallCase {
    const char* line; // with a bar at the caret
    int language;
    const char* name; // empty: none
    int argument;
};

TEST(CodeAssist, TheCallAroundTheCaret) {
    const CallCase cases[] = {
        {"call owDrawWindow(|", F90, "owDrawWindow", 1},
        {"call owDrawWindow(form, |", F90, "owDrawWindow", 2},
        {"call owDrawWindow(form(1, 2), |1)", F90, "owDrawWindow", 2},
        {"call outer(inner(|a, b), c)", F90, "inner", 1},
        {"call outer(inner(a, b), |c)", F90, "outer", 2},
        {"call outer((a + |b), c)", F90, "outer", 1},
        {"call outer('a,b(', |c)", F90, "outer", 2},
        {"call outer('a, |", F90, "", 0},
        {"call outer(a) ! (|", F90, "", 0},
        {"call outer(a)|", F90, "", 0},
        {"x = (a, |b)", F90, "", 0},
        {"call |outer(a)", F90, "", 0},
        {"C     CALL OUTER(|", F77, "", 0},
        {"      CALL BUTTON(1,|", F77, "BUTTON", 2},
        {"f(\"a\\\"(\", |", C, "f", 2},
        {"f(a); // g(|", C, "", 0},
        {"f(!a, |", C, "f", 2},
        {"", F90, "", 0},
    };
    for (const CallCase& row : cases) {
        SCOPED_TRACE(row.line);
        std::string line = row.line;
        const size_t caret = std::min(line.find('|'), line.size());
        if (caret < line.size()) line.erase(caret, 1);
        const auto call = callAt(line, caret, row.language);
        EXPECT_EQ(call ? call->name : "", row.name);
        if (call) {
            EXPECT_EQ(call->argument, row.argument);
        }
    }
}

TEST(CodeAssist, TenThousandBracketsAreRead) {
    const std::string line(10000, '(');
    EXPECT_FALSE(callAt(line, line.size(), F90));
    EXPECT_FALSE(callAt(std::string(10000, ')'), 10000, F90));
}

TEST(CodeAssist, TheNameAheadOfTheCaret) {
    const std::pair<const char*, const char*> cases[] = {
        {"call owDr", "owDr"}, {"x = 1e", ""}, {"! owDr", ""}, {"'owDr", ""}, {"a%b", "b"}, {"", ""}, {"x = ", ""}};
    for (const auto& [line, name] : cases) EXPECT_EQ(nameAhead(line, std::string(line).size(), F90), name) << line;
}

TEST(CodeAssist, NamesOfACode) {
    EXPECT_EQ(namesIn("integer :: count = 10 ! note\nCOUNT = 'text'\nreal x2", F90),
              (std::vector<std::string>{"integer", "count", "real", "x2"}));
}

bool offers(const std::vector<OfferedWord>& words, const char* word) {
    return std::ranges::find(words, std::string(word), &OfferedWord::word) != words.end();
}

TEST(CodeAssist, OfferedWordsAreKeywordsOwnNamesAndRoutines) {
    project.projectLanguage = F90;
    project.codeBlocks[BLOCK_LOCAL_VARIABLES] = "real :: ownLength";
    const OpenCall call{"owCreatePushButton", 3};
    const auto all = offeredWords(&call, "ow");
    EXPECT_EQ(all.front().word.substr(0, 2), "ow");
    EXPECT_EQ(all.front().note, "keyword");
    EXPECT_TRUE(offers(all, "owCallback"));
    EXPECT_TRUE(offers(all, "ownLength"));
    EXPECT_TRUE(offers(all, "owDrawWindow"));
    EXPECT_FALSE(offers(all, "oDrawLineTo2D"));
    EXPECT_FALSE(offers(offeredWords(nullptr, "owCallb"), "owCallback")) << "a keyword of no call";
    EXPECT_FALSE(offers(offeredWords(nullptr, ""), "oBezier")) << "the library lacks it";
    EXPECT_TRUE(offers(offeredWords(nullptr, "OWNL"), "ownLength")) << "in either case";
    project.codeBlocks[BLOCK_LOCAL_VARIABLES].clear();
}

} // namespace
