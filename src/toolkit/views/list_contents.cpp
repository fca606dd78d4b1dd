#include "toolkit/views/list_contents.h"

#include "menu-c.h"
#include "toolkit/views/icons/icons.h"

#include <QDir>
#include <QFontDatabase>
#include <QLocale>
#include <QPrinterInfo>
#include <QStorageInfo>

namespace orba {
namespace {

std::vector<ListRow> rowsOf(const QStringList& texts, const char* icon) {
    const QIcon picture = icon ? icons::iconByName(QLatin1String(icon)) : QIcon();
    std::vector<ListRow> rows;
    for (const QString& text : texts) rows.push_back({text, picture});
    return rows;
}

std::vector<ListRow> files() {
    return rowsOf(QDir::current().entryList(QDir::Files, QDir::Name | QDir::IgnoreCase), "document");
}

std::vector<ListRow> directories() {
    return rowsOf(QDir::current().entryList(QDir::Dirs | QDir::NoDot, QDir::Name | QDir::IgnoreCase), "folder");
}

std::vector<ListRow> drives() {
    QStringList paths;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        const bool real = volume.isValid() && volume.isReady() && volume.bytesTotal() > 0;
        if (real && !paths.contains(volume.rootPath())) paths << QDir::toNativeSeparators(volume.rootPath());
    }
    return rowsOf(paths, "MSML1063");
}

std::vector<ListRow> fonts() { return rowsOf(QFontDatabase::families(), "font"); }

std::vector<ListRow> days() {
    QStringList names;
    for (int day = 1; day <= 7; ++day) names << QLocale::c().dayName(day);
    return rowsOf(names, "calendar");
}

std::vector<ListRow> months() {
    QStringList names;
    for (int month = 1; month <= 12; ++month) names << QLocale::c().monthName(month);
    return rowsOf(names, "calendar");
}

std::vector<ListRow> printers() { return rowsOf(QPrinterInfo::availablePrinterNames(), "print"); }

struct Contents {
    int number;
    std::vector<ListRow> (*rows)();
};
constexpr Contents contentsTable[] = {
    {OFILES, files}, {ODIRECTORIES, directories}, {ODRIVES, drives}, {OFONTS, fonts}, {ODOW, days},
    {OMOY, months},  {OPRINTERS, printers},
};

} // namespace

std::vector<ListRow> listContents(int contents) {
    for (const Contents& row : contentsTable)
        if (row.number == contents) return row.rows();
    return {};
}

int findListText(const std::vector<QString>& rows, const QString& text, bool whole) {
    int atWord = -1, anywhere = -1;
    for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
        const QString& row = rows[static_cast<size_t>(i)];
        if (row == text) return i;
        if (whole || text.isEmpty() || !row.startsWith(text)) continue;
        const QChar next = row.at(text.size());
        if (atWord < 0 && !next.isLetterOrNumber() && next != QLatin1Char('_')) atWord = i;
        if (anywhere < 0) anywhere = i;
    }
    return atWord >= 0 ? atWord : anywhere;
}

} // namespace orba
