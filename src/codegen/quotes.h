// Stored strings as they stand between quotes in a source: quotes, backslashes, line ends, names of image resources.
#pragma once

#include "project/records.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The quote characters that would end a string: all of them in Fortran; in C those with no backslash ahead.
int countQuotes(std::string_view text, int language);

// The strings that escapeQuotes has rewritten, with what they held before.
using SavedStrings = std::vector<std::pair<std::string*, std::string>>;

// Rewrites name, text and parentName of every record of the chain and below, name and label of its menu and tree
// entries and the texts of its list entries so that they can stand between quotes. Only strings that hold a quote
// change, and restoreQuotes undoes it.
SavedStrings escapeQuotes(WidgetNode* forms, int language);
void restoreQuotes(SavedStrings& saved);

// Line ends of a text that runs over several lines as bars. A carriage return alone, which is left where a field's
// width cut the text between the two halves of a line end, stays in Fortran. In C a line ends at it, so it becomes a
// bar.
std::string withBars(std::string_view text);
std::string withBarsForC(std::string_view text);

// Every backslash that stands alone doubled; a pair stays a pair.
std::string doubledBackslashes(std::string_view path);

// The text of a C text widget: a backslash that no other one follows is doubled, except where the one ahead of a quote
// already keeps the quote inside the string.
std::string doubledTextBackslashes(std::string_view text);

// The name of an image among the program's resources: the file name without folder and extension, blanks turned into
// underscores. A text without "." already is such a name.
std::string iconResourceName(std::string_view icon);
