#include "codegen/quotes.h"

#include "project/tree.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr std::size_t QUOTED_LIMIT = 32767; // characters between the quotes

// Cut to the limit, but never behind half of a pair: that would end the string, or take its end away.
void cutDoubled(std::string& text, char first) {
    if (text.size() <= QUOTED_LIMIT) return;
    std::size_t run = 0; // of `first` up to the cut
    while (run < QUOTED_LIMIT && text[QUOTED_LIMIT - 1 - run] == first) ++run;
    text.resize(QUOTED_LIMIT - run % 2);
}

} // namespace

std::string fortranText(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (const char c : text) {
        if (c == '\'') result += '\'';
        result += c;
    }
    cutDoubled(result, '\'');
    return result;
}

// A backslash takes the next character with it, so the quote behind a pair of them still ends the string.
std::string cText(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    bool taken = false;
    for (const char c : text) {
        if (c == '"' && !taken) result += '\\';
        result += c;
        taken = c == '\\' && !taken;
    }
    cutDoubled(result, '\\');
    return result;
}

// A line feed alone becomes a bar too: no language lets a string run over it.
std::string withBars(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
        result += text[i] == '\n' ? '|' : text[i];
    }
    return result;
}

std::string withBarsForC(std::string_view text) {
    std::string result = withBars(text);
    std::replace(result.begin(), result.end(), '\r', '|');
    return result;
}

std::string doubledBackslashes(std::string_view path) {
    std::string result;
    for (std::size_t i = 0; i < path.size(); ++i) {
        result += path[i];
        if (path[i] != '\\') continue;
        result += '\\';
        if (i + 1 < path.size() && path[i + 1] == '\\') ++i;
    }
    return result;
}

// Where the doubling ends a string or makes an escape that the language does not have, it is left out.
std::string doubledTextBackslashes(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    std::size_t run = 0; // backslashes up to and with this one
    for (std::size_t i = 0; i < text.size(); ++i) {
        result += text[i];
        run = text[i] == '\\' ? run + 1 : 0;
        const char follower = i + 1 < text.size() ? text[i + 1] : '\0';
        if (run == 0 || follower == '\\') continue;
        const bool odd = run % 2 != 0;
        const bool hexDigits = i + 2 < text.size() && std::isxdigit(static_cast<unsigned char>(text[i + 2])) != 0;
        const bool badEscape = (follower == 'x' && !hexDigits) || follower == 'u' || follower == 'U';
        if (odd ? follower != '"' : !badEscape) result += '\\';
    }
    return result;
}

std::string iconResourceName(std::string_view icon) {
    return icon.find('.') == std::string_view::npos ? std::string(icon) : resourceName(icon);
}
