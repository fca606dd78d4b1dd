// The property sheet: which rows stand, which are grey, and what a change does to record and live widget.
#include "desk.h"

#include "properties/sheet.h"
#include "surface/hooks.h"

#include <cstdlib>

namespace robot = orba::testing;

namespace {

struct Edit {
    const char* label;
    const char* typed;
    const char* shown; // afterwards
};

void expectEdits(Desk& desk, std::initializer_list<Edit> edits) {
    for (const Edit& edit : edits) {
        SCOPED_TRACE(std::string(edit.label) + " = " + edit.typed);
        desk.setProperty(edit.label, edit.typed);
        EXPECT_EQ(desk.property(edit.label), edit.shown);
    }
}

TEST(Properties, LabelReachesTheLiveButton) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    desk.setProperty("Label", "Greet");
    EXPECT_EQ(button->text, "Greet");
    EXPECT_EQ(robot::shownText(button->handle).toStdString(), "Greet");
    EXPECT_EQ(robot::gripCount(), 8) << "the handles come back";
}

TEST(Properties, TheLabelsKeepTheWidthThatTheUserGaveThem) {
    Desk desk;
    const auto labelWidth = [] {
        int width = 0;
        owEnqWidgetProp(propertyList(), owColumnWidth, &width, 0);
        return width;
    };
    const int before = labelWidth();
    robot::drag(propertyList(), {before, 40}, {before - 50, 40});
    desk.run();
    const int given = labelWidth();
    EXPECT_LT(given, before - 40);
    desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    EXPECT_EQ(labelWidth(), given);
    selectWidget(desk.form);
    EXPECT_EQ(labelWidth(), given);
}

TEST(Properties, BadNameIsRefusedAndTheOldOneStays) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    for (const char* name : {"2x", "Form1", "a b"}) {
        SCOPED_TRACE(name);
        robot::expectBox("Invalid Name",
                         (std::string(name) + " is an empty, duplicate or invalid Fortran/C variable name").c_str(),
                         OANSWEROK);
        desk.setProperty("Name", name);
        EXPECT_EQ(button->name, "Form1_Button1");
        EXPECT_EQ(desk.property("Name"), "Form1_Button1");
    }
}

TEST(Properties, NamesFollowTheirForm) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    WidgetNode* other = desk.place(PLACE_BUTTON, desk.panel, 20, 60);
    desk.setProperty("Name", "Form12_Button1");
    selectWidget(desk.form);
    desk.setProperty("Name", "Main");
    EXPECT_EQ(button->name, "Main_Button1");
    EXPECT_EQ(other->name, "Form12_Button1");
    EXPECT_EQ(desk.panel->name, "Main_MainPanel");
    char label[64] = "";
    owEnqTreeViewLabel(button->hierarchyItem, label, sizeof label);
    EXPECT_STREQ(label, "Main_Button1");
}

TEST(Properties, OriginMirrorsThePosition) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 10, 20);
    desk.setProperty("Horizontal Origin", "Right");
    EXPECT_EQ(button->xpos, 400 - 10 - 75);
    EXPECT_EQ(button->hpos, ORIGHT);
    EXPECT_EQ(robot::rectOf(button->handle).x(), 10) << "it stays where it is";
    desk.setProperty("Horizontal Origin", "Left");
    EXPECT_EQ(button->xpos, 10);
    desk.setProperty("Horizontal Origin", "Centre");
    EXPECT_FALSE(desk.propertyEnabled("Xpos"));
    EXPECT_TRUE(desk.propertyEnabled("Expand"));
    desk.setProperty("Expand", "On");
    EXPECT_FALSE(desk.propertyEnabled("Width"));
}

TEST(Properties, ExpandShowsTheEntryThatWasChosen) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 10, 20);
    desk.setProperty("Horizontal Origin", "Centre");
    desk.setProperty("Expand", "4");
    EXPECT_EQ(button->expand, 5);
    selectWidget(desk.form);
    selectWidget(button);
    EXPECT_EQ(desk.property("Expand"), "4");
}

TEST(Properties, TypeOfAButtonOpensItsColours) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 10, 20);
    EXPECT_FALSE(desk.propertyEnabled("On Colour"));
    desk.setProperty("Type", "User Defined");
    EXPECT_TRUE(desk.propertyEnabled("On Colour"));
    button->colour1 = 5;
    desk.setProperty("Type", "Default Button");
    EXPECT_EQ(button->colour1, 0);
    EXPECT_FALSE(desk.propertyEnabled("Align"));
}

TEST(Properties, FieldWidthAndDecimalsKeepRoomForEachOther) {
    Desk desk;
    WidgetNode* value = desk.place(PLACE_VALUE_ENTRY, desk.panel, 10, 20);
    desk.setProperty("Field Width", "6");
    desk.setProperty("Number of Decimal Places", "2");
    EXPECT_EQ(value->format, 2);
    desk.setProperty("Field Width", "3");
    EXPECT_EQ(value->fieldWidth, 6);
    desk.setProperty("Number of Decimal Places", "5");
    EXPECT_EQ(value->format, 2);
    desk.setProperty("Number of Decimal Places", "4");
    EXPECT_EQ(value->format, 4);
}

TEST(Properties, SignsBelongToMoney) {
    Desk desk;
    desk.place(PLACE_VALUE_ENTRY, desk.panel, 10, 20);
    expectEdits(desk, {{"Sign Type", "Credit - ()", "Default"},
                       {"Type", "Yen", "Yen"},
                       {"Sign Type", "Credit - ()", "Credit - ()"},
                       {"Type", "Percent", "Percent"}});
    EXPECT_EQ(desk.property("Sign Type"), "Default");
}

TEST(Properties, LimitsOfASliderPushEachOther) {
    Desk desk;
    WidgetNode* slider = desk.place(PLACE_SLIDER, desk.panel, 10, 20);
    desk.setProperty("Maximum Value", "-1");
    EXPECT_FLOAT_EQ(slider->minValue, -2);
    desk.setProperty("Minimum Value", "7");
    EXPECT_FLOAT_EQ(slider->maxValue, 8);
    desk.setProperty("Slider Value", "100");
    EXPECT_FLOAT_EQ(slider->value, 8);
}

TEST(Properties, AProgressBarShowsItsValueInsideItsLimits) {
    Desk desk;
    WidgetNode* bar = desk.place(TOOL_PROGRESS_BAR, desk.panel, 10, 20);
    desk.setProperty("Progress Value", "70");
    desk.setProperty("Maximum Value", "50");
    EXPECT_EQ(desk.property("Progress Value"), "50");
    EXPECT_FLOAT_EQ(bar->value, 70);
    desk.setProperty("Maximum Value", "90");
    EXPECT_EQ(desk.property("Progress Value"), "70");
}

// A button that leads nowhere is none: what can be typed is typed, the rest is grey.
TEST(Properties, ButtonsNeedTheirEditors) {
    Desk desk;
    const auto kindOf = [](const char* label) {
        int kind = -1;
        owEnqPropertySetting(propertyList(), owPropertyItemNumber(propertyList(), label), owPropertyKind, &kind, 0);
        return kind;
    };
    const auto hasEditor = hooks.hasEditor;
    hooks.hasEditor = [](Editor) { return false; };
    desk.place(PLACE_LIST, desk.panel, 10, 20);
    EXPECT_FALSE(desk.propertyEnabled("Entries"));
    desk.place(PLACE_TEXT_ENTRY, desk.panel, 10, 100);
    desk.setProperty("Height", "80");
    EXPECT_EQ(kindOf("Text"), OPROPTEXT);
    EXPECT_TRUE(desk.propertyEnabled("Text"));
    desk.setProperty("Type", "Rich Text");
    EXPECT_FALSE(desk.propertyEnabled("Text"));
    desk.click(desk.panel, 300, 5);
    EXPECT_EQ(kindOf("Icon"), OPROPTEXT);
    EXPECT_TRUE(desk.propertyEnabled("Icon"));
    hooks.hasEditor = hasEditor;
    selectWidget(project.currentWidget);
    EXPECT_EQ(kindOf("Icon"), OPROPBUTTON);
}

TEST(Properties, NumbersThatNoWidgetCanHaveAreRefused) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    const auto refused = [&](const char* label, const char* value) {
        const std::string before = desk.property(label);
        desk.setProperty(label, value);
        EXPECT_EQ(desk.property(label), before) << label << " " << value;
    };
    refused("Width", "-50");
    refused("Height", "-1");
    refused("Width", "1000000");
    refused("Xpos", "-1000000");
    refused("Point Size", "999999999");
    refused("Point Size", "0");
    EXPECT_EQ(button->width, 75);
    project.gridMode = 1;
    selectWidget(button);
    refused("Size", "0");
    project.gridMode = 0;
    WidgetNode* bar = desk.place(PLACE_TOOL_BAR, desk.panel, 200, 200);
    ASSERT_TRUE(bar);
    refused("Icon Size", "-5");
    EXPECT_EQ(robot::reports(), std::vector<int>{});
}

TEST(Properties, TextGrowsToAButtonCell) {
    Desk desk;
    hooks.hasEditor = [](Editor) { return true; };
    WidgetNode* text = desk.place(PLACE_TEXT_ENTRY, desk.panel, 10, 20);
    int kind = -1;
    owEnqPropertySetting(propertyList(), owPropertyItemNumber(propertyList(), "Text"), owPropertyKind, &kind, 0);
    EXPECT_EQ(kind, OPROPTEXT);
    desk.setProperty("Height", "26");
    EXPECT_EQ(text->fieldWidth, 30000);
    owEnqPropertySetting(propertyList(), owPropertyItemNumber(propertyList(), "Text"), owPropertyKind, &kind, 0);
    EXPECT_EQ(kind, OPROPBUTTON);
    EXPECT_TRUE(desk.propertyEnabled("Scroll Bars"));
    EXPECT_FALSE(desk.propertyEnabled("Scrollable"));
    hooks.hasEditor = [](Editor) { return false; };
}

TEST(Properties, OnlyOneWidgetIsActiveAtTheStart) {
    Desk desk;
    WidgetNode* first = desk.place(PLACE_TEXT_ENTRY, desk.panel, 10, 20);
    desk.setProperty("Active on Initialize", "On");
    WidgetNode* second = desk.place(PLACE_TEXT_ENTRY, desk.panel, 10, 80);
    const char* question =
        "A Widget is already set to be intially active |If you set this Widget to Active it'll reset "
        "the other|Do you wish to continue?";
    robot::expectBox("Active Widget already set", question, OANSWERNO);
    desk.setProperty("Active on Initialize", "On");
    EXPECT_EQ(desk.property("Active on Initialize"), "Off");
    EXPECT_EQ(first->activeOnInit, 1);
    robot::expectBox("Active Widget already set", question, OANSWERYES);
    desk.setProperty("Active on Initialize", "On");
    EXPECT_EQ(first->activeOnInit, 0);
    EXPECT_EQ(second->activeOnInit, 1);
}

TEST(Properties, TheOnlyFormCantBecomeAChild) {
    Desk desk;
    robot::expectBox("Form Type Change", "Cannot change only form to be Child SDI", OANSWEROK);
    desk.setProperty("Form Type", "Static Child SDI");
    EXPECT_EQ(desk.property("Form Type"), "Master SDI");
    EXPECT_FALSE(desk.propertyEnabled("Quit Mode"));
}

TEST(Properties, ScrollBarsTakeThePanelsBorder) {
    Desk desk;
    WidgetNode* panel = desk.place(PLACE_PANEL, desk.panel, 10, 20);
    EXPECT_EQ(panel->subType, OINVERSECHISEL);
    desk.setProperty("Scroll Bars", "Vertical");
    EXPECT_EQ(panel->subType, ONOBOUNDARY);
    EXPECT_EQ(desk.property("Border Type"), "No Boundary");
    for (const char* label : {"Border Type", "Border Colour", "Border Position", "Title", "Font Face"})
        EXPECT_FALSE(desk.propertyEnabled(label)) << label;
    desk.setProperty("Scroll Bars", "No Bars");
    EXPECT_TRUE(desk.propertyEnabled("Border Type"));
}

TEST(Properties, SameEntryAgainChangesNothing) {
    Desk desk;
    desk.place(PLACE_BUTTON, desk.panel, 10, 20);
    project.projectModified = 0;
    desk.setProperty("Type", "Standard");
    EXPECT_EQ(project.projectModified, 0);
}

TEST(Properties, SelectedRowStaysWithTheNextWidget) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 10, 20);
    desk.setProperty("Label", "x");
    selectWidget(desk.place(PLACE_CHECK_BOX, desk.panel, 10, 60));
    EXPECT_EQ(selectedPropertyLabel(), "Label");
    selectWidget(desk.form);
    EXPECT_EQ(selectedPropertyLabel(), "Name");
    EXPECT_EQ(button->text, "x");
}

} // namespace
