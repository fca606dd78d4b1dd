#include "toolkit/widgets/text_index.h"

#include "toolkit/widgets/program_text.h"

#include <QTextBlock>
#include <algorithm>
#include <cstring>

namespace orba {
namespace {

std::string foldCase(std::string_view text) {
    std::string out(text);
    for (char& c : out)
        if (c >= 'A' && c <= 'Z') c = char(c + 32);
    return out;
}

} // namespace

void TextIndex::build(const QTextDocument& document, std::string_view lineEnd) {
    bytes_.clear();
    lines_.clear();
    folded_.clear();
    lineEnd_ = lineEnd;
    for (QTextBlock block = document.firstBlock(); block.isValid(); block = block.next()) {
        if (!lines_.empty()) bytes_ += lineEnd_;
        lines_.push_back({int(bytes_.size()), block.position()});
        bytes_ += toProgram(block.text());
    }
    if (lines_.empty()) lines_.push_back({0, 0});
}

void TextIndex::build(const QString& singleLine) {
    bytes_ = toProgram(singleLine);
    lines_.assign(1, {0, 0});
    folded_.clear();
    lineEnd_ = "\n";
}

int TextIndex::lineOfPosition(int position) const {
    auto after = std::upper_bound(lines_.begin(), lines_.end(), position - 1,
                                  [](int byte, const Line& line) { return byte < line.byte; });
    return std::max<int>(0, int(after - lines_.begin()) - 1);
}

int TextIndex::lineStart(int line) const { return line >= 0 && line < lineCount() ? lines_[line].byte : -1; }

int TextIndex::lineLength(int line) const {
    if (line < 0 || line >= lineCount()) return 0;
    return line + 1 < lineCount() ? lines_[line + 1].byte - lines_[line].byte - int(lineEnd_.size())
                                  : length() - lines_[line].byte;
}

int TextIndex::toCursor(int position) const {
    const int byte = std::clamp(position - 1, 0, length());
    const int line = lineOfPosition(byte + 1);
    const int end = lines_[line].byte + lineLength(line);
    int cursor = lines_[line].cursor;
    for (int at = lines_[line].byte; at < std::min(byte, end);) {
        int step = utf8SequenceLength(bytes_, at);
        cursor += step == 4 ? 2 : 1;
        at += step;
    }
    return cursor;
}

int TextIndex::fromCursor(int cursor) const {
    auto after =
        std::upper_bound(lines_.begin(), lines_.end(), cursor, [](int c, const Line& line) { return c < line.cursor; });
    const int line = std::max<int>(0, int(after - lines_.begin()) - 1);
    const int end = lines_[line].byte + lineLength(line);
    int at = lines_[line].byte;
    for (int units = lines_[line].cursor; units < cursor && at < end;) {
        int step = utf8SequenceLength(bytes_, at);
        units += step == 4 ? 2 : 1;
        at += step;
    }
    return at + 1;
}

int TextIndex::find(std::string_view wanted, int from, bool matchCase) const {
    const std::size_t start = std::size_t(std::max(from, 1) - 1);
    if (wanted.empty() || start >= bytes_.size()) return 0;
    std::string needle = unifyLineEnds(wanted);
    if (lineEnd_.size() > 1)
        for (std::size_t i = 0; (i = needle.find('\n', i)) != std::string::npos; i += 2) needle.insert(i, 1, '\r');
    std::size_t found = std::string::npos;
    if (matchCase) {
        found = bytes_.find(needle, start);
    } else {
        if (folded_.size() != bytes_.size()) folded_ = foldCase(bytes_);
        found = folded_.find(foldCase(needle), start);
    }
    return found == std::string::npos ? 0 : int(found) + 1;
}

} // namespace orba
