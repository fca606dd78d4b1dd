// Where compilers put the line number of a message.
#include "compile/log.h"
#include "compile/message_lines.h"
#include "compile/navigation.h"
#include "platform/paths.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <string_view>

namespace {

int numberAt(const std::string& text, size_t at) { return at <= text.size() ? std::atoi(text.c_str() + at) : 0; }

// Length of ":digits" at `at`, 0 when there is none.
size_t numberLength(const std::string& text, size_t at) {
    size_t end = at + 1;
    if (at >= text.size() || text[at] != ':') return 0;
    while (end < text.size() && std::isdigit(static_cast<unsigned char>(text[end]))) end++;
    return end > at + 1 ? end - at : 0;
}

// --- messages of several lines

bool sameFile(const std::string& told, const std::string& path) {
    std::error_code failure;
    return told == path || std::filesystem::equivalent(told, path, failure);
}

// gfortran puts a position alone on a line, and the message a few lines below it.
bool isBarePosition(const std::string& line) {
    return !line.empty() && line.back() == ':' && positionInColons(line).line > 0;
}

bool isMessagePart(const std::string& line) {
    return line.find_first_not_of(" .") == std::string::npos || isSourceExcerpt(line);
}

// Index of the line with the position that the line at `at` belongs to, -1 for none.
int positionLine(const std::vector<std::string>& lines, int at) {
    auto line = [&](int i) -> const std::string& { return lines[static_cast<size_t>(i)]; };
    if (!isFortranMessage(line(at)) && !isMessagePart(line(at))) return positionInColons(line(at)).line > 0 ? at : -1;
    int found = -1;
    for (int above = at - 1; above >= 0; above--) {
        if (isBarePosition(line(above))) {
            found = above; // with two positions the first one is the error's own
        } else if (!isMessagePart(line(above))) {
            if (found < 0 && !isFortranMessage(line(above)) && positionInColons(line(above)).line > 0) found = above;
            break;
        }
    }
    return found;
}

// For a message in another file: the line of the main source that brought that file in.
MessagePosition includingLine(const std::vector<std::string>& lines, int at, const std::string& sourcePath) {
    constexpr int LINES_LOOKED_AT = 8;
    constexpr std::string_view WORDS[] = {"In file included from ", "                 from ", "    Included at "};
    for (int i = at - LINES_LOOKED_AT; i < at + LINES_LOOKED_AT; i++) {
        if (i < 0 || i >= static_cast<int>(lines.size())) continue;
        const std::string& line = lines[static_cast<size_t>(i)];
        for (std::string_view words : WORDS) {
            if (line.rfind(words, 0) != 0) continue;
            MessagePosition position = positionInColons(line.substr(words.size()) + ":");
            position.column = 0;
            if (sameFile(position.file, sourcePath)) return position;
        }
    }
    return {};
}

} // namespace

MessagePosition lineAt(const std::string& message, size_t at) {
    MessagePosition position;
    position.line = std::max(0, numberAt(message, at));
    return position;
}

MessagePosition lineBehindParenthesis(const std::string& message) {
    const size_t open = message.find('(');
    return open == std::string::npos ? MessagePosition{} : lineAt(message, open + 1);
}

MessagePosition lineAheadOfParenthesis(const std::string& message) {
    const size_t close = message.find(')');
    return close == std::string::npos ? MessagePosition{} : lineAt(message, close < 4 ? 0 : close - 4);
}

MessagePosition positionInColons(const std::string& message) {
    for (size_t at = message.find(':'); at != std::string::npos; at = message.find(':', at + 1)) {
        size_t lineLength = numberLength(message, at);
        size_t end = at + lineLength;
        if (at == 0 || lineLength == 0 || end >= message.size()) continue;
        size_t columnLength = numberLength(message, end);
        char behind = message[end];
        if (behind != ':' && behind != ',') continue;
        MessagePosition position;
        position.file = message.substr(0, at);
        position.line = numberAt(message, at + 1);
        if (columnLength > 0) position.column = numberAt(message, end + 1);
        return position;
    }
    return {};
}

MessagePosition messagePosition(const std::string& message, int compilerProfile) {
    const auto position = compilerOf(compilerProfile).messages.position;
    return position ? position(message) : MessagePosition{};
}

MessagePosition logPosition(const std::vector<std::string>& lines, int entry, int compilerProfile,
                            const std::string& sourcePath) {
    if (entry < 1 || entry > static_cast<int>(lines.size())) return {};
    if (!compilerOf(compilerProfile).ofThisSystem)
        return messagePosition(lines[static_cast<size_t>(entry - 1)], compilerProfile);
    int at = positionLine(lines, entry - 1);
    if (at < 0) return {};
    MessagePosition position = positionInColons(lines[static_cast<size_t>(at)]);
    return sameFile(position.file, sourcePath) ? position : includingLine(lines, at, sourcePath);
}
