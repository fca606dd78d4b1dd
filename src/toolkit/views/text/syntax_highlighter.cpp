#include "toolkit/views/text/syntax_highlighter.h"

namespace orba {
namespace {

// States that a line hands to the next one.
enum LineState { Code = 0, BlockComment = 1 };

bool wordStart(QChar c) { return c.isLetter() || c == u'_'; }
bool wordPart(QChar c) { return c.isLetterOrNumber() || c == u'_'; }

bool commentLine(const QString& text, SyntaxLanguage language) {
    return language == SyntaxLanguage::Fortran77 && !text.isEmpty() && QStringView(u"Cc*").contains(text[0]);
}

bool startsComment(const QString& text, int at, SyntaxLanguage language) {
    if (language != SyntaxLanguage::C) return text[at] == u'!';
    return text[at] == u'/' && at + 1 < text.size() && text[at + 1] == u'/';
}

bool startsBlockComment(const QString& text, int at, SyntaxLanguage language) {
    return language == SyntaxLanguage::C && text[at] == u'/' && at + 1 < text.size() && text[at + 1] == u'*';
}

} // namespace

SyntaxHighlighter::SyntaxHighlighter(QTextDocument* document, SyntaxLanguage language,
                                     std::function<QColor(int)> colour)
    : QSyntaxHighlighter(document), language_(language), colour_(std::move(colour)) {}

void SyntaxHighlighter::setLanguage(SyntaxLanguage language) {
    if (language == language_) return;
    language_ = language;
    rehighlight();
}

void SyntaxHighlighter::refresh() {
    if (revision_ != syntaxRevision()) rehighlight();
}

void SyntaxHighlighter::readFonts() {
    revision_ = syntaxRevision();
    for (int i = 0; i < syntaxCategoryCount; ++i) {
        const SyntaxFont& font = syntaxTree().fonts[i];
        QTextCharFormat& format = formats_[i] = {};
        if (font.colour > 0) format.setForeground(colour_(font.colour));
        if (!font.face.empty()) format.setFontFamilies({QString::fromStdString(font.face)});
        if (font.bold) format.setFontWeight(QFont::Bold);
        if (font.italic) format.setFontItalic(true);
        if (font.underline) format.setFontUnderline(true);
        if (font.strikeout) format.setFontStrikeOut(true);
    }
}

void SyntaxHighlighter::paint(int from, int to, SyntaxCategory category) {
    setFormat(from, to - from, formats_[static_cast<int>(category)]);
}

int SyntaxHighlighter::scanWord(const QString& text, int from) {
    int to = from;
    while (to < text.size() && wordPart(text[to])) ++to;
    const QByteArray word = QStringView(text).mid(from, to - from).toUtf8();
    paint(from, to, syntaxCategoryOf({word.data(), std::size_t(word.size())}, language_));
    return to;
}

int SyntaxHighlighter::scanNumber(const QString& text, int from) {
    const bool hexadecimal = text[from] == u'0' && from + 1 < text.size() && text[from + 1].toLower() == u'x';
    int to = from;
    while (to < text.size()) {
        QChar c = text[to];
        bool exponentSign =
            !hexadecimal && (c == u'+' || c == u'-') && to > from && QStringView(u"eEdD").contains(text[to - 1]);
        if (!c.isLetterOrNumber() && c != u'.' && !exponentSign) break;
        if (c == u'.' && to + 1 < text.size() && text[to + 1].isLetter() && language_ != SyntaxLanguage::C &&
            !QStringView(u"eEdD").contains(text[to + 1]))
            break; // 1.and. is a number and an operator
        ++to;
    }
    paint(from, to, SyntaxCategory::Numerics);
    return to;
}

int SyntaxHighlighter::scanString(const QString& text, int from) {
    const QChar quote = text[from];
    int to = from + 1;
    while (to < text.size() && text[to] != quote) to += language_ == SyntaxLanguage::C && text[to] == u'\\' ? 2 : 1;
    to = std::min<int>(to + 1, text.size());
    paint(from, to, quote == u'\'' ? SyntaxCategory::SingleQuoted : SyntaxCategory::DoubleQuoted);
    return to;
}

int SyntaxHighlighter::scanBlockComment(const QString& text, int from) {
    int end = text.indexOf(u"*/", from);
    setCurrentBlockState(end < 0 ? BlockComment : Code);
    int to = end < 0 ? int(text.size()) : end + 2;
    return to;
}

void SyntaxHighlighter::highlightBlock(const QString& text) {
    if (revision_ != syntaxRevision()) readFonts();
    setCurrentBlockState(Code);
    if (language_ == SyntaxLanguage::None) return;
    const int size = int(text.size());
    paint(0, size, SyntaxCategory::Plain);
    if (commentLine(text, language_)) return paint(0, size, SyntaxCategory::Comments);
    int at = 0;
    if (previousBlockState() == BlockComment) {
        at = scanBlockComment(text, 0);
        paint(0, at, SyntaxCategory::Comments);
    }
    if (language_ == SyntaxLanguage::C && QStringView(text).trimmed().startsWith(u'#'))
        return paint(at, size, SyntaxCategory::Preprocessor);
    while (at < size) {
        const QChar c = text[at];
        if (startsComment(text, at, language_)) return paint(at, size, SyntaxCategory::Comments);
        if (startsBlockComment(text, at, language_)) {
            int to = scanBlockComment(text, at + 2);
            paint(at, to, SyntaxCategory::Comments);
            at = to;
        } else if (c == u'\'' || c == u'"') {
            at = scanString(text, at);
        } else if (c.isDigit() || (c == u'.' && at + 1 < size && text[at + 1].isDigit())) {
            at = scanNumber(text, at);
        } else if (wordStart(c)) {
            at = scanWord(text, at);
        } else {
            ++at;
        }
    }
}

} // namespace orba
