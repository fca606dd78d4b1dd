#include "platform/letters.h"

namespace {

constexpr unsigned PAYLOAD = 6; // bits of a byte that goes on with a letter

struct Lead {
    unsigned char mark, mask;
    std::size_t bytes;
};
constexpr Lead LEADS[] = {{0x00, 0x80, 1}, {0xC0, 0xE0, 2}, {0xE0, 0xF0, 3}, {0xF0, 0xF8, 4}};

} // namespace

char32_t firstLetter(std::string_view text) {
    if (text.empty()) return 0;
    const auto first = static_cast<unsigned char>(text[0]);
    for (const Lead& lead : LEADS) {
        if ((first & lead.mask) != lead.mark) continue;
        char32_t code = first & static_cast<unsigned char>(~lead.mask);
        for (std::size_t i = 1; i < lead.bytes; ++i) {
            if (i == text.size() || !continuesLetter(text[i])) return 0;
            code = code << PAYLOAD | (static_cast<unsigned char>(text[i]) & 0x3FU);
        }
        return code;
    }
    return 0;
}

std::string letterText(char32_t code) {
    if (code == 0) return {};
    std::size_t bytes = code < 0x80 ? 1 : code < 0x800 ? 2 : code < 0x10000 ? 3 : 4;
    std::string text(bytes, '\0');
    for (std::size_t i = bytes; i-- > 1; code >>= PAYLOAD) text[i] = static_cast<char>(0x80U | (code & 0x3FU));
    text[0] = static_cast<char>(LEADS[bytes - 1].mark | code);
    return text;
}
