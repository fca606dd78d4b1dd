// Names are given once, whoever gives them; and in Fortran whatever their case.
#include "project/naming.h"

#include "project/files.h"
#include "project/placement.h"
#include "support/box_script.h"
#include "support/sample_project.h"
#include "support/scratch.h"

#include <gtest/gtest.h>

namespace {

constexpr int LANGUAGES[] = {77, 90, 99};

// A project in which every kind of thing has a name: Form1 with Greet, the status bar Bar, the menu entries File and
// File_Pop1 and separator1, the pane Dock, and the tree Tree with the entry Fruit below a structure entry.
WidgetNode* namedProject(int language) {
    WidgetNode* form = freshProject();
    project.projectLanguage = language;
    addRecord(form->child, TYPE_BUTTON, "Greet");
    addRecord(form->child, TYPE_PANE, "Dock");
    form->statusBar = std::make_unique<StatusBarRec>();
    form->statusBar->name = "Bar";
    addEntry(*form, MENU_BAR, 0, "", "Menu");
    addEntry(*form, MENU_ENTRY, 0, "File", "File");
    addEntry(*form, MENU_PULL_DOWN, 1, "", "File_Pop1");
    addEntry(*form, MENU_SEPARATOR, 1, "", "separator1");
    WidgetNode* tree = addRecord(form->child, TYPE_TREE_VIEW, "Tree");
    addEntry(*tree, MENU_BAR, 0, "", "NoWidget");
    addEntry(*tree, MENU_ENTRY, 0, "Fruit", "Fruit");
    return form;
}

const char* const TAKEN[] = {"Form1", "Form1_MainPanel", "Greet", "Dock",       "Bar",  "Menu",
                             "File",  "File_Pop1",       "Tree",  "separator1", "Fruit"};

std::string inCapitals(std::string name) {
    for (char& c : name) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return name;
}

// Every name that the source declares, as the language tells them apart, stands once.
void expectNamesOnce() {
    const NamesInUse names;
    for (const auto& [name, count] : names.counts) EXPECT_EQ(count, 1) << name;
}

TEST(NameFree, NothingOfAnyKindGivesItsNameAway) {
    for (const int language : LANGUAGES) {
        namedProject(language);
        for (const std::string name : TAKEN) {
            SCOPED_TRACE(name + " in " + std::to_string(language));
            EXPECT_FALSE(nameFree(name));
            EXPECT_EQ(nameFree(inCapitals(name)), language == 99);
        }
        EXPECT_TRUE(nameFree("NoWidget"));
        EXPECT_TRUE(nameFree("Other"));
    }
    freshProject();
}

TEST(NameFree, WhatIsAboutToGoCountsAsFree) {
    WidgetNode* form = namedProject(90);
    WidgetNode* tree = findName(project.forms, "Tree", false);
    struct Row {
        const WidgetNode* owner;
        NameOf what;
        const char* free;
        const char* taken; // something else of the same record
    };
    const Row rows[] = {{form, NameOf::Record, "form1", "File"},      {form, NameOf::Entries, "FILE", "Form1"},
                        {form, NameOf::Entries, "separator1", "Bar"}, {form, NameOf::StatusBar, "Bar", "Menu"},
                        {tree, NameOf::Entries, "Fruit", "Tree"},     {tree, NameOf::Record, "tree", "Fruit"}};
    for (const Row& row : rows) {
        EXPECT_TRUE(nameFree(row.free, row.owner, row.what)) << row.free;
        EXPECT_FALSE(nameFree(row.taken, row.owner, row.what)) << row.taken;
    }
    freshProject();
}

TEST(NameFree, TheFirstFreeNumberIsTakenWhateverASessionCounted) {
    namedProject(90);
    NamesInUse names;
    EXPECT_EQ(firstFreeName("separator", names), "separator2");
    EXPECT_EQ(firstFreeName("separator", names), "separator3");
    EXPECT_EQ(firstFreeName("File_Pop", names), "File_Pop2");
    EXPECT_EQ(firstFreeName("StatBar", names), "StatBar1");
    freshProject();
}

TEST(NewNames, NumbersWhoseNamesAreTakenArePassedOver) {
    const BoxScript boxes;
    for (const int language : LANGUAGES) {
        SCOPED_TRACE(language);
        WidgetNode* form = namedProject(language);
        addRecord(form->child, TYPE_LIST_BOX, "Form1_Button1");
        form->statusBar->name = "Form1_button2";
        addEntry(*form, MENU_ENTRY, 0, "x", "form1_BUTTON3");
        const std::string name = placeWidget(17001, form, 1, 1).widget->name;
        EXPECT_EQ(name, language == 99 ? "Form1_Button2" : "Form1_Button4");
        expectNamesOnce();
    }
    WidgetNode* form = namedProject(90);
    addRecord(form->child, TYPE_BUTTON, "FORM2");
    addRecord(form->child, TYPE_BUTTON, "Form3_MainPanel");
    EXPECT_EQ(newForm()->name, "Form4");
    expectNamesOnce();
    freshProject();
}

TEST(NewNames, ALoweredCounterGivesNoNameTwice) {
    const BoxScript boxes;
    WidgetNode* form = freshProject();
    WidgetNode* panel = placeWidget(17010, form, 0, 0).widget;
    placeWidget(17010, form, 0, 0);
    placeWidget(17020, panel, 0, 0); // the panel becomes a radio box and gives its number back
    placeWidget(17010, form, 0, 0);
    placeWidget(17010, form, 0, 0);
    expectNamesOnce();
    freshProject();
}

WidgetNode* linkedCopy(const WidgetNode* node, WidgetNode* parent, bool ahead) {
    WidgetNode* copy =
        ahead ? linkChildAfter(*parent, nullptr, copyNode(node, false)) : linkChild(*parent, copyNode(node, false));
    return copy;
}

TEST(CopiedNames, ACopyNeverSharesANameWhereverItStands) {
    for (const int language : LANGUAGES)
        for (const bool ahead : {false, true})
            for (const bool otherForm : {false, true}) {
                SCOPED_TRACE(std::to_string(language) + (ahead ? " ahead" : " behind") + (otherForm ? " other" : ""));
                WidgetNode* form = namedProject(language);
                WidgetNode* second = newForm();
                WidgetNode* panel = addRecord(form->child, TYPE_PANEL, "Form1_Panel1");
                WidgetNode* tree = addRecord(panel, TYPE_TREE_VIEW, "Form1_TreeView1");
                addRecord(panel, TYPE_BUTTON, "Press");
                addEntry(*tree, MENU_ENTRY, 0, "a", "Form1_Apple");
                addEntry(*tree, MENU_ENTRY, 0, "b", "Pear");
                addRecord(second->child, TYPE_SLIDER, "form2_Apple");
                WidgetNode* copy = linkedCopy(panel, (otherForm ? second : form)->child, ahead);
                nameCopies({copy});
                expectNamesOnce();
                EXPECT_EQ(panel->name, "Form1_Panel1") << "the original keeps its name";
                EXPECT_EQ(tree->entries[0].name, "Form1_Apple");
                EXPECT_EQ(copy->name.substr(0, 6), otherForm ? "Form2_" : "Form1_");
            }
    freshProject();
}

TEST(FormNames, AFormWhoseFamilyWouldMeetANameKeepsIts) {
    for (const int language : LANGUAGES) {
        SCOPED_TRACE(language);
        WidgetNode* form = namedProject(language);
        addRecord(form->child, TYPE_BUTTON, "Form1_Button1");
        addRecord(form->child, TYPE_BUTTON, "main_Button1");
        addEntry(*form, MENU_ENTRY, 0, "x", "Form1_Exit");
        EXPECT_EQ(clashOfFormName(*form, "Main"), language == 99 ? "" : "Main_Button1");
        EXPECT_EQ(clashOfFormName(*form, "main"), "main_Button1");
        EXPECT_EQ(clashOfFormName(*form, "Greet"), "Greet");
        EXPECT_EQ(clashOfFormName(*form, "Window"), "");
        EXPECT_EQ(clashOfFormName(*form, "FORM1"), "") << "the family goes with it";
        EXPECT_EQ(clashOfFormName(*form, std::string(250, 'a')).size(), 250U + 10U) << "a name would get too long";
        addRecord(form->child, TYPE_BUTTON, "Window_Exit");
        EXPECT_EQ(clashOfFormName(*form, "Window"), "Window_Exit") << "entries follow too";
    }
    freshProject();
}

TEST(InsertedNames, WhatIsTakenGetsANumberInTheFormsCodeToo) {
    for (const int language : LANGUAGES) {
        SCOPED_TRACE(language);
        const ScratchFolder folder;
        WidgetNode* form = freshProject();
        project.projectLanguage = language;
        form->name = "Other";
        form->child->name = "Other_MainPanel";
        addRecord(form->child, TYPE_BUTTON, "GREET")->slots[SLOT_GENERAL] = "call show(Greeting, GREET, Fruit)";
        WidgetNode* tree = addRecord(form->child, TYPE_TREE_VIEW, "Other_Tree");
        addEntry(*tree, MENU_ENTRY, 0, "f", "Fruit");
        ASSERT_TRUE(saveForm(folder / "other.wdf"));
        namedProject(language);
        std::string told = "Names of the form that this project has already were changed:";
        if (language != 99) told += "|GREET is now GREET1";
        BoxScript boxes({{"Insert Form", told + "|Fruit is now Fruit1"}});
        WidgetNode* inserted = nullptr;
        ASSERT_NE(insertForm(folder.path, "other.wdf", &inserted), 0);
        expectNamesOnce();
        EXPECT_EQ(inserted->child->child->slots[SLOT_GENERAL],
                  language == 99 ? "call show(Greeting, GREET, Fruit1)" : "call show(Greeting, GREET1, Fruit1)");
    }
    freshProject();
}

TEST(InsertedNames, AFormCannotTakeTheNameOfAWidget) {
    const ScratchFolder folder;
    freshProject()->name = "Greet";
    ASSERT_TRUE(saveForm(folder / "greet.wdf"));
    namedProject(90);
    const int count = project.widgetCount;
    const BoxScript boxes({{"Invalid Form Name", "Greet is a name of something else in this project already"}});
    EXPECT_EQ(insertForm(folder.path, "greet.wdf"), 0);
    EXPECT_EQ(project.widgetCount, count);
    freshProject();
}

} // namespace
