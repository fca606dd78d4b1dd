#include "platform/processes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAreArray;

TEST(CommandLine, IsPartedLikeTheSystemOfTheOtherCompilersDoes) {
    struct Row {
        const char* line;
        std::vector<std::string> words;
    };
    const Row rows[] = {
        {"", {}},
        {"  a \t b\n", {"a", "b"}},
        {R"(lf95 "my source.f90" -o "x.obj")", {"lf95", "my source.f90", "-o", "x.obj"}},
        {R"(/out:"two words"rest)", {"/out:two wordsrest"}},
        {R"("")", {""}},
        {R"(a "" b)", {"a", "", "b"}},
        {R"(/I"C:\lib" /I"C:\lib\include")", {R"(/IC:\lib)", R"(/IC:\lib\include)"}},
        {R"("C:\dir\\" next)", {R"(C:\dir\)", "next"}},
        {R"("say \"hi\"")", {R"(say "hi")"}},
        {R"(a\\b\c)", {R"(a\\b\c)"}},
        {R"("open to the end)", {"open to the end"}},
    };
    for (const Row& row : rows) EXPECT_THAT(splitCommandLine(row.line), ElementsAreArray(row.words)) << row.line;
}

TEST(CommandLine, EscapedPathsComeBackFromBetweenQuotes) {
    for (const char* path :
         {"plain", "with blank", R"(with "quotes")", R"(back\slash\)", R"(both\"\\)", R"(\)", "ümlaut"}) {
        EXPECT_THAT(splitCommandLine("x \"" + escapedForQuotes(path) + "\" y"), ElementsAreArray({"x", path, "y"}));
    }
}
