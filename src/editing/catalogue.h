// The routines that user code can call, and what is inserted into the code for one of them. The rows are written at
// build time: the names from catalogue.txt, the arguments from the toolkit's own table.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

struct CatalogueRoutine {
    const char* name;
    const char* arguments; // as argumentsOf() takes them apart
    const char* keywords;  // names parted by blanks; "*" stands for propertyKeywords()
    const char* about;     // one line, empty where nothing is known
    bool available;        // else the library does not have it, and nothing is known of its arguments
    bool returns;          // a value
};

struct CatalogueFolder {
    const char* label;
    const char* icon;
    std::span<const CatalogueRoutine> routines;
};

struct CatalogueArgument {
    std::string_view name;
    std::string_view type; // Integer, Real, Double, Character or a record
    bool filled;           // a text that the routine fills: in C its length follows
};

// In the order of the tree. Fortran 90 and C share one.
std::span<const CatalogueFolder> catalogueOf(int language);
std::span<const char* const> propertyKeywords();

// Null when there is none of that name; names differ by case in C alone.
const CatalogueRoutine* findRoutine(std::string_view name, int language);

std::vector<CatalogueArgument> argumentsOf(const CatalogueRoutine& routine);
std::vector<std::string_view> keywordsOf(const CatalogueRoutine& routine);

// "(col: Integer, rgb: ORGBSTY)", with "..." ahead of the bracket where keywords may follow.
struct Signature {
    struct Range {
        size_t start, end; // in `text`
    };
    std::string text;
    std::vector<Range> arguments; // where each stands
};
Signature signatureOf(const CatalogueRoutine& routine, int language);

// A call without its values. `caret` counts characters from the start of the text to where the first value is typed.
struct Insertion {
    std::string text;
    int caret = 0;
};
Insertion insertionFor(const CatalogueRoutine& routine, int language, bool prompts);
// The call of the routine that makes a form; its name is still to be completed.
Insertion insertionForGenerate(int language);
