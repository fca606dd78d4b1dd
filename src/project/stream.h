// The fixed-width fields that project, form and defaults files are made of, one call each.
#pragma once

#include "platform/safe_file.h"
#include "project/field_table.h"

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

enum Keyword { KEY_NONE, KEY_CHILD, KEY_NEXT, KEY_MENU, KEY_LIST, KEY_ARRAY, KEY_STABAR, KEY_END, KEY_ENDFIL };

// Reads through a buffer of its own. A field that is not wholly there counts as unread: the destination stays, `ended`
// is set, and nothing more is read.
struct FileReader {
    struct Close {
        void operator()(std::FILE* open) const { std::fclose(open); }
    };
    std::unique_ptr<std::FILE, Close> file;
    std::unique_ptr<char[]> buffer;
    std::size_t position = 0;
    std::size_t end = 0;
    std::uint64_t fields = 0; // read so far
    bool ended = false;
    bool damaged = false; // data that no writer makes: it ended early, or no keyword stood where one had to
};

bool openReader(FileReader& reader, const std::string& path);
void rewindReader(FileReader& reader); // back to the first byte

const char* take(FileReader& reader, std::size_t bytes); // at most a few thousand; null at the end

void readNumber(FileReader& reader, int& value);
void readReal(FileReader& reader, float& value);
void readString(FileReader& reader, std::string& value, std::size_t bytes = STR_BYTES);
// `bytes` of the file, of which the text goes up to the first NUL and is held to `limit`.
void readText(FileReader& reader, std::string& value, std::int64_t bytes, std::size_t limit);
Keyword readKeyword(FileReader& reader);

// Writes through a buffer into a file that takes its name only when it is complete.
struct FileWriter {
    SafeFile file;
    std::unique_ptr<char[]> buffer; // null until the file is open
    std::size_t used = 0;
};

bool openWriter(FileWriter& writer, const std::string& path);
bool closeWriter(FileWriter& writer, bool keepOld); // flushes and commits

void writeNumber(FileWriter& writer, int value);
void writeEntrySize(FileWriter& writer, int value); // with a line end behind the digits
void writeReal(FileWriter& writer, float value, FieldKind kind);
void writeString(FileWriter& writer, const std::string& value, std::size_t bytes = STR_BYTES);
void writeText(FileWriter& writer, std::string_view value, std::size_t bytes); // padded, or cut between letters
void writeKeyword(FileWriter& writer, Keyword keyword);
