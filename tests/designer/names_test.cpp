// Every way to get a name, one after the other in one session: none is ever given twice.
#include "desk.h"

#include "project/files.h"
#include "project/naming.h"
#include "shell/project_commands.h"
#include "support/scratch.h"
#include "surface/live.h"

#include <QAbstractButton>
#include <QMessageBox>

namespace robot = orba::testing;

namespace {

constexpr int TOOL_RADIO = TOOL_RADIO_BUTTON;

struct Session {
    Desk desk;
    ScratchFolder folder{"names"};
    WidgetNode* box = nullptr; // a panel with a button
};

WidgetNode* named(const char* name) { return findName(project.forms, name, false); }

void copyTo(Session& one, WidgetNode* target) {
    one.desk.click(one.box, 3, 3);
    one.desk.command(CMD_COPY);
    one.desk.click(target, 350, 400);
    one.desk.command(CMD_PASTE);
}

void refuseName(Session& one, WidgetNode* widget, const char* name) {
    selectWidget(widget);
    const std::string before = widget->name;
    one.desk.setProperty("Name", name);
    EXPECT_EQ(widget->name, before);
}

void placeSome(Session& one) {
    int y = 20;
    for (const int tool : {PLACE_TOOL_BAR, PLACE_PANE, PLACE_BUTTON, PLACE_CHECK_BOX, PLACE_LIST})
        one.desk.place(tool, one.desk.panel, 210, y += 50);
}

void insertSaved(Session& one) {
    ASSERT_TRUE(saveForms(one.folder / "form.wdf", project.forms));
    selectWidget(project.forms);
    one.desk.setProperty("Name", "Other"); // its family goes with it, and the inserted form is Form1 once more
    WidgetNode* inserted = nullptr;
    ASSERT_NE(insertForm(one.folder.path, "form.wdf", &inserted), 0);
    realiseForms(inserted);
}

struct Way {
    const char* what;
    int more; // names in the project
    void (*go)(Session& one);
};

constexpr Way WAYS[] = {
    {"placing", 5, placeSome},
    {"the first radio button", 1, [](Session& one) { one.desk.place(TOOL_RADIO, one.box, 10, 60); }},
    {"paste beside the original", 3, [](Session& one) { copyTo(one, one.desk.panel); }},
    {"duplicate", 3, [](Session& one) { selectWidget(one.box), one.desk.command(CMD_DUPLICATE); }},
    {"new form", 2, [](Session& one) { one.desk.command(CMD_NEW_FORM); }},
    {"paste on another form", 3, [](Session& one) { copyTo(one, project.forms->next->child); }},
    {"cut and paste", 1,
     [](Session& one) {
         selectWidget(named("Form1_Button1"));
         one.desk.command(CMD_CUT);
         one.desk.place(PLACE_BUTTON, one.desk.panel, 20, 420);
         one.desk.click(one.desk.panel, 350, 400);
         one.desk.command(CMD_PASTE);
     }},
    {"renaming", 0, [](Session& one) { refuseName(one, named("Form1_List1"), "Form1"); }},
    {"renaming to a main panel", 0, [](Session& one) { refuseName(one, named("Form1_List1"), "Form1_MainPanel"); }},
    {"renaming to a status bar", 0, [](Session& one) { refuseName(one, named("Form1_List1"), "Bar"); }},
    {"renaming to a menu entry", 0, [](Session& one) { refuseName(one, named("Form1_List1"), "File"); }},
    {"renaming a form", 0, [](Session& one) { refuseName(one, project.forms->next, "Form1"); }},
    {"counters that start again", 7,
     [](Session& one) {
         project.counters.fill(1);
         project.nextFormNumber = 1;
         placeSome(one);
         one.desk.command(CMD_NEW_FORM);
     }},
    {"saving and loading", 3,
     [](Session& one) {
         ASSERT_TRUE(saveProject(one.folder.path, "names.wdp", true));
         ASSERT_TRUE(openProjectFile(one.folder.path, "names.wdp"));
         one.desk.panel = project.forms->child;
         project.counters.fill(1);
         placeSome(one);
     }},
    {"Insert Form", 36, insertSaved},
};

void giveEntries(WidgetNode& form) {
    form.statusBar = std::make_unique<StatusBarRec>();
    form.statusBar->name = "Bar";
    form.statusBar->panes = 1;
    MenuEntryRec bar, file;
    bar.kind = MENU_BAR;
    bar.name = "Menu";
    file.kind = MENU_ENTRY;
    file.label = file.name = "File";
    form.entries = {bar, file};
}

// Every question and refusal gets its first button, OK or Yes.
void agree(QDialog& box) {
    auto* message = qobject_cast<QMessageBox*>(&box);
    message ? message->buttons().front()->click() : box.reject();
}

} // namespace

TEST(Names, AreGivenOnceWhateverTheWay) {
    for (const int language : {77, 90, 99}) {
        Session one;
        robot::answerBoxes(agree);
        project.projectLanguage = language;
        giveEntries(*one.desk.form);
        one.desk.place(PLACE_BUTTON, one.desk.panel, 20, 500);
        one.box = one.desk.place(PLACE_PANEL, one.desk.panel, 20, 100);
        ASSERT_TRUE(one.box);
        one.desk.place(PLACE_BUTTON, one.box, 10, 10);
        for (const Way& way : WAYS) {
            SCOPED_TRACE(std::string(way.what) + " in " + std::to_string(language));
            const std::size_t before = NamesInUse().counts.size();
            way.go(one);
            const NamesInUse names;
            EXPECT_EQ(static_cast<int>(names.counts.size() - before), way.more);
            for (const auto& [name, count] : names.counts) EXPECT_EQ(count, 1) << name;
        }
        robot::answerBoxes(nullptr);
    }
}
