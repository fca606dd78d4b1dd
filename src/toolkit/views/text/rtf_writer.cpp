#include "toolkit/views/text/rtf.h"

#include <QFont>
#include <QTextBlock>
#include <QTextList>
#include <QVector>
#include <cmath>

namespace orba {
namespace {

struct Tables {
    QStringList fonts;
    QVector<QRgb> colours; // entry 0 of the file's table is the automatic colour
};

int fontIndex(Tables& tables, const QString& face) {
    int at = int(tables.fonts.indexOf(face));
    if (at < 0) {
        at = int(tables.fonts.size());
        tables.fonts.append(face);
    }
    return at;
}

int colourIndex(Tables& tables, const QBrush& brush) {
    if (brush.style() == Qt::NoBrush) return 0;
    QRgb rgb = brush.color().rgb() | 0xFF000000;
    int at = int(tables.colours.indexOf(rgb));
    if (at < 0) {
        at = int(tables.colours.size());
        tables.colours.append(rgb);
    }
    return at + 1;
}

QString faceOf(const QTextCharFormat& format, const QTextDocument& document) {
    const QStringList families = format.fontFamilies().toStringList();
    return families.isEmpty() ? document.defaultFont().family() : families.first();
}

double sizeOf(const QTextCharFormat& format, const QTextDocument& document) {
    double points = format.fontPointSize();
    if (points <= 0) points = document.defaultFont().pointSizeF();
    return points > 0 ? points : 10;
}

void appendText(QByteArray& out, const QString& text) {
    for (QChar c : text) {
        const ushort code = c.unicode();
        if (c == u'\\' || c == u'{' || c == u'}')
            out.append('\\').append(char(code));
        else if (c == u'\t')
            out.append("\\tab ");
        else if (code == QChar::LineSeparator || code == 0x0B)
            out.append("\\line ");
        else if (code == 0xA0)
            out.append("\\~");
        else if (code < 128)
            out.append(code < 32 ? ' ' : char(code));
        else
            out.append("\\u").append(QByteArray::number(qint16(code))).append('?');
    }
}

void appendNumber(QByteArray& out, const char* word, int value) { out.append(word).append(QByteArray::number(value)); }

void appendCharacters(QByteArray& out, const QTextCharFormat& format, const QTextDocument& document, Tables& tables) {
    appendNumber(out, "\\plain\\f", fontIndex(tables, faceOf(format, document)));
    appendNumber(out, "\\fs", int(std::lround(sizeOf(format, document) * 2)));
    if (format.fontWeight() > QFont::Medium) out.append("\\b");
    if (format.fontItalic()) out.append("\\i");
    if (format.fontUnderline() && !format.isAnchor()) out.append("\\ul");
    if (format.fontStrikeOut()) out.append("\\strike");
    if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript) out.append("\\super");
    if (format.verticalAlignment() == QTextCharFormat::AlignSubScript) out.append("\\sub");
    if (int colour = format.isAnchor() ? 0 : colourIndex(tables, format.foreground()))
        appendNumber(out, "\\cf", colour);
    if (int colour = colourIndex(tables, format.background())) appendNumber(out, "\\highlight", colour);
    out.append(' ');
}

int twips(double pixels) { return int(std::lround(pixels / pixelsPerTwip)); }

void appendParagraph(QByteArray& out, const QTextBlock& block) {
    const QTextBlockFormat format = block.blockFormat();
    out.append("\\pard");
    if (block.textList()) out.append("{\\*\\pn\\pnlvlblt\\pnf0\\pnindent360{\\pntxtb\\'b7}}\\fi-360");
    struct {
        Qt::Alignment alignment;
        const char* word;
    } alignments[] = {{Qt::AlignRight, "\\qr"}, {Qt::AlignHCenter, "\\qc"}, {Qt::AlignJustify, "\\qj"}};
    for (auto [alignment, word] : alignments)
        if (format.alignment() & alignment) out.append(word);
    const int left = twips(format.leftMargin()) + (block.textList() ? 360 : 0);
    if (left) appendNumber(out, "\\li", left);
    if (int right = twips(format.rightMargin())) appendNumber(out, "\\ri", right);
    if (int first = twips(format.textIndent()); first && !block.textList()) appendNumber(out, "\\fi", first);
    if (int above = twips(format.topMargin())) appendNumber(out, "\\sb", above);
    if (int below = twips(format.bottomMargin())) appendNumber(out, "\\sa", below);
    for (const QTextOption::Tab& tab : format.tabPositions()) {
        if (tab.type == QTextOption::RightTab) out.append("\\tqr");
        if (tab.type == QTextOption::CenterTab) out.append("\\tqc");
        if (tab.type == QTextOption::DelimiterTab) out.append("\\tqdec");
        appendNumber(out, "\\tx", twips(tab.position));
    }
    out.append(' ');
    if (block.textList()) out.append("{\\pntext\\f0\\'b7\\tab}");
}

void appendFragment(QByteArray& out, const QTextFragment& fragment, const QString& text, const QTextDocument& document,
                    Tables& tables) {
    const QTextCharFormat format = fragment.charFormat();
    if (format.isImageFormat()) return;
    const bool link = format.isAnchor() && !format.anchorHref().isEmpty();
    if (link) {
        out.append("{\\field{\\*\\fldinst{HYPERLINK \"");
        appendText(out, format.anchorHref());
        out.append("\"}}{\\fldrslt{");
    }
    appendCharacters(out, format, document, tables);
    appendText(out, text);
    if (link) out.append("}}}");
}

// The part of the document from `from` to `to`, in character positions.
QByteArray write(const QTextDocument& document, int from, int to) {
    Tables tables;
    fontIndex(tables, document.defaultFont().family());
    QByteArray body;
    const QTextBlock first = document.findBlock(from);
    for (QTextBlock block = first; block.isValid() && block.position() <= to; block = block.next()) {
        if (block != first) body.append("\\par\n");
        appendParagraph(body, block);
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            int start = std::max(from, fragment.position());
            int end = std::min(to, fragment.position() + fragment.length());
            if (start < end)
                appendFragment(body, fragment, fragment.text().mid(start - fragment.position(), end - start), document,
                               tables);
        }
        if (block.length() <= 1) appendCharacters(body, block.charFormat(), document, tables);
    }
    QByteArray out = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1{\\fonttbl";
    for (int i = 0; i < tables.fonts.size(); ++i) {
        appendNumber(out, "{\\f", i);
        out.append("\\fnil ");
        appendText(out, tables.fonts[i]);
        out.append(";}");
    }
    out.append("}{\\colortbl ;");
    for (QRgb rgb : tables.colours) {
        appendNumber(out, "\\red", qRed(rgb));
        appendNumber(out, "\\green", qGreen(rgb));
        appendNumber(out, "\\blue", qBlue(rgb));
        out.append(';');
    }
    return out.append("}\n").append(body).append("\n}");
}

} // namespace

bool isRtf(const QByteArray& bytes) { return bytes.startsWith("{\\rtf"); }

QByteArray writeRtf(const QTextDocument& document) { return write(document, 0, document.characterCount() - 1); }

QByteArray writeRtf(const QTextCursor& selection) {
    return write(*selection.document(), selection.selectionStart(), selection.selectionEnd());
}

} // namespace orba
