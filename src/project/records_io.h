// Chains of records in a stream: read from any version with all upgrades, written in the current one.
//
// A file is one flat stream of fields with fixed places: numbers as text in slots of 25 bytes, strings in slots of 256,
// keywords in slots of 7, each ended by a NUL with anything behind it; code and long texts as raw bytes whose count
// stands in a number ahead of them. Nothing tells where a section lies, so a reader walks all of it:
//
//     chain   = record { "NEXT" record } end               end = "ENDFIL" behind a form, else "END"
//     record  = fields slots [ "ARRAY" numbers ] [ "STABAR" bar ] [ "MENU" entries ] [ "LIST" rows ] [ "CHILD" chain ]
//     entries = entry { "NEXT" entry } "END"               rows alike
//
//     project  = header grid chain colours counters compile-data blocks     (old versions: see project_file.cpp)
//     form     = header snap snap chain
//     defaults = header colours 24 x chain
#pragma once

#include "project/stream.h"
#include "project/tree.h"

struct RecordSource {
    FileReader& reader;
    int version;              // times ten
    int* gridMode = nullptr;  // where a grid mode among the records goes; null: it is passed over
    bool intoProject = false; // the chain will be adopted whole by a project without forms
    int namedRecords = 0;     // read so far, main panels left out
};

// Reads a chain with all that is below it. There is always a first record, empty when the data
// ended ahead of it. Code of versions before 7.1 is left as it stands in the file.
OwnedList readRecords(RecordSource& source);

// Writes a chain. Brings fieldWidth and the sizes of live arrays up to date in the records.
void writeRecords(FileWriter& writer, WidgetNode* first);
void writeRecord(FileWriter& writer, WidgetNode& record); // as a chain of one
