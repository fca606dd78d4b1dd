#include "project/defaults.h"
#include "project/host.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "support/file_writer.h"
#include "support/files.h"
#include "support/sample_project.h"

#include <gtest/gtest.h>

namespace {

TEST(Tree, NewFormsFollowTheirNumber) {
    freshProject();
    WidgetNode* first = project.forms;
    EXPECT_EQ(project.widgetCount, 1);
    EXPECT_EQ(first->name, "Form1");
    EXPECT_EQ(first->text, "Form 1");
    EXPECT_EQ(first->formType, FORM_MASTER_SDI);
    EXPECT_EQ(first->parentName, "NONE");
    EXPECT_EQ(std::pair(first->xpos, first->ypos), std::pair(200, 130)) << "on the snap grid";
    const WidgetNode& panel = *first->child;
    EXPECT_EQ(panel.type, TYPE_MAIN_PANEL);
    EXPECT_EQ(panel.name, "Form1_MainPanel");
    EXPECT_EQ(panel.text, "");
    EXPECT_EQ(std::vector({panel.subType, panel.titleFlag, panel.expand, panel.hpos, panel.vpos, panel.format}),
              std::vector({99, 0, 1, 0, 0, -1}));
    EXPECT_EQ(std::pair(panel.width, panel.height), std::pair(400, 550));

    project.projectPlatform = 'x';
    defaultRecord(TYPE_FORM)->backgroundImage = "C:\\pics\\sea and sky.v2.bmp";
    const WidgetNode* second = newForm();
    makeDefaults();
    EXPECT_EQ(first->next, second);
    EXPECT_EQ(second->formType, FORM_STATIC_SDI);
    EXPECT_EQ(second->icon, "MBIG1084");
    EXPECT_EQ(second->iconId, 84);
    EXPECT_EQ(second->child->icon, "C:\\pics\\sea and sky.v2.bmp");
    EXPECT_EQ(second->child->backgroundImage, "sea_and_sky");
    EXPECT_EQ(second->child->format, 1);
    EXPECT_EQ(std::vector({project.nextFormNumber, project.nextFormX, project.nextFormY, project.widgetCount}),
              std::vector({3, 244, 176, 2}));
}

TEST(Tree, NewRecordsComeInTheUnitOfTheProject) {
    struct Row {
        int gridMode, snapOn, snapGrid, x, y;
        std::vector<int> geometry; // x, y, width, height
        int column, row;
    };
    const Row rows[] = {
        {0, 0, 10, 203, 77, {203, 77, 225, 100}, 50, 20}, {0, 1, 10, 203, 79, {200, 70, 225, 100}, 50, 20},
        {0, 1, 0, 203, 79, {203, 79, 225, 100}, 50, 20},  {0, 1, 10, -3, 0, {-10, 0, 225, 100}, 50, 20},
        {1, 1, 10, 203, 79, {8, 3, 9, 5}, 2, 1},
    };
    for (const Row& row : rows) {
        freshProject();
        project.gridMode = row.gridMode;
        project.gridHoriz = 32;
        project.gridVert = 30;
        applyGrid();
        const std::pair cell = row.gridMode ? std::pair(25, 20) : std::pair(22, 22);
        EXPECT_EQ(std::pair(project.gridPixelX, project.gridPixelY), cell);
        defaultRecord(TYPE_TABLE_BOX)->columnWidths.assign(5, 50);
        defaultRecord(TYPE_TABLE_BOX)->rowHeights.assign(5, 20);
        project.snapOn = row.snapOn;
        project.snapGrid = row.snapGrid;
        const OwnedList node = createFromDefaults(TYPE_TABLE_BOX, row.x, row.y);
        EXPECT_EQ(std::vector({node->xpos, node->ypos, node->width, node->height}), row.geometry);
        EXPECT_EQ(node->columnWidths[0], row.column);
        EXPECT_EQ(node->rowHeights[4], row.row);
    }
    EXPECT_EQ(createFromDefaults(TYPE_MAIN_PANEL, 0, 0), nullptr);
    freshProject();
}

TEST(Tree, CopiesAreDeepAndStandAlone) {
    std::mt19937 random(3);
    randomProject(random, 3, 80);
    for (WidgetNode* node = project.forms; node; node = walkList(node, project.forms))
        node->storedParentHandle = node->storedFormCallbackId = 0; // a copy comes from no file
    const std::string whole = encodeChain(FileImage(), project.forms);
    OwnedList copy = copyNode(project.forms, true);
    EXPECT_EQ(encodeChain(FileImage(), copy.get()), whole);
    const OwnedList one = copyNode(project.forms->next, false);
    EXPECT_EQ(one->next, nullptr);
    const OwnedList middle = copyNode(project.forms->child->child, false);
    EXPECT_EQ(middle->next, nullptr);
    EXPECT_EQ(middle->parent, nullptr);
    EXPECT_FALSE(copy->inProject);
    deleteList(project.forms);
    EXPECT_EQ(project.forms, nullptr);
    EXPECT_EQ(encodeChain(FileImage(), copy.get()), whole) << "the copy shares nothing";
}

// The searches by the index must find what a walk finds, through all changes.
WidgetNode* walkForName(const std::string& name) {
    for (WidgetNode* n = project.forms; n; n = walkList(n, project.forms))
        if (n->name == name || (n->statusBar && n->statusBar->name == name)) return n;
    return nullptr;
}

TEST(Tree, LookupsStayRightThroughChanges) {
    std::mt19937 random(11);
    freshProject();
    newForm();
    const auto pick = [&](int below) { return std::uniform_int_distribution<int>(0, below - 1)(random); };
    int handle = 100;
    for (int step = 0; step < 4000; ++step) {
        std::vector<WidgetNode*> all;
        for (WidgetNode* n = project.forms; n; n = walkList(n, project.forms)) all.push_back(n);
        WidgetNode* node = all[pick(static_cast<int>(all.size()))];
        const std::string name = "Form1_W" + std::to_string(pick(40)); // with duplicates
        switch (pick(7)) {
        case 0:
        case 1:
        case 2:
            if (node->parent && all.size() < 120) setHandle(*addRecord(node, TYPE_PANEL, name), ++handle, node->handle);
            break;
        case 3: renameNode(*node, name); break;
        case 4:
            if (node->parent && node->type != TYPE_MAIN_PANEL) deleteNode(node);
            break;
        case 5: // to another place, as a drag does
            if (node->parent && node->type != TYPE_MAIN_PANEL) {
                OwnedList moved = unlinkNode(node);
                EXPECT_FALSE(node->inProject);
                linkChildAfter(*project.forms->child, project.forms->child->child, std::move(moved));
            }
            break;
        default: setHandle(*node, pick(2) ? ++handle : 0, 0);
        }
        ASSERT_EQ(findName(project.forms, name, false), walkForName(name)) << step;
        const int wanted = 100 + pick(handle - 99);
        WidgetNode* byWalk = nullptr;
        for (WidgetNode* n = project.forms; n && !byWalk; n = walkList(n, project.forms))
            if (n->handle == wanted) byWalk = n;
        ASSERT_EQ(findHandle(wanted), byWalk) << step;
    }
    freshProject();
}

TEST(Tree, FindNameSeesStatusBarsAndOnRequestEntries) {
    WidgetNode* form = freshProject();
    WidgetNode* other = newForm();
    WidgetNode* panel = addRecord(form->child, TYPE_PANEL, "Form1_Panel1");
    WidgetNode* button = addRecord(panel, TYPE_BUTTON, "Form1_Button1");
    WidgetNode* tree = addRecord(other->child, TYPE_TREE_VIEW, "Form2_TreeView1");
    addEntry(*tree, MENU_ENTRY, 0, "leaf", "leaf_entry");
    addEntry(*panel, MENU_ENTRY, 0, "x", "inner_entry");
    other->statusBar = std::make_unique<StatusBarRec>();
    other->statusBar->name = "bar";
    EXPECT_EQ(findName(project.forms, "bar", false), other);
    EXPECT_EQ(findName(project.forms, "leaf_entry", false), nullptr);
    project.currentWidget = panel;
    EXPECT_EQ(findName(project.forms, "leaf_entry", true), tree);
    EXPECT_EQ(findName(project.forms, "bar", true), other);
    EXPECT_EQ(findName(project.forms, "Form1_Panel1", true), nullptr) << "the current widget is passed over";
    EXPECT_EQ(findName(project.forms, "Form1_Button1", true), nullptr) << "with what is below it";
    EXPECT_EQ(findName(project.forms, "inner_entry", true), nullptr);
    EXPECT_EQ(findName(project.forms, "Form1_Button1", false), button);
    EXPECT_EQ(findName(project.forms, "form1", false), nullptr) << "case counts";
    EXPECT_EQ(findName(project.forms, "", false), nullptr);
    EXPECT_EQ(findForm(project.forms, "Form1_Panel1"), nullptr);
    button->selected = 1;
    EXPECT_EQ(findSelected(project.forms), button);
    EXPECT_EQ(activeForm(project.forms), form);
    clearSelected(project.forms);
    EXPECT_EQ(activeForm(project.forms), nullptr);
    freshProject();
}

TEST(Tree, ParentsAndFormsWithAndWithoutLiveHandles) {
    WidgetNode* form = freshProject();
    WidgetNode* second = newForm();
    WidgetNode* panel = addRecord(form->child, TYPE_PANEL, "Form1_Panel1");
    WidgetNode* button = addRecord(panel, TYPE_BUTTON, "Form1_Button1");
    WidgetNode* bar = addRecord(form->child, TYPE_TOOL_BAR, "Form1_ToolBar1");
    EXPECT_EQ(parentOf(form, project.forms), form) << "the head of the list";
    EXPECT_EQ(parentOf(second, project.forms), nullptr);
    EXPECT_EQ(parentOf(button, project.forms), panel);
    EXPECT_EQ(parentOf(bar, project.forms), form) << "bars live on the window";
    EXPECT_EQ(formOf(button, project.forms), form);
    EXPECT_EQ(formOf(second->child, project.forms), second);
    setHandle(*panel, 500, 400);
    setHandle(*button, 501, 500);
    const OwnedList copy = copyNode(button, false);
    EXPECT_EQ(parentOf(copy.get(), project.forms), panel) << "a copy finds its parent by handle";
    EXPECT_EQ(formOf(copy.get(), project.forms), form);
    copy->parentHandle = 9999;
    EXPECT_EQ(parentOf(copy.get(), project.forms), nullptr);
    moveFormToHead(second);
    EXPECT_EQ(project.forms, second);
    EXPECT_EQ(second->next, form);
    EXPECT_EQ(form->next, nullptr);
    EXPECT_EQ(newForm(), form->next);
    freshProject();
}

TEST(Tree, ResetLeavesTheEmptyProjectAndRecountRestartsUnusedCounters) {
    std::mt19937 random(2);
    randomProject(random, 2, 40);
    switchDefaults = {"-O2", ""};
    project.gridMode = 1;
    static int closed;
    closed = 0;
    host.closeForms = [] { ++closed; };
    resetProject();
    host = Host();
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(project.forms, nullptr);
    EXPECT_EQ(project.counters, allOnes<COUNTERS>());
    EXPECT_EQ(project.compilerSwitches, "-O2");
    EXPECT_EQ(project.customSwitches, 1);
    EXPECT_EQ(project.fileLists[LIST_LIBRARIES], FileList{""});
    EXPECT_EQ(project.currentBlockName, "General Callback");
    EXPECT_EQ(project.sourceStale, 1);
    EXPECT_EQ(project.gridMode, 1) << "the grid is set by whoever makes the new project";
    switchDefaults = {};
    addRecord(freshProject()->child, TYPE_TEXT_LABEL, "Form1_Text1");
    project.counters.fill(8);
    recountCounters();
    EXPECT_EQ(project.counters[COUNTER_TEXT], 8);
    EXPECT_EQ(project.counters[COUNTER_BUTTON], 1);
}

TEST(Tree, TypesAreKnownToFilesByTheirCodes) {
    for (const TypeCard& card : typeCards()) EXPECT_EQ(typeOfCode(card.code), card.type) << card.code;
    for (const WidgetType type : defaultOrder) EXPECT_STRNE(cardOf(type).label, "") << type;
    for (const int code : {2026, 0, -1, 1999, 2035}) EXPECT_EQ(typeOfCode(code), TYPE_UNKNOWN) << code;
    EXPECT_EQ(typeOfCode(2000), TYPE_NONE);
    EXPECT_STREQ(counterWord(COUNTER_TAB_DIA_BOX), "TabDiaBox");
}

} // namespace
