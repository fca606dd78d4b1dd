// A text widget as the commands on text see it: positions are characters from 1, a selection is a pair of positions,
// equal for a plain caret.
#pragma once

#include <string>

struct TextRange {
    int start = 1;
    int end = 1;
};

std::string textOf(int text);  // all of it, plain
std::string linesOf(int text); // the same with plain line ends, as positions count them
int textLength(int text);      // characters
TextRange selectionOf(int text);
void select(int text, TextRange range);
void moveCaret(int text, int position);

int lineOf(int text, int position);  // from 1; position -1 is the caret
int lineStart(int text, int line);   // first position of a line counted from 0, 0 past the last line
int caretLineStart(int text);        // first position of the caret's line
int lineLength(int text, int start); // of the line that begins there, without its end

std::string extract(int text, TextRange range);
void replaceSelection(int text, const std::string& string); // trailing blanks stay, the caret ends behind it
void replaceRange(int text, TextRange range, const std::string& string);

int characters(const std::string& utf8); // UTF-16 units, as the toolkit counts positions
