#include "platform/environment.h"
#include "platform/processes.h"
#include "support/scratch.h"

#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace {

constexpr int LONG_ENOUGH = 10000; // milliseconds

std::uint32_t endOf(ChildProcess& child) {
    std::uint32_t code = STILL_RUNNING;
    EXPECT_TRUE(waitProcess(child, LONG_ENOUGH, code));
    return code;
}

// A process that ended but whom its parent has not asked after counts as gone.
bool alive(pid_t pid) {
    std::string status = textOf("/proc/" + std::to_string(pid) + "/stat");
    size_t state = status.rfind(')');
    return state != std::string::npos && status.substr(state + 2, 1) != "Z";
}

pid_t pidIn(const std::string& file) {
    waitUntil([&] { return textOf(file).find('\n') != std::string::npos; });
    return static_cast<pid_t>(std::atol(textOf(file).c_str()));
}

// Stands for a terminal program: the command runs in a session of its own, as inside a real one.
std::string fakeTerminal(const ScratchFolder& folder, const std::string& run) {
    return folder.script("terminal", "shift\n" + run);
}

} // namespace

TEST(Processes, WriteBothOutputsToTheLogAndEndWithTheirCode) {
    ScratchFolder folder("proc ess");
    LogHandle log = createLogFile(folder / "log");
    ASSERT_NE(log, NO_LOG);
    ProcessStart start;
    start.commandLine = "\"" + folder.script("two words", "pwd; echo $MARK; echo err >&2; exit 7") + "\" x";
    start.folder = folder.path.string();
    start.log = log;
    start.environment = {{"MARK", "a=b"}};
    ChildProcess child;
    ASSERT_TRUE(startProcess(start, child));
    EXPECT_EQ(endOf(child), 7U);
    releaseProcess(child, true);
    writeLogFile(log, "ours\n");
    closeLogFile(log);
    EXPECT_EQ(textOf(folder / "log"), folder.path.string() + "\na=b\nerr\nours\n");
}

TEST(Processes, EndsAreTold) {
    struct Row {
        const char* command;
        bool silent; // a code that counts as a usual end
        const char* words;
    };
    const Row rows[] = {
        {"sh -c \"exit 0\"", true, "ended with code 0"},
        {"sh -c \"exit 255\"", true, "ended with code 255"},
        {"sh -c \"kill -SEGV $$\"", false, "was ended by signal 11 (Segmentation fault)"},
        {"sh -c \"kill -KILL $$\"", false, "was ended by signal 9 (Killed)"},
    };
    for (const Row& row : rows) {
        ProcessStart start;
        start.commandLine = row.command;
        ChildProcess child;
        ASSERT_TRUE(startProcess(start, child));
        std::uint32_t code = endOf(child);
        EXPECT_EQ(code <= 1024, row.silent) << row.command;
        EXPECT_EQ(exitWords(code), row.words);
        releaseProcess(child, true);
        EXPECT_FALSE(processExitCode(child, code)) << "nothing to ask after it has been let go of";
    }
}

TEST(Processes, EndsAreKnownEvenIfOurOwnStarterIgnoredThem) {
    signal(SIGCHLD, SIG_IGN);
    ProcessStart start;
    start.commandLine = "sh -c \"exit 5\"";
    ChildProcess child;
    ASSERT_TRUE(startProcess(start, child));
    EXPECT_EQ(endOf(child), 5U);
    releaseProcess(child, true);
    signal(SIGCHLD, SIG_DFL);
}

TEST(Processes, FailedStartsSayWhy) {
    ScratchFolder folder;
    struct Row {
        std::string command;
        std::string folder;
        int code;
    };
    const Row rows[] = {
        {"no-such-compiler -c x", "", ENOENT},
        {"\"" + folder.write("text", "words") + "\"", "", EACCES},
        {"sh -c true", folder / "vanished", ENOENT},
        {"", "", ENOENT},
    };
    for (const Row& row : rows) {
        ProcessStart start;
        start.commandLine = row.command;
        start.folder = row.folder;
        ChildProcess child;
        EXPECT_FALSE(startProcess(start, child)) << row.command;
        EXPECT_EQ(lastSystemError.code, row.code) << row.command;
        EXPECT_FALSE(lastSystemError.text.empty());
        EXPECT_EQ(child.handle, 0);
    }
}

TEST(Processes, TheWholeGroupEndsEvenIfItIgnoresThePoliteEnd) {
    ScratchFolder folder;
    ProcessStart start;
    start.kind = ProcessKind::windowed;
    start.commandLine = "\"" +
                        folder.script("stubborn", "trap '' TERM HUP\n"
                                                  "(trap '' TERM HUP; while :; do sleep 0.05; done) &\n"
                                                  "echo $! >\"$1\"\nwhile :; do sleep 0.05; done\n") +
                        "\" \"" + (folder / "pid") + "\"";
    ChildProcess child;
    ASSERT_TRUE(startProcess(start, child));
    pid_t leader = static_cast<pid_t>(child.handle);
    pid_t below = pidIn(folder / "pid");
    ASSERT_TRUE(alive(below));
    terminateProcess(child, 100);
    EXPECT_EQ(child.handle, 0);
    EXPECT_TRUE(waitUntil([&] { return !alive(leader) && !alive(below); }));
}

TEST(Processes, APoliteEndLetsTheProgramCleanUp) {
    ScratchFolder folder;
    ProcessStart start;
    start.commandLine = "\"" +
                        folder.script("polite", "trap 'echo bye >\"$1.end\"; exit 3' TERM\necho $$ >\"$1\"\n"
                                                "while :; do sleep 0.02; done\n") +
                        "\" \"" + (folder / "pid") + "\"";
    ChildProcess child;
    ASSERT_TRUE(startProcess(start, child));
    pidIn(folder / "pid");
    terminateProcess(child, LONG_ENOUGH);
    EXPECT_EQ(textOf(folder / "pid.end"), "bye\n");
}

TEST(Processes, WhatACompilerLeavesBehindEndsWithIt) {
    ScratchFolder folder;
    ProcessStart start;
    start.commandLine = "\"" + folder.script("leaves", "sleep 60 &\necho $! >\"$1\"\nkill -SEGV $$\n") + "\" \"" +
                        (folder / "pid") + "\"";
    ChildProcess child;
    ASSERT_TRUE(startProcess(start, child));
    endOf(child);
    pid_t below = pidIn(folder / "pid");
    releaseProcess(child, true);
    EXPECT_TRUE(waitUntil([&] { return !alive(below); }));
}

TEST(ConsoleProcesses, RunInATerminalAndTellTheirEnd) {
    ScratchFolder folder("con sole");
    // One terminal waits for its program, the other hands it over and ends at once.
    for (const char* run : {"setsid -w \"$@\"\n", "setsid \"$@\" &\n"}) {
        ScopedVariable terminal("TERMINAL", fakeTerminal(folder, run).c_str());
        ProcessStart start;
        start.kind = ProcessKind::console;
        start.folder = folder.path.string();
        start.commandLine = "\"" + folder.script("prog ram", "pwd >where; sleep 0.2; kill -ABRT $$") + "\"";
        ChildProcess child;
        ASSERT_TRUE(startProcess(start, child));
        EXPECT_EQ(exitWords(endOf(child)), "was ended by signal 6 (Aborted)");
        EXPECT_EQ(textOf(folder / "where"), folder.path.string() + "\n");
        std::string statusFile = child.statusFile;
        releaseProcess(child, false);
        EXPECT_FALSE(std::filesystem::exists(statusFile));
    }
}

TEST(ConsoleProcesses, EndWithTheirTerminal) {
    ScratchFolder folder;
    for (const char* run : {"setsid -w \"$@\"\n", "setsid \"$@\" &\n"}) {
        ScopedVariable terminal("TERMINAL", fakeTerminal(folder, run).c_str());
        std::filesystem::remove(folder / "pid");
        ProcessStart start;
        start.kind = ProcessKind::console;
        start.commandLine = "\"" +
                            folder.script("loop", "trap '' TERM HUP; echo $$ >\"$1\"\nwhile :; do sleep 0.05; done") +
                            "\" \"" + (folder / "pid") + "\"";
        ChildProcess child;
        ASSERT_TRUE(startProcess(start, child));
        pid_t program = pidIn(folder / "pid");
        std::uint32_t code = 0;
        EXPECT_TRUE(processExitCode(child, code));
        EXPECT_EQ(code, STILL_RUNNING);
        terminateProcess(child, 50);
        EXPECT_TRUE(waitUntil([&] { return !alive(program); }));
    }
}

TEST(ConsoleProcesses, NeedATerminalProgram) {
    ScratchFolder folder;
    ScopedVariable terminal("TERMINAL", nullptr);
    ProcessStart start;
    start.kind = ProcessKind::console;
    start.commandLine = "\"" + folder.script("program", "") + "\"";
    ScopedVariable path("PATH", folder.path.c_str());
    ChildProcess child;
    EXPECT_FALSE(startProcess(start, child));
    EXPECT_THAT(lastSystemError.text, testing::HasSubstr("terminal"));
}
