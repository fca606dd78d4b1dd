#include "project/convert.h"

#include "project/files.h"
#include "project/language.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "support/box_script.h"
#include "support/sample_project.h"
#include "support/scratch.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace {

// Two numbers of a row, that a failure shows by name.
using Pair = std::pair<int, int>;

WidgetNode* boxed(WidgetNode* parent, WidgetType type, int x, int y, int width, int height) {
    WidgetNode* node = addRecord(parent, type, "w");
    node->xpos = x;
    node->ypos = y;
    node->width = width;
    node->height = height;
    node->size = 100;
    return node;
}

constexpr bool fillsAShare(WidgetType type) {
    return TypeSet{TYPE_BUTTON,      TYPE_TOGGLE,      TYPE_TEXT_ENTRY, TYPE_TEXT_LABEL,
                   TYPE_VALUE_ENTRY, TYPE_VALUE_LABEL, TYPE_SLIDER}
        .holds(type);
}

} // namespace

TEST(Convert, EveryTypeGoesToPixelsByItsCell) {
    for (const TypeCard& card : typeCards()) {
        if (!isKnown(card.type)) continue;
        WidgetNode* form = freshProject();
        WidgetNode* node = card.type == TYPE_FORM ? form : boxed(form->child, card.type, 3, 4, 5, 2);
        node->xpos = 3, node->ypos = 4, node->width = 5, node->height = 2;
        node->size = 80;
        toPixels(project.forms, {22, 25});
        const int margin = fillsAShare(card.type) ? 2 : 0; // (100 - 80) * 25 / 200
        EXPECT_EQ(Pair(node->xpos, node->ypos), Pair(66 + margin, 100 + margin)) << card.code;
        EXPECT_EQ(Pair(node->width, node->height), Pair(110 - 2 * margin, 50 - 2 * margin)) << card.code;
    }
}

TEST(Convert, EveryTypeGoesToTheGridInWholeCells) {
    for (const TypeCard& card : typeCards()) {
        if (!isKnown(card.type)) continue;
        WidgetNode* form = freshProject();
        WidgetNode* node = card.type == TYPE_FORM ? form : boxed(form->child, card.type, 0, 0, 0, 0);
        node->xpos = 205, node->ypos = 49, node->width = 109, node->height = 75;
        node->size = 80;
        toGrid(project.forms, {22, 25});
        EXPECT_EQ(Pair(node->xpos, node->ypos), Pair(9, 1)) << card.code;
        EXPECT_EQ(Pair(node->width, node->height), Pair(4, 3)) << card.code;
    }
}

TEST(Convert, PlacesLoseWhatLiesPastTheLastCell) {
    WidgetNode* form = freshProject();
    WidgetNode* button = boxed(form->child, TYPE_BUTTON, 205, 205, 75, 25);
    toGrid(project.forms, {22, 22});
    EXPECT_EQ(button->xpos, 9);
    toPixels(project.forms, {22, 22});
    EXPECT_EQ(Pair(button->xpos, button->width), Pair(198, 66));
}

TEST(Convert, NoSizeIsLost) {
    struct Row {
        const char* name;
        int width, height, gridWidth, gridHeight;
    };
    const Row rows[] = {{"smaller than a cell", 15, 3, 1, 1},
                        {"one less than two cells", 43, 43, 1, 1},
                        {"none", 0, 0, 0, 0},
                        {"a damaged one", -50, -5, -2, 0}};
    for (const Row& row : rows) {
        WidgetNode* form = freshProject();
        WidgetNode* list = boxed(form->child, TYPE_LIST_BOX, 0, 0, row.width, row.height);
        toGrid(project.forms, {22, 22});
        EXPECT_EQ(Pair(list->width, list->height), Pair(row.gridWidth, row.gridHeight)) << row.name;
    }
    // The margin takes more than there is of a small cell.
    WidgetNode* form = freshProject();
    WidgetNode* slider = boxed(form->child, TYPE_SLIDER, 1, 1, 1, 1);
    slider->size = 0;
    toPixels(project.forms, {12, 12});
    EXPECT_EQ(Pair(slider->width, slider->height), Pair(1, 1));
}

TEST(Convert, HostileNumbersStayNumbers) {
    for (const int number : {2147483647, -2147483647 - 1, 100000000}) {
        WidgetNode* form = freshProject();
        WidgetNode* button = boxed(form->child, TYPE_BUTTON, number, number, number, number);
        button->size = number;
        toPixels(project.forms, {800, 600});
        toGrid(project.forms, {0, -5});
        EXPECT_LE(std::abs(button->xpos), 1000100) << number;
        EXPECT_EQ(button->width > 0, number > 0) << number;
    }
}

TEST(Convert, ColumnsAndRowsFollowTheirCells) {
    for (const WidgetType type : {TYPE_TEXT_ARRAY, TYPE_VALUE_ARRAY, TYPE_TABLE_BOX}) {
        WidgetNode* form = freshProject();
        WidgetNode* array = boxed(form->child, type, 0, 0, 220, 220);
        array->columnWidths = {44, 10, 99, 0};
        array->rowHeights = {25, 3};
        toGrid(project.forms, {22, 25});
        EXPECT_EQ(array->columnWidths, (std::vector<int>{2, 1, 4, 1}));
        EXPECT_EQ(array->rowHeights, (std::vector<int>{1, 1}));
        toPixels(project.forms, {22, 25});
        EXPECT_EQ(array->columnWidths, (std::vector<int>{44, 22, 88, 22}));
        EXPECT_EQ(array->rowHeights, (std::vector<int>{25, 25}));
    }
}

TEST(Convert, BarsAndPanesThatWereNeverPlacedStayUnplaced) {
    WidgetNode* form = freshProject();
    WidgetNode* bar = boxed(form->child, TYPE_TOOL_BAR, 0, 0, -1, 0);
    WidgetNode* pane = boxed(form->child, TYPE_PANE, -1, 0, 150, 150);
    toGrid(project.forms, {22, 22});
    EXPECT_EQ(Pair(bar->width, pane->xpos), Pair(-1, -1));
    EXPECT_EQ(pane->width, 6);
    toPixels(project.forms, {22, 22});
    EXPECT_EQ(Pair(bar->width, pane->xpos), Pair(-1, -1));
    EXPECT_EQ(Pair(pane->width, pane->height), Pair(132, 132));
}

TEST(Convert, AllFormsAndAllBelowThemAreReached) {
    WidgetNode* first = freshProject();
    WidgetNode* second = addRecord(nullptr, TYPE_FORM, "Form2");
    WidgetNode* panel = boxed(addRecord(second, TYPE_MAIN_PANEL, "p"), TYPE_PANEL, 44, 44, 100, 100);
    WidgetNode* inner = boxed(panel, TYPE_PANEL, 44, 44, 66, 66);
    WidgetNode* deep = boxed(inner, TYPE_BUTTON, 23, 23, 22, 22);
    first->width = 440;
    toGrid(project.forms, {22, 22});
    EXPECT_EQ(first->width, 20);
    EXPECT_EQ(Pair(inner->width, deep->xpos), Pair(3, 1));
}

TEST(Convert, WhatXCannotHoldIsFoundOnceAtItsOutermost) {
    WidgetNode* form = freshProject();
    for (const TypeCard& card : typeCards()) {
        if (!isKnown(card.type) || card.type == TYPE_FORM || card.type == TYPE_MAIN_PANEL) continue;
        WidgetNode* parent = card.traits & IS_BAR_OR_PANE ? form : form->child;
        const std::string name = "w" + std::to_string(card.code);
        WidgetNode* node = addRecord(parent, card.type, name);
        if (!card.takes.empty()) addRecord(node, TYPE_BUTTON, name + "_child");
        if (card.type == TYPE_TAB_BOX) addRecord(addRecord(node, TYPE_PANEL, "page"), TYPE_GAUGE, "inner");
    }
    std::vector<int> codes;
    for (const WidgetNode* node : windowsOnlyRecords(project.forms)) codes.push_back(codeOf(*node));
    std::ranges::sort(codes);
    EXPECT_EQ(codes, (std::vector<int>{2022, 2023, 2025, 2027, 2028, 2029, 2030, 2031, 2032, 2034}));
}

TEST(Convert, FieldsOfWindowsProjectsGo) {
    WidgetNode* form = freshProject();
    form->statusBar = std::make_unique<StatusBarRec>();
    WidgetNode* panel = addRecord(form->child, TYPE_PANEL, "panel");
    for (WidgetNode* one : {form->child, panel}) {
        one->icon = "picture.bmp";
        one->backgroundImage = "picture";
        one->format = 1;
    }
    WidgetNode* frame = addRecord(form->child, TYPE_GRAPHICS_FRAME, "frame");
    frame->subType = 3;
    WidgetNode* icon = addRecord(panel, TYPE_ICON, "icon");
    icon->text = "below";
    WidgetNode* entry = addRecord(panel, TYPE_TEXT_ENTRY, "entry");
    WidgetNode* label = addRecord(panel, TYPE_TEXT_LABEL, "label");
    entry->subType = label->subType = 2;
    entry->fieldWidth = -40;
    label->fieldWidth = 12;
    WidgetNode* button = addRecord(panel, TYPE_BUTTON, "button");
    button->text = "stays";
    button->subType = 5;
    dropWindowsFields(project.forms);
    EXPECT_FALSE(form->statusBar);
    for (const WidgetNode* one : {form->child, panel})
        EXPECT_EQ(one->icon + one->backgroundImage + std::to_string(one->format), "0") << one->name;
    EXPECT_EQ(frame->subType, 0);
    EXPECT_EQ(icon->text, "");
    EXPECT_EQ(Pair(entry->subType, entry->fieldWidth), Pair(0, 40));
    EXPECT_EQ(Pair(label->subType, label->fieldWidth), Pair(0, 12));
    EXPECT_EQ(button->text + std::to_string(button->subType), "stays5");
}

TEST(Convert, PlatformAndLanguageComeBackFromAFile) {
    const ScratchFolder scratch{"orba-convert"};
    const BoxScript boxes;
    for (const char platform : {'w', 'x', 'g'})
        for (const int language : {77, 90, 99})
            for (const int buffering : {0, 1}) {
                freshProject();
                project.projectPlatform = platform;
                project.projectLanguage = language;
                project.doubleBuffering = buffering;
                project.gridMode = 1;
                ASSERT_TRUE(saveProject(scratch.path.string(), "round.wdp", false));
                project.projectPlatform = '?';
                project.projectLanguage = 0;
                ASSERT_TRUE(loadProject(scratch.path.string(), "round.wdp"));
                EXPECT_EQ(project.projectPlatform, platform) << language << " " << buffering;
                EXPECT_EQ(project.projectLanguage, language) << platform << " " << buffering;
            }
}

// ---- Whole projects

namespace {

// A pixel project on two forms, with a gauge and a tool bar on the first.
void mixedProject() {
    WidgetNode* form = freshProject();
    project.snapOn = 0;
    boxed(form->child, TYPE_BUTTON, 205, 44, 75, 25)->name = "button";
    boxed(form->child, TYPE_GAUGE, 22, 44, 75, 25)->name = "gauge";
    WidgetNode* pages = boxed(form->child, TYPE_TAB_BOX, 22, 44, 75, 25);
    pages->name = "pages";
    boxed(boxed(pages, TYPE_PANEL, 0, 0, 50, 50), TYPE_BUTTON, 0, 0, 5, 5)->name = "inner";
    project.counters[COUNTER_GAUGE] = 7;
    project.counters[COUNTER_BUTTON] = 4;
    project.widgetCount = 6;
    project.gridPixelX = project.gridPixelY = 22;
    project.projectModified = project.sourceStale = 0;
}

ProjectType changed(void (*change)(ProjectType&)) {
    ProjectType type = projectType();
    change(type);
    return type;
}

} // namespace

TEST(ConvertProject, ToXRemovesWhatItCannotHoldAndGoesToTheGrid) {
    mixedProject();
    const ProjectType wanted = changed([](ProjectType& type) {
        type.platform = 'x';
        type.gridMode = 1;
        type.gridHoriz = 32;
        type.gridVert = 24;
    });
    EXPECT_TRUE(changesWidgets(wanted));
    convertProject(wanted);
    EXPECT_TRUE(projectType() == wanted);
    EXPECT_EQ(findName(project.forms, "gauge", false), nullptr);
    EXPECT_EQ(findName(project.forms, "inner", false), nullptr);
    const WidgetNode* button = findName(project.forms, "button", false);
    ASSERT_TRUE(button);
    EXPECT_EQ(Pair(button->xpos, button->width), Pair(9, 3));
    EXPECT_EQ(Pair(project.counters[COUNTER_GAUGE], project.counters[COUNTER_BUTTON]), Pair(1, 4));
    EXPECT_EQ(project.widgetCount, 2);
    EXPECT_EQ(Pair(project.gridPixelX, project.gridPixelY), Pair(25, 25));
    EXPECT_EQ(Pair(project.snapOn, project.snapGrid), Pair(1, 25));
    EXPECT_EQ(Pair(project.projectModified, project.sourceStale), Pair(1, 1));
    EXPECT_FALSE(changesWidgets(wanted)) << "once is enough";
}

TEST(ConvertProject, AndBackToPixelsOfWindows) {
    mixedProject();
    convertProject(changed([](ProjectType& type) {
        type.platform = 'g';
        type.gridMode = 1;
    }));
    EXPECT_EQ(project.gridPixelX, 22);
    convertProject(changed([](ProjectType& type) {
        type.platform = 'w';
        type.gridMode = 0;
    }));
    const WidgetNode* button = findName(project.forms, "button", false);
    EXPECT_EQ(Pair(button->xpos, button->width), Pair(198, 66));
    EXPECT_EQ(Pair(project.snapOn, project.snapGrid), Pair(1, 10));
}

TEST(ConvertProject, WhatLaysNothingOutAnewMovesNothing) {
    mixedProject();
    const ProjectType wanted = changed([](ProjectType& type) {
        type.scalable = 1;
        type.language = LANGUAGE_C;
        type.doubleBuffering = 1;
    });
    EXPECT_FALSE(changesWidgets(wanted));
    convertProject(wanted);
    EXPECT_TRUE(projectType() == wanted);
    EXPECT_EQ(findName(project.forms, "button", false)->xpos, 205);
    EXPECT_TRUE(findName(project.forms, "gauge", false));
    EXPECT_EQ(project.snapOn, 0);
}

TEST(ConvertProject, AnotherCountOfCellsKeepsTheCellsOfWidgets) {
    mixedProject();
    convertProject(changed([](ProjectType& type) { type.gridMode = 1; }));
    convertProject(changed([](ProjectType& type) { type.gridHoriz = 20; }));
    EXPECT_EQ(findName(project.forms, "button", false)->xpos, 9);
    EXPECT_EQ(Pair(project.gridPixelX, project.snapGrid), Pair(40, 40));
}

TEST(ConvertProject, TheSourceFollowsTheLanguage) {
    struct Row {
        const char* name;
        int language;
        const char* expected;
    };
    const Row rows[] = {{"g.f90", LANGUAGE_C, "g.cpp"},
                        {"g.cpp", LANGUAGE_F90, "g.f90"},
                        {"g.c", LANGUAGE_C, "g.c"},
                        {"g.f90", LANGUAGE_F77, "g.for"},
                        {"a.b.f90", LANGUAGE_C, "a.b.cpp"},
                        {"bare", LANGUAGE_C, "bare.cpp"},
                        {"", LANGUAGE_C, ""},
                        {"there.f90", LANGUAGE_C, ""}};
    const ScratchFolder scratch{"orba-language"};
    std::ofstream(scratch.path / "there.cpp") << "somebody's own";
    for (const Row& row : rows) {
        freshProject();
        project.sourceDir = scratch.path.string();
        project.sourceName = row.name;
        setProjectLanguage(row.language);
        EXPECT_EQ(project.sourceName, row.expected) << row.name;
        EXPECT_EQ(project.projectLanguage, row.language);
    }
}
