// Rich Text Format in and out of a text document: paragraphs with alignment, indents, tab stops and bullets; characters
// with face, size, weight, slant, lines and colours; links.
#pragma once

#include <QByteArray>
#include <QTextCursor>
#include <QTextDocument>

#include <string>
#include <string_view>

namespace orba {

// Twips are the unit of lengths in the format, 20 to a point; a document measures in pixels of 96 to the inch.
inline constexpr double pixelsPerTwip = 96.0 / 1440.0;

// Whether the bytes claim to be rich text. Anything else is plain.
bool isRtf(const QByteArray& bytes);

// Rich text out of the source of a program, where each line end of the text was written as a bar: those bars become
// line ends again, which mean nothing in the format. They stand where writers of the format break its lines: right
// behind a control word, behind the groups of the head, behind the end. Other bars are text.
std::string withSourceLines(std::string_view rtf);

// Inserts the text at the cursor, in place of its selection. Any bytes whatever end in some text; nested groups beyond
// a sane depth and pictures are left out. Characters without attributes of their own take those of `base`.
void insertRtf(QTextCursor& cursor, const QByteArray& rtf, const QTextCharFormat& base);

// The whole document, or the selection of the cursor.
QByteArray writeRtf(const QTextDocument& document);
QByteArray writeRtf(const QTextCursor& selection);

} // namespace orba
