// The 100 bytes that open a file: which version it is, and of which kind of project.
#pragma once

#include "project/language.h"
#include "project/stream.h"

#include <string>

struct FileHeader {
    std::string text;          // up to the first NUL
    int version = 0;           // times ten; 0 when none is known
    char platform = 'w';       // 'w', 'x' or 'g'
    int language = LANGUAGE_C; // a LanguageNumber
};

// A header that is not wholly there is empty.
FileHeader readHeader(FileReader& reader);
void writeHeader(FileWriter& writer);

// Tells the user that a file of that header cannot be read; `post` is said of a file of a later version of ours.
void reportUnknownHeader(const FileHeader& header, const char* post);

// Boxes that several kinds of files share.
void reportIncomplete(const std::string& path);
void reportSaveFailed(const FileWriter& writer); // says what the system said when it was not the opening that failed

// Whether both paths lead to one file that exists; false for an empty path.
bool sameFile(const std::string& first, const std::string& second);

// The 236 triples behind the fixed colours.
void writeColours(FileWriter& writer);
void readProjectColours(FileReader& reader); // leaves the colours of the defaults alone
void readAllColours(FileReader& reader);     // of a defaults file
