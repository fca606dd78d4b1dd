// Texts of entries and labels between form, record and program.
#include "desk.h"

#include "codegen/quotes.h"
#include "project/defaults.h"
#include "surface/live.h"

#include <cstdlib>

namespace robot = orba::testing;

namespace {

const std::string ACCENT = "\xc3\xa9"; // two bytes

std::string repeated(const std::string& text, int times) {
    std::string result;
    for (; times > 0; --times) result += text;
    return result;
}

std::string shown(const WidgetNode& node) { return robot::shownText(node.handle).toStdString(); }

WidgetNode* placeRichEntry(Desk& desk) {
    WidgetNode* text = desk.place(PLACE_TEXT_ENTRY, desk.panel, 20, 200);
    desk.setProperty("Height", "80");
    desk.setProperty("Type", "Rich Text");
    return text;
}

// Typed by the user, who then turns to the form.
void typeInto(Desk& desk, const WidgetNode& node, const char* text) {
    robot::type(node.handle, text);
    desk.run();
    desk.click(desk.panel, 5, 5);
}

TEST(FieldText, IsCutBetweenLetters) {
    Desk desk;
    WidgetNode* text = desk.place(PLACE_TEXT_ENTRY, desk.panel, 20, 20);
    desk.setProperty("Field Width", "5");
    desk.setProperty("Text", repeated(ACCENT, 5));
    EXPECT_EQ(text->text, ACCENT + ACCENT);
    EXPECT_EQ(shown(*text), ACCENT + ACCENT);
    desk.setProperty("Field Width", "3");
    EXPECT_EQ(text->text, ACCENT);
}

TEST(FieldText, AnAcceleratorIsOneLetter) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    desk.setProperty("Accelerator", ACCENT);
    EXPECT_EQ(button->accel, 0xE9);
    EXPECT_EQ(desk.property("Accelerator"), ACCENT);
    desk.setProperty("Accelerator", "\xf0\x9f\x98\x80"); // no key has it
    EXPECT_EQ(desk.property("Accelerator"), ACCENT);
    desk.setProperty("Accelerator", "");
    EXPECT_EQ(button->accel, 0);
}

// What is typed into rich text arrives in the program, with all its lines and no bars.
TEST(FieldText, RichTextArrives) {
    Desk desk;
    WidgetNode* text = placeRichEntry(desk);
    robot::type(text->handle, "it's one | \"bar\" \\ {x}");
    robot::key(text->handle, Qt::Key_Return);
    typeInto(desk, *text, "second");
    ASSERT_TRUE(text->text.starts_with("{\\rtf")) << text->text;
    const std::string typed = shown(*text);
    EXPECT_EQ(typed, "it's one | \"bar\" \\ {x}\r\nsecond");
    const std::string source = withBars(withoutRichLineFeeds(text->text)); // as a program gets it
    const int program =
        owCreateTextEntry(desk.panel->handle, 0, 0, 100, 100, source.c_str(), 0, OEDIT, owEntryType, ORICHEDIT, 0);
    EXPECT_EQ(robot::shownText(program).toStdString(), typed);
    owEraseWidget(program);
}

TEST(FieldText, RichTextIsNeverCut) {
    Desk desk;
    WidgetNode* text = placeRichEntry(desk);
    desk.setProperty("Field Width", "256");
    typeInto(desk, *text, repeated("many words ", 40).c_str());
    const std::string whole = text->text;
    EXPECT_GT(whole.size(), 440U);
    EXPECT_TRUE(whole.ends_with("}"));
    EXPECT_GE(std::abs(text->fieldWidth), static_cast<int>(whole.size()));
    desk.click(text);
    desk.setProperty("Field Width", "256");
    EXPECT_TRUE(text->text.ends_with("}"));
    EXPECT_GE(std::abs(text->fieldWidth), static_cast<int>(text->text.size()));
}

TEST(FieldText, RichTextThatNoProjectHoldsIsTold) {
    Desk desk;
    WidgetNode* text = placeRichEntry(desk);
    typeInto(desk, *text, "short");
    const std::string before = text->text;
    owSetTextSetting(text->handle, repeated("far too long ", 3000).c_str(), 0);
    robot::expectBox("Text too long",
                     "With its formatting the text is longer than the 32767 characters that a project can hold\n"
                     "Shorten it, or remove some of its formatting",
                     OANSWEROK);
    typeInto(desk, *text, "x");
    EXPECT_EQ(text->text, before);
}

// An entry that fills a pane has lines in the program, whatever height its record keeps.
TEST(FieldText, BarsAreLinesOnAPane) {
    Desk desk;
    WidgetNode* pane = linkChild(*desk.panel, createFromDefaults(TYPE_PANE, 0, 0));
    OwnedList made = createFromDefaults(TYPE_TEXT_ENTRY, 0, 0);
    WidgetNode* text = made.get();
    text->text = "a|b\r\nc";
    text->expand = 1;
    text->hpos = text->vpos = 0;
    text->height = 22;
    linkChild(*pane, std::move(made));
    defaultName(pane, NAME_NEW);
    discardForms(project.forms);
    desk.run();
    EXPECT_EQ(shown(*text), "a\r\nb\r\nc");
}

} // namespace
