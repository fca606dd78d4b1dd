// The installed toolkit, under a prefix of its own: what pkg-config tells compiles and runs programs of each language.
#include "desk.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

TEST(Installation, CompilesEachLanguageByPkgConfig) {
    ASSERT_TRUE(desk::open());
    const std::string folder = desk::scratchFolder() + "/install";
    const std::string prefix = folder + "/a prefix"; // with a blank
    std::filesystem::create_directories(folder);
    ASSERT_EQ(
        std::system(("cmake --install " ORBA_BINARY_DIR " --prefix '" + prefix + "' > " + folder + "/install.log 2>&1")
                        .c_str()),
        0);
    const struct {
        const char* example;
        const char* source;
        const char* compiler;
    } rows[] = {{"heat", "heat.f90", "gfortran -ffree-line-length-none"},
                {"beam", "beam.for", "gfortran -std=legacy -ffixed-form -ffixed-line-length-none"},
                {"converter", "converter.cpp", "g++"}};
    for (const auto& row : rows) {
        const std::string command = "cd " + folder + " && export PKG_CONFIG_PATH='" + prefix + "/lib/pkgconfig' && '" +
                                    prefix + "/bin/wdgen' " ORBA_SOURCE_DIR "/examples/" + row.example + "/" +
                                    row.example + ".wdp -o " + folder + "/" + row.source + " && eval " + row.compiler +
                                    " " + row.source + " -o " + row.example +
                                    " \"$(pkg-config --cflags --libs orbawidg)\" > " + row.example + ".log 2>&1";
        ASSERT_EQ(std::system(command.c_str()), 0) << command;
        const pid_t program = desk::start({"./" + std::string(row.example)}, {}, folder, folder + "/run.log");
        desk::settle(program);
        desk::click(desk::waitFor(program, "Quit", desk::withText("Quit")));
        EXPECT_EQ(desk::stop(program), 0) << row.example;
    }
}
