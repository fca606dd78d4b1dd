// Attributes and keywords of the code's colours. The delivered file holds both; the user's own holds the attributes
// alone, so that the words of a later version get their colour too. The format is the toolkit's.
#pragma once

#include <string>

inline constexpr int SYNTAX_CATEGORIES = 14;

// How the text of one category looks.
struct SyntaxAttributes {
    std::string face; // empty: the face of the text
    int colour = 0;   // below 0x1000000 an index into the colour table, else 0x01RRGGBB
    int bold = 0, italic = 0, underline = 0, strikeout = 0;
    bool operator==(const SyntaxAttributes&) const = default;
};
SyntaxAttributes syntaxAttributes(int category);
void setSyntaxAttributes(int category, const SyntaxAttributes& attributes); // shows at once in all coloured text

// Loads the user's attributes, else the delivered ones, each from the current folder or from where it belongs; a
// damaged file gives way to the next, and a box says so once in the program's run. False when there is none, which a
// box says too: the caller then switches the colours off.
bool loadSyntaxAttributes();

// The delivered attributes and keywords, whatever the user's own file holds. False after a box, with all as it was.
bool loadDefaultSyntaxAttributes();

// Writes the user's file. False after a box, with an older file unchanged.
bool saveSyntaxAttributes();
