#include "typed.h"

#include <cctype>
#include <cstdlib>

namespace {

bool continuesLetter(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }
bool isWord(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; }
bool isHex(char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; }
bool isOctal(char c) { return c >= '0' && c <= '7'; }

std::string withBars(int language, const std::string& text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        const bool lineEnd = text[i] == '\n' || (language == 99 && text[i] == '\r');
        result += lineEnd ? '|' : text[i];
    }
    return result;
}

// The number of an escape in `base`, at most `most` digits long.
char numbered(const std::string& text, std::size_t& at, int base, std::size_t most) {
    std::string digits;
    while (at < text.size() && digits.size() < most && (base == 8 ? isOctal(text[at]) : isHex(text[at])))
        digits += text[at++];
    return static_cast<char>(std::strtoul(digits.c_str(), nullptr, base));
}

// As a compiler of C reads a string; a backslash that begins no escape means itself.
std::string readAsC(const std::string& text) {
    static const std::string LETTERS = "abfnrtv'\"?\\";
    static const std::string MEANINGS = "\a\b\f\n\r\t\v'\"?\\";
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
        const char next = i + 1 < text.size() ? text[i + 1] : ' ';
        if (text[i] != '\\') {
            result += text[i++];
        } else if (isOctal(next)) {
            result += numbered(text, ++i, 8, 3);
        } else if (next == 'x' && i + 2 < text.size() && isHex(text[i + 2])) {
            result += numbered(text, i += 2, 16, text.size());
        } else if (const std::size_t letter = LETTERS.find(next); letter != std::string::npos) {
            result += MEANINGS[letter];
            i += 2;
        } else {
            result += text[i++];
        }
    }
    return result;
}

// Each is doubled, unless it is there for a quote.
std::string withFieldBackslashes(const std::string& text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        result += text[i];
        if (text[i] == '\\' && (i + 1 == text.size() || text[i + 1] != '"')) result += '\\';
    }
    return result;
}

// Pieces that texts are put together from.
const std::vector<std::string>& pieces() {
    static const std::vector<std::string> all = {"it's",
                                                 "\"quoted\"",
                                                 "''",
                                                 "\"\"",
                                                 "'",
                                                 "\"",
                                                 " 100% ",
                                                 "%s%d",
                                                 "|",
                                                 "\r\n",
                                                 "\n",
                                                 "&",
                                                 "&&",
                                                 "&File",
                                                 " & ",
                                                 "C:\\dir\\sub",
                                                 "\\",
                                                 "\\\\host\\share",
                                                 "\\q",
                                                 "\\\"",
                                                 "\\'",
                                                 "\\101",
                                                 "\\x41 ",
                                                 "\\t",
                                                 "\\N",
                                                 "\xc3\xb6\xc3\x9f",
                                                 "\xe6\x97\xa5\xe6\x9c\xac",
                                                 "\xf0\x9f\x98\x80",
                                                 "//",
                                                 "/*",
                                                 "*/",
                                                 "'//'",
                                                 "! no comment",
                                                 "\?\?/",
                                                 "\?\?=",
                                                 "<b>bold</b>",
                                                 "a < b",
                                                 "&amp;",
                                                 "{x}",
                                                 "#define",
                                                 "(a,b)",
                                                 ", ",
                                                 "word",
                                                 "Text of the user"};
    return all;
}

} // namespace

std::string cutBetweenLetters(std::string text, std::size_t limit) {
    if (text.size() <= limit) return text;
    while (limit > 0 && continuesLetter(text[limit])) --limit;
    text.resize(limit);
    return text;
}

std::vector<std::string> hostileTexts() {
    std::vector<std::string> texts;
    for (const std::string& piece : pieces()) {
        if (piece.find_first_not_of("|\r\n ") != std::string::npos) texts.push_back(piece);
    }
    const auto repeated = [&](const std::string& piece, std::size_t bytes) {
        std::string text;
        while (text.size() + piece.size() <= bytes) text += piece;
        texts.push_back(text);
    };
    texts.insert(texts.end(), {"first\r\nsecond\r\n\r\nthird", "end\\", "end'", "end\"", "\\\\", "a|b|c"});
    for (const char* piece : {"'", "\"", "\\\"", "ab\xc3\xb6'\"", "\xe6\x97\xa5", "\\101", "x, (y) '"})
        repeated(piece, 254);
    repeated("It's \xc3\xb6 \"x\" \\q, ", 3000);
    repeated("All that an entry can hold. 'It\"s', ", 30000);
    return texts;
}

std::string randomText(std::mt19937& random, std::size_t limit) {
    const auto number = [&](std::size_t most) { return std::uniform_int_distribution<std::size_t>(0, most)(random); };
    std::string text;
    for (std::size_t count = number(number(9) == 0 ? 60 : 6) + 1; count > 0; --count)
        text += pieces()[number(pieces().size() - 1)];
    text = cutBetweenLetters(text, limit);
    // Blanks at the ends are no part of what is shown.
    while (!text.empty() && text.find_last_of(" \r\n|") == text.size() - 1) text.pop_back();
    text.erase(0, text.find_first_not_of(" \r\n|"));
    return text.empty() ? "empty" : text;
}

std::string marked(const std::string& text, int number, std::size_t limit) {
    const std::string mark = "#" + std::to_string(number) + "#";
    std::string shorter = cutBetweenLetters(text, limit - mark.size());
    while (shorter.size() > 1 && shorter.back() == ' ') shorter.pop_back();
    for (std::size_t i = shorter.size() / 2; i + 1 < shorter.size(); ++i) {
        // Behind two letters no escape is open.
        if (i > 0 && shorter[i] == ' ' && isWord(shorter[i - 1]) && isWord(shorter[i + 1]))
            return shorter.substr(0, i) + mark + shorter.substr(i);
    }
    return mark + shorter;
}

std::string withoutPairs(std::string text) {
    for (std::size_t at = text.find("\\\\"); at != std::string::npos; at = text.find("\\\\", at)) text.erase(at, 1);
    return text;
}

std::string held(int language, const std::string& typed, bool field) {
    const std::string text = withBars(language, typed);
    if (language != 99) return text;
    const std::string read = readAsC(field ? withFieldBackslashes(text) : text);
    return read.substr(0, read.find('\0'));
}
