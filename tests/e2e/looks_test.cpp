// What you see while designing is what the program shows: a form whose properties are not the usual ones, live in the
// designer and as a running program, compared pixel by pixel. Not on it, for no program is told of them: the cross that
// stands for a drawing, initial states, the style of a form's title bar.
#include "designer.h"
#include "desk.h"

#include "examples/builder.h"
#include "project/files.h"
#include "project/records.h"
#include "support/program_languages.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace fs = std::filesystem;

namespace {

using namespace example;

// Fortran 77 has no words for some of it: colours of lists, alignment of values, prompts, labels of stock icons.
constexpr ProgramLanguage languages[] = {FORTRAN_90_PROGRAM, C_PROGRAM};

void setFont(WidgetNode& node, const char* face, int points, int style) {
    node.fontFace = face;
    node.pointSize = points;
    node.bold = style & 1;
    node.strikeout = style >> 1;
}

void addPages(WidgetNode& form) {
    WidgetNode& box = add(form, TYPE_TAB_BOX, "BOX", 150, 180, 220, 160);
    setFont(box, "Times", 18, 1);
    for (const char* name : {"First", "Second"}) {
        WidgetNode& page = add(box, TYPE_PANEL, std::string("PAGE") + name, 0, 0, 200, 100, name);
        page.titleFlag = 1;
        add(page, TYPE_BUTTON, std::string("ON") + name, 20, 40, 80, 26, name);
    }
}

void addFields(WidgetNode& form) {
    WidgetNode& text = add(form, TYPE_TEXT_ENTRY, "LONG", 150, 120, 120, 24, "a long text that runs out of its field");
    setFont(text, "Times", 12, 2);
    text.fieldWidth = 200;
    add(form, TYPE_VALUE_ENTRY, "VALUE", 10, 60, 100, 24).justify = 1;
    WidgetNode& tty = add(form, TYPE_TTY_ENTRY, "TTY", 390, 180, 150, 80, "Ready");
    tty.size = 3;
    tty.colour1 = 3;
    tty.colour2 = 5;
    add(form, TYPE_TEXT_ARRAY, "CELLS", 150, 10, 200, 100).colour1 = 6;
}

void addChoices(WidgetNode& form) {
    WidgetNode& combo = add(form, TYPE_COMBO_BOX, "COMBO", 10, 240, 110, 80);
    combo.editMode = 0;
    addListEntries(combo, {"one", "two"});
    WidgetNode& list = add(form, TYPE_LIST_BOX, "LIST", 10, 120, 120, 90);
    addListEntries(list, {"one", "two"});
    list.colour1 = 6;
    setFont(list, "MS Sans Serif", 10, 3);
    setFont(addRadioBox(form, "RADIO", 390, 60, 144, 88, "Choice", {"A", "B"}), "Times", 20, 0);
    add(form, TYPE_SLIDER, "SLIDER", 10, 20, 120, 30).colour3 = 3;
}

void makeProject(int language) {
    WidgetNode& form = begin(language, "LOOKS", "Looks", 560, 420);
    WidgetNode& bar = add(form, TYPE_TOOL_BAR, "BAR", 0, 0, 400, 30, "Tools");
    bar.onToolbar = 0;
    WidgetNode& tool = add(bar, TYPE_BUTTON, "TOOL", 0, 0, 60, 24, "Tool");
    tool.onToolbar = 1;
    tool.colour2 = 3;
    setFont(add(form, TYPE_BUTTON, "BUTTON", 10, 300, 120, 30, "Struck"), "MS Sans Serif", 10, 3);
    setFont(add(form, TYPE_ICON, "ICON", 390, 280, 100, 60, "Label"), "MS Sans Serif", 14, 1);
    addPages(form);
    addFields(form);
    addChoices(form);
}

// The inside of the form, from a picture of the whole desk.
std::string pictureOfForm(pid_t program, const std::string& file) {
    const desk::Test tabBox = desk::inWindow("Looks", desk::ofKind("QTabWidget"));
    const desk::Thing tabs = desk::waitFor(program, "the tab box", tabBox);
    desk::picture(file);
    const std::string crop = "convert " + file + " -crop 545x455+" + std::to_string(tabs.x - 145) + "+" +
                             std::to_string(tabs.y - 125) + " +repage " + file;
    EXPECT_EQ(std::system(crop.c_str()), 0) << crop;
    return file;
}

bool sameLooks(const std::string& a, const std::string& b) {
    return std::system(("compare -metric AE " + a + " " + b + " null: > /dev/null 2>&1").c_str()) == 0;
}

class Looks : public testing::TestWithParam<ProgramLanguage> {};

} // namespace

TEST_P(Looks, TheProgramShowsWhatTheDesignerShows) {
    const ProgramLanguage& language = GetParam();
    ASSERT_TRUE(desk::open());
    const std::string folder = desk::scratchFolder() + "/looks" + language.name;
    fs::create_directories(folder);
    makeProject(language.number);
    ASSERT_TRUE(saveProject(folder, "drawn.wdp", true));
    const pid_t designer = designer::open(folder, "drawn.wdp");
    desk::settle(designer);
    const std::string live = pictureOfForm(designer, folder + "/live.png");
    designer::close(designer);

    const std::string script = "cd " + folder + " && ( " + makeCommand(language, "drawn") + " ) > compile.log 2>&1";
    ASSERT_EQ(std::system(script.c_str()), 0) << script;
    const pid_t program = desk::start({"./drawn"}, {}, folder, folder + "/run.log");
    desk::settle(program);
    // More than once: a text cursor may blink in the widget that has the input.
    const auto agrees = [&] { return sameLooks(live, pictureOfForm(program, folder + "/shown.png")); };
    EXPECT_TRUE(desk::waitUntil(agrees)) << "compare " << live << " with " << folder << "/shown.png";
    kill(program, SIGTERM);
    desk::stop(program);
}

INSTANTIATE_TEST_SUITE_P(Languages, Looks, testing::ValuesIn(languages),
                         [](const auto& info) { return std::string(info.param.name); });
