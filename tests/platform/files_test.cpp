#include "platform/file_times.h"
#include "platform/paths.h"
#include "platform/text_files.h"
#include "support/scratch.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

TEST(Paths, AreSplitAtEitherSlash) {
    struct Row {
        const char* path;
        const char* folder;
        const char* name;
        const char* stem; // without the extension
        const char* program;
    };
    const Row rows[] = {
        {"/home/me/bridge.f90", "/home/me", "bridge.f90", "/home/me/bridge", "/home/me/bridge"},
        {"C:\\work\\bridge.v2.cpp", "C:\\work", "bridge.v2.cpp", "C:\\work\\bridge.v2", "C:\\work\\bridge.v2"},
        {"C:\\work/mixed.for", "C:\\work", "mixed.for", "C:\\work/mixed", "C:\\work/mixed"},
        {"/home/v1.2/source", "/home/v1.2", "source", "/home/v1.2/source", "/home/v1.2/source.exe"},
        {"alone.f90", "", "alone.f90", "alone", "alone"},
        {"/top.f90", "/", "top.f90", "/top", "/top"},
        {"", "", "", "", ".exe"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(folderOf(row.path), row.folder) << row.path;
        EXPECT_EQ(fileNameOf(row.path), row.name) << row.path;
        EXPECT_EQ(withoutExtension(row.path), row.stem) << row.path;
        EXPECT_EQ(executablePath(row.path), row.program) << row.path;
    }
    EXPECT_EQ(joinPath("/a", "b"), "/a/b");
    EXPECT_EQ(joinPath("/a/", "b"), "/a/b");
    EXPECT_EQ(joinPath("C:\\a\\", "b"), "C:\\a\\b");
    EXPECT_EQ(joinPath("", "b"), "b");
    EXPECT_EQ(nativePath("C:\\a/b"), "C:/a/b");
}

TEST(Files, TimesCountHundredNanosecondsFrom1601) {
    ScratchFolder folder;
    std::string file = folder.write("x", "");
    timespec times[2] = {{0, 0}, {1'000'000'000, 123'456'700}}; // 2001-09-09 01:46:40 and a bit
    ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
    EXPECT_EQ(fileTime(file), 126'444'736'001'234'567);
    EXPECT_EQ(fileTime(folder / "missing"), 0);
}

TEST(Files, OnlyPlainFilesAreReadAndRemoved) {
    ScratchFolder folder;
    std::string file = folder.write("x", "0123456789");
    std::string text;
    EXPECT_TRUE(readTextFile(file, text, 4));
    EXPECT_EQ(text, "0123");
    EXPECT_FALSE(readTextFile(folder.path.string(), text));
    EXPECT_FALSE(fileReadable(folder.path.string()));
    EXPECT_FALSE(removeFile(folder.path.string()));
    EXPECT_TRUE(removeFile(file));
    EXPECT_TRUE(removeFile(file)) << "a missing file is no failure";
    EXPECT_FALSE(writeTextFile(folder / "none/x", ""));
}
