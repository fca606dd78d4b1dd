// What fills a list or combo box by itself, and where an entry goes.
#pragma once

#include <QIcon>
#include <QString>
#include <vector>

namespace orba {

struct ListRow {
    QString text;
    QIcon icon;
};

// Rows of the contents OFILES to OPRINTERS; none for ONONE and unknown numbers. Files and directories are those of the
// current directory, drives the mounted volumes, printers those of the system.
std::vector<ListRow> listContents(int contents);

// The row, from 0, that a text names: the one equal to it, else the first that begins with it at the end of a word,
// else the first that begins with it; -1 for none. With `whole` only an equal row counts.
int findListText(const std::vector<QString>& rows, const QString& text, bool whole);

} // namespace orba
