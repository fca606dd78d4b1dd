// The choice of icons for the rows of the property sheet.
#include "dialogue_test.h"

#include "dialogues/choose_icon.h"
#include "dialogues/icon_grid.h"
#include "platform/text_files.h"
#include "properties/commands.h"
#include "properties/sheet.h"
#include "surface/dialogue_keys.h"
#include "surface/live.h"

namespace robot = orba::testing;

namespace {

constexpr int PLACE_ICON = TOOL_ICON, PLACE_TREE = TOOL_TREE_VIEW;

std::string bitmap(int width, int height, char depth = 8) {
    std::string head(54, '\0');
    head[0] = 'B', head[1] = 'M', head[18] = static_cast<char>(width), head[22] = static_cast<char>(height);
    head[28] = depth;
    return head;
}

struct IconEditor : DialogueTest {
    // Presses the "..." of a row.
    void openRow(const char* label) {
        const int row = owPropertyItemNumber(propertyList(), label);
        ASSERT_GT(row, 0) << label;
        owSelectProperty(propertyList(), row);
        owPostCallback(CMD_PROPERTY_BUTTON, propertyList());
        desk.run();
    }
    std::string path(const char* name) const { return (desk.session.root / name).string(); }
    void chooseBitmap(const char* name, const std::string& head) {
        writeTextFile(path(name), head);
        robot::expectBrowser("Use bitmap file", path(name));
        press(ICON_BITMAP);
    }
    static std::string offered() {
        std::string text;
        for (const int id : {ICON_LARGE, ICON_SMALL, ICON_THUMB, ICON_TOOLBAR, ICON_VISTA, ICON_ICO, ICON_BITMAP})
            text += dialogue::isEnabled(id) ? '1' : '0';
        return text;
    }
};

} // namespace

TEST(IconSets, HaveTheirNames) {
    const struct {
        IconSets set;
        int count;
        const char *first, *last;
    } sets[] = {{STOCK_LARGE, 100, "MBIG1001", "MBIG1100"},
                {STOCK_SMALL, 100, "MSML1001", "MSML1100"},
                {STOCK_THUMB, 8, "mthumb01", "mthumb08"},
                {STOCK_TOOLBAR, 27, "mstd1001", "mstd1027"},
                {STOCK_VISTA, 40, "filenew&", "icon&"}};
    for (const auto& set : sets) {
        EXPECT_EQ(iconName(set.set, 1), set.first);
        EXPECT_EQ(iconName(set.set, set.count), set.last);
        EXPECT_EQ(iconName(set.set, set.count + 1), "");
    }
}

TEST_F(IconEditor, AStockPictureBecomesTheIcon) {
    WidgetNode* icon = desk.place(PLACE_ICON, desk.panel, 40, 40);
    project.projectModified = 0;
    openRow("Icon");
    EXPECT_EQ(offered(), "1111111");
    press(ICON_TOOLBAR);
    press(GRID_FIRST_PICTURE + 26);
    EXPECT_FALSE(dialogueOpen());
    EXPECT_EQ(icon->icon, "mstd1027");
    EXPECT_EQ(icon->format, 4);
    EXPECT_EQ(icon->iconId, 27);
    EXPECT_EQ(project.projectModified, 1);
    EXPECT_EQ(desk.property("Icon"), "mstd1027");
    openRow("Icon");
    press(ICON_TOOLBAR);
    EXPECT_EQ(owEnqActiveWidget(), dialogue::widget(GRID_FIRST_PICTURE + 26)) << "the present one";
    robot::key(0, Qt::Key_Up);
    robot::key(0, Qt::Key_Left);
    desk.run();
    robot::key(0, Qt::Key_Return);
    desk.run();
    EXPECT_EQ(icon->icon, "mstd1017");
}

TEST_F(IconEditor, ThePicturesAreFilteredByName) {
    WidgetNode* icon = desk.place(PLACE_ICON, desk.panel, 40, 40);
    openRow("Icon");
    press(ICON_VISTA);
    robot::type(dialogue::widget(GRID_FILTER), "calc");
    desk.run();
    int shown = 0;
    for (int number = 0; number < 40; ++number) shown += robot::isShown(dialogue::widget(GRID_FIRST_PICTURE + number));
    EXPECT_EQ(shown, 1);
    robot::key(0, Qt::Key_Return);
    desk.run();
    EXPECT_EQ(icon->icon, "calculator&");
    EXPECT_EQ(icon->iconId, 0) << "such pictures have no number";
}

TEST_F(IconEditor, BitmapsAreChecked) {
    WidgetNode* icon = desk.place(PLACE_ICON, desk.panel, 40, 40);
    const std::string before = icon->icon;
    const struct {
        const char* name;
        std::string head;
        const char *title, *text;
    } refused[] = {
        {"wide.bmp", bitmap(33, 10), "Bitmap too large",
         "Bitmaps more than 32x32 pixels in size cannot be used in bitmap icons"},
        {"deep.bmp", bitmap(16, 16, 24), "Wrong colour depth",
         "The bitmap you have chosen is not in 8-bit colour. Bitmap icons may only be in 8-bit colour"},
        {"text.bmp", "text", "File format not valid", "File is not a BMP format bitmap"},
    };
    for (const auto& one : refused) {
        openRow("Icon");
        writeTextFile(path(one.name), one.head);
        robot::expectBrowser("Use bitmap file", path(one.name));
        robot::expectBox(one.title, one.text, OANSWEROK);
        press(ICON_BITMAP);
        EXPECT_EQ(icon->icon, before) << one.name;
        EXPECT_FALSE(dialogueOpen());
    }
    openRow("Icon");
    chooseBitmap("good.bmp", bitmap(32, 32));
    EXPECT_EQ(icon->icon, path("good.bmp"));
    EXPECT_EQ(icon->format, 1);
    EXPECT_TRUE(robot::scriptIsEmpty());
}

TEST_F(IconEditor, WhatIsOfferedDependsOnTheRow) {
    desk.click(desk.panel, 5, 5);
    openRow("Background Image");
    EXPECT_EQ(offered(), "0000001");
    chooseBitmap("deep.bmp", bitmap(60, 60, 24)); // anything goes behind a form
    EXPECT_EQ(desk.panel->backgroundImage, "deep");
    EXPECT_EQ(desk.panel->format, 1);
    EXPECT_EQ(desk.panel->colour3, 0);
    WidgetNode* tree = desk.place(PLACE_TREE, desk.panel, 40, 40);
    tree->subType = ORESOURCEICONS;
    selectWidget(tree);
    openRow("Open Icon");
    EXPECT_EQ(offered(), "1111110");
    press(ICON_CANCEL);
    EXPECT_EQ(tree->openIcon, "");
    WidgetNode* icon = desk.place(PLACE_ICON, desk.panel, 200, 40);
    selectWidget(icon);
    project.projectPlatform = 'x';
    openRow("Icon");
    EXPECT_EQ(offered(), "1100001");
    project.projectPlatform = 'w';
    robot::closeByUser(dialogue::window(ICON_CANCEL));
    desk.run();
    EXPECT_FALSE(dialogueOpen());
}

// A page keeps the picture behind it when its tab gets an icon.
TEST_F(IconEditor, ATabsIconLeavesThePagesPictureAlone) {
    desk.place(PLACE_TAB_BOX, desk.panel, 40, 40);
    WidgetNode* page = findName(project.forms, "Form1_Panel1", false);
    ASSERT_TRUE(page);
    selectWidget(page);
    page->format = 1;
    page->icon = "back.bmp";
    openRow("Tab Icon");
    press(ICON_SMALL);
    press(GRID_FIRST_PICTURE);
    EXPECT_EQ(page->closeIcon, "MSML1001");
    EXPECT_EQ(page->format, 1);
    EXPECT_EQ(page->icon, "back.bmp");
}

TEST_F(IconEditor, AFileBecomesTheIcon) {
    WidgetNode* icon = desk.place(PLACE_ICON, desk.panel, 40, 40);
    for (const char* name : {"drawn.ico", "plain"}) {
        writeTextFile(path(name), "");
        openRow("Icon");
        robot::expectBrowser("Choose icon file to use", path(name));
        if (name == std::string("plain"))
            robot::expectBox("File not found", "The requested file could not be found", OANSWEROK);
        press(ICON_ICO);
    }
    EXPECT_EQ(icon->icon, path("drawn.ico")) << "the other one would be plain.ico";
    EXPECT_EQ(icon->format, 3);
    openRow("Icon");
    robot::expectBrowser("Choose icon file to use", "");
    press(ICON_ICO);
    EXPECT_EQ(icon->icon, path("drawn.ico"));
}
