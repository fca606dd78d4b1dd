#include "codegen/quotes.h"

#include "project/tree.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr std::size_t ESCAPED_LIMIT = 32767; // characters of `text` once escaped

bool isC(int language) { return language == 99; }
char quoteOf(int language) { return isC(language) ? '"' : '\''; }

bool endsString(std::string_view text, std::size_t at, int language) {
    return text[at] == quoteOf(language) && !(isC(language) && at > 0 && text[at - 1] == '\\');
}

std::string escaped(std::string_view text, int quotes, int language) {
    std::string result;
    result.reserve(text.size() + static_cast<std::size_t>(quotes));
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (endsString(text, i, language)) result += isC(language) ? '\\' : '\'';
        result += text[i];
    }
    return result;
}

// Cut to the limit of a text, but never between a quote and what escapes it: half a pair would end the string.
void cutEscaped(std::string& text, int language) {
    if (text.size() <= ESCAPED_LIMIT) return;
    std::size_t end = ESCAPED_LIMIT;
    if (isC(language)) {
        if (text[end] == '"' && text[end - 1] == '\\') --end;
    } else {
        const auto run =
            std::find_if(text.rend() - static_cast<std::ptrdiff_t>(end), text.rend(), [](char c) { return c != '\''; });
        if ((run - (text.rend() - static_cast<std::ptrdiff_t>(end))) % 2 != 0) --end;
    }
    text.resize(end);
}

struct Escaper {
    int language;
    SavedStrings saved;

    bool rewrite(std::string& string) {
        const int quotes = countQuotes(string, language);
        if (quotes == 0) return false;
        std::string before = escaped(string, quotes, language);
        std::swap(before, string);
        saved.emplace_back(&string, std::move(before));
        return true;
    }
};

} // namespace

int countQuotes(std::string_view text, int language) {
    int quotes = 0;
    for (std::size_t at = text.find(quoteOf(language)); at != std::string_view::npos;
         at = text.find(quoteOf(language), at + 1)) {
        if (endsString(text, at, language)) ++quotes;
    }
    return quotes;
}

SavedStrings escapeQuotes(WidgetNode* forms, int language) {
    Escaper escaper{language, {}};
    for (WidgetNode* node = forms; node != nullptr; node = walkList(node, forms)) {
        escaper.rewrite(node->name);
        if (escaper.rewrite(node->text)) cutEscaped(node->text, language);
        escaper.rewrite(node->parentName);
        for (MenuEntryRec* entry = node->entries; entry != nullptr; entry = entry->next) {
            escaper.rewrite(entry->name);
            escaper.rewrite(entry->label);
        }
        for (ListEntryRec* entry = node->listEntries; entry != nullptr; entry = entry->next) {
            escaper.rewrite(entry->text);
        }
    }
    return std::move(escaper.saved);
}

void restoreQuotes(SavedStrings& saved) {
    for (auto& [string, before] : saved) *string = std::move(before);
    saved.clear();
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
