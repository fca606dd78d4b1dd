// Faces of fonts by the names that programs use.
#pragma once

#include "toolkit/widgets/core.h"

#include <QFont>
#include <QStringList>

namespace orba {

// The name itself, so that it can be told again, and what stands for it on this desktop.
inline QStringList fontFamilies(const QString& face) {
    const QString own = fontFor(face, 0).family();
    return own.compare(face, Qt::CaseInsensitive) == 0 ? QStringList{face} : QStringList{face, own};
}

// The name that the program asked for, or that of the font in use.
inline QString requestedFace(const QFont& font) {
    const QStringList families = font.families();
    return families.isEmpty() ? font.family() : families.first();
}

} // namespace orba
