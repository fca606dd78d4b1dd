// The batch commands on files: what they print, write, say and return.
#include "project/defaults.h"
#include "project/tree.h"
#include "support/file_writer.h"
#include "support/files.h"
#include "support/sample_project.h"
#include "support/scratch.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sys/wait.h>

namespace {

class WdgenFiles : public testing::Test {
protected:
    // Runs wdgen and returns its exit status; what it prints comes into `out` and `errors`.
    int run(const std::string& words) {
        const std::string line = std::string(ORBA_BINARY_DIR "/src/wdgen/wdgen ") + words + " >" + folder / "out" +
                                 " 2>" + folder / "errors";
        const int status = std::system(line.c_str());
        out = readBytes(folder / "out");
        errors = readBytes(folder / "errors");
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    std::string out;
    std::string errors;
    ScratchFolder folder;
};

TEST_F(WdgenFiles, ListPrintsOneLineARecord) {
    WidgetNode* form = freshProject();
    WidgetNode* panel = addRecord(form->child, TYPE_PANEL, "Form1_Panel1");
    addRecord(panel, TYPE_BUTTON, "Form1_Button1")->xpos = -7;
    addRecord(form->child, TYPE_SLIDER, "");
    newForm();
    writeBytes(folder / "a.wdp", encodeProject(FileImage(), project));
    ASSERT_EQ(run("--list " + folder / "a.wdp"), 0);
    EXPECT_EQ(errors, "");
    EXPECT_EQ(out, "0 2001 Form1 200 130 400 550\n"
                   "1 2002 Form1_MainPanel 0 0 400 550\n"
                   "2 2015 Form1_Panel1 0 0 175 125\n"
                   "3 2003 Form1_Button1 -7 0 75 25\n"
                   "2 2013 - 0 0 75 25\n"
                   "0 2001 Form2 220 150 400 550\n"
                   "1 2002 Form2_MainPanel 0 0 400 550\n");
}

TEST_F(WdgenFiles, UpgradeWritesTheCurrentVersionOfEveryKindOfFile) {
    freshProject();
    newForm();
    project.forms->next->selected = 1; // all forms of a form file are upgraded, not only the active one
    FileImage image;
    image.version = 30;
    image.marks = "C-w";
    writeBytes(folder / "a.wdp", encodeProject(image, project));
    writeBytes(folder / "a.wdf", encodeForm(image, project.forms, 31, 31));
    makeDefaults();
    std::vector<const WidgetNode*> records;
    for (const OwnedList& record : defaultRecords) records.push_back(record.get());
    writeBytes(folder / "a.WDD", encodeDefaults(image, records));
    const FileImage now{.marks = "C-s"};
    for (const char* name : {"a.wdp", "a.wdf", "a.WDD"}) {
        SCOPED_TRACE(name);
        ASSERT_EQ(run("--upgrade " + folder / name + " -o " + folder / "new.out"), 0) << errors;
        const std::string bytes = readBytes(folder / "new.out");
        const bool defaults = std::string(name) == "a.WDD"; // has no header that could tell a language
        EXPECT_STREQ(bytes.c_str(), defaults ? "ORBAWIDGDESIGNV8.0-F90-s" : "ORBAWIDGDESIGNV8.0-C-s");
    }
    ASSERT_EQ(run("--upgrade " + folder / "a.wdf" + " -o " + folder / "b.wdf"), 0);
    for (WidgetNode* n = project.forms; n; n = walkList(n, project.forms)) { // what the version did not hold
        n->text = n->text.substr(0, 1);                                      // as wide as the fixture wrote it
        n->fieldWidth = static_cast<int>(n->text.size());
        n->oleInserts = 1;
        if (n->type != TYPE_FORM) n->initialState = 1;
    }
    EXPECT_EQ(byteDifference(readBytes(folder / "b.wdf"), encodeForm(now, project.forms, 31, 31)), "");
    ASSERT_EQ(run("--list " + folder / "b.wdf"), 0);
    EXPECT_NE(out.find("0 2001 Form2 "), std::string::npos);
}

TEST_F(WdgenFiles, TheQuestionOfTheFirstVersionIsAnsweredByAnOption) {
    freshProject();
    FileImage image;
    image.version = 10;
    writeBytes(folder / "v1.wdp", encodeProject(image, project));
    ASSERT_EQ(run("--upgrade " + folder / "v1.wdp" + " -o " + folder / "w.wdp"), 0);
    ASSERT_EQ(run("--upgrade " + folder / "v1.wdp" + " -o " + folder / "x.wdp" + " --x-windows"), 0);
    EXPECT_EQ(errors, "");
    EXPECT_STREQ(readBytes(folder / "w.wdp").c_str(), "ORBAWIDGDESIGNV8.0-F90-s");
}

TEST_F(WdgenFiles, FailuresAreToldAndLeaveTheOutputAlone) {
    writeBytes(folder / "text.wdp", std::string(200, 'x'));
    writeBytes(folder / "text.txt", "x");
    writeBytes(folder / "kept.wdp", "kept");
    struct Row {
        std::string words;
        const char* told;
    };
    const Row rows[] = {
        {"--list " + folder / "text.wdp", "File is not a ORBAWIDG Designer file"},
        {"--list " + folder / "text.txt", "the extension tells"},
        {"--list " + folder / "none.wdf", "Cannot open Form file :none.wdf"},
        {"--list", "usage"},
        {"--upgrade " + folder / "text.wdp", "usage"},
        {"--upgrade " + folder / "text.wdp" + " -o " + folder / "kept.wdp", "not a ORBAWIDG"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(run(row.words), 1) << row.words;
        EXPECT_NE(errors.find(row.told), std::string::npos) << errors;
        EXPECT_EQ(out, "");
    }
    EXPECT_EQ(readBytes(folder / "kept.wdp"), "kept");
}

} // namespace
