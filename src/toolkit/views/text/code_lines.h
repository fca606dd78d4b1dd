// Lines of programs as an editor of code sees them: what is code and what is not, which lines open and close a block,
// and how a new line begins.
#pragma once

#include "toolkit/views/text/syntax_tree.h"

#include <QString>
#include <functional>

namespace orba {

// The line with blanks in the place of strings and comments.
QString codeOnly(const QString& line, SyntaxLanguage language);

QString indentOf(const QString& line); // its leading blanks and tabs

// What a Return behind `head` does, in a text whose lines above are told by `lineAbove(1)`, `lineAbove(2)` and so on;
// null beyond the first one.
struct NewLine {
    QString head;   // what stands ahead of the caret from now on: the end of a block comes to stand below its start
    QString indent; // the blanks that the new line begins with
};
NewLine newLineBehind(const QString& head, SyntaxLanguage language, int step,
                      const std::function<QString(int)>& lineAbove);

// Where the bracket is that belongs to the one at `at` of the first line: lines further down, or up, and the place in
// that line. Down for an opening bracket. Lines are told as above; `found` is false when there is none within reach.
struct BracketPlace {
    bool found = false;
    int lines = 0;
    int at = 0;
};
BracketPlace matchingBracket(const QString& line, int at, SyntaxLanguage language,
                             const std::function<QString(int)>& lineBeyond);
bool isBracket(QChar c);

} // namespace orba
