#include "project/stream.h"

#include "platform/letters.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <string_view>

namespace {

constexpr std::size_t BUFFER = 1U << 18U;

struct KeywordRow {
    Keyword keyword;
    std::string_view word;
};
constexpr std::array<KeywordRow, 8> keywords = {{
    {KEY_CHILD, "CHILD"},
    {KEY_NEXT, "NEXT"},
    {KEY_MENU, "MENU"},
    {KEY_LIST, "LIST"},
    {KEY_ARRAY, "ARRAY"},
    {KEY_STABAR, "STABAR"},
    {KEY_END, "END"},
    {KEY_ENDFIL, "ENDFIL"},
}};

// Moves what is left to the front and fills the buffer up. False when no more bytes came.
bool refill(FileReader& reader) {
    std::memmove(reader.buffer.get(), reader.buffer.get() + reader.position, reader.end - reader.position);
    reader.end -= reader.position;
    reader.position = 0;
    const std::size_t got = std::fread(reader.buffer.get() + reader.end, 1, BUFFER - reader.end, reader.file.get());
    reader.end += got;
    return got > 0;
}

// Where the number in a slot starts: blanks and a plus sign ahead of it do not count.
std::string_view numberText(const char* slot) {
    std::string_view text(slot, strnlen(slot, NUM_BYTES));
    while (!text.empty() && (text[0] == ' ' || (text[0] >= '\t' && text[0] <= '\r'))) text.remove_prefix(1);
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
    return text;
}

// Clears the next `bytes` of the buffer and hands them out.
char* room(FileWriter& writer, std::size_t bytes) {
    if (writer.used + bytes > BUFFER) {
        writeSafeFile(writer.file, writer.buffer.get(), writer.used);
        writer.used = 0;
    }
    char* slot = writer.buffer.get() + writer.used;
    std::memset(slot, 0, bytes);
    writer.used += bytes;
    return slot;
}

// As "%g" and "%f" write it, whatever the language of the user is.
char* formatReal(char* slot, char* end, float value, FieldKind kind) {
    const bool whole = value == std::trunc(value) && std::abs(value) < 100000 && !(value == 0 && std::signbit(value));
    if (whole) {
        char* next = std::to_chars(slot, end, static_cast<int>(value)).ptr;
        if (kind != FIELD_REAL_F) return next;
        constexpr std::string_view zeros = ".000000";
        return std::copy(zeros.begin(), zeros.end(), next);
    }
    const auto format = kind == FIELD_REAL_F ? std::chars_format::fixed : std::chars_format::general;
    const auto result = std::to_chars(slot, end, static_cast<double>(value), format, 6);
    if (result.ec == std::errc()) return result.ptr;
    // Too long for its slot in full digits; the exponent says the same.
    return std::to_chars(slot, end, static_cast<double>(value), std::chars_format::general, 9).ptr;
}

} // namespace

bool openReader(FileReader& reader, const std::string& path) {
    reader = FileReader();
    reader.file.reset(openForReading(path));
    if (!reader.file.get()) return false;
    std::setvbuf(reader.file.get(), nullptr, _IONBF, 0);
    reader.buffer = std::make_unique_for_overwrite<char[]>(BUFFER);
    return true;
}

void rewindReader(FileReader& reader) {
    std::rewind(reader.file.get());
    reader.position = reader.end = 0;
    reader.fields = 0;
    reader.ended = reader.damaged = false;
}

const char* take(FileReader& reader, std::size_t bytes) {
    if (reader.ended) return nullptr;
    while (reader.end - reader.position < bytes) {
        if (refill(reader)) continue;
        reader.ended = reader.damaged = true;
        return nullptr;
    }
    const char* slot = reader.buffer.get() + reader.position;
    reader.position += bytes;
    ++reader.fields;
    return slot;
}

void readNumber(FileReader& reader, int& value) {
    const char* slot = take(reader, NUM_BYTES);
    if (!slot) return;
    if (slot[0] >= '0' && slot[0] <= '9' && slot[1] == '\0') { // by far the most frequent
        value = slot[0] - '0';
        return;
    }
    const std::string_view text = numberText(slot);
    std::int64_t number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec == std::errc::result_out_of_range)
        number = text[0] == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    // The halves of a file time may stand without a sign; they keep their bits.
    if (number > std::numeric_limits<int>::max() && number <= std::numeric_limits<std::uint32_t>::max()) {
        value = static_cast<int>(static_cast<std::uint32_t>(number));
        return;
    }
    value = static_cast<int>(
        std::clamp<std::int64_t>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

void readReal(FileReader& reader, float& value) {
    const char* slot = take(reader, NUM_BYTES);
    if (!slot) return;
    const std::string_view text = numberText(slot);
    const std::size_t digit = text.find_first_of("0123456789");
    double number = 0;
    if (digit <= 2 && (digit == 0 || text.find_first_not_of("+-.") == digit)) {
        const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
        if (result.ec == std::errc::result_out_of_range) {
            const bool tiny = text.find("e-") != std::string_view::npos || text.find("E-") != std::string_view::npos;
            number = tiny ? 0 : (text[0] == '-' ? -1 : 1) * static_cast<double>(std::numeric_limits<float>::max());
        }
    }
    const double limit = std::numeric_limits<float>::max();
    value = static_cast<float>(std::clamp(number, -limit, limit));
}

void readString(FileReader& reader, std::string& value, std::size_t bytes) {
    const char* slot = take(reader, bytes);
    if (slot) value.assign(slot, strnlen(slot, bytes - 1));
}

void readText(FileReader& reader, std::string& value, std::int64_t bytes, std::size_t limit) {
    if (bytes <= 0 || reader.ended) return;
    constexpr std::int64_t PART = 4096;
    if (bytes <= PART) {
        const auto count = static_cast<std::size_t>(bytes);
        if (const char* slot = take(reader, count)) value.assign(slot, std::min(limit, strnlen(slot, count)));
        return;
    }
    // The size is only what the file claims, so room is made as the bytes come.
    std::string text;
    bool open = true; // no NUL so far
    for (; bytes > 0; bytes -= PART) {
        const auto count = static_cast<std::size_t>(std::min(bytes, PART));
        const char* part = take(reader, count);
        if (!part) return;
        if (!open) continue;
        const std::size_t length = strnlen(part, count);
        text.append(part, length);
        open = length == count;
    }
    text.resize(cutBetweenLetters(text, limit).size());
    value = std::move(text);
}

Keyword readKeyword(FileReader& reader) {
    const char* slot = take(reader, KEY_BYTES);
    if (!slot) return KEY_NONE;
    const std::string_view word(slot, strnlen(slot, KEY_BYTES));
    for (const KeywordRow& row : keywords)
        if (row.word == word) return row.keyword;
    reader.damaged = true;
    return KEY_NONE;
}

bool openWriter(FileWriter& writer, const std::string& path) {
    writer.used = 0;
    if (!openSafeFile(writer.file, path)) return false;
    writer.buffer = std::make_unique_for_overwrite<char[]>(BUFFER);
    return true;
}

bool closeWriter(FileWriter& writer, bool keepOld) {
    writeSafeFile(writer.file, writer.buffer.get(), writer.used);
    writer.used = 0;
    return commitSafeFile(writer.file, keepOld);
}

void writeNumber(FileWriter& writer, int value) {
    char* slot = room(writer, NUM_BYTES);
    std::to_chars(slot, slot + NUM_BYTES, value);
}

void writeEntrySize(FileWriter& writer, int value) {
    char* slot = room(writer, NUM_BYTES);
    *std::to_chars(slot, slot + NUM_BYTES, value).ptr = '\n';
}

void writeReal(FileWriter& writer, float value, FieldKind kind) {
    char* slot = room(writer, NUM_BYTES);
    formatReal(slot, slot + NUM_BYTES - 1, value, kind);
}

void writeString(FileWriter& writer, const std::string& value, std::size_t bytes) {
    const std::string_view text = cutBetweenLetters(value.c_str(), bytes - 1); // up to a NUL
    std::memcpy(room(writer, bytes), text.data(), text.size());
}

void writeText(FileWriter& writer, std::string_view value, std::size_t bytes) {
    value = cutBetweenLetters(value, bytes);
    if (bytes <= 4096) {
        std::memcpy(room(writer, bytes), value.data(), value.size());
        return;
    }
    constexpr std::size_t PART = 4096;
    for (std::size_t done = 0; done < bytes; done += PART) {
        const std::size_t count = std::min(PART, bytes - done);
        char* slot = room(writer, count);
        if (done < value.size()) std::copy_n(value.data() + done, std::min(count, value.size() - done), slot);
    }
}

void writeKeyword(FileWriter& writer, Keyword keyword) {
    const auto row =
        std::find_if(keywords.begin(), keywords.end(), [&](const KeywordRow& r) { return r.keyword == keyword; });
    std::memcpy(room(writer, KEY_BYTES), row->word.data(), row->word.size());
}
