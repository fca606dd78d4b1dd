// Stored texts as they stand between quotes in a source: quotes, backslashes, line ends, names of image resources.
#pragma once

#include <string>
#include <string_view>

// A text between the quotes of Fortran: every apostrophe doubled, every line end a bar. A carriage return alone, which
// is left where a field's width cut the text between the two halves of a line end, stays. At most 32767 bytes, cut
// between letters; rich text is never cut.
std::string fortranText(std::string_view text);

// A text between the quotes of C: a backslash ahead of every quote that has none, every line end a bar, a carriage
// return too, since a line of C ends at it. A backslash that begins no escape of C, or ends the text, is doubled; the
// others stay escapes. At most 32767 bytes, cut between letters; rich text is never cut.
std::string cText(std::string_view text);

// The same for the text of a C text widget, where every backslash means itself; see doubledTextBackslashes. Of rich
// text each one is doubled.
std::string cFieldText(std::string_view text);

// Whether cText leaves a backslash of this text as the beginning of an escape, so that the program shows something
// else than what was typed.
bool holdsEscape(std::string_view text);

// Rich text without the lone line feeds that its writer breaks lines with: they mean nothing in it, but would become
// bars. Pairs of carriage return and line feed stay, and so does any other text.
std::string withoutRichLineFeeds(std::string_view text);

// Line ends of a text that runs over several lines as bars.
std::string withBars(std::string_view text);

// Every backslash that stands alone doubled; a pair stays a pair.
std::string doubledBackslashes(std::string_view path);

// What cText makes of the text of a C text widget, with its backslashes: one that no other one follows is doubled,
// except where the one ahead of a quote already keeps the quote inside the string.
std::string doubledTextBackslashes(std::string_view text);

// The name of an image among the program's resources: the file name without folder and extension, blanks turned into
// underscores. A text without "." already is such a name.
std::string iconResourceName(std::string_view icon);
