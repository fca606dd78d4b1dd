#include "toolkit/views/text/code_lines.h"

#include <QRegularExpression>

namespace orba {
namespace {

constexpr int REACH = 2000; // lines that are searched for the other end of a block or bracket

// A block of Fortran: how its first line begins, what ends it, and what else stands at the level of its first line.
struct FortranBlock {
    const char* opening;
    const char* word; // behind "end"
};
const FortranBlock FORTRAN_BLOCKS[] = {
    {R"(^(\w+\s*:\s*)?if\s*\(.*\)\s*then$)", "if"},
    {R"(^(\w+\s*:\s*)?do(\s*$|\s+(?!\d)))", "do"},
    {R"(^(\w+\s*:\s*)?select\s*(case|type)\b)", "select"},
    {R"(^(\w+\s*:\s*)?(associate|block)\b(\s*\(.*\))?$)", "block"},
    {R"(^(abstract\s+)?interface\b)", "interface"},
    {R"(^type\s*(,.*)?(::)?\s*\w+$)", "type"},
    {R"(^((pure|elemental|recursive|integer|real|logical|character|double\s+precision|type)\b.*\s)?(subroutine|function)\s+\w+)",
     "subroutine"},
    {R"(^(module(?!\s+procedure)|program)\s+\w+$)", "module"},
};

const FortranBlock* blockOpenedBy(const QString& code) {
    static const QList<QRegularExpression> openings = [] {
        QList<QRegularExpression> all;
        for (const FortranBlock& block : FORTRAN_BLOCKS)
            all.append(QRegularExpression(block.opening, QRegularExpression::CaseInsensitiveOption));
        return all;
    }();
    for (int i = 0; i < openings.size(); ++i)
        if (openings[i].match(code).hasMatch()) return &FORTRAN_BLOCKS[i];
    return nullptr;
}

bool endsBlock(const QString& code) {
    static const QRegularExpression end(
        R"(^end\s*(if|do|select|associate|block|interface|type|subroutine|function|module|program|where)?\b(\s+\w+)?$)",
        QRegularExpression::CaseInsensitiveOption);
    return end.match(code).hasMatch();
}

bool dividesBlock(const QString& code) {
    static const QRegularExpression middle(
        R"(^(else(\s*if\s*\(.*\)\s*then)?|else\s*where.*|case\s*(default|\(.*\))|contains)$)",
        QRegularExpression::CaseInsensitiveOption);
    return middle.match(code).hasMatch();
}

// The line that opened the block in which a line stands; its number above, 0 for none.
int openerAbove(const std::function<QString(int)>& lineAbove, SyntaxLanguage language) {
    int depth = 0;
    for (int up = 1; up <= REACH; ++up) {
        const QString line = lineAbove(up);
        if (line.isNull()) return 0;
        const QString code = codeOnly(line, language).trimmed();
        if (endsBlock(code)) {
            ++depth;
        } else if (blockOpenedBy(code)) {
            if (depth == 0) return up;
            --depth;
        }
    }
    return 0;
}

NewLine fortranLine(const QString& head, SyntaxLanguage language, int step,
                    const std::function<QString(int)>& lineAbove) {
    NewLine result{head, indentOf(head)};
    const QString code = codeOnly(head, language).trimmed();
    const bool ends = endsBlock(code), divides = dividesBlock(code);
    if (ends || divides) {
        if (const int up = openerAbove(lineAbove, language)) {
            result.indent = indentOf(lineAbove(up));
            QString rest = head.mid(indentOf(head).size());
            const FortranBlock* block = blockOpenedBy(codeOnly(lineAbove(up), language).trimmed());
            const QString word = QLatin1String(block->word);
            const bool completes = code.compare(u"end", Qt::CaseInsensitive) == 0 && rest == code &&
                                   (word == u"if" || word == u"do" || word == u"select");
            if (completes) rest += u' ' + (rest[0].isUpper() ? word.toUpper() : word);
            result.head = result.indent + rest;
        }
    }
    if (divides || blockOpenedBy(code)) result.indent += QString(step, u' ');
    return result;
}

NewLine cLine(const QString& head, SyntaxLanguage language, int step, const std::function<QString(int)>& lineAbove) {
    NewLine result{head, indentOf(head)};
    const QString code = codeOnly(head, language);
    if (code.trimmed().startsWith(u'}')) {
        const BracketPlace opening = matchingBracket(head, int(code.indexOf(u'}')), language, lineAbove);
        if (opening.found && opening.lines > 0) {
            result.indent = indentOf(lineAbove(opening.lines));
            result.head = result.indent + head.mid(indentOf(head).size());
        }
    }
    if (code.trimmed().endsWith(u'{')) result.indent += QString(step, u' ');
    return result;
}

QChar partnerOf(QChar bracket) {
    constexpr char16_t pairs[][2] = {{u'(', u')'}, {u'[', u']'}, {u'{', u'}'}};
    for (const auto& pair : pairs) {
        if (bracket == pair[0]) return pair[1];
        if (bracket == pair[1]) return pair[0];
    }
    return {};
}

bool opens(QChar bracket) { return QStringView(u"([{").contains(bracket); }

} // namespace

QString codeOnly(const QString& line, SyntaxLanguage language) {
    const bool c = language == SyntaxLanguage::C;
    if (language == SyntaxLanguage::Fortran77 && !line.isEmpty() && QStringView(u"Cc*").contains(line[0]))
        return QString(line.size(), u' ');
    QString code = line;
    QChar quote;
    for (qsizetype i = 0; i < code.size(); ++i) {
        const QChar letter = code[i];
        if (!quote.isNull()) {
            if (c && letter == u'\\' && i + 1 < code.size()) code[i++] = u' ';
            if (letter == quote) quote = {};
            code[i] = u' ';
        } else if (letter == u'"' || letter == u'\'') {
            quote = letter;
            code[i] = u' ';
        } else if (c ? letter == u'/' && i + 1 < code.size() && code[i + 1] == u'/' : letter == u'!') {
            return code.left(i) + QString(code.size() - i, u' ');
        }
    }
    return code;
}

QString indentOf(const QString& line) {
    qsizetype end = 0;
    while (end < line.size() && (line[end] == u' ' || line[end] == u'\t')) ++end;
    return line.left(end);
}

NewLine newLineBehind(const QString& head, SyntaxLanguage language, int step,
                      const std::function<QString(int)>& lineAbove) {
    switch (language) {
    case SyntaxLanguage::None: return {head, indentOf(head)};
    case SyntaxLanguage::C: return cLine(head, language, step, lineAbove);
    default: return fortranLine(head, language, step, lineAbove);
    }
}

bool isBracket(QChar c) { return !partnerOf(c).isNull(); }

BracketPlace matchingBracket(const QString& line, int at, SyntaxLanguage language,
                             const std::function<QString(int)>& lineBeyond) {
    QString code = codeOnly(line, language);
    if (at < 0 || at >= code.size() || !isBracket(code[at])) return {};
    const QChar bracket = code[at], partner = partnerOf(bracket);
    const int step = opens(bracket) ? 1 : -1;
    int depth = 0;
    for (int lines = 0; lines <= REACH; ++lines) {
        if (lines > 0) {
            const QString beyond = lineBeyond(lines);
            if (beyond.isNull()) return {};
            code = codeOnly(beyond, language);
            at = step > 0 ? 0 : int(code.size()) - 1;
        }
        for (; at >= 0 && at < code.size(); at += step) {
            if (code[at] == bracket) ++depth;
            if (code[at] == partner && --depth == 0) return {true, lines, at};
        }
    }
    return {};
}

} // namespace orba
