#include "platform/environment.h"
#include "support/scratch.h"

#include <gtest/gtest.h>

namespace {

struct FoldersTest : testing::Test {
    ScratchFolder scratch;
    std::string install = scratch / "install";
    std::string data = scratch / "data";
    ScopedVariable home{"HOME", (scratch / "home").c_str()};
    ScopedVariable config{"XDG_CONFIG_HOME", nullptr};

    void SetUp() override {
        std::filesystem::create_directories(install);
        std::filesystem::create_directories(data);
    }
};

} // namespace

TEST_F(FoldersTest, DataFolderIsTheNamedOneThenTheInstallationThenTheUsersOwn) {
    std::string own = scratch / "home/.config/orbawidg";
    std::string missing = scratch / "missing";
    struct Row {
        const char* orba;
        const char* orbadata;
        std::string expected;
    };
    const Row rows[] = {
        {install.c_str(), data.c_str(), data}, {install.c_str(), missing.c_str(), install},
        {install.c_str(), nullptr, install},   {missing.c_str(), nullptr, own},
        {nullptr, data.c_str(), data},         {nullptr, nullptr, own},
    };
    for (const Row& row : rows) {
        ScopedVariable orba("ORBA", row.orba);
        ScopedVariable orbadata("ORBADATA", row.orbadata);
        readFolders();
        EXPECT_EQ(folders.dataDir, row.expected);
        EXPECT_TRUE(std::filesystem::exists(folders.dataDir));
        if (row.orba) {
            EXPECT_EQ(folders.installDir, row.orba);
        }
    }
}

TEST_F(FoldersTest, WordSizeFollowsArchitectureAndInstallationFolder) {
    struct Row {
        const char* architecture;
        const char* folder;
        bool wide;
        bool system;
    };
    const Row rows[] = {
        {"AMD64", "/opt/orba", true, true},
        {"AMD64", "/Program Files (x86)/orba", false, true},
        {"x86", "/Program Files (x86)/orba", false, false},
        {"ARM64", "/opt/orba", true, true},
    };
    for (const Row& row : rows) {
        ScopedVariable architecture("PROCESSOR_ARCHITECTURE", row.architecture);
        ScopedVariable orba("ORBA", row.folder);
        readFolders();
        EXPECT_EQ(wordSize64(), row.wide) << row.folder;
        EXPECT_EQ(folders.system64, row.system) << row.folder;
    }
}

TEST_F(FoldersTest, ProgramsAreFoundAlongThePath) {
    scratch.script("bin/tool", "");
    scratch.write("bin/text", "");
    ScopedVariable path("PATH", ("/nowhere::" + (scratch / "bin")).c_str());
    EXPECT_EQ(findProgram("tool"), scratch / "bin/tool");
    EXPECT_EQ(findProgram("text"), "") << "a file that cannot be run is no program";
    EXPECT_EQ(findProgram("none"), "");
    EXPECT_EQ(findProgram(scratch / "bin/tool"), scratch / "bin/tool");
}
