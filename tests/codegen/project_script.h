// Projects out of short scripts, so that the input of a golden source can be read beside it. One item a line:
//
//   project FIELD VALUE        platform, gridMode, gridHoriz, gridVert, scalable, doubleBuffering, title
//   indent N                   blanks ahead of pasted callback code
//   config EXPRESSION          the program looks for its configuration file there
//   colour INDEX R G B         a colour of the project, each part 0 to 1
//   block NAME: CODE           a code block by its name in the editor's list
//   2001 NAME                  a form; the number is the widget's type. Deeper indented lines are below it
//   2002                       the main panel of the form
//   2003 NAME                  a widget, made from its default record
//   .FIELD VALUE               a field of the widget named last, by its name in the record
//   > SLOT: CODE               code of the widget or entry named last, by the slot's name without "Callback"
//   + KIND LEVEL NAME ; LABEL ; ACCEL ; HELP ; ICON1 ; ICON2 ; ICON3      an entry of a menu or tree
//   * TEXT ; ICON              an entry of a list
//   = NAME ; SIZE TEXT ; ...   a status bar
//   columns N...  rows N...    sizes of an array's or table's cells
//
// A line that begins with [77], [90] or [99] counts in a project of that language only.
// In values \n is a line end as stored (carriage return, line feed), \\ a backslash. Lines that begin with -- are
// remarks.
#pragma once

#include <string>

// Makes the open project out of a script. Fails the running test on a line that it does not understand.
void readProjectScript(const std::string& script);
