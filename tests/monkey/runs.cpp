#include "runs.h"

#include "event.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <sys/personality.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr char SELF[] = "/proc/self/exe";

// Names and numbers differ between runs of one fault.
std::string general(const std::string& words) {
    std::string kept;
    for (const char letter : words) {
        if (letter == '"' || letter == '(' || letter == '=' || letter == '/') break;
        if (!std::isdigit(static_cast<unsigned char>(letter))) kept += letter;
    }
    return kept.substr(0, kept.find("Form"));
}

// The first frame of a sanitizer's stack that lies in the sources.
std::string frameOf(const std::string& line) {
    const std::size_t name = line.find(" in "), source = line.find("/src/");
    if (line.find('#') == std::string::npos || name == std::string::npos || source == std::string::npos) return "";
    return line.substr(name, line.find('(', name) - name);
}

std::string failureInLog(const std::string& path) {
    std::ifstream file(path);
    std::string crash;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("monkey: failed: ")) return general(line.substr(16));
        if (!crash.empty()) {
            if (const std::string frame = frameOf(line); !frame.empty()) return general(crash + frame);
        } else if (const auto at = line.find("ERROR: "); at != std::string::npos) {
            crash = line.substr(at, 60);
        } else if (const auto fault = line.find("runtime error: "); fault != std::string::npos) {
            return general(line.substr(fault));
        }
    }
    return general(crash);
}

double secondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

bool failsSo(Run run, const std::vector<Event>& events, const std::string& failure) {
    run.list += ".try";
    run.log += ".try";
    run.replay = true;
    writeEvents(run.list, events);
    int status = 0;
    waitpid(startRun(run), &status, 0);
    const bool same = failureOf(run, status) == failure;
    unlink(run.list.c_str());
    unlink(run.log.c_str());
    return same;
}

// The acts without `count` of them from `from` on.
std::vector<Event> without(const std::vector<Event>& events, std::size_t from, std::size_t count) {
    std::vector<Event> rest(events.begin(), events.begin() + static_cast<std::ptrdiff_t>(from));
    const std::size_t behind = std::min(from + count, events.size());
    rest.insert(rest.end(), events.begin() + static_cast<std::ptrdiff_t>(behind), events.end());
    return rest;
}

} // namespace

int startRun(const Run& run) {
    const std::string seed = std::to_string(run.seed), count = std::to_string(run.events);
    const std::array<const char*, 7> arguments = {"monkey",
                                                  run.replay ? "--replay" : "--play",
                                                  run.project.c_str(),
                                                  seed.c_str(),
                                                  count.c_str(),
                                                  run.list.c_str(),
                                                  nullptr};
    const int child = fork();
    if (child != 0) return child;
    const int log = open(run.log.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (log >= 0) {
        dup2(log, STDOUT_FILENO);
        dup2(log, STDERR_FILENO);
    }
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    setenv("QT_HASH_SEED", "0", 1);
    personality(ADDR_NO_RANDOMIZE); // the order of what is kept by its address is the same in every run too
    execv(SELF, const_cast<char* const*>(arguments.data()));
    _exit(127);
}

std::string failureOf(const Run& run, int status) {
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return "";
    const std::string words = failureInLog(run.log);
    if (!words.empty()) return words;
    return WIFSIGNALED(status) ? "signal " + std::string(strsignal(WTERMSIG(status))) : "it ended by itself";
}

int shrink(Run run, const std::string& failure, double seconds) {
    const auto start = std::chrono::steady_clock::now();
    std::vector<Event> events = readEvents(run.list);
    for (std::size_t part = std::max<std::size_t>(events.size() / 2, 1); secondsSince(start) < seconds;) {
        bool smaller = false;
        for (std::size_t from = 0; from < events.size() && secondsSince(start) < seconds;) {
            const std::vector<Event> rest = without(events, from, part);
            if (!rest.empty() && failsSo(run, rest, failure)) {
                events = rest;
                smaller = true;
                writeEvents(run.list, events);
            } else {
                from += part;
            }
        }
        if (part == 1 && !smaller) break;
        if (part > 1) part /= 2;
    }
    return static_cast<int>(events.size());
}
