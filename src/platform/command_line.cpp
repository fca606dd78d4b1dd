// Command lines as text: the rules of quoting are the same on every system, so that the commands of the catalogue read
// alike.
#include "platform/processes.h"

std::vector<std::string> splitCommandLine(const std::string& line) {
    std::vector<std::string> words;
    bool inWord = false;
    bool quoted = false;
    size_t i = 0;
    auto word = [&]() -> std::string& {
        if (!inWord) words.emplace_back();
        inWord = true;
        return words.back();
    };
    while (i < line.size()) {
        char c = line[i];
        if (c == '\\') {
            size_t end = line.find_first_not_of('\\', i);
            if (end == std::string::npos) end = line.size();
            size_t count = end - i;
            bool atQuote = end < line.size() && line[end] == '"';
            word().append(atQuote ? count / 2 : count, '\\');
            i = end;
            if (atQuote && count % 2 != 0) {
                word() += '"';
                i++;
            }
        } else if (c == '"') {
            word();
            quoted = !quoted;
            i++;
        } else if (!quoted && (c == ' ' || c == '\t' || c == '\n' || c == '\r')) {
            inWord = false;
            i++;
        } else {
            word() += c;
            i++;
        }
    }
    return words;
}

std::string escapedForQuotes(const std::string& path) {
    std::string out;
    size_t slashes = 0;
    for (char c : path) {
        if (c == '"') out.append(slashes + 1, '\\');
        slashes = c == '\\' ? slashes + 1 : 0;
        out += c;
    }
    return out.append(slashes, '\\');
}
