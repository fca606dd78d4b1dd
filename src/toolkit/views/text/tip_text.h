// Texts of bubble helps.
#pragma once

#include <QString>

namespace orba {

// `text` for a bubble help that shows it as it stands, even where Qt would take a part of it for rich text.
QString tipText(const QString& text);

} // namespace orba
