#include "compile/log.h"
#include "compile/navigation.h"
#include "compile_room.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Le;

namespace {

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (size_t from = 0; from < text.size();) {
        size_t end = std::min(text.find('\n', from), text.size());
        lines.push_back(plainLogLine(text.substr(from, end - from)));
        from = end + 1;
    }
    return lines;
}

// What the compiler of this machine says of a source.
std::vector<std::string> messagesOf(const std::string& command) {
    std::vector<std::string> lines;
    FILE* pipe = popen(("export LC_ALL=C; " + command + " 2>&1").c_str(), "r");
    char line[4096];
    std::string text;
    while (pipe && fgets(line, sizeof line, pipe)) text += line;
    if (pipe) pclose(pipe);
    return linesOf(text);
}

} // namespace

TEST(Log, PlainLinesHoldNothingThatCannotBeShown) {
    struct Row {
        std::string bytes;
        std::string line;
    };
    const Row rows[] = {
        {"as it is: äöü €", "as it is: äöü €"},
        {"ends in CR\r", "ends in CR"},
        {"\xff\xfe broken \xc3", "?? broken ?"},
        {"overlong \xc0\xaf and surrogate \xed\xa0\x80", "overlong ?? and surrogate ???"},
        {std::string("nul\0 bell\a tab\t", 15), "nul  bell  tab\t"},
        {"\x1b[01;31m\x1b[Kerror\x1b[m\x1b[K: x", "error: x"},
        {"cut\x1b[", "cut"},
    };
    for (const Row& row : rows) EXPECT_EQ(plainLogLine(row.bytes), row.line);
    EXPECT_EQ(logEntry(std::string(254, 'x') + "äb"), std::string(254, 'x')) << "no half characters";
    EXPECT_EQ(logEntry(std::string(300, 'x')).size(), 255U);
}

TEST(Log, ScanOfEachFamily) {
    struct Row {
        int profile;
        const char* log;
        int result;
        int analysed;
        int line; // that the analysed entry tells
    };
    const Row rows[] = {
        {1, "Compiling program unit P\n 2004-S: \"A.F90\", line 37: Invalid.\n 2005-W: \"A.F90\", line 40: x", 2, 2,
         37},
        {7, "1115-W: \"A.F90\", line 8: unused", 1, 1, 8}, // a warning counts
        {1, "all well\nError LINK.4 unresolved", 2, 0, 0},
        {1, "all well", 0, 0, 0},
        {2, "x.f90(12): Warning: x\nx.f90(27): Error: Syntax error", 2, 2, 27},
        {9, "x.f90(31): error #5082: Syntax error", 1, 1, 31},
        {9, "LINK : fatal error LNK1104: cannot open file", 1, 1, 0}, // holds ": fatal error", not ": error"
        {3, "[FTN95]\n0012) call foo(\n*** Unbalanced", 2, 2, 12},
        {8, "  7) x =\n*** Expected", 1, 1, 7},
        {3, "*** no position", 1, 0, 0},
        {5, "f90fe: ERROR ABC, File = x.f90, Line = 3\n", 1, 1, 0},
        {5, "f90fe: ERROR in x.f90 on line 15: bad", 1, 1, 15},
        {5, "x.obj : error LNK2001: unresolved", 1, 0, 0},
        {6, "app.cpp\napp.cpp(44) : error C2065: 'x'", 2, 2, 44},
        {6, "app.obj : error LNK2019: unresolved", 1, 0, 0},
        {0, "error C2065 ***", 0, 0, 0},
    };
    for (const Row& row : rows) {
        std::vector<std::string> lines = linesOf(row.log);
        LogScan scan = scanLogLines(lines, row.profile);
        if (row.profile == 9 && row.line == 0) { // a link error that is none of the compile texts
            EXPECT_EQ(scan.result, 1);
            EXPECT_EQ(scan.analysed, 0);
            continue;
        }
        EXPECT_EQ(scan.result, row.result) << row.log;
        EXPECT_EQ(scan.analysed, row.analysed) << row.log;
        if (scan.analysed > 0) {
            EXPECT_EQ(logPosition(lines, scan.analysed, row.profile, "main").line, row.line) << row.log;
        }
    }
}

TEST(Log, MessagesWithoutAUsableNumberLeadNowhere) {
    struct Row {
        int profile;
        const char* message;
    };
    const Row rows[] = {{1, "line 12 but no mark"},
                        {1, "-S: no number"},
                        {2, "no parenthesis 12"},
                        {6, "(x12)"},
                        {3, "12 no parenthesis"},
                        {5, "line 12"},
                        {6, "(0)"},
                        {9, "(-3)"},
                        {10, "no position"},
                        {10, "f951: Fatal Error: Cannot open file 'x.f90'"}};
    for (const Row& row : rows) EXPECT_EQ(messagePosition(row.message, row.profile).line, 0) << row.message;
}

namespace {

struct GnuLogTest : BuildRoom {
    // Compiles `text` and tells where the first error leads: "line:column", or "link", "none".
    std::string firstError(const std::string& name, const std::string& text, const std::string& command) {
        std::string source = useSource(name, text);
        lines = messagesOf("cd '" + work + "' && " + command + " '" + source + "' -o out.o");
        LogScan scan = scanLogLines(lines, COMPILER_GNU);
        if (scan.result == 0) return "none";
        if (scan.analysed == 0) return "link";
        MessagePosition position = logPosition(lines, scan.analysed, COMPILER_GNU, source);
        return std::to_string(position.line) + ":" + std::to_string(position.column);
    }
    std::vector<std::string> lines;
};

} // namespace

TEST_F(GnuLogTest, FirstErrorsOfRealCompilers) {
    struct Row {
        const char* name;
        const char* text;
        const char* command;
        const char* expected;
    };
    const char* free = "gfortran -c";
    const char* fixed = "gfortran -c -std=legacy -x f77 -ffixed-form";
    const char* cpp = "g++ -c -x c++";
    const Row rows[] = {
        {"a.f90", "program p\n integer :: i\n i = = 2\nend\n", free, "3:7"},
        {"a.f90", "program p\n implicit none\n\ti = 2\nend\n", free, "3:2"},
        {"a.f90", "program p\n use nothere\nend\n", free, "2:6"},
        {"a.f90", "program p\n real :: x\n\n\n\n\n\n integer :: x\nend\n", free, "8:13"},
        {"a.f90", "program p\n call s(1)\n call s(2.0)\nend\n", free, "3:8"},
        {"a.f90", "program p\n print *, 'x: error: y' ; integer :: z = 1.5\nend\n", free, "2:44"},
        {"a.f90", "program p\n if (1 == 1) then\n print *, 'open'\nend\n", free, "4:3"},
        {"a.f90", "program p\n character(2) :: s = 'a: error: b'\nend\n", "gfortran -c -Wall", "none"}, // a warning
        {"a.f90", "program p\n integer :: i\nend\n", "gfortran -c -Wall -Werror", "2:13"},
        {"a.f90", "program p\nend\n", "gfortran -c -fno-such-switch", "0:0"},
        {"a.f90", "program p\n call nothere\nend\n", "gfortran", "link"},
        {"a.f90", "program p\nend\n", "gfortran -lno-such-library", "link"},
        {"a.f90", "program p\nend\n", free, "none"},
        {"a.for", "      PROGRAM P\n      I = = 2\n      END\n", fixed, "2:12"},
        {"a.for", "      PROGRAM P\n      CALL S(1,'A')\n      CALL S(1\n      END\n", fixed, "3:15"},
        {"a.cpp", "int main() {\n  int x = undef;\n}\n", cpp, "2:11"},
        {"a.cpp", "int main() {\n  return 1\n}\n", cpp, "2:11"},
        {"a.cpp", "#include <no-such-header.h>\nint main() {}\n", cpp, "1:10"},
        {"a.cpp", "#include \"own.h\"\nint main() {}\n", cpp, "1:0"},
        {"a.cpp", "int main() { int unused; return 0; }\n", "g++ -c -Wall", "none"},
        {"a.cpp", "int nothere(); int main() { return nothere(); }\n", "g++", "link"},
    };
    scratch.write("my project/own.h", "int y = z;\n");
    for (const Row& row : rows) {
        EXPECT_EQ(firstError(row.name, row.text, row.command), row.expected)
            << row.text << testing::PrintToString(lines);
    }
}

TEST_F(GnuLogTest, EveryLineOfAMessageLeadsToItsPosition) {
    firstError("a.f90", "program p\n i = = 2\n print *, )\nend\n", "gfortran -c");
    std::string source = work + "/a.f90";
    int told[4] = {};
    for (int entry = 1; entry <= static_cast<int>(lines.size()); entry++) {
        int line = logPosition(lines, entry, COMPILER_GNU, source).line;
        ASSERT_THAT(line, Le(3));
        told[line]++;
    }
    EXPECT_EQ(told[2], 5);
    EXPECT_EQ(told[3], 5);
    EXPECT_EQ(logPosition(lines, 1, COMPILER_GNU, "/another/file.f90").line, 0) << "another file's lines lead nowhere";
    EXPECT_EQ(logPosition(lines, 0, COMPILER_GNU, source).line, 0);
    EXPECT_EQ(logPosition(lines, 99, COMPILER_GNU, source).line, 0);

    firstError("a.cpp", "int main() {\n  x = 1;\n  y = 2;\n}\n", "g++ -c");
    int count = static_cast<int>(lines.size());
    EXPECT_EQ(logPosition(lines, count, COMPILER_GNU, work + "/a.cpp").line, 3);
    EXPECT_EQ(logPosition(lines, count - 3, COMPILER_GNU, work + "/a.cpp").line, 2);
}

TEST_F(GnuLogTest, LongLogsKeepHeadTailAndTheFirstError) {
    std::string text;
    for (int i = 1; i <= 200000; i++) {
        text += i == 100000   ? "/x/a.f90:12:5:\n"
                : i == 100004 ? "Error: in the middle\n"
                              : "line " + std::to_string(i) + "\n";
    }
    CompilerLog log;
    ASSERT_TRUE(readLog(scratch.write("log", text), COMPILER_GNU, log));
    EXPECT_THAT(log.lines.size(), Le(2500U));
    EXPECT_EQ(log.lines.front(), "line 1");
    EXPECT_EQ(log.lines.back(), "line 200000");
    EXPECT_THAT(log.lines[static_cast<size_t>(log.omittedAfter)], HasSubstr("198000 more lines"));
    LogScan scan = scanLogLines(log.lines, COMPILER_GNU);
    ASSERT_GT(scan.analysed, 0);
    EXPECT_EQ(log.lines[static_cast<size_t>(scan.analysed - 1)], "Error: in the middle");

    ASSERT_TRUE(readLog(scratch.write("log", std::string(9 << 20, 'x')), COMPILER_GNU, log));
    ASSERT_EQ(log.lines.size(), 1U);
    EXPECT_EQ(log.lines[0].size(), LOG_LINE_LIMIT);
    EXPECT_FALSE(readLog(scratch / "missing", COMPILER_GNU, log));
    EXPECT_TRUE(log.lines.empty());
}

TEST_F(GnuLogTest, ScanSelectsAnErrorOrTheEnd) {
    struct Row {
        std::vector<std::string> lines;
        int result;
        const char* selected;
    };
    const Row rows[] = {
        {{"g++: fatal error: no input files", "tail"}, 1, "select 1"},
        {{"x", "ld: undefined reference to `f'", "collect2: error: ld returned 1 exit status"}, 2, "select 3"},
        {{"all", "is", "well"}, 0, "select 3"},
        {{}, 0, nullptr},
    };
    for (const Row& row : rows) {
        notes.calls.clear();
        compilerLog.lines = row.lines;
        EXPECT_EQ(scanLog(COMPILER_GNU), row.result);
        if (row.selected) {
            EXPECT_THAT(notes.calls, ElementsAre(row.selected));
        } else {
            EXPECT_TRUE(notes.calls.empty());
        }
    }
}
