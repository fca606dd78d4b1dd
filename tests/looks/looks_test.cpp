// What you see while designing is what runs. Each property of each type of widget, as the designer shows it after the
// edit, after the form is made anew, and as the programs in all languages show it: the same pixels. What differs stands
// in a table, with the reason.
#include "sheet.h"

#include "menu-c.h"
#include "project/files.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "shell/designer.h"
#include "support/program_languages.h"
#include "support/scratch.h"
#include "surface/live.h"
#include "toolkit/testing/robot.h"

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QWidget>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>

namespace fs = std::filesystem;
namespace robot = orba::testing;

namespace {

// ---- What may differ.

enum Shown : unsigned {
    AFTER_EDIT = 1, // of what a rebuilt form shows; the others are programs
    IN_FORTRAN_90 = 2,
    IN_FORTRAN_77 = 4,
    IN_C = 8,
    IN_ALL = IN_FORTRAN_90 | IN_FORTRAN_77 | IN_C,
};

struct Exception {
    unsigned where;
    TypeSet types;
    std::vector<RowId> rows; // empty: all
    const char* reason;
};

const std::vector<Exception> EXCEPTIONS = {
    {IN_FORTRAN_77, {TYPE_PANE}, {}, "its routines know no docking panes"},
};

// A graphics frame shows a cross while designing, which stands for the drawing of the program; a main panel is its
// form.
constexpr TypeSet NOT_ON_THE_SHEET = {TYPE_GRAPHICS_FRAME, TYPE_MAIN_PANEL};

// ---- Pictures.

using Pictures = std::map<std::string, QImage>; // by the title of the form

Pictures livePictures() {
    owAdoptChild(0, 0, 0);
    if (QWidget* input = QApplication::focusWidget()) input->clearFocus();
    robot::settle(50);
    Pictures pictures;
    for (const WidgetNode* form = project.forms; form; form = form->next) robot::showWhole(form->handle);
    for (const WidgetNode* form = project.forms; form; form = form->next)
        pictures[form->text] = robot::picture(form->handle).convertToFormat(QImage::Format_RGB32);
    return pictures;
}

Pictures picturesIn(const fs::path& folder) {
    Pictures pictures;
    for (const auto& file : fs::directory_iterator(folder))
        pictures[file.path().stem()] = QImage(file.path().c_str()).convertToFormat(QImage::Format_RGB32);
    return pictures;
}

QImage cut(const Pictures& pictures, const Spot& cell) {
    const auto found = pictures.find(cell.form);
    if (found == pictures.end()) return {};
    const QImage& whole = found->second;
    return whole.copy(QRect(cell.x, cell.y, cell.width, cell.height) & whole.rect());
}

// ---- The designer and the programs.

struct Desk {
    ScratchFolder folder{"looks"};
    robot::Toolkit toolkit{robot::Toolkit::Master::none};
    fs::path before = fs::current_path();

    Desk() {
        fs::create_directories(folder.path / "beside" / "folder");
        fs::current_path(folder.path / "beside"); // where the programs run too: some lists show what is in it
        robot::answerBoxes([](QDialog& box) { box.accept(); });
        fs::copy_file(ORBA_SOURCE_DIR "/data/defaults.syn", folder.path / "wdesign.syn");
        setenv("ORBADATA", folder.path.c_str(), 1);
        setenv("ORBA_NO_SPLASH", "1", 1);
        startDesigner("");
        robot::settle();
    }
    ~Desk() {
        endDesigner();
        robot::answerBoxes(nullptr);
        fs::current_path(before);
    }
};

// Every window comes up by code of the project: the shape of the call, with the name of its form in place of "#".
struct Draw {
    ProgramLanguage language;
    Shown shown;
    const char* call;
};
constexpr Draw DRAWS[] = {
    {FORTRAN_90_PROGRAM, IN_FORTRAN_90, "call owDrawWindow(#, 1)\r\n"},
    {FORTRAN_77_PROGRAM, IN_FORTRAN_77, "      CALL WINDRA(#)\r\n"},
    {C_PROGRAM, IN_C, "owDrawWindow(#, 1);\r\n"},
};

std::string drawCode(const std::string& call) {
    std::string code;
    for (const WidgetNode* form = project.forms; form; form = form->next)
        code += std::string(call).replace(call.find('#'), 1, form->name);
    return code;
}

// A shell command that makes and runs the project's program; its pictures come into a folder of the language's name.
std::string programCommand(const Draw& draw, const fs::path& folder) {
    const std::string name = std::string("sheet") + draw.language.name;
    project.projectLanguage = draw.language.number;
    project.codeBlocks[BLOCK_PRE_ACTION] = drawCode(draw.call);
    EXPECT_TRUE(saveProject(folder, name + ".wdp", true));
    fs::create_directory(folder / draw.language.name);
    return "cd " + folder.string() + " && ( " + makeCommand(draw.language, name) +
           " && LD_PRELOAD=" ORBA_PROBE_LIBRARY + " ORBA_PROBE_PICTURES=$PWD/" + draw.language.name +
           " sh -c 'cd beside && exec timeout 60 ../" + name + "' ) > " + name + ".log 2>&1";
}

// ---- Comparing.

struct Comparison {
    const std::vector<Spot>& cells;
    std::vector<bool> used = std::vector<bool>(EXCEPTIONS.size()); // exceptions that a difference needed

    bool excepted(const Spot& cell, Shown where) {
        for (std::size_t i = 0; i < EXCEPTIONS.size(); ++i) {
            const Exception& one = EXCEPTIONS[i];
            const bool row = one.rows.empty() || std::ranges::find(one.rows, cell.row) != one.rows.end();
            if ((one.where & where) == 0 || !one.types.holds(cell.type) || !row) continue;
            used[i] = true;
            return true;
        }
        return false;
    }

    void compare(const Pictures& live, const Pictures& other, Shown where, const char* name) {
        int different = 0;
        for (const Spot& cell : cells) {
            const QImage a = cut(live, cell), b = cut(other, cell);
            if ((!a.isNull() && a == b) || excepted(cell, where)) continue;
            if (++different <= 400) ADD_FAILURE() << name << ": " << cell.form << ": " << cell.what;
        }
        EXPECT_EQ(different, 0) << name << ", of " << cells.size();
    }
};

void keep(const Pictures& pictures, const fs::path& folder) {
    fs::create_directories(folder);
    for (const auto& [title, picture] : pictures) picture.save((folder / (title + ".png")).c_str());
}

} // namespace

TEST(Looks, EveryPropertyShowsTheSameWhereverItIsShown) {
    Desk desk;
    const std::vector<Spot> cells = makeSheet();
    const Pictures edited = livePictures();
    discardForms(project.forms);
    const Pictures live = livePictures();

    // The programs are made while others run, for most of the time goes to compilers.
    std::string commands;
    for (const Draw& draw : DRAWS)
        commands +=
            "( " + programCommand(draw, desk.folder.path) + " ) & p" + std::to_string(draw.language.number) + "=$! ; ";
    for (const Draw& draw : DRAWS) commands += "wait $p" + std::to_string(draw.language.number) + " || exit 1; ";
    ASSERT_EQ(std::system(commands.c_str()), 0) << textOf(desk.folder / "sheetFortran90.log").substr(0, 2000)
                                                << textOf(desk.folder / "sheetC.log").substr(0, 2000)
                                                << textOf(desk.folder / "sheetFortran77.log").substr(0, 2000);

    for (const TypeCard& card : typeCards()) {
        const bool shown = std::ranges::find(cells, card.type, &Spot::type) != cells.end();
        EXPECT_NE(shown, NOT_ON_THE_SHEET.holds(card.type)) << "on the sheet: " << card.label;
    }
    Comparison comparison{cells};
    comparison.compare(live, edited, AFTER_EDIT, "right after the edit");
    for (const Draw& draw : DRAWS)
        comparison.compare(live, picturesIn(desk.folder.path / draw.language.name), draw.shown, draw.language.name);
    for (std::size_t i = 0; i < EXCEPTIONS.size(); ++i)
        EXPECT_TRUE(comparison.used[i]) << "no difference any more: " << EXCEPTIONS[i].reason;

    if (const char* folder = std::getenv("ORBA_KEEP_PICTURES")) {
        keep(edited, fs::path(folder) / "edited");
        keep(live, fs::path(folder) / "live");
        for (const Draw& draw : DRAWS)
            keep(picturesIn(desk.folder.path / draw.language.name), fs::path(folder) / draw.language.name);
    }
}
