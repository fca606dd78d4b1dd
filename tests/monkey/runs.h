// Runs of the monkey in processes of their own, so that a crash ends no more than a run, and the search for the few
// acts that a failure needs.
#pragma once

#include <string>

struct Run {
    std::string project; // see stage.h
    unsigned long seed = 1;
    int events = 5000;
    std::string list; // file of the acts: written as they are performed, or performed as they stand when `replay`
    bool replay = false;
    std::string log; // file of what the process says
};

// Starts the run, returns its process id.
int startRun(const Run& run);
// What a run that has ended with that status failed by, the same words for the same fault; "" when it came through.
std::string failureOf(const Run& run, int status);

// Takes out of the run's list what the failure does not need, for at most so many seconds, and leaves the rest there.
// Returns the number of acts left.
int shrink(Run run, const std::string& failure, double seconds);
