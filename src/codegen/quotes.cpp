#include "codegen/quotes.h"

#include "platform/letters.h"
#include "project/tree.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr std::size_t QUOTED_LIMIT = 32767; // bytes between the quotes

bool isRichText(std::string_view text) { return text.starts_with("{\\rtf"); }

// Cut to the limit, but never inside a letter, nor behind half of a pair: that would end the string, or take its end
// away. Rich text stays whole: without its end it is none.
void cutDoubled(std::string& text, char first) {
    if (text.size() <= QUOTED_LIMIT || isRichText(text)) return;
    const std::size_t length = cutBetweenLetters(text, QUOTED_LIMIT).size();
    std::size_t run = 0; // of `first` up to the cut
    while (run < length && text[length - 1 - run] == first) ++run;
    text.resize(length - run % 2);
}

// A backslash takes the next character with it, so the quote behind a pair of them still ends the string.
std::string escapedQuotes(std::string_view text) {
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

// Whether a backslash ahead of `rest` begins an escape of C that a string may hold.
bool beginsEscape(std::string_view rest) {
    if (rest.empty()) return false;
    if (rest.front() == 'x') return rest.size() > 1 && std::isxdigit(static_cast<unsigned char>(rest[1])) != 0;
    constexpr std::string_view FOLLOWERS = "abfnrtv'\"?\\01234567";
    return FOLLOWERS.find(rest.front()) != std::string_view::npos;
}

// `visit` is told every backslash that takes the next character with it or stands alone: its place and which it is.
template <class Visit> void forEachBackslash(std::string_view text, Visit visit) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\') continue;
        const bool escape = beginsEscape(text.substr(i + 1));
        visit(i, escape);
        if (escape) ++i;
    }
}

std::string doubledLoneBackslashes(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    std::size_t from = 0;
    forEachBackslash(text, [&](std::size_t at, bool escape) {
        if (escape) return;
        result.append(text.substr(from, at + 1 - from)).append(1, '\\');
        from = at + 1;
    });
    return result.append(text.substr(from));
}

// Whether the text ends in a word of rich text: a backslash, letters and perhaps a number.
bool endsInControlWord(std::string_view text) {
    const std::size_t word = text.find_last_of('\\');
    if (word == std::string_view::npos || word + 1 == text.size()) return false;
    if (std::isalpha(static_cast<unsigned char>(text[word + 1])) == 0) return false;
    return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(word) + 1, text.end(),
                       [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '-'; });
}

std::string withBarsForC(std::string_view text) {
    std::string result = withBars(text);
    std::replace(result.begin(), result.end(), '\r', '|');
    return result;
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
    return withBars(result);
}

std::string cText(std::string_view text) { return doubledLoneBackslashes(withBarsForC(escapedQuotes(text))); }

// Rich text has its own pairs of backslashes, each a backslash that was typed: both halves count.
std::string cFieldText(std::string_view text) {
    if (!isRichText(text)) return doubledTextBackslashes(withBarsForC(escapedQuotes(text)));
    std::string result;
    for (const char c : text) {
        if (c == '\\' || c == '"') result += '\\';
        result += c;
    }
    return withBarsForC(result);
}

bool holdsEscape(std::string_view text) {
    bool found = false;
    forEachBackslash(text, [&](std::size_t, bool escape) { found |= escape; });
    return found;
}

// A control word ends at what is no letter; where the feed ended it, a blank does so in its place.
std::string withoutRichLineFeeds(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    const auto isWord = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '-'; };
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool lone = text[i] == '\n' && (i == 0 || text[i - 1] != '\r');
        if (!lone) {
            result += text[i];
            continue;
        }
        const bool ahead = !result.empty() && isWord(result.back());
        const bool behind = i + 1 < text.size() && (isWord(text[i + 1]) || text[i + 1] == ' ');
        if (ahead && behind && endsInControlWord(result)) result += ' ';
    }
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
