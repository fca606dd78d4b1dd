// The window that shows help files: text on the right, the file's headings on the left, a search at the top.
#pragma once

#include <QString>

namespace orba {

// Shows a help file at a topic: a heading of that name, else a heading that holds it, else the first place with the
// word; with an empty or unknown topic the beginning. The file may be HTML, Markdown or plain text; for a name with
// another ending (".chm",
// ".hlp") the file of the same name with one of these endings is taken when there is one, else the desktop's own viewer
// is asked. False when nothing can show it. One window serves all files of a program.
bool showHelp(const QString& path, const QString& topic);

} // namespace orba
