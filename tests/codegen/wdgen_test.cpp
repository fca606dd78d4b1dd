// wdgen as a makefile runs it.

#include "project_script.h"
#include "support/scratch.h"

#include "codegen/generate.h"
#include "platform/paths.h"
#include "platform/text_files.h"
#include "project/files.h"
#include "project/host.h"
#include "project/language.h"
#include "project/tree.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <sys/wait.h>

namespace fs = std::filesystem;

namespace {

std::string contents(const std::string& path) {
    std::string text;
    readTextFile(path, text);
    return text;
}

class Wdgen : public testing::Test {
protected:
    ScratchFolder scratch{"wdgen"};
    const fs::path& folder = scratch.path;
    std::string output; // of the last run
    std::string errors;

    std::string path(const std::string& name) const { return (folder / name).string(); }

    void save(int language, const std::string& script, const std::string& name = "tool.wdp") {
        project.projectLanguage = language;
        readProjectScript(script);
        ASSERT_TRUE(saveProject(folder.string(), name, true));
    }

    int run(const std::string& arguments) {
        const std::string command = "cd '" + folder.string() + "' && '" WDGEN "' " + arguments + " > out 2> err";
        const int status = std::system(command.c_str());
        output = contents(path("out"));
        errors = contents(path("err"));
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    static std::string body(const std::string& text) { return text.substr(text.find("Using ORBAWIDG")); }
};

const char SCRIPT[] =
    "colour 20 1 0.5 0\n2001 Form1\n  2002\n    2003 Form1_Button1\n    .text it's\n    > General: call press\n"
    "    2022 Form1_TxtArray1\n    columns 10 20\n    rows 5\n";

TEST_F(Wdgen, WritesWhatTheDesignerWrites) {
    for (const int language : {77, 90, 99}) {
        save(language, SCRIPT);
        GeneratedText generated;
        ASSERT_TRUE(generateText("tool", generated));
        const std::string source = "tool" + std::string(languageFacts(language).extension);
        ASSERT_EQ(run("tool.wdp"), 0) << errors;
        EXPECT_EQ(body(contents(path(source))), body(generated.text));
        EXPECT_EQ(errors, "");
        EXPECT_TRUE(fileReadable(path("tool.exe.manifest")));
        EXPECT_TRUE(fileReadable(path("toolrc.rc")));
        ASSERT_EQ(run("--stdout tool.wdp"), 0);
        EXPECT_EQ(body(output), body(generated.text));
    }
}

TEST_F(Wdgen, ChoosesWhereTheSourceGoes) {
    save(90, SCRIPT);
    ASSERT_EQ(run("tool.wdp -o other.f90"), 0);
    EXPECT_EQ(contents(path("other.f90")).rfind("! Program other\n", 0), 0U);
    EXPECT_TRUE(fileReadable(path("otherrc.rc")));
    EXPECT_FALSE(fileReadable(path("tool.f90")));

    // The path that the project holds counts, whether or not the source is there.
    fs::create_directories(folder / "src");
    project.sourceDir = path("src");
    project.sourceName = "main.f90";
    ASSERT_TRUE(saveProject(folder.string(), "tool.wdp", true));
    ASSERT_EQ(run("tool.wdp"), 0);
    EXPECT_TRUE(fileReadable(path("src/main.f90")));
    EXPECT_FALSE(fileReadable(path("tool.f90")));

    // The folder of another machine does not.
    project.sourceDir = "C:\\somewhere";
    project.sourceName = "main.f90";
    ASSERT_TRUE(saveProject(folder.string(), "tool.wdp", true));
    ASSERT_EQ(run("tool.wdp"), 0);
    EXPECT_TRUE(fileReadable(path("tool.f90")));
}

TEST_F(Wdgen, ReportsOnStandardErrorAndFails) {
    save(90, SCRIPT);
    ASSERT_TRUE(writeTextFile(path("junk.wdp"), "no project"));
    const struct {
        const char* arguments;
        const char* message;
    } cases[] = {{"", "usage: wdgen"},
                 {"--nonsense tool.wdp", "usage: wdgen"},
                 {"tool.wdp -o", "usage: wdgen"},
                 {"missing.wdp", "Cannot open Project file"},
                 {"tool.wdp -o nowhere/tool.f90", "File to save code to could not be created or opened."},
                 {"junk.wdp", "File is not a ORBAWIDG Designer file"}};
    for (const auto& c : cases) {
        EXPECT_EQ(run(c.arguments), 1) << c.arguments;
        EXPECT_NE(errors.find(c.message), std::string::npos) << c.arguments << ": " << errors;
        EXPECT_EQ(output, "");
    }
    project.forms->formType = FORM_STATIC_SDI;
    ASSERT_TRUE(saveProject(folder.string(), "orphan.wdp", true));
    for (const char* arguments : {"orphan.wdp", "--stdout orphan.wdp"}) {
        EXPECT_EQ(run(arguments), 1);
        EXPECT_NE(errors.find("no master form"), std::string::npos);
        EXPECT_EQ(output, "");
    }
    EXPECT_FALSE(fileReadable(path("orphan.f90")));
}

TEST_F(Wdgen, AMissingImageIsToldButStopsNothing) {
    save(90, "2001 Form1\n.format 3\n.icon gone.ico\n");
    EXPECT_EQ(run("tool.wdp"), 0);
    EXPECT_NE(errors.find("Widget Form1 references an icon gone.ico which cannot now be found"), std::string::npos);
    EXPECT_TRUE(fileReadable(path("tool.f90")));
}

TEST_F(Wdgen, Checks) {
    save(90, SCRIPT);
    EXPECT_EQ(run("--check tool.wdp"), 0);
    EXPECT_EQ(output, "");
    save(90, "2001 Form1\n  2002\n    2003 FORM1\n");
    EXPECT_EQ(run("--check tool.wdp"), 1);
    EXPECT_EQ(output,
              "Form1: FORM1: Name: this name is taken by \"Form1\", from which it differs only in case; change it\n");
    EXPECT_FALSE(fileReadable(path("tool.f90")));
}

} // namespace
