// Fonts, paragraphs, files, syntax colours and the printed copy of a text entry.
#include "toolkit/views/text/text_entry.h"

#include "toolkit/views/fonts.h"
#include "toolkit/views/text/links.h"
#include "toolkit/views/text/program_text.h"
#include "toolkit/views/text/rtf.h"

#include <QFile>
#include <QSaveFile>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QTextList>
#include <cmath>

namespace orba {
namespace {

QTextCharFormat charFormat(const TextFont& font) {
    QTextCharFormat format;
    if (font.face) format.setFontFamilies(fontFamilies(*font.face));
    if (font.points && *font.points > 0) format.setFontPointSize(*font.points);
    if (font.bold) format.setFontWeight(*font.bold ? QFont::Bold : QFont::Normal);
    if (font.italic) format.setFontItalic(*font.italic);
    if (font.underline) format.setFontUnderline(*font.underline);
    if (font.strikeout) format.setFontStrikeOut(*font.strikeout);
    if (font.colour) format.setForeground(*font.colour);
    return format;
}

QFont mergedFont(QFont font, const TextFont& change) {
    if (change.face) font.setFamilies(fontFamilies(*change.face));
    if (change.points && *change.points > 0) font.setPointSizeF(*change.points);
    if (change.bold) font.setBold(*change.bold);
    if (change.italic) font.setItalic(*change.italic);
    if (change.underline) font.setUnderline(*change.underline);
    if (change.strikeout) font.setStrikeOut(*change.strikeout);
    return font;
}

struct Bullet {
    int number;
    QTextListFormat::Style style;
};
constexpr Bullet bullets[] = {
    {1, QTextListFormat::ListDisc}, {2, QTextListFormat::ListDecimal}, {3, QTextListFormat::ListLowerAlpha}};

struct Alignment {
    int justify;
    Qt::Alignment alignment;
};
constexpr Alignment alignments[] = {
    {-1, Qt::AlignLeft}, {0, Qt::AlignHCenter}, {1, Qt::AlignRight}, {2, Qt::AlignJustify}};

void setBullet(QTextCursor& cursor, int bullet) {
    for (const Bullet& row : bullets)
        if (row.number == bullet) {
            cursor.createList(row.style);
            return;
        }
    const QTextBlock last = cursor.document()->findBlock(cursor.selectionEnd());
    for (QTextBlock block = cursor.document()->findBlock(cursor.selectionStart()); block.isValid();
         block = block.next()) {
        if (QTextList* list = block.textList()) {
            list->remove(block);
            QTextCursor at(block);
            QTextBlockFormat plain = at.blockFormat();
            plain.setIndent(0);
            at.setBlockFormat(plain);
        }
        if (block == last) break;
    }
}

} // namespace

// Without a selection, or with all of it selected, a text that was not loaded as rich text changes as a whole: then the
// font is the text's own and not an edit of the user's.
bool TextEntry::formatsWholeText() const {
    if (!rich() || !edit_) return true;
    if (loadedRich_) return false;
    const QTextCursor cursor = edit_->textCursor();
    const bool all = cursor.selectionStart() == 0 && cursor.selectionEnd() == edit_->document()->characterCount() - 1;
    return all || !cursor.hasSelection();
}

void TextEntry::clearFormats() {
    if (code_ || edit_->document()->allFormats().size() <= 3) return; // nothing was pasted in
    const bool undoable = edit_->document()->isUndoRedoEnabled();
    edit_->document()->setUndoRedoEnabled(false);
    QTextCursor cursor(edit_->document());
    cursor.select(QTextCursor::Document);
    cursor.setCharFormat(QTextCharFormat());
    edit_->document()->setUndoRedoEnabled(undoable);
}

void TextEntry::setTextFont(const TextFont& font) {
    const ProgramDoing::Mark mark(program_);
    if (!formatsWholeText()) {
        QTextCursor cursor = edit_->textCursor();
        const QTextCharFormat format = charFormat(font);
        if (cursor.hasSelection()) cursor.mergeCharFormat(format);
        edit_->mergeCurrentCharFormat(format);
        return;
    }
    if (edit_ && rich()) clearFormats();
    field()->setFont(mergedFont(field()->font(), font));
    if (edit_) placeField();
    if (font.colour) {
        options_.text = *font.colour;
        showColours();
    }
}

TextFont TextEntry::textFont() const {
    QFont font = field()->font();
    QColor colour = options_.text;
    if (edit_ && rich()) {
        const QTextCharFormat format = edit_->currentCharFormat();
        const QFont own = format.font().resolve(font);
        if (format.hasProperty(QTextFormat::FontFamilies) || format.hasProperty(QTextFormat::FontFamily))
            font.setFamilies(own.families());
        if (format.hasProperty(QTextFormat::FontPointSize)) font.setPointSizeF(format.fontPointSize());
        if (format.hasProperty(QTextFormat::FontWeight)) font.setBold(format.fontWeight() > QFont::Medium);
        if (format.hasProperty(QTextFormat::FontItalic)) font.setItalic(format.fontItalic());
        if (format.hasProperty(QTextFormat::TextUnderlineStyle)) font.setUnderline(format.fontUnderline());
        if (format.hasProperty(QTextFormat::FontStrikeOut)) font.setStrikeOut(format.fontStrikeOut());
        if (format.hasProperty(QTextFormat::ForegroundBrush)) colour = format.foreground().color();
    }
    TextFont result{requestedFace(font), font.pointSizeF(), font.bold(), font.italic(),
                    font.underline(),    font.strikeOut(),  {}};
    if (colour.isValid()) result.colour = colour;
    return result;
}

// --------------------------------------------------------------------------------------------------- paragraphs

void TextEntry::setParagraph(const Paragraph& paragraph) {
    const ProgramDoing::Mark mark(program_);
    if (line_ || !rich()) {
        if (paragraph.justify) {
            options_.justify = *paragraph.justify;
            showAlignment();
        }
        return;
    }
    QTextCursor cursor = edit_->textCursor();
    cursor.beginEditBlock();
    QTextBlockFormat format;
    for (const Alignment& row : alignments)
        if (paragraph.justify && *paragraph.justify == row.justify) format.setAlignment(row.alignment);
    if (paragraph.first) format.setTextIndent(*paragraph.first * pixelsPerTwip);
    if (paragraph.left) format.setLeftMargin(std::abs(*paragraph.left) * pixelsPerTwip);
    if (paragraph.right) format.setRightMargin(std::abs(*paragraph.right) * pixelsPerTwip);
    cursor.mergeBlockFormat(format);
    if (paragraph.bullet) setBullet(cursor, *paragraph.bullet);
    cursor.endEditBlock();
}

TextEntry::Paragraph TextEntry::paragraph() const {
    if (line_ || !rich()) return {options_.justify, 0, 0, 0, 0};
    const QTextCursor cursor = edit_->textCursor();
    const QTextBlockFormat format = cursor.blockFormat();
    auto twips = [](double pixels) { return int(std::lround(pixels / pixelsPerTwip)); };
    Paragraph result{-1, 0, twips(format.textIndent()), twips(format.leftMargin()), twips(format.rightMargin())};
    for (const Alignment& row : alignments)
        if (format.alignment() & row.alignment & Qt::AlignHorizontal_Mask) result.justify = row.justify;
    if (QTextList* list = cursor.currentList()) {
        result.bullet = 1;
        for (const Bullet& row : bullets)
            if (row.style == list->format().style()) result.bullet = row.number;
    }
    return result;
}

QList<double> TextEntry::tabStops() const {
    QList<double> stops;
    if (edit_)
        for (const QTextOption::Tab& tab : edit_->textCursor().blockFormat().tabPositions()) stops.append(tab.position);
    return stops;
}

void TextEntry::setTabStops(const QList<double>& stops) {
    if (!edit_) return;
    const ProgramDoing::Mark mark(program_);
    QList<QTextOption::Tab> tabs;
    for (double stop : stops) tabs.append(QTextOption::Tab(stop, QTextOption::LeftTab));
    QTextBlockFormat format;
    format.setTabPositions(tabs);
    edit_->textCursor().mergeBlockFormat(format);
}

// -------------------------------------------------------------------------------------------------------- files

bool TextEntry::load(const std::string& path) {
    QFile file(QFile::decodeName(path.c_str()));
    if (!file.open(QIODevice::ReadOnly)) return false;
    const QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError) return false;
    setText({bytes.data(), std::size_t(bytes.size())}, true);
    return true;
}

bool TextEntry::save(const std::string& path) const {
    const QString name = QFile::decodeName(path.c_str());
    const std::string bytes = text(name.endsWith(u".rtf", Qt::CaseInsensitive));
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly)) return false;
#ifdef _WIN32
    const std::string& out = bytes;
#else
    const std::string out = unifyLineEnds(bytes);
#endif
    file.write(out.data(), qint64(out.size()));
    return file.commit();
}

// ----------------------------------------------------------------------------------------------- syntax, drawing

void TextEntry::setHighlighting(SyntaxLanguage language, std::function<QColor(int)> colour) {
    if (!edit_) return;
    const ProgramDoing::Mark mark(program_);
    if (code_) code_->setLanguage(language);
    if (language == SyntaxLanguage::None) {
        delete std::exchange(highlighter_, nullptr).data(); // what it signals on its way finds it gone
        showLinks(*edit_->document(), options_.autoUrl);
        return;
    }
    showLinks(*edit_->document(), false);
    if (highlighter_) {
        highlighter_->setLanguage(language);
        highlighter_->refresh();
    } else {
        coloured_ = index().text();
        highlighter_ = new SyntaxHighlighter(edit_->document(), language, std::move(colour));
    }
}

void TextEntry::refreshHighlighting() {
    const ProgramDoing::Mark mark(program_);
    if (highlighter_) highlighter_->refresh();
}

void TextEntry::freeze(bool on) {
    frozen_ = std::max(0, frozen_ + (on ? 1 : -1));
    if (edit_) edit_->viewport()->setUpdatesEnabled(frozen_ == 0);
}

std::unique_ptr<QTextDocument> TextEntry::printable(int pointSize, bool selectionOnly) const {
    std::unique_ptr<QTextDocument> copy;
    if (line_) {
        copy = std::make_unique<QTextDocument>(selectionOnly ? line_->selectedText() : line_->text());
        copy->setDefaultFont(line_->font());
    } else if (selectionOnly && edit_->textCursor().hasSelection()) {
        copy = std::make_unique<QTextDocument>();
        copy->setDefaultFont(edit_->document()->defaultFont());
        QTextCursor(copy.get()).insertFragment(edit_->textCursor().selection());
    } else {
        copy.reset(edit_->document()->clone());
    }
    QFont font = copy->defaultFont();
    if (pointSize > 0) font.setPointSize(pointSize);
    copy->setDefaultFont(font);
    return copy;
}

void TextEntry::markLine(int line) {
    if (!edit_) return;
    if (code_) return code_->markLine(line);
    QList<QTextEdit::ExtraSelection> marks;
    const QTextBlock block = edit_->document()->findBlockByNumber(line - 1);
    if (line > 0 && block.isValid()) {
        constexpr int STRENGTH = 56; // of 255: the colours of the text stay readable
        QColor shade = edit_->palette().color(QPalette::Highlight);
        shade.setAlpha(STRENGTH);
        QTextEdit::ExtraSelection mark;
        mark.cursor = QTextCursor(block);
        mark.format.setBackground(shade);
        mark.format.setProperty(QTextFormat::FullWidthSelection, true);
        marks.append(mark);
    }
    edit_->setExtraSelections(marks);
}

} // namespace orba
