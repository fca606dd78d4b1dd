#include "compile/driver.h"
#include "compile/execute.h"
#include "compile/log.h"
#include "compile_room.h"

#include "platform/environment.h"
#include "platform/file_times.h"
#include "platform/paths.h"
#include "project/tree.h"

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr char HELLO[] = "program hello\nend program\n";

struct DriverTest : BuildRoom {
    DriverTest() {
        compiler.profile = COMPILER_GNU;
        newForm()->formType = FORM_MASTER_SDI; // else there is something to complain of
        scratch.write("install/include/orbawidg/menu-c.h", "");
        scratch.write("install/include/orbawidg/menu_f90.mod", "");
    }
    // Stands for gfortran: does what a compiler does with its -o, and notes its arguments.
    void useFakeCompiler(const std::string& more = "") {
        useProgram("gfortran", "echo \"$@\" >>'" + (scratch / "commands") + "'\n" + more +
                                   "\nwhile [ $# -gt 0 ]; do\n"
                                   "  if [ \"$1\" = -o ]; then printf '#!/bin/sh\\n' >\"$2\"; chmod +x \"$2\"; fi\n"
                                   "  shift\ndone\n");
    }
    std::vector<std::string> commandsRun() {
        std::vector<std::string> all;
        std::istringstream text(textOf(scratch / "commands"));
        for (std::string line; std::getline(text, line);) all.push_back(line);
        std::filesystem::remove(scratch / "commands");
        return all;
    }
    void build(bool force = false) {
        compileCommand(force);
        std::uint32_t code = 0;
        if (childProcess.handle != 0) waitProcess(childProcess, 10000, code);
        watchProgram();
    }
    // What every end of a failed build has in common.
    void expectFailedBuild() {
        EXPECT_EQ(childProcess.handle, 0);
        EXPECT_TRUE(noted("compile 1"));
        EXPECT_FALSE(noted("execute 1"));
        EXPECT_FALSE(notes.busy);
        EXPECT_TRUE(nothingLeftRunning());
        EXPECT_TRUE(!std::filesystem::exists(data) || std::filesystem::is_empty(data)) << "the log and the record go";
    }
};

const char* const CANNOT_COMPILE = "Compile : Compile/Link process failed|Can not find compiler/linker in registry|"
                                   "Restart ORBAWIDG Designer in compiler environment command window";

} // namespace

TEST_F(DriverTest, ARealBuildRunsItsProgram) {
    if (ORBA_SANITIZED) GTEST_SKIP() << "programs are linked without the sanitizers that this toolkit needs";
    // Where the build tree has no toolkit, its libraries are empty ones: the program needs none of them.
    scratch.write("empty.c", "");
    std::filesystem::create_directories(scratch / "install/lib");
    ASSERT_EQ(std::system(("cd '" + scratch.path.string() +
                           "' && gcc -shared -o install/lib/liborbawidg.so empty.c && "
                           "gcc -c empty.c && ar rc install/lib/liborbawidg_f.a empty.o")
                              .c_str()),
              0);
    for (const char* name : {"hello there", "say \"hi\" & it's $HOME, ok", "äöü"}) {
        notes = {};
        project.projectModified = 0;
        std::filesystem::remove(work + "/mark");
        useSource(std::string(name) + ".f90", "program hello\n open(7, file='mark')\n write(7,*) 'made'\nend\n");
        build();
        EXPECT_THAT(notes.boxes, IsEmpty()) << testing::PrintToString(notes.list);
        EXPECT_EQ(textOf(work + "/mark"), " made\n") << "started in the folder of its own";
        EXPECT_EQ(project.exeTime, fileTime(work + "/" + name));
        EXPECT_EQ(project.projectModified, 0) << "a time is nothing that the user would miss";
        EXPECT_FALSE(std::filesystem::exists(work + "/" + name + ".o"));
        EXPECT_THAT(notes.calls,
                    ElementsAre("compile 0", "execute 0", "abort 1", "abort 0", "abort 1", "compile 0", "execute 0",
                                "watch 2000", "print 1", "watch 0", "abort 0", "compile 1", "execute 1"));
    }
}

TEST_F(DriverTest, NothingIsCompiledTwice) {
    useFakeCompiler();
    useSource("app.f90", HELLO);
    std::string sub = scratch.write("my project/sub.f90", "");
    scratch.write("my project/bare", "");
    setList(LIST_SOURCES, {sub, work + "/bare", "old.f"});
    scratch.write("my project/old.f", "");
    std::filesystem::rename(work + "/bare", work + "/bare.f90");

    build();
    EXPECT_THAT(commandsRun(), testing::SizeIs(5)) << "three sources, main and link";
    EXPECT_THAT(project.fileLists[LIST_SOURCES], ElementsAre(sub, work + "/bare.f90", "old.f", ""));
    EXPECT_EQ(project.sourceFileTimes[0], fileTime(sub));

    build();
    EXPECT_THAT(commandsRun(), IsEmpty()) << "up to date";
    EXPECT_TRUE(noted("watch 2000")) << "but started";

    project.exeTime = 0; // as a generation leaves it
    build();
    EXPECT_THAT(commandsRun(), testing::SizeIs(2)) << "listed sources are left alone";

    std::filesystem::last_write_time(sub, std::filesystem::file_time_type::clock::now() + std::chrono::seconds(5));
    build();
    EXPECT_THAT(commandsRun(), IsEmpty()) << "the program alone decides";
    project.exeTime = 0;
    build();
    EXPECT_THAT(commandsRun(), testing::SizeIs(3));

    std::filesystem::remove(work + "/sub.o");
    project.exeTime = 0;
    build();
    EXPECT_THAT(commandsRun(), testing::SizeIs(3)) << "a missing object";

    build(true);
    EXPECT_THAT(commandsRun(), testing::SizeIs(5)) << "rebuild all";
}

TEST_F(DriverTest, ListedSourcesThatDoNotCompileAreTriedAgain) {
    useFakeCompiler("case \"$*\" in *sub.f90*) echo 'sub.f90:1:1:'; echo; echo 'Error: bad'; exit 1;; esac");
    useSource("app.f90", HELLO);
    std::string sub = scratch.write("my project/sub.f90", "");
    scratch.write("my project/sub.o", "of an earlier build");
    setList(LIST_SOURCES, {sub});
    build();
    expectFailedBuild();
    EXPECT_EQ(project.sourceFileTimes[0], 0);
    EXPECT_THAT(commandsRun(), testing::SizeIs(2)) << "main compiles all the same, nothing is linked";
}

TEST_F(DriverTest, AnOldProgramNeverStandsForOneThatFailed) {
    useFakeCompiler();
    useSource("app.f90", HELLO);
    build();
    useFakeCompiler("echo 'x.f90:1:1:'; echo 'Error: now it fails'; exit 1");
    project.exeTime = 0;
    notes = {};
    build();
    build();
    expectFailedBuild();
    EXPECT_THAT(commandsRun(), Not(IsEmpty())) << "compiled again, not taken for up to date";
    EXPECT_FALSE(std::filesystem::exists(work + "/app"));
}

// Logs and lists of arguments stand in the folder of the account's settings: two designers must not take each other's.
TEST_F(DriverTest, TwoDesignersBuildAtOnce) {
    useFakeCompiler("case \"$*\" in *aster*) word=aster;; *) word=tulip;; esac\n"
                    "echo \"$word.f90:1:1:\"; echo; sleep 0.2; echo \"Error: it is $word\"; sleep 0.2; exit 1");
    std::vector<pid_t> designers;
    for (const std::string own : {"aster", "tulip"}) {
        const pid_t designer = fork();
        ASSERT_GE(designer, 0);
        if (designer > 0) {
            designers.push_back(designer);
            continue;
        }
        const std::string other = own == "aster" ? "tulip" : "aster";
        bool right = true;
        for (int i = 0; i < 3; i++) {
            notes = {};
            useSource(own + ".f90", HELLO);
            project.exeTime = 0;
            build();
            const auto told = [](const std::string& word) {
                return testing::Matches(Contains(HasSubstr("it is " + word)))(notes.list);
            };
            right = right && told(own) && !told(other);
        }
        _exit(right ? 0 : 1);
    }
    for (const pid_t designer : designers) {
        int status = -1;
        waitpid(designer, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_TRUE(std::filesystem::is_empty(data));
}

TEST_F(DriverTest, FilesOfTheUserAreNotTakenForAnOldProgram) {
    useFakeCompiler();
    useSource("app.f90", HELLO);
    std::string own = scratch.write("my project/app", "measured values");
    build();
    build();
    expectFailedBuild();
    EXPECT_EQ(textOf(own), "measured values");
    EXPECT_THAT(notes.list, Contains(HasSubstr("is in the way of the program")));
    EXPECT_THAT(commandsRun(), IsEmpty());

    notes = {};
    std::filesystem::remove(own);
    std::filesystem::create_directory(own);
    build();
    expectFailedBuild();
    EXPECT_THAT(notes.list, Contains(HasSubstr("is in the way of the program")));
}

TEST_F(DriverTest, StaleSourcesAreGeneratedOrTheBuildEnds) {
    useFakeCompiler();
    useSource("app.f90", HELLO);
    project.sourceStale = 1;
    auto generate = buildHooks.generateSource;
    buildHooks.generateSource = [] {};
    build();
    EXPECT_THAT(notes.boxes, ElementsAre("Source not generated: Compilation aborted."));
    EXPECT_THAT(notes.calls, IsEmpty());
    buildHooks.generateSource = [] { project.sourceStale = 0; };
    build();
    EXPECT_THAT(commandsRun(), testing::SizeIs(2));
    buildHooks.generateSource = generate;
}

TEST_F(DriverTest, WhatTheCompilerWouldRejectStandsAheadOfItsWords) {
    useFakeCompiler("echo words");
    useSource("app.f90", HELLO);
    project.forms->name = "subroutine_1";
    project.forms->bubbleHelp = "it's";
    project.forms->child->name = std::string(70, 'x');
    build();
    ASSERT_THAT(notes.list, testing::SizeIs(testing::Ge(3U)));
    EXPECT_THAT(notes.list.front(), testing::StartsWith("Check: subroutine_1: "));
    EXPECT_THAT(notes.list.back(), "words");
    EXPECT_TRUE(noted("watch 2000")) << "it is no reason not to build";
}

TEST_F(DriverTest, SwitchesOfOtherCompilersStayOut) {
    useFakeCompiler();
    useSource("app.f90", HELLO);
    project.customSwitches = 1;
    project.compilerSwitches = " -nco -win -O2 /real_size:64,-Wall";
    project.linkerSwitches = "/subsystem:console /usr/bin/env -nomap -lm -mconsole";
    EXPECT_EQ(buildProject(false, COMPILER_GNU, work + "/app.f90", 1), 1);
    std::vector<std::string> commands = commandsRun();
    ASSERT_THAT(commands, testing::SizeIs(2));
    EXPECT_THAT(commands[0], HasSubstr(" -O2 -Wall"));
    EXPECT_THAT(commands[0], Not(HasSubstr("-nco")));
    EXPECT_THAT(commands[0], Not(HasSubstr("real_size")));
    EXPECT_THAT(commands[1], testing::EndsWith(" /usr/bin/env -lm"));
    EXPECT_EQ(textOf(ownFile(data, "wdesign", ".tmp")),
              "Check: switches of other compilers are left out: -nco -win /real_size:64 -nomap\n");
}

TEST_F(DriverTest, MissingCompiler) {
    ScopedVariable none("PATH", (scratch / "bin").c_str());
    useSource("app.f90", HELLO);
    build();
    EXPECT_THAT(notes.boxes,
                ElementsAre("Compile/Link: Compile/Link failed with error 2: No such file or directory",
                            "Compile : Compile/Link process failed|gfortran could not be started|Install it, or put "
                            "its folder on PATH and start the designer again"));
    expectFailedBuild();
}

TEST_F(DriverTest, CompilersThatEndBadlyAreToldInTheLog) {
    struct Row {
        const char* body;
        const char* entry;
    };
    const Row rows[] = {
        {"kill -SEGV $$", "wdesign: error: gfortran was ended by signal 11 (Segmentation fault)"},
        {"sleep 60 & kill -KILL $$", "wdesign: error: gfortran was ended by signal 9 (Killed)"},
        {"echo only words; exit 3", "wdesign: error: gfortran ended with code 3"},
        {"exit 0", "wdesign: error: no program was made:"},
        {"printf 'x\\377\\376y\\n'; exit 1", "x??y"},
        {"echo 'gfortran: internal compiler error: Killed (program f951)' >&2; exit 4", "internal compiler error"},
    };
    for (const Row& row : rows) {
        notes = {};
        project.exeTime = 0;
        useProgram("gfortran", row.body);
        useSource("app.f90", HELLO);
        build();
        expectFailedBuild();
        EXPECT_THAT(notes.list, Contains(HasSubstr(row.entry))) << row.body;
        EXPECT_TRUE(noted("show log"));
        EXPECT_TRUE(noted("print 1"));
        EXPECT_THAT(notes.boxes, IsEmpty());
    }
}

TEST_F(DriverTest, ManyMegabytesOfMessagesFillNoMemoryAndKeepTheError) {
    useProgram("gfortran", "yes 'warning: and so on, and so forth' | head -c 50000000\n"
                           "echo 'x.f90:2:3:'; echo; echo 'Error: at last'; exit 1\n");
    useSource("app.f90", HELLO);
    build();
    expectFailedBuild();
    EXPECT_LE(notes.list.size(), 2500U);
    EXPECT_THAT(notes.list, Contains("Error: at last"));
    EXPECT_LE(notes.fed.size(), 2100U);
}

TEST_F(DriverTest, LinesComeWhileTheCompilerRuns) {
    useProgram("gfortran", "echo first; printf half; sleep 0.5; echo ' line'; exit 1\n");
    useSource("app.f90", HELLO);
    static bool seenEarly; // the driver's two lines and the compiler's first, while it goes on
    seenEarly = false;
    auto idle = buildHooks.idle;
    buildHooks.idle = [] { seenEarly = seenEarly || notes.fed.size() == 3; };
    build();
    buildHooks.idle = idle;
    EXPECT_TRUE(seenEarly);
    EXPECT_THAT(notes.fed, ElementsAre("Building Project Executable", "Please wait ...", "first", "half line"));
    EXPECT_THAT(notes.list, ElementsAre("first", "half line", "", "wdesign: error: gfortran ended with code 1"));
}

TEST_F(DriverTest, ARunningCommandCanBeCancelled) {
    useProgram("gfortran",
               "trap '' TERM\n(trap '' TERM; while :; do sleep 0.05; done) &\nwhile :; do sleep 0.05; done\n");
    useSource("app.f90", HELLO);
    notes.cancelAfter = 3;
    build();
    expectFailedBuild();
    EXPECT_THAT(notes.list, Contains("wdesign: error: the command was cancelled"));
}

TEST_F(DriverTest, VanishedFolders) {
    useFakeCompiler("test -e \"$PWD\"; for f in \"$@\"; do case $f in *app.f90) test -e \"$f\" || "
                    "{ echo \"gfortran: error: $f: No such file or directory\"; exit 1; };; esac; done");
    useSource("app.f90", HELLO);
    std::filesystem::remove_all(work);
    build();
    expectFailedBuild();
    EXPECT_THAT(notes.list, Contains(HasSubstr("No such file or directory")));

    notes = {};
    std::filesystem::remove_all(data);
    build();
    EXPECT_THAT(notes.boxes, ElementsAre("Compile/Link: Compile/Link failed with error 2: No such file or directory",
                                         CANNOT_COMPILE));
    expectFailedBuild();
}

TEST_F(DriverTest, OtherFamiliesRunTheirStepsWhateverTheySay) {
    compiler.profile = COMPILER_CVF;
    useSource("app.f90", HELLO);
    scratch.write("my project/apprc.rc", "");
    for (const char* program : {"f90", "rc", "link"}) {
        useProgram(program, std::string("echo '") + program + " says: error'; exit 1\n");
    }
    scratch.write("my project/apprc.res", "");
    scratch.write("my project/app.obj", "");
    build();
    EXPECT_THAT(notes.list, ElementsAre("f90 says: error", "rc says: error", "link says: error"));
    EXPECT_TRUE(noted("select 1"));
    EXPECT_FALSE(std::filesystem::exists(work + "/apprc.res"));
    EXPECT_FALSE(std::filesystem::exists(work + "/app.obj"));

    notes = {};
    std::filesystem::remove(scratch / "bin/rc");
    build();
    EXPECT_THAT(notes.list, ElementsAre("f90 says: error")) << "what cannot be started ends the build";
    EXPECT_THAT(notes.boxes, ElementsAre(HasSubstr("Compile/Link failed with error 2"), CANNOT_COMPILE));
}

TEST_F(DriverTest, ManifestsAreBoundWithoutChangingTheResult) {
    compiler.profile = COMPILER_VISUAL_C;
    project.projectLanguage = 99;
    useSource("app.cpp", "");
    std::string manifest = scratch.write("my project/app.exe.manifest", "");
    useProgram("cl", "");
    EXPECT_EQ(buildProject(false, COMPILER_VISUAL_C, work + "/app.cpp", 0), 1);
    EXPECT_TRUE(std::filesystem::exists(manifest));
    useProgram("mt", "exit 5");
    EXPECT_EQ(buildProject(false, COMPILER_VISUAL_C, work + "/app.cpp", 0), 1);
    EXPECT_FALSE(std::filesystem::exists(manifest));
    EXPECT_THAT(notes.boxes, IsEmpty());
    std::string record = textOf(ownFile(data, "wdcompzz", ".bat"));
    EXPECT_EQ(record.substr(0, 3), "cl ") << "the record of what ran";
    EXPECT_THAT(record, HasSubstr("\nmt -manifest "));
}
