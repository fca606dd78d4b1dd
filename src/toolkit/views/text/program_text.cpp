#include "toolkit/views/text/program_text.h"

#include <algorithm>

namespace orba {
namespace {

constexpr char16_t escapeBase = 0xDC00; // + the byte, which is 0x80 to 0xFF

bool isAscii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

char32_t decode(std::string_view sequence) {
    auto low = [&](std::size_t i) { return char32_t(static_cast<unsigned char>(sequence[i]) & 0x3F); };
    auto lead = static_cast<unsigned char>(sequence[0]);
    switch (sequence.size()) {
    case 2: return char32_t(lead & 0x1F) << 6 | low(1);
    case 3: return char32_t(lead & 0x0F) << 12 | low(1) << 6 | low(2);
    case 4: return char32_t(lead & 0x07) << 18 | low(1) << 12 | low(2) << 6 | low(3);
    default: return lead;
    }
}

} // namespace

int utf8SequenceLength(std::string_view bytes, std::size_t at) {
    auto lead = static_cast<unsigned char>(bytes[at]);
    int length = lead < 0x80                   ? 1
                 : lead >= 0xC2 && lead < 0xE0 ? 2
                 : lead >= 0xE0 && lead < 0xF0 ? 3
                 : lead >= 0xF0 && lead < 0xF5 ? 4
                                               : 1;
    if (length == 1 || at + std::size_t(length) > bytes.size()) return 1;
    for (int i = 1; i < length; ++i)
        if ((static_cast<unsigned char>(bytes[at + i]) & 0xC0) != 0x80) return 1;
    char32_t value = decode(bytes.substr(at, length));
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    bool valid = value >= smallest[length] && value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF);
    return valid ? length : 1;
}

QString fromProgram(std::string_view bytes) {
    if (isAscii(bytes)) return QString::fromLatin1(bytes.data(), qsizetype(bytes.size()));
    QString text;
    text.reserve(qsizetype(bytes.size()));
    for (std::size_t at = 0; at < bytes.size();) {
        int length = utf8SequenceLength(bytes, at);
        auto lead = static_cast<unsigned char>(bytes[at]);
        if (length == 1 && lead >= 0x80) {
            text.append(QChar(char16_t(escapeBase + lead)));
        } else {
            char32_t value = decode(bytes.substr(at, length));
            text.append(QStringView(QChar::fromUcs4(value)));
        }
        at += length;
    }
    return text;
}

void appendUtf8(std::string& out, char32_t c) {
    if (c < 0x80)
        out += char(c);
    else if (c >= escapeBase + 0x80 && c <= escapeBase + 0xFF)
        out += char(c - escapeBase);
    else if (c < 0x800)
        (out += char(0xC0 | c >> 6)) += char(0x80 | (c & 0x3F));
    else if (c < 0x10000)
        ((out += char(0xE0 | c >> 12)) += char(0x80 | (c >> 6 & 0x3F))) += char(0x80 | (c & 0x3F));
    else
        (((out += char(0xF0 | c >> 18)) += char(0x80 | (c >> 12 & 0x3F))) += char(0x80 | (c >> 6 & 0x3F))) +=
            char(0x80 | (c & 0x3F));
}

std::string toProgram(QStringView text) {
    std::string out;
    out.reserve(std::size_t(text.size()));
    for (qsizetype i = 0; i < text.size(); ++i) {
        char32_t c = text[i].unicode();
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            c = QChar::surrogateToUcs4(text[i], text[i + 1]), ++i;
        appendUtf8(out, c);
    }
    return out;
}

std::string unifyLineEnds(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r')
            out += text[i];
        else if (i + 1 >= text.size() || text[i + 1] != '\n')
            out += '\n';
    }
    return out;
}

} // namespace orba
