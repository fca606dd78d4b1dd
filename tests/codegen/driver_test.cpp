// The generation around the text: choice of the file, what is written beside it, what it leaves in the project.

#include "project_script.h"
#include "support/scratch.h"

#include "codegen/generate.h"
#include "codegen/markers.h"
#include "platform/environment.h"
#include "platform/paths.h"
#include "platform/text_files.h"
#include "project/code_stores.h"
#include "project/host.h"
#include "project/language.h"
#include "project/preferences.h"
#include "project/tree.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <vector>

namespace fs = std::filesystem;

namespace {

std::vector<std::string> boxes;
std::function<bool(std::string& folder, std::string& name)> chooser;
int overwriteAnswer = ANSWER_YES;

class Driver : public testing::Test {
protected:
    ScratchFolder scratch{"codegen-driver"};
    const fs::path& folder = scratch.path;
    Host before = host;

    void SetUp() override {
        boxes.clear();
        host.errorBox = [](const std::string& title, const std::string& text) { boxes.push_back(title + ": " + text); };
        host.messageBox = [](const std::string& title, const std::string& text, int, int) {
            boxes.push_back(title + ": " + text);
            return overwriteAnswer;
        };
        host.fileDialogue = [](const std::string& title, const std::string&, bool, std::string& folder,
                               std::string& name) {
            EXPECT_EQ(title, "Create ORBAWIDG code");
            return chooser(folder, name);
        };
        project.projectLanguage = 90;
        readProjectScript("2001 Form1\n  2002\n    2003 Form1_Button1\n    .text it's\n");
        project.projectTitle.clear();
    }
    void TearDown() override { host = before; }
    std::string path(const std::string& name) const { return (folder / name).string(); }
    static std::string contents(const std::string& path) {
        std::string text;
        readTextFile(path, text);
        return text;
    }
    static void touch(const std::string& path) { std::ofstream(path) << "old"; }
    std::string script() const { return contents(path("prog") + "rc.rc"); }
    void generate() { ASSERT_TRUE(generateSource(path("prog.f90"), "prog.f90")); }
};

TEST_F(Driver, WritesSourceManifestAndScriptAndClearsTheMarks) {
    folders.architectureText = "AMD64";
    project.sourceStale = 1;
    project.exeTime = 12;
    generate();
    EXPECT_EQ(project.sourceStale, 0);
    EXPECT_EQ(project.exeTime, 0);
    EXPECT_EQ(project.projectTitle, "prog");
    EXPECT_EQ(findName(project.forms, "Form1_Button1", false)->text, "it's");
    EXPECT_EQ(contents(path("prog.f90")).rfind("! Program " + path("prog") + "\n! Last created on ", 0), 0U);
    const std::string manifest = contents(path("prog.exe.manifest"));
    EXPECT_NE(manifest.find("\tname=\"Norvane_Systems.Wdesign.prog\" \n"), std::string::npos);
    EXPECT_NE(manifest.find("\tprocessorArchitecture=\"AMD64\" \n\tname="), std::string::npos);
    EXPECT_NE(manifest.find("\tprocessorArchitecture=\"AMD64\" \n\tpublicKeyToken=\"6595b64144ccf1df\" \n"),
              std::string::npos);
    EXPECT_EQ(script(), "CREATEPROCESS_MANIFEST_RESOURCE_ID RT_MANIFEST \"" + path("prog") + ".exe.manifest\"\n");
    EXPECT_TRUE(boxes.empty());
}

TEST_F(Driver, TheManifestIsXmlWhateverTheNameOfTheProject) {
    ASSERT_TRUE(generateSource(path("R&D <\"1\">.f90"), "R&D <\"1\">.f90"));
    const std::string manifest = contents(path("R&D <\"1\">.exe.manifest"));
    EXPECT_NE(manifest.find("name=\"Norvane_Systems.Wdesign.R&amp;D &lt;&quot;1&quot;&gt;\" \n"), std::string::npos)
        << manifest;
}

TEST_F(Driver, ASourceThatDiffersByItsDateAloneStays) {
    generate();
    const std::vector<std::string> names = {"prog.f90", "prog.exe.manifest", "progrc.rc"};
    const fs::file_time_type past = fs::file_time_type::clock::now() - std::chrono::hours(1);
    std::string source = textOf(path("prog.f90"));
    const std::size_t date = source.find("created on ") + 11;
    source.replace(date, source.find('\n', date) - date, "Mon Jan  1 00:00:00 2001");
    std::ofstream(path("prog.f90"), std::ios::binary) << source;
    const auto touched = [&] {
        std::vector<std::string> result;
        for (const std::string& name : names) {
            if (fs::last_write_time(path(name)) != past) result.push_back(name);
            fs::last_write_time(path(name), past);
        }
        return result;
    };
    touched();
    project.sourceStale = 1;
    generate();
    EXPECT_EQ(touched(), std::vector<std::string>{});
    EXPECT_EQ(textOf(path("prog.f90")), source);
    EXPECT_EQ(project.sourceStale, 0);
    project.forms->text += "!";
    generate();
    EXPECT_EQ(touched(), std::vector<std::string>{"prog.f90"});
    std::ofstream(path("prog.f90"), std::ios::app) << "! added\n"; // longer than the new text
    touched();
    generate();
    EXPECT_EQ(touched(), std::vector<std::string>{"prog.f90"});
    EXPECT_EQ(textOf(path("prog.f90")).find("! added"), std::string::npos);
}

TEST_F(Driver, ALineEndInAFolderEndsNoComment) {
    GeneratedText generated;
    ASSERT_TRUE(generateText("/two\nlines/prog.f90", generated));
    EXPECT_TRUE(generated.text.starts_with("! Program /two lines/prog\n! Last created on "))
        << generated.text.substr(0, 80);
}

TEST_F(Driver, AFailureLeavesEverythingAsItWas) {
    WidgetNode* second = newForm();
    second->formType = FORM_MASTER_SDI;
    project.forms->formType = FORM_STATIC_SDI;
    project.sourceStale = 1;
    for (const std::string& bad : {path("missing/prog.f90"), folder.string(), std::string()}) {
        boxes.clear();
        EXPECT_FALSE(generateSource(bad, "prog.f90"));
        EXPECT_EQ(boxes,
                  (std::vector<std::string>{
                      "Error during save: File to save code to could not be created or opened.|Make sure the file "
                      "is not open in another application, then try again"}));
    }
    EXPECT_EQ(project.sourceStale, 1);
    EXPECT_EQ(project.forms->next, second);
    EXPECT_TRUE(project.projectTitle.empty());
}

TEST_F(Driver, WithoutAMasterAnExistingSourceIsKept) {
    project.forms->formType = FORM_STATIC_SDI;
    touch(path("prog.f90"));
    EXPECT_FALSE(generateSource(path("prog.f90"), "prog.f90"));
    EXPECT_EQ(contents(path("prog.f90")), "old");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_NE(boxes[0].find("no master form"), std::string::npos);
    EXPECT_FALSE(pathExists(path("progrc.rc")));
}

TEST_F(Driver, TheMasterStandsFirstFromThenOn) {
    readProjectScript(
        "2001 A\n.formType 0\n2001 B\n.formType 4\n2001 M\n.formType 1\n2001 C\n.formType 0\n.parentName M\n");
    generate();
    std::string order;
    for (const WidgetNode* form = project.forms; form; form = form->next) order += form->name;
    EXPECT_EQ(order, "MABC");
    // The names that the source gives to parents stay out of the records.
    EXPECT_EQ(findForm(project.forms, "A")->parentName, "NONE");
    EXPECT_EQ(findForm(project.forms, "B")->parentName, "NONE");
    EXPECT_EQ(findForm(project.forms, "C")->parentName, "M");
    const std::string first = contents(path("prog.f90"));
    generate();
    EXPECT_EQ(contents(path("prog.f90")).substr(first.find("module")), first.substr(first.find("module")));
    WidgetNode* last = newForm();
    EXPECT_EQ(findForm(project.forms, "C")->next, last);
}

// Text alone is put together without a trace: order, parents and names stay, and sizes are those of the records.
TEST_F(Driver, TextIsMadeWithoutTouchingTheProject) {
    for (const int language : {77, 90, 99}) {
        project.projectLanguage = language;
        readProjectScript("2001 A\n.formType 0\n.text it's \"a\"\n2001 B\n.formType 4\n.parentName E\n2001 M\n"
                          "+ 1001 0 Bar\n+ 1003 0 E ; it's \"e\"\n  2002\n    2022 T\n    columns 10 20\n    rows 5\n");
        project.forms->next->next->formType = FORM_MASTER_SDI;
        host.storeArrayGeometry = [](WidgetNode& node) { node.columnWidths.assign(node.columnWidths.size(), 99); };
        GeneratedText first;
        ASSERT_TRUE(generateText("prog", first));
        EXPECT_EQ(project.forms->name, "A");
        EXPECT_EQ(project.forms->text, "it's \"a\"");
        EXPECT_EQ(project.forms->next->parentName, "E");
        EXPECT_EQ(findName(project.forms, "M", false)->entries.at(1).label, "it's \"e\"");
        EXPECT_EQ(findName(project.forms, "T", false)->columnWidths, (std::vector<int>{10, 20}));
        GeneratedText second;
        ASSERT_TRUE(generateText("prog", second));
        EXPECT_EQ(second.text.substr(second.text.find("Using")), first.text.substr(first.text.find("Using")));
        generate(); // a program on the disk shows the sizes of the screen
        EXPECT_EQ(findName(project.forms, "T", false)->columnWidths, (std::vector<int>{99, 99}));
    }
}

TEST_F(Driver, ChoosesTheSourceFile) {
    project.sourceDir = folder.string();
    project.sourceName = "proposal";
    chooser = [](std::string&, std::string& name) {
        EXPECT_EQ(name, "proposal");
        name = "chosen";
        return true;
    };
    EXPECT_TRUE(chooseSourceFile());
    EXPECT_EQ(project.sourceName, "chosen.f90");
    EXPECT_EQ(sourcePath(), path("chosen.f90"));

    for (const bool answer : {false, true}) { // closed, and chosen with an empty name
        chooser = [answer](std::string& folder, std::string& name) {
            folder = "elsewhere";
            name.clear();
            return answer;
        };
        EXPECT_FALSE(chooseSourceFile());
        EXPECT_EQ(project.sourceName, "chosen.f90");
        EXPECT_EQ(project.sourceDir, folder.string());
    }
}

TEST_F(Driver, AsksBeforeASourceIsOverwritten) {
    touch(path("there.f90"));
    project.sourceDir = folder.string();
    project.sourceName = "old.f90";
    int asked = 0;
    chooser = [&asked](std::string&, std::string& name) {
        EXPECT_EQ(name, asked == 0 ? "old.f90" : "there.f90"); // after a No it starts from the name just chosen
        name = asked++ == 0 ? "there.f90" : "free.f90";
        return true;
    };
    overwriteAnswer = ANSWER_NO;
    EXPECT_TRUE(chooseSourceFile());
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(project.sourceName, "free.f90");
    EXPECT_EQ(boxes, std::vector<std::string>{"Overwrite existing file?: File already exists. Overwrite?"});
    overwriteAnswer = ANSWER_YES;
    asked = 0;
    project.sourceName = "old.f90";
    EXPECT_TRUE(chooseSourceFile());
    EXPECT_EQ(project.sourceName, "there.f90");
}

TEST_F(Driver, KindAndFilesFollowTheLanguage) {
    struct Case {
        int language;
        char platform;
        const char* kind;
        const char* extension;
    };
    for (const Case& c : {Case{77, 'w', "F77 Windows Project", ".for"}, Case{90, 'x', "F90 X-Windows Project", ".f90"},
                          Case{99, 'g', "C GLX-Windows Project", ".cpp"}}) {
        project.projectLanguage = c.language;
        project.projectPlatform = c.platform;
        EXPECT_EQ(projectKind(), c.kind);
        EXPECT_STREQ(languageFacts(c.language).extension, c.extension);
        EXPECT_EQ(std::string(languageFacts(c.language).filter).rfind("*" + std::string(c.extension) + "|", 0), 0U);
    }
    EXPECT_EQ(basePath("/home/me.too/prog"), "/home/me.too/prog");
    EXPECT_EQ(basePath("C:\\a\\prog.x.f90"), "C:\\a\\prog.x");
}

// Every pasted piece is where the map says it is, with its blanks ahead of it.
TEST_F(Driver, TheMapLeadsFromTheSourceToTheUsersCode) {
    for (const int language : {77, 90, 99}) {
        project.projectLanguage = language;
        readProjectScript("indent 5\nblock Initialization: init 1\\ninit 2\n2001 Form1\n> Window Resized: resized\n"
                          "+ 1001 0 Bar\n+ 1003 0 Entry ; Entry\n> Select: entry 1\\nentry 2\\nentry 3\n  2002\n"
                          "    2003 Button\n    > General: press\n");
        GeneratedText generated;
        ASSERT_TRUE(generateText("prog", generated));
        std::vector<std::string> lines{""};
        std::stringstream stream(generated.text);
        for (std::string line; std::getline(stream, line);) lines.push_back(line);
        ASSERT_EQ(generated.map.size(), 5U); // with the empty General slot of the form
        std::string seen;
        for (const PastedCode& place : generated.map) {
            const std::string code =
                place.kind == PastedCode::PROJECT_BLOCK ? project.codeBlocks[static_cast<std::size_t>(place.index)]
                : place.kind == PastedCode::ENTRY_SLOT
                    ? project.forms->entries.at(1).slots[static_cast<std::size_t>(place.index)]
                    : findName(project.forms, place.widget, false)->slots[static_cast<std::size_t>(place.index)];
            std::stringstream own(code);
            std::string line;
            for (int i = 0; i < place.lines; ++i) {
                line.clear();
                std::getline(own, line);
                if (!line.empty() && line.back() == '\r') line.pop_back();
                const int at = place.firstLine + i;
                EXPECT_EQ(lines[static_cast<std::size_t>(at)],
                          std::string(static_cast<std::size_t>(place.indent), ' ') + line);
                EXPECT_EQ(pastedCodeAt(generated, at), &place);
            }
            EXPECT_EQ(pastedCodeAt(generated, place.firstLine - 1), nullptr);
            seen += place.widget + "/" + place.entry + " ";
        }
        EXPECT_EQ(seen, "/ Form1/ Form1/ Form1/Entry Button/ ");
        EXPECT_EQ(pastedCodeAt(generated, 1), nullptr);
        EXPECT_EQ(pastedCodeAt(generated, 100000), nullptr);
    }
}

// Passing the text on in pieces changes neither the text nor the lines of the map.
TEST_F(Driver, ASinkGetsTheSameText) {
    std::string script = "2001 Form1\n  2002\n";
    for (int i = 0; i < 3000; ++i) {
        script +=
            "    2006 T" + std::to_string(i) + "\n    .text " + std::string(200, 'x') + "\n    > Change: one\\ntwo\n";
    }
    readProjectScript(script);
    GeneratedText whole;
    GeneratedText passed;
    std::string text;
    int pieces = 0;
    ASSERT_TRUE(generateText("prog", whole));
    ASSERT_TRUE(generateText("prog", passed, [&](std::string_view piece) {
        text += piece;
        ++pieces;
    }));
    EXPECT_GT(pieces, 3);
    EXPECT_TRUE(passed.text.empty());
    const auto body = [](const std::string& all) { return all.substr(all.find("Using")); };
    EXPECT_TRUE(body(text) == body(whole.text));
    ASSERT_EQ(passed.map.size(), whole.map.size());
    for (std::size_t i = 0; i < whole.map.size(); ++i) ASSERT_EQ(passed.map[i].firstLine, whole.map[i].firstLine);
}

// What error navigation searches for stands in the source ahead of the code, in every language.
TEST_F(Driver, MarkersAndBranchHeadsAreInTheSource) {
    for (const int language : {77, 90, 99}) {
        project.projectLanguage = language;
        std::string script = "2001 Form1\n";
        for (const SlotRow& row : slotTable) {
            const std::string name = row.name;
            script += "> " + name.substr(0, name.size() - 9) + ": code\n";
        }
        readProjectScript(script);
        project.forms->formType = FORM_MASTER_SDI;
        WidgetNode* second = newForm();
        for (CallbackSlot& slot : second->slots) slot = "code";
        for (CodeBlock& block : project.codeBlocks) block = "block";
        GeneratedText generated;
        ASSERT_TRUE(generateText("prog", generated));
        for (const CodeBlockRow& row : codeBlockTable) {
            std::string text = generated.text;
            std::string comment = row.comment;
            for (std::string* s : {&text, &comment}) {
                for (char& c : *s) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
            }
            EXPECT_NE(text.find(comment), std::string::npos) << comment;
        }
        for (const WidgetSlot slot : DEFINE_ORDER) {
            const std::string head = std::string(branchHead(language)) + "Form2" + std::string(slotOffset(slot)) + ")";
            EXPECT_NE(generated.text.find(head), std::string::npos) << head;
        }
        for (int status = 0; status < 6; ++status) {
            EXPECT_NE(generated.text.find(statusTest(language, status)), std::string::npos) << status;
        }
    }
}

// Only a form is a master: the quit code of a tool bar runs under its status, whatever form type stands in its record.
TEST_F(Driver, OnlyAMasterFormClosesTheProgram) {
    for (const int language : {77, 90, 99}) {
        project.projectLanguage = language;
        readProjectScript("2001 Form1\n  2002\n    2025 Bar\n    .formType 1\n    > Window Quit: code\n");
        GeneratedText generated;
        ASSERT_TRUE(generateText("prog", generated));
        EXPECT_NE(generated.text.find(statusTest(language, 2)), std::string::npos);
    }
}

// Both statements that set face and size keep the line length of fixed form, however long the widget's name is.
TEST_F(Driver, FontOfALongNameKeepsTheLineLength) {
    project.projectLanguage = 77;
    const std::string name(47, 'n');
    readProjectScript("2001 Form1\n  2002\n    2003 " + name + "\n    .fontFace Arial\n    .pointSize 12\n");
    GeneratedText generated;
    ASSERT_TRUE(generateText("prog", generated));
    EXPECT_NE(generated.text.find("      CALL WIDFNT(" + name + ",\n     +0,0,'Arial')\n"), std::string::npos)
        << generated.text;
    EXPECT_NE(generated.text.find("      CALL WIDFNT(" + name + ",\n     +1,12,' ')\n"), std::string::npos);
}

// --- The resource script.

TEST_F(Driver, ResourceLinesOfEverythingThatNamesAFile) {
    for (const char* name :
         {"form.ico", "form#.ico", "form&.ico", "back.bmp", "list pic.ico", "menu.ico", "tree.ico"}) {
        touch(path(name));
    }
    const auto file = [&](const char* name) { return path(name); };
    readProjectScript("2001 Form1\n.format 3\n.icon " + file("form.ico") +
                      "\n.backgroundImage form\n+ 1001 0 Bar\n+ 1003 0 E ; E ; 0 ;  ; " + file("menu.ico") +
                      " ;  ; Stock\n  2002\n  .format 1\n  .icon " + file("back.bmp") +
                      "\n  .backgroundImage back\n    2010 I1\n    .format 3\n    .icon " + file("form.ico") +
                      "\n    .backgroundImage form\n    2028 G1\n    .format 3\n    .icon " + file("form.ico") +
                      "\n    .backgroundImage other\n    2012 L1\n    * a ; " + file("list pic.ico") + "\n    * b ; " +
                      file("list pic.ico") + "\n    2031 T1\n    + 1003 0 Leaf ; Leaf ; 0 ;  ;  ; " + file("tree.ico") +
                      "\n");
    generate();
    const std::string ico = path("form.ico");
    const std::string hash = path("form#.ico");
    const std::string amp = path("form&.ico");
    EXPECT_EQ(script().substr(script().find('\n') + 1),
              "form ICON \"" + ico + "\"\nform# ICON \"" + hash + "\"\nform& ICON \"" + amp + "\"\nmenu ICON \"" +
                  path("menu.ico") + "\"\nback BITMAP \"" + path("back.bmp") + "\"\nother ICON \"" + ico +
                  "\"\nother# ICON \"" + hash + "\"\nother& ICON \"" + amp + "\"\nlist_pic ICON \"" +
                  path("list pic.ico") + "\"\ntree ICON \"" + path("tree.ico") + "\"\n");
    EXPECT_TRUE(boxes.empty());
}

TEST_F(Driver, TellsOfEveryFileThatIsMissing) {
    readProjectScript(
        "2001 Form1\n.format 3\n.icon a.ico\n+ 1001 0 Bar\n+ 1003 0 E ; E ; 0 ;  ; b.ico\n  2002\n"
        "    2015 P1\n    .format 1\n    .icon c.bmp\n    2012 L1\n    * x ; d.ico\n    2016 C1\n    * x ; e.ico\n"
        "    2031 T1\n    + 1003 0 Leaf ; Leaf ; 0 ;  ; f.ico\n    2010 I1\n    .format 4\n    .icon no.ico\n");
    generate();
    std::vector<std::string> expected;
    for (const char* text : {"Widget Form1 references an icon a.ico", "MenuBar Entry E references an icon b.ico",
                             "Widget P1 references an BMP file c.bmp", "ListBox L1 references an icon d.ico",
                             "ComboBox C1 references an icon e.ico", "Treeview T1 references an icon f.ico"}) {
        expected.push_back("Generating resource file: " + std::string(text) + " which cannot now be found");
    }
    EXPECT_EQ(boxes, expected);
    EXPECT_EQ(script().find('\n'), script().size() - 1);
}

TEST_F(Driver, BackslashesOfScriptPathsAreDoubled) {
    const std::string odd = path("dir\\pic.ico"); // a file name with a backslash in it
    touch(odd);
    readProjectScript("2001 Form1\n.format 3\n.icon x\n.backgroundImage pic\n");
    project.forms->icon = odd;
    generate();
    EXPECT_NE(script().find("pic ICON \"" + path("dir\\\\pic.ico") + "\"\n"), std::string::npos);
}

} // namespace
