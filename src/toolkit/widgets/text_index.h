// Positions in a text as programs count them: bytes from 1, lines from 0, and a line end of one byte in rich text and
// of two in plain text. Built from a document in one pass; the lookups are cheap.
#pragma once

#include <QTextDocument>
#include <string>
#include <string_view>
#include <vector>

namespace orba {

class TextIndex {
public:
    // `lineEnd` is what stands between two lines: "\n" or "\r\n".
    void build(const QTextDocument& document, std::string_view lineEnd);
    void build(const QString& singleLine);

    const std::string& bytes() const { return bytes_; }
    int length() const { return int(bytes_.size()); }
    int lineCount() const { return int(lines_.size()); }

    // A position from 1 to length + 1 and a cursor position of the document, from 0. Values outside are brought inside.
    int toCursor(int position) const;
    int fromCursor(int cursor) const;

    int lineOfPosition(int position) const; // from 0
    int lineStart(int line) const;          // bytes ahead of the line, -1 past the last line
    int lineLength(int line) const;         // bytes without the line end

    // Position of the first match at or behind `from`, 0 for none. An empty string is found nowhere.
    int find(std::string_view wanted, int from, bool matchCase) const;

private:
    struct Line {
        int byte;   // bytes ahead of the line
        int cursor; // cursor position of its start
    };
    std::string bytes_;
    std::vector<Line> lines_;
    std::string lineEnd_ = "\n";
    mutable std::string folded_; // lower case, made when first asked for
};

} // namespace orba
