#include "toolkit/families/family_support.h"

#include "toolkit/views/text/program_text.h"

#include <cstring>

namespace orba {

void bytesOut(std::string_view bytes, char* buffer, int length) {
    if (!buffer || length < 1) return;
    while (!bytes.empty() && bytes.back() == ' ') bytes.remove_suffix(1);
    std::size_t count = std::min(bytes.size(), std::size_t(length - 1));
    if (count < bytes.size()) { // not in the middle of a character
        std::size_t start = count;
        while (start > 0 && count - start < 3 && (static_cast<unsigned char>(bytes[start]) & 0xC0) == 0x80) --start;
        if (start + std::size_t(utf8SequenceLength(bytes, start)) > count) count = start;
    }
    while (count > 0 && bytes[count - 1] == ' ') --count; // the cut may end in blanks
    if (count > 0) std::memcpy(buffer, bytes.data(), count);
    buffer[count] = 0;
}

} // namespace orba
