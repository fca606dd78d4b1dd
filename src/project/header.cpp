#include "project/header.h"

#include "project/colours.h"
#include "project/files.h"
#include "project/host.h"

#include <array>
#include <filesystem>

namespace {

struct VersionRow {
    const char* word;
    int version;
};
constexpr std::array<VersionRow, 11> versions = {{
    {"ORBAWIDGDESIGNV8.0-", VERSION_80},
    {"ORBAWIDGDESIGNV7.5-", VERSION_75},
    {"ORBAWIDGDESIGNV7.1-", VERSION_71},
    {"ORBAWIDGDESIGNV7.0-", VERSION_70},
    {"ORBAWIDGDESIGNV5.1-", VERSION_51},
    {"ORBAWIDGDESIGNV5.0-", VERSION_50},
    {"ORBAWIDGDESIGNV4.0-", VERSION_40},
    {"ORBAWIDGDESIGNV3.0-", VERSION_30},
    {"ORBAWIDGDESIGNV2.1-", VERSION_21},
    {"ORBAWIDGDESIGNV2.0-", VERSION_20},
    {"ORBAWIDGDESIGNV1.0-", VERSION_10},
}};

constexpr char MAKER[] = "ORBAWIDGDESIGN";

bool holds(const std::string& text, const char* word) { return text.find(word) != std::string::npos; }

bool isBlack(int index) {
    float red = 0;
    float green = 0;
    float blue = 0;
    host.enquireColour(index, red, green, blue);
    return red == 0 && green == 0 && blue == 0;
}

// Finds the ends of the two blocks: the upper one ends at the first black index from the top, the lower one at the last
// that is not black below it.
void findColourMarks() {
    for (int i = COLOURS - 1; i > colourMarks.colourTop; --i) {
        colourMarks.defaultsColourBottom = i + 1;
        if (isBlack(i)) break;
    }
    for (int i = colourMarks.defaultsColourBottom - 1; i >= FIXED_COLOURS - 1; --i) {
        if (isBlack(i)) continue;
        colourMarks.colourTop = i;
        break;
    }
}

void readTriples(FileReader& reader, int below) {
    for (int i = FIXED_COLOURS; i < COLOURS; ++i) {
        float red = 0;
        float green = 0;
        float blue = 0;
        readReal(reader, red);
        readReal(reader, green);
        readReal(reader, blue);
        if (i < below && !reader.ended) host.defineColour(i, red, green, blue);
    }
    findColourMarks();
}

} // namespace

std::string headerString() {
    // The mark of software buffering names no platform, so only a Windows project may bear it.
    const bool software = project.projectPlatform == 'w' && project.doubleBuffering != 1;
    const char platform = software ? 's' : project.projectPlatform;
    return std::string("ORBAWIDGDESIGNV8.0-") + languageOfProject().word + "-" + platform;
}

FileHeader readHeader(FileReader& reader) {
    FileHeader header;
    readString(reader, header.text, HEADER_BYTES);
    for (const VersionRow& row : versions)
        if (holds(header.text, row.word)) {
            header.version = row.version;
            break;
        }
    if (holds(header.text, "-x")) header.platform = 'x';
    if (holds(header.text, "-g")) header.platform = 'g';
    if (holds(header.text, "-s")) header.platform = 'w';
    header.language = languageOfHead(header.text.c_str());
    return header;
}

void writeHeader(FileWriter& writer) { writeString(writer, headerString(), HEADER_BYTES); }

void reportUnknownHeader(const FileHeader& header, const char* post) {
    host.errorBox("Error opening file", holds(header.text, MAKER)
                                            ? std::string("ORBAWIDG Designer file is post version ") + post
                                            : std::string("File is not a ORBAWIDG Designer file"));
}

void reportIncomplete(const std::string& path) {
    host.messageBox("File is incomplete",
                    "The file " + path +
                        " is incomplete or damaged.|What could be read of it has been loaded.||Please check it before "
                        "you go on. The file itself is unchanged;|the first save over it keeps it beside the new one "
                        "with \".bak\" behind its name.",
                    BOX_WARNING, BOX_OK);
}

void reportSaveFailed(const FileWriter& writer) {
    if (!writer.buffer) {
        host.errorBox("Error saving file", "File to save to could not be opened or created");
        return;
    }
    host.errorBox("Error saving file", "File could not be written completely: " + errorText(writer.file.error) +
                                           "|An older file of that name is unchanged.|Please make room, or save to "
                                           "another place.");
}

bool sameFile(const std::string& first, const std::string& second) {
    std::error_code ignored;
    return !first.empty() && std::filesystem::equivalent(first, second, ignored);
}

void writeColours(FileWriter& writer) {
    for (int i = FIXED_COLOURS; i < COLOURS; ++i) {
        float red = 0;
        float green = 0;
        float blue = 0;
        host.enquireColour(i, red, green, blue);
        writeReal(writer, red, FIELD_REAL_F);
        writeReal(writer, green, FIELD_REAL_F);
        writeReal(writer, blue, FIELD_REAL_F);
    }
}

void readProjectColours(FileReader& reader) { readTriples(reader, colourMarks.defaultsColourBottom); }

void readAllColours(FileReader& reader) {
    colourMarks.defaultsColourBottom = COLOURS;
    readTriples(reader, COLOURS);
}
