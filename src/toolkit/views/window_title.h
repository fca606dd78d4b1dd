// Titles of windows as Qt wants them. It takes "[*]" for the place of its mark of a modified document, which no window
// here bears: written twice it stands for itself.
#pragma once

#include <QString>

namespace orba {

inline QString windowTitle(QString title) { return title.replace(QLatin1String("[*]"), QLatin1String("[*][*]")); }
inline QString plainTitle(QString title) { // the way back
    return title.replace(QLatin1String("[*][*]"), QLatin1String("[*]"));
}

} // namespace orba
