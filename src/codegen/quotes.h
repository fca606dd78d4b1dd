// Stored texts as they stand between quotes in a source: quotes, backslashes, line ends, names of image resources.
#pragma once

#include <string>
#include <string_view>

// A text between the quotes of Fortran: every apostrophe doubled. At most 32767 characters.
std::string fortranText(std::string_view text);

// A text between the quotes of C: a backslash ahead of every quote that has none. At most 32767 characters.
std::string cText(std::string_view text);

// Line ends of a text that runs over several lines as bars. A carriage return alone, which is left where a field's
// width cut the text between the two halves of a line end, stays in Fortran. In C a line ends at it, so it becomes a
// bar.
std::string withBars(std::string_view text);
std::string withBarsForC(std::string_view text);

// Every backslash that stands alone doubled; a pair stays a pair.
std::string doubledBackslashes(std::string_view path);

// What cText makes of the text of a C text widget, with its backslashes: one that no other one follows is doubled,
// except where the one ahead of a quote already keeps the quote inside the string.
std::string doubledTextBackslashes(std::string_view text);

// The name of an image among the program's resources: the file name without folder and extension, blanks turned into
// underscores. A text without "." already is such a name.
std::string iconResourceName(std::string_view icon);
