// The monkey: random mouse and keys on the whole designer, with a look at everything that must hold after each thousand
// acts.
//
//     monkey [--events N] [--seed S] [--jobs J] [--only PROJECT] [--each N] [--shrink SECONDS] [--keep FOLDER]
//     monkey --play PROJECT SEED EVENTS LIST      one run in this process
//     monkey --replay PROJECT SEED EVENTS LIST    the acts of a list again, from the same start
#include "hand.h"
#include "mind.h"
#include "runs.h"
#include "stage.h"

#include <QWidget>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr int CHECK_PERIOD = 1000;
constexpr unsigned LONGEST_WALL_SECONDS = 120; // for one act

// ---- One run in this process.

void onAlarm(int) {
    constexpr char WORDS[] = "monkey: failed: hang: an act does not end\n";
    if (write(STDERR_FILENO, WORDS, sizeof WORDS - 1) > 0) abort();
    abort();
}

bool failed(int index, const Event& event) {
    alarm(LONGEST_WALL_SECONDS);
    const std::string words = perform(event);
    alarm(0);
    if (words.empty()) return false;
    std::fprintf(stderr, "monkey: failed: %s\nmonkey: act %d: %s\n", words.c_str(), index, lineOf(event).c_str());
    return true;
}

bool play(const Run& run) {
    std::ofstream list(run.list);
    for (int i = 1; i <= run.events; i++) {
        const Event event = i % CHECK_PERIOD == 0 || i == run.events ? Event{} : nextEvent(run.seed, i);
        list << lineOf(event) << std::endl; // ahead of the act, which may be the last
        if (failed(i, event)) return false;
    }
    return true;
}

bool replay(const Run& run) {
    int index = 0;
    for (const Event& event : readEvents(run.list))
        if (failed(++index, event)) return false;
    return true;
}

int runHere(const Run& given) {
    Run run = given;
    run.list = std::filesystem::absolute(run.list).string();
    std::signal(SIGALRM, onAlarm);
    const std::string folder = setStage(run.project);
    openDesigner("one.wdp");
    const bool passed = run.replay ? replay(run) : play(run);
    if (passed) closeDesigner();
    std::error_code failure;
    std::filesystem::current_path("/", failure);
    std::filesystem::remove_all(folder, failure);
    if (!passed) _exit(1); // what it leaves behind is of no interest
    return 0;
}

// ---- Many runs.

struct Plan {
    int events = 20000;
    int each = 5000; // acts of one run
    unsigned long seed = 1;
    int jobs = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
    double shrinkSeconds = 600;
    std::string only, keep = "monkey-failures";
};

std::vector<Run> runsOf(const Plan& plan) {
    std::vector<Run> runs;
    std::vector<std::string> projects = stageNames();
    if (!plan.only.empty()) projects = {plan.only};
    for (int left = plan.events; left > 0; left -= plan.each) {
        Run run;
        run.project = projects[runs.size() % projects.size()];
        run.seed = plan.seed + runs.size();
        run.events = std::min(left, plan.each);
        const std::string stem = plan.keep + "/" + run.project + "-" + std::to_string(run.seed);
        run.list = stem + ".events";
        run.log = stem + ".log";
        runs.push_back(run);
    }
    return runs;
}

void reportFailure(const Plan& plan, const Run& run, const std::string& failure) {
    std::printf("monkey: %s, seed %lu: %s\n", run.project.c_str(), run.seed, failure.c_str());
    std::ifstream log(run.log);
    for (std::string line; std::getline(log, line);)
        if (line.starts_with("monkey: ")) std::printf("    %s\n", line.c_str());
    std::fflush(stdout);
    if (plan.shrinkSeconds <= 0) return;
    const int left = shrink(run, failure, plan.shrinkSeconds);
    std::printf("    %d acts lead to it, in %s:\n", left, run.list.c_str());
    std::ifstream list(run.list);
    constexpr int SHOWN = 40;
    std::string line;
    for (int i = 0; i < SHOWN && std::getline(list, line); i++) std::printf("      %s\n", line.c_str());
    std::fflush(stdout);
}

int runAll(const Plan& plan) {
    std::filesystem::create_directories(plan.keep);
    std::vector<Run> runs = runsOf(plan);
    std::map<int, Run> running;
    std::vector<std::pair<Run, std::string>> failures;
    int done = 0;
    for (std::size_t next = 0; next < runs.size() || !running.empty();) {
        if (next < runs.size() && static_cast<int>(running.size()) < plan.jobs) {
            running[startRun(runs[next])] = runs[next];
            next++;
            continue;
        }
        int status = 0;
        const auto ended = running.find(wait(&status));
        if (ended == running.end()) continue;
        const Run run = ended->second;
        running.erase(ended);
        const std::string failure = failureOf(run, status);
        done += failure.empty() ? run.events : 0;
        std::printf("monkey: %s, seed %lu, %d acts: %s\n", run.project.c_str(), run.seed, run.events,
                    failure.empty() ? "came through" : failure.c_str());
        std::fflush(stdout);
        if (!failure.empty()) {
            failures.emplace_back(run, failure);
            continue;
        }
        std::filesystem::remove(run.list);
        std::filesystem::remove(run.log);
    }
    for (const auto& [run, failure] : failures) reportFailure(plan, run, failure);
    std::printf("monkey: %d of %d acts came through\n", done, plan.events);
    return failures.empty() ? 0 : 1;
}

Plan planOf(int count, char** words) {
    Plan plan;
    for (int i = 1; i + 1 < count; i += 2) {
        const std::string word = words[i], value = words[i + 1];
        if (word == "--events") plan.events = std::atoi(value.c_str());
        if (word == "--each") plan.each = std::max(1, std::atoi(value.c_str()));
        if (word == "--seed") plan.seed = std::strtoul(value.c_str(), nullptr, 10);
        if (word == "--jobs") plan.jobs = std::max(1, std::atoi(value.c_str()));
        if (word == "--shrink") plan.shrinkSeconds = std::atof(value.c_str());
        if (word == "--only") plan.only = value;
        if (word == "--keep") plan.keep = value;
    }
    return plan;
}

} // namespace

int main(int count, char** words) {
    const bool replaying = count == 6 && std::strcmp(words[1], "--replay") == 0;
    const bool playing = count == 6 && std::strcmp(words[1], "--play") == 0;
    if (!replaying && !playing) return runAll(planOf(count, words));
    Run run;
    run.project = words[2];
    run.seed = std::strtoul(words[3], nullptr, 10);
    run.events = std::atoi(words[4]);
    run.list = words[5];
    run.replay = replaying;
    return runHere(run);
}
