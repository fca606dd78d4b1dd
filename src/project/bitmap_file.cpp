#include "project/bitmap_file.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>

namespace {

constexpr std::size_t HEAD_BYTES = 54;
constexpr std::int64_t LARGEST_ICON = 32; // pixels
constexpr unsigned char ICON_DEPTH = 8;   // bits of a pixel

// Places in the head.
constexpr std::size_t WIDTH = 18, HEIGHT = 22, DEPTH = 28, COMPRESSION = 30;

using Head = std::array<unsigned char, HEAD_BYTES>;

// Rows from the top down have a negative height.
std::int64_t extentAt(const Head& head, std::size_t at) {
    std::uint32_t bits = 0;
    for (std::size_t byte = 4; byte-- > 0;) bits = bits << 8U | head[at + byte];
    return std::abs(std::int64_t{static_cast<std::int32_t>(bits)});
}

} // namespace

Bitmap checkBitmap(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return Bitmap::Missing;
    Head head{};
    file.read(reinterpret_cast<char*>(head.data()), static_cast<std::streamsize>(head.size()));
    if (head[0] != 'B' || head[1] != 'M') return Bitmap::NotBitmap;
    if (head[COMPRESSION] != 0) return Bitmap::Compressed;
    if (head[DEPTH] != ICON_DEPTH) return Bitmap::WrongDepth;
    return extentAt(head, WIDTH) > LARGEST_ICON || extentAt(head, HEIGHT) > LARGEST_ICON ? Bitmap::TooLarge
                                                                                         : Bitmap::Fine;
}
