#include "editing/text_view.h"

#include "menu-c.h"

namespace {

enum TextEnquiry { LINE_OF_POSITION = 0, BEFORE_LINE = 1, LENGTH_OF_LINE = 2, LENGTH = 6 };

constexpr int BYTES_PER_UNIT = 4; // of UTF-8, at most

} // namespace

int textLength(int text) { return owEnqTextPos(text, LENGTH, 0); }

std::string textOf(int text) {
    std::string buffer(static_cast<size_t>(textLength(text)) * BYTES_PER_UNIT + 1, '\0');
    owEnqTextSetting(text, buffer.data(), static_cast<int>(buffer.size()), owEntryType, OSTANDARD, 0);
    buffer.resize(buffer.find('\0'));
    return buffer;
}

std::string linesOf(int text) { return extract(text, {1, textLength(text) + 1}); }

TextRange selectionOf(int text) {
    TextRange range;
    owEnqSelectedTextRange(text, &range.start, &range.end, 0);
    return range;
}

void select(int text, TextRange range) { owSetSelectedTextRange(text, range.start, range.end); }
void moveCaret(int text, int position) { select(text, {position, position}); }

int lineOf(int text, int position) { return owEnqTextPos(text, LINE_OF_POSITION, owPosition, position, 0); }
int lineStart(int text, int line) { return owEnqTextPos(text, BEFORE_LINE, owPosition, line, 0) + 1; }
int caretLineStart(int text) { return owEnqTextPos(text, BEFORE_LINE, owPosition, -1, 0) + 1; }
int lineLength(int text, int start) { return owEnqTextPos(text, LENGTH_OF_LINE, owPosition, start, 0); }

std::string extract(int text, TextRange range) {
    if (range.end <= range.start) return {};
    std::string buffer(static_cast<size_t>(range.end - range.start) * BYTES_PER_UNIT + 1, '\0');
    owExtractText(text, range.start, range.end, buffer.data(), static_cast<int>(buffer.size()));
    buffer.resize(buffer.find('\0'));
    return buffer;
}

void replaceSelection(int text, const std::string& string) {
    if (string.empty() || string.back() != ' ') {
        owReplaceText(text, string.c_str(), 0);
        return;
    }
    // Trailing blanks are dropped on the way, so one more character goes along and is deleted again.
    owReplaceText(text, (string + "1").c_str(), 0);
    const int caret = selectionOf(text).end;
    select(text, {caret - 1, caret});
    owReplaceText(text, "", 0);
}

void replaceRange(int text, TextRange range, const std::string& string) {
    select(text, range);
    replaceSelection(text, string);
}

int characters(const std::string& utf8) {
    int count = 0;
    for (const unsigned char byte : utf8) {
        if ((byte & 0xC0) != 0x80) ++count;
        if (byte >= 0xF0) ++count; // two units beyond the basic plane
    }
    return count;
}
