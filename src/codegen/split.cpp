// A statement is cut into pieces of fixed lengths. Where a cut falls inside a string, the string is closed there and
// opened again on the next line; elsewhere the cut goes back to the last comma or bracket outside of strings.

#include "codegen/split.h"

#include "platform/letters.h"

#include <algorithm>
#include <cctype>

const SplitRule SPLIT_FREE = {133, 126, 120, "     ", "     '", "'//", " &", '\'', false, false};
const SplitRule SPLIT_FIXED = {74, 67, 61, "     +", "     +'", "'//", "", '\'', false, true};
const SplitRule SPLIT_C = {1024, 1017, 1011, "     ", "     \"", "\"", "", '"', true, false};

namespace {

// What reading one line of the source so far tells about the place behind its last character.
struct LineState {
    bool inString = false;
    bool escaping = false;   // the last character is a backslash that takes the next one with it
    std::size_t escape = 0;  // where the last escape of a string begins
    std::size_t breakAt = 0; // behind the last comma or bracket outside of strings; 0 for none
};

LineState readLine(std::string_view taken, bool continuesString, const SplitRule& rule) {
    LineState state;
    state.inString = continuesString;
    for (std::size_t i = 0; i < taken.size(); ++i) {
        const char c = taken[i];
        if (state.escaping) {
            state.escaping = false;
        } else if (state.inString && rule.backslashes && c == '\\') {
            state.escaping = true;
            state.escape = i;
        } else if (c == rule.quote) {
            state.inString = !state.inString;
        } else if (!state.inString && (c == ',' || c == '(')) {
            state.breakAt = i + 1;
        }
    }
    return state;
}

bool isOctal(char c) { return c >= '0' && c <= '7'; }
bool isHex(char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; }

// Behind the escape of a string that begins at `at`.
std::size_t endOfEscape(std::string_view text, std::size_t at) {
    constexpr std::size_t OCTAL_DIGITS = 3;
    const std::size_t first = at + 1;
    std::size_t end = first;
    if (end < text.size() && text[end] == 'x') {
        for (++end; end < text.size() && isHex(text[end]);) ++end;
    } else {
        while (end < text.size() && end < first + OCTAL_DIGITS && isOctal(text[end])) ++end;
    }
    return std::max(end, first + 1);
}

// As many characters of a string as part neither a letter of several bytes nor the number of an escape; 0 when that
// leaves none.
std::size_t wholeLength(std::string_view rest, std::size_t length, const LineState& state, const SplitRule& rule) {
    const bool numbered = rule.backslashes && state.escape != 0 && endOfEscape(rest, state.escape) > length;
    // A backslash ahead of anything else takes it along, see below.
    if (numbered && (isOctal(rest[state.escape + 1]) || rest[state.escape + 1] == 'x')) return state.escape;
    return cutBetweenLetters(rest, length).size();
}

struct Break {
    std::size_t length; // characters of the rest that this line takes
    bool closes;        // a string is closed here and opened again on the next line
};

// Where the line breaks that would take `length` characters of `rest`. At least two more characters follow them.
Break findBreak(std::string_view rest, std::size_t length, bool continuesString, const SplitRule& rule) {
    const LineState state = readLine(rest.substr(0, length), continuesString, rule);
    const bool quoteNext = rest[length] == rule.quote;
    if (state.inString) {
        const std::size_t whole = wholeLength(rest, length, state, rule);
        if (whole != 0 && whole < length) return {whole, true};
        if (state.escaping) return {length + 1, true}; // a break never parts a backslash from what it takes
        const bool doubledNext = !rule.backslashes && rest[length + 1] == rule.quote;
        if (!quoteNext || doubledNext) return {length, true};
        ++length; // just ahead of the closing quote: the string ends on this line
        if (!rule.retreatBehindString) return {length, false};
    } else if (!rule.backslashes && quoteNext && rest[length - 1] == rule.quote) {
        return {length + 1, true}; // between the halves of a doubled quote
    }
    return {state.breakAt != 0 ? state.breakAt : length, false};
}

} // namespace

void appendSplit(std::string& text, std::string_view line, const SplitRule& rule) {
    if (line.size() < rule.threshold) {
        text += line;
        return;
    }
    std::string_view rest = line;
    std::size_t planned = rule.first;
    bool continuesString = false;
    // A line that leaves no more than the line end is the last one.
    while (rest.size() > planned + 1) {
        const Break at = findBreak(rest, planned, continuesString, rule);
        text += rest.substr(0, at.length);
        if (at.closes) text += rule.stringClose;
        rest.remove_prefix(at.length);
        if (rest.size() <= 1) {
            text += '\n';
            return;
        }
        text += rule.mark;
        text += '\n';
        text += at.closes ? rule.stringPrefix : rule.prefix;
        continuesString = at.closes;
        planned = rule.further;
    }
    text += rest;
    if (rest.empty() || rest.back() != '\n') text += '\n';
}
