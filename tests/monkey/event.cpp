#include "event.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <fstream>
#include <sstream>

namespace {

constexpr std::array<const char*, static_cast<std::size_t>(Verb::COUNT)> VERBS = {
    "click", "drag", "place", "grip", "key", "type", "command", "choose", "move", "resize", "close", "wheel", "check"};

// Words of a line hold no blank; "-" is the empty one.
std::string asWord(const std::string& text) {
    std::string word;
    for (const char letter : text) {
        const auto byte = static_cast<unsigned char>(letter);
        if (std::isgraph(byte) && letter != '%' && letter != '-') {
            word += letter;
            continue;
        }
        std::array<char, 4> code{};
        std::snprintf(code.data(), code.size(), "%%%02x", byte);
        word += code.data();
    }
    return word.empty() ? "-" : word;
}

std::string fromWord(const std::string& word) {
    std::string text;
    for (std::size_t i = 0; i < word.size() && word != "-"; i++) {
        if (word[i] == '%' && i + 2 < word.size()) {
            text += static_cast<char>(std::stoi(word.substr(i + 1, 2), nullptr, 16));
            i += 2;
        } else {
            text += word[i];
        }
    }
    return text;
}

} // namespace

std::string lineOf(const Event& event) {
    std::ostringstream line;
    line << VERBS[static_cast<std::size_t>(event.verb)] << " " << asWord(event.target) << " at " << event.x << " "
         << event.y << " by " << event.dx << " " << event.dy << " button " << event.button << " " << event.count
         << " code " << event.code << " " << event.modifiers << " answer " << event.answer << " " << asWord(event.text);
    return line.str();
}

bool eventOf(const std::string& line, Event& event) {
    std::istringstream words(line);
    std::string verb, target, skip, text;
    words >> verb >> target >> skip >> event.x >> event.y >> skip >> event.dx >> event.dy >> skip >> event.button >>
        event.count >> skip >> event.code >> event.modifiers >> skip >> event.answer >> text;
    const auto* found = std::find(VERBS.begin(), VERBS.end(), verb);
    if (!words || found == VERBS.end()) return false;
    event.verb = static_cast<Verb>(found - VERBS.begin());
    event.target = fromWord(target);
    event.text = fromWord(text);
    return true;
}

std::vector<Event> readEvents(const std::string& path) {
    std::vector<Event> events;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        Event event;
        if (eventOf(line, event)) events.push_back(event);
    }
    return events;
}

void writeEvents(const std::string& path, const std::vector<Event>& events) {
    std::ofstream file(path);
    for (const Event& event : events) file << lineOf(event) << "\n";
}
