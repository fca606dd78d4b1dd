// Whatever ends a save, the file that was there before stays whole.
#include "project/files.h"
#include "project/tree.h"
#include "support/box_script.h"
#include "support/files.h"
#include "support/sample_project.h"
#include "support/scratch.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <functional>
#include <pwd.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

// Runs `work` in a process of its own; its result is the exit status.
int inChild(const std::function<int()>& work) {
    const pid_t child = fork();
    if (child == 0) _exit(work());
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
}

std::vector<std::string> filesIn(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
}

std::string lastBox;

void rememberBoxes() {
    host = Host();
    lastBox.clear();
    host.errorBox = [](const std::string& title, const std::string& text) { lastBox = title + ": " + text; };
}

TEST(SafeSave, AFullDiskLeavesTheOldFile) {
    const ScratchFolder folder;
    freshProject();
    ASSERT_TRUE(saveProject(folder.path, "old.wdp", false));
    const std::string old = readBytes(folder / "old.wdp");
    largeProject(2000);
    const int result = inChild([&] {
        const rlimit limit{3000000, 3000000};
        setrlimit(RLIMIT_FSIZE, &limit);
        rememberBoxes();
        project.projectModified = 1;
        if (saveProject(folder.path, "old.wdp", false)) return 1;
        if (lastBox.rfind("Error saving file: File could not be written completely: ", 0) != 0) return 2;
        return project.projectModified == 1 ? 0 : 3;
    });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(readBytes(folder / "old.wdp"), old);
    EXPECT_EQ(filesIn(folder.path), std::vector<std::string>{"old.wdp"}) << "nothing is left behind";
}

// The rights of a folder do not bind the superuser, so the child becomes another user first.
int asNobody(const std::function<int()>& work) {
    return inChild([&] {
        if (geteuid() == 0) {
            const passwd* nobody = getpwnam("nobody");
            if (!nobody || setgid(nobody->pw_gid) != 0 || setuid(nobody->pw_uid) != 0) return 77;
        }
        return work();
    });
}

TEST(SafeSave, AReadOnlyFolderOrFileIsReportedAndLeft) {
    const ScratchFolder folder;
    freshProject();
    ASSERT_TRUE(saveProject(folder.path, "old.wdp", false));
    const std::string old = readBytes(folder / "old.wdp");
    const auto attempt = [&](const char* name) {
        return asNobody([&] {
            rememberBoxes();
            if (access(folder.path.c_str(), X_OK) != 0) return 78;
            if (saveProject(folder.path, name, false)) return 1;
            return lastBox == "Error saving file: File to save to could not be opened or created" ? 0 : 2;
        });
    };
    chmod((folder / "old.wdp").c_str(), 0666);
    chmod(folder.path.c_str(), 0555);
    EXPECT_EQ(attempt("new.wdp"), 0);
    EXPECT_EQ(attempt("old.wdp"), 0);
    chmod(folder.path.c_str(), 0777);
    chmod((folder / "old.wdp").c_str(), 0444);
    EXPECT_EQ(attempt("old.wdp"), 0);
    EXPECT_EQ(attempt("."), 0) << "a folder";
    EXPECT_EQ(readBytes(folder / "old.wdp"), old);
    EXPECT_EQ(filesIn(folder.path), std::vector<std::string>{"old.wdp"});
}

TEST(SafeSave, AKillInTheMiddleLeavesAWholeFile) {
    const ScratchFolder folder;
    largeProject(3000);
    project.forms->text = "first";
    ASSERT_TRUE(saveProject(folder.path, "big.wdp", false));
    const std::string first = readBytes(folder / "big.wdp");
    project.forms->text = "other";
    std::string second = first;
    int killed = 0;
    // The moments of the kills are spread over the time that one save takes.
    for (int round = 0; round < 24; ++round) {
        const pid_t child = fork();
        if (child == 0) {
            host = Host();
            for (;;) saveProject(folder.path, "big.wdp", false);
        }
        std::this_thread::sleep_for(std::chrono::microseconds(1500 + 2300 * round));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        killed += filesIn(folder.path).size() > 1 ? 1 : 0;
        const std::string now = readBytes(folder / "big.wdp");
        ASSERT_EQ(now.size(), first.size()) << round;
        if (now != first) {
            if (second == first) second = now;
            ASSERT_EQ(now, second) << round;
        }
    }
    EXPECT_GT(killed, 0) << "no kill fell into a save";
    ASSERT_TRUE(saveProject(folder.path, "big.wdp", false));
    EXPECT_EQ(filesIn(folder.path), std::vector<std::string>{"big.wdp"}) << "what the kills left is cleared away";
    const BoxScript boxes;
    EXPECT_TRUE(loadProject(folder.path, "big.wdp"));
    EXPECT_EQ(project.forms->text, "other");
}

TEST(SafeSave, LinksAndRightsOfTheFileStay) {
    const ScratchFolder folder;
    freshProject();
    ASSERT_TRUE(saveProject(folder.path, "real.wdp", false));
    chmod((folder / "real.wdp").c_str(), 0640);
    std::filesystem::create_symlink("real.wdp", folder / "link.wdp");
    project.forms->text = "changed";
    ASSERT_TRUE(saveProject(folder.path, "link.wdp", false));
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.wdp"));
    struct stat status {};
    stat((folder / "real.wdp").c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
    EXPECT_NE(readBytes(folder / "real.wdp").find("changed"), std::string::npos);
}

} // namespace
