// Chains of menu and tree entries: what is made of a list with levels, and what is refused.
#include "project/menu_chain.h"

#include "project/tree.h"
#include "support/sample_project.h"

#include <gtest/gtest.h>

namespace {

struct Row {
    int level;
    const char* caption;
};

struct MenuChain : testing::Test {
    WidgetNode* form = nullptr;
    void SetUp() override { form = freshProject(); }
};

using MenuEntries = std::vector<MenuEntryRec>;

MenuEntries entriesOf(const std::vector<Row>& rows) {
    MenuEntries entries;
    for (const Row& row : rows) {
        MenuEntryRec entry;
        entry.kind = MENU_ENTRY;
        entry.level = row.level;
        entry.label = row.caption;
        entry.name = entry.label.empty() ? "" : "n" + std::to_string(entries.size());
        entries.push_back(entry);
    }
    return entries;
}

// Kinds, levels and captions or names in one line.
std::string shape(const MenuEntries& chain) {
    std::string text;
    for (const MenuEntryRec& entry : chain) {
        const bool structure = entry.kind == MENU_BAR || entry.kind == MENU_PULL_DOWN;
        const char* kind = entry.kind == MENU_BAR         ? "bar"
                           : entry.kind == MENU_PULL_DOWN ? "pop"
                           : entry.kind == MENU_SEPARATOR ? "sep"
                                                          : "";
        text += (text.empty() ? "" : " ") + std::to_string(entry.level) + kind + ":" +
                (structure ? entry.name : entry.label);
    }
    return text;
}

} // namespace

TEST_F(MenuChain, ChainsHaveABarAndPullDowns) {
    const struct {
        std::vector<Row> rows;
        const char* chain;
    } cases[] = {
        {{}, ""},
        {{{0, ""}}, ""},
        {{{0, "File"}, {1, "Open"}}, "0bar:Form1_Menubar 0:File 1pop:File_Pop1 1:Open"},
        {{{0, "File"}, {1, "New"}, {2, "Form"}, {1, "##sep1"}, {1, "Exit"}, {0, "Help"}, {1, "About"}},
         "0bar:Form1_Menubar 0:File 1pop:File_Pop1 1:New 2pop:New_Pop1 2:Form 1sep:##sep1 1:Exit 0:Help 1pop:Help_Pop1 "
         "1:About"},
        {{{0, "A"}, {1, "B"}, {0, "A"}, {1, "C"}}, "0bar:Form1_Menubar 0:A 1pop:A_Pop1 1:B 0:A 1pop:A_Pop2 1:C"},
        {{{0, "2D plot"}, {1, "x"}}, "0bar:Form1_Menubar 0:2D plot 1pop:m2D_plot_Pop1 1:x"},
        {{{0, "File"}, {1, "Open"}, {0, ""}}, "0bar:Form1_Menubar 0:File 1pop:File_Pop1 1:Open"},
        {{{0, ""}, {0, "File"}, {1, "Open"}}, "0bar:Form1_Menubar 0:File 1pop:File_Pop1 1:Open"},
        // Not ready yet, as a preview shows it.
        {{{2, "File"}, {3, "##"}, {9, "Open"}}, "0bar:Form1_Menubar 0:File 1pop:File_Pop1 1sep:## 1:Open"},
    };
    for (const auto& one : cases) EXPECT_EQ(shape(buildChain(entriesOf(one.rows), *form)), one.chain);
}

TEST_F(MenuChain, ATreesPullDownBearsTheNameOfTheEntryAbove) {
    WidgetNode tree;
    tree.type = TYPE_TREE_VIEW;
    tree.name = "Tree1";
    EXPECT_EQ(shape(buildChain(entriesOf({{0, "a"}, {1, "##b"}, {0, "c"}}), tree)),
              "0bar:Tree1_TreeView 0:a 1pop:n0 1:##b 0:c");
}

TEST_F(MenuChain, FaultsAreToldInOrderEachOnce) {
    const struct {
        const char* name;
        std::vector<Row> rows;
        std::vector<std::pair<const char*, int>> faults;
    } cases[] = {
        {"nothing", {{0, ""}}, {}},
        {"fine", {{0, "File"}, {1, "Open"}}, {}},
        {"only titles", {{0, "File"}, {0, "Edit"}}, {{"Incomplete menu bar", 0}}},
        {"unnamed in the middle", {{0, "File"}, {1, ""}, {1, "Open"}, {1, ""}, {1, "x"}}, {{"Entry not named", 1}}},
        {"empty ends", {{0, ""}, {0, "File"}, {1, "Open"}, {0, ""}}, {}},
        {"jump", {{0, "File"}, {2, "Open"}}, {{"Level Error", 1}}},
        {"first too deep", {{1, "File"}, {1, "Open"}}, {{"Level Error", 0}}},
        {"first empty, next too deep", {{0, ""}, {1, "Open"}}, {{"Level Error", 1}}},
        {"below a separator", {{0, "File"}, {1, "##"}, {2, "Open"}}, {{"Cascading entry is child of separator", 2}}},
        {"separator at the end", {{0, "File"}, {1, "Open"}, {1, "##"}}, {}},
        {"more than one", {{0, ""}, {3, ""}, {0, "x"}}, {{"Entry not named", 1}, {"Level Error", 1}}},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        std::vector<std::pair<std::string, int>> found, expected;
        for (const ChainFault& fault : checkEntries(entriesOf(one.rows), *form))
            found.emplace_back(fault.title, fault.row);
        for (const auto& [title, row] : one.faults) expected.emplace_back(title, row);
        EXPECT_EQ(found, expected);
    }
}

TEST_F(MenuChain, NamesAreGoodAndFree) {
    MenuEntries entries = entriesOf({{0, "File"}, {1, "Open"}, {1, "Close"}});
    for (const char* bad : {"2x", "a b", "n1", "Form1"}) {
        entries[2].name = bad;
        const std::vector<ChainFault> faults = checkEntries(entries, *form);
        ASSERT_EQ(faults.size(), 1U) << bad;
        EXPECT_EQ(faults[0].text, std::string(bad) + " is a duplicate or invalid Fortran/C variable name");
    }
    entries[2].name = "n2";
    form->entries = buildChain(entries, *form);
    EXPECT_TRUE(checkEntries(editableEntries(form->entries), *form).empty()) << "its own names are no duplicates";
    EXPECT_EQ(shape(buildChain(editableEntries(form->entries), *form)), shape(form->entries)) << "nor those of its bar";
}

TEST_F(MenuChain, CaptionsBecomeNames) {
    const struct {
        const char *caption, *name;
    } cases[] = {{"Open", "Form1_Open_entry"},
                 {"Save As...", "Form1_Save_As____entry"},
                 {"Re-do it", "Form1_Re_do_it_entry"},
                 {"2D", "Form1_2D_entry"},
                 {"\xc3\x9c", "Form1____entry"}};
    for (const auto& one : cases) {
        NamesInUse names;
        EXPECT_EQ(entryNameFrom(*form, one.caption, names), one.name);
        const std::string second = entryNameFrom(*form, one.caption, names);
        EXPECT_NE(second, one.name) << "is taken now";
        EXPECT_TRUE(isIdentifier(second));
    }
    NamesInUse names;
    project.projectLanguage = 90;
    const std::string longest = entryNameFrom(*form, std::string(255, 'x'), names);
    EXPECT_LE(longest.size(), 63U) << "what Fortran takes";
    EXPECT_LE(entryNameFrom(*form, std::string(255, 'x'), names).size(), 63U);
    EXPECT_EQ(newSeparator(1, names).label, "##sep1");
    EXPECT_EQ(newSeparator(1, names).name, "separator2");
}

// A file can hold anything.
TEST_F(MenuChain, OldChainsAreReadWithoutTheirStructure) {
    MenuEntries chain = entriesOf({{-3, "File"}, {700, "line"}});
    chain[1].kind = MENU_SEPARATOR;
    chain.push_back({});
    chain.back().kind = MENU_PULL_DOWN;
    const MenuEntries entries = editableEntries(chain);
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].level, 0);
    EXPECT_EQ(entries[1].label, "##line");
    EXPECT_EQ(shape(buildChain(entries, *form)), "0bar:Form1_Menubar 0:File 1pop:File_Pop1 1sep:##line");
}
