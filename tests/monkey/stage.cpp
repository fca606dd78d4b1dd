#include "stage.h"

#include "project/files.h"
#include "project/tree.h"
#include "support/files.h"

#include <cstdlib>
#include <filesystem>
#include <unistd.h>

namespace files = std::filesystem;

namespace {

constexpr char EMPTY[] = "empty";
const std::string ZEROS = "0000000000";

// Refuses with a message on the third line of whatever it is given.
constexpr char COMPILER[] = "#!/bin/sh\n"
                            "for word; do case $word in *.f90|*.for|*.cpp) file=$word;; esac; done\n"
                            "echo \"$file:3:7: Error: no program today\" >&2\nexit 1\n";

void writeEmptyProject(const std::string& kind, const std::string& name) {
    resetProject();
    project.projectLanguage = std::stoi(kind);
    project.projectPlatform = kind.back() == 'x' ? 'x' : 'w';
    newForm();
    saveProject(files::current_path().string(), name, true);
    resetProject();
    project = {};
}

void writeCompilers() {
    files::create_directory("bin");
    for (const char* name : {"bin/gfortran", "bin/g++"}) {
        writeBytes(name, COMPILER);
        files::permissions(name, files::perms::owner_all);
    }
    const char* path = std::getenv("PATH");
    const std::string ahead = (files::current_path() / "bin").string() + ":" + (path ? path : "");
    setenv("PATH", ahead.c_str(), 1);
}

} // namespace

const std::vector<std::string>& stageNames() {
    static const std::vector<std::string> names = {"heat",    "empty90",   "beam",     "empty77", "greeting",
                                                   "empty99", "converter", "empty90x", "empty99x"};
    return names;
}

std::string setStage(const std::string& name) {
    const std::string number = std::to_string(getpid()); // its digits are all of one width on the screen
    const std::string folder =
        (files::temp_directory_path() / ("monkey-" + ZEROS.substr(number.size()) + number)).string();
    files::remove_all(folder);
    files::create_directory(folder);
    files::current_path(folder);
    files::create_directory("data");
    setenv("ORBADATA", (files::path(folder) / "data").c_str(), 1);
    setenv("ORBA_NO_SPLASH", "1", 1);
    writeCompilers();
    writeBytes("text.txt", "      x = 1\n! a comment\n  call sub('it''s')\n");
    writeEmptyProject("90", "empty.wdp");
    if (name.starts_with(EMPTY))
        writeEmptyProject(name.substr(sizeof EMPTY - 1), "one.wdp");
    else
        files::copy_file(files::path(ORBA_SOURCE_DIR) / "examples" / name / (name + ".wdp"), "one.wdp");
    return folder;
}
