// Takes the place of the C library's calls that tell and pass time, for this program and the libraries that it loads.
#include "clock.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr long long SECOND = 1'000'000'000, MILLISECOND = 1'000'000; // nanoseconds

// Other threads and programs need some real time while the process waits.
constexpr timespec MOMENT{0, MILLISECOND / 2};

std::atomic<long long> now{1000 * SECOND};

long long lengthOf(const timespec& time) { return time.tv_sec * SECOND + time.tv_nsec; }

bool standsStill(clockid_t clock) {
    return clock == CLOCK_MONOTONIC || clock == CLOCK_MONOTONIC_COARSE || clock == CLOCK_BOOTTIME;
}

// Waits for a file to become ready; real time passes only if none is.
int wait(pollfd* files, nfds_t count, const timespec* timeout, const sigset_t* signals) {
    constexpr size_t KERNEL_SET_BYTES = 8;
    timespec none{}, moment = MOMENT;
    const auto call = [&](timespec* limit) {
        return static_cast<int>(syscall(SYS_ppoll, files, count, limit, signals, KERNEL_SET_BYTES));
    };
    if (!timeout) return call(nullptr);
    const int ready = call(&none);
    if (ready != 0 || lengthOf(*timeout) == 0) return ready;
    now += lengthOf(*timeout);
    return call(&moment);
}

} // namespace

void passTime(int milliseconds) { now += milliseconds * MILLISECOND; }

extern "C" {

int clock_gettime(clockid_t clock, timespec* time) noexcept {
    constexpr long long STEP = 100; // whoever reads it in a loop sees it go on
    if (!standsStill(clock)) return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
    const long long at = now += STEP;
    *time = {at / SECOND, at % SECOND};
    return 0;
}

int poll(pollfd* files, nfds_t count, int milliseconds) {
    const timespec timeout{milliseconds / 1000, milliseconds % 1000 * MILLISECOND};
    return wait(files, count, milliseconds < 0 ? nullptr : &timeout, nullptr);
}

int ppoll(pollfd* files, nfds_t count, const timespec* timeout, const sigset_t* signals) {
    return wait(files, count, timeout, signals);
}

int nanosleep(const timespec* length, timespec*) {
    now += lengthOf(*length);
    syscall(SYS_nanosleep, &MOMENT, nullptr);
    return 0;
}

int clock_nanosleep(clockid_t, int, const timespec* length, timespec*) { return nanosleep(length, nullptr); }

} // extern "C"
