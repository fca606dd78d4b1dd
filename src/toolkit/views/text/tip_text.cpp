#include "toolkit/views/text/tip_text.h"

#include <QTextDocument>

namespace orba {

QString tipText(const QString& text) {
    if (!Qt::mightBeRichText(text)) return text;
    return QStringLiteral("<div style=\"white-space:pre\">%1</div>").arg(text.toHtmlEscaped());
}

} // namespace orba
