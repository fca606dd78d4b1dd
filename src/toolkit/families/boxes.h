// Boxes that wait for an answer: messages, the file browser, colours and fonts. Each runs its own event loop and gives
// the input back to the window that had it.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>

class QWidget;

namespace orba {

// A bar in the text is a line break. icon: 1 question, 2 warning, 3 information, 4 error. buttons: 0 OK, 1 OK and
// Cancel, 3 Yes and No, 4 Yes, No and Cancel. Answers 4 OK, 1 Cancel, 6 Yes, 3 No; closing the box or Esc is Cancel
// where there is one, else No, else OK.
int messageBox(const QString& title, const QString& text, int icon, int buttons);

enum class FileQuestion : int { open = 0, save = 1, directory = 2 };

// Asks for a file or a folder. filter holds pairs of pattern and description, "*.f90;*.f95|Fortran source|*.*|All
// files". name and directory are what the box starts with and, after a true answer, what the user chose; for a folder
// name is empty. An empty directory starts where the last box of this program ended. The box never asks about
// overwriting.
struct FileChoice {
    QString name;
    QString directory;
    QString filter;
    QString title;
    FileQuestion question = FileQuestion::open;
};
bool fileBrowser(FileChoice& choice);

// True when the user chose one.
bool colourBox(QColor& colour);

// The pairs of a filter as the file dialogue writes them: "Fortran source (*.f90 *.f95)".
QStringList dialogueFilters(const QString& filter);

} // namespace orba
