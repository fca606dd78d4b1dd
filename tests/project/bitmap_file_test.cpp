// Heads of bitmap files.
#include "project/bitmap_file.h"

#include "platform/text_files.h"
#include "support/scratch.h"

#include <gtest/gtest.h>

namespace {

std::string headOf(int width, int height, char depth, char compression) {
    std::string head(54, '\0');
    head[0] = 'B', head[1] = 'M', head[28] = depth, head[30] = compression;
    for (int byte = 0; byte < 4; ++byte) {
        head[18 + byte] = static_cast<char>(width >> 8 * byte);
        head[22 + byte] = static_cast<char>(height >> 8 * byte);
    }
    return head;
}

TEST(BitmapFile, IsCheckedByItsHead) {
    const ScratchFolder folder("orba-bitmap");
    const std::string path = (folder.path / "picture.bmp").string();
    const struct {
        const char* name;
        std::string head;
        Bitmap result;
    } cases[] = {
        {"largest", headOf(32, 32, 8, 0), Bitmap::Fine},
        {"upside down", headOf(32, -32, 8, 0), Bitmap::Fine},
        {"wide", headOf(33, 10, 8, 0), Bitmap::TooLarge},
        {"high", headOf(10, 33, 8, 0), Bitmap::TooLarge},
        {"very high", headOf(10, 65536 + 8, 8, 0), Bitmap::TooLarge},
        {"deep", headOf(16, 16, 24, 0), Bitmap::WrongDepth},
        {"compressed first", headOf(16, 16, 4, 2), Bitmap::Compressed},
        {"no bitmap", "\x89PNG", Bitmap::NotBitmap},
        {"empty", "", Bitmap::NotBitmap},
    };
    for (const auto& one : cases) {
        writeTextFile(path, one.head);
        EXPECT_EQ(checkBitmap(path), one.result) << one.name;
    }
    EXPECT_EQ(checkBitmap(path + "x"), Bitmap::Missing);
    EXPECT_NE(checkBitmap(folder.path.string()), Bitmap::Fine) << "a folder";
}

} // namespace
