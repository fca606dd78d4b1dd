#include "toolkit/views/fonts.h"

#include <QApplication>
#include <QFontDatabase>
#include <QHash>
#include <array>

namespace orba {
namespace {

enum class FaceKind { Desktop, Sans, Serif, Fixed };

struct FaceRow {
    const char* face;
    FaceKind family;
};
constexpr std::array<FaceRow, 16> knownFaces{{
    {"MS Sans Serif", FaceKind::Desktop},
    {"Microsoft Sans Serif", FaceKind::Desktop},
    {"MS Shell Dlg", FaceKind::Desktop},
    {"MS Shell Dlg 2", FaceKind::Desktop},
    {"System", FaceKind::Desktop},
    {"Tahoma", FaceKind::Desktop},
    {"Segoe UI", FaceKind::Desktop},
    {"Arial", FaceKind::Sans},
    {"Helvetica", FaceKind::Sans},
    {"MS Serif", FaceKind::Serif},
    {"Times New Roman", FaceKind::Serif},
    {"Times", FaceKind::Serif},
    {"Courier New", FaceKind::Fixed},
    {"Courier", FaceKind::Fixed},
    {"Fixedsys", FaceKind::Fixed},
    {"Terminal", FaceKind::Fixed},
}};

struct Substitutes {
    FaceKind family;
    std::array<const char*, 3> faces;
};
constexpr std::array<Substitutes, 3> substitutes{
    {{FaceKind::Sans, {"Liberation Sans", "Nimbus Sans", "DejaVu Sans"}},
     {FaceKind::Serif, {"Liberation Serif", "Nimbus Roman", "DejaVu Serif"}},
     {FaceKind::Fixed, {"Liberation Mono", "DejaVu Sans Mono", "Noto Sans Mono"}}}};

bool installed(const QString& face) {
    static const QStringList families = QFontDatabase::families();
    return families.contains(face, Qt::CaseInsensitive);
}

QString substitute(FaceKind family) {
    if (family == FaceKind::Desktop) return QApplication::font().family();
    for (const Substitutes& row : substitutes)
        if (row.family == family)
            for (const char* face : row.faces)
                if (installed(QLatin1String(face))) return QLatin1String(face);
    return QFontDatabase::systemFont(family == FaceKind::Fixed ? QFontDatabase::FixedFont : QFontDatabase::GeneralFont)
        .family();
}

QStringList lookUp(const QString& face) {
    if (face.trimmed().isEmpty()) return QApplication::font().families();
    if (installed(face)) return {face};
    for (const FaceRow& row : knownFaces)
        if (face.compare(QLatin1String(row.face), Qt::CaseInsensitive) == 0) return {face, substitute(row.family)};
    return {face,
            substitute(face.contains(u"mono", Qt::CaseInsensitive) || face.contains(u"courier", Qt::CaseInsensitive)
                           ? FaceKind::Fixed
                           : FaceKind::Desktop)};
}

} // namespace

QStringList fontFamilies(const QString& face) {
    static QHash<QString, QStringList> known;
    auto found = known.constFind(face);
    if (found != known.constEnd()) return *found;
    QStringList families = lookUp(face);
    if (known.size() < 1000) known.insert(face, families);
    return families;
}

QString requestedFace(const QFont& font) {
    const QStringList families = font.families();
    return families.isEmpty() ? font.family() : families.first();
}

QFont namedFont(const QString& face, double points) {
    QFont font = QApplication::font();
    font.setFamilies(fontFamilies(face));
    if (points > 0) font.setPointSizeF(points);
    return font;
}

QFont fontFor(const QString& face, int pointSize) {
    constexpr int DESKTOP_POINTS = 10; // what programs write for the desktop's own font at its own size
    const QFont desktop = QApplication::font();
    QFont font = namedFont(face, pointSize > 0 ? pointSize : desktop.pointSizeF());
    if (pointSize == DESKTOP_POINTS &&
        fontFamilies(face).last() == fontFamilies(QStringLiteral("MS Sans Serif")).last())
        return desktop;
    return font;
}

} // namespace orba
