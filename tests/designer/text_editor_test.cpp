// The editors of texts, plain and rich.
#include "dialogue_test.h"

#include "dialogues/text_editor.h"
#include "platform/text_files.h"
#include "properties/commands.h"
#include "properties/sheet.h"
#include "surface/dialogue_keys.h"
#include "surface/live.h"
#include "surface/window_states.h"

#include <QColor>
#include <QWidget>

namespace robot = orba::testing;

namespace {

struct TextEditor : DialogueTest {
    WidgetNode* text = nullptr;

    void place(bool rich) {
        text = desk.place(PLACE_TEXT_ENTRY, desk.panel, 20, rich ? 40 : 200);
        desk.setProperty("Height", "80");
        if (rich) desk.setProperty("Type", "Rich Text");
        if (!rich) text->text = std::string(300, 'x'); // too long for a cell
        text->fieldWidth = 400;
        selectWidget(text);
    }
    void open() {
        owSelectProperty(propertyList(), owPropertyItemNumber(propertyList(), "Text"));
        owPostCallback(CMD_PROPERTY_BUTTON, propertyList());
        desk.run();
        ASSERT_TRUE(dialogueOpen());
    }
};

} // namespace

TEST_F(TextEditor, PlainTextIsStoredWithItsLines) {
    place(false);
    project.projectModified = 0;
    open();
    key(Qt::Key_A, Qt::ControlModifier);
    for (int line = 0; line < 40; ++line) {
        type("line");
        key(Qt::Key_Return);
    }
    EXPECT_TRUE(dialogueOpen()) << "Return is a line of the text";
    EXPECT_EQ(dialogue::text(TEXT_COUNT), "240 of 400 characters");
    key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(dialogueOpen());
    EXPECT_EQ(text->text.size(), 240U);
    EXPECT_TRUE(text->text.starts_with("line\r\nline"));
    EXPECT_EQ(project.projectModified, 1);
    EXPECT_TRUE(robot::shownText(text->handle).startsWith(QStringLiteral("line")));
}

TEST_F(TextEditor, PlainTextIsCutAtTheFieldWidth) {
    place(false);
    text->fieldWidth = 350;
    open();
    key(Qt::Key_End, Qt::ControlModifier);
    for (int i = 0; i < 10; ++i) type("0123456789");
    press(TEXT_OK);
    EXPECT_EQ(text->text.size(), 350U);
}

TEST_F(TextEditor, OkWithoutAChangeMarksNothingAndCancelAsksOnce) {
    for (const bool rich : {false, true}) {
        place(rich);
        const std::string before = text->text;
        project.projectModified = 0;
        open();
        if (rich)
            owPostCallback(TEXT_OK, 0);
        else
            robot::click(dialogue::widget(TEXT_OK));
        desk.run();
        EXPECT_EQ(project.projectModified, 0);
        EXPECT_EQ(text->text, before);
        open();
        type("!");
        robot::expectBox("Cancel Text Editor", "Text has been modified\n\nOK to abandon?", OANSWERNO);
        key(Qt::Key_Escape);
        EXPECT_TRUE(dialogueOpen());
        EXPECT_EQ(owEnqActiveWidget(), dialogue::widget(TEXT_AREA));
        robot::expectBox("Cancel Text Editor", "Text has been modified\n\nOK to abandon?", OANSWERYES);
        robot::closeByUser(dialogue::window(TEXT_AREA));
        desk.run();
        EXPECT_FALSE(dialogueOpen());
        EXPECT_EQ(text->text, before);
        open();
        type("!");
        key(Qt::Key_Backspace);
        key(Qt::Key_Escape); // nothing is modified, nothing is asked
        EXPECT_FALSE(dialogueOpen());
    }
}

TEST_F(TextEditor, TheWindowKeepsItsPlace) {
    place(false);
    open();
    robot::resizeByUser(dialogue::window(TEXT_AREA), {520, 340});
    desk.run();
    key(Qt::Key_Escape);
    EXPECT_EQ(windowStates[WINDOW_TEXT_EDITOR].width, 520);
    open();
    EXPECT_EQ(robot::viewOf(dialogue::window(TEXT_AREA))->width(), 520);
    key(Qt::Key_Escape);
}

// ---- Rich text

TEST_F(TextEditor, AttributesArriveInTheText) {
    place(true);
    open();
    type("plain ");
    key(Qt::Key_B, Qt::ControlModifier);
    type("bold");
    desk.command(TEXT_CENTRE);
    ORGBSTY before = {}, after = {};
    oEnqRGB(20, &before);
    key(Qt::Key_A, Qt::ControlModifier);
    robot::expectColourBox(QColor(255, 0, 0));
    desk.command(TEXT_COLOUR);
    oEnqRGB(20, &after);
    EXPECT_EQ(after.red, before.red) << "the colours of the project stay";
    desk.command(TEXT_OK);
    EXPECT_FALSE(dialogueOpen());
    EXPECT_TRUE(text->text.starts_with("{\\rtf")) << text->text;
    EXPECT_NE(text->text.find("\\b"), std::string::npos);
    EXPECT_NE(text->text.find("\\qc"), std::string::npos);
    EXPECT_NE(text->text.find("\\red255"), std::string::npos);
    EXPECT_EQ(robot::shownText(text->handle).toStdString(), "plain bold");
    const std::string stored = text->text;
    project.projectModified = 0;
    open();
    desk.command(TEXT_OK);
    EXPECT_EQ(text->text, stored) << "opened and left as it was";
    EXPECT_EQ(project.projectModified, 0);
}

TEST_F(TextEditor, FilesAreOpenedAndSaved) {
    place(true);
    const std::string path = (desk.session.root / "text.txt").string();
    writeTextFile(path, "from a file");
    open();
    robot::expectBrowser("Open", path);
    desk.command(TEXT_OPEN);
    EXPECT_EQ(robot::viewOf(dialogue::window(TEXT_AREA))->windowTitle().toStdString(), path);
    key(Qt::Key_End, Qt::ControlModifier);
    type("!");
    desk.command(TEXT_SAVE);
    std::string saved;
    EXPECT_TRUE(readTextFile(path, saved));
    EXPECT_EQ(saved, "from a file!");
    robot::expectBrowser("Save As", "");
    desk.command(TEXT_SAVE_AS);
    project.projectModified = 0;
    desk.command(TEXT_OK);
    EXPECT_EQ(project.projectModified, 1) << "what came from the file is a change";
    EXPECT_EQ(robot::shownText(text->handle).toStdString(), "from a file!");
}

TEST_F(TextEditor, RichTextThatNoProjectHoldsIsRefused) {
    place(true);
    const std::string before = text->text;
    open();
    const std::string longest(40000, 'w');
    owSetTextSetting(dialogue::widget(TEXT_AREA), longest.c_str(), 0);
    robot::expectBox("Text too long",
                     "With its formatting the text is longer than the 32767 characters that a project can hold\n"
                     "Shorten it, or remove some of its formatting",
                     OANSWEROK);
    desk.command(TEXT_OK);
    EXPECT_TRUE(dialogueOpen());
    EXPECT_EQ(text->text, before);
    robot::expectBox("Cancel Text Editor", "Text has been modified\n\nOK to abandon?", OANSWERYES);
    key(Qt::Key_Escape);
}
