// Bars in rich text that were the line ends of its own source.
#include "toolkit/views/text/rtf.h"

#include <cctype>

namespace orba {
namespace {

bool isLetter(char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; }
bool isNumber(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0 || c == '-'; }

// Whether a control word ends right ahead of `at`: a backslash, letters, perhaps a number.
bool behindControlWord(std::string_view rtf, std::size_t at) {
    while (at > 0 && isNumber(rtf[at - 1])) --at;
    const std::size_t end = at;
    while (at > 0 && isLetter(rtf[at - 1])) --at;
    if (at == end) return false;
    std::size_t backslashes = 0;
    while (backslashes < at && rtf[at - 1 - backslashes] == '\\') ++backslashes;
    return backslashes % 2 != 0; // a pair is a backslash of the text
}

} // namespace

std::string withSourceLines(std::string_view rtf) {
    std::string result(rtf);
    const std::size_t body = rtf.find("\\pard");
    const std::size_t end = rtf.find_last_not_of("| \n") + 1;
    for (std::size_t at = rtf.find('|'); at != std::string_view::npos; at = rtf.find('|', at + 1)) {
        const char ahead = at > 0 ? rtf[at - 1] : '\0';
        const bool inHead = at < body && (ahead == '}' || ahead == '{' || ahead == ';');
        const bool again = at > 0 && result[at - 1] == '\n' && rtf[at - 1] == '|'; // an empty line of the source
        if (inHead || again || at >= end || behindControlWord(rtf, at)) result[at] = '\n';
    }
    return result;
}

} // namespace orba
