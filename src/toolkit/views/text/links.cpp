#include "toolkit/views/text/links.h"

#include <QGuiApplication>
#include <QPalette>
#include <QRegularExpression>
#include <QSyntaxHighlighter>

namespace orba {
namespace {

const QRegularExpression& addresses() {
    static const QRegularExpression pattern(
        R"((?:(?:https?|ftp|file)://|mailto:|www\.)[^\s<>"']*[^\s<>"'.,;:!?()\[\]])",
        QRegularExpression::CaseInsensitiveOption);
    return pattern;
}

class LinkHighlighter : public QSyntaxHighlighter {
public:
    using QSyntaxHighlighter::QSyntaxHighlighter;

protected:
    void highlightBlock(const QString& text) override {
        QTextCharFormat format;
        format.setForeground(QGuiApplication::palette().link());
        format.setFontUnderline(true);
        for (auto found = addresses().globalMatch(text); found.hasNext();) {
            auto match = found.next();
            setFormat(int(match.capturedStart()), int(match.capturedLength()), format);
        }
    }
};

} // namespace

void showLinks(QTextDocument& document, bool on) {
    auto found = document.findChildren<QSyntaxHighlighter*>(QString(), Qt::FindDirectChildrenOnly);
    LinkHighlighter* present = nullptr;
    for (QSyntaxHighlighter* highlighter : found)
        if (auto* links = dynamic_cast<LinkHighlighter*>(highlighter)) present = links;
    if (on && !present) new LinkHighlighter(&document);
    if (!on) delete present;
}

QString linkInText(const QString& text, int position) {
    for (auto found = addresses().globalMatch(text); found.hasNext();) {
        auto match = found.next();
        if (match.capturedStart() <= position && position < match.capturedEnd()) return match.captured();
    }
    return {};
}

} // namespace orba
