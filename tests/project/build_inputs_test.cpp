#include "project/build_inputs.h"

#include "project/files.h"
#include "support/box_script.h"
#include "support/sample_project.h"
#include "support/scratch.h"

#include <gtest/gtest.h>

namespace {

using Times = std::vector<std::int64_t>;

BuildInputs withSources(const FileList& sources) {
    BuildInputs inputs = buildInputs();
    inputs.lists[LIST_SOURCES] = sources;
    return inputs;
}

} // namespace

TEST(BuildInputs, TimesTravelWithTheirSources) {
    freshProject();
    project.fileLists[LIST_SOURCES] = {"a.f90", "b.f90", "c.f90", ""};
    project.sourceFileTimes = {11, 22, 33, 0};
    struct Row {
        const char* name;
        FileList rows;
        Times times;
    };
    const Row rows[] = {{"unchanged", {"a.f90", "b.f90", "c.f90", ""}, {11, 22, 33, 0}},
                        {"the first one goes", {"b.f90", "c.f90", ""}, {22, 33, 0}},
                        {"another order", {"c.f90", "a.f90", ""}, {33, 11, 0}},
                        {"a new one", {"new.f90", "a.f90", ""}, {0, 11, 0}},
                        {"empty rows go", {"", "a.f90", "", "b.f90"}, {11, 22, 0}},
                        {"none", {""}, {0}}};
    for (const Row& row : rows) {
        const ProjectState before = project;
        setBuildInputs(withSources(row.rows));
        EXPECT_EQ(project.sourceFileTimes, row.times) << row.name;
        EXPECT_EQ(project.fileLists[LIST_SOURCES].size(), row.times.size()) << row.name;
        EXPECT_EQ(project.fileLists[LIST_SOURCES].back(), "") << row.name;
        project.fileLists = before.fileLists;
        project.sourceFileTimes = before.sourceFileTimes;
    }
}

TEST(BuildInputs, OnlyWhatIsThereCountsAsCustom) {
    for (int given = 0; given < FILE_LISTS + 2; ++given) {
        freshProject();
        project.projectModified = project.sourceStale = 0;
        BuildInputs inputs;
        inputs.lists.fill(FileList(1));
        setBuildInputs(inputs);
        EXPECT_EQ(project.customSwitches, 0);
        if (given < FILE_LISTS)
            inputs.lists[static_cast<std::size_t>(given)] = {"x", ""};
        else
            (given == FILE_LISTS ? inputs.compilerSwitches : inputs.linkerSwitches) = "-x";
        setBuildInputs(inputs);
        EXPECT_EQ(project.customSwitches, 1) << given;
        EXPECT_EQ(project.projectModified + project.sourceStale, 2);
    }
}

TEST(BuildInputs, AFileHoldsAsManyRowsAsItHasRoomFor) {
    const ScratchFolder scratch{"orba-inputs"};
    const BoxScript boxes;
    freshProject();
    BuildInputs inputs;
    for (std::size_t list = 0; list < FILE_LISTS; ++list)
        for (int row = 0; row < FILE_LIST_ROWS + 20; ++row)
            inputs.lists[list].push_back("/a folder/file " + std::to_string(row));
    inputs.lists[LIST_LIBRARIES][3] = std::string(1000, 'x');
    inputs.compilerSwitches = "-O2 -Wall";
    inputs.linkerSwitches = "-llapack -lblas";
    setBuildInputs(inputs);
    for (const FileList& list : project.fileLists) EXPECT_EQ(list.size(), FILE_LIST_ROWS);
    project.sourceFileTimes[7] = 1234567890123;
    const BuildInputs set = buildInputs();
    const Times times = project.sourceFileTimes;
    ASSERT_TRUE(saveProject(scratch.path.string(), "inputs.wdp", false));
    setBuildInputs({});
    ASSERT_TRUE(loadProject(scratch.path.string(), "inputs.wdp"));
    EXPECT_TRUE(buildInputs() == set);
    EXPECT_EQ(project.sourceFileTimes, times);
    EXPECT_EQ(project.customSwitches, 1);
}
