#include "compile/log.h"

#include "compile/catalogue.h"
#include "compile/hooks.h"
#include "compile/navigation.h"
#include "platform/letters.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <deque>
#include <string_view>

CompilerLog compilerLog;

namespace {

bool contains(const std::string& line, const char* text) { return line.find(text) != std::string::npos; }

bool containsAny(const std::string& line, const std::array<const char*, 5>& texts) {
    return std::any_of(texts.begin(), texts.end(), [&](const char* text) { return text && contains(line, text); });
}

bool isCompileError(const std::string& line, int profile) {
    const Compiler& known = compilerOf(profile);
    if (!known.ofThisSystem) return containsAny(line, known.messages.compile);
    if (isSourceExcerpt(line) || contains(line, "collect2: ") || contains(line, "ld: ")) return false;
    return line.rfind("Error:", 0) == 0 || line.rfind("Fatal Error:", 0) == 0 ||
           containsAny(line, known.messages.compile);
}

bool isLinkError(const std::string& line, int profile) {
    const Compiler& known = compilerOf(profile);
    return containsAny(line, known.messages.link) && !(known.ofThisSystem && isSourceExcerpt(line));
}

// --- reading

// Length of the UTF-8 sequence at `at`, 0 when the bytes there are none.
size_t sequenceLength(const std::string& text, size_t at) {
    unsigned char lead = static_cast<unsigned char>(text[at]);
    size_t length = lead < 0x80 ? 1 : lead >= 0xC2 && lead < 0xE0 ? 2 : lead >= 0xE0 && lead < 0xF0 ? 3 : 4;
    if (lead >= 0x80 && (lead < 0xC2 || lead > 0xF4)) return 0;
    if (at + length > text.size()) return 0;
    for (size_t i = 1; i < length; i++) {
        if ((static_cast<unsigned char>(text[at + i]) & 0xC0U) != 0x80U) return 0;
    }
    unsigned char second = length > 1 ? static_cast<unsigned char>(text[at + 1]) : 0;
    bool overlong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
    bool beyond = (lead == 0xED && second > 0x9F) || (lead == 0xF4 && second > 0x8F);
    return overlong || beyond ? 0 : length;
}

// Position behind a colour sequence "ESC [ ... letter" at `at`.
size_t skipColour(const std::string& text, size_t at) {
    size_t end = at + 1;
    if (end >= text.size() || text[end] != '[') return end;
    end++;
    while (end < text.size() && !std::isalpha(static_cast<unsigned char>(text[end]))) end++;
    return std::min(end + 1, text.size());
}

// Keeps a log of any length small: its head, its tail, and the lines around the first error if that lies between.
struct LogReader {
    int profile = COMPILER_NONE;
    std::vector<std::string> head;
    std::deque<std::string> tail;
    std::vector<std::string> around;
    bool errorFound = false;
    int linesWanted = 0; // of `around`, still to come
    long long omitted = 0;
};
constexpr int LINES_AROUND = 20;
static_assert(LOG_HEAD_LINES + LOG_TAIL_LINES + 2 * LINES_AROUND + 2 <= 2500);

void takeLine(LogReader& reader, std::string line) {
    bool error = !reader.errorFound && (isCompileError(line, reader.profile) || isLinkError(line, reader.profile));
    if (error) reader.errorFound = true;
    if (reader.head.size() < LOG_HEAD_LINES) {
        reader.head.push_back(std::move(line));
        return;
    }
    if (error) {
        size_t count = std::min<size_t>(reader.tail.size(), LINES_AROUND);
        reader.around.assign(reader.tail.end() - static_cast<std::ptrdiff_t>(count), reader.tail.end());
        reader.linesWanted = LINES_AROUND;
    }
    if (reader.linesWanted > 0) {
        reader.around.push_back(line);
        reader.linesWanted--;
    }
    reader.tail.push_back(std::move(line));
    if (reader.tail.size() > LOG_TAIL_LINES) {
        reader.tail.pop_front();
        reader.omitted++;
    }
}

std::string omissionWords(long long lines) {
    return "... of " + std::to_string(lines) + " more lines only the following are kept ...";
}

} // namespace

std::string plainLogLine(const std::string& bytes) {
    bool plain = true;
    for (char c : bytes) plain &= c >= ' ' && c < 127;
    std::string line = plain ? bytes.substr(0, LOG_LINE_LIMIT) : std::string();
    if (plain) return line;
    for (size_t at = 0; at < bytes.size() && line.size() < LOG_LINE_LIMIT;) {
        unsigned char c = static_cast<unsigned char>(bytes[at]);
        size_t length = sequenceLength(bytes, at);
        if (c == 27) {
            at = skipColour(bytes, at);
        } else if (length == 0) {
            line += '?';
            at++;
        } else if (c < 32 || c == 127) {
            if (c != '\r' || at + 1 < bytes.size()) line += c == '\t' ? '\t' : ' ';
            at++;
        } else {
            line.append(bytes, at, length);
            at += length;
        }
    }
    return line;
}

std::string logEntry(const std::string& line) { return std::string(cutBetweenLetters(line, LOG_ENTRY_LIMIT)); }

bool readLog(const std::string& path, int compilerProfile, CompilerLog& log) {
    log = {};
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (!file) return false;
    LogReader reader;
    reader.profile = compilerProfile;
    std::string line;
    bool any = false;
    char piece[1 << 16];
    while (size_t got = std::fread(piece, 1, sizeof piece, file)) {
        for (std::string_view rest(piece, got); !rest.empty();) {
            size_t end = rest.find('\n');
            std::string_view part = rest.substr(0, end);
            any = true;
            if (line.size() < LOG_LINE_LIMIT) line.append(part.substr(0, LOG_LINE_LIMIT - line.size()));
            if (end == std::string_view::npos) break;
            takeLine(reader, plainLogLine(line));
            line.clear();
            any = false;
            rest.remove_prefix(end + 1);
        }
    }
    std::fclose(file);
    if (any) takeLine(reader, plainLogLine(line));

    log.lines = std::move(reader.head);
    if (reader.omitted > 0) {
        log.omittedAfter = static_cast<int>(log.lines.size());
        log.lines.push_back(omissionWords(reader.omitted + static_cast<long long>(reader.tail.size())));
        log.lines.insert(log.lines.end(), reader.around.begin(), reader.around.end());
        if (!reader.around.empty()) log.lines.emplace_back("...");
    }
    log.lines.insert(log.lines.end(), reader.tail.begin(), reader.tail.end());
    return true;
}

bool isSourceExcerpt(const std::string& line) {
    size_t at = line.find_first_not_of(' ');
    size_t bar = line.find_first_not_of("0123456789", at);
    if (at == std::string::npos || bar == std::string::npos) return false;
    bar = line.find_first_not_of(' ', bar);
    return bar != std::string::npos && bar > 0 && line[bar] == '|';
}

bool isFortranMessage(const std::string& line) {
    return line.rfind("Error:", 0) == 0 || line.rfind("Fatal Error:", 0) == 0 || line.rfind("Warning:", 0) == 0;
}

LogScan scanLogLines(const std::vector<std::string>& lines, int compilerProfile) {
    LogScan scan;
    auto found = std::find_if(lines.begin(), lines.end(),
                              [&](const std::string& line) { return isCompileError(line, compilerProfile); });
    if (found != lines.end()) {
        scan.result =
            static_cast<int>(found - lines.begin()) + (compilerOf(compilerProfile).messages.positionAbove ? 0 : 1);
        scan.analysed = scan.result;
    }
    if (scan.result > 0) return scan;
    found = std::find_if(lines.begin(), lines.end(),
                         [&](const std::string& line) { return isLinkError(line, compilerProfile); });
    if (found != lines.end()) scan.result = static_cast<int>(found - lines.begin()) + 1;
    return scan;
}

int scanLog(int compilerProfile) {
    LogScan scan = scanLogLines(compilerLog.lines, compilerProfile);
    int last = static_cast<int>(compilerLog.lines.size());
    int selected = scan.analysed > 0 ? scan.analysed : last;
    if (selected > 0) buildHooks.selectLogLine(selected);
    if (scan.analysed > 0) goToLogEntry(scan.analysed, compilerProfile);
    buildHooks.logFont();
    return scan.result;
}

void forgetLog() {
    compilerLog = {};
    buildHooks.clearLog();
    buildHooks.enablePrintErrors(false);
}

void logEntryChosen(int entry) { goToLogEntry(entry, compiler.profile); }

int messageBeside(int entry, int step) {
    const int count = static_cast<int>(compilerLog.lines.size());
    for (int at = std::max(entry, step > 0 ? 0 : 1) + step; at >= 1 && at <= count; at += step) {
        const std::string& line = compilerLog.lines[static_cast<size_t>(at) - 1];
        if (!isSourceExcerpt(line) && messagePosition(line, compiler.profile).line > 0 && logEntryLeads(at)) return at;
    }
    return 0;
}
