#include "compile/execute.h"
#include "compile_room.h"

#include "platform/environment.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

struct ExecuteTest : BuildRoom {
    void useApplication(const std::string& body) {
        useSource("the app.f90", "");
        scratch.script("my project/the app", body);
    }
    // Ticks of the watch until the program has ended.
    void watchToTheEnd() {
        EXPECT_TRUE(waitUntil([] {
            watchProgram();
            return childProcess.handle == 0;
        }));
    }
};

} // namespace

TEST_F(ExecuteTest, ThereMustBeASource) {
    executeCommand();
    EXPECT_THAT(notes.boxes, ElementsAre("Execute Project: Must Compile & Link first"));
    EXPECT_THAT(notes.calls, IsEmpty());
}

TEST_F(ExecuteTest, ProgramsThatCannotStartAreReported) {
    useSource("the app.f90", "");
    executeCommand();
    scratch.write("my project/the app", "no program");
    executeCommand();
    EXPECT_THAT(notes.boxes,
                ElementsAre("Execute Application: Execute Application failed with error 2: No such file or "
                            "directory",
                            "Execute Application: Execute Application failed with error 13: Permission denied"));
    EXPECT_THAT(notes.calls, IsEmpty()) << "the commands stay as they were";
}

TEST_F(ExecuteTest, EndsAreNoticedByTheWatch) {
    struct Row {
        const char* body;
        bool reported;
    };
    const Row rows[] = {{"pwd >where", false}, {"exit 255", false}, {"kill -SEGV $$", true}, {"kill -TERM $$", true}};
    for (const Row& row : rows) {
        notes = {};
        useApplication(row.body);
        executeCommand();
        ASSERT_NE(childProcess.handle, 0);
        EXPECT_THAT(notes.calls, ElementsAre("abort 1", "compile 0", "execute 0", "watch 2000"));
        notes.calls.clear();
        executeCommand();
        EXPECT_THAT(notes.calls, IsEmpty()) << "one program at a time";
        watchToTheEnd();
        EXPECT_THAT(notes.calls, ElementsAre("watch 0", "abort 0", "compile 1", "execute 1"));
        if (row.reported) {
            EXPECT_THAT(notes.boxes, ElementsAre("Application Terminted: Unhandled Exception or Missing DLL"));
        } else {
            EXPECT_THAT(notes.boxes, IsEmpty());
        }
        watchProgram();
        EXPECT_EQ(notes.calls.size(), 4U) << "a late tick finds nothing";
    }
    EXPECT_EQ(textOf(work + "/where"), work + "\n");
}

TEST_F(ExecuteTest, AbortEndsProgramsThatIgnoreIt) {
    useApplication("trap '' TERM HUP INT\nsh -c 'trap \"\" TERM; while :; do sleep 0.05; done' '" +
                   scratch.path.string() + "' &\nwhile :; do sleep 0.05; done\n");
    executeCommand();
    watchProgram();
    ASSERT_NE(childProcess.handle, 0);
    notes = {};
    abortCommand();
    EXPECT_EQ(childProcess.handle, 0);
    EXPECT_THAT(notes.calls, ElementsAre("watch 0", "abort 0", "compile 1", "execute 1"));
    EXPECT_THAT(notes.boxes, IsEmpty());
    EXPECT_GT(notes.idles, 0) << "windows repaint meanwhile";
    EXPECT_TRUE(nothingLeftRunning());
}

TEST_F(ExecuteTest, AbortWithoutAProgramSaysSo) {
    abortCommand();
    EXPECT_THAT(notes.boxes, ElementsAre("Abort Application: Cannot find exit code of Project"));
    EXPECT_THAT(notes.calls, ElementsAre("watch 0", "abort 0", "compile 1", "execute 0"));
}

TEST_F(ExecuteTest, ConsoleProgramsGetATerminal) {
    std::string terminal =
        scratch.script("terminal", "echo \"$1\" >'" + (scratch / "terminal ran") + "'\nshift\n\"$@\"\n");
    ScopedVariable own("TERMINAL", terminal.c_str());
    project.linkerSwitches = "-lm /subsystem:console";
    useApplication("pwd >where; kill -SEGV $$");
    executeCommand();
    watchToTheEnd();
    EXPECT_EQ(textOf(scratch / "terminal ran"), "-e\n");
    EXPECT_EQ(textOf(work + "/where"), work + "\n");
    EXPECT_THAT(notes.boxes, ElementsAre("Application Terminted: Unhandled Exception or Missing DLL"));

    notes = {};
    useApplication("while :; do sleep 0.05; done");
    executeCommand();
    waitUntil([] { return !textOf(childProcess.statusFile).empty(); });
    abortCommand();
    EXPECT_TRUE(nothingLeftRunning());

    notes = {};
    std::filesystem::remove(work + "/the app");
    executeCommand();
    EXPECT_THAT(notes.boxes, ElementsAre(HasSubstr("failed with error 2")));
}
