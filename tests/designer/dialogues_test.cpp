// The frame of dialogues: every kind of control, modal and modeless, worked by mouse and by keys.
#include "desk.h"

#include "dialogues/frame.h"
#include "editing/editor_window.h"
#include "surface/dialogue_keys.h"
#include "toolkit/testing/robot.h"

#include <QApplication>
#include <QFontMetrics>
#include <QWidget>

namespace robot = orba::testing;

namespace {

enum Id : int {
    ID_PANEL = 15940,
    ID_TEXT,
    ID_NUMBER,
    ID_COMBO,
    ID_CHOICE,
    ID_TOGGLE,
    ID_ONE,
    ID_OTHER,
    ID_LIST,
    ID_ROWS,
    ID_TABS,
    ID_PAGE1,
    ID_PAGE2,
    ID_BUTTON,
    ID_OK,
    ID_CANCEL,
    ID_WINDOW,
    ID_FIND,
    ID_FIND_CANCEL,
    ID_FIND_WINDOW
};

constexpr int SHORTCUT_MILLISECONDS = 200; // a toggle is seen to be pressed

std::vector<std::string> told; // by the handlers
void tell(const char* what) { told.push_back(what); }

std::vector<std::string> takeTold() { return std::exchange(told, {}); }

extern const Dialogue ALL_FIELDS;

constexpr Control FIELDS[] = {
    {.field = Field::Label, .text = "A long label:", .y = 132, .width = 66},
    {.field = Field::Text,
     .id = ID_TEXT,
     .x = 66,
     .y = 132,
     .width = 132,
     .changed = [] { dialogue::text(ID_TEXT) == "bad" ? dialogue::refuse(ID_TEXT), tell("refused") : tell("text"); },
     .typed = [] { tell("typed"); }},
    {.field = Field::Number, .id = ID_NUMBER, .y = 110, .width = 66, .length = 3, .minimum = 1, .maximum = 99},
    {.field = Field::Combo, .id = ID_COMBO, .x = 66, .y = 110, .width = 66},
    {.field = Field::Choice, .id = ID_CHOICE, .x = 132, .y = 110, .width = 66},
    {.field = Field::Toggle,
     .id = ID_TOGGLE,
     .text = "Toggle",
     .y = 88,
     .width = 66,
     .mnemonic = 'T',
     .changed = [] { tell("toggle"); }},
    {.field = Field::Radio, .id = ID_ONE, .text = "One", .x = 66, .y = 88, .width = 66},
    {.field = Field::Radio, .id = ID_OTHER, .text = "Other", .x = 132, .y = 88, .width = 66},
    {.field = Field::List,
     .id = ID_LIST,
     .y = 22,
     .width = 99,
     .height = 66,
     .changed = [] { tell("row"); },
     .entered = [] { tell("entered"); },
     .moved = [](int from, int to) { told.push_back(std::to_string(from) + " to " + std::to_string(to)); }},
    {.field = Field::MultiList, .id = ID_ROWS, .x = 99, .y = 22, .width = 99, .height = 66},
    {.field = Field::Tabs, .id = ID_TABS, .x = 198, .y = 22, .width = 132, .height = 132},
    {.field = Field::Page, .id = ID_PAGE1, .text = "First", .parent = ID_TABS},
    {.field = Field::Page, .id = ID_PAGE2, .text = "Second", .parent = ID_TABS},
    {.field = Field::Button,
     .id = ID_BUTTON,
     .text = "Press me now",
     .width = 66,
     .changed = [] { tell("button"); },
     .parent = ID_PAGE2},
    {.field = Field::Default,
     .id = ID_OK,
     .text = "OK",
     .x = 198,
     .width = 66,
     .mnemonic = 'O',
     .changed = [] { tell("ok"); }},
    {.field = Field::Button,
     .id = ID_CANCEL,
     .text = "Cancel",
     .x = 264,
     .width = 66,
     .mnemonic = 'C',
     .changed = [] { closeDialogue(ALL_FIELDS); }},
};
constexpr DialogueKey KEYS[] = {{OKEYUP + 4000, ID_BUTTON, 0}, {OKEYDEL, ID_TOGGLE, ID_LIST}};

const Dialogue ALL_FIELDS = {.title = "All fields",
                             .help = "Fields",
                             .width = 330,
                             .height = 154,
                             .windowEvent = ID_WINDOW,
                             .controls = FIELDS,
                             .cancel = ID_CANCEL,
                             .first = ID_TEXT,
                             .fill =
                                 [] {
                                     dialogue::setRows(ID_LIST, {"a", "b", "c"});
                                     dialogue::setRows(ID_ROWS, {"a", "b", "c"});
                                     dialogue::setRows(ID_CHOICE, {"red", "green"});
                                     dialogue::setRows(ID_COMBO, {"8", "10"});
                                 },
                             .refresh = [] { dialogue::enable(ID_OK, dialogue::text(ID_TEXT) != "none"); },
                             .keys = KEYS};

extern const Dialogue MODELESS;
constexpr Control FIND[] = {
    {.field = Field::Text, .id = ID_FIND, .y = 22, .width = 132},
    {.field = Field::Default,
     .id = ID_FIND_CANCEL,
     .text = "Close",
     .width = 132,
     .changed = [] { closeDialogue(MODELESS); }},
};
const Dialogue MODELESS = {.title = "Find",
                           .width = 132,
                           .height = 44,
                           .windowEvent = ID_FIND_WINDOW,
                           .controls = FIND,
                           .cancel = ID_FIND_CANCEL,
                           .first = ID_FIND,
                           .modeless = true};

struct Frame : testing::Test {
    Desk desk;
    void SetUp() override {
        openDialogue(ALL_FIELDS);
        desk.run();
        told.clear();
    }
    void key(Qt::Key code, Qt::KeyboardModifiers held = Qt::NoModifier) {
        robot::key(0, code, held);
        desk.run();
    }
    void click(int id, QPoint at = robot::MIDDLE) {
        robot::click(dialogue::widget(id), at);
        desk.run();
    }
};

} // namespace

TEST_F(Frame, EveryFieldIsReadAndSet) {
    using namespace dialogue;
    setText(ID_TEXT, "some text");
    EXPECT_EQ(text(ID_TEXT), "some text");
    setNumber(ID_NUMBER, 42);
    EXPECT_EQ(number(ID_NUMBER), 42);
    setText(ID_COMBO, "11"); // none of its rows
    EXPECT_EQ(text(ID_COMBO), "11");
    choose(ID_CHOICE, 2);
    EXPECT_EQ(text(ID_CHOICE), "green");
    EXPECT_EQ(choice(ID_CHOICE), 2);
    setOn(ID_TOGGLE, true);
    EXPECT_TRUE(isOn(ID_TOGGLE));
    setOn(ID_ONE, true);
    setOn(ID_OTHER, true);
    EXPECT_FALSE(isOn(ID_ONE));
    choose(ID_LIST, 3);
    EXPECT_EQ(choice(ID_LIST), 3);
    choose(ID_ROWS, 1);
    choose(ID_ROWS, 3);
    EXPECT_EQ(choices(ID_ROWS), (std::vector{1, 3}));
    enable(ID_TABS, false);
    EXPECT_FALSE(isEnabled(ID_BUTTON)) << "with the pages that hold it";
    desk.run();
    EXPECT_EQ(takeTold(), std::vector<std::string>{}) << "what a program sets is no event";
}

TEST_F(Frame, TheMouseWorksIt) {
    click(ID_TOGGLE);
    click(ID_OTHER);
    click(ID_ONE);
    EXPECT_TRUE(dialogue::isOn(ID_ONE));
    EXPECT_FALSE(dialogue::isOn(ID_OTHER));
    dialogue::showPage(ID_PAGE2);
    click(ID_BUTTON);
    click(ID_LIST, {10, 8});
    click(ID_OK);
    EXPECT_EQ(takeTold(), (std::vector<std::string>{"toggle", "button", "row", "ok"}));
    robot::doubleClick(dialogue::widget(ID_LIST), {10, 8});
    desk.run();
    EXPECT_EQ(takeTold().back(), "entered");
    const int row = QFontMetrics(QApplication::font()).height() + 4;
    robot::drag(dialogue::widget(ID_LIST), {10, 8}, {10, 8 + 2 * row});
    desk.run();
    EXPECT_EQ(takeTold().back(), "1 to 3");
    robot::closeByUser(dialogue::window(ID_OK));
    desk.run();
    EXPECT_FALSE(isOpen(ALL_FIELDS));
    EXPECT_FALSE(dialogueOpen());
}

TEST_F(Frame, KeysWorkIt) {
    robot::type(0, "ab");
    key(Qt::Key_Return);
    EXPECT_EQ(takeTold(), (std::vector<std::string>{"typed", "typed", "text", "ok"}));
    key(Qt::Key_T, Qt::AltModifier);
    robot::settle(SHORTCUT_MILLISECONDS);
    desk.run();
    key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(takeTold(), (std::vector<std::string>{"toggle", "button"}));
    dialogue::focus(ID_LIST);
    key(Qt::Key_Delete);
    EXPECT_EQ(takeTold(), std::vector<std::string>{"toggle"}) << "a key of the list";
    dialogue::focus(ID_TEXT);
    key(Qt::Key_Delete);
    EXPECT_EQ(takeTold(), std::vector<std::string>{}) << "which is the field's own there";
    EXPECT_EQ(design.helpContext, "Fields");
    key(Qt::Key_Escape);
    EXPECT_FALSE(isOpen(ALL_FIELDS));
}

TEST_F(Frame, AnOkThatLeavesARefusedFieldDoesNotCount) {
    robot::type(0, "bad");
    desk.run();
    takeTold();
    key(Qt::Key_Return);
    EXPECT_EQ(takeTold(), std::vector<std::string>{"refused"});
    dialogue::setText(ID_TEXT, "good");
    click(ID_OK);
    EXPECT_EQ(takeTold().back(), "ok") << "the next one counts";
}

TEST_F(Frame, TheStateFollowsEveryEvent) {
    robot::type(0, "none");
    desk.run();
    EXPECT_FALSE(dialogue::isEnabled(ID_OK));
    takeTold();
    key(Qt::Key_Return);
    EXPECT_EQ(takeTold(), std::vector<std::string>{"text"});
}

// A larger font enlarges all that a table places, so that nothing is cut.
TEST(DialogueFrame, GrowsWithTheFont) {
    const QFont before = QApplication::font();
    Desk desk;
    QFont large = before;
    large.setPointSize(20);
    QApplication::setFont(large);
    openDialogue(ALL_FIELDS);
    const QFontMetrics metrics(large);
    EXPECT_GE(robot::viewOf(dialogue::widget(ID_TEXT))->height(), metrics.height() + 4);
    EXPECT_GE(robot::viewOf(dialogue::widget(ID_BUTTON))->width(),
              metrics.horizontalAdvance(QStringLiteral("Press me now")) + 10);
    const QWidget* text = robot::viewOf(dialogue::widget(ID_TEXT));
    const QWidget* below = robot::viewOf(dialogue::widget(ID_NUMBER));
    EXPECT_LT(text->geometry().bottom(), below->geometry().top());
    closeDialogue(ALL_FIELDS);
    QApplication::setFont(before);
}

// While a modeless dialogue is open forms and code can be worked; Esc closes it where it has the focus.
TEST(DialogueFrame, AModelessOneLeavesTheRestAlone) {
    Desk desk;
    WidgetNode* button = desk.place(PLACE_BUTTON, desk.panel, 20, 20);
    openDialogue(MODELESS);
    desk.run();
    EXPECT_FALSE(dialogueOpen());
    robot::type(dialogue::widget(ID_FIND), "abc");
    robot::key(0, Qt::Key_Delete);
    desk.run();
    EXPECT_EQ(dialogue::text(ID_FIND), "abc");
    EXPECT_EQ(desk.panel->child, button) << "Del belongs to the field";
    openDialogue(MODELESS); // comes to the front
    desk.click(button);
    EXPECT_EQ(project.currentWidget, button);
    EXPECT_TRUE(isOpen(MODELESS));
    robot::key(dialogue::widget(ID_FIND), Qt::Key_Escape);
    desk.run();
    EXPECT_FALSE(isOpen(MODELESS));
    openDialogue(MODELESS); // still open when the designer ends
}
