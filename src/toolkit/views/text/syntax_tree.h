// Attributes and keyword lists behind syntax colouring, one set for the whole program, and the file that keeps them.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <unordered_map>

namespace orba {

inline constexpr int syntaxCategoryCount = 14;
enum class SyntaxCategory {
    Plain,
    Comments,
    SingleQuoted,
    DoubleQuoted,
    Numerics,
    Language,
    Preprocessor,
    Types,
    Parameters,
    Base,
    Plotting,
    Meshes,
    Widgets,
    Optionals
};

// The numbers a program passes; None switches colouring off.
enum class SyntaxLanguage { None = 0, Fortran77 = 1, Fortran90 = 2, C = 3 };

struct SyntaxFont {
    std::string face; // empty: the face of the text
    int colour = 0;   // below 0x1000000 an index into the colour table, else 0x01RRGGBB
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeout = false;
    bool operator==(const SyntaxFont&) const = default;
};

struct SyntaxTree {
    std::array<SyntaxFont, syntaxCategoryCount> fonts;
    // Keyword to category. Fortran ignores case, so its words stand in lower case.
    std::unordered_map<std::string, SyntaxCategory> fortran;
    std::unordered_map<std::string, SyntaxCategory> c;
};

// The tree that all coloured text widgets share. Its revision grows with each change, so that a widget knows when to
// colour anew.
SyntaxTree& syntaxTree();
int syntaxRevision();
void syntaxChanged();

// Empties the keyword lists and gives every category the plain font.
void initializeSyntaxTree();

// Adds one word to a category for the language (None: for all of them).
void addSyntaxKeyword(SyntaxLanguage language, SyntaxCategory category, std::string_view word);

// Plain where the word is in no list.
SyntaxCategory syntaxCategoryOf(std::string_view word, SyntaxLanguage language);

// Reads or writes a file of attributes and keywords. False when it cannot be opened, or is no such file; the tree is
// then as before. Unknown lines are skipped, so that a file of a later version still reads.
bool loadSyntax(const std::string& path);
bool saveSyntax(const std::string& path);

} // namespace orba
