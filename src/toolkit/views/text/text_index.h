// Positions in a text as programs count them: characters from 1, lines from 0, and a line end of one character in rich
// text and of two in plain text. Characters are UTF-16 units. Built from a document in one pass; the lookups are cheap.
#pragma once

#include <QString>
#include <QTextDocument>
#include <vector>

namespace orba {

class TextIndex {
public:
    // `lineEnd` is what stands between two lines: "\n" or "\r\n".
    void build(const QTextDocument& document, const QString& lineEnd);
    void build(const QString& singleLine);

    const QString& text() const { return text_; }
    int length() const { return int(text_.size()); }
    int lineCount() const { return int(lines_.size()); }
    QString part(int start, int end) const { return text_.mid(start - 1, end - start); } // the end is not included

    // A position from 1 to length + 1 and a cursor position of the document, from 0. Values outside are brought inside.
    int toCursor(int position) const;
    int fromCursor(int cursor) const;

    int lineOfPosition(int position) const; // from 0
    int lineStart(int line) const;          // characters ahead of the line, -1 past the last line
    int lineLength(int line) const;         // characters without the line end

    // Position of the first match at or behind `from`, 0 for none. An empty string is found nowhere.
    int find(QString wanted, int from, bool matchCase) const;

private:
    QString text_;
    std::vector<int> lines_{0}; // characters ahead of each line
    int lineEnd_ = 1;
};

} // namespace orba
