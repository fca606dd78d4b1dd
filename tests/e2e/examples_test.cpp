// The examples that are made from records: each is generated, compiled against the toolkit, started and used.
#include "desk.h"

#include "examples/examples.h"
#include "project/build_inputs.h"
#include "project/files.h"
#include "project/tree.h"
#include "support/program_languages.h"
#include "support/records_equal.h"
#include "support/scratch.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

const std::string EXAMPLES = std::string(ORBA_SOURCE_DIR) + "/examples/";

struct Program {
    const char* example;
    ProgramLanguage language;
};

constexpr Program programs[] = {{"heat", FORTRAN_90_PROGRAM}, {"beam", FORTRAN_77_PROGRAM}, {"converter", C_PROGRAM}};

// Generates, compiles and starts an example; its output goes to a log beside it.
pid_t startExample(const Program& row) {
    const std::string folder = desk::scratchFolder() + "/" + row.example;
    fs::create_directories(folder);
    const std::string script = "cd " + folder + " && ( cp " + EXAMPLES + row.example + "/" + row.example +
                               ".wdp . && " + makeCommand(row.language, row.example) + " ) > compile.log 2>&1";
    EXPECT_EQ(std::system(script.c_str()), 0) << script;
    const pid_t program = desk::start({"./" + std::string(row.example)}, {}, folder, folder + "/run.log");
    desk::settle(program);
    return program;
}

desk::Thing button(pid_t program, const std::string& label) {
    return desk::waitFor(program, "the button " + label, [&](const desk::Thing& thing) {
        return thing.text == label && thing.kind.find("Button") != std::string::npos;
    });
}

desk::Test showing(const std::string& part) {
    return [part](const desk::Thing& thing) { return thing.text.find(part) != std::string::npos; };
}

void leave(pid_t program, const std::string& example) {
    desk::picture(std::string(ORBA_BINARY_DIR) + "/pictures/" + example + ".png");
    desk::click(button(program, "Quit"));
    EXPECT_EQ(desk::stop(program), 0);
    std::ifstream log(desk::scratchFolder() + "/" + example + "/run.log");
    for (std::string line; std::getline(log, line);) EXPECT_EQ(line.find("Error "), std::string::npos) << line;
}

} // namespace

namespace {

// The stored project and the one that is open, once it has been through a file.
void expectStored(const std::string& folder, const std::string& name, const std::function<void()>& make) {
    ASSERT_TRUE(loadProject(folder, name));
    const OwnedList stored = copyNode(project.forms, true);
    const auto blocks = project.codeBlocks;
    const BuildInputs inputs = buildInputs();
    make();
    const ScratchFolder scratch;
    ASSERT_TRUE(saveProject(scratch.path, name, true));
    ASSERT_TRUE(loadProject(scratch.path, name));
    EXPECT_EQ(differences(stored.get(), project.forms), "") << name;
    EXPECT_EQ(blocks, project.codeBlocks) << name;
    EXPECT_TRUE(inputs == buildInputs()) << name;
}

} // namespace

TEST(Examples, AreWhatTheirProgramWrites) {
    for (const example::Row& row : example::examples)
        expectStored(EXAMPLES + row.name, std::string(row.name) + ".wdp", row.make);
    for (const example::TemplateRow& row : example::templates)
        for (const int language : {90, 99})
            expectStored(ORBA_SOURCE_DIR "/data/templates",
                         std::string(row.name) + (language == 99 ? "_c.wdp" : "_f90.wdp"), [&] { row.make(language); });
}

// Each template as it is, in both languages.
TEST(BuildingTemplates, MakesProgramsThatRun) {
    ASSERT_TRUE(desk::open());
    for (const example::TemplateRow& row : example::templates)
        for (const ProgramLanguage& language : {FORTRAN_90_PROGRAM, C_PROGRAM}) {
            const std::string name = std::string(row.name) + (language.number == 99 ? "_c" : "_f90");
            const std::string folder = desk::scratchFolder() + "/" + name;
            fs::create_directories(folder);
            const std::string script = "cd " + folder + " && ( cp " ORBA_SOURCE_DIR "/data/templates/" + name +
                                       ".wdp . && " + makeCommand(language, name) + " ) > compile.log 2>&1";
            ASSERT_EQ(std::system(script.c_str()), 0) << script;
            const pid_t program = desk::start({"./" + name}, {}, folder, folder + "/run.log");
            desk::settle(program);
            desk::picture(std::string(ORBA_BINARY_DIR) + "/pictures/template_" + name + ".png");
            if (std::string(row.name) == "calculator") {
                desk::click(button(program, "+"));
                desk::click(button(program, "Quit"));
            } else if (std::string(row.name) == "tool") {
                desk::click(desk::waitFor(program, "File", desk::ofKind("Action", desk::withText("File"))));
                desk::click(desk::waitFor(program, "Quit", desk::ofKind("Action", desk::withText("Quit"))));
            } else {
                desk::click(button(program, "Cancel"));
            }
            EXPECT_EQ(desk::stop(program), 0) << name;
        }
}

TEST(Examples, HeatRunsStopsAndTakesSettings) {
    ASSERT_TRUE(desk::open());
    const pid_t program = startExample(programs[0]);
    desk::click(button(program, "Start"));
    desk::waitFor(
        program, "progress",
        [](const desk::Thing& thing) {
            return thing.kind.find("Progress") != std::string::npos && std::atoi(thing.text.c_str()) > 5;
        },
        30);
    desk::click(button(program, "Stop"));
    desk::click(button(program, "Settings..."));
    const desk::Thing nodes = desk::waitFor(program, "the number of nodes", desk::inWindow("Settings", showing("101")));
    desk::click(nodes);
    desk::key("ctrl+a");
    desk::type("21");
    desk::click(button(program, "OK"));
    EXPECT_TRUE(desk::waitUntil([&] { return !desk::shows(program, desk::inWindow("Settings", {})); }));
    desk::waitFor(program, "the rod at its start",
                  [](const desk::Thing& thing) { return thing.kind == "Cell" && thing.text == "20.00"; });
    leave(program, "heat");
}

TEST(Examples, BeamFollowsItsSupport) {
    ASSERT_TRUE(desk::open());
    const pid_t program = startExample(programs[1]);
    desk::waitFor(program, "the deflection between two supports", showing("3.268 mm"));
    desk::click(desk::waitFor(program, "Cantilever", desk::withText("Cantilever")));
    desk::waitFor(program, "the deflection of a cantilever", showing("52.284 mm"));
    leave(program, "beam");
}

TEST(Examples, ConverterConvertsAndShowsMaterials) {
    ASSERT_TRUE(desk::open());
    const pid_t program = startExample(programs[2]);
    desk::waitFor(program, "the first conversion", desk::withText("1 metre = 1000 millimetre"));
    desk::click(button(program, "Swap"));
    desk::waitFor(program, "the other way", desk::withText("1 millimetre = 0.001 metre"));
    const desk::Thing metals = desk::waitFor(program, "Metals", desk::ofKind("Cell", desk::withText("Metals")));
    desk::doubleClick(metals);
    desk::click(desk::waitFor(program, "Copper", desk::ofKind("Cell", desk::withText("Copper"))));
    desk::waitFor(program, "the density of copper", desk::withText("8960 kg/m3"));
    desk::click(desk::waitFor(program, "the quantities", [](const desk::Thing& thing) {
        return thing.text == "Length" && thing.kind.find("Combo") != std::string::npos;
    }));
    desk::picture(std::string(ORBA_BINARY_DIR) + "/pictures/converter_list.png");
    desk::click(desk::waitFor(program, "Temperature", desk::ofKind("Cell", desk::withText("Temperature"))));
    desk::waitFor(program, "a temperature", desk::withText("1 kelvin = -272.15 Celsius"));
    leave(program, "converter");
}
