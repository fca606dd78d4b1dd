// How a name becomes a picture. A picture of the theme exists in a few sizes that are drawn differently; the one
// nearest to the size asked for is taken and drawn afresh from its outlines, so nothing is ever scaled from dots.
#include "toolkit/views/icons/icons.h"

#include "toolkit/views/icons/icon_names.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>
#include <QVector>
#include <array>

namespace orba::icons {
namespace {

constexpr const char* themeContexts[] = {"actions", "apps",       "places",      "mimetypes", "devices",
                                         "status",  "categories", "preferences", "emblems",   "emotes"};
constexpr int themeSizes[] = {16, 22, 32, 48, 64};

// One file of a theme picture.
struct ThemeFile {
    int size; // pixels that it is drawn for
    QString path;
};

QStringList themeRoots() {
    QStringList roots;
    const QStringList shares =
        QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation) +
        QStringList{QStringLiteral("/usr/share"), QCoreApplication::applicationDirPath() + QStringLiteral("/../share")};
    for (const QString& share : shares)
        for (const char* theme : {"breeze"}) {
            const QString root = share + QStringLiteral("/icons/") + QLatin1String(theme);
            if (QFileInfo(root).isDir() && !roots.contains(root)) roots << root;
        }
    return roots;
}

// The files of a theme picture, smallest first; empty when the theme has none.
QVector<ThemeFile> findThemeFiles(const QString& picture) {
    static const QStringList roots = themeRoots();
    for (const QString& root : roots)
        for (const char* context : themeContexts) {
            QVector<ThemeFile> files;
            for (const int size : themeSizes) {
                const QString path =
                    QStringLiteral("%1/%2/%3/%4.svg").arg(root, QLatin1String(context)).arg(size).arg(picture);
                if (QFileInfo::exists(path)) files.push_back({size, path});
            }
            if (!files.isEmpty()) return files;
        }
    return {};
}

const QVector<ThemeFile>& themeFiles(const QString& picture) {
    static QHash<QString, QVector<ThemeFile>> known;
    auto at = known.find(picture);
    if (at == known.end()) at = known.insert(picture, findThemeFiles(picture));
    return at.value();
}

// The file drawn for the size nearest to the one asked for, larger before smaller.
QString nearestFile(const QVector<ThemeFile>& files, int size) {
    const ThemeFile* best = nullptr;
    for (const ThemeFile& file : files)
        if (!best || std::abs(file.size - size) <= std::abs(best->size - size)) best = &file;
    return best ? best->path : QString();
}

QByteArray fileContents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The theme's line colours, as they stand in its files and in our drawings, replaced by the text colour of a dark
// desktop.
QByteArray recoloured(QByteArray svg, const QString& colour) {
    for (const char* line : {"#232629", "#31363b", "#4d4d4d"}) svg.replace(line, colour.toLatin1());
    return svg;
}

bool isDark() { return QGuiApplication::palette().color(QPalette::Window).lightness() < 128; }

// An icon drawn from outlines: from a theme picture or from one of our drawings.
class OutlineEngine : public QIconEngine {
public:
    OutlineEngine(QString theme, QByteArray drawing, bool grey)
        : theme_(std::move(theme)), drawing_(std::move(drawing)), grey_(grey) {}

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) override {
        if (size.isEmpty()) return {};
        const bool disabled = mode == QIcon::Disabled || grey_;
        const QString line = lineColour(mode);
        const QString key = QStringLiteral("orba-icon|%1|%2|%3x%4|%5|%6|%7")
                                .arg(theme_)
                                .arg(qHash(drawing_))
                                .arg(size.width())
                                .arg(size.height())
                                .arg(scale)
                                .arg(disabled)
                                .arg(line);
        QPixmap pixmap;
        if (QPixmapCache::find(key, &pixmap)) return pixmap;
        pixmap = draw(size, qRound(qMin(size.width(), size.height()) / scale), line, disabled);
        QPixmapCache::insert(key, pixmap);
        return pixmap;
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1.0);
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const qreal scale = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        painter->drawPixmap(rect, scaledPixmap(rect.size() * scale, mode, state, scale));
    }

    QIconEngine* clone() const override { return new OutlineEngine(theme_, drawing_, grey_); }
    QString key() const override { return QStringLiteral("orba-outline"); }
    QString iconName() override { return theme_; }
    bool isNull() override { return false; }

private:
    // Name of the colour that lines take instead of their own: that of the text around the icon. Empty on light
    // desktops.
    static QString lineColour(QIcon::Mode mode) {
        const QPalette palette = QGuiApplication::palette();
        if (mode == QIcon::Selected) return palette.color(QPalette::HighlightedText).name();
        return isDark() ? palette.color(QPalette::WindowText).name() : QString();
    }

    QPixmap draw(const QSize& size, int logicalSize, const QString& line, bool disabled) const {
        QByteArray svg = theme_.isEmpty() ? drawing_ : fileContents(nearestFile(themeFiles(theme_), logicalSize));
        if (!line.isEmpty()) svg = recoloured(svg, line);
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        QSvgRenderer renderer(svg);
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        if (disabled) painter.setOpacity(0.4);
        renderer.render(&painter, QRectF(QPointF(0, 0), size));
        painter.end();
        if (!disabled) return pixmap;
        QImage grey = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
        for (int y = 0; y < grey.height(); ++y) {
            auto* line = reinterpret_cast<QRgb*>(grey.scanLine(y));
            for (int x = 0; x < grey.width(); ++x) {
                const int value = qGray(line[x]);
                line[x] = qRgba(value, value, value, qAlpha(line[x]));
            }
        }
        return QPixmap::fromImage(grey);
    }

    QString theme_;      // name of a theme picture, or empty
    QByteArray drawing_; // SVG text when there is no theme picture
    bool grey_;          // the greyed variant, whatever the mode
};

QByteArray toBytes(std::string_view text) { return QByteArray(text.data(), static_cast<qsizetype>(text.size())); }

// The stock icon, or a null one when the name is not stock. A stock name whose theme picture is not installed gets the
// drawing for a missing picture.
QIcon stockIcon(const QString& name) {
    const StockPicture row = stockPicture(name);
    if (row.name.empty()) return {};
    const bool grey = name.trimmed().endsWith(QLatin1Char('#'));
    const QString theme = QString::fromLatin1(toBytes(row.theme));
    if (!theme.isEmpty() && !themeFiles(theme).isEmpty()) return QIcon(new OutlineEngine(theme, {}, grey));
    return QIcon(new OutlineEngine({}, drawingSvg(row.drawing.empty() ? "missing" : row.drawing), grey));
}

// Folders in which a program's own pictures are looked for: the current one, then the program's.
QStringList pictureFolders() { return {QDir::currentPath(), QCoreApplication::applicationDirPath()}; }

// The path that a resource script beside the program ("<program>rc.rc") names for a resource; empty when there is none.
// A line reads: NAME ICON "path" or NAME BITMAP "path", with doubled backslashes.
QString pathFromResourceScript(const QString& name) {
    const QFileInfo program(QCoreApplication::applicationFilePath());
    static const QRegularExpression form(QStringLiteral(R"rx(^(\S+)\s+(?:ICON|BITMAP)\s+"(.*)"\s*$)rx"));
    for (const QString& folder : pictureFolders()) {
        QFile script(folder + QLatin1Char('/') + program.completeBaseName() + QStringLiteral("rc.rc"));
        if (!script.open(QIODevice::ReadOnly | QIODevice::Text)) continue;
        while (!script.atEnd()) {
            const QRegularExpressionMatch line = form.match(QString::fromLocal8Bit(script.readLine()).trimmed());
            if (line.hasMatch() && line.captured(1).compare(name, Qt::CaseInsensitive) == 0)
                return line.captured(2).replace(QStringLiteral("\\\\"), QStringLiteral("\\"));
        }
    }
    return {};
}

// A readable file for a name: the path itself, the path from another system with its separators turned, the file of
// that name or of that name with an ending of a picture in one of the folders, or what the resource script says.
QString pictureFile(const QString& name) {
    if (name.isEmpty()) return {};
    QStringList spellings{name, QString(name).replace(QLatin1Char('\\'), QLatin1Char('/'))};
    const QString inScript = pathFromResourceScript(name);
    if (!inScript.isEmpty()) spellings << inScript << QString(inScript).replace(QLatin1Char('\\'), QLatin1Char('/'));
    for (const QString& spelling : spellings) {
        for (const QString& folder : QStringList{QString()} + pictureFolders()) {
            const QString base =
                folder.isEmpty() ? spelling : folder + QLatin1Char('/') + QFileInfo(spelling).fileName();
            for (const char* ending : {"", ".ico", ".bmp", ".png", ".svg"}) {
                QString path = base + QLatin1String(ending);
                if (QFileInfo(path).isFile() && QImageReader(path).canRead()) return path;
            }
        }
    }
    return {};
}

// All the pictures of a file in one icon: an icon file holds one picture for each size.
QIcon fileIcon(const QString& path) {
    if (path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)) return QIcon(path);
    QIcon icon;
    QImageReader reader(path);
    do {
        const QImage image = reader.read();
        if (!image.isNull()) icon.addPixmap(QPixmap::fromImage(image));
    } while (reader.jumpToNextImage());
    return icon;
}

QStringList& resourceNames() {
    static QStringList names;
    return names;
}

} // namespace

QIcon iconByName(const QString& name) {
    static QHash<QString, QIcon> stock; // pictures of files may change, stock pictures do not
    if (const auto known = stock.constFind(name); known != stock.constEnd()) return known.value();
    QIcon icon = stockIcon(name);
    if (!icon.isNull()) stock.insert(name, icon);
    if (!icon.isNull()) return icon;
    const QString path = pictureFile(name);
    if (!path.isEmpty()) icon = fileIcon(path);
    return icon.isNull() ? QIcon(new OutlineEngine({}, drawingSvg("missing"), false)) : icon;
}

void useTheme() {
    const QString set = QIcon::themeName();
    if (!set.isEmpty() && set != QLatin1String("hicolor") && !set.startsWith(QLatin1String("breeze"))) return;
    QIcon::setThemeName(isDark() ? QStringLiteral("breeze-dark") : QStringLiteral("breeze"));
}

QString pictureBehind(const QString& name) {
    const StockPicture row = stockPicture(name);
    const std::string_view picture = row.theme.empty() ? row.drawing : row.theme;
    return QString::fromLatin1(picture.data(), static_cast<qsizetype>(picture.size()));
}

bool iconExists(const QString& name) { return !stockPicture(name).name.empty() || !pictureFile(name).isEmpty(); }

QPixmap imageFromFile(const QString& path) {
    const QString file = pictureFile(path);
    return file.isEmpty() ? QPixmap() : QPixmap(file);
}

int iconResource(const QString& name) {
    if (name.trimmed().isEmpty()) return 0;
    QStringList& names = resourceNames();
    qsizetype at = names.indexOf(name);
    if (at < 0) {
        at = names.size();
        names << name;
    }
    return static_cast<int>(at) + 1;
}

QString nameOfResource(int resource) { return resourceNames().value(resource - 1); }

QIcon iconOfResource(int resource) {
    const QString name = nameOfResource(resource);
    return name.isEmpty() ? QIcon() : iconByName(name);
}

} // namespace orba::icons
