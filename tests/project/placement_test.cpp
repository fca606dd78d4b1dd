#include "project/defaults.h"
#include "project/placement.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "support/box_script.h"
#include "support/sample_project.h"

#include <gtest/gtest.h>

#include <map>

namespace {

constexpr char NO_PARENT[] = "Not a valid parent widget";

TEST(Placement, EveryToolMakesItsWidgetWithTextAndName) {
    struct Row {
        int tool, type;
        const char* name;
        const char* text;
    };
    const Row rows[] = {
        {17001, TYPE_BUTTON, "Form1_Button1", "Button 1"},
        {17002, TYPE_TOGGLE, "Form1_Toggle1", "Toggle 1"},
        {17003, TYPE_LIST_BOX, "Form1_List1", "own"},
        {17004, TYPE_SLIDER, "Form1_Slider1", "own"},
        {17005, TYPE_TEXT_ENTRY, "Form1_Text1", ""},
        {17006, TYPE_VALUE_ENTRY, "Form1_Value1", "own"},
        {17007, TYPE_ICON, "Form1_Icon1", "own"},
        {17008, TYPE_TEXT_LABEL, "Form1_Text2", "Text Entry 2"},
        {17009, TYPE_VALUE_LABEL, "Form1_Value2", ""},
        {17010, TYPE_PANEL, "Form1_Panel1", "Panel 1"},
        {17011, TYPE_COMBO_BOX, "Form1_Combo1", "own"},
        {17013, TYPE_GRAPHICS_FRAME, "Form1_Graphics1", "own"},
        {17014, TYPE_TEXT_ARRAY, "Form1_TxtArray1", "TxtArray 1"},
        {17015, TYPE_VALUE_ARRAY, "Form1_ValArray1", "ValArray 1"},
        {17017, TYPE_TOOL_BAR, "Form1_ToolBar1", "ToolBar 1"},
        {17019, TYPE_TAB_BOX, "Form1_TabDiaBox1", "TabDiaBox 1"},
        {17021, TYPE_GAUGE, "Form1_Gauge1", "own"},
        {17022, TYPE_PROGRESS_BAR, "Form1_Progress1", "own"},
        {17023, TYPE_TTY_ENTRY, "Form1_TTYEntry1", "own"},
        {17024, TYPE_TREE_VIEW, "Form1_TreeView1", "own"},
        {17025, TYPE_TABLE_BOX, "Form1_TableBox1", "own"},
        {17027, TYPE_PANE, "Form1_Pane1", "Pane 1"},
    };
    const BoxScript boxes;
    WidgetNode* form = freshProject();
    for (const OwnedList& record : defaultRecords) record->text = "own";
    project.projectModified = project.sourceStale = 0;
    int count = project.widgetCount;
    for (const Row& row : rows) {
        const Placement placed = placeWidget(row.tool, form, 53.9F, 41.2F);
        ASSERT_TRUE(placed.widget) << row.tool;
        EXPECT_EQ(placed.widget->type, row.type);
        EXPECT_EQ(placed.widget->name, row.name);
        EXPECT_EQ(placed.widget->text, row.text);
        EXPECT_EQ(placed.widget->parent, form->child) << "a click on the form goes to its main panel";
        EXPECT_EQ(placed.widget->next, nullptr);
        EXPECT_EQ(placed.widget->onToolbar, 0);
        EXPECT_EQ(std::pair(placed.widget->xpos, placed.widget->ypos), std::pair(50, 40));
        EXPECT_EQ(project.widgetCount, ++count);
    }
    EXPECT_EQ(project.projectModified, 1);
    EXPECT_EQ(project.sourceStale, 1);
    makeDefaults();
}

TEST(Placement, WhichToolGoesWhere) {
    const std::string refusals[] = {
        "Toolbars can only have combo boxes, buttons, |separators and icons as its children",
        "Docking Panes can only have list boxes, panels, |tab dialogue and table boxes and treeviews|as its children",
        "Tabbed dialogue boxes can only have panels as children",
        "This widget can only have radio buttons as its children",
        "Tool bar widgets can only be placed on forms",
        "Docking Pane widgets can only be placed on forms",
        "Toolbar Separators can only be placed on toolbars",
        "Radio buttons can only be placed inside empty panels",
        "This widget can only have panels, text or value entries as its children",
        "This widget cannot support child widgets.",
    };
    enum { BAR, PANE, TABS, RADIOS, BARS, PANES, SEPARATORS, RADIO, FRAME, NONE };
    // For each parent the tools that it takes, and what others are told; tools with words of their own come behind.
    struct Row {
        WidgetType parent;
        std::vector<int> takes;
        int others;
        std::map<int, int> own;
    };
    const std::map<int, int> floating = {{17017, BARS}, {17027, PANES}, {17026, SEPARATORS}};
    std::map<int, int> inFrame = floating;
    inFrame[17020] = RADIO;
    std::map<int, int> onMain = {{17026, SEPARATORS}, {17020, RADIO}};
    std::vector<int> all;
    for (const ToolRow& tool : placementTools()) all.push_back(tool.tool);
    const Row rows[] = {
        {TYPE_TOOL_BAR, {17011, 17007, 17026, 17001}, BAR, {}},
        {TYPE_PANE, {17003, 17010, 17019, 17025, 17024, 17005}, PANE, {}},
        {TYPE_TAB_BOX, {17010}, TABS, {}},
        {TYPE_RADIO_BOX, {17020}, RADIOS, {}},
        {TYPE_GRAPHICS_FRAME, {17010, 17005, 17008, 17006, 17009}, FRAME, inFrame},
        {TYPE_MAIN_PANEL, all, NONE, onMain},
        {TYPE_PANEL, all, NONE, floating},
        {TYPE_BUTTON, {}, NONE, {}},
        {TYPE_LIST_BOX, {}, NONE, {}},
    };
    for (const Row& row : rows)
        for (const ToolRow& tool : placementTools()) {
            SCOPED_TRACE(std::to_string(row.parent) + " " + tool.entry);
            WidgetNode* form = freshProject();
            WidgetNode* parent = row.parent == TYPE_MAIN_PANEL ? form->child : addRecord(form->child, row.parent, "P");
            const bool own = row.own.count(tool.tool) > 0;
            const bool takes = !own && std::count(row.takes.begin(), row.takes.end(), tool.tool) > 0;
            BoxScript boxes;
            if (!takes) boxes.expect({NO_PARENT, refusals[own ? row.own.at(tool.tool) : row.others]});
            EXPECT_EQ(placeWidget(tool.tool, parent, 1, 1).widget != nullptr, takes);
            EXPECT_EQ(parent->child && parent->child->type != TYPE_MAIN_PANEL, takes);
        }
    freshProject();
}

TEST(Placement, NoParentAndMasterMdiAreRefused) {
    WidgetNode* form = freshProject();
    BoxScript boxes({{"No parent selected", "You must select a parent widget"}});
    EXPECT_FALSE(placeWidget(17001, nullptr, 0, 0).widget);
    form->formType = FORM_MASTER_MDI;
    boxes.expect({"Master MDI Form", "Cannot place widgets on Master MDI form"});
    EXPECT_FALSE(placeWidget(17001, form, 0, 0).widget);
    WidgetNode* bar = placeWidget(17017, form, 0, 0).widget;
    WidgetNode* pane = placeWidget(17027, form, 0, 0).widget;
    ASSERT_TRUE(bar && pane);
    const WidgetNode* button = placeWidget(17001, bar, 0, 0).widget;
    ASSERT_TRUE(button);
    EXPECT_EQ(button->onToolbar, 1);
    WidgetNode* panel = placeWidget(17010, pane, 0, 0).widget;
    ASSERT_TRUE(panel);
    boxes.expect({"Master MDI Form", "Cannot place widgets on Master MDI form"});
    EXPECT_FALSE(placeWidget(17001, panel, 0, 0).widget);
    EXPECT_FALSE(placeWidget(17000, form, 0, 0).widget) << "the selector places nothing";
}

TEST(Placement, TheFirstRadioButtonMakesARadioBox) {
    const BoxScript boxes;
    WidgetNode* form = freshProject();
    WidgetNode* panel = placeWidget(17010, form, 0, 0).widget;
    panel->subType = 3;
    EXPECT_EQ(project.counters[COUNTER_PANEL], 2);
    const int count = project.widgetCount;
    const Placement first = placeWidget(17020, panel, 0, 0);
    EXPECT_EQ(first.converted, panel);
    EXPECT_EQ(first.oldName, "Form1_Panel1");
    EXPECT_EQ(panel->type, TYPE_RADIO_BOX);
    EXPECT_EQ(panel->name, "Form1_Radio1");
    EXPECT_EQ(panel->text, "Radio Box 1");
    EXPECT_EQ(panel->borderType, 3);
    EXPECT_EQ(first.widget->subType, 6);
    EXPECT_EQ(project.counters[COUNTER_PANEL], 1);
    EXPECT_EQ(project.widgetCount, count + 1);
    EXPECT_EQ(findName(project.forms, "Form1_Panel1", false), nullptr);
    EXPECT_EQ(findName(project.forms, "Form1_Radio1", false), panel);
    const Placement second = placeWidget(17020, panel, 0, 0);
    EXPECT_EQ(second.converted, nullptr);
    EXPECT_EQ(second.widget->subType, 6);
    EXPECT_EQ(panel->name, "Form1_Radio1");
    WidgetNode* next = placeWidget(17010, form, 0, 0).widget;
    EXPECT_EQ(next->name, "Form1_Panel1");
    next->text = "Mine";
    ASSERT_TRUE(placeWidget(17002, next, 0, 0).widget);
    EXPECT_FALSE(placeWidget(17020, next, 0, 0).converted) << "a panel with a child stays one";
    EXPECT_EQ(next->type, TYPE_PANEL);
}

TEST(Placement, PagesOfATabBoxTakeNoRadioButtons) {
    WidgetNode* form = freshProject();
    WidgetNode* tabs = placeWidget(17019, form, 0, 0).widget;
    WidgetNode* page = placeWidget(17010, tabs, 0, 0).widget;
    const BoxScript boxes({{NO_PARENT, "Radio buttons can only be placed inside empty panels"}});
    EXPECT_FALSE(placeWidget(17020, page, 0, 0).widget);
}

TEST(Placement, LooksFollowThePlatform) {
    const BoxScript boxes;
    WidgetNode* form = freshProject();
    EXPECT_EQ(placeWidget(17002, form, 0, 0).widget->subType, 7);
    EXPECT_EQ(placeWidget(17007, form, 0, 0).widget->icon, "Gee");
    project.projectPlatform = 'g';
    defaultRecord(TYPE_TEXT_ENTRY)->subType = 1;
    EXPECT_EQ(placeWidget(17002, form, 0, 0).widget->subType, 0);
    EXPECT_EQ(placeWidget(17005, form, 0, 0).widget->subType, 0);
    const WidgetNode* icon = placeWidget(17007, form, 0, 0).widget;
    EXPECT_EQ(icon->icon, "MBIG1001");
    EXPECT_EQ(icon->iconId, 1);
    WidgetNode* panel = placeWidget(17010, form, 0, 0).widget;
    ASSERT_TRUE(placeWidget(17020, panel, 0, 0).widget);
    EXPECT_EQ(placeWidget(17020, panel, 0, 0).widget->subType, 4);
    makeDefaults();
}

TEST(Placement, AClickInAGraphicsFrameComesInItsOwnCoordinates) {
    const BoxScript boxes;
    WidgetNode* form = freshProject();
    project.snapOn = 0;
    WidgetNode* frame = placeWidget(17013, form, 0, 0).widget; // 125 by 75 pixels for 1000 by 750 units
    const WidgetNode* label = placeWidget(17008, frame, 500, 250).widget;
    EXPECT_EQ(std::pair(label->xpos, label->ypos), std::pair(62, 50));
}

TEST(Names, ValidNames) {
    struct Row {
        const char* name;
        bool valid;
    };
    const Row rows[] = {{"", false},    {"a", true},    {"Z9_x", true},      {"9a", false}, {"_a", false},
                        {"a b", false}, {"a-b", false}, {"\xc3\xa4", false}, {"end", true}, {"a\xc3\xa4", false}};
    freshProject();
    for (const Row& row : rows) EXPECT_EQ(nameFree(row.name), row.valid) << row.name;
    EXPECT_TRUE(nameFree(std::string(NAME_LIMIT, 'a')));
    EXPECT_FALSE(nameFree(std::string(NAME_LIMIT + 1, 'a')));
    EXPECT_EQ(identifierFrom("Save as (new)..."), "Save_as__new____");
    freshProject();
}

TEST(Names, PastedRecordsTakeTheNameOfTheirNewForm) {
    WidgetNode* form = freshProject();
    WidgetNode* second = newForm();
    WidgetNode* panel = addRecord(form->child, TYPE_PANEL, "Form1_Panel1");
    addRecord(panel, TYPE_BUTTON, "Form1_my_button");
    addRecord(panel, TYPE_BUTTON, "plain");
    addRecord(panel, TYPE_BUTTON, "other_name");
    WidgetNode* copy = linkChild(*second->child, copyNode(panel, false));
    const int count = project.widgetCount;
    defaultName(copy, NAME_PASTED);
    EXPECT_EQ(copy->name, "Form2_Panel1");
    EXPECT_EQ(copy->child->name, "Form2_my_button");
    EXPECT_EQ(copy->child->next->name, "plain");
    EXPECT_EQ(copy->child->next->next->name, "other_name") << "no form of that name";
    EXPECT_EQ(project.widgetCount, count + 4);
    EXPECT_EQ(panel->name, "Form1_Panel1");
    defaultName(copy, NAME_NEW);
    EXPECT_EQ(copy->name, "Form2_Panel1");
    EXPECT_EQ(copy->child->next->next->name, "Form2_Button3");
    freshProject();
}

TEST(Paste, WhatAParentTakes) {
    struct Row {
        WidgetType target;
        std::vector<WidgetType> records;
        const char* refusal;         // null: taken
        const char* title = nullptr; // of the refusal on a Master MDI form
    };
    const Row rows[] = {
        {TYPE_MAIN_PANEL, {TYPE_BUTTON, TYPE_TOOL_BAR, TYPE_PANE}, nullptr},
        {TYPE_MAIN_PANEL, {TYPE_TOOL_SEPARATOR}, "Toolbar Separators can only be placed on toolbars"},
        {TYPE_PANEL, {TYPE_TOOL_SEPARATOR}, "Toolbar Separators can only be placed on toolbars"},
        {TYPE_MAIN_PANEL, {TYPE_TOOL_BAR, TYPE_BUTTON}, "Cannot place widgets on Master MDI form", "Master MDI Form"},
        {TYPE_PANEL, {TYPE_BUTTON}, "Cannot place widgets on Master MDI form", "Master MDI Form"},
        {TYPE_BUTTON, {TYPE_BUTTON}, "This widget cannot support child widgets."},
        {TYPE_PANEL, {TYPE_BUTTON, TYPE_TAB_BOX}, nullptr},
        {TYPE_PANEL, {TYPE_BUTTON, TYPE_PANE}, "Panels can not support Panes or Tool bars"},
        {TYPE_PANEL, {TYPE_TOOL_BAR}, "Panels can not support Panes or Tool bars"},
        {TYPE_RADIO_BOX, {TYPE_TOGGLE, TYPE_TOGGLE}, nullptr},
        {TYPE_RADIO_BOX, {TYPE_TOGGLE, TYPE_BUTTON}, "Radio boxes can only support Toggles"},
        {TYPE_TAB_BOX, {TYPE_PANEL}, nullptr},
        {TYPE_TAB_BOX, {TYPE_RADIO_BOX}, "Tab Dialogue boxes can only support Panels"},
        {TYPE_TOOL_BAR, {TYPE_BUTTON, TYPE_ICON, TYPE_COMBO_BOX}, nullptr},
        {TYPE_TOOL_BAR, {TYPE_TOOL_SEPARATOR}, "Toolbars can only support Buttons, Icons and Combo Boxes"},
        {TYPE_PANE,
         {TYPE_TEXT_ENTRY, TYPE_LIST_BOX, TYPE_PANEL, TYPE_TAB_BOX, TYPE_TREE_VIEW, TYPE_TABLE_BOX},
         nullptr},
        {TYPE_PANE,
         {TYPE_TEXT_LABEL},
         "Panes can only support List Boxes, Panels, Tabbed Dialogue Boxes,|Table Boxes, Tree Views and Text Editors"},
        {TYPE_GRAPHICS_FRAME, {TYPE_TEXT_LABEL, TYPE_VALUE_ENTRY, TYPE_PANEL}, nullptr},
        {TYPE_GRAPHICS_FRAME,
         {TYPE_ICON},
         "Graphics Frames can only support Panels, Text or Value Entries as children"},
    };
    for (const Row& row : rows) {
        WidgetNode* form = freshProject();
        if (row.title) form->formType = FORM_MASTER_MDI;
        WidgetNode* target = row.target == TYPE_MAIN_PANEL ? form : addRecord(form->child, row.target, "T");
        Records records;
        for (const WidgetType type : row.records) {
            WidgetNode* node = new WidgetNode();
            node->type = type;
            records.push_back(node);
        }
        BoxScript boxes;
        if (row.refusal) boxes.expect({row.title ? row.title : NO_PARENT, row.refusal});
        EXPECT_EQ(mayHold(*containerFor(target), records), row.refusal == nullptr) << row.target;
        for (WidgetNode* node : records) deleteNode(node);
    }
    freshProject();
}

TEST(Paste, APositionOutsideIsAskedAbout) {
    struct Row {
        int answer;
        bool result;
        std::vector<int> positions;
    };
    const Row rows[] = {{ANSWER_YES, true, {10, 40, 60, 10}},
                        {ANSWER_NO, true, {150, 90, 200, 60}},
                        {ANSWER_CANCEL, false, {150, 90, 200, 60}}};
    for (const Row& row : rows) {
        WidgetNode* form = freshProject();
        WidgetNode* panel = addRecord(form->child, TYPE_PANEL, "T");
        panel->width = panel->height = 120;
        const OwnedList chain = makeDefaultRecord(TYPE_BUTTON);
        chain->next = makeDefaultRecord(TYPE_BUTTON).release();
        chain->xpos = 150, chain->ypos = 90;
        chain->next->xpos = 200, chain->next->ypos = 60;
        const BoxScript boxes({{"Paste widget position outside parent dimensions",
                                "Do you want to reposition near origin?", row.answer}});
        EXPECT_EQ(settleInside(*panel, chainOf(chain.get())), row.result);
        EXPECT_EQ(std::vector({chain->xpos, chain->ypos, chain->next->xpos, chain->next->ypos}), row.positions);
    }
    freshProject();
}

TEST(FormTypes, ChoicesAskRefuseAndReachOtherForms) {
    const ExpectedBox taken = {"Master already set",
                               "A form has already been set as the master.|If you set this form as the master, the "
                               "current master will become a child SDI window form.|Do you wish to continue?"};
    const ExpectedBox children = {"Master SDI Requested",
                                  "All child MDI forms will be reset to child SDI forms|Do you wish to continue?"};
    const auto answered = [](ExpectedBox box, int answer) {
        box.answer = answer;
        return box;
    };
    struct Row {
        const char* what;
        std::vector<int> before;
        int form;
        int choice;
        std::vector<ExpectedBox> boxes;
        std::vector<int> after;
    };
    const Row rows[] = {
        {"only form", {1}, 0, 4, {{"Form Type Change", "Cannot change only form to be Child SDI"}}, {1}},
        {"child", {1, 0}, 1, 4, {}, {1, 4}},
        {"no MDI master", {1, 0}, 1, 2, {{"No Master MDI form found", "Cannot set a form to be child MDI"}}, {1, 0}},
        {"MDI child", {3, 0}, 1, 5, {}, {3, 5}},
        {"master kept", {1, 0}, 1, 1, {answered(taken, ANSWER_NO)}, {1, 0}},
        {"master taken", {1, 0}, 1, 1, {answered(taken, ANSWER_YES)}, {0, 1}},
        {"SDI from MDI", {3, 2, 5}, 0, 1, {answered(children, ANSWER_YES)}, {1, 0, 4}},
        {"SDI refused", {3, 2, 5}, 0, 1, {answered(children, ANSWER_NO)}, {3, 2, 5}},
        {"MDI master", {1, 0}, 0, 3, {}, {3, 0}},
        {"the same", {1, 0}, 0, 1, {}, {1, 0}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        freshProject();
        while (project.nextFormNumber <= static_cast<int>(row.before.size())) newForm();
        std::vector<WidgetNode*> forms;
        for (WidgetNode* f = project.forms; f; f = f->next) forms.push_back(f);
        for (std::size_t i = 0; i < forms.size(); ++i) forms[i]->formType = row.before[i];
        project.projectModified = 0;
        forms[static_cast<std::size_t>(row.form)]->parentName = "Menu";
        BoxScript boxes;
        for (const ExpectedBox& box : row.boxes) boxes.expect(box);
        WidgetNode& form = *forms[static_cast<std::size_t>(row.form)];
        const bool accepted = changeFormType(form, row.choice);
        EXPECT_EQ(accepted, form.formType == row.choice);
        std::vector<int> after;
        for (const WidgetNode* f : forms) after.push_back(f->formType);
        EXPECT_EQ(after, row.after);
        EXPECT_EQ(project.projectModified, row.before == row.after ? 0 : 1);
        const bool master = form.formType == 1 || form.formType == 3;
        EXPECT_EQ(quitModeEnabled(form), !master);
        EXPECT_EQ(form.parentName, master && row.before != row.after ? "NONE" : "Menu");
    }
    WidgetNode* form = freshProject();
    addRecord(form->child, TYPE_BUTTON, "Form1_Button1");
    const BoxScript boxes({{"Change to Master MDI", "Form cannot contain any children for it to be master MDI|Remove "
                                                    "child widgets before changing"}});
    EXPECT_FALSE(changeFormType(*form, FORM_MASTER_MDI));
    freshProject();
}

TEST(FormTypes, ARefusedMasterLeavesTheOldOne) {
    WidgetNode* form = freshProject();
    WidgetNode* second = newForm();
    addRecord(second->child, TYPE_BUTTON, "Form2_Button1");
    const ExpectedBox taken = {"Master already set",
                               "A form has already been set as the master.|If you set this form as the master, the "
                               "current master will become a child SDI window form.|Do you wish to continue?",
                               ANSWER_YES};
    BoxScript boxes({taken,
                     {"Change to Master MDI", "Form cannot contain any children for it to be master MDI|Remove child "
                                              "widgets before changing"}});
    EXPECT_FALSE(changeFormType(*second, FORM_MASTER_MDI));
    EXPECT_EQ(form->formType, FORM_MASTER_SDI);
    newForm()->formType = FORM_STATIC_MDI;
    form->formType = FORM_MASTER_MDI;
    form->parentName = "Menu";
    boxes.expect(taken);
    boxes.expect({"Master SDI Requested",
                  "All child MDI forms will be reset to child SDI forms|Do you wish to continue?", ANSWER_NO});
    EXPECT_FALSE(changeFormType(*second, FORM_MASTER_SDI));
    EXPECT_EQ(form->formType, FORM_MASTER_MDI);
    EXPECT_EQ(form->parentName, "Menu");
    freshProject();
}

} // namespace
