// Font names of programs and the fonts of this desktop.
#pragma once

#include <QFont>
#include <QString>
#include <QStringList>

namespace orba {

// The family names to look for, best first: the name itself, so that it can be told again, then what stands for it
// here. "MS Sans Serif" and its kin are the desktop's own font, "Courier New" and its kin the nearest font of fixed
// pitch.
QStringList fontFamilies(const QString& face);

// The name that the program asked for, or that of the font in use.
QString requestedFace(const QFont& font);

QFont namedFont(const QString& face, double points);

// The font for a face and size as programs name them; the desktop's own for "MS Sans Serif" at 10 points.
QFont fontFor(const QString& face, int pointSize);

} // namespace orba
