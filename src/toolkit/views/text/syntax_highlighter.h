// Colours the words of a text document from the syntax tree.
#pragma once

#include "toolkit/views/text/syntax_tree.h"

#include <QColor>
#include <QSyntaxHighlighter>
#include <array>
#include <functional>

namespace orba {

class SyntaxHighlighter : public QSyntaxHighlighter {
public:
    // The document owns the highlighter. `colour` turns a colour of the tree into one of the screen.
    SyntaxHighlighter(QTextDocument* document, SyntaxLanguage language, std::function<QColor(int)> colour);

    SyntaxLanguage language() const { return language_; }
    void setLanguage(SyntaxLanguage language);

    // Takes over fonts and keywords that changed since the last colouring.
    void refresh();

protected:
    void highlightBlock(const QString& text) override;

private:
    void paint(int from, int to, SyntaxCategory category);
    int scanWord(const QString& text, int from);
    int scanNumber(const QString& text, int from);
    int scanString(const QString& text, int from);
    int scanBlockComment(const QString& text, int from);
    void readFonts();

    SyntaxLanguage language_;
    std::function<QColor(int)> colour_;
    std::array<QTextCharFormat, syntaxCategoryCount> formats_;
    int revision_ = -1;
};

} // namespace orba
