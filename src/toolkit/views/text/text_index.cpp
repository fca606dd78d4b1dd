#include "toolkit/views/text/text_index.h"

#include <QTextBlock>
#include <algorithm>

namespace orba {

void TextIndex::build(const QTextDocument& document, const QString& lineEnd) {
    text_.clear();
    lines_.clear();
    lineEnd_ = int(lineEnd.size());
    text_.reserve(document.characterCount() + document.blockCount());
    for (QTextBlock block = document.firstBlock(); block.isValid(); block = block.next()) {
        if (!lines_.empty()) text_ += lineEnd;
        lines_.push_back(int(text_.size()));
        text_ += block.text();
    }
    if (lines_.empty()) lines_.push_back(0);
}

void TextIndex::build(const QString& singleLine) {
    text_ = singleLine;
    lines_.assign(1, 0);
    lineEnd_ = 1;
}

int TextIndex::lineOfPosition(int position) const {
    const auto after = std::upper_bound(lines_.begin(), lines_.end(), position - 1);
    return std::max(0, int(after - lines_.begin()) - 1);
}

int TextIndex::lineStart(int line) const { return line >= 0 && line < lineCount() ? lines_[std::size_t(line)] : -1; }

int TextIndex::lineLength(int line) const {
    if (line < 0 || line >= lineCount()) return 0;
    return line + 1 < lineCount() ? lineStart(line + 1) - lineStart(line) - lineEnd_ : length() - lineStart(line);
}

// In a document a line end is one character, here it may be two; a position between the two is the end of the line.
int TextIndex::toCursor(int position) const {
    const int ahead = std::clamp(position - 1, 0, length());
    const int line = lineOfPosition(ahead + 1);
    return std::min(ahead, lineStart(line) + lineLength(line)) - line * (lineEnd_ - 1);
}

int TextIndex::fromCursor(int cursor) const {
    int low = 0, high = lineCount() - 1; // the last line that starts at or ahead of the cursor
    while (low < high) {
        const int middle = (low + high + 1) / 2;
        if (lineStart(middle) - middle * (lineEnd_ - 1) <= cursor)
            low = middle;
        else
            high = middle - 1;
    }
    return std::clamp(cursor + low * (lineEnd_ - 1), 0, length()) + 1;
}

int TextIndex::find(QString wanted, int from, bool matchCase) const {
    if (wanted.isEmpty()) return 0;
    wanted.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (lineEnd_ > 1) wanted.replace(QLatin1String("\n"), QLatin1String("\r\n"));
    const qsizetype found =
        text_.indexOf(wanted, std::max(from, 1) - 1, matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive);
    return int(found) + 1;
}

} // namespace orba
