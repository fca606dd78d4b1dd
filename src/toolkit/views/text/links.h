// Addresses in plain text as links.
#pragma once

#include <QString>
#include <QTextDocument>

namespace orba {

// Shows addresses in the document in the link colour and underlined, or stops doing so. The text itself stays as it is.
void showLinks(QTextDocument& document, bool on);

// The address that covers the character position in the text, empty for none.
QString linkInText(const QString& text, int position);

} // namespace orba
