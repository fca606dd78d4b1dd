// The Widget Defaults dialogue, its sample, and the sets as files.
#define QT_NO_KEYWORDS // the records have a field of the name slots

#include "designer_fixture.h"
#include "desk.h"

#include "dialogues/commands.h"
#include "dialogues/frame.h"
#include "dialogues/widget_defaults.h"
#include "platform/environment.h"
#include "platform/text_files.h"
#include "project/convert.h"
#include "project/defaults.h"
#include "project/widget_types.h"
#include "properties/sheet.h"
#include "settings/places.h"
#include "shell/command_states.h"
#include "surface/window_states.h"
#include "toolkit/testing/robot.h"

#include <algorithm>

using namespace orba::testing;

namespace {

constexpr int YES = 6, NO = 3;
constexpr int PUSH_BUTTON_ROW = 11, SLIDER_ROW = 12;

struct Defaults : testing::Test {
    Desk desk;

    void open() {
        choose(commandWidget(CMD_DEFAULTS_CHANGE, CommandWidget::MenuEntry));
        desk.run();
        ASSERT_TRUE(dialogue::widget(DEFAULTS_OK));
    }
    void press(int id) {
        click(dialogue::widget(id));
        desk.run();
    }
    void showType(int row) {
        dialogue::choose(DEFAULTS_TYPES, row);
        owPostCallback(DEFAULTS_TYPES, 0);
        desk.run();
    }
    std::string file(const char* name) const { return (desk.session.root / name).string(); }
    WidgetNode& button() const { return *defaultRecord(TYPE_BUTTON); }
};

} // namespace

TEST_F(Defaults, AWidthThatWasChangedIsThatOfNewWidgets) {
    project.projectModified = project.sourceStale = 0;
    open();
    showType(PUSH_BUTTON_ROW);
    desk.setProperty("Width", "131");
    press(DEFAULTS_OK);
    EXPECT_EQ(project.projectModified + project.sourceStale, 0) << "no change of the project";
    EXPECT_EQ(desk.property("Name"), "Form1") << "the sheet is back at the selected widget";
    const WidgetNode* placed = desk.place(PLACE_BUTTON, desk.panel, 50, 60);
    ASSERT_TRUE(placed);
    EXPECT_EQ(placed->width, 131);
    open();
    EXPECT_EQ(dialogue::choice(DEFAULTS_TYPES), PUSH_BUTTON_ROW) << "the row last used";
    EXPECT_EQ(desk.property("Width"), "131");
    press(DEFAULTS_CANCEL);
}

TEST_F(Defaults, CancelBringsBackTheSetOfTheOpening) {
    button().width = 99; // as a loaded set has it
    open();
    showType(PUSH_BUTTON_ROW);
    desk.setProperty("Width", "131");
    showType(SLIDER_ROW);
    desk.setProperty("Height", "77");
    press(DEFAULTS_CANCEL);
    EXPECT_EQ(button().width, 99);
    EXPECT_EQ(defaultRecord(TYPE_SLIDER)->height, 25);
    EXPECT_EQ(button().handle, 0);
    EXPECT_EQ(desk.property("Name"), "Form1");
}

TEST_F(Defaults, EveryTypeHasItsRowsAndASampleThatFollows) {
    for (const bool grid : {false, true}) {
        if (grid) convertProject({.gridMode = 1});
        open();
        for (int row = 1; row <= DEFAULT_RECORDS; ++row) {
            showType(row);
            char label[64] = "";
            owEnqListEntry(dialogue::widget(DEFAULTS_TYPES), 0, label, sizeof label);
            const auto card =
                std::ranges::find_if(typeCards(), [&](const TypeCard& one) { return one.label == std::string(label); });
            ASSERT_NE(card, typeCards().end()) << label;
            WidgetNode& record = *defaultRecord(card->type);
            EXPECT_GT(owPropertyItemCount(propertyList()), 0) << label;
            if (record.handle <= 0) continue;
            EXPECT_TRUE(isShown(record.handle)) << label;
            if (desk.property("Width") == "(none)" || !desk.propertyEnabled("Width")) continue;
            desk.setProperty("Width", "57");
            EXPECT_EQ(record.width, 57) << label;
            EXPECT_EQ(rectOf(record.handle).width(), 57) << label << (grid ? " on a grid" : "");
        }
        press(DEFAULTS_CANCEL);
        EXPECT_TRUE(reports().empty());
        for (const OwnedList& record : defaultRecords) EXPECT_EQ(record->handle, 0);
    }
}

TEST_F(Defaults, ThePaneOfTheSheetIsAwayMeanwhileAndComesBackAsItWas) {
    const int pane = windowStates[WINDOW_PROPERTIES].handle;
    const int view = commandWidget(CMD_VIEW_PROPERTIES, CommandWidget::MenuEntry);
    for (const bool shown : {true, false}) {
        if (!shown) choose(view);
        desk.run();
        ASSERT_EQ(isShown(pane), shown);
        const QRect before = rectOf(pane);
        open();
        EXPECT_FALSE(isShown(pane));
        EXPECT_EQ(commandStatus(CMD_VIEW_PROPERTIES), shown ? STATUS_PRESSED : STATUS_ENABLED);
        press(DEFAULTS_CANCEL);
        EXPECT_EQ(isShown(pane), shown);
        if (shown) {
            EXPECT_EQ(rectOf(pane).width(), before.width());
        }
    }
}

TEST_F(Defaults, TheProgramEndsWithTheDialogueOpen) {
    open();
    showType(PUSH_BUTTON_ROW);
    desk.setProperty("Width", "131");
    desk.session.end();
    desk.session.start();
    EXPECT_TRUE(isShown(windowStates[WINDOW_PROPERTIES].handle));
    EXPECT_EQ(button().width, 75);
    open();
    showType(SLIDER_ROW);
    press(DEFAULTS_OK);
}

TEST_F(Defaults, KeysBelongToTheCellThatIsEdited) {
    open();
    showType(PUSH_BUTTON_ROW);
    const auto editWidth = [this] {
        owSelectProperty(propertyList(), owPropertyItemNumber(propertyList(), "Width"));
        owSetActiveWidget(propertyList());
        settle();
        key(0, Qt::Key_Return);
        settle();
        key(0, Qt::Key_A, Qt::ControlModifier);
        type(0, "44");
    };
    editWidth();
    key(0, Qt::Key_Escape);
    desk.run();
    ASSERT_TRUE(dialogue::widget(DEFAULTS_OK)) << "Esc leaves the cell alone";
    EXPECT_EQ(desk.property("Width"), "75");
    editWidth();
    key(0, Qt::Key_Return);
    desk.run();
    ASSERT_TRUE(dialogue::widget(DEFAULTS_OK)) << "Return takes the cell";
    EXPECT_EQ(button().width, 44);
    key(dialogue::widget(DEFAULTS_TYPES), Qt::Key_Escape);
    desk.run();
    EXPECT_FALSE(dialogue::widget(DEFAULTS_OK));
    EXPECT_EQ(button().width, 75);
}

TEST_F(Defaults, AClickOnTheSampleChangesNothing) {
    WidgetNode* toggle = desk.place(PLACE_CHECK_BOX, desk.panel, 50, 60);
    const int status = toggle->initialStatus;
    project.projectModified = 0;
    open();
    showType(1); // Check Box
    click(defaultRecord(TYPE_TOGGLE)->handle);
    desk.run();
    press(DEFAULTS_OK);
    EXPECT_EQ(toggle->initialStatus, status);
    EXPECT_EQ(project.projectModified, 0);
    EXPECT_EQ(project.currentWidget, toggle);
}

TEST_F(Defaults, SavedSetsAreLoaded) {
    open();
    showType(PUSH_BUTTON_ROW);
    desk.setProperty("Width", "131");
    expectBrowser("Save Defaults As", file("mine.wdd"));
    press(DEFAULTS_SAVE_AS);
    press(DEFAULTS_CANCEL);
    EXPECT_EQ(button().width, 75);
    expectBrowser("Load Defaults", file("mine.wdd"));
    expectBox("Overwrite current widget defaults?", "Do you want to continue?", NO);
    choose(commandWidget(CMD_DEFAULTS_LOAD, CommandWidget::MenuEntry));
    desk.run();
    EXPECT_EQ(button().width, 75);
    expectBrowser("Load Defaults", file("mine.wdd"));
    expectBox("Overwrite current widget defaults?", "Do you want to continue?", YES);
    choose(commandWidget(CMD_DEFAULTS_LOAD, CommandWidget::MenuEntry));
    desk.run();
    EXPECT_EQ(button().width, 131);
    writeTextFile(file("empty.wdd"), "");
    expectBrowser("Load Defaults", "");
    choose(commandWidget(CMD_DEFAULTS_LOAD, CommandWidget::MenuEntry));
    desk.run();
    EXPECT_EQ(button().width, 131);
}

TEST_F(Defaults, AStartupSetIsReadAtTheNextStartAndGoesWithRestore) {
    open();
    showType(PUSH_BUTTON_ROW);
    desk.setProperty("Width", "131");
    expectBox("Overwrite startup widget defaults?", "Do you really want to overwrite system startup defaults?", YES);
    press(DEFAULTS_SAVE_STARTUP);
    press(DEFAULTS_OK);
    desk.session.end();
    desk.session.start();
    EXPECT_EQ(button().width, 131);
    const auto restore = [this] {
        choose(commandWidget(CMD_DEFAULTS_RESTORE, CommandWidget::MenuEntry));
        desk.run();
    };
    expectBox("Restore system widget defaults?", "Do you really want to delete your startup defaults?", NO);
    restore();
    EXPECT_EQ(button().width, 131);
    expectBox("Restore system widget defaults?", "Do you really want to delete your startup defaults?", YES);
    restore();
    EXPECT_EQ(button().width, 75);
    EXPECT_FALSE(std::filesystem::exists(desk.session.data / "wdesign.wdd"));
}

TEST_F(Defaults, WithoutADataFolderThereIsNoStartup) {
    const std::string before = settingsPlaces.dataDir;
    settingsPlaces.dataDir.clear();
    open();
    EXPECT_FALSE(dialogue::isEnabled(DEFAULTS_SAVE_STARTUP));
    press(DEFAULTS_CANCEL);
    settingsPlaces.dataDir = before;
}

TEST_F(Defaults, AFolderThatCannotBeWrittenIsReported) {
    std::filesystem::create_directories(desk.session.data / "wdesign.wdd" / "in the way");
    open();
    expectBox("Overwrite startup widget defaults?", "Do you really want to overwrite system startup defaults?", YES);
    expectBox("Error saving file", "File to save to could not be opened or created", 4);
    press(DEFAULTS_SAVE_STARTUP);
    press(DEFAULTS_OK);
}
